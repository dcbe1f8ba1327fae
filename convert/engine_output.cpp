#include "engine_output.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

bool isProgressLine(const QString& line, bool isStderr)
{
    if (isStderr)
        return false;
    return line.contains(QLatin1String("[PROGRESS]")) || line.contains(QStringLiteral("进度:"));
}

std::optional<double> progressPercent(const QString& line, bool isStderr)
{
    if (!isProgressLine(line, isStderr))
        return std::nullopt;
    static const QRegularExpression number(QStringLiteral("\\d+(?:\\.\\d+)?"));
    const QRegularExpressionMatch m = number.match(line);
    if (!m.hasMatch())
        return std::nullopt;
    return m.captured(0).toDouble();
}

int progressPerMille(double percent, int index, int total)
{
    double fraction = std::clamp(percent / 100.0, 0.0, 1.0);
    if (total > 1)
        fraction = std::clamp((index + fraction) / total, 0.0, 1.0);
    return static_cast<int>(fraction * 1000.0);
}

QStringList engineLogTail(const QString& path)
{
    constexpr qint64 kTailBytes = 65536;
    constexpr int kMaxLines = 120;
    if (path.isEmpty())
        return {};
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadOnly))
        return {};
    if (file.size() > kTailBytes) {
        file.seek(file.size() - kTailBytes);
        file.readLine(); // the rest of a line cut by the seek
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.size() > kMaxLines)
        lines = lines.mid(lines.size() - kMaxLines);
    for (QString& line : lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        line = line.trimmed();
    }
    return lines;
}
