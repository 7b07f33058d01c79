// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/refused.h"

#include <QtGlobal>

#include <cstddef>
#include <span>

namespace zrv::jet {

/// A stretch of a file, whose numbers are little-endian. What would be read beyond its end is damage. It owns nothing:
/// the file must outlive it.
class Bytes {
public:
    Bytes() = default;
    explicit Bytes(std::span<const unsigned char> bytes)
        : m_bytes(bytes)
    {
    }

    [[nodiscard]] std::size_t size() const { return m_bytes.size(); }
    [[nodiscard]] const unsigned char *data() const { return m_bytes.data(); }

    [[nodiscard]] quint8 u8(std::size_t at) const
    {
        expect(at, 1);
        return m_bytes[at];
    }
    [[nodiscard]] quint16 u16(std::size_t at) const
    {
        expect(at, 2);
        return quint16(m_bytes[at] | m_bytes[at + 1] << 8);
    }
    [[nodiscard]] quint32 u32(std::size_t at) const { return quint32(u16(at)) | quint32(u16(at + 2)) << 16; }
    [[nodiscard]] Bytes part(std::size_t at, std::size_t size) const
    {
        expect(at, size);
        return Bytes(m_bytes.subspan(at, size));
    }

private:
    void expect(std::size_t at, std::size_t size) const
    {
        if (at > m_bytes.size() || size > m_bytes.size() - at)
            damaged(QStringLiteral("something ends before it should"));
    }

    std::span<const unsigned char> m_bytes;
};

} // namespace zrv::jet
