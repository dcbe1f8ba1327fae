#pragma once
// Stereo image of the front pair (channels 0 and 1).
//
// Width (--stereo, --stereo-width W): mid M = (L + R) / 2, side S = (L - R) / 2,
//   L' = M + W S, R' = M - W S. W = 1 leaves the pair as it is, 0 is mono.
// Automatic width (--stereo-auto): W follows the programme so that the side
//   level approaches half the mid level (rms S / rms M -> 0.5), limited to
//   the range between 1 and --stereo-width; the levels are smoothed with a
//   kAutoTimeConstant time constant and W is ramped across each block.
// Crossfeed (--stereo-crossfeed c, 0..1): each side gets c times the other
//   side, delayed by kCrossfeedDelayMs and low-passed by a one-pole at
//   kCrossfeedHz: L'' = L' + c LP(R'[n - d]), R'' = R' + c LP(L'[n - d]).
//
// Surround (--surround delay mix [side] [balance]): g = mix / 100, D = delay
//   in samples (rounded), balance b: gL = g min(1, 1 - b/100),
//   gR = g min(1, 1 + b/100).
//   without "side": L' = L + gL R[n - D],  R' = R + gR L[n - D]
//   with "side":    S = (L - R) / 2, L' = L + gL S[n - D], R' = R - gR S[n - D]

#include "effects/block.h"
#include "effects/effect_options.h"

namespace zuvo::effects {

constexpr double kCrossfeedHz = 700.0;
constexpr double kCrossfeedDelayMs = 0.3;
constexpr double kAutoTimeConstant = 0.3; // s
constexpr double kAutoSideToMid = 0.5;

class WidthStage {
public:
    WidthStage() = default;
    WidthStage(int channels, double fs, double width, bool automatic, double crossfeed);
    void process(Planar& block, std::size_t n);
    // With automatic width: the widest setting it can reach.
    ResponseMatrix response(double hz, double fs) const;
    double currentWidth() const { return w_; }

private:
    int channels_ = 0;
    double fs_ = 44100;
    double width_ = 1, w_ = 1;
    bool auto_ = false;
    double crossfeed_ = 0;
    double energyMid_ = 0, energySide_ = 0;
    DelayLine delayL_, delayR_;
    OnePole lpL_, lpR_;
    std::vector<double> dl_, dr_;
};

class SurroundStage {
public:
    SurroundStage() = default;
    SurroundStage(int channels, double fs, const SurroundOptions& o);
    void process(Planar& block, std::size_t n);
    ResponseMatrix response(double hz, double fs) const;

private:
    int channels_ = 0;
    bool side_ = false;
    double gl_ = 0, gr_ = 0;
    DelayLine delayA_, delayB_;
    std::vector<double> a_, b_, da_, db_;
};

} // namespace zuvo::effects
