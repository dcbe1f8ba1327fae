#pragma once
#include "run/run_context.h"

namespace zuvo::run {

// PCM file -> DSF or DSDIFF. Returns the exit code.
int runForward(RunContext& ctx);

// The signal-path settings the command line asks for, at `inputRate`; the
// recorder designs its path the same way.
dsp::ForwardConfig forwardConfig(const cli::EngineOptions& options, int inputRate);
const char* modulatorName(dsp::ModulatorType type);

} // namespace zuvo::run
