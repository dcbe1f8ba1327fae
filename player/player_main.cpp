#include "player_main.h"

#include <cstdio>
#include <string>
#include <vector>

#include "control/control_channel.h"

// Playback is not built yet: the player answers who it is and refuses every
// request with a clear message instead of pretending to play.
extern "C" int zuvo_player_main(int argc, char** argv)
{
    std::vector<std::string> args(argv, argv + argc);
    zuvo::takeInprocHostOptions(args);
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (args[i] == "--version") {
            std::printf("ZuvoPlayerEngine %s (playback not available in this build)\n", ZUVO_VERSION);
            std::fflush(stdout);
            return 0;
        }
    }
    std::fprintf(stderr, "ZuvoPlayerEngine: playback is not available in this build\n");
    return 2;
}
