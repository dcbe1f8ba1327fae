#pragma once
// Per-channel statistics of a signal, fed block by block: DC offset, peak,
// RMS, crest factor, clipped samples and a dynamic-range figure.
//
// Dynamic range: the signal is cut into 3 s blocks; the RMS of the loudest
// 20 % of the blocks (at least one block) is the "loud part" level, and the
// figure is the channel's peak over that level, in dB. A short tail block
// counts when it is at least half a block long (a file shorter than 3 s is
// one block). Silence has peak and RMS "-inf" and crest and range 0.
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuvo::analysis {

constexpr double kClipLevel = 0.999969482421875; // 32767/32768: at or above counts as clipped
constexpr double kDynamicRangeBlockSeconds = 3.0;
constexpr double kDynamicRangeLoudShare = 0.2;

struct ChannelFigures {
    double dcOffset = 0;          // mean, linear (full scale 1.0)
    double peakDbfs = 0;          // -inf for silence
    double rmsDbfs = 0;           // -inf for silence
    double crestDb = 0;           // peak - RMS; 0 for silence
    std::uint64_t clipped = 0;    // samples with |x| >= kClipLevel
    double dynamicRangeDb = 0;    // peak - loud-part RMS; 0 for silence
};

class ChannelStats {
public:
    explicit ChannelStats(int sampleRate);
    void add(const double* x, std::size_t n);
    ChannelFigures figures() const;

private:
    std::size_t blockLength_;
    double sum_ = 0, sumSquares_ = 0, peak_ = 0;
    std::uint64_t count_ = 0, clipped_ = 0;
    double blockSquares_ = 0;
    std::size_t blockFill_ = 0;
    std::vector<double> blockMeanSquares_;
};

// The loud-part figure on its own, for the tests: mean squares of the
// blocks in, RMS of the loudest share out (linear).
double loudPartRms(std::vector<double> blockMeanSquares, double share);

} // namespace zuvo::analysis
