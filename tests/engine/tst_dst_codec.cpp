// The DST codec on its own: the arithmetic coder, frames of every kind of
// signal and channel count through our encoder and decoder, and malformed
// frames turned into errors.
#include <QtTest>

#include <random>

#include "dst/dst_arith.h"
#include "dst/dst_decoder.h"
#include "dst/dst_encoder.h"
#include "dst/dst_filter.h"
#include "dst/dst_frame.h"
#include "dst_signals.h"

using namespace zuvo::dst;
using dsttest::Signal;

Q_DECLARE_METATYPE(dsttest::Signal)

class DstCodecTest : public QObject {
    Q_OBJECT

private slots:
    void arithmeticCoderRoundTrip_data();
    void arithmeticCoderRoundTrip();
    void frameRoundTrip_data();
    void frameRoundTrip();
    void pairEncodingMatchesSingleFrames();
    void levelsTradeSizeForTime();
    void autocorrelationOfKnownPatterns();
    void firstCoefficientIsOneOfTheAllowedValues();
    void malformedFramesAreErrors();
};

void DstCodecTest::arithmeticCoderRoundTrip_data()
{
    QTest::addColumn<int>("pLow");
    QTest::addColumn<int>("pHigh");
    QTest::addColumn<double>("onesShare");
    QTest::newRow("p=128, fair bits") << 128 << 128 << 0.5;
    QTest::newRow("p=1, rare ones") << 1 << 1 << 0.002;
    QTest::newRow("p=1, frequent ones (carries)") << 1 << 1 << 0.5;
    QTest::newRow("mixed p, skewed bits") << 1 << 128 << 0.1;
}

void DstCodecTest::arithmeticCoderRoundTrip()
{
    QFETCH(int, pLow);
    QFETCH(int, pHigh);
    QFETCH(double, onesShare);
    std::mt19937 rng(7);
    std::uniform_int_distribution<int> pd(pLow, pHigh);
    std::bernoulli_distribution bd(onesShare);
    const int n = 200000;
    std::vector<unsigned> bits(n), probs(n);
    BitWriter w;
    w.put(0x5, 3); // the code need not start on a byte boundary
    ArithEncoder enc;
    for (int i = 0; i < n; ++i) {
        bits[static_cast<std::size_t>(i)] = bd(rng) ? 1u : 0u;
        probs[static_cast<std::size_t>(i)] = static_cast<unsigned>(pd(rng));
        enc.encode(bits[static_cast<std::size_t>(i)], probs[static_cast<std::size_t>(i)]);
    }
    enc.finish(w);
    const auto& bytes = w.bytes();
    BitReader r(bytes.data(), bytes.size());
    QCOMPARE(r.get(3), 0x5u);
    ArithDecoder dec;
    QVERIFY(dec.start(r));
    int wrong = 0;
    for (int i = 0; i < n; ++i)
        wrong += dec.decode(probs[static_cast<std::size_t>(i)]) != bits[static_cast<std::size_t>(i)];
    QCOMPARE(wrong, 0);
    // The decoder reads at most one 12-bit window past what was written.
    QVERIFY(r.position() <= r.size() + kAcBits);
}

void DstCodecTest::frameRoundTrip_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("expectCoded");
    QTest::addColumn<double>("maxRatio"); // coded size / plain size
    for (Signal s : {Signal::Tone, Signal::FullScale, Signal::Silence, Signal::Noise}) {
        for (int ch : {1, 2, 6}) {
            for (int level : {1, 5, 9}) {
                if (level == 9 && ch == 6)
                    continue; // slow, and adds nothing
                const bool coded = s != Signal::Noise;
                const double ratio = s == Signal::Silence ? 0.1 : coded ? 0.9 : 1.001;
                QTest::addRow("%s, %d ch, level %d", dsttest::signalName(s), ch, level) << s << ch << level << coded << ratio;
            }
        }
    }
}

void DstCodecTest::frameRoundTrip()
{
    QFETCH(Signal, signal);
    QFETCH(int, channels);
    QFETCH(int, level);
    QFETCH(bool, expectCoded);
    QFETCH(double, maxRatio);
    const int rate = 2822400;
    const int bits = frameBits(rate);
    std::vector<std::vector<std::uint8_t>> data;
    std::vector<const std::uint8_t*> planes;
    for (int c = 0; c < channels; ++c)
        data.push_back(dsttest::dsdBytes(signal, static_cast<std::size_t>(bits / 8), c, rate));
    for (auto& d : data)
        planes.push_back(d.data());
    FrameStats stats;
    const std::vector<std::uint8_t> frame = encodeFrame(planes, bits, level, &stats);
    QCOMPARE(stats.coded, expectCoded);
    QCOMPARE(stats.bytes, frame.size());
    const double plain = static_cast<double>(bits / 8 * channels);
    QVERIFY2(frame.size() <= plain + 1, "never larger than the stored form");
    QVERIFY2(frame.size() / plain <= maxRatio, qPrintable(QString::number(frame.size() / plain)));
    std::vector<std::vector<std::uint8_t>> back;
    std::string why;
    QVERIFY2(decodeFrame(frame.data(), frame.size(), channels, bits, back, &why), why.c_str());
    QCOMPARE(back, data);
}

void DstCodecTest::pairEncodingMatchesSingleFrames()
{
    const int bits = frameBits(2822400);
    const auto a0 = dsttest::dsdBytes(Signal::Tone, static_cast<std::size_t>(bits / 8), 0);
    const auto a1 = dsttest::dsdBytes(Signal::Tone, static_cast<std::size_t>(bits / 8), 1);
    const auto b0 = dsttest::dsdBytes(Signal::Silence, static_cast<std::size_t>(bits / 8), 0);
    const auto b1 = dsttest::dsdBytes(Signal::FullScale, static_cast<std::size_t>(bits / 8), 1);
    const std::vector<const std::uint8_t*> a{a0.data(), a1.data()}, b{b0.data(), b1.data()};
    std::vector<std::uint8_t> pa, pb;
    encodeFramePair(a, b, bits, 3, pa, pb);
    QCOMPARE(pa, encodeFrame(a, bits, 3));
    QCOMPARE(pb, encodeFrame(b, bits, 3));
}

void DstCodecTest::levelsTradeSizeForTime()
{
    // Higher levels never use shorter filters or fewer trials.
    for (int level = 2; level <= 9; ++level) {
        const LevelPlan lo = planForLevel(level - 1), hi = planForLevel(level);
        QVERIFY(hi.order >= lo.order);
        QVERIFY(hi.scalings >= lo.scalings);
        QVERIFY(hi.order <= kMaxOrder);
    }
    // And on a real-looking signal the top level is smaller than the bottom one.
    const int bits = frameBits(2822400);
    const auto d = dsttest::dsdBytes(Signal::Tone, static_cast<std::size_t>(bits / 8), 0);
    const std::vector<const std::uint8_t*> p{d.data()};
    QVERIFY(encodeFrame(p, bits, 9).size() < encodeFrame(p, bits, 1).size());
}

void DstCodecTest::autocorrelationOfKnownPatterns()
{
    // Alternating bits: r(k) = (n - k) * (-1)^k.
    std::vector<std::uint8_t> alt(64, 0xAA);
    const auto r = autocorrelation(alt.data(), 512, 9);
    for (int k = 0; k <= 9; ++k)
        QCOMPARE(r[static_cast<std::size_t>(k)], (512.0 - k) * (k % 2 ? -1 : 1));
    // All ones: r(k) = n - k, and the predictor of a constant is "the last bit".
    std::vector<std::uint8_t> ones(64, 0xFF);
    const auto r1 = autocorrelation(ones.data(), 512, 4);
    QCOMPARE(r1[4], 508.0);
    const auto a = levinson(r1, 4);
    QVERIFY(a[0] > 0.9);
}

void DstCodecTest::firstCoefficientIsOneOfTheAllowedValues()
{
    const std::vector<std::vector<double>> predictors = {
        {0.8, -0.3, 0.1}, {-1.7, 0.9, -0.2, 0.05}, {0.0, 0.5, 0.5}, {-0.01, 2.0}};
    for (const auto& a : predictors) {
        for (int first : firstCoefficientChoices(a)) {
            const std::vector<int> c = quantise(a, first);
            QVERIFY(c[0] == 0 || c[0] == 128 || c[0] == -128 || c[0] == -256);
            for (int v : c)
                QVERIFY(v >= -256 && v <= 255);
        }
    }
}

void DstCodecTest::malformedFramesAreErrors()
{
    const int bits = frameBits(2822400);
    const auto d = dsttest::dsdBytes(Signal::Tone, static_cast<std::size_t>(bits / 8), 0);
    const std::vector<const std::uint8_t*> p{d.data()};
    const auto frame = encodeFrame(p, bits, 1);
    std::vector<std::vector<std::uint8_t>> out;
    std::string why;
    // Empty, cut in the header, a stored frame that is too short.
    QVERIFY(!decodeFrame(frame.data(), 0, 1, bits, out, &why));
    QVERIFY(!decodeFrame(frame.data(), 3, 1, bits, out, &why));
    QVERIFY(!why.empty());
    const std::uint8_t stored[4] = {0, 1, 2, 3};
    QVERIFY(!decodeFrame(stored, sizeof stored, 1, bits, out, &why));
    // Random garbage never crashes the decoder (errors or some bits, no more).
    std::mt19937 rng(99);
    for (int t = 0; t < 200; ++t) {
        std::vector<std::uint8_t> junk(static_cast<std::size_t>(rng() % 600 + 1));
        for (auto& b : junk)
            b = static_cast<std::uint8_t>(rng());
        junk[0] |= 0x80;
        decodeFrame(junk.data(), junk.size(), 1 + static_cast<int>(rng() % 3), bits, out, &why);
    }
}

QTEST_GUILESS_MAIN(DstCodecTest)
#include "tst_dst_codec.moc"
