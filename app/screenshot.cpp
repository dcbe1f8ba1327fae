#include "screenshot.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>
#include <cstdio>

bool saveWindowScreenshot(QWidget* window, const QString& path)
{
    if (!window->isVisible())
        window->show();
    for (int i = 0; i < 40; ++i) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        if (window->isVisible() && window->width() > 1 && window->height() >= 2)
            break;
    }
    const bool saved = window->grab().save(path);
    std::printf("[shot] %s -> %s (visible=%d %dx%d)\n", saved ? "saved" : "FAILED",
                path.toLocal8Bit().constData(), window->isVisible() ? 1 : 0, window->width(),
                window->height());
    std::fflush(stdout);
    return saved;
}
