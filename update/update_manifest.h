#pragma once
#include <QByteArray>
#include <QString>

#include "update_info.h"

// The outcome of reading a manifest against the installed version.
struct ManifestVerdict {
    enum Kind { Failed, AlreadyLatest, Available };
    Kind kind = Failed;
    QString message;       // Failed: the user-facing reason
    QString localVersion;
    QString remoteVersion;
    UpdateInfo info;       // Available: the release and its payloads
};

// Reads a manifest (already known to be authentic) and decides whether it
// offers something newer than `localVersion` for `platformKey`.
ManifestVerdict parseUpdateManifest(const QByteArray& json, const QString& localVersion,
                                    const QString& platformKey);
