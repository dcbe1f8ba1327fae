#pragma once
// Safety limiter at the end of the chain, added only when the effects can
// raise the level. Its ceiling is the level a full-scale sine can reach
// through the chain (the worst-case gain), which the encoder's gain already
// maps below the modulator's stable level: a programme that stays inside the
// sine bound passes untouched, and one that does not (a full-scale square
// wave through a boost) is turned down instead of overloading the modulator.
//
// Peaks are estimated between samples too (4x windowed-sinc interpolation,
// 8 taps per phase). Gain: the smallest needed gain over the next W samples
// (W = kLimiterLookaheadMs), averaged over W + 1 samples so it reaches each
// peak's gain in time and never has a step, then released with a
// kLimiterReleaseMs time constant. All channels share the gain. The output
// is delayed by latency() samples, which the caller drops.

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "effects/block.h"

namespace zuvo::effects {

constexpr double kLimiterLookaheadMs = 1.5;
// The ceiling sits this far (+0.25 dB) above the sine bound, so that a sine
// at the bound is never touched by the interpolator's small estimate
// errors; the encoder's 1 dB margin below the stable level covers it.
constexpr double kLimiterCeilingMargin = 1.0292005271944286;
constexpr double kLimiterReleaseMs = 50.0;

class PeakLimiter {
public:
    PeakLimiter() = default;
    PeakLimiter(int channels, double fs, double ceiling);
    void process(Planar& block, std::size_t n);
    ResponseMatrix response(double hz, double fs) const;
    std::size_t latency() const { return kHalfTaps + window_; }

    std::uint64_t limitedSamples() const { return limited_; }
    double smallestGain() const { return smallest_; }

private:
    static constexpr std::size_t kTaps = 8, kHalfTaps = 4, kPhases = 4;
    // One gain value for the sample leaving the delay, from the peak of the
    // newest interpolation window.
    double step(double peak);

    int channels_ = 0;
    double ceiling_ = 1;
    std::size_t window_ = 1;
    double release_ = 0;
    std::array<std::array<double, kTaps>, kPhases> taps_{};
    std::vector<std::vector<double>> recent_;    // per channel: the last kTaps - 1 samples
    std::vector<std::vector<double>> delayLine_; // per channel: the last latency() samples
    std::vector<double> ext_, peaks_, gains_;
    std::uint64_t index_ = 0;                         // samples taken in
    std::deque<std::pair<std::uint64_t, double>> mins_; // sliding minimum of the needed gain
    std::deque<double> box_;
    double boxSum_ = 0;
    double gain_ = 1;
    std::uint64_t limited_ = 0;
    double smallest_ = 1;
};

} // namespace zuvo::effects
