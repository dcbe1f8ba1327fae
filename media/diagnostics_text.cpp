#include "diagnostics_text.h"

#include <QCoreApplication>
#include <QFile>

QString diagnosticsResultText(const QString& cmdline, const QString& out, const QString& err, const QString& probeLog,
                              int exitCode)
{
    QString text = out;
    if (!err.trimmed().isEmpty())
        text += QStringLiteral("\n[stderr]\n") + err;
    // Some engines write only to their log file.
    if (text.trimmed().isEmpty() && !probeLog.isEmpty()) {
        QFile f(probeLog);
        if (f.open(QIODevice::ReadOnly))
            text = QString::fromUtf8(f.readAll());
    }
    if (text.trimmed().isEmpty())
        text = QCoreApplication::translate("MainWindow", "(引擎没有输出)");
    return QCoreApplication::translate("MainWindow", "$ %1\n\n%2\n\n退出码 = %3").arg(cmdline, text).arg(exitCode);
}
