#include "download_folder.h"

#include <QDir>
#include <QFileInfo>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>
#endif

bool prepareDownloadFolder(const QString& folder, QString* why)
{
    if (!QDir().mkpath(folder)) {
        *why = QStringLiteral("cannot create %1").arg(folder);
        return false;
    }
#ifndef Q_OS_WIN
    // The temporary folder is shared between users; a folder of the same name
    // made by someone else could be used to swap a verified payload.
    struct stat st {};
    const QByteArray path = QFile::encodeName(folder);
    if (lstat(path.constData(), &st) != 0 || !S_ISDIR(st.st_mode) || st.st_uid != geteuid()) {
        *why = QStringLiteral("%1 is not a private folder of this user").arg(folder);
        return false;
    }
    if ((st.st_mode & 077) != 0 && chmod(path.constData(), 0700) != 0) {
        *why = QStringLiteral("cannot make %1 private").arg(folder);
        return false;
    }
#endif
    return true;
}
