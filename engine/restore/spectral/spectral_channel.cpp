#include "restore/spectral/spectral_channel.h"

#include <algorithm>
#include <cmath>

#include "restore/spectral/spectral_harmonics.h"

namespace zuvo::restore {

namespace {

constexpr double kDecisionWeight = 0.98;
// A-priori SNR knee: below kKneeLow the gain stays at the floor, above
// kKneeHigh it is the full Wiener gain, linear in between.
constexpr double kKneeLow = 0.3, kKneeHigh = 1.0;
constexpr double kProtectRelease = 0.5; // per frame
// A frame any quarter of which is quieter than this (-140 dBFS RMS) holds
// digital silence (before the first note, after the last), not the noise to
// remove: it leaves the noise floor alone, or the floor would sit at the
// silence for the next 1.5 s.
constexpr double kSilentPower = 1e-14;

} // namespace

SpectralChannel::SpectralChannel(const SpectralSetup& s)
    : s_(s), fft_(s.frame), noise_(s.noise), in_(s.frame, 0.0), acc_(s.frame, 0.0), ready_(s.hop, 0.0),
      fill_(s.frame - s.hop), power_(s.bins), gamma_(s.bins), prevClean_(s.bins, 0.0), gain_(s.bins),
      smoothed_(s.bins), protect_(s.bins, 0.0)
{
}

void SpectralChannel::process(double* x, std::size_t n)
{
    const std::size_t start = s_.frame - s_.hop;
    std::size_t pos = 0;
    while (pos < n) {
        const std::size_t m = std::min(n - pos, s_.frame - fill_);
        const std::size_t r = fill_ - start;
        for (std::size_t j = 0; j < m; ++j) {
            in_[fill_ + j] = x[pos + j];
            x[pos + j] = ready_[r + j];
        }
        fill_ += m;
        pos += m;
        if (fill_ == s_.frame) {
            frame();
            fill_ = start;
        }
    }
}

void SpectralChannel::frame()
{
    const std::size_t n = s_.frame, h = s_.hop;
    double* t = fft_.time();
    bool finite = true;
    for (std::size_t i = 0; i < n; ++i) {
        t[i] = in_[i] * s_.window[i];
        finite = finite && std::isfinite(t[i]);
    }
    fft_.forward();
    std::complex<double>* X = fft_.spectrum();
    // A frame that is not finite (which the decoder's repair should never let
    // through) passes unchanged and leaves the noise floor and gains alone.
    if (finite) {
        for (std::size_t k = 0; k < s_.bins; ++k)
            power_[k] = std::norm(X[k]);
        computeGains();
        for (std::size_t k = 0; k < s_.bins; ++k)
            X[k] *= smoothed_[k];
    }
    fft_.inverse();
    // Squared sqrt-Hann windows at a hop of n / 4 add up to 2; FFTW's inverse
    // carries a factor n.
    const double scale = 1.0 / (2.0 * static_cast<double>(n));
    for (std::size_t i = 0; i < n; ++i)
        acc_[i] += t[i] * s_.window[i] * scale;
    std::copy(acc_.begin(), acc_.begin() + static_cast<std::ptrdiff_t>(h), ready_.begin());
    std::copy(acc_.begin() + static_cast<std::ptrdiff_t>(h), acc_.end(), acc_.begin());
    std::fill(acc_.end() - static_cast<std::ptrdiff_t>(h), acc_.end(), 0.0);
    std::copy(in_.begin() + static_cast<std::ptrdiff_t>(h), in_.end(), in_.begin());
}

void SpectralChannel::computeGains()
{
    const std::size_t bins = s_.bins;
    bool silent = false;
    for (std::size_t q = 0; q < 4 && !silent; ++q) {
        double sum = 0;
        for (std::size_t i = q * s_.hop; i < (q + 1) * s_.hop; ++i)
            sum += in_[i] * in_[i];
        silent = sum < kSilentPower * static_cast<double>(s_.hop);
    }
    const std::vector<double>& lambda = silent ? noise_.floor() : noise_.update(power_);
    for (std::size_t k = 0; k < bins; ++k) {
        const double g = power_[k] / lambda[k];
        const double xi = kDecisionWeight * prevClean_[k] / lambda[k]
            + (1.0 - kDecisionWeight) * std::max(g - 1.0, 0.0);
        const double knee = std::clamp((xi - kKneeLow) / (kKneeHigh - kKneeLow), 0.0, 1.0);
        const double wiener = knee * xi / (1.0 + xi);
        gamma_[k] = g;
        // What the next frame's decision sees is the estimate actually kept,
        // so a lone noise peak that the knee shut does not open the next frame.
        prevClean_[k] = wiener * wiener * power_[k];
        gain_[k] = std::max(wiener, s_.floorGain[k]);
    }
    // Across frequency the gain is only ever raised towards the average of
    // its neighbours: a partial's main lobe is not pulled down by bins at the
    // floor beside it.
    smoothed_[0] = std::max(gain_[0], 0.75 * gain_[0] + 0.25 * gain_[1]);
    for (std::size_t k = 1; k + 1 < bins; ++k)
        smoothed_[k] = std::max(gain_[k], 0.25 * gain_[k - 1] + 0.5 * gain_[k] + 0.25 * gain_[k + 1]);
    smoothed_[bins - 1] = std::max(gain_[bins - 1], 0.25 * gain_[bins - 2] + 0.75 * gain_[bins - 1]);
    if (!s_.keepHarmonics)
        return;
    for (double& p : protect_)
        p *= kProtectRelease;
    const HarmonicResult partials = findProtectedPartials(gamma_, s_.binHz, peaks_, lastF0_);
    for (std::size_t c : partials.centres)
        for (std::size_t k = c > 0 ? c - 1 : 0; k <= std::min(bins - 1, c + 1); ++k)
            protect_[k] = 1.0;
    for (std::size_t k = 0; k < bins; ++k)
        smoothed_[k] = std::max(smoothed_[k], protect_[k]);
}

} // namespace zuvo::restore
