#include <QApplication>
#include <QCoreApplication>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QStatusBar>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <memory>

#include "console_attach.h"
#include "device_listing.h"
#include "engine_discovery.h"
#include "engine_main.h"
#include "language_selector.h"
#include "mainwindow.h"
#include "pages/basic_page.h"
#include "parameter_tabs.h"
#include "qt_messages.h"
#include "quit_on_signal.h"
#include "screenshot.h"
#include "smoke_report.h"
#include "startup_env.h"
#include "update_ui.h"

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
    routeQtMessagesToOriginalStderr();

    auto app = std::make_unique<QApplication>(argc, argv);
    applySettingsDirFromEnvironment();
    QCoreApplication::setApplicationName(QStringLiteral("ZuvoAudioTools"));
    QCoreApplication::setOrganizationName(QStringLiteral("ZUVO"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/zuvo.png")));
    quitEventLoopOnTerminationSignals();
    const QString languageTag = installTranslator(app.get());

    auto window = std::make_unique<MainWindow>();
    window->statusBar()->addPermanentWidget(new QLabel(QCoreApplication::translate("UiLangRow", "语言"), window.get()));
    window->statusBar()->addPermanentWidget(makeLanguageSelector(window.get()));
    // Updates: the status-bar button, right of whatever the window put there.
    addUpdateButton(window.get());
    window->ensureEngineLogPath();
    if (qEnvironmentVariableIsSet("ZUVO_AI_AUTORUN"))
        window->runAutorun(qEnvironmentVariable("ZUVO_AI_AUTORUN"), qEnvironmentVariableIsSet("ZUVO_AI_AUTOCLOSE"));
    window->show();

    // Demonstrations run before the screenshot so that a shot shows them.
    if (qEnvironmentVariableIsSet("ZUVO_GUI_EQDEMO"))
        window->showEqDemo();
    else if (qEnvironmentVariableIsSet("ZUVO_GUI_PLAYDEMO"))
        window->parameterTabs()->setCurrentIndex(4);
    if (qEnvironmentVariableIsSet("ZUVO_GUI_TAB"))
        window->parameterTabs()->setCurrentIndex(environmentInt("ZUVO_GUI_TAB"));

    const QString shotPath = qEnvironmentVariable("ZUVO_GUI_SHOT");
    if (!shotPath.isEmpty())
        saveWindowScreenshot(window.get(), shotPath);
    // Updates: the silent check (skipped when ZUVO_NO_UPDATE_CHECK is given).
    startStartupUpdateCheck(window.get());

    if (!window->runPlaytestHook()) // start-up test hooks: at most one of the chain runs
        window->runRectestHook();
    window->runPreviewHook();
    if (qEnvironmentVariableIsSet("ZUVO_GUI_DUMP_MOD")) {
        for (const QString& option : BasicPage::modulatorOptions()) {
            std::fputs(option.toUtf8().constData(), stdout);
            std::fputc('\n', stdout);
            std::fflush(stdout);
        }
        window.reset();
        app.reset();
        return 0;
    }
    if (qEnvironmentVariableIsSet("ZUVO_GUI_SMOKE")) {
        std::printf("%s\n", languageSmokeLine(languageTag).toUtf8().constData());
        std::fflush(stdout);
        if (qEnvironmentVariableIsSet("ZUVO_GUI_SMOKE_ABOUT")) {
            runDeviceListing(findEngine(), qApp, [](qint64 triggerMs, const QString& result) {
                const QString head = result.left(120).replace(QLatin1Char('\n'), QLatin1Char(' '));
                std::printf("SMOKE_ABOUT trigger_ms=%lld result_chars=%d head=\"%s\"\n",
                            static_cast<long long>(triggerMs), static_cast<int>(result.size()),
                            head.toUtf8().constData());
                std::fflush(stdout);
                QCoreApplication::exit(result.size() < 1 ? 3 : 0);
            });
        } else {
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
    }

    const int code = QApplication::exec();
    window.reset();
    app.reset();
    return code;
}
