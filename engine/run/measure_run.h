#pragma once
#include "run/run_context.h"

namespace zuvo::run {

// --measure: decodes every input and prints one CSV line per input to
// standard output, after the header
//   file,integrated_lufs,lra_lu,true_peak_dbtp,plr_db
// Numbers carry two decimals and a '.'; silence (nothing above the
// absolute gate) gives "-inf" loudness, "-inf" true peak for digital
// silence, and "nan" PLR. No file is written; the output argument, when
// given, is left alone. Returns 0, or 1 when an input could not be read
// (its row is left out, the others are still printed).
int runMeasure(RunContext& ctx);

} // namespace zuvo::run
