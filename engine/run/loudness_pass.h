#pragma once
// The measuring pass that --lufs and --rg need before a conversion, the
// lossy-input check of --stop-lossy, and the loudness gain itself.
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "analysis/loudness_meter.h"
#include "run/run_context.h"

namespace zuvo::run {

using Planar = std::vector<std::vector<double>>;

// Everything between the decoder (after the non-finite repair) and the
// modulator, as the measuring pass runs it: `run` processes n frames in
// place and returns how many are ready (a stage with latency holds some
// back), `drain` returns the held-back tail at the end. Stages compose by
// wrapping one path in another (see thenPath).
struct PreModulatorPath {
    int outChannels = 0;
    std::function<std::size_t(Planar&, std::size_t)> run;
    std::function<std::size_t(Planar&)> drain;
};

// The restoration chain and the effect chain of the options (with the
// mastering set's EQ and widening, and the safety limiter) as a path.
// Nothing on: a pass-through. Null when a chain cannot be built.
std::unique_ptr<PreModulatorPath> makeEffectsPath(const cli::EngineOptions& options, int channels, int sampleRate,
                                                  std::string& error);
// `first` then `second` (the second must take first's output channels).
PreModulatorPath thenPath(PreModulatorPath first, PreModulatorPath second);

struct FirstPass {
    int exitCode = 0; // non-zero: refused or failed (already reported)
    analysis::LoudnessFigures figures;
    double seconds = 0;
};

// Decodes `input` again and measures the signal as `path` delivers it to
// the modulator. Progress runs from 0 to `progressShare` percent.
FirstPass measurePreModulator(RunContext& ctx, const std::string& input, const std::vector<std::size_t>& source,
                              const io::ChannelLayout& outLayout, PreModulatorPath& path, double progressShare);

// --stop-lossy: reads the start of `input` and refuses it (message, exit
// code 1) when its spectrum has a lossy codec's low-pass. 0 = go on.
int refuseLossyInput(RunContext& ctx, const std::string& input);

// Multiplies the first n samples by `gain` (nothing when gain is 1).
void scaleBlock(std::vector<double>& x, std::size_t n, double gain);

} // namespace zuvo::run
