#pragma once
// The player's command line. Numbers are parsed without the process locale:
// the front-end's locale must never change what the player understands.

#include <string>
#include <vector>

namespace zuvo::player {

struct PlayerOptions {
    std::string input;              // -i FILE (or the one bare argument)
    std::string device = "default"; // -dev NAME
    bool stream = false;            // -stream: read while playing, bounded memory
    bool forceDop = false;          // -dop: DSD over PCM even when native DSD is offered
    bool forcePcm = false;          // -pcm: convert DSD to PCM even when the device takes DSD or DoP
    int maxRate = 0;                // -maxrate HZ: never send more frames per second than this (0 = no cap)
    bool listDevices = false;       // --list-devices
    bool version = false;           // --version
    bool help = false;              // --help / -h
};

struct ParsedPlayerArgs {
    PlayerOptions options;
    std::string error; // empty when the command line is usable
};

// `args[0]` is the program name and is skipped.
ParsedPlayerArgs parsePlayerArgs(const std::vector<std::string>& args);

const char* playerUsage();

} // namespace zuvo::player
