#include "line_carry.h"

QList<QString> LineCarry::take(const QByteArray& chunk)
{
    QList<QString> lines;
    pending_.append(chunk);
    qsizetype start = 0;
    for (qsizetype lf = pending_.indexOf('\n'); lf >= 0; lf = pending_.indexOf('\n', start)) {
        QString line = QString::fromUtf8(pending_.constData() + start, lf - start);
        line.remove(QLatin1Char('\r'));
        lines.append(line);
        start = lf + 1;
    }
    pending_.remove(0, start);
    return lines;
}
