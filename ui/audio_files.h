#pragma once
#include <QString>
#include <QStringList>

// Whether the path's suffix (from its last ".", case-insensitive) is one of
// the audio formats the queue accepts.
bool isAudioFile(const QString& path);
const QStringList& audioSuffixes(); // ".wav", ".flac", …

// Every audio file below `dir`, recursively, regular files only, symbolic
// links not followed, as absolute paths in the iterator's order.
QStringList scanAudioFiles(const QString& dir);

struct QueueAddition {
    QStringList added;   // absolute paths, in order
    int duplicates = 0;
};

// Which of `incoming` join a queue that already holds `queued`: absolute
// paths, duplicates found by case-folded comparison (also within
// `incoming`), only existing regular files.
QueueAddition planQueueAddition(const QStringList& queued, const QStringList& incoming);
