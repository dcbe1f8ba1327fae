#pragma once
#include "run/run_context.h"

namespace zuvo::record {

// ALSA capture -> DSD modulation as it arrives -> DSF. Ends on "q"/"stop",
// after --record-duration, or on a device error; the file is finished in
// every case. Returns the exit code.
int runRecord(run::RunContext& ctx);

// "--list-devices": capture devices (the recorder's), then playback devices.
int listDevices();

} // namespace zuvo::record
