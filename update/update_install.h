#pragma once
#include <QList>
#include <QString>

#include "tar_listing.h"

class QFile;

// The installation an update is applied to.
struct InstallTarget {
    QString programPath; // executable restarted after the update
    QString installDir;  // folder the overwrite payload is unpacked over
    qint64 waitPid = 0;  // process that must exit before anything changes

    // This program: on Linux the folder above "bin" (the package layout's
    // prefix), elsewhere the executable's own folder.
    static InstallTarget forThisProgram();
    static QString installDirFor(const QString& programPath);
};

// Verified payloads ready to install.
struct InstallRequest {
    QString overwritePath;
    QString overwriteSha256;
    QList<TarMember> members;
    QString installerPath;
};

struct InstallOutcome {
    bool ok = false;
    QString message;
};

// On Linux the overwrite payload must be a tar archive whose every member
// stays inside the installation folder; checked before anything is written.
// Empty string when fine, else the user-facing reason.
QString checkOverwritePayload(QFile& payload, QList<TarMember>* members);

// Writes the update script beside the download folder and starts it,
// elevated when the installation folder is not writable.
InstallOutcome launchUpdateScript(const InstallRequest& request, const InstallTarget& target);

// The relative paths the archive writes, each folder before what it holds.
void plannedPaths(const QList<TarMember>& members, QStringList* written, QStringList* folders);
