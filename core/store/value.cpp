// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/value.h"

#include <cmath>

namespace zrv {

QString Value::toText() const
{
    if (const auto *text = std::get_if<QString>(&m_cell))
        return *text;
    if (const auto *whole = std::get_if<qint64>(&m_cell))
        return QString::number(*whole);
    if (const auto *real = std::get_if<double>(&m_cell)) {
        // Amounts must never be seen in exponent form, and a real is whole up to 2^53 without loss.
        if (std::nearbyint(*real) == *real && std::abs(*real) < 9007199254740992.0)
            return QString::number(static_cast<qint64>(*real));
        return QString::number(*real, 'g', 15);
    }
    return {};
}

} // namespace zrv
