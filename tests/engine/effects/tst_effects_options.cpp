// The effect options as the front-end sends them, parsed by the engine's own
// parser; and the chain's analytic response (used for the headroom bound)
// against what its process() actually does to impulses.
#include <QtTest>

#include <cmath>
#include <complex>

#include "cli/options.h"
#include "effects/effect_chain.h"

using zuvo::cli::parseCommandLine;
using zuvo::cli::ParsedCommandLine;

namespace {

ParsedCommandLine parse(const QStringList& list)
{
    std::vector<std::string> args;
    for (const QString& s : list)
        args.push_back(s.toStdString());
    return parseCommandLine(args);
}

QStringList line(const QStringList& middle, const QStringList& afterOutput = {})
{
    return QStringList{"-i", "in.wav", "--gui"} + middle + QStringList{"out.dsf"} + afterOutput;
}

bool mentions(const std::vector<std::string>& items, const char* word)
{
    for (const auto& s : items)
        if (s.find(word) != std::string::npos)
            return true;
    return false;
}

} // namespace

class TestEffectsOptions : public QObject {
    Q_OBJECT
private slots:
    void eqBands_data();
    void eqBands();
    void repeatedEqualizer();
    void surroundForms_data();
    void surroundForms();
    void valuesAndSwitches();
    void channelRules_data();
    void channelRules();
    void modulatorFamily_data();
    void modulatorFamily();
    void refusedStayRefused();
    void chainResponseMatchesProcessing();
    void worstCaseGain_data();
    void worstCaseGain();
};

void TestEffectsOptions::eqBands_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("units");
    QTest::addColumn<bool>("ok");
    QTest::newRow("empty list (enable_eq with no bands)") << "" << 0 << "" << true;
    QTest::newRow("two bands, documented example") << "1000,-3.0,1.0q;8000,2.5,0.5o" << 2 << "qo" << true;
    QTest::newRow("no unit letter -> q") << "1000,-3.0,1.0" << 1 << "q" << true;
    QTest::newRow("all five units") << "100,1.0,1.0q;200,1.0,50.0h;300,1.0,0.1k;400,1.0,1.0o;500,1.0,1.0s" << 5
                                    << "qhkos" << true;
    QTest::newRow("ten bands") << QStringList(10, "1000,1.0,1.0q").join(';') << 10 << "qqqqqqqqqq" << true;
    QTest::newRow("eleven bands") << QStringList(11, "1000,1.0,1.0q").join(';') << 0 << "" << false;
    QTest::newRow("two fields") << "1000,3.0" << 0 << "" << false;
    QTest::newRow("zero frequency") << "0,3.0,1.0q" << 0 << "" << false;
    QTest::newRow("unknown unit") << "1000,3.0,1.0x" << 0 << "" << false;
    QTest::newRow("empty band between") << "1000,3.0,1.0q;;2000,1.0,1.0q" << 0 << "" << false;
}

void TestEffectsOptions::eqBands()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(QString, units);
    QFETCH(bool, ok);
    const auto p = parse(line({"--eq", text}));
    QCOMPARE(p.errors.empty(), ok);
    QVERIFY(p.unsupported.empty());
    if (!ok) {
        QVERIFY(mentions(p.errors, "--eq"));
        return;
    }
    const auto& e = p.options.effects;
    QVERIFY(e.eqGiven);
    QCOMPARE(int(e.eqBands.size()), count);
    QString got;
    for (const auto& b : e.eqBands)
        got += QChar(b.unit);
    QCOMPARE(got, units);
    if (text.startsWith("1000,-3.0,1.0q;8000")) {
        QCOMPARE(e.eqBands[1].centerHz, 8000.0);
        QCOMPARE(e.eqBands[1].gainDb, 2.5);
        QCOMPARE(e.eqBands[1].bandwidth, 0.5);
    }
}

void TestEffectsOptions::repeatedEqualizer()
{
    const auto p = parse(line({"--equalizer", "100", "3", "50", "--equalizer", "1000", "-2.5", "200"}));
    QVERIFY(p.errors.empty());
    const auto& b = p.options.effects.paramBands;
    QCOMPARE(int(b.size()), 2);
    QCOMPARE(b[0].centerHz, 100.0);
    QCOMPARE(b[0].bandwidth, 50.0);
    QCOMPARE(b[0].unit, 'h');
    QCOMPARE(b[1].gainDb, -2.5);
    // Missing values: an error, and the output path is not swallowed silently.
    QVERIFY(!parse(line({"--equalizer", "100", "3"})).errors.empty());
}

void TestEffectsOptions::surroundForms_data()
{
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<double>("delay");
    QTest::addColumn<double>("mix");
    QTest::addColumn<bool>("side");
    QTest::addColumn<double>("balance");
    QTest::addColumn<bool>("ok");
    QTest::newRow("balance omitted") << QStringList{"--surround", "15", "80"} << 15.0 << 80.0 << false << 0.0 << true;
    QTest::newRow("side, balance omitted") << QStringList{"--surround", "15", "80", "side"} << 15.0 << 80.0 << true
                                           << 0.0 << true;
    QTest::newRow("side and balance") << QStringList{"--surround", "20", "50", "side", "-30"} << 20.0 << 50.0 << true
                                      << -30.0 << true;
    QTest::newRow("balance without side") << QStringList{"--surround", "15", "80", "25"} << 15.0 << 80.0 << false
                                          << 25.0 << true;
    QTest::newRow("negative delay") << QStringList{"--surround", "-5", "80"} << 0.0 << 0.0 << false << 0.0 << false;
    QTest::newRow("balance out of range") << QStringList{"--surround", "15", "80", "side", "150"} << 0.0 << 0.0
                                          << false << 0.0 << false;
}

void TestEffectsOptions::surroundForms()
{
    QFETCH(QStringList, after);
    QFETCH(double, delay);
    QFETCH(double, mix);
    QFETCH(bool, side);
    QFETCH(double, balance);
    QFETCH(bool, ok);
    // The front-end sends the group after the output path.
    const auto p = parse(line({}, after));
    QCOMPARE(p.errors.empty(), ok);
    if (!ok)
        return;
    QCOMPARE(QString::fromStdString(p.options.output), QString("out.dsf"));
    const auto& s = p.options.effects.surround;
    QVERIFY(s.on);
    QCOMPARE(s.delayMs, delay);
    QCOMPARE(s.mixPercent, mix);
    QCOMPARE(s.side, side);
    QCOMPARE(s.balance, balance);
}

void TestEffectsOptions::valuesAndSwitches()
{
    const auto p = parse(line({"--eq", "1000,3.0,1.0q", "--eq-precut", "-3.000000", "--bass", "3.000000", "--treble",
                               "-2.500000", "--stereo-auto", "--stereo-width", "1.2", "--stereo-crossfeed", "0.15",
                               "--eq-bass", "2", "--eq-presence", "-1", "--eq-air", "1.5"}));
    QVERIFY2(p.errors.empty(), p.errors.empty() ? "" : p.errors.front().c_str());
    const auto& e = p.options.effects;
    QCOMPARE(e.eqPrecutDb, 3.0);
    QCOMPARE(e.bassDb, 3.0);
    QCOMPARE(e.trebleDb, -2.5);
    QVERIFY(e.stereo && e.stereoAuto);
    QCOMPARE(e.stereoWidth, 1.2);
    QCOMPARE(e.stereoCrossfeed, 0.15);
    QVERIFY(e.eqBass.given && e.eqPresence.given && e.eqAir.given);
    QCOMPARE(e.eqAir.gainDb, 1.5);
    // The expander's text: width, optionally with crossfeed.
    QCOMPARE(parse(line({"--stereoexpander", "1.5"})).options.effects.stereoWidth, 1.5);
    QCOMPARE(parse(line({"--stereoexpander", "1.5,0.2"})).options.effects.stereoCrossfeed, 0.2);
    QVERIFY(parse(line({"--stereoexpander", "1.5"})).options.effects.stereo);
    QVERIFY(!parse(line({"--stereoexpander", "wide"})).errors.empty());
    QVERIFY(!parse(line({"--stereoexpander", "1.5", "--stereo-width", "1.2"})).errors.empty());
    // DSRE: the switch with and without its mix, the advanced row's percentage.
    QCOMPARE(parse(line({"--dsre"})).options.effects.dsreMix, 0.35);
    QVERIFY(parse(line({"--dsre"})).options.effects.dsre);
    QCOMPARE(parse(line({"--dsre", "0.700000"})).options.effects.dsreMix, 0.7);
    QCOMPARE(parse(line({"--dsre-mix", "35"})).options.effects.dsreMix, 0.35);
    QCOMPARE(parse(line({"--dsre-mix", "0.5"})).options.effects.dsreMix, 0.5);
    QVERIFY(!parse(line({"--dsre", "1.5"})).errors.empty());
    // Out of range and not numbers.
    QVERIFY(!parse(line({"--stereo-crossfeed", "1.5"})).errors.empty());
    QVERIFY(!parse(line({"--bass", "abc"})).errors.empty());
    // Effects belong to the forward conversion.
    QVERIFY(mentions(parse({"--reverse", "-i", "a.dsf", "--bass", "3", "out.wav"}).errors, "DSD conversion only"));
}

void TestEffectsOptions::channelRules_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("error"); // empty = accepted
    QTest::newRow("reset 4 + quad") << QStringList{"--resetchannels", "4", "--quad"} << "";
    QTest::newRow("quad with reset 2") << QStringList{"--resetchannels", "2", "--quad"} << "--quad needs";
    QTest::newRow("quad alone") << QStringList{"--quad"} << "--quad needs";
    QTest::newRow("force + reset") << QStringList{"--forcechannels", "--resetchannels", "2"} << "--forcechannels";
    QTest::newRow("force + unsrs") << QStringList{"--forcechannels", "--unsrs"} << "--forcechannels";
    QTest::newRow("force alone") << QStringList{"--forcechannels"} << "";
    QTest::newRow("reset 0") << QStringList{"--resetchannels", "0"} << "--resetchannels";
    QTest::newRow("reset 9") << QStringList{"--resetchannels", "9"} << "--resetchannels";
    QTest::newRow("reset 2.5") << QStringList{"--resetchannels", "2.5"} << "whole number";
    QTest::newRow("unsrs") << QStringList{"--unsrs"} << "";
}

void TestEffectsOptions::channelRules()
{
    QFETCH(QStringList, args);
    QFETCH(QString, error);
    const auto p = parse(line(args));
    QVERIFY(p.unsupported.empty());
    if (error.isEmpty())
        QVERIFY2(p.errors.empty(), p.errors.empty() ? "" : p.errors.front().c_str());
    else
        QVERIFY(mentions(p.errors, error.toUtf8().constData()));
}

void TestEffectsOptions::modulatorFamily_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("order");
    QTest::newRow("mp-ns alone: single loop, default order") << QStringList{"--mp-ns"} << true << 0;
    QTest::newRow("mp-ns with poles") << QStringList{"--mp-ns", "--mp-poles", "5"} << true << 5;
    QTest::newRow("mp-ns with --order 9 (the front-end's single loop)") << QStringList{"--mp-ns", "--order", "9"}
                                                                        << true << 9;
    QTest::newRow("mp-ns poles win over --order") << QStringList{"--mp-ns", "--mp-poles", "6", "--order", "9"} << true
                                                  << 6;
    QTest::newRow("mp-ns and sos-ef") << QStringList{"--mp-ns", "--sos-ef"} << false << 0;
    QTest::newRow("poles without mp-ns") << QStringList{"--mp-poles", "5"} << false << 0;
    QTest::newRow("poles out of range") << QStringList{"--mp-ns", "--mp-poles", "1"} << false << 0;
}

void TestEffectsOptions::modulatorFamily()
{
    QFETCH(QStringList, args);
    QFETCH(bool, ok);
    QFETCH(int, order);
    const auto p = parse(line(args));
    QCOMPARE(p.errors.empty(), ok);
    if (ok) {
        QCOMPARE(int(p.options.modulator.type), int(zuvo::dsp::ModulatorType::SingleLoop));
        QCOMPARE(p.options.modulator.order, order);
    }
}

void TestEffectsOptions::refusedStayRefused()
{
    // Not implemented: refused by name, their values skipped, never taken
    // for the output path.
    for (const QStringList& args : {QStringList{"--no-ns"}, QStringList{"--single-pole"},
                                    QStringList{"--quantization-type", "rms"},
                                    QStringList{"--quantization-ratio", "0.5"}}) {
        const auto p = parse(line(args));
        QVERIFY(p.usageError());
        QCOMPARE(p.unsupported.size(), std::size_t(1));
        QCOMPARE(QString::fromStdString(p.options.output), QString("out.dsf"));
    }
}

void TestEffectsOptions::chainResponseMatchesProcessing()
{
    // A chain with every linear stage kind: its analytic response must be
    // what process() does to an impulse on each input.
    const auto p = parse(line({"--eq", "60,4.0,0.7q;1000,-6.0,2.0q;6000,3.0,1.0o", "--eq-precut", "2", "--bass", "3",
                               "--treble", "-2", "--resetchannels", "4", "--unsrs", "--stereo-width", "1.3",
                               "--stereo-crossfeed", "0.2"},
                              {"--surround", "5", "60", "side", "20"}));
    QVERIFY(p.errors.empty());
    const double fs = 48000;
    zuvo::effects::EffectChain proto;
    std::string error;
    QVERIFY(proto.build(p.options.effects, 2, fs, error));
    QCOMPARE(proto.outChannels(), 4);
    const std::size_t n = 1 << 15;
    for (int in = 0; in < 2; ++in) {
        zuvo::effects::EffectChain chain = proto;
        zuvo::effects::Planar block(2, std::vector<double>(n, 0.0));
        block[static_cast<std::size_t>(in)][0] = 1.0;
        chain.process(block, n);
        QCOMPARE(int(block.size()), 4);
        for (double hz : {31.0, 100.0, 997.0, 5000.0, 15000.0}) {
            const auto want = proto.response(hz);
            for (int o = 0; o < 4; ++o) {
                std::complex<double> got = 0;
                for (std::size_t k = 0; k < n; ++k)
                    got += block[static_cast<std::size_t>(o)][k] * std::polar(1.0, -2 * M_PI * hz * double(k) / fs);
                QVERIFY2(std::abs(got - want.at(o, in)) < 1e-6,
                         qPrintable(QString("in %1 out %2 at %3 Hz").arg(in).arg(o).arg(hz)));
            }
        }
    }
}

void TestEffectsOptions::worstCaseGain_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("inputs");
    QTest::addColumn<double>("expected"); // linear, closed form
    QTest::newRow("+12 dB peaking band") << QStringList{"--eq", "100,0.0,1.0q;1000,12.0,1.0q"} << 2
                                         << std::pow(10.0, 12 / 20.0);
    QTest::newRow("+12 dB peaking, 3 dB pre-cut") << QStringList{"--eq", "100,0.0,1.0q;1000,12.0,1.0q", "--eq-precut", "3"}
                                                  << 2 << std::pow(10.0, 9 / 20.0);
    QTest::newRow("6 -> 2 fold-down: 1 + 2/sqrt2 + 1") << QStringList{"--resetchannels", "2"} << 6 << 2 + std::sqrt(2.0);
    QTest::newRow("width 2: (1+w)/2 + (w-1)/2") << QStringList{"--stereo-width", "2"} << 2 << 2.0;
    QTest::newRow("surround 80 %: 1 + 0.8") << QStringList{"--surround", "15", "80"} << 2 << 1.8;
    QTest::newRow("cut only: never below 1 is asked for") << QStringList{"--bass", "-6"} << 2 << 1.0;
}

void TestEffectsOptions::worstCaseGain()
{
    QFETCH(QStringList, args);
    QFETCH(int, inputs);
    QFETCH(double, expected);
    const auto p = parse(line(args));
    QVERIFY(p.errors.empty());
    zuvo::effects::EffectChain chain;
    std::string error;
    QVERIFY(chain.build(p.options.effects, inputs, 44100, error));
    QVERIFY2(std::abs(chain.worstCaseGain() - expected) < 1e-3 * expected,
             qPrintable(QString("got %1, expected %2").arg(chain.worstCaseGain()).arg(expected)));
}

QTEST_GUILESS_MAIN(TestEffectsOptions)
#include "tst_effects_options.moc"
