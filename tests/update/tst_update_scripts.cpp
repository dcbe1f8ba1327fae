#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "tar_listing.h"
#include "update_install.h"
#include "update_script.h"

namespace {

void writeFile(const QString& path, const QByteArray& data, bool exec = false)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(data);
    f.close();
    if (exec)
        f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
}

// Every entry under `root`: type, permissions and bytes (or link target).
QMap<QString, QByteArray> snapshot(const QString& root)
{
    QMap<QString, QByteArray> out;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo fi(it.next());
        const QString rel = QDir(root).relativeFilePath(fi.filePath());
        QByteArray v = QByteArray::number(int(fi.permissions())) + ':';
        if (fi.isSymLink())
            v += "L" + fi.symLinkTarget().toUtf8();
        else if (fi.isDir())
            v += "D";
        else {
            QFile f(fi.filePath());
            f.open(QIODevice::ReadOnly);
            v += "F" + f.readAll();
        }
        out.insert(rel, v);
    }
    return out;
}

// The id of a process that has already ended, as the script will see it.
qint64 finishedPid()
{
    QProcess p;
    p.start(QStringLiteral("true"));
    p.waitForStarted();
    const qint64 pid = p.processId();
    p.waitForFinished();
    return pid;
}

QString sha256Of(const QString& path)
{
    QFile f(path);
    f.open(QIODevice::ReadOnly);
    QCryptographicHash h(QCryptographicHash::Sha256);
    h.addData(&f);
    return QString::fromLatin1(h.result().toHex());
}

} // namespace

class TestUpdateScripts : public QObject {
    Q_OBJECT
private slots:
    void windowsScriptWithBothPayloads();
    void windowsScriptCopiesANonZipPayload();
    void windowsScriptInstallerOnly();
    void linuxInstallSucceeds();
    void linuxInstallFailingHalfWayIsRolledBack();
    void linuxFallsBackToTheInstaller();
    void linuxScriptQuotesHostilePaths();
    void linuxElevatesOnlyTheInstallStep();

private:
    struct Scene {
        QTemporaryDir tmp;
        QString dest, payload, marker;
        UpdateScriptPlan plan;
    };
    void buildScene(Scene& s);
    int runScript(const Scene& s, QString* log = nullptr, const QString& extraPath = QString());
};

void TestUpdateScripts::windowsScriptWithBothPayloads()
{
    UpdateScriptPlan p;
    p.pid = 4242;
    p.overwritePath = QStringLiteral("C:/Users/u/AppData/Local/Temp/zuvo-update/zuvo-2.0.0.ZIP");
    p.installerPath = QStringLiteral("C:/Users/u/AppData/Local/Temp/zuvo-update/setup.exe");
    p.installDir = QStringLiteral("C:\\Program Files\\Zuvo");
    p.exeName = QStringLiteral("ZuvoAudioTools.exe");
    const QByteArray script = windowsUpdateScript(p);
    QVERIFY(script.endsWith("\r\n"));
    const QStringList lines = QString::fromUtf8(script).split(QStringLiteral("\r\n"));
    const QStringList expected{
        R"(@echo off)",
        R"(:wait)",
        R"(tasklist /FI "PID eq 4242" 2>nul | find "4242" >nul && (ping -n 2 127.0.0.1 >nul & goto wait))",
        R"(powershell -NoProfile -ExecutionPolicy Bypass -Command "Expand-Archive -Force -LiteralPath 'C:\Users\u\AppData\Local\Temp\zuvo-update\zuvo-2.0.0.ZIP' -DestinationPath 'C:\Program Files\Zuvo'")",
        R"(if errorlevel 1 goto install)",
        R"(start "" "C:\Program Files\Zuvo\ZuvoAudioTools.exe")",
        R"( exit /b)",
        R"(:install)",
        R"("C:\Users\u\AppData\Local\Temp\zuvo-update\setup.exe" /S)",
        R"(if errorlevel 1 ()",
        R"(  echo update did not finish; the program was NOT restarted > "C:\Program Files\Zuvo\update-failed.txt")",
        R"(  exit /b 1)",
        R"())",
        R"(start "" "C:\Program Files\Zuvo\ZuvoAudioTools.exe")",
        R"()"};
    QCOMPARE(lines.size(), expected.size());
    for (int i = 0; i < lines.size(); ++i)
        QCOMPARE(lines[i], expected[i]);
}

void TestUpdateScripts::windowsScriptCopiesANonZipPayload()
{
    UpdateScriptPlan p;
    p.pid = 7;
    p.overwritePath = QStringLiteral("C:\\T\\zuvo-update\\ZuvoAudioTools.exe");
    p.installDir = QStringLiteral("D:\\Zuvo");
    p.exeName = QStringLiteral("ZuvoAudioTools.exe");
    const QStringList lines = QString::fromUtf8(windowsUpdateScript(p)).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.value(3), QStringLiteral(R"(copy /Y "C:\T\zuvo-update\ZuvoAudioTools.exe" "D:\Zuvo\" >nul)"));
    QCOMPARE(lines.value(4), QStringLiteral("if errorlevel 1 goto install"));
    // No installer: the failure block follows the label directly.
    QCOMPARE(lines.value(7), QStringLiteral(":install"));
    QCOMPARE(lines.value(8), QStringLiteral("if errorlevel 1 ("));
}

void TestUpdateScripts::windowsScriptInstallerOnly()
{
    UpdateScriptPlan p;
    p.pid = 9;
    p.installerPath = QStringLiteral("C:\\T\\setup.exe");
    p.installDir = QStringLiteral("C:\\Z");
    p.exeName = QStringLiteral("Z.exe");
    const QStringList lines = QString::fromUtf8(windowsUpdateScript(p)).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.mid(0, 5), (QStringList{"@echo off", ":wait",
        R"(tasklist /FI "PID eq 9" 2>nul | find "9" >nul && (ping -n 2 127.0.0.1 >nul & goto wait))",
        ":install", R"("C:\T\setup.exe" /S)"}));
    QCOMPARE(lines.size(), 11);
}

void TestUpdateScripts::buildScene(Scene& s)
{
    QVERIFY(s.tmp.isValid());
    s.dest = s.tmp.filePath(QStringLiteral("install"));
    s.marker = s.tmp.filePath(QStringLiteral("restarted"));
    // The installation before the update.
    writeFile(s.dest + "/bin/prog", "#!/bin/sh\necho old > '" + s.marker.toUtf8() + "'\n", true);
    writeFile(s.dest + "/share/doc/readme", "old readme");
    writeFile(s.dest + "/share/keep.txt", "not in the update");
    QVERIFY(QFile::link(QStringLiteral("readme"), s.dest + "/share/doc/link"));
    // The update, packed by the system's tar.
    const QString stage = s.tmp.filePath(QStringLiteral("stage"));
    writeFile(stage + "/bin/prog", "#!/bin/sh\necho new > '" + s.marker.toUtf8() + "'\n", true);
    writeFile(stage + "/share/doc/readme", "new readme");
    writeFile(stage + "/share/doc/more/added.txt", "added");
    writeFile(stage + "/share/new/other.txt", QByteArray(300000, 'z'));
    QVERIFY(QFile::link(QStringLiteral("added.txt"), stage + "/share/doc/more/alias"));
    s.payload = s.tmp.filePath(QStringLiteral("dl/update.tar"));
    QDir().mkpath(QFileInfo(s.payload).absolutePath());
    QProcess tar;
    tar.start(QStringLiteral("tar"), {"-C", stage, "-cf", s.payload, "."});
    QVERIFY(tar.waitForFinished());
    QCOMPARE(tar.exitCode(), 0);

    QFile f(s.payload);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QList<TarMember> members;
    QCOMPARE(checkOverwritePayload(f, &members), QString());
    s.plan.pid = finishedPid();
    s.plan.overwritePath = s.payload;
    s.plan.overwriteSha256 = sha256Of(s.payload).toUpper();
    s.plan.installDir = s.dest;
    s.plan.programPath = s.dest + "/bin/prog";
    s.plan.exeName = QStringLiteral("prog");
    s.plan.backupDir = s.tmp.filePath(QStringLiteral("dl/backup"));
    plannedPaths(members, &s.plan.writtenPaths, &s.plan.directoryPaths);
}

int TestUpdateScripts::runScript(const Scene& s, QString* log, const QString& extraPath)
{
    const QString path = s.tmp.filePath(QStringLiteral("dl/zuvo-update.sh"));
    QFile f(path);
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    f.write(linuxUpdateScript(s.plan));
    f.close();
    QProcess sh;
    sh.setProcessChannelMode(QProcess::MergedChannels);
    if (!extraPath.isEmpty()) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("PATH"), extraPath + QLatin1Char(':') + env.value(QStringLiteral("PATH")));
        sh.setProcessEnvironment(env);
    }
    sh.start(QStringLiteral("/bin/sh"), {path});
    sh.waitForFinished(60000);
    if (log)
        *log = QString::fromUtf8(sh.readAll());
    return sh.exitCode();
}

void TestUpdateScripts::linuxInstallSucceeds()
{
    Scene s;
    buildScene(s);
    const auto before = snapshot(s.dest);
    QString log;
    QCOMPARE(runScript(s, &log), 0);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(s.marker), 5000);
    QFile m(s.marker);
    QVERIFY(m.open(QIODevice::ReadOnly));
    QCOMPARE(m.readAll(), QByteArray("new\n")); // the new program was started
    const auto after = snapshot(s.dest);
    QVERIFY(after.value("share/doc/readme").endsWith("Fnew readme"));
    QVERIFY(after.value("share/doc/more/added.txt").endsWith("Fadded"));
    QVERIFY(after.value("share/doc/more/alias").endsWith("added.txt"));
    QCOMPARE(after.value("share/keep.txt"), before.value("share/keep.txt"));
    QVERIFY(!after.contains("update-failed.txt"));
    QVERIFY(!QFileInfo::exists(s.plan.backupDir)); // the backup is cleared after success
}

void TestUpdateScripts::linuxInstallFailingHalfWayIsRolledBack()
{
    Scene s;
    buildScene(s);
    // Cut the archive inside a later member: tar writes the first members and
    // then fails, which is the half-way state the rollback must undo.
    QFile f(s.payload);
    QVERIFY(f.open(QIODevice::ReadWrite));
    QVERIFY(f.size() > 200000);
    QVERIFY(f.resize(f.size() - 150000));
    f.close();
    s.plan.overwriteSha256 = sha256Of(s.payload);
    const auto before = snapshot(s.dest);
    QString log;
    QCOMPARE(runScript(s, &log), 1);
    QTest::qWait(300);
    auto after = snapshot(s.dest);
    QVERIFY(after.contains("update-failed.txt"));
    QFile failed(s.dest + "/update-failed.txt");
    QVERIFY(failed.open(QIODevice::ReadOnly));
    QCOMPARE(failed.readAll(), QByteArray("update did not finish; the program was NOT restarted\n"));
    after.remove("update-failed.txt");
    QCOMPARE(after.keys(), before.keys());
    for (const QString& k : before.keys())
        QCOMPARE(after.value(k), before.value(k));
    QVERIFY(!QFile::exists(s.marker)); // not restarted
    QVERIFY2(log.contains("restoring the previous installation"), qPrintable(log));
}

void TestUpdateScripts::linuxFallsBackToTheInstaller()
{
    Scene s;
    buildScene(s);
    // The payload no longer matches the checksum it was verified with.
    s.plan.overwriteSha256 = QString(64, QLatin1Char('0'));
    const QString installer = s.tmp.filePath(QStringLiteral("dl/setup.run"));
    writeFile(installer, "#!/bin/sh\n[ \"$1\" = --silent ] && echo installed > \"$(dirname \"$0\")/installer-ran\"\n");
    s.plan.installerPath = installer;
    const auto before = snapshot(s.dest);
    QCOMPARE(runScript(s), 0);
    QVERIFY(QFile::exists(s.tmp.filePath(QStringLiteral("dl/installer-ran"))));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(s.marker), 5000);
    QCOMPARE(snapshot(s.dest), before); // the overwrite never touched the folder
}

void TestUpdateScripts::linuxScriptQuotesHostilePaths()
{
    Scene s;
    QVERIFY(s.tmp.isValid());
    s.dest = s.tmp.filePath(QStringLiteral("it's $(touch pwned) `x`"));
    QDir().mkpath(s.dest + "/bin");
    s.plan.pid = finishedPid();
    s.plan.installDir = s.dest;
    s.plan.programPath = s.dest + "/bin/none";
    s.plan.installerPath = s.tmp.filePath(QStringLiteral("dl/missing.run"));
    s.plan.backupDir = s.tmp.filePath(QStringLiteral("dl/backup"));
    QDir().mkpath(s.tmp.filePath(QStringLiteral("dl")));
    QCOMPARE(runScript(s), 1);
    QVERIFY(QFile::exists(s.dest + "/update-failed.txt"));
    QVERIFY(!QFile::exists(s.tmp.filePath(QStringLiteral("dl/pwned"))));
    QVERIFY(!QFile::exists(QStringLiteral("pwned")));
}

void TestUpdateScripts::linuxElevatesOnlyTheInstallStep()
{
    Scene s;
    buildScene(s);
    s.plan.elevate = true;
    // A stand-in for pkexec that notes how it was called and runs the command.
    const QString bin = s.tmp.filePath(QStringLiteral("fakebin"));
    const QString calls = s.tmp.filePath(QStringLiteral("pkexec-calls"));
    writeFile(bin + "/pkexec", "#!/bin/sh\necho \"$*\" >> '" + calls.toUtf8() + "'\nexec \"$@\"\n", true);
    QCOMPARE(runScript(s, nullptr, bin), 0);
    QFile f(calls);
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QString script = s.tmp.filePath(QStringLiteral("dl/zuvo-update.sh"));
    QCOMPARE(f.readAll(), ("/bin/sh " + script + " --install\n").toUtf8());
    // The restart is not elevated: it happens in the unelevated part.
    QTRY_COMPARE_WITH_TIMEOUT(snapshot(s.dest).value("share/doc/readme").endsWith("Fnew readme"), true, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(s.marker), 5000);
}

QTEST_GUILESS_MAIN(TestUpdateScripts)
#include "tst_update_scripts.moc"
