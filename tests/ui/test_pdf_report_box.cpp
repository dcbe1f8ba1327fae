// The Basic page's PDF report box follows what the located engine says it
// can do: the scripted engine with and without the "supports" lines, and the
// real engine.
#include <QCheckBox>
#include <QTemporaryDir>
#include <QtTest>

#include "engine_capabilities.h"
#include "mainwindow.h"
#include "pages/basic_page.h"

namespace {

QCheckBox* box(QWidget* root, const QString& text)
{
    for (QCheckBox* w : root->findChildren<QCheckBox*>())
        if (w->text() == text)
            return w;
    return nullptr;
}

const char* const kReport = "添加 PDF 报告";
const char* const kUnsupportedTip = "当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)";
const char* const kSupportedTip = "只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)";

} // namespace

class TestPdfReportBox : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("ZUVO_SETTINGS_DIR", QFile::encodeName(dir.filePath("settings")));
        qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(dir.filePath("engine.log")));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(dir.filePath("args.jsonl")));
    }

    void listingLines()
    {
        const QByteArray listing = "refused --eq\nsupports -pdfrp\nsupports  --noise-profiling \nother\n";
        QCOMPARE(parseSupportedOptions(listing), (QStringList{"-pdfrp", "--noise-profiling"}));
        QCOMPARE(parseRefusedOptions(listing), QStringList{"--eq"});
        QVERIFY(parseSupportedOptions("refused -pdfrp\n").isEmpty());
    }

    void boxFollowsTheEngine_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("supported");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("scripted engine, no report") << FAKE_ENGINE_PATH << "" << false;
        QTest::newRow("scripted engine, other features") << FAKE_ENGINE_PATH << "--something" << false;
        QTest::newRow("scripted engine with the report") << FAKE_ENGINE_PATH << "-pdfrp,--noise-profiling" << true;
        QTest::newRow("real engine") << REAL_ENGINE_PATH << "" << true;
    }
    void boxFollowsTheEngine()
    {
        QFETCH(QString, engine);
        QFETCH(QString, supported);
        QFETCH(bool, enabled);
        qputenv("ZUVO_ENGINE_BIN", QFile::encodeName(engine));
        qputenv("ZUVO_FAKE_SUPPORTED", supported.toUtf8());
        MainWindow w;
        w.show();
        // The Recording page has a box of the same name; this one is the Basic page's.
        QCheckBox* report = box(w.findChild<BasicPage*>(), kReport);
        QVERIFY(report);
        if (enabled) {
            QTRY_VERIFY_WITH_TIMEOUT(report->isEnabled(), 10000);
            QCOMPARE(report->toolTip(), QString(kSupportedTip));
            // The user can now switch it off and on; the setting follows.
            report->click();
            QVERIFY(!w.collectSettings().pdfreport);
            report->click();
            QVERIFY(w.collectSettings().pdfreport);
        } else {
            // Give the listing time to arrive, then the box must still be off.
            QTest::qWait(1500);
            QVERIFY(!report->isEnabled());
            QCOMPARE(report->toolTip(), QString(kUnsupportedTip));
        }
        qunsetenv("ZUVO_FAKE_SUPPORTED");
    }

private:
    QTemporaryDir dir;
};

QTEST_MAIN(TestPdfReportBox)
#include "test_pdf_report_box.moc"
