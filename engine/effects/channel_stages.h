#pragma once
// Stages that change or derive channels: the re-mix matrix between channel
// counts and the surround derivation from a stereo pair.

#include <vector>

#include "effects/block.h"
#include "effects/channel_layout.h"

namespace zuvo::effects {

// out[o] = sum_i m[o][i] in[i] (channel_layout.h gives the matrices).
class MixStage {
public:
    MixStage() = default;
    MixStage(int ins, int outs, std::vector<double> matrix);
    void process(Planar& block, std::size_t n);
    ResponseMatrix response(double hz, double fs) const;
    int outs() const { return outs_; }

private:
    int ins_ = 0, outs_ = 0;
    std::vector<double> m_;
    Planar scratch_;
};

// Surround channels derived from the front pair (--unsrs, --quad with a
// stereo input): the ambience A = (L - R) / 2, delayed by kDeriveDelayMs and
// low-passed by a one-pole at kDeriveLowpassHz, goes to the left surround
// channels with + and to the right ones with -, each at 1/sqrt(p) when the
// layout has p surround pairs. Centre-panned (mono) content gives no
// surround signal; the front pair is left as it is.
constexpr double kDeriveDelayMs = 10.0;
constexpr double kDeriveLowpassHz = 7000.0;

class SurroundDeriveStage {
public:
    SurroundDeriveStage() = default;
    SurroundDeriveStage(int channels, double fs);
    void process(Planar& block, std::size_t n);
    ResponseMatrix response(double hz, double fs) const;

private:
    int channels_ = 0;
    std::vector<SurroundTarget> targets_;
    double level_ = 1.0;
    DelayLine delay_;
    OnePole lowpass_;
    std::vector<double> ambience_, delayed_;
};

} // namespace zuvo::effects
