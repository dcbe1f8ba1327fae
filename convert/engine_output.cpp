#include "engine_output.h"

#include <QCoreApplication>
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

QStringList engineLogTail(const QString& path, qint64 fromOffset)
{
    constexpr qint64 kTailBytes = 65536;
    constexpr int kMaxLines = 120;
    if (path.isEmpty())
        return {};
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadOnly))
        return {};
    const qint64 size = file.size();
    if (fromOffset < 0 || fromOffset > size)
        fromOffset = 0; // replaced or cut short by someone else: all of it is this run's
    if (size - fromOffset > kTailBytes) {
        file.seek(size - kTailBytes);
        file.readLine(); // the rest of a line cut by the seek
    } else {
        file.seek(fromOffset);
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

std::optional<QString> LongLineCutter::feed(const QString& piece)
{
    const bool complete = piece.endsWith(QLatin1Char('\n'));
    if (!open_ && complete && piece.size() <= kMaxShown + 1)
        return piece; // the usual case: a whole line of ordinary length
    const qsizetype body = complete ? piece.size() - 1 : piece.size();
    const qsizetype room = std::max<qsizetype>(0, kMaxShown - head_.size());
    const qsizetype kept = std::min(room, body);
    head_.append(QStringView(piece).first(kept));
    dropped_ += body - kept;
    open_ = !complete;
    if (open_)
        return std::nullopt;
    return take();
}

std::optional<QString> LongLineCutter::finish()
{
    if (!open_)
        return std::nullopt;
    return take();
}

QString LongLineCutter::take()
{
    QString line = std::move(head_);
    if (dropped_ > 0)
        line += QCoreApplication::translate("ConversionQueue", " …(这一行太长, 后面 %1 个字符没有显示)").arg(dropped_);
    line += QLatin1Char('\n');
    head_.clear();
    dropped_ = 0;
    open_ = false;
    return line;
}
