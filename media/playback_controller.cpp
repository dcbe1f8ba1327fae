#include "playback_controller.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>

#include "engine_discovery.h"
#include "engine_session.h"
#include "player_args.h"

// The playback texts belong to the main window's translation context.

PlaybackController::PlaybackController(QObject* parent)
    : SessionController(parent)
{
}

PlaybackController::~PlaybackController() = default;

void PlaybackController::setPlaying(bool playing)
{
    playing_ = playing;
    emit playingChanged(playing);
}

void PlaybackController::startPlayback(const QString& fileField, const QString& device, bool stream)
{
    if (playing_) {
        log(QCoreApplication::translate("MainWindow", "播放正在进行中, 请先停止当前播放"));
        return;
    }
    const QString file = fileField.trimmed();
    if (file.isEmpty() || !QFileInfo(file).isFile()) {
        logError(QCoreApplication::translate("MainWindow", "错误: 播放文件不存在或无法读取: %1")
                     .arg(file.isEmpty() ? QCoreApplication::translate("MainWindow", "(未设置输出文件)") : file));
        return;
    }
    QString program = findPlayer();
    if (program.isEmpty()) {
        if (childProcessesForced()) {
            logError(QCoreApplication::translate(
                "MainWindow", "错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)"));
            return;
        }
        // In process the program is only argv[0] of the library call.
        program = QCoreApplication::applicationFilePath();
    }
    const QList<QString> args = buildPlayerArgs(file, device.trimmed(), stream);
    log(QCoreApplication::translate("MainWindow", "启动播放器: %1 %2").arg(program, quotedArgs(args)));
    log(QCoreApplication::translate("MainWindow", "开始播放: %1").arg(file));

    ++generation_;
    setPlaying(true);

    adoptSession(createPlayerSession(this));
    log(QCoreApplication::translate("MainWindow", "试听会话: %1").arg(sessionKindText(session_->isInProcess())));

    if (session_->start(program, args) < 0) {
        logError(QCoreApplication::translate("MainWindow", "错误: 无法启动播放器 — %1").arg(session_->errorString()));
        discardSession();
        setPlaying(false);
    }
}

void PlaybackController::drain()
{
    const RunEnd end = drainLines([this](const QString& line) {
        double pos = 0, dur = 0;
        if (parsePlayerPosition(line, &pos, &dur))
            emit positionChanged(pos, dur);
    });
    const int exitCode = end.exitCode;
    const bool crashed = end.crashed;
    if (!end.finished || !session_)
        return;
    discardSession();
    setPlaying(false);
    if (!crashed && exitCode == 0)
        log(QCoreApplication::translate("MainWindow", "播放完成"));
    else if (!crashed && exitCode == 3)
        log(QCoreApplication::translate("MainWindow", "播放已停止")); // the player's answer to "stop"
    else
        logError(QCoreApplication::translate("MainWindow", "播放器异常退出, 代码: %1").arg(exitCode));
}

void PlaybackController::stopPlayback()
{
    if (!playing_) {
        log(QCoreApplication::translate("MainWindow", "当前没有播放任务"));
        return;
    }
    log(QCoreApplication::translate("MainWindow", "正在停止播放器…"));
    if (!session_ || !session_->isRunning()) {
        discardSession();
        setPlaying(false);
        return;
    }
    session_->writeLine(QStringLiteral("stop"), nullptr);
    log(QCoreApplication::translate("MainWindow", "[控制] %1").arg(QStringLiteral("stop")));
    const quint32 generation = generation_;
    QTimer::singleShot(kStopGraceMs, Qt::PreciseTimer, this, [this, generation] { onStopGraceExpired(generation); });
}

void PlaybackController::onStopGraceExpired(quint32 generation)
{
    if (generation != generation_ || !session_ || !session_->isRunning())
        return;
    const int seconds = kStopGraceMs / 1000;
    if (!session_->canKill()) {
        logError(
            QCoreApplication::translate("MainWindow", "播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)")
                .arg(seconds));
        return;
    }
    logError(QCoreApplication::translate("MainWindow", "播放器未在 %1 秒内完成收尾, 强制结束").arg(seconds));
    session_->terminate();
    QTimer::singleShot(kKillDelayMs, Qt::PreciseTimer, this, [this, generation] { onKillDelayExpired(generation); });
}

void PlaybackController::onKillDelayExpired(quint32 generation)
{
    if (generation != generation_ || !session_ || !session_->isRunning())
        return;
    logError(QCoreApplication::translate("MainWindow", "仍无响应, 强制结束播放器"));
    session_->kill();
}

void PlaybackController::shutDown()
{
    if (!session_)
        return;
    session_->writeLine(QStringLiteral("stop\n"), nullptr);
    if (!session_->waitForFinished(kShutdownWaitMs))
        session_->kill();
    discardSession();
}
