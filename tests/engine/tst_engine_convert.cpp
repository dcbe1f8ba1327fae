// Conversions through the real CLI, checked with an independent decoder
// (ffprobe/ffmpeg) and with libsndfile: rates, channels, durations, tags,
// tone frequency and level, reverse and DXD paths, stop on request.
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>

#include "engine_test_support.h"
#include "io/dsd_writer.h"

using namespace enginetest;

namespace {

double db(double ratio) { return 20 * std::log10(ratio); }

// ch0: 1 kHz at -6 dBFS, ch1: 3 kHz at -12 dBFS, further channels 500 Hz x (c+1) at -12 dBFS.
double testSignal(long i, int c, int rate)
{
    const double f = c == 0 ? 1000.0 : c == 1 ? 3000.0 : 500.0 * (c + 1);
    const double a = c == 0 ? 0.5 : 0.25;
    return a * std::sin(2 * M_PI * f * static_cast<double>(i) / rate);
}

QJsonObject firstStream(const QJsonObject& probe)
{
    return probe["streams"].toArray().at(0).toObject();
}

double durationOf(const QJsonObject& probe)
{
    return probe["format"].toObject()["duration"].toString().toDouble();
}

} // namespace

class EngineConvertTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void toneToDsf();
    void toneToDffWithTags();
    void metadataFromInput();
    void coverEmbedded();
    void inputFormats_data();
    void inputFormats();
    void swapChannels();
    void reportAndLogFile();
    void reverseRoundTrip();
    void reverseToFlacJoinsInputs();
    void dxd();
    void stopOnStdin();
    void reverseStopOnStdin();

private:
    QString makeInput(const QString& name, int rate, int channels, double seconds, int format);
    QTemporaryDir dir_;
};

void EngineConvertTest::initTestCase()
{
    QVERIFY(dir_.isValid());
    QVERIFY2(QFile::exists(enginePath()), qPrintable(enginePath()));
}

QString EngineConvertTest::makeInput(const QString& name, int rate, int channels, double seconds, int format)
{
    const QString path = dir_.filePath(name);
    if (!QFile::exists(path))
        writePcm(path, rate, channels, long(seconds * rate), format, [rate](long i, int c) { return testSignal(i, c, rate); });
    return path;
}

void EngineConvertTest::toneToDsf()
{
    const QString in = makeInput("tone.wav", 44100, 2, 2.0, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString out = dir_.filePath("tone.dsf");
    // Half gain keeps the -6 dBFS tone clear of the modulator's stability limit
    // (about -6 dBFS at its input), so harmonics do not mask the crosstalk check.
    const RunResult r = runEngine({"-i", in, "--gui", "--abs", "0.5", "--album", "Tones", "--track", "12", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));

    // Progress protocol: only "[PROGRESS] x.y" lines, rising, ending at 100.0.
    const QStringList lines = r.out.split('\n', Qt::SkipEmptyParts);
    QVERIFY(!lines.isEmpty());
    double last = -1;
    for (const QString& line : lines) {
        const auto m = QRegularExpression("^\\[PROGRESS\\] (\\d+\\.\\d)$").match(line);
        QVERIFY2(m.hasMatch(), qPrintable(line));
        QVERIFY(m.captured(1).toDouble() > last);
        last = m.captured(1).toDouble();
    }
    QCOMPARE(lines.last(), QStringLiteral("[PROGRESS] 100.0"));

    const QJsonObject probe = ffprobe(out);
    const QJsonObject s = firstStream(probe);
    QCOMPARE(s["codec_name"].toString(), QStringLiteral("dsd_lsbf_planar"));
    QCOMPARE(s["sample_rate"].toString().toInt(), 2822400 / 8);
    QCOMPARE(s["channels"].toInt(), 2);
    QVERIFY2(dsdDurationMatches(probe, 2.0, 2822400), qPrintable(QString::number(durationOf(probe))));
    QCOMPARE(probe["format"].toObject()["tags"].toObject()["album"].toString(), QStringLiteral("Tones"));
    QCOMPARE(probe["format"].toObject()["tags"].toObject()["track"].toString(), QStringLiteral("12"));

    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 44100, 2, pcm));
    QVERIFY(std::abs(long(pcm[0].size()) - 88200) < 600);
    QVERIFY(std::fabs(dominantFrequency(pcm[0], 44100, 800, 1200) - 1000) <= 1);
    QVERIFY(std::fabs(dominantFrequency(pcm[1], 44100, 2800, 3200) - 3000) <= 1);
    const std::size_t skip = 8820; // filter start-up and tail
    const double level0 = db(toneAmplitude(pcm[0], 44100, 1000, skip) / 0.25);
    const double level1 = db(toneAmplitude(pcm[1], 44100, 3000, skip) / 0.125);
    QVERIFY2(std::fabs(level0) < 0.5, qPrintable(QString::number(level0)));
    QVERIFY2(std::fabs(level1) < 0.5, qPrintable(QString::number(level1)));
    // Channels are not mixed: the other channel's tone is far down.
    const double crosstalk = db(toneAmplitude(pcm[0], 44100, 3000, skip) / 0.125);
    QVERIFY2(crosstalk < -80, qPrintable(QString::number(crosstalk)));
}

void EngineConvertTest::toneToDffWithTags()
{
    const QString in = makeInput("tone1.wav", 44100, 2, 1.0, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString out = dir_.filePath("tone.dff");
    const RunResult r = runEngine({"-i", in, "--artist", "Zuvo Quartet", "--title", "Ein Ton – 音", "--comment",
                                   "made by the conversion test", "--gui", "--oversampling", "128", "--abs", "1", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QJsonObject probe = ffprobe(out);
    const QJsonObject s = firstStream(probe);
    QCOMPARE(s["codec_name"].toString(), QStringLiteral("dsd_msbf"));
    QCOMPARE(s["sample_rate"].toString().toInt(), 2 * 2822400 / 8);
    QCOMPARE(s["channels"].toInt(), 2);
    QVERIFY(dsdDurationMatches(probe, 1.0, 2 * 2822400));
    const QJsonObject tags = probe["format"].toObject()["tags"].toObject();
    QCOMPARE(tags["artist"].toString(), QStringLiteral("Zuvo Quartet"));
    QCOMPARE(tags["title"].toString(), QStringLiteral("Ein Ton – 音"));
    QCOMPARE(tags["comment"].toString(), QStringLiteral("made by the conversion test"));
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 44100, 2, pcm));
    const double level0 = db(toneAmplitude(pcm[0], 44100, 1000, 4410) / 0.5);
    QVERIFY2(std::fabs(level0) < 0.5, qPrintable(QString::number(level0)));
}

void EngineConvertTest::metadataFromInput()
{
    const QString in = dir_.filePath("tagged.wav");
    {
        SF_INFO si{};
        si.samplerate = 44100;
        si.channels = 1;
        si.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
        SNDFILE* f = sf_open(in.toUtf8().constData(), SFM_WRITE, &si);
        QVERIFY(f);
        sf_set_string(f, SF_STR_TITLE, "Title From Input");
        sf_set_string(f, SF_STR_ARTIST, "Artist From Input");
        sf_set_string(f, SF_STR_ALBUM, "Album From Input");
        std::vector<double> x(4410);
        for (std::size_t i = 0; i < x.size(); ++i)
            x[i] = testSignal(long(i), 0, 44100);
        sf_writef_double(f, x.data(), sf_count_t(x.size()));
        sf_close(f);
    }
    const QString out = dir_.filePath("tagged.dsf");
    const RunResult r = runEngine({"-i", in, "--artist", "Typed Artist", "--metadata-from-input", "--gui", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QJsonObject tags = ffprobe(out)["format"].toObject()["tags"].toObject();
    QCOMPARE(tags["artist"].toString(), QStringLiteral("Typed Artist")); // typed values win
    QCOMPARE(tags["title"].toString(), QStringLiteral("Title From Input"));
    QCOMPARE(tags["album"].toString(), QStringLiteral("Album From Input"));
}

void EngineConvertTest::coverEmbedded()
{
    const QString png = dir_.filePath("cover.png");
    QProcess ff;
    ff.start("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i", "color=c=red:s=32x32", "-frames:v", "1", png});
    QVERIFY(ff.waitForFinished(30000) && ff.exitCode() == 0);
    const QString in = makeInput("short.wav", 44100, 2, 0.5, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    for (const QString name : {"cover.dsf", "cover.dff"}) {
        const QString out = dir_.filePath(name);
        const RunResult r = runEngine({"-i", in, "--artist", "A", "--title", "T", "--cover", png, out});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        if (name.endsWith(".dsf")) {
            // ffmpeg shows an embedded front cover as an attached picture stream.
            const QJsonArray streams = ffprobe(out)["streams"].toArray();
            QCOMPARE(streams.size(), 2);
            QCOMPARE(streams.at(1).toObject()["codec_name"].toString(), QStringLiteral("png"));
        } else {
            QVERIFY(QFile(out).size() > QFile(png).size());
        }
    }
    // A cover that is not an image is refused before the output exists.
    const QString out = dir_.filePath("bad-cover.dsf");
    const RunResult r = runEngine({"-i", in, "--cover", in, out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY(r.err.contains("JPEG"));
    QVERIFY(!QFile::exists(out));
}

void EngineConvertTest::inputFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<QString>("output");
    QTest::newRow("flac 16 mono 48k") << "a.flac" << (SF_FORMAT_FLAC | SF_FORMAT_PCM_16) << 48000 << 1 << "a.dsf";
    QTest::newRow("aiff 24 88.2k") << "b.aiff" << (SF_FORMAT_AIFF | SF_FORMAT_PCM_24) << 88200 << 2 << "b.dsf";
    QTest::newRow("caf float 96k") << "c.caf" << (SF_FORMAT_CAF | SF_FORMAT_FLOAT) << 96000 << 2 << "c.dsf";
    QTest::newRow("w64 double 192k") << "d.w64" << (SF_FORMAT_W64 | SF_FORMAT_DOUBLE) << 192000 << 2 << "d.dff";
    QTest::newRow("rf64 32 44.1k") << "e.wav" << (SF_FORMAT_RF64 | SF_FORMAT_PCM_32) << 44100 << 2 << "e.dsf";
    QTest::newRow("extensible 6ch 48k") << "f.wav" << (SF_FORMAT_WAVEX | SF_FORMAT_PCM_24) << 48000 << 6 << "f.dsf";
    QTest::newRow("8ch 384k to dff") << "g.wav" << (SF_FORMAT_WAVEX | SF_FORMAT_FLOAT) << 384000 << 8 << "g.dff";
    QTest::newRow("3ch 176.4k") << "h.wav" << (SF_FORMAT_WAV | SF_FORMAT_PCM_16) << 176400 << 3 << "h.dsf";
}

void EngineConvertTest::inputFormats()
{
    QFETCH(QString, name);
    QFETCH(int, format);
    QFETCH(int, rate);
    QFETCH(int, channels);
    QFETCH(QString, output);
    const QString in = makeInput(name, rate, channels, 0.25, format);
    QVERIFY(QFile::exists(in));
    const QString out = dir_.filePath(output);
    const RunResult r = runEngine({"-i", in, "--gui", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QJsonObject probe = ffprobe(out);
    QCOMPARE(firstStream(probe)["channels"].toInt(), channels);
    QCOMPARE(firstStream(probe)["sample_rate"].toString().toInt(), 2822400 / 8);
    QVERIFY2(dsdDurationMatches(probe, 0.25, 2822400), qPrintable(QString::number(durationOf(probe))));
}

void EngineConvertTest::swapChannels()
{
    const QString in = makeInput("tone1.wav", 44100, 2, 1.0, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString out = dir_.filePath("swapped.dsf");
    const RunResult r = runEngine({"-i", in, "--swap-channels", "--abs", "1", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 44100, 2, pcm));
    QVERIFY(std::fabs(dominantFrequency(pcm[0], 44100, 800, 3200) - 3000) <= 1);
    QVERIFY(std::fabs(dominantFrequency(pcm[1], 44100, 800, 3200) - 1000) <= 1);
}

void EngineConvertTest::reportAndLogFile()
{
    const QString in = makeInput("tone1.wav", 44100, 2, 1.0, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString out = dir_.filePath("report.dsf");
    const QString log = dir_.filePath("engine.log");
    const RunResult r = runEngine({"-i", in, "--log-file", log, "--report", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    // A -6 dBFS sine: peak -6.02, RMS -9.03 dBFS.
    QVERIFY2(r.out.contains(QRegularExpression("channel 1: peak -6\\.0\\d dBFS rms -9\\.0\\d dBFS")), qPrintable(r.out));
    QVERIFY2(r.out.contains(QRegularExpression("channel 2: peak -12\\.0\\d dBFS rms -15\\.0\\d dBFS")), qPrintable(r.out));
    QFile f(log);
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(f.readAll());
    for (const char* needle : {"design summary", "overloads", "realtime", "exit code 0", "--report"})
        QVERIFY2(text.contains(needle), needle);
    // A second run appends.
    QVERIFY(runEngine({"--version", "--log-file", log}).exitCode == 0);
    f.close();
    QVERIFY(f.open(QIODevice::ReadOnly));
    QVERIFY(QString::fromUtf8(f.readAll()).startsWith(text.left(40)));
}

void EngineConvertTest::reverseRoundTrip()
{
    const QString in = makeInput("tone1.wav", 44100, 2, 1.0, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString dsf = dir_.filePath("rt.dsf");
    RunResult r = runEngine({"-i", in, "--abs", "1", dsf});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));

    // Default output rate and depth.
    const QString wav = dir_.filePath("rt.wav");
    r = runEngine({"--reverse", "-i", dsf, "--gui", wav});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(r.out.trimmed().endsWith("[PROGRESS] 100.0"));
    int rate = 0;
    std::vector<std::vector<double>> pcm;
    QVERIFY(readPcm(wav, rate, pcm));
    QVERIFY(rate >= 44100);
    QCOMPARE(pcm.size(), std::size_t(2));
    QVERIFY2(std::fabs(double(pcm[0].size()) / rate - 1.0) < 0.01, qPrintable(QString::number(pcm[0].size())));
    const QJsonObject s = firstStream(ffprobe(wav));
    QCOMPARE(s["bits_per_sample"].toInt(), 24);

    // reverse(forward(x)) is x: within the audio band (the default-rate
    // output brought to 44.1 kHz by an independent resampler) the level is
    // within 0.5 dB and the residual is small. A loose floor: the benchmark
    // measures quality.
    std::vector<std::vector<double>> band;
    QVERIFY(ffmpegDecode(wav, 44100, 2, band));
    const std::size_t skip = 4410;
    const double level = db(toneAmplitude(band[0], 44100, 1000, skip) / 0.5);
    QVERIFY2(std::fabs(level) < 0.5, qPrintable(QString::number(level)));
    const double snr = db(0.5 / std::sqrt(2.0) / residualRms(band[0], 44100, 1000, skip));
    qInfo("reverse(forward(x)) SNR in 0-20 kHz: %.1f dB", snr);
    QVERIFY2(snr > 110, qPrintable(QString::number(snr)));

    // A chosen output rate, integer size and float samples.
    const QString wav44 = dir_.filePath("rt44.wav");
    r = runEngine({"--reverse", "-i", dsf, "--sampling", "44100", "--float", wav44});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(readPcm(wav44, rate, pcm));
    QCOMPARE(rate, 44100);
    QCOMPARE(firstStream(ffprobe(wav44))["codec_name"].toString(), QStringLiteral("pcm_f32le"));
    const double level44 = db(toneAmplitude(pcm[0], 44100, 1000, skip) / 0.5);
    QVERIFY2(std::fabs(level44) < 0.5, qPrintable(QString::number(level44)));
    QVERIFY(std::fabs(dominantFrequency(pcm[1], 44100, 2800, 3200) - 3000) <= 1);
}

void EngineConvertTest::reverseToFlacJoinsInputs()
{
    const QString in = makeInput("short.wav", 44100, 2, 0.5, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString a = dir_.filePath("part-a.dff");
    const QString b = dir_.filePath("part-b.dsf");
    QCOMPARE(runEngine({"-i", in, a}).exitCode, 0);
    QCOMPARE(runEngine({"-i", in, b}).exitCode, 0);
    const QString flac = dir_.filePath("joined.FLAC");
    const RunResult r = runEngine({"--reverse", "-i", a, "-i", b, flac, "--format", "flac"});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QJsonObject probe = ffprobe(flac);
    QCOMPARE(firstStream(probe)["codec_name"].toString(), QStringLiteral("flac"));
    QVERIFY2(std::fabs(durationOf(probe) - 1.0) < 0.01, qPrintable(QString::number(durationOf(probe))));
    // FLAC holds no float samples: refused before anything is written.
    const QString bad = dir_.filePath("float.flac");
    const RunResult r2 = runEngine({"--reverse", "-i", a, "--float", bad, "--format", "flac"});
    QCOMPARE(r2.exitCode, 2);
    QVERIFY(!QFile::exists(bad));
}

void EngineConvertTest::dxd()
{
    const QString in = makeInput("tone1.wav", 44100, 2, 1.0, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    const QString out = dir_.filePath("dxd.wav");
    const RunResult r = runEngine({"-i", in, "--dxd", "--gui", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    int rate = 0;
    std::vector<std::vector<double>> pcm;
    QVERIFY(readPcm(out, rate, pcm));
    QCOMPARE(rate, 352800);
    QVERIFY(std::fabs(double(pcm[0].size()) / rate - 1.0) < 0.01);
    const double level = db(toneAmplitude(pcm[0], 352800, 1000, 35280) / 0.5);
    QVERIFY2(std::fabs(level) < 0.1, qPrintable(QString::number(level)));

    const QString w64 = dir_.filePath("dxd.w64");
    const RunResult r2 = runEngine({"-i", in, "--dxd", "--dxd-samplerate", "176400", "--bit", "16", w64});
    QVERIFY2(r2.exitCode == 0, qPrintable(r2.err));
    const QJsonObject s = firstStream(ffprobe(w64));
    QCOMPARE(s["sample_rate"].toString().toInt(), 176400);
    QCOMPARE(s["bits_per_sample"].toInt(), 16);
}

void EngineConvertTest::stopOnStdin()
{
    // Long enough that the run is still going when "stop" arrives.
    const QString in = makeInput("long.wav", 44100, 2, 30.0, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    const QString out = dir_.filePath("stopped.dsf");
    QProcess p;
    p.start(enginePath(), {"-i", in, "--gui", "--oversampling", "256", out});
    QVERIFY(p.waitForStarted());
    QElapsedTimer t;
    t.start();
    QByteArray seen;
    while (!seen.contains("[PROGRESS]") && t.elapsed() < 20000) {
        p.waitForReadyRead(200);
        seen += p.readAllStandardOutput();
    }
    QVERIFY2(seen.contains("[PROGRESS]"), seen.constData());
    p.write("stop\n");
    QVERIFY(p.waitForFinished(15000));
    seen += p.readAllStandardOutput();
    QCOMPARE(p.exitCode(), 195);
    QVERIFY(!seen.contains("[PROGRESS] 100.0"));
    // The partial file is complete and valid up to where it stopped.
    const QJsonObject probe = ffprobe(out);
    QCOMPARE(firstStream(probe)["channels"].toInt(), 2);
    const double d = durationOf(probe);
    QVERIFY2(d > 0 && d < 30.0, qPrintable(QString::number(d)));
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 44100, 2, pcm));
    QVERIFY(std::fabs(double(pcm[0].size()) / 44100 - d) < 0.05);
}

void EngineConvertTest::reverseStopOnStdin()
{
    // A long silent DSD64 file, written directly by the file layer.
    const QString dsf = dir_.filePath("long-silence.dsf");
    {
        auto writer = zuvo::io::makeDsdWriter(zuvo::io::DsdContainer::Dsf);
        std::string error;
        QVERIFY(writer->open(dsf.toStdString(), {2, 2822400}, {}, &error));
        const std::vector<std::vector<std::uint8_t>> second(2, std::vector<std::uint8_t>(352800, 0x69));
        for (int s = 0; s < 60; ++s)
            QVERIFY(writer->write(second, &error));
        QVERIFY(writer->finalize(&error));
    }
    const QString out = dir_.filePath("long-silence.wav");
    QProcess p;
    p.start(enginePath(), {"--reverse", "-i", dsf, "--gui", out});
    QVERIFY(p.waitForStarted());
    QElapsedTimer t;
    t.start();
    QByteArray seen;
    while (!seen.contains("[PROGRESS]") && t.elapsed() < 20000 && p.state() == QProcess::Running) {
        p.waitForReadyRead(100);
        seen += p.readAllStandardOutput();
    }
    if (p.state() != QProcess::Running)
        QSKIP("the decimator finished 60 s before the first progress report");
    p.write("stop\n");
    QVERIFY(p.waitForFinished(15000));
    QCOMPARE(p.exitCode(), 195);
    int rate = 0;
    std::vector<std::vector<double>> pcm;
    QVERIFY(readPcm(out, rate, pcm));
    QCOMPARE(pcm.size(), std::size_t(2));
    QVERIFY(pcm[0].size() < std::size_t(60) * std::size_t(rate));
}

QTEST_GUILESS_MAIN(EngineConvertTest)
#include "tst_engine_convert.moc"
