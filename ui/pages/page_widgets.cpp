#include "page_widgets.h"

#include <QComboBox>

QSpinBox* makeSpin(QWidget* parent, int min, int max, int step, int initial)
{
    auto* spin = new QSpinBox(parent);
    spin->setRange(min, max);
    spin->setSingleStep(step);
    spin->setValue(initial);
    return spin;
}

QDoubleSpinBox* makeDoubleSpin(QWidget* parent, double min, double max, int decimals, double step,
                               double initial)
{
    auto* spin = new QDoubleSpinBox(parent);
    spin->setDecimals(decimals);
    spin->setRange(min, max);
    spin->setSingleStep(step);
    spin->setValue(initial);
    return spin;
}

void selectComboText(QComboBox* combo, const QString& text)
{
    const int index = combo->findText(text);
    if (index >= 0)
        combo->setCurrentIndex(index);
}
