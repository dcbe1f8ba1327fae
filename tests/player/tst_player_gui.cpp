// The real program and the real player together: ZuvoAudioTools started
// with the play test hook, its "default" ALSA device a capture device of a
// test-only configuration. In process (the default) and as a child process.
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>

#include <atomic>
#include <cmath>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "engine_test_support.h"
#include "player_test_support.h"

class TestPlayerGui : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString conf_, dsf_;

    QString path(const QString& name) const { return dir_.filePath(name); }

    // Runs the window until `until` appears in its log (or 15 s pass), then closes it.
    QString runWindow(const QMap<QString, QString>& extraEnv, const QString& until, const QString& conf = {})
    {
        QFile::remove(path("gui.log"));
        QFile::remove(path("cap.raw"));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("ALSA_CONFIG_PATH", conf.isEmpty() ? conf_ : conf);
        env.insert("ZUVO_NO_UPDATE_CHECK", "1");
        env.insert("ZUVO_AI_GUI_LOG", path("gui.log"));
        env.insert("ZUVO_ENGINE_LOG", path("engine.log"));
        env.insert("ZUVO_SETTINGS_DIR", path("settings"));
        env.insert("ZUVO_AI_PLAYTEST", dsf_);
        env.insert("ZUVO_AI_PLAYTEST_STOP", "0");
        for (auto it = extraEnv.begin(); it != extraEnv.end(); ++it)
            env.insert(it.key(), it.value());
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(ZUVO_APP_PATH, {});
        if (!p.waitForStarted(10000))
            return {};
        QString log;
        for (int i = 0; i < 150 && !log.contains(until); ++i) {
            QTest::qWait(100);
            log = QString::fromUtf8(playertest::readAll(path("gui.log")));
        }
        p.terminate();
        if (!p.waitForFinished(10000))
            p.kill();
        return log;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(dir_.isValid());
        conf_ = path("asound.conf");
        QFile f(conf_);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QStringLiteral(R"(
pcm.sink { type null }
pcm.capfile { type file slave.pcm "sink" file "%1/cap.raw" format "raw" }
pcm.!default { type linear slave { pcm "capfile" format S32_LE } }
)").arg(dir_.path()).toUtf8());
        f.close();
        const QString wav = path("tone.wav");
        QVERIFY(enginetest::writePcm(wav, 44100, 2, 44100, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                                     [](long i, int) { return 0.5 * std::sin(2 * M_PI * 1000.0 * i / 44100.0); }));
        dsf_ = path("tone.dsf");
        QVERIFY(enginetest::runEngine({"-i", wav, dsf_}).exitCode == 0);
    }

    void playsThroughTheDefaultDevice_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("in process") << true;
        QTest::newRow("child process") << false;
    }

    void playsThroughTheDefaultDevice()
    {
        QFETCH(bool, inProcess);
        QMap<QString, QString> env;
        if (!inProcess) {
            env.insert("ZUVO_GUI_INPROC", "0");
            env.insert("ZUVO_PLAYER_BIN", playertest::playerPath());
        }
        const QString log = runWindow(env, "播放完成");
        QVERIFY2(log.contains("[log] 播放完成"), qPrintable(log));
        QVERIFY(log.contains(inProcess ? "试听会话: 进程内(直接调库)" : "试听会话: 子进程"));
        QVERIFY(log.contains("[log] [PATH] dop format=S32_LE rate=176400"));
        // One second of DSD64 as DoP: 176400 frames of two 32-bit words.
        QCOMPARE(playertest::readAll(path("cap.raw")).size(), 176400 * 8);
    }

    void playTestStopEndsTheRealPlayer()
    {
        // A device that takes the stream at about nine times real time, so
        // 30 s of DSD64 are still playing when the hook says "stop".
        const QString fifo = path("paced.fifo");
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        const QString conf = path("paced.conf");
        QFile f(conf);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QStringLiteral(R"(
pcm.sink { type null }
pcm.fifofile { type file slave.pcm "sink" file "%1" format "raw" }
pcm.!default { type linear slave { pcm "fifofile" format S32_LE } }
)").arg(fifo).toUtf8());
        f.close();
        const QString longDsf = path("long.dsf");
        QVERIFY(playertest::writeSparseDsf(longDsf, 2822400, 2, 2822400 / 8 * 30));
        std::atomic<qint64> consumed{0};
        std::thread device([&] {
            const int fd = ::open(QFile::encodeName(fifo).constData(), O_RDONLY);
            std::vector<char> buf(65536);
            for (ssize_t n; fd >= 0 && (n = ::read(fd, buf.data(), buf.size())) > 0;) {
                consumed += n;
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
            if (fd >= 0)
                ::close(fd);
        });
        const QString log = runWindow({{"ZUVO_AI_PLAYTEST", longDsf}, {"ZUVO_AI_PLAYTEST_STOP", "1000"}}, "播放已停止", conf);
        device.join();
        QVERIFY2(log.contains("[log] [控制] stop"), qPrintable(log));
        QVERIFY(log.contains("[log] [PLAYER] stopped"));
        QVERIFY(log.contains("[log] 播放已停止"));
        QVERIFY(consumed < qint64(30) * 176400 * 8);
    }
};

QTEST_GUILESS_MAIN(TestPlayerGui)
#include "tst_player_gui.moc"
