#pragma once
// The engine's device listing ("--list-devices") as one text, for checks
// that want to know whether the program can reach its audio backend without
// opening a window or a device.

#include <QString>
#include <functional>

class QObject;

// Runs `engine --list-devices` as a child process (at most 30 s) and calls
// `done` on the caller's thread with the milliseconds from the call to the
// start, and the combined output (empty when the engine is missing or
// printed nothing).
void runDeviceListing(const QString& engine, QObject* context,
                      std::function<void(qint64 triggerMs, const QString& result)> done);
