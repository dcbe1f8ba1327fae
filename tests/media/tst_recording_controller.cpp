// Recording as the window drives it, against the scripted engine standing in
// for the conversion engine's record mode: in process (linked in as
// zuvo_engine_main) and as a child process (ZUVO_ENGINE_BIN). Checked through
// the log lines, the signals and the argument lists the stand-in recorded.
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include "recording_controller.h"

namespace {

struct Harness {
    QTemporaryDir dir;
    QString script = dir.filePath("script.txt");
    QString argsFile = dir.filePath("args.jsonl");
    QString out = dir.filePath("take.dsf");
    RecordingController controller;
    QTimer tick;
    QStringList log;
    QStringList warnings;
    QList<bool> recording;
    QStringList progress; // "format|full"

    Harness(bool inProcess, const QString& scriptText)
    {
        QFile f(script);
        f.open(QIODevice::WriteOnly);
        f.write(scriptText.toUtf8());
        f.close();
        qputenv("ZUVO_GUI_INPROC", inProcess ? "1" : "0");
        qputenv("ZUVO_ENGINE_BIN", FAKE_ENGINE_PATH);
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(script));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(argsFile));
        QObject::connect(&controller, &RecordingController::logLine, [this](const QString& text, bool isError) {
            log << (isError ? QStringLiteral("[err] ") : QStringLiteral("[log] ")) + text;
        });
        QObject::connect(&controller, &RecordingController::warningRequested,
                         [this](const QString& title, const QString& text) { warnings << title + "|" + text; });
        QObject::connect(&controller, &RecordingController::recordingChanged, [this](bool r) { recording << r; });
        QObject::connect(&controller, &RecordingController::progressChanged,
                         [this](const QString& format, bool full) { progress << format + (full ? "|full" : "|0"); });
        tick.setInterval(150);
        QObject::connect(&tick, &QTimer::timeout, &controller, &RecordingController::poll);
        tick.start();
    }

    ~Harness()
    {
        if (controller.hasSession())
            controller.shutDown();
    }

    void start(const QString& field = {}) { controller.startRecording(field.isNull() ? out : field, RecorderSettings{}, {}); }
    bool logged(const QString& line) const { return log.contains(line); }
    int count(const QString& line) const { return int(log.count(line)); }
    bool waitIdle(int ms = 10000)
    {
        QElapsedTimer t;
        t.start();
        while (controller.isRecording() && t.elapsed() < ms)
            QTest::qWait(20);
        return !controller.isRecording();
    }
    int runCount() const
    {
        QFile f(argsFile);
        return f.open(QIODevice::ReadOnly) ? int(f.readAll().count('\n')) : 0;
    }
    QStringList lastRun() const
    {
        QFile f(argsFile);
        if (!f.open(QIODevice::ReadOnly))
            return {};
        const QList<QByteArray> lines = f.readAll().trimmed().split('\n');
        QStringList args;
        for (const QJsonValue& v : QJsonDocument::fromJson(lines.last()).array())
            args << v.toString();
        return args;
    }
};

} // namespace

class TestRecordingController : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        qunsetenv("ZUVO_ENGINE_BIN");
        qunsetenv("ZUVO_GUI_INPROC");
    }

    void qEndsARecordingThatIsSaved_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("in process") << true;
        QTest::newRow("child process") << false;
    }

    void qEndsARecordingThatIsSaved()
    {
        QFETCH(bool, inProcess);
        Harness h(inProcess, "out [REC] recording\nwait-line q 10000 0\n");
        h.start("  " + h.out + " ");
        QVERIFY(h.controller.isRecording());
        const QString program = FAKE_ENGINE_PATH;
        QVERIFY2(h.logged(QStringLiteral("[log] 录音命令: \"%1\" \"--record\" \"--record-channels\" \"2\" "
                                         "\"--record-headroom\" \"3.0\" \"%2\"").arg(program, h.out)),
                 qPrintable(h.log.join('\n')));
        QVERIFY(h.logged("[log] 开始录音 → " + h.out));
        QVERIFY(h.logged("[log] 提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)"));
        QVERIFY(h.logged(inProcess ? "[log] 录音会话: 进程内(直接调库)" : "[log] 录音会话: 子进程"));
        QTRY_VERIFY(h.logged("[log] [REC] recording"));
        QElapsedTimer t;
        t.start();
        h.controller.stopRecording();
        QVERIFY(h.controller.isStopping());
        QVERIFY(h.logged("[log] 发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…"));
        // A second stop while stopping sends nothing and logs nothing.
        const int lines = int(h.log.size());
        h.controller.stopRecording();
        QCOMPARE(int(h.log.size()), lines);
        QVERIFY(h.waitIdle());
        QVERIFY(t.elapsed() < 2000);
        QVERIFY(h.logged("[log] 录音保存: " + h.out));
        QCOMPARE(h.recording, (QList<bool>{true, false}));
        QCOMPARE(h.progress, (QStringList{"录音中…|0", "%p%|full"}));
        QVERIFY(!h.controller.isStopping());
        QVERIFY(!h.controller.hasSession());
        QVERIFY(h.lastRun().contains("--record"));
    }

    void endsAreClassified_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("line");
        QTest::newRow("duration ends by itself") << true << "exit 0\n" << "[log] 录音保存: ";
        QTest::newRow("failure code") << true << "err no device\nexit 1\n" << "[err] 录音失败, 退出码: 1";
        QTest::newRow("usage code") << false << "exit 2\n" << "[err] 录音失败, 退出码: 2";
        QTest::newRow("child crash") << false << "crash\n" << "[err] 录音进程异常退出 (崩溃/被终止)";
    }

    void endsAreClassified()
    {
        QFETCH(bool, inProcess);
        QFETCH(QString, script);
        QFETCH(QString, line);
        Harness h(inProcess, script);
        h.start();
        QVERIFY(h.waitIdle());
        QVERIFY2(std::any_of(h.log.begin(), h.log.end(), [&](const QString& l) { return l.startsWith(line); }),
                 qPrintable(h.log.join('\n')));
        QCOMPARE(h.progress.last(), line.startsWith("[log]") ? QString("%p%|full") : QString("%p%|0"));
        QCOMPARE(h.recording, (QList<bool>{true, false}));
    }

    void badOutputPathsWarn_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("warning");
        QTest::newRow("empty") << "" << "录音|请先在上方「输出文件」设置录音保存路径";
        QTest::newRow("blank") << "   " << "录音|请先在上方「输出文件」设置录音保存路径";
        QTest::newRow("dff") << "/tmp/take.dff" << "录音|录音输出文件必须是 .dsf 格式";
        QTest::newRow("no suffix") << "/tmp/take" << "录音|录音输出文件必须是 .dsf 格式";
    }

    void badOutputPathsWarn()
    {
        QFETCH(QString, field);
        QFETCH(QString, warning);
        Harness h(true, "exit 0\n");
        h.controller.startRecording(field, RecorderSettings{}, {});
        QCOMPARE(h.warnings, QStringList{warning});
        QVERIFY(h.log.isEmpty());
        QVERIFY(!h.controller.isRecording());
        QCOMPARE(h.runCount(), 0);
    }

    void upperCaseDsfIsAccepted()
    {
        Harness h(true, "exit 0\n");
        h.start(h.dir.filePath("TAKE.DSF"));
        QVERIFY(h.warnings.isEmpty());
        QVERIFY(h.waitIdle());
        QCOMPARE(h.runCount(), 1);
    }

    void backendStatusGatesTheStart()
    {
        Harness h(true, "exit 0\n");
        QVERIFY(!h.controller.backendProbed());
        QSignalSpy status(&h.controller, &RecordingController::backendStatusChanged);
        h.controller.setBackendStatus(false, "engine exit code = 2");
        QCOMPARE(status.last().at(1).toString(), QString("录音后端: 不可用 — engine exit code = 2"));
        h.start();
        QCOMPARE(h.log, QStringList{"[err] 本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音"});
        QCOMPARE(h.runCount(), 0);
        h.controller.setBackendStatus(true, "2 个输入设备(已列在日志里)");
        QCOMPARE(status.last().at(1).toString(), QString("录音后端: 可用 — 2 个输入设备(已列在日志里)"));
        QVERIFY(status.last().at(0).toBool());
        h.start();
        QVERIFY(h.waitIdle());
        QCOMPARE(h.runCount(), 1);
    }

    void secondStartAndStopWithoutRecording()
    {
        Harness h(true, "wait-line q 10000 0\n");
        h.controller.stopRecording();
        QCOMPARE(h.log, QStringList{"[log] 当前没有录音任务"});
        h.start();
        h.start();
        QVERIFY(h.logged("[log] 录音正在进行中"));
        h.controller.stopRecording();
        QVERIFY(h.waitIdle());
        QCOMPARE(h.runCount(), 1);
    }

    void childThatIgnoresQIsKilledAfter12s()
    {
        Harness h(false, "ignore-term\nsleep 30000\n");
        h.start();
        QTRY_COMPARE(h.runCount(), 1);
        QElapsedTimer t;
        t.start();
        h.controller.stopRecording();
        QTest::qWait(11000);
        QVERIFY(!h.log.join('\n').contains("强制终止"));
        QTRY_VERIFY_WITH_TIMEOUT(h.logged("[err] 引擎未在 12s 内退出, 强制终止"), 3000);
        QVERIFY(t.elapsed() >= 12000);
        QVERIFY(h.waitIdle(3000));
        QCOMPARE(h.log.last(), QString("[err] 录音进程异常退出 (崩溃/被终止)"));
    }

    void inProcessRunThatIgnoresQIsOnlyReported()
    {
        Harness h(true, "sleep 13000\nexit 0\n");
        h.start();
        QTRY_COMPARE(h.runCount(), 1);
        h.controller.stopRecording();
        QTRY_VERIFY_WITH_TIMEOUT(h.logged("[err] 引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)"), 13000);
        QVERIFY(h.controller.isRecording());
        QVERIFY(h.waitIdle(5000));
        QVERIFY(h.logged("[log] 录音保存: " + h.out));
    }
};

QTEST_GUILESS_MAIN(TestRecordingController)
#include "tst_recording_controller.moc"
