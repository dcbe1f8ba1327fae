#include "basic_page.h"

#include <QCoreApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "page_widgets.h"

namespace {
enum ModulatorId { Single = 0, Mash = 1, SosEf = 2, Cifb = 3 };
const int kRates[] = {64, 128, 256, 512, 1024, 2048, 4096, 8192};
} // namespace

QStringList BasicPage::modulatorOptions()
{
    return {QCoreApplication::translate("MainWindow", "单环 (NS, --order 9)"), QStringLiteral("MASH 4-2-1"),
            QStringLiteral("SOS-EF"), QStringLiteral("CIFB")};
}

QList<MasterPreset> BasicPage::masterPresets()
{
    // The indices are list positions (6 = DSD-4096, 5 = DSD-2048) and are
    // kept so, whatever the tooltips say.
    return {
        {QCoreApplication::translate("MainWindow", "古典"),
         QCoreApplication::translate("MainWindow", "古典: DSD-256, 131072 taps, 高带宽"), 6, 131072, true},
        {QCoreApplication::translate("MainWindow", "流行"),
         QCoreApplication::translate("MainWindow", "流行: DSD-128, 65536 taps"), 5, 65536, false},
        {QCoreApplication::translate("MainWindow", "爵士"),
         QCoreApplication::translate("MainWindow", "爵士: DSD-128, 65536 taps"), 5, 65536, false},
    };
}

BasicPage::BasicPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    upper_ = buildRateAndModulator();
    lower_ = buildSwitches();
    layout->addWidget(upper_);
    layout->addWidget(buildMasterRow());
    layout->addWidget(lower_, 1);
}

QWidget* BasicPage::buildRateAndModulator()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    rate_ = new QComboBox(box);
    for (int r : kRates)
        rate_->addItem(QStringLiteral("DSD-%1").arg(r), r);
    taps_ = makeSpin(box, 0, 524288, 16, 8192);
    grid->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "DSD 采样率:"), box), 0, 0);
    grid->addWidget(rate_, 0, 1);
    grid->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "Taps 数 (0=引擎默认):"), box), 0, 2);
    grid->addWidget(taps_, 0, 3);

    auto* row = new QHBoxLayout;
    modulator_ = new QButtonGroup(box);
    const QStringList names = modulatorOptions();
    for (int id = 0; id < names.size(); ++id) {
        auto* radio = new QRadioButton(names[id], box);
        modulator_->addButton(radio, id);
        row->addWidget(radio);
    }
    modulator_->button(SosEf)->setChecked(true);
    modulator_->button(SosEf)->setToolTip(QCoreApplication::translate(
        "MainWindow", "SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB"));
    poly_ = new QCheckBox(QCoreApplication::translate("MainWindow", "Chebyshev 多项式压缩 (可与 MASH 叠加)"), box);
    row->addWidget(poly_);
    row->addStretch(1);
    grid->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "调制器:"), box), 1, 0);
    grid->addLayout(row, 1, 1, 1, 4);
    grid->setColumnStretch(4, 1);
    return box;
}

QWidget* BasicPage::buildMasterRow()
{
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "母带预设:"), box));
    for (const MasterPreset& preset : masterPresets()) {
        auto* button = new QPushButton(preset.name, box);
        button->setToolTip(preset.tooltip);
        connect(button, &QPushButton::clicked, this, [this, preset] { emit masterPresetRequested(preset); });
        row->addWidget(button);
    }
    auto* manager = new QPushButton(QCoreApplication::translate("MainWindow", "预设管理器…"), box);
    connect(manager, &QPushButton::clicked, this, &BasicPage::presetManagerRequested);
    row->addWidget(manager);
    row->addStretch(1);
    return box;
}

QWidget* BasicPage::buildSwitches()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    dst_ = new QCheckBox(QCoreApplication::translate("MainWindow", "DST 压缩 (仅 .dff 输出)"), box);
    dxd_ = new QCheckBox(QCoreApplication::translate("MainWindow", "DXD 输出 (高解析 PCM)"), box);
    reverse_ = new QCheckBox(QCoreApplication::translate("MainWindow", "逆向模式 (PDM2PCM)"), box);
    reverse_->setToolTip(
        QCoreApplication::translate("MainWindow", "输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关"));
    dstLevel_ = makeSpin(box, 0, 9, 1, 0);
    dstLevel_->setEnabled(false);
    auto* dstRow = new QHBoxLayout;
    dstRow->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "DST 压缩等级 (0=关闭):"), box));
    dstRow->addWidget(dstLevel_);
    dstRow->addStretch(1);

    highBandwidth_ = new QCheckBox(QCoreApplication::translate("MainWindow", "高带宽模式"), box);
    openCl_ = new QCheckBox(QCoreApplication::translate("MainWindow", "OpenCL 加速 (GPU)"), box);
    openCl_->setEnabled(false);
    openCl_->setToolTip(QCoreApplication::translate("MainWindow", "当前引擎构建未编译 OpenCL 支持"));
    pdfReport_ = new QCheckBox(QCoreApplication::translate("MainWindow", "添加 PDF 报告"), box);
    pdfReport_->setChecked(true);
    pdfReport_->setEnabled(false);
    pdfReport_->setToolTip(QCoreApplication::translate("MainWindow", "当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)"));
    report_ = new QCheckBox(QCoreApplication::translate("MainWindow", "分析报告 (--report)"), box);
    noiseProfiling_ = new QCheckBox(QCoreApplication::translate("MainWindow", "噪声本底分析 (需 PDF 报告)"), box);

    denoise_ = new QComboBox(box);
    denoise_->addItems({QCoreApplication::translate("MainWindow", "降噪: 关"),
                        QCoreApplication::translate("MainWindow", "降噪: 轻 (-12dB 地板, 最保真)"),
                        QCoreApplication::translate("MainWindow", "降噪: 标准 (-18dB 地板)"),
                        QCoreApplication::translate("MainWindow", "降噪: 强 (感知加权地板, 最深)")});
    keepHarmonics_ =
        new QCheckBox(QCoreApplication::translate("MainWindow", "保留乐器泛音 (降噪时保住泛音与泛音列)"), box);
    reportPeak_ = new QCheckBox(QCoreApplication::translate("MainWindow", "报告里加峰值 (--peak)"), box);
    reportRms_ = new QCheckBox(QCoreApplication::translate("MainWindow", "报告里加 RMS (--rms)"), box);
    reportNoDr_ =
        new QCheckBox(QCoreApplication::translate("MainWindow", "报告里不要动态范围一节 (--no-dynamic-range)"), box);

    // Three groups side by side, read left to right in the page's order.
    const auto group = [box](const QString& title, std::initializer_list<QObject*> items) {
        auto* g = new QGroupBox(title, box);
        auto* column = new QVBoxLayout(g);
        for (QObject* item : items) {
            if (auto* w = qobject_cast<QWidget*>(item))
                column->addWidget(w);
            else
                column->addLayout(static_cast<QLayout*>(item));
        }
        column->addStretch(1);
        return g;
    };
    grid->addWidget(group(QCoreApplication::translate("MainWindow", "输出模式"), {dst_, dxd_, reverse_, dstRow}), 0, 0);
    grid->addWidget(group(QCoreApplication::translate("MainWindow", "带宽、加速与报告"),
                          {highBandwidth_, openCl_, pdfReport_, report_, noiseProfiling_}),
                    0, 1);
    grid->addWidget(group(QCoreApplication::translate("MainWindow", "降噪与报告内容"),
                          {denoise_, keepHarmonics_, reportPeak_, reportRms_, reportNoDr_}),
                    0, 2);
    for (int c = 0; c < 3; ++c)
        grid->setColumnStretch(c, 1);

    connect(dst_, &QCheckBox::toggled, dstLevel_, &QWidget::setEnabled);
    connect(dst_, &QCheckBox::clicked, this, &BasicPage::dstClicked);
    connect(noiseProfiling_, &QCheckBox::clicked, this, &BasicPage::onNoiseProfilingClicked);
    return box;
}

void BasicPage::onNoiseProfilingClicked(bool on)
{
    if (!on || pdfReport_->isChecked())
        return;
    noiseProfiling_->setChecked(false);
    auto* box = new QMessageBox(
        QMessageBox::Warning, QCoreApplication::translate("MainWindow", "噪声本底分析"),
        QCoreApplication::translate("MainWindow", "噪声本底分析需要勾选 PDF 报告才能生效\n请启用「添加 PDF 报告」"),
        QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void BasicPage::setPdfReportSupported(bool supported)
{
    pdfReport_->setEnabled(supported);
    pdfReport_->setToolTip(
        supported ? QCoreApplication::translate("MainWindow", "只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)")
                  : QCoreApplication::translate("MainWindow", "当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)"));
}

void BasicPage::applyMasterPreset(const MasterPreset& preset)
{
    rate_->setCurrentIndex(preset.rateIndex);
    taps_->setValue(preset.taps);
    highBandwidth_->setChecked(preset.highBandwidth);
}

void BasicPage::setLocked(bool locked)
{
    upper_->setEnabled(!locked);
    lower_->setEnabled(!locked);
}

bool BasicPage::pcmOutputChosen() const
{
    return reverse_->isChecked() || dxd_->isChecked();
}

bool BasicPage::dstChecked() const
{
    return dst_->isChecked();
}

void BasicPage::apply(const ConversionSettings& s)
{
    const int rateIndex = rate_->findData(s.oversampling);
    if (rateIndex >= 0)
        rate_->setCurrentIndex(rateIndex);
    taps_->setValue(s.taps);
    const int modulator = s.use_mash ? Mash : s.use_sos_ef ? SosEf : s.use_cifb ? Cifb : Single;
    modulator_->button(modulator)->setChecked(true);
    poly_->setChecked(s.poly);
    dst_->setChecked(s.use_dst);
    dxd_->setChecked(s.dxd);
    reverse_->setChecked(s.reverse);
    dstLevel_->setValue(s.dst_compression);
    highBandwidth_->setChecked(s.enable_high_bandwidth);
    openCl_->setChecked(s.use_opencl);
    pdfReport_->setChecked(s.pdfreport);
    report_->setChecked(s.report);
    noiseProfiling_->setChecked(s.noise_profiling);
    denoise_->setCurrentIndex(s.denoise_tier >= 0 && s.denoise_tier < 4 ? s.denoise_tier : 0);
    keepHarmonics_->setChecked(s.keep_harmonics);
    reportPeak_->setChecked(s.report_peak);
    reportRms_->setChecked(s.report_rms);
    reportNoDr_->setChecked(s.report_no_dynamic_range);
}

void BasicPage::collect(ConversionSettings& s) const
{
    s.oversampling = rate_->currentData().toInt();
    s.taps = taps_->value();
    const int modulator = modulator_->checkedId();
    s.use_mash = modulator == Mash;
    s.use_sos_ef = modulator == SosEf;
    s.use_cifb = modulator == Cifb;
    s.poly = poly_->isChecked();
    s.use_dst = dst_->isChecked();
    s.dxd = dxd_->isChecked();
    s.reverse = reverse_->isChecked();
    s.dst_compression = dstLevel_->value();
    s.enable_high_bandwidth = highBandwidth_->isChecked();
    s.use_opencl = openCl_->isChecked();
    s.pdfreport = pdfReport_->isChecked();
    s.report = report_->isChecked();
    s.noise_profiling = noiseProfiling_->isChecked();
    s.denoise_tier = denoise_->currentIndex();
    s.keep_harmonics = keepHarmonics_->isChecked();
    s.report_peak = reportPeak_->isChecked();
    s.report_rms = reportRms_->isChecked();
    s.report_no_dynamic_range = reportNoDr_->isChecked();
}
