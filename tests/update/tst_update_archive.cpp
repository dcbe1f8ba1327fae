#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "tar_listing.h"
#include "update_install.h"

// Archives are written by Python's tarfile module, an independent writer.
class TestUpdateArchive : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void archives_data();
    void archives();
    void listingOfAGoodArchive();
    void plannedPathsPutFoldersFirst();
    void emptyAndTinyInputs();

private:
    QTemporaryDir dir_;
};

void TestUpdateArchive::initTestCase()
{
    QVERIFY(dir_.isValid());
    QProcess p;
    p.start(QStringLiteral("python3"), {QStringLiteral(ZUVO_TEST_SOURCE_DIR "/make_tars.py"), dir_.path()});
    QVERIFY(p.waitForFinished(30000));
    QCOMPARE(p.exitCode(), 0);
}

void TestUpdateArchive::archives_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason"); // empty: accepted
    QTest::newRow("good") << "good.tar" << "";
    QTest::newRow("gnu long name") << "long_name.tar" << "";
    QTest::newRow("pax long name") << "pax_good.tar" << "";
    QTest::newRow("dot dot") << "dotdot.tar" << "member leaves the folder";
    QTest::newRow("dot dot inside") << "dotdot_inner.tar" << "member leaves the folder";
    QTest::newRow("gnu long dot dot") << "long_dotdot.tar" << "member leaves the folder";
    QTest::newRow("pax dot dot") << "pax_dotdot.tar" << "member leaves the folder";
    QTest::newRow("absolute") << "absolute.tar" << "absolute";
    QTest::newRow("absolute symlink") << "symlink_abs.tar" << "link points outside";
    QTest::newRow("symlink up") << "symlink_up.tar" << "link points outside";
    QTest::newRow("through a link") << "through_link.tar" << "passes through a link";
    QTest::newRow("via a link") << "via_link.tar" << "passes through a link";
    QTest::newRow("hard link up") << "hardlink_up.tar" << "member leaves the folder";
    QTest::newRow("fifo") << "fifo.tar" << "unsupported member type";
    QTest::newRow("truncated") << "truncated.tar" << "archive truncated";
    QTest::newRow("bad checksum") << "bad_checksum.tar" << "damaged header";
    QTest::newRow("not a tar") << "not_tar.tar" << "damaged header";
}

void TestUpdateArchive::archives()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    QFile f(dir_.filePath(file));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QList<TarMember> members;
    const QString why = checkOverwritePayload(f, &members);
    if (reason.isEmpty())
        QVERIFY2(why.isEmpty(), qPrintable(why));
    else
        QVERIFY2(why.contains(reason), qPrintable(why));
}

void TestUpdateArchive::listingOfAGoodArchive()
{
    QFile f(dir_.filePath(QStringLiteral("good.tar")));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QList<TarMember> m;
    QCOMPARE(readTarListing(f, &m), QString());
    QCOMPARE(m.size(), 3);
    QCOMPARE(m[0].path, QStringLiteral("./bin/prog"));
    QCOMPARE(m[0].size, 10);
    QCOMPARE(int(m[2].type), int(TarMember::Symlink));
    QCOMPARE(m[2].link, QStringLiteral("prog"));

    QFile lf(dir_.filePath(QStringLiteral("long_name.tar")));
    QVERIFY(lf.open(QIODevice::ReadOnly));
    QCOMPARE(readTarListing(lf, &m), QString());
    QCOMPARE(m.size(), 1);
    QCOMPARE(m[0].path, QStringLiteral("./share/") + QString(150, QLatin1Char('d')) + QStringLiteral("/file"));
}

void TestUpdateArchive::plannedPathsPutFoldersFirst()
{
    QList<TarMember> m;
    m.append({QStringLiteral("./"), TarMember::Directory, {}, 0});
    m.append({QStringLiteral("./share/doc/readme"), TarMember::File, {}, 2});
    m.append({QStringLiteral("./share/doc/"), TarMember::Directory, {}, 0});
    m.append({QStringLiteral("bin/prog"), TarMember::File, {}, 2});
    m.append({QStringLiteral(".//lib/./x"), TarMember::File, {}, 2}); // found by the fuzzer
    QStringList written, folders;
    plannedPaths(m, &written, &folders);
    QCOMPARE(written, (QStringList{"share", "share/doc", "share/doc/readme", "bin", "bin/prog", "lib", "lib/x"}));
    QCOMPARE(folders, (QStringList{"share", "share/doc", "bin", "lib"}));
    QCOMPARE(checkTarMembers(m), QString());
}

void TestUpdateArchive::emptyAndTinyInputs()
{
    for (const QByteArray& data : {QByteArray(), QByteArray(511, 'a'), QByteArray(1024, '\0')}) {
        QBuffer b;
        b.setData(data);
        QVERIFY(b.open(QIODevice::ReadOnly));
        QList<TarMember> m;
        QVERIFY(!readTarListing(b, &m).isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestUpdateArchive)
#include "tst_update_archive.moc"
