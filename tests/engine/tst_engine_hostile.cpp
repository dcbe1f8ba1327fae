// The real CLI against hostile or unusual inputs: files cut short or with a
// harmless size slack, a FIFO, a log file that is an input or the output,
// NaN and infinity in float input, channel masks, and an output killed
// mid-run.
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <cmath>
#include <csignal>
#include <limits>
#include <sndfile.h>
#include <sys/stat.h>

#include "engine_test_support.h"
#include "io/dsd_reader.h"
#include "io/dsd_writer.h"

using namespace enginetest;

namespace {

// Where the header says the file ends, and where it does end.
struct HeaderSizes {
    qint64 declaredEnd = -1;
    qint64 fileSize = -1;
};

HeaderSizes headerSizes(const QString& path, const QString& ext)
{
    QFile f(path);
    HeaderSizes s;
    if (!f.open(QIODevice::ReadOnly))
        return s;
    s.fileSize = f.size();
    const QByteArray head = f.read(20);
    if (head.size() < 20)
        return s;
    quint64 v = 0;
    if (ext == ".dsf") { // total file size, little-endian, at offset 12
        for (int i = 7; i >= 0; --i)
            v = (v << 8) | quint8(head[12 + i]);
        s.declaredEnd = qint64(v);
    } else { // FRM8 size, big-endian, at offset 4, counts from offset 12
        for (int i = 0; i < 8; ++i)
            v = (v << 8) | quint8(head[4 + i]);
        s.declaredEnd = qint64(v) + 12;
    }
    return s;
}

// SIGSTOP is delivered asynchronously: wait until /proc says "T".
bool waitUntilStopped(pid_t pid)
{
    for (int i = 0; i < 2000; ++i) {
        QFile stat(QString("/proc/%1/stat").arg(pid));
        if (!stat.open(QIODevice::ReadOnly))
            return false;
        const QByteArray line = stat.readAll();
        const int close = line.lastIndexOf(')');
        if (close > 0 && close + 2 < line.size() && (line[close + 2] == 'T' || line[close + 2] == 't'))
            return true;
        QThread::usleep(500);
    }
    return false;
}

QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool putBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

void patchBE(QByteArray& b, qsizetype at, std::uint64_t v, int n)
{
    for (int i = 0; i < n; ++i)
        b[at + i] = char(v >> (8 * (n - 1 - i)));
}

double sine(long i, int rate, double freq, double amp) { return amp * std::sin(2 * M_PI * freq * double(i) / rate); }

// A file with a channel mask: libsndfile writes it as WAVE_FORMAT_EXTENSIBLE.
bool writeWithMask(const QString& path, const std::vector<int>& map, long frames)
{
    SF_INFO si{};
    si.samplerate = 44100;
    si.channels = static_cast<int>(map.size());
    si.format = SF_FORMAT_WAVEX | SF_FORMAT_PCM_16;
    SNDFILE* f = sf_open(path.toUtf8().constData(), SFM_WRITE, &si);
    if (!f)
        return false;
    std::vector<int> m = map;
    if (!sf_command(f, SFC_SET_CHANNEL_MAP_INFO, m.data(), static_cast<int>(m.size() * sizeof(int)))) {
        sf_close(f);
        return false;
    }
    std::vector<double> buf(static_cast<std::size_t>(frames) * map.size(), 0.0);
    sf_writef_double(f, buf.data(), frames);
    return sf_close(f) == 0;
}

} // namespace

class EngineHostileTest : public QObject {
    Q_OBJECT

private slots:
    void truncationPolicy_data();
    void truncationPolicy();
    void fifoInputIsRefusedNotWaitedOn_data();
    void fifoInputIsRefusedNotWaitedOn();
    void logFileThatIsAnInputOrTheOutput_data();
    void logFileThatIsAnInputOrTheOutput();
    void nonFiniteSamplesAreReplaced();
    void channelMaskLabelsTheOutput_data();
    void channelMaskLabelsTheOutput();
    void killedRunLeavesAValidShorterFile_data();
    void killedRunLeavesAValidShorterFile();

private:
    QString tone(const QString& name, double seconds, int format);
    QString dsd(const QString& name, zuvo::io::DsdContainer container, bool withTrailingTag);
    QTemporaryDir dir_;
};

QString EngineHostileTest::tone(const QString& name, double seconds, int format)
{
    const QString path = dir_.filePath(name);
    const int channels = (format & SF_FORMAT_SUBMASK) == SF_FORMAT_PCM_U8 ? 1 : 2;
    writePcm(path, 44100, channels, long(seconds * 44100), format,
             [](long i, int) { return sine(i, 44100, 1000, 0.5); });
    return path;
}

QString EngineHostileTest::dsd(const QString& name, zuvo::io::DsdContainer container, bool withTrailingTag)
{
    const QString path = dir_.filePath(name);
    auto writer = zuvo::io::makeDsdWriter(container);
    zuvo::io::Tags tags;
    if (withTrailingTag)
        tags.album = "an album that travels in the trailing tag chunk";
    std::string error;
    const std::vector<std::vector<std::uint8_t>> data(2, std::vector<std::uint8_t>(100000, 0x69));
    if (!writer->open(path.toStdString(), {2, 2822400}, tags, &error) || !writer->write(data, &error)
        || !writer->finalize(&error))
        return {};
    return path;
}

void EngineHostileTest::truncationPolicy_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("mentioned");

    // An 8-bit mono WAV of an odd number of frames ends in a pad byte; a
    // file without it, whose RIFF size still counts it, holds all its audio.
    const QString odd = tone("odd.wav", 0.25, SF_FORMAT_WAV | SF_FORMAT_PCM_U8);
    QByteArray b = fileBytes(odd);
    if (b.size() % 2 == 0)
        b.chop(1);
    putBytes(dir_.filePath("no-pad.wav"), b);
    QTest::newRow("wav missing pad byte") << "no-pad.wav" << "no-pad.dsf" << 0 << "";

    // Streaming placeholders: RIFF and data sizes of 0xFFFFFFFF.
    b = fileBytes(tone("stream.wav", 0.25, SF_FORMAT_WAV | SF_FORMAT_PCM_16));
    for (qsizetype at : {qsizetype(4), b.indexOf("data") + 4})
        for (int i = 0; i < 4; ++i)
            b[at + i] = char(0xFF);
    putBytes(dir_.filePath("placeholder.wav"), b);
    QTest::newRow("wav streaming placeholder") << "placeholder.wav" << "placeholder.dsf" << 0 << "";

    b = fileBytes(tone("whole.wav", 1.0, SF_FORMAT_WAV | SF_FORMAT_PCM_16));
    putBytes(dir_.filePath("cut.wav"), b.left(20000));
    QTest::newRow("wav cut") << "cut.wav" << "cut-wav.dsf" << 1 << "declares";

    b = fileBytes(tone("whole.aiff", 1.0, SF_FORMAT_AIFF | SF_FORMAT_PCM_16));
    putBytes(dir_.filePath("cut.aiff"), b.left(20000));
    QTest::newRow("aiff cut") << "cut.aiff" << "cut-aiff.dsf" << 1 << "declares";
    // COMM declaring ten times the frames its SSND holds.
    b = fileBytes(tone("short.aiff", 0.25, SF_FORMAT_AIFF | SF_FORMAT_PCM_16));
    patchBE(b, b.indexOf("COMM") + 10, 110250, 4);
    putBytes(dir_.filePath("comm.aiff"), b);
    QTest::newRow("aiff frame count too large") << "comm.aiff" << "comm.dsf" << 1 << "110250 frames";

    b = fileBytes(tone("whole.rf64", 1.0, SF_FORMAT_RF64 | SF_FORMAT_PCM_16));
    putBytes(dir_.filePath("cut.rf64"), b.left(20000));
    QTest::newRow("rf64 cut") << "cut.rf64" << "cut-rf64.dsf" << 1 << "declares";

    // FLAC: the stream info declares the length; only its header is left.
    b = fileBytes(tone("whole.flac", 1.0, SF_FORMAT_FLAC | SF_FORMAT_PCM_16));
    qsizetype end = 4;
    for (bool last = false; !last && end + 4 <= b.size();) {
        last = std::uint8_t(b[end]) & 0x80;
        end += 4 + ((std::uint8_t(b[end + 1]) << 16) | (std::uint8_t(b[end + 2]) << 8) | std::uint8_t(b[end + 3]));
    }
    putBytes(dir_.filePath("header-only.flac"), b.left(end));
    QTest::newRow("flac header only") << "header-only.flac" << "flac.dsf" << 1 << "44100 frames";
    putBytes(dir_.filePath("half.flac"), b.left(b.size() / 2));
    QTest::newRow("flac cut") << "half.flac" << "half.dsf" << 1 << "truncated";

    // DSD inputs (reverse mode).
    b = fileBytes(dsd("whole.dff", zuvo::io::DsdContainer::Dff, false));
    putBytes(dir_.filePath("cut.dff"), b.left(b.size() / 2));
    QTest::newRow("dff cut mid-data") << "cut.dff" << "cut-dff.wav" << 1 << "declares 200000";
    b = fileBytes(dsd("tagged.dff", zuvo::io::DsdContainer::Dff, true));
    const qsizetype sound = b.lastIndexOf("ID3 ") - 200000 - 12;
    patchBE(b, sound + 4, 200000 + 100000, 8); // past the end of the file
    putBytes(dir_.filePath("over-tag.dff"), b);
    QTest::newRow("dff sound data over the ID3 chunk") << "over-tag.dff" << "over-tag.wav" << 1 << "truncated";
    b = fileBytes(dsd("whole.dsf", zuvo::io::DsdContainer::Dsf, false));
    putBytes(dir_.filePath("cut.dsf"), b.left(b.size() / 2));
    QTest::newRow("dsf cut") << "cut.dsf" << "cut-dsf.wav" << 1 << "declares 100000";
}

void EngineHostileTest::truncationPolicy()
{
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(int, exitCode);
    QFETCH(QString, mentioned);
    const QString out = dir_.filePath(output);
    QStringList args{"-i", dir_.filePath(input), out};
    if (output.endsWith(".wav"))
        args.prepend("--reverse");
    const RunResult r = runEngine(args, 60000);
    QVERIFY2(!r.crashed, qPrintable(r.err));
    QVERIFY2(r.exitCode == exitCode, qPrintable(QString("exit %1: %2").arg(r.exitCode).arg(r.err)));
    if (exitCode != 0) {
        // What was declared and what was found, and no output left behind.
        QVERIFY2(r.err.contains("truncated") && r.err.contains(mentioned) && r.err.contains("holds"), qPrintable(r.err));
        QVERIFY(!QFile::exists(out));
    }
}

void EngineHostileTest::fifoInputIsRefusedNotWaitedOn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("role"); // what the FIFO is given as
    QTest::newRow("pcm input") << "pipe.wav" << "input";
    QTest::newRow("dsd input") << "pipe.dsf" << "reverse";
    QTest::newRow("cover image") << "pipe.png" << "cover";
}

void EngineHostileTest::fifoInputIsRefusedNotWaitedOn()
{
    QFETCH(QString, name);
    QFETCH(QString, role);
    const QString fifo = dir_.filePath(name);
    QVERIFY(::mkfifo(fifo.toUtf8().constData(), 0600) == 0);
    const bool reverse = role == "reverse";
    const QString out = dir_.filePath("from-" + role + (reverse ? ".wav" : ".dsf"));
    QStringList args{"-i", fifo, out};
    if (reverse)
        args.prepend("--reverse");
    if (role == "cover")
        args = QStringList{"-i", tone("cover-in.wav", 0.25, SF_FORMAT_WAV | SF_FORMAT_PCM_16), "--cover", fifo, out};
    QElapsedTimer t;
    t.start();
    const RunResult r = runEngine(args, 15000);
    QVERIFY2(!r.crashed, "the engine waited on the FIFO");
    QVERIFY(r.exitCode != 0);
    QVERIFY2(r.err.contains("FIFO") && r.err.contains(fifo), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
    QVERIFY(t.elapsed() < 10000);
}

void EngineHostileTest::logFileThatIsAnInputOrTheOutput_data()
{
    QTest::addColumn<QString>("log"); // "input", "output", "hardlink", "symlink"
    QTest::newRow("the input") << "input";
    QTest::newRow("the output") << "output";
    QTest::newRow("a hard link to the input") << "hardlink";
    QTest::newRow("a symbolic link to the output") << "symlink";
    QTest::newRow("the input by another path") << "dotted";
}

void EngineHostileTest::logFileThatIsAnInputOrTheOutput()
{
    QFETCH(QString, log);
    const QString in = tone("log-" + log + ".wav", 0.25, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    const QString out = dir_.filePath("log-" + log + ".dsf");
    QVERIFY(putBytes(out, "an earlier output"));
    QString logPath = log == "input" ? in : out;
    if (log == "hardlink") {
        logPath = dir_.filePath("hard.log");
        QVERIFY(::link(in.toUtf8().constData(), logPath.toUtf8().constData()) == 0);
    } else if (log == "symlink") {
        logPath = dir_.filePath("sym-" + log + ".log");
        QVERIFY(QFile::link(out, logPath));
    } else if (log == "dotted") {
        logPath = dir_.path() + "/./" + QFileInfo(in).fileName();
    }
    const QByteArray inBefore = fileBytes(in);
    const RunResult r = runEngine({"-i", in, "--log-file", logPath, out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(r.err.contains("log file"), qPrintable(r.err));
    QCOMPARE(fileBytes(in), inBefore);
    QCOMPARE(fileBytes(out), QByteArray("an earlier output"));
}

void EngineHostileTest::nonFiniteSamplesAreReplaced()
{
    const QString in = dir_.filePath("nan.wav");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    QVERIFY(writePcm(in, 44100, 2, 44100, SF_FORMAT_WAV | SF_FORMAT_FLOAT, [&](long i, int c) {
        if (c == 0 && i == 1000)
            return nan;
        if (c == 1 && i == 2000)
            return inf;
        if (c == 0 && i == 3000)
            return -inf;
        return sine(i, 44100, 1000, 0.5);
    }));
    const QString out = dir_.filePath("nan.dsf");
    const RunResult r = runEngine({"-i", in, out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(r.err.contains("3 non-finite") && r.err.contains("channel 1: 2") && r.err.contains("channel 2: 1"),
             qPrintable(r.err));
    // Both channels carry the tone after the bad samples as before them
    // (the automatic gain scales both alike), without DC.
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 44100, 2, pcm));
    const std::vector<double> head(pcm[0].begin() + 100, pcm[0].begin() + 950);
    const double before = toneAmplitude(head, 44100, 1000);
    QVERIFY2(before > 0.1, qPrintable(QString("amplitude %1 before the NaN").arg(before)));
    for (int c = 0; c < 2; ++c) {
        std::vector<double> tail(pcm[std::size_t(c)].begin() + 11025, pcm[std::size_t(c)].begin() + 40000);
        double mean = 0;
        for (double v : tail)
            mean += v / double(tail.size());
        QVERIFY2(std::fabs(mean) < 0.01, qPrintable(QString("channel %1 mean %2").arg(c).arg(mean)));
        const double amp = toneAmplitude(tail, 44100, 1000);
        QVERIFY2(std::fabs(amp / before - 1) < 0.1,
                 qPrintable(QString("channel %1 amplitude %2, %3 before").arg(c).arg(amp).arg(before)));
    }
}

void EngineHostileTest::channelMaskLabelsTheOutput_data()
{
    QTest::addColumn<QList<int>>("map");
    QTest::addColumn<int>("dsfType");  // 0: refused for DSF
    QTest::addColumn<QByteArray>("dffIds");
    const int L = SF_CHANNEL_MAP_LEFT, R = SF_CHANNEL_MAP_RIGHT, C = SF_CHANNEL_MAP_CENTER,
              LFE = SF_CHANNEL_MAP_LFE, BL = SF_CHANNEL_MAP_REAR_LEFT, BR = SF_CHANNEL_MAP_REAR_RIGHT,
              SL = SF_CHANNEL_MAP_SIDE_LEFT, SR = SF_CHANNEL_MAP_SIDE_RIGHT, TC = SF_CHANNEL_MAP_TOP_CENTER;
    QTest::newRow("5.1 back") << QList<int>{L, R, C, LFE, BL, BR} << 7 << QByteArray("MLFTMRGTC   LFE LS  RS  ");
    QTest::newRow("5.1 side") << QList<int>{L, R, C, LFE, SL, SR} << 7 << QByteArray("MLFTMRGTC   LFE LS  RS  ");
    QTest::newRow("quad") << QList<int>{L, R, BL, BR} << 4 << QByteArray("MLFTMRGTLS  RS  ");
    QTest::newRow("L R C LFE") << QList<int>{L, R, C, LFE} << 5 << QByteArray("MLFTMRGTC   LFE ");
    QTest::newRow("5.0") << QList<int>{L, R, C, SL, SR} << 6 << QByteArray("MLFTMRGTC   LS  RS  ");
    QTest::newRow("with top centre") << QList<int>{L, R, TC} << 0 << QByteArray("MLFTMRGTC002");
}

void EngineHostileTest::channelMaskLabelsTheOutput()
{
    QFETCH(QList<int>, map);
    QFETCH(int, dsfType);
    QFETCH(QByteArray, dffIds);
    const QString tag = QString(QTest::currentDataTag()).replace(' ', '-');
    const QString in = dir_.filePath("mask-" + tag + ".wav");
    QVERIFY(writeWithMask(in, std::vector<int>(map.begin(), map.end()), 4410));
    const QString dsf = dir_.filePath("mask-" + tag + ".dsf");
    const RunResult r = runEngine({"-i", in, dsf});
    if (dsfType == 0) {
        QCOMPARE(r.exitCode, 2);
        QVERIFY2(r.err.contains(".dff"), qPrintable(r.err));
        QVERIFY(!QFile::exists(dsf));
    } else {
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        QCOMPARE(int(std::uint8_t(fileBytes(dsf)[28 + 20])), dsfType);
    }
    const QString dff = dir_.filePath("mask-" + tag + ".dff");
    const RunResult r2 = runEngine({"-i", in, dff});
    QVERIFY2(r2.exitCode == 0, qPrintable(r2.err));
    const QByteArray d = fileBytes(dff);
    QCOMPARE(d.mid(d.indexOf("CHNL") + 14, dffIds.size()), dffIds);
}

void EngineHostileTest::killedRunLeavesAValidShorterFile_data()
{
    QTest::addColumn<QString>("ext");
    QTest::newRow("dsf") << ".dsf";
    QTest::newRow("dff") << ".dff";
}

void EngineHostileTest::killedRunLeavesAValidShorterFile()
{
    QFETCH(QString, ext);
    static QString in;
    if (in.isEmpty())
        in = tone("long.wav", 120.0, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    const QString out = dir_.filePath("killed" + ext);
    QProcess p;
    p.start(enginePath(), {"-i", in, "--oversampling", "256", "--gui", out});
    QVERIFY(p.waitForStarted(10000));
    // Let it commit a few megabytes (what is on disk is only ever what the
    // writer committed), then kill it outright.
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < 60000 && p.state() == QProcess::Running
           && (t.elapsed() < 2000 || QFileInfo(out).size() < (4 << 20)))
        p.waitForReadyRead(100);
    QVERIFY2(p.state() == QProcess::Running, "the run ended before it could be killed");
    // A kill can land anywhere, and at every instant the header must promise
    // no more than the file holds. Between commits the file is also exactly
    // what the header declares: freeze the writer until it is caught in such
    // a state (a commit takes a millisecond or two), then kill it there.
    const auto pid = static_cast<pid_t>(p.processId());
    bool caughtBetweenCommits = false;
    for (int attempt = 0; attempt < 200 && !caughtBetweenCommits; ++attempt) {
        ::kill(pid, SIGSTOP);
        QVERIFY2(waitUntilStopped(pid), "the engine did not stop");
        const HeaderSizes sizes = headerSizes(out, ext);
        QVERIFY2(sizes.declaredEnd <= sizes.fileSize,
                 qPrintable(QString("the header promises %1 bytes, the file has %2").arg(sizes.declaredEnd).arg(sizes.fileSize)));
        caughtBetweenCommits = sizes.declaredEnd == sizes.fileSize;
        if (!caughtBetweenCommits) {
            ::kill(pid, SIGCONT);
            QTest::qWait(7);
        }
    }
    ::kill(pid, SIGKILL);
    QVERIFY(p.waitForFinished(10000));
    QVERIFY2(caughtBetweenCommits, "never found the writer between two commits");
    QVERIFY(QFile::exists(out));
    // Our reader takes it as a complete file of what the header declares.
    std::string error;
    auto reader = zuvo::io::openDsdFile(out.toStdString(), &error);
    QVERIFY2(reader, error.c_str());
    const std::uint64_t declared = reader->info().bytesPerChannel;
    QVERIFY2(declared >= (1 << 20), qPrintable(QString("only %1 bytes per channel declared").arg(declared)));
    std::uint64_t got = 0;
    std::vector<std::vector<std::uint8_t>> piece;
    long long n;
    while ((n = reader->read(1 << 16, piece, &error)) > 0)
        got += std::uint64_t(n);
    QVERIFY2(n == 0, error.c_str());
    QCOMPARE(got, declared);
    // An independent decoder reads it too. For DSF it takes the length from
    // the file's size, so it sees at least what the header declares; for
    // DSDIFF from the sound data chunk.
    const QJsonObject probe = ffprobe(out);
    const QJsonObject stream = probe["streams"].toArray().at(0).toObject();
    QCOMPARE(stream["channels"].toInt(), 2);
    const double duration = probe["format"].toObject()["duration"].toString().toDouble();
    const double expected = double(declared) * 8 / (2822400 * 4);
    if (ext == ".dff")
        QVERIFY2(std::fabs(duration - expected) < 0.05, qPrintable(QString("%1 vs %2").arg(duration).arg(expected)));
    else
        QVERIFY2(duration > expected - 0.05, qPrintable(QString("%1 vs %2").arg(duration).arg(expected)));
}

QTEST_GUILESS_MAIN(EngineHostileTest)
#include "tst_engine_hostile.moc"
