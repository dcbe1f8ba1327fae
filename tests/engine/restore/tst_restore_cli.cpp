// The restoration options through the real engine: DSD files decoded by
// ffmpeg and measured, refusals, the log and the listings.
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>

#include <cmath>
#include <random>

#include "engine_test_support.h"
#include "restore_signals.h"

using namespace enginetest;
using namespace restoretest;

namespace {

constexpr int kRate = 44100;

QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// ffmpeg's integrated loudness of a file decoded at `rate`.
bool ffmpegIntegrated(const QString& path, int rate, double& lufs)
{
    QProcess p;
    p.start("ffmpeg", {"-nostats", "-i", path, "-af", QStringLiteral("aresample=%1,ebur128").arg(rate), "-f", "null",
                       "-"});
    if (!p.waitForFinished(120000) || p.exitCode() != 0)
        return false;
    const QString err = QString::fromUtf8(p.readAllStandardError());
    const auto m = QRegularExpression(R"(I:\s+(-?[\d.]+) LUFS)").match(err.mid(err.lastIndexOf("Summary:")));
    if (!m.hasMatch())
        return false;
    lufs = m.captured(1).toDouble();
    return true;
}

} // namespace

class TestRestoreCli : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(dir_.isValid()); }
    void dehumInTheDsdFile();
    void decrackleInTheDsdFile();
    void cleanToneBitIdentical();
    void masteringRun();
    void denoiseInTheDsdFile_data();
    void denoiseInTheDsdFile();
    void lufsMeasuresAfterRestoration();
    void usageErrors_data();
    void usageErrors();
    void listings();

private:
    QString path(const char* name) const { return dir_.filePath(name); }
    QTemporaryDir dir_;
};

void TestRestoreCli::dehumInTheDsdFile()
{
    // 4 s: 1 kHz at -10 dBFS + 50 Hz hum (fundamental + 9 harmonics, -30 dBFS each).
    const long frames = 4 * kRate;
    const Signal x = humAndTone(kRate, static_cast<std::size_t>(frames), 50, 0.0316, 0.316);
    const QString in = path("hum.wav");
    QVERIFY(writePcm(in, kRate, 2, frames, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                     [&](long i, int) { return x[static_cast<std::size_t>(i)]; }));
    const QString plain = path("hum_plain.dsf"), fixed = path("hum_fixed.dsf"), log = path("hum.log");
    QCOMPARE(runEngine({"-i", in, plain}).exitCode, 0);
    const RunResult r = runEngine({"-i", in, "--dehum", "--dehum-q", "10", "--log-file", log, fixed});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(dsdDurationMatches(ffprobe(fixed), 4.0, 64 * 44100));
    std::vector<Signal> a, b;
    QVERIFY(ffmpegDecode(plain, kRate, 2, a));
    QVERIFY(ffmpegDecode(fixed, kRate, 2, b));
    QCOMPARE(a[0].size(), b[0].size());
    const std::size_t from = kRate, to = static_cast<std::size_t>(3.8 * kRate);
    double least = 1e9;
    for (int k = 1; k <= 10; ++k) {
        const double down = db(toneAmp(a[0], kRate, 50.0 * k, from, to) / toneAmp(b[0], kRate, 50.0 * k, from, to));
        QVERIFY2(down >= 40, qPrintable(QString("harmonic %1: %2 dB").arg(k).arg(down)));
        least = std::min(least, down);
    }
    const double tone = db(toneAmp(b[1], kRate, 1000, from, to) / toneAmp(a[1], kRate, 1000, from, to));
    QVERIFY2(std::abs(tone) < 0.1, qPrintable(QString::number(tone)));
    qInfo("decoded DSD: every hum harmonic at least %.1f dB down, 1 kHz moved %+.4f dB", least, tone);
    const QString text = QString::fromUtf8(fileBytes(log));
    QVERIFY2(text.contains("dehum: mains 50.000 Hz"), qPrintable(text));
}

void TestRestoreCli::decrackleInTheDsdFile()
{
    // Clicks on a music-like signal; the decoded repair against the decoded
    // clean conversion, around each click (the decoder's filters spread it).
    const std::size_t n = static_cast<std::size_t>(4 * kRate);
    const Signal clean = musicLike(kRate, n, 9);
    Signal clicked = clean;
    const auto clicks = addClicks(clicked, 4000, 4410, 5);
    const QString cleanIn = path("music.wav"), clickIn = path("clicks.wav");
    QVERIFY(writePcm(cleanIn, kRate, 1, long(n), SF_FORMAT_WAV | SF_FORMAT_FLOAT,
                     [&](long i, int) { return clean[static_cast<std::size_t>(i)]; }));
    QVERIFY(writePcm(clickIn, kRate, 1, long(n), SF_FORMAT_WAV | SF_FORMAT_FLOAT,
                     [&](long i, int) { return clicked[static_cast<std::size_t>(i)]; }));
    const QString ref = path("music.dsf"), raw = path("clicks.dsf"), fixed = path("repaired.dsf");
    const QString log = path("clicks.log");
    QCOMPARE(runEngine({"-i", cleanIn, ref}).exitCode, 0);
    QCOMPARE(runEngine({"-i", clickIn, raw}).exitCode, 0);
    const RunResult r = runEngine({"-i", clickIn, "--decrackle", "--log-file", log, fixed});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    std::vector<Signal> c, d, e;
    QVERIFY(ffmpegDecode(ref, kRate, 1, c) && ffmpegDecode(raw, kRate, 1, d) && ffmpegDecode(fixed, kRate, 1, e));
    QVERIFY(c[0].size() == d[0].size() && c[0].size() == e[0].size());
    double before = 0, after = 0;
    for (const Click& k : clicks)
        for (std::size_t i = k.at - 64; i < k.at + k.length + 64; ++i) {
            before += (d[0][i] - c[0][i]) * (d[0][i] - c[0][i]);
            after += (e[0][i] - c[0][i]) * (e[0][i] - c[0][i]);
        }
    const double down = 10 * std::log10(before / after);
    QVERIFY2(down >= 15, qPrintable(QString("click energy down %1 dB").arg(down)));
    qInfo("decoded DSD: click energy around the clicks down %.1f dB", down);
    QVERIFY(QString::fromUtf8(fileBytes(log)).contains("decrackle: "));
}

void TestRestoreCli::cleanToneBitIdentical()
{
    // A tone well above the expander's threshold and without clicks: with
    // the repair and the expander on, the DSD bits are the plain run's, so
    // nothing was shifted, dropped or added on the way.
    const long frames = 3 * kRate + 123;
    const QString in = path("clean.wav");
    QVERIFY(writePcm(in, kRate, 2, frames, SF_FORMAT_WAV | SF_FORMAT_DOUBLE, [](long i, int c) {
        return 0.4 * std::sin(2 * kPi * (c ? 997.0 : 441.0) * static_cast<double>(i) / kRate);
    }));
    const QString plain = path("clean_plain.dsf"), restored = path("clean_restored.dsf");
    QCOMPARE(runEngine({"-i", in, plain}).exitCode, 0);
    const RunResult r = runEngine({"-i", in, "--decrackle", "--expand", restored});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QByteArray a = fileBytes(plain), b = fileBytes(restored);
    QVERIFY(!a.isEmpty());
    QVERIFY(a == b);
}

void TestRestoreCli::masteringRun()
{
    const long frames = 3 * kRate;
    const QString in = path("master.wav");
    QVERIFY(writePcm(in, kRate, 2, frames, SF_FORMAT_WAV | SF_FORMAT_PCM_16, [](long i, int c) {
        return 0.3 * std::sin(2 * kPi * (c ? 300.0 : 500.0) * static_cast<double>(i) / kRate);
    }));
    const QString out = path("master.dff"), log = path("master.log");
    const RunResult r = runEngine({"-i", in, "--music-type", "2", "--log-file", log, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(dsdDurationMatches(ffprobe(out), 3.0, 64 * 44100));
    const QString text = QString::fromUtf8(fileBytes(log));
    for (const char* line : {"  dehum:", "  decrackle:", "  expander: threshold -50.0 dB, ratio 1:2.00",
                             "mastering (pop)", "stereo width 1.15", "eq-bass: low shelf 80 Hz, +1.50 dB"})
        QVERIFY2(text.contains(line), line);
}

void TestRestoreCli::lufsMeasuresAfterRestoration()
{
    // Loud hum under a quiet tone: removing it changes the loudness, so the
    // target holds for the output only when the measuring pass runs the
    // restoration too.
    const long frames = 5 * kRate;
    const Signal x = humAndTone(kRate, static_cast<std::size_t>(frames), 50, 0.05, 0.05);
    const QString in = path("hum_lufs.wav");
    QVERIFY(writePcm(in, kRate, 2, frames, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                     [&](long i, int) { return x[static_cast<std::size_t>(i)]; }));
    double before = 0;
    QVERIFY(ffmpegIntegrated(in, kRate, before));
    const QString out = path("hum_lufs.dsf");
    const RunResult r = runEngine({"--dehum", "--lufs", "-30", "-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    double after = 0;
    QVERIFY(ffmpegIntegrated(out, 88200, after));
    qInfo("input %.1f LUFS; --dehum --lufs -30 output %.1f LUFS", before, after);
    QVERIFY2(std::abs(after + 30) <= 0.15, qPrintable(QString::number(after)));
}

void TestRestoreCli::denoiseInTheDsdFile_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<double>("leastGainDb");
    QTest::newRow("light") << QStringList{"--denoise", "light", "--keep-harmonics", "off"} << 9.0;
    QTest::newRow("standard, harmonics kept") << QStringList{"--denoise", "standard", "--keep-harmonics", "on"} << 13.0;
    QTest::newRow("deep") << QStringList{"--denoise", "deep", "--keep-harmonics", "off"} << 15.0;
    QTest::newRow("wiener") << QStringList{"--wiener", "--wiener-frame", "32"} << 10.0;
}

void TestRestoreCli::denoiseInTheDsdFile()
{
    // 1 kHz at -20 dBFS in white noise at -50 dBFS: the SNR of the decoded
    // DSD file with the denoiser against the plain conversion, measured once
    // the noise floor has been learnt (1.5 s).
    QFETCH(QStringList, args);
    QFETCH(double, leastGainDb);
    const long frames = 5 * kRate;
    std::mt19937 rng(7);
    std::normal_distribution<double> noise(0.0, std::pow(10.0, -50.0 / 20));
    Signal x(static_cast<std::size_t>(frames));
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = 0.1 * std::sqrt(2.0) * std::sin(2 * M_PI * 1000 * double(i) / kRate) + noise(rng);
    const QString in = path("noisy.wav");
    QVERIFY(writePcm(in, kRate, 1, frames, SF_FORMAT_WAV | SF_FORMAT_FLOAT,
                     [&](long i, int) { return x[static_cast<std::size_t>(i)]; }));
    const QString plain = path("noisy_plain.dsf"), cleaned = path("noisy_denoised.dsf");
    if (!QFile::exists(plain))
        QCOMPARE(runEngine({"-i", in, plain}).exitCode, 0);
    const RunResult r = runEngine(QStringList{"-i", in} + args + QStringList{cleaned});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    std::vector<Signal> a, b;
    QVERIFY(ffmpegDecode(plain, kRate, 1, a) && ffmpegDecode(cleaned, kRate, 1, b));
    QCOMPARE(a[0].size(), b[0].size());
    const auto snr = [](const Signal& s) {
        const Signal slice(s.begin() + 2 * kRate, s.begin() + static_cast<long>(4.8 * kRate));
        return db(toneAmplitude(slice, kRate, 1000) / std::sqrt(2.0) / residualRms(slice, kRate, 1000));
    };
    const double gain = snr(b[0]) - snr(a[0]);
    qInfo("%s: SNR %.1f dB -> %.1f dB (%+.1f dB)", qPrintable(args.join(' ')), snr(a[0]), snr(b[0]), gain);
    QVERIFY2(gain >= leastGainDb, qPrintable(QString::number(gain)));
    // The tone itself keeps its level.
    const double tone = db(toneAmplitude(b[0], kRate, 1000, 2 * kRate) / toneAmplitude(a[0], kRate, 1000, 2 * kRate));
    QVERIFY2(std::abs(tone) < 0.2, qPrintable(QString::number(tone)));
}

void TestRestoreCli::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown preset") << QStringList{"--mastering-preset", "rock"}
                                    << "--mastering-preset: 'rock' is not one of classical, pop, jazz";
    QTest::newRow("music type 7") << QStringList{"--music-type", "7"}
                                  << "--music-type: '7' is not one of 1 (classical), 2 (pop), 3 (jazz)";
    QTest::newRow("bad ratio") << QStringList{"--expand", "--expand-ratio", "x"} << "--expand-ratio: 'x'";
    QTest::newRow("two denoisers") << QStringList{"--wiener", "--denoise", "light"}
                                   << "--wiener cannot be combined with --denoise or --noise-reduce";
    QTest::newRow("unknown tier") << QStringList{"--denoise", "max"} << "--denoise: 'max' is not light, standard or deep";
}

void TestRestoreCli::usageErrors()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const QString in = path("usage.wav");
    QVERIFY(writePcm(in, kRate, 1, kRate / 2, SF_FORMAT_WAV | SF_FORMAT_PCM_16, [](long, int) { return 0.0; }));
    const QString out = path("usage.dsf");
    const RunResult r = runEngine(QStringList{"-i", in} + args + QStringList{out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(r.err.contains(message), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
}

void TestRestoreCli::listings()
{
    const RunResult caps = runEngine({"--capabilities"});
    QCOMPARE(caps.exitCode, 0);
    for (const char* done : {"--dehum", "--decrackle", "--expand", "--master", "--music-type", "--mastering-preset",
                             "--wiener", "--denoise", "--keep-harmonics", "--noise-reduce"})
        QVERIFY2(!caps.out.contains(QString("refused %1\n").arg(done)), done);
    const RunResult help = runEngine({"--help"});
    for (const char* text : {"--dehum-q Q", "--decrackle-threshold T", "--expand-threshold DB", "--expand-ratio R",
                             "--expand-knee DB", "--expand-attack MS", "--expand-release MS", "--mastering-preset P",
                             "--music-type N", "Processing order", "spectral denoise ->",
                             "--denoise light|standard|deep"})
        QVERIFY2(help.out.contains(text), text);
}

QTEST_GUILESS_MAIN(TestRestoreCli)
#include "tst_restore_cli.moc"
