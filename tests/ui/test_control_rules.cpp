// The window's rules between controls, each as a user meets it: clicks on
// the real widgets, then what the other controls, the log, the status bar
// and the message boxes show.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QTabWidget>
#include <QFile>
#include <QGroupBox>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "control_rules.h"
#include "conversion_queue.h"
#include "engine_capabilities.h"
#include "eq_curve_widget.h"
#include "file_list_widget.h"
#include "log_pane.h"
#include "mainwindow.h"
#include "pages/basic_page.h"
#include "pages/channels_page.h"
#include "pages/equalizer_page.h"
#include "pages/filter_page.h"
#include "pages/spatial_tone_page.h"

namespace {

template <typename T> T* byText(QWidget* root, const QString& text)
{
    for (T* w : root->findChildren<T*>())
        if (w->text() == text)
            return w;
    return nullptr;
}

QLineEdit* byPlaceholder(QWidget* root, const QString& text)
{
    for (QLineEdit* e : root->findChildren<QLineEdit*>())
        if (e->placeholderText() == text)
            return e;
    return nullptr;
}

QString logText(MainWindow& w)
{
    LogPane* pane = w.findChild<LogPane*>();
    pane->flushPending();
    return pane->toPlainText();
}

// Closes the window-modal warning the rule opened and returns its text.
QString takeMessageBox(QWidget* root)
{
    QMessageBox* box = nullptr;
    for (int i = 0; i < 50 && !box; ++i) {
        QCoreApplication::processEvents();
        box = root->findChild<QMessageBox*>();
    }
    if (!box)
        return {};
    const QString text = box->windowTitle() + QLatin1Char('|') + box->text();
    box->close();
    delete box;
    return text;
}

QString fileInput(const QTemporaryDir& dir, const QString& name)
{
    const QString path = dir.filePath(name);
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write("the scripted engine never reads it");
    return path;
}

} // namespace

class TestControlRules : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("ZUVO_ENGINE_BIN", FAKE_ENGINE_PATH);
        qputenv("ZUVO_SETTINGS_DIR", QFile::encodeName(dir.filePath("settings")));
        qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(dir.filePath("engine.log")));
        qputenv("ZUVO_FAKE_ARGS", QFile::encodeName(dir.filePath("args.jsonl")));
    }

    void dstOutputFixTable_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("newFile");
        QTest::newRow("batch, dsf") << "/out" << "dsf" << "" << int(DstOutputFix::SetFormat) << "";
        QTest::newRow("batch, dff") << "/out" << "dff" << "/x/a.dsf" << int(DstOutputFix::SetFile) << "/x/a.dff";
        QTest::newRow("empty file") << "" << "dsf" << "" << int(DstOutputFix::SetFile) << "output.dff";
        QTest::newRow("dsf file") << "" << "dsf" << "/a.b/song.dsf" << int(DstOutputFix::SetFile) << "/a.b/song.dff";
        QTest::newRow("no extension") << "" << "dsf" << "/a.b/song" << int(DstOutputFix::SetFile) << "/a.b/song.dff";
        QTest::newRow("blank folder, DFF file") << "  " << "dsf" << "/x/song.DFF" << int(DstOutputFix::SetFile)
                                                << "/x/song.dff";
    }
    void dstOutputFixTable()
    {
        QFETCH(QString, folder);
        QFETCH(QString, format);
        QFETCH(QString, file);
        QFETCH(int, kind);
        QFETCH(QString, newFile);
        const DstOutputFix fix = dstOutputFix(folder, format, file);
        QCOMPARE(int(fix.kind), kind);
        QCOMPARE(fix.file, newFile);
    }

    void dstSwitchesTheOutputToDff()
    {
        MainWindow w;
        auto* dst = byText<QCheckBox>(&w, "DST 压缩 (仅 .dff 输出)");
        auto* level = w.findChild<BasicPage*>()->findChildren<QSpinBox*>().at(1);
        QVERIFY(!level->isEnabled());
        byPlaceholder(&w, "输出 .dsf / .dff 文件")->setText("/music/take.dsf");
        dst->click();
        QCOMPARE(takeMessageBox(&w), QStringLiteral("DST 压缩|DST 压缩仅支持 DFF 格式\n输出文件将自动更改为 DFF 格式"));
        QCOMPARE(byPlaceholder(&w, "输出 .dsf / .dff 文件")->text(), QStringLiteral("/music/take.dff"));
        QVERIFY(level->isEnabled());
        QVERIFY(logText(w).contains("启用 DST 压缩模式"));

        dst->click();
        QVERIFY(!level->isEnabled());
        QVERIFY(logText(w).contains("禁用 DST 压缩模式"));

        byPlaceholder(&w, "留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名")->setText("/music/out");
        dst->click();
        QCOMPARE(takeMessageBox(&w), QStringLiteral("DST 压缩|DST 压缩仅支持 DFF 格式\n输出格式将自动更改为 DFF"));
        ConversionSettings s = w.collectSettings();
        QCOMPARE(s.output_ext, QStringLiteral("dff"));
        QVERIFY(s.use_dst);
    }

    void quadSetsFourChannels()
    {
        MainWindow w;
        auto* page = w.findChild<ChannelsPage*>();
        auto* quad = byText<QCheckBox>(page, "四声道模式 (需重置声道数=4)");
        quad->click();
        QCOMPARE(w.collectSettings().reset_channels, 4);
        QVERIFY(logText(w).contains("四声道模式: 重置声道数已自动设为 4"));
        // Already 4: nothing to say.
        quad->click();
        quad->click();
        QCOMPARE(logText(w).count("四声道模式: 重置声道数已自动设为 4"), 1);
    }

    void noiseProfilingNeedsThePdfReport()
    {
        MainWindow w;
        ConversionSettings s;
        s.pdfreport = false;
        w.applySettings(s);
        auto* profiling = byText<QCheckBox>(&w, "噪声本底分析 (需 PDF 报告)");
        profiling->click();
        QCOMPARE(takeMessageBox(&w),
                 QStringLiteral("噪声本底分析|噪声本底分析需要勾选 PDF 报告才能生效\n请启用「添加 PDF 报告」"));
        QVERIFY(!profiling->isChecked());

        s.pdfreport = true;
        w.applySettings(s);
        profiling->click();
        QVERIFY(profiling->isChecked());
        QCOMPARE(takeMessageBox(&w), QString());
    }

    void effectSwitches_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("onLine");
        QTest::addColumn<QString>("offLine");
        QTest::newRow("HRTF") << "启用 HRTF 空间音频 (--hrtf)" << "HRTF 空间音频"
                              << "启用 HRTF 空间音频 (--hrtf <mono|ms|stereo>)" << "禁用 HRTF 空间音频";
        QTest::newRow("surround") << "启用环绕 (--surround)" << "环绕" << "启用环绕 (--surround delayMs mix side balance)"
                                  << "禁用环绕";
        QTest::newRow("DSRE") << "启用 DSRE 数字频谱共振增强 (--dsre)" << "DSRE" << "启用 DSRE (--dsre mix)" << "禁用 DSRE";
        QTest::newRow("EQ") << "启用均衡器 (EQ)" << "" << "启用均衡器 (--eq 频段 f,g,bw{单位})" << "禁用均衡器";
    }
    void effectSwitches()
    {
        QFETCH(QString, box);
        QFETCH(QString, group);
        QFETCH(QString, onLine);
        QFETCH(QString, offLine);
        MainWindow w;
        auto* check = byText<QCheckBox>(&w, box);
        QVERIFY(check);
        QWidget* controls = group.isEmpty() ? static_cast<QWidget*>(w.findChild<QTableWidget*>())
                                            : static_cast<QWidget*>(nullptr);
        for (QGroupBox* g : w.findChildren<QGroupBox*>())
            if (!group.isEmpty() && g->title() == group)
                controls = g;
        QVERIFY(controls);
        QVERIFY(!controls->isEnabled());
        check->click();
        QVERIFY(controls->isEnabled());
        QVERIFY(logText(w).endsWith(onLine));
        check->click();
        QVERIFY(!controls->isEnabled());
        QVERIFY(logText(w).endsWith(offLine));
    }

    void masterPresets_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("taps");
        QTest::addColumn<bool>("highBandwidth");
        QTest::newRow("classical") << "古典" << 4096 << 131072 << true;
        QTest::newRow("pop") << "流行" << 2048 << 65536 << false;
        QTest::newRow("jazz") << "爵士" << 2048 << 65536 << false;
    }
    void masterPresets()
    {
        QFETCH(QString, button);
        QFETCH(int, rate);
        QFETCH(int, taps);
        QFETCH(bool, highBandwidth);
        MainWindow w;
        ConversionSettings s;
        s.enable_high_bandwidth = !highBandwidth;
        w.applySettings(s);
        byText<QPushButton>(&w, button)->click();
        const ConversionSettings out = w.collectSettings();
        QCOMPARE(out.oversampling, rate);
        QCOMPARE(out.taps, taps);
        QCOMPARE(out.enable_high_bandwidth, highBandwidth);
        QVERIFY(logText(w).contains(QStringLiteral("已加载母带预设: %1").arg(button)));
    }

    // While a queue runs: the master presets refuse with a status message,
    // every other parameter control is disabled, and all comes back after.
    void parametersAreLockedWhileConverting()
    {
        QFile script(dir.filePath("slow.txt"));
        script.open(QIODevice::WriteOnly);
        script.write("sleep 1500\nexit 0\n");
        script.close();
        qputenv("ZUVO_FAKE_SCRIPT", QFile::encodeName(script.fileName()));

        MainWindow w;
        w.show();
        w.findChild<FileListWidget*>()->appendPaths({fileInput(dir, "a.wav")});
        byPlaceholder(&w, "输出 .dsf / .dff 文件")->setText(dir.filePath("a.dsf"));
        const ConversionSettings before = w.collectSettings();
        byText<QPushButton>(&w, "开始转换")->click();
        QTRY_VERIFY_WITH_TIMEOUT(w.findChild<ConversionQueue*>()->isConverting(), 3000);

        byText<QPushButton>(&w, "古典")->click();
        QCOMPARE(w.statusBar()->currentMessage(), QStringLiteral("转换进行中, 不能修改参数"));
        ConversionSettings now = before;
        w.collectInto(now);
        QCOMPARE(now.oversampling, before.oversampling);
        QCOMPARE(now.taps, before.taps);
        QCOMPARE(now.enable_high_bandwidth, before.enable_high_bandwidth);

        const QStringList lockedTexts = {"启用均衡器 (EQ)", "强制原始声道数", "--dehum", "应用预失真处理",
                                         "启用环绕 (--surround)", "从输入文件读取标签", "详细日志 (--verbose)"};
        for (QCheckBox* box : w.findChildren<QCheckBox*>())
            if (lockedTexts.contains(box->text()))
                QVERIFY2(!box->isEnabled(), qPrintable(box->text()));
        QVERIFY(!byPlaceholder(&w, "留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名")->isEnabled());
        QVERIFY(!byPlaceholder(&w, "标签: DFF→COMT, DSF→ID3")->isEnabled());
        QVERIFY(byText<QPushButton>(&w, "古典")->isEnabled());

        QTRY_VERIFY_WITH_TIMEOUT(!w.findChild<ConversionQueue*>()->isConverting(), 10000);
        QVERIFY(byPlaceholder(&w, "标签: DFF→COMT, DSF→ID3")->isEnabled());
        QVERIFY(byText<QCheckBox>(&w, "强制原始声道数")->isEnabled());
        takeMessageBox(&w);
    }

    void refusedOptionsStopTheStart()
    {
        qputenv("ZUVO_FAKE_REFUSED", "--eq,--hrtf,--dehum");
        QFile::remove(dir.filePath("args.jsonl"));
        MainWindow w;
        w.show();
        w.findChild<FileListWidget*>()->appendPaths({fileInput(dir, "b.wav")});
        byPlaceholder(&w, "输出 .dsf / .dff 文件")->setText(dir.filePath("b.dsf"));
        ConversionSettings s = w.collectSettings();
        s.enable_eq = true;
        s.eq_bands = {EqBand{1000, 3, 1, 'q'}};
        s.advanced.insert("--dehum", QString());
        w.applySettings(s);
        byText<QPushButton>(&w, "开始转换")->click();
        QCOMPARE(takeMessageBox(&w),
                 QStringLiteral("引擎不支持的选项|当前引擎构建不支持下列已选择的选项, 转换不会开始:\n--dehum, --eq\n\n"
                                "请在参数页关闭它们后再开始 (预设里可以保留)。"));
        QVERIFY(!w.findChild<ConversionQueue*>()->isConverting());
        QVERIFY(!QFile::exists(dir.filePath("args.jsonl")));
        qunsetenv("ZUVO_FAKE_REFUSED");
    }

    void refusedOptionListing()
    {
        QCOMPARE(parseRefusedOptions("refused --a\nother line\nrefused  --b \n"), (QStringList{"--a", "--b"}));
        QCOMPARE(refusedOptionsIn({"-i", "x", "--eq", "--bass", "-3.000000", "--eq"}, {"--eq", "--bass", "-3.000000x"}),
                 (QStringList{"--eq", "--bass"}));
        QCOMPARE(refusedOptionsIn({"-i", "--eq", "--artist", "--dst", "--title", "", "--dst", "out.dsf"}, {"--eq", "--dst"}),
                 (QStringList{"--dst"}));
    }

    // At the smallest size the window allows, no two widgets of one layout
    // overlap: the pages scroll instead.
    void nothingOverlapsAtTheMinimumSize()
    {
        MainWindow w;
        w.resize(100, 100); // the window keeps its own minimum
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QCoreApplication::processEvents();
        qInfo("minimum window size: %dx%d", w.width(), w.height());
        QVERIFY(w.width() <= 1000 && w.height() <= 700); // a small screen's window still fits
        // For a look by eye: ZUVO_TEST_SHOT_DIR=/tmp keeps a picture of each page at this size.
        if (const QString shots = qEnvironmentVariable("ZUVO_TEST_SHOT_DIR"); !shots.isEmpty()) {
            auto* tabs = w.findChild<QTabWidget*>();
            for (int i = 0; i < tabs->count(); ++i) {
                tabs->setCurrentIndex(i);
                QCoreApplication::processEvents();
                w.grab().save(QDir(shots).filePath(QStringLiteral("small-%1.png").arg(i)));
            }
            tabs->setCurrentIndex(0);
            QCoreApplication::processEvents();
        }
        int checked = 0;
        for (QWidget* parent : w.findChildren<QWidget*>()) {
            if (!parent->layout() || !parent->isVisible())
                continue;
            QList<QWidget*> items;
            QList<QLayout*> pending{parent->layout()};
            while (!pending.isEmpty()) {
                QLayout* l = pending.takeFirst();
                for (int i = 0; i < l->count(); ++i) {
                    QLayoutItem* it = l->itemAt(i);
                    if (it->widget() && it->widget()->isVisible())
                        items.append(it->widget());
                    else if (it->layout())
                        pending.append(it->layout());
                }
            }
            for (int a = 0; a < items.size(); ++a)
                for (int b = a + 1; b < items.size(); ++b) {
                    ++checked;
                    QVERIFY2(!items[a]->geometry().intersects(items[b]->geometry()),
                             qPrintable(QStringLiteral("%1 overlaps %2 in %3")
                                            .arg(items[a]->metaObject()->className(),
                                                 items[b]->metaObject()->className(),
                                                 parent->metaObject()->className())));
                }
        }
        QVERIFY(checked > 100);
    }

private:
    QTemporaryDir dir;
};

QTEST_MAIN(TestControlRules)
#include "test_control_rules.moc"
