#pragma once
// What a DST frame carries besides the arithmetic code: one prediction
// filter and one probability table per element, and which element each
// channel uses. Shared by the encoder, the decoder and the predictor.
#include <cstdint>
#include <string>
#include <vector>

namespace zuvo::dst {

constexpr int kFramesPerSecond = 75;
constexpr int kMaxOrder = 128;       // 7-bit order field, plus one
constexpr int kCoefBits = 9;         // two's complement filter coefficients
constexpr int kMaxProbs = 64;        // 6-bit table length field, plus one
constexpr int kProbBits = 7;         // probability minus one
constexpr int kProbIndexShift = 3;   // |prediction| >> 3 picks the table entry
constexpr int kMaxChannels = 8;

// DSD bits per channel in one frame (1/75 s).
inline int frameBits(int dsdRate) { return dsdRate / kFramesPerSecond; }
inline int frameBytes(int dsdRate) { return frameBits(dsdRate) / 8; }
// DSD rates a frame can describe: whole bytes per 1/75 s.
inline bool rateFitsFrames(int dsdRate) { return dsdRate > 0 && dsdRate % (kFramesPerSecond * 8) == 0; }

struct FrameTables {
    std::vector<std::vector<int>> filters; // each 1..128 coefficients, -256..255
    std::vector<std::vector<int>> probs;   // each 1..64 entries, 1..128
    std::vector<int> filterOf;             // per channel
    std::vector<int> probsOf;              // per channel
    std::vector<bool> halfProb;            // per channel
};

// Bits needed for an element number from 0 to `count` (count means "new").
inline int mapFieldBits(int count)
{
    int n = 0;
    while (count >= (1 << n))
        ++n;
    return n;
}

} // namespace zuvo::dst
