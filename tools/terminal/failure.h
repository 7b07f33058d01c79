// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>

namespace zrv {

/// Why a command can't be done, in one line of English for the person at the terminal.
class Failure : public std::exception {
public:
    explicit Failure(QString reason)
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

} // namespace zrv
