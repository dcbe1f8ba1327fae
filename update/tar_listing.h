#pragma once
#include <QList>
#include <QString>

class QIODevice;

// One member of a tar archive as it will be written on extraction.
struct TarMember {
    enum Type { File, Directory, Symlink, Hardlink };
    QString path;     // as stored, e.g. "./bin/ZuvoAudioTools"
    Type type = File;
    QString link;     // target of a link
    qint64 size = 0;
};

// Walks the headers of a ustar/GNU/pax archive without extracting anything.
// Every size is checked against the device before the read position moves,
// and the walk only moves forward. Returns an empty string on success, else
// a short English reason (shown inside a translated message).
QString readTarListing(QIODevice& device, QList<TarMember>* members);

// Decides whether extracting `members` into a folder can only write inside
// it: relative paths without "..", links that stay inside, no member that
// passes through a link the archive itself creates. Empty string: safe.
QString checkTarMembers(const QList<TarMember>& members);

// The member path without empty or "." parts; "" is the folder itself.
QString normalisedMemberPath(const QString& path);
