#include "engine_discovery.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString fromEnvironmentPath(const char* variable)
{
    const QByteArray raw = qgetenv(variable);
    if (raw.isEmpty())
        return {};
    const QString path = QString::fromLocal8Bit(raw); // deliberately not trimmed
    QFileInfo info(path);
    return info.exists() ? info.absoluteFilePath() : QString();
}

QString findExecutable(const char* envVariable, const QString& bareName, bool selfAsFallback)
{
    if (QString p = fromEnvironmentPath(envVariable); !p.isEmpty())
        return p;

    const QString fileName = executableFileName(bareName);
    const QString besideUs = QCoreApplication::applicationDirPath() + QLatin1Char('/') + fileName;
    if (QFileInfo::exists(besideUs))
        return besideUs;

    if (QString onPath = QStandardPaths::findExecutable(fileName); !onPath.isEmpty())
        return onPath;

    if (selfAsFallback) {
        // The front-end runs as the engine when its first argument starts with "-".
        const QString self = QCoreApplication::applicationFilePath();
        if (!self.isEmpty() && QFileInfo::exists(self))
            return self;
    }
    return {};
}

} // namespace

QString executableFileName(const QString& bareName)
{
#ifdef Q_OS_WIN
    return bareName + QStringLiteral(".exe");
#else
    return bareName;
#endif
}

QString findEngine()
{
    return findExecutable("ZUVO_ENGINE_BIN", QStringLiteral("ZuvoEngine"), true);
}

QString findPlayer()
{
    return findExecutable("ZUVO_PLAYER_BIN", QStringLiteral("ZuvoPlayerEngine"), false);
}
