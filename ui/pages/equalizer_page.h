#pragma once
#include <QList>
#include <QWidget>

#include "conversion_settings.h"

class EqCurveWidget;
class QCheckBox;
class QPushButton;
class QTableWidget;

// "Equalizer": the switch, the band table and the response curve.
class EqualizerPage : public QWidget {
    Q_OBJECT
public:
    explicit EqualizerPage(QWidget* parent = nullptr);

    void apply(const ConversionSettings& s);
    // Takes the valid rows only (centre frequency > 0).
    void collect(ConversionSettings& s) const;
    // Rows that collect() leaves out.
    int invalidRowCount() const;

    void addBand(const EqBand& band);
    void setEqChecked(bool on);
    void setPrecutDb(double db);
    EqCurveWidget* curve() const { return curve_; }

signals:
    void logLine(const QString& text);

private:
    QList<EqBand> rowsAsBands(int* invalid) const;
    void refreshCurve();
    void setEditingEnabled(bool on);

    QCheckBox* enable_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* remove_ = nullptr;
    QPushButton* clear_ = nullptr;
    QTableWidget* table_ = nullptr;
    EqCurveWidget* curve_ = nullptr;
    bool filling_ = false;
};
