// The conversion feature seen from outside: a queue driven through the
// automation hook against the scripted engine, once as a child process and
// once inside the program, checked by the log mirror, the file list marks,
// the progress bar and the engine's recorded argument lists.
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QProgressBar>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include "conversion_queue.h"
#include "file_list_widget.h"
#include "io_panel.h"
#include "log_pane.h"
#include "mainwindow.h"

namespace {

struct Harness {
    QTemporaryDir dir;
    QString mirror = dir.filePath("gui.log");
    QString script = dir.filePath("script.txt");
    QString argsFile = dir.filePath("args.jsonl");
    QString engineLog = dir.filePath("engine.log");
    QString outDir = dir.filePath("out");

    explicit Harness(bool inProcess, const QString& scriptText)
    {
        QFile f(script);
        f.open(QIODevice::WriteOnly);
        f.write(scriptText.toUtf8());
        f.close();
        qputenv("ZUVO_GUI_INPROC", inProcess ? "1" : "0");
        qputenv("ZUVO_ENGINE_BIN", FAKE_ENGINE_PATH);
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(script));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(argsFile));
        qputenv("ZUVO_AI_GUI_LOG", QFile::encodeName(mirror));
        qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(engineLog));
    }

    QString input(const QString& name)
    {
        const QString path = dir.filePath(name);
        QFile f(path);
        f.open(QIODevice::WriteOnly);
        f.write("not really audio: the scripted engine never reads it");
        return path;
    }

    QString autorun(const QStringList& names)
    {
        QStringList parts;
        for (const QString& n : names)
            parts << input(n);
        return parts.join('|') + '|' + outDir + '/';
    }

    QString log() const
    {
        QFile f(mirror);
        f.open(QIODevice::ReadOnly);
        return QString::fromUtf8(f.readAll());
    }

    QList<QStringList> recordedRuns() const
    {
        QList<QStringList> runs;
        QFile f(argsFile);
        if (!f.open(QIODevice::ReadOnly))
            return runs;
        for (const QByteArray& line : f.readAll().split('\n')) {
            if (line.isEmpty())
                continue;
            QStringList args;
            for (const QJsonValue& v : QJsonDocument::fromJson(line).array())
                args << v.toString();
            runs << args;
        }
        return runs;
    }
};

QStringList marks(MainWindow& w)
{
    QStringList out;
    auto* list = w.findChild<FileListWidget*>();
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text().left(2);
    return out;
}

int progress(MainWindow& w)
{
    return w.findChild<QProgressBar*>()->value();
}

bool converting(MainWindow& w)
{
    return w.findChild<ConversionQueue*>()->isConverting();
}

// Drops what only an in-process run adds, so both kinds compare alike.
QStringList withoutHostOptions(QStringList args)
{
    const int host = args.indexOf("-inproc-host");
    if (host >= 0)
        args = args.mid(0, host);
    return args;
}

} // namespace

class TestConversionWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(settings_.isValid());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings_.path());
        qputenv("ZUVO_NO_UPDATE_CHECK", "1");
    }

    void sessionKinds_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("child process") << false;
        QTest::newRow("in process") << true;
    }

    void failedFileDoesNotStopTheQueue_data() { sessionKinds_data(); }
    void failedFileDoesNotStopTheQueue()
    {
        QFETCH(bool, inProcess);
        Harness h(inProcess, "log a line of a run that went well\n"
                             "out working\n"
                             "write-output\n"
                             "[run 2]\n"
                             "log first engine log line\n"
                             "log   the reason it failed  \n"
                             "err cannot read input\n"
                             "exit 7\n");
        MainWindow w;
        w.runAutorun(h.autorun({"a.wav", "b.wav", "c.flac"}), false);
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 15000);

        QCOMPARE(marks(w), (QStringList{"✓ ", "✗ ", "✓ "}));
        const QString log = h.log();
        QVERIFY2(log.contains("[log] ✓ a.wav 完成\n"), qPrintable(log));
        QVERIFY(log.contains("[err] ✗ 退出码: 7\n"));
        // The engine log is shared by the runs; the tail is the failed run's alone.
        QVERIFY(log.contains("[err] ── 引擎日志 (末尾 2 行): " + h.engineLog + " ──\n"));
        QVERIFY(!log.contains("[err]   a line of a run that went well"));
        QVERIFY(log.contains("[err]   the reason it failed\n"));
        QVERIFY(log.contains("[log] ✓ c.flac 完成\n"));
        QVERIFY(log.contains("完成: 2 OK, 1 失败"));
        // Engine standard error is shown as an error line, standard output as a normal one.
        if (!inProcess)
            QVERIFY(log.contains("[err] cannot read input\n"));
        QVERIFY(log.contains("[log] working\n"));
        QVERIFY(log.contains(inProcess ? "[log] 转换会话: 进程内(直接调库)" : "[log] 转换会话: 子进程(起 CLI)"));

        const QList<QStringList> runs = h.recordedRuns();
        QCOMPARE(runs.size(), 3);
        const QString a = h.dir.filePath("a.wav");
        // What the window's controls hold when it opens: DSD-64, 8192 taps,
        // the Kaiser window with beta 6, SOS-EF.
        QCOMPARE(withoutHostOptions(runs[0]).mid(1),
                 (QStringList{"-i", a, "--gui", "--log-file", h.engineLog, "--oversampling", "64", "--taps", "8192",
                              "--window-type", "kaiser", "--beta", "6.000000", "--unpredistortion", "-pdfrp",
                              "--sos-ef", h.outDir + "/a.dsf"}));
        QCOMPARE(withoutHostOptions(runs[2]).last(), h.outDir + "/c.dsf");
        QCOMPARE(runs[0].contains("-inproc-host"), inProcess);
        QVERIFY(log.contains("[log] 执行: " + QString(FAKE_ENGINE_PATH) + " -i " + a + " --gui"));
    }

    void progressMovesPerMille_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::addColumn<int>("files");
        QTest::addColumn<int>("expected");
        QTest::newRow("single, child") << false << 1 << 425;
        QTest::newRow("single, in process") << true << 1 << 425;
        QTest::newRow("second of four, child") << false << 4 << 356;
        QTest::newRow("second of four, in process") << true << 4 << 356;
    }
    void progressMovesPerMille()
    {
        QFETCH(bool, inProcess);
        QFETCH(int, files);
        QFETCH(int, expected);
        const QString slowRun = "err [PROGRESS] 10\nsleep 100\nout [PROGRESS] 42.5\nsleep 1500\nwrite-output\n";
        Harness h(inProcess, files == 1 ? slowRun : "write-output\n[run 2]\n" + slowRun);
        QStringList names;
        for (int i = 0; i < files; ++i)
            names << QString("f%1.wav").arg(i);
        MainWindow w;
        w.runAutorun(h.autorun(names), false);
        QTRY_COMPARE_WITH_TIMEOUT(progress(w), expected, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 15000);
        QCOMPARE(progress(w), 1000);
        const QString log = h.log();
        QVERIFY(!log.contains("[PROGRESS] 42.5"));
        // Only a child process keeps standard error apart: there the line is
        // logged as an error and moves nothing; in process it is one stream.
        if (inProcess)
            QVERIFY(!log.contains("[PROGRESS]"));
        else
            QVERIFY(log.contains("[err] [PROGRESS] 10\n"));
    }

    void stopKillsAChildProcessAndKeepsItsOutput()
    {
        Harness h(false, "touch-output\nout [PROGRESS] 10\nsleep 20000\n");
        MainWindow w;
        w.runAutorun(h.autorun({"a.wav", "b.wav"}), false);
        QTRY_COMPARE_WITH_TIMEOUT(progress(w), 50, 10000);
        w.stopConversion();
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 10000);
        const QString log = h.log();
        QVERIFY2(log.contains("[log] 终止当前转换进程…\n"), qPrintable(log));
        QVERIFY(log.contains("[log] ■ 已停止(强制结束进程): a.wav\n"));
        QVERIFY(log.contains("[log] 停止: 剩余 1 个文件已跳过\n"));
        // The stopped file counts as done, the skipped one as failed.
        QVERIFY(log.contains("[log] \n完成: 1 OK, 1 失败\n[log] 转换已停止\n"));
        QVERIFY(QFile::exists(h.outDir + "/a.dsf"));
        QCOMPARE(h.recordedRuns().size(), 1);
        QCOMPARE(marks(w).first(), QString("■ "));
    }

    void stopConfirmedInProcessDeletesThePartialOutput()
    {
        Harness h(true, "touch-output\nout [PROGRESS] 10\nwait-stop 20000 195\n");
        MainWindow w;
        w.runAutorun(h.autorun({"a.wav"}), false);
        QTRY_COMPARE_WITH_TIMEOUT(progress(w), 100, 10000);
        QVERIFY(QFile::exists(h.outDir + "/a.dsf"));
        w.stopConversion();
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 10000);
        const QString log = h.log();
        QVERIFY2(log.contains("[log] 正在通知引擎停止…\n"), qPrintable(log));
        QVERIFY(log.contains("[log] ■ 已停止: a.wav (未完成的文件已删除)\n"));
        QVERIFY(!log.contains("剩余"));
        QVERIFY(!log.contains("没有确认停止"));
        QVERIFY(!QFile::exists(h.outDir + "/a.dsf"));
    }

    void stopNotConfirmedInProcessWarnsAndKeepsWaiting()
    {
        Harness h(true, "out [PROGRESS] 10\nsleep 3500\nwrite-output\n");
        MainWindow w;
        w.runAutorun(h.autorun({"a.wav", "b.wav", "c.wav"}), false);
        QTRY_COMPARE_WITH_TIMEOUT(progress(w), 33, 10000);
        QElapsedTimer t;
        t.start();
        w.stopConversion();
        // The engine is only asked: the button's handler must not wait for it.
        QVERIFY2(t.elapsed() < 200, qPrintable(QString::number(t.elapsed())));
        QTRY_VERIFY_WITH_TIMEOUT(h.log().contains("[err] 引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。\n"), 5000);
        QVERIFY(t.elapsed() >= 1900);
        QVERIFY(converting(w));
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 10000);
        // The engine finished its file after all; the two never started count as failed.
        QVERIFY(h.log().contains("[log] ✓ a.wav 完成\n[log] 停止: 剩余 2 个文件已跳过\n[log] \n完成: 1 OK, 2 失败\n"
                                 "[log] 转换已停止\n"));
        QCOMPARE(h.recordedRuns().size(), 1);
    }

    void buttonsDriveAQueueLikeAUser()
    {
        Harness h(true, "out [PROGRESS] 50\nwrite-output\n");
        MainWindow w;
        w.show();
        auto* io = w.findChild<InputOutputPanel*>();
        emit io->pathsOffered({h.input("one.wav"), h.input("two.wav")});
        QLineEdit* folder = nullptr;
        for (QLineEdit* e : w.findChildren<QLineEdit*>())
            if (e->placeholderText().startsWith("留空 = 用上面的输出文件"))
                folder = e;
        QVERIFY(folder);
        QTest::keyClicks(folder, h.outDir);
        QPushButton* start = nullptr;
        for (QPushButton* b : w.findChildren<QPushButton*>())
            if (b->text() == "开始转换")
                start = b;
        QVERIFY(start);
        QTest::mouseClick(start, Qt::LeftButton);
        QVERIFY(!start->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 10000);
        QVERIFY(start->isEnabled());
        QCOMPARE(marks(w), (QStringList{"✓ ", "✓ "}));
        const QList<QStringList> runs = h.recordedRuns();
        QCOMPARE(runs.size(), 2);
        QCOMPARE(withoutHostOptions(runs[1]).last(), h.outDir + "/two.dsf");
        // The end of a batch is announced in a box that offers the output folder.
        QTRY_VERIFY_WITH_TIMEOUT(w.findChild<QMessageBox*>() != nullptr, 2000);
        auto* box = w.findChild<QMessageBox*>();
        QCOMPARE(box->text(), QString("转换 2 个文件"));
        QStringList buttons;
        for (QAbstractButton* b : box->buttons())
            buttons << b->text();
        QVERIFY(buttons.contains("打开输出目录") && buttons.contains("关闭"));
    }

    void stopWithNothingRunningOnlyLogs()
    {
        Harness h(true, "exit 0\n");
        MainWindow w;
        w.stopConversion();
        QVERIFY(h.log().contains("[log] 当前没有运行的进程\n"));
    }

    void fileListRefusesDuplicatesAndEditsWhileConverting()
    {
        Harness h(false, "sleep 3000\nexit 0\n");
        MainWindow w;
        auto* io = w.findChild<InputOutputPanel*>();
        auto* list = w.findChild<FileListWidget*>();
        const QString a = h.input("Song.wav");
        const QString b = h.input("other.flac");
        emit io->pathsOffered({a, h.dir.filePath("SONG.WAV"), b, b, h.dir.filePath("missing.wav")});
        QCOMPARE(list->paths(), (QStringList{a, b}));
        QVERIFY(h.log().contains("[log] 已添加 2 个文件\n[log] 已跳过 2 个重复文件\n"));
        QVERIFY(w.findChild<QLabel*>("fileCount")->text() == "2 个文件");

        w.runAutorun(h.input("third.wav") + '|' + h.outDir + '/', false);
        QTRY_VERIFY_WITH_TIMEOUT(converting(w), 5000);
        emit io->pathsOffered({h.input("late.wav")});
        emit io->clearRequested();
        QCOMPARE(list->count(), 3);
        QCOMPARE(w.statusBar()->currentMessage(), QString("转换进行中, 不能修改文件列表"));
        w.stopConversion();
        QTRY_VERIFY_WITH_TIMEOUT(!converting(w), 10000);
        emit io->clearRequested();
        QCOMPARE(list->count(), 0);
        QCOMPARE(w.findChild<QLabel*>("fileCount")->text(), QString("0 个文件"));
    }

    void logPaneKeepsTheNewestLinesInTheirColours()
    {
        Harness h(true, "exit 0\n");
        LogPane pane;
        pane.append("", false);
        for (int i = 0; i < 25000; ++i)
            pane.append(QString("line %1").arg(i), i % 1000 == 999);
        QVERIFY(pane.hasPending()); // drawn from the event loop, in slices
        QTRY_VERIFY_WITH_TIMEOUT(!pane.hasPending(), 10000);
        QTextDocument* doc = pane.document();
        QCOMPARE(doc->blockCount(), LogPane::kMaxBlocks);
        QCOMPARE(doc->firstBlock().text(), QString("line 5000"));
        QCOMPARE(doc->lastBlock().text(), QString("line 24999"));
        QCOMPARE(doc->lastBlock().begin().fragment().charFormat().foreground().color(), QColor(200, 60, 60));
        QVERIFY(doc->lastBlock().previous().begin().fragment().charFormat().foreground().color()
                != QColor(200, 60, 60));
        // Every line reached the mirror, in order, the blank first one included.
        const QStringList mirrored = h.log().split('\n');
        QCOMPARE(mirrored.size(), 25002);
        QCOMPARE(mirrored.at(0), QString("[log] "));
        QCOMPARE(mirrored.at(25000), QString("[err] line 24999"));
    }

private:
    QTemporaryDir settings_;
};

QTEST_MAIN(TestConversionWindow)
#include "test_conversion_window.moc"
