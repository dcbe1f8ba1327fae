// The spectrogram against a direct evaluation of its definition (plain DFT
// per column), its palette and level scale, its limits, and a pure tone
// landing on the row of its frequency.
#include <QtTest>
#include <atomic>
#include <cmath>
#include <numbers>
#include <random>

#include "fft_radix2.h"
#include "plot_axes.h"
#include "spectrogram.h"

namespace {

std::vector<float> sine(double hz, double rate, std::size_t n, double amplitude = 0.5)
{
    std::vector<float> s(n);
    for (std::size_t i = 0; i < n; ++i)
        s[i] = float(amplitude * std::sin(2.0 * std::numbers::pi * hz * double(i) / rate));
    return s;
}

// The definition, evaluated directly: Hann-windowed frames, DFT magnitudes,
// three-bin row averages, levels relative to the loudest bin anywhere.
QImage referenceImage(const std::vector<float>& x, double rate)
{
    const int N = 2048;
    const int columns = int(std::min<std::size_t>(x.size() / 512, 2048));
    std::vector<double> c(N), s(N);
    for (int m = 0; m < N; ++m) {
        c[std::size_t(m)] = std::cos(2.0 * std::numbers::pi * m / N);
        s[std::size_t(m)] = std::sin(2.0 * std::numbers::pi * m / N);
    }
    std::vector<std::vector<double>> mags(std::size_t(columns), std::vector<double>(1024));
    double largest = 1e-12;
    for (int col = 0; col < columns; ++col) {
        std::vector<double> frame(N);
        for (int i = 0; i < N; ++i) {
            const std::size_t at = std::size_t(col) * 512 + std::size_t(i);
            const double w = 0.5 * (1.0 - std::cos(2.0 * std::numbers::pi * i / (N - 1)));
            frame[std::size_t(i)] = at < x.size() ? x[at] * w : 0.0;
        }
        for (int k = 0; k < 1024; ++k) {
            double re = 0, im = 0;
            for (int n = 0; n < N; ++n) {
                const std::size_t m = std::size_t((n * k) % N);
                re += frame[std::size_t(n)] * c[m];
                im -= frame[std::size_t(n)] * s[m];
            }
            mags[std::size_t(col)][std::size_t(k)] = std::sqrt(re * re + im * im);
            largest = std::max(largest, mags[std::size_t(col)][std::size_t(k)]);
        }
    }
    QImage img(columns, 220, QImage::Format_RGB32);
    for (int r = 0; r < 220; ++r) {
        const double f = 20.0 * std::pow((rate / 2.0) / 20.0, r / 219.0);
        const int k = int(f * 2047.0 / rate);
        const int lo = std::max(k - 1, 1), hi = std::min(k + 1, 1023);
        for (int col = 0; col < columns; ++col) {
            double sum = 0;
            for (int b = lo; b <= hi; ++b)
                sum += mags[std::size_t(col)][std::size_t(b)];
            img.setPixel(col, 219 - r, pv::paletteColour(pv::levelOf(sum / (hi - lo + 1) / largest)));
        }
    }
    return img;
}

int channelDistance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

// Level of a pixel, found by searching the palette for its colour.
double levelOfColour(QRgb px)
{
    double best = 0.0;
    int bestDistance = 1000;
    for (int i = 0; i <= 2000; ++i) {
        const double u = i / 2000.0;
        const int d = channelDistance(px, pv::paletteColour(u));
        if (d < bestDistance) {
            bestDistance = d;
            best = u;
        }
    }
    return best;
}

} // namespace

class TestSpectrogram : public QObject {
    Q_OBJECT

private slots:
    void fftMatchesTheDefinition()
    {
        std::mt19937 rng(7);
        std::uniform_real_distribution<double> dist(-1.0, 1.0);
        const int n = 2048;
        std::vector<double> re(n), im(n);
        for (int i = 0; i < n; ++i) {
            re[std::size_t(i)] = dist(rng);
            im[std::size_t(i)] = dist(rng);
        }
        const std::vector<double> r0 = re, i0 = im;
        pv::Radix2Fft(n).transform(re.data(), im.data());
        double worst = 0.0;
        for (int k = 0; k < n; k += 37) {
            double sr = 0, si = 0;
            for (int t = 0; t < n; ++t) {
                const double a = -2.0 * std::numbers::pi * double((std::int64_t(t) * k) % n) / n;
                sr += r0[std::size_t(t)] * std::cos(a) - i0[std::size_t(t)] * std::sin(a);
                si += r0[std::size_t(t)] * std::sin(a) + i0[std::size_t(t)] * std::cos(a);
            }
            worst = std::max({worst, std::fabs(sr - re[std::size_t(k)]), std::fabs(si - im[std::size_t(k)])});
        }
        QVERIFY2(worst < 1e-9, qPrintable(QString::number(worst)));
    }

    void imageMatchesTheDefinition_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("rate");
        QTest::newRow("odd number of columns, zero-padded tail") << 4700 << 44100.0;
        QTest::newRow("even number of columns") << 6144 << 96000.0;
        QTest::newRow("low rate: rows above the bins") << 4096 << 8000.0;
    }
    void imageMatchesTheDefinition()
    {
        QFETCH(int, count);
        QFETCH(double, rate);
        std::mt19937 rng(11);
        std::normal_distribution<float> noise(0.0f, 0.01f);
        std::vector<float> x = sine(3000.0, rate, std::size_t(count), 0.3);
        const std::vector<float> low = sine(150.0, rate, std::size_t(count), 0.05);
        for (std::size_t i = 0; i < x.size(); ++i)
            x[i] += low[i] + noise(rng);
        const pv::Spectrogram got = pv::computeSpectrogram(x.data(), x.size(), rate);
        const QImage want = referenceImage(x, rate);
        QCOMPARE(got.columns, count / 512);
        QCOMPARE(got.image.size(), want.size());
        QCOMPARE(got.image.format(), QImage::Format_RGB32);
        int worst = 0;
        for (int y = 0; y < want.height(); ++y)
            for (int c = 0; c < want.width(); ++c)
                worst = std::max(worst, channelDistance(got.image.pixel(c, y), want.pixel(c, y)));
        QVERIFY2(worst <= 1, qPrintable(QString::number(worst)));
    }

    void sizeLimits_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("rate");
        QTest::addColumn<int>("columns");
        QTest::newRow("2047 samples") << 2047 << 48000.0 << 0;
        QTest::newRow("2048 samples") << 2048 << 48000.0 << 4;
        QTest::newRow("2559 samples") << 2559 << 48000.0 << 4;
        QTest::newRow("2560 samples") << 2560 << 48000.0 << 5;
        QTest::newRow("capped at 2048 columns") << 2048 * 512 + 5000 << 48000.0 << 2048;
        QTest::newRow("rate 0") << 8192 << 0.0 << 0;
        QTest::newRow("negative rate") << 8192 << -1.0 << 0;
    }
    void sizeLimits()
    {
        QFETCH(int, count);
        QFETCH(double, rate);
        QFETCH(int, columns);
        const std::vector<float> x = sine(440.0, 48000.0, std::size_t(count));
        const pv::Spectrogram s = pv::computeSpectrogram(x.data(), x.size(), rate);
        QCOMPARE(s.columns, columns);
        QCOMPARE(s.image.isNull(), columns == 0);
        if (columns)
            QCOMPARE(s.image.size(), QSize(columns, 220));
    }

    void pureToneLandsOnItsRow()
    {
        const double rate = 48000.0;
        const std::vector<float> x = sine(1000.0, rate, 96000);
        const pv::Spectrogram s = pv::computeSpectrogram(x.data(), x.size(), rate);
        QCOMPARE(s.columns, 187);
        for (int c : {10, 90, 170}) {
            int bestLine = -1;
            double bestLevel = 2.0;
            for (int y = 0; y < 220; ++y) {
                const double u = levelOfColour(s.image.pixel(c, y));
                if (u < bestLevel) {
                    bestLevel = u;
                    bestLine = y;
                }
            }
            const double f = pv::rowFrequency(219 - bestLine, rate);
            QVERIFY2(std::fabs(f - 1000.0) < 1.5 * rate / 2048, qPrintable(QString::number(f)));
            QVERIFY(bestLevel < 0.08); // the three-bin mean sits a few dB under the peak bin
            // Ten kilohertz away the Hann window leaves the tone far below 60 dB down.
            const int far = 219 - int(std::lround(219.0 * std::log(10000.0 / 20.0) / std::log(24000.0 / 20.0)));
            QVERIFY(levelOfColour(s.image.pixel(c, far)) > 0.5);
        }
    }

    void silenceIsWhite()
    {
        const std::vector<float> x(4096, 0.0f);
        const pv::Spectrogram s = pv::computeSpectrogram(x.data(), x.size(), 44100.0);
        QCOMPARE(s.columns, 8);
        for (int y = 0; y < 220; ++y)
            for (int c = 0; c < 8; ++c)
                QCOMPARE(s.image.pixel(c, y), qRgb(255, 255, 255));
    }

    void cancelledComputationGivesNothing()
    {
        const std::vector<float> x = sine(440.0, 48000.0, 48000);
        std::atomic<bool> cancel{true};
        QCOMPARE(pv::computeSpectrogram(x.data(), x.size(), 48000.0, &cancel).columns, 0);
    }

    void palette_data()
    {
        QTest::addColumn<double>("level");
        QTest::addColumn<double>("r");
        QTest::addColumn<double>("g");
        QTest::addColumn<double>("b");
        QTest::newRow("loudest: navy") << 0.0 << 0.05 << 0.05 << 0.3;
        QTest::newRow("half way to blue") << 0.1 << 0.025 << 0.025 << 0.65;
        QTest::newRow("blue") << 0.2 << 0.0 << 0.0 << 1.0;
        QTest::newRow("cyan-green") << 0.5 << 0.0 << 1.0 << 0.5;
        QTest::newRow("yellow") << 0.8 << 1.0 << 1.0 << 0.0;
        QTest::newRow("orange, no white yet") << 0.9 << 1.0 << 0.6 << 0.0;
        QTest::newRow("half white") << 0.95 << 1.0 << 0.7 << 0.5;
        QTest::newRow("faintest: white") << 1.0 << 1.0 << 1.0 << 1.0;
        QTest::newRow("below range") << -0.5 << 0.05 << 0.05 << 0.3;
    }
    void palette()
    {
        QFETCH(double, level);
        QFETCH(double, r);
        QFETCH(double, g);
        QFETCH(double, b);
        const QRgb c = pv::paletteColour(level);
        QVERIFY(std::abs(qRed(c) - int(std::lround(r * 255))) <= 1);
        QVERIFY(std::abs(qGreen(c) - int(std::lround(g * 255))) <= 1);
        QVERIFY(std::abs(qBlue(c) - int(std::lround(b * 255))) <= 1);
        QCOMPARE(qAlpha(c), 255);
    }

    void levels_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("level");
        QTest::newRow("the loudest bin") << 1.0 << 0.0;
        QTest::newRow("-60 dB") << 1e-3 << 0.5;
        QTest::newRow("-120 dB") << 1e-6 << 1.0;
        QTest::newRow("below the floor") << 1e-9 << 1.0;
        QTest::newRow("zero") << 0.0 << 1.0;
        QTest::newRow("not a number") << std::nan("") << 1.0;
    }
    void levels()
    {
        QFETCH(double, value);
        QFETCH(double, level);
        QVERIFY(std::fabs(pv::levelOf(value) - level) < 1e-12);
    }

    void rowsSpanTwentyHertzToNyquist()
    {
        QCOMPARE(pv::rowFrequency(0, 48000.0), 20.0);
        QVERIFY(std::fabs(pv::rowFrequency(219, 48000.0) - 24000.0) < 1e-9);
        QVERIFY(std::fabs(pv::rowFrequency(219, 44100.0) - 22050.0) < 1e-9);
    }

    void axisMarks()
    {
        QStringList labels;
        for (const pv::Tick& t : pv::frequencyTicks(24000.0))
            labels << t.label;
        QCOMPARE(labels, (QStringList{"20", "50", "100", "200", "500", "1k", "2k", "5k", "10k", "24k"}));
        QCOMPARE(pv::frequencyTicks(22050.0).back().label, QStringLiteral("22.05k"));
        QVERIFY(std::fabs(pv::frequencyFraction(1000.0, 24000.0) - std::log(50.0) / std::log(1200.0)) < 1e-12);

        labels.clear();
        for (const pv::Tick& t : pv::timeTicks(30.0, 600))
            labels << t.label;
        QCOMPARE(labels, (QStringList{"0 s", "5 s", "10 s", "15 s", "20 s", "25 s", "30 s"}));
        labels.clear();
        for (const pv::Tick& t : pv::timeTicks(0.5, 300))
            labels << t.label;
        QCOMPARE(labels.first(), QStringLiteral("0.0 s"));
        QCOMPARE(labels.last(), QStringLiteral("0.5 s"));
        QVERIFY(pv::timeTicks(0.0, 600).empty());
    }
};

QTEST_GUILESS_MAIN(TestSpectrogram)
#include "tst_spectrogram.moc"
