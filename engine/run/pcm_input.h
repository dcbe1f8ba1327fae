#pragma once
// Opening the one PCM input of the forward and the high-rate PCM runs, with
// the refusals both share; each run adds its own through `modeChecks`.
#include <functional>
#include <string>
#include <vector>

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

// Copies one channel (`source` of `channels`) out of `frames` interleaved frames.
void takeChannel(const std::vector<double>& interleaved, std::size_t channels, std::size_t source,
                 std::size_t frames, std::vector<double>& out);

} // namespace zuvo::run
