#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include "engine_discovery.h"
#include "engine_log.h"
#include "log_mirror.h"
#include "startup_env.h"

namespace {

// Restores an environment variable when the test scope ends.
class EnvGuard {
public:
    explicit EnvGuard(const char* name)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), old_(qgetenv(name)) {}
    ~EnvGuard()
    {
        if (wasSet_)
            qputenv(name_, old_);
        else
            qunsetenv(name_);
    }
    void set(const QByteArray& value) { qputenv(name_, value); }
    void unset() { qunsetenv(name_); }

private:
    const char* name_;
    bool wasSet_;
    QByteArray old_;
};

void makeExecutable(const QString& path)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("#!/bin/sh\nexit 0\n");
    f.close();
    f.setPermissions(f.permissions() | QFileDevice::ExeOwner | QFileDevice::ExeUser);
}

QProcessEnvironment guiEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("ZUVO_NO_UPDATE_CHECK", "1");
    return env;
}

// Starts the front-end, waits for its screenshot line, then ends it.
QString runGuiUntilShot(const QProcessEnvironment& env, const QStringList& args, const QString& shot)
{
    QProcessEnvironment e = env;
    e.insert("ZUVO_GUI_SHOT", shot);
    QProcess p;
    p.setProcessEnvironment(e);
    p.start(ZUVO_APP_PATH, args);
    if (!p.waitForStarted(5000))
        return {};
    QByteArray out;
    QElapsedTimer t;
    t.start();
    while (!out.contains("[shot]") && t.elapsed() < 20000) {
        p.waitForReadyRead(200);
        out += p.readAllStandardOutput();
    }
    p.kill();
    p.waitForFinished(5000);
    return QString::fromUtf8(out);
}

} // namespace

class TestAppStartup : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(settingsDir_.isValid());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir_.path());
    }

    void engineModeIsChosenByTheFirstArgument_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<bool>("engine");
        QTest::newRow("no arguments") << QStringList{} << false;
        QTest::newRow("dash option") << QStringList{"-x"} << true;
        QTest::newRow("double dash") << QStringList{"--version"} << true;
        QTest::newRow("file name") << QStringList{"song.wav", "--version"} << false;
        QTest::newRow("lone dash") << QStringList{"-"} << true;
    }
    void engineModeIsChosenByTheFirstArgument()
    {
        QFETCH(QStringList, args);
        QFETCH(bool, engine);
        QList<QByteArray> storage{"ZuvoAudioTools"};
        for (const QString& a : args)
            storage << a.toUtf8();
        std::vector<const char*> argv;
        for (const QByteArray& s : storage)
            argv.push_back(s.constData());
        QCOMPARE(isEngineInvocation(int(argv.size()), argv.data()), engine);
    }

    void engineModeRunsWithoutAWindow()
    {
        // No display at all: a window would abort the program, the engine must not care.
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("QT_QPA_PLATFORM");
        env.remove("DISPLAY");
        env.remove("WAYLAND_DISPLAY");
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(ZUVO_APP_PATH, {"--version"});
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(p.exitCode(), 0);
        QVERIFY(p.readAllStandardOutput().startsWith("ZuvoEngine "));

        p.start(ZUVO_APP_PATH, {"--no-such-option"});
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(p.exitCode(), 2);
        QVERIFY(p.readAllStandardError().contains("--no-such-option"));
    }

    void frontEndOpensWithEngineLineMirrored()
    {
        QTemporaryDir dir;
        const QString mirror = dir.filePath("gui.log");
        const QString shot = dir.filePath("shot.png");
        QProcessEnvironment env = guiEnvironment();
        env.insert("ZUVO_AI_GUI_LOG", mirror);
        env.insert("ZUVO_SETTINGS_DIR", dir.filePath("settings"));
        const QString out = runGuiUntilShot(env, {"not-an-option.wav"}, shot);
        QVERIFY2(out.contains("[shot] saved -> " + shot + " (visible=1 1180x760)"), qPrintable(out));
        QVERIFY(QFileInfo(shot).size() > 1000);
        QVERIFY(QFileInfo(dir.filePath("settings")).isDir());

        QFile f(mirror);
        QVERIFY(f.open(QIODevice::ReadOnly | QIODevice::Text));
        const QString text = QString::fromUtf8(f.readAll());
        QVERIFY2(text.startsWith("[log] 找到 ZuvoEngine (音频转换引擎): "), qPrintable(text));
    }

    void programStandsInForAMissingEngine()
    {
        // Nothing of ours can be found when the program is copied alone and PATH is empty;
        // it then stands in for the engine itself, so the log names its own path.
        QTemporaryDir dir;
        const QString copy = dir.filePath("ZuvoAudioTools");
        QVERIFY(QFile::copy(ZUVO_APP_PATH, copy));
        QProcessEnvironment env = guiEnvironment();
        env.insert("PATH", dir.filePath("empty"));
        env.insert("ZUVO_AI_GUI_LOG", dir.filePath("gui.log"));
        QProcess p;
        const QString shot = dir.filePath("s.png");
        env.insert("ZUVO_GUI_SHOT", shot);
        p.setProcessEnvironment(env);
        p.start(copy);
        QVERIFY(p.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(shot), 20000);
        p.kill();
        p.waitForFinished();
        QFile f(dir.filePath("gui.log"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(f.readLine()).trimmed(),
                 "[log] 找到 ZuvoEngine (音频转换引擎): " + QFileInfo(copy).absoluteFilePath());
    }

    void settingsDirBlankIsAbsent()
    {
        EnvGuard g("ZUVO_SETTINGS_DIR");
        g.set("   ");
        QCOMPARE(applySettingsDirFromEnvironment(), QString());
        QTemporaryDir dir;
        const QString wanted = dir.filePath("a/b/c");
        g.set(("  " + wanted + " ").toLocal8Bit());
        QCOMPARE(applySettingsDirFromEnvironment(), wanted);
        QVERIFY(QFileInfo(wanted).isDir());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir_.path());
    }

    void autorunValueDropsEmptyParts()
    {
        QCOMPARE(splitAutorunValue("a.wav||out"), (QStringList{"a.wav", "out"}));
        QCOMPARE(splitAutorunValue("|a|b|c|"), (QStringList{"a", "b", "c"}));
        QCOMPARE(splitAutorunValue(""), QStringList{});
    }

    void environmentIntIsZeroWhenNotANumber()
    {
        EnvGuard g("ZUVO_TEST_NUMBER");
        g.set("1500");
        QCOMPARE(environmentInt("ZUVO_TEST_NUMBER"), 1500);
        g.set("soon");
        QCOMPARE(environmentInt("ZUVO_TEST_NUMBER"), 0);
        g.unset();
        QCOMPARE(environmentInt("ZUVO_TEST_NUMBER"), 0);
    }

    void engineDiscoveryOrder()
    {
        EnvGuard engineEnv("ZUVO_ENGINE_BIN");
        EnvGuard playerEnv("ZUVO_PLAYER_BIN");
        EnvGuard pathEnv("PATH");
        QTemporaryDir dir;
        const QString onPath = dir.filePath("path");
        QDir().mkpath(onPath);
        pathEnv.set(QFile::encodeName(onPath));

        // 1. An existing file named by the variable wins, made absolute.
        const QString named = dir.filePath("custom-engine");
        makeExecutable(named);
        const QString oldCwd = QDir::currentPath();
        QDir::setCurrent(dir.path());
        engineEnv.set("custom-engine");
        QCOMPARE(findEngine(), QFileInfo(named).absoluteFilePath());
        QDir::setCurrent(oldCwd);

        // A variable naming nothing is ignored silently; with nothing beside the
        // program and nothing on PATH, the program itself is the engine.
        engineEnv.set(QFile::encodeName(dir.filePath("missing")));
        QCOMPARE(findEngine(), QCoreApplication::applicationFilePath());

        // 3. PATH.
        makeExecutable(onPath + "/" + executableFileName("ZuvoEngine"));
        QCOMPARE(findEngine(), onPath + "/" + executableFileName("ZuvoEngine"));

        // The player has no stand-in.
        playerEnv.unset();
        QCOMPARE(findPlayer(), QString());
        makeExecutable(onPath + "/" + executableFileName("ZuvoPlayerEngine"));
        QCOMPARE(findPlayer(), onPath + "/" + executableFileName("ZuvoPlayerEngine"));

        // 2. Beside the program beats PATH.
        const QString beside = QCoreApplication::applicationDirPath() + "/" + executableFileName("ZuvoEngine");
        makeExecutable(beside);
        QCOMPARE(findEngine(), beside);
        QFile::remove(beside);
    }

    void engineLogPlacement()
    {
        EnvGuard logEnv("ZUVO_ENGINE_LOG");
        logEnv.unset();

        setKeepEngineLog(false);
        std::unique_ptr<QTemporaryDir> ownerA, ownerB;
        const QString a = engineLogPath("zuvo-audiotools", &ownerA);
        const QString b = engineLogPath("zuvo-audiotools", &ownerB);
        QVERIFY(ownerA && ownerB);
        QVERIFY(a != b);
        QCOMPARE(QFileInfo(a).fileName(), QString("zuvo-audiotools.log"));
        QVERIFY(QFileInfo(a).dir().dirName().startsWith("zuvo-log-"));
        const QString dirA = QFileInfo(a).absolutePath();
        QVERIFY(QFileInfo(dirA).isDir());
        ownerA.reset();
        QVERIFY(!QFileInfo::exists(dirA));

        setKeepEngineLog(true);
        QVERIFY(keepEngineLog());
        std::unique_ptr<QTemporaryDir> none;
        const QString kept = engineLogPath("zuvo-audiotools", &none);
        QVERIFY(!none);
        QCOMPARE(kept, QDir(QDir::tempPath()).filePath("zuvo-logs/zuvo-audiotools.log"));
        QVERIFY(QFileInfo(QFileInfo(kept).absolutePath()).isDir());
        setKeepEngineLog(false);

        // Without an owner nothing temporary can be made.
        QCOMPARE(engineLogPath("probe", nullptr), QDir(QDir::tempPath()).filePath("zuvo-logs/probe.log"));

        logEnv.set("/somewhere/fixed.log");
        QCOMPARE(engineLogPath("zuvo-audiotools", &none), QString("/somewhere/fixed.log"));
        QVERIFY(!none);
    }

    void twoProgramRunsUseTwoTemporaryLogDirsThatVanish()
    {
        QTemporaryDir tmp; // private TMPDIR so we can list what the runs leave behind
        QProcessEnvironment env = guiEnvironment();
        env.insert("TMPDIR", tmp.path());
        env.insert("ZUVO_SETTINGS_DIR", tmp.filePath("settings"));
        env.remove("ZUVO_ENGINE_LOG");
        QProcess a, b;
        for (QProcess* p : {&a, &b}) {
            QProcessEnvironment e = env;
            e.insert("ZUVO_GUI_SHOT", tmp.filePath(p == &a ? "a.png" : "b.png"));
            p->setProcessEnvironment(e);
            p->start(ZUVO_APP_PATH);
            QVERIFY(p->waitForStarted());
        }
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(tmp.filePath("a.png")) && QFile::exists(tmp.filePath("b.png")), 20000);
        const QStringList dirs = QDir(tmp.path()).entryList({"zuvo-log-*"}, QDir::Dirs);
        QCOMPARE(dirs.size(), 2);
        for (QProcess* p : {&a, &b}) {
            p->terminate(); // a polite close lets the program clean up after itself
            QVERIFY(p->waitForFinished(10000));
        }
        QCOMPARE(QDir(tmp.path()).entryList({"zuvo-log-*"}, QDir::Dirs).size(), 0);
    }

    void mirrorPrefixesEachLine()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("mirror.txt");
        {
            LogMirror m(path);
            m.write("first", false);
            m.write("bad news", true);
            m.write("第三行", false);
        }
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(f.readAll()), QString("[log] first\n[err] bad news\n[log] 第三行\n"));

        LogMirror unwritable(dir.filePath("no/such/dir/mirror.txt"));
        unwritable.write("lost", false); // must neither crash nor create anything
        QVERIFY(!QFileInfo::exists(dir.filePath("no")));
    }

private:
    QTemporaryDir settingsDir_;
};

QTEST_GUILESS_MAIN(TestAppStartup)
#include "test_app_startup.moc"
