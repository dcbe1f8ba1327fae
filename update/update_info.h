#pragma once
#include <QString>
#include <QtGlobal>

// One downloadable file named by the update manifest.
struct UpdatePayload {
    QString name;
    QString url;
    qint64 size = 0;
    QString sha256;

    // Without an address or a checksum the file can be neither fetched nor trusted.
    bool isUsable() const { return !url.isEmpty() && !sha256.isEmpty(); }
};

// What the manifest says about the newest release for this machine.
struct UpdateInfo {
    QString version;
    QString released;
    QString notes;
    UpdatePayload overwrite;
    UpdatePayload installer;
};
