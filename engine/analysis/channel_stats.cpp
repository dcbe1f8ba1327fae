#include "analysis/channel_stats.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "analysis/loudness_meter.h"

namespace zuvo::analysis {

ChannelStats::ChannelStats(int sampleRate)
    : blockLength_(static_cast<std::size_t>(std::max(1.0, kDynamicRangeBlockSeconds * std::max(sampleRate, 1))))
{
}

void ChannelStats::add(const double* x, std::size_t n)
{
    for (std::size_t i = 0; i < n; ++i) {
        const double v = x[i];
        const double a = std::fabs(v);
        sum_ += v;
        sumSquares_ += v * v;
        peak_ = std::max(peak_, a);
        if (a >= kClipLevel)
            ++clipped_;
        blockSquares_ += v * v;
        if (++blockFill_ == blockLength_) {
            blockMeanSquares_.push_back(blockSquares_ / static_cast<double>(blockLength_));
            blockSquares_ = 0;
            blockFill_ = 0;
        }
    }
    count_ += n;
}

double loudPartRms(std::vector<double> blocks, double share)
{
    if (blocks.empty())
        return 0;
    std::sort(blocks.begin(), blocks.end(), std::greater<>());
    const auto take = std::max<std::size_t>(1, static_cast<std::size_t>(std::floor(share * static_cast<double>(blocks.size()))));
    double s = 0;
    for (std::size_t i = 0; i < take; ++i)
        s += blocks[i];
    return std::sqrt(s / static_cast<double>(take));
}

ChannelFigures ChannelStats::figures() const
{
    ChannelFigures f;
    f.clipped = clipped_;
    if (count_ == 0) {
        f.peakDbfs = f.rmsDbfs = -INFINITY;
        return f;
    }
    const double n = static_cast<double>(count_);
    f.dcOffset = sum_ / n;
    f.peakDbfs = toDb(peak_);
    const double rms = std::sqrt(sumSquares_ / n);
    f.rmsDbfs = toDb(rms);
    if (peak_ > 0 && rms > 0)
        f.crestDb = f.peakDbfs - f.rmsDbfs;
    std::vector<double> blocks = blockMeanSquares_;
    if (blockFill_ > 0 && (blocks.empty() || blockFill_ * 2 >= blockLength_))
        blocks.push_back(blockSquares_ / static_cast<double>(blockFill_));
    const double loud = loudPartRms(blocks, kDynamicRangeLoudShare);
    if (peak_ > 0 && loud > 0)
        f.dynamicRangeDb = f.peakDbfs - toDb(loud);
    return f;
}

} // namespace zuvo::analysis
