#pragma once
// Independent spectrum analysis for the signal-path tests and the native
// benchmark: its own FFT (not the engine's), a Kaiser window with beta 40
// (side lobes far below -200 dB; a 7-term Blackman-Harris would leak a
// tone's skirts into the band near -165 dB, above a DSD128 noise floor),
// and band sums. The main lobe spans about +-13 bins: kLobe excludes it.

#include <cmath>
#include <complex>
#include <cstddef>
#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

namespace zuvo_test {

inline void fftInPlace(std::vector<std::complex<double>>& a)
{
    const std::size_t n = a.size();
    std::vector<std::complex<double>> tw(n / 2);
    for (std::size_t k = 0; k < n / 2; ++k)
        tw[k] = std::polar(1.0, -2.0 * M_PI * double(k) / double(n));
    for (std::size_t i = 1, j = 0; i < n; ++i) {
        std::size_t bit = n >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(a[i], a[j]);
    }
    for (std::size_t len = 2; len <= n; len <<= 1) {
        const std::size_t step = n / len;
        for (std::size_t i = 0; i < n; i += len)
            for (std::size_t k = 0; k < len / 2; ++k) {
                const auto u = a[i + k];
                const auto v = a[i + k + len / 2] * tw[k * step];
                a[i + k] = u + v;
                a[i + k + len / 2] = u - v;
            }
    }
}

constexpr int kLobe = 16;

inline double i0(double x)
{
    double sum = 1, term = 1;
    for (int k = 1; k < 400; ++k) {
        term *= (x / (2 * k)) * (x / (2 * k));
        sum += term;
        if (term < 1e-17 * sum)
            break;
    }
    return sum;
}

inline const std::vector<double>& analysisWindow(std::size_t n)
{
    // Cached per length: the tests analyse many spectra of a few sizes.
    static thread_local std::map<std::size_t, std::vector<double>> cache;
    auto& w = cache[n];
    if (w.size() == n)
        return w;
    const double beta = 40, den = i0(beta);
    w.resize(n);
    for (std::size_t i = 0; i < n; ++i) {
        const double r = 2.0 * double(i) / double(n - 1) - 1.0;
        w[i] = i0(beta * std::sqrt(std::max(0.0, 1 - r * r))) / den;
    }
    return w;
}

struct ToneAnalysis {
    double signalDb = -999;   // tone power relative to a full-scale sine, dB
    double snrDb = 0;         // tone / in-band noise, harmonics excluded
    double thdnDb = 0;        // (noise + harmonics) / tone, negative dB
    double noiseDb = 0;       // in-band noise power relative to full-scale sine
    double bandNoiseDb = 0;   // noise in [extraLo, extraHi] relative to full-scale sine
    double toneHz = 0;        // measured peak frequency
};

// x: samples (for a 1-bit stream, +-1), fs: rate. n = power of two <= x.size().
inline ToneAnalysis analyseTone(const std::vector<double>& x, double fs, double toneHz, double bandLo = 20,
                                double bandHi = 20000, double extraLo = 20000, double extraHi = 50000)
{
    std::size_t n = 1;
    while (n * 2 <= x.size())
        n *= 2;
    const std::size_t off = x.size() - n; // analyse the end: transients have settled
    const auto& w = analysisWindow(n);
    std::vector<std::complex<double>> a(n);
    for (std::size_t i = 0; i < n; ++i)
        a[i] = x[off + i] * w[i];
    fftInPlace(a);
    double w2 = 0;
    for (double v : w)
        w2 += v * v;
    // A full-scale sine (amplitude 1) puts (n*w2/4)*... in its lobe; power
    // per bin normalised so a unit sine sums to 0.5 over its lobe.
    const double norm = 2.0 / (double(n) * w2);
    std::vector<double> p(n / 2);
    for (std::size_t k = 0; k < n / 2; ++k)
        p[k] = std::norm(a[k]) * norm;
    const double df = fs / double(n);
    const int lobe = kLobe;
    std::size_t kt = std::size_t(std::llround(toneHz / df));
    for (std::size_t k = (kt > 20 ? kt - 20 : 1); k < kt + 20 && k < n / 2; ++k)
        if (p[k] > p[kt])
            kt = k;
    ToneAnalysis r;
    r.toneHz = kt * df;
    double sig = 0;
    for (std::size_t k = kt > std::size_t(lobe) ? kt - lobe : 0; k <= kt + lobe; ++k)
        sig += p[k];
    auto isHarmonic = [&](std::size_t k) {
        for (int h = 2; h <= 20; ++h) {
            const double hf = double(kt) * h;
            if (std::abs(double(k) - hf) <= lobe)
                return true;
        }
        return false;
    };
    double noise = 0, harm = 0, extra = 0;
    const auto k0 = std::size_t(std::ceil(bandLo / df)), k1 = std::size_t(bandHi / df);
    for (std::size_t k = k0; k <= k1 && k < n / 2; ++k) {
        if (k + lobe >= kt && k <= kt + lobe)
            continue;
        if (isHarmonic(k))
            harm += p[k];
        else
            noise += p[k];
    }
    const auto e0 = std::size_t(std::ceil(extraLo / df)), e1 = std::size_t(extraHi / df);
    for (std::size_t k = e0; k <= e1 && k < n / 2; ++k)
        extra += p[k];
    r.signalDb = 10 * std::log10(sig / 0.5);
    r.snrDb = 10 * std::log10(sig / std::max(noise, 1e-300));
    r.thdnDb = 10 * std::log10(std::max(noise + harm, 1e-300) / sig);
    r.noiseDb = 10 * std::log10(std::max(noise, 1e-300) / 0.5);
    r.bandNoiseDb = 10 * std::log10(std::max(extra, 1e-300) / 0.5);
    return r;
}

// Windowed power spectrum, normalised so a full-scale sine sums to 0.5 over
// its lobe. Uses the last power-of-two samples of x.
struct Spectrum {
    std::vector<double> p;
    double df = 0;
    std::size_t bin(double hz) const { return std::size_t(std::llround(hz / df)); }
    // Power of the tone nearest hz (lobe sum), relative to a full-scale sine, dB.
    double toneDb(double hz, int lobe = kLobe) const
    {
        const std::size_t k = bin(hz);
        const std::size_t a = k > std::size_t(lobe) ? k - std::size_t(lobe) : 0;
        double s = 0;
        for (std::size_t i = a; i <= k + std::size_t(lobe) && i < p.size(); ++i)
            s += p[i];
        return 10 * std::log10(s / 0.5);
    }
    // Largest single bin in [lo, hi] Hz, dB relative to a full-scale sine's peak bin.
    double maxBinDb(double lo, double hi) const
    {
        double m = 1e-300;
        for (std::size_t k = bin(lo); k <= bin(hi) && k < p.size(); ++k)
            m = std::max(m, p[k]);
        return 10 * std::log10(m);
    }
    double peakBinDb(double hz) const
    {
        const std::size_t k = bin(hz);
        double m = 0;
        for (std::size_t i = k > 3 ? k - 3 : 0; i <= k + 3 && i < p.size(); ++i)
            m = std::max(m, p[i]);
        (void)kLobe;
        return 10 * std::log10(m);
    }
};

inline Spectrum spectrumOf(const std::vector<double>& x, double fs)
{
    std::size_t n = 1;
    while (n * 2 <= x.size())
        n *= 2;
    const std::size_t off = x.size() - n;
    const auto& w = analysisWindow(n);
    std::vector<std::complex<double>> a(n);
    for (std::size_t i = 0; i < n; ++i)
        a[i] = x[off + i] * w[i];
    fftInPlace(a);
    double w2 = 0;
    for (double v : w)
        w2 += v * v;
    const double norm = 2.0 / (double(n) * w2);
    Spectrum s;
    s.df = fs / double(n);
    s.p.resize(n / 2);
    for (std::size_t k = 0; k < n / 2; ++k)
        s.p[k] = std::norm(a[k]) * norm;
    return s;
}

inline std::vector<double> sine(double hz, double fs, double amplitude, std::size_t n)
{
    std::vector<double> x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = amplitude * std::sin(2 * M_PI * hz * double(i) / fs);
    return x;
}

// DSD bytes (MSB first) -> +-1 samples.
inline std::vector<double> unpackMsbFirst(const std::vector<std::uint8_t>& bytes)
{
    std::vector<double> x(bytes.size() * 8);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        for (int q = 0; q < 8; ++q)
            x[i * 8 + q] = ((bytes[i] >> (7 - q)) & 1) ? 1.0 : -1.0;
    return x;
}

} // namespace zuvo_test
