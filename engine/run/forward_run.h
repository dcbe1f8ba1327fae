#pragma once
#include "run/run_context.h"

namespace zuvo::run {

// PCM file -> DSF or DSDIFF. Returns the exit code.
int runForward(RunContext& ctx);

} // namespace zuvo::run
