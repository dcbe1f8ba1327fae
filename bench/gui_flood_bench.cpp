// How the window copes with an engine that floods it: the main window runs a
// queue through its automation hook against the scripted engine, in process
// and as a child process, while a 5 ms probe timer records the longest stall
// of the event loop and a second thread "clicks" Stop at a fixed moment.
//
//   gui_flood_bench [flood|stop|long|all] [inproc|child|both]
//
// Figures per run: time until the queue has ended (the whole output shown),
// the longest event-loop stall, for "stop" the delay between the click being
// posted and its handler running and the time until the queue ended, and the
// log pane's block count.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include "conversion_queue.h"
#include "log_pane.h"
#include "mainwindow.h"

namespace {

struct Figures {
    double totalMs = 0;
    double maxStallMs = 0;
    double stopHandledMs = -1;
    double stopToEndMs = -1;
    int blocks = 0;
    bool lastLineShown = false;
};

Figures runOnce(bool inProcess, const QString& script, int files, int stopAtMs, const QString& lastLine)
{
    QTemporaryDir dir;
    QFile f(dir.filePath("script.txt"));
    f.open(QIODevice::WriteOnly);
    f.write(script.toUtf8());
    f.close();
    qputenv("ZUVO_GUI_INPROC", inProcess ? "1" : "0");
    qputenv("ZUVO_ENGINE_BIN", FAKE_ENGINE_PATH);
    qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(dir.filePath("script.txt")));
    qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(dir.filePath("engine.log")));
    qputenv("ZUVO_AI_GUI_LOG", QFile::encodeName(dir.filePath("gui.log")));

    QStringList parts;
    for (int i = 0; i < files; ++i) {
        const QString in = dir.filePath(QString("in%1.wav").arg(i));
        QFile(in).open(QIODevice::WriteOnly);
        parts << in;
    }
    parts << dir.filePath("out") + '/';

    Figures fig;
    MainWindow w;
    w.show();
    auto* queue = w.findChild<ConversionQueue*>();
    auto* pane = w.findChild<LogPane*>();

    QElapsedTimer clock;
    QTimer probe;
    probe.setTimerType(Qt::PreciseTimer);
    qint64 lastTick = 0;
    QObject::connect(&probe, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        fig.maxStallMs = std::max(fig.maxStallMs, (now - lastTick) / 1e6 - 5.0);
        lastTick = now;
    });

    std::atomic<qint64> clickPosted{-1};
    qint64 clickHandled = -1;
    std::thread clicker;

    clock.start();
    probe.start(5);
    w.runAutorun(parts.join('|'), false);
    if (stopAtMs >= 0) {
        clicker = std::thread([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(stopAtMs));
            clickPosted = clock.nsecsElapsed();
            QMetaObject::invokeMethod(
                &w,
                [&] {
                    clickHandled = clock.nsecsElapsed();
                    w.stopConversion();
                },
                Qt::QueuedConnection);
        });
    }
    while (queue->isConverting() && clock.elapsed() < 180000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    const qint64 end = clock.nsecsElapsed();
    // The output counts as shown once the pane has drawn all it was given.
    while (pane->hasPending() && clock.elapsed() < 180000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    fig.totalMs = clock.nsecsElapsed() / 1e6;
    if (clicker.joinable())
        clicker.join();
    if (clickHandled >= 0) {
        fig.stopHandledMs = (clickHandled - clickPosted) / 1e6;
        fig.stopToEndMs = (end - clickPosted) / 1e6;
    }
    fig.blocks = pane->document()->blockCount();
    if (qEnvironmentVariableIsSet("FLOOD_BENCH_TAIL"))
        for (QTextBlock b = pane->document()->lastBlock(); b.isValid() && b.blockNumber() > fig.blocks - 4; b = b.previous())
            std::printf("  tail: %s\n", qPrintable(b.text().left(80)));
    if (!lastLine.isEmpty()) {
        for (QTextBlock b = pane->document()->lastBlock(); b.isValid(); b = b.previous()) {
            if (b.text().startsWith(lastLine)) {
                fig.lastLineShown = true;
                break;
            }
            if (b.blockNumber() < pane->document()->blockCount() - 40)
                break;
        }
    }
    return fig;
}

void print(const char* scenario, bool inProcess, const Figures& f)
{
    std::printf("%-10s %-8s total %8.0f ms  max stall %6.0f ms", scenario, inProcess ? "inproc" : "child",
                f.totalMs, f.maxStallMs);
    if (f.stopHandledMs >= 0)
        std::printf("  stop handled after %6.0f ms, queue ended %6.0f ms after the click", f.stopHandledMs,
                    f.stopToEndMs);
    std::printf("  blocks %d%s\n", f.blocks, f.lastLineShown ? "  (last line shown)" : "");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ZUVO_NO_UPDATE_CHECK", "1");
    QApplication app(argc, argv);
    const QString scenario = argc > 1 ? QString(argv[1]) : QString("all");
    const QString modes = argc > 2 ? QString(argv[2]) : QString("both");
    QTemporaryDir settings;
    qputenv("ZUVO_SETTINGS_DIR", QFile::encodeName(settings.path()));

    for (bool inProcess : {true, false}) {
        if ((modes == "inproc" && !inProcess) || (modes == "child" && inProcess))
            continue;
        if (scenario == "flood" || scenario == "all")
            print("flood", inProcess,
                  runOnce(inProcess, "flood 200000 flood line\nwrite-output\nexit 0\n", 1, -1, "flood line 199999"));
        if (scenario == "stop" || scenario == "all")
            print("stop", inProcess,
                  runOnce(inProcess, "flood 3000000 flood line\nwrite-output\nexit 0\n", 2, 500, QString()));
        if (scenario == "long" || scenario == "all") {
            print("line 600k", inProcess, runOnce(inProcess, "long 600000\nwrite-output\nexit 0\n", 1, -1, "xxxx"));
            print("line 2M", inProcess, runOnce(inProcess, "long 2000000\nwrite-output\nexit 0\n", 1, -1, "xxxx"));
        }
    }
    return 0;
}
