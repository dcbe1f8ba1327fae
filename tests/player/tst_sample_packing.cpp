// Device words as ALSA defines its sample formats: the layouts the test
// devices cannot show (they take DSD_U32_BE and S32_LE first), written out
// by hand from the format definitions.
#include <QtTest>

#include "sample_packing.h"

using namespace zuvo::player;
using Bytes = std::vector<std::uint8_t>;
Q_DECLARE_METATYPE(snd_pcm_format_t)

class TestSamplePacking : public QObject {
    Q_OBJECT
private slots:
    void nativeDsd_data()
    {
        QTest::addColumn<snd_pcm_format_t>("format");
        QTest::addColumn<QByteArray>("expected");
        // Channel 0 plays 10 11 12 13, channel 1 plays 20 21 22 23 (hex), in time order.
        QTest::newRow("DSD_U8") << SND_PCM_FORMAT_DSD_U8 << QByteArray::fromHex("1020112112221323");
        QTest::newRow("DSD_U16_BE") << SND_PCM_FORMAT_DSD_U16_BE << QByteArray::fromHex("1011202112132223");
        QTest::newRow("DSD_U16_LE") << SND_PCM_FORMAT_DSD_U16_LE << QByteArray::fromHex("1110212013122322");
        QTest::newRow("DSD_U32_BE") << SND_PCM_FORMAT_DSD_U32_BE << QByteArray::fromHex("1011121320212223");
        QTest::newRow("DSD_U32_LE") << SND_PCM_FORMAT_DSD_U32_LE << QByteArray::fromHex("1312111023222120");
    }

    void nativeDsd()
    {
        QFETCH(snd_pcm_format_t, format);
        QFETCH(QByteArray, expected);
        const std::vector<Bytes> channels{{0x10, 0x11, 0x12, 0x13}, {0x20, 0x21, 0x22, 0x23}};
        Bytes out;
        appendNativeDsd(channels, 4, format, out);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(out.data()), qsizetype(out.size())), expected);
    }

    void dop_data()
    {
        QTest::addColumn<snd_pcm_format_t>("format");
        QTest::addColumn<QByteArray>("expected");
        // One channel, bytes A1 A2 then B1 B2: two frames, markers 05 then FA.
        QTest::newRow("S32_LE") << SND_PCM_FORMAT_S32_LE << QByteArray::fromHex("00a2a10500b2b1fa");
        QTest::newRow("S24_3LE") << SND_PCM_FORMAT_S24_3LE << QByteArray::fromHex("a2a105b2b1fa");
        QTest::newRow("S24_LE") << SND_PCM_FORMAT_S24_LE << QByteArray::fromHex("a2a10500b2b1fa00");
        QTest::newRow("S32_BE") << SND_PCM_FORMAT_S32_BE << QByteArray::fromHex("05a1a200fab1b200");
        QTest::newRow("S24_3BE") << SND_PCM_FORMAT_S24_3BE << QByteArray::fromHex("05a1a2fab1b2");
    }

    void dop()
    {
        QFETCH(snd_pcm_format_t, format);
        QFETCH(QByteArray, expected);
        const std::vector<Bytes> channels{{0xA1, 0xA2, 0xB1, 0xB2}};
        Bytes out;
        bool nextIsB = false;
        appendDop(channels, 4, format, nextIsB, out);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(out.data()), qsizetype(out.size())), expected);
        QVERIFY(!nextIsB); // two frames: the next one starts with 05 again
    }

    void dopMarkersContinueAcrossPieces()
    {
        const std::vector<Bytes> channels{{0x01, 0x02}, {0x03, 0x04}};
        Bytes out;
        bool nextIsB = false;
        for (int piece = 0; piece < 3; ++piece)
            appendDop(channels, 2, SND_PCM_FORMAT_S24_3LE, nextIsB, out);
        // Frames of two channels x 3 bytes; the marker is the last byte of each word.
        QCOMPARE(out.size(), std::size_t(18));
        const std::uint8_t markers[] = {out[2], out[5], out[8], out[11], out[14], out[17]};
        const std::uint8_t expected[] = {0x05, 0x05, 0xFA, 0xFA, 0x05, 0x05};
        QVERIFY(std::equal(std::begin(markers), std::end(markers), std::begin(expected)));
    }

    void pcm_data()
    {
        QTest::addColumn<snd_pcm_format_t>("format");
        QTest::addColumn<double>("value");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("S16_LE half") << SND_PCM_FORMAT_S16_LE << 0.5 << QByteArray::fromHex("0040");
        QTest::newRow("S16_LE clipped high") << SND_PCM_FORMAT_S16_LE << 1.5 << QByteArray::fromHex("ff7f");
        QTest::newRow("S16_LE full negative") << SND_PCM_FORMAT_S16_LE << -1.0 << QByteArray::fromHex("0080");
        QTest::newRow("S24_3LE quarter") << SND_PCM_FORMAT_S24_3LE << 0.25 << QByteArray::fromHex("000020");
        QTest::newRow("S24_LE negative, sign-extended") << SND_PCM_FORMAT_S24_LE << -0.25
                                                        << QByteArray::fromHex("0000e0ff");
        QTest::newRow("S32_LE full scale clipped") << SND_PCM_FORMAT_S32_LE << 1.0 << QByteArray::fromHex("ffffff7f");
        QTest::newRow("S32_BE half") << SND_PCM_FORMAT_S32_BE << 0.5 << QByteArray::fromHex("40000000");
        QTest::newRow("FLOAT_LE half") << SND_PCM_FORMAT_FLOAT_LE << 0.5 << QByteArray::fromHex("0000003f");
    }

    void pcm()
    {
        QFETCH(snd_pcm_format_t, format);
        QFETCH(double, value);
        QFETCH(QByteArray, expected);
        Bytes out;
        appendPcm({{value}}, 1, format, out);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(out.data()), qsizetype(out.size())), expected);
    }
};

QTEST_GUILESS_MAIN(TestSamplePacking)
#include "tst_sample_packing.moc"
