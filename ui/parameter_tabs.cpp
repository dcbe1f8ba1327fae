#include "parameter_tabs.h"

#include <QScrollArea>

ParameterTabs::ParameterTabs(QWidget* parent)
    : QTabWidget(parent)
{
    setDocumentMode(false);
}

int ParameterTabs::insertPage(int index, QWidget* page, const QString& title)
{
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(page);
    if (index < 0 || index > count())
        index = count();
    return insertTab(index, scroll, title);
}

QWidget* ParameterTabs::pageAt(int index) const
{
    auto* scroll = qobject_cast<QScrollArea*>(widget(index));
    return scroll ? scroll->widget() : nullptr;
}
