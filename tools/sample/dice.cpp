// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/dice.h"

namespace zrv::sample {

namespace {

constexpr quint64 Step = 0x9E3779B97F4A7C15;

quint64 mixed(quint64 bits)
{
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
    return bits ^ (bits >> 31);
}

} // namespace

Dice::Dice(quint64 sample, std::string_view thing, quint64 number)
    : m_counter(mixed(sample + Step))
{
    for (const char letter : thing)
        m_counter = mixed(m_counter + static_cast<unsigned char>(letter) + Step);
    m_counter = mixed(m_counter + number * Step);
}

quint64 Dice::next()
{
    m_counter += Step;
    return mixed(m_counter);
}

int Dice::below(int sides)
{
    return int(((next() >> 32) * quint64(sides)) >> 32);
}

quint64 shuffled(quint64 index, quint64 count, quint64 sample)
{
    int half = 1;
    while (quint64(1) << (2 * half) < count)
        ++half;
    const quint64 mask = (quint64(1) << half) - 1;
    // A Feistel network is one-to-one whatever its rounds do. It covers the next power of four; a number beyond the
    // count is followed until it falls below.
    do {
        quint64 left = index >> half;
        quint64 right = index & mask;
        for (quint64 round = 1; round <= 4; ++round) {
            const quint64 swapped = left ^ (mixed(right + mixed(sample + round * Step)) & mask);
            left = right;
            right = swapped;
        }
        index = left << half | right;
    } while (index >= count);
    return index;
}

} // namespace zrv::sample
