#include "update_script.h"

#include <QFileInfo>

namespace {

// The script runs on Windows whatever built it, so separators are converted
// here rather than by the host's notion of native.
QString winPath(const QString& path)
{
    QString p = path;
    p.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return p;
}

} // namespace

QByteArray windowsUpdateScript(const UpdateScriptPlan& plan)
{
    const QString dir = winPath(plan.installDir);
    const QString pid = QString::number(plan.pid);
    QStringList lines;
    lines << QStringLiteral("@echo off") << QStringLiteral(":wait")
          << QStringLiteral("tasklist /FI \"PID eq %1\" 2>nul | find \"%1\" >nul && (ping -n 2 127.0.0.1 >nul & goto wait)").arg(pid);
    if (!plan.overwritePath.isEmpty()) {
        const QString payload = winPath(plan.overwritePath);
        if (QFileInfo(plan.overwritePath).suffix().compare(QLatin1String("zip"), Qt::CaseInsensitive) == 0)
            lines << QStringLiteral("powershell -NoProfile -ExecutionPolicy Bypass -Command \"Expand-Archive -Force -LiteralPath '%1' -DestinationPath '%2'\"")
                         .arg(payload, dir);
        else
            lines << QStringLiteral("copy /Y \"%1\" \"%2\\\" >nul").arg(payload, dir);
        lines << QStringLiteral("if errorlevel 1 goto install")
              << QStringLiteral("start \"\" \"%1\\%2\"").arg(dir, plan.exeName)
              << QStringLiteral(" exit /b");
    }
    lines << QStringLiteral(":install");
    if (!plan.installerPath.isEmpty())
        lines << QStringLiteral("\"%1\" /S").arg(winPath(plan.installerPath));
    lines << QStringLiteral("if errorlevel 1 (")
          << QStringLiteral("  echo update did not finish; the program was NOT restarted > \"%1\\update-failed.txt\"").arg(dir)
          << QStringLiteral("  exit /b 1") << QStringLiteral(")")
          << QStringLiteral("start \"\" \"%1\\%2\"").arg(dir, plan.exeName);
    return (lines.join(QLatin1String("\r\n")) + QLatin1String("\r\n")).toUtf8();
}
