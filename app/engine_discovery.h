#pragma once
#include <QString>

// Absolute path of the conversion engine, or empty. Looked up again by every
// caller so a changed environment or a newly placed file takes effect at once.
QString findEngine();
// Absolute path of the player engine, or empty (the front-end cannot stand in for it).
QString findPlayer();

// Platform file name of an engine executable ("ZuvoEngine" -> "ZuvoEngine.exe" on Windows).
QString executableFileName(const QString& bareName);
