#pragma once
// Before a conversion with --lufs or --rg: the measuring pass, the loudness
// gain and the ReplayGain tags.
//
// Level model: the file the user gets carries the pre-modulator signal
// times the loudness gain times the modulator's own gain (automatic
// headroom or --abs). The loudness gain therefore makes up for the
// modulator's gain, so that --lufs holds for the DSD output itself, and
// ReplayGain describes that output. The true peak after both gains stays
// at or below the lower of -1 dBTP and the modulator's stable level less
// 1 dB (the same headroom the automatic gain keeps); when the target would
// pass it, the gain is lowered and the output lands below the target.
#include <string>
#include <vector>

#include "dsp/dsd_pipeline.h"
#include "io/tags.h"
#include "run/loudness_pass.h"

namespace zuvo::run {

struct LoudnessSetup {
    int exitCode = 0;          // non-zero: stop (already reported)
    bool measured = false;     // a measuring pass ran
    double gain = 1.0;         // linear, applied after the effects, before the modulator
};

// `modulatorGain`: the design's applied gain; `modulatorMaxStableDbfs`: its
// stable level at the modulator. Adds the ReplayGain frames to `tags`.
LoudnessSetup prepareLoudness(RunContext& ctx, const std::string& input, const std::vector<std::size_t>& source,
                              const io::ChannelLayout& outLayout, int channels, int sampleRate,
                              const dsp::DesignSummary& design, io::Tags& tags);

// The true-peak ceiling of the output for a design, in dBTP.
double outputCeilingDbtp(const dsp::DesignSummary& design);

} // namespace zuvo::run
