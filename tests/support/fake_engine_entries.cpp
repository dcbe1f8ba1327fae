// Links the scripted engine in place of the real entry points, so in-process
// sessions inside a test executable run the script instead of a conversion.
#include "fake_engine.h"

extern "C" int zuvo_engine_main(int argc, char** argv)
{
    return fake_engine_run(argc, argv);
}

extern "C" int zuvo_player_main(int argc, char** argv)
{
    return fake_engine_run(argc, argv);
}
