// The restoration and mastering options in the forms the front-end sends,
// through the engine's own parser; and what the mastering sets fill in.
#include <QtTest>

#include "cli/options.h"
#include "cli/unsupported_options.h"
#include "restore/mastering_presets.h"

using zuvo::cli::parseCommandLine;
using zuvo::cli::ParsedCommandLine;
using zuvo::restore::MasteringPreset;

namespace {

ParsedCommandLine parse(const QStringList& middle)
{
    std::vector<std::string> args{"-i", "in.wav", "--gui"};
    for (const QString& s : middle)
        args.push_back(s.toStdString());
    args.push_back("out.dsf");
    return parseCommandLine(args);
}

bool mentions(const std::vector<std::string>& items, const QString& word)
{
    for (const auto& s : items)
        if (QString::fromStdString(s).contains(word))
            return true;
    return false;
}

} // namespace

class TestRestoreOptions : public QObject {
    Q_OBJECT
private slots:
    void acceptedForms_data();
    void acceptedForms();
    void badValues_data();
    void badValues();
    void presets_data();
    void presets();
    void explicitValuesWin();
    void masteringEffects();
    void spectralOptionsJoinTheChain();
    void notInReverse();
};

void TestRestoreOptions::acceptedForms_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("expect"); // field=value
    QTest::newRow("--dehum") << QStringList{"--dehum"} << "dehum=1 q=10";
    QTest::newRow("--dehum-q 10 (the advanced default)") << QStringList{"--dehum", "--dehum-q", "10"} << "dehum=1 q=10";
    QTest::newRow("--dehum-q 12.5") << QStringList{"--dehum", "--dehum-q", "12.5"} << "dehum=1 q=12.5";
    QTest::newRow("--decrackle") << QStringList{"--decrackle"} << "decrackle=1 t=5";
    QTest::newRow("--decrackle-threshold 3") << QStringList{"--decrackle", "--decrackle-threshold", "3"}
                                             << "decrackle=1 t=3";
    QTest::newRow("--expand defaults") << QStringList{"--expand"} << "expand=1 th=-50 r=2 k=6 a=5 rel=100";
    QTest::newRow("every expander value")
        << QStringList{"--expand", "--expand-threshold", "-60", "--expand-ratio", "3", "--expand-knee", "4",
                       "--expand-attack", "2.5", "--expand-release", "250"}
        << "expand=1 th=-60 r=3 k=4 a=2.5 rel=250";
    QTest::newRow("--expand-ratio 1.5 with a '+'") << QStringList{"--expand", "--expand-ratio", "+1.5"}
                                                 << "expand=1 th=-50 r=1.5 k=6 a=5 rel=100";
}

void TestRestoreOptions::acceptedForms()
{
    QFETCH(QStringList, args);
    QFETCH(QString, expect);
    const auto p = parse(args);
    QVERIFY2(!p.usageError(), p.errors.empty() ? "" : p.errors.front().c_str());
    const auto& r = p.options.restore;
    QString got;
    if (r.dehum.on)
        got = QString("dehum=1 q=%1").arg(r.dehum.q);
    if (r.decrackle.on)
        got = QString("decrackle=1 t=%1").arg(r.decrackle.threshold);
    if (r.expand.on)
        got = QString("expand=1 th=%1 r=%2 k=%3 a=%4 rel=%5")
                  .arg(r.expand.thresholdDb)
                  .arg(r.expand.ratio)
                  .arg(r.expand.kneeDb)
                  .arg(r.expand.attackMs)
                  .arg(r.expand.releaseMs);
    QCOMPARE(got, expect);
    QCOMPARE(QString::fromStdString(p.options.output), QString("out.dsf"));
}

void TestRestoreOptions::badValues_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("named");
    QTest::newRow("decimal comma") << QStringList{"--dehum", "--dehum-q", "10,5"} << "--dehum-q";
    QTest::newRow("Q zero") << QStringList{"--dehum", "--dehum-q", "0"} << "--dehum-q";
    QTest::newRow("threshold text") << QStringList{"--decrackle", "--decrackle-threshold", "high"}
                                    << "--decrackle-threshold";
    QTest::newRow("ratio below one") << QStringList{"--expand", "--expand-ratio", "0.5"} << "--expand-ratio";
    QTest::newRow("positive threshold") << QStringList{"--expand", "--expand-threshold", "6"} << "--expand-threshold";
    QTest::newRow("negative attack") << QStringList{"--expand", "--expand-attack", "-1"} << "--expand-attack";
    QTest::newRow("nan release") << QStringList{"--expand", "--expand-release", "nan"} << "--expand-release";
    QTest::newRow("missing value") << QStringList{"--expand-knee"} << "--expand-knee";
    QTest::newRow("unknown preset") << QStringList{"--mastering-preset", "rock"} << "classical, pop, jazz";
    QTest::newRow("preset in capitals") << QStringList{"--mastering-preset", "Pop"} << "--mastering-preset";
    QTest::newRow("music type 0") << QStringList{"--music-type", "0"} << "1 (classical), 2 (pop), 3 (jazz)";
    QTest::newRow("music type 4") << QStringList{"--music-type", "4"} << "--music-type";
    QTest::newRow("music type 2.5") << QStringList{"--music-type", "2.5"} << "--music-type";
    QTest::newRow("type and preset disagree") << QStringList{"--music-type", "1", "--mastering-preset", "jazz"}
                                              << "different presets";
}

void TestRestoreOptions::badValues()
{
    QFETCH(QStringList, args);
    QFETCH(QString, named);
    const auto p = parse(args);
    QVERIFY(p.usageError());
    QVERIFY2(mentions(p.errors, named), p.errors.empty() ? "no error" : p.errors.front().c_str());
}

void TestRestoreOptions::presets_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("preset");
    QTest::addColumn<double>("ratio");
    QTest::newRow("--master alone is pop") << QStringList{"--master"} << int(MasteringPreset::Pop) << 2.0;
    QTest::newRow("--mastering-preset classical") << QStringList{"--mastering-preset", "classical"}
                                                  << int(MasteringPreset::Classical) << 1.5;
    QTest::newRow("--mastering-preset pop") << QStringList{"--mastering-preset", "pop"} << int(MasteringPreset::Pop)
                                            << 2.0;
    QTest::newRow("--mastering-preset jazz") << QStringList{"--mastering-preset", "jazz"}
                                             << int(MasteringPreset::Jazz) << 1.7;
    QTest::newRow("--music-type 1") << QStringList{"--music-type", "1"} << int(MasteringPreset::Classical) << 1.5;
    QTest::newRow("--music-type 2") << QStringList{"--music-type", "2"} << int(MasteringPreset::Pop) << 2.0;
    QTest::newRow("--music-type 3 with --master") << QStringList{"--master", "--music-type", "3"}
                                                  << int(MasteringPreset::Jazz) << 1.7;
    QTest::newRow("type and preset agree") << QStringList{"--music-type", "2", "--mastering-preset", "pop"}
                                           << int(MasteringPreset::Pop) << 2.0;
}

void TestRestoreOptions::presets()
{
    QFETCH(QStringList, args);
    QFETCH(int, preset);
    QFETCH(double, ratio);
    const auto p = parse(args);
    QVERIFY2(!p.usageError(), p.errors.empty() ? "" : p.errors.front().c_str());
    const auto& r = p.options.restore;
    QVERIFY(r.master);
    QCOMPARE(int(r.preset), preset);
    QVERIFY(r.dehum.on && r.decrackle.on && r.expand.on);
    QCOMPARE(r.expand.ratio, ratio);
    QCOMPARE(r.expand.thresholdDb, zuvo::restore::masteringSet(r.preset).expandThresholdDb);
}

void TestRestoreOptions::explicitValuesWin()
{
    const auto p = parse({"--expand-ratio", "4", "--mastering-preset", "classical", "--dehum-q", "20",
                          "--decrackle-threshold", "8"});
    QVERIFY(!p.usageError());
    const auto& r = p.options.restore;
    QCOMPARE(r.expand.ratio, 4.0);          // given
    QCOMPARE(r.expand.thresholdDb, -60.0);  // the preset's
    QCOMPARE(r.dehum.q, 20.0);
    QCOMPARE(r.decrackle.threshold, 8.0);
    QVERIFY(p.warnings.empty());
    // Without --master the values only warn that they do nothing.
    const auto lone = parse({"--expand-ratio", "4"});
    QVERIFY(!lone.usageError());
    QVERIFY(mentions(lone.warnings, "--expand"));
}

void TestRestoreOptions::masteringEffects()
{
    // Pop on stereo: shelves and widening.
    auto p = parse({"--mastering-preset", "pop"});
    auto fx = p.options.effects;
    QVERIFY(!zuvo::restore::applyMasteringEffects(p.options.restore, 2, fx).empty());
    QVERIFY(fx.eqBass.given && fx.eqAir.given);
    QCOMPARE(fx.eqBass.gainDb, 1.5);
    QVERIFY(fx.stereo);
    QCOMPARE(fx.stereoWidth, 1.15);
    // Mono: no widening. Classical: never widening.
    fx = p.options.effects;
    zuvo::restore::applyMasteringEffects(p.options.restore, 1, fx);
    QVERIFY(!fx.stereo);
    p = parse({"--mastering-preset", "classical"});
    fx = p.options.effects;
    zuvo::restore::applyMasteringEffects(p.options.restore, 2, fx);
    QVERIFY(!fx.stereo && fx.eqBass.given);
    // The user's own EQ and stereo options replace the preset's.
    p = parse({"--master", "--bass", "3", "--stereo-width", "1.4"});
    fx = p.options.effects;
    zuvo::restore::applyMasteringEffects(p.options.restore, 2, fx);
    QVERIFY(!fx.eqBass.given && !fx.eqAir.given);
    QCOMPARE(fx.stereoWidth, 1.4);
    // Without --master nothing is added.
    p = parse({"--dehum"});
    fx = p.options.effects;
    QVERIFY(zuvo::restore::applyMasteringEffects(p.options.restore, 2, fx).empty());
    QVERIFY(!fx.any());
}

void TestRestoreOptions::spectralOptionsJoinTheChain()
{
    for (const QStringList& args : {QStringList{"--wiener"}, QStringList{"--denoise", "deep"},
                                    QStringList{"--denoise", "light", "--keep-harmonics", "on"},
                                    QStringList{"--noise-reduce", "6"}}) {
        const auto p = parse(args);
        QVERIFY2(!p.usageError(), qPrintable(args.join(' ')));
        QVERIFY(p.options.restore.spectralOn);
        QVERIFY(p.options.restore.any());
    }
    QVERIFY(parse({"--denoise", "light", "--keep-harmonics", "on"}).options.restore.spectral.keepHarmonics);
    const auto names = zuvo::cli::unsupportedOptionNames();
    for (const char* done : {"--dehum", "--dehum-q", "--decrackle", "--decrackle-threshold", "--expand",
                             "--expand-threshold", "--expand-ratio", "--expand-knee", "--expand-attack",
                             "--expand-release", "--master", "--music-type", "--mastering-preset", "--wiener",
                             "--wiener-floor", "--wiener-frame", "--denoise", "--keep-harmonics", "--noise-reduce"})
        QVERIFY2(std::find(names.begin(), names.end(), std::string(done)) == names.end(), done);
    // Like the other stages, not in the modes without a restoration chain.
    QVERIFY(parse({"--reverse", "--denoise", "light"}).usageError());
}

void TestRestoreOptions::notInReverse()
{
    for (const std::vector<std::string>& args :
         {std::vector<std::string>{"--reverse", "-i", "in.dsf", "--decrackle", "out.wav"},
          std::vector<std::string>{"--dxd", "-i", "in.wav", "--dehum", "out.wav"},
          std::vector<std::string>{"--record", "out.dsf", "--master"}}) {
        const auto p = parseCommandLine(args);
        QVERIFY(mentions(p.errors, "PCM to DSD file conversion only"));
    }
}

QTEST_APPLESS_MAIN(TestRestoreOptions)
#include "tst_restore_options.moc"
