// The main window's playback feature: the Play page, the controller behind
// it, the start-up play test and the player's part of the shutdown.
#include "mainwindow.h"

#include <QFileInfo>
#include <QTimer>

#include "io_panel.h"
#include "play_page.h"
#include "playback_controller.h"
#include "startup_env.h"

QWidget* MainWindow::createPlayPage(QWidget* parent)
{
    playPage_ = new PlayPage(parent);
    playback_ = new PlaybackController(this);
    connect(playback_, &PlaybackController::logLine, this, &MainWindow::appendLog);
    connect(playback_, &PlaybackController::playingChanged, playPage_, &PlayPage::setPlaying);
    connect(playback_, &PlaybackController::positionChanged, playPage_, &PlayPage::showPosition);
    connect(playPage_, &PlayPage::playClicked, this, &MainWindow::startPlayback);
    connect(playPage_, &PlayPage::stopClicked, this, &MainWindow::stopPlayback);
    return playPage_;
}

void MainWindow::startPlayback()
{
    ConversionSettings fields;
    io_->collectInto(fields);
    playback_->startPlayback(fields.output_path, playPage_->device(), playPage_->streaming());
}

void MainWindow::stopPlayback()
{
    playback_->stopPlayback();
}

bool MainWindow::runPlaytestHook()
{
    // The demonstration hooks come first; only one start-up hook runs.
    if (qEnvironmentVariableIsSet("ZUVO_GUI_EQDEMO") || qEnvironmentVariableIsSet("ZUVO_GUI_PLAYDEMO")
        || !qEnvironmentVariableIsSet("ZUVO_AI_PLAYTEST"))
        return false;
    const int stopAfterMs = environmentInt("ZUVO_AI_PLAYTEST_STOP");
    const QString file = qEnvironmentVariable("ZUVO_AI_PLAYTEST");
    if (!QFileInfo::exists(file)) {
        appendLog(tr("错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1").arg(file), true);
        return true;
    }
    io_->setOutputFile(file);
    QTimer::singleShot(500, Qt::PreciseTimer, this, &MainWindow::startPlayback);
    if (stopAfterMs > 0)
        QTimer::singleShot(stopAfterMs + 500, Qt::PreciseTimer, this, &MainWindow::stopPlayback);
    return true;
}

void MainWindow::shutDownPlayback()
{
    playback_->shutDown();
}
