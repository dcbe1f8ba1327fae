// The command line as the front-end sends it: accepted forms, refused
// options, bad values and bad inputs, each with its exit code and without
// stray output files.
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>

#include "engine_test_support.h"

using namespace enginetest;

class EngineUsageTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void versionAndHelp();
    void frontEndDefaultCommandLine();
    void dffWithEmptyArtistAndTitle();
    void remezLimitsAreNotSilentlyIgnored();
    void unsupportedOptionsAllNamedBeforeOutput();
    void unknownOptionRefused();
    void badValuesRefused_data();
    void badValuesRefused();
    void largestValuesAccepted_data();
    void largestValuesAccepted();
    void mashOrderIsOptional();
    void designErrorIsUsageError();
    void outputEqualToInputRefused();
    void missingOutputFolder();
    void writeErrorOnFullDevice();
    void badInputs_data();
    void badInputs();
    void logFileThatCannotBeOpenedIsAWarning();
    void sevenChannelsNeedDff();
    void capabilitiesNameEveryRefusedOption();

private:
    QString tone(const QString& name, double seconds = 0.25);
    QTemporaryDir dir_;
};

QString EngineUsageTest::tone(const QString& name, double seconds)
{
    const QString path = dir_.filePath(name);
    if (!QFile::exists(path))
        writePcm(path, 44100, 2, long(seconds * 44100), SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                 [](long i, int) { return 0.25 * std::sin(2 * M_PI * 1000.0 * i / 44100.0); });
    return path;
}

void EngineUsageTest::initTestCase()
{
    QVERIFY(dir_.isValid());
    QVERIFY2(QFile::exists(enginePath()), qPrintable(enginePath()));
}

void EngineUsageTest::versionAndHelp()
{
    const RunResult v = runEngine({"--version"});
    QCOMPARE(v.exitCode, 0);
    QVERIFY2(QRegularExpression("^ZuvoEngine \\d+\\.\\d+\\.\\d+\\n$").match(v.out).hasMatch(), qPrintable(v.out));
    // The diagnostics dialog adds a log file to its probes.
    const RunResult v2 = runEngine({"--version", "--log-file", dir_.filePath("probe.log")});
    QCOMPARE(v2.exitCode, 0);
    QVERIFY(v2.out.startsWith("ZuvoEngine "));
    const RunResult h = runEngine({"--help"});
    QCOMPARE(h.exitCode, 0);
    for (const char* needle : {"--oversampling", "--reverse", "--dxd", "195", "Exit codes", "--metadata-from-input"})
        QVERIFY2(h.out.contains(needle), needle);
}

void EngineUsageTest::frontEndDefaultCommandLine()
{
    // What a freshly made settings record turns into.
    const QString out = dir_.filePath("default.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--gui", "--order", "9", "--unpredistortion", "-pdfrp", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(QFile::exists(out));
    QVERIFY2(!r.err.contains("warning"), qPrintable(r.err));
    QVERIFY(QFile::exists(dir_.filePath("default.report.pdf"))); // the default record asks for the report
    QVERIFY(r.out.trimmed().endsWith("[PROGRESS] 100.0"));
}

void EngineUsageTest::remezLimitsAreNotSilentlyIgnored()
{
    // The front-end's Remez choice always sends both limits.
    const QString out = dir_.filePath("remez.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--gui", "--algorithm", "--maxiterations", "100",
                                   "--griddensity", "32", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(QFile::exists(out));
    QCOMPARE(r.err.count("--maxiterations and --griddensity are checked but not used"), 1);

    const RunResult plain = runEngine({"-i", tone("in.wav"), "--gui", "--algorithm", dir_.filePath("remez2.dsf")});
    QVERIFY2(plain.exitCode == 0, qPrintable(plain.err));
    QVERIFY(!plain.err.contains("--maxiterations"));
}

void EngineUsageTest::dffWithEmptyArtistAndTitle()
{
    const QString out = dir_.filePath("empty-tags.dff");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--artist", "", "--title", "", "--gui", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(QFile::exists(out));
}

void EngineUsageTest::unsupportedOptionsAllNamedBeforeOutput()
{
    const QString out = dir_.filePath("refused.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--gui", "--eq", "1000,-3.0,1.0q", "--hrtf", "ms",
                                   "--hrtf-mix", "0.500000", "--bass", "2.000000", "--equalizer", "100", "3", "50",
                                   "--compressor", "-12.000000", "4.000000", "soft", "5.000000", "100.000000",
                                   "--apo", "--crossfeed", "custom", "-6.000000", "-12.000000", "--zero", "0.1",
                                   "0.2", out, "--surround", "15", "80", "side", "20"});
    QCOMPARE(r.exitCode, 2);
    for (const char* name : {"--compressor", "--apo", "--crossfeed", "--zero"})
        QVERIFY2(r.err.contains(QString(name) + ",") || r.err.contains(QString(name) + "\n"), name);
    // Implemented effects among them are accepted, not listed as refused.
    for (const char* name : {"--eq,", "--bass,", "--equalizer,", "--surround", "--hrtf"})
        QVERIFY2(!r.err.contains(name), name);
    // Values of refused options are not mistaken for options or outputs.
    QVERIFY(!r.err.contains("unknown"));
    QVERIFY(!QFile::exists(out));
    QVERIFY(r.out.isEmpty()); // no progress before a refusal
}

void EngineUsageTest::unknownOptionRefused()
{
    const QString out = dir_.filePath("unknown.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--frobnicate", out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY(r.err.contains("--frobnicate"));
    QVERIFY(!QFile::exists(out));
}

void EngineUsageTest::badValuesRefused_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("track 0") << QStringList{"--track", "0"} << "--track";
    QTest::newRow("track 999") << QStringList{"--track", "999"} << "--track";
    QTest::newRow("oversampling 100") << QStringList{"--oversampling", "100"} << "--oversampling";
    QTest::newRow("oversampling 16384") << QStringList{"--oversampling", "16384"} << "--oversampling";
    QTest::newRow("oversampling text") << QStringList{"--oversampling", "abc"} << "--oversampling";
    QTest::newRow("absdb text") << QStringList{"--absdb", "loud"} << "--absdb";
    QTest::newRow("log topic") << QStringList{"--log", "everything"} << "--log";
    QTest::newRow("filter type") << QStringList{"--filter-type", "sharp"} << "--filter-type";
    QTest::newRow("window") << QStringList{"--window-type", "triangle"} << "--window-type";
    QTest::newRow("two modulators") << QStringList{"--order", "9", "--cifb", "5"} << "modulator";
    QTest::newRow("bit in forward mode") << QStringList{"--bit", "24"} << "--bit";
}

void EngineUsageTest::badValuesRefused()
{
    QFETCH(QStringList, options);
    QFETCH(QString, mentioned);
    const QString out = dir_.filePath("bad-value.dsf");
    const RunResult r = runEngine(QStringList{"-i", tone("in.wav")} + options + QStringList{out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(r.err.contains(mentioned), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
}

void EngineUsageTest::largestValuesAccepted_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("track 998") << QStringList{"--track", "998"};
    QTest::newRow("oversampling 8192") << QStringList{"--oversampling", "8192"};
    QTest::newRow("order 64") << QStringList{"--order", "64"};
    QTest::newRow("stopgain-alpha 400") << QStringList{"--stopgain-alpha", "400"};
    QTest::newRow("beta 100") << QStringList{"--window-type", "kaiser", "--beta", "100"};
    QTest::newRow("abs 1000") << QStringList{"--abs", "1000"};
    QTest::newRow("absdb 60") << QStringList{"--absdb", "60"};
    QTest::newRow("taps 4194304") << QStringList{"--taps", "4194304"};
}

void EngineUsageTest::largestValuesAccepted()
{
    // The options pass; the missing input is what ends the run, so no
    // conversion at the extreme setting has to happen.
    QFETCH(QStringList, options);
    const QString out = dir_.filePath("largest.dsf");
    const RunResult r = runEngine(QStringList{"-i", dir_.filePath("absent.wav")} + options + QStringList{out});
    QVERIFY2(r.exitCode == 1 && r.err.contains("absent.wav"), qPrintable(r.err));
    QVERIFY(!r.err.contains(options.at(options.size() - 2)));
}

void EngineUsageTest::mashOrderIsOptional()
{
    // "--mash" directly before the output: the output is not taken as its
    // order. Whatever the signal path then says about MASH (it may refuse
    // it for 1-bit output), the command line itself must parse: the answer
    // comes from the design, not from the option parser.
    for (const QStringList& mash : {QStringList{"--mash"}, QStringList{"--mash", "3"}}) {
        const QString out = dir_.filePath("mash.dsf");
        const RunResult r = runEngine(QStringList{"-i", tone("in.wav")} + mash + QStringList{out});
        if (r.exitCode == 0) {
            QVERIFY(QFile::exists(out));
            QFile::remove(out);
            continue;
        }
        QCOMPARE(r.exitCode, 2);
        QVERIFY2(r.err.contains("design refused: MASH"), qPrintable(r.err));
        QVERIFY(!r.err.contains("no output"));
        QVERIFY(!QFile::exists(out));
    }
}

void EngineUsageTest::designErrorIsUsageError()
{
    // A stop band below the pass band cannot be designed.
    const QString out = dir_.filePath("design.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--passband-cutoff", "20000", "--stopband-cutoff", "15000", out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY(!r.err.trimmed().isEmpty());
    QVERIFY(!QFile::exists(out));
}

void EngineUsageTest::outputEqualToInputRefused()
{
    // A WAV that carries a DSD extension, given as input and output.
    const QString same = dir_.filePath("same.dsf");
    QVERIFY(QFile::copy(tone("in.wav"), same));
    const QByteArray before = [&] { QFile f(same); f.open(QIODevice::ReadOnly); return f.readAll(); }();
    RunResult r = runEngine({"-i", same, same});
    QCOMPARE(r.exitCode, 2);
    QVERIFY(r.err.contains("input"));
    // Through a symbolic link too.
    const QString link = dir_.filePath("link.dsf");
    QVERIFY(QFile::link(same, link));
    r = runEngine({"-i", same, link});
    QCOMPARE(r.exitCode, 2);
    QFile f(same);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.readAll(), before);
}

void EngineUsageTest::missingOutputFolder()
{
    const QString out = dir_.filePath("no/such/folder/out.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--gui", out});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(r.err.contains("folder"), qPrintable(r.err));
    QVERIFY(!QFile::exists(dir_.filePath("no")));
}

void EngineUsageTest::writeErrorOnFullDevice()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("no /dev/full here");
    // The extension picks the container; the symbolic link makes the
    // engine write into a device that is always full.
    const QString out = dir_.filePath("full.dsf");
    QVERIFY(QFile::link("/dev/full", out));
    const RunResult r = runEngine({"-i", tone("long.wav", 3.0), "--gui", out});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(r.err.contains("No space"), qPrintable(r.err));
    QVERIFY(QFile::exists("/dev/full"));
    QVERIFY(!r.out.contains("[PROGRESS] 100.0"));
}

void EngineUsageTest::badInputs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("empty file") << "empty.wav" << QByteArray() << "empty.wav";
    QTest::newRow("text as wav") << "text.wav" << QByteArray("this is not audio at all, just words\n").repeated(20) << "text.wav";
    QTest::newRow("truncated header") << "cut.wav" << QByteArray("RIFF\x24\x10\x00\x00WAVEfmt ", 16) << "cut.wav";
    // A whole second of audio cut off after 20000 bytes: the header still
    // declares the full length.
    QFile whole(tone("whole.wav", 1.0));
    whole.open(QIODevice::ReadOnly);
    QTest::newRow("truncated data") << "cut-data.wav" << whole.read(20000) << "truncated";
    QTest::newRow("m4a") << "song.m4a" << QByteArray(64, 'x') << "MPEG-4";
    QTest::newRow("ape") << "song.ape" << QByteArray(64, 'x') << "Monkey";
    QTest::newRow("wavpack") << "song.wv" << QByteArray(64, 'x') << "WavPack";
    QTest::newRow("missing") << "" << QByteArray() << "does-not-exist.wav";
}

void EngineUsageTest::badInputs()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, mentioned);
    QString input = dir_.filePath("does-not-exist.wav");
    if (!name.isEmpty()) {
        input = dir_.filePath(name);
        QFile f(input);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(content);
    }
    const QString out = dir_.filePath("from-bad-input.dsf");
    const RunResult r = runEngine({"-i", input, "--gui", out});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(r.err.contains(mentioned), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
}

void EngineUsageTest::logFileThatCannotBeOpenedIsAWarning()
{
    const QString out = dir_.filePath("log-warning.dsf");
    const RunResult r = runEngine({"-i", tone("in.wav"), "--log-file", dir_.filePath("missing/dir/engine.log"), out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(r.err.contains("log"));
    QVERIFY(QFile::exists(out));
}

void EngineUsageTest::sevenChannelsNeedDff()
{
    const QString in = dir_.filePath("seven.wav");
    QVERIFY(writePcm(in, 48000, 7, 4800, SF_FORMAT_WAVEX | SF_FORMAT_PCM_16, [](long, int) { return 0.0; }));
    const QString out = dir_.filePath("seven.dsf");
    const RunResult r = runEngine({"-i", in, out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(r.err.contains(".dff"), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(EngineUsageTest)
#include "tst_engine_usage.moc"

// The listing front-ends read: every option in it is refused when used,
// and options the engine does implement are not in it.
void EngineUsageTest::capabilitiesNameEveryRefusedOption()
{
    const RunResult c = runEngine({"--capabilities"});
    QCOMPARE(c.exitCode, 0);
    const QStringList lines = c.out.split('\n', Qt::SkipEmptyParts);
    QVERIFY(lines.size() > 20);
    QStringList listed;
    for (const QString& line : lines) {
        if (line.startsWith("supports "))
            continue;
        QVERIFY2(line.startsWith("refused --"), qPrintable(line));
        listed << line.mid(8);
    }
    for (const char* offered : {"supports -pdfrp", "supports --noise-profiling"})
        QVERIFY2(lines.contains(offered), offered);
    for (const char* implemented : {"--sos-ef", "--order", "--cifb", "--oversampling", "--swap-channels", "--report",
                                    "-pdfrp", "--abs", "--window-type"})
        QVERIFY2(!listed.contains(implemented), implemented);
    const QString in = tone("caps.wav");
    for (const QString& option : listed) {
        const QString out = dir_.filePath("caps.dsf");
        const RunResult r = runEngine({"-i", in, option, out});
        QVERIFY2(r.exitCode == 2, qPrintable(option + ": " + r.err));
        QVERIFY2(r.err.contains(option.mid(2), Qt::CaseInsensitive), qPrintable(option + ": " + r.err));
        QVERIFY2(!QFile::exists(out), qPrintable(option));
    }
}
