#include "engine_capabilities.h"

#include <QProcess>
#include <QSet>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

QStringList parseRefusedOptions(const QByteArray& listing)
{
    QStringList refused;
    for (const QByteArray& raw : listing.split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith("refused "))
            refused.append(QString::fromUtf8(line.mid(8).trimmed()));
    }
    return refused;
}

QStringList parseSupportedOptions(const QByteArray& listing)
{
    QStringList supported;
    for (const QByteArray& raw : listing.split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith("supports "))
            supported.append(QString::fromUtf8(line.mid(9).trimmed()));
    }
    return supported;
}

QStringList refusedOptionsIn(const QStringList& args, const QStringList& refused)
{
    // Free texts a user types (tags, paths) are values, never options, even
    // when one happens to read like an option.
    static const QSet<QString> textValued = {
        QStringLiteral("-i"),     QStringLiteral("--artist"),  QStringLiteral("--title"),
        QStringLiteral("--album"), QStringLiteral("--genre"),  QStringLiteral("--year"),
        QStringLiteral("--comment"), QStringLiteral("--log-file"),
    };
    const QSet<QString> set(refused.begin(), refused.end());
    QStringList found;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (textValued.contains(a)) {
            ++i;
            continue;
        }
        if (a.startsWith(QLatin1Char('-')) && set.contains(a) && !found.contains(a))
            found.append(a);
    }
    return found;
}

EngineCapabilityProbe::EngineCapabilityProbe(QObject* parent)
    : QObject(parent)
{
}

EngineCapabilityProbe::~EngineCapabilityProbe()
{
    // Nothing may reach the window while it is being taken down.
    blockSignals(true);
    if (process_)
        process_->disconnect(this);
    if (process_ && process_->state() != QProcess::NotRunning) {
        process_->kill();
        process_->waitForFinished(1000);
    }
}

void EngineCapabilityProbe::start(const QString& enginePath)
{
    if (enginePath.isEmpty() || enginePath == enginePath_)
        return;
    enginePath_ = enginePath;
    known_ = false;
    refused_.clear();
    supported_.clear();
    delete process_;
    process_ = new QProcess(this);
    process_->setProcessChannelMode(QProcess::SeparateChannels);
    connect(process_, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        finish(status == QProcess::NormalExit ? code : -1);
    });
#ifdef Q_OS_WIN
    // A console program: without this the query flashes a console window.
    process_->setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* args) { args->flags |= CREATE_NO_WINDOW; });
#endif
    process_->start(enginePath, {QStringLiteral("--capabilities")});
}

void EngineCapabilityProbe::finish(int exitCode)
{
    if (known_ || !process_)
        return;
    // An engine without the listing ends with a usage error: nothing is known then.
    if (exitCode == 0) {
        const QByteArray listing = process_->readAllStandardOutput();
        refused_ = parseRefusedOptions(listing);
        supported_ = parseSupportedOptions(listing);
        known_ = true;
        emit listingKnown();
    }
}

bool EngineCapabilityProbe::waitUntilKnown(int ms)
{
    if (!known_ && process_ && process_->state() != QProcess::NotRunning) {
        if (process_->waitForFinished(ms))
            finish(process_->exitStatus() == QProcess::NormalExit ? process_->exitCode() : -1);
    }
    return known_;
}
