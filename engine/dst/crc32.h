#pragma once
// CRC-32 (IEEE 802.3 polynomial, reflected, as in zip and PNG) of each
// frame's DSD data: lets the reader name a damaged frame.
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuvo::dst {

std::uint32_t crc32(const std::uint8_t* data, std::size_t size, std::uint32_t crc = 0);

// CRC-32 of `bytes` bytes of every channel laid out byte-interleaved (as in
// an uncompressed DSD chunk), without building that layout.
std::uint32_t crc32Interleaved(const std::vector<const std::uint8_t*>& channels, std::size_t bytes);

} // namespace zuvo::dst
