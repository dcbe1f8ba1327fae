#pragma once
// Test signals and measurements for the spectral denoiser, shared by its
// tests and its benchmark. Header-only: plain C++ and FFTW.
//
// SNR: a sinusoid of known frequency is fitted (least squares, free amplitude
// and phase) to the signal over a segment; SNR = fitted power / power of what
// remains. The improvement is the output's SNR minus the input's over the
// same (latency-aligned) segment, so a change of the tone's level is not
// counted as noise but any distortion of it is.
//
// Musical-noise residue: the denoiser runs on white noise only. Input x and
// aligned output y are cut into 4096-sample Hann frames (hop 2048) after the
// first 2 s; per bin, the residue power is |Y|^2 - g^2 |X|^2, with g the
// denoiser's floor gain at that frequency: what the output holds beyond the
// noise turned down to the floor, which is where isolated bursts of gain
// (musical tones) show. Levels are in dBFS on the sine scale (a full-scale
// sine at a bin centre reads 0 dBFS). Two figures: the largest residue in any
// frame and bin, and the largest bin of the residue averaged over all frames.

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

#include <fftw3.h>

#include "restore/spectral/spectral_denoiser.h"

namespace spectral_measure {

inline double dbToAmp(double db) { return std::pow(10.0, db / 20.0); }

// Deterministic Gaussian noise of a given RMS (dBFS relative to full scale 1).
inline std::vector<double> whiteNoise(std::size_t n, double rmsDb, std::uint64_t seed)
{
    std::vector<double> out(n);
    std::uint64_t s = seed * 0x9E3779B97F4A7C15ull + 1;
    auto u = [&]() {
        s ^= s << 13;
        s ^= s >> 7;
        s ^= s << 17;
        return (static_cast<double>(s >> 11) + 0.5) / 9007199254740992.0;
    };
    const double sigma = dbToAmp(rmsDb);
    for (std::size_t i = 0; i < n; ++i)
        out[i] = sigma * std::sqrt(-2.0 * std::log(u())) * std::cos(2.0 * M_PI * u());
    return out;
}

// Pink noise (Kellet's filter on white noise) scaled to an RMS in dBFS.
inline std::vector<double> pinkNoise(std::size_t n, double rmsDb, std::uint64_t seed)
{
    std::vector<double> v = whiteNoise(n, 0.0, seed);
    double b0 = 0, b1 = 0, b2 = 0, b3 = 0, b4 = 0, b5 = 0, b6 = 0, e = 0;
    for (double& x : v) {
        const double w = x;
        b0 = 0.99886 * b0 + w * 0.0555179;
        b1 = 0.99332 * b1 + w * 0.0750759;
        b2 = 0.96900 * b2 + w * 0.1538520;
        b3 = 0.86650 * b3 + w * 0.3104856;
        b4 = 0.55000 * b4 + w * 0.5329522;
        b5 = -0.7616 * b5 - w * 0.0168980;
        x = b0 + b1 + b2 + b3 + b4 + b5 + b6 + w * 0.5362;
        b6 = w * 0.115926;
        e += x * x;
    }
    const double k = dbToAmp(rmsDb) / std::sqrt(e / static_cast<double>(n));
    for (double& x : v)
        x *= k;
    return v;
}

// Peak amplitude of a sine from its dBFS level (0 dBFS = amplitude 1).
inline void addSine(std::vector<double>& x, double hz, double levelDb, double fs, double phase = 0.0)
{
    const double a = dbToAmp(levelDb);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] += a * std::sin(2.0 * M_PI * hz * static_cast<double>(i) / fs + phase);
}

// Runs the denoiser over whole channels in blocks of `block` samples and
// returns the output aligned with the input (latency removed).
inline std::vector<std::vector<double>> runAligned(zuvo::restore::SpectralDenoiser& d,
                                                   const std::vector<std::vector<double>>& in, std::size_t block)
{
    const std::size_t n = in.empty() ? 0 : in[0].size();
    const std::size_t lat = d.latency();
    std::vector<std::vector<double>> all(in.size(), std::vector<double>(n + lat, 0.0));
    for (std::size_t c = 0; c < in.size(); ++c)
        std::copy(in[c].begin(), in[c].end(), all[c].begin());
    std::vector<std::vector<double>> buf(in.size());
    for (std::size_t pos = 0; pos < n + lat; pos += block) {
        const std::size_t m = std::min(block, n + lat - pos);
        for (std::size_t c = 0; c < in.size(); ++c)
            buf[c].assign(all[c].begin() + static_cast<std::ptrdiff_t>(pos),
                          all[c].begin() + static_cast<std::ptrdiff_t>(pos + m));
        d.process(buf, m);
        for (std::size_t c = 0; c < in.size(); ++c)
            std::copy(buf[c].begin(), buf[c].end(), all[c].begin() + static_cast<std::ptrdiff_t>(pos));
    }
    for (auto& ch : all)
        ch.erase(ch.begin(), ch.begin() + static_cast<std::ptrdiff_t>(lat));
    return all;
}

struct SineFit {
    double amplitude = 0, power = 0, residualPower = 0;
};

// Least-squares fit of a*sin + b*cos at `hz` over [from, to).
inline SineFit fitSine(const std::vector<double>& x, double hz, double fs, std::size_t from, std::size_t to)
{
    double ss = 0, cc = 0, sc = 0, xs = 0, xc = 0;
    for (std::size_t i = from; i < to; ++i) {
        const double ph = 2.0 * M_PI * hz * static_cast<double>(i) / fs;
        const double s = std::sin(ph), c = std::cos(ph);
        ss += s * s;
        cc += c * c;
        sc += s * c;
        xs += x[i] * s;
        xc += x[i] * c;
    }
    const double det = ss * cc - sc * sc;
    const double a = (xs * cc - xc * sc) / det, b = (xc * ss - xs * sc) / det;
    SineFit f;
    f.amplitude = std::hypot(a, b);
    double res = 0, fit = 0;
    for (std::size_t i = from; i < to; ++i) {
        const double ph = 2.0 * M_PI * hz * static_cast<double>(i) / fs;
        const double m = a * std::sin(ph) + b * std::cos(ph);
        fit += m * m;
        res += (x[i] - m) * (x[i] - m);
    }
    const double n = static_cast<double>(to - from);
    f.power = fit / n;
    f.residualPower = res / n;
    return f;
}

inline double snrDb(const std::vector<double>& x, double hz, double fs, std::size_t from, std::size_t to)
{
    const SineFit f = fitSine(x, hz, fs, from, to);
    return 10.0 * std::log10(f.power / std::max(f.residualPower, 1e-300));
}

struct Residue {
    double framePeakDb = -400, averagePeakDb = -400;
};

inline Residue musicalResidue(const zuvo::restore::SpectralDenoiser& d, const std::vector<double>& x,
                              const std::vector<double>& y, double fs, std::size_t from)
{
    const std::size_t n = 4096, hop = 2048, bins = n / 2 + 1;
    std::vector<double> w(n), tx(n), ty(n);
    double sum = 0;
    for (std::size_t i = 0; i < n; ++i) {
        w[i] = 0.5 - 0.5 * std::cos(2.0 * M_PI * static_cast<double>(i) / static_cast<double>(n));
        sum += w[i];
    }
    const double ref = (sum / 2) * (sum / 2);
    std::vector<std::complex<double>> fx(bins), fy(bins);
    fftw_plan px = fftw_plan_dft_r2c_1d(static_cast<int>(n), tx.data(), reinterpret_cast<fftw_complex*>(fx.data()), FFTW_ESTIMATE);
    fftw_plan py = fftw_plan_dft_r2c_1d(static_cast<int>(n), ty.data(), reinterpret_cast<fftw_complex*>(fy.data()), FFTW_ESTIMATE);
    std::vector<double> g2(bins), avg(bins, 0.0);
    for (std::size_t k = 0; k < bins; ++k) {
        const double g = d.floorGain(static_cast<double>(k) * fs / static_cast<double>(n));
        g2[k] = g * g;
    }
    Residue r;
    double peak = 0;
    std::size_t frames = 0;
    for (std::size_t pos = from; pos + n <= std::min(x.size(), y.size()); pos += hop) {
        for (std::size_t i = 0; i < n; ++i) {
            tx[i] = x[pos + i] * w[i];
            ty[i] = y[pos + i] * w[i];
        }
        fftw_execute(px);
        fftw_execute(py);
        for (std::size_t k = 1; k + 1 < bins; ++k) {
            const double e = std::norm(fy[k]) - g2[k] * std::norm(fx[k]);
            peak = std::max(peak, e);
            avg[k] += e;
        }
        ++frames;
    }
    fftw_destroy_plan(px);
    fftw_destroy_plan(py);
    double avgPeak = 0;
    for (double a : avg)
        avgPeak = std::max(avgPeak, frames ? a / static_cast<double>(frames) : 0.0);
    r.framePeakDb = 10.0 * std::log10(std::max(peak / ref, 1e-40));
    r.averagePeakDb = 10.0 * std::log10(std::max(avgPeak / ref, 1e-40));
    return r;
}

} // namespace spectral_measure
