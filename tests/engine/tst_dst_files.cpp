// DST-compressed DSDIFF through the real engine: every file is compared with
// the uncompressed file of the same conversion, bit for bit through our own
// reader and sample for sample through ffmpeg (an independent decoder that
// decodes DST and plain DSD with the same DSD-to-PCM step).
//
// ffmpeg 5.1 does not reproduce frames stored uncompressed (its output for
// them depends on nothing we write: silence stored as plain DSD comes out as
// loud noise), so stored frames, and the 12 output samples its DSD-to-PCM
// filter carries past them, are judged by our decoder only.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <random>
#include <sndfile.h>

#include "engine_test_support.h"
#include "io/dsd_reader.h"
#include "io/dsd_writer.h"

using namespace enginetest;

namespace {

enum class Pcm { Tone, Noise, Silence, FullScale };

double pcmSample(Pcm kind, long i, int c)
{
    switch (kind) {
    case Pcm::Tone: return 0.4 * std::sin(2 * M_PI * (997.0 + 110.0 * c) * static_cast<double>(i) / 44100.0);
    case Pcm::FullScale: return 0.999 * std::sin(2 * M_PI * 441.0 * static_cast<double>(i) / 44100.0 + c);
    case Pcm::Silence: return 0.0;
    case Pcm::Noise: {
        // Deterministic white noise at -10 dBFS RMS.
        std::uint32_t x = static_cast<std::uint32_t>(i) * 2654435761u + static_cast<std::uint32_t>(c) * 40503u;
        x ^= x >> 13;
        x *= 0x5bd1e995u;
        x ^= x >> 15;
        return 0.316 * std::sqrt(3.0) * (static_cast<double>(x) / 4294967295.0 * 2 - 1);
    }
    }
    return 0;
}

bool readAllDsd(const QString& path, zuvo::io::DsdStreamInfo& info, std::vector<std::vector<std::uint8_t>>& data,
                std::string* error)
{
    auto r = zuvo::io::openDsdFile(path.toStdString(), error);
    if (!r)
        return false;
    info = r->info();
    data.assign(static_cast<std::size_t>(info.channels), {});
    std::vector<std::vector<std::uint8_t>> chunk;
    for (;;) {
        const long long n = r->read(50000, chunk, error);
        if (n < 0)
            return false;
        if (n == 0)
            return true;
        for (std::size_t c = 0; c < data.size(); ++c)
            data[c].insert(data[c].end(), chunk[c].begin(), chunk[c].end());
    }
}

// ffmpeg's decode as 32-bit integers, interleaved.
std::vector<std::int32_t> ffmpegRaw(const QString& path)
{
    QProcess p;
    p.start("ffmpeg", {"-v", "error", "-i", path, "-f", "s32le", "-"});
    if (!p.waitForFinished(120000) || p.exitCode() != 0)
        return {};
    const QByteArray raw = p.readAllStandardOutput();
    std::vector<std::int32_t> v(static_cast<std::size_t>(raw.size()) / 4);
    std::memcpy(v.data(), raw.constData(), v.size() * 4);
    return v;
}

// Per DSTF chunk: true when the frame is DST coded (first bit set). A plain
// walk of our own container, independent of the reader under test.
std::vector<bool> frameKinds(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    const QByteArray d = f.readAll();
    auto be = [&](qsizetype at) {
        quint64 v = 0;
        for (int i = 0; i < 8; ++i)
            v = (v << 8) | static_cast<quint8>(d[at + i]);
        return v;
    };
    std::vector<bool> kinds;
    qsizetype pos = 16;
    while (pos + 12 <= d.size()) {
        const QByteArray id = d.mid(pos, 4);
        const quint64 size = be(pos + 4);
        if (id == "DST ") {
            pos += 12; // walk into it
            continue;
        }
        if (id == "DSTF")
            kinds.push_back((static_cast<quint8>(d[pos + 12]) & 0x80) != 0);
        pos += 12 + static_cast<qsizetype>(size + (size & 1));
    }
    return kinds;
}

} // namespace

Q_DECLARE_METATYPE(Pcm)

class DstFilesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void dstMatchesPlain_data();
    void dstMatchesPlain();
    void storedFramesReadBack();
    void reverseModeReadsDst();
    void corruptedFrameIsNamed();
    void refusedCombinations_data();
    void refusedCombinations();

private:
    QString makeInput(Pcm kind, int channels, long frames);
    QTemporaryDir dir_;
    int counter_ = 0;
};

void DstFilesTest::initTestCase()
{
    QVERIFY(dir_.isValid());
    QVERIFY2(QFile::exists(enginePath()), qPrintable(enginePath()));
}

QString DstFilesTest::makeInput(Pcm kind, int channels, long frames)
{
    const QString path = dir_.filePath(QStringLiteral("in%1.wav").arg(++counter_));
    if (!writePcm(path, 44100, channels, frames, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                  [&](long i, int c) { return pcmSample(kind, i, c); }))
        return {};
    return path;
}

void DstFilesTest::dstMatchesPlain_data()
{
    QTest::addColumn<Pcm>("kind");
    QTest::addColumn<int>("channels");
    QTest::addColumn<long>("frames");       // input frames at 44.1 kHz (588 = one DST frame at DSD64)
    QTest::addColumn<QString>("level");     // "" = default
    QTest::addColumn<int>("oversampling");
    QTest::addColumn<bool>("expectCoded");  // every frame DST coded (else: at least one stored)
    // 0.5 s = 37.5 frames: the last frame is partial.
    QTest::newRow("tone, stereo, partial last frame") << Pcm::Tone << 2 << 22050L << "" << 64 << true;
    QTest::newRow("noise, stereo") << Pcm::Noise << 2 << 22050L << "" << 64 << true;
    QTest::newRow("silence, stereo") << Pcm::Silence << 2 << 22050L << "" << 64 << true;
    QTest::newRow("full scale, stereo") << Pcm::FullScale << 2 << 22050L << "" << 64 << true;
    QTest::newRow("tone, mono") << Pcm::Tone << 1 << 22050L << "" << 64 << true;
    QTest::newRow("tone, 3 channels") << Pcm::Tone << 3 << 22050L << "" << 64 << true;
    QTest::newRow("tone, 6 channels") << Pcm::Tone << 6 << 22050L << "" << 64 << true;
    QTest::newRow("single frame") << Pcm::Tone << 2 << 588L << "" << 64 << true;
    QTest::newRow("tone, level 5") << Pcm::Tone << 2 << 22050L << "5" << 64 << true;
    QTest::newRow("noise, level 9") << Pcm::Noise << 2 << 8820L << "9" << 64 << true;
    QTest::newRow("tone, DSD128") << Pcm::Tone << 2 << 22050L << "" << 128 << true;
}

void DstFilesTest::dstMatchesPlain()
{
    QFETCH(Pcm, kind);
    QFETCH(int, channels);
    QFETCH(long, frames);
    QFETCH(QString, level);
    QFETCH(int, oversampling);
    QFETCH(bool, expectCoded);
    const QString in = makeInput(kind, channels, frames);
    QVERIFY(!in.isEmpty());
    const QString plain = dir_.filePath(QStringLiteral("plain%1.dff").arg(counter_));
    const QString dst = dir_.filePath(QStringLiteral("dst%1.dff").arg(counter_));
    const QString os = QString::number(oversampling);
    RunResult r = runEngine({"-i", in, "--oversampling", os, plain});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QStringList args{"-i", in, "--oversampling", os, "--dst"};
    if (!level.isEmpty())
        args << "--dst-compression" << level;
    r = runEngine(args << dst);
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(QFileInfo(dst).size() < QFileInfo(plain).size() + 4096);

    // Our reader: the very bits of the uncompressed file, same length.
    zuvo::io::DsdStreamInfo pi, di;
    std::vector<std::vector<std::uint8_t>> pd, dd;
    std::string error;
    QVERIFY2(readAllDsd(plain, pi, pd, &error), error.c_str());
    QVERIFY2(readAllDsd(dst, di, dd, &error), error.c_str());
    QCOMPARE(di.channels, channels);
    QCOMPARE(di.sampleRate, pi.sampleRate);
    QCOMPARE(di.bytesPerChannel, pi.bytesPerChannel);
    QVERIFY(dd == pd);

    // ffmpeg: sample-identical on every DST-coded frame.
    const std::vector<bool> kinds = frameKinds(dst);
    const std::size_t frameBytes = static_cast<std::size_t>(pi.sampleRate) / 75 / 8;
    QCOMPARE(kinds.size(), (pi.bytesPerChannel + frameBytes - 1) / frameBytes);
    const std::size_t coded = static_cast<std::size_t>(std::count(kinds.begin(), kinds.end(), true));
    if (expectCoded)
        QCOMPARE(coded, kinds.size());
    const std::vector<std::int32_t> fp = ffmpegRaw(plain), fd = ffmpegRaw(dst);
    const auto ch = static_cast<std::size_t>(channels);
    QVERIFY(!fp.empty());
    QVERIFY(fd.size() >= fp.size()); // the DST file holds whole frames
    std::size_t compared = 0, different = 0;
    for (std::size_t s = 0; s < fp.size() / ch; ++s) {
        const std::size_t f = s / frameBytes;
        const bool afterStored = (f < kinds.size() && !kinds[f]) || (f > 0 && s % frameBytes < 12 && !kinds[f - 1]);
        if (afterStored)
            continue;
        for (std::size_t c = 0; c < ch; ++c) {
            ++compared;
            different += fp[s * ch + c] != fd[s * ch + c];
        }
    }
    QVERIFY(compared > 0);
    QCOMPARE(different, std::size_t{0});
}

void DstFilesTest::storedFramesReadBack()
{
    // Random bits cannot be predicted: the whole frames are stored; the last
    // one (of 3.5) is half silence padding, which makes it worth coding. The
    // reader gives back exactly the input, padding excluded.
    const int rate = 2822400;
    const std::size_t bytes = 4704 * 7 / 2;
    std::mt19937 rng(5);
    std::vector<std::vector<std::uint8_t>> in(2, std::vector<std::uint8_t>(bytes));
    for (auto& ch : in)
        for (auto& b : ch)
            b = static_cast<std::uint8_t>(rng());
    const QString path = dir_.filePath("stored.dff");
    auto w = zuvo::io::makeDsdWriter(zuvo::io::DsdContainer::Dff);
    std::string error;
    QVERIFY(w->open(path.toStdString(), {2, rate, {}, 1}, {}, &error));
    QVERIFY(w->write(in, &error));
    QVERIFY(w->finalize(&error));
    QCOMPARE(w->bytesPerChannel(), std::uint64_t{bytes});
    const std::vector<bool> kinds = frameKinds(path);
    QCOMPARE(kinds, (std::vector<bool>{false, false, false, true}));
    zuvo::io::DsdStreamInfo info;
    std::vector<std::vector<std::uint8_t>> back;
    QVERIFY2(readAllDsd(path, info, back, &error), error.c_str());
    QCOMPARE(info.bytesPerChannel, std::uint64_t{bytes});
    QVERIFY(back == in);
}

void DstFilesTest::reverseModeReadsDst()
{
    const QString in = makeInput(Pcm::Tone, 2, 22050);
    const QString plain = dir_.filePath("rplain.dff"), dst = dir_.filePath("rdst.dff");
    QCOMPARE(runEngine({"-i", in, plain}).exitCode, 0);
    QCOMPARE(runEngine({"-i", in, "--dst", dst}).exitCode, 0);
    const QString wp = dir_.filePath("rplain.wav"), wd = dir_.filePath("rdst.wav");
    RunResult r = runEngine({"--reverse", "-i", plain, wp});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    r = runEngine({"--reverse", "-i", dst, wd});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    int rp = 0, rd = 0;
    std::vector<std::vector<double>> a, b;
    QVERIFY(readPcm(wp, rp, a));
    QVERIFY(readPcm(wd, rd, b));
    QCOMPARE(rd, rp);
    QVERIFY(a == b);
}

void DstFilesTest::corruptedFrameIsNamed()
{
    const QString in = makeInput(Pcm::Tone, 2, 22050);
    const QString dst = dir_.filePath("corrupt.dff");
    QCOMPARE(runEngine({"-i", in, "--dst", dst}).exitCode, 0);
    QFile f(dst);
    QVERIFY(f.open(QIODevice::ReadWrite));
    QByteArray d = f.readAll();
    // The third DSTF chunk: damage a byte in the middle of its payload.
    qsizetype pos = -1;
    for (int k = 0; k < 3; ++k)
        pos = d.indexOf("DSTF", pos + 1);
    QVERIFY(pos > 0);
    quint64 size = 0;
    for (int i = 0; i < 8; ++i)
        size = (size << 8) | static_cast<quint8>(d[pos + 4 + i]);
    d[pos + 12 + static_cast<qsizetype>(size / 2)] = static_cast<char>(d[pos + 12 + static_cast<qsizetype>(size / 2)] ^ 0x10);
    f.seek(0);
    f.write(d);
    f.close();

    zuvo::io::DsdStreamInfo info;
    std::vector<std::vector<std::uint8_t>> data;
    std::string error;
    QVERIFY(!readAllDsd(dst, info, data, &error));
    QVERIFY2(QString::fromStdString(error).contains("DST frame 3 of 38"), error.c_str());
    // The engine reports it and leaves no output behind.
    const QString wav = dir_.filePath("corrupt.wav");
    const RunResult r = runEngine({"--reverse", "-i", dst, wav});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2((r.out + r.err).contains("DST frame 3 of 38"), qPrintable(r.out + r.err));
    QVERIFY(!QFile::exists(wav));
}

void DstFilesTest::refusedCombinations_data()
{
    QTest::addColumn<QStringList>("extra");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    QTest::newRow("DSF output") << QStringList{"--dst"} << "out.dsf" << "DSDIFF (.dff)";
    QTest::newRow("reverse mode") << QStringList{"--dst", "--reverse"} << "out.wav" << "--dst applies to DSD outputs only";
    QTest::newRow("level out of range") << QStringList{"--dst", "--dst-compression", "10"} << "out.dff" << "from 0 to 9";
}

void DstFilesTest::refusedCombinations()
{
    QFETCH(QStringList, extra);
    QFETCH(QString, output);
    QFETCH(QString, message);
    const QString in = makeInput(Pcm::Tone, 2, 4410);
    const QString out = dir_.filePath(output);
    const RunResult r = runEngine(QStringList{"-i", in} + extra + QStringList{out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2((r.out + r.err).contains(message), qPrintable(r.out + r.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(DstFilesTest)
#include "tst_dst_files.moc"
