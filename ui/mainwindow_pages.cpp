// The main window's parameter pages: assembly, the rules that cross pages,
// the parameter lock, and moving a settings record in and out.
#include "mainwindow.h"

#include <QMessageBox>
#include <QStatusBar>

#include "engine_args.h"
#include "engine_capabilities.h"
#include "conversion_queue.h"
#include "control_rules.h"
#include "io_panel.h"
#include "pages/advanced_page.h"
#include "pages/basic_page.h"
#include "pages/channels_page.h"
#include "pages/equalizer_page.h"
#include "pages/filter_page.h"
#include "pages/spatial_tone_page.h"
#include "parameter_tabs.h"
#include "run_controls.h"
#include "start_checks.h"

void MainWindow::buildPages()
{
    tabs_ = new ParameterTabs(this);
    basic_ = new BasicPage;
    filter_ = new FilterPage;
    eq_ = new EqualizerPage;
    spatial_ = new SpatialTonePage;
    channels_ = new ChannelsPage;
    advanced_ = new AdvancedPage;
    tabs_->addPage(basic_, tr("基本参数"));
    tabs_->addPage(filter_, tr("滤波"));
    tabs_->addPage(eq_, tr("均衡器"));
    tabs_->addPage(spatial_, tr("空间与音调"));
    tabs_->addPage(channels_, tr("声道"));
    tabs_->addPage(advanced_, tr("高级"));

    const auto log = [this](const QString& text) { appendLog(text); };
    connect(basic_, &BasicPage::logLine, this, log);
    connect(eq_, &EqualizerPage::logLine, this, log);
    connect(spatial_, &SpatialTonePage::logLine, this, log);
    connect(channels_, &ChannelsPage::logLine, this, log);
    connect(basic_, &BasicPage::dstClicked, this, &MainWindow::onDstClicked);
    connect(basic_, &BasicPage::masterPresetRequested, this, &MainWindow::onMasterPresetRequested);
    connect(spatial_, &SpatialTonePage::precutChanged, eq_, &EqualizerPage::setPrecutDb);
    io_->setPcmOutputQuery([this] { return basic_->pcmOutputChosen(); });
}


void MainWindow::setParametersLocked(bool locked)
{
    basic_->setLocked(locked);
    for (QWidget* page : std::initializer_list<QWidget*>{filter_, eq_, spatial_, channels_, advanced_})
        page->setEnabled(!locked);
    io_->setParametersLocked(locked);
}

void MainWindow::onDstClicked(bool on)
{
    appendLog(on ? tr("启用 DST 压缩模式") : tr("禁用 DST 压缩模式"));
    if (!on)
        return;
    const DstOutputFix fix = dstOutputFix(io_->outputFolder(), io_->outputFormat(), io_->outputFile());
    if (fix.kind == DstOutputFix::None)
        return;
    const bool folder = fix.kind == DstOutputFix::SetFormat;
    auto* box = new QMessageBox(QMessageBox::Warning, tr("DST 压缩"),
                                folder ? tr("DST 压缩仅支持 DFF 格式\n输出格式将自动更改为 DFF")
                                       : tr("DST 压缩仅支持 DFF 格式\n输出文件将自动更改为 DFF 格式"),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    if (folder)
        io_->setOutputFormat(QStringLiteral("dff"));
    else
        io_->replaceOutputFile(fix.file);
}

void MainWindow::onMasterPresetRequested(const MasterPreset& preset)
{
    if (refuseWhileConverting(tr("转换进行中, 不能修改参数")))
        return;
    basic_->applyMasterPreset(preset);
    appendLog(tr("已加载母带预设: %1").arg(preset.name));
}

void MainWindow::applySettings(const ConversionSettings& settings)
{
    // Fields without a control ride along in the window's record.
    settings_ = settings;
    io_->applyTags(settings);
    run_->setVerbose(settings.verbose_log);
    basic_->apply(settings);
    filter_->apply(settings);
    eq_->apply(settings);
    spatial_->apply(settings);
    channels_->apply(settings);
    advanced_->apply(settings);
    eq_->setPrecutDb(spatial_->precutDb());
}

ConversionSettings MainWindow::collectSettings()
{
    ConversionSettings s = settings_;
    collectInto(s);
    s.log_file = ensureEngineLogPath();
    if (const int dropped = eq_->invalidRowCount(); dropped > 0)
        appendLog(tr("均衡器: %1 行无效 (需中心频率>0) 已被跳过").arg(dropped));
    return s;
}

void MainWindow::collectInto(ConversionSettings& s)
{
    io_->collectInto(s);
    basic_->collect(s);
    filter_->collect(s);
    eq_->collect(s);
    spatial_->collect(s);
    channels_->collect(s);
    advanced_->collect(s);
    s.verbose_log = run_->verbose();
}

void MainWindow::showEqDemo()
{
    tabs_->setCurrentIndex(2);
    eq_->setEqChecked(true);
    eq_->addBand(EqBand{300.0, 6.0, 1.0, 'q'});
    eq_->addBand(EqBand{1000.0, 3.0, 1.0, 'o'});
    eq_->addBand(EqBand{6000.0, -4.0, 0.707, 'q'});
}

bool MainWindow::refuseUnsupportedOptions(const ConversionSettings& settings)
{
    capabilities_->start(enginePath_);
    if (!capabilities_->waitUntilKnown(3000)) {
        appendLog(tr("注意: 无法向引擎查询它不支持的选项, 直接开始转换"));
        return false;
    }
    // Built only to be compared: the builder's notes belong to the real run.
    ConversionSettings probe = settings;
    if (probe.inputs.isEmpty())
        probe.inputs = QStringList{QStringLiteral("input.wav")};
    setArgNoteSink([](const char*) {});
    const QStringList args = buildEngineArgs(probe);
    setArgNoteSink([this](const char* line) { appendLog(QString::fromUtf8(line)); });
    const QStringList refused = refusedOptionsIn(args, capabilities_->refused());
    if (refused.isEmpty())
        return false;
    const QString list = refused.join(QStringLiteral(", "));
    appendLog(tr("转换未开始: 当前引擎构建不支持这些已选择的选项: %1").arg(list), true);
    showStartProblem(StartProblem{
        false, tr("引擎不支持的选项"),
        tr("当前引擎构建不支持下列已选择的选项, 转换不会开始:\n%1\n\n请在参数页关闭它们后再开始 (预设里可以保留)。")
            .arg(list)});
    return true;
}

void MainWindow::applyEngineCapabilities()
{
    basic_->setPdfReportSupported(capabilities_->supported().contains(QStringLiteral("-pdfrp")));
}
