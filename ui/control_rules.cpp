#include "control_rules.h"

#include <QFileInfo>

DstOutputFix dstOutputFix(const QString& outputFolder, const QString& format, const QString& outputFile)
{
    DstOutputFix fix;
    if (!outputFolder.trimmed().isEmpty() && format != QLatin1String("dff")) {
        fix.kind = DstOutputFix::SetFormat;
        return fix;
    }
    // Every other case goes through the output file, also when it already
    // ends in .dff: the user is told either way where DST output goes.
    fix.kind = DstOutputFix::SetFile;
    const QString file = outputFile.trimmed();
    if (file.isEmpty()) {
        fix.file = QStringLiteral("output.dff");
        return fix;
    }
    const QString suffix = QFileInfo(file).suffix();
    fix.file = (suffix.isEmpty() ? file : file.left(file.size() - suffix.size() - 1)) + QStringLiteral(".dff");
    return fix;
}
