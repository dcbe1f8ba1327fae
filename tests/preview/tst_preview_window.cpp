// The main window's side of the preview: which file the button previews,
// its status-bar refusals, and the start-up hook.
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

#include "conversion_queue.h"
#include "file_list_widget.h"
#include "io_panel.h"
#include "mainwindow.h"
#include "preview_dialog.h"
#include "wav_bytes.h"

using namespace wavbytes;

class TestPreviewWindow : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QTemporaryDir settings_;

    QString wav(const QString& name)
    {
        return write(dir_.filePath(name), riff(chunk("fmt ", fmtBody(1, 1, 8000, 16)) + chunk("data", sine16(500, 8000, 8000))));
    }

    static QList<pv::PreviewDialog*> dialogs(MainWindow& w) { return w.findChildren<pv::PreviewDialog*>(); }
    static void clickPreview(MainWindow& w) { w.findChild<QPushButton*>("previewButton")->click(); }
    static void queue(MainWindow& w, const QStringList& paths) { emit w.findChild<InputOutputPanel*>()->pathsOffered(paths); }

private slots:
    void initTestCase()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings_.path());
        qputenv("ZUVO_NO_UPDATE_CHECK", "1");
        qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(dir_.filePath("engine.log")));
    }

    void init()
    {
        for (const char* v : {"ZUVO_PREVIEW_FILE", "ZUVO_PREVIEW_SPECTRO", "ZUVO_GUI_EQDEMO", "ZUVO_GUI_PLAYDEMO",
                              "ZUVO_AI_PLAYTEST", "ZUVO_AI_RECTEST"})
            qunsetenv(v);
    }

    void buttonText()
    {
        MainWindow w;
        QCOMPARE(w.findChild<QPushButton*>("previewButton")->text(), QStringLiteral("波形/频谱预览…"));
    }

    void emptyQueueIsRefused()
    {
        MainWindow w;
        clickPreview(w);
        QCOMPARE(w.statusBar()->currentMessage(), QStringLiteral("请先添加文件"));
        QVERIFY(dialogs(w).isEmpty());
    }

    void currentRowElseFirstFile()
    {
        MainWindow w;
        queue(w, {wav("first.wav"), wav("second.wav")});
        auto* list = w.findChild<FileListWidget*>();
        list->setCurrentRow(-1);
        clickPreview(w);
        QCOMPARE(dialogs(w).size(), 1);
        QCOMPARE(dialogs(w).first()->windowTitle(), QStringLiteral("预览: first.wav"));

        list->setCurrentRow(1);
        clickPreview(w);
        // Non-modal: the first stays open beside the second.
        const QList<pv::PreviewDialog*> open = dialogs(w);
        QCOMPARE(open.size(), 2);
        QStringList titles;
        for (pv::PreviewDialog* d : open) {
            titles << d->windowTitle();
            QVERIFY(!d->isModal());
            QVERIFY(d->isVisible());
            QVERIFY(d->testAttribute(Qt::WA_DeleteOnClose));
        }
        QVERIFY(titles.contains(QStringLiteral("预览: second.wav")));
        QCOMPARE(open.first()->currentPage(), int(pv::PreviewDialog::WaveformPage));

        QPointer<pv::PreviewDialog> closed = open.first();
        closed->close();
        QTRY_VERIFY(closed.isNull());
    }

    void refusedWhileConverting()
    {
        const QString script = dir_.filePath("slow.txt");
        write(script, "sleep 4000\nexit 0\n");
        qputenv("ZUVO_GUI_INPROC", "0");
        qputenv("ZUVO_ENGINE_BIN", FAKE_ENGINE_PATH);
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(script));
        MainWindow w;
        w.runAutorun(wav("busy.wav") + "|" + dir_.filePath("out") + "/", false);
        QTRY_VERIFY(w.findChild<ConversionQueue*>()->isConverting());
        clickPreview(w);
        QCOMPARE(w.statusBar()->currentMessage(), QStringLiteral("转换进行中, 不能预览"));
        QVERIFY(dialogs(w).isEmpty());
        w.stopConversion();
        QTRY_VERIFY_WITH_TIMEOUT(!w.findChild<ConversionQueue*>()->isConverting(), 10000);
    }

    void startupHook_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("spectro");
        QTest::addColumn<QByteArray>("earlierHook");
        QTest::addColumn<int>("page");
        QTest::newRow("waveform") << QByteArray("hook.wav") << false << QByteArray() << 0;
        QTest::newRow("spectrogram") << QByteArray("hook.wav") << true << QByteArray() << 1;
        QTest::newRow("missing file") << QByteArray("absent.wav") << false << QByteArray() << -1;
        QTest::newRow("EQ demo goes first") << QByteArray("hook.wav") << true << QByteArray("ZUVO_GUI_EQDEMO") << -1;
        QTest::newRow("play test goes first") << QByteArray("hook.wav") << false << QByteArray("ZUVO_AI_PLAYTEST") << -1;
    }
    void startupHook()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, spectro);
        QFETCH(QByteArray, earlierHook);
        QFETCH(int, page);
        wav("hook.wav");
        qputenv("ZUVO_PREVIEW_FILE", QFile::encodeName(dir_.filePath(QString::fromUtf8(file))));
        if (spectro)
            qputenv("ZUVO_PREVIEW_SPECTRO", "1");
        if (!earlierHook.isEmpty())
            qputenv(earlierHook.constData(), "1");
        MainWindow w;
        QCOMPARE(w.runPreviewHook(), page >= 0);
        QCOMPARE(dialogs(w).size(), page >= 0 ? 1 : 0);
        if (page >= 0) {
            QCOMPARE(dialogs(w).first()->currentPage(), page);
            QVERIFY(dialogs(w).first()->testAttribute(Qt::WA_DeleteOnClose));
        }
    }
};

QTEST_MAIN(TestPreviewWindow)
#include "tst_preview_window.moc"
