// The real program and the real engine together: ZuvoAudioTools started with
// the record test hook, its "default" ALSA capture device fed with a tone by
// a test-only configuration. In process (the default) and as a child process.
// Also the Recording page's own rules and the reading of a device listing.
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>

#include <cmath>

#include "engine_test_support.h"
#include "player_test_support.h"
#include "record_page.h"
#include "recording_probe.h"

class TestRecordWindow : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    QString conf_;

    QString path(const QString& name) const { return dir_.filePath(name); }

    // Runs the window until `until` appears in its log (or 20 s pass), then closes it.
    QString runWindow(const QMap<QString, QString>& extraEnv, const QString& until)
    {
        QFile::remove(path("gui.log"));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("ALSA_CONFIG_PATH", conf_);
        env.insert("ZUVO_NO_UPDATE_CHECK", "1");
        env.insert("ZUVO_AI_GUI_LOG", path("gui.log"));
        env.insert("ZUVO_ENGINE_LOG", path("engine.log"));
        env.insert("ZUVO_SETTINGS_DIR", path("settings"));
        env.insert("ZUVO_ENGINE_BIN", enginetest::enginePath());
        for (auto it = extraEnv.begin(); it != extraEnv.end(); ++it)
            env.insert(it.key(), it.value());
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(ZUVO_APP_PATH, {});
        if (!p.waitForStarted(10000))
            return {};
        QString log;
        for (int i = 0; i < 200 && !log.contains(until); ++i) {
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
        const QString wav = path("tone.wav");
        QVERIFY(enginetest::writePcm(wav, 44100, 2, 44100 * 2, SF_FORMAT_WAV | SF_FORMAT_PCM_32,
                                     [](long i, int) { return 0.5 * std::sin(2 * M_PI * 1000.0 * i / 44100.0); }));
        QCOMPARE(QProcess::execute("sox", {wav, "-t", "raw", "-e", "signed", "-b", "32", "-L", path("tone.raw")}), 0);
        conf_ = path("asound.conf");
        QFile f(conf_);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QStringLiteral(R"(
pcm.!default { type file slave.pcm { type null } infile "%1/tone.raw" file "/dev/null" format "raw" }
)").arg(dir_.path()).toUtf8());
    }

    void recordTestHookRecordsAndStops_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("in process") << true;
        QTest::newRow("child process") << false;
    }

    void recordTestHookRecordsAndStops()
    {
        QFETCH(bool, inProcess);
        const QString out = path(inProcess ? "inproc.dsf" : "child.dsf");
        QMap<QString, QString> env{{"ZUVO_AI_RECTEST", out}, {"ZUVO_AI_RECTEST_STOP", "1000"}};
        if (!inProcess)
            env.insert("ZUVO_GUI_INPROC", "0");
        const QString log = runWindow(env, "录音保存");
        QVERIFY2(log.contains("[log] 录音保存: " + out), qPrintable(log));
        QVERIFY(log.contains(inProcess ? "录音会话: 进程内(直接调库)" : "录音会话: 子进程"));
        QVERIFY(log.contains("发送 'q' 至引擎"));
        int rate = 0;
        std::vector<QByteArray> bits;
        QVERIFY(playertest::readDsdBits(out, rate, bits));
        QCOMPARE(rate, 2822400);
        QCOMPARE(int(bits.size()), 2);
        std::vector<std::vector<double>> pcm;
        QVERIFY(enginetest::ffmpegDecode(out, 88200, 2, pcm));
        QVERIFY(pcm[0].size() > 88200);
        // The page's default 3 dB headroom below the fed -6 dBFS tone.
        const std::vector<double> head(pcm[0].begin(), pcm[0].begin() + 88200);
        const double level = 20 * std::log10(enginetest::toneAmplitude(head, 88200, 1000, 8820));
        QVERIFY2(std::abs(level - (20 * std::log10(0.5) - 3.0)) < 0.1, qPrintable(QString::number(level)));
    }

    void recordTestHookWithoutPath()
    {
        const QString log = runWindow({{"ZUVO_AI_RECTEST", ""}}, "ZUVO_AI_RECTEST");
        QVERIFY2(log.contains("错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径"), qPrintable(log));
        QVERIFY(!log.contains("开始录音"));
    }

    void pageFollowsTheBackendStatus()
    {
        RecordPage page;
        QVERIFY(page.startButton()->isEnabled());
        QVERIFY(!page.stopButton()->isEnabled());
        QVERIFY(!page.dsdModeCombo()->isEnabled());
        page.dsdBox()->setChecked(true);
        QVERIFY(page.dsdModeCombo()->isEnabled());
        page.setRecording(true);
        QVERIFY(page.stopButton()->isEnabled());
        page.setBackendStatus(false, "录音后端: 不可用 — x");
        for (QWidget* w : std::initializer_list<QWidget*>{page.startButton(), page.stopButton(), page.deviceEdit(),
                                                           page.channelsSpin(), page.sampleRateSpin(), page.durationSpin(),
                                                           page.bufferSpin(), page.exclusiveBox(), page.monitorBox(),
                                                           page.monitorDeviceEdit(), page.dsdBox(), page.dsdModeCombo(),
                                                           page.pdfReportBox()})
            QVERIFY(!w->isEnabled());
        page.setBackendStatus(true, "录音后端: 可用 — 1");
        QVERIFY(page.startButton()->isEnabled());
        QVERIFY(page.dsdModeCombo()->isEnabled());
        // Switched off when unavailable, not back on when available.
        QVERIFY(!page.monitorDeviceEdit()->isEnabled());
        QCOMPARE(page.statusLabel()->text(), QString("录音后端: 可用 — 1"));
    }

    void pageDefaultsMakeTheDefaultCommandLine()
    {
        RecordPage page;
        QCOMPARE(QStringList(buildRecorderArgs(page.settings(), {}, "o.dsf")),
                 (QStringList{"--record", "--record-channels", "2", "--record-headroom", "3.0", "o.dsf"}));
    }

    void deviceListingVerdicts_data()
    {
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("available");
        QTest::addColumn<QString>("detail");
        QTest::newRow("two inputs") << "Available audio INPUT devices (2):\n  [0] a — A\n  [1] b — B\nAvailable audio OUTPUT devices (1):\n  - c\n"
                                    << "" << 0 << true << "2 个输入设备(已列在日志里)";
        QTest::newRow("header, no devices") << "Available audio INPUT devices (0):\n" << "" << 0 << true << "0 个输入设备(已列在日志里)";
        QTest::newRow("no header, stderr") << "something\n" << "first\nno backend here \n" << 2 << false << "no backend here";
        QTest::newRow("no header, stdout only") << "line one\nlast line\n" << "  " << 0 << false << "last line";
        QTest::newRow("nothing at all") << "" << "" << 7 << false << "引擎退出码 = 7";
        QTest::newRow("header is case-sensitive") << "available audio input devices\n[0] x\n" << "" << 0 << false
                                                  << "[0] x";
    }

    void deviceListingVerdicts()
    {
        QFETCH(QString, out);
        QFETCH(QString, err);
        QFETCH(int, code);
        QFETCH(bool, available);
        QFETCH(QString, detail);
        const ProbeVerdict v = readDeviceListing(out, err, code);
        QCOMPARE(v.available, available);
        QCOMPARE(v.detail, detail);
    }

    void probeOfTheRealEngine()
    {
        qputenv("ALSA_CONFIG_PATH", QFile::encodeName(conf_));
        RecordingProbe probe;
        QSignalSpy done(&probe, &RecordingProbe::finished);
        probe.run(enginetest::enginePath());
        QVERIFY(probe.isRunning());
        probe.run(enginetest::enginePath()); // a second run while one is alive does nothing
        QVERIFY(done.wait(30000));
        QCOMPARE(done.size(), 1);
        QVERIFY(done.at(0).at(0).toBool());
        QVERIFY2(done.at(0).at(1).toString().endsWith("个输入设备(已列在日志里)"), qPrintable(done.at(0).at(1).toString()));
        probe.run({});
        QCOMPARE(done.size(), 2);
        QVERIFY(!done.at(1).at(0).toBool());
    }
};

QTEST_MAIN(TestRecordWindow)
#include "tst_record_window.moc"
