// The record command line built from the Recording page's fields: each
// optional item under its own condition, in its fixed place, the output last.
#include <QtTest>

#include "recorder_args.h"

Q_DECLARE_METATYPE(RecorderSettings)

namespace {
const QString kOut = QStringLiteral("/rec/take1.dsf");
}

class TestRecorderArgs : public QObject {
    Q_OBJECT
private slots:
    void fieldsToArguments_data()
    {
        QTest::addColumn<RecorderSettings>("settings");
        QTest::addColumn<QString>("log");
        QTest::addColumn<QStringList>("expected");

        const RecorderSettings fresh;
        QTest::newRow("page defaults") << fresh << QString()
                                       << QStringList{"--record", "--record-channels", "2", "--record-headroom", "3.0", kOut};
        QTest::newRow("with engine log") << fresh << "/tmp/e.log"
                                         << QStringList{"--log-file", "/tmp/e.log", "--record", "--record-channels", "2",
                                                        "--record-headroom", "3.0", kOut};

        RecorderSettings s = fresh;
        s.device = "default";
        QTest::newRow("device 'default' adds nothing") << s << QString()
            << QStringList{"--record", "--record-channels", "2", "--record-headroom", "3.0", kOut};
        s.device = "Default";
        QTest::newRow("device 'Default' is a name") << s << QString()
            << QStringList{"--record", "--record-device", "Default", "--record-channels", "2", "--record-headroom", "3.0", kOut};
        s.device = "  hw:1,0 ";
        QTest::newRow("device trimmed") << s << QString()
            << QStringList{"--record", "--record-device", "hw:1,0", "--record-channels", "2", "--record-headroom", "3.0", kOut};
        s.device = "   ";
        QTest::newRow("blank device") << s << QString()
            << QStringList{"--record", "--record-channels", "2", "--record-headroom", "3.0", kOut};

        s = fresh;
        s.channels = 0;
        s.headroomDb = 0.0;
        QTest::newRow("auto channels, headroom 0.0 add nothing") << s << QString() << QStringList{"--record", kOut};
        s.headroomDb = 3;
        s.bufferFrames = 512;
        QTest::newRow("headroom 3 prints 3.0, buffer 512 nothing") << s << QString()
            << QStringList{"--record", "--record-headroom", "3.0", kOut};
        s.headroomDb = 0;
        s.bufferFrames = 576;
        QTest::newRow("buffer 576") << s << QString() << QStringList{"--record", "--record-buffer", "576", kOut};
        s.bufferFrames = 512;
        s.headroomDb = 12.5;
        QTest::newRow("headroom one decimal") << s << QString() << QStringList{"--record", "--record-headroom", "12.5", kOut};

        s = fresh;
        s.channels = 0;
        s.headroomDb = 0;
        s.monitorDevice = " hw:2 ";
        QTest::newRow("monitor device without monitoring") << s << QString()
            << QStringList{"--record", "--record-monitor-device", "hw:2", kOut};

        // Every item at once: the full order.
        RecorderSettings all;
        all.device = "hw:0";
        all.channels = 8;
        all.sampleRate = 96000;
        all.durationSeconds = 86400;
        all.headroomDb = 24.0;
        all.bufferFrames = 8192;
        all.exclusive = true;
        all.monitor = true;
        all.monitorDevice = "hw:3";
        all.directDsd = true;
        all.dsdMode = "native";
        all.pdfReport = true;
        QTest::newRow("everything, in order") << all << "/l.log"
            << QStringList{"--log-file", "/l.log", "--record-dsd", "--dsd-mode", "native", "--record-device", "hw:0",
                           "--record-channels", "8", "--record-duration", "86400", "--record-monitor", "--record-exclusive",
                           "--record-headroom", "24.0", "--record-buffer", "8192", "-pdfrp", "--record-samplerate", "96000",
                           "--record-monitor-device", "hw:3", kOut};
        all.directDsd = false;
        all.durationSeconds = 0;
        all.sampleRate = 0;
        all.pdfReport = false;
        all.exclusive = false;
        QTest::newRow("PCM2PDM ignores the mode combo") << all << QString()
            << QStringList{"--record", "--record-device", "hw:0", "--record-channels", "8", "--record-monitor",
                           "--record-headroom", "24.0", "--record-buffer", "8192", "--record-monitor-device", "hw:3", kOut};
    }

    void fieldsToArguments()
    {
        QFETCH(RecorderSettings, settings);
        QFETCH(QString, log);
        QFETCH(QStringList, expected);
        QCOMPARE(QStringList(buildRecorderArgs(settings, log, kOut)), expected);
    }

    void dsfSuffixIgnoresCase_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("dsf");
        QTest::newRow("lower") << "a.dsf" << true;
        QTest::newRow("upper") << "/x/TAKE.DSF" << true;
        QTest::newRow("mixed") << "t.DsF" << true;
        QTest::newRow("dff") << "t.dff" << false;
        QTest::newRow("no dot") << "tdsf" << false;
        QTest::newRow("dsf inside") << "t.dsf.wav" << false;
    }

    void dsfSuffixIgnoresCase()
    {
        QFETCH(QString, path);
        QFETCH(bool, dsf);
        QCOMPARE(isDsfPath(path), dsf);
    }
};

QTEST_GUILESS_MAIN(TestRecorderArgs)
#include "tst_recorder_args.moc"
