#pragma once
// A scriptable stand-in for the conversion engine, used by the tests to
// produce outcomes on demand (failures, crashes, stops that are or are not
// confirmed). It never converts anything.
//
// Environment:
//   ZUVO_FAKE_ARGS    file that receives one JSON array of arguments per run
//   ZUVO_FAKE_SCRIPT  script file; "[run N]" starts a section for the N-th
//                     run (1-based), lines before any section apply to runs
//                     that have no section of their own.
// Script commands, one per line:
//   out TEXT | err TEXT   a line on stdout / stderr
//   raw TEXT              TEXT on stdout without a newline
//   sleep MS
//   wait-stop MS [CODE]   wait up to MS for "stop"; on it exit with CODE (195)
//   wait-line WORD MS [CODE]  wait up to MS for the control line WORD (e.g. "q");
//                     on it exit with CODE (0)
//   log TEXT              append a line to the --log-file path
//   touch-output          create the output file (last argument) with junk in it
//   write-output          write a complete, minimal DSF as the output
//   flood N TEXT          N buffered lines "TEXT i"; ends early (195) on "stop"
//   long N                one line of N characters
//   crash                 abort()
//   ignore-term           ignore SIGTERM (a child that only a kill ends)
//   exit N                exit code (default 0 at the end of the script)
int fake_engine_run(int argc, char** argv);
