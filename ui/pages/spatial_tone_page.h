#pragma once
#include <QWidget>

#include "conversion_settings.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGroupBox;
class QSpinBox;

// "Spatial & Tone": HRTF, surround, shelving tone and EQ pre-cut, DSRE.
class SpatialTonePage : public QWidget {
    Q_OBJECT
public:
    explicit SpatialTonePage(QWidget* parent = nullptr);

    void apply(const ConversionSettings& s);
    void collect(ConversionSettings& s) const;
    double precutDb() const;

signals:
    void logLine(const QString& text);
    void precutChanged(double db);

private:
    QWidget* buildHrtf();
    QWidget* buildSurround();
    QWidget* buildTone();
    QWidget* buildDsre();
    // A check box that enables its group and says so in the log when the user flips it.
    QCheckBox* switchFor(QGroupBox* group, const QString& label, const QString& onText, const QString& offText);

    QCheckBox* hrtf_ = nullptr;
    QGroupBox* hrtfGroup_ = nullptr;
    QComboBox* hrtfMode_ = nullptr;
    QDoubleSpinBox* hrtfMix_ = nullptr;
    QDoubleSpinBox* hrtfSide_ = nullptr;
    QDoubleSpinBox* hrtfDepth_ = nullptr;
    QCheckBox* surround_ = nullptr;
    QGroupBox* surroundGroup_ = nullptr;
    QSpinBox* surroundDelay_ = nullptr;
    QSpinBox* surroundMix_ = nullptr;
    QCheckBox* surroundSide_ = nullptr;
    QSpinBox* surroundBalance_ = nullptr;
    QDoubleSpinBox* bass_ = nullptr;
    QDoubleSpinBox* treble_ = nullptr;
    QDoubleSpinBox* precut_ = nullptr;
    QCheckBox* dsre_ = nullptr;
    QGroupBox* dsreGroup_ = nullptr;
    QDoubleSpinBox* dsreMix_ = nullptr;
};
