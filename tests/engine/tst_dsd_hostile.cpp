// The DSF and DSDIFF readers against hostile files, and the writers' bytes
// checked by hand: sizes that wrap, fields that would size huge buffers,
// files cut short, the bit order of each container, the pad rule of the
// DSDIFF text chunks and the channel labels.
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include "io/dsd_reader.h"
#include "io/dsd_writer.h"

using zuvo::io::DsdContainer;
using zuvo::io::Speaker;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Planar = std::vector<Bytes>;

bool writeDsd(DsdContainer container, const QString& path, const Planar& data, const zuvo::io::Tags& tags,
              zuvo::io::ChannelLayout layout = {})
{
    auto writer = zuvo::io::makeDsdWriter(container);
    std::string error;
    const int channels = static_cast<int>(data.size());
    return writer->open(path.toStdString(), {channels, 2822400, layout}, tags, &error) && writer->write(data, &error)
        && writer->finalize(&error);
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

void patchBE(QByteArray& b, qsizetype at, std::uint64_t v)
{
    for (int i = 0; i < 8; ++i)
        b[at + i] = char(v >> (8 * (7 - i)));
}

void patchLE(QByteArray& b, qsizetype at, std::uint64_t v, int n)
{
    for (int i = 0; i < n; ++i)
        b[at + i] = char(v >> (8 * i));
}

std::uint64_t readBE(const QByteArray& b, qsizetype at)
{
    std::uint64_t v = 0;
    for (int i = 0; i < 8; ++i)
        v = (v << 8) | std::uint8_t(b[at + i]);
    return v;
}

// Offset of a chunk in a well-formed DSDIFF file, found by walking the
// chunks (the id bytes also occur inside other chunks: CMPR says "DSD ").
qsizetype findIn(const QByteArray& b, qsizetype pos, qsizetype end, const QByteArray& id)
{
    while (pos + 12 <= end) {
        const QByteArray here = b.mid(pos, 4);
        const auto size = static_cast<qsizetype>(readBE(b, pos + 4));
        if (here == id)
            return pos;
        if (here == "PROP" || here == "DIIN") {
            const qsizetype inner = findIn(b, pos + 12 + (here == "PROP" ? 4 : 0), pos + 12 + size, id);
            if (inner >= 0)
                return inner;
        }
        pos += 12 + size + (size & 1);
    }
    return -1;
}
qsizetype chunkAt(const QByteArray& b, const char* id) { return findIn(b, 16, b.size(), QByteArray(id, 4)); }

struct Outcome {
    bool finished = false;
    bool opened = false;
    std::string error;
    std::uint64_t bytesRead = 0;
};

// Opens and reads the whole file on a thread. A reader that loops would
// hang the suite, so after `seconds` the verdict is "did not finish" and
// the thread is left behind (the process ends with the suite).
Outcome openAndReadWithin(const QString& path, double seconds)
{
    auto result = std::make_shared<std::promise<Outcome>>();
    std::future<Outcome> future = result->get_future();
    std::thread([result, p = path.toStdString()] {
        Outcome o;
        auto reader = zuvo::io::openDsdFile(p, &o.error);
        o.opened = reader != nullptr;
        if (reader) {
            Planar piece;
            long long n;
            while ((n = reader->read(5000, piece, &o.error)) > 0)
                o.bytesRead += static_cast<std::uint64_t>(n);
        }
        o.finished = true;
        result->set_value(o);
    }).detach();
    if (future.wait_for(std::chrono::duration<double>(seconds)) != std::future_status::ready)
        return {};
    return future.get();
}

zuvo::io::Tags oddTags()
{
    zuvo::io::Tags t;
    t.artist = "abc";      // odd length: DIAR needs a pad byte
    t.title = "title";     // odd too
    t.comment = "notes";   // odd: COMT pads it inside the chunk
    t.album = "album";     // goes into the trailing ID3 chunk
    return t;
}

Planar pattern(int channels, std::size_t bytes)
{
    Planar p(static_cast<std::size_t>(channels), Bytes(bytes));
    for (int c = 0; c < channels; ++c)
        for (std::size_t i = 0; i < bytes; ++i)
            p[std::size_t(c)][i] = std::uint8_t(i * 7 + std::size_t(c) * 31);
    return p;
}

} // namespace

class DsdHostileTest : public QObject {
    Q_OBJECT

private slots:
    void dffChunkSizeThatWraps_data();
    void dffChunkSizeThatWraps();
    void dffSoundDataPastTheFile_data();
    void dffSoundDataPastTheFile();
    void dsfHugeBlockSizeIsRefusedUpFront_data();
    void dsfHugeBlockSizeIsRefusedUpFront();
    void dsfCutShort_data();
    void dsfCutShort();
    void bitOrderByteLevel();
    void dffTextChunksExcludeTheirPadByte();
    void channelLabels_data();
    void channelLabels();
    void dsfRefusesALayoutItHasNoTypeFor();

private:
    QTemporaryDir dir_;
};

void DsdHostileTest::dffChunkSizeThatWraps_data()
{
    QTest::addColumn<QString>("chunk");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<QString>("mentioned");
    // 0xFFFFFFFFFFFFFFF4 + 12 wraps the position back onto the chunk itself.
    QTest::newRow("DSD ") << "DSD " << false << "truncated";
    QTest::newRow("FVER") << "FVER" << false << "FVER";
    QTest::newRow("PROP") << "PROP" << false << "PROP";
    QTest::newRow("FS") << "FS  " << false << "FS";
    QTest::newRow("CHNL") << "CHNL" << false << "CHNL";
    QTest::newRow("CMPR") << "CMPR" << false << "CMPR";
    QTest::newRow("COMT") << "COMT" << false << "COMT";
    QTest::newRow("DIIN") << "DIIN" << false << "DIIN";
    // Inside DIIN only the artist is lost; after the sound data only tags.
    QTest::newRow("DIAR") << "DIAR" << true << "";
    QTest::newRow("ID3") << "ID3 " << true << "";
}

void DsdHostileTest::dffChunkSizeThatWraps()
{
    QFETCH(QString, chunk);
    QFETCH(bool, opens);
    QFETCH(QString, mentioned);
    const QString path = dir_.filePath("wrap-" + chunk.trimmed() + ".dff");
    QVERIFY(writeDsd(DsdContainer::Dff, path, pattern(2, 5000), oddTags()));
    QByteArray b = fileBytes(path);
    const qsizetype at = chunkAt(b, chunk.toLatin1().constData());
    QVERIFY(at > 0);
    patchBE(b, at + 4, 0xFFFFFFFFFFFFFFF4ull);
    QVERIFY(putBytes(path, b));
    const Outcome o = openAndReadWithin(path, 5.0);
    QVERIFY2(o.finished, "the chunk walk did not end");
    QCOMPARE(o.opened, opens);
    if (opens)
        QCOMPARE(o.bytesRead, std::uint64_t(5000));
    else
        QVERIFY2(QString::fromStdString(o.error).contains(mentioned), o.error.c_str());
}

void DsdHostileTest::dffSoundDataPastTheFile_data()
{
    QTest::addColumn<int>("cutAt");        // bytes cut off the end (0: none)
    QTest::addColumn<qint64>("extraSize");  // added to the DSD chunk's size
    QTest::addColumn<bool>("opens");
    // Cut in the middle of the sound data: audio is missing.
    QTest::newRow("cut mid-data") << 6000 << qint64(0) << false;
    // A DSD size that reaches over the trailing ID3 chunk would read the tag
    // as audio.
    QTest::newRow("size over the ID3 chunk") << 0 << qint64(64) << false;
    // The last chunk missing only its pad byte is slack, not damage.
    QTest::newRow("missing final pad byte") << -1 << qint64(0) << true;
}

void DsdHostileTest::dffSoundDataPastTheFile()
{
    QFETCH(int, cutAt);
    QFETCH(qint64, extraSize);
    QFETCH(bool, opens);
    const QString path = dir_.filePath(QString("cut-%1-%2.dff").arg(cutAt).arg(extraSize));
    // 3 channels x 4001 bytes: an odd sound data size, so a pad byte follows.
    zuvo::io::Tags tags;
    if (cutAt >= 0)
        tags.album = "album";
    QVERIFY(writeDsd(DsdContainer::Dff, path, pattern(3, 4001), tags));
    QByteArray b = fileBytes(path);
    const qsizetype at = chunkAt(b, "DSD ");
    patchBE(b, at + 4, readBE(b, at + 4) + std::uint64_t(extraSize));
    if (cutAt > 0)
        b.chop(cutAt);
    if (cutAt < 0) {
        QCOMPARE(b.size(), at + 12 + 3 * 4001 + 1);
        b.chop(1);
    }
    QVERIFY(putBytes(path, b));
    const Outcome o = openAndReadWithin(path, 5.0);
    QVERIFY(o.finished);
    QCOMPARE(o.opened, opens);
    if (opens) {
        QCOMPARE(o.bytesRead, std::uint64_t(4001));
    } else {
        // The message says what was declared and what was found.
        const QString e = QString::fromStdString(o.error);
        QVERIFY2(e.contains("truncated") && e.contains("declares") && e.contains("holds"), o.error.c_str());
    }
}

void DsdHostileTest::dsfHugeBlockSizeIsRefusedUpFront_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<quint32>("block");
    QTest::newRow("2 ch, 0x7FFFFFFF") << 2 << quint32(0x7FFFFFFF);
    QTest::newRow("6 ch, 0xFFFFFFFF") << 6 << quint32(0xFFFFFFFF);
    QTest::newRow("2 ch, 0") << 2 << quint32(0);
}

void DsdHostileTest::dsfHugeBlockSizeIsRefusedUpFront()
{
    QFETCH(int, channels);
    QFETCH(quint32, block);
    const QString path = dir_.filePath(QString("block-%1-%2.dsf").arg(channels).arg(block));
    QVERIFY(writeDsd(DsdContainer::Dsf, path, pattern(channels, 5000), {}));
    QByteArray b = fileBytes(path);
    patchLE(b, 28 + 44, block, 4);
    QVERIFY(putBytes(path, b));
    // Refused by open(), before any buffer is sized by the field.
    std::string error;
    auto reader = zuvo::io::openDsdFile(path.toStdString(), &error);
    QVERIFY(!reader);
    QVERIFY2(QString::fromStdString(error).contains("block size"), error.c_str());
}

void DsdHostileTest::dsfCutShort_data()
{
    QTest::addColumn<int>("keep");   // bytes of the file kept
    QTest::addColumn<bool>("opens");
    // 2 channels x 5000 bytes: two groups of 2 x 4096, the last ending at
    // 92 + 8192 + 4096 + 904 in its second channel.
    QTest::newRow("whole") << -1 << true;
    QTest::newRow("cut in the last channel's padding") << 92 + 8192 + 4096 + 904 << true;
    QTest::newRow("cut in the last channel's audio") << 92 + 8192 + 4096 + 900 << false;
    QTest::newRow("cut in the first group") << 92 + 5000 << false;
    QTest::newRow("header only") << 92 << false;
}

void DsdHostileTest::dsfCutShort()
{
    QFETCH(int, keep);
    QFETCH(bool, opens);
    const QString path = dir_.filePath(QString("cut-%1.dsf").arg(keep));
    QVERIFY(writeDsd(DsdContainer::Dsf, path, pattern(2, 5000), {}));
    QByteArray b = fileBytes(path);
    if (keep >= 0)
        b.truncate(keep);
    QVERIFY(putBytes(path, b));
    const Outcome o = openAndReadWithin(path, 5.0);
    QVERIFY(o.finished);
    QVERIFY2(o.opened == opens, o.error.c_str());
    if (opens) {
        QCOMPARE(o.bytesRead, std::uint64_t(5000));
    } else {
        const QString e = QString::fromStdString(o.error);
        QVERIFY2(e.contains("truncated") && e.contains("declares 5000"), o.error.c_str());
    }
}

void DsdHostileTest::bitOrderByteLevel()
{
    // The writers take bytes with the earliest bit in bit 7. 0xD2 is the bit
    // sequence 1,1,0,1,0,0,1,0: DSDIFF keeps it (earliest bit in bit 7), DSF
    // stores it mirrored, earliest bit in bit 0: 0,1,0,0,1,0,1,1 = 0x4B.
    // 0x01 (seven 0s then a 1) becomes 0x80 in DSF.
    const Planar data = {{0xD2, 0x01, 0xF0}, {0x0F, 0x80, 0xAA}};
    const QString dsf = dir_.filePath("bits.dsf");
    const QString dff = dir_.filePath("bits.dff");
    QVERIFY(writeDsd(DsdContainer::Dsf, dsf, data, {}));
    QVERIFY(writeDsd(DsdContainer::Dff, dff, data, {}));
    const QByteArray s = fileBytes(dsf);
    // DSF: header 92 bytes, then a 4096-byte block per channel.
    QCOMPARE(std::uint8_t(s[92]), std::uint8_t(0x4B));
    QCOMPARE(std::uint8_t(s[93]), std::uint8_t(0x80));
    QCOMPARE(std::uint8_t(s[94]), std::uint8_t(0x0F));
    QCOMPARE(std::uint8_t(s[92 + 4096]), std::uint8_t(0xF0));
    QCOMPARE(std::uint8_t(s[92 + 4097]), std::uint8_t(0x01));
    QCOMPARE(std::uint8_t(s[92 + 4098]), std::uint8_t(0x55));
    // The "bits per sample" field says LSB first (1).
    QCOMPARE(std::uint8_t(s[28 + 32]), std::uint8_t(1));
    const QByteArray d = fileBytes(dff);
    // DSDIFF: byte-interleaved, bits as they are.
    const qsizetype at = chunkAt(d, "DSD ") + 12;
    const QByteArray expected("\xD2\x0F\x01\x80\xF0\xAA", 6);
    QCOMPARE(d.mid(at, 6), expected);
}

void DsdHostileTest::dffTextChunksExcludeTheirPadByte()
{
    const QString path = dir_.filePath("text.dff");
    QVERIFY(writeDsd(DsdContainer::Dff, path, pattern(2, 100), oddTags()));
    const QByteArray b = fileBytes(path);
    // DIAR: count (4) + "abc" = 7; its pad byte follows outside the size.
    const qsizetype diar = chunkAt(b, "DIAR");
    QCOMPARE(readBE(b, diar + 4), std::uint64_t(7));
    QCOMPARE(b.mid(diar + 16, 3), QByteArray("abc"));
    QCOMPARE(b[diar + 19], '\0');
    const qsizetype diti = chunkAt(b, "DITI");
    QCOMPARE(diti, diar + 12 + 8);
    QCOMPARE(readBE(b, diti + 4), std::uint64_t(9));
    // DIIN holds both chunks with their pad bytes.
    const qsizetype diin = chunkAt(b, "DIIN");
    QCOMPARE(readBE(b, diin + 4), std::uint64_t(20 + 22));
    // COMT: its comment carries its own pad inside the chunk (even size).
    const qsizetype comt = chunkAt(b, "COMT");
    QCOMPARE(readBE(b, comt + 4), std::uint64_t(16 + 5 + 1));
    // And the tags read back.
    std::string error;
    auto reader = zuvo::io::openDsdFile(path.toStdString(), &error);
    QVERIFY2(reader, error.c_str());
    QCOMPARE(QString::fromStdString(reader->tags().artist), QStringLiteral("abc"));
    QCOMPARE(QString::fromStdString(reader->tags().title), QStringLiteral("title"));
}

void DsdHostileTest::channelLabels_data()
{
    QTest::addColumn<QList<int>>("speakers"); // empty: default for the count
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("dsfType");
    QTest::addColumn<QString>("dffIds");
    using S = Speaker;
    const auto l = [](std::initializer_list<S> s) {
        QList<int> v;
        for (S x : s)
            v << int(x);
        return v;
    };
    QTest::newRow("mono") << QList<int>{} << 1 << 1 << "C   ";
    QTest::newRow("stereo") << QList<int>{} << 2 << 2 << "SLFTSRGT";
    QTest::newRow("3 default") << QList<int>{} << 3 << 3 << "MLFTMRGTC   ";
    QTest::newRow("4 default: quad") << QList<int>{} << 4 << 4 << "MLFTMRGTLS  RS  ";
    QTest::newRow("5 default: 5.0") << QList<int>{} << 5 << 6 << "MLFTMRGTC   LS  RS  ";
    QTest::newRow("6 default: 5.1") << QList<int>{} << 6 << 7 << "MLFTMRGTC   LFE LS  RS  ";
    QTest::newRow("4: L R C LFE") << l({S::FrontLeft, S::FrontRight, S::FrontCenter, S::Lfe}) << 4 << 5
                                  << "MLFTMRGTC   LFE ";
}

void DsdHostileTest::channelLabels()
{
    QFETCH(QList<int>, speakers);
    QFETCH(int, channels);
    QFETCH(int, dsfType);
    QFETCH(QString, dffIds);
    zuvo::io::ChannelLayout layout;
    for (int s : speakers)
        layout.push_back(Speaker(s));
    const Planar data = pattern(channels, 10);
    const QString dsf = dir_.filePath(QString("labels-%1.dsf").arg(QTest::currentDataTag()));
    const QString dff = dir_.filePath(QString("labels-%1.dff").arg(QTest::currentDataTag()));
    QVERIFY(writeDsd(DsdContainer::Dsf, dsf, data, {}, layout));
    QVERIFY(writeDsd(DsdContainer::Dff, dff, data, {}, layout));
    const QByteArray s = fileBytes(dsf);
    QCOMPARE(int(std::uint8_t(s[28 + 20])), dsfType);
    const QByteArray d = fileBytes(dff);
    const qsizetype chnl = chunkAt(d, "CHNL");
    QCOMPARE(int(readBE(d, chnl + 4)), 2 + 4 * channels);
    QCOMPARE(QString::fromLatin1(d.mid(chnl + 14, 4 * channels)), dffIds);
}

void DsdHostileTest::dsfRefusesALayoutItHasNoTypeFor()
{
    using S = Speaker;
    const zuvo::io::ChannelLayout layout = {S::FrontLeft, S::FrontRight, S::Other};
    auto writer = zuvo::io::makeDsdWriter(DsdContainer::Dsf);
    std::string error;
    const QString path = dir_.filePath("no-type.dsf");
    QVERIFY(!writer->open(path.toStdString(), {3, 2822400, layout}, {}, &error));
    QVERIFY2(QString::fromStdString(error).contains(".dff"), error.c_str());
    QVERIFY(!QFile::exists(path));
    // DSDIFF names what it can and numbers the rest.
    const QString dff = dir_.filePath("no-type.dff");
    QVERIFY(writeDsd(DsdContainer::Dff, dff, pattern(3, 10), {}, layout));
    const QByteArray d = fileBytes(dff);
    QCOMPARE(d.mid(chunkAt(d, "CHNL") + 14, 12), QByteArray("MLFTMRGTC002"));
}

QTEST_GUILESS_MAIN(DsdHostileTest)
#include "tst_dsd_hostile.moc"
