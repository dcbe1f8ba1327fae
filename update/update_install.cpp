#include "update_install.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryFile>

#include "checker_texts.h"

InstallTarget InstallTarget::forThisProgram()
{
    InstallTarget t;
    t.programPath = QCoreApplication::applicationFilePath();
    t.installDir = installDirFor(t.programPath);
    t.waitPid = QCoreApplication::applicationPid();
    return t;
}

QString InstallTarget::installDirFor(const QString& programPath)
{
    const QDir dir = QFileInfo(programPath).absoluteDir();
#ifndef Q_OS_WIN
    if (dir.dirName() == QLatin1String("bin")) {
        QDir up = dir;
        if (up.cdUp())
            return up.absolutePath();
    }
#endif
    return dir.absolutePath();
}

QString checkOverwritePayload(QFile& payload, QList<TarMember>* members)
{
#ifdef Q_OS_WIN
    Q_UNUSED(payload);
    Q_UNUSED(members);
    return {};
#else
    if (!payload.seek(0))
        return trChecker("无法读取下载的文件: %1").arg(payload.fileName());
    QString why = readTarListing(payload, members);
    if (why.isEmpty())
        why = checkTarMembers(*members);
    if (!why.isEmpty())
        return trChecker("更新包的内容不安全或已损坏, 已拒绝 (%1)").arg(why);
    return {};
#endif
}

void plannedPaths(const QList<TarMember>& members, QStringList* written, QStringList* folders)
{
    QSet<QString> seen;
    auto add = [&](const QString& path, bool folder) {
        if (path.isEmpty() || seen.contains(path))
            return;
        seen.insert(path);
        written->append(path);
        if (folder)
            folders->append(path);
    };
    for (const TarMember& m : members) {
        const QString path = normalisedMemberPath(m.path);
        const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        QString prefix;
        for (int i = 0; i + 1 < parts.size(); ++i) {
            prefix += (i ? QStringLiteral("/") : QString()) + parts[i];
            add(prefix, true);
        }
        add(path, m.type == TarMember::Directory);
    }
}
