// Interpolation-chain designs, judged by the spectrum of what they output,
// and the validation of nonsense options.
#include "dsp/dsd_pipeline.h"
#include "spectrum_check.h"

#include <QtTest>

using namespace zuvo::dsp;
using zuvo_test::sine;
using zuvo_test::spectrumOf;

class TstDspDesign : public QObject {
    Q_OBJECT

    static std::shared_ptr<const ForwardDesign> make(ForwardConfig c, std::string* err = nullptr)
    {
        std::string e;
        auto d = designForward(c, &e);
        if (err)
            *err = e;
        else if (!d)
            qWarning("design failed: %s", e.c_str());
        return d;
    }

    // Level of a tone after interpolation relative to the input tone, and
    // the strongest image anywhere above the input's Nyquist frequency.
    static void measureChain(const ForwardDesign& d, int inRate, double hz, double& gainDb, double& imageDb)
    {
        const double a = 0.5;
        const auto in = sine(hz, inRate, a, std::size_t(inRate * 0.45));
        const auto out = interpolateOnly(d, in.data(), in.size());
        const auto sp = spectrumOf(out, dsdRateHz(d));
        const double level = sp.toneDb(hz);
        gainDb = level - 20 * std::log10(a * summary(d).appliedGain);
        // Images of the tone: everything from the first image band up,
        // compared bin by bin with the tone's own peak bin.
        const double peak = sp.peakBinDb(hz);
        imageDb = sp.maxBinDb(inRate / 2.0 + 100, dsdRateHz(d) / 2.0 - 100) - peak;
    }

private slots:
    void defaultChainIsFlatAndRejectsImages()
    {
        ForwardConfig c;
        auto d = make(c);
        QVERIFY(d);
        const auto& s = summary(*d);
        QVERIFY2(s.passbandRippleDb < 0.01, s.text.c_str());
        QVERIFY2(s.stopbandAttenuationDb > 150, s.text.c_str());
        for (double hz : {40.0, 997.0, 10000.0, 19900.0}) {
            double g, img;
            measureChain(*d, 44100, hz, g, img);
            QVERIFY2(std::abs(g) < 0.01, qPrintable(QString("%1 Hz: gain %2 dB").arg(hz).arg(g)));
            QVERIFY2(img < -150, qPrintable(QString("%1 Hz: image %2 dB").arg(hz).arg(img)));
        }
    }

    void family48kLandsOnTheDsdGrid()
    {
        ForwardConfig c;
        c.inputRate = 48000;
        auto d = make(c);
        QVERIFY(d);
        double g, img;
        measureChain(*d, 48000, 997, g, img);
        QVERIFY2(std::abs(g) < 0.01, qPrintable(QString("gain %1 dB").arg(g)));
        QVERIFY2(img < -150, qPrintable(QString("image %1 dB").arg(img)));
        QVERIFY2(summary(*d).stopbandAttenuationDb > 150, summary(*d).text.c_str());
    }

    void higherRatesAndInputs()
    {
        for (auto [rate, mult] : {std::pair{96000, 128}, std::pair{88200, 256}, std::pair{192000, 64}}) {
            ForwardConfig c;
            c.inputRate = rate;
            c.dsdMultiple = mult;
            auto d = make(c);
            QVERIFY(d);
            QCOMPARE(dsdRateHz(*d), mult * 44100);
            QVERIFY2(summary(*d).passbandRippleDb < 0.01, summary(*d).text.c_str());
            QVERIFY2(summary(*d).stopbandAttenuationDb > 150, summary(*d).text.c_str());
        }
    }

    void filterOptionsShapeTheResponse_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("minAttenuation");
        QTest::newRow("kaiser beta 12") << "kaiser12" << 100.0;
        QTest::newRow("blackman") << "blackman" << 70.0;
        QTest::newRow("hamming") << "hamming" << 45.0;
        QTest::newRow("hanning") << "hanning" << 40.0;
        QTest::newRow("bartlett") << "bartlett" << 20.0;
        QTest::newRow("flattop") << "flattop" << 70.0;
        QTest::newRow("remez") << "remez" << 130.0;
        QTest::newRow("minphase") << "minphase" << 130.0;
        QTest::newRow("slow") << "slow" << 150.0;
    }
    void filterOptionsShapeTheResponse()
    {
        QFETCH(QString, name);
        QFETCH(double, minAttenuation);
        ForwardConfig c;
        if (name == "kaiser12") {
            c.fir.windowType = "kaiser";
            c.fir.beta = 12;
        } else if (name == "remez") {
            c.fir.algorithm = FilterAlgorithm::Remez;
        } else if (name == "minphase") {
            c.fir.minimumPhase = true;
        } else if (name == "slow") {
            c.fir.slowRollOff = true;
        } else {
            c.fir.windowType = name.toStdString();
        }
        auto d = make(c);
        QVERIFY(d);
        double g, img;
        measureChain(*d, 44100, 997, g, img);
        // Pre-distortion keeps even the soft windows flat at 1 kHz.
        QVERIFY2(std::abs(g) < 0.05, qPrintable(QString("gain %1 dB").arg(g)));
        QVERIFY2(img < -minAttenuation, qPrintable(QString("image %1 dB\n").arg(img) + summary(*d).text.c_str()));
        QVERIFY2(summary(*d).stopbandAttenuationDb > minAttenuation, summary(*d).text.c_str());
    }

    void slowRollOffDroopsAtTheBandEdge()
    {
        ForwardConfig c;
        c.fir.slowRollOff = true;
        auto d = make(c);
        QVERIFY(d);
        double g, img;
        measureChain(*d, 44100, 19000, g, img);
        QVERIFY2(g < -0.5, qPrintable(QString("slow filter at 19 kHz: %1 dB").arg(g)));
    }

    void predistortionFlattensTheChain()
    {
        // The top interpolation stages droop by a few hundredths of a dB at
        // 20 kHz; pre-distortion folds the inverse into the first stage.
        ForwardConfig c;
        auto on = make(c);
        c.predistortion = false;
        auto off = make(c);
        QVERIFY(on && off);
        QVERIFY2(summary(*on).passbandRippleDb < 0.001, summary(*on).text.c_str());
        QVERIFY2(summary(*off).passbandRippleDb > 0.01, summary(*off).text.c_str());
        double gOn, gOff, img;
        measureChain(*on, 44100, 19000, gOn, img);
        measureChain(*off, 44100, 19000, gOff, img);
        QVERIFY2(std::abs(gOn) < 0.002, qPrintable(QString("with pre-distortion: %1 dB").arg(gOn)));
        QVERIFY2(gOff < -0.02, qPrintable(QString("without: %1 dB").arg(gOff)));
    }

    void predistortionIncludesTheSignalTransfer()
    {
        // The CIFB modulator's signal transfer lifts the top of the band by
        // about 0.015 dB; its chain is pre-compensated by that much more.
        ForwardConfig c;
        auto sos = make(c);
        c.modulator.type = ModulatorType::Cifb;
        c.modulator.order = 7;
        auto cifb = make(c);
        QVERIFY(sos && cifb);
        QVERIFY2(summary(*cifb).passbandRippleDb < 0.001, summary(*cifb).text.c_str());
        double gSos, gCifb, img;
        measureChain(*sos, 44100, 19000, gSos, img);
        measureChain(*cifb, 44100, 19000, gCifb, img);
        QVERIFY2(gCifb < gSos - 0.005, qPrintable(QString("cifb %1 dB, sos-ef %2 dB").arg(gCifb).arg(gSos)));
    }

    void remezRejectsLengthsItCannotDesign()
    {
        ForwardConfig c;
        c.fir.algorithm = FilterAlgorithm::Remez;
        c.fir.taps = 901;
        std::string err;
        auto d = make(c, &err);
        QVERIFY(!d);
        QVERIFY2(err.find("Remez") != std::string::npos, err.c_str());
    }

    void explicitGainIsApplied()
    {
        ForwardConfig c;
        c.gain = 0.25;
        auto d = make(c);
        QVERIFY(d);
        QCOMPARE(summary(*d).appliedGain, 0.25);
        double g, img;
        measureChain(*d, 44100, 997, g, img);
        QVERIFY(std::abs(g) < 0.01);
    }

    void badConfigsAreRejected_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QString>("needle");
        QTest::newRow("taps 100") << 0 << "taps";
        QTest::newRow("stop below pass") << 1 << "stop-band";
        QTest::newRow("unknown window") << 2 << "window";
        QTest::newRow("rate 100") << 3 << "oversampling";
        QTest::newRow("rate 96") << 4 << "oversampling";
        QTest::newRow("input 22050") << 5 << "input rate";
        QTest::newRow("gain negative") << 6 << "gain";
        QTest::newRow("order 20") << 7 << "order";
        QTest::newRow("mash") << 8 << "MASH";
        QTest::newRow("attenuation 5") << 9 << "stopgain";
        QTest::newRow("beta 99") << 10 << "beta";
        QTest::newRow("stop above input") << 11 << "stop-band";
        QTest::newRow("remez too long") << 12 << "Remez";
    }
    void badConfigsAreRejected()
    {
        QFETCH(int, which);
        QFETCH(QString, needle);
        ForwardConfig c;
        switch (which) {
        case 0: c.fir.taps = 100; break;
        case 1: c.fir.passbandHz = 20000; c.fir.stopbandHz = 19000; break;
        case 2: c.fir.windowType = "gaussian"; break;
        case 3: c.dsdMultiple = 100; break;
        case 4: c.dsdMultiple = 96; break;
        case 5: c.inputRate = 22050; break;
        case 6: c.gain = -1; break;
        case 7: c.modulator.type = ModulatorType::SingleLoop; c.modulator.order = 20; break;
        case 8: c.modulator.type = ModulatorType::Mash; break;
        case 9: c.fir.stopbandAttenuationDb = 5; break;
        case 10: c.fir.beta = 99; break;
        case 11: c.fir.stopbandHz = 50000; break;
        case 12: c.fir.algorithm = FilterAlgorithm::Remez; c.fir.taps = 20001; break;
        }
        std::string err;
        auto d = make(c, &err);
        QVERIFY(!d);
        QVERIFY2(QString::fromStdString(err).contains(needle, Qt::CaseInsensitive), err.c_str());
    }
};

QTEST_GUILESS_MAIN(TstDspDesign)
#include "tst_dsp_design.moc"
