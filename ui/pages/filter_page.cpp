#include "filter_page.h"

#include <QCoreApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

#include "page_widgets.h"

namespace {
const char* const kAlgorithms[] = {"window", "remez", "minphase"};
enum GainUnit { Linear = 0, Decibel = 1 };
} // namespace

FilterPage::FilterPage(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);

    auto* top = new QHBoxLayout;
    algorithm_ = new QComboBox(this);
    algorithm_->addItems({QCoreApplication::translate("MainWindow", "窗口法 (Window Method)"),
                          QStringLiteral("Remez (Parks-McClellan)"),
                          QCoreApplication::translate("MainWindow", "最小相位 (Min-Phase)")});
    filterType_ = new QComboBox(this);
    filterType_->addItems({QStringLiteral("standard"), QStringLiteral("slow"), QStringLiteral("minphase")});
    predistortion_ = new QCheckBox(QCoreApplication::translate("MainWindow", "应用预失真处理"), this);
    top->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "算法:"), this));
    top->addWidget(algorithm_);
    top->addSpacing(16);
    top->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "滤波类型:"), this));
    top->addWidget(filterType_);
    top->addSpacing(16);
    top->addWidget(predistortion_);
    top->addStretch(1);

    grid->addLayout(top, 0, 0, 1, 3);
    grid->addWidget(buildWindowGroup(), 1, 0);
    grid->addWidget(buildRemezGroup(), 1, 1);
    grid->addWidget(buildStopGroup(), 1, 2);
    grid->addWidget(buildTransitionGroup(), 2, 0, 1, 2);
    grid->addWidget(buildGainGroup(), 2, 2);
    grid->setRowStretch(3, 1);
    for (int c = 0; c < 3; ++c)
        grid->setColumnStretch(c, 1);
}

QWidget* FilterPage::buildWindowGroup()
{
    auto* group = new QGroupBox(QCoreApplication::translate("MainWindow", "窗口法参数"), this);
    auto* form = new QFormLayout(group);
    windowType_ = new QComboBox(group);
    windowType_->addItems({QStringLiteral("kaiser"), QStringLiteral("blackman"), QStringLiteral("flattop"),
                           QStringLiteral("bartlett"), QStringLiteral("hamming"), QStringLiteral("hanning")});
    beta_ = makeDoubleSpin(group, 0.0, 100.0, 1, 0.5, 6.0);
    form->addRow(QCoreApplication::translate("MainWindow", "窗口类型:"), windowType_);
    form->addRow(QStringLiteral("Beta (Kaiser):"), beta_);
    return group;
}

QWidget* FilterPage::buildRemezGroup()
{
    auto* group = new QGroupBox(QCoreApplication::translate("MainWindow", "Remez 算法参数"), this);
    auto* form = new QFormLayout(group);
    maxIterations_ = makeSpin(group, 1, 1000, 1, 100);
    gridDensity_ = makeSpin(group, 16, 256, 1, 32);
    form->addRow(QCoreApplication::translate("MainWindow", "最大迭代次数:"), maxIterations_);
    form->addRow(QCoreApplication::translate("MainWindow", "网格密度:"), gridDensity_);
    return group;
}

QWidget* FilterPage::buildStopGroup()
{
    auto* group = new QGroupBox(QCoreApplication::translate("MainWindow", "停止带衰减 (A_stop)"), this);
    auto* form = new QFormLayout(group);
    stopgain_ = makeDoubleSpin(group, 0.0, 300.0, 1, 5.0, 0.0);
    stopgain_->setSpecialValueText(QCoreApplication::translate("MainWindow", "0=不发"));
    form->addRow(QCoreApplication::translate("MainWindow", "停止带衰减 (dB):"), stopgain_);
    return group;
}

QWidget* FilterPage::buildTransitionGroup()
{
    auto* group = new QGroupBox(QCoreApplication::translate("MainWindow", "过渡带 (截止频率)"), this);
    auto* row = new QHBoxLayout(group);
    passband_ = makeSpin(group, 0, 2000000, 100, 0);
    stopband_ = makeSpin(group, 0, 2000000, 100, 0);
    row->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "通带截止 (Hz):"), group));
    row->addWidget(passband_, 1);
    row->addSpacing(16);
    row->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "阻带截止 (Hz):"), group));
    row->addWidget(stopband_, 1);
    return group;
}

QWidget* FilterPage::buildGainGroup()
{
    auto* group = new QGroupBox(QCoreApplication::translate("MainWindow", "增益 (ABS)"), this);
    auto* row = new QHBoxLayout(group);
    gain_ = makeDoubleSpin(group, 0.0, 20.0, 3, 0.1, 0.0);
    gainUnit_ = new QComboBox(group);
    gainUnit_->addItems({QStringLiteral("x"), QStringLiteral("dB")});
    row->addWidget(new QLabel(QCoreApplication::translate("MainWindow", "绝对值增益:"), group));
    row->addWidget(gain_, 1);
    row->addWidget(gainUnit_);
    return group;
}

void FilterPage::apply(const ConversionSettings& s)
{
    algorithm_->setCurrentIndex(s.algorithm == QLatin1String("remez")      ? 1
                                : s.algorithm == QLatin1String("minphase") ? 2
                                                                           : 0);
    selectComboText(filterType_, s.filter_type);
    predistortion_->setChecked(s.predistortion);
    selectComboText(windowType_, s.window_type);
    beta_->setValue(s.beta);
    maxIterations_->setValue(s.max_iterations);
    gridDensity_->setValue(s.grid_density);
    stopgain_->setValue(s.stopgain_alpha);
    passband_->setValue(s.passband_cutoff);
    stopband_->setValue(s.stopband_cutoff);
    if (s.abs_db_value == 0.0) {
        gainUnit_->setCurrentIndex(Linear);
        gain_->setValue(s.abs_value);
    } else {
        gainUnit_->setCurrentIndex(Decibel);
        gain_->setValue(s.abs_db_value);
    }
}

void FilterPage::collect(ConversionSettings& s) const
{
    s.algorithm = QString::fromLatin1(kAlgorithms[qBound(0, algorithm_->currentIndex(), 2)]);
    s.filter_type = filterType_->currentText();
    s.predistortion = predistortion_->isChecked();
    s.window_type = windowType_->currentText();
    s.beta = beta_->value();
    s.max_iterations = maxIterations_->value();
    s.grid_density = gridDensity_->value();
    s.stopgain_alpha = stopgain_->value();
    s.passband_cutoff = passband_->value();
    s.stopband_cutoff = stopband_->value();
    const bool db = gainUnit_->currentIndex() == Decibel;
    s.abs_value = db ? 0.0 : gain_->value();
    s.abs_db_value = db ? gain_->value() : 0.0;
}
