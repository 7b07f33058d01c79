// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <exception>

namespace zrv::checktool {

/// Why the command can't be done, in one line of English for the person at the terminal.
class Refusal : public std::exception {
public:
    explicit Refusal(QString reason)
        : m_reason(std::move(reason))
        , m_what(m_reason.toUtf8())
    {
    }

    [[nodiscard]] const QString &reason() const { return m_reason; }
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

private:
    QString m_reason;
    QByteArray m_what;
};

enum class Command { Help, Version, Rules, Check };

/// What the person at the terminal asks for.
struct Request {
    Command command = Command::Check;
    QStringList paths; ///< files and folders
    QString report;    ///< where the reports go: a file, "-" for standard output, empty for none
    bool onlyErrors = false;
    bool firstTwoLines = false;
    bool summary = false; ///< the table alone
};

/// Reads the words behind the program's name. Raises Refusal for what it doesn't understand.
[[nodiscard]] Request readCommandLine(const QStringList &words);

[[nodiscard]] QString helpText();
[[nodiscard]] QString versionText();
/// Every finding by its name, with its meaning, its remedy and its words.
[[nodiscard]] QString rulesText();

} // namespace zrv::checktool
