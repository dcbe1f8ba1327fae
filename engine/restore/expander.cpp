#include "restore/expander.h"

#include <algorithm>
#include <cmath>

namespace zuvo::restore {

namespace {

double onePole(double ms, double fs)
{
    return ms > 0 ? 1.0 - std::exp(-1.0 / (ms * 1e-3 * fs)) : 1.0;
}

} // namespace

double expanderGainDb(double level, double t, double r, double w)
{
    if (w > 0 && level > t - w / 2 && level < t + w / 2) {
        const double d = level - t - w / 2;
        return -(r - 1) * d * d / (2 * w);
    }
    return level >= t ? 0.0 : (r - 1) * (level - t);
}

Expander::Expander(int channels, double fs, double thresholdDb, double ratio, double kneeDb, double attackMs,
                   double releaseMs)
    : threshold_(thresholdDb), ratio_(ratio), knee_(kneeDb), detect_(onePole(kExpanderRmsMs, fs)),
      attack_(onePole(attackMs, fs)), release_(onePole(releaseMs, fs)),
      ms_(static_cast<std::size_t>(channels), 0.0)
{
    // Start open: the first notes must not fade in.
    gainDb_ = 0;
    warmup_ = static_cast<std::size_t>(kExpanderWarmupTimeConstants * kExpanderRmsMs * 1e-3 * fs);
}

void Expander::process(std::vector<std::vector<double>>& ch, std::size_t n)
{
    const std::size_t channels = ch.size();
    // Far below any audible level; keeps log10 finite on digital silence.
    constexpr double kFloor = 1e-20;
    for (std::size_t i = 0; i < n; ++i) {
        double level = kFloor;
        for (std::size_t c = 0; c < channels; ++c) {
            const double x = ch[c][i];
            ms_[c] += detect_ * (x * x - ms_[c]);
            level = std::max(level, ms_[c]);
        }
        // The detector starts empty: while it fills, its level means
        // nothing and the gain stays where it is (open).
        if (warmup_ > 0) {
            --warmup_;
            continue;
        }
        const double target = expanderGainDb(10 * std::log10(level), threshold_, ratio_, knee_);
        gainDb_ += (target > gainDb_ ? attack_ : release_) * (target - gainDb_);
        smallestDb_ = std::min(smallestDb_, gainDb_);
        if (gainDb_ == 0)
            continue;
        const double g = std::pow(10.0, gainDb_ / 20);
        for (std::size_t c = 0; c < channels; ++c)
            ch[c][i] *= g;
    }
}

} // namespace zuvo::restore
