#pragma once
#include <QString>

class QWidget;

// Shows the window if needed, lets it lay out, saves a grab of it to `path`
// (format from the extension) and reports the outcome on standard output.
bool saveWindowScreenshot(QWidget* window, const QString& path);
