// The main window's recording feature: the Recording page, the controller
// and the backend probe behind it, the start-up record test and the
// recorder's part of the shutdown.
#include "mainwindow.h"

#include <QMessageBox>
#include <QProgressBar>
#include <QTimer>

#include "engine_discovery.h"
#include "io_panel.h"
#include "record_page.h"
#include "recording_controller.h"
#include "recording_probe.h"
#include "run_controls.h"
#include "startup_env.h"

QWidget* MainWindow::createRecordPage(QWidget* parent)
{
    recordPage_ = new RecordPage(parent);
    recording_ = new RecordingController(this);
    recordingProbe_ = new RecordingProbe(this);
    connect(recording_, &RecordingController::logLine, this, &MainWindow::appendLog);
    connect(recording_, &RecordingController::recordingChanged, recordPage_, &RecordPage::setRecording);
    connect(recording_, &RecordingController::backendStatusChanged, recordPage_, &RecordPage::setBackendStatus);
    connect(recording_, &RecordingController::warningRequested, this,
            [this](const QString& title, const QString& text) { QMessageBox::warning(this, title, text); });
    connect(recording_, &RecordingController::progressChanged, this, [this](const QString& format, bool full) {
        QProgressBar* bar = run_->progress();
        bar->setFormat(format);
        bar->setValue(full ? bar->maximum() : 0);
    });
    connect(recordingProbe_, &RecordingProbe::logLine, this, &MainWindow::appendLog);
    connect(recordingProbe_, &RecordingProbe::finished, recording_, &RecordingController::setBackendStatus);
    connect(recordPage_, &RecordPage::startClicked, this, &MainWindow::startRecording);
    connect(recordPage_, &RecordPage::stopClicked, this, &MainWindow::stopRecording);
    connect(recordPage_, &RecordPage::probeClicked, this, &MainWindow::runRecordingProbe);
    return recordPage_;
}

void MainWindow::startRecording()
{
    ConversionSettings fields;
    io_->collectInto(fields);
    recording_->startRecording(fields.output_path, recordPage_->settings(), ensureEngineLogPath());
}

void MainWindow::stopRecording()
{
    recording_->stopRecording();
}

void MainWindow::runRecordingProbe()
{
    recordingProbe_->run(findEngine());
}

void MainWindow::recordPageShown()
{
    // Only the first visit without a verdict probes by itself.
    if (!recording_->backendProbed() && !recordingProbe_->isRunning())
        runRecordingProbe();
}

bool MainWindow::runRectestHook()
{
    // Later in the chain than the demonstrations and the play test.
    if (qEnvironmentVariableIsSet("ZUVO_GUI_EQDEMO") || qEnvironmentVariableIsSet("ZUVO_GUI_PLAYDEMO")
        || qEnvironmentVariableIsSet("ZUVO_AI_PLAYTEST") || !qEnvironmentVariableIsSet("ZUVO_AI_RECTEST"))
        return false;
    const int stopAfterMs = environmentInt("ZUVO_AI_RECTEST_STOP");
    const QString path = qEnvironmentVariable("ZUVO_AI_RECTEST");
    if (path.isEmpty()) {
        appendLog(tr("错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径"), true);
        return true;
    }
    io_->setOutputFile(path);
    QTimer::singleShot(500, Qt::PreciseTimer, this, &MainWindow::startRecording);
    if (stopAfterMs > 0)
        QTimer::singleShot(stopAfterMs + 500, Qt::PreciseTimer, this, &MainWindow::stopRecording);
    return true;
}

void MainWindow::shutDownRecording()
{
    recording_->shutDown();
}
