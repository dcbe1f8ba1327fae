#pragma once
#include <QString>

// Compares dotted versions on their first three parts only; a missing part or
// one that is not a plain decimal number counts as 0. Returns -1, 0 or 1.
int compareVersions(const QString& a, const QString& b);

// This program's own major.minor.patch.
QString appVersion();

// The manifest's platform key for this build: "windows-x64" or "linux-x64".
QString updatePlatformKey();
