#pragma once
#include <QWidget>

#include "conversion_settings.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QSpinBox;

// "Filter": FIR design method and its parameters, transition band, gain.
class FilterPage : public QWidget {
    Q_OBJECT
public:
    explicit FilterPage(QWidget* parent = nullptr);

    void apply(const ConversionSettings& s);
    void collect(ConversionSettings& s) const;

private:
    QWidget* buildWindowGroup();
    QWidget* buildRemezGroup();
    QWidget* buildStopGroup();
    QWidget* buildTransitionGroup();
    QWidget* buildGainGroup();

    QComboBox* algorithm_ = nullptr;
    QComboBox* filterType_ = nullptr;
    QCheckBox* predistortion_ = nullptr;
    QComboBox* windowType_ = nullptr;
    QDoubleSpinBox* beta_ = nullptr;
    QSpinBox* maxIterations_ = nullptr;
    QSpinBox* gridDensity_ = nullptr;
    QDoubleSpinBox* stopgain_ = nullptr;
    QSpinBox* passband_ = nullptr;
    QSpinBox* stopband_ = nullptr;
    QDoubleSpinBox* gain_ = nullptr;
    QComboBox* gainUnit_ = nullptr;
};
