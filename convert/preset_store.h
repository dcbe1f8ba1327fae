#pragma once
// Preset files on disk: where they are looked for, where new ones go, and
// reading, writing and deleting them. No widgets: the dialogs turn the
// results into boxes and log lines.

#include <QList>
#include <QString>
#include <QStringList>

#include "conversion_settings.h"

struct PresetEntry {
    QString name;  // the file's complete base name
    QString path;  // absolute
};

struct PresetLoad {
    enum Status { Ok, CannotRead, ParseError };
    Status status = Ok;
    QString error;          // parser's text for ParseError
    ConversionSettings settings;
    int unsupportedKeys = 0;
};

struct PresetSave {
    enum Status { Ok, InvalidName, CannotWrite };
    Status status = Ok;
    QString path;   // where it was (or would have been) written
    QString error;  // the reason, for the user
};

class PresetStore {
public:
    // `programDir`: the folder of the executable; `workingDir`: the current
    // directory; `userDataDir`: the per-user data folder used when the
    // program folder cannot be written (an installed program).
    PresetStore(QString programDir, QString workingDir, QString userDataDir);

    // The store of this process: the application's folder, the current
    // directory and the per-user application data folder.
    static PresetStore forApplication();

    // Candidate folders in search order; only existing ones are searched.
    QStringList candidateDirs() const;
    // The folder new presets are written to (created when missing). The
    // program's own "presets" folder when it is writable (or can be made),
    // otherwise the per-user data folder's "presets".
    QString writeDir() const;

    // "*.json" of every existing candidate folder, in folder order; a name
    // already found in an earlier folder is skipped.
    QList<PresetEntry> list() const;

    // The file a save of `name` goes to: the write folder, the name, and
    // ".json" unless the name already ends with it.
    QString pathForName(const QString& name) const;

    // Writes atomically: a crash or a full disk leaves the old file intact.
    PresetSave save(const QString& name, const ConversionSettings& settings) const;

    // Without `base` a missing key takes its default.
    static PresetLoad load(const QString& path, const ConversionSettings* base = nullptr);
    static bool remove(const QString& path);

    // Empty when `name` (trimmed) can be a preset file name on every
    // platform we run on; otherwise the reason.
    static QString nameProblem(const QString& name);

private:
    QString programDir_;
    QString workingDir_;
    QString userDataDir_;
};
