// The whole program as a user's automation drives it: the real engine, in
// process and as a child process, converting a WAV and a FLAC into a folder;
// an independent reader (ffprobe) must accept what comes out.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

bool makeTone(const QString& path, int rate, const QString& codec)
{
    QProcess p;
    p.start("ffmpeg", {"-loglevel", "error", "-y", "-f", "lavfi", "-i", "sine=frequency=997:duration=1.5",
                       "-ac", "2", "-ar", QString::number(rate), "-c:a", codec, path});
    return p.waitForFinished(30000) && p.exitCode() == 0;
}

QJsonObject probe(const QString& path)
{
    QProcess p;
    p.start("ffprobe", {"-v", "error", "-show_streams", "-of", "json", path});
    if (!p.waitForFinished(30000) || p.exitCode() != 0)
        return {};
    return QJsonDocument::fromJson(p.readAllStandardOutput())["streams"].toArray().first().toObject();
}

// What a command-line tool prints for `args`, or an empty text when it fails.
QString toolOutput(const QString& program, const QStringList& args)
{
    QProcess p;
    p.start(program, args);
    if (!p.waitForFinished(30000) || p.exitCode() != 0)
        return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}

QString writePreset(const QTemporaryDir& dir, const QByteArray& json)
{
    QFile preset(dir.filePath("preset.json"));
    if (!preset.open(QIODevice::WriteOnly) || preset.write(json) != json.size())
        return {};
    return preset.fileName();
}

struct AppRun {
    int exitCode = -1;
    QString log;    // the log-pane mirror
    QString stderrText;
};

// The program started by a user's automation: convert `inputs` into a
// folder `out`, closing when done.
AppRun runApp(const QTemporaryDir& dir, const QStringList& inputs, const QMap<QString, QString>& extraEnv)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("ZUVO_NO_UPDATE_CHECK", "1");
    env.insert("ZUVO_SETTINGS_DIR", dir.filePath("settings"));
    env.insert("ZUVO_AI_GUI_LOG", dir.filePath("gui.log"));
    env.insert("ZUVO_AI_AUTORUN", inputs.join('|') + "|" + dir.filePath("out") + "/");
    env.insert("ZUVO_AI_AUTOCLOSE", "1");
    env.remove("ZUVO_ENGINE_BIN");
    for (auto it = extraEnv.begin(); it != extraEnv.end(); ++it)
        env.insert(it.key(), it.value());
    QProcess app;
    app.setProcessEnvironment(env);
    app.start(ZUVO_APP_PATH);
    AppRun r;
    if (!app.waitForFinished(120000) || app.exitStatus() != QProcess::NormalExit)
        return r;
    r.exitCode = app.exitCode();
    r.stderrText = QString::fromUtf8(app.readAllStandardError());
    QFile log(dir.filePath("gui.log"));
    if (log.open(QIODevice::ReadOnly))
        r.log = QString::fromUtf8(log.readAll());
    return r;
}

} // namespace

class TestRealEngineGui : public QObject {
    Q_OBJECT

private slots:
    void autorunConvertsIntoAFolder_data()
    {
        QTest::addColumn<QString>("inproc");
        QTest::newRow("in process") << "1";
        QTest::newRow("child process") << "0";
    }
    void autorunConvertsIntoAFolder()
    {
        QFETCH(QString, inproc);
        QVERIFY2(!QStandardPaths::findExecutable("ffprobe").isEmpty(),
                 "ffprobe is needed as the independent reader (scripts/install-deps.sh installs ffmpeg)");
        QTemporaryDir dir;
        const QString a = dir.filePath("a.wav");
        const QString b = dir.filePath("b.flac");
        QVERIFY(makeTone(a, 44100, "pcm_s24le"));
        QVERIFY(makeTone(b, 48000, "flac"));

        const AppRun run = runApp(dir, {a, b}, {{"ZUVO_GUI_INPROC", inproc}});
        QCOMPARE(run.exitCode, 0);
        const QString& text = run.log;
        QVERIFY2(text.endsWith("[log] \n全部完成: 2 OK\n"), qPrintable(text));
        QVERIFY(text.contains(inproc == "0" ? "转换会话: 子进程(起 CLI)" : "转换会话: 进程内(直接调库)"));

        for (const QString& name : {"a.dsf", "b.dsf"}) {
            const QJsonObject stream = probe(dir.filePath("out/" + name));
            QCOMPARE(stream["codec_name"].toString(), QString("dsd_lsbf_planar"));
            QCOMPARE(stream["channels"].toInt(), 2);
            // The default DSD64 rate, as ffmpeg reports it in bytes per second per channel.
            QCOMPARE(stream["sample_rate"].toString(), QString("352800"));
            QVERIFY(qAbs(stream["duration"].toString().toDouble() - 1.5) < 0.02);
        }
    }

    // A desktop with a decimal-comma locale: the floats of a preset reach the
    // engine with decimal points and the file converts.
    void floatOptionsUnderADecimalCommaLocale_data() { autorunConvertsIntoAFolder_data(); }
    void floatOptionsUnderADecimalCommaLocale()
    {
        QFETCH(QString, inproc);
        QTemporaryDir dir;
        const QString a = dir.filePath("a.wav");
        QVERIFY(makeTone(a, 44100, "pcm_s24le"));
        QFile preset(dir.filePath("floats.json"));
        QVERIFY(preset.open(QIODevice::WriteOnly));
        preset.write(R"({"algorithm": "window", "window_type": "kaiser", "beta": 8.5,
                         "stopgain_alpha": 140.5, "abs_db_value": 1.5})");
        preset.close();
        const AppRun run = runApp(dir, {a}, {{"ZUVO_GUI_INPROC", inproc}, {"LC_ALL", "de_DE.UTF-8"},
                                             {"ZUVO_AI_PRESET", preset.fileName()}});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.log.contains("[log] ✓ a.wav 完成\n"), qPrintable(run.log));
        QVERIFY2(run.log.contains("--stopgain-alpha 140.500000 --window-type kaiser --beta 8.500000 "
                                  "--unpredistortion -pdfrp --absdb 1.500000 --sos-ef "),
                 qPrintable(run.log));
        QCOMPARE(probe(dir.filePath("out/a.dsf"))["codec_name"].toString(), QString("dsd_lsbf_planar"));
    }

    // The Basic page's denoise tier and report boxes and the Advanced page's
    // repair rows, as a preset sets them, through the real engine: the run
    // repairs, reports its levels and writes the PDF report beside the DSD.
    void restorationAndReportsThroughTheWindow_data() { autorunConvertsIntoAFolder_data(); }
    void restorationAndReportsThroughTheWindow()
    {
        QFETCH(QString, inproc);
        QTemporaryDir dir;
        const QString a = dir.filePath("a.wav");
        QVERIFY(makeTone(a, 44100, "pcm_s24le"));
        const QString preset = writePreset(dir, R"({"denoise_tier": 2, "report": true, "report_peak": true,
            "pdfreport": true, "noise_profiling": true,
            "advanced": {"--dehum": "", "--dehum-q": "10", "--decrackle": "", "--expand": ""}})");
        QVERIFY(!preset.isEmpty());
        const AppRun run = runApp(dir, {a}, {{"ZUVO_GUI_INPROC", inproc}, {"ZUVO_AI_PRESET", preset}});
        QCOMPARE(run.exitCode, 0);
        const QString& log = run.log;
        QVERIFY2(log.contains("[log] ✓ a.wav 完成\n"), qPrintable(log));
        for (const char* expected : {"--dehum --dehum-q 10 --decrackle --expand ", "--denoise standard --keep-harmonics off",
                                     "--noise-profiling", "channel 1: peak ", "channel 2: dynamic range "})
            QVERIFY2(log.contains(expected), expected);
        const QJsonObject stream = probe(dir.filePath("out/a.dsf"));
        QCOMPARE(stream["codec_name"].toString(), QString("dsd_lsbf_planar"));
        QVERIFY(qAbs(stream["duration"].toString().toDouble() - 1.5) < 0.02);
        const QString pdf = dir.filePath("out/a.report.pdf");
        QVERIFY2(toolOutput("pdfinfo", {pdf}).contains(QRegularExpression("Pages:\\s+4\\n")), qPrintable(pdf));
        const QString text = toolOutput("pdftotext", {pdf, "-"});
        QVERIFY2(text.contains("--denoise standard") && text.contains("Noise per 1 kHz band"), qPrintable(text));
    }

    // "--measure" from the Advanced page: the loudness figures reach the log
    // and the run counts as done without writing any file.
    void measureOnlyThroughTheWindow()
    {
        QTemporaryDir dir;
        const QString a = dir.filePath("a.wav");
        QVERIFY(makeTone(a, 44100, "pcm_s24le"));
        const QString preset = writePreset(dir, R"({"advanced": {"--measure": ""}})");
        const AppRun run = runApp(dir, {a}, {{"ZUVO_AI_PRESET", preset}});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.log.contains("[log] file,integrated_lufs,lra_lu,true_peak_dbtp,plr_db\n[log] " + a + ","),
                 qPrintable(run.log));
        QVERIFY2(run.log.contains("[log] ✓ a.wav 完成\n"), qPrintable(run.log));
        QVERIFY(!QFile::exists(dir.filePath("out/a.dsf")));
        QVERIFY(!QFile::exists(dir.filePath("out/a.report.pdf")));
    }

    // While the engine runs inside the program, descriptor 2 belongs to it;
    // the program's own Qt messages must still go to the real standard error.
    void qtMessagesStayOutOfTheEngineLog()
    {
        QTemporaryDir dir;
        const QString a = dir.filePath("a.wav");
        QVERIFY(makeTone(a, 44100, "pcm_s24le"));
        const AppRun run = runApp(dir, {a}, {{"ZUVO_GUI_INPROC", "1"}, {"QT_LOGGING_RULES", "qt.text.font.*=true"}});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.log.contains("[log] ✓ a.wav 完成\n"), qPrintable(run.log));
        QVERIFY2(!run.log.contains("qt.text.font"), qPrintable(run.log));
        QVERIFY(run.stderrText.contains("qt.text.font"));
    }
};

QTEST_GUILESS_MAIN(TestRealEngineGui)
#include "test_real_engine_gui.moc"
