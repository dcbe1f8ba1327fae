#pragma once
// Reading a preset file on top of a base record, for the per-file presets of
// the queue and the automation hook alike.

#include "conversion_settings.h"

#include <QString>

struct PresetFileResult {
    bool ok = false;
    ConversionSettings settings; // the base when !ok
    int unsupportedKeys = 0;
    QString error;               // why the file could not be used
};

PresetFileResult readPresetFile(const QString& path, const ConversionSettings& base);
