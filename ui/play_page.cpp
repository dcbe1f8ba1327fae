#include "play_page.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

// The page's texts belong to the main window's translation context.

namespace {

QString clock(double seconds)
{
    const int s = seconds > 0 ? int(seconds + 0.5) : 0;
    return QStringLiteral("%1:%2").arg(s / 60).arg(s % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

PlayPage::PlayPage(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    device_ = new QLineEdit(this);
    device_->setPlaceholderText(QStringLiteral("hw:DS1"));
    device_->setToolTip(QCoreApplication::translate("MainWindow", "设备名直接传给 ZuvoPlayer -dev"));
    form->addRow(QCoreApplication::translate("MainWindow", "DAC 设备:"), device_);
    layout->addLayout(form);

    stream_ = new QCheckBox(QCoreApplication::translate("MainWindow", "流式播放模式 (-stream)"), this);
    layout->addWidget(stream_);
    auto* note = new QLabel(
        QCoreApplication::translate("MainWindow", "播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)"), this);
    note->setWordWrap(true);
    layout->addWidget(note);

    auto* buttons = new QHBoxLayout;
    play_ = new QPushButton(QCoreApplication::translate("MainWindow", "播放"), this);
    stop_ = new QPushButton(QCoreApplication::translate("MainWindow", "停止播放"), this);
    position_ = new QLabel(QStringLiteral("—"), this);
    buttons->addWidget(play_);
    buttons->addWidget(stop_);
    buttons->addWidget(position_);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    layout->addStretch(1);

    connect(play_, &QPushButton::clicked, this, &PlayPage::playClicked);
    connect(stop_, &QPushButton::clicked, this, &PlayPage::stopClicked);
    setPlaying(false);
}

QString PlayPage::device() const
{
    return device_->text();
}

bool PlayPage::streaming() const
{
    return stream_->isChecked();
}

void PlayPage::setPlaying(bool playing)
{
    play_->setEnabled(!playing);
    stop_->setEnabled(playing);
    if (playing)
        position_->setText(QStringLiteral("—"));
}

void PlayPage::showPosition(double seconds, double duration)
{
    position_->setText(clock(seconds) + QStringLiteral(" / ") + clock(duration));
}
