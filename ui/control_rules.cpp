#include "control_rules.h"

#include <QFileInfo>

DstOutputFix dstOutputFix(const QString& outputFolder, const QString& format, const QString& outputFile)
{
    DstOutputFix fix;
    if (!outputFolder.trimmed().isEmpty()) {
        if (format != QLatin1String("dff"))
            fix.kind = DstOutputFix::SetFormat;
        return fix;
    }
    const QString file = outputFile.trimmed();
    if (file.isEmpty()) {
        fix.kind = DstOutputFix::SetFile;
        fix.file = QStringLiteral("output.dff");
        return fix;
    }
    const QString suffix = QFileInfo(file).suffix();
    if (suffix.compare(QLatin1String("dff"), Qt::CaseInsensitive) == 0)
        return fix;
    fix.kind = DstOutputFix::SetFile;
    fix.file = (suffix.isEmpty() ? file : file.left(file.size() - suffix.size() - 1)) + QStringLiteral(".dff");
    return fix;
}
