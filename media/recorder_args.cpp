#include "recorder_args.h"

QList<QString> buildRecorderArgs(const RecorderSettings& s, const QString& engineLog, const QString& output)
{
    QList<QString> a;
    if (!engineLog.isEmpty())
        a << QStringLiteral("--log-file") << engineLog;
    if (s.directDsd)
        a << QStringLiteral("--record-dsd") << QStringLiteral("--dsd-mode") << s.dsdMode;
    else
        a << QStringLiteral("--record");
    const QString device = s.device.trimmed();
    // Only the exact lower-case name is the default device; "Default" is a name like any other.
    if (!device.isEmpty() && device != QLatin1String("default"))
        a << QStringLiteral("--record-device") << device;
    if (s.channels >= 1)
        a << QStringLiteral("--record-channels") << QString::number(s.channels);
    if (s.durationSeconds >= 1)
        a << QStringLiteral("--record-duration") << QString::number(s.durationSeconds);
    if (s.monitor)
        a << QStringLiteral("--record-monitor");
    if (s.exclusive)
        a << QStringLiteral("--record-exclusive");
    if (s.headroomDb > 0)
        a << QStringLiteral("--record-headroom") << QString::number(s.headroomDb, 'f', 1);
    if (s.bufferFrames != kEngineDefaultRecordBuffer)
        a << QStringLiteral("--record-buffer") << QString::number(s.bufferFrames);
    if (s.pdfReport)
        a << QStringLiteral("-pdfrp");
    if (s.sampleRate >= 1)
        a << QStringLiteral("--record-samplerate") << QString::number(s.sampleRate);
    const QString monitorDevice = s.monitorDevice.trimmed();
    if (!monitorDevice.isEmpty())
        a << QStringLiteral("--record-monitor-device") << monitorDevice;
    a << output;
    return a;
}

bool isDsfPath(const QString& path)
{
    return path.endsWith(QLatin1String(".dsf"), Qt::CaseInsensitive);
}
