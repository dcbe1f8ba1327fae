#pragma once
// The player's command line for auditioning a file. Pure: no widgets, no
// lookups; the device name goes through exactly as the user typed it.

#include <QList>
#include <QString>

// "-i FILE", then "-stream" when streaming, then "-dev NAME" when the trimmed
// name is not empty.
QList<QString> buildPlayerArgs(const QString& file, const QString& device, bool stream);

// The arguments as the log shows them: each in double quotes, joined by spaces.
QString quotedArgs(const QList<QString>& args);

// "[PROGRESS] pos=12.0 dur=180.5" from the player: position and duration in
// seconds. False for any other line.
bool parsePlayerPosition(const QString& line, double* position, double* duration);
