// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDevice>
#include <QString>

namespace zrv::player {

/// The account of a sitting, a line an event, in order. Each line reaches the device at once, so that the account
/// of a sitting that breaks off is complete up to that point.
class Transcript {
public:
    explicit Transcript(QIODevice &device)
        : m_device(device)
    {
    }

    void line(const QString &text)
    {
        m_device.write(text.toUtf8() + '\n');
        if (auto *file = qobject_cast<QFileDevice *>(&m_device))
            file->flush();
    }

private:
    QIODevice &m_device;
};

} // namespace zrv::player
