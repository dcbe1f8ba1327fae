#include "restore/spectral/spectral_noise.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "restore/spectral/spectral_fft.h"

namespace zuvo::restore {

namespace {

constexpr double kSmoothSeconds = 0.08;
constexpr double kWindowSeconds = 1.5;
constexpr std::size_t kSubWindows = 8;
constexpr std::size_t kMedianHalf = 16;
constexpr std::size_t kMedianStep = 4;   // median computed every 4 bins, interpolated between
constexpr double kTiny = 1e-300;
constexpr double kPeakOverMedian = 4.0; // 6 dB

} // namespace

NoiseTrackerSetup noiseTrackerSetup(std::size_t bins, std::size_t hop, double fs)
{
    NoiseTrackerSetup s;
    s.bins = bins;
    s.smoothing = std::exp(-static_cast<double>(hop) / (kSmoothSeconds * fs));
    const double frames = kWindowSeconds * fs / static_cast<double>(hop);
    s.subWindows = kSubWindows;
    s.subLength = std::max<std::size_t>(1, static_cast<std::size_t>(std::ceil(frames / kSubWindows)));
    s.medianHalf = kMedianHalf;
    s.peakOverMedian = kPeakOverMedian;
    return s;
}

NoiseTracker::NoiseTracker(const NoiseTrackerSetup& s)
    : s_(s), smooth_(s.bins, 0.0), median_(s.bins, 0.0),
      current_(s.bins, std::numeric_limits<double>::infinity()), floor_(s.bins, kTiny),
      subMin_(s.subWindows, std::vector<double>(s.bins, std::numeric_limits<double>::infinity()))
{
    scratch_.reserve(2 * s.medianHalf + 1);
}

void NoiseTracker::runningMedian()
{
    const std::size_t n = s_.bins;
    // Half width k / 2 at the lowest bins (so a steep low-frequency slope is
    // not flattened), s_.medianHalf above.
    auto halfAt = [&](std::size_t k) { return std::clamp<std::size_t>(k / 2, 2, s_.medianHalf); };
    auto medianAt = [&](std::size_t k) {
        const std::size_t half = halfAt(k);
        // Near the ends the window slides inwards rather than shrinking.
        std::size_t lo = k > half ? k - half : 0;
        std::size_t hi = std::min(n, lo + 2 * half + 1);
        lo = hi > 2 * half + 1 ? hi - (2 * half + 1) : 0;
        scratch_.assign(smooth_.begin() + static_cast<std::ptrdiff_t>(lo),
                        smooth_.begin() + static_cast<std::ptrdiff_t>(hi));
        auto mid = scratch_.begin() + static_cast<std::ptrdiff_t>(scratch_.size() / 2);
        std::nth_element(scratch_.begin(), mid, scratch_.end());
        return *mid;
    };
    // Exact below where the width stops growing, every kMedianStep bins above
    // (linear in between).
    const std::size_t exact = std::min(n, 2 * s_.medianHalf);
    for (std::size_t k = 0; k < exact; ++k)
        median_[k] = medianAt(k);
    std::size_t prevK = exact - 1;
    double prevV = median_[prevK];
    while (prevK + 1 < n) {
        const std::size_t k = std::min(n - 1, prevK + kMedianStep);
        const double v = medianAt(k);
        for (std::size_t j = prevK + 1; j <= k; ++j) {
            const double t = static_cast<double>(j - prevK) / static_cast<double>(k - prevK);
            median_[j] = prevV + (v - prevV) * t;
        }
        prevK = k;
        prevV = v;
    }
    // A bin far above its neighbourhood is a tone or a partial: the noise
    // under it is taken to be the neighbourhood's. Elsewhere the bin's own
    // power is kept, so the shape of coloured noise is kept too. The two
    // lowest bins (DC and the one next to it) always keep their own: there the
    // neighbourhood is too short to tell a peak from the slope of 1/f noise.
    for (std::size_t k = 0; k < n; ++k)
        if (k >= 2 && smooth_[k] > s_.peakOverMedian * median_[k])
            median_[k] *= s_.medianScale;
        else
            median_[k] = smooth_[k];
}

const std::vector<double>& NoiseTracker::update(const std::vector<double>& power)
{
    const std::size_t n = s_.bins;
    // A plain running mean until the one-pole's own memory is reached, so the
    // first frames are averaged as well as the later ones.
    const double a = std::min(s_.smoothing, static_cast<double>(frames_) / static_cast<double>(frames_ + 1));
    for (std::size_t k = 0; k < n; ++k)
        smooth_[k] = a * smooth_[k] + (1.0 - a) * power[k];
    // Until then nothing is known about the noise: no minimum is kept and the
    // floor stays negligible, so the first ~90 ms pass unchanged rather than
    // a poorly averaged frame setting the floor for the next 1.5 s.
    const bool warm = static_cast<double>(frames_) + 1.0 >= 1.0 / (1.0 - s_.smoothing);
    ++frames_;
    if (!warm)
        return floor_;
    runningMedian();
    for (std::size_t k = 0; k < n; ++k)
        current_[k] = std::min(current_[k], median_[k]);
    for (std::size_t k = 0; k < n; ++k) {
        double m = current_[k];
        for (const auto& sub : subMin_)
            m = std::min(m, sub[k]);
        floor_[k] = std::max(kTiny, s_.bias * m);
    }
    if (++inSub_ >= s_.subLength) {
        subMin_[ring_] = current_;
        ring_ = (ring_ + 1) % subMin_.size();
        std::fill(current_.begin(), current_.end(), std::numeric_limits<double>::infinity());
        inSub_ = 0;
    }
    return floor_;
}

namespace {

double measureBias(const NoiseTrackerSetup& setup, const std::vector<double>& window, std::size_t hop)
{
    const std::size_t n = window.size();
    NoiseTrackerSetup s = setup;
    s.bias = 1.0;
    s.medianScale = 1.0;
    NoiseTracker tracker(s);
    RealFft fft(n);
    // Deterministic Gaussian noise (xorshift + Box-Muller): the same factor on
    // every run and every machine.
    std::uint64_t state = 0x9E3779B97F4A7C15ull;
    auto uniform = [&]() {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return (static_cast<double>(state >> 11) + 0.5) * (1.0 / 9007199254740992.0);
    };
    const std::size_t frames = 2 * s.subWindows * s.subLength + 16;
    std::vector<double> signal(n + frames * hop);
    for (std::size_t i = 0; i + 1 < signal.size(); i += 2) {
        const double r = std::sqrt(-2.0 * std::log(uniform()));
        const double t = 2.0 * M_PI * uniform();
        signal[i] = r * std::cos(t);
        signal[i + 1] = r * std::sin(t);
    }
    double expected = 0;
    for (double w : window)
        expected += w * w;
    std::vector<double> power(s.bins);
    double sum = 0;
    std::size_t count = 0;
    const std::size_t settle = s.subWindows * s.subLength;
    // The edge bins (DC, Nyquist) have a different distribution; leave them out.
    const std::size_t edge = 2;
    for (std::size_t f = 0; f < frames; ++f) {
        double* in = fft.time();
        for (std::size_t i = 0; i < n; ++i)
            in[i] = signal[f * hop + i] * window[i];
        fft.forward();
        const auto* X = fft.spectrum();
        for (std::size_t k = 0; k < s.bins; ++k)
            power[k] = std::norm(X[k]);
        const auto& floor = tracker.update(power);
        if (f < settle)
            continue;
        for (std::size_t k = edge; k + edge < s.bins; ++k) {
            sum += floor[k];
            ++count;
        }
    }
    if (count == 0 || !(sum > 0))
        return 1.0;
    return expected / (sum / static_cast<double>(count));
}

} // namespace

void calibrateTracker(NoiseTrackerSetup& s, const std::vector<double>& window, std::size_t hop)
{
    // The two paths fluctuate differently, so their minima are biased
    // differently: each is measured on its own (every bin through its own
    // power, then every bin through the median).
    NoiseTrackerSetup own = s, median = s;
    own.peakOverMedian = std::numeric_limits<double>::infinity();
    median.peakOverMedian = 0.0;
    const double biasOwn = measureBias(own, window, hop), biasMedian = measureBias(median, window, hop);
    s.bias = biasOwn;
    s.medianScale = biasMedian / biasOwn;
}

} // namespace zuvo::restore
