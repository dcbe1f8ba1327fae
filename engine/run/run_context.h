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
// Detail: on standard error with --verbose, always in the log. Standard
// output stays for progress and the --report figures.
void detail(RunContext& ctx, const char* format, ...) __attribute__((format(printf, 2, 3)));
// The last word of a run that "stop" ended, after the output was finalised:
// reports that it is valid up to that point and returns the exit code.
int reportStopped(RunContext& ctx);

} // namespace zuvo::run
