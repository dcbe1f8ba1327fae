#include "dst/crc32.h"

#include <array>

namespace zuvo::dst {

namespace {
const std::array<std::uint32_t, 256>& crcTable()
{
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> t{};
        for (std::uint32_t i = 0; i < 256; ++i) {
            std::uint32_t c = i;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    return table;
}
} // namespace

std::uint32_t crc32(const std::uint8_t* data, std::size_t size, std::uint32_t crc)
{
    const auto& table = crcTable();
    crc = ~crc;
    for (std::size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xffu] ^ (crc >> 8);
    return ~crc;
}

std::uint32_t crc32Interleaved(const std::vector<const std::uint8_t*>& channels, std::size_t bytes)
{
    const auto& table = crcTable();
    std::uint32_t crc = ~0u;
    for (std::size_t i = 0; i < bytes; ++i)
        for (const std::uint8_t* ch : channels)
            crc = table[(crc ^ ch[i]) & 0xffu] ^ (crc >> 8);
    return ~crc;
}

} // namespace zuvo::dst
