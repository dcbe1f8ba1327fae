// Which language the interface speaks: tag normalisation, the order in which
// ZUVO_LANG, the saved choice and the system decide, and the program's own
// one-line report per language.
#include <QtTest>

#include <QProcess>
#include <QTemporaryDir>

#include "interface_language.h"

class TestInterfaceLanguage : public QObject {
    Q_OBJECT

private slots:
    void normalize_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tag");
        QTest::newRow("zh_TW") << "zh_TW" << "hant";
        QTest::newRow("zh-CN") << "zh-CN" << "zh";
        QTest::newRow("zh-Hant-HK") << " ZH-Hant-HK " << "hant";
        QTest::newRow("zh_MO") << "zh_MO" << "hant";
        QTest::newRow("zh") << "zh" << "zh";
        QTest::newRow("pt_BR") << "pt_BR" << "pt";
        QTest::newRow("de-AT") << "de-AT" << "de";
        QTest::newRow("AR") << "AR" << "ar";
        QTest::newRow("unknown") << "xx" << "";
        QTest::newRow("swedish") << "sv_SE" << "";
        QTest::newRow("empty") << "" << "";
    }
    void normalize()
    {
        QFETCH(QString, text);
        QFETCH(QString, tag);
        QCOMPARE(normalizeLanguageTag(text), tag);
    }

    void effectiveTagOrder_data()
    {
        QTest::addColumn<QString>("forced");
        QTest::addColumn<QString>("saved");
        QTest::addColumn<QStringList>("posix");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("tag");
        const QStringList none{"", "", "", ""};
        QTest::newRow("forced wins over saved") << "ja" << "de" << none << "fr_FR" << "ja";
        QTest::newRow("unknown forced falls through") << "xx" << "de" << none << "fr_FR" << "de";
        QTest::newRow("saved over system") << "" << "ko" << QStringList{"ru_RU.UTF-8", "", "", ""} << "fr_FR" << "ko";
        QTest::newRow("LC_ALL first") << "" << "system" << QStringList{"ru_RU.UTF-8", "", "de_DE.UTF-8", ""}
                                      << "fr_FR" << "ru";
        QTest::newRow("C counts as unset") << "" << "system" << QStringList{"C", "POSIX", "es_ES.UTF-8", ""}
                                           << "fr_FR" << "es";
        QTest::newRow("LANGUAGE list") << "" << "system" << QStringList{"", "", "", "pl:en"} << "C" << "pl";
        QTest::newRow("taiwan") << "" << "system" << QStringList{"", "", "zh_TW.UTF-8", ""} << "C" << "hant";
        QTest::newRow("mainland") << "" << "system" << QStringList{"", "", "zh_CN.UTF-8", ""} << "C" << "zh";
        QTest::newRow("system locale") << "" << "system" << none << "fr_FR" << "fr";
        QTest::newRow("language we lack") << "" << "system" << QStringList{"", "", "sv_SE.UTF-8", ""} << "fr_FR"
                                          << "en";
        QTest::newRow("nothing known") << "" << "system" << none << "C" << "en";
    }
    void effectiveTagOrder()
    {
        QFETCH(QString, forced);
        QFETCH(QString, saved);
        QFETCH(QStringList, posix);
        QFETCH(QString, system);
        QFETCH(QString, tag);
        QCOMPARE(effectiveLanguageTag(LanguageInputs{forced, saved, posix, system}), tag);
    }

    void savedChoiceRoundTripAndJunk()
    {
        QTemporaryDir dir;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir.path());
        QCOMPARE(savedLanguageChoice(), QStringLiteral("system"));
        saveLanguageChoice("de");
        QCOMPARE(savedLanguageChoice(), QStringLiteral("de"));
        saveLanguageChoice("klingon");
        QCOMPARE(savedLanguageChoice(), QStringLiteral("system"));
    }

    // The program reports the language it set up; ZUVO_LANG beats the saved
    // choice, and every shipped translation answers in its own words.
    void smokeReportPerLanguage_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("uitag");
        QTest::addColumn<int>("qtLanguage");
        QTest::newRow("zh") << "zh_CN" << "zh" << int(QLocale::Chinese);
        QTest::newRow("hant") << "zh_TW" << "hant" << int(QLocale::Chinese);
        QTest::newRow("en") << "en" << "en" << int(QLocale::English);
        QTest::newRow("de") << "de_DE" << "de" << int(QLocale::German);
        QTest::newRow("ar") << "ar" << "ar" << int(QLocale::Arabic);
        QTest::newRow("ja") << "ja" << "ja" << int(QLocale::Japanese);
    }
    void smokeReportPerLanguage()
    {
        QFETCH(QString, lang);
        QFETCH(QString, uitag);
        QFETCH(int, qtLanguage);
        QTemporaryDir settings;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("ZUVO_SETTINGS_DIR", settings.path());
        env.insert("ZUVO_NO_UPDATE_CHECK", "1");
        env.insert("ZUVO_LANG", lang);
        env.insert("ZUVO_GUI_SMOKE", "1");
        {
            // A saved choice that ZUVO_LANG must override.
            QSettings saved(settings.path() + "/ZUVO/ui-language.ini", QSettings::IniFormat);
            saved.setValue("ui_lang", "ko");
        }
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(ZUVO_APP_PATH, {});
        QVERIFY(p.waitForFinished(30000));
        QCOMPARE(p.exitCode(), 0);
        const QString out = QString::fromUtf8(p.readAllStandardOutput());
        const QRegularExpression re(
            QStringLiteral("SMOKE lang=(\\d+) zh=([01]) locname=\\S+ qm_resource=([01]) uitag=(\\S+) sample=\"([^\"]*)\""));
        const QRegularExpressionMatch m = re.match(out);
        QVERIFY2(m.hasMatch(), qPrintable(out));
        QCOMPARE(m.captured(1).toInt(), qtLanguage);
        QCOMPARE(m.captured(2), QString(uitag == "zh" || uitag == "hant" ? "1" : "0"));
        QCOMPARE(m.captured(3), QStringLiteral("1"));
        QCOMPARE(m.captured(4), uitag);
        if (uitag == "zh")
            QCOMPARE(m.captured(5), QStringLiteral("开始转换"));
        else
            QVERIFY2(m.captured(5) != QStringLiteral("开始转换") && !m.captured(5).isEmpty(), qPrintable(out));
        QVERIFY2(!p.readAllStandardError().contains("ui-language:"), "a shipped translation was missing");
    }

    // With the about variant the program also runs the engine's device
    // listing and reports its size and head; no sound card is needed.
    void smokeAboutReportsTheDeviceListing()
    {
        QTemporaryDir settings;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("ZUVO_SETTINGS_DIR", settings.path());
        env.insert("ZUVO_NO_UPDATE_CHECK", "1");
        env.insert("ZUVO_GUI_SMOKE", "1");
        env.insert("ZUVO_GUI_SMOKE_ABOUT", "1");
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(ZUVO_APP_PATH, {});
        QVERIFY(p.waitForFinished(60000));
        const QString out = QString::fromUtf8(p.readAllStandardOutput());
        QCOMPARE(p.exitCode(), 0);
        const QRegularExpressionMatch m =
            QRegularExpression(QStringLiteral("SMOKE_ABOUT trigger_ms=(\\d+) result_chars=(\\d+) head=\"([^\"]*)\""))
                .match(out);
        QVERIFY2(m.hasMatch(), qPrintable(out));
        QVERIFY(m.captured(2).toInt() > 0);
        QVERIFY2(m.captured(3).contains("Available audio INPUT devices"), qPrintable(out));
    }
};

QTEST_GUILESS_MAIN(TestInterfaceLanguage)
#include "test_interface_language.moc"
