#pragma once
#include <QStringList>
#include <QWidget>

#include "conversion_settings.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;
class QSpinBox;

// A fixed rate/filter-length set applied by one button, without a file.
struct MasterPreset {
    QString name;    // the button's text
    QString tooltip;
    int rateIndex;   // position in the DSD-rate list, applied as is
    int taps;
    bool highBandwidth;
};

// "Basic": DSD rate, filter length, modulator, master presets, container
// and report switches, denoise.
class BasicPage : public QWidget {
    Q_OBJECT
public:
    explicit BasicPage(QWidget* parent = nullptr);

    void apply(const ConversionSettings& s);
    void collect(ConversionSettings& s) const;
    // Locks every parameter; the master-preset buttons stay pressable so
    // that they can say why they do nothing.
    void setLocked(bool locked);

    // The modulator choices as the page offers them, in order.
    static QStringList modulatorOptions();
    static QList<MasterPreset> masterPresets();
    void applyMasterPreset(const MasterPreset& preset);
    // The PDF report box is usable only with an engine that makes reports.
    void setPdfReportSupported(bool supported);

    bool pcmOutputChosen() const;
    bool dstChecked() const;

signals:
    void logLine(const QString& text);
    // The user switched DST on or off (not a programmatic change).
    void dstClicked(bool on);
    void masterPresetRequested(const MasterPreset& preset);
    void presetManagerRequested();

private:
    QWidget* buildRateAndModulator();
    QWidget* buildMasterRow();
    QWidget* buildSwitches();
    void onNoiseProfilingClicked(bool on);

    QWidget* upper_ = nullptr;
    QWidget* lower_ = nullptr;
    QComboBox* rate_ = nullptr;
    QSpinBox* taps_ = nullptr;
    QButtonGroup* modulator_ = nullptr;
    QCheckBox* poly_ = nullptr;
    QCheckBox* dst_ = nullptr;
    QCheckBox* dxd_ = nullptr;
    QCheckBox* reverse_ = nullptr;
    QSpinBox* dstLevel_ = nullptr;
    QCheckBox* highBandwidth_ = nullptr;
    QCheckBox* openCl_ = nullptr;
    QCheckBox* pdfReport_ = nullptr;
    QCheckBox* report_ = nullptr;
    QCheckBox* noiseProfiling_ = nullptr;
    QComboBox* denoise_ = nullptr;
    QCheckBox* keepHarmonics_ = nullptr;
    QCheckBox* reportPeak_ = nullptr;
    QCheckBox* reportRms_ = nullptr;
    QCheckBox* reportNoDr_ = nullptr;
};
