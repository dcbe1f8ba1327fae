#pragma once
// Whether the engine really left a readable output behind: an exit code of 0
// alone does not make a conversion a success. Only headers are read (DSF,
// DSDIFF, WAV/RF64/W64, FLAC); every size is checked against the file before
// it is used, and chunk walks only move forward.

#include <QDateTime>
#include <QString>

struct FileStamp {
    bool exists = false;
    qint64 size = 0;
    QDateTime modified;
    bool operator==(const FileStamp&) const = default;
};

FileStamp fileStamp(const QString& path);

struct OutputCheck {
    enum Problem { None, Missing, NotWritten, Empty, Unreadable };
    Problem problem = None;
    QString reason; // for Unreadable: what is wrong with the header
};

// `before` is the stamp taken when the run started: a file that is still
// exactly as it was then was not written by this run.
OutputCheck checkOutputFile(const QString& path, const FileStamp& before);

// The header checks alone, by the path's extension; an empty text means the
// header reads. Other extensions only need to be non-empty.
QString outputHeaderProblem(const QString& path);
