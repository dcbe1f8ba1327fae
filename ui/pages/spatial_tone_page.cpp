#include "spatial_tone_page.h"

#include <QCoreApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "page_widgets.h"

SpatialTonePage::SpatialTonePage(QWidget* parent) : QWidget(parent)
{
    // Three columns: HRTF, surround, then tone with DSRE below it.
    auto* grid = new QGridLayout(this);
    grid->addWidget(buildHrtf(), 0, 0, 2, 1);
    grid->addWidget(buildSurround(), 0, 1, 2, 1);
    grid->addWidget(buildTone(), 0, 2);
    grid->addWidget(buildDsre(), 1, 2);
    grid->setRowStretch(1, 1);
    for (int c = 0; c < 3; ++c)
        grid->setColumnStretch(c, 1);
}

QCheckBox* SpatialTonePage::switchFor(QGroupBox* group, const QString& label, const QString& onText,
                                      const QString& offText)
{
    auto* box = new QCheckBox(label, this);
    group->setEnabled(false);
    connect(box, &QCheckBox::toggled, group, &QWidget::setEnabled);
    connect(box, &QCheckBox::clicked, this, [this, onText, offText](bool on) { emit logLine(on ? onText : offText); });
    return box;
}

QWidget* SpatialTonePage::buildHrtf()
{
    auto* column = new QWidget(this);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    hrtfGroup_ = new QGroupBox(QCoreApplication::translate("MainWindow", "HRTF 空间音频"), column);
    hrtf_ = switchFor(hrtfGroup_, QCoreApplication::translate("MainWindow", "启用 HRTF 空间音频 (--hrtf)"),
                      QCoreApplication::translate("MainWindow", "启用 HRTF 空间音频 (--hrtf <mono|ms|stereo>)"),
                      QCoreApplication::translate("MainWindow", "禁用 HRTF 空间音频"));
    auto* form = new QFormLayout(hrtfGroup_);
    hrtfMode_ = new QComboBox(hrtfGroup_);
    hrtfMode_->addItems({QStringLiteral("mono"), QStringLiteral("ms"), QStringLiteral("stereo")});
    hrtfMode_->setCurrentIndex(1);
    hrtfMix_ = makeDoubleSpin(hrtfGroup_, 0.0, 1.0, 2, 0.05, 1.0);
    hrtfSide_ = makeDoubleSpin(hrtfGroup_, 0.0, 1.0, 2, 0.05, 1.0);
    hrtfDepth_ = makeDoubleSpin(hrtfGroup_, -1.0, 1.0, 2, 0.1, 1.0);
    form->addRow(QCoreApplication::translate("MainWindow", "模式:"), hrtfMode_);
    form->addRow(QCoreApplication::translate("MainWindow", "干湿比 (dry/wet):"), hrtfMix_);
    form->addRow(QCoreApplication::translate("MainWindow", "侧向扩散比:"), hrtfSide_);
    form->addRow(QCoreApplication::translate("MainWindow", "深度 (+1前 / 0耳位 / -1后):"), hrtfDepth_);
    auto* note =
        new QLabel(QCoreApplication::translate("MainWindow", "使用引擎内置 HRIR; 不提供自定义 .sofa 文件"), hrtfGroup_);
    note->setWordWrap(true);
    note->setStyleSheet(QStringLiteral("color: palette(mid);"));
    form->addRow(note);
    layout->addWidget(hrtf_);
    layout->addWidget(hrtfGroup_, 1);
    return column;
}

QWidget* SpatialTonePage::buildSurround()
{
    auto* column = new QWidget(this);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    surroundGroup_ = new QGroupBox(QCoreApplication::translate("MainWindow", "环绕"), column);
    surround_ = switchFor(surroundGroup_, QCoreApplication::translate("MainWindow", "启用环绕 (--surround)"),
                          QCoreApplication::translate("MainWindow", "启用环绕 (--surround delayMs mix side balance)"),
                          QCoreApplication::translate("MainWindow", "禁用环绕"));
    auto* form = new QFormLayout(surroundGroup_);
    surroundDelay_ = makeSpin(surroundGroup_, 0, 500, 1, 15);
    surroundMix_ = makeSpin(surroundGroup_, 0, 100, 1, 80);
    surroundSide_ = new QCheckBox(QCoreApplication::translate("MainWindow", "侧向 (side)"), surroundGroup_);
    surroundSide_->setChecked(true);
    surroundBalance_ = makeSpin(surroundGroup_, -100, 100, 1, 0);
    form->addRow(QCoreApplication::translate("MainWindow", "延迟 (ms):"), surroundDelay_);
    form->addRow(QCoreApplication::translate("MainWindow", "混合 (%):"), surroundMix_);
    form->addRow(surroundSide_);
    form->addRow(QCoreApplication::translate("MainWindow", "平衡 (-100~100, 0=不发):"), surroundBalance_);
    layout->addWidget(surround_);
    layout->addWidget(surroundGroup_, 1);
    return column;
}

QWidget* SpatialTonePage::buildTone()
{
    auto* group = new QGroupBox(QCoreApplication::translate("MainWindow", "音调 (shelving)"), this);
    auto* form = new QFormLayout(group);
    bass_ = makeDoubleSpin(group, -24.0, 24.0, 1, 0.5, 0.0);
    treble_ = makeDoubleSpin(group, -24.0, 24.0, 1, 0.5, 0.0);
    precut_ = makeDoubleSpin(group, -24.0, 0.0, 1, 0.5, 0.0);
    form->addRow(QCoreApplication::translate("MainWindow", "低音 (dB):"), bass_);
    form->addRow(QCoreApplication::translate("MainWindow", "高音 (dB):"), treble_);
    form->addRow(QCoreApplication::translate("MainWindow", "EQ 前置衰减 (dB):"), precut_);
    connect(precut_, &QDoubleSpinBox::valueChanged, this, &SpatialTonePage::precutChanged);
    return group;
}

QWidget* SpatialTonePage::buildDsre()
{
    auto* column = new QWidget(this);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    dsreGroup_ = new QGroupBox(QStringLiteral("DSRE"), column);
    dsre_ = switchFor(dsreGroup_, QCoreApplication::translate("MainWindow", "启用 DSRE 数字频谱共振增强 (--dsre)"),
                      QCoreApplication::translate("MainWindow", "启用 DSRE (--dsre mix)"),
                      QCoreApplication::translate("MainWindow", "禁用 DSRE"));
    auto* form = new QFormLayout(dsreGroup_);
    dsreMix_ = makeDoubleSpin(dsreGroup_, 0.0, 1.0, 2, 0.05, 0.35);
    form->addRow(QCoreApplication::translate("MainWindow", "干湿比 (0=dry, 1=全效果):"), dsreMix_);
    layout->addWidget(dsre_);
    layout->addWidget(dsreGroup_, 1);
    return column;
}

double SpatialTonePage::precutDb() const
{
    return precut_->value();
}

void SpatialTonePage::apply(const ConversionSettings& s)
{
    hrtf_->setChecked(s.apply_hrtf);
    hrtfMode_->setCurrentIndex(s.hrtf_mode >= 0 && s.hrtf_mode < 3 ? s.hrtf_mode : 1);
    hrtfMix_->setValue(s.hrtf_mix);
    hrtfSide_->setValue(s.hrtf_side_mix);
    hrtfDepth_->setValue(s.hrtf_depth);
    surround_->setChecked(s.apply_surround);
    surroundDelay_->setValue(s.surround_delay_ms);
    surroundMix_->setValue(s.surround_mix);
    surroundSide_->setChecked(s.surround_side);
    surroundBalance_->setValue(s.surround_balance);
    bass_->setValue(s.tone_bass_db);
    treble_->setValue(s.tone_treble_db);
    precut_->setValue(s.eq_precut_db);
    dsre_->setChecked(s.apply_dsre);
    dsreMix_->setValue(s.dsreMix);
}

void SpatialTonePage::collect(ConversionSettings& s) const
{
    s.apply_hrtf = hrtf_->isChecked();
    s.hrtf_mode = hrtfMode_->currentIndex();
    s.hrtf_mix = hrtfMix_->value();
    s.hrtf_side_mix = hrtfSide_->value();
    s.hrtf_depth = hrtfDepth_->value();
    s.apply_surround = surround_->isChecked();
    s.surround_delay_ms = surroundDelay_->value();
    s.surround_mix = surroundMix_->value();
    s.surround_side = surroundSide_->isChecked();
    s.surround_balance = surroundBalance_->value();
    s.tone_bass_db = bass_->value();
    s.tone_treble_db = treble_->value();
    s.eq_precut_db = precut_->value();
    s.apply_dsre = dsre_->isChecked();
    s.dsreMix = dsreMix_->value();
}
