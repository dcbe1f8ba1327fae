#pragma once
// CRC-32 (IEEE 802.3 polynomial, reflected, as in zip and PNG) of each
// frame's DSD data: lets the reader name a damaged frame.
#include <cstddef>
#include <cstdint>

namespace zuvo::dst {

std::uint32_t crc32(const std::uint8_t* data, std::size_t size, std::uint32_t crc = 0);

} // namespace zuvo::dst
