#pragma once
#include <QString>

// A payload's file name lands in the download folder and in generated
// scripts, so only plain single names are accepted: no separators, no "..",
// no drive or absolute forms, no device names, no characters a command
// interpreter would expand.
bool isSafePayloadName(const QString& name);

// The name to store a payload under: its own name, else the last part of its URL.
QString payloadFileName(const QString& name, const QString& url);
