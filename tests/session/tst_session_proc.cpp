// The engine as a child process: the scripted fake engine is started for
// real and its output, control input and end observed through the session.

#include <QtTest>

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

#include "engine_proc_session.h"

namespace {

const QString kFakeEngine = QStringLiteral(FAKE_ENGINE_PATH);

struct Recorder {
    QStringList out;
    QStringList err;
    QList<QPair<int, bool>> finishes;

    void attach(EngineSession& s)
    {
        s.setCallbacks([this](const QString& line, bool fromStderr) { (fromStderr ? err : out) << line; },
                       [this](int code, bool crashed) { finishes << qMakePair(code, crashed); });
    }
};

} // namespace

class TestSessionProc : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void linesAreDeliveredWithTheirEnds_data();
    void linesAreDeliveredWithTheirEnds();
    void argumentsArriveUnchanged();
    void endIsReportedOnce_data();
    void endIsReportedOnce();
    void startWhileRunningChangesNothing();
    void missingProgramGivesQtReason();
    void stopReachesTheChild_data();
    void stopReachesTheChild();
    void stopNeverKills();
    void crashIsReportedAsCrash();
    void writeLineWithoutRunIsRefused();
    void outputBeforeCallbacksIsLost();
    void processOutlivesTheSession();

private:
    void writeScript(const QByteArray& script);
    QList<QJsonArray> recordedRuns() const;

    std::unique_ptr<QTemporaryDir> dir_;
    QObject parent_;
};

void TestSessionProc::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    qputenv("ZUVO_FAKE_ARGS", dir_->filePath("args.jsonl").toLocal8Bit());
    qputenv("ZUVO_FAKE_SCRIPT", dir_->filePath("script.txt").toLocal8Bit());
    writeScript("");
}

void TestSessionProc::cleanup()
{
    // Every QProcess made by a test belongs to parent_; none may be left running.
    for (QProcess* p : parent_.findChildren<QProcess*>()) {
        p->kill();
        p->waitForFinished(3000);
        delete p;
    }
    qunsetenv("ZUVO_FAKE_ARGS");
    qunsetenv("ZUVO_FAKE_SCRIPT");
}

void TestSessionProc::writeScript(const QByteArray& script)
{
    QFile f(dir_->filePath("script.txt"));
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(script);
}

QList<QJsonArray> TestSessionProc::recordedRuns() const
{
    QList<QJsonArray> runs;
    QFile f(dir_->filePath("args.jsonl"));
    if (!f.open(QIODevice::ReadOnly))
        return runs;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (!line.isEmpty())
            runs << QJsonDocument::fromJson(line).array();
    return runs;
}

void TestSessionProc::linesAreDeliveredWithTheirEnds_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("out");
    QTest::addColumn<QStringList>("err");

    QTest::newRow("last fragment never delivered") << QByteArray("out a\nraw b\n") << QStringList{"a\n"} << QStringList{};
    // The script reader drops one CR of its own; the second one reaches the engine's output.
    QTest::newRow("carriage return kept") << QByteArray("out x\r\r\n") << QStringList{"x\r\n"} << QStringList{};
    QTest::newRow("channels apart") << QByteArray("out o1\nerr e1\nout o2\nerr e2\n")
                                    << QStringList{"o1\n", "o2\n"} << QStringList{"e1\n", "e2\n"};
    QTest::newRow("utf-8") << QByteArray("out 进度: 50\n") << QStringList{QStringLiteral("进度: 50\n")} << QStringList{};
    QTest::newRow("pieces joined") << QByteArray("raw [PROG\nsleep 100\nraw RESS] 4\nsleep 100\nout 2.5\n")
                                   << QStringList{"[PROGRESS] 42.5\n"} << QStringList{};
}

void TestSessionProc::linesAreDeliveredWithTheirEnds()
{
    QFETCH(QByteArray, script);
    QFETCH(QStringList, out);
    QFETCH(QStringList, err);
    writeScript(script);

    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(kFakeEngine, {}), 0);
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);
    session.poll();
    QCOMPARE(rec.out, out);
    QCOMPARE(rec.err, err);
    QCOMPARE(rec.finishes.first(), qMakePair(0, false));
}

void TestSessionProc::argumentsArriveUnchanged()
{
    const QStringList args{"-i", "my file.wav", "", "\"quoted\"", QStringLiteral("ünï €"), "out.dsf"};
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(kFakeEngine, args), 0);
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);

    const QList<QJsonArray> runs = recordedRuns();
    QCOMPARE(runs.size(), 1);
    QStringList got;
    for (const QJsonValue& v : runs.first())
        got << v.toString();
    QCOMPARE(got.mid(1), args);
}

void TestSessionProc::endIsReportedOnce_data()
{
    QTest::addColumn<bool>("signalFirst");
    QTest::newRow("finished signal first") << true;
    QTest::newRow("poll first") << false;
}

void TestSessionProc::endIsReportedOnce()
{
    QFETCH(bool, signalFirst);
    writeScript("out hi\nexit 3\n");
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);

    for (int run = 1; run <= 2; ++run) { // a finished session starts again with fresh flags
        QCOMPARE(session.start(kFakeEngine, {}), 0);
        if (signalFirst) {
            QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), run, 5000);
        } else {
            // Hold the finished signal back so that poll() is the first to see the end.
            session.process()->blockSignals(true);
            QVERIFY(session.waitForFinished(5000));
            session.process()->blockSignals(false);
            QCOMPARE(rec.finishes.size(), run - 1);
            session.poll();
            QCOMPARE(rec.finishes.size(), run);
        }
        session.poll();
        session.poll();
        QTest::qWait(50);
        QCOMPARE(rec.finishes.size(), run);
        QCOMPARE(rec.finishes.last(), qMakePair(3, false));
    }
    QCOMPARE(rec.out, (QStringList{"hi\n", "hi\n"}));
}

void TestSessionProc::startWhileRunningChangesNothing()
{
    writeScript("out started\nwait-stop 5000 195\n");
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(kFakeEngine, {"first"}), 0);
    QCOMPARE(session.start(kFakeEngine, {"second"}), EngineSession::kAlreadyRunning);
    QVERIFY(session.isRunning());
    QVERIFY(session.errorString().isEmpty());
    QCOMPARE(session.stop(5000), 195);
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);
    QCOMPARE(rec.finishes.first(), qMakePair(195, false));
    const QList<QJsonArray> runs = recordedRuns();
    QCOMPARE(runs.size(), 1);
    QCOMPARE(runs.first().at(1).toString(), QStringLiteral("first"));
}

void TestSessionProc::missingProgramGivesQtReason()
{
    const QString missing = dir_->filePath("no-such-engine");
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(missing, {"-x"}), EngineSession::kStartFailed);

    QProcess reference;
    reference.start(missing, {"-x"});
    QVERIFY(!reference.waitForStarted(3000));
    QVERIFY(!reference.errorString().isEmpty());
    QCOMPARE(session.errorString(), reference.errorString());

    session.poll();
    QTest::qWait(50);
    session.poll();
    QVERIFY(rec.finishes.isEmpty());
    QVERIFY(!session.isRunning());
    QCOMPARE(session.writeLine("stop", nullptr), EngineSession::kNotRunning);
}

void TestSessionProc::stopReachesTheChild_data()
{
    QTest::addColumn<bool>("throughWriteLine");
    QTest::newRow("stop()") << false;
    QTest::newRow("writeLine(stop)") << true;
}

void TestSessionProc::stopReachesTheChild()
{
    QFETCH(bool, throughWriteLine);
    writeScript("wait-stop 5000 195\nexit 9\n");
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(kFakeEngine, {}), 0);
    if (throughWriteLine) {
        bool flushed = false;
        QCOMPARE(session.writeLine(QStringLiteral("stop"), &flushed), 5);
        QVERIFY(flushed);
        QVERIFY(session.waitForFinished(5000));
    } else {
        QCOMPARE(session.stop(5000), 195);
    }
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);
    QCOMPARE(rec.finishes.first(), qMakePair(195, false));
}

void TestSessionProc::stopNeverKills()
{
    writeScript("sleep 1500\nexit 4\n"); // deaf to "stop"
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(kFakeEngine, {}), 0);
    QVERIFY(session.canKill());
    QElapsedTimer t;
    t.start();
    QCOMPARE(session.stop(300), EngineSession::kStopTimedOut);
    QVERIFY(t.elapsed() >= 290);
    QVERIFY(session.isRunning());
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);
    QCOMPARE(rec.finishes.first(), qMakePair(4, false));
}

void TestSessionProc::crashIsReportedAsCrash()
{
    writeScript("out before\ncrash\n");
    EngineProcSession session(&parent_);
    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.start(kFakeEngine, {}), 0);
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);
    QVERIFY(rec.finishes.first().second);
    QCOMPARE(rec.out, QStringList{"before\n"});

    // A kill is a crash too, as far as the process is concerned.
    writeScript("sleep 5000\n");
    QCOMPARE(session.start(kFakeEngine, {}), 0);
    session.kill();
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 2, 5000);
    QVERIFY(rec.finishes.last().second);
}

void TestSessionProc::writeLineWithoutRunIsRefused()
{
    EngineProcSession session(&parent_);
    bool flushed = true;
    QCOMPARE(session.writeLine("q", &flushed), EngineSession::kNotRunning);
    QVERIFY(flushed); // left untouched
    QVERIFY(!session.isInProcess());
    QVERIFY(!session.isRunning());
}

void TestSessionProc::outputBeforeCallbacksIsLost()
{
    writeScript("out early\nwait-stop 5000 7\nout late\n");
    EngineProcSession session(&parent_);
    QCOMPARE(session.start(kFakeEngine, {}), 0);
    QVERIFY(session.process()->waitForReadyRead(5000));
    session.poll(); // read with nobody listening: dropped

    Recorder rec;
    rec.attach(session);
    QCOMPARE(session.stop(5000), 7);
    QTRY_COMPARE_WITH_TIMEOUT(rec.finishes.size(), 1, 5000);
    QVERIFY(rec.out.isEmpty());
}

void TestSessionProc::processOutlivesTheSession()
{
    writeScript("sleep 300\nout late\n");
    auto* session = new EngineProcSession(&parent_);
    int lines = 0;
    session->setCallbacks([&lines](const QString&, bool) { ++lines; }, {});
    QCOMPARE(session->start(kFakeEngine, {}), 0);
    QPointer<QProcess> process = session->process();
    QSignalSpy finished(process.data(), &QProcess::finished);
    delete session;

    QVERIFY(process);
    QCOMPARE(process->parent(), &parent_);
    QVERIFY(finished.wait(5000)); // the output and end of a deleted session reach nobody
    QCOMPARE(lines, 0);
    QVERIFY(process);
}

QTEST_GUILESS_MAIN(TestSessionProc)
#include "tst_session_proc.moc"
