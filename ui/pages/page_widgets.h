#pragma once
// Small builders shared by the parameter pages, so every spin box states its
// range, step, decimals and start value in one line where it is made.
// (The pages translate their texts in the "MainWindow" context, like every
// other text of the main window, so one translation file section covers it.)
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QString>

class QComboBox;
class QWidget;

QSpinBox* makeSpin(QWidget* parent, int min, int max, int step, int initial);
QDoubleSpinBox* makeDoubleSpin(QWidget* parent, double min, double max, int decimals, double step,
                               double initial);

// Selects the item whose text is `text`; leaves the selection alone when none matches.
void selectComboText(QComboBox* combo, const QString& text);
