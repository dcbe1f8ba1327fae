#pragma once
#include <QString>

// One line that tells how the interface language was set up, for scripts
// that check a build's translations without looking at a window.
QString languageSmokeLine(const QString& tag);
