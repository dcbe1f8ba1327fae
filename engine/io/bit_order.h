#pragma once
// DSF stores the earliest bit of each byte in bit 0, DSDIFF in bit 7.
#include <array>
#include <cstdint>

namespace zuvo::io {

inline const std::array<std::uint8_t, 256>& bitReverseTable()
{
    static const std::array<std::uint8_t, 256> table = [] {
        std::array<std::uint8_t, 256> t{};
        for (int i = 0; i < 256; ++i) {
            std::uint8_t r = 0;
            for (int b = 0; b < 8; ++b)
                if (i & (1 << b))
                    r |= static_cast<std::uint8_t>(0x80 >> b);
            t[static_cast<std::size_t>(i)] = r;
        }
        return t;
    }();
    return table;
}

// Idle pattern of a silent DSD stream, earliest bit in bit 7.
constexpr std::uint8_t kDsdSilenceMsbFirst = 0x69;

} // namespace zuvo::io
