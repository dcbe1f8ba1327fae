#include "mainwindow.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include "conversion_queue.h"
#include "engine_capabilities.h"
#include "engine_args.h"
#include "engine_discovery.h"
#include "engine_log.h"
#include "file_list_widget.h"
#include "io_panel.h"
#include "log_pane.h"
#include "parameter_tabs.h"
#include "playback_controller.h"
#include "recording_controller.h"
#include "run_controls.h"

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(tr("Zuvo Audio Suite — 音频转换工具"));
    resize(1180, 760);
    buildUi();

    capabilities_ = new EngineCapabilityProbe(this);
    connect(capabilities_, &EngineCapabilityProbe::listingKnown, this, &MainWindow::applyEngineCapabilities);
    setArgNoteSink([this](const char* line) { appendLog(QString::fromUtf8(line)); });

    pollTimer_ = new QTimer(this);
    pollTimer_->setInterval(150);
    connect(pollTimer_, &QTimer::timeout, this, &MainWindow::onPollTimer);
    pollTimer_->start();

    locateEngine();
}

MainWindow::~MainWindow()
{
    setArgNoteSink(nullptr);
    queue_->shutDown();
    shutDownPlayback();
    shutDownRecording();
    // The queue (and with it the conversion session) goes last, with the window's children.
}

void MainWindow::buildUi()
{
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    io_ = new InputOutputPanel(central);
    run_ = new RunControlsPanel(central);
    buildPages();
    tabs_->insertPage(5, createPlayPage(tabs_), tr("播放"));
    tabs_->insertPage(7, createRecordPage(tabs_), tr("录音"));
    // The recording backend is probed the first time its page is shown.
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
        if (index == 7)
            recordPageShown();
    });
    run_->addToButtonRow(createDiagnosticsButtons(run_));
    // The pages get the room; the file list and the log shrink to a few
    // lines first (they scroll), and the splitter lets the user trade
    // between the three, so nothing overlaps in a small window.
    for (QWidget* w : std::initializer_list<QWidget*>{io_->fileList(), run_->log()}) {
        w->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        w->setMinimumHeight(64);
    }
    tabs_->setMinimumHeight(200);
    auto* split = new QSplitter(Qt::Vertical, central);
    split->addWidget(io_);
    split->addWidget(tabs_);
    split->addWidget(run_);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 1);
    split->setStretchFactor(2, 0);
    layout->addWidget(split);
    setCentralWidget(central);
    // The status bar's permanent widgets (language, updates) join at its right end.
    statusBar();

    queue_ = new ConversionQueue(this);
    connectPresets();
    connect(queue_, &ConversionQueue::logLine, this, &MainWindow::appendLog);
    connect(queue_, &ConversionQueue::progressChanged, run_->progress(), &QProgressBar::setValue);
    connect(queue_, &ConversionQueue::runningChanged, run_, &RunControlsPanel::setRunning);
    connect(queue_, &ConversionQueue::runningChanged, this, &MainWindow::setParametersLocked);
    connect(queue_, &ConversionQueue::fileStateChanged, this, [this](int index, int state) {
        using S = FileListWidget::State;
        const S shown = state == ConversionQueue::Running ? S::Running
                        : state == ConversionQueue::Done  ? S::Done
                        : state == ConversionQueue::Failed ? S::Failed
                                                            : S::Stopped;
        io_->fileList()->setState(index, shown);
    });
    connect(queue_, &ConversionQueue::queueFinished, this, &MainWindow::onQueueFinished);

    connect(run_, &RunControlsPanel::startClicked, this, &MainWindow::startConversion);
    connect(run_, &RunControlsPanel::stopClicked, this, &MainWindow::stopConversion);
    connect(io_, &InputOutputPanel::pathsOffered, this, &MainWindow::addPaths);
    connect(io_, &InputOutputPanel::previewRequested, this, &MainWindow::previewCurrentFile);
    connect(io_, &InputOutputPanel::outputFileChosen, this,
            [this](const QString& path) { appendLog(tr("设置输出文件: %1").arg(path)); });
    connect(io_, &InputOutputPanel::emptyFolderChosen, this,
            [this] { statusBar()->showMessage(tr("目录中没有音频文件"), 4000); });
    connect(io_, &InputOutputPanel::removeRequested, this, [this] {
        if (refuseWhileConverting(tr("转换进行中, 不能修改文件列表")))
            return;
        io_->fileList()->removeSelected();
        io_->updateCount();
    });
    connect(io_, &InputOutputPanel::clearRequested, this, [this] {
        if (refuseWhileConverting(tr("转换进行中, 不能修改文件列表")))
            return;
        io_->fileList()->clearAll();
        io_->updateCount();
    });
}

void MainWindow::locateEngine()
{
    enginePath_ = findEngine();
    if (!enginePath_.isEmpty()) {
        appendLog(tr("找到 ZuvoEngine (音频转换引擎): %1").arg(enginePath_));
        // Asked once, after the window is up, so start-up never waits for it.
        QTimer::singleShot(0, this, [this] { capabilities_->start(enginePath_); });
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
    run_->log()->append(text, isError);
}

bool MainWindow::refuseWhileConverting(const QString& message)
{
    if (!queue_->isConverting())
        return false;
    statusBar()->showMessage(message, 3000);
    return true;
}

void MainWindow::onPollTimer()
{
    // Sessions report from their own threads into inboxes; this is where the
    // GUI thread picks their news up.
    queue_->poll();
    playback_->poll();
    recording_->poll();
}
