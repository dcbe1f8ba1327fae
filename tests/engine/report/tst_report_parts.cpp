// The report's pure parts on their own: where the excerpts lie, what the tap
// keeps of a stream cut into arbitrary blocks, the spectrum's scale, the
// weighting curve, the file name and the number text.
#include <QtTest>

#include <clocale>
#include <cmath>
#include <random>

#include "report/number_text.h"
#include "report/report_tap.h"
#include "report/run_report.h"
#include "report/spectrum.h"

using namespace zuvo::report;

class ReportPartsTest : public QObject {
    Q_OBJECT
private slots:
    void excerptsLieInsideAndApart_data();
    void excerptsLieInsideAndApart();
    void tapKeepsExactlyTheExcerpts();
    void spectrumIntegratesToThePower();
    void aWeightingPoints();
    void reportPath_data();
    void reportPath();
    void numbersIgnoreTheLocale();
};

void ReportPartsTest::excerptsLieInsideAndApart_data()
{
    QTest::addColumn<int>("inputRate");
    QTest::addColumn<int>("dsdRate");
    QTest::addColumn<qlonglong>("total");
    QTest::addColumn<int>("expected");
    QTest::newRow("60 s, 44.1k, DSD64") << 44100 << 2822400 << 2646000LL << 4;
    QTest::newRow("60 s, 48k, DSD64") << 48000 << 2822400 << 2880000LL << 4;
    QTest::newRow("60 s, 96k, DSD256") << 96000 << 11289600 << 5760000LL << 4;
    QTest::newRow("2 s, 44.1k, DSD64") << 44100 << 2822400 << 88200LL << 2;
    QTest::newRow("0.8 s, 44.1k, DSD64") << 44100 << 2822400 << 35280LL << 1;
    QTest::newRow("0.1 s") << 44100 << 2822400 << 4410LL << 1;
    QTest::newRow("unknown length") << 44100 << 2822400 << 0LL << 1;
}

void ReportPartsTest::excerptsLieInsideAndApart()
{
    QFETCH(int, inputRate);
    QFETCH(int, dsdRate);
    QFETCH(qlonglong, total);
    QFETCH(int, expected);
    TapLayout l;
    l.inputRate = inputRate;
    l.dsdRate = dsdRate;
    l.dsdSamplesPerExcerpt = std::size_t(1) << 21; // the counts below are for this span
    const std::vector<ExcerptPlan> plan = planExcerpts(l, total);
    QCOMPARE(int(plan.size()), expected);
    const std::int64_t step = byteAlignedStep(inputRate, dsdRate);
    for (std::size_t k = 0; k < plan.size(); ++k) {
        QVERIFY(plan[k].frames > 0);
        // Whole DSD bytes at both ends.
        QCOMPARE(plan[k].start * dsdRate % (std::int64_t(inputRate) * 8), std::int64_t(0));
        QCOMPARE(plan[k].frames % step, std::int64_t(0));
        if (total > 0)
            QVERIFY(plan[k].start + plan[k].frames <= total);
        if (k > 0)
            QVERIFY(plan[k].start >= plan[k - 1].start + plan[k - 1].frames);
    }
    // Spread: the last excerpt lies in the last quarter of a long file.
    if (expected == 4)
        QVERIFY(plan.back().start > total * 3 / 4 - plan.back().frames);
}

void ReportPartsTest::tapKeepsExactlyTheExcerpts()
{
    TapLayout l; // 44.1 kHz into DSD64: 8 bytes per input frame
    const std::int64_t total = 400000;
    ReportTap tap(l, 2, total);
    std::vector<double> stream(std::size_t(total), 0);
    for (std::size_t i = 0; i < stream.size(); ++i)
        stream[i] = double(i);
    std::mt19937 rng(7);
    std::size_t pos = 0;
    std::uint8_t counter = 0;
    std::vector<std::uint8_t> allBytes;
    while (pos < stream.size()) {
        const std::size_t n = std::min<std::size_t>(stream.size() - pos, 1 + rng() % 9000);
        std::vector<std::uint8_t> bytes(n * 8);
        for (auto& b : bytes)
            b = counter++;
        allBytes.insert(allBytes.end(), bytes.begin(), bytes.end());
        for (std::size_t c = 0; c < 2; ++c) {
            tap.addSignal(c, stream.data() + pos, n);
            tap.addBytes(c, bytes);
        }
        pos += n;
    }
    QVERIFY(!tap.excerpts().empty());
    for (std::size_t k = 0; k < tap.excerpts().size(); ++k) {
        const ExcerptPlan& e = tap.excerpts()[k];
        for (std::size_t c = 0; c < 2; ++c) {
            const auto& s = tap.signal(c, k);
            QCOMPARE(std::int64_t(s.size()), e.frames);
            QCOMPARE(s.front(), double(e.start));
            QCOMPARE(s.back(), double(e.start + e.frames - 1));
            const auto& b = tap.bytes(c, k);
            QCOMPARE(std::int64_t(b.size()), e.frames * 8);
            QVERIFY(std::equal(b.begin(), b.end(), allBytes.begin() + e.start * 8));
        }
    }
}

void ReportPartsTest::spectrumIntegratesToThePower()
{
    const double rate = 48000;
    std::mt19937 rng(3);
    std::normal_distribution<double> noise(0, 0.01); // -40 dBFS mean square
    std::vector<double> x(1 << 18);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = 0.5 * std::sin(2 * M_PI * 1000 * double(i) / rate) + noise(rng);
    WelchAnalyser w(rate, 8192);
    w.add(x.data(), x.size());
    const Psd& p = w.result();
    QVERIFY(p.averages > 50);
    // The tone: 0.5^2 / 2 = -9.03 dBFS within a few bins of 1 kHz.
    QVERIFY(std::fabs(10 * std::log10(p.bandPower(900, 1100) - 1e-4 * 200 / 24000) - 10 * std::log10(0.125)) < 0.05);
    // The noise: its density integrated away from the tone.
    const double density = p.bandPower(5000, 20000) / 15000;
    QVERIFY2(std::fabs(10 * std::log10(density * 24000) - (-40)) < 0.2, qPrintable(QString::number(density)));
}

void ReportPartsTest::aWeightingPoints()
{
    // Standard values of the A curve (dB).
    const std::pair<double, double> points[] = {{1000, 0.0}, {100, -19.1}, {10000, -2.5}, {20, -50.5}};
    for (const auto& [hz, db] : points)
        QVERIFY2(std::fabs(10 * std::log10(aWeightingPower(hz)) - db) < 0.15, qPrintable(QString::number(hz)));
}

void ReportPartsTest::reportPath_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("report");
    QTest::newRow("dsf") << "/m/a.dsf" << "/m/a.report.pdf";
    QTest::newRow("dff, dotted folder") << "/m.x/b c.dff" << "/m.x/b c.report.pdf";
    QTest::newRow("no extension") << "/m.x/song" << "/m.x/song.report.pdf";
    QTest::newRow("hidden name") << "/m/.dsf" << "/m/.dsf.report.pdf";
    QTest::newRow("relative") << "out.DSF" << "out.report.pdf";
    QTest::newRow("bare hidden name") << ".dsf" << ".dsf.report.pdf";
}

void ReportPartsTest::reportPath()
{
    QFETCH(QString, output);
    QFETCH(QString, report);
    QCOMPARE(QString::fromStdString(reportPathFor(output.toStdString())), report);
}

void ReportPartsTest::numbersIgnoreTheLocale()
{
    const char* old = std::setlocale(LC_ALL, "de_DE.UTF-8");
    if (!old)
        QSKIP("de_DE.UTF-8 is not installed");
    QCOMPARE(QString::fromStdString(fixed(-151.386, 2)), QStringLiteral("-151.39"));
    QCOMPARE(QString::fromStdString(fixed(-0.001, 2)), QStringLiteral("0.00"));
    QCOMPARE(QString::fromStdString(fixed(-INFINITY, 2)), QStringLiteral("-inf"));
    QCOMPARE(QString::fromStdString(hertz(2822400)), QStringLiteral("2.82 MHz"));
    QCOMPARE(QString::fromStdString(hertz(1500)), QStringLiteral("1.5 kHz"));
    QCOMPARE(QString::fromStdString(hertz(20)), QStringLiteral("20 Hz"));
    std::setlocale(LC_ALL, "C");
}

QTEST_GUILESS_MAIN(ReportPartsTest)
#include "tst_report_parts.moc"
