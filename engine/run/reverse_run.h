#pragma once
#include "run/run_context.h"

namespace zuvo::run {

// DSF/DSDIFF inputs (joined in order) -> one WAV/W64/FLAC file.
int runReverse(RunContext& ctx);

} // namespace zuvo::run
