// The whole program as a user's automation drives it: the real engine, in
// process and as a child process, converting a WAV and a FLAC into a folder;
// an independent reader (ffprobe) must accept what comes out.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
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

        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("ZUVO_NO_UPDATE_CHECK", "1");
        env.insert("ZUVO_SETTINGS_DIR", dir.filePath("settings"));
        env.insert("ZUVO_GUI_INPROC", inproc);
        env.insert("ZUVO_AI_GUI_LOG", dir.filePath("gui.log"));
        env.insert("ZUVO_AI_AUTORUN", a + "|" + b + "|" + dir.filePath("out") + "/");
        env.insert("ZUVO_AI_AUTOCLOSE", "1");
        env.remove("ZUVO_ENGINE_BIN");
        QProcess app;
        app.setProcessEnvironment(env);
        app.start(ZUVO_APP_PATH);
        QVERIFY(app.waitForFinished(120000));
        QCOMPARE(app.exitStatus(), QProcess::NormalExit);
        QCOMPARE(app.exitCode(), 0);

        QFile log(dir.filePath("gui.log"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(log.readAll());
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
};

QTEST_GUILESS_MAIN(TestRealEngineGui)
#include "test_real_engine_gui.moc"
