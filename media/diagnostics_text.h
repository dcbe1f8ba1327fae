#pragma once
// What the About / Diagnostics dialog shows for one engine run: the engine's
// standard output, its standard error under a marker, the probe log when the
// engine said nothing on either stream, and the exit code. Pure text.

#include <QString>

// `probeLog` is the path the run's --log-file named (empty when none); it is
// only read when both streams were empty.
QString diagnosticsResultText(const QString& cmdline, const QString& out, const QString& err, const QString& probeLog,
                              int exitCode);
