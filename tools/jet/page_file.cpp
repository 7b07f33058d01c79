// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/page_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <numeric>
#include <string_view>

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::string_view Magic("\0\1\0\0Standard Jet DB\0", 20);
constexpr quint8 Jet4 = 1;

// The places of the header that matter here; from HeaderCipher on it is enciphered.
constexpr std::size_t VersionByte = 0x14;
constexpr std::size_t HeaderCipher = 0x18;
constexpr std::size_t HeaderCipherSize = 0x80;
constexpr std::size_t PageKey = 0x3E;
constexpr std::size_t Password = 0x42;
constexpr std::size_t PasswordSize = 40;
constexpr std::size_t CreationDate = 0x72;

/// RC4, the stream cipher that the format uses; deciphers in place.
void decipher(std::span<const unsigned char> key, std::span<unsigned char> bytes)
{
    std::array<unsigned char, 256> state{};
    std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
    unsigned char j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<unsigned char>(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    unsigned char i = 0;
    j = 0;
    for (unsigned char &byte : bytes) {
        j = static_cast<unsigned char>(j + state[++i]);
        std::swap(state[i], state[j]);
        byte ^= state[static_cast<unsigned char>(state[i] + state[j])];
    }
}

std::array<unsigned char, 4> keyBytes(quint32 key)
{
    std::array<unsigned char, 4> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(key >> (8 * i));
    return bytes;
}

/// The password is hidden under the day on which the file was made, again and again.
bool hasPassword(Bytes header)
{
    const quint64 bits = header.u32(CreationDate) | quint64(header.u32(CreationDate + 4)) << 32;
    double date = 0;
    std::memcpy(&date, &bits, sizeof date);
    if (!std::isfinite(date) || std::abs(date) > 1e9)
        damaged(u"page 0: the file has no date"_s);
    const auto mask = quint32(qint32(date));
    for (std::size_t at = 0; at < PasswordSize; at += 4) {
        if (header.u32(Password + at) != mask)
            return true;
    }
    return false;
}

} // namespace

PageFile::PageFile(std::vector<unsigned char> bytes)
    : m_bytes(std::move(bytes))
{
    if (m_bytes.size() <= VersionByte || std::memcmp(m_bytes.data(), Magic.data(), Magic.size()) != 0)
        throw Refused(reason::NotJet, u"is no database of an older version of the program"_s);
    if (m_bytes[VersionByte] != Jet4)
        throw Refused(reason::Version, u"is a database of another kind of Access; only that of 2000 to 2003 is read"_s);
    if (pageCount() < 2)
        damaged(u"the file is cut off"_s);
    constexpr std::array<unsigned char, 4> headerKey = {0xC7, 0xDA, 0x39, 0x6B};
    decipher(headerKey, std::span(m_bytes).subspan(HeaderCipher, HeaderCipherSize));
    const Bytes header{std::span(m_bytes).first(PageSize)};
    if (hasPassword(header))
        throw Refused(reason::Password, u"is kept with a password; take it off in Access first"_s);
    const quint32 key = header.u32(PageKey);
    for (quint32 number = 1; key != 0 && number < pageCount(); ++number)
        decipher(keyBytes(key ^ number), std::span(m_bytes).subspan(number * PageSize, PageSize));
}

Bytes PageFile::page(quint32 number, PageKind kind) const
{
    if (number == 0 || number >= pageCount())
        damaged(place(number) + u" is not in the file"_s);
    const Bytes page{std::span(m_bytes).subspan(number * PageSize, PageSize)};
    if (page.u8(0) != quint8(kind))
        damaged(place(number) + u" is of another kind than it should be"_s);
    return page;
}

} // namespace zrv::jet
