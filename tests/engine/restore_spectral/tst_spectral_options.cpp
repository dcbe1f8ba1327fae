// Command-line forms of the spectral denoiser, one row per form; each line is
// read the way the engine's parser walks its arguments.
#include <QtTest>

#include <clocale>
#include <string>

#include "restore/spectral/spectral_config.h"
#include "restore/spectral/spectral_options.h"

using zuvo::restore::SpectralConfig;
using Mode = SpectralConfig::Mode;

namespace {

struct Parsed {
    bool enabled = false;
    SpectralConfig config;
    std::vector<std::string> errors;
    std::vector<std::string> ignored; // arguments that are not ours
};

Parsed parseLine(const QStringList& line)
{
    std::vector<std::string> args;
    for (const QString& a : line)
        args.push_back(a.toStdString());
    Parsed p;
    for (std::size_t i = 0; i < args.size(); ++i)
        if (!zuvo::restore::parseSpectralOption(args, i, p.config, p.enabled, p.errors))
            p.ignored.push_back(args[i]);
    return p;
}

} // namespace

class TestSpectralOptions : public QObject {
    Q_OBJECT
private slots:
    void accepted_data();
    void accepted();
    void refused_data();
    void refused();
    void numbersIgnoreTheLocale();
    void helpNamesEveryOption();
};

void TestSpectralOptions::accepted_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("floorDb");
    QTest::addColumn<double>("frameMs");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<double>("reduceDb");
    QTest::addColumn<QStringList>("ignored");
    const QStringList none;
    QTest::newRow("nothing") << QStringList{"-i", "a.wav"} << false << int(Mode::Standard) << -18.0 << 46.4 << false << 0.0
                             << QStringList{"-i", "a.wav"};
    QTest::newRow("wiener defaults") << QStringList{"--wiener"} << true << int(Mode::Wiener) << -15.0 << 32.0 << false << 0.0 << none;
    QTest::newRow("wiener floor, front-end number") << QStringList{"--wiener", "--wiener-floor", "-20.000000"} << true
                                                    << int(Mode::Wiener) << -20.0 << 32.0 << false << 0.0 << none;
    QTest::newRow("floor before --wiener is kept") << QStringList{"--wiener-floor", "-24", "--wiener"} << true
                                                   << int(Mode::Wiener) << -24.0 << 32.0 << false << 0.0 << none;
    QTest::newRow("positive floor is the attenuation") << QStringList{"--wiener-floor", "15"} << true << int(Mode::Wiener)
                                                       << -15.0 << 32.0 << false << 0.0 << none;
    QTest::newRow("wiener frame") << QStringList{"--wiener", "--wiener-frame", "64.000000"} << true << int(Mode::Wiener)
                                  << -15.0 << 64.0 << false << 0.0 << none;
    QTest::newRow("denoise light, harmonics on")
        << QStringList{"--denoise", "light", "--keep-harmonics", "on"} << true << int(Mode::Light) << -18.0 << 46.4 << true
        << 0.0 << none;
    QTest::newRow("denoise standard, harmonics off")
        << QStringList{"--denoise", "standard", "--keep-harmonics", "off"} << true << int(Mode::Standard) << -18.0 << 46.4
        << false << 0.0 << none;
    QTest::newRow("denoise deep") << QStringList{"--denoise", "deep"} << true << int(Mode::Deep) << -18.0 << 46.4 << false
                                  << 0.0 << none;
    QTest::newRow("strong is deep") << QStringList{"--denoise", "strong"} << true << int(Mode::Deep) << -18.0 << 46.4 << false
                                    << 0.0 << none;
    QTest::newRow("keep harmonics first") << QStringList{"--keep-harmonics", "on", "--denoise", "light"} << true
                                          << int(Mode::Light) << -18.0 << 46.4 << true << 0.0 << none;
    QTest::newRow("keep harmonics alone does nothing") << QStringList{"--keep-harmonics", "on"} << false << int(Mode::Standard)
                                                       << -18.0 << 46.4 << true << 0.0 << none;
    QTest::newRow("noise-reduce dB") << QStringList{"--noise-reduce", "12"} << true << int(Mode::Reduce) << -18.0 << 46.4
                                     << false << 12.0 << none;
    QTest::newRow("noise-reduce with unit") << QStringList{"--noise-reduce", "9.5dB"} << true << int(Mode::Reduce) << -18.0
                                            << 46.4 << false << 9.5 << none;
    QTest::newRow("noise-reduce with spaced unit") << QStringList{"--noise-reduce", "20 dB"} << true << int(Mode::Reduce)
                                                   << -18.0 << 46.4 << false << 20.0 << none;
    QTest::newRow("noise-reduce tier word") << QStringList{"--noise-reduce", "deep"} << true << int(Mode::Deep) << -18.0
                                            << 46.4 << false << 0.0 << none;
    QTest::newRow("later of denoise / noise-reduce wins")
        << QStringList{"--denoise", "light", "--noise-reduce", "20"} << true << int(Mode::Reduce) << -18.0 << 46.4 << false
        << 20.0 << none;
    QTest::newRow("later of noise-reduce / denoise wins")
        << QStringList{"--noise-reduce", "20", "--denoise", "standard"} << true << int(Mode::Standard) << -18.0 << 46.4
        << false << 20.0 << none;
    QTest::newRow("others pass by") << QStringList{"--eq", "--denoise", "deep", "x"} << true << int(Mode::Deep) << -18.0
                                    << 46.4 << false << 0.0 << QStringList{"--eq", "x"};
}

void TestSpectralOptions::accepted()
{
    QFETCH(QStringList, line);
    const Parsed p = parseLine(line);
    QVERIFY2(p.errors.empty(), p.errors.empty() ? "" : p.errors.front().c_str());
    QTEST(p.enabled, "enabled");
    QTEST(int(p.config.mode), "mode");
    QTEST(p.config.floorDb, "floorDb");
    QTEST(p.config.frameMs, "frameMs");
    QTEST(p.config.keepHarmonics, "keep");
    QTEST(p.config.reduceDb, "reduceDb");
    QStringList ignored;
    for (const auto& a : p.ignored)
        ignored << QString::fromStdString(a);
    QTEST(ignored, "ignored");
    // What the parser accepts, the denoiser accepts.
    std::string error;
    if (p.enabled)
        QVERIFY2(zuvo::restore::checkSpectralConfig(p.config, 2, 44100.0, error), error.c_str());
}

void TestSpectralOptions::refused_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QString>("message");
    QTest::newRow("denoise unknown word") << QStringList{"--denoise", "max"} << "--denoise: 'max' is not light, standard or deep";
    QTest::newRow("denoise number") << QStringList{"--denoise", "2"} << "--denoise: '2' is not light, standard or deep";
    QTest::newRow("denoise without value") << QStringList{"--denoise"} << "--denoise needs a value";
    QTest::newRow("keep harmonics yes") << QStringList{"--keep-harmonics", "yes"} << "--keep-harmonics: 'yes' is not on or off";
    QTest::newRow("noise-reduce text") << QStringList{"--noise-reduce", "hiss"}
                                       << "--noise-reduce: 'hiss' is neither a reduction from 1 to 40 dB (such as 12 or 12dB) "
                                          "nor light, standard or deep";
    QTest::newRow("noise-reduce too much") << QStringList{"--noise-reduce", "60"}
                                           << "--noise-reduce: '60' is neither a reduction from 1 to 40 dB (such as 12 or "
                                              "12dB) nor light, standard or deep";
    QTest::newRow("noise-reduce comma decimal") << QStringList{"--noise-reduce", "12,5"}
                                                << "--noise-reduce: '12,5' is neither a reduction from 1 to 40 dB (such as 12 "
                                                   "or 12dB) nor light, standard or deep";
    QTest::newRow("noise-reduce empty") << QStringList{"--noise-reduce", ""}
                                        << "--noise-reduce: '' is neither a reduction from 1 to 40 dB (such as 12 or 12dB) "
                                           "nor light, standard or deep";
    QTest::newRow("wiener floor 0") << QStringList{"--wiener-floor", "0"} << "--wiener-floor: '0' is not a floor from -60 to -1 dB";
    QTest::newRow("wiener floor text") << QStringList{"--wiener-floor", "low"} << "--wiener-floor: 'low' is not a floor from -60 to -1 dB";
    QTest::newRow("wiener frame 2 ms") << QStringList{"--wiener-frame", "2"} << "--wiener-frame: '2' is not a frame length from 5 to 500 ms";
    QTest::newRow("wiener frame inf") << QStringList{"--wiener-frame", "inf"} << "--wiener-frame: 'inf' is not a frame length from 5 to 500 ms";
    const QString clash = "--wiener cannot be combined with --denoise or --noise-reduce: choose one denoiser";
    QTest::newRow("wiener then denoise") << QStringList{"--wiener", "--denoise", "light"} << clash;
    QTest::newRow("denoise then wiener") << QStringList{"--denoise", "light", "--wiener"} << clash;
    QTest::newRow("noise-reduce then wiener floor") << QStringList{"--noise-reduce", "12", "--wiener-floor", "-20"} << clash;
    QTest::newRow("wiener frame then noise-reduce word") << QStringList{"--wiener-frame", "20", "--noise-reduce", "light"} << clash;
}

void TestSpectralOptions::refused()
{
    QFETCH(QStringList, line);
    QFETCH(QString, message);
    const Parsed p = parseLine(line);
    QCOMPARE(int(p.errors.size()), 1);
    QCOMPARE(QString::fromStdString(p.errors.front()), message);
    QVERIFY(p.ignored.empty()); // a refused option still takes its value
}

void TestSpectralOptions::numbersIgnoreTheLocale()
{
    const char* previous = std::setlocale(LC_NUMERIC, nullptr);
    const std::string saved = previous ? previous : "C";
    if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8"))
        QSKIP("de_DE.UTF-8 is not installed");
    const Parsed p = parseLine({"--wiener-floor", "-12.5", "--wiener-frame", "40.25"});
    std::setlocale(LC_NUMERIC, saved.c_str());
    QVERIFY(p.errors.empty());
    QCOMPARE(p.config.floorDb, -12.5);
    QCOMPARE(p.config.frameMs, 40.25);
}

void TestSpectralOptions::helpNamesEveryOption()
{
    const QString help = QString::fromStdString(zuvo::restore::spectralHelpText());
    for (const char* o : {"--denoise light|standard|deep", "--keep-harmonics on|off", "--noise-reduce TEXT", "--wiener ",
                          "--wiener-floor DB", "--wiener-frame MS"})
        QVERIFY2(help.contains(o), o);
    QVERIFY(!help.contains('@')); // every measured figure filled in
    QVERIFY(help.endsWith('\n'));
}

QTEST_APPLESS_MAIN(TestSpectralOptions)
#include "tst_spectral_options.moc"
