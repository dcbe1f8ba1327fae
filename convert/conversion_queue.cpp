#include "conversion_queue.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include "engine_args.h"
#include "engine_output.h"
#include "engine_session.h"
#include "output_naming.h"
#include "preset_store.h"
#include "session_inbox.h"

namespace {

// Exit codes with which the engine confirms that it stopped on request.
bool confirmsStop(int exitCode)
{
    return exitCode == 195 || exitCode == -61;
}

constexpr int kStopConfirmMs = 2000;
// Longest stretch the queue works on engine output before the event loop gets
// its turn again (the log pane's insertion of what was handled follows it).
constexpr qint64 kOutputSliceMs = 15;
constexpr int kShutdownWaitMs = 2000;

} // namespace

ConversionQueue::ConversionQueue(QObject* parent)
    : QObject(parent)
    , inbox_(std::make_unique<SessionInbox>())
    , stopConfirmTimer_(new QTimer(this))
{
    stopConfirmTimer_->setSingleShot(true);
    stopConfirmTimer_->setInterval(kStopConfirmMs);
    connect(stopConfirmTimer_, &QTimer::timeout, this, &ConversionQueue::onStopConfirmationTimeout);
}

ConversionQueue::~ConversionQueue()
{
    discardSession();
}

bool ConversionQueue::hasRunningSession() const
{
    return session_ && session_->isRunning();
}

void ConversionQueue::start(const QStringList& files, const ConversionSettings& panel, const QString& enginePath)
{
    files_ = files;
    panel_ = panel;
    enginePath_ = enginePath;
    totalCount_ = int(files.size());
    multiFile_ = totalCount_ > 1;
    currentIndex_ = 0;
    doneCount_ = failedCount_ = 0;
    stopRequested_ = false;
    startFailed_ = false;
    converting_ = true;
    outputFolder_ = panel.output_dir.isEmpty() ? QFileInfo(panel.output_path).absolutePath() : panel.output_dir;
    emit runningChanged(true);
    emit progressChanged(0);

    log(tr("引擎日志: %1").arg(panel.log_file.isEmpty() ? tr("(交给引擎默认)") : panel.log_file));
    log(tr("待转换文件: %1 个").arg(totalCount_));
    if (!panel.output_dir.isEmpty()) {
        log(tr("输出目录: %1 (命名模板: %2, 格式: %3)")
                .arg(panel.output_dir,
                     panel.name_template.isEmpty() ? QStringLiteral("{input}") : panel.name_template,
                     panel.output_ext));
    }
    runNext();
}

void ConversionQueue::queueRunNext()
{
    // Never start the next run from inside the end handling of the last one.
    QTimer::singleShot(0, this, &ConversionQueue::runNext);
}

ConversionSettings ConversionQueue::settingsForCurrentFile()
{
    ConversionSettings settings = panel_;
    const QString file = files_.at(currentIndex_);
    const std::optional<PresetRef> preset = presetLookup_ ? presetLookup_(file) : std::nullopt;
    if (!preset)
        return settings;

    const PresetLoad read = PresetStore::load(preset->path, &settings);
    if (read.status != PresetLoad::Ok) {
        logError(tr("✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)").arg(preset->path, read.error));
        return settings;
    }
    log(tr("逐轨预设《%1》").arg(preset->name));
    if (read.unsupportedKeys > 0)
        log(tr("  预设含 %1 个本版未支持字段, 已忽略").arg(read.unsupportedKeys));
    return read.settings;
}

void ConversionQueue::runNext()
{
    if (!converting_)
        return;
    if (stopRequested_) {
        const int skipped = totalCount_ - currentIndex_;
        if (skipped > 0) {
            failedCount_ += skipped;
            log(tr("停止: 剩余 %1 个文件已跳过").arg(skipped));
        }
        endQueue();
        return;
    }
    if (currentIndex_ >= totalCount_) {
        endQueue();
        return;
    }

    discardSession();
    ConversionSettings settings = settingsForCurrentFile();
    const QString file = files_.at(currentIndex_);
    settings.inputs = QStringList{file};
    settings.queue_number = currentIndex_ + 1;
    currentOutput_ = outputPathFor(settings);

    if (multiFile_)
        log(tr("━━━ [%1/%2] 转换 %3").arg(currentIndex_ + 1).arg(totalCount_).arg(file));
    else
        log(tr("━━━ 转换 %1").arg(file));

    const QString outDir = QFileInfo(currentOutput_).absolutePath();
    if (!QDir().mkpath(outDir)) {
        failCurrent(tr("✗ 无法创建输出目录: %1").arg(outDir));
        return;
    }

    outputBefore_ = fileStamp(currentOutput_);
    expectsOutput_ = !settings.advanced.contains(QStringLiteral("--measure"));
    logStartOffset_ = settings.log_file.isEmpty() ? 0 : QFileInfo(settings.log_file).size();
    cutOut_ = LongLineCutter();
    cutErr_ = LongLineCutter();

    const QStringList args = buildEngineArgs(settings);
    log(tr("执行: %1 %2").arg(enginePath_, args.join(QLatin1Char(' '))));
    emit fileStateChanged(currentIndex_, Running);

    session_ = createEngineSession(this);
    log(tr("转换会话: %1").arg(session_->isInProcess() ? tr("进程内(直接调库)") : tr("子进程(起 CLI)")));
    inbox_->attach(*session_);
    const int rc = session_->start(enginePath_, args);
    if (rc != 0) {
        startFailed_ = true;
        failCurrent(tr("错误: 无法启动引擎 — %1").arg(session_->errorString()));
    }
}

void ConversionQueue::failCurrent(const QString& message)
{
    logError(message);
    emit fileStateChanged(currentIndex_, Failed);
    ++failedCount_;
    ++currentIndex_;
    queueRunNext();
}

void ConversionQueue::poll()
{
    if (session_)
        session_->poll();
    QList<SessionEvent> news = inbox_->drain();
    if (!news.isEmpty())
        backlog_.push_back(std::move(news));
    processBacklog();
}

void ConversionQueue::processBacklog()
{
    backlogQueued_ = false;
    QElapsedTimer slice;
    slice.start();
    int handled = 0;
    while (!backlog_.empty()) {
        if (backlogNext_ >= backlog_.front().size()) {
            backlog_.pop_front();
            backlogNext_ = 0;
            continue;
        }
        if ((++handled & 63) == 0 && slice.elapsed() >= kOutputSliceMs) {
            if (!backlogQueued_) {
                backlogQueued_ = true;
                QTimer::singleShot(0, this, &ConversionQueue::processBacklog);
            }
            return;
        }
        const SessionEvent event = std::move(backlog_.front()[backlogNext_++]);
        if (event.kind == SessionEvent::Line)
            onEngineLine(event.text, event.fromStderr);
        else
            onEngineFinished(event.exitCode, event.crashed);
    }
}

void ConversionQueue::onEngineLine(const QString& raw, bool isStderr)
{
    std::optional<QString> whole = (isStderr ? cutErr_ : cutOut_).feed(raw);
    if (!whole)
        return;
    QString line = std::move(*whole);
    line.remove(QLatin1Char('\r'));
    if (line.endsWith(QLatin1Char('\n')))
        line.chop(1);
    if (line.isEmpty())
        return;
    if (const std::optional<double> percent = progressPercent(line, isStderr)) {
        emit progressChanged(progressPerMille(*percent, currentIndex_, multiFile_ ? totalCount_ : 1));
        return;
    }
    emit logLine(line, isStderr);
}

void ConversionQueue::onEngineFinished(int exitCode, bool crashed)
{
    if (!converting_)
        return;
    if (startFailed_) {
        startFailed_ = false;
        discardSession();
        return;
    }
    stopConfirmTimer_->stop();
    finishRunOutput();

    const QString name = QFileInfo(files_.value(currentIndex_)).fileName();
    const bool cleanStop = stopRequested_ && !crashed && confirmsStop(exitCode);
    if (!crashed && exitCode == 0 && !outputIsUsable(name)) {
        showEngineLogTail();
        emit fileStateChanged(currentIndex_, Failed);
        ++failedCount_;
    } else if (!crashed && exitCode == 0) {
        log(tr("✓ %1 完成").arg(name));
        emit fileStateChanged(currentIndex_, Done);
        ++doneCount_;
        emit progressChanged(progressPerMille(100.0, currentIndex_, multiFile_ ? totalCount_ : 1));
    } else if (cleanStop) {
        if (QFile::remove(currentOutput_) || !QFileInfo::exists(currentOutput_))
            log(tr("■ 已停止: %1 (未完成的文件已删除)").arg(name));
        else
            log(tr("■ 已停止: %1 (文件保留, 可能不完整)").arg(name));
        emit fileStateChanged(currentIndex_, Stopped);
        ++doneCount_;
    } else if (crashed && stopRequested_) {
        log(tr("■ 已停止(强制结束进程): %1").arg(name));
        emit fileStateChanged(currentIndex_, Stopped);
        ++doneCount_;
    } else {
        if (crashed)
            logError(tr("✗ %1 异常退出 (崩溃/被终止)").arg(name));
        else
            logError(tr("✗ 退出码: %1").arg(exitCode));
        showEngineLogTail();
        emit fileStateChanged(currentIndex_, Failed);
        ++failedCount_;
    }
    ++currentIndex_;
    queueRunNext();
}

void ConversionQueue::finishRunOutput()
{
    // A last line without its newline still belongs to the run.
    if (std::optional<QString> rest = cutOut_.finish())
        onEngineLine(*rest, false);
    if (std::optional<QString> rest = cutErr_.finish())
        onEngineLine(*rest, true);
}

bool ConversionQueue::outputIsUsable(const QString& name)
{
    if (!expectsOutput_)
        return true;
    const OutputCheck check = checkOutputFile(currentOutput_, outputBefore_);
    switch (check.problem) {
    case OutputCheck::None:
        return true;
    case OutputCheck::Missing:
        logError(tr("✗ %1: 引擎报告完成, 但没有写出输出文件 %2").arg(name, currentOutput_));
        break;
    case OutputCheck::NotWritten:
        logError(tr("✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)").arg(name, currentOutput_));
        break;
    case OutputCheck::Empty:
    case OutputCheck::Unreadable: {
        // Nothing usable was made; a broken file left behind would pass for a result.
        const QString reason = check.problem == OutputCheck::Empty ? tr("文件是空的") : check.reason;
        const bool removed = QFile::remove(currentOutput_);
        logError((removed ? tr("✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3")
                          : tr("✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3"))
                     .arg(name, reason, currentOutput_));
        break;
    }
    }
    return false;
}

void ConversionQueue::showEngineLogTail()
{
    const QStringList lines = engineLogTail(panel_.log_file, logStartOffset_);
    if (lines.isEmpty())
        return;
    logError(tr("── 引擎日志 (末尾 %1 行): %2 ──").arg(lines.size()).arg(panel_.log_file));
    for (const QString& line : lines) {
        if (!line.isEmpty())
            logError(QStringLiteral("  ") + line);
    }
}

void ConversionQueue::endQueue()
{
    converting_ = false;
    stopConfirmTimer_->stop();
    emit runningChanged(false);
    if (multiFile_) {
        if (failedCount_ == 0)
            log(tr("\n全部完成: %1 OK").arg(doneCount_));
        else
            log(tr("\n完成: %1 OK, %2 失败").arg(doneCount_).arg(failedCount_));
    }
    if (stopRequested_)
        log(tr("转换已停止"));
    emit queueFinished(doneCount_, failedCount_, stopRequested_, outputFolder_);
}

void ConversionQueue::stopConversion()
{
    if (!converting_) {
        log(tr("当前没有运行的进程"));
        return;
    }
    log(tr("正在停止转换进程…"));
    stopRequested_ = true;
    if (!hasRunningSession())
        return;
    if (session_->canKill()) {
        log(tr("终止当前转换进程…"));
        session_->kill();
        return;
    }
    // An engine inside our process can only be asked; the answer arrives as
    // its exit code, and a timer tells the user if it does not come.
    log(tr("正在通知引擎停止…"));
    session_->writeLine(QStringLiteral("stop"), nullptr);
    stopConfirmTimer_->start();
}

void ConversionQueue::onStopConfirmationTimeout()
{
    if (converting_ && hasRunningSession())
        logError(tr("引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。"));
}

void ConversionQueue::sendControl(const QString& command)
{
    if (!hasRunningSession())
        return;
    session_->writeLine(command, nullptr);
    log(tr("[控制] %1").arg(command));
}

void ConversionQueue::discardSession()
{
    if (!session_)
        return;
    inbox_->detach(*session_);
    delete session_;
    session_ = nullptr;
}

void ConversionQueue::shutDown()
{
    if (!session_)
        return;
    session_->kill();
    session_->waitForFinished(kShutdownWaitMs);
}
