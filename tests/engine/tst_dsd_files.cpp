// The DSF and DSDIFF writers and readers on their own, checked against an
// independent decoder (ffprobe/ffmpeg) and against our readers.
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

#include "engine_test_support.h"
#include "io/dsd_reader.h"
#include "io/dsd_writer.h"

using namespace enginetest;
using zuvo::io::DsdContainer;

namespace {

// A square wave as a bit stream: `halfBytes` bytes of ones, then as many of
// zeros. Its fundamental is rate / (16 * halfBytes).
std::vector<std::uint8_t> squareBytes(std::size_t bytes, std::size_t halfBytes, std::size_t phase)
{
    std::vector<std::uint8_t> v(bytes);
    for (std::size_t i = 0; i < bytes; ++i)
        v[i] = ((i + phase) / halfBytes) % 2 == 0 ? 0xFF : 0x00;
    return v;
}

zuvo::io::Tags sampleTags()
{
    zuvo::io::Tags t;
    t.artist = "Zuvo Test Ensemble";
    t.title = QStringLiteral("Sinfonía Nº 1 – 测试").toStdString();
    t.album = "Engine Suite";
    t.genre = "Classical";
    t.year = "2026";
    t.comment = "made by the file-layer test";
    t.track = 7;
    return t;
}

// Writes `seconds` of a 2-channel stream (ch0 1102.5 Hz, ch1 2205 Hz at
// DSD64) in uneven pieces, the way the encoders deliver it.
bool writeStream(DsdContainer container, const QString& path, double seconds, const zuvo::io::Tags& tags,
                 std::vector<std::vector<std::uint8_t>>& written)
{
    const int rate = 2822400;
    const auto total = static_cast<std::size_t>(seconds * rate / 8);
    written = {squareBytes(total, 160, 0), squareBytes(total, 80, 0)};
    auto writer = zuvo::io::makeDsdWriter(container);
    std::string error;
    if (!writer->open(path.toStdString(), {2, rate}, tags, &error))
        return false;
    std::size_t pos = 0;
    std::size_t step = 1000;
    while (pos < total) {
        const std::size_t n = std::min(step, total - pos);
        std::vector<std::vector<std::uint8_t>> piece(2);
        for (int c = 0; c < 2; ++c)
            piece[static_cast<std::size_t>(c)].assign(written[static_cast<std::size_t>(c)].begin() + static_cast<std::ptrdiff_t>(pos),
                                                     written[static_cast<std::size_t>(c)].begin() + static_cast<std::ptrdiff_t>(pos + n));
        if (!writer->write(piece, &error))
            return false;
        pos += n;
        step = step * 3 % 7919 + 17; // uneven sizes cross block boundaries
    }
    return writer->finalize(&error);
}

} // namespace

class DsdFilesTest : public QObject {
    Q_OBJECT

private slots:
    void ffprobeReadsFormatAndTags_data();
    void ffprobeReadsFormatAndTags();
    void ffmpegDecodesChannelsInOrder_data();
    void ffmpegDecodesChannelsInOrder();
    void ownReaderRoundTrip_data();
    void ownReaderRoundTrip();
    void writeFailureLeavesNoFile();

private:
    QTemporaryDir dir_;
};

void DsdFilesTest::ffprobeReadsFormatAndTags_data()
{
    QTest::addColumn<int>("container");
    QTest::addColumn<QString>("name");
    QTest::newRow("dsf") << int(DsdContainer::Dsf) << "a.dsf";
    QTest::newRow("dff") << int(DsdContainer::Dff) << "a.dff";
}

void DsdFilesTest::ffprobeReadsFormatAndTags()
{
    QFETCH(int, container);
    QFETCH(QString, name);
    const QString path = dir_.filePath(name);
    std::vector<std::vector<std::uint8_t>> written;
    QVERIFY(writeStream(DsdContainer(container), path, 1.5, sampleTags(), written));
    const QJsonObject probe = ffprobe(path);
    const QJsonObject stream = probe["streams"].toArray().at(0).toObject();
    QCOMPARE(stream["channels"].toInt(), 2);
    // ffmpeg counts DSD in bytes: 2822400 bit/s = 352800 byte/s.
    QCOMPARE(stream["sample_rate"].toString().toInt(), 352800);
    const QJsonObject format = probe["format"].toObject();
    QVERIFY2(dsdDurationMatches(probe, 1.5, 2822400), qPrintable(format["duration"].toString()));
    const QJsonObject tags = format["tags"].toObject();
    QCOMPARE(tags["artist"].toString(), QStringLiteral("Zuvo Test Ensemble"));
    QCOMPARE(tags["title"].toString(), QStringLiteral("Sinfonía Nº 1 – 测试"));
    QVERIFY(tags["comment"].toString().contains("file-layer test"));
    if (DsdContainer(container) == DsdContainer::Dsf) {
        // DSDIFF carries these in an ID3 chunk that ffprobe does not read;
        // ownReaderRoundTrip checks them there.
        QCOMPARE(tags["album"].toString(), QStringLiteral("Engine Suite"));
        QCOMPARE(tags["genre"].toString(), QStringLiteral("Classical"));
        QCOMPARE(tags["track"].toString(), QStringLiteral("7"));
    }
}

void DsdFilesTest::ffmpegDecodesChannelsInOrder_data()
{
    ffprobeReadsFormatAndTags_data();
}

void DsdFilesTest::ffmpegDecodesChannelsInOrder()
{
    QFETCH(int, container);
    QFETCH(QString, name);
    const QString path = dir_.filePath("dec-" + name);
    std::vector<std::vector<std::uint8_t>> written;
    QVERIFY(writeStream(DsdContainer(container), path, 1.0, {}, written));
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(path, 44100, 2, pcm));
    QVERIFY(std::abs(long(pcm[0].size()) - 44100) < 200);
    QVERIFY(std::fabs(dominantFrequency(pcm[0], 44100, 900, 1300) - 1102.5) <= 1);
    QVERIFY(std::fabs(dominantFrequency(pcm[1], 44100, 2000, 2400) - 2205) <= 1);
}

void DsdFilesTest::ownReaderRoundTrip_data()
{
    ffprobeReadsFormatAndTags_data();
}

void DsdFilesTest::ownReaderRoundTrip()
{
    QFETCH(int, container);
    QFETCH(QString, name);
    const QString path = dir_.filePath("rt-" + name);
    std::vector<std::vector<std::uint8_t>> written;
    QVERIFY(writeStream(DsdContainer(container), path, 0.77, sampleTags(), written));
    std::string error;
    auto reader = zuvo::io::openDsdFile(path.toStdString(), &error);
    QVERIFY2(reader, error.c_str());
    QCOMPARE(reader->info().channels, 2);
    QCOMPARE(reader->info().sampleRate, 2822400);
    QCOMPARE(reader->info().bytesPerChannel, std::uint64_t(written[0].size()));
    QCOMPARE(QString::fromStdString(reader->tags().artist), QStringLiteral("Zuvo Test Ensemble"));
    QCOMPARE(QString::fromStdString(reader->tags().title), QStringLiteral("Sinfonía Nº 1 – 测试"));
    QCOMPARE(QString::fromStdString(reader->tags().album), QStringLiteral("Engine Suite"));
    QCOMPARE(QString::fromStdString(reader->tags().year), QStringLiteral("2026"));
    QCOMPARE(reader->tags().track, 7);
    std::vector<std::vector<std::uint8_t>> back(2), piece;
    long long n;
    while ((n = reader->read(3333, piece, &error)) > 0)
        for (int c = 0; c < 2; ++c)
            back[c].insert(back[c].end(), piece[c].begin(), piece[c].end());
    QCOMPARE(n, 0LL);
    QVERIFY(back[0] == written[0]);
    QVERIFY(back[1] == written[1]);
}

void DsdFilesTest::writeFailureLeavesNoFile()
{
    // /dev/full accepts the open and fails the writes: the writer must
    // report it and must not delete the device node.
    auto writer = zuvo::io::makeDsdWriter(DsdContainer::Dsf);
    std::string error;
    QVERIFY(writer->open("/dev/full", {2, 2822400}, {}, &error));
    std::vector<std::vector<std::uint8_t>> data = {std::vector<std::uint8_t>(1 << 21, 0x69), std::vector<std::uint8_t>(1 << 21, 0x69)};
    const bool ok = writer->write(data, &error) && writer->finalize(&error);
    QVERIFY(!ok);
    QVERIFY(!error.empty());
    writer->discard();
    QVERIFY(QFileInfo::exists("/dev/full"));
}

QTEST_GUILESS_MAIN(DsdFilesTest)
#include "tst_dsd_files.moc"
