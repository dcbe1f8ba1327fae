#include "mainwindow.h"

#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include "engine_discovery.h"
#include "engine_log.h"
#include "log_pane.h"

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(tr("Zuvo Audio Suite — 音频转换工具"));
    resize(1180, 760);
    buildUi();

    pollTimer_ = new QTimer(this);
    pollTimer_->setInterval(150);
    connect(pollTimer_, &QTimer::timeout, this, &MainWindow::onPollTimer);
    pollTimer_->start();

    locateEngine();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildUi()
{
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    log_ = new LogPane(central);
    layout->addWidget(log_, 1);
    setCentralWidget(central);
    statusBar();
}

void MainWindow::locateEngine()
{
    enginePath_ = findEngine();
    if (!enginePath_.isEmpty()) {
        appendLog(tr("找到 ZuvoEngine (音频转换引擎): %1").arg(enginePath_));
    } else {
        appendLog(tr("警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。"));
        statusBar()->showMessage(tr("未找到 ZuvoEngine"));
    }
}

QString MainWindow::ensureEngineLogPath()
{
    if (engineLogPath_.isEmpty()) {
        engineLogPath_ = engineLogPath(QStringLiteral("zuvo-audiotools"), &engineLogTempDir_);
        if (!engineLogPath_.isEmpty())
            probeLogPath_ = QFileInfo(engineLogPath_).dir().filePath(QStringLiteral("engine-probe.log"));
    }
    return engineLogPath_;
}

void MainWindow::appendLog(const QString& text, bool isError)
{
    log_->append(text, isError);
}

void MainWindow::onPollTimer()
{
    // Sessions are polled and their inboxes drained here, on the GUI thread.
}
