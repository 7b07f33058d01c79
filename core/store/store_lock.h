// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QString>

namespace zrv {

/// Held by the one program that works on a store: a file beside it, for as long as this lives. What a program left that
/// is gone counts for nothing, unless it ran on another machine, of which nobody can know whether it still runs.
class StoreLock {
public:
    enum class State {
        Held,       ///< by this
        HeldHere,   ///< by another program on this machine
        HeldAfar,   ///< by one on another machine
        Impossible, ///< no file can be made beside the store; the store then can't be written to either
    };

    explicit StoreLock(const QString &store);

    [[nodiscard]] State state() const { return m_state; }
    /// Who else holds it: the name of the machine and the number of the process there.
    [[nodiscard]] QString machine() const { return m_machine; }
    [[nodiscard]] qint64 process() const { return m_process; }

    /// Takes the lock from a machine that is known to be done with the store.
    void takeOver();

private:
    void acquire();

    QLockFile m_file;
    State m_state = State::Impossible;
    QString m_machine;
    qint64 m_process = 0;
};

} // namespace zrv
