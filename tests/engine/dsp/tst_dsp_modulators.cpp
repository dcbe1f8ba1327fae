// Each modulator judged by an FFT of its 1-bit output on short synthetic
// tones. The floors here are loose on purpose (short signals); the quality
// figures live in the benchmark.
#include "dsp/dsd_pipeline.h"
#include "spectrum_check.h"

#include <QtTest>

#include <limits>

using namespace zuvo::dsp;
using zuvo_test::analyseTone;
using zuvo_test::sine;
using zuvo_test::unpackMsbFirst;

namespace {
struct Encoded {
    std::vector<std::uint8_t> bytes;
    ChannelEncoder::Stats stats;
};

Encoded encode(std::shared_ptr<const ForwardDesign> d, const std::vector<double>& in)
{
    Encoded e;
    ChannelEncoder enc(d);
    enc.process(in.data(), in.size(), e.bytes);
    enc.finish(e.bytes);
    e.stats = enc.stats();
    return e;
}

ForwardConfig config(ModulatorType t, int order, int mult = 64)
{
    ForwardConfig c;
    c.dsdMultiple = mult;
    c.modulator.type = t;
    c.modulator.order = order;
    return c;
}
} // namespace

class TstDspModulators : public QObject {
    Q_OBJECT
private slots:
    void toneIsCleanInBand_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("order");
        QTest::addColumn<int>("mult");
        QTest::newRow("sos-ef default") << int(ModulatorType::SosEf) << 0 << 64;
        QTest::newRow("sos-ef 6") << int(ModulatorType::SosEf) << 6 << 64;
        QTest::newRow("order 5") << int(ModulatorType::SingleLoop) << 5 << 64;
        QTest::newRow("order 7") << int(ModulatorType::SingleLoop) << 7 << 64;
        QTest::newRow("order 9") << int(ModulatorType::SingleLoop) << 9 << 64;
        QTest::newRow("cifb 5") << int(ModulatorType::Cifb) << 5 << 64;
        QTest::newRow("cifb 7") << int(ModulatorType::Cifb) << 7 << 64;
        QTest::newRow("sos-ef DSD128") << int(ModulatorType::SosEf) << 0 << 128;
    }
    void toneIsCleanInBand()
    {
        QFETCH(int, type);
        QFETCH(int, order);
        QFETCH(int, mult);
        std::string err;
        auto d = designForward(config(ModulatorType(type), order, mult), &err);
        QVERIFY2(d, err.c_str());
        const auto in = sine(997, 44100, std::pow(10.0, -6 / 20.0), 44100 * 3 / 10);
        const auto e = encode(d, in);
        QCOMPARE(e.bytes.size(), std::size_t((in.size() * mult + 7) / 8));
        QCOMPARE(e.stats.overloads, std::uint64_t(0));
        const auto r = analyseTone(unpackMsbFirst(e.bytes), dsdRateHz(*d), 997);
        const double expected = -6 + 20 * std::log10(summary(*d).appliedGain);
        QVERIFY2(std::abs(r.signalDb - expected) < 0.05, qPrintable(QString("level %1 vs %2").arg(r.signalDb).arg(expected)));
        QVERIFY2(std::abs(r.toneHz - 997) < 6, qPrintable(QString("tone at %1 Hz").arg(r.toneHz)));
        const double floor = order != 0 && order < 6 ? 95 : 110;
        QVERIFY2(r.snrDb > floor, qPrintable(QString("SNR %1 dB\n").arg(r.snrDb) + summary(*d).text.c_str()));
        qInfo("%s: SNR %.1f dB, THD+N %.1f dB, 20-50 kHz noise %.1f dBFS", QTest::currentDataTag(), r.snrDb, r.thdnDb,
              r.bandNoiseDb);
    }

    void stableJustBelowTheDocumentedLimit_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("order");
        QTest::newRow("sos-ef") << int(ModulatorType::SosEf) << 0;
        QTest::newRow("order 9") << int(ModulatorType::SingleLoop) << 9;
        QTest::newRow("cifb 7") << int(ModulatorType::Cifb) << 7;
    }
    void stableJustBelowTheDocumentedLimit()
    {
        QFETCH(int, type);
        QFETCH(int, order);
        auto c = config(ModulatorType(type), order);
        c.gain = 1.0; // the input goes straight to the modulator
        std::string err;
        auto d = designForward(c, &err);
        QVERIFY2(d, err.c_str());
        const double limitDb = summary(*d).modulatorMaxStableDbfs;
        QVERIFY(limitDb < 0 && limitDb > -12);
        for (double hz : {997.0, 5000.0}) {
            const auto in = sine(hz, 44100, std::pow(10.0, (limitDb - 0.5) / 20), 44100 / 2);
            const auto e = encode(d, in);
            QVERIFY2(e.stats.overloads == 0,
                     qPrintable(QString("%1 overloads at %2 dBFS, %3 Hz").arg(e.stats.overloads).arg(limitDb - 0.5).arg(hz)));
            const auto r = analyseTone(unpackMsbFirst(e.bytes), dsdRateHz(*d), hz);
            QVERIFY2(r.snrDb > 100, qPrintable(QString("SNR %1 dB near the limit").arg(r.snrDb)));
        }
    }

    void automaticGainKeepsFullScaleStable()
    {
        std::string err;
        auto d = designForward(ForwardConfig{}, &err);
        QVERIFY(d);
        QVERIFY(summary(*d).maxStableInputDbfs > 0);
        const auto in = sine(997, 44100, 1.0, 44100 / 2); // 0 dBFS
        const auto e = encode(d, in);
        QCOMPARE(e.stats.overloads, std::uint64_t(0));
        QCOMPARE(e.stats.resets, std::uint64_t(0));
        QVERIFY(std::abs(e.stats.peakInput - summary(*d).appliedGain) < 1e-3);
    }

    void hotInputRecoversWithoutBurst_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("order");
        QTest::newRow("sos-ef") << int(ModulatorType::SosEf) << 0;
        QTest::newRow("order 9") << int(ModulatorType::SingleLoop) << 9;
        QTest::newRow("cifb 7") << int(ModulatorType::Cifb) << 7;
    }
    void hotInputRecoversWithoutBurst()
    {
        QFETCH(int, type);
        QFETCH(int, order);
        auto c = config(ModulatorType(type), order);
        c.gain = 1.0;
        std::string err;
        auto d = designForward(c, &err);
        QVERIFY2(d, err.c_str());
        // 50 ms far beyond the limit (a full-scale square-ish burst), then
        // a quiet tone.
        std::vector<double> in = sine(200, 44100, 1.0, 44100 / 20);
        for (double& v : in)
            v = v > 0 ? 1.0 : -1.0;
        const auto quiet = sine(997, 44100, 0.1, 44100 * 4 / 10);
        ChannelEncoder enc(d);
        std::vector<std::uint8_t> hot, rest;
        enc.process(in.data(), in.size(), hot);
        const auto afterHot = enc.stats();
        QVERIFY2(afterHot.overloads > 0, "a hot input must be detected");
        enc.process(quiet.data(), quiet.size(), rest);
        enc.finish(rest);
        const auto s = enc.stats();
        // The chain's delay carries a few ms of the hot signal into the
        // second call; after that no more overloads.
        const auto tail = std::vector<std::uint8_t>(rest.end() - std::ptrdiff_t(rest.size() / 2), rest.end());
        const auto r = analyseTone(unpackMsbFirst(tail), dsdRateHz(*d), 997);
        QVERIFY2(r.snrDb > 100, qPrintable(QString("SNR %1 dB after the overload (overloads %2, resets %3)")
                                               .arg(r.snrDb).arg(s.overloads).arg(s.resets)));
        QVERIFY2(s.overloads - afterHot.overloads < 2000,
                 qPrintable(QString("%1 overloads in the quiet part").arg(s.overloads - afterHot.overloads)));
        // No sustained burst: the quiet half's bit density follows the tone.
        double mean = 0;
        for (auto b : tail)
            mean += __builtin_popcount(b);
        mean = mean / (tail.size() * 8.0);
        QVERIFY2(std::abs(mean - 0.5) < 0.01, qPrintable(QString("bit density %1").arg(mean)));
    }

    void nonFiniteStateIsReset_data() { hotInputRecoversWithoutBurst_data(); }
    void nonFiniteStateIsReset()
    {
        // A NaN that reaches the modulator (past the input's own repair)
        // poisons its state; comparisons with NaN are false, so no clip
        // test fires and the output would stay one value for good.
        QFETCH(int, type);
        QFETCH(int, order);
        std::string err;
        auto d = designForward(config(ModulatorType(type), order), &err);
        QVERIFY2(d, err.c_str());
        std::vector<double> in = sine(997, 44100, 0.3, 44100 * 4 / 10);
        in[4410] = std::numeric_limits<double>::quiet_NaN();
        in[8820] = std::numeric_limits<double>::infinity();
        const auto e = encode(d, in);
        QVERIFY2(e.stats.nonFiniteResets >= 1, "the dead state must be detected");
        QCOMPARE(e.stats.resets >= e.stats.nonFiniteResets, true);
        // The last quarter (from 0.1 s after the infinity) is a clean tone
        // with no DC: the loop came back.
        const auto tail = std::vector<std::uint8_t>(e.bytes.end() - std::ptrdiff_t(e.bytes.size() / 4), e.bytes.end());
        double mean = 0;
        for (auto b : tail)
            mean += __builtin_popcount(b);
        mean = mean / (tail.size() * 8.0);
        QVERIFY2(std::abs(mean - 0.5) < 0.01, qPrintable(QString("bit density %1 (resets %2, of which non-finite %3)")
                                                          .arg(mean).arg(e.stats.resets).arg(e.stats.nonFiniteResets)));
        const auto r = analyseTone(unpackMsbFirst(tail), dsdRateHz(*d), 997);
        QVERIFY2(r.snrDb > 90, qPrintable(QString("SNR %1 dB after the NaN").arg(r.snrDb)));
    }

    void mashIsRefusedWithAReason()
    {
        std::string err;
        auto d = designForward(config(ModulatorType::Mash, 0), &err);
        QVERIFY(!d);
        QVERIFY2(err.find("MASH") != std::string::npos && err.find("1-bit") != std::string::npos, err.c_str());
    }

    void finishPadsWithIdlePattern()
    {
        std::string err;
        auto d = designForward(ForwardConfig{}, &err);
        QVERIFY(d);
        ChannelEncoder enc(d);
        std::vector<std::uint8_t> out;
        std::vector<double> in(3, 0.0); // 3 x 64 bits = 24 bytes exactly
        enc.process(in.data(), in.size(), out);
        enc.finish(out);
        QCOMPARE(out.size(), std::size_t(24));
        ForwardConfig c48;
        c48.inputRate = 48000;
        auto d48 = designForward(c48, &err);
        QVERIFY(d48);
        ChannelEncoder e48(d48);
        std::vector<std::uint8_t> o48;
        std::vector<double> one(1, 0.0); // 58.8 bits -> 59 bits -> 8 bytes
        e48.process(one.data(), one.size(), o48);
        e48.finish(o48);
        QCOMPARE(o48.size(), std::size_t(8));
        // The last 5 bits are padding from the idle pattern 0x69 (positions 3..7).
        QCOMPARE(o48.back() & 0x1f, 0x69 & 0x1f);
    }
};

QTEST_GUILESS_MAIN(TstDspModulators)
#include "tst_dsp_modulators.moc"
