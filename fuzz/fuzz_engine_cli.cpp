// Feeds the engine's command-line parser: the input is split at NUL bytes
// into arguments, as argv would hold them.
#include <cstdint>
#include <string>
#include <vector>

#include "cli/options.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::string> args;
    std::string current;
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] == 0) {
            args.push_back(current);
            current.clear();
        } else {
            current.push_back(static_cast<char>(data[i]));
        }
    }
    if (!current.empty())
        args.push_back(current);
    if (args.size() > 256)
        return 0;
    const zuvo::cli::ParsedCommandLine parsed = zuvo::cli::parseCommandLine(args);
    // A parse always ends in a decision: an accepted command line either
    // asks for information, measures inputs (no output file), or names an
    // output and (unless it records from a device) an input.
    const auto& o = parsed.options;
    const bool information = o.showHelp || o.showVersion || o.listDevices || o.showCapabilities;
    const bool recording = o.mode == zuvo::cli::Mode::Record;
    if (!parsed.usageError() && !information && o.analysis.measure) {
        if (o.inputs.empty())
            __builtin_trap();
        return 0;
    }
    if (!parsed.usageError() && !information && (o.output.empty() || (!recording && o.inputs.empty())))
        __builtin_trap();
    return 0;
}
