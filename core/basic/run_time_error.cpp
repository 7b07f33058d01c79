// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"

#include <utility>

namespace zrv {

RunTimeError::RunTimeError(qint32 number, QString description)
    : m_number(number)
    , m_description(std::move(description))
    , m_what(QByteArray::number(number) + ": " + m_description.toUtf8())
{
}

} // namespace zrv
