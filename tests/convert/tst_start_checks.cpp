// Each start check a user can run into, in the order they meet them.
#include <QTemporaryDir>
#include <QtTest>

#include "start_checks.h"

namespace {

using Change = std::function<void(ConversionSettings&)>;

ConversionSettings readyToRun(const QString& dir)
{
    ConversionSettings s;
    s.output_path = dir + "/out.dsf";
    return s;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestStartChecks : public QObject {
    Q_OBJECT

private slots:
    void checks_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("files");
        QTest::addColumn<QString>("title"); // empty: the queue may start
        QTest::addColumn<bool>("critical");

        const Change none = [](ConversionSettings&) {};
        QTest::newRow("ready") << none << 1 << "" << false;
        QTest::newRow("empty list") << none << 0 << "输入文件" << false;
        QTest::newRow("mp3 output") << Change([](ConversionSettings& s) { s.output_path = "/x/out.mp3"; }) << 1
                                    << "输出格式" << false;
        QTest::newRow("DST with dsf") << Change([](ConversionSettings& s) { s.use_dst = true; }) << 1 << "错误"
                                      << true;
        QTest::newRow("DST with dff and tags") << Change([](ConversionSettings& s) {
            s.use_dst = true;
            s.output_path = "/x/OUT.DFF";
            s.artist = "a";
            s.title = "t";
        }) << 1 << "" << false;
        QTest::newRow("dff without title") << Change([](ConversionSettings& s) {
            s.output_path = "/x/out.dff";
            s.artist = "a";
        }) << 1 << "元数据" << false;
        QTest::newRow("folder mode dff without artist") << Change([](ConversionSettings& s) {
            s.output_dir = s.output_path.section('/', 0, -2) + "/dffs";
            s.output_ext = "dff";
            s.title = "t";
        }) << 1 << "元数据" << false;
        QTest::newRow("reverse to dsf") << Change([](ConversionSettings& s) { s.reverse = true; }) << 1
                                        << "输出格式" << false;
        QTest::newRow("reverse to flac, odd taps ignored") << Change([](ConversionSettings& s) {
            s.reverse = true;
            s.output_path = "/x/o.flac";
            s.taps = 511;
        }) << 1 << "" << false;
        QTest::newRow("dxd to w64") << Change([](ConversionSettings& s) {
            s.dxd = true;
            s.output_path = "/x/o.w64";
        }) << 1 << "" << false;
        QTest::newRow("dxd to dsf") << Change([](ConversionSettings& s) { s.dxd = true; }) << 1 << "输出格式"
                                    << false;
        for (int taps : {0, 512, 1000})
            QTest::addRow("taps %d", taps) << Change([taps](ConversionSettings& s) { s.taps = taps; }) << 1 << ""
                                           << false;
        for (int taps : {511, 513, 256, -2})
            QTest::addRow("taps %d refused", taps)
                << Change([taps](ConversionSettings& s) { s.taps = taps; }) << 1 << "Taps" << false;
        QTest::newRow("stop band below pass band") << Change([](ConversionSettings& s) {
            s.passband_cutoff = 20000;
            s.stopband_cutoff = 20000;
        }) << 1 << "过渡带" << false;
        QTest::newRow("only one cut-off set") << Change([](ConversionSettings& s) { s.passband_cutoff = 20000; })
                                              << 1 << "" << false;
        QTest::newRow("empty output file") << Change([](ConversionSettings& s) { s.output_path.clear(); }) << 1
                                           << "输出格式" << false;
        QTest::newRow("noise profiling without report") << Change([](ConversionSettings& s) {
            s.noise_profiling = true;
            s.pdfreport = false;
        }) << 1 << "噪声本底分析" << false;
        QTest::newRow("EQ without a valid band") << Change([](ConversionSettings& s) {
            s.enable_eq = true;
            s.eq_bands = {EqBand{0.0, 3.0, 1.0, 'q'}};
        }) << 1 << "均衡器" << false;
        QTest::newRow("EQ with a band") << Change([](ConversionSettings& s) {
            s.enable_eq = true;
            s.eq_bands = {EqBand{0.0, 3.0, 1.0, 'q'}, EqBand{1000.0, 3.0, 1.0, 'q'}};
        }) << 1 << "" << false;
    }

    void checks()
    {
        QFETCH(Change, change);
        QFETCH(int, files);
        QFETCH(QString, title);
        QFETCH(bool, critical);
        QTemporaryDir dir;
        ConversionSettings s = readyToRun(dir.path());
        change(s);
        StartCheckContext context;
        context.fileCount = files;
        context.locateEngine = [] { return QStringLiteral("/opt/engine"); };
        const std::optional<StartProblem> problem = checkConversionStart(context, s);
        if (title.isEmpty()) {
            QVERIFY2(!problem, problem ? qPrintable(problem->text) : "");
        } else {
            QVERIFY(problem);
            QCOMPARE(problem->title, title);
            QCOMPARE(problem->critical, critical);
        }
    }

    void runningQueueAndMissingEngineAndFolders()
    {
        QTemporaryDir dir;
        ConversionSettings s = readyToRun(dir.path());
        StartCheckContext context;
        context.fileCount = 1;
        context.converting = true;
        context.locateEngine = [] { return QString(); };
        QCOMPARE(checkConversionStart(context, s)->text, QString("已有转换任务正在进行中, 请等待完成。"));

        context.converting = false;
        auto missing = checkConversionStart(context, s);
        QVERIFY(missing && missing->critical);
        QCOMPARE(missing->title, QString("引擎缺失"));

        // Folder mode makes the folder, with its parents, before anything runs.
        context.locateEngine = [] { return QStringLiteral("/opt/engine"); };
        s.output_dir = dir.filePath("a/b/c");
        s.output_ext = "dsf";
        QVERIFY(!checkConversionStart(context, s));
        QVERIFY(QFileInfo(dir.filePath("a/b/c")).isDir());

        QFile blocker(dir.filePath("file"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        s.output_dir = dir.filePath("file/sub");
        auto cannot = checkConversionStart(context, s);
        QVERIFY(cannot && cannot->critical);
        QCOMPARE(cannot->text, "无法创建输出目录:\n" + dir.filePath("file/sub"));
    }
};

QTEST_GUILESS_MAIN(TestStartChecks)
#include "tst_start_checks.moc"
