#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

// What an update script needs to know; paths as the program sees them.
struct UpdateScriptPlan {
    qint64 pid = 0;             // the program that must exit first
    QString overwritePath;      // downloaded overwrite payload, or empty
    QString installerPath;      // downloaded installer, or empty
    QString installDir;         // folder the payload is placed over
    QString exeName;            // program file name (Windows: inside installDir)
    // Linux only
    QString programPath;        // program to restart
    QString overwriteSha256;    // checked again right before unpacking
    QStringList writtenPaths;   // every path the archive writes, relative, parents first
    QStringList directoryPaths; // the subset of writtenPaths that are folders
    QString backupDir;          // where replaced files are kept until the end
    bool elevate = false;       // install step through pkexec
};

// The Windows command script, CR LF line ends.
QByteArray windowsUpdateScript(const UpdateScriptPlan& plan);

// The POSIX shell script: same order of steps, plus a backup of every
// replaced file and its restoration when anything fails.
QByteArray linuxUpdateScript(const UpdateScriptPlan& plan);

// Quotes a value for a POSIX shell (single quotes, embedded ones escaped).
QString shellQuote(const QString& value);
