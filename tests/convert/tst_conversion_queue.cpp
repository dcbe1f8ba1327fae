// The queue without a window, against the scripted engine: outcomes the real
// engine does not produce on demand (crashes, start failures), folders that
// cannot be made, and per-file presets.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "conversion_queue.h"

namespace {

struct Run {
    QTemporaryDir dir;
    QStringList log;
    QList<QPair<int, int>> states;
    int done = -1, failed = -1;

    explicit Run(const QString& script, bool inProcess = true)
    {
        QFile f(dir.filePath("script.txt"));
        f.open(QIODevice::WriteOnly);
        f.write(script.toUtf8());
        f.close();
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(dir.filePath("script.txt")));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(dir.filePath("args.jsonl")));
        qputenv("ZUVO_GUI_INPROC", inProcess ? "1" : "0");
    }

    QString input(const QString& name)
    {
        QFile f(dir.filePath(name));
        f.open(QIODevice::WriteOnly);
        return dir.filePath(name);
    }

    void exec(ConversionQueue& queue, const QStringList& files, const ConversionSettings& panel,
              const QString& engine = FAKE_ENGINE_PATH)
    {
        QObject::connect(&queue, &ConversionQueue::logLine, [this](const QString& t, bool e) {
            log << (e ? "[err] " : "[log] ") + t;
        });
        QObject::connect(&queue, &ConversionQueue::fileStateChanged,
                         [this](int i, int s) { states << qMakePair(i, s); });
        QObject::connect(&queue, &ConversionQueue::queueFinished, [this](int d, int f, bool, const QString&) {
            done = d;
            failed = f;
        });
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &queue, &ConversionQueue::poll);
        poll.start(20);
        queue.start(files, panel, engine);
        QTRY_VERIFY_WITH_TIMEOUT(!queue.isConverting(), 15000);
    }

    QList<QStringList> runs() const
    {
        QList<QStringList> out;
        QFile f(dir.filePath("args.jsonl"));
        if (f.open(QIODevice::ReadOnly))
            for (const QByteArray& line : f.readAll().split('\n'))
                if (!line.isEmpty())
                    out << QJsonDocument::fromJson(line).toVariant().toStringList();
        return out;
    }
};

} // namespace

class TestConversionQueue : public QObject {
    Q_OBJECT

private slots:
    void crashWithoutStopIsAFailure()
    {
        Run r("crash\n", false);
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("out");
        ConversionQueue queue;
        r.exec(queue, {r.input("a.wav"), r.input("b.wav")}, panel);
        QVERIFY(r.log.contains("[err] ✗ a.wav 异常退出 (崩溃/被终止)"));
        QVERIFY(r.log.contains("[err] ✗ b.wav 异常退出 (崩溃/被终止)"));
        QCOMPARE(r.failed, 2);
        QCOMPARE(r.done, 0);
        QVERIFY(r.log.contains("[log] \n完成: 0 OK, 2 失败"));
    }

    void engineThatCannotStartFailsOnlyItsFile()
    {
        Run r("exit 0\n", false);
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("out");
        ConversionQueue queue;
        r.exec(queue, {r.input("a.wav"), r.input("b.wav")}, panel, r.dir.filePath("no-such-engine"));
        const QStringList errors = r.log.filter("[err] 错误: 无法启动引擎 — ");
        QCOMPARE(errors.size(), 2);
        QCOMPARE(r.failed, 2);
        QCOMPARE(r.states, (QList<QPair<int, int>>{{0, ConversionQueue::Running}, {0, ConversionQueue::Failed},
                                                   {1, ConversionQueue::Running}, {1, ConversionQueue::Failed}}));
    }

    void outputFolderThatCannotBeMadeSkipsTheFile()
    {
        Run r("exit 0\n");
        QFile blocker(r.dir.filePath("blocker"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        // A folder where a plain file already stands cannot be created.
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("blocker");
        ConversionQueue queue;
        r.exec(queue, {r.input("a.wav")}, panel);
        QVERIFY(r.log.contains("[err] ✗ 无法创建输出目录: " + r.dir.filePath("blocker")));
        QCOMPARE(r.runs().size(), 0);
        QCOMPARE(r.failed, 1);
    }

    void perFilePresetsApplyOnTopOfThePanel()
    {
        Run r("write-output\n");
        const QString good = r.dir.filePath("good.json");
        QFile g(good);
        QVERIFY(g.open(QIODevice::WriteOnly));
        g.write(R"({"taps": 4096, "oversampling": 128, "from_the_future": 1})");
        g.close();
        const QString broken = r.dir.filePath("broken.json");
        QFile b(broken);
        QVERIFY(b.open(QIODevice::WriteOnly));
        b.write("{ not json");
        b.close();

        const QString a = r.input("a.wav"), bb = r.input("b.wav"), c = r.input("c.wav");
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("out");
        panel.taps = 1024;
        ConversionQueue queue;
        queue.setPresetLookup([&](const QString& file) -> std::optional<ConversionQueue::PresetRef> {
            if (file == a)
                return ConversionQueue::PresetRef{"Warm", good};
            if (file == bb)
                return ConversionQueue::PresetRef{"Broken", broken};
            if (file == c)
                return ConversionQueue::PresetRef{"Gone", r.dir.filePath("missing.json")};
            return std::nullopt;
        });
        r.exec(queue, {a, bb, c}, panel);

        QVERIFY(r.log.contains("[log] 逐轨预设《Warm》"));
        QVERIFY(r.log.contains("[log]   预设含 1 个本版未支持字段, 已忽略"));
        QCOMPARE(r.log.filter("[err] ✗ 逐轨预设无法解析, 本文件改用当前参数: " + broken + " (").size(), 1);
        QVERIFY(r.log.contains("[err] ✗ 逐轨预设无法解析, 本文件改用当前参数: " + r.dir.filePath("missing.json")
                               + " (无法读取文件)"));
        const QList<QStringList> runs = r.runs();
        QCOMPARE(runs.size(), 3);
        const auto valueAfter = [](const QStringList& args, const QString& option) {
            const int i = args.indexOf(option);
            return i >= 0 && i + 1 < args.size() ? args[i + 1] : QString();
        };
        QCOMPARE(valueAfter(runs[0], "--taps"), QString("4096"));
        QCOMPARE(valueAfter(runs[0], "--oversampling"), QString("128"));
        QCOMPARE(valueAfter(runs[1], "--taps"), QString("1024"));
        QCOMPARE(valueAfter(runs[2], "--taps"), QString("1024"));
        QCOMPARE(r.done, 3);
    }

    void controlLinesReachTheEngine()
    {
        Run r("wait-stop 10000 195\n");
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("out");
        ConversionQueue queue;
        QTimer::singleShot(300, &queue, [&] { queue.sendControl("stop"); });
        r.exec(queue, {r.input("a.wav")}, panel);
        QVERIFY(r.log.contains("[log] [控制] stop"));
        // Not a stop the user asked for: the engine's 195 is a failure here.
        QVERIFY(r.log.contains("[err] ✗ 退出码: 195"));
    }

    // Exit code 0 is not enough: the file must be there, written by this run,
    // and its header must read.
    void successNeedsAReadableOutput_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<bool>("oldOutputThere");
        QTest::addColumn<QString>("advanced");
        QTest::addColumn<QString>("message"); // empty: the file is done
        QTest::addColumn<bool>("outputRemains");
        QTest::newRow("written") << "write-output\n" << false << "" << "" << true;
        QTest::newRow("none written") << "exit 0\n" << false << "" << "没有写出输出文件" << false;
        QTest::newRow("junk written") << "touch-output\n" << false << "" << "读不出来 (不是 DSF 文件), 已删除" << false;
        QTest::newRow("old file left alone") << "exit 0\n" << true << "" << "没有被写过 (还是旧的)" << true;
        QTest::newRow("measuring writes none") << "exit 0\n" << false << "--measure" << "" << false;
    }
    void successNeedsAReadableOutput()
    {
        QFETCH(QString, script);
        QFETCH(bool, oldOutputThere);
        QFETCH(QString, advanced);
        QFETCH(QString, message);
        QFETCH(bool, outputRemains);
        Run r(script);
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("out");
        if (!advanced.isEmpty())
            panel.advanced.insert(advanced, QString());
        const QString output = r.dir.filePath("out/a.dsf");
        if (oldOutputThere) {
            QDir().mkpath(r.dir.filePath("out"));
            QFile old(output);
            QVERIFY(old.open(QIODevice::WriteOnly));
            old.write("a file of an earlier run");
            old.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime);
        }
        ConversionQueue queue;
        r.exec(queue, {r.input("a.wav")}, panel);
        QCOMPARE(r.done, message.isEmpty() ? 1 : 0);
        QCOMPARE(r.failed, message.isEmpty() ? 0 : 1);
        QCOMPARE(r.states.last().second, int(message.isEmpty() ? ConversionQueue::Done : ConversionQueue::Failed));
        const QStringList errors = r.log.filter("[err] ✗ a.wav: 引擎报告完成, 但");
        QCOMPARE(errors.size(), message.isEmpty() ? 0 : 1);
        if (!message.isEmpty())
            QVERIFY2(errors.first().contains(message), qPrintable(errors.first()));
        QCOMPARE(QFile::exists(output), outputRemains);
    }

    // One runaway line is shown once, cut, in both kinds of session.
    void overlongLineIsCutOnce_data()
    {
        QTest::addColumn<bool>("inProcess");
        QTest::newRow("child process") << false;
        QTest::newRow("in process") << true;
    }
    void overlongLineIsCutOnce()
    {
        QFETCH(bool, inProcess);
        Run r("long 300000\nout after\nwrite-output\n", inProcess);
        ConversionSettings panel;
        panel.output_dir = r.dir.filePath("out");
        ConversionQueue queue;
        r.exec(queue, {r.input("a.wav")}, panel);
        const QStringList cut = r.log.filter("xxxx");
        QCOMPARE(cut.size(), 1);
        QCOMPARE(cut.first(), "[log] " + QString(8192, 'x') + " …(这一行太长, 后面 291808 个字符没有显示)");
        QVERIFY(r.log.contains("[log] after"));
        QCOMPARE(r.done, 1);
    }
};

QTEST_GUILESS_MAIN(TestConversionQueue)
#include "tst_conversion_queue.moc"
