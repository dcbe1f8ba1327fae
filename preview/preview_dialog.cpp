#include "preview_dialog.h"

#include <QButtonGroup>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "spectrogram_view.h"
#include "waveform_view.h"

namespace pv {

PreviewDialog::PreviewDialog(const QString& path, QWidget* parent)
    : QDialog(parent)
    , data_(std::make_shared<PreviewData>())
{
    setWindowTitle(tr("预览: %1").arg(QFileInfo(path).fileName()));
    resize(760, 440);

    QString error;
    const bool ok = readPreview(path, *data_, &error);

    info_ = new QLabel(describe(ok, error), this);
    info_->setObjectName(QStringLiteral("previewInfo"));
    info_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    info_->setWordWrap(true);
    info_->setStyleSheet(QStringLiteral("color: palette(mid); font-size: 11px;"));

    waveform_ = new WaveformView(this);
    spectrogram_ = new SpectrogramView(this);
    stack_ = new QStackedWidget(this);
    stack_->addWidget(waveform_);
    stack_->addWidget(spectrogram_);
    waveform_->setData(data_);
    spectrogram_->setData(data_);

    waveButton_ = new QPushButton(tr("波形"), this);
    spectrumButton_ = new QPushButton(tr("频谱"), this);
    auto* close = new QPushButton(tr("关闭"), this);
    auto* group = new QButtonGroup(this);
    group->setExclusive(true);
    for (QPushButton* b : {waveButton_, spectrumButton_}) {
        b->setCheckable(true);
        group->addButton(b);
    }
    connect(waveButton_, &QPushButton::clicked, this, [this] { showPage(WaveformPage); });
    connect(spectrumButton_, &QPushButton::clicked, this, [this] { showPage(SpectrogramPage); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(waveButton_);
    buttons->addWidget(spectrumButton_);
    buttons->addStretch(1);
    buttons->addWidget(close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(info_);
    layout->addWidget(stack_, 1);
    layout->addLayout(buttons);
    showPage(WaveformPage);
}

QString PreviewDialog::describe(bool ok, const QString& error) const
{
    if (ok) {
        return tr("%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)")
            .arg(QFileInfo(data_->path).fileName(), QString::number(data_->sampleRate, 'f', 0),
                 QString::number(data_->channels), QString::number(data_->seconds(), 'f', 1));
    }
    if (data_->suffix != QLatin1String("WAV"))
        return tr("该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)").arg(data_->suffix);
    return tr("解码失败: %1").arg(error);
}

void PreviewDialog::showPage(Page page)
{
    stack_->setCurrentIndex(page);
    waveButton_->setChecked(page == WaveformPage);
    spectrumButton_->setChecked(page == SpectrogramPage);
}

int PreviewDialog::currentPage() const
{
    return stack_->currentIndex();
}

QString PreviewDialog::infoText() const
{
    return info_->text();
}

} // namespace pv
