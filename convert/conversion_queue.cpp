#include "conversion_queue.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include "engine_args.h"
#include "engine_output.h"
#include "engine_session.h"
#include "output_naming.h"
#include "preset_json.h"
#include "session_inbox.h"

namespace {

// Exit codes with which the engine confirms that it stopped on request.
bool confirmsStop(int exitCode)
{
    return exitCode == 195 || exitCode == -61;
}

constexpr int kStopConfirmMs = 2000;
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

    QFile f(preset->path);
    if (!f.open(QIODevice::ReadOnly)) {
        logError(tr("✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)").arg(preset->path, tr("无法读取文件")));
        return settings;
    }
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(f.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        const QString reason = error.error != QJsonParseError::NoError ? error.errorString() : tr("不是 JSON 对象");
        logError(tr("✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)").arg(preset->path, reason));
        return settings;
    }
    const PresetReadResult read = presetFromJson(doc.object(), &settings);
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
    for (const SessionEvent& event : inbox_->drain()) {
        if (event.kind == SessionEvent::Line)
            onEngineLine(event.text, event.fromStderr);
        else
            onEngineFinished(event.exitCode, event.crashed);
    }
}

void ConversionQueue::onEngineLine(const QString& raw, bool isStderr)
{
    QString line = raw;
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

    const QString name = QFileInfo(files_.value(currentIndex_)).fileName();
    const bool cleanStop = stopRequested_ && !crashed && confirmsStop(exitCode);
    if (!crashed && exitCode == 0) {
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

void ConversionQueue::showEngineLogTail()
{
    const QStringList lines = engineLogTail(panel_.log_file);
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
