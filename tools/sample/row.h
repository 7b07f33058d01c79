// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>
#include <variant>

namespace zrv::sample {

/// Where a column of the store finds its value in a row of the sample: a text, or an amount in whole rials.
template <typename Row>
struct Column {
    std::string_view name;
    std::variant<std::string Row::*, qint64 Row::*> cell;
};

} // namespace zrv::sample
