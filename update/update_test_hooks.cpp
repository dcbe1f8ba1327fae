#include "update_test_hooks.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

// ZUVO_UPDATE_TEST_CLICK=1: click "检查更新…" once the window is up, answer the
// offer with "下载并更新" and every other box with its first button, and
// print each box's text to standard error so the test can follow.
void installUpdateTestHooks(QPushButton* checkButton)
{
    if (qEnvironmentVariable("ZUVO_UPDATE_TEST_CLICK").isEmpty())
        return;
    QTimer::singleShot(800, checkButton, [checkButton] { checkButton->click(); });
    auto* poll = new QTimer(checkButton);
    poll->setInterval(200);
    QObject::connect(poll, &QTimer::timeout, checkButton, [] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box || !box->isVisible() || box->property("zuvoTestSeen").toBool())
                continue;
            box->setProperty("zuvoTestSeen", true);
            std::fprintf(stderr, "[test-hook] box %s: %s\n", qPrintable(box->objectName()),
                         qPrintable(box->text().replace(QLatin1Char('\n'), QLatin1Char(' '))));
            std::fflush(stderr);
            QAbstractButton* target = box->buttons().value(0);
            for (QAbstractButton* b : box->buttons()) {
                if (box->buttonRole(b) == QMessageBox::AcceptRole)
                    target = b;
            }
            if (target)
                QTimer::singleShot(300, target, [target] { target->click(); });
        }
    });
    poll->start();
}
