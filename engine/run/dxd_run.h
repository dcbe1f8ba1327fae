#pragma once
#include "run/run_context.h"

namespace zuvo::run {

// PCM file -> PCM at the DXD rate (352800 Hz or --dxd-samplerate).
int runDxd(RunContext& ctx);

} // namespace zuvo::run
