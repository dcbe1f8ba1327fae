#pragma once
// The engines' library entries. The session library only declares them: the
// program that links the sessions also links the engines (or, in tests, a
// stand-in), so the session layer never depends on an engine library.
extern "C" int zuvo_engine_main(int argc, char** argv);
extern "C" int zuvo_player_main(int argc, char** argv);
