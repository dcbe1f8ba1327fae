#include "player_args.h"

#include <QRegularExpression>

QList<QString> buildPlayerArgs(const QString& file, const QString& device, bool stream)
{
    QList<QString> args { QStringLiteral("-i"), file };
    if (stream)
        args << QStringLiteral("-stream");
    if (!device.trimmed().isEmpty())
        args << QStringLiteral("-dev") << device;
    return args;
}

QString quotedArgs(const QList<QString>& args)
{
    QStringList quoted;
    for (const QString& a : args)
        quoted << QLatin1Char('"') + a + QLatin1Char('"');
    return quoted.join(QLatin1Char(' '));
}

bool parsePlayerPosition(const QString& line, double* position, double* duration)
{
    static const QRegularExpression re(
        QStringLiteral("^\\[PROGRESS\\] pos=(\\d+(?:\\.\\d+)?) dur=(\\d+(?:\\.\\d+)?)\\s*$"));
    const QRegularExpressionMatch m = re.match(line);
    if (!m.hasMatch())
        return false;
    // toDouble on a QString is locale-independent: the player writes C numbers.
    bool okPos = false, okDur = false;
    const double p = m.captured(1).toDouble(&okPos);
    const double d = m.captured(2).toDouble(&okDur);
    if (!okPos || !okDur)
        return false;
    *position = p;
    *duration = d;
    return true;
}
