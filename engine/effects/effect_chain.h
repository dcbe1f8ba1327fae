#pragma once
// The effect chain in the 64-bit float path before the modulator: a plain
// list of stages run in order on each block, at the input rate.
//
// Order: pre-cut and equalisers -> tone -> channel re-mix -> surround
// derivation -> stereo width and crossfeed -> surround ambience.
//
// Headroom: worstCaseGain() bounds the level a full-scale input can reach at
// the chain's output: the largest, over frequency and output channel, of the
// sum over input channels of |H(out, in)(f)|, evaluated on the stages' exact
// frequency responses (a fine grid plus every band centre). The encoder's
// automatic gain divides by it, so a full-scale sine at any frequency, on
// any channels, in any phase, stays inside the modulator's stable range.

#include <string>
#include <variant>
#include <vector>

#include "effects/channel_stages.h"
#include "effects/effect_options.h"
#include "effects/filter_stage.h"
#include "effects/stereo_stages.h"

namespace zuvo::effects {

using Stage = std::variant<FilterStage, MixStage, SurroundDeriveStage, WidthStage, SurroundStage>;

// Fixed bands of the advanced equaliser.
constexpr double kEqBassHz = 80.0;      // low shelf, Q 0.7071
constexpr double kEqPresenceHz = 3000.0; // peaking, one octave
constexpr double kEqAirHz = 12000.0;     // high shelf, Q 0.7071

// Channels the chain writes for `inChannels` input channels, or 0 with
// `error` set when the options cannot apply to that input.
int outputChannels(const EffectOptions& o, int inChannels, std::string& error);

class EffectChain {
public:
    // False with `error` set when the options cannot apply to this input.
    bool build(const EffectOptions& o, int inChannels, double fs, std::string& error);

    bool empty() const { return stages_.empty(); }
    int inChannels() const { return ins_; }
    int outChannels() const { return outs_; }

    // `block` holds inChannels() vectors of at least n samples on entry and
    // outChannels() vectors of n samples on return.
    void process(Planar& block, std::size_t n);

    ResponseMatrix response(double hz) const;
    double worstCaseGain() const;
    // One line per stage, for the log.
    const std::vector<std::string>& description() const { return lines_; }

private:
    std::vector<Stage> stages_;
    std::vector<double> probeHz_; // band centres: where the peaks are
    std::vector<std::string> lines_;
    double fs_ = 44100;
    double maxDelaySeconds_ = 0;
    int ins_ = 0, outs_ = 0;
};

} // namespace zuvo::effects
