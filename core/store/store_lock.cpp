// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_lock.h"

#include <QSysInfo>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

StoreLock::StoreLock(const QString &store)
    : m_file(store + u".lock"_s)
{
    // A program may have the store open for days.
    m_file.setStaleLockTime(0);
    acquire();
}

void StoreLock::takeOver()
{
    if (m_state != State::HeldAfar)
        return;
    m_file.removeStaleLockFile();
    acquire();
}

void StoreLock::acquire()
{
    if (m_file.tryLock()) {
        m_state = State::Held;
        return;
    }
    QString program;
    if (m_file.error() != QLockFile::LockFailedError || !m_file.getLockInfo(&m_process, &m_machine, &program)) {
        m_state = State::Impossible;
        return;
    }
    m_state = m_machine == QSysInfo::machineHostName() ? State::HeldHere : State::HeldAfar;
}

} // namespace zrv
