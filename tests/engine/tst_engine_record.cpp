// The recorder end to end: the real engine records from a capture device
// defined in a test-only ALSA configuration, whose `file` plugin feeds a WAV's
// samples (as raw words) into the capture stream. The DSF it writes is read
// back by ffmpeg (tone, level, length) and by the test's own header parser.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>

#include <cmath>

#include "engine_test_support.h"
#include "player_test_support.h"

using namespace enginetest;

namespace {

struct Recording {
    int exitCode = -1;
    bool crashed = false;
    qint64 msAfterStop = -1;
    QString out, err;
};

double db(double x)
{
    return 20 * std::log10(x);
}

} // namespace

class EngineRecordTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void listsInputDevicesFirst();
    void recordingCarriesToneLevelAndLength_data();
    void recordingCarriesToneLevelAndLength();
    void qEndsTheRecordingWithAValidFile();
    void monitorPlaysWhatIsRecorded();
    void dopCaptureStoresTheBits();
    void brokenDopMarkersAreReported();
    void pcmIsNotTakenForDop();
    void nativeDsdCaptureStoresTheBits();
    void refusedBeforeAnyOutput_data();
    void refusedBeforeAnyOutput();
    void missingDeviceIsAFailureWithoutOutput();
    void pdfReportOfARecording();

private:
    QString path(const QString& name) const { return dir_.filePath(name); }
    // A WAV tone and its sample words as the raw stream the device plays back.
    QString feed(const QString& name, int rate, int channels, double seconds, double freq, double amplitude);
    Recording record(const QStringList& args, int stopAfterMs = -1);
    QTemporaryDir dir_;
    QString conf_;
    std::vector<QByteArray> dopBits_;
};

QString EngineRecordTest::feed(const QString& name, int rate, int channels, double seconds, double freq,
                               double amplitude)
{
    const QString wav = path(name + ".wav");
    const QString raw = path(name + ".raw");
    const bool made = writePcm(wav, rate, channels, long(seconds * rate), SF_FORMAT_WAV | SF_FORMAT_PCM_32,
                               [&](long i, int c) { return amplitude * std::sin(2 * M_PI * freq * (c + 1) * i / rate); });
    if (!made || QProcess::execute("sox", {wav, "-t", "raw", "-e", "signed", "-b", "32", "-L", raw}) != 0)
        return {};
    return raw;
}

void EngineRecordTest::initTestCase()
{
    QVERIFY(dir_.isValid());
    QVERIFY2(QFile::exists(enginePath()), qPrintable(enginePath()));
    QVERIFY(!feed("tone44", 44100, 2, 4, 1000, 0.5).isEmpty());
    QVERIFY(!feed("tone48", 48000, 1, 4, 440, 0.25).isEmpty());
    QVERIFY(!feed("short", 44100, 2, 0.5, 1000, 0.5).isEmpty());
    // A DSD64 reference made by the engine, packed here as DoP words
    // (S32_LE: empty low byte, later DSD byte, earlier DSD byte, marker).
    const QString ref = path("dopref.dsf");
    QCOMPARE(runEngine({"-i", path("tone44.wav"), ref}).exitCode, 0);
    int rate = 0;
    QVERIFY(playertest::readDsdBits(ref, rate, dopBits_));
    QByteArray dop;
    for (qsizetype f = 0; 2 * f + 1 < dopBits_[0].size(); ++f)
        for (int c = 0; c < 2; ++c) {
            const QByteArray& b = dopBits_[std::size_t(c)];
            dop.append('\0').append(b[2 * f + 1]).append(b[2 * f]).append(char(f % 2 ? 0xFA : 0x05));
        }
    // Native DSD_U32_BE: four DSD bytes per channel and frame, earliest first.
    QByteArray native;
    for (qsizetype f = 0; 4 * f + 3 < dopBits_[0].size(); ++f)
        for (int c = 0; c < 2; ++c)
            native.append(dopBits_[std::size_t(c)].mid(4 * f, 4));
    QFile nf(path("native.raw"));
    QVERIFY(nf.open(QIODevice::WriteOnly));
    nf.write(native);
    nf.close();
    QByteArray broken = dop;
    for (qsizetype f = 1000; f < 1010; ++f)
        broken[f * 8 + 3] = 0x00;             // markers gone in both channels
    broken[2000 * 8 + 4 + 3] = char(0xFA);    // channel 2 out of step with channel 1
    for (const auto& [name, data] : {std::pair{QString("dop.raw"), dop}, std::pair{QString("brokendop.raw"), broken}}) {
        QFile f(path(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(data);
    }
    // Capture from `null` never waits for a clock, so the tests run faster
    // than real time; only the sample count sets a recording's length.
    const QString text = QStringLiteral(R"(
pcm.tone44 { type file slave.pcm { type null } infile "%1/tone44.raw" file "/dev/null" format "raw"
             hint { show on description "Zuvo test tone" } }
pcm.tone48 { type file slave.pcm { type null } infile "%1/tone48.raw" file "/dev/null" format "raw" }
pcm.short { type file slave.pcm { type null } infile "%1/short.raw" file "/dev/null" format "raw" }
pcm.dop { type file slave.pcm { type null } infile "%1/dop.raw" file "/dev/null" format "raw" }
pcm.native { type file slave.pcm { type null } infile "%1/native.raw" file "/dev/null" format "raw" }
pcm.brokendop { type file slave.pcm { type null } infile "%1/brokendop.raw" file "/dev/null" format "raw" }
pcm.monitor { type file slave.pcm { type null } file "%1/monitor.raw" format "raw" }
)").arg(dir_.path());
    conf_ = path("asound.conf");
    QFile f(conf_);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(text.toUtf8());
}

Recording EngineRecordTest::record(const QStringList& args, int stopAfterMs)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("ALSA_CONFIG_PATH", conf_);
    p.setProcessEnvironment(env);
    p.start(enginePath(), args);
    Recording r;
    if (!p.waitForStarted(10000))
        return r;
    QElapsedTimer clock;
    if (stopAfterMs >= 0) {
        QThread::msleep(static_cast<unsigned long>(stopAfterMs));
        p.write("q\n");
        clock.start();
    } else {
        p.closeWriteChannel();
    }
    if (!p.waitForFinished(120000)) {
        p.kill();
        p.waitForFinished(5000);
        r.crashed = true;
    }
    if (clock.isValid())
        r.msAfterStop = clock.elapsed();
    r.exitCode = p.exitCode();
    r.crashed = r.crashed || p.exitStatus() != QProcess::NormalExit;
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

void EngineRecordTest::listsInputDevicesFirst()
{
    const Recording r = record({"--list-devices"});
    QCOMPARE(r.exitCode, 0);
    const QStringList lines = r.out.split('\n', Qt::SkipEmptyParts);
    QVERIFY2(lines.value(0).startsWith("Available audio INPUT devices"), qPrintable(r.out));
    QVERIFY2(lines.contains(QString::fromUtf8("  [0] tone44 \u2014 Zuvo test tone")), qPrintable(r.out));
    const qsizetype outputs = lines.indexOf(QRegularExpression("^Available audio OUTPUT devices.*"));
    QVERIFY2(outputs > 1, qPrintable(r.out));
    // Output devices are not numbered, so a count of "[n] " lines counts inputs only.
    for (qsizetype i = outputs; i < lines.size(); ++i)
        QVERIFY2(!lines[i].trimmed().startsWith('['), qPrintable(lines[i]));
}

void EngineRecordTest::recordingCarriesToneLevelAndLength_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QStringList>("extra");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<double>("freq");
    QTest::addColumn<double>("expectedDb"); // tone level in the DSF, dBFS
    QTest::addColumn<int>("dsdRate");
    // 0.5 peak = -6.02 dBFS; headroom lowers it by its own amount.
    QTest::newRow("44.1 kHz stereo, 3 dB headroom") << "tone44" << QStringList{"--record-headroom", "3.0"} << 44100 << 2
                                                     << 1000.0 << db(0.5) - 3.0 << 2822400;
    QTest::newRow("44.1 kHz stereo, 2 dB headroom, DSD128")
        << "tone44" << QStringList{"--record-headroom", "2", "--oversampling", "128", "--record-buffer", "576"} << 44100
        << 2 << 1000.0 << db(0.5) - 2.0 << 5644800;
    QTest::newRow("48 kHz mono, 6 dB headroom")
        << "tone48" << QStringList{"--record-samplerate", "48000", "--record-channels", "1", "--record-headroom", "6"}
        << 48000 << 1 << 440.0 << db(0.25) - 6.0 << 2822400;
}

void EngineRecordTest::recordingCarriesToneLevelAndLength()
{
    QFETCH(QString, device);
    QFETCH(QStringList, extra);
    QFETCH(int, rate);
    QFETCH(int, channels);
    QFETCH(double, freq);
    QFETCH(double, expectedDb);
    QFETCH(int, dsdRate);
    const QString tag = QString::fromUtf8(QTest::currentDataTag()).replace(' ', '_').remove(',').remove('.');
    const QString out = path("rec_" + tag + ".dsf");
    const Recording r = record(QStringList{"--record", "--record-device", device, "--record-duration", "3"} + extra + QStringList{out});
    QVERIFY2(r.exitCode == 0 && !r.crashed, qPrintable(r.err));
    QVERIFY2(r.out.contains(QString("%1 Hz, %2 ch").arg(rate).arg(channels)), qPrintable(r.out));

    // The header, read by our own parser: rate, channels and exactly 3 s of bits.
    int fileRate = 0;
    std::vector<QByteArray> bits;
    QVERIFY(playertest::readDsdBits(out, fileRate, bits));
    QCOMPARE(fileRate, dsdRate);
    QCOMPARE(int(bits.size()), channels);
    QCOMPARE(qint64(bits[0].size()), qint64(3) * dsdRate / 8);
    QVERIFY(dsdDurationMatches(ffprobe(out), 3.0, dsdRate));

    // ffmpeg's decoder: the tone at the right frequency and level in every channel.
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 88200, channels, pcm));
    for (int c = 0; c < channels; ++c) {
        const double f = freq * (c + 1);
        const std::size_t skip = 8820;
        const double level = db(toneAmplitude(pcm[std::size_t(c)], 88200, f, skip));
        QVERIFY2(std::abs(level - expectedDb) < 0.1, qPrintable(QString("channel %1: %2 dB, expected %3").arg(c).arg(level).arg(expectedDb)));
        // Nothing but that tone: what remains after removing it is noise
        // more than 50 dB down (a wrong frequency would leave it all).
        QVERIFY(residualRms(pcm[std::size_t(c)], 88200, f, skip) < 1e-3);
    }
}

void EngineRecordTest::qEndsTheRecordingWithAValidFile()
{
    // The short feed runs out after 0.5 s; the device keeps delivering
    // frames, and the recording goes on until "q".
    const QString out = path("stopped.dsf");
    const Recording r = record({"--record", "--record-device", "short", "--record-headroom", "3", out}, 800);
    QVERIFY2(r.exitCode == 0 && !r.crashed, qPrintable(r.err));
    QVERIFY2(r.msAfterStop >= 0 && r.msAfterStop < 2000, qPrintable(QString::number(r.msAfterStop)));
    int fileRate = 0;
    std::vector<QByteArray> bits;
    QVERIFY(playertest::readDsdBits(out, fileRate, bits));
    QCOMPARE(int(bits.size()), 2);
    const double seconds = double(bits[0].size()) * 8 / fileRate;
    QVERIFY2(seconds > 0.5, qPrintable(QString::number(seconds)));
    const QFileInfo info(out);
    // Header sizes agree with the file: blocks of 4096 bytes per channel after 92 header bytes.
    QCOMPARE((info.size() - 92) % (4096 * 2), 0);
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 88200, 2, pcm));
    std::vector<double> head(pcm[0].begin(), pcm[0].begin() + 88200 * 4 / 10);
    QVERIFY(std::abs(db(toneAmplitude(head, 88200, 1000, 8820)) - (db(0.5) - 3.0)) < 0.1);
}

void EngineRecordTest::monitorPlaysWhatIsRecorded()
{
    const QString out = path("monitored.dsf");
    const Recording r = record({"--record", "--record-device", "tone44", "--record-duration", "1", "--record-monitor",
                                "--record-monitor-device", "monitor", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QFile mon(path("monitor.raw")), src(path("tone44.raw"));
    QVERIFY(mon.open(QIODevice::ReadOnly) && src.open(QIODevice::ReadOnly));
    const QByteArray heard = mon.readAll();
    QCOMPARE(heard.size(), 44100 * 2 * 4);
    QVERIFY(heard == src.read(heard.size()));
}

void EngineRecordTest::dopCaptureStoresTheBits()
{
    const QString out = path("dop.dsf");
    // The page sends its headroom along; direct DSD leaves the bits alone.
    const Recording r = record({"--record-dsd", "--dsd-mode", "dop", "--record-device", "dop", "--record-duration", "2",
                                "--record-headroom", "3.0", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(r.out.contains("S32_LE, 176400 Hz, 2 ch -> DSD64"), qPrintable(r.out));
    QVERIFY(!r.err.contains("broken"));
    int rate = 0;
    std::vector<QByteArray> bits;
    QVERIFY(playertest::readDsdBits(out, rate, bits));
    QCOMPARE(rate, 2822400);
    QCOMPARE(bits[0].size(), qsizetype(2 * 2822400 / 8));
    for (int c = 0; c < 2; ++c)
        QVERIFY(bits[std::size_t(c)] == dopBits_[std::size_t(c)].left(bits[0].size()));
}

void EngineRecordTest::brokenDopMarkersAreReported()
{
    const QString out = path("brokendop.dsf");
    const Recording r = record({"--record-dsd", "--record-device", "brokendop", "--record-duration", "1", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(r.err.contains("DoP markers broken in 11 of 176400 frame(s), first at 0.006 s"), qPrintable(r.err));
    int rate = 0;
    std::vector<QByteArray> bits;
    QVERIFY(playertest::readDsdBits(out, rate, bits));
    for (int c = 0; c < 2; ++c) {
        const QByteArray& got = bits[std::size_t(c)];
        const QByteArray& want = dopBits_[std::size_t(c)];
        QVERIFY(got.mid(2000, 20) == QByteArray(20, char(0x69)));   // frames 1000-1009: DSD silence
        QVERIFY(got.mid(4000, 2) == QByteArray(2, char(0x69)));     // frame 2000
        QVERIFY(got.left(2000) == want.left(2000));
        QVERIFY(got.mid(2020, 1980) == want.mid(2020, 1980));
        QVERIFY(got.mid(4002, 10000) == want.mid(4002, 10000));
    }
}

void EngineRecordTest::pcmIsNotTakenForDop()
{
    const QString out = path("notdop.dsf");
    const Recording r = record({"--record-dsd", "--record-device", "tone44", "--record-duration", "1", out});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(r.err.contains("not delivering DoP"), qPrintable(r.err));
    int rate = 0;
    std::vector<QByteArray> bits;
    QVERIFY(playertest::readDsdBits(out, rate, bits)); // still a complete file
}

void EngineRecordTest::nativeDsdCaptureStoresTheBits()
{
    const QString out = path("native.dsf");
    const Recording r = record({"--record-dsd", "--dsd-mode", "native", "--record-device", "native",
                                "--record-duration", "2", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(r.out.contains("DSD_U32_BE, 88200 Hz, 2 ch -> DSD64"), qPrintable(r.out));
    int rate = 0;
    std::vector<QByteArray> bits;
    QVERIFY(playertest::readDsdBits(out, rate, bits));
    QCOMPARE(bits[0].size(), qsizetype(2 * 2822400 / 8));
    for (int c = 0; c < 2; ++c)
        QVERIFY(bits[std::size_t(c)] == dopBits_[std::size_t(c)].left(bits[0].size()));
}

void EngineRecordTest::refusedBeforeAnyOutput_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("DSD mode unknown") << QStringList{"--record-dsd", "--dsd-mode", "raw"} << "--dsd-mode";
    QTest::newRow("DSD with a PCM rate") << QStringList{"--record-dsd", "--record-samplerate", "96000"} << "--record-samplerate";
    QTest::newRow("PDF report of stored DSD") << QStringList{"--record-dsd", "-pdfrp"} << "-pdfrp";
    QTest::newRow("nine channels") << QStringList{"--record", "--record-channels", "9"} << "--record-channels";
    QTest::newRow("22.05 kHz") << QStringList{"--record", "--record-samplerate", "22050"} << "--record-samplerate";
    QTest::newRow("record options alone") << QStringList{"--record-device", "tone44"} << "need --record";
    QTest::newRow("dsd mode without DSD") << QStringList{"--record", "--dsd-mode", "dop"} << "--dsd-mode";
    QTest::newRow("with an input") << QStringList{"--record", "-i", "x.wav"} << "excludes";
    QTest::newRow("negative headroom") << QStringList{"--record", "--record-headroom", "-3"} << "--record-headroom";
    QTest::newRow("buffer without value") << QStringList{"--record", "--record-buffer"} << "needs a value";
}

void EngineRecordTest::refusedBeforeAnyOutput()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const QString out = path("refused.dsf");
    const bool valueLast = args.last() == "--record-buffer";
    const Recording r = record(valueLast ? QStringList{out} + args : args + QStringList{out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(r.err.contains(message), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));

    const QString dff = path("refused.dff");
    QCOMPARE(record({"--record", dff}).exitCode, 2);
    QVERIFY(!QFile::exists(dff));
}

void EngineRecordTest::missingDeviceIsAFailureWithoutOutput()
{
    const QString out = path("nodevice.dsf");
    const Recording r = record({"--record", "--record-device", "nosuchdevice", out});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(r.err.contains("nosuchdevice"), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
}

void EngineRecordTest::pdfReportOfARecording()
{
    const QString out = path("reported.dsf");
    const Recording r = record({"--record", "--record-device", "tone44", "--record-duration", "3", "-pdfrp",
                                "--noise-profiling", out});
    QVERIFY2(r.exitCode == 0 && !r.crashed, qPrintable(r.err));
    const QString pdf = path("reported.report.pdf");
    QVERIFY2(r.err.contains("report: " + pdf), qPrintable(r.err));
    QProcess info;
    info.start("pdfinfo", {pdf});
    QVERIFY(info.waitForFinished(30000));
    QVERIFY(QString::fromUtf8(info.readAllStandardOutput()).contains(QRegularExpression("Pages:\\s+4\\n")));
    QProcess text;
    text.start("pdftotext", {"-layout", pdf, "-"});
    QVERIFY(text.waitForFinished(30000));
    const QString t = QString::fromUtf8(text.readAllStandardOutput());
    for (const char* needle : {"capture device \"tone44\"", "44100 Hz PCM -> DSD64", "Noise per 1 kHz band"})
        QVERIFY2(t.contains(needle), needle);
    // The 0.5-peak tone: -6.02 dBFS at the input, in both channels.
    QVERIFY2(t.contains(QRegularExpression("\\n1\\s+-6.0[12] dBFS")), qPrintable(t.left(3000)));
}

QTEST_GUILESS_MAIN(EngineRecordTest)
#include "tst_engine_record.moc"
