// The spectral denoiser as a streaming block: transform exactness, latency,
// measured SNR gains, musical-noise residue, harmonic protection, block-size
// independence and finite output.
#include <QtTest>

#include <cmath>
#include <string>

#include "spectral_measure.h"

using namespace spectral_measure;
using zuvo::restore::SpectralConfig;
using zuvo::restore::SpectralDenoiser;
using Mode = SpectralConfig::Mode;

namespace {

constexpr double kFs = 44100.0;

SpectralConfig config(Mode m, bool keep = false, double floorDb = -15.0, double frameMs = 32.0)
{
    SpectralConfig c;
    c.mode = m;
    c.keepHarmonics = keep;
    c.floorDb = floorDb;
    c.frameMs = frameMs;
    c.reduceDb = 12.0;
    return c;
}

SpectralDenoiser make(const SpectralConfig& c, int channels = 1, double fs = kFs)
{
    SpectralDenoiser d;
    std::string error;
    const bool ok = d.configure(c, channels, fs, error);
    if (!ok)
        qFatal("configure failed: %s", error.c_str());
    return d;
}

std::vector<double> toneInNoise(std::size_t n, std::uint64_t seed)
{
    std::vector<double> x = whiteNoise(n, -50.0, seed);
    addSine(x, 1000.0, -20.0 + 3.0103, kFs); // -20 dBFS RMS
    return x;
}

std::vector<double> harmonicTone(std::size_t n)
{
    std::vector<double> x = whiteNoise(n, -50.0, 7);
    for (int h = 1; h <= 10; ++h)
        addSine(x, 220.0 * h, -20.0 - 5.0 * (h - 1), kFs, 0.3 * h);
    return x;
}

} // namespace

class TestSpectralDenoiser : public QObject {
    Q_OBJECT
private slots:
    void unityGainReconstructsDelayedInput_data();
    void unityGainReconstructsDelayedInput();
    void latencyIsOneFrameAtEveryRate_data();
    void latencyIsOneFrameAtEveryRate();
    void tiersImproveSnr_data();
    void tiersImproveSnr();
    void noiseOnlyLeavesNoTonalResidue_data();
    void noiseOnlyLeavesNoTonalResidue();
    void keepHarmonicsHoldsPartials();
    void digitalSilenceBeforeNoiseDoesNotBlindTheFloor();
    void blockSizeDoesNotChangeOutput_data();
    void blockSizeDoesNotChangeOutput();
    void silenceStaysSilentAndFinite();
    void nonFiniteFramePassesWithoutPoisoning();
    void configureRefusesBadSetups_data();
    void configureRefusesBadSetups();
};

void TestSpectralDenoiser::unityGainReconstructsDelayedInput_data()
{
    QTest::addColumn<double>("frameMs");
    QTest::addColumn<double>("fs");
    QTest::newRow("32 ms at 44.1 kHz") << 32.0 << 44100.0;
    QTest::newRow("10 ms at 48 kHz") << 10.0 << 48000.0;
    QTest::newRow("100 ms at 96 kHz") << 100.0 << 96000.0;
}

void TestSpectralDenoiser::unityGainReconstructsDelayedInput()
{
    QFETCH(double, frameMs);
    QFETCH(double, fs);
    // A 0 dB floor holds every gain at 1: only the transform is left.
    SpectralDenoiser d = make(config(Mode::Wiener, false, 0.0, frameMs), 2, fs);
    const std::size_t n = static_cast<std::size_t>(fs); // 1 s
    std::vector<double> a = whiteNoise(n, -10.0, 11), b = whiteNoise(n, -3.0, 12);
    addSine(a, 440.0, -6.0, fs);
    const auto y = runAligned(d, {a, b}, 1000);
    double worst = 0;
    for (std::size_t i = 0; i < n; ++i)
        worst = std::max({worst, std::fabs(y[0][i] - a[i]), std::fabs(y[1][i] - b[i])});
    QVERIFY2(worst < 1e-9, qPrintable(QString("largest difference %1").arg(worst)));
}

void TestSpectralDenoiser::latencyIsOneFrameAtEveryRate_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("fs");
    QTest::addColumn<int>("frame");
    // Frames: the nearest multiple of 4 made of 2s, 3s and 5s.
    QTest::newRow("wiener 44.1k") << int(Mode::Wiener) << 44100.0 << 1440;
    QTest::newRow("wiener 48k") << int(Mode::Wiener) << 48000.0 << 1536;
    QTest::newRow("light 44.1k") << int(Mode::Light) << 44100.0 << 2048;
    QTest::newRow("deep 96k") << int(Mode::Deep) << 96000.0 << 4500;
    QTest::newRow("reduce 8k") << int(Mode::Reduce) << 8000.0 << 360;
}

void TestSpectralDenoiser::latencyIsOneFrameAtEveryRate()
{
    QFETCH(int, mode);
    QFETCH(double, fs);
    QFETCH(int, frame);
    SpectralDenoiser d = make(config(Mode(mode), false, 0.0), 1, fs);
    QCOMPARE(d.latency(), d.frameLength());
    QCOMPARE(int(d.latency()), frame);
    QVERIFY(QString::fromStdString(d.description()).contains(QString("latency %1 samples").arg(frame)));
    // At unity gain a click comes out exactly latency() samples later,
    // wherever it falls in the frame.
    if (Mode(mode) == Mode::Wiener) {
        for (std::size_t at : {std::size_t(0), std::size_t(1), d.latency() / 4 - 1, std::size_t(5000)}) {
            SpectralDenoiser u = make(config(Mode::Wiener, false, 0.0), 1, fs);
            std::vector<std::vector<double>> x(1, std::vector<double>(at + 3 * u.latency(), 0.0));
            x[0][at] = 1.0;
            u.process(x, x[0].size());
            const auto peak = std::max_element(x[0].begin(), x[0].end(),
                                               [](double p, double q) { return std::fabs(p) < std::fabs(q); });
            QCOMPARE(std::size_t(peak - x[0].begin()), at + u.latency());
            QVERIFY(std::fabs(*peak - 1.0) < 1e-12);
        }
    }
}

void TestSpectralDenoiser::tiersImproveSnr_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<double>("atLeastDb");
    // Measured over 6 s (bench/spectral_bench): light 11.5, standard 16.3,
    // deep 19.5, Wiener 12.9 dB. The bounds leave room for the shorter run.
    QTest::newRow("light") << int(Mode::Light) << false << 10.5;
    QTest::newRow("standard") << int(Mode::Standard) << false << 15.0;
    QTest::newRow("deep") << int(Mode::Deep) << false << 18.0;
    QTest::newRow("wiener") << int(Mode::Wiener) << false << 11.5;
    QTest::newRow("standard, keep harmonics") << int(Mode::Standard) << true << 15.0;
    QTest::newRow("reduce 12 dB") << int(Mode::Reduce) << false << 10.5;
}

void TestSpectralDenoiser::tiersImproveSnr()
{
    QFETCH(int, mode);
    QFETCH(bool, keep);
    QFETCH(double, atLeastDb);
    const std::size_t n = static_cast<std::size_t>(4 * kFs), from = static_cast<std::size_t>(2 * kFs);
    const std::vector<double> x = toneInNoise(n, 21);
    SpectralDenoiser d = make(config(Mode(mode), keep));
    const auto y = runAligned(d, {x}, 4096)[0];
    const double before = snrDb(x, 1000.0, kFs, from, n), after = snrDb(y, 1000.0, kFs, from, n);
    qInfo("SNR %.2f -> %.2f dB (%+.2f)", before, after, after - before);
    QVERIFY(std::fabs(before - 30.0) < 0.5); // the signal is what it claims to be
    QVERIFY2(after - before >= atLeastDb,
             qPrintable(QString("SNR %1 -> %2 dB (+%3)").arg(before).arg(after).arg(after - before)));
    // The tone itself keeps its level.
    const double level = fitSine(y, 1000.0, kFs, from, n).amplitude / fitSine(x, 1000.0, kFs, from, n).amplitude;
    QVERIFY(std::fabs(20.0 * std::log10(level)) < 0.2);
}

void TestSpectralDenoiser::noiseOnlyLeavesNoTonalResidue_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<bool>("pink");
    QTest::newRow("light") << int(Mode::Light) << false << false;
    QTest::newRow("standard") << int(Mode::Standard) << false << false;
    QTest::newRow("deep") << int(Mode::Deep) << false << false;
    QTest::newRow("wiener") << int(Mode::Wiener) << false << false;
    QTest::newRow("standard, keep harmonics") << int(Mode::Standard) << true << false;
    QTest::newRow("deep, keep harmonics") << int(Mode::Deep) << true << false;
    QTest::newRow("standard, pink noise") << int(Mode::Standard) << false << true;
    QTest::newRow("deep, keep harmonics, pink noise") << int(Mode::Deep) << true << true;
}

void TestSpectralDenoiser::noiseOnlyLeavesNoTonalResidue()
{
    QFETCH(int, mode);
    QFETCH(bool, keep);
    QFETCH(bool, pink);
    const std::size_t n = static_cast<std::size_t>(5 * kFs);
    const std::vector<double> x = pink ? pinkNoise(n, -50.0, 32) : whiteNoise(n, -50.0, 31);
    SpectralDenoiser d = make(config(Mode(mode), keep));
    const auto y = runAligned(d, {x}, 777)[0];
    const Residue r = musicalResidue(d, x, y, kFs, static_cast<std::size_t>(2 * kFs));
    qInfo("residue: per frame %.1f dBFS, averaged %.1f dBFS", r.framePeakDb, r.averagePeakDb);
    QVERIFY2(r.framePeakDb < -90.0, qPrintable(QString("per-frame residue %1 dBFS").arg(r.framePeakDb)));
    QVERIFY2(r.averagePeakDb < -90.0, qPrintable(QString("averaged residue %1 dBFS").arg(r.averagePeakDb)));
    // And the noise really went down to about the floor (not muted, not kept).
    double in = 0, out = 0;
    for (std::size_t i = n / 2; i < n; ++i) {
        in += x[i] * x[i];
        out += y[i] * y[i];
    }
    const double dropDb = 10.0 * std::log10(out / in);
    const double floorDb = 20.0 * std::log10(d.floorGain(1000.0));
    QVERIFY2(dropDb < floorDb + 1.0 && dropDb > -31.0, qPrintable(QString("noise %1 dB").arg(dropDb)));
}

void TestSpectralDenoiser::keepHarmonicsHoldsPartials()
{
    const std::size_t n = static_cast<std::size_t>(5 * kFs), from = static_cast<std::size_t>(2 * kFs);
    const std::vector<double> x = harmonicTone(n);
    auto partialChange = [&](bool keep, int h) {
        SpectralDenoiser d = make(config(Mode::Standard, keep));
        const auto y = runAligned(d, {x}, 4096)[0];
        return 20.0 * std::log10(fitSine(y, 220.0 * h, kFs, from, n).amplitude / dbToAmp(-20.0 - 5.0 * (h - 1)));
    };
    for (int h = 1; h <= 10; ++h) {
        const double kept = partialChange(true, h);
        QVERIFY2(std::fabs(kept) < 0.5, qPrintable(QString("harmonic %1 with protection: %2 dB").arg(h).arg(kept)));
    }
    // Without protection the weakest partials lose level.
    QVERIFY2(partialChange(false, 10) < -1.0, "the plain tier is expected to attenuate the 10th harmonic");
    QVERIFY2(partialChange(false, 9) < -0.7, "the plain tier is expected to attenuate the 9th harmonic");
}

void TestSpectralDenoiser::digitalSilenceBeforeNoiseDoesNotBlindTheFloor()
{
    // A track that starts with 1 s of digital silence: the noise after it is
    // turned down within half a second, not only once the silence has left
    // the 1.5 s window.
    const std::size_t n = static_cast<std::size_t>(3 * kFs), start = static_cast<std::size_t>(kFs);
    std::vector<double> x = whiteNoise(n, -50.0, 61);
    std::fill(x.begin(), x.begin() + static_cast<std::ptrdiff_t>(start), 0.0);
    SpectralDenoiser d = make(config(Mode::Standard));
    const auto y = runAligned(d, {x}, 4096)[0];
    double in = 0, out = 0;
    for (std::size_t i = start + static_cast<std::size_t>(0.5 * kFs); i < start + static_cast<std::size_t>(1.5 * kFs); ++i) {
        in += x[i] * x[i];
        out += y[i] * y[i];
    }
    const double dropDb = 10.0 * std::log10(out / in);
    qInfo("noise 0.5-1.5 s after the silence: %.2f dB", dropDb);
    QVERIFY2(dropDb < -15.0, qPrintable(QString("noise after the silence: %1 dB").arg(dropDb)));
    for (std::size_t i = 0; i < start - d.latency(); ++i)
        QCOMPARE(y[i], 0.0);
}

void TestSpectralDenoiser::blockSizeDoesNotChangeOutput_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("keep");
    QTest::newRow("deep, keep harmonics") << int(Mode::Deep) << true;
    QTest::newRow("wiener") << int(Mode::Wiener) << false;
}

void TestSpectralDenoiser::blockSizeDoesNotChangeOutput()
{
    QFETCH(int, mode);
    QFETCH(bool, keep);
    const std::size_t n = static_cast<std::size_t>(1.5 * kFs);
    const std::vector<std::vector<double>> x = {toneInNoise(n, 41), harmonicTone(n)};
    SpectralDenoiser whole = make(config(Mode(mode), keep), 2);
    const auto ref = runAligned(whole, x, n + whole.latency());
    for (std::size_t block : {std::size_t(1), std::size_t(7), std::size_t(333), std::size_t(1441), std::size_t(65536)}) {
        SpectralDenoiser d = make(config(Mode(mode), keep), 2);
        const auto y = runAligned(d, x, block);
        for (std::size_t c = 0; c < 2; ++c)
            QVERIFY2(y[c] == ref[c], qPrintable(QString("block %1, channel %2 differs").arg(block).arg(c)));
    }
}

void TestSpectralDenoiser::silenceStaysSilentAndFinite()
{
    for (Mode m : {Mode::Light, Mode::Standard, Mode::Deep, Mode::Wiener, Mode::Reduce}) {
        SpectralDenoiser d = make(config(m, true), 2);
        std::vector<std::vector<double>> x(2, std::vector<double>(static_cast<std::size_t>(kFs), 0.0));
        d.process(x, x[0].size());
        for (const auto& ch : x)
            for (double v : ch)
                QCOMPARE(v, 0.0);
        // Denormal-sized and full-scale square input right after silence.
        std::vector<std::vector<double>> t(2, std::vector<double>(static_cast<std::size_t>(kFs)));
        for (std::size_t i = 0; i < t[0].size(); ++i) {
            t[0][i] = (i % 2 ? 1.0 : -1.0) * 1e-310;
            t[1][i] = (i / 50) % 2 ? 1.0 : -1.0;
        }
        d.process(t, t[0].size());
        for (const auto& ch : t)
            for (double v : ch)
                QVERIFY(std::isfinite(v));
    }
}

void TestSpectralDenoiser::nonFiniteFramePassesWithoutPoisoning()
{
    SpectralDenoiser d = make(config(Mode::Standard, true));
    const std::size_t n = static_cast<std::size_t>(3 * kFs);
    std::vector<double> x = toneInNoise(n, 51);
    x[10000] = std::nan("");
    x[10001] = HUGE_VAL;
    const auto y = runAligned(d, {x}, 512)[0];
    // Only the frames that held the bad samples are affected.
    for (std::size_t i = 10001 + d.latency(); i < n; ++i)
        QVERIFY2(std::isfinite(y[i]), qPrintable(QString("sample %1").arg(i)));
    for (std::size_t i = 0; i + d.latency() < 10000; ++i)
        QVERIFY(std::isfinite(y[i]));
}

void TestSpectralDenoiser::configureRefusesBadSetups_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("floorDb");
    QTest::addColumn<double>("frameMs");
    QTest::addColumn<double>("reduceDb");
    QTest::addColumn<int>("channels");
    QTest::addColumn<double>("fs");
    QTest::newRow("no channels") << int(Mode::Light) << -15.0 << 32.0 << 12.0 << 0 << 44100.0;
    QTest::newRow("rate 0") << int(Mode::Light) << -15.0 << 32.0 << 12.0 << 2 << 0.0;
    QTest::newRow("rate NaN") << int(Mode::Light) << -15.0 << 32.0 << 12.0 << 2 << std::nan("");
    QTest::newRow("frame 1 ms") << int(Mode::Wiener) << -15.0 << 1.0 << 12.0 << 2 << 44100.0;
    QTest::newRow("floor +3 dB") << int(Mode::Wiener) << 3.0 << 32.0 << 12.0 << 2 << 44100.0;
    QTest::newRow("floor -80 dB") << int(Mode::Wiener) << -80.0 << 32.0 << 12.0 << 2 << 44100.0;
    QTest::newRow("reduce 0 dB") << int(Mode::Reduce) << -15.0 << 32.0 << 0.0 << 2 << 44100.0;
    QTest::newRow("reduce 90 dB") << int(Mode::Reduce) << -15.0 << 32.0 << 90.0 << 2 << 44100.0;
}

void TestSpectralDenoiser::configureRefusesBadSetups()
{
    QFETCH(int, mode);
    QFETCH(double, floorDb);
    QFETCH(double, frameMs);
    QFETCH(double, reduceDb);
    QFETCH(int, channels);
    QFETCH(double, fs);
    SpectralConfig c = config(Mode(mode), false, floorDb, frameMs);
    c.reduceDb = reduceDb;
    SpectralDenoiser d;
    std::string error;
    QVERIFY(!d.configure(c, channels, fs, error));
    QVERIFY(!error.empty());
    QCOMPARE(d.latency(), std::size_t(0));
    QCOMPARE(QString::fromStdString(d.description()), QString("Spectral denoise: not configured"));
    // A refused set-up leaves nothing half-built behind.
    std::vector<std::vector<double>> x(2, std::vector<double>(100, 0.5));
    d.process(x, 100);
    QCOMPARE(x[0][99], 0.5);
}

QTEST_APPLESS_MAIN(TestSpectralDenoiser)
#include "tst_spectral_denoiser.moc"
