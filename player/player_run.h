#pragma once
#include <functional>

#include "player_options.h"

namespace zuvo::player {

constexpr int kExitOk = 0;
constexpr int kExitUsage = 1;
constexpr int kExitBadFile = 2;
constexpr int kExitStopped = 3;   // "stop" received
constexpr int kExitNoDevice = 4;  // the device cannot be opened
constexpr int kExitNoFormat = 5;  // the device refuses every format for the file
constexpr int kExitPlayback = 6;  // the device failed while playing

// Plays the file of `options`; `stopRequested` is polled between periods.
int playFile(const PlayerOptions& options, const std::function<bool()>& stopRequested);

int listDevices();

} // namespace zuvo::player
