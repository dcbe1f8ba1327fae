#include "engine_log.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace {

const QString kKeepKey = QStringLiteral("keep_engine_log");

QSettings guiSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("ZUVO"),
                     QStringLiteral("desktop-gui"));
}

} // namespace

bool keepEngineLog()
{
    return guiSettings().value(kKeepKey, false).toBool();
}

void setKeepEngineLog(bool keep)
{
    QSettings s = guiSettings();
    s.setValue(kKeepKey, keep);
    s.sync();
}

QString persistentEngineLogDir()
{
    return QDir(QDir::tempPath()).filePath(QStringLiteral("zuvo-logs"));
}

QString engineLogPath(const QString& name, std::unique_ptr<QTemporaryDir>* temporaryDirOwner)
{
    const QByteArray forced = qgetenv("ZUVO_ENGINE_LOG");
    if (!forced.isEmpty())
        return QString::fromLocal8Bit(forced);

    QString dir;
    if (!keepEngineLog() && temporaryDirOwner) {
        auto tmp = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/zuvo-log-XXXXXX"));
        if (tmp->isValid()) {
            dir = tmp->path();
            *temporaryDirOwner = std::move(tmp);
        }
    }
    if (dir.isEmpty()) {
        dir = persistentEngineLogDir();
        QDir().mkpath(dir);
    }
    return QDir(dir).filePath(name + QStringLiteral(".log"));
}
