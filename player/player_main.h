#pragma once
// The player engine's entry point, run in-process by the front-end.
extern "C" int zuvo_player_main(int argc, char** argv);
