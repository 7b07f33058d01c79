// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/report/report.h"

#include <optional>

namespace zrv::report {

/// An item of a page, both from 0.
struct Place {
    int page = 0;
    int item = 0;
    friend bool operator==(const Place &, const Place &) = default;
};

/// The first item behind `after` that holds the sought text, whichever yeh or kaf, digits or thousands commas either
/// is written with; behind the last page the search goes on with the first, and `after` itself comes last. Nothing
/// when no item holds it, or nothing is sought.
[[nodiscard]] std::optional<Place> findText(const Report &report, QStringView sought,
                                            const std::optional<Place> &after);

} // namespace zrv::report
