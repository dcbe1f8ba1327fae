#pragma once
// What every conversion mode gets from the entry: its options, the log, the
// progress reporter and the control channel.

#include <cstdarg>
#include <cstdio>

#include "cli/options.h"
#include "control/control_channel.h"
#include "run/engine_log.h"
#include "run/progress.h"

namespace zuvo::run {

struct RunContext {
    const cli::EngineOptions& options;
    EngineLog& log;
    ProgressReporter& progress;
    const ControlListener& control;

    bool stopRequested() const { return control.stopRequested(); }
};

// Problems: "ZuvoEngine: ..." on standard error, copied to the log.
void report(RunContext& ctx, const char* format, ...) __attribute__((format(printf, 2, 3)));
// Information: on standard output with --verbose (the front-end shows
// standard error as errors), always in the log.
void detail(RunContext& ctx, const char* format, ...) __attribute__((format(printf, 2, 3)));

} // namespace zuvo::run
