#include "restore/hum_detector.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zuvo::restore {

namespace {

std::vector<double> hannWindowed(const double* x, std::size_t n)
{
    std::vector<double> w(x, x + n);
    const double step = 2 * std::numbers::pi / static_cast<double>(n - 1);
    for (std::size_t i = 0; i < n; ++i)
        w[i] *= 0.5 - 0.5 * std::cos(step * static_cast<double>(i));
    return w;
}

// Goertzel power of already-windowed samples.
double goertzel(const std::vector<double>& w, double hz, double fs)
{
    const double coeff = 2 * std::cos(2 * std::numbers::pi * hz / fs);
    double s1 = 0, s2 = 0;
    for (double v : w) {
        const double s0 = v + coeff * s1 - s2;
        s2 = s1;
        s1 = s0;
    }
    return s1 * s1 + s2 * s2 - coeff * s1 * s2;
}

} // namespace

double goertzelPower(const double* x, std::size_t n, double hz, double fs)
{
    return n < 2 ? 0.0 : goertzel(hannWindowed(x, n), hz, fs);
}

HumGuess detectMains(const std::vector<std::vector<double>>& channels, std::size_t n, double fs)
{
    HumGuess g;
    // The Hann main lobe is 4 fs / n wide; 10 Hz apart needs n >= 0.2 s.
    if (static_cast<double>(n) < 0.2 * fs)
        return g;
    std::vector<std::vector<double>> windowed;
    for (const auto& ch : channels)
        windowed.push_back(hannWindowed(ch.data(), std::min(n, ch.size())));
    for (const auto& w : windowed) {
        for (int k = 1; k <= 3; ++k) {
            g.energy50 += goertzel(w, 50.0 * k, fs);
            g.energy60 += goertzel(w, 60.0 * k, fs);
        }
    }
    g.nominalHz = g.energy60 > 2 * g.energy50 ? 60 : 50;
    g.mainsHz = g.nominalHz;
    if (!(g.energy50 + g.energy60 > 0))
        return g;
    // Refine only a hum that is there: its harmonics must stand 6 dB over
    // the spectrum half-way between them.
    double between = 0;
    for (const auto& w : windowed)
        for (int k = 1; k <= 3; ++k)
            between += goertzel(w, g.nominalHz * (k + 0.5), fs);
    if (!((g.nominalHz == 60 ? g.energy60 : g.energy50) > 4 * between))
        return g;
    auto power = [&](double f0) {
        double sum = 0;
        for (const auto& w : windowed)
            for (int k = 1; k <= 5 && f0 * k < 0.45 * fs; ++k)
                sum += goertzel(w, f0 * k, fs);
        return sum;
    };
    double best = g.nominalHz, bestPower = power(best);
    for (double step : {0.05, 0.005}) {
        const double centre = best;
        for (int i = -10; i <= 10; ++i) {
            const double f = centre + i * step;
            if (i == 0 || std::abs(f - g.nominalHz) > 0.5)
                continue;
            const double p = power(f);
            if (p > bestPower)
                best = f, bestPower = p;
        }
    }
    g.mainsHz = best;
    return g;
}

} // namespace zuvo::restore
