// The preview reader on hand-made files: every refusal message, the chunk
// walk's corner cases, sample scaling at the extremes and the 30 s cap.
#include <QTemporaryDir>
#include <QtTest>
#include <cstring>

#include "preview_reader.h"
#include "wav_bytes.h"

using namespace wavbytes;

class TestPreviewReader : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString file(const QString& name, const QByteArray& bytes) { return write(dir_.filePath(name), bytes); }

private slots:
    void refusals_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        const QByteArray fmt16 = chunk("fmt ", fmtBody(1, 1, 8000, 16));
        const QByteArray data4 = chunk("data", pcm16({1, 2, 3, 4}));
        const QByteArray good = riff(fmt16 + data4);
        QTest::newRow("suffix wave") << "a.wave" << good << "unsupported (only WAV)";
        QTest::newRow("suffix dsf") << "a.dsf" << good << "unsupported (only WAV)";
        QTest::newRow("no suffix") << "wav" << good << "unsupported (only WAV)";
        QTest::newRow("eleven bytes") << "a.wav" << good.left(11) << "not RIFF/WAVE";
        QTest::newRow("RIFX") << "a.wav" << QByteArray("RIFX") + good.mid(4) << "not RIFF/WAVE";
        QTest::newRow("AVI ") << "a.wav" << good.left(8) + "AVI " + good.mid(12) << "not RIFF/WAVE";
        QTest::newRow("header only") << "a.wav" << riff({}) << "missing fmt/data chunk";
        QTest::newRow("under 20 bytes") << "a.wav" << riff(QByteArray("fmt ") + "\x10\x00\x00") << "missing fmt/data chunk";
        QTest::newRow("no data") << "a.wav" << riff(fmt16) << "missing fmt/data chunk";
        QTest::newRow("no fmt") << "a.wav" << riff(data4) << "missing fmt/data chunk";
        QTest::newRow("fmt after data") << "a.wav" << riff(data4 + fmt16) << "missing fmt/data chunk";
        QTest::newRow("fmt of 14 bytes") << "a.wav" << riff(chunk("fmt ", fmtBody(1, 1, 8000, 16).left(14)) + data4)
                                         << "missing fmt/data chunk";
        QTest::newRow("size with bit 31 ends the walk")
            << "a.wav" << riff(chunk("LIST", QByteArray(4, 'x'), 0x80000004LL) + fmt16 + data4)
            << "missing fmt/data chunk";
        QTest::newRow("chunk running past the end")
            << "a.wav" << riff(fmt16 + chunk("LIST", QByteArray(4, 'x'), 4000) + data4) << "missing fmt/data chunk";
        QTest::newRow("ADPCM") << "a.wav" << riff(chunk("fmt ", fmtBody(2, 1, 8000, 4)) + data4)
                               << "unsupported WAV tag 2";
        QTest::newRow("extensible, unknown sub-format")
            << "a.wav" << riff(chunk("fmt ", extensibleBody(2, 8000, 16, 2)) + data4) << "unsupported WAV tag -1";
        QTest::newRow("extensible cut before the sub-format")
            << "a.wav" << riff(chunk("fmt ", extensibleBody(1, 8000, 16, 1).left(24)) + data4)
            << "unsupported WAV tag 65534";
        QTest::newRow("no channels") << "a.wav" << riff(chunk("fmt ", fmtBody(1, 0, 8000, 16)) + data4)
                                     << "bad channel count";
        QTest::newRow("nine channels") << "a.wav" << riff(chunk("fmt ", fmtBody(1, 9, 8000, 16)) + data4)
                                       << "bad channel count";
        QTest::newRow("8-bit") << "a.wav" << riff(chunk("fmt ", fmtBody(1, 1, 8000, 8)) + data4)
                               << "unsupported depth 8";
        QTest::newRow("float 64") << "a.wav" << riff(chunk("fmt ", fmtBody(3, 1, 8000, 64)) + data4)
                                  << "unsupported depth 64";
        QTest::newRow("float 24") << "a.wav" << riff(chunk("fmt ", fmtBody(3, 1, 8000, 24)) + data4)
                                  << "unsupported depth 24";
        QTest::newRow("data shorter than a frame")
            << "a.wav" << riff(chunk("fmt ", fmtBody(1, 2, 8000, 24)) + chunk("data", QByteArray(5, 1)))
            << "no samples";
        QTest::newRow("streaming data with nothing yet")
            << "a.wav" << riff(fmt16 + chunk("data", {}, 0)) << "no samples";
        QTest::newRow("sample rate 0") << "a.wav" << riff(chunk("fmt ", fmtBody(1, 1, 0, 16)) + data4) << "no samples";
        QTest::newRow("data size beyond a file cut inside the first frame")
            << "a.wav" << riff(chunk("fmt ", fmtBody(1, 2, 8000, 24)) + chunk("data", QByteArray(3, 1), 400))
            << "no samples decoded";
    }
    void refusals()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        pv::PreviewData d;
        QString error;
        const QString path = file(name, bytes);
        QVERIFY(!pv::readPreview(path, d, &error));
        QCOMPARE(error, message);
        QVERIFY(!d.ok);
        QVERIFY(d.samples.empty());
        QCOMPARE(d.path, path);
    }

    void missingFileReportsTheSystemsReason()
    {
        pv::PreviewData d;
        QString error;
        QVERIFY(!pv::readPreview(dir_.filePath("absent.wav"), d, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY2(error.contains("No such file", Qt::CaseInsensitive), qPrintable(error));
    }

    void decodedValues_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QList<float>>("samples");
        QTest::addColumn<int>("channels");
        const QByteArray fmt16 = chunk("fmt ", fmtBody(1, 1, 8000, 16));
        QTest::newRow("lower-case suffix, 16-bit extremes")
            << "lower.wav" << riff(fmt16 + chunk("data", pcm16({-32768, 32767, 0, 16384})))
            << QList<float>{-1.0f, 32767.0f / 32768.0f, 0.0f, 0.5f} << 1;
        QTest::newRow("upper-case suffix") << "UPPER.WAV" << riff(fmt16 + chunk("data", pcm16({8192})))
                                           << QList<float>{0.25f} << 1;
        QTest::newRow("24-bit extremes")
            << "a.wav" << riff(chunk("fmt ", fmtBody(1, 1, 8000, 24)) + chunk("data", pcm24({0x800000, 0x7FFFFF, 0xFFFFFF, 1})))
            << QList<float>{-1.0f, float(8388607.0 / 8388608.0), float(-1.0 / 8388608.0), float(1.0 / 8388608.0)} << 1;
        QByteArray s32;
        for (quint32 v : {0x80000000u, 0x40000000u})
            s32 += le32(v);
        QTest::newRow("32-bit integer") << "a.wav" << riff(chunk("fmt ", fmtBody(1, 1, 8000, 32)) + chunk("data", s32))
                                        << QList<float>{-1.0f, 0.5f} << 1;
        QTest::newRow("float, values as they stand")
            << "a.wav" << riff(chunk("fmt ", fmtBody(3, 1, 8000, 32)) + chunk("data", float32({1.5f, -0.125f})))
            << QList<float>{1.5f, -0.125f} << 1;
        QTest::newRow("extensible float")
            << "a.wav" << riff(chunk("fmt ", extensibleBody(1, 8000, 32, 3)) + chunk("data", float32({0.75f})))
            << QList<float>{0.75f} << 1;
        QTest::newRow("extensible PCM 24-bit stereo")
            << "a.wav" << riff(chunk("fmt ", extensibleBody(2, 8000, 24, 1)) + chunk("data", pcm24({0x400000, 0x200000})))
            << QList<float>{0.375f} << 2;
        QTest::newRow("stereo mean") << "a.wav"
                                     << riff(chunk("fmt ", fmtBody(1, 2, 8000, 16)) + chunk("data", pcm16({16384, 8192, -8192, 0})))
                                     << QList<float>{0.375f, -0.125f} << 2;
        QTest::newRow("channels cancel")
            << "a.wav" << riff(chunk("fmt ", fmtBody(1, 2, 8000, 16)) + chunk("data", pcm16({12345, -12345, -20000, 20000})))
            << QList<float>{0.0f, 0.0f} << 2;
        QTest::newRow("odd chunk before fmt is skipped with its pad byte")
            << "a.wav" << riff(chunk("junk", "abc") + fmt16 + chunk("data", pcm16({-16384})))
            << QList<float>{-0.5f} << 1;
        QTest::newRow("odd chunk between fmt and data")
            << "a.wav" << riff(fmt16 + chunk("LIST", "12345") + chunk("data", pcm16({4096})))
            << QList<float>{0.125f} << 1;
        QTest::newRow("zero-size data reads to the end of the file")
            << "a.wav" << riff(fmt16 + chunk("data", pcm16({1024, 2048, 4096}), 0))
            << QList<float>{1.0f / 32, 1.0f / 16, 1.0f / 8} << 1;
        QTest::newRow("data size beyond the end: what is there")
            << "a.wav" << riff(fmt16 + chunk("data", pcm16({1024, 2048}), 1000)) << QList<float>{1.0f / 32, 1.0f / 16} << 1;
        QTest::newRow("data size cuts the file short")
            << "a.wav" << riff(fmt16 + chunk("data", pcm16({1024, 2048, 4096}), 4)) << QList<float>{1.0f / 32, 1.0f / 16} << 1;
        QTest::newRow("trailing partial frame ignored")
            << "a.wav" << riff(chunk("fmt ", fmtBody(1, 2, 8000, 16)) + chunk("data", pcm16({2048, 2048, 7}), 0))
            << QList<float>{1.0f / 16} << 2;
    }
    void decodedValues()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QList<float>, samples);
        QFETCH(int, channels);
        pv::PreviewData d;
        QString error;
        QVERIFY2(pv::readPreview(file(name, bytes), d, &error), qPrintable(error));
        QVERIFY(d.ok);
        QCOMPARE(d.suffix, QStringLiteral("WAV"));
        QCOMPARE(d.channels, channels);
        QCOMPARE(d.sampleRate, 8000.0);
        QCOMPARE(QList<float>(d.samples.begin(), d.samples.end()), samples);
    }

    void cancellingChannelsGiveSilence()
    {
        QByteArray data;
        for (int i = 0; i < 4000; ++i) {
            const int v = (i * 7919) % 65535 - 32767;
            data += le16(v) + le16(-v);
        }
        pv::PreviewData d;
        QVERIFY(pv::readPreview(file("lr.wav", riff(chunk("fmt ", fmtBody(1, 2, 8000, 16)) + chunk("data", data))), d));
        QCOMPARE(d.samples.size(), size_t(4000));
        int nonZero = 0;
        for (float s : d.samples)
            nonZero += s != 0.0f;
        QCOMPARE(nonZero, 0);
    }

    void oneHourYieldsExactlyThirtySeconds()
    {
        // One hour at 1 kHz: 3.6 million frames, of which the first 30000 are read.
        const quint32 rate = 1000;
        const qint64 frames = 3600LL * rate;
        QByteArray data(frames * 2, Qt::Uninitialized);
        for (qint64 i = 0; i < frames; ++i)
            qToLittleEndian<qint16>(qint16(i % 30001 - 15000), data.data() + 2 * i);
        pv::PreviewData d;
        QVERIFY(pv::readPreview(file("hour.wav", riff(chunk("fmt ", fmtBody(1, 1, rate, 16)) + chunk("data", data))), d));
        QCOMPARE(d.samples.size(), size_t(30 * rate));
        QCOMPARE(d.samples.front(), -15000.0f / 32768.0f);
        QCOMPARE(d.samples.back(), float(29999 % 30001 - 15000) / 32768.0f);
        QCOMPARE(d.seconds(), 30.0);
    }

    void blocksAreStitchedWithoutGaps()
    {
        // 8 channels × 24 bits: frames straddle several read blocks.
        const int frames = 20000;
        QByteArray data;
        data.reserve(frames * 24);
        for (int i = 0; i < frames; ++i)
            for (int c = 0; c < 8; ++c)
                data += le32(quint32(i * 16)).left(3);
        pv::PreviewData d;
        QVERIFY(pv::readPreview(file("8ch.wav", riff(chunk("fmt ", fmtBody(1, 8, 48000, 24)) + chunk("data", data))), d));
        QCOMPARE(d.samples.size(), size_t(frames));
        for (int i : {0, 8191, 8192, 8193, 16383, 16384, frames - 1})
            QCOMPARE(d.samples[size_t(i)], float(i * 16) / 8388608.0f);
    }
};

QTEST_GUILESS_MAIN(TestPreviewReader)
#include "tst_preview_reader.moc"
