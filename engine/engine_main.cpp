// The entry point wires the pieces: host options, command line, log file,
// control channel, progress, then the conversion mode.
#include "engine_main.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "cli/capabilities.h"
#include "cli/help.h"
#include "cli/options.h"
#include "cli/refusal_reasons.h"
#include "control/control_channel.h"
#include "record/record_run.h"
#include "run/dxd_run.h"
#include "run/engine_log.h"
#include "run/exit_codes.h"
#include "run/forward_run.h"
#include "run/measure_run.h"
#include "run/output_checks.h"
#include "run/reverse_run.h"

namespace {

std::string joined(const std::vector<std::string>& items)
{
    std::string out;
    for (const auto& s : items)
        out += (out.empty() ? "" : ", ") + s;
    return out;
}

std::string commandLine(const std::vector<std::string>& args)
{
    std::string out;
    for (const auto& a : args)
        out += (out.empty() ? "\"" : " \"") + a + "\"";
    return out;
}

int usageErrors(const zuvo::cli::ParsedCommandLine& parsed, zuvo::run::EngineLog& log)
{
    auto say = [&log](const std::string& text) {
        std::fprintf(stderr, "ZuvoEngine: %s\n", text.c_str());
        log.line("%s", text.c_str());
    };
    if (!parsed.unsupported.empty())
        say("not supported by this version: " + joined(parsed.unsupported));
    for (const auto& option : parsed.unsupported)
        if (const std::string why = zuvo::cli::refusalReason(option); !why.empty())
            say("  " + option + ": " + why);
    if (!parsed.unknown.empty())
        say("unknown option(s): " + joined(parsed.unknown));
    for (const auto& e : parsed.errors)
        say(e);
    std::fprintf(stderr, "ZuvoEngine: nothing was converted (see --help)\n");
    std::fflush(stderr);
    return zuvo::kExitUsage;
}

int run(std::vector<std::string> args)
{
    const zuvo::InprocHostOptions host = zuvo::takeInprocHostOptions(args);
    const std::vector<std::string> rest(args.begin() + (args.empty() ? 0 : 1), args.end());
    const zuvo::cli::ParsedCommandLine parsed = zuvo::cli::parseCommandLine(rest);
    const zuvo::cli::EngineOptions& o = parsed.options;

    zuvo::run::EngineLog log;
    if (const std::string clash = zuvo::run::logFileClash(o.logFile, o.inputs, o.output); !clash.empty()) {
        std::fprintf(stderr, "ZuvoEngine: the log file is the same file as %s: %s\n",
                     clash == o.output ? "the output" : "an input", o.logFile.c_str());
        std::fprintf(stderr, "ZuvoEngine: nothing was converted (see --help)\n");
        std::fflush(stderr);
        return zuvo::kExitUsage;
    }
    if (!o.logFile.empty()) {
        std::string error;
        if (!log.open(o.logFile, &error))
            std::fprintf(stderr, "ZuvoEngine: warning: %s; going on without it\n", error.c_str());
    }
    log.line("ZuvoEngine %s%s: %s", ZUVO_VERSION, host.host ? " (in-process)" : "", commandLine(rest).c_str());
    if (host.malformed)
        log.line("warning: malformed in-process control address; no control queue");

    if (o.showVersion) {
        std::printf("ZuvoEngine %s\n", ZUVO_VERSION);
        std::fflush(stdout);
        return zuvo::kExitOk;
    }
    if (o.showHelp) {
        zuvo::cli::printHelp(stdout, ZUVO_VERSION);
        std::fflush(stdout);
        return zuvo::kExitOk;
    }
    if (o.showCapabilities) {
        zuvo::cli::printCapabilities(stdout);
        std::fflush(stdout);
        return zuvo::kExitOk;
    }
    if (o.listDevices)
        return zuvo::record::listDevices();
    if (parsed.usageError())
        return usageErrors(parsed, log);
    for (const auto& w : parsed.warnings) {
        std::fprintf(stderr, "ZuvoEngine: warning: %s\n", w.c_str());
        log.line("warning: %s", w.c_str());
    }
    std::fflush(stderr);

    zuvo::ControlListener control(host);
    control.start([&log](const std::string& line) { log.line("control: %s", line.c_str()); });
    zuvo::run::ProgressReporter progress(o.gui);
    zuvo::run::RunContext ctx{o, log, progress, control};

    int code = zuvo::kExitFailure;
    switch (o.mode) {
    case zuvo::cli::Mode::Forward:
        code = o.analysis.measure ? zuvo::run::runMeasure(ctx) : zuvo::run::runForward(ctx);
        break;
    case zuvo::cli::Mode::Reverse: code = zuvo::run::runReverse(ctx); break;
    case zuvo::cli::Mode::Dxd: code = zuvo::run::runDxd(ctx); break;
    case zuvo::cli::Mode::Record: code = zuvo::record::runRecord(ctx); break;
    }
    log.line("exit code %d", code);
    std::fflush(stdout);
    std::fflush(stderr);
    return code;
}

} // namespace

extern "C" int zuvo_engine_main(int argc, char** argv)
{
    // Nothing may escape into a host that calls us in-process.
    try {
        return run(std::vector<std::string>(argv, argv + argc));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "ZuvoEngine: internal error: %s\n", e.what());
    } catch (...) {
        std::fprintf(stderr, "ZuvoEngine: internal error\n");
    }
    std::fflush(stderr);
    return zuvo::kExitFailure;
}
