#pragma once
#include <QList>
#include <QWidget>

#include "conversion_settings.h"

class QCheckBox;
class QLineEdit;

// "Advanced": one row per entry of the command-line builder's option table,
// grouped as the table groups them. The table is the only source of rows.
class AdvancedPage : public QWidget {
    Q_OBJECT
public:
    explicit AdvancedPage(QWidget* parent = nullptr);

    void apply(const ConversionSettings& s);
    void collect(ConversionSettings& s) const;

private:
    struct Row {
        QString option;
        QString defaultText;
        QCheckBox* box = nullptr;
        QLineEdit* value = nullptr; // null for a switch
    };
    QList<Row> rows_;
};
