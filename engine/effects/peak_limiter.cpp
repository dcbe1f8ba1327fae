#include "effects/peak_limiter.h"

#include <algorithm>
#include <cmath>

namespace zuvo::effects {

namespace {

constexpr double kPi = 3.14159265358979323846;

double sinc(double x)
{
    return x == 0 ? 1.0 : std::sin(kPi * x) / (kPi * x);
}

} // namespace

PeakLimiter::PeakLimiter(int channels, double fs, double ceiling)
    : channels_(channels), ceiling_(ceiling),
      window_(std::max<std::size_t>(1, static_cast<std::size_t>(std::lround(kLimiterLookaheadMs * fs / 1000.0)))),
      release_(std::exp(-1.0 / (kLimiterReleaseMs * fs / 1000.0))),
      recent_(static_cast<std::size_t>(channels), std::vector<double>(kTaps - 1, 0.0)),
      delayLine_(static_cast<std::size_t>(channels), std::vector<double>(kHalfTaps + window_, 0.0))
{
    // Silence before the start needs no gain reduction.
    box_.assign(window_ + 1, 1.0);
    boxSum_ = static_cast<double>(window_ + 1);
    // Phase t interpolates at (kHalfTaps - 1) + t / kPhases within a window
    // of kTaps samples; a Hann-windowed sinc, normalised to unit DC gain.
    for (std::size_t t = 0; t < kPhases; ++t) {
        const double pos = static_cast<double>(kHalfTaps - 1) + static_cast<double>(t) / kPhases;
        double sum = 0;
        for (std::size_t j = 0; j < kTaps; ++j) {
            const double d = static_cast<double>(j) - pos;
            const double w = 0.5 + 0.5 * std::cos(kPi * d / (kHalfTaps + 0.5));
            taps_[t][j] = sinc(d) * w;
            sum += taps_[t][j];
        }
        for (double& v : taps_[t])
            v /= sum;
    }
}

double PeakLimiter::step(double peak)
{
    const double need = peak > ceiling_ ? ceiling_ / peak : 1.0;
    // Sliding minimum over the last window_ + 1 needed gains: the gain the
    // sample leaving the delay (window_ samples older) must not exceed.
    const std::uint64_t i = index_++;
    while (!mins_.empty() && mins_.back().second >= need)
        mins_.pop_back();
    mins_.emplace_back(i, need);
    while (mins_.front().first + window_ < i)
        mins_.pop_front();
    const double q = mins_.front().second;
    box_.push_back(q);
    boxSum_ += q - box_.front();
    box_.pop_front();
    const double smooth = std::min(1.0, boxSum_ / static_cast<double>(window_ + 1) + 1e-15);
    gain_ = std::min(smooth, gain_ * release_ + (1.0 - release_));
    if (gain_ > 1.0 - 1e-12)
        gain_ = 1.0; // the release ends; the running sum's rounding must not keep it just below 1
    return gain_;
}

void PeakLimiter::process(Planar& block, std::size_t n)
{
    const std::size_t len = latency();
    const auto chans = static_cast<std::size_t>(channels_);
    // Peaks: for input sample k the window is the kTaps samples ending at
    // k; its estimate is for the sample kHalfTaps older and the three
    // points after it.
    peaks_.assign(n, 0.0);
    for (std::size_t c = 0; c < chans; ++c) {
        ext_.assign(recent_[c].begin(), recent_[c].end());
        ext_.insert(ext_.end(), block[c].begin(), block[c].begin() + static_cast<std::ptrdiff_t>(n));
        const double* e = ext_.data();
        for (std::size_t k = 0; k < n; ++k) {
            const double* w = e + k;
            double p = std::fabs(w[kHalfTaps - 1]);
            for (std::size_t t = 1; t < kPhases; ++t) {
                double v = 0;
                for (std::size_t j = 0; j < kTaps; ++j)
                    v += taps_[t][j] * w[j];
                p = std::max(p, std::fabs(v));
            }
            peaks_[k] = std::max(peaks_[k], p);
        }
        std::copy(ext_.end() - static_cast<std::ptrdiff_t>(kTaps - 1), ext_.end(), recent_[c].begin());
    }
    gains_.resize(n);
    for (std::size_t k = 0; k < n; ++k) {
        const double g = step(peaks_[k]);
        gains_[k] = g;
        if (g < 1.0) {
            ++limited_;
            smallest_ = std::min(smallest_, g);
        }
    }
    // Output: the input latency() samples earlier, times the gain.
    for (std::size_t c = 0; c < chans; ++c) {
        ext_.assign(delayLine_[c].begin(), delayLine_[c].end());
        ext_.insert(ext_.end(), block[c].begin(), block[c].begin() + static_cast<std::ptrdiff_t>(n));
        double* y = block[c].data();
        for (std::size_t k = 0; k < n; ++k)
            y[k] = ext_[k] * gains_[k];
        std::copy(ext_.end() - static_cast<std::ptrdiff_t>(len), ext_.end(), delayLine_[c].begin());
    }
}

ResponseMatrix PeakLimiter::response(double hz, double fs) const
{
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    const cplx d = delayResponse(latency(), hz, fs);
    for (int c = 0; c < channels_; ++c)
        r.at(c, c) = d;
    return r;
}

} // namespace zuvo::effects
