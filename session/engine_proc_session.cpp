#include "engine_proc_session.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

constexpr int kStartTimeoutMs = 3000;
constexpr int kWriteWaitMs = 200;
constexpr qsizetype kMaxPendingLine = 65536;

} // namespace

EngineProcSession::EngineProcSession(QObject* parent)
    : process_(new QProcess(parent))
{
    process_->setProcessChannelMode(QProcess::SeparateChannels);
    connections_ << QObject::connect(process_, &QProcess::readyReadStandardOutput, process_,
                                     [this] { drain(QProcess::StandardOutput); });
    connections_ << QObject::connect(process_, &QProcess::readyReadStandardError, process_,
                                     [this] { drain(QProcess::StandardError); });
    connections_ << QObject::connect(process_, &QProcess::finished, process_,
                                     [this](int exitCode, QProcess::ExitStatus status) {
                                         drain(QProcess::StandardOutput);
                                         drain(QProcess::StandardError);
                                         reportFinished(exitCode, status == QProcess::CrashExit);
                                     });
}

EngineProcSession::~EngineProcSession()
{
    // The process outlives us; its signals must not reach a deleted session.
    for (const QMetaObject::Connection& c : std::as_const(connections_))
        QObject::disconnect(c);
}

int EngineProcSession::start(const QString& program, const QList<QString>& arguments)
{
    if (process_->state() != QProcess::NotRunning)
        return kAlreadyRunning;

    errorString_.clear();
    started_ = false;
    finishReported_ = false;
    pendingOut_.clear();
    pendingErr_.clear();

    process_->setProgram(program);
    process_->setArguments(arguments);
#ifdef Q_OS_WIN
    // The engine is a console program; without this every run flashes a
    // console window over the GUI.
    process_->setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* args) {
        args->flags |= CREATE_NO_WINDOW;
    });
#endif
    process_->start(QIODevice::ReadWrite); // stdin stays open for control lines
    started_ = process_->waitForStarted(kStartTimeoutMs);
    if (!started_) {
        errorString_ = process_->errorString();
        return kStartFailed;
    }
    return kOk;
}

bool EngineProcSession::isRunning() const
{
    return process_->state() != QProcess::NotRunning;
}

int EngineProcSession::writeLine(const QString& text, bool* flushed)
{
    if (process_->state() != QProcess::Running)
        return kNotRunning;
    QByteArray bytes = text.toUtf8();
    bytes.append('\n');
    const qint64 written = process_->write(bytes);
    const bool done = process_->waitForBytesWritten(kWriteWaitMs);
    if (flushed)
        *flushed = done;
    return written < 1 ? 0 : int(written);
}

int EngineProcSession::stop(int timeoutMs)
{
    writeLine(QStringLiteral("stop"), nullptr);
    if (!process_->waitForFinished(timeoutMs))
        return kStopTimedOut;
    return process_->exitCode();
}

bool EngineProcSession::waitForFinished(int timeoutMs)
{
    return process_->waitForFinished(timeoutMs);
}

void EngineProcSession::terminate()
{
    process_->terminate();
}

void EngineProcSession::kill()
{
    process_->kill();
}

bool EngineProcSession::canKill() const
{
    return true;
}

void EngineProcSession::close()
{
    process_->close();
}

void EngineProcSession::poll()
{
    drain(QProcess::StandardOutput);
    drain(QProcess::StandardError);
    // Crashes are only known from the finished signal; here the end is
    // reported as a normal one, and only if the signal has not done so.
    if (started_ && process_->state() == QProcess::NotRunning && !finishReported_)
        reportFinished(process_->exitCode(), false);
}

QString EngineProcSession::errorString() const
{
    return errorString_;
}

void EngineProcSession::drain(QProcess::ProcessChannel channel)
{
    const QByteArray bytes = channel == QProcess::StandardOutput ? process_->readAllStandardOutput()
                                                                  : process_->readAllStandardError();
    const std::shared_ptr<Callbacks> cb = callbacks();
    if (bytes.isEmpty() || !cb->hasLine())
        return;
    const bool fromStderr = channel == QProcess::StandardError;
    QByteArray& pending = fromStderr ? pendingErr_ : pendingOut_;
    // Only the new bytes can hold a newline not seen yet, and the consumed
    // lines go in one cut: a flood costs time in proportion to its size.
    qsizetype start = 0;
    qsizetype newline = pending.size();
    pending.append(bytes);
    QList<QString> lines;
    while ((newline = pending.indexOf('\n', newline)) >= 0) {
        lines << QString::fromUtf8(pending.constData() + start, newline + 1 - start);
        start = ++newline;
    }
    pending.remove(0, start);
    // A fragment after the last newline waits for the rest of its line; the
    // engine ends every line it means to be seen. One that never ends is
    // handed on in pieces without a newline rather than held without bound.
    if (pending.size() >= kMaxPendingLine) {
        qsizetype cut = pending.size();
        // Not inside a UTF-8 sequence: an incomplete one waits for its rest.
        for (qsizetype i = cut - 1; i >= 0 && i >= cut - 4; --i) {
            const uchar c = uchar(pending.at(i));
            if ((c & 0xC0) == 0x80)
                continue;
            const int need = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
            if (pending.size() - i < need)
                cut = i;
            break;
        }
        if (cut == 0)
            cut = pending.size();
        lines << QString::fromUtf8(pending.constData(), cut);
        pending.remove(0, cut);
    }
    for (const QString& line : std::as_const(lines))
        cb->line(line, fromStderr);
}

void EngineProcSession::reportFinished(int exitCode, bool crashed)
{
    if (!started_ || finishReported_)
        return;
    finishReported_ = true;
    const std::shared_ptr<Callbacks> cb = callbacks();
    cb->finished(exitCode, crashed); // may delete this session: nothing after it
}
