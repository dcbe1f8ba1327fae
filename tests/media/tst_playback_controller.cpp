// Playback as the window drives it, against the scripted engine standing in
// for the player: in process (linked in as zuvo_player_main) and as a child
// process (ZUVO_PLAYER_BIN). Checked through the log lines, the playing
// state and the argument lists the stand-in recorded.
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include "playback_controller.h"

namespace {

struct Harness {
    QTemporaryDir dir;
    QString script = dir.filePath("script.txt");
    QString argsFile = dir.filePath("args.jsonl");
    QString media = dir.filePath("song.dsf");
    PlaybackController controller;
    QTimer tick;
    QStringList log;
    QList<bool> playing;

    Harness(bool inProcess, const QString& scriptText)
    {
        QFile f(script);
        f.open(QIODevice::WriteOnly);
        f.write(scriptText.toUtf8());
        f.close();
        QFile m(media);
        m.open(QIODevice::WriteOnly);
        m.write("the stand-in never reads it");
        m.close();
        qputenv("ZUVO_GUI_INPROC", inProcess ? "1" : "0");
        qputenv("ZUVO_PLAYER_BIN", FAKE_ENGINE_PATH);
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(script));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(argsFile));
        QObject::connect(&controller, &PlaybackController::logLine, [this](const QString& text, bool isError) {
            log << (isError ? QStringLiteral("[err] ") : QStringLiteral("[log] ")) + text;
        });
        QObject::connect(&controller, &PlaybackController::playingChanged, [this](bool p) { playing << p; });
        tick.setInterval(150);
        QObject::connect(&tick, &QTimer::timeout, &controller, &PlaybackController::poll);
        tick.start();
    }

    ~Harness()
    {
        // Never leave a run behind: an in-process run would block the next test's start.
        if (controller.isPlaying())
            controller.shutDown();
    }

    bool logged(const QString& line) const { return log.contains(line); }
    int count(const QString& line) const { return int(log.count(line)); }
    bool waitIdle(int ms = 10000)
    {
        QElapsedTimer t;
        t.start();
        while (controller.isPlaying() && t.elapsed() < ms)
            QTest::qWait(20);
        return !controller.isPlaying();
    }

    QList<QStringList> runs() const
    {
        QList<QStringList> out;
        QFile f(argsFile);
        if (!f.open(QIODevice::ReadOnly))
            return out;
        for (const QByteArray& line : f.readAll().split('\n')) {
            if (line.isEmpty())
                continue;
            QStringList args;
            for (const QJsonValue& v : QJsonDocument::fromJson(line).array())
                args << v.toString();
            out << args;
        }
        return out;
    }
};

// The player's own arguments: after argv[0], before the in-process host's.
QStringList playerArgs(QStringList run)
{
    run.removeFirst();
    const qsizetype host = run.indexOf("-inproc-host");
    return host >= 0 ? run.mid(0, host) : run;
}

} // namespace

class TestPlaybackController : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        qunsetenv("ZUVO_PLAYER_BIN");
        qunsetenv("ZUVO_GUI_INPROC");
    }

    void playsToTheEndInBothModes_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("in process") << true;
        QTest::newRow("child process") << false;
    }

    void playsToTheEndInBothModes()
    {
        QFETCH(bool, inProcess);
        Harness h(inProcess, "out [PLAYER] hello\nerr trouble on stderr\nout [PROGRESS] pos=1.0 dur=2.5\nexit 0\n");
        QSignalSpy position(&h.controller, &PlaybackController::positionChanged);
        h.controller.startPlayback("  " + h.media + " ", "hw:X", true);
        QVERIFY(h.controller.isPlaying());
        QVERIFY(h.waitIdle());
        QCOMPARE(h.playing, (QList<bool>{true, false}));
        const QString program = FAKE_ENGINE_PATH;
        QVERIFY(h.logged(QStringLiteral("[log] 启动播放器: %1 \"-i\" \"%2\" \"-stream\" \"-dev\" \"hw:X\"").arg(program, h.media)));
        QVERIFY(h.logged("[log] 开始播放: " + h.media));
        QVERIFY(h.logged(inProcess ? "[log] 试听会话: 进程内(直接调库)" : "[log] 试听会话: 子进程"));
        QVERIFY(h.logged("[log] [PLAYER] hello"));
        // In process both streams arrive as one, all marked as standard output.
        QVERIFY(h.logged(inProcess ? "[log] trouble on stderr" : "[err] trouble on stderr"));
        QVERIFY(h.logged("[log] 播放完成"));
        QCOMPARE(position.count(), 1);
        QCOMPARE(position.at(0).at(1).toDouble(), 2.5);
        QCOMPARE(h.runs().size(), 1);
        QCOMPARE(playerArgs(h.runs().at(0)), (QStringList{"-i", h.media, "-stream", "-dev", "hw:X"}));
        QVERIFY(!h.controller.hasSession());
    }

    void endsAreClassifiedByExitCode_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("line");
        QTest::newRow("3 without a stop") << true << "exit 3\n" << "[log] 播放已停止";
        QTest::newRow("failure code") << true << "err no device\nexit 4\n" << "[err] 播放器异常退出, 代码: 4";
        QTest::newRow("child crash") << false << "crash\n" << "[err] 播放器异常退出, 代码: ";
    }

    void endsAreClassifiedByExitCode()
    {
        QFETCH(bool, inProcess);
        QFETCH(QString, script);
        QFETCH(QString, line);
        Harness h(inProcess, script);
        h.controller.startPlayback(h.media, {}, false);
        QVERIFY(h.waitIdle());
        QVERIFY2(std::any_of(h.log.begin(), h.log.end(), [&](const QString& l) { return l.startsWith(line); }),
                 qPrintable(h.log.join('\n')));
    }

    void refusedStarts_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("error");
        QTest::newRow("empty field") << "" << "[err] 错误: 播放文件不存在或无法读取: (未设置输出文件)";
        QTest::newRow("blank field") << "   " << "[err] 错误: 播放文件不存在或无法读取: (未设置输出文件)";
        QTest::newRow("missing file") << "/no/such/file.dsf" << "[err] 错误: 播放文件不存在或无法读取: /no/such/file.dsf";
    }

    void refusedStarts()
    {
        QFETCH(QString, field);
        QFETCH(QString, error);
        Harness h(true, "exit 0\n");
        h.controller.startPlayback(field, {}, false);
        QCOMPARE(h.log, QStringList{error});
        QVERIFY(!h.controller.isPlaying());
        QVERIFY(h.playing.isEmpty());
        QVERIFY(h.runs().isEmpty());
    }

    void secondPlayLeavesTheRunningSessionAlone()
    {
        Harness h(true, "wait-stop 10000 3\n");
        h.controller.startPlayback(h.media, {}, false);
        const quint32 generation = h.controller.generation();
        h.controller.startPlayback(h.media, "other", true);
        QVERIFY(h.logged("[log] 播放正在进行中, 请先停止当前播放"));
        QCOMPARE(h.controller.generation(), generation);
        QVERIFY(h.controller.isPlaying());
        h.controller.stopPlayback();
        QVERIFY(h.waitIdle());
        QVERIFY(h.logged("[log] 播放已停止"));
        QCOMPARE(h.runs().size(), 1);
    }

    void withoutAPlayerProgramItRunsInProcess()
    {
        Harness h(true, "exit 0\n");
        qunsetenv("ZUVO_PLAYER_BIN");
        qputenv("PATH", "/nonexistent");
        h.controller.startPlayback(h.media, {}, false);
        QVERIFY(h.waitIdle());
        QVERIFY(h.logged("[log] 试听会话: 进程内(直接调库)"));
        QVERIFY(h.logged("[log] 播放完成"));
        QCOMPARE(h.runs().value(0).value(0), QCoreApplication::applicationFilePath());
    }

    void withoutAPlayerProgramChildModeRefuses()
    {
        Harness h(false, "exit 0\n");
        qunsetenv("ZUVO_PLAYER_BIN");
        qputenv("PATH", "/nonexistent");
        h.controller.startPlayback(h.media, {}, false);
        QCOMPARE(h.log, QStringList{"[err] 错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)"});
        QVERIFY(!h.controller.isPlaying());
        QVERIFY(h.runs().isEmpty());
    }

    void stopAsksThePlayer_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("in process") << true;
        QTest::newRow("child process") << false;
    }

    void stopAsksThePlayer()
    {
        QFETCH(bool, inProcess);
        Harness h(inProcess, "out started\nwait-stop 10000 3\n");
        h.controller.stopPlayback();
        QCOMPARE(h.log, QStringList{"[log] 当前没有播放任务"});
        h.controller.startPlayback(h.media, {}, false);
        QTRY_VERIFY(h.logged("[log] started"));
        QElapsedTimer t;
        t.start();
        h.controller.stopPlayback();
        QVERIFY(h.logged("[log] 正在停止播放器…"));
        QVERIFY(h.logged("[log] [控制] stop"));
        QVERIFY(h.waitIdle());
        QVERIFY(t.elapsed() < 2000);
        QVERIFY(h.logged("[log] 播放已停止"));
        QVERIFY(!h.log.join('\n').contains("秒内完成收尾"));
    }

    void unfinishedOutputIsDroppedAtTheNextStart()
    {
        Harness h(true, "[run 1]\nout whole line\nraw half a li\nexit 0\n[run 2]\nout next run\nexit 0\n");
        h.controller.startPlayback(h.media, {}, false);
        QVERIFY(h.waitIdle());
        h.controller.startPlayback(h.media, {}, false);
        QVERIFY(h.waitIdle());
        QVERIFY(h.logged("[log] whole line"));
        QVERIFY(h.logged("[log] next run"));
        QVERIFY(!h.log.join('\n').contains("half a li"));
    }

    void childThatIgnoresEverythingIsTerminatedThenKilled()
    {
        // Two Stops: "stop" twice and two 8 s timers, both of the same run.
        Harness h(false, "ignore-term\nsleep 30000\n");
        h.controller.startPlayback(h.media, {}, false);
        QTRY_VERIFY(h.runs().size() == 1);
        h.controller.stopPlayback();
        QTest::qWait(300);
        h.controller.stopPlayback();
        QCOMPARE(h.count("[log] [控制] stop"), 2);
        QTest::qWait(7000);
        QVERIFY(!h.log.join('\n').contains("强制结束"));
        QTRY_COMPARE_WITH_TIMEOUT(h.count("[err] 播放器未在 8 秒内完成收尾, 强制结束"), 2, 3000);
        QTRY_VERIFY_WITH_TIMEOUT(h.logged("[err] 仍无响应, 强制结束播放器"), 3000);
        QVERIFY(h.waitIdle(3000));
        QVERIFY(h.log.last().startsWith("[err] 播放器异常退出, 代码: "));
    }

    void inProcessRunThatIgnoresStopIsOnlyReported()
    {
        Harness h(true, "sleep 9000\nexit 0\n");
        h.controller.startPlayback(h.media, {}, false);
        QTRY_VERIFY(h.runs().size() == 1);
        h.controller.stopPlayback();
        QTRY_VERIFY_WITH_TIMEOUT(h.logged("[err] 播放器未在 8 秒内完成收尾 (本次在进程内运行, 无法强制结束)"), 9000);
        QVERIFY(h.controller.isPlaying());
        QVERIFY(h.waitIdle(5000));
        QVERIFY(h.logged("[log] 播放完成"));
        QVERIFY(!h.log.join('\n').contains("仍无响应"));
    }

    void timersOfAnEarlierPlaybackDoNothing()
    {
        Harness h(false, "[run 1]\nwait-stop 10000 3\n[run 2]\nignore-term\nsleep 9500\nexit 0\n");
        h.controller.startPlayback(h.media, {}, false);
        QTRY_VERIFY(h.runs().size() == 1);
        h.controller.stopPlayback(); // arms the 8 s timer of generation 1
        QVERIFY(h.waitIdle());
        h.controller.startPlayback(h.media, {}, false); // generation 2, still running when that timer fires
        QCOMPARE(h.controller.generation(), 2u);
        QTest::qWait(8500);
        QVERIFY(h.controller.isPlaying());
        QVERIFY(!h.log.join('\n').contains("秒内完成收尾"));
        QVERIFY(h.waitIdle(5000));
        QVERIFY(h.logged("[log] 播放完成"));
    }

    void shutDownStopsThePlayer_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("in process") << true;
        QTest::newRow("child process") << false;
    }

    void shutDownStopsThePlayer()
    {
        QFETCH(bool, inProcess);
        Harness h(inProcess, "out started\nwait-stop 20000 3\n");
        h.controller.startPlayback(h.media, {}, false);
        QTRY_VERIFY(h.logged("[log] started"));
        QElapsedTimer t;
        t.start();
        h.controller.shutDown();
        QVERIFY(t.elapsed() < 3000); // answered the stop rather than running into the 5 s wait
        QVERIFY(!h.controller.hasSession());
    }
};

QTEST_GUILESS_MAIN(TestPlaybackController)
#include "tst_playback_controller.moc"
