#include "record_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

// The page's texts belong to the main window's translation context.

namespace {

QSpinBox* spin(QWidget* parent, int lo, int hi, int step, int value)
{
    auto* s = new QSpinBox(parent);
    s->setRange(lo, hi);
    s->setSingleStep(step);
    s->setValue(value);
    return s;
}

} // namespace

RecordPage::RecordPage(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    status_ = new QLabel(QCoreApplication::translate("MainWindow", "录音后端: 未检测"), this);
    status_->setWordWrap(true);
    probe_ = new QPushButton(QCoreApplication::translate("MainWindow", "检测录音支持 / 列出输入设备"), this);
    top->addWidget(status_, 1);
    top->addWidget(probe_);
    layout->addLayout(top);

    auto* form = new QFormLayout;
    device_ = new QLineEdit(this);
    device_->setPlaceholderText(QStringLiteral("default"));
    form->addRow(QCoreApplication::translate("MainWindow", "录音设备 (空=默认):"), device_);
    channels_ = spin(this, 0, 8, 1, 2);
    form->addRow(QCoreApplication::translate("MainWindow", "声道数 (0=自动):"), channels_);
    rate_ = spin(this, 0, 384000, 1000, 0);
    form->addRow(QCoreApplication::translate("MainWindow", "采样率 Hz (0=自动):"), rate_);
    duration_ = spin(this, 0, 86400, 1, 0);
    form->addRow(QCoreApplication::translate("MainWindow", "时长秒 (0=手动):"), duration_);
    headroom_ = new QDoubleSpinBox(this);
    headroom_->setRange(0.0, 24.0);
    headroom_->setDecimals(1);
    headroom_->setSingleStep(0.5);
    headroom_->setValue(3.0);
    form->addRow(QCoreApplication::translate("MainWindow", "头空间 dB:"), headroom_);
    buffer_ = spin(this, 64, 8192, 64, 512);
    form->addRow(QCoreApplication::translate("MainWindow", "缓冲帧:"), buffer_);
    layout->addLayout(form);

    exclusive_ = new QCheckBox(QCoreApplication::translate("MainWindow", "直通模式 (--record-exclusive)"), this);
    layout->addWidget(exclusive_);
    auto* dsdRow = new QHBoxLayout;
    dsd_ = new QCheckBox(QCoreApplication::translate("MainWindow", "DSD 直录 (否则 PCM2PDM)"), this);
    dsdMode_ = new QComboBox(this);
    dsdMode_->addItems({QStringLiteral("dop"), QStringLiteral("native")});
    dsdRow->addWidget(dsd_);
    dsdRow->addWidget(dsdMode_);
    dsdRow->addStretch(1);
    layout->addLayout(dsdRow);
    auto* monitorRow = new QHBoxLayout;
    monitor_ = new QCheckBox(QCoreApplication::translate("MainWindow", "监听输入"), this);
    monitorDevice_ = new QLineEdit(this);
    monitorRow->addWidget(monitor_);
    monitorRow->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "监听输出设备:"), this));
    monitorRow->addWidget(monitorDevice_, 1);
    layout->addLayout(monitorRow);
    pdf_ = new QCheckBox(QCoreApplication::translate("MainWindow", "添加 PDF 报告"), this);
    layout->addWidget(pdf_);

    auto* note = new QLabel(
        QCoreApplication::translate("MainWindow", "录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)"), this);
    note->setWordWrap(true);
    layout->addWidget(note);
    auto* buttons = new QHBoxLayout;
    start_ = new QPushButton(QCoreApplication::translate("MainWindow", "开始录音"), this);
    stop_ = new QPushButton(QCoreApplication::translate("MainWindow", "停止录音"), this);
    buttons->addWidget(start_);
    buttons->addWidget(stop_);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    layout->addStretch(1);

    connect(start_, &QPushButton::clicked, this, &RecordPage::startClicked);
    connect(stop_, &QPushButton::clicked, this, &RecordPage::stopClicked);
    connect(probe_, &QPushButton::clicked, this, &RecordPage::probeClicked);
    connect(dsd_, &QCheckBox::toggled, this, &RecordPage::updateDsdMode);
    stop_->setEnabled(false);
    updateDsdMode();
}

void RecordPage::updateDsdMode()
{
    dsdMode_->setEnabled(backendUsable_ && dsd_->isChecked());
}

RecorderSettings RecordPage::settings() const
{
    RecorderSettings s;
    s.device = device_->text();
    s.channels = channels_->value();
    s.sampleRate = rate_->value();
    s.durationSeconds = duration_->value();
    s.headroomDb = headroom_->value();
    s.bufferFrames = buffer_->value();
    s.exclusive = exclusive_->isChecked();
    s.monitor = monitor_->isChecked();
    s.monitorDevice = monitorDevice_->text();
    s.directDsd = dsd_->isChecked();
    s.dsdMode = dsdMode_->currentText();
    s.pdfReport = pdf_->isChecked();
    return s;
}

void RecordPage::setRecording(bool recording)
{
    start_->setEnabled(!recording);
    stop_->setEnabled(recording);
}

void RecordPage::setBackendStatus(bool available, const QString& statusText)
{
    backendUsable_ = available;
    status_->setText(statusText);
    for (QWidget* w : {static_cast<QWidget*>(start_), static_cast<QWidget*>(device_), static_cast<QWidget*>(channels_),
                       static_cast<QWidget*>(rate_), static_cast<QWidget*>(duration_), static_cast<QWidget*>(headroom_),
                       static_cast<QWidget*>(buffer_), static_cast<QWidget*>(exclusive_), static_cast<QWidget*>(monitor_),
                       static_cast<QWidget*>(pdf_), static_cast<QWidget*>(dsd_)})
        w->setEnabled(available);
    // The monitor-device edit is only ever switched off here, never back on.
    if (!available) {
        monitorDevice_->setEnabled(false);
        stop_->setEnabled(false);
    }
    updateDsdMode();
}
