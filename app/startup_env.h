#pragma once
#include <QString>

// True when the command line asks for the engine rather than the window:
// the first argument after the program name begins with "-".
bool isEngineInvocation(int argc, const char* const* argv);

// Applies ZUVO_SETTINGS_DIR (trimmed; blank counts as absent): creates the
// directory and makes it the user-scope home of INI and native settings.
// Returns the directory used, or an empty string.
QString applySettingsDirFromEnvironment();

// Decimal integer from an environment variable; 0 when absent or not a number.
int environmentInt(const char* variable);

// Splits an autorun value at "|" dropping empty parts.
QStringList splitAutorunValue(const QString& value);
