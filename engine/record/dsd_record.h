#pragma once
#include "run/run_context.h"

namespace zuvo::record {

// --record-dsd: DoP or native DSD from the device, stored bit for bit in a
// DSF at the rate --oversampling names. Returns the exit code.
int runDsdRecord(run::RunContext& ctx);

} // namespace zuvo::record
