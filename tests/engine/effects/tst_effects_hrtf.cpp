// The HRTF stage's partitioned FFT convolution against a direct time-domain
// convolution of the impulse responses that libmysofa gives for the
// documented directions, on noise, in blocks of awkward sizes.
#include <QtTest>

#include <cmath>
#include <complex>
#include <mysofa.h>

#include "effects/hrtf_stage.h"

using namespace zuvo::effects;

namespace {

constexpr double kFs = 48000;
constexpr std::size_t kFrames = 48000;

std::vector<double> noise(unsigned seed)
{
    std::vector<double> x(kFrames);
    std::uint64_t s = seed;
    for (double& v : x) {
        s = s * 6364136223846793005ULL + 1442695040888963407ULL;
        v = (static_cast<double>(s >> 11) / 9007199254740992.0 - 0.5) * 0.5;
    }
    return x;
}

struct Ir {
    std::vector<double> l, r;
};

// Straight from libmysofa, without the engine's loader, at the documented
// level: the frontal power response over kNormLowHz..kNormHighHz, both
// ears, is 0 dB.
Ir fetch(MYSOFA_EASY* easy, int length, double az, double el, double scale = 1.0)
{
    float c[3] = {float(az), float(el), 1.0f};
    mysofa_s2c(c);
    std::vector<float> l(length), r(length);
    float dl = 0, dr = 0;
    mysofa_getfilter_float(easy, c[0], c[1], c[2], l.data(), r.data(), &dl, &dr);
    Ir ir;
    ir.l.assign(std::size_t(std::lround(dl * kFs)), 0.0);
    ir.r.assign(std::size_t(std::lround(dr * kFs)), 0.0);
    for (float v : l)
        ir.l.push_back(scale * v);
    for (float v : r)
        ir.r.push_back(scale * v);
    return ir;
}

double levelScale(MYSOFA_EASY* easy, int length, double fs)
{
    const Ir front = fetch(easy, length, 0, 0);
    const std::size_t n = 1 << 16;
    double power = 0;
    int bins = 0;
    for (std::size_t k = std::size_t(std::ceil(kNormLowHz * n / fs)); double(k) * fs / n <= kNormHighHz; ++k, ++bins)
        for (const auto* h : {&front.l, &front.r}) {
            std::complex<double> acc = 0;
            for (std::size_t t = 0; t < h->size(); ++t)
                acc += (*h)[t] * std::polar(1.0, -2 * M_PI * double(k * t % n) / double(n));
            power += std::norm(acc);
        }
    return 1.0 / std::sqrt(power / (2 * bins));
}

std::vector<double> convolve(const std::vector<double>& x, const std::vector<double>& h)
{
    std::vector<double> y(x.size(), 0.0);
    for (std::size_t n = 0; n < x.size(); ++n) {
        double acc = 0;
        const std::size_t m = std::min(h.size(), n + 1);
        for (std::size_t k = 0; k < m; ++k)
            acc += h[k] * x[n - k];
        y[n] = acc;
    }
    return y;
}

} // namespace

class TestEffectsHrtf : public QObject {
    Q_OBJECT
private slots:
    void matchesDirectConvolution_data();
    void matchesDirectConvolution();
    void levelDoesNotDependOnRate();
    void refusesBadSets();
};

void TestEffectsHrtf::levelDoesNotDependOnRate()
{
    // The frontal response at 1 kHz, left ear, at three input rates.
    double at1k[3];
    const double rates[3] = {44100, 96000, 384000};
    for (int i = 0; i < 3; ++i) {
        HrtfSet set;
        std::string error;
        QVERIFY2(set.open(kDefaultSofaPath, rates[i], error), error.c_str());
        const Hrir h = set.at(0, 0);
        std::complex<double> acc = 0;
        for (std::size_t t = 0; t < h.left.size(); ++t)
            acc += h.left[t] * std::polar(1.0, -2 * M_PI * 1000.0 * double(t) / rates[i]);
        at1k[i] = 20 * std::log10(std::abs(acc));
    }
    qInfo("frontal 1 kHz: %.2f dB at 44.1 kHz, %.2f dB at 96 kHz, %.2f dB at 384 kHz", at1k[0], at1k[1], at1k[2]);
    QVERIFY(std::fabs(at1k[1] - at1k[0]) < 0.5);
    QVERIFY(std::fabs(at1k[2] - at1k[0]) < 0.5);
}

void TestEffectsHrtf::matchesDirectConvolution_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("mix");
    QTest::addColumn<double>("side");
    QTest::addColumn<double>("depth");
    QTest::newRow("stereo, front") << int(HrtfMode::Stereo) << 1.0 << 1.0 << 1.0;
    QTest::newRow("stereo, side mix 0.7, depth 0.5") << int(HrtfMode::Stereo) << 1.0 << 0.7 << 0.5;
    QTest::newRow("ms, mix 0.6, behind") << int(HrtfMode::MidSide) << 0.6 << 0.8 << -0.3;
    QTest::newRow("mono, at the ears") << int(HrtfMode::Mono) << 1.0 << 1.0 << 0.0;
}

void TestEffectsHrtf::matchesDirectConvolution()
{
    QFETCH(int, mode);
    QFETCH(double, mix);
    QFETCH(double, side);
    QFETCH(double, depth);
    const auto m = HrtfMode(mode);

    HrtfSet set;
    std::string error;
    QVERIFY2(set.open(kDefaultSofaPath, kFs, error), error.c_str());
    HrtfStage stage(2, kFs, set, m, mix, side, depth);

    const std::vector<double> l = noise(1), r = noise(2);
    Planar out(2);
    for (std::size_t at = 0, step = 0; at < kFrames; ++step) {
        static const std::size_t sizes[] = {1000, 37, 4096, 255, 256, 1};
        const std::size_t n = std::min(sizes[step % 6], kFrames - at);
        Planar block{{l.begin() + long(at), l.begin() + long(at + n)}, {r.begin() + long(at), r.begin() + long(at + n)}};
        stage.process(block, n);
        for (int c = 0; c < 2; ++c)
            out[c].insert(out[c].end(), block[c].begin(), block[c].end());
        at += n;
    }

    // Reference: the documented geometry and source mix, convolved directly.
    int length = 0, err = 0;
    MYSOFA_EASY* easy = mysofa_open_no_norm(kDefaultSofaPath, float(kFs), &length, &err);
    QVERIFY(easy && err == MYSOFA_OK);
    const double scale = levelScale(easy, length, kFs);
    const double a = 30 + 60 * (1 - depth);
    const double cAz = depth >= 0 ? 0 : 180, cEl = 90 * (1 - std::fabs(depth));
    std::vector<double> mid(kFrames), sid(kFrames);
    for (std::size_t n = 0; n < kFrames; ++n) {
        mid[n] = 0.5 * (l[n] + r[n]);
        sid[n] = 0.5 * (l[n] - r[n]);
    }
    std::vector<double> earL(kFrames, 0.0), earR(kFrames, 0.0);
    auto add = [&](const std::vector<double>& src, const Ir& ir, double g) {
        const auto yl = convolve(src, ir.l), yr = convolve(src, ir.r);
        for (std::size_t n = 0; n < kFrames; ++n) {
            earL[n] += g * yl[n];
            earR[n] += g * yr[n];
        }
    };
    const Ir left = fetch(easy, length, a, 0, scale), right = fetch(easy, length, -a, 0, scale),
             centre = fetch(easy, length, cAz, cEl, scale);
    mysofa_close(easy);
    if (m == HrtfMode::Stereo) {
        std::vector<double> s0(kFrames), s1(kFrames);
        for (std::size_t n = 0; n < kFrames; ++n) {
            s0[n] = mid[n] + side * sid[n];
            s1[n] = mid[n] - side * sid[n];
        }
        add(s0, left, 1);
        add(s1, right, 1);
    } else {
        add(mid, centre, 1);
        if (m == HrtfMode::MidSide) {
            add(sid, left, side);
            add(sid, right, -side);
        }
    }
    const std::size_t delay = stage.latency();
    QCOMPARE(delay, kHrtfBlock);
    double errEnergy = 0, refEnergy = 0;
    for (std::size_t n = 0; n + delay < kFrames; ++n) {
        const double wantL = (1 - mix) * l[n] + mix * earL[n], wantR = (1 - mix) * r[n] + mix * earR[n];
        errEnergy += std::pow(out[0][n + delay] - wantL, 2) + std::pow(out[1][n + delay] - wantR, 2);
        refEnergy += wantL * wantL + wantR * wantR;
    }
    // The first block holds the latency's silence.
    for (std::size_t n = 0; n < delay; ++n)
        QCOMPARE(out[0][n], 0.0);
    const double db = 10 * std::log10(errEnergy / refEnergy);
    qInfo("difference from direct convolution: %.1f dB", db);
    QVERIFY2(db < -100, qPrintable(QString::number(db)));
}

void TestEffectsHrtf::refusesBadSets()
{
    HrtfSet set;
    std::string error;
    QVERIFY(!set.open("/nonexistent/set.sofa", kFs, error));
    QVERIFY(error.find("/nonexistent/set.sofa") != std::string::npos);
    QTemporaryFile junk;
    QVERIFY(junk.open());
    junk.write(QByteArray(4096, 'x'));
    junk.flush();
    error.clear();
    QVERIFY(!set.open(junk.fileName().toStdString(), kFs, error));
    QVERIFY(error.find("SOFA") != std::string::npos);
}

QTEST_GUILESS_MAIN(TestEffectsHrtf)
#include "tst_effects_hrtf.moc"
