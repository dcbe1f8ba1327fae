#include "player_main.h"

#include <cstdio>
#include <string>
#include <vector>

#include <alsa/asoundlib.h>

#include "control/control_channel.h"
#include "player_options.h"
#include "player_run.h"

namespace {

// ALSA's own diagnostics name source lines of the library; the player says
// what went wrong in its own words instead.
void quietAlsa(const char*, int, const char*, int, const char*, ...) {}

} // namespace

extern "C" int zuvo_player_main(int argc, char** argv)
{
    using namespace zuvo::player;
    std::vector<std::string> args(argv, argv + argc);
    const zuvo::InprocHostOptions host = zuvo::takeInprocHostOptions(args);
    const ParsedPlayerArgs parsed = parsePlayerArgs(args);
    if (!parsed.error.empty()) {
        std::fprintf(stderr, "ZuvoPlayerEngine: error: %s\n%s", parsed.error.c_str(), playerUsage());
        std::fflush(stderr);
        return kExitUsage;
    }
    const PlayerOptions& o = parsed.options;
    if (o.help) {
        std::fputs(playerUsage(), stdout);
        std::fflush(stdout);
        return kExitOk;
    }
    if (o.version) {
        std::printf("ZuvoPlayerEngine %s\n", ZUVO_VERSION);
        std::fflush(stdout);
        return kExitOk;
    }
    snd_lib_error_set_handler(&quietAlsa);
    if (o.listDevices)
        return listDevices();

    zuvo::ControlListener control(host);
    control.start([](const std::string&) {});
    return playFile(o, [&control] { return control.stopRequested(); });
}
