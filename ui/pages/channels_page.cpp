#include "channels_page.h"

#include <QCoreApplication>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include "page_widgets.h"

ChannelsPage::ChannelsPage(QWidget* parent) : QWidget(parent)
{
    auto* page = new QHBoxLayout(this);
    auto* settings = new QGroupBox(QCoreApplication::translate("MainWindow", "声道设置"), this);
    auto* layout = new QVBoxLayout(settings);
    force_ = new QCheckBox(QCoreApplication::translate("MainWindow", "强制原始声道数"), settings);
    reset_ = makeSpin(this, 0, 8, 1, 0);
    quad_ = new QCheckBox(QCoreApplication::translate("MainWindow", "四声道模式 (需重置声道数=4)"), settings);
    unsrs_ = new QCheckBox(QCoreApplication::translate("MainWindow", "添加环绕声道"), settings);
    swap_ = new QCheckBox(QCoreApplication::translate("MainWindow", "声道交换"), settings);

    auto* resetRow = new QHBoxLayout;
    resetRow->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "重置声道数 (0=不动):"), settings));
    resetRow->addWidget(reset_);
    resetRow->addStretch(1);
    layout->addWidget(force_);
    layout->addLayout(resetRow);
    layout->addWidget(quad_);
    layout->addWidget(unsrs_);
    layout->addWidget(swap_);
    layout->addStretch(1);

    auto* notes = new QGroupBox(QCoreApplication::translate("MainWindow", "规则"), this);
    auto* notesLayout = new QVBoxLayout(notes);
    auto* text = new QLabel(QCoreApplication::translate(
                                "MainWindow",
                                "「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。\n\n"
                                "四声道模式需要重置声道数为 4; 勾选时会自动设为 4。\n\n"
                                "「声道交换」交换前两个声道, 与其它选项可同时使用。"),
                            notes);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    notesLayout->addWidget(text);
    notesLayout->addStretch(1);
    page->addWidget(settings, 1);
    page->addWidget(notes, 1);

    connect(quad_, &QCheckBox::clicked, this, [this](bool on) {
        if (on && reset_->value() != 4) {
            reset_->setValue(4);
            emit logLine(QCoreApplication::translate("MainWindow", "四声道模式: 重置声道数已自动设为 4"));
        }
    });
}

void ChannelsPage::apply(const ConversionSettings& s)
{
    force_->setChecked(s.force_channels);
    reset_->setValue(s.reset_channels);
    quad_->setChecked(s.quad);
    unsrs_->setChecked(s.unsrs);
    swap_->setChecked(s.swapchannels);
}

void ChannelsPage::collect(ConversionSettings& s) const
{
    s.force_channels = force_->isChecked();
    s.reset_channels = reset_->value();
    s.quad = quad_->isChecked();
    s.unsrs = unsrs_->isChecked();
    s.swapchannels = swap_->isChecked();
}
