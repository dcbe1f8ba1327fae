#include "recording_probe.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTimer>

// The probe's texts belong to the main window's translation context.

ProbeVerdict readDeviceListing(const QString& out, const QString& err, int exitCode)
{
    ProbeVerdict v;
    for (const QString& line : out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString t = line.trimmed();
        if (t.startsWith(QLatin1Char('[')) && t.contains(QLatin1String("] ")))
            ++v.devices;
    }
    v.available = out.contains(QLatin1String("Available audio INPUT devices"));
    if (v.available) {
        v.detail = QCoreApplication::translate("MainWindow", "%1 个输入设备(已列在日志里)").arg(v.devices);
        return v;
    }
    const QString source = err.trimmed().isEmpty() ? out.trimmed() : err.trimmed();
    v.detail = source.split(QLatin1Char('\n')).last().trimmed();
    if (v.detail.isEmpty())
        v.detail = QCoreApplication::translate("MainWindow", "引擎退出码 = %1").arg(exitCode);
    return v;
}

RecordingProbe::RecordingProbe(QObject* parent)
    : QObject(parent)
{
}

bool RecordingProbe::isRunning() const
{
    return process_ && process_->state() != QProcess::NotRunning;
}

void RecordingProbe::run(const QString& engine)
{
    if (isRunning())
        return;
    if (engine.isEmpty()) {
        emit finished(false, QCoreApplication::translate(
                                 "MainWindow", "未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN"));
        return;
    }
    auto* process = new QProcess(this);
    process_ = process;
    auto* timer = new QTimer(process);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, process] {
        if (process->state() != QProcess::NotRunning)
            process->kill();
        emit finished(false, QCoreApplication::translate("MainWindow", "探测 30s 无响应, 已终止"));
    });
    connect(process, &QProcess::finished, this, [this, process, timer](int exitCode) {
        const bool timedOut = !timer->isActive();
        timer->stop();
        if (process_ == process)
            process_ = nullptr;
        process->deleteLater();
        if (timedOut)
            return; // the timeout already gave its verdict
        const QString out = QString::fromUtf8(process->readAllStandardOutput());
        const QString err = QString::fromUtf8(process->readAllStandardError());
        if (!out.trimmed().isEmpty())
            emit logLine(out.trimmed(), false);
        if (!err.trimmed().isEmpty())
            emit logLine(err.trimmed(), true);
        const ProbeVerdict v = readDeviceListing(out, err, exitCode);
        emit finished(v.available, v.detail);
    });
    connect(process, &QProcess::errorOccurred, this, [this, process, timer](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return; // the finish handler comes
        timer->stop();
        if (process_ == process)
            process_ = nullptr;
        process->deleteLater();
        emit finished(false, process->errorString());
    });
    timer->start(kTimeoutMs);
    process->start(engine, {QStringLiteral("--list-devices")});
}
