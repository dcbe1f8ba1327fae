#pragma once
// Test signals and measurements for the restoration stages, shared by the
// suite and the benchmark: hum, a music-like mixture, synthetic clicks, tone
// fits and band spectra. Header-only, no dependencies.

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <numbers>
#include <random>
#include <vector>

namespace restoretest {

using Signal = std::vector<double>;
constexpr double kPi = std::numbers::pi;

inline double db(double ratio) { return 20 * std::log10(ratio); }

// 1 kHz tone plus mains hum: fundamental and harmonics 2..10, each `humAmp`.
inline Signal humAndTone(double fs, std::size_t n, double mains, double humAmp, double toneAmp)
{
    Signal x(n);
    for (std::size_t i = 0; i < n; ++i) {
        const double t = static_cast<double>(i) / fs;
        double v = toneAmp * std::sin(2 * kPi * 1000 * t);
        for (int k = 1; k <= 10; ++k)
            v += humAmp * std::sin(2 * kPi * mains * k * t + 0.7 * k);
        x[i] = v;
    }
    return x;
}

// Pink-ish noise (white through a sum of one-pole low-passes), unit RMS.
inline Signal pinkish(std::size_t n, std::uint32_t seed)
{
    std::mt19937 rng(seed);
    std::normal_distribution<double> g(0, 1);
    Signal x(n);
    double b0 = 0, b1 = 0, b2 = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const double w = g(rng);
        b0 = 0.99765 * b0 + w * 0.0990460;
        b1 = 0.96300 * b1 + w * 0.2965164;
        b2 = 0.57000 * b2 + w * 1.0526913;
        x[i] = b0 + b1 + b2 + w * 0.1848;
    }
    double ss = 0;
    for (double v : x)
        ss += v * v;
    const double rms = std::sqrt(ss / static_cast<double>(n));
    for (double& v : x)
        v /= rms;
    return x;
}

// Three harmonic notes (6 partials, 1/k amplitudes) with 5-6 Hz vibrato of
// +-0.5 %, peak about 0.5, plus pink-ish noise at -40 dB RMS.
inline Signal musicLike(double fs, std::size_t n, std::uint32_t seed)
{
    Signal x = pinkish(n, seed);
    for (double& v : x)
        v *= 0.01;
    const double notes[3] = {196.0, 293.7, 440.0};
    const double vib[3] = {5.0, 5.5, 6.0};
    for (int k = 0; k < 3; ++k) {
        double phase[7] = {};
        for (std::size_t i = 0; i < n; ++i) {
            const double t = static_cast<double>(i) / fs;
            const double f = notes[k] * (1 + 0.005 * std::sin(2 * kPi * vib[k] * t + k));
            for (int h = 1; h <= 6; ++h) {
                phase[h] += 2 * kPi * f * h / fs;
                x[i] += 0.06 / h * std::sin(phase[h]);
            }
        }
    }
    return x;
}

struct Click {
    std::size_t at = 0, length = 0;
    double energy = 0; // sum of the added samples squared
};

// Adds clicks 1..20 samples long, peak -20..0 dBFS (uniform in dB), one
// every `spacing` samples give or take a quarter, from `start` on.
inline std::vector<Click> addClicks(Signal& x, std::size_t start, std::size_t spacing, std::uint32_t seed)
{
    std::mt19937 rng(seed);
    std::uniform_int_distribution<int> len(1, 20);
    std::uniform_real_distribution<double> level(-20, 0), u(-1, 1);
    std::uniform_int_distribution<int> jitter(-static_cast<int>(spacing / 4), static_cast<int>(spacing / 4));
    std::vector<Click> clicks;
    for (std::size_t pos = start; pos + spacing < x.size(); pos += spacing) {
        Click c;
        c.at = static_cast<std::size_t>(static_cast<long>(pos) + jitter(rng));
        c.length = static_cast<std::size_t>(len(rng));
        const double peak = std::pow(10.0, level(rng) / 20);
        for (std::size_t i = 0; i < c.length; ++i) {
            // First sample at the peak, the rest random below it.
            const double d = i == 0 ? (u(rng) < 0 ? -peak : peak) : peak * u(rng);
            x[c.at + i] += d;
            c.energy += d * d;
        }
        clicks.push_back(c);
    }
    return clicks;
}

// A click counts as removed when what is left of it after repair (repaired
// minus clean, over the click's own samples) is at least `downDb` below the
// click's energy (10 dB: at most a tenth of it is left).
inline double removedFraction(const Signal& repaired, const Signal& clean, const std::vector<Click>& clicks,
                              double downDb = 10)
{
    const double keep = std::pow(10.0, -downDb / 10);
    std::size_t removed = 0;
    for (const Click& c : clicks) {
        double left = 0;
        for (std::size_t i = c.at; i < c.at + c.length; ++i)
            left += (repaired[i] - clean[i]) * (repaired[i] - clean[i]);
        if (left <= keep * c.energy)
            ++removed;
    }
    return clicks.empty() ? 1.0 : static_cast<double>(removed) / static_cast<double>(clicks.size());
}

// Amplitude of the sinusoid at `hz` (least-squares fit over [from, to)).
inline double toneAmp(const Signal& x, double fs, double hz, std::size_t from, std::size_t to)
{
    double cc = 0, ss = 0, cs = 0, xc = 0, xs = 0;
    for (std::size_t i = from; i < to; ++i) {
        const double w = 2 * kPi * hz * static_cast<double>(i) / fs;
        const double c = std::cos(w), s = std::sin(w);
        cc += c * c, ss += s * s, cs += c * s, xc += x[i] * c, xs += x[i] * s;
    }
    const double det = cc * ss - cs * cs;
    const double a = (xc * ss - xs * cs) / det, b = (xs * cc - xc * cs) / det;
    return std::hypot(a, b);
}

inline void fft(std::vector<std::complex<double>>& a)
{
    const std::size_t n = a.size();
    for (std::size_t i = 1, j = 0; i < n; ++i) {
        std::size_t bit = n >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(a[i], a[j]);
    }
    for (std::size_t len = 2; len <= n; len <<= 1) {
        const std::complex<double> wl = std::polar(1.0, -2 * kPi / static_cast<double>(len));
        for (std::size_t i = 0; i < n; i += len) {
            std::complex<double> w = 1;
            for (std::size_t j = 0; j < len / 2; ++j) {
                const auto u = a[i + j], v = a[i + j + len / 2] * w;
                a[i + j] = u + v;
                a[i + j + len / 2] = u - v;
                w *= wl;
            }
        }
    }
}

// Energy per third-octave band, 50 Hz .. 16 kHz, in dB (Welch, Hann, 4096).
inline std::vector<double> thirdOctaveDb(const Signal& x, double fs, std::size_t from, std::size_t to)
{
    const std::size_t n = 4096;
    std::vector<double> psd(n / 2, 0.0);
    for (std::size_t s = from; s + n <= to; s += n / 2) {
        std::vector<std::complex<double>> a(n);
        for (std::size_t i = 0; i < n; ++i)
            a[i] = x[s + i] * (0.5 - 0.5 * std::cos(2 * kPi * static_cast<double>(i) / static_cast<double>(n)));
        fft(a);
        for (std::size_t k = 0; k < n / 2; ++k)
            psd[k] += std::norm(a[k]);
    }
    std::vector<double> bands;
    for (double centre = 50; centre <= 16000; centre *= std::pow(2.0, 1.0 / 3)) {
        const double lo = centre / std::pow(2.0, 1.0 / 6), hi = centre * std::pow(2.0, 1.0 / 6);
        double e = 1e-30;
        for (std::size_t k = 0; k < n / 2; ++k) {
            const double f = static_cast<double>(k) * fs / static_cast<double>(n);
            if (f >= lo && f < hi)
                e += psd[k];
        }
        bands.push_back(10 * std::log10(e));
    }
    return bands;
}

inline double largestBandDifferenceDb(const Signal& a, const Signal& b, double fs, std::size_t from, std::size_t to)
{
    const auto x = thirdOctaveDb(a, fs, from, to), y = thirdOctaveDb(b, fs, from, to);
    double worst = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        worst = std::max(worst, std::abs(x[i] - y[i]));
    return worst;
}

} // namespace restoretest
