#include "engine_main.h"

#include <cstdio>
#include <string>
#include <vector>

#include "control/control_channel.h"

namespace {

constexpr int kExitOk = 0;
constexpr int kExitUsage = 2;

void printHelp(std::FILE* out)
{
    std::fprintf(out,
        "ZuvoEngine %s - PCM to DSD conversion engine\n"
        "\n"
        "Usage: ZuvoEngine [options] -i INPUT OUTPUT\n"
        "  --version        print the version and exit\n"
        "  --help           print this help and exit\n"
        "\n"
        "Exit codes: 0 done, 1 processing failure, 2 usage error, 195 stopped on request.\n",
        ZUVO_VERSION);
}

} // namespace

extern "C" int zuvo_engine_main(int argc, char** argv)
{
    std::vector<std::string> args(argv, argv + argc);
    zuvo::takeInprocHostOptions(args);

    for (std::size_t i = 1; i < args.size(); ++i) {
        if (args[i] == "--version") {
            std::printf("ZuvoEngine %s\n", ZUVO_VERSION);
            std::fflush(stdout);
            return kExitOk;
        }
        if (args[i] == "--help" || args[i] == "-h") {
            printHelp(stdout);
            std::fflush(stdout);
            return kExitOk;
        }
    }
    for (std::size_t i = 1; i < args.size(); ++i) {
        std::fprintf(stderr, "ZuvoEngine: option not supported by this version: %s\n", args[i].c_str());
        return kExitUsage;
    }
    std::fprintf(stderr, "ZuvoEngine: no input given (see --help)\n");
    return kExitUsage;
}
