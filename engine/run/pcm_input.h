#pragma once
// Opening the one PCM input of the forward and the high-rate PCM runs, with
// the refusals both share; each run adds its own through `modeChecks`.
#include <functional>
#include <string>
#include <vector>

#include "dsp/dsd_pipeline.h"
#include "io/pcm_reader.h"
#include "run/run_context.h"

namespace zuvo::run {

// Whether the "input:" detail line gives the length in frames.
enum class InputDetail { Plain, WithFrames };

// Runs after the channel count and before the truncation check, so that a
// mode's own refusals keep their place; returns an exit code, 0 to go on.
using PcmInputChecks = std::function<int(const io::PcmStreamInfo&)>;

// Refuses an output that is the input, opens `reader`, refuses a channel
// count outside 1..8 and a truncated file. Returns the exit code of the
// first refusal (already reported), 0 when the input is good.
int openPcmInput(RunContext& ctx, io::PcmReader& reader, const std::string& input, InputDetail detailLine,
                 const PcmInputChecks& modeChecks = {});

// Which interleaved input channel feeds each output channel: the identity,
// or the first two swapped (--swap-channels).
std::vector<std::size_t> channelSources(std::size_t channels, bool swapFirstTwo);
// The same over a channel order (io::containerOrder of the input's layout):
// entry i is the input channel written as channel i.
std::vector<std::size_t> channelSources(std::vector<std::size_t> order, bool swapFirstTwo);
// The speakers of the written channels, for the writer's labels. A swap of
// the first two channels keeps their labels: it swaps the signals.
io::ChannelLayout writtenLayout(const io::ChannelLayout& fileLayout, const std::vector<std::size_t>& order);

// Copies one channel (`source` of `channels`) out of `frames` interleaved
// frames. A NaN or infinite sample (float input only) would poison every
// filter and the modulator after it: each is replaced by the sample before
// it (0 at the start of the block). Returns how many were replaced.
std::size_t takeChannel(const std::vector<double>& interleaved, std::size_t channels, std::size_t source,
                 std::size_t frames, std::vector<double>& out);

// Warnings for what the run had to repair: non-finite input samples per
// channel, and modulators reset because their state was no longer finite.
void reportSignalRepairs(RunContext& ctx, const std::vector<std::uint64_t>& nonFinite,
                         const std::vector<dsp::ChannelEncoder>& encoders);

} // namespace zuvo::run
