#include "engine_inproc_session.h"

#include <QCoreApplication>

namespace {

constexpr int kCollectWaitMs = 500;

} // namespace

EngineInProcSession::EngineInProcSession(zuvo::EngineEntryFn entry, zuvo::InProcRunner::ControlChannel channel)
    : runner_(std::make_unique<zuvo::InProcRunner>(entry, channel))
{
}

EngineInProcSession::~EngineInProcSession()
{
    // The runner first: a run that is still going keeps only its own state,
    // and the reader finds the callbacks emptied by the base destructor.
    runner_.reset();
}

int EngineInProcSession::start(const QString& program, const QList<QString>& arguments)
{
    if (runner_->isActive())
        return kAlreadyRunning;

    std::vector<std::string> argv;
    argv.reserve(std::size_t(arguments.size()) + 1);
    argv.push_back(program.toUtf8().toStdString());
    for (const QString& a : arguments)
        argv.push_back(a.toUtf8().toStdString());

    errorString_.clear();
    started_ = false;
    finishReported_ = false;

    // Both streams share one pipe, so everything counts as standard output.
    auto sink = [cb = callbacks()](const std::string& chunk) {
        const QString text = QString::fromUtf8(chunk.data(), qsizetype(chunk.size()));
        qsizetype from = 0;
        while (from < text.size()) {
            const qsizetype newline = text.indexOf(QLatin1Char('\n'), from);
            const qsizetype end = newline < 0 ? text.size() : newline + 1;
            cb->line(text.mid(from, end - from), false);
            from = end;
        }
    };

    const int rc = runner_->start(argv, std::move(sink));
    if (rc != 0) {
        errorString_ = QCoreApplication::translate("EngineSession", "进程内会话起不来 (rc=%1)").arg(rc);
        return rc;
    }
    started_ = true;
    return kOk;
}

bool EngineInProcSession::isRunning() const
{
    return runner_->isActive();
}

int EngineInProcSession::writeLine(const QString& text, bool* flushed)
{
    if (!runner_->isActive())
        return kNotRunning;
    if (flushed)
        *flushed = true;
    const QByteArray bytes = text.toUtf8();
    return runner_->sendControl(bytes.toStdString()) == 1 ? int(bytes.size()) + 1 : 0;
}

int EngineInProcSession::stop(int timeoutMs)
{
    runner_->sendControl("stop");
    return waitForFinished(timeoutMs) ? 0 : kStopTimedOut;
}

bool EngineInProcSession::waitForFinished(int timeoutMs)
{
    return runner_->wait(timeoutMs) != zuvo::InProcRunner::kTimedOut;
}

void EngineInProcSession::terminate()
{
    // An engine inside our own process cannot be ended by force.
}

void EngineInProcSession::kill()
{
}

bool EngineInProcSession::canKill() const
{
    return false;
}

bool EngineInProcSession::isInProcess() const
{
    return true;
}

void EngineInProcSession::close()
{
}

void EngineInProcSession::poll()
{
    if (!started_ || runner_->isActive() || finishReported_)
        return;
    finishReported_ = true;
    int exitCode = runner_->wait(kCollectWaitMs);
    if (exitCode == zuvo::InProcRunner::kTimedOut)
        exitCode = 0;
    const std::shared_ptr<Callbacks> cb = callbacks();
    cb->finished(exitCode, false); // may delete this session: nothing after it
}

QString EngineInProcSession::errorString() const
{
    return errorString_;
}
