// The engine entry run inside this process: real pipes on descriptors 1
// and 2, real worker/reader/flusher threads, control lines through the
// queue. While a run is active descriptor 1 is the runner's pipe, so every
// check is made after the run has ended.

#include <QtTest>

#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <mutex>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "control/control_channel.h"
#include "engine_inproc_session.h"
#include "engine_proc_session.h"
#include "inproc_runner.h"

using namespace std::chrono_literals;

namespace {

// ---- entries the tests run in process ----------------------------------

std::atomic<bool> g_release{false};   // lets a holding entry return
std::atomic<int> g_holdingRuns{0};
std::atomic<bool> g_sawEarly{false};

std::mutex g_recordMutex;
std::vector<std::string> g_recordedArgs;
std::string g_recordedEnv;
std::vector<std::string> g_controlLines;

int entryFlushedMix(int, char**)
{
    std::printf("p1\n");
    std::fflush(stdout);
    std::cout << "c1\n" << std::flush;
    std::fprintf(stderr, "e1\n");
    std::printf("p2\n");
    std::fflush(stdout);
    return 0;
}

int entryUnflushed(int, char**)
{
    std::printf("a\n");
    std::cout << "b\n";
    std::printf("c\n");
    std::fprintf(stderr, "e\n");
    return 5;
}

int entryWaitsForItsOwnOutput(int, char**)
{
    std::printf("early\n"); // not flushed: only the runner's flusher can move it
    const auto deadline = std::chrono::steady_clock::now() + 3s;
    while (!g_sawEarly && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(5ms);
    return g_sawEarly ? 0 : 1;
}

int entryRemainder(int, char**)
{
    std::printf("x\ny");
    return 0;
}

int entryRecordsArgs(int argc, char** argv)
{
    std::lock_guard lock(g_recordMutex);
    g_recordedArgs.assign(argv, argv + argc);
    const char* env = std::getenv("ZUVO_INPROC");
    g_recordedEnv = env ? env : "<unset>";
    return argc;
}

int entryListens(int argc, char** argv)
{
    std::vector<std::string> args(argv, argv + argc);
    const zuvo::InprocHostOptions host = zuvo::takeInprocHostOptions(args);
    zuvo::ControlListener listener(host);
    listener.start([](const std::string& line) {
        std::lock_guard lock(g_recordMutex);
        g_controlLines.push_back(line);
    });
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (!listener.stopRequested() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(5ms);
    return listener.stopRequested() ? 195 : 1;
}

// Deaf to control lines; returns 42 once the test releases it.
int entryHolds(int, char**)
{
    ++g_holdingRuns;
    std::printf("holding\n");
    std::fflush(stdout);
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    while (!g_release && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(5ms);
    std::printf("released\n");
    return 42;
}

int entryThrowsStd(int, char**)
{
    std::printf("before\n");
    throw std::runtime_error("boom");
}

int entryThrowsOther(int, char**)
{
    std::printf("before\n");
    throw 7;
}

// ---- helpers ----------------------------------------------------------

struct Recorder {
    mutable std::mutex mutex;
    QStringList lines;
    int stderrLines = 0;
    QList<QPair<int, bool>> finishes;

    void attach(EngineSession& s)
    {
        s.setCallbacks(
            [this](const QString& line, bool fromStderr) {
                std::lock_guard lock(mutex);
                lines << line;
                stderrLines += fromStderr ? 1 : 0;
            },
            [this](int code, bool crashed) {
                std::lock_guard lock(mutex);
                finishes << qMakePair(code, crashed);
            });
    }
    QStringList takeLines() const
    {
        std::lock_guard lock(mutex);
        return lines;
    }
    int finishCount() const
    {
        std::lock_guard lock(mutex);
        return int(finishes.size());
    }
};

// Polls as the main window's timer does, until the end is reported.
bool pollUntilFinished(EngineSession& s, const Recorder& rec, int expectedFinishes = 1, int timeoutMs = 8000)
{
    QElapsedTimer t;
    t.start();
    while (rec.finishCount() < expectedFinishes) {
        if (t.elapsed() > timeoutMs)
            return false;
        s.poll();
        std::this_thread::sleep_for(10ms);
    }
    return true;
}

QString readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

struct FileId {
    dev_t dev = 0;
    ino_t ino = 0;
    bool operator==(const FileId&) const = default;
};

FileId idOf(int fd)
{
    struct stat st {};
    if (::fstat(fd, &st) != 0)
        return {};
    return {st.st_dev, st.st_ino};
}

using Entry = int (*)(int, char**);

} // namespace

class TestSessionInProc : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void outputArrivesAsOneStream_data();
    void outputArrivesAsOneStream();
    void bufferedOutputArrivesWhileRunning();
    void remainderIsALineOfItsOwn();
    void hostOptionsAndEnvironmentReachTheEntry();
    void controlLinesGoThroughTheQueue();
    void scriptedEngineStopsOnRequest();
    void queueHoldsAtMost4096Lines();
    void startWhileRunningDisturbsNothing();
    void descriptorsComeBackAfterTheRun();
    void missingStandardDescriptorsAreCreated();
    void ignoredStopTimesOutAndKillDoesNothing();
    void throwingEntryIsLoggedAndEnds_data();
    void throwingEntryIsLoggedAndEnds();
    void throwingLineCallbackIsLogged_data();
    void throwingLineCallbackIsLogged();
    void entrylessSessionDoesNotStart();
    void sessionDeletedWhileRunning();
    void factoryFollowsGuiInproc_data();
    void factoryFollowsGuiInproc();

private:
    std::unique_ptr<QTemporaryDir> dir_;
};

void TestSessionInProc::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    g_release = false;
    g_holdingRuns = 0;
    g_sawEarly = false;
    std::lock_guard lock(g_recordMutex);
    g_recordedArgs.clear();
    g_recordedEnv.clear();
    g_controlLines.clear();
}

void TestSessionInProc::cleanup()
{
    g_release = true; // no holding entry may outlive its test
    qunsetenv("ZUVO_INPROC_LOG");
    qunsetenv("ZUVO_GUI_INPROC");
    qunsetenv("ZUVO_FAKE_SCRIPT");
}

void TestSessionInProc::outputArrivesAsOneStream_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QStringList>("stdoutLines");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("flushed: printf, cout, stderr in order") << 0 << QStringList{"p1\n", "c1\n", "e1\n", "p2\n"} << 0;
    QTest::newRow("never flushed") << 1 << QStringList{"a\n", "b\n", "c\n"} << 5;
}

void TestSessionInProc::outputArrivesAsOneStream()
{
    QFETCH(int, which);
    QFETCH(QStringList, stdoutLines);
    QFETCH(int, exitCode);
    const Entry entry = which == 0 ? entryFlushedMix : entryUnflushed;

    EngineInProcSession session(entry);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {}), 0);
    QVERIFY(pollUntilFinished(session, rec));

    QStringList lines = rec.takeLines();
    QCOMPARE(rec.stderrLines, 0); // one pipe: everything counts as standard output
    if (which == 1) {
        // Standard error is unbuffered and may overtake buffered standard
        // output; within standard output the order holds.
        QVERIFY(lines.removeOne("e\n"));
    }
    QCOMPARE(lines, stdoutLines);
    QCOMPARE(rec.finishes.first(), qMakePair(exitCode, false));
}

void TestSessionInProc::bufferedOutputArrivesWhileRunning()
{
    EngineInProcSession session(entryWaitsForItsOwnOutput);
    Recorder rec;
    session.setCallbacks(
        [&rec](const QString& line, bool) {
            if (line == QLatin1String("early\n"))
                g_sawEarly = true;
            std::lock_guard lock(rec.mutex);
            rec.lines << line;
        },
        [&rec](int code, bool crashed) {
            std::lock_guard lock(rec.mutex);
            rec.finishes << qMakePair(code, crashed);
        });
    QCOMPARE(session.start("engine", {}), 0);
    QVERIFY(pollUntilFinished(session, rec));
    QCOMPARE(rec.finishes.first().first, 0); // the entry saw its line delivered before returning
    QCOMPARE(rec.takeLines(), QStringList{"early\n"});
}

void TestSessionInProc::remainderIsALineOfItsOwn()
{
    EngineInProcSession session(entryRemainder);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {}), 0);
    QVERIFY(pollUntilFinished(session, rec));
    QCOMPARE(rec.takeLines(), (QStringList{"x\n", "y"}));
}

void TestSessionInProc::hostOptionsAndEnvironmentReachTheEntry()
{
    EngineInProcSession session(entryRecordsArgs);
    Recorder rec;
    rec.attach(session);
    const QStringList args{"-i", "my file.wav", "", QStringLiteral("ünï €")};
    QCOMPARE(session.start(QStringLiteral("/opt/zuvo/ZuvoEngine"), args), 0);
    QVERIFY(pollUntilFinished(session, rec));

    const auto queue = session.runner().controlQueue();
    QVERIFY(queue);
    const std::vector<std::string> expected{
        "/opt/zuvo/ZuvoEngine", "-i", "my file.wav", "", "ünï €", "-inproc-host",
        "-inproc-ctl", std::to_string(reinterpret_cast<std::uintptr_t>(queue.get())),
        "-inproc-ctl-fn", std::to_string(reinterpret_cast<std::uintptr_t>(&zuvo::InprocCtlQueue::popLine))};
    std::lock_guard lock(g_recordMutex);
    QCOMPARE(g_recordedArgs, expected);
    QCOMPARE(g_recordedEnv, std::string("1"));
    QCOMPARE(rec.finishes.first().first, int(expected.size()));
}

void TestSessionInProc::controlLinesGoThroughTheQueue()
{
    EngineInProcSession session(entryListens);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {}), 0);
    bool flushed = false;
    QCOMPARE(session.writeLine(QStringLiteral("q\r\n"), &flushed), 4); // UTF-8 length + 1
    QVERIFY(flushed);
    QCOMPARE(session.writeLine(QStringLiteral("停"), nullptr), 4);
    QCOMPARE(session.stop(5000), 0);
    QVERIFY(pollUntilFinished(session, rec));
    QCOMPARE(rec.finishes.first(), qMakePair(195, false));
    {
        std::lock_guard lock(g_recordMutex);
        QCOMPARE(g_controlLines, (std::vector<std::string>{"q", "停", "stop"}));
    }
    // The engine's detached control reader was woken by the close at the
    // end of the run and has left the queue.
    const auto queue = session.runner().controlQueue();
    QVERIFY(queue->isClosed());
    QTRY_COMPARE_WITH_TIMEOUT(queue->readersInside(), 0, 3000);
    QCOMPARE(session.writeLine(QStringLiteral("q"), nullptr), EngineSession::kNotRunning);
}

void TestSessionInProc::scriptedEngineStopsOnRequest()
{
    const QString script = dir_->filePath("script.txt");
    QFile f(script);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("out working\nwait-stop 5000 195\nexit 3\n");
    f.close();
    qputenv("ZUVO_FAKE_SCRIPT", script.toLocal8Bit());

    std::unique_ptr<EngineSession> session(createEngineSession(nullptr));
    QVERIFY(session->isInProcess());
    Recorder rec;
    rec.attach(*session);
    QCOMPARE(session->start("ZuvoEngine", {"-i", "in.wav"}), 0);
    QVERIFY(session->isRunning());
    QCOMPARE(session->stop(5000), 0);
    QVERIFY(pollUntilFinished(*session, rec));
    QCOMPARE(rec.finishes.first(), qMakePair(195, false));
    QCOMPARE(rec.takeLines(), QStringList{"working\n"});
}

void TestSessionInProc::queueHoldsAtMost4096Lines()
{
    EngineInProcSession session(entryHolds);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {}), 0);

    int accepted = 0;
    for (int i = 0; i < 4096; ++i)
        accepted += session.writeLine(QStringLiteral("line"), nullptr) == 5 ? 1 : 0;
    const int overflow = session.writeLine(QStringLiteral("line"), nullptr);
    const std::string overflowReason = session.runner().lastDiagnostic();
    const int stopWhenFull = session.writeLine(QStringLiteral("stop"), nullptr);
    const std::string stopReason = session.runner().lastDiagnostic();
    g_release = true;
    QVERIFY(pollUntilFinished(session, rec));

    QCOMPARE(accepted, 4096);
    QCOMPARE(overflow, 0);
    QCOMPARE(overflowReason, std::string("control queue closed (session already torn down)"));
    QCOMPARE(stopWhenFull, 5);
    QCOMPARE(stopReason, std::string("control queue closed -> stop forced through"));

    // After the run the queue is closed: only "stop" still gets in.
    zuvo::InProcRunner& runner = session.runner();
    QVERIFY(runner.controlQueue()->isClosed());
    QCOMPARE(runner.sendControl("q"), 0);
    QCOMPARE(runner.sendControl("stop"), 1);
    QCOMPARE(runner.lastDiagnostic(), std::string("control queue closed -> stop forced through"));
}

void TestSessionInProc::startWhileRunningDisturbsNothing()
{
    EngineInProcSession session(entryHolds);
    EngineInProcSession other(entryFlushedMix);
    Recorder rec, otherRec;
    rec.attach(session);
    otherRec.attach(other);
    QCOMPARE(session.start("engine", {}), 0);
    const int again = session.start("engine", {"again"});
    const QString againError = session.errorString();
    // Descriptors 0-2 belong to one run in the whole process.
    const int elsewhere = other.start("engine", {});
    const QString elsewhereError = other.errorString();
    const bool stillRunning = session.isRunning();
    g_release = true;
    QVERIFY(pollUntilFinished(session, rec));

    QCOMPARE(again, EngineSession::kAlreadyRunning);
    QVERIFY(againError.isEmpty());
    QCOMPARE(elsewhere, zuvo::InProcRunner::kBusy);
    QCOMPARE(elsewhereError, QStringLiteral("进程内会话起不来 (rc=-2)"));
    QVERIFY(stillRunning);
    QCOMPARE(g_holdingRuns.load(), 1);
    QCOMPARE(rec.takeLines(), (QStringList{"holding\n", "released\n"}));
    QCOMPARE(rec.finishes.first(), qMakePair(42, false));
    other.poll();
    QCOMPARE(otherRec.finishCount(), 0); // a refused start is never reported as an end

    // Once the run is over the other session may run.
    QCOMPARE(other.start("engine", {}), 0);
    QVERIFY(pollUntilFinished(other, otherRec));
}

void TestSessionInProc::descriptorsComeBackAfterTheRun()
{
    // Descriptor 1 goes to a file of ours for the duration of the test, so
    // that writes after the run can be checked for their destination.
    const QString capture = dir_->filePath("stdout.txt");
    std::fflush(stdout);
    const int savedOut = ::dup(1);
    const int file = ::open(capture.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    QVERIFY(savedOut >= 0 && file >= 0);
    ::dup2(file, 1);
    ::close(file);
    const FileId before[3] = {idOf(0), idOf(1), idOf(2)};

    EngineInProcSession session(entryHolds); // held, so "during" is really during the run
    Recorder rec;
    rec.attach(session);
    const int rc = session.start("engine", {});
    const FileId during = idOf(1);
    g_release = true;
    const bool finished = pollUntilFinished(session, rec);
    const FileId after[3] = {idOf(0), idOf(1), idOf(2)};
    std::printf("after the run\n");
    std::fflush(stdout);

    ::dup2(savedOut, 1);
    ::close(savedOut);

    QCOMPARE(rc, 0);
    QVERIFY(finished);
    QVERIFY(!(during == before[1]));
    for (int fd = 0; fd < 3; ++fd)
        QVERIFY2(after[fd] == before[fd], qPrintable(QString("descriptor %1").arg(fd)));
    QCOMPARE(readFile(capture), QStringLiteral("after the run\n"));
    QCOMPARE(rec.takeLines(), (QStringList{"holding\n", "released\n"}));
}

void TestSessionInProc::missingStandardDescriptorsAreCreated()
{
    // A GUI process may have nothing on 0-2.
    std::fflush(stdout);
    std::fflush(stderr);
    int saved[3];
    for (int fd = 0; fd < 3; ++fd)
        saved[fd] = ::fcntl(fd, F_DUPFD_CLOEXEC, 10);
    for (int fd = 0; fd < 3; ++fd)
        ::close(fd);

    EngineInProcSession session(entryFlushedMix);
    Recorder rec;
    rec.attach(session);
    const int rc = session.start("engine", {});
    const bool finished = pollUntilFinished(session, rec);
    struct stat st[3] {};
    bool valid[3];
    for (int fd = 0; fd < 3; ++fd)
        valid[fd] = ::fstat(fd, &st[fd]) == 0;

    for (int fd = 0; fd < 3; ++fd) {
        ::dup2(saved[fd], fd);
        ::close(saved[fd]);
    }

    struct stat nul {};
    QCOMPARE(::stat("/dev/null", &nul), 0);
    QCOMPARE(rc, 0);
    QVERIFY(finished);
    for (int fd = 0; fd < 3; ++fd) {
        QVERIFY(valid[fd]);
        QCOMPARE(st[fd].st_rdev, nul.st_rdev);
    }
    QCOMPARE(rec.takeLines(), (QStringList{"p1\n", "c1\n", "e1\n", "p2\n"}));
}

void TestSessionInProc::ignoredStopTimesOutAndKillDoesNothing()
{
    EngineInProcSession session(entryHolds);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {}), 0);
    QElapsedTimer t;
    t.start();
    const int stopped = session.stop(500);
    const qint64 waited = t.elapsed();
    session.kill();
    session.terminate();
    session.close();
    const bool runningAfterKill = session.isRunning();
    const bool waitTimedOut = !session.waitForFinished(50);
    g_release = true;
    QVERIFY(session.waitForFinished(5000));
    QVERIFY(pollUntilFinished(session, rec));

    QCOMPARE(stopped, EngineSession::kStopTimedOut);
    QVERIFY(waited >= 490);
    QVERIFY(!session.canKill());
    QVERIFY(runningAfterKill);
    QVERIFY(waitTimedOut);
    QCOMPARE(rec.finishes.first(), qMakePair(42, false));
    session.poll();
    QCOMPARE(rec.finishCount(), 1);
}

void TestSessionInProc::throwingEntryIsLoggedAndEnds_data()
{
    QTest::addColumn<bool>("standardException");
    QTest::addColumn<QString>("logged");
    QTest::newRow("std::exception") << true << QStringLiteral("[inproc] the engine threw an exception: boom\n");
    QTest::newRow("anything else") << false << QStringLiteral("[inproc] the engine threw a non-std exception\n");
}

void TestSessionInProc::throwingEntryIsLoggedAndEnds()
{
    QFETCH(bool, standardException);
    QFETCH(QString, logged);
    const QString log = dir_->filePath("inproc.log");
    qputenv("ZUVO_INPROC_LOG", log.toLocal8Bit());

    EngineInProcSession session(standardException ? entryThrowsStd : entryThrowsOther);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {"x"}), 0);
    QVERIFY(pollUntilFinished(session, rec));
    QCOMPARE(rec.finishes.first(), qMakePair(zuvo::InProcRunner::kEntryThrew, false));
    QCOMPARE(rec.takeLines(), QStringList{"before\n"});

    const QString text = readFile(log);
    QVERIFY2(text.contains(QStringLiteral("[inproc] dup2 out=1 err=2 in=-1 | fileno: in=0 out=1 err=2 | osf: in=0 out=1\n")),
             qPrintable(text));
    QVERIFY(text.contains(QStringLiteral("[host] session pipe ready (fd1/fd2 -> InProcRunner pipe)\n")));
    QVERIFY(text.contains(QStringLiteral("[inproc] calling entry argc=7\n")));
    QVERIFY(text.contains(logged));
    QVERIFY(!text.contains(QStringLiteral("entry rc=")));
}

void TestSessionInProc::throwingLineCallbackIsLogged_data()
{
    QTest::addColumn<bool>("standardException");
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("logged");
    QTest::newRow("std::exception") << true << 0 << QStringLiteral("[inproc] log sink threw: sink broke\n");
    QTest::newRow("anything else") << false << 0 << QStringLiteral("[inproc] log sink threw a non-std exception\n");
    QTest::newRow("last partial line") << true << 1 << QStringLiteral("[inproc] log sink threw (tail)\n");
}

void TestSessionInProc::throwingLineCallbackIsLogged()
{
    QFETCH(bool, standardException);
    QFETCH(int, which);
    QFETCH(QString, logged);
    const QString log = dir_->filePath("inproc.log");
    qputenv("ZUVO_INPROC_LOG", log.toLocal8Bit());

    EngineInProcSession session(which == 0 ? entryFlushedMix : entryRemainder);
    std::atomic<int> calls{0};
    QList<QPair<int, bool>> finishes;
    session.setCallbacks(
        [&](const QString&, bool) {
            ++calls;
            if (standardException)
                throw std::runtime_error("sink broke");
            throw 1;
        },
        [&](int code, bool crashed) { finishes << qMakePair(code, crashed); });
    QCOMPARE(session.start("engine", {}), 0);
    QElapsedTimer t;
    t.start();
    while (finishes.isEmpty() && t.elapsed() < 8000) {
        session.poll();
        std::this_thread::sleep_for(10ms);
    }
    QCOMPARE(finishes.size(), 1);
    QCOMPARE(finishes.first(), qMakePair(0, false));
    QVERIFY(calls >= 1);
    const QString text = readFile(log);
    QVERIFY2(text.contains(logged), qPrintable(text));
    QVERIFY(text.contains(QStringLiteral("[inproc] entry rc=0\n")));
}

void TestSessionInProc::entrylessSessionDoesNotStart()
{
    EngineInProcSession session(nullptr);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start("engine", {"-i", "a.wav"}), EngineSession::kNotRunning);
    QCOMPARE(session.errorString(), QStringLiteral("进程内会话起不来 (rc=-1)"));
    QVERIFY(!session.isRunning());
    QCOMPARE(session.writeLine("stop", nullptr), EngineSession::kNotRunning);
    session.poll();
    QCOMPARE(rec.finishCount(), 0);
    QVERIFY(session.isInProcess());
    QVERIFY(!session.canKill());
}

void TestSessionInProc::sessionDeletedWhileRunning()
{
    auto calls = std::make_shared<std::atomic<int>>(0);
    auto* session = new EngineInProcSession(entryHolds);
    session->setCallbacks([calls](const QString&, bool) { ++*calls; }, [calls](int, bool) { ++*calls; });
    QCOMPARE(session->start("engine", {}), 0);
    QTRY_COMPARE_WITH_TIMEOUT(calls->load(), 1, 3000); // "holding"
    delete session; // the run goes on by itself; nothing reaches the deleted session
    g_release = true;

    // The process-wide guard frees once the orphaned run has ended.
    EngineInProcSession next(entryRemainder);
    Recorder rec;
    rec.attach(next);
    int rc = zuvo::InProcRunner::kBusy;
    QElapsedTimer t;
    t.start();
    while ((rc = next.start("engine", {})) == zuvo::InProcRunner::kBusy && t.elapsed() < 5000)
        std::this_thread::sleep_for(10ms);
    QCOMPARE(rc, 0);
    QVERIFY(pollUntilFinished(next, rec));
    QCOMPARE(calls->load(), 1);
}

void TestSessionInProc::factoryFollowsGuiInproc_data()
{
    QTest::addColumn<QByteArray>("value"); // "<unset>" removes the variable
    QTest::addColumn<bool>("inProcess");
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("00") << QByteArray("00") << true;
    QTest::newRow("unset") << QByteArray("<unset>") << true;
    QTest::newRow("empty") << QByteArray("") << true;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("no") << QByteArray("no") << true;
    QTest::newRow("0 with blank") << QByteArray("0 ") << true;
}

void TestSessionInProc::factoryFollowsGuiInproc()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, inProcess);
    if (value == "<unset>")
        qunsetenv("ZUVO_GUI_INPROC");
    else
        qputenv("ZUVO_GUI_INPROC", value);

    QObject parent;
    std::unique_ptr<EngineSession> engine(createEngineSession(&parent));
    std::unique_ptr<EngineSession> player(createPlayerSession(&parent));
    QCOMPARE(engine->isInProcess(), inProcess);
    QCOMPARE(player->isInProcess(), inProcess);
    QCOMPARE(engine->canKill(), !inProcess);
    QCOMPARE(bool(dynamic_cast<EngineProcSession*>(engine.get())), !inProcess);
    QCOMPARE(parent.findChildren<QProcess*>().size(), inProcess ? 0 : 2);
}

QTEST_GUILESS_MAIN(TestSessionInProc)
#include "tst_session_inproc.moc"
