#pragma once
// DST frame encoder. One frame is 1/75 s of every channel. Each channel gets
// its own prediction filter (Levinson design on the frame's own bits) and
// its own probability table (measured error rate per prediction-magnitude
// band); all channels share one arithmetic code, interleaved bit by bit.
// A frame that would not get smaller is stored as plain DSD.
#include <cstdint>
#include <vector>

namespace zuvo::dst {

// What a compression level costs and buys. Higher levels design longer
// filters and try more coefficient scalings (each trial is a full prediction
// pass over the frame); the smallest result wins.
struct LevelPlan {
    int order = 32;               // filter taps
    int scalings = 1;             // coefficient scalings tried (see firstCoefficientChoices)
    std::vector<int> extraOrders; // further orders tried with the first scaling
};
LevelPlan planForLevel(int level); // level 1..9
constexpr int kDefaultLevel = 1;

struct FrameStats {
    bool coded = false;      // false: stored as plain DSD
    std::size_t bytes = 0;
};

// `channels[c]` points at frameBits/8 bytes of channel c (earliest bit in
// bit 7). Returns the DSTF chunk payload.
std::vector<std::uint8_t> encodeFrame(const std::vector<const std::uint8_t*>& channels, int frameBits, int level,
                                      FrameStats* stats = nullptr);

// Two frames at once (same result as two encodeFrame calls, faster: the two
// arithmetic codes run interleaved).
void encodeFramePair(const std::vector<const std::uint8_t*>& first, const std::vector<const std::uint8_t*>& second,
                     int frameBits, int level, std::vector<std::uint8_t>& outFirst, std::vector<std::uint8_t>& outSecond,
                     FrameStats* statsFirst = nullptr, FrameStats* statsSecond = nullptr);

// The stored (uncompressed) form of a frame.
std::vector<std::uint8_t> storedFrame(const std::vector<const std::uint8_t*>& channels, int frameBits);

} // namespace zuvo::dst
