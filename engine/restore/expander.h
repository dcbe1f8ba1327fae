#pragma once
// Downward expander: pushes the noise between notes further down.
//
// Level detector: mean square of each channel, one-pole smoothed with a
// kExpanderRmsMs time constant; the channels are linked by taking the
// largest, so every channel gets the same gain and the stereo image stays.
// Gain computer (dB, L = level, T = threshold, R = ratio, W = knee width):
//   L >= T + W/2:            0
//   L <= T - W/2:            (R - 1)(L - T)
//   in between (soft knee):  -(R - 1)(L - T - W/2)^2 / (2W)
// so a signal 20 dB under the threshold comes out 20 (R - 1) dB lower.
// The gain then moves towards that target with the attack time constant
// when it rises (the expander opens) and the release time constant when it
// falls (closes). No look-ahead: no latency. The gain starts open and holds
// for the first 3 detector time constants (30 ms) while the detector fills.

#include <cstddef>
#include <vector>

namespace zuvo::restore {

constexpr double kExpanderRmsMs = 10.0;
// The gain holds (open) for this many detector time constants at the start.
constexpr double kExpanderWarmupTimeConstants = 3.0;

// The static curve: gain in dB for a level in dB.
double expanderGainDb(double levelDb, double thresholdDb, double ratio, double kneeDb);

class Expander {
public:
    Expander(int channels, double fs, double thresholdDb, double ratio, double kneeDb, double attackMs,
             double releaseMs);

    std::size_t latency() const { return 0; }
    void process(std::vector<std::vector<double>>& ch, std::size_t n);

    double smallestGainDb() const { return smallestDb_; }

private:
    double threshold_, ratio_, knee_;
    double detect_, attack_, release_;
    std::vector<double> ms_;
    double gainDb_ = 0;
    double smallestDb_ = 0;
    std::size_t warmup_ = 0;
};

} // namespace zuvo::restore
