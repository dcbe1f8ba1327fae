// The analysis classes on known signals: loudness of a calibrated tone,
// true peak of an inter-sample peak, dynamic range and crest factor,
// clipped samples, the loudness gain plan, ReplayGain texts, the spectrum
// verdict, user text frames in the ID3 tag, and the option parser.
#include <QtTest>

#include <clocale>
#include <cmath>
#include <random>

#include "analysis/analysis_options.h"
#include "analysis/channel_stats.h"
#include "analysis/lossy_check.h"
#include "analysis/loudness_meter.h"
#include "analysis/loudness_plan.h"
#include "analysis/number_text.h"
#include "analysis/true_peak.h"
#include "cli/options.h"
#include "io/tags.h"

using namespace zuvo;

namespace {

std::vector<std::vector<double>> sine(int channels, int rate, double seconds, double freq, double amp, double phase = 0)
{
    const auto n = static_cast<std::size_t>(seconds * rate);
    std::vector<std::vector<double>> x(static_cast<std::size_t>(channels), std::vector<double>(n));
    for (auto& ch : x)
        for (std::size_t i = 0; i < n; ++i)
            ch[i] = amp * std::sin(2 * M_PI * freq * static_cast<double>(i) / rate + phase);
    return x;
}

} // namespace

class AnalysisUnitsTest : public QObject {
    Q_OBJECT
private slots:
    void calibratedToneLoudness();
    void silenceHasNoLoudness();
    void truePeakFindsInterSamplePeak();
    void statsOfKnownSignals();
    void loudPartTakesTheLoudestFifth();
    void loudnessPlan_data();
    void loudnessPlan();
    void replayGainTexts();
    void fixedIgnoresLocale();
    void spectrumVerdict_data();
    void spectrumVerdict();
    void userTextFramesRoundTrip();
    void optionParsing_data();
    void optionParsing();
};

void AnalysisUnitsTest::calibratedToneLoudness()
{
    // A 0 dBFS 1 kHz sine in one channel reads -3.01 LUFS; in both channels
    // of a pair +3.01 dB more; at -20 dBFS therefore -20.0 LUFS.
    analysis::LoudnessMeter m(2, 48000);
    QVERIFY(m.valid());
    const double amp = std::pow(10.0, -20.0 / 20);
    auto x = sine(2, 48000, 10, 997, amp);
    m.add(x, x[0].size());
    const auto f = m.figures();
    QVERIFY2(std::fabs(f.integratedLufs + 20.0) < 0.1, qPrintable(QString::number(f.integratedLufs)));
    QVERIFY2(std::fabs(f.truePeakDbtp + 20) < 0.05, qPrintable(QString::number(f.truePeakDbtp)));
    QVERIFY(f.rangeLu < 0.1);
}

void AnalysisUnitsTest::silenceHasNoLoudness()
{
    analysis::LoudnessMeter m(2, 44100);
    std::vector<std::vector<double>> x(2, std::vector<double>(44100 * 2, 0.0));
    m.add(x, x[0].size());
    const auto f = m.figures();
    QVERIFY(std::isinf(f.integratedLufs) && f.integratedLufs < 0);
    QVERIFY(std::isinf(f.truePeakDbtp) && f.truePeakDbtp < 0);
    QCOMPARE(analysis::fixed(f.integratedLufs, 2), std::string("-inf"));
}

void AnalysisUnitsTest::truePeakFindsInterSamplePeak()
{
    // fs/4 sine with a 45 degree phase: every sample sits at 0.707 of the
    // amplitude, the true peak is the amplitude (+3.01 dB over the samples).
    for (int rate : {44100, 48000, 96000}) {
        auto x = sine(1, rate, 1, rate / 4.0, 0.5, M_PI / 4);
        // Faded in: an abrupt start rings in any interpolator.
        for (std::size_t i = 0; i < 2000; ++i)
            x[0][i] *= 0.5 - 0.5 * std::cos(M_PI * static_cast<double>(i) / 2000);
        analysis::TruePeak tp(rate);
        tp.add(x[0].data(), x[0].size());
        double samplePeak = 0;
        for (double v : x[0])
            samplePeak = std::max(samplePeak, std::fabs(v));
        QVERIFY2(std::fabs(20 * std::log10(samplePeak / 0.5) + 3.01) < 0.01, qPrintable(QString::number(samplePeak)));
        QVERIFY2(std::fabs(20 * std::log10(tp.peak() / 0.5)) < 0.05,
                 qPrintable(QStringLiteral("%1 Hz: %2").arg(rate).arg(tp.peak())));
    }
}

void AnalysisUnitsTest::statsOfKnownSignals()
{
    // Full-scale square wave plus DC: crest 0 dB, every sample clipped.
    analysis::ChannelStats sq(1000);
    std::vector<double> x(6000);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = (i / 10) % 2 ? 1.0 : -1.0;
    sq.add(x.data(), x.size());
    auto f = sq.figures();
    QCOMPARE(f.clipped, std::uint64_t(6000));
    QVERIFY(std::fabs(f.crestDb) < 1e-9);
    QVERIFY(std::fabs(f.dcOffset) < 1e-9);
    QVERIFY(std::fabs(f.dynamicRangeDb) < 1e-9);

    // Sine at 0.5 with 0.01 DC: peak 0.51 over RMS sqrt(0.125 + 0.0001), no
    // clipped samples.
    analysis::ChannelStats s(48000);
    auto y = sine(1, 48000, 6, 1000, 0.5)[0];
    for (double& v : y)
        v += 0.01;
    s.add(y.data(), y.size());
    f = s.figures();
    QCOMPARE(f.clipped, std::uint64_t(0));
    QVERIFY2(std::fabs(f.dcOffset - 0.01) < 1e-6, qPrintable(QString::number(f.dcOffset)));
    QVERIFY2(std::fabs(f.crestDb - 20 * std::log10(0.51 / std::sqrt(0.1251))) < 0.01, qPrintable(QString::number(f.crestDb)));
    QVERIFY2(std::fabs(f.peakDbfs - 20 * std::log10(0.51)) < 0.01, qPrintable(QString::number(f.peakDbfs)));

    // Ten 3 s blocks: nine at 0.01, one at 0.5 (the peak lives there): the
    // loudest fifth is two blocks, mean square (0.125 + 0.00005) / 2.
    analysis::ChannelStats d(1000);
    for (int b = 0; b < 10; ++b) {
        auto blk = sine(1, 1000, 3, 50, b == 4 ? 0.5 : 0.01)[0];
        d.add(blk.data(), blk.size());
    }
    f = d.figures();
    const double loud = std::sqrt((0.5 * 0.5 / 2 + 0.01 * 0.01 / 2) / 2);
    QVERIFY2(std::fabs(f.dynamicRangeDb - 20 * std::log10(0.5 / loud)) < 0.05, qPrintable(QString::number(f.dynamicRangeDb)));

    analysis::ChannelStats empty(44100);
    f = empty.figures();
    QVERIFY(std::isinf(f.peakDbfs));
    QCOMPARE(f.crestDb, 0.0);
}

void AnalysisUnitsTest::loudPartTakesTheLoudestFifth()
{
    QCOMPARE(analysis::loudPartRms({}, 0.2), 0.0);
    QCOMPARE(analysis::loudPartRms({4.0}, 0.2), 2.0);
    // Four blocks: 20 % is less than one, so the loudest one counts.
    QCOMPARE(analysis::loudPartRms({1, 9, 4, 0}, 0.2), 3.0);
    // Ten blocks: the loudest two.
    QCOMPARE(analysis::loudPartRms({1, 1, 1, 1, 1, 1, 1, 1, 16, 16}, 0.2), 4.0);
}

void AnalysisUnitsTest::loudnessPlan_data()
{
    QTest::addColumn<double>("integrated");
    QTest::addColumn<double>("peak");
    QTest::addColumn<double>("target");
    QTest::addColumn<double>("gain");
    QTest::addColumn<bool>("limited");
    QTest::newRow("up, room to spare") << -30.0 << -15.0 << -23.0 << 7.0 << false;
    QTest::newRow("down") << -10.0 << -1.0 << -23.0 << -13.0 << false;
    QTest::newRow("peak cap") << -30.0 << -3.0 << -23.0 << 2.0 << true;
    QTest::newRow("exactly at the ceiling") << -30.0 << -8.0 << -23.0 << 7.0 << false;
    QTest::newRow("silence") << -HUGE_VAL << -HUGE_VAL << -23.0 << 0.0 << false;
}

void AnalysisUnitsTest::loudnessPlan()
{
    QFETCH(double, integrated);
    QFETCH(double, peak);
    QFETCH(double, target);
    QFETCH(double, gain);
    QFETCH(bool, limited);
    const auto p = analysis::planLoudness(integrated, peak, target, -1.0);
    QVERIFY2(std::fabs(p.gainDb - gain) < 1e-9, qPrintable(QString::number(p.gainDb)));
    QCOMPARE(p.limited, limited);
    QCOMPARE(p.silent, std::isinf(integrated));
    if (!p.silent)
        QVERIFY(p.expectedPeakDbtp <= -1.0 + 1e-9);
}

void AnalysisUnitsTest::replayGainTexts()
{
    auto v = analysis::replayGain(-14.79, -0.8);
    QVERIFY(v.valid);
    QCOMPARE(analysis::replayGainText(v.gainDb), std::string("-3.21 dB"));
    QCOMPARE(analysis::replayPeakText(v.peak), std::string("0.912011"));
    v = analysis::replayGain(-25.0, -10.0);
    QCOMPARE(analysis::replayGainText(v.gainDb), std::string("7.00 dB"));
    QVERIFY(!analysis::replayGain(-INFINITY, -INFINITY).valid);
}

void AnalysisUnitsTest::fixedIgnoresLocale()
{
    const char* old = std::setlocale(LC_ALL, nullptr);
    const std::string saved = old ? old : "C";
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8"))
        QSKIP("de_DE.UTF-8 locale not generated");
    QCOMPARE(analysis::fixed(-23.456, 2), std::string("-23.46"));
    QCOMPARE(analysis::fixed(-0.001, 2), std::string("0.00"));
    QCOMPARE(analysis::fixed(INFINITY, 1), std::string("inf"));
    QCOMPARE(analysis::fixed(NAN, 1), std::string("nan"));
    std::setlocale(LC_ALL, saved.c_str());
}

void AnalysisUnitsTest::spectrumVerdict_data()
{
    QTest::addColumn<double>("cutoff");   // Hz, 0 = none
    QTest::addColumn<double>("depth");    // dB below the content above the cut-off
    QTest::addColumn<bool>("lossy");
    QTest::newRow("flat to Nyquist") << 0.0 << 0.0 << false;
    QTest::newRow("16 kHz, 80 dB cliff") << 16000.0 << 80.0 << true;
    QTest::newRow("19 kHz, 40 dB cliff") << 19000.0 << 40.0 << true;
    QTest::newRow("16 kHz, only 20 dB") << 16000.0 << 20.0 << false;
    QTest::newRow("14 kHz: below the range") << 14000.0 << 80.0 << false;
    QTest::newRow("21 kHz: above the range") << 21000.0 << 80.0 << false;
}

void AnalysisUnitsTest::spectrumVerdict()
{
    QFETCH(double, cutoff);
    QFETCH(double, depth);
    QFETCH(bool, lossy);
    // Noise through a brick wall at `cutoff`, `depth` dB over a floor.
    const int rate = 44100;
    std::mt19937 rng(3);
    std::normal_distribution<double> g;
    analysis::SpectrumAverage avg(1, rate);
    std::vector<double> x(rate * 4);
    for (double& v : x)
        v = g(rng) * 0.1;
    // The verdict reads the average power spectrum: shape that directly.
    avg.addInterleaved(x.data(), x.size());
    std::vector<double> p = avg.power();
    QVERIFY(!p.empty());
    const double binHz = rate / 2.0 / static_cast<double>(p.size() - 1);
    if (cutoff > 0)
        for (std::size_t k = 0; k < p.size(); ++k)
            if (k * binHz > cutoff)
                p[k] *= std::pow(10.0, -depth / 10);
    const auto v = analysis::judgeSpectrum(p, rate);
    QCOMPARE(v.lossy, lossy);
    if (lossy) {
        QVERIFY2(std::fabs(v.cutoffHz - cutoff) <= 250, qPrintable(QString::number(v.cutoffHz)));
        QVERIFY(v.reason.find("kHz") != std::string::npos);
    }
}

void AnalysisUnitsTest::userTextFramesRoundTrip()
{
    io::Tags t;
    t.title = "T";
    t.setUserText("REPLAYGAIN_TRACK_GAIN", "-3.21 dB");
    t.setUserText("REPLAYGAIN_TRACK_PEAK", "0.912345");
    t.setUserText("replaygain_track_gain", "-3.20 dB"); // replaces, whatever the case
    t.setUserText("Bemerkung", "Größe");                 // not ASCII: UTF-16
    QCOMPARE(t.userText.size(), std::size_t(3));
    QVERIFY(t.hasText());
    const auto bytes = io::buildId3v2(t);
    io::Tags back;
    QVERIFY(io::parseId3v2(bytes.data(), bytes.size(), back));
    QCOMPARE(back.title, std::string("T"));
    QCOMPARE(back.userTextValue("REPLAYGAIN_TRACK_GAIN"), std::string("-3.20 dB"));
    QCOMPARE(back.userTextValue("REPLAYGAIN_TRACK_PEAK"), std::string("0.912345"));
    QCOMPARE(back.userTextValue("Bemerkung"), std::string("Größe"));
    QCOMPARE(back.userTextValue("missing"), std::string());
    // A frame cut short is skipped, never read past.
    for (std::size_t cut = 10; cut < bytes.size(); cut += 7) {
        io::Tags partial;
        io::parseId3v2(bytes.data(), cut, partial);
    }
}

void AnalysisUnitsTest::optionParsing_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("check");
    QTest::newRow("lufs") << QStringList{"--lufs", "-23", "-i", "a.wav", "b.dsf"} << true << "lufs=-23";
    QTest::newRow("lufs out of range") << QStringList{"--lufs", "3", "-i", "a.wav", "b.dsf"} << false << "";
    QTest::newRow("lufs not a number") << QStringList{"--lufs", "-23,5", "-i", "a.wav", "b.dsf"} << false << "";
    QTest::newRow("lufs missing value") << QStringList{"-i", "a.wav", "b.dsf", "--lufs"} << false << "";
    QTest::newRow("rg") << QStringList{"--rg", "-i", "a.wav", "b.dsf"} << true << "rg=1";
    QTest::newRow("rg album") << QStringList{"--rg", "album", "-i", "a.wav", "b.dsf"} << true << "rg=2";
    QTest::newRow("measure, several plain inputs") << QStringList{"--measure", "a.wav", "b.flac"} << true << "inputs=2";
    QTest::newRow("measure with output") << QStringList{"--measure", "-i", "a.wav", "-i", "c.wav", "b.dsf"} << true
                                         << "inputs=2";
    QTest::newRow("measure, plain output last") << QStringList{"--measure", "a.wav", "b.DFF"} << true << "inputs=1";
    QTest::newRow("measure excludes lufs") << QStringList{"--measure", "--lufs", "-20", "a.wav"} << false << "";
    QTest::newRow("lufs with reverse") << QStringList{"--reverse", "--lufs", "-20", "-i", "a.dsf", "b.wav"} << false << "";
    QTest::newRow("stats with dxd") << QStringList{"--dxd", "--stats", "-i", "a.wav", "b.wav"} << false << "";
    QTest::newRow("stop-lossy") << QStringList{"--stop-lossy", "--stats", "-i", "a.wav", "b.dsf"} << true << "";
}

void AnalysisUnitsTest::optionParsing()
{
    QFETCH(QStringList, args);
    QFETCH(bool, ok);
    QFETCH(QString, check);
    std::vector<std::string> a;
    for (const QString& s : args)
        a.push_back(s.toStdString());
    const auto parsed = cli::parseCommandLine(a);
    QCOMPARE(!parsed.usageError(), ok);
    const auto& o = parsed.options.analysis;
    if (check == "lufs=-23")
        QVERIFY(o.lufsTarget && *o.lufsTarget == -23.0);
    else if (check == "rg=1")
        QCOMPARE(int(o.replayGain), int(analysis::ReplayGainMode::Track));
    else if (check == "rg=2")
        QCOMPARE(int(o.replayGain), int(analysis::ReplayGainMode::Album));
    else if (check.startsWith("inputs="))
        QCOMPARE(int(parsed.options.inputs.size()), check.mid(7).toInt());
}

QTEST_GUILESS_MAIN(AnalysisUnitsTest)
#include "tst_analysis_units.moc"
