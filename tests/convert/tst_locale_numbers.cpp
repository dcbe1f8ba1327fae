// Numbers between the front-end and the engine under a decimal-comma locale
// (CTest runs this suite with LC_ALL=de_DE.UTF-8): the builder must still
// write '.', and the engine's option parser must still read it.
#include <QtTest>

#include <clocale>
#include <cstdio>

#include "cli/option_values.h"
#include "conversion_settings.h"
#include "engine_args.h"

Q_DECLARE_METATYPE(ConversionSettings)

namespace {

QString valueAfter(const QStringList& args, const QString& option)
{
    const qsizetype i = args.indexOf(option);
    return i >= 0 && i + 1 < args.size() ? args[i + 1] : QStringLiteral("<missing>");
}

} // namespace

class TestLocaleNumbers : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // What a desktop program does at start (the application object does it too).
        std::setlocale(LC_ALL, "");
        char probe[32];
        std::snprintf(probe, sizeof probe, "%.1f", 0.5);
        if (QByteArray(probe) != "0,5")
            QFAIL("needs a decimal-comma locale: run with LC_ALL=de_DE.UTF-8 "
                  "(scripts/install-deps.sh generates it)");
    }

    void builderWritesDecimalPoints_data()
    {
        QTest::addColumn<ConversionSettings>("settings");
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("expected");
        ConversionSettings s;
        s.inputs = QStringList{"in.wav"};
        s.output_path = "out.dsf";
        s.lufs_target = 0.15;
        s.algorithm = "window";
        s.window_type = "kaiser";
        s.beta = 8.5;
        s.abs_db_value = -0.5;
        s.enable_eq = true;
        s.eq_bands = {{1000, -3, 1.5, 'q'}, {8000, 2.5, 0.5, 'o'}};
        s.dsne = true;
        s.dsne_amount = 0.5;
        QTest::newRow("--lufs") << s << "--lufs" << "0.150000";
        QTest::newRow("--beta") << s << "--beta" << "8.500000";
        QTest::newRow("--absdb") << s << "--absdb" << "-0.500000";
        QTest::newRow("--eq") << s << "--eq" << "1000,-3.0,1.5q;8000,2.5,0.5o";
        QTest::newRow("--dsne") << s << "--dsne" << "0.500000";
    }
    void builderWritesDecimalPoints()
    {
        QFETCH(ConversionSettings, settings);
        QFETCH(QString, option);
        QFETCH(QString, expected);
        QStringList notes;
        setArgNoteSink([&](const char* line) { notes << QString::fromUtf8(line); });
        const QStringList args = buildEngineArgs(settings);
        setArgNoteSink(nullptr);
        QCOMPARE(valueAfter(args, option), expected);
        QVERIFY(notes.contains("应用EQ: 1000,-3.0,1.5q;8000,2.5,0.5o"));
    }

    void engineReadsDecimalPoints_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isNumber");
        QTest::addColumn<double>("value");
        QTest::newRow("0.500000") << "0.500000" << true << 0.5;
        QTest::newRow("-3.25e2") << "-3.25e2" << true << -325.0;
        QTest::newRow("+140.5") << "+140.5" << true << 140.5;
        QTest::newRow("0,500000") << "0,500000" << false << 0.0;
        QTest::newRow("1000,-3.0,1.5q") << "1000,-3.0,1.5q" << false << 0.0;
        QTest::newRow("+-1") << "+-1" << false << 0.0;
        QTest::newRow("nan") << "nan" << false << 0.0;
        QTest::newRow("empty") << "" << false << 0.0;
    }
    void engineReadsDecimalPoints()
    {
        QFETCH(QString, text);
        QFETCH(bool, isNumber);
        QFETCH(double, value);
        double parsed = 0;
        QCOMPARE(zuvo::cli::parseDouble(text.toStdString(), parsed), isNumber);
        QCOMPARE(zuvo::cli::isNumber(text.toStdString()), isNumber);
        if (isNumber)
            QCOMPARE(parsed, value);
        long long whole = 0;
        QVERIFY(zuvo::cli::parseInt("+8192", whole) && whole == 8192);
        QVERIFY(!zuvo::cli::parseInt("8.192", whole));
    }
};

QTEST_GUILESS_MAIN(TestLocaleNumbers)
#include "tst_locale_numbers.moc"
