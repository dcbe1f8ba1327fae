#include <QtTest>

#include "payload_names.h"
#include "update_manifest.h"
#include "update_version.h"

class TestUpdateManifest : public QObject {
    Q_OBJECT
private slots:
    void compare_data();
    void compare();
    void parse_data();
    void parse();
    void releaseFieldsAndPayloads();
    void bareFilesEntryIsTheInstaller();
    void payloadNameFromUrl();
    void names_data();
    void names();
    void platformKeyOfThisBuild();
};

void TestUpdateManifest::compare_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("result");
    QTest::newRow("equal") << "1.2.3" << "1.2.3" << 0;
    QTest::newRow("patch smaller") << "1.2.3" << "1.2.4" << -1;
    QTest::newRow("minor decides before patch") << "1.3.0" << "1.2.9" << 1;
    QTest::newRow("numeric not textual") << "1.10.0" << "1.9.0" << 1;
    QTest::newRow("fourth part ignored") << "1.2.3" << "1.2.3.7" << 0;
    QTest::newRow("missing parts are 0") << "1" << "1.0.0" << 0;
    QTest::newRow("missing part vs 1") << "1.2" << "1.2.1" << -1;
    QTest::newRow("beta suffix counts 0") << "1.2.9" << "1.2.9-beta" << 1;
    QTest::newRow("empty parts kept") << "1..3" << "1.0.3" << 0;
    QTest::newRow("garbage is 0.0.0") << "abc" << "0.0.0" << 0;
    QTest::newRow("major wins") << "2.0.0" << "10.0.0" << -1;
}

void TestUpdateManifest::compare()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(int, result);
    QCOMPARE(compareVersions(a, b), result);
    QCOMPARE(compareVersions(b, a), -result);
}

namespace {

const char* const kGoodFiles = R"("files": [{"platform": "linux-x64",
    "overwrite": {"name": "zuvo.tar", "url": "http://h/zuvo.tar", "size": 10, "sha256": "ab"}}])";

QByteArray manifest(const QString& versionPart, const QString& files = QString::fromLatin1(kGoodFiles))
{
    return QStringLiteral("{%1, %2}").arg(versionPart, files).toUtf8();
}

} // namespace

void TestUpdateManifest::parse_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("message");
    const int failed = ManifestVerdict::Failed, latest = ManifestVerdict::AlreadyLatest,
              available = ManifestVerdict::Available;
    QTest::newRow("version at the root") << manifest("\"version\": \"2.0.0\"") << available << "";
    QTest::newRow("version under latest")
        << QByteArray(R"({"latest": {"version": "2.0.0", )") + kGoodFiles + "}}" << available << "";
    QTest::newRow("empty latest means root")
        << QByteArray(R"({"latest": {}, "version": "2.0.0", )") + kGoodFiles + "}" << available << "";
    QTest::newRow("empty version") << manifest("\"version\": \"\"") << failed << "更新清单里没有版本号";
    QTest::newRow("no version") << manifest("\"name\": \"x\"") << failed << "更新清单里没有版本号";
    QTest::newRow("version not a string") << manifest("\"version\": 2") << failed << "更新清单里没有版本号";
    QTest::newRow("four-part equal") << manifest("\"version\": \"1.2.3.4\"") << latest << "";
    QTest::newRow("older is latest, never a downgrade") << manifest("\"version\": \"1.1.9\"") << latest << "";
    QTest::newRow("beta of same is older") << manifest("\"version\": \"1.2.3-beta\"") << latest << "";
    QTest::newRow("other platform only")
        << manifest("\"version\": \"2.0.0\"", R"("files": [{"platform": "windows-x64",
               "overwrite": {"url": "http://h/a.zip", "sha256": "ab"}}])")
        << failed << "清单里没有适用于本机 (linux-x64) 的更新载荷";
    QTest::newRow("empty sha256 not usable")
        << manifest("\"version\": \"2.0.0\"", R"("files": [{"platform": "linux-x64",
               "overwrite": {"url": "http://h/a.tar", "sha256": ""}}])")
        << failed << "清单里没有适用于本机 (linux-x64) 的更新载荷";
    QTest::newRow("empty url not usable")
        << manifest("\"version\": \"2.0.0\"", R"("files": [{"platform": "linux-x64",
               "installer": {"url": "", "sha256": "ab"}}])")
        << failed << "清单里没有适用于本机 (linux-x64) 的更新载荷";
    QTest::newRow("no files") << QByteArray(R"({"version": "2.0.0"})") << failed
                              << "清单里没有适用于本机 (linux-x64) 的更新载荷";
    QTest::newRow("unsafe name refused")
        << manifest("\"version\": \"2.0.0\"", R"("files": [{"platform": "linux-x64",
               "overwrite": {"name": "../../bin/sh", "url": "http://h/a.tar", "sha256": "ab"}}])")
        << failed << "更新清单里的文件名不安全, 已拒绝: ../../bin/sh";
    QTest::newRow("device name refused")
        << manifest("\"version\": \"2.0.0\"", R"("files": [{"platform": "linux-x64",
               "installer": {"name": "NUL.exe", "url": "http://h/a", "sha256": "ab"}}])")
        << failed << "更新清单里的文件名不安全, 已拒绝: NUL.exe";
    QTest::newRow("not json") << QByteArray("{\"version\": ") << failed << "";
    QTest::newRow("root is an array") << QByteArray("[1, 2]") << failed << "";
}

void TestUpdateManifest::parse()
{
    QFETCH(QByteArray, json);
    QFETCH(int, kind);
    QFETCH(QString, message);
    const ManifestVerdict v = parseUpdateManifest(json, QStringLiteral("1.2.3"), QStringLiteral("linux-x64"));
    QCOMPARE(int(v.kind), kind);
    if (!message.isEmpty())
        QCOMPARE(v.message, message);
    if (kind == ManifestVerdict::Failed && message.isEmpty())
        QVERIFY2(v.message.startsWith(QStringLiteral("更新清单格式不对 (")), qPrintable(v.message));
    if (kind == ManifestVerdict::AlreadyLatest)
        QCOMPARE(v.localVersion, QStringLiteral("1.2.3"));
}

void TestUpdateManifest::releaseFieldsAndPayloads()
{
    const QByteArray json = R"({"latest": {"version": "1.3.0", "released": "2026-11-01", "notes": "Faster.",
        "files": [
          {"platform": "windows-x64", "overwrite": {"name": "w.zip", "url": "http://h/w.zip", "size": 5, "sha256": "11"}},
          {"platform": "linux-x64",
           "overwrite": {"name": "l.tar", "url": "http://h/l.tar", "size": 4096, "sha256": "AB12"},
           "installer": {"name": "l.deb", "url": "http://h/l.deb", "size": 0, "sha256": "cd34"}}]}})";
    const ManifestVerdict v = parseUpdateManifest(json, QStringLiteral("1.2.3"), QStringLiteral("linux-x64"));
    QCOMPARE(int(v.kind), int(ManifestVerdict::Available));
    QCOMPARE(v.info.version, QStringLiteral("1.3.0"));
    QCOMPARE(v.info.released, QStringLiteral("2026-11-01"));
    QCOMPARE(v.info.notes, QStringLiteral("Faster."));
    QCOMPARE(v.info.overwrite.name, QStringLiteral("l.tar"));
    QCOMPARE(v.info.overwrite.size, 4096);
    QCOMPARE(v.info.overwrite.sha256, QStringLiteral("AB12"));
    QCOMPARE(v.info.installer.url, QStringLiteral("http://h/l.deb"));
    QCOMPARE(v.info.installer.size, 0);

    const ManifestVerdict w = parseUpdateManifest(json, QStringLiteral("1.2.3"), QStringLiteral("windows-x64"));
    QCOMPARE(w.info.overwrite.name, QStringLiteral("w.zip"));
    QVERIFY(!w.info.installer.isUsable());
}

void TestUpdateManifest::bareFilesEntryIsTheInstaller()
{
    const QByteArray json = R"({"version": "9.0.0", "files": [
        {"platform": "linux-x64", "name": "setup.run", "url": "http://h/setup.run", "size": 77, "sha256": "ee"}]})";
    const ManifestVerdict v = parseUpdateManifest(json, QStringLiteral("1.0.0"), QStringLiteral("linux-x64"));
    QCOMPARE(int(v.kind), int(ManifestVerdict::Available));
    QVERIFY(!v.info.overwrite.isUsable());
    QCOMPARE(v.info.installer.name, QStringLiteral("setup.run"));
    QCOMPARE(v.info.installer.size, 77);
}

void TestUpdateManifest::payloadNameFromUrl()
{
    QCOMPARE(payloadFileName(QString(), QStringLiteral("http://h/dl/zuvo-2.tar?x=1")), QStringLiteral("zuvo-2.tar"));
    QCOMPARE(payloadFileName(QStringLiteral("own.tar"), QStringLiteral("http://h/other.tar")), QStringLiteral("own.tar"));
    // A URL ending in a folder gives no name, which is refused downstream.
    QVERIFY(!isSafePayloadName(payloadFileName(QString(), QStringLiteral("http://h/dl/"))));
}

void TestUpdateManifest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("safe");
    QTest::newRow("plain") << "zuvo-2.0.0-linux-x64.tar" << true;
    QTest::newRow("spaces and brackets") << "Zuvo Setup (x64) [2].exe" << true;
    QTest::newRow("non-ascii letters") << "更新包.tar" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("slash") << "bin/zuvo" << false;
    QTest::newRow("backslash") << "bin\\zuvo.exe" << false;
    QTest::newRow("dot dot") << ".." << false;
    QTest::newRow("dot dot inside") << "a..b" << false;
    QTest::newRow("dot") << "." << false;
    QTest::newRow("absolute") << "/etc/passwd" << false;
    QTest::newRow("drive") << "C:zuvo.exe" << false;
    QTest::newRow("unc") << "\\\\server\\share" << false;
    QTest::newRow("CON") << "CON" << false;
    QTest::newRow("nul with suffix") << "nul.tar" << false;
    QTest::newRow("COM1") << "com1.exe" << false;
    QTest::newRow("LPT9") << "LPT9" << false;
    QTest::newRow("COM10 is a name") << "COM10.exe" << true;
    QTest::newRow("trailing dot") << "zuvo.exe." << false;
    QTest::newRow("trailing space") << "zuvo.exe " << false;
    QTest::newRow("leading dash") << "-rf" << false;
    QTest::newRow("percent") << "%TEMP%.exe" << false;
    QTest::newRow("quote") << "a\".exe" << false;
    QTest::newRow("ampersand") << "a&calc.exe" << false;
    QTest::newRow("dollar") << "$(reboot).tar" << false;
    QTest::newRow("newline") << "a\nb" << false;
    QTest::newRow("lookalike slash") << QString::fromUtf8("a\u2215b") << false;
}

void TestUpdateManifest::names()
{
    QFETCH(QString, name);
    QFETCH(bool, safe);
    QCOMPARE(isSafePayloadName(name), safe);
}

void TestUpdateManifest::platformKeyOfThisBuild()
{
#ifdef Q_OS_WIN
    QCOMPARE(updatePlatformKey(), QStringLiteral("windows-x64"));
#else
    QCOMPARE(updatePlatformKey(), QStringLiteral("linux-x64"));
#endif
}

QTEST_GUILESS_MAIN(TestUpdateManifest)
#include "tst_update_manifest.moc"
