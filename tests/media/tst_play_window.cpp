// The Play page inside the main window, the start-up play test and the
// player's step of the shutdown, with the scripted engine standing in for
// the player (in process). The window's log is read through its mirror file.
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include "io_panel.h"
#include "mainwindow.h"
#include "play_page.h"

namespace {

struct Harness {
    QTemporaryDir dir;
    QString mirror = dir.filePath("gui.log");
    QString script = dir.filePath("script.txt");
    QString media = dir.filePath("song.dsf");

    explicit Harness(const QString& scriptText)
    {
        QFile f(script);
        f.open(QIODevice::WriteOnly);
        f.write(scriptText.toUtf8());
        f.close();
        QFile m(media);
        m.open(QIODevice::WriteOnly);
        m.write("x");
        m.close();
        qunsetenv("ZUVO_GUI_INPROC");
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(script));
        qputenv("ZUVO_AI_GUI_LOG", QFile::encodeName(mirror));
        qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(dir.filePath("engine.log")));
    }

    QString log() const
    {
        QFile f(mirror);
        f.open(QIODevice::ReadOnly);
        return QString::fromUtf8(f.readAll());
    }
};

} // namespace

class TestPlayWindow : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        for (const char* v : {"ZUVO_AI_PLAYTEST", "ZUVO_AI_PLAYTEST_STOP", "ZUVO_GUI_EQDEMO", "ZUVO_GUI_PLAYDEMO"})
            qunsetenv(v);
    }

    void buttonsFollowThePlayback()
    {
        Harness h("out [PROGRESS] pos=61.0 dur=125.0\nsleep 600\nexit 0\n");
        MainWindow w;
        auto* page = w.findChild<PlayPage*>();
        QVERIFY(page);
        QCOMPARE(page->deviceEdit()->placeholderText(), QStringLiteral("hw:DS1"));
        QVERIFY(page->playButton()->isEnabled());
        QVERIFY(!page->stopButton()->isEnabled());
        w.findChild<InputOutputPanel*>()->setOutputFile(h.media);
        page->deviceEdit()->setText("  ");
        page->playButton()->click();
        QVERIFY(!page->playButton()->isEnabled());
        QVERIFY(page->stopButton()->isEnabled());
        QTRY_COMPARE(page->positionLabel()->text(), QStringLiteral("1:01 / 2:05"));
        QTRY_VERIFY_WITH_TIMEOUT(page->playButton()->isEnabled(), 5000);
        QVERIFY(!page->stopButton()->isEnabled());
        QVERIFY(h.log().contains(QStringLiteral("[log] 启动播放器: ")));
        QVERIFY(!h.log().contains(QStringLiteral("\"-dev\"")));
        QVERIFY(h.log().contains(QStringLiteral("[log] 播放完成")));
    }

    void playTestHookStartsAndStops()
    {
        Harness h("wait-stop 20000 3\n");
        qputenv("ZUVO_AI_PLAYTEST", QFile::encodeName(h.media));
        qputenv("ZUVO_AI_PLAYTEST_STOP", "1500");
        MainWindow w;
        QElapsedTimer t;
        t.start();
        QVERIFY(w.runPlaytestHook());
        QTRY_VERIFY_WITH_TIMEOUT(h.log().contains("[log] 开始播放: " + h.media), 3000);
        QVERIFY(t.elapsed() >= 450);
        QVERIFY(!h.log().contains("[控制] stop"));
        QTRY_VERIFY_WITH_TIMEOUT(h.log().contains("[log] [控制] stop"), 4000);
        QVERIFY(t.elapsed() >= 1950);
        QTRY_VERIFY_WITH_TIMEOUT(h.log().contains("[log] 播放已停止"), 3000);
    }

    void playTestStopValue_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("zero") << QByteArray("0");
        QTest::newRow("not a number") << QByteArray("soon");
    }

    void playTestStopValue()
    {
        QFETCH(QByteArray, value);
        Harness h("sleep 2500\nexit 0\n");
        qputenv("ZUVO_AI_PLAYTEST", QFile::encodeName(h.media));
        qputenv("ZUVO_AI_PLAYTEST_STOP", value);
        MainWindow w;
        QVERIFY(w.runPlaytestHook());
        QTRY_VERIFY_WITH_TIMEOUT(h.log().contains("[log] 播放完成"), 6000);
        QVERIFY(!h.log().contains("[控制]"));
    }

    void playTestWithAMissingFile()
    {
        Harness h("exit 0\n");
        qputenv("ZUVO_AI_PLAYTEST", "/no/such.dsf");
        MainWindow w;
        QVERIFY(w.runPlaytestHook());
        QTest::qWait(800);
        QVERIFY(h.log().contains("[err] 错误: ZUVO_AI_PLAYTEST 指定的文件不存在: /no/such.dsf"));
        QVERIFY(!h.log().contains("开始播放"));
    }

    void demonstrationHooksComeFirst()
    {
        Harness h("exit 0\n");
        qputenv("ZUVO_AI_PLAYTEST", QFile::encodeName(h.media));
        qputenv("ZUVO_GUI_EQDEMO", "1");
        MainWindow w;
        QVERIFY(!w.runPlaytestHook());
        QTest::qWait(800);
        QVERIFY(!h.log().contains("开始播放"));
    }

    void closingTheWindowStopsThePlayer()
    {
        Harness h("out started\nwait-stop 20000 3\n");
        auto w = std::make_unique<MainWindow>();
        w->findChild<InputOutputPanel*>()->setOutputFile(h.media);
        w->startPlayback();
        QTRY_VERIFY_WITH_TIMEOUT(h.log().contains("[log] started"), 3000);
        QElapsedTimer t;
        t.start();
        w.reset();
        QVERIFY(t.elapsed() < 3000);
    }
};

QTEST_MAIN(TestPlayWindow)
#include "tst_play_window.moc"
