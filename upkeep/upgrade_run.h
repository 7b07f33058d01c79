// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/basic/run_time_error.h"
#include "core/program.h"

namespace zrv {

/// What the steps of an upgrade share: the store, and the log that the user reads when all is done.
class UpgradeRun {
public:
    explicit UpgradeRun(Program &program)
        : m_program(program)
    {
    }

    [[nodiscard]] Program &program() const { return m_program; }

    /// Runs a statement on a connection of its own.
    void execute(const QString &statement) const;
    /// The condition that limits a statement to the payer's rows.
    [[nodiscard]] QString isThePayers() const;

    void log(const QString &line) { m_log += line + QStringLiteral("\r\n"); }
    [[nodiscard]] const QString &UpgradeLog() const { return m_log; }

    /// The box that names a routine whose statements failed.
    void showFailure(const RunTimeError &failure, const QString &routine) const;

private:
    Program &m_program;
    QString m_log;
};

} // namespace zrv
