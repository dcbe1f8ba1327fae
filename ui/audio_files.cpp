#include "audio_files.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

const QStringList& audioSuffixes()
{
    static const QStringList suffixes{
        QStringLiteral(".wav"), QStringLiteral(".flac"), QStringLiteral(".aiff"), QStringLiteral(".aif"),
        QStringLiteral(".m4a"), QStringLiteral(".mp4"),  QStringLiteral(".caf"),  QStringLiteral(".ape"),
        QStringLiteral(".wv"),  QStringLiteral(".tta"),  QStringLiteral(".dsf"),  QStringLiteral(".dff"),
        QStringLiteral(".dst"), QStringLiteral(".wsd"),  QStringLiteral(".iso"),
    };
    return suffixes;
}

bool isAudioFile(const QString& path)
{
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    if (dot < 0)
        return false;
    return audioSuffixes().contains(path.mid(dot).toLower());
}

QStringList scanAudioFiles(const QString& dir)
{
    QStringList found;
    QDirIterator it(dir, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QFileInfo info = it.fileInfo();
        if (info.isFile() && !info.isSymLink() && isAudioFile(path))
            found << info.absoluteFilePath();
    }
    return found;
}

QueueAddition planQueueAddition(const QStringList& queued, const QStringList& incoming)
{
    QSet<QString> seen;
    for (const QString& q : queued)
        seen.insert(QFileInfo(q).absoluteFilePath().toCaseFolded());
    QueueAddition result;
    for (const QString& path : incoming) {
        const QFileInfo info(path);
        const QString absolute = info.absoluteFilePath();
        const QString key = absolute.toCaseFolded();
        if (seen.contains(key)) {
            ++result.duplicates;
            continue;
        }
        if (!info.isFile())
            continue;
        seen.insert(key);
        result.added << absolute;
    }
    return result;
}
