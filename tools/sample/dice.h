// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <array>
#include <span>
#include <string_view>

namespace zrv::sample {

/// The sample's own source of chance. The distributions of the standard library differ from one library to the next;
/// these throws are the same everywhere, so that a sample can be named by its number alone.
///
/// Each throw advances a 64-bit counter by an odd constant and mixes the counter's bits (the SplitMix64 steps).
/// A range takes the upper half of the mix, multiplied down; its bias, below one in 2^12 for any range used here,
/// doesn't matter to a sample.
class Dice {
public:
    /// The dice of one thing, such as payee 17's person, of one sample. Things draw from dice of their own, so that
    /// each can be made again without those before it.
    Dice(quint64 sample, std::string_view thing, quint64 number);

    [[nodiscard]] quint64 next();
    /// 0 to sides - 1.
    [[nodiscard]] int below(int sides);
    /// low to high, both thrown.
    [[nodiscard]] int between(int low, int high) { return low + below(high - low + 1); }
    [[nodiscard]] bool oneIn(int sides) { return below(sides) == 0; }

    template <typename T, std::size_t Size>
    [[nodiscard]] const T &of(const T (&list)[Size])
    {
        return list[std::size_t(below(int(Size)))];
    }

private:
    quint64 m_counter;
};

/// Number `index` of all the numbers 0 to count - 1 in an order that looks like chance but repeats none. `count` is at
/// most 2^32 and greater than `index`.
[[nodiscard]] quint64 shuffled(quint64 index, quint64 count, quint64 sample);

} // namespace zrv::sample
