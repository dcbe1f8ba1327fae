#pragma once
// What the engine's exit code tells its caller.
namespace zuvo {

constexpr int kExitOk = 0;
constexpr int kExitFailure = 1;  // input unreadable, write error, disk full
constexpr int kExitUsage = 2;    // bad or unsupported option or value, design refused
constexpr int kExitStopped = 195; // "stop" received; partial output finalised

} // namespace zuvo
