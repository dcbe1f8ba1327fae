#include "restore/spectral/spectral_harmonics.h"

#include <algorithm>
#include <cmath>

namespace zuvo::restore {

namespace {

constexpr double kPeakGamma = 6.3;      // 8 dB over the noise floor
constexpr double kWeakGamma = 2.0;      // enough at a harmonic position once the series is known
constexpr double kStrongGamma = 31.6;   // 15 dB: protected whether harmonic or not
constexpr std::size_t kCandidatePeaks = 8;
constexpr int kMaxDivisor = 6;
constexpr double kMinF0 = 40.0, kMaxF0 = 2000.0;
constexpr int kMinMatches = 4;
constexpr int kMaxHarmonic = 64;
constexpr double kSameF0 = 0.03; // relative: the same note in the next frame
const double kMissPenalty = 0.5 * std::log(4.0);

struct Peak {
    double bin;   // refined position
    std::size_t centre;
    double gamma;
};

std::vector<Peak> pickPeaks(const std::vector<double>& g)
{
    std::vector<Peak> peaks;
    const std::size_t n = g.size();
    for (std::size_t k = 2; k + 2 < n; ++k) {
        const double v = g[k];
        if (!(v > kPeakGamma) || !(v > g[k - 1]) || !(v >= g[k + 1]) || !(v >= g[k - 2]) || !(v >= g[k + 2]))
            continue;
        // Parabola through the log powers of the peak and its neighbours.
        const double a = std::log(std::max(g[k - 1], 1e-30)), b = std::log(v), c = std::log(std::max(g[k + 1], 1e-30));
        const double den = a - 2 * b + c;
        const double off = den < 0 ? 0.5 * (a - c) / den : 0.0;
        peaks.push_back({static_cast<double>(k) + std::clamp(off, -0.5, 0.5), k, v});
    }
    return peaks;
}

// The peak within one bin of position `bin`, or -1.
int peakNear(const std::vector<Peak>& peaks, double bin)
{
    auto it = std::lower_bound(peaks.begin(), peaks.end(), bin - 1.0,
                               [](const Peak& p, double b) { return p.bin < b; });
    int best = -1;
    for (; it != peaks.end() && it->bin <= bin + 1.0; ++it)
        if (best < 0 || it->gamma > peaks[static_cast<std::size_t>(best)].gamma)
            best = static_cast<int>(it - peaks.begin());
    return best;
}

} // namespace

HarmonicResult findProtectedPartials(const std::vector<double>& gamma, double binHz,
                                     std::vector<unsigned char>& previous, double& previousF0)
{
    HarmonicResult r;
    const std::vector<Peak> peaks = pickPeaks(gamma);
    previous.resize(gamma.size(), 0);
    for (const Peak& p : peaks) {
        const std::size_t c = p.centre; // 2 <= c < size - 2
        if (p.gamma > kStrongGamma && (previous[c - 1] || previous[c] || previous[c + 1]))
            r.centres.push_back(c);
    }
    std::fill(previous.begin(), previous.end(), 0);
    for (const Peak& p : peaks)
        previous[p.centre] = 1;
    const double lastF0 = previousF0;
    previousF0 = 0;
    if (peaks.size() < static_cast<std::size_t>(kMinMatches))
        return r;
    std::vector<Peak> strongest = peaks;
    std::sort(strongest.begin(), strongest.end(), [](const Peak& a, const Peak& b) { return a.gamma > b.gamma; });
    strongest.resize(std::min(strongest.size(), kCandidatePeaks));

    const double lastBin = static_cast<double>(gamma.size() - 1);
    double bestScore = 0, bestF0 = 0;
    int bestTop = 0;
    for (const Peak& p : strongest)
        for (int d = 1; d <= kMaxDivisor; ++d) {
            const double f0Bin = p.bin / d;
            const double f0 = f0Bin * binHz;
            if (f0 < kMinF0 || f0 > kMaxF0 || f0Bin < 2.0)
                continue;
            double score = 0;
            int matches = 0, top = 0;
            for (int h = 1; h <= kMaxHarmonic && h * f0Bin < lastBin - 1; ++h) {
                const int q = peakNear(peaks, h * f0Bin);
                if (q < 0)
                    continue;
                score += std::log(peaks[static_cast<std::size_t>(q)].gamma);
                ++matches;
                top = h;
            }
            score -= kMissPenalty * (top - matches);
            if (matches >= kMinMatches && score > bestScore) {
                bestScore = score;
                bestF0 = f0Bin;
                bestTop = top;
            }
        }
    if (bestF0 <= 0)
        return r;
    previousF0 = bestF0 * binHz;
    if (!(std::fabs(previousF0 - lastF0) <= std::max(binHz, kSameF0 * lastF0)))
        return r;
    r.fundamentalHz = previousF0;
    for (int h = 1; h <= bestTop + 1 && h * bestF0 < lastBin - 2; ++h) {
        const double pos = h * bestF0;
        const int q = peakNear(peaks, pos);
        if (q >= 0) {
            r.centres.push_back(peaks[static_cast<std::size_t>(q)].centre);
            continue;
        }
        // A weaker local maximum right at the harmonic position.
        const auto c = static_cast<std::size_t>(std::lround(pos));
        std::size_t best = c;
        for (std::size_t k = c - 1; k <= c + 1; ++k)
            if (gamma[k] > gamma[best])
                best = k;
        if (gamma[best] > kWeakGamma && gamma[best] >= gamma[best - 1] && gamma[best] >= gamma[best + 1])
            r.centres.push_back(best);
    }
    return r;
}

} // namespace zuvo::restore
