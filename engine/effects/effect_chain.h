#pragma once
// The effect chain in the 64-bit float path before the modulator: a plain
// list of stages run in order on each block, at the input rate.
//
// Order: pre-cut and equalisers -> tone -> DSRE -> channel re-mix -> surround
// derivation -> stereo width and crossfeed -> surround ambience -> HRTF.
//
// Headroom: worstCaseGain() bounds the level a full-scale input can reach at
// the chain's output: the largest, over frequency and output channel, of the
// sum over input channels of |H(out, in)(f)|, evaluated on the stages' exact
// frequency responses (a fine grid plus every band centre). The encoder's
// automatic gain divides by it, so a full-scale sine at any frequency, on
// any channels, in any phase, stays inside the modulator's stable range; a
// safety limiter (peak_limiter.h) at that same ceiling catches what is not a
// sine (a full-scale square wave through a boost).

#include <string>
#include <variant>
#include <vector>

#include "effects/channel_stages.h"
#include "effects/dsre_stage.h"
#include "effects/effect_options.h"
#include "effects/filter_stage.h"
#include "effects/hrtf_stage.h"
#include "effects/peak_limiter.h"
#include "effects/stereo_stages.h"

namespace zuvo::effects {

using Stage = std::variant<FilterStage, DsreStage, MixStage, SurroundDeriveStage, WidthStage, SurroundStage,
                           HrtfStage, PeakLimiter>;

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

    // process() with the latency hidden: the first latency() output frames
    // are dropped; returns how many frames `block` holds afterwards.
    std::size_t run(Planar& block, std::size_t n);
    // At the end: pushes latency() silent frames through and returns the
    // frames that come out (the input's last ones).
    std::size_t drain(Planar& block);

    ResponseMatrix response(double hz) const;
    double worstCaseGain() const;
    // Appends the safety limiter with this ceiling (chain-output units).
    void addLimiter(double ceiling);
    // Samples by which the output lags the input (the limiter's look-ahead).
    std::size_t latency() const;
    // Samples the limiter turned down and its smallest gain (1 = never).
    std::uint64_t limitedSamples() const;
    double smallestLimiterGain() const;
    // One line per stage, for the log.
    const std::vector<std::string>& description() const { return lines_; }

private:
    std::vector<Stage> stages_;
    std::vector<double> probeHz_; // band centres: where the peaks are
    std::vector<std::string> lines_;
    double fs_ = 44100;
    double maxDelaySeconds_ = 0;
    int ins_ = 0, outs_ = 0;
    std::size_t toDrop_ = 0;
};

} // namespace zuvo::effects
