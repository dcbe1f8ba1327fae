// Loudness through the real CLI, checked with independent tools: --measure
// against ffmpeg's loudness filter, --lufs on the DSD output decoded by
// ffmpeg, --rg tags read by ffprobe, --stop-lossy on a lossless and an
// MP3-decoded input, and the report lines each switch adds or removes.
#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <random>

#include <sndfile.h>

#include "engine_test_support.h"
#include "io/dsd_reader.h"

using namespace enginetest;

namespace {

struct Ebur128 {
    bool ok = false;
    double integrated = 0;
    double truePeak = 0;
};

// ffmpeg's own measurement (one decimal), of the file as decoded at `rate`
// when a rate is given (DSD is measured at 88.2 kHz, not at its own rate).
Ebur128 ffmpegLoudness(const QString& path, int rate = 0)
{
    QProcess p;
    QString filter = QStringLiteral("ebur128=peak=true");
    if (rate)
        filter = QStringLiteral("aresample=%1,").arg(rate) + filter;
    p.start("ffmpeg", {"-nostats", "-i", path, "-af", filter, "-f", "null", "-"});
    Ebur128 r;
    if (!p.waitForFinished(120000) || p.exitCode() != 0)
        return r;
    const QString err = QString::fromUtf8(p.readAllStandardError());
    const QString summary = err.mid(err.lastIndexOf("Summary:"));
    const auto i = QRegularExpression(R"(I:\s+(-?[\d.]+) LUFS)").match(summary);
    const auto tp = QRegularExpression(R"(Peak:\s+(-?[\d.]+) dBFS)").match(summary);
    if (!i.hasMatch() || !tp.hasMatch())
        return r;
    r.ok = true;
    r.integrated = i.captured(1).toDouble();
    r.truePeak = tp.captured(1).toDouble();
    return r;
}

// Noise with a gentle treble roll-off, as programme material has.
double softNoise(std::mt19937& rng, double& state)
{
    std::normal_distribution<double> g;
    state = 0.6 * state + 0.4 * g(rng);
    return state;
}

} // namespace

class EngineLoudnessTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void measureAgreesWithFfmpeg_data();
    void measureAgreesWithFfmpeg();
    void measureWritesNothing();
    void measureSilenceAndLocale();
    void lufsLandsOnTarget();
    void lufsKeepsTheTruePeakCeiling();
    void lufsMeasuresAfterTheEffects();
    void replayGainTagsInDsf();
    void replayGainTagsInDff();
    void stopLossy();
    void reportLines_data();
    void reportLines();

private:
    QString music(const QString& name, int rate, int channels, double seconds, double level);
    QTemporaryDir dir_;
};

void EngineLoudnessTest::initTestCase()
{
    QVERIFY(dir_.isValid());
    QVERIFY2(QFile::exists(enginePath()), qPrintable(enginePath()));
}

// Harmonic notes with loud and quiet passages and soft noise, no content
// near the top of the band.
QString EngineLoudnessTest::music(const QString& name, int rate, int channels, double seconds, double level)
{
    const QString path = dir_.filePath(name);
    if (QFile::exists(path))
        return path;
    std::mt19937 rng(11);
    std::vector<double> state(static_cast<std::size_t>(channels), 0.0);
    writePcm(path, rate, channels, long(seconds * rate), SF_FORMAT_WAV | SF_FORMAT_PCM_24, [&](long i, int c) {
        const double t = double(i) / rate;
        const int note = int(t / 0.5);
        const double f0 = 110.0 * std::pow(2.0, (note * 7 % 24) / 12.0);
        const double env = std::exp(-3.0 * std::fmod(t, 0.5)) * (0.35 + 0.65 * (note % 4 == 0 ? 1.0 : 0.3));
        double v = 0;
        for (int k = 1; k <= 12; ++k)
            v += std::sin(2 * M_PI * f0 * k * t + c) / k;
        v = v * env * 0.25 + 0.02 * softNoise(rng, state[static_cast<std::size_t>(c)]);
        // A 10 ms fade-in: a file that starts mid-waveform rings in every
        // interpolator, and that ringing is no part of the comparison.
        return level * v * (c == 3 ? 0.3 : 1.0) * std::min(1.0, t / 0.01);
    });
    return path;
}

void EngineLoudnessTest::measureAgreesWithFfmpeg_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<double>("level");
    QTest::newRow("stereo 44.1 kHz") << 44100 << 2 << 0.8;
    QTest::newRow("mono 48 kHz") << 48000 << 1 << 0.5;
    QTest::newRow("5.1 48 kHz") << 48000 << 6 << 0.6;
    QTest::newRow("quiet stereo 96 kHz") << 96000 << 2 << 0.02;
}

void EngineLoudnessTest::measureAgreesWithFfmpeg()
{
    QFETCH(int, rate);
    QFETCH(int, channels);
    QFETCH(double, level);
    const QString in = music(QStringLiteral("m_%1_%2_%3.wav").arg(rate).arg(channels).arg(level), rate, channels, 4, level);
    const RunResult r = runEngine({"--measure", "-i", in});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QStringList lines = r.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0], QStringLiteral("file,integrated_lufs,lra_lu,true_peak_dbtp,plr_db"));
    const QStringList f = lines[1].split(',');
    QCOMPARE(f.size(), 5);
    QCOMPARE(f[0], in);
    const double i = f[1].toDouble(), tp = f[3].toDouble(), plr = f[4].toDouble();
    QVERIFY(std::fabs(plr - (tp - i)) < 0.011);
    const Ebur128 ref = ffmpegLoudness(in);
    QVERIFY(ref.ok);
    // ffmpeg prints one decimal: its rounding adds up to 0.05.
    QVERIFY2(std::fabs(i - ref.integrated) <= 0.15, qPrintable(QStringLiteral("%1 vs %2").arg(i).arg(ref.integrated)));
    QVERIFY2(std::fabs(tp - ref.truePeak) <= 0.25, qPrintable(QStringLiteral("%1 vs %2").arg(tp).arg(ref.truePeak)));
}

void EngineLoudnessTest::measureWritesNothing()
{
    const QString in = music("w.wav", 44100, 2, 1, 0.5);
    const QString absent = dir_.filePath("absent.dsf");
    RunResult r = runEngine({"--measure", "--gui", "-i", in, absent});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(!QFile::exists(absent));
    QVERIFY(r.out.contains("[PROGRESS]"));
    QVERIFY(r.out.contains("file,integrated_lufs"));

    const QString existing = dir_.filePath("existing.dff");
    {
        QFile f(existing);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("keep me");
    }
    const QDateTime before = QFileInfo(existing).lastModified();
    r = runEngine({"--measure", "-i", in, existing});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QFile f(existing);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.readAll(), QByteArray("keep me"));
    QCOMPARE(QFileInfo(existing).lastModified(), before);

    // An unreadable input among good ones: its row is missing, exit 1.
    const QString broken = dir_.filePath("broken.wav");
    QFile b(broken);
    QVERIFY(b.open(QIODevice::WriteOnly));
    b.write("RIFF junk");
    b.close();
    r = runEngine({"--measure", in, broken, in});
    QCOMPARE(r.exitCode, 1);
    QCOMPARE(r.out.trimmed().split('\n').size(), 3);
}

void EngineLoudnessTest::measureSilenceAndLocale()
{
    const QString silent = dir_.filePath("silent.wav");
    writePcm(silent, 44100, 2, 44100, SF_FORMAT_WAV | SF_FORMAT_PCM_16, [](long, int) { return 0.0; });
    const QString in = music("l.wav", 44100, 2, 1, 0.5);
    qputenv("LC_ALL", "de_DE.UTF-8");
    const RunResult r = runEngine({"--measure", silent, in});
    qunsetenv("LC_ALL");
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QStringList lines = r.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[1], silent + QStringLiteral(",-inf,0.00,-inf,nan"));
    QVERIFY2(QRegularExpression(R"(,-\d+\.\d\d,\d+\.\d\d,-?\d+\.\d\d,\d+\.\d\d$)").match(lines[2]).hasMatch(),
             qPrintable(lines[2]));
}

void EngineLoudnessTest::lufsLandsOnTarget()
{
    // Sustained chords with a slow swell: a peak-to-loudness ratio that
    // leaves -23 LUFS below the output's true-peak ceiling.
    const QString in = dir_.filePath("target.wav");
    writePcm(in, 44100, 2, 44100 * 6, SF_FORMAT_WAV | SF_FORMAT_PCM_24, [](long i, int c) {
        const double t = i / 44100.0;
        const double swell = 0.6 + 0.4 * std::sin(2 * M_PI * 0.25 * t);
        const double chord = std::sin(2 * M_PI * 220 * t + c) + 0.5 * std::sin(2 * M_PI * 277.2 * t)
                             + 0.4 * std::sin(2 * M_PI * 329.6 * t) + 0.2 * std::sin(2 * M_PI * 1760 * t);
        return 0.15 * swell * chord * std::min(1.0, t / 0.01);
    });
    const QString out = dir_.filePath("target.dsf");
    const RunResult r = runEngine({"--lufs", "-23", "-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(!r.err.contains("lowered"), qPrintable(r.err));
    const Ebur128 got = ffmpegLoudness(out, 88200);
    QVERIFY(got.ok);
    QVERIFY2(std::fabs(got.integrated + 23.0) <= 0.15, qPrintable(QString::number(got.integrated)));
}

void EngineLoudnessTest::lufsKeepsTheTruePeakCeiling()
{
    // Short loud bursts over a quiet bed: a high peak-to-loudness ratio, so
    // -14 LUFS would push the peaks past the modulator's ceiling.
    const QString in = dir_.filePath("peaky.wav");
    writePcm(in, 48000, 2, 48000 * 4, SF_FORMAT_WAV | SF_FORMAT_PCM_24, [](long i, int) {
        const double t = i / 48000.0;
        const double burst = std::fmod(t, 1.0) < 0.01 ? 0.9 : 0.01;
        return burst * std::sin(2 * M_PI * 1000 * t);
    });
    const QString out = dir_.filePath("peaky.dsf");
    const RunResult r = runEngine({"--lufs", "-14", "-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(r.err.contains("the gain was lowered"), qPrintable(r.err));
    const auto m = QRegularExpression(R"(lands at (-?[\d.]+) LUFS)").match(r.err);
    QVERIFY(m.hasMatch());
    const Ebur128 got = ffmpegLoudness(out, 88200);
    QVERIFY(got.ok);
    QVERIFY2(got.integrated < -14.5, qPrintable(QString::number(got.integrated)));
    QVERIFY2(std::fabs(got.integrated - m.captured(1).toDouble()) <= 0.2, qPrintable(QString::number(got.integrated)));
    QVERIFY2(got.truePeak <= -6.8, qPrintable(QString::number(got.truePeak)));
}

void EngineLoudnessTest::lufsMeasuresAfterTheEffects()
{
    // +9 dB at 3 kHz changes the loudness; the target holds for the output
    // all the same, so the measuring pass must run the equaliser too.
    const QString in = dir_.filePath("eq.wav");
    writePcm(in, 48000, 2, 48000 * 5, SF_FORMAT_WAV | SF_FORMAT_PCM_24, [](long i, int c) {
        const double t = i / 48000.0;
        return 0.1 * (std::sin(2 * M_PI * 3000 * t + c) + 0.7 * std::sin(2 * M_PI * 300 * t)) * std::min(1.0, t / 0.01);
    });
    const QString out = dir_.filePath("eq.dsf");
    const RunResult r = runEngine({"--eq-presence", "9", "--lufs", "-20", "-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(!r.err.contains("lowered"), qPrintable(r.err));
    const Ebur128 got = ffmpegLoudness(out, 88200);
    QVERIFY(got.ok);
    QVERIFY2(std::fabs(got.integrated + 20.0) <= 0.15, qPrintable(QString::number(got.integrated)));
}

void EngineLoudnessTest::replayGainTagsInDsf()
{
    const QString in = music("rg.wav", 44100, 2, 5, 0.5);
    const QString out = dir_.filePath("rg.dsf");
    const RunResult r = runEngine({"--rg", "album", "--artist", "A", "-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QJsonObject tags = ffprobe(out)["format"].toObject()["tags"].toObject();
    QCOMPARE(tags["artist"].toString(), QStringLiteral("A"));
    const QString gain = tags["REPLAYGAIN_TRACK_GAIN"].toString();
    const QString peak = tags["REPLAYGAIN_TRACK_PEAK"].toString();
    QVERIFY2(QRegularExpression(R"(^-?\d+\.\d\d dB$)").match(gain).hasMatch(), qPrintable(gain));
    QVERIFY2(QRegularExpression(R"(^\d\.\d{6}$)").match(peak).hasMatch(), qPrintable(peak));
    QCOMPARE(tags["REPLAYGAIN_ALBUM_GAIN"].toString(), gain);
    QCOMPARE(tags["REPLAYGAIN_ALBUM_PEAK"].toString(), peak);
    // The values describe the file as decoded: loudness at 88.2 kHz, the
    // peak at 44.1 kHz (the modulator's noise above 22 kHz is no part of
    // the programme's peak).
    const Ebur128 ref = ffmpegLoudness(out, 88200);
    QVERIFY(ref.ok);
    const double g = gain.split(' ')[0].toDouble();
    QVERIFY2(std::fabs(g - (-18.0 - ref.integrated)) <= 0.15, qPrintable(QStringLiteral("%1 vs %2").arg(g).arg(ref.integrated)));
    const Ebur128 audioBand = ffmpegLoudness(out, 44100);
    QVERIFY(audioBand.ok);
    QVERIFY2(std::fabs(20 * std::log10(peak.toDouble()) - audioBand.truePeak) <= 0.25,
             qPrintable(QStringLiteral("%1 vs %2").arg(peak).arg(audioBand.truePeak)));
}

void EngineLoudnessTest::replayGainTagsInDff()
{
    // ffprobe does not read DSDIFF's ID3 chunk: read it with our DSD reader.
    const QString in = music("rg.wav", 44100, 2, 5, 0.5);
    const QString out = dir_.filePath("rg.dff");
    const RunResult r = runEngine({"--rg", "-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    std::string error;
    auto reader = zuvo::io::openDsdFile(out.toStdString(), &error);
    QVERIFY2(reader, error.c_str());
    const QString gain = QString::fromStdString(reader->tags().userTextValue("REPLAYGAIN_TRACK_GAIN"));
    QVERIFY2(gain.endsWith(" dB"), qPrintable(gain));
    QVERIFY(reader->tags().userTextValue("REPLAYGAIN_ALBUM_GAIN").empty());
    const Ebur128 ref = ffmpegLoudness(out, 88200);
    QVERIFY(ref.ok);
    QVERIFY2(std::fabs(gain.split(' ')[0].toDouble() - (-18.0 - ref.integrated)) <= 0.15, qPrintable(gain));
}

void EngineLoudnessTest::stopLossy()
{
    const QString noise = dir_.filePath("noise.wav");
    std::mt19937 rng(5);
    std::normal_distribution<double> g;
    writePcm(noise, 44100, 2, 44100 * 4, SF_FORMAT_WAV | SF_FORMAT_PCM_24, [&](long, int) { return 0.1 * g(rng); });
    const QString ok = dir_.filePath("lossless.dsf");
    RunResult r = runEngine({"--stop-lossy", "-i", noise, ok});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(QFile::exists(ok));

    const QString mp3 = dir_.filePath("noise.mp3"), back = dir_.filePath("from_mp3.wav");
    QCOMPARE(QProcess::execute("ffmpeg", {"-v", "error", "-y", "-i", noise, "-c:a", "libmp3lame", "-b:a", "128k", mp3}), 0);
    QCOMPARE(QProcess::execute("ffmpeg", {"-v", "error", "-y", "-i", mp3, "-c:a", "pcm_s16le", back}), 0);
    const QString refused = dir_.filePath("refused.dsf");
    r = runEngine({"--stop-lossy", "-i", back, refused});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(r.err.contains(QRegularExpression(R"(input looks lossy: low-pass at 1[5-8]\.\d kHz)")), qPrintable(r.err));
    QVERIFY(!QFile::exists(refused));
    // Without the switch the same input converts.
    r = runEngine({"-i", back, refused});
    QCOMPARE(r.exitCode, 0);
}

void EngineLoudnessTest::reportLines_data()
{
    QTest::addColumn<QStringList>("flags");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("absent");
    const QString level = "channel 2: peak ", dr = "channel 2: dynamic range ", st = "stats channel=2 dc_offset=",
                  sl = "stats integrated_lufs=";
    QTest::newRow("none") << QStringList{} << QStringList{} << QStringList{level, dr, st, sl};
    QTest::newRow("report") << QStringList{"--report"} << QStringList{level, dr, " crest "} << QStringList{st};
    QTest::newRow("peak, no dynamic range") << QStringList{"--peak", "--no-dynamic-range"} << QStringList{level}
                                            << QStringList{dr, " rms "};
    QTest::newRow("stats") << QStringList{"--stats"} << QStringList{st, sl, " clipped=0 ", " dynamic_range_db="}
                           << QStringList{level, dr};
    QTest::newRow("stats, no dynamic range") << QStringList{"--stats", "--no-dynamic-range"} << QStringList{st, sl}
                                             << QStringList{"dynamic_range_db"};
}

void EngineLoudnessTest::reportLines()
{
    QFETCH(QStringList, flags);
    QFETCH(QStringList, present);
    QFETCH(QStringList, absent);
    const QString in = music("report.wav", 44100, 2, 2, 0.5);
    const RunResult r = runEngine(flags + QStringList{"-i", in, dir_.filePath("report.dsf")});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    for (const QString& p : present)
        QVERIFY2(r.out.contains(p), qPrintable(p + " missing from:\n" + r.out));
    for (const QString& a : absent)
        QVERIFY2(!r.out.contains(a), qPrintable(a + " unexpected in:\n" + r.out));
    if (flags.contains("--stats")) {
        // Every figure parses as a number (or -inf), '.' as the separator.
        const auto m = QRegularExpression(R"(stats integrated_lufs=(-?\d+\.\d\d) loudness_range_lu=(\d+\.\d\d) true_peak_dbtp=(-?\d+\.\d\d))").match(r.out);
        QVERIFY2(m.hasMatch(), qPrintable(r.out));
        const Ebur128 ref = ffmpegLoudness(in);
        QVERIFY(ref.ok);
        QVERIFY(std::fabs(m.captured(1).toDouble() - ref.integrated) <= 0.15);
    }
}

QTEST_GUILESS_MAIN(EngineLoudnessTest)
#include "tst_engine_loudness.moc"
