#pragma once
// The conversion engine's single entry point: the CLI, the front-end's engine
// mode and the in-process runner all call it with a plain argc/argv.
extern "C" int zuvo_engine_main(int argc, char** argv);
