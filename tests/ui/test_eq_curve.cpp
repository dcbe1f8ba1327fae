// The equaliser curve against the textbook response of each band, computed
// here on its own (real arithmetic, no shared code), in all five width units,
// near Nyquist, at zero gain and for very narrow and very wide bands.
#include <QtTest>
#include <cmath>

#include "eq_curve_model.h"
#include "eq_curve_widget.h"

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kFs = 44100.0;

double qOf(const EqBand& b)
{
    const double w0 = 2 * kPi * b.centerFreq / kFs;
    const double A = std::pow(10.0, b.gainDB / 40.0);
    switch (b.bwType) {
    case 'h': return b.centerFreq / b.bandwidth;
    case 'k': return b.centerFreq / (1000.0 * b.bandwidth);
    case 'o': return 1.0 / (2.0 * std::sinh(std::log(2.0) / 2.0 * b.bandwidth * w0 / std::sin(w0)));
    case 's': return 1.0 / std::sqrt((A + 1.0 / A) * (1.0 / b.bandwidth - 1.0) + 2.0);
    default: return b.bandwidth;
    }
}

// |H(e^jw)| of the RBJ cookbook section, numerator and denominator evaluated
// as real and imaginary parts.
double expectedDb(const EqBand& b, int kind /*0 low shelf, 1 peak, 2 high shelf*/, double hz)
{
    const double A = std::pow(10.0, b.gainDB / 40.0);
    const double w0 = 2 * kPi * b.centerFreq / kFs;
    const double c = std::cos(w0), al = std::sin(w0) / (2 * qOf(b)), sq = 2 * std::sqrt(A) * al;
    double b0, b1, b2, a0, a1, a2;
    if (kind == 1) {
        b0 = 1 + al * A; b1 = -2 * c; b2 = 1 - al * A; a0 = 1 + al / A; a1 = -2 * c; a2 = 1 - al / A;
    } else if (kind == 0) {
        b0 = A * ((A + 1) - (A - 1) * c + sq); b1 = 2 * A * ((A - 1) - (A + 1) * c);
        b2 = A * ((A + 1) - (A - 1) * c - sq); a0 = (A + 1) + (A - 1) * c + sq;
        a1 = -2 * ((A - 1) + (A + 1) * c); a2 = (A + 1) + (A - 1) * c - sq;
    } else {
        b0 = A * ((A + 1) + (A - 1) * c + sq); b1 = -2 * A * ((A - 1) + (A + 1) * c);
        b2 = A * ((A + 1) + (A - 1) * c - sq); a0 = (A + 1) - (A - 1) * c + sq;
        a1 = 2 * ((A - 1) - (A + 1) * c); a2 = (A + 1) - (A - 1) * c - sq;
    }
    const double w = 2 * kPi * hz / kFs;
    const double nr = b0 + b1 * std::cos(w) + b2 * std::cos(2 * w), ni = -b1 * std::sin(w) - b2 * std::sin(2 * w);
    const double dr = a0 + a1 * std::cos(w) + a2 * std::cos(2 * w), di = -a1 * std::sin(w) - a2 * std::sin(2 * w);
    return 10 * std::log10((nr * nr + ni * ni) / (dr * dr + di * di));
}

} // namespace

class TestEqCurve : public QObject {
    Q_OBJECT

private slots:
    void bandsMatchTheClosedForm_data()
    {
        QTest::addColumn<double>("freq");
        QTest::addColumn<double>("gain");
        QTest::addColumn<double>("width");
        QTest::addColumn<QChar>("unit");
        QTest::newRow("Q 1") << 1000.0 << 6.0 << 1.0 << QChar('q');
        QTest::newRow("Hz width") << 2500.0 << -9.0 << 400.0 << QChar('h');
        QTest::newRow("kHz width") << 8000.0 << 4.5 << 2.0 << QChar('k');
        QTest::newRow("octaves") << 500.0 << 3.0 << 1.0 << QChar('o');
        QTest::newRow("wide octaves") << 300.0 << -6.0 << 4.0 << QChar('o');
        QTest::newRow("slope") << 120.0 << 8.0 << 0.8 << QChar('s');
        QTest::newRow("very narrow") << 3000.0 << 12.0 << 200.0 << QChar('q');
        QTest::newRow("very wide") << 1000.0 << 5.0 << 0.05 << QChar('q');
        QTest::newRow("near Nyquist") << 20500.0 << 6.0 << 2.0 << QChar('q');
        QTest::newRow("zero gain") << 1000.0 << 0.0 << 3.0 << QChar('q');
        QTest::newRow("zero gain, slope") << 1000.0 << 0.0 << 1.0 << QChar('s');
        QTest::newRow("octaves near Nyquist") << 18000.0 << -5.0 << 1.0 << QChar('o');
        QTest::newRow("slope near Nyquist") << 19000.0 << 6.0 << 1.0 << QChar('s');
        QTest::newRow("Hz near Nyquist") << 21000.0 << 3.0 << 1000.0 << QChar('h');
    }
    void bandsMatchTheClosedForm()
    {
        QFETCH(double, freq);
        QFETCH(double, gain);
        QFETCH(double, width);
        QFETCH(QChar, unit);
        const EqBand band{freq, gain, width, char(unit.toLatin1())};
        // Three lists: the band as the first (low shelf), a middle (peak)
        // and the last of ten (high shelf).
        const EqBand filler{50.0, 0.0, 1.0, 'q'};
        const QList<QList<EqBand>> lists = {{band}, {filler, band, filler}, QList<EqBand>(9, filler) << band};
        const int kinds[] = {0, 1, 2};
        const int index[] = {0, 1, 9};
        for (int l = 0; l < 3; ++l) {
            for (double hz : {20.0, 97.0, freq * 0.9, freq, freq * 1.1, 11025.0, 19999.0, 21500.0}) {
                const double got = eqBandDb(lists[l], index[l], hz);
                const double want = expectedDb(band, kinds[l], hz);
                QVERIFY2(std::abs(got - want) < 1e-6,
                         qPrintable(QStringLiteral("list %1 at %2 Hz: %3 vs %4").arg(l).arg(hz).arg(got).arg(want)));
                if (gain == 0.0)
                    QVERIFY(std::abs(got) < 1e-9);
            }
        }
    }

    // A centre above 0.49 fs is designed at 0.49 fs, so a band set for a
    // higher input rate still gives a stable filter at the preview rate.
    void centreAboveTheLimitIsClamped()
    {
        const QList<EqBand> bands = {{30000, 6, 2, 'q'}};
        const EqBand atLimit{0.49 * kFs, 6, 2, 'q'};
        for (double hz : {1000.0, 15000.0, 21000.0})
            QVERIFY(std::abs(eqBandDb(bands, 0, hz) - expectedDb(atLimit, 0, hz)) < 1e-6);
    }

    void curveSumsBandsAndPrecut()
    {
        const QList<EqBand> bands = {{300, 6, 1, 'q'}, {1000, 3, 1, 'o'}, {6000, -4, 0.707, 'q'}};
        const EqCurve c = computeEqCurve(bands, -2.5, 200);
        QCOMPARE(c.bandDb.size(), 3);
        QVERIFY(c.freqs.size() >= 200);
        QVERIFY(std::is_sorted(c.freqs.begin(), c.freqs.end()));
        QCOMPARE(c.freqs.first(), 20.0);
        QVERIFY(std::abs(c.freqs.last() - 20000.0) < 1e-6);
        for (int i = 0; i < c.freqs.size(); i += 17) {
            const double f = c.freqs[i];
            const double want = -2.5 + expectedDb(bands[0], 0, f) + expectedDb(bands[1], 1, f)
                                + expectedDb(bands[2], 1, f);
            QVERIFY(std::abs(c.sumDb[i] - want) < 1e-6);
        }
    }

    // A band far narrower than a pixel column still shows its full peak.
    void narrowPeakIsSampledAtItsCentre()
    {
        const QList<EqBand> bands = {{100, 0, 1, 'q'}, {3333, 10, 400, 'q'}};
        const EqCurve c = computeEqCurve(bands, 0, 64);
        const double top = *std::max_element(c.sumDb.begin(), c.sumDb.end());
        QVERIFY(std::abs(top - 10.0) < 1e-6);
    }

    void widgetFollowsBandsSwitchAndPrecut()
    {
        EqCurveWidget w;
        w.resize(400, 200);
        w.setBands({{1000, 6, 1, 'q'}});
        w.setPrecutDb(-3);
        w.setEqEnabled(true);
        QVERIFY(w.eqEnabled());
        const EqCurve& c = w.curve();
        const int at = int(std::find(c.freqs.begin(), c.freqs.end(), 1000.0) - c.freqs.begin());
        QVERIFY(at < c.freqs.size());
        QVERIFY(std::abs(c.sumDb[at] - (-3 + expectedDb({1000, 6, 1, 'q'}, 0, 1000))) < 1e-9);
        QImage image(w.size(), QImage::Format_ARGB32);
        w.render(&image); // paints without a window system's help
        QVERIFY(!image.isNull());
    }
};

QTEST_MAIN(TestEqCurve)
#include "test_eq_curve.moc"
