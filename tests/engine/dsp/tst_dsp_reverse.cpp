// The reverse path (DSD -> PCM) and the PCM resampler.
#include "dsp/dsd_pipeline.h"
#include "spectrum_check.h"

#include <QtTest>

using namespace zuvo::dsp;
using zuvo_test::sine;
using zuvo_test::spectrumOf;

class TstDspReverse : public QObject {
    Q_OBJECT
private slots:
    void roundTripMatchesTheInput_data()
    {
        QTest::addColumn<int>("mult");
        QTest::addColumn<int>("outRate");
        QTest::newRow("DSD64 -> 44.1k") << 64 << 44100;
        QTest::newRow("DSD64 -> default") << 64 << 0;
        QTest::newRow("DSD128 -> 88.2k") << 128 << 88200;
        QTest::newRow("DSD64 -> 48k") << 64 << 48000;
    }
    void roundTripMatchesTheInput()
    {
        QFETCH(int, mult);
        QFETCH(int, outRate);
        ForwardConfig fc;
        fc.dsdMultiple = mult;
        std::string err;
        auto d = designForward(fc, &err);
        QVERIFY2(d, err.c_str());
        const std::size_t n = 44100 * 3 / 10;
        const auto x = sine(997, 44100, 0.5, n);
        ChannelEncoder enc(d);
        std::vector<std::uint8_t> dsd;
        enc.process(x.data(), n, dsd);
        enc.finish(dsd);

        ReverseConfig rc;
        rc.dsdRate = dsdRateHz(*d);
        rc.outputRate = outRate;
        // Compare in the audio band: above it the round trip carries the
        // modulator's shaped noise, which the default low-pass keeps.
        rc.lowpassHz = 20000;
        ChannelDecimator dec(rc, &err);
        QVERIFY2(dec.valid(), err.c_str());
        const int rate = dec.outputRate();
        QCOMPARE(rate, outRate ? outRate : reverseDefaultRate(rc.dsdRate));
        std::vector<double> y;
        dec.process(dsd.data(), dsd.size(), y);
        dec.finish(y);
        QCOMPARE(y.size(), std::size_t(std::llround(double(dsd.size()) * 8 * rate / rc.dsdRate)));

        // Compare with the input (resampled analytically) away from the
        // edges, after undoing the forward gain.
        const double g = summary(*d).appliedGain;
        double err2 = 0, sig2 = 0;
        const std::size_t a = std::size_t(rate * 0.05), b = y.size() - std::size_t(rate * 0.05);
        for (std::size_t i = a; i < b; ++i) {
            const double ref = 0.5 * std::sin(2 * M_PI * 997 * double(i) / rate);
            err2 += (y[i] / g - ref) * (y[i] / g - ref);
            sig2 += ref * ref;
        }
        const double errDb = 10 * std::log10(err2 / sig2);
        qInfo("round trip error %.1f dB", errDb);
        QVERIFY2(errDb < -100, qPrintable(QString("round-trip error %1 dB").arg(errDb)));
    }

    void decimatorRejectsBadConfigs()
    {
        std::string err;
        ReverseConfig rc;
        rc.dsdRate = 1000000;
        QVERIFY(!ChannelDecimator(rc, &err).valid());
        QVERIFY(!err.empty());
        rc = {};
        rc.outputRate = 12345;
        err.clear();
        QVERIFY(!ChannelDecimator(rc, &err).valid());
        QVERIFY(!err.empty());
        rc = {};
        rc.outputRate = 44100;
        rc.lowpassHz = 30000; // above Nyquist
        err.clear();
        QVERIFY(!ChannelDecimator(rc, &err).valid());
        QVERIFY2(err.find("low-pass") != std::string::npos, err.c_str());
    }

    void resampler48kTo44k1KeepsToneAndLevel()
    {
        std::string err;
        ChannelResampler r(48000, 44100, &err);
        QVERIFY2(r.valid(), err.c_str());
        const std::size_t n = 48000;
        const auto x = sine(1000, 48000, 0.5, n);
        std::vector<double> y;
        r.process(x.data(), n / 3, y);
        r.process(x.data() + n / 3, n - n / 3, y);
        r.finish(y);
        QCOMPARE(y.size(), std::size_t(44100));
        const auto sp = spectrumOf(std::vector<double>(y.begin() + 4000, y.end()), 44100);
        std::size_t kMax = 1;
        for (std::size_t k = 1; k < sp.p.size(); ++k)
            if (sp.p[k] > sp.p[kMax])
                kMax = k;
        QVERIFY2(std::abs(kMax * sp.df - 1000) < 2 * sp.df, qPrintable(QString("peak at %1 Hz").arg(kMax * sp.df)));
        const double level = sp.toneDb(1000);
        QVERIFY2(std::abs(level - 20 * std::log10(0.5)) < 0.01, qPrintable(QString("level %1 dB").arg(level)));
        // Nothing else above -140 dB (aliases, images).
        const double other = std::max(sp.maxBinDb(20, 900), sp.maxBinDb(1100, 22000)) - sp.peakBinDb(1000);
        QVERIFY2(other < -140, qPrintable(QString("spurious %1 dB").arg(other)));
    }

    void resamplerToDxdIsAligned()
    {
        std::string err;
        ChannelResampler r(44100, 352800, &err);
        QVERIFY2(r.valid(), err.c_str());
        const auto x = sine(997, 44100, 0.5, 44100 / 4);
        std::vector<double> y;
        r.process(x.data(), x.size(), y);
        r.finish(y);
        QCOMPARE(y.size(), x.size() * 8);
        double e2 = 0, s2 = 0;
        for (std::size_t i = 352800 / 50; i < y.size() - 352800 / 50; ++i) {
            const double ref = 0.5 * std::sin(2 * M_PI * 997 * double(i) / 352800);
            e2 += (y[i] - ref) * (y[i] - ref);
            s2 += ref * ref;
        }
        QVERIFY2(10 * std::log10(e2 / s2) < -120, qPrintable(QString("error %1 dB").arg(10 * std::log10(e2 / s2))));
        QVERIFY(!ChannelResampler(44100, 12345, &err).valid());
        QVERIFY(!err.empty());
    }
};

QTEST_GUILESS_MAIN(TstDspReverse)
#include "tst_dsp_reverse.moc"
