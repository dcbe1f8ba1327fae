#pragma once
// DST frame decoder: a DSTF payload back to the DSD bits of every channel.
#include <cstdint>
#include <string>
#include <vector>

namespace zuvo::dst {

// Decodes one frame. `out[c]` receives frameBits/8 bytes of channel c,
// earliest bit in bit 7. False with a reason when the frame is malformed.
bool decodeFrame(const std::uint8_t* data, std::size_t size, int channels, int frameBits,
                 std::vector<std::vector<std::uint8_t>>& out, std::string* why);

} // namespace zuvo::dst
