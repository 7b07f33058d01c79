// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>

namespace zrv::jet {

/// Why a file isn't read, each under a name that programs may rely on.
namespace reason {

inline constexpr QStringView NoFile = u"no-file"; ///< missing, unreadable, a folder, a pipe, a link
inline constexpr QStringView InUse = u"in-use";   ///< another program has it open
inline constexpr QStringView TooLarge = u"too-large";
inline constexpr QStringView NotJet = u"not-jet";
inline constexpr QStringView Version = u"version"; ///< a database of this kind, but of another version
inline constexpr QStringView Password = u"password";
inline constexpr QStringView Damage = u"damage";

} // namespace reason

/// A file that can't be read, or not to its end. Nothing of it is to be used.
class Refused : public std::exception {
public:
    /// `why` is one of the names above, `text` one line of English.
    Refused(QStringView why, QString text)
        : m_why(why)
        , m_text(std::move(text))
        , m_what(m_text.toUtf8())
    {
    }

    [[nodiscard]] QStringView why() const { return m_why; }
    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

private:
    QStringView m_why;
    QString m_text;
    QByteArray m_what;
};

/// The place of a fault: "page 38 row 3".
[[nodiscard]] inline QString place(quint32 page, int row = -1)
{
    const QString text = QStringLiteral("page ") + QString::number(page);
    return row < 0 ? text : text + QStringLiteral(" row ") + QString::number(row);
}

[[noreturn]] inline void damaged(const QString &text)
{
    throw Refused(reason::Damage, text);
}

} // namespace zrv::jet
