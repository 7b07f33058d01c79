// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace zrv::sample {

/// What a sample store is to hold. Two plans that are equal give the same store, byte for byte.
struct Plan {
    int payees = 12;  ///< 1 to MostPayees
    int months = 3;   ///< 1 to 12, from the year's first month on
    int year = 1389;  ///< Solar Hijri, FirstYear to LastYear
    quint64 rng = 1;  ///< which of all samples of this size
    bool old = false; ///< in the shape and with the code lists of the program's oldest stores

    static constexpr int MostPayees = 1'000'000; ///< the summary list counts payees in six digits
    static constexpr int FirstYear = 1300;
    static constexpr int LastYear = 1499;
};

} // namespace zrv::sample
