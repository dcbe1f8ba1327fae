#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include "update_checker.h"
#include "update_test_server.h"
#include "update_version.h"

namespace {

struct CheckResult {
    QString outcome; // "latest", "failed", "available" or "none"
    QString message;
    QString local, remote;
    UpdateInfo info;
};

QByteArray linuxManifest(const QString& version)
{
    // (kept free of raw strings: moc reads this file before the class)
    static const char* const text =
        "{\"version\": \"%1\", \"released\": \"2026-11-20\", \"notes\": \"n\", \"files\": [{"
        "\"platform\": \"linux-x64\", \"overwrite\": {\"name\": \"z.tar\", "
        "\"url\": \"http://127.0.0.1:1/z.tar\", \"size\": 0, \"sha256\": \"ab\"}}]}";
    return QString::fromUtf8(text).arg(version).toUtf8();
}

} // namespace

class TestUpdateCheck : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void redirectIsFollowedWithOurUserAgent();
    void sameFirstThreePartsIsLatest();
    void olderIsLatestNeverOffered();
    void otherPlatformOnly();
    void emptyVersion();
    void tamperedManifestIsRefused();
    void foreignSignatureIsRefused();
    void missingSignatureIsRefused();
    void malformedSignatureIsRefused();
    void base64SignatureIsAccepted();
    void stalledServerEndsTheCheck();
    void missingManifest();
    void urlFromEnvironment();

private:
    CheckResult check(const QString& path, int timeoutMs = 5000);
    UpdateTestServer server_;
};

void TestUpdateCheck::initTestCase()
{
    QVERIFY(server_.start());
}

void TestUpdateCheck::init()
{
    QFile::remove(server_.filePath(QStringLiteral("requests.log")));
}

CheckResult TestUpdateCheck::check(const QString& path, int timeoutMs)
{
    qputenv("ZUVO_UPDATE_URL", server_.url(path).toUtf8());
    UpdateChecker checker;
    checker.setTrustedKey(server_.publicKey());
    checker.setTransferTimeout(timeoutMs);
    CheckResult r{QStringLiteral("none"), {}, {}, {}, {}};
    QEventLoop loop;
    connect(&checker, &UpdateChecker::alreadyLatest, &loop, [&](const QString& l, const QString& rv) {
        r.outcome = QStringLiteral("latest");
        r.local = l;
        r.remote = rv;
        loop.quit();
    });
    connect(&checker, &UpdateChecker::checkFailed, &loop, [&](const QString& m) {
        r.outcome = QStringLiteral("failed");
        r.message = m;
        loop.quit();
    });
    connect(&checker, &UpdateChecker::updateAvailable, &loop, [&](const UpdateInfo& i) {
        r.outcome = QStringLiteral("available");
        r.info = i;
        loop.quit();
    });
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    checker.check(false);
    loop.exec();
    return r;
}

void TestUpdateCheck::redirectIsFollowedWithOurUserAgent()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(QStringLiteral("9.9.9"))));
    const CheckResult r = check(QStringLiteral("redirect/latest.json"));
    QCOMPARE(r.outcome, QStringLiteral("available"));
    QCOMPARE(r.info.version, QStringLiteral("9.9.9"));
    QCOMPARE(r.info.released, QStringLiteral("2026-11-20"));
    const QStringList req = server_.requests();
    const QString agent = QStringLiteral("ZuvoUpdater/1.0 (%1)").arg(appVersion());
    QVERIFY(req.contains(QStringLiteral("/redirect/latest.json\t") + agent));
    QVERIFY(req.contains(QStringLiteral("/latest.json\t") + agent));
    // The signature is asked for beside the address the check started from.
    QVERIFY(req.contains(QStringLiteral("/redirect/latest.json.sig\t") + agent));
}

void TestUpdateCheck::sameFirstThreePartsIsLatest()
{
    const QString remote = appVersion() + QStringLiteral(".7");
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(remote)));
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.outcome, QStringLiteral("latest"));
    QCOMPARE(r.local, appVersion());
    QCOMPARE(r.remote, remote);
}

void TestUpdateCheck::olderIsLatestNeverOffered()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(QStringLiteral("0.0.1"))));
    QCOMPARE(check(QStringLiteral("latest.json")).outcome, QStringLiteral("latest"));
}

void TestUpdateCheck::otherPlatformOnly()
{
    QByteArray m = linuxManifest(QStringLiteral("9.9.9"));
    m.replace("linux-x64", "windows-x64");
    QVERIFY(server_.publish(QStringLiteral("latest.json"), m));
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.outcome, QStringLiteral("failed"));
    QCOMPARE(r.message, QStringLiteral("清单里没有适用于本机 (%1) 的更新载荷").arg(updatePlatformKey()));
}

void TestUpdateCheck::emptyVersion()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), "{\"latest\": {\"version\": \"\"}}"));
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.message, QStringLiteral("更新清单里没有版本号"));
}

void TestUpdateCheck::tamperedManifestIsRefused()
{
    QByteArray m = linuxManifest(QStringLiteral("9.9.9"));
    QVERIFY(server_.publish(QStringLiteral("latest.json"), m));
    m.replace("z.tar\"", "y.tar\""); // same length, signature no longer matches
    server_.put(QStringLiteral("latest.json"), m);
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.outcome, QStringLiteral("failed"));
    QVERIFY2(r.message.contains(QStringLiteral("签名无效")), qPrintable(r.message));
}

void TestUpdateCheck::foreignSignatureIsRefused()
{
    const QString otherKey = server_.filePath(QStringLiteral("other.pem"));
    QProcess gen;
    gen.start(QStringLiteral(ZUVO_SIGN_TOOL), {QStringLiteral("genkey"), otherKey});
    QVERIFY(gen.waitForFinished(10000));
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(QStringLiteral("9.9.9")), otherKey));
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.outcome, QStringLiteral("failed"));
    QVERIFY2(r.message.contains(QStringLiteral("签名无效")), qPrintable(r.message));
}

void TestUpdateCheck::missingSignatureIsRefused()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(QStringLiteral("9.9.9"))));
    QFile::remove(server_.filePath(QStringLiteral("latest.json.sig")));
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.outcome, QStringLiteral("failed"));
    QVERIFY2(r.message.startsWith(QStringLiteral("无法获取更新清单的签名, 清单未被采用: ")), qPrintable(r.message));
}

void TestUpdateCheck::malformedSignatureIsRefused()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(QStringLiteral("9.9.9"))));
    server_.put(QStringLiteral("latest.json.sig"), QByteArray(63, 'x'));
    const CheckResult r = check(QStringLiteral("latest.json"));
    QCOMPARE(r.message, QStringLiteral("更新清单的签名格式不对, 清单未被采用"));
}

void TestUpdateCheck::base64SignatureIsAccepted()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), linuxManifest(QStringLiteral("9.9.9"))));
    QFile sig(server_.filePath(QStringLiteral("latest.json.sig")));
    QVERIFY(sig.open(QIODevice::ReadOnly));
    const QByteArray raw = sig.readAll();
    sig.close();
    server_.put(QStringLiteral("latest.json.sig"), raw.toBase64() + "\n");
    QCOMPARE(check(QStringLiteral("latest.json")).outcome, QStringLiteral("available"));
}

void TestUpdateCheck::stalledServerEndsTheCheck()
{
    QElapsedTimer t;
    t.start();
    const CheckResult r = check(QStringLiteral("stall/latest.json"), 700);
    QCOMPARE(r.outcome, QStringLiteral("failed"));
    QVERIFY2(r.message.startsWith(QStringLiteral("无法获取更新清单: ")), qPrintable(r.message));
    QVERIFY(t.elapsed() >= 600);
    QVERIFY(t.elapsed() < 10000);
}

void TestUpdateCheck::missingManifest()
{
    const CheckResult r = check(QStringLiteral("nothing-here.json"));
    QCOMPARE(r.outcome, QStringLiteral("failed"));
    QVERIFY2(r.message.startsWith(QStringLiteral("无法获取更新清单: ")), qPrintable(r.message));
}

void TestUpdateCheck::urlFromEnvironment()
{
    qputenv("ZUVO_UPDATE_URL", "");
    QCOMPARE(UpdateChecker::manifestUrl().path(), QStringLiteral("/downloads/latest.json"));
    QCOMPARE(UpdateChecker::manifestUrl().scheme(), QStringLiteral("https"));
    qputenv("ZUVO_UPDATE_URL", "http://127.0.0.1:9/x.json");
    QCOMPARE(UpdateChecker::manifestUrl(), QUrl(QStringLiteral("http://127.0.0.1:9/x.json")));
}

QTEST_GUILESS_MAIN(TestUpdateCheck)
#include "tst_update_check.moc"
