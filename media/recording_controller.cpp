#include "recording_controller.h"

#include <QCoreApplication>
#include <QTimer>

#include "engine_discovery.h"
#include "engine_session.h"
#include "player_args.h"

// The recording texts belong to the main window's translation context.

RecordingController::RecordingController(QObject* parent)
    : SessionController(parent)
{
}

RecordingController::~RecordingController() = default;

void RecordingController::setRecording(bool recording)
{
    recording_ = recording;
    stopping_ = false;
    emit recordingChanged(recording);
}

void RecordingController::startRecording(const QString& outputField, const RecorderSettings& settings,
                                         const QString& engineLog)
{
    // An unprobed backend does not block: only a probe that found none does.
    if (backendProbed_ && !backendAvailable_) {
        logError(QCoreApplication::translate("MainWindow", "本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音"));
        return;
    }
    if (recording_) {
        log(QCoreApplication::translate("MainWindow", "录音正在进行中"));
        return;
    }
    const QString path = outputField.trimmed();
    if (path.isEmpty()) {
        emit warningRequested(QCoreApplication::translate("MainWindow", "录音"), QCoreApplication::translate("MainWindow", "请先在上方「输出文件」设置录音保存路径"));
        return;
    }
    if (!isDsfPath(path)) {
        emit warningRequested(QCoreApplication::translate("MainWindow", "录音"), QCoreApplication::translate("MainWindow", "录音输出文件必须是 .dsf 格式"));
        return;
    }
    // No in-process fallback: recording needs the engine program itself.
    const QString program = findEngine();
    if (program.isEmpty()) {
        logError(QCoreApplication::translate("MainWindow", "错误: 未找到 ZuvoEngine (录音需要引擎录音支持)"));
        return;
    }
    const QList<QString> args = buildRecorderArgs(settings, engineLog, path);
    log(QCoreApplication::translate("MainWindow", "录音命令: %1 %2").arg(QLatin1Char('"') + program + QLatin1Char('"'), quotedArgs(args)));
    log(QCoreApplication::translate("MainWindow", "开始录音 → %1").arg(path));
    log(QCoreApplication::translate("MainWindow", "提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)"));

    setRecording(true);
    emit progressChanged(QCoreApplication::translate("MainWindow", "录音中…"), false);

    adoptSession(createEngineSession(this));
    recordPath_ = path;
    log(QCoreApplication::translate("MainWindow", "录音会话: %1").arg(sessionKindText(session_->isInProcess())));

    if (session_->start(program, args) < 0) {
        logError(QCoreApplication::translate("MainWindow", "错误: 无法启动引擎 (录音) — %1").arg(session_->errorString()));
        discardSession();
        setRecording(false);
        emit progressChanged(QStringLiteral("%p%"), false);
    }
}

void RecordingController::stopRecording()
{
    if (!recording_) {
        log(QCoreApplication::translate("MainWindow", "当前没有录音任务"));
        return;
    }
    if (stopping_)
        return; // one stop request per recording
    stopping_ = true;
    if (session_ && session_->isRunning()) {
        log(QCoreApplication::translate("MainWindow", "发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…"));
        session_->writeLine(QStringLiteral("q"), nullptr);
        QTimer::singleShot(kStopEscalationMs, Qt::PreciseTimer, this, &RecordingController::onStopEscalation);
    } else {
        // The drain clears the state when the end arrives.
        log(QCoreApplication::translate("MainWindow", "录音引擎已不在运行"));
    }
}

void RecordingController::onStopEscalation()
{
    // Whatever recording runs now gets the escalation: there is no
    // generation check, a stop is only ever pending for the current one.
    if (!session_ || !session_->isRunning())
        return;
    if (!session_->canKill()) {
        logError(QCoreApplication::translate("MainWindow", "引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)"));
        return;
    }
    logError(QCoreApplication::translate("MainWindow", "引擎未在 12s 内退出, 强制终止"));
    session_->kill();
}

void RecordingController::drain()
{
    const RunEnd end = drainLines();
    if (!end.finished)
        return;
    discardSession();
    if (!end.crashed && end.exitCode == 0) {
        log(QCoreApplication::translate("MainWindow", "录音保存: %1").arg(recordPath_));
        emit progressChanged(QStringLiteral("%p%"), true);
    } else if (!end.crashed) {
        logError(QCoreApplication::translate("MainWindow", "录音失败, 退出码: %1").arg(end.exitCode));
        emit progressChanged(QStringLiteral("%p%"), false);
    } else {
        logError(QCoreApplication::translate("MainWindow", "录音进程异常退出 (崩溃/被终止)"));
        emit progressChanged(QStringLiteral("%p%"), false);
    }
    setRecording(false);
}

void RecordingController::setBackendStatus(bool available, const QString& detail)
{
    backendProbed_ = true;
    backendAvailable_ = available;
    const QString text = available ? QCoreApplication::translate("MainWindow", "录音后端: 可用 — %1").arg(detail) : QCoreApplication::translate("MainWindow", "录音后端: 不可用 — %1").arg(detail);
    emit backendStatusChanged(available, text);
}

void RecordingController::shutDown()
{
    if (!session_)
        return;
    session_->writeLine(QStringLiteral("q"), nullptr);
    if (!session_->waitForFinished(kShutdownWaitMs))
        session_->kill();
    discardSession();
}
