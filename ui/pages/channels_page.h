#pragma once
#include <QWidget>

#include "conversion_settings.h"

class QCheckBox;
class QSpinBox;

// "Channels": keep, reset, quad, added surround channels, swap.
class ChannelsPage : public QWidget {
    Q_OBJECT
public:
    explicit ChannelsPage(QWidget* parent = nullptr);

    void apply(const ConversionSettings& s);
    void collect(ConversionSettings& s) const;

signals:
    void logLine(const QString& text);

private:
    QCheckBox* force_ = nullptr;
    QSpinBox* reset_ = nullptr;
    QCheckBox* quad_ = nullptr;
    QCheckBox* unsrs_ = nullptr;
    QCheckBox* swap_ = nullptr;
};
