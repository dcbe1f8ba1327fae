#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <cstdio>

#include "checker_texts.h"
#include "update_downloader.h"
#include "update_install.h"
#include "update_script.h"

#ifdef Q_OS_WIN
#include <qt_windows.h>
#include <shellapi.h>
#else
#include <QProcess>
#include <unistd.h>
#endif

namespace {

bool isWritableFolder(const QString& dir)
{
    QTemporaryFile probe(dir + QStringLiteral("/.zuvo-write-test-XXXXXX"));
    return probe.open();
}

QString tempRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

InstallOutcome launchFailed(long code, const InstallRequest& request)
{
    QString text = trChecker("提权启动更新失败 (错误码 %1)。载荷已下载并校验通过, 可手动更新:").arg(code);
    for (const QString& p : {request.overwritePath, request.installerPath}) {
        if (!p.isEmpty())
            text += QLatin1Char('\n') + QDir::toNativeSeparators(p);
    }
    return {false, text};
}

} // namespace

InstallOutcome launchUpdateScript(const InstallRequest& request, const InstallTarget& target)
{
    if (request.overwritePath.isEmpty() && request.installerPath.isEmpty())
        return {false, trChecker("没有可用的更新载荷")};

    UpdateScriptPlan plan;
    plan.pid = target.waitPid;
    plan.overwritePath = request.overwritePath;
    plan.installerPath = request.installerPath;
    plan.installDir = QDir::toNativeSeparators(target.installDir);
    plan.exeName = QFileInfo(target.programPath).fileName();
    plan.programPath = target.programPath;
    plan.overwriteSha256 = request.overwriteSha256;
    plannedPaths(request.members, &plan.writtenPaths, &plan.directoryPaths);
    plan.backupDir = UpdateDownloader::downloadFolder() + QStringLiteral("/backup");
    bool writable = isWritableFolder(target.installDir);
#ifndef Q_OS_WIN
    // A Debian package is installed by dpkg, which needs the administrator.
    if (request.installerPath.endsWith(QLatin1String(".deb")) && geteuid() != 0)
        writable = false;
#endif
    plan.elevate = !writable;

#ifdef Q_OS_WIN
    const QString scriptPath = tempRoot() + QStringLiteral("/zuvo-update.cmd");
    const QByteArray script = windowsUpdateScript(plan);
    const char* elevation = "needs elevation (runas)";
#else
    const QString scriptPath = tempRoot() + QStringLiteral("/zuvo-update/zuvo-update.sh");
    const QByteArray script = linuxUpdateScript(plan);
    const char* elevation = "needs elevation (pkexec)";
#endif
    QFile f(scriptPath);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(script) != script.size())
        return {false, trChecker("无法写更新脚本: %1").arg(QDir::toNativeSeparators(scriptPath))};
    f.close();
    std::fprintf(stderr, "[update] install dir %s -> %s\n", qPrintable(QDir::toNativeSeparators(target.installDir)),
                 writable ? "writable, no elevation" : elevation);
    std::fflush(stderr);

#ifdef Q_OS_WIN
    const std::wstring params = (QStringLiteral("/c \"") + QDir::toNativeSeparators(scriptPath) + QLatin1Char('"')).toStdWString();
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = SEE_MASK_NOASYNC;
    info.lpVerb = writable ? nullptr : L"runas";
    info.lpFile = L"cmd.exe";
    info.lpParameters = params.c_str();
    info.nShow = SW_HIDE;
    if (!ShellExecuteExW(&info))
        return launchFailed(static_cast<long>(GetLastError()), request);
#else
    QStringList args{scriptPath};
    if (!writable && QStandardPaths::findExecutable(QStringLiteral("pkexec")).isEmpty())
        return launchFailed(2, request); // no way to ask for the rights
    QProcess proc;
    proc.setProgram(QStringLiteral("/bin/sh"));
    proc.setArguments(args);
    const QString logPath = UpdateDownloader::downloadFolder() + QStringLiteral("/update.log");
    proc.setStandardOutputFile(logPath, QIODevice::Append);
    proc.setStandardErrorFile(logPath, QIODevice::Append);
    proc.setStandardInputFile(QProcess::nullDevice());
    if (!proc.startDetached())
        return launchFailed(static_cast<long>(proc.error()), request);
#endif
    return {true, trChecker("更新已下载并校验通过。程序将退出, 由系统完成更新后自动重新启动。")};
}
