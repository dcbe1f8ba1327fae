#pragma once
#include <QCoreApplication>
#include <QString>

// The checker's own error and status texts live in the context "UpdateChecker".
inline QString trChecker(const char* text)
{
    return QCoreApplication::translate("UpdateChecker", text);
}
