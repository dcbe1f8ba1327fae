#include "analysis/band_limit.h"

#include <algorithm>
#include <cmath>

#include "dsp/dsp_math.h"

namespace zuvo::analysis {

using dsp::detail::besselI0;

BandLimit::BandLimit(int sampleRate, double passHz, double stopHz)
{
    const double fs = std::max(sampleRate, 1);
    const double stop = std::min(stopHz, 0.5 * fs);
    const double width = std::max(stop - passHz, 0.005 * fs);
    const double cutoff = std::min(passHz + width / 2, 0.5 * fs) / fs; // cycles per sample
    // Kaiser's estimate for 80 dB: N = (A - 8) / (2.285 * 2 pi * width / fs).
    const double attenuation = 80;
    auto n = static_cast<std::size_t>(std::ceil((attenuation - 7.95) / (2.285 * 2 * M_PI * width / fs)));
    n = std::clamp<std::size_t>(n | 1, 15, 2047);
    const double beta = 0.1102 * (attenuation - 8.7);
    const double centre = (static_cast<double>(n) - 1) / 2;
    taps_.resize(n);
    double sum = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const double t = static_cast<double>(i) - centre;
        const double sinc = t == 0 ? 2 * cutoff : std::sin(2 * M_PI * cutoff * t) / (M_PI * t);
        const double r = t / centre;
        taps_[i] = sinc * besselI0(beta * std::sqrt(std::max(0.0, 1 - r * r))) / besselI0(beta);
        sum += taps_[i];
    }
    for (double& h : taps_)
        h /= sum;
    history_.assign(2 * n, 0.0);
}

void BandLimit::process(double* x, std::size_t n)
{
    const std::size_t len = taps_.size();
    for (std::size_t i = 0; i < n; ++i) {
        history_[pos_] = x[i];
        history_[pos_ + len] = x[i];
        pos_ = (pos_ + 1) % len;
        const double* w = history_.data() + pos_; // oldest first
        double acc = 0;
        for (std::size_t k = 0; k < len; ++k)
            acc += taps_[k] * w[k];
        x[i] = acc;
    }
}

PassBand conversionPassBand(int inputRate, double passHz, double stopHz, bool highBandwidth, bool slowRollOff,
                            bool equiripple)
{
    const double fs = inputRate;
    PassBand b;
    b.passHz = 20000.0;
    if (highBandwidth)
        b.passHz = 0.4762 * fs;
    if (slowRollOff)
        b.passHz = 0.36 * fs;
    b.stopHz = equiripple ? std::max(0.5 * fs, fs - b.passHz) : 0.5 * fs;
    if (passHz > 0)
        b.passHz = passHz;
    if (stopHz > 0)
        b.stopHz = stopHz;
    if (passHz > 0 && stopHz == 0 && b.passHz >= b.stopHz)
        b.stopHz = std::min(fs, b.passHz * 1.1);
    return b;
}

} // namespace zuvo::analysis
