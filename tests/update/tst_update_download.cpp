#include <QSignalSpy>
#include <QtTest>

#include "update_checker.h"
#include "update_downloader.h"
#include "update_test_server.h"
#include "update_version.h"

namespace {

struct RunResult {
    bool finished = false;
    bool failed = false;
    QString message;
    QStringList statuses;
};

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeExecutable(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(text);
    f.close();
    f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
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

} // namespace

class TestUpdateDownload : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void goodArchiveIsInstalledAndProgramRestarted();
    void corruptOverwriteFallsBackToInstaller();
    void checksumMismatchDeletesTheFile();
    void sizeMismatch();
    void traversalArchiveIsRefusedBeforeAnythingIsWritten();
    void downgradeIsNeverInstalled();
    void nothingToDownload();
    void failedDownload();
    void verifiedPayloadStaysWhenTheScriptCannotBeWritten();
    void downloadFolderThatIsALinkIsRefused();
    void unwritableOverwriteGoesOnWithTheInstaller();

private:
    // A scratch installation whose program leaves a mark when started.
    InstallTarget makeInstall(const QString& name);
    QByteArray buildPayload(const QString& name, const QString& marker);
    RunResult run(const UpdateInfo& info, const InstallTarget& target);
    QString downloaded(const QString& name) const { return tmp_.filePath(QStringLiteral("zuvo-update/") + name); }

    UpdateTestServer server_;
    QTemporaryDir tmp_;
    QTemporaryDir work_;
};

void TestUpdateDownload::initTestCase()
{
    QVERIFY(server_.start());
    QVERIFY(tmp_.isValid() && work_.isValid());
    // The download folder lives in the user's temporary folder.
    qputenv("TMPDIR", QFile::encodeName(tmp_.path()));
    QCOMPARE(UpdateDownloader::downloadFolder(), tmp_.filePath(QStringLiteral("zuvo-update")));
}

InstallTarget TestUpdateDownload::makeInstall(const QString& name)
{
    InstallTarget t;
    t.installDir = work_.filePath(name);
    t.programPath = t.installDir + QStringLiteral("/bin/prog");
    t.waitPid = finishedPid();
    writeExecutable(t.programPath, "#!/bin/sh\necho old > \"$(dirname \"$0\")/../started\"\n");
    return t;
}

QByteArray TestUpdateDownload::buildPayload(const QString& name, const QString& marker)
{
    const QString stage = work_.filePath(name + QStringLiteral("-stage"));
    writeExecutable(stage + QStringLiteral("/bin/prog"), "#!/bin/sh\necho " + marker.toUtf8() + " > \"$(dirname \"$0\")/../started\"\n");
    writeExecutable(stage + QStringLiteral("/share/zuvo/notes.txt"), "release notes");
    QProcess tar;
    tar.start(QStringLiteral("tar"), {"-C", stage, "-cf", work_.filePath(name), "."});
    tar.waitForFinished();
    return readAll(work_.filePath(name));
}

RunResult TestUpdateDownload::run(const UpdateInfo& info, const InstallTarget& target)
{
    UpdateChecker checker;
    checker.downloader()->target() = target;
    RunResult r;
    QEventLoop loop;
    connect(&checker, &UpdateChecker::statusText, &loop, [&](const QString& s) { r.statuses << s; });
    connect(&checker, &UpdateChecker::installFinished, &loop, [&](const QString& m) {
        r.finished = true;
        r.message = m;
        loop.quit();
    });
    connect(&checker, &UpdateChecker::installFailed, &loop, [&](const QString& m) {
        r.failed = true;
        r.message = m;
        loop.quit();
    });
    QTimer::singleShot(30000, &loop, &QEventLoop::quit);
    checker.startDownloadAndInstall(info);
    if (!r.finished && !r.failed)
        loop.exec();
    return r;
}

void TestUpdateDownload::goodArchiveIsInstalledAndProgramRestarted()
{
    const InstallTarget target = makeInstall(QStringLiteral("good"));
    const QByteArray payload = buildPayload(QStringLiteral("good.tar"), QStringLiteral("new"));
    server_.put(QStringLiteral("good.tar"), payload);
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    // Redirected download, size 0 (no size test) and an upper-case checksum.
    info.overwrite = {QStringLiteral("good.tar"), server_.url(QStringLiteral("redirect/good.tar")), 0,
                      UpdateTestServer::sha256(payload).toUpper()};
    const RunResult r = run(info, target);
    QVERIFY2(r.finished, qPrintable(r.message));
    QCOMPARE(r.message, QStringLiteral("更新已下载并校验通过。程序将退出, 由系统完成更新后自动重新启动。"));
    QCOMPARE(readAll(downloaded(QStringLiteral("good.tar"))), payload);
    QCOMPARE(QFile::permissions(tmp_.filePath(QStringLiteral("zuvo-update"))) & 0x0077, 0);
    // The detached script installs and starts the new program.
    const QString started = target.installDir + QStringLiteral("/started");
    QTRY_COMPARE_WITH_TIMEOUT(readAll(started), QByteArray("new\n"), 15000);
    QCOMPARE(readAll(target.installDir + QStringLiteral("/share/zuvo/notes.txt")), QByteArray("release notes"));
}

void TestUpdateDownload::corruptOverwriteFallsBackToInstaller()
{
    const InstallTarget target = makeInstall(QStringLiteral("fallback"));
    const QByteArray payload = buildPayload(QStringLiteral("fb.tar"), QStringLiteral("new"));
    server_.put(QStringLiteral("fb.tar"), payload);
    const QByteArray installer = "#!/bin/sh\n[ \"$1\" = --silent ] && echo ran > '" + target.installDir.toUtf8() + "/installer-ran'\n";
    server_.put(QStringLiteral("setup.run"), installer);
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    const QString wrong = UpdateTestServer::sha256("something else");
    info.overwrite = {QStringLiteral("fb.tar"), server_.url(QStringLiteral("fb.tar")), payload.size(), wrong};
    info.installer = {QStringLiteral("setup.run"), server_.url(QStringLiteral("setup.run")), installer.size(),
                      UpdateTestServer::sha256(installer)};
    const RunResult r = run(info, target);
    QVERIFY2(r.finished, qPrintable(r.message));
    const QString reason = QStringLiteral("校验和不匹配, 已丢弃 (期望 %1, 实际 %2)").arg(wrong, UpdateTestServer::sha256(payload));
    QVERIFY2(r.statuses.contains(QStringLiteral("覆盖载荷不可用 (%1)，改用安装包").arg(reason)), qPrintable(r.statuses.join('|')));
    QVERIFY(!QFile::exists(downloaded(QStringLiteral("fb.tar"))));
    QVERIFY(QFile::exists(downloaded(QStringLiteral("setup.run"))));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(target.installDir + QStringLiteral("/installer-ran")), 15000);
    // Only the installer ran: the program is the old one, restarted.
    QTRY_COMPARE_WITH_TIMEOUT(readAll(target.installDir + QStringLiteral("/started")), QByteArray("old\n"), 15000);
    QVERIFY(!QFile::exists(target.installDir + QStringLiteral("/share")));
}

void TestUpdateDownload::checksumMismatchDeletesTheFile()
{
    server_.put(QStringLiteral("bad.tar"), "not what was promised");
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.overwrite = {QStringLiteral("bad.tar"), server_.url(QStringLiteral("bad.tar")), 0, QStringLiteral("ABCD")};
    const RunResult r = run(info, makeInstall(QStringLiteral("mismatch")));
    QVERIFY(r.failed);
    QCOMPARE(r.message, QStringLiteral("校验和不匹配, 已丢弃 (期望 ABCD, 实际 %1)").arg(UpdateTestServer::sha256("not what was promised")));
    QVERIFY(!QFile::exists(downloaded(QStringLiteral("bad.tar"))));
}

void TestUpdateDownload::sizeMismatch()
{
    const QByteArray data = "twelve bytes";
    server_.put(QStringLiteral("size.tar"), data);
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.overwrite = {QStringLiteral("size.tar"), server_.url(QStringLiteral("size.tar")), 5, UpdateTestServer::sha256(data)};
    const RunResult r = run(info, makeInstall(QStringLiteral("size")));
    QVERIFY(r.failed);
    QCOMPARE(r.message, QStringLiteral("下载文件大小不符 (期望 5 字节, 实际 12)"));
    QVERIFY(!QFile::exists(downloaded(QStringLiteral("size.tar"))));
}

void TestUpdateDownload::traversalArchiveIsRefusedBeforeAnythingIsWritten()
{
    QProcess py;
    py.start(QStringLiteral("python3"), {QStringLiteral(ZUVO_TEST_SOURCE_DIR "/make_tars.py"), work_.path()});
    QVERIFY(py.waitForFinished(30000));
    const QByteArray evil = readAll(work_.filePath(QStringLiteral("dotdot.tar")));
    QVERIFY(!evil.isEmpty());
    server_.put(QStringLiteral("evil.tar"), evil);
    const InstallTarget target = makeInstall(QStringLiteral("evil/inside"));
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.overwrite = {QStringLiteral("evil.tar"), server_.url(QStringLiteral("evil.tar")), evil.size(), UpdateTestServer::sha256(evil)};
    const RunResult r = run(info, target);
    QVERIFY(r.failed);
    QCOMPARE(r.message, QStringLiteral("更新包的内容不安全或已损坏, 已拒绝 (member leaves the folder: ../escape)"));
    QVERIFY(!QFile::exists(downloaded(QStringLiteral("evil.tar"))));
    QTest::qWait(500);
    QVERIFY(!QFile::exists(work_.filePath(QStringLiteral("evil/escape"))));
    QVERIFY(!QFile::exists(target.installDir + QStringLiteral("/started")));
}

void TestUpdateDownload::downgradeIsNeverInstalled()
{
    UpdateInfo info;
    info.version = QStringLiteral("0.0.1");
    info.overwrite = {QStringLiteral("x.tar"), server_.url(QStringLiteral("x.tar")), 0, QStringLiteral("ab")};
    const RunResult r = run(info, makeInstall(QStringLiteral("down")));
    QVERIFY(r.failed);
    QCOMPARE(r.message, QStringLiteral("拒绝安装版本 0.0.1: 它不比当前版本 %1 新").arg(appVersion()));
    QVERIFY(server_.requests().filter(QStringLiteral("/x.tar")).isEmpty());
}

void TestUpdateDownload::nothingToDownload()
{
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.installer.url = server_.url(QStringLiteral("x")); // no checksum: not usable
    const RunResult r = run(info, makeInstall(QStringLiteral("none")));
    QCOMPARE(r.message, QStringLiteral("清单里既没有覆盖载荷也没有安装包"));
}

void TestUpdateDownload::failedDownload()
{
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.installer = {QStringLiteral("gone.run"), server_.url(QStringLiteral("gone.run")), 0, QStringLiteral("ab")};
    const RunResult r = run(info, makeInstall(QStringLiteral("gone")));
    QVERIFY(r.failed);
    QVERIFY2(r.message.startsWith(QStringLiteral("下载失败: ")), qPrintable(r.message));
    QVERIFY(!QFile::exists(downloaded(QStringLiteral("gone.run"))));
}

void TestUpdateDownload::verifiedPayloadStaysWhenTheScriptCannotBeWritten()
{
    const QByteArray payload = buildPayload(QStringLiteral("kept.tar"), QStringLiteral("new"));
    server_.put(QStringLiteral("kept.tar"), payload);
    // A folder where the script should go makes writing it fail.
    const QString script = downloaded(QStringLiteral("zuvo-update.sh"));
    QFile::remove(script);
    QVERIFY(QDir().mkpath(script));
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.overwrite = {QStringLiteral("kept.tar"), server_.url(QStringLiteral("kept.tar")), payload.size(), UpdateTestServer::sha256(payload)};
    const RunResult r = run(info, makeInstall(QStringLiteral("kept")));
    QDir(script).removeRecursively();
    QVERIFY(r.failed);
    QCOMPARE(r.message, QStringLiteral("无法写更新脚本: %1").arg(script));
    QCOMPARE(readAll(downloaded(QStringLiteral("kept.tar"))), payload);
}

void TestUpdateDownload::downloadFolderThatIsALinkIsRefused()
{
    // Someone else's "zuvo-update" in a shared temporary folder, here a link.
    QTemporaryDir shared;
    QVERIFY(QFile::link(work_.path(), shared.filePath(QStringLiteral("zuvo-update"))));
    qputenv("TMPDIR", QFile::encodeName(shared.path()));
    server_.put(QStringLiteral("link.tar"), "data");
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    info.overwrite = {QStringLiteral("link.tar"), server_.url(QStringLiteral("link.tar")), 0, UpdateTestServer::sha256("data")};
    const RunResult r = run(info, makeInstall(QStringLiteral("link")));
    qputenv("TMPDIR", QFile::encodeName(tmp_.path()));
    QVERIFY(r.failed);
    QCOMPARE(r.message, QStringLiteral("无法写入临时文件: %1").arg(shared.filePath(QStringLiteral("zuvo-update/link.tar"))));
    QVERIFY(!QFile::exists(work_.filePath(QStringLiteral("link.tar"))));
}

void TestUpdateDownload::unwritableOverwriteGoesOnWithTheInstaller()
{
    const InstallTarget target = makeInstall(QStringLiteral("unwritable"));
    const QByteArray installer = "#!/bin/sh\necho ran > '" + target.installDir.toUtf8() + "/installer-ran'\n";
    server_.put(QStringLiteral("setup2.run"), installer);
    UpdateInfo info;
    info.version = QStringLiteral("9.9.9");
    // A name that cannot be a file here (the manifest reader refuses it too).
    info.overwrite = {QStringLiteral("sub/x.tar"), server_.url(QStringLiteral("x.tar")), 0, QStringLiteral("ab")};
    info.installer = {QStringLiteral("setup2.run"), server_.url(QStringLiteral("setup2.run")), 0, UpdateTestServer::sha256(installer)};
    const RunResult r = run(info, target);
    QVERIFY2(r.finished, qPrintable(r.message));
    QVERIFY(r.statuses.contains(QStringLiteral("无法写入临时文件: %1").arg(downloaded(QStringLiteral("sub/x.tar")))));
    QVERIFY(server_.requests().filter(QStringLiteral("/x.tar\t")).isEmpty());
    const QByteArray script = readAll(downloaded(QStringLiteral("zuvo-update.sh")));
    QVERIFY(script.contains("\npayload=''\n"));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(target.installDir + QStringLiteral("/installer-ran")), 15000);
}

QTEST_GUILESS_MAIN(TestUpdateDownload)
#include "tst_update_download.moc"
