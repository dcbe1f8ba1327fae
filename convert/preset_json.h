#pragma once
// The preset file form of a ConversionSettings record. The key set and order
// are shared with the sister front-end, so files move between the two as they
// stand. Only the preset-carried fields are written; panel-only fields, naming
// and inputs never are.

#include "conversion_settings.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

// Record -> JSON object. QJsonObject keeps its keys sorted; use presetToJson()
// for the file text, which keeps the preset key order.
QJsonObject presetToJsonObject(const ConversionSettings& settings);

// Record -> the UTF-8 text of the preset file: an indented JSON document laid
// out like QJsonDocument::Indented, but with the keys in preset key order
// (bands as centerFreq, gainDB, bandwidth, bwType; advanced by option name).
QByteArray presetToJson(const ConversionSettings& settings);

struct PresetReadResult {
    ConversionSettings settings;
    int unsupportedKeys = 0;  // keys this build does not read
};

// JSON object -> record, starting from *base when given, else from a fresh
// record (so a missing key takes its default). Unknown keys and
// "keep_harmonics" are counted, not applied; bands with centerFreq <= 0 are
// dropped; a value of the wrong JSON type reads as 0, false or empty text.
PresetReadResult presetFromJson(const QJsonObject& object, const ConversionSettings* base = nullptr);

// The preset keys in written order (57 keys, "keep_harmonics" and "advanced" included).
const QStringList& presetKeyOrder();
