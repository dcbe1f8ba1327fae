#include "analysis/true_peak.h"

#include <algorithm>
#include <cmath>

#include "dsp/dsp_math.h"

namespace zuvo::analysis {

namespace {

using dsp::detail::besselI0;

constexpr std::size_t kTapsPerPhase = 128;
constexpr double kKaiserBeta = 9.0;
// Cut-off as a share of the input's Nyquist frequency: the images of a tone
// at 0.9 x Nyquist are then well inside the stop band.
constexpr double kCutoff = 0.96;
// The interpolator runs only where an inter-sample peak could set a new
// maximum: around samples at least half the largest peak so far.
constexpr double kLookShare = 0.5;

} // namespace

TruePeak::TruePeak(int sampleRate)
    : factor_(sampleRate < 96000 ? 4 : sampleRate < 192000 ? 2 : 1), taps_(kTapsPerPhase)
{
    const auto L = static_cast<std::size_t>(factor_);
    const std::size_t total = L * taps_;
    // An integer centre puts one phase exactly on the input samples and the
    // others at exact quarter (half) sample offsets; the window spans
    // total + 1 points, whose last one (zero) is dropped.
    const double centre = static_cast<double>(total) / 2;
    std::vector<double> h(total);
    for (std::size_t n = 0; n < total; ++n) {
        const double t = (static_cast<double>(n) - centre) / static_cast<double>(L);
        const double sinc = t == 0 ? kCutoff : std::sin(M_PI * kCutoff * t) / (M_PI * t);
        const double r = (static_cast<double>(n) - centre) / centre;
        h[n] = sinc * besselI0(kKaiserBeta * std::sqrt(std::max(0.0, 1 - r * r))) / besselI0(kKaiserBeta);
    }
    // Phase p holds taps n = p + L k; each phase sums to one (unity gain at DC).
    coefficients_.assign(total, 0.0);
    for (std::size_t p = 0; p < L; ++p) {
        double sum = 0;
        for (std::size_t k = 0; k < taps_; ++k)
            sum += h[p + L * k];
        for (std::size_t k = 0; k < taps_; ++k)
            coefficients_[p * taps_ + k] = h[p + L * k] / sum;
    }
    history_.assign(2 * taps_, 0.0);
}

double TruePeak::computeAt(const double* w) const
{
    // w[0] oldest .. w[taps_-1] newest.
    double best = 0;
    for (int p = 0; p < factor_; ++p) {
        const double* c = coefficients_.data() + static_cast<std::size_t>(p) * taps_;
        double acc = 0;
        for (std::size_t k = 0; k < taps_; ++k)
            acc += c[k] * w[taps_ - 1 - k];
        best = std::max(best, std::fabs(acc));
    }
    return best;
}

void TruePeak::add(const double* x, std::size_t n, std::size_t stride)
{
    for (std::size_t i = 0; i < n; ++i) {
        const double v = x[i * stride];
        peak_ = std::max(peak_, std::fabs(v));
        if (factor_ == 1)
            continue;
        // Before the first sample the signal is taken to hold that sample's
        // value: a file that starts mid-waveform is a cut, and its ringing
        // is no more the programme's than that of the end.
        if (!started_) {
            std::fill(history_.begin(), history_.end(), v);
            started_ = true;
        }
        // Each sample goes in twice (ring doubled) so that a window is
        // always one contiguous stretch.
        history_[pos_] = v;
        history_[pos_ + taps_] = v;
        pos_ = (pos_ + 1) % taps_;
        const double* w = history_.data() + pos_;
        const double middle = std::max(std::fabs(w[taps_ / 2 - 1]), std::fabs(w[taps_ / 2]));
        if (middle >= kLookShare * peak_)
            peak_ = std::max(peak_, computeAt(w));
    }
}

double TruePeak::peak() const
{
    return peak_;
}

} // namespace zuvo::analysis
