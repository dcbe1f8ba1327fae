// The translator installation and the status-bar selector, in process.
#include <QtTest>

#include <QApplication>
#include <QComboBox>
#include <QTemporaryDir>

#include "interface_language.h"
#include "language_selector.h"

class TestLanguageSelector : public QObject {
    Q_OBJECT

    QTemporaryDir settings_;

private slots:
    void initTestCase()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings_.path());
    }

    void arabicIsLaidOutRightToLeft_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("rtl");
        QTest::newRow("ar") << "ar_EG" << "ar" << true;
        QTest::newRow("de") << "de" << "de" << false;
        QTest::newRow("zh") << "zh_CN" << "zh" << false;
        QTest::newRow("back to ar") << "ar" << "ar" << true;
    }
    void arabicIsLaidOutRightToLeft()
    {
        QFETCH(QString, lang);
        QFETCH(QString, tag);
        QFETCH(bool, rtl);
        qputenv("ZUVO_LANG", lang.toUtf8());
        QCOMPARE(installTranslator(qApp), tag);
        QCOMPARE(QGuiApplication::layoutDirection(), rtl ? Qt::RightToLeft : Qt::LeftToRight);
        QCOMPARE(currentLanguageTag(), tag);
        if (tag != "zh")
            QVERIFY(QCoreApplication::translate("MainWindow", "开始转换") != QStringLiteral("开始转换"));
        else
            QCOMPARE(QCoreApplication::translate("MainWindow", "开始转换"), QStringLiteral("开始转换"));
        qunsetenv("ZUVO_LANG");
    }

    void everyShippedTranslationLoads()
    {
        for (const UiLanguage& lang : uiLanguages()) {
            const QString tag = QString::fromLatin1(lang.tag);
            if (tag == "zh")
                continue;
            QTranslator t;
            QVERIFY2(t.load(QStringLiteral(":/i18n/%1.qm").arg(tag)), qPrintable(tag));
            QVERIFY2(!t.isEmpty(), qPrintable(tag));
        }
    }

    void selectorOffersFollowSystemThenEveryLanguage()
    {
        saveLanguageChoice("ja");
        QWidget parent;
        QComboBox* combo = makeLanguageSelector(&parent);
        QCOMPARE(combo->itemData(0).toString(), QStringLiteral("system"));
        QCOMPARE(combo->count(), 1 + uiLanguages().size());
        for (int i = 0; i < uiLanguages().size(); ++i) {
            QCOMPARE(combo->itemData(i + 1).toString(), QString::fromLatin1(uiLanguages()[i].tag));
            QCOMPARE(combo->itemText(i + 1), QString::fromUtf8(uiLanguages()[i].nativeName));
        }
        QCOMPARE(combo->currentData().toString(), QStringLiteral("ja"));
        QVERIFY(!combo->toolTip().isEmpty());
    }
};

QTEST_MAIN(TestLanguageSelector)
#include "test_language_selector.moc"
