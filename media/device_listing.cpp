#include "device_listing.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <QVariant>
#include <memory>

void runDeviceListing(const QString& engine, QObject* context,
                      std::function<void(qint64, const QString&)> done)
{
    QElapsedTimer clock;
    clock.start();
    if (engine.isEmpty()) {
        QTimer::singleShot(0, context, [done] { done(0, QString()); });
        return;
    }
    auto* process = new QProcess(context);
    auto* limit = new QTimer(process);
    limit->setSingleShot(true);
    process->setProcessChannelMode(QProcess::MergedChannels);
    const auto finish = std::make_shared<bool>(false);
    const auto report = [process, done, finish](qint64 triggerMs) {
        if (*finish)
            return;
        *finish = true;
        done(triggerMs, QString::fromUtf8(process->readAll()));
        process->deleteLater();
    };
    QObject::connect(process, &QProcess::started, process, [process, clock] {
        process->setProperty("triggerMs", clock.elapsed());
    });
    QObject::connect(process, &QProcess::finished, process,
                     [process, report] { report(process->property("triggerMs").toLongLong()); });
    QObject::connect(process, &QProcess::errorOccurred, process, [process, report](QProcess::ProcessError e) {
        if (e == QProcess::FailedToStart)
            report(0);
    });
    QObject::connect(limit, &QTimer::timeout, process, [process] { process->kill(); });
    limit->start(30000);
    process->start(engine, {QStringLiteral("--list-devices")});
}
