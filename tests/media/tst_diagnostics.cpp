// About / Diagnostics against the scripted engine (a real child process), the
// text it composes from a run, and the two document dialogs.
#include <QDialog>
#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>

#include "diagnostics_dialog.h"
#include "diagnostics_text.h"
#include "document_dialogs.h"

class TestDiagnostics : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

    QString path(const QString& name) const { return dir_.filePath(name); }
    void script(const QString& text)
    {
        QFile f(path("script.txt"));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(text.toUtf8());
    }
    int runs() const
    {
        QFile f(path("args.jsonl"));
        return f.open(QIODevice::ReadOnly) ? int(f.readAll().count('\n')) : 0;
    }
    static bool waitIdle(DiagnosticsDialog& d, int ms)
    {
        QElapsedTimer t;
        t.start();
        while (d.isBusy() && t.elapsed() < ms)
            QTest::qWait(20);
        return !d.isBusy();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(dir_.isValid());
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(path("script.txt")));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(path("args.jsonl")));
    }
    void init() { QFile::remove(path("args.jsonl")); }

    void resultText_data()
    {
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        QTest::addColumn<QString>("logContent");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("expected");
        QTest::newRow("stdout") << "ZuvoEngine 1.0\n" << "" << "" << 0 << "$ E --version\n\nZuvoEngine 1.0\n\n\n退出码 = 0";
        QTest::newRow("stderr appended") << "a\n" << "warn\n" << "" << 2 << "$ E --version\n\na\n\n[stderr]\nwarn\n\n\n退出码 = 2";
        QTest::newRow("blank stderr ignored") << "a" << "  \n" << "" << 0 << "$ E --version\n\na\n\n退出码 = 0";
        QTest::newRow("only stderr") << "" << "bad" << "" << 1 << "$ E --version\n\n\n[stderr]\nbad\n\n退出码 = 1";
        QTest::newRow("probe log instead") << "" << "" << "from the log\n" << 3 << "$ E --version\n\nfrom the log\n\n\n退出码 = 3";
        QTest::newRow("nothing anywhere") << " " << "" << "" << 0 << "$ E --version\n\n(引擎没有输出)\n\n退出码 = 0";
    }

    void resultText()
    {
        QFETCH(QString, out);
        QFETCH(QString, err);
        QFETCH(QString, logContent);
        QFETCH(int, code);
        QFETCH(QString, expected);
        QString log;
        if (!logContent.isEmpty()) {
            log = path("probe.log");
            QFile f(log);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(logContent.toUtf8());
        }
        QCOMPARE(diagnosticsResultText("E --version", out, err, log, code), expected);
        QCOMPARE(diagnosticsResultText("E --version", out, err, path("missing.log"), code).contains("from the log"), false);
    }

    void versionWithNonZeroExitIsShown()
    {
        script("out ZuvoEngine 9.9\nexit 2\n");
        DiagnosticsDialog d(FAKE_ENGINE_PATH, {});
        d.versionButton()->click();
        QVERIFY(d.isBusy());
        QVERIFY(!d.devicesButton()->isEnabled());
        QVERIFY(d.textView()->toPlainText().startsWith(QString("$ %1 --version\n\n运行中…").arg(FAKE_ENGINE_PATH)));
        d.helpButton()->setEnabled(true);
        d.helpButton()->click(); // a click while busy does nothing
        QVERIFY(waitIdle(d, 10000));
        QCOMPARE(runs(), 1);
        QCOMPARE(d.textView()->toPlainText(),
                 QString("$ %1 --version\n\nZuvoEngine 9.9\n\n\n退出码 = 2").arg(FAKE_ENGINE_PATH));
        QVERIFY(d.versionButton()->isEnabled());
    }

    void engineThatOnlyWritesItsLog()
    {
        script("log listed in the log only\nexit 0\n");
        const QString probeLog = path("engine-probe.log");
        DiagnosticsDialog d(FAKE_ENGINE_PATH, probeLog);
        d.devicesButton()->click();
        QVERIFY(waitIdle(d, 10000));
        QVERIFY2(d.textView()->toPlainText().contains("listed in the log only"), qPrintable(d.textView()->toPlainText()));
        // The displayed command line leaves the log option out.
        QVERIFY(d.textView()->toPlainText().startsWith(QString("$ %1 --list-devices\n\n").arg(FAKE_ENGINE_PATH)));
    }

    void startFailureIsShownInPlace()
    {
        DiagnosticsDialog d(path("no-such-engine"), {});
        d.helpButton()->click();
        QVERIFY(waitIdle(d, 10000));
        QVERIFY2(d.textView()->toPlainText().startsWith("引擎启动失败: "), qPrintable(d.textView()->toPlainText()));
        QVERIFY(d.helpButton()->isEnabled());
    }

    void silentEngineIsKilledAfter30s()
    {
        script("sleep 60000\n");
        DiagnosticsDialog d(FAKE_ENGINE_PATH, {});
        QElapsedTimer t;
        t.start();
        d.versionButton()->click();
        QVERIFY(waitIdle(d, 40000));
        QVERIFY(t.elapsed() >= 29000);
        QVERIFY2(d.textView()->toPlainText().contains("引擎 30s 无响应, 已终止"), qPrintable(d.textView()->toPlainText()));
        QVERIFY(d.textView()->toPlainText().contains("退出码 = "));
    }

    void documentsPerLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("licensesTitle");
        QTest::newRow("Chinese") << "zh" << "zh" << "# 源码许可";
        QTest::newRow("Polish") << "pl" << "pl" << "# Licencje źródeł";
        QTest::newRow("English") << "en" << "en" << "# Source licenses";
        QTest::newRow("German falls back") << "de" << "en" << "# Source licenses";
        QTest::newRow("traditional Chinese tag") << "hant" << "en" << "# Source licenses";
    }

    void documentsPerLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, chosen);
        QFETCH(QString, licensesTitle);
        QCOMPARE(documentLanguage(language), chosen);
        const QString licenses = documentText(DocumentKind::Licenses, language);
        QVERIFY(licenses.startsWith(licensesTitle));
        for (const char* component : {"Qt 6", "libsndfile", "liquid-dsp", "alsa-lib", "LGPL-2.1", "MIT"})
            QVERIFY2(licenses.contains(component), component);
        const QString references = documentText(DocumentKind::References, language);
        for (const char* work : {"DSF File Format Specification", "DSDIFF", "DoP", "Parks", "Schreier", "AES17"})
            QVERIFY2(references.contains(work), work);
    }

    void documentDialogs()
    {
        QWidget parent;
        QDialog* licenses = openDocumentDialog(DocumentKind::Licenses, "pl", &parent);
        QCOMPARE(licenses->windowTitle(), QString("源码许可"));
        QCOMPARE(licenses->size(), QSize(720, 560));
        QVERIFY(licenses->testAttribute(Qt::WA_DeleteOnClose));
        auto* browser = licenses->findChild<QTextBrowser*>();
        QVERIFY(browser && !browser->openExternalLinks());
        QVERIFY(browser->toPlainText().contains("Licencje"));
        QDialog* references = openDocumentDialog(DocumentKind::References, "zh", &parent);
        QCOMPARE(references->windowTitle(), QString("参考标准"));
        QCOMPARE(references->size(), QSize(760, 560));
        QPointer<QDialog> gone(references);
        references->close();
        QTRY_VERIFY(gone.isNull());
    }
};

QTEST_MAIN(TestDiagnostics)
#include "tst_diagnostics.moc"
