#include "update_version.h"

#include <QStringList>

#ifndef ZUVO_UPDATE_APP_VERSION
#error "ZUVO_UPDATE_APP_VERSION must be defined by the build"
#endif

int compareVersions(const QString& a, const QString& b)
{
    const QStringList pa = a.split(QLatin1Char('.'));
    const QStringList pb = b.split(QLatin1Char('.'));
    auto part = [](const QStringList& parts, int i) -> qlonglong {
        if (i >= parts.size())
            return 0;
        bool ok = false;
        const qlonglong v = parts[i].toLongLong(&ok, 10);
        return ok ? v : 0;
    };
    for (int i = 0; i < 3; ++i) {
        const qlonglong x = part(pa, i);
        const qlonglong y = part(pb, i);
        if (x != y)
            return x < y ? -1 : 1;
    }
    return 0;
}

QString appVersion()
{
    return QStringLiteral(ZUVO_UPDATE_APP_VERSION);
}

QString updatePlatformKey()
{
#ifdef Q_OS_WIN
    return QStringLiteral("windows-x64");
#else
    return QStringLiteral("linux-x64");
#endif
}
