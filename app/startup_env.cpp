#include "startup_env.h"

#include <QDir>
#include <QSettings>
#include <QStringList>

bool isEngineInvocation(int argc, const char* const* argv)
{
    return argc >= 2 && argv[1] && argv[1][0] == '-';
}

QString applySettingsDirFromEnvironment()
{
    const QString dir = QString::fromLocal8Bit(qgetenv("ZUVO_SETTINGS_DIR")).trimmed();
    if (dir.isEmpty())
        return {};
    QDir().mkpath(dir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir);
    return dir;
}

int environmentInt(const char* variable)
{
    bool ok = false;
    const int v = qEnvironmentVariable(variable).trimmed().toInt(&ok, 10);
    return ok ? v : 0;
}

QStringList splitAutorunValue(const QString& value)
{
    return value.split(QLatin1Char('|'), Qt::SkipEmptyParts);
}
