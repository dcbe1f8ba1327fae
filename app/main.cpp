#include <QApplication>
#include <QCoreApplication>
#include <QIcon>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <memory>

#include "console_attach.h"
#include "engine_main.h"
#include "mainwindow.h"
#include "quit_on_signal.h"
#include "screenshot.h"
#include "startup_env.h"

namespace {

int runEngine(int argc, char** argv)
{
    // A core application is enough for the engine and, unlike a GUI one,
    // needs no display: the engine mode must work on a headless machine.
    int result = 0;
    {
        QCoreApplication core(argc, argv);
        applySettingsDirFromEnvironment();
        result = zuvo_engine_main(argc, argv);
    }
    std::fflush(stdout);
    std::fflush(stderr);
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    attachConsole();

    if (isEngineInvocation(argc, argv))
        return runEngine(argc, argv);

    auto app = std::make_unique<QApplication>(argc, argv);
    applySettingsDirFromEnvironment();
    QCoreApplication::setApplicationName(QStringLiteral("ZuvoAudioTools"));
    QCoreApplication::setOrganizationName(QStringLiteral("ZUVO"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/zuvo.png")));
    quitEventLoopOnTerminationSignals();

    auto window = std::make_unique<MainWindow>();
    window->ensureEngineLogPath();
    if (qEnvironmentVariableIsSet("ZUVO_AI_AUTORUN"))
        window->runAutorun(qEnvironmentVariable("ZUVO_AI_AUTORUN"), qEnvironmentVariableIsSet("ZUVO_AI_AUTOCLOSE"));
    window->show();

    const QString shotPath = qEnvironmentVariable("ZUVO_GUI_SHOT");
    if (!shotPath.isEmpty())
        saveWindowScreenshot(window.get(), shotPath);

    if (!window->runPlaytestHook()) // start-up test hooks: at most one of the chain runs
        window->runRectestHook();

    const int code = QApplication::exec();
    window.reset();
    app.reset();
    return code;
}
