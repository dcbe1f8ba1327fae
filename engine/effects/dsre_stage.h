#pragma once
// DSRE: harmonic enhancement of the upper mids, the same on every channel.
//
// Side chain: the input through two one-pole high-passes at kDsreLowHz and
// two one-pole low-passes at kDsreHighHz (the 2.5-8 kHz presence region,
// whose second harmonics stay below the Nyquist frequency of a 44.1 kHz input).
// Generator: the second Chebyshev polynomial of the side chain normalised by
// its own envelope e (sqrt(2 x mean square), 10 ms smoothing):
//   h = e T2(s / e) = 2 s^2 / e - e,
// which turns a side-chain sine A cos(wt) into exactly A cos(2wt): a second
// harmonic at the side chain's own level, whatever the input level, with
// no level-dependent distortion of the dry signal. |s / e| is capped at 2.
// Output: h through two one-pole high-passes at kDsreOutHz (removes the
// generator's DC and low difference tones) and added to the dry signal:
//   y = x + mix * kDsreLevel * HP(h).
// At mix 1.0 and 44.1 kHz a 5 kHz sine thus gains a 10 kHz harmonic 20.2 dB
// below it (-6 dB level, the side chain's -7.6 dB at 5 kHz, the output
// filter's -6.5 dB at 10 kHz); a 200 Hz sine gains one about 98 dB below.
// The dry path is untouched.

#include <vector>

#include "effects/block.h"

namespace zuvo::effects {

constexpr double kDsreLowHz = 2500.0;
constexpr double kDsreHighHz = 8000.0;
constexpr double kDsreOutHz = 4000.0;
constexpr double kDsreLevel = 0.5;       // -6 dB
constexpr double kDsreEnvelopeMs = 10.0;

class DsreStage {
public:
    DsreStage() = default;
    DsreStage(int channels, double fs, double mix);
    void process(Planar& block, std::size_t n);
    // For the headroom: 1 + mix x kDsreLevel on every channel (the sine bound).
    ResponseMatrix response(double hz, double fs) const;

private:
    struct Channel {
        OnePole hp1, hp2, lp1, lp2, out1, out2;
        double meanSquare = 0;
    };
    int channels_ = 0;
    double mix_ = 0;
    double envAlpha_ = 0;
    std::vector<Channel> state_;
};

} // namespace zuvo::effects
