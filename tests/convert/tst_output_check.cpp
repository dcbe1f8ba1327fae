// The header check that decides whether an engine run left a usable file:
// well-formed minimal files of each container, and the ways they go wrong
// (cut short, sizes that point past the end, wrong magic).
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "output_check.h"

namespace {

struct Bytes {
    QByteArray b;
    Bytes& id(const char* four) { b.append(four, 4); return *this; }
    Bytes& raw(const QByteArray& x) { b += x; return *this; }
    Bytes& le(quint64 v, int n) { for (int i = 0; i < n; ++i) b += char(v >> (8 * i)); return *this; }
    Bytes& be(quint64 v, int n) { for (int i = n - 1; i >= 0; --i) b += char(v >> (8 * i)); return *this; }
};

QByteArray dsf(quint64 declaredTotal = 0)
{
    const int data = 2 * 4096;
    Bytes h;
    h.id("DSD ").le(28, 8).le(declaredTotal ? declaredTotal : 92 + data, 8).le(0, 8);
    h.id("fmt ").le(52, 8).le(1, 4).le(0, 4).le(2, 4).le(2, 4).le(2822400, 4).le(1, 4).le(32768, 8).le(4096, 4).le(0, 4);
    h.id("data").le(12 + data, 8).raw(QByteArray(data, 0x69));
    return h.b;
}

QByteArray dff(int cutSound = 0)
{
    Bytes prop;
    prop.id("SND ").id("FS  ").be(4, 8).be(2822400, 4).id("CHNL").be(2 + 8, 8).be(2, 2).id("SLFT").id("SRGT");
    Bytes body;
    body.id("DSD ").id("FVER").be(4, 8).be(0x01050000, 4).id("PROP").be(prop.b.size(), 8).raw(prop.b);
    body.id("DSD ").be(4096 + cutSound, 8).raw(QByteArray(4096, 0x69));
    return Bytes().id("FRM8").be(body.b.size(), 8).raw(body.b).b;
}

QByteArray wav(quint32 dataSize = 400)
{
    Bytes h;
    h.id("RIFF").le(4 + 24 + 8 + 400, 4).id("WAVE").id("fmt ").le(16, 4).le(1, 2).le(2, 2).le(44100, 4);
    h.le(44100 * 4, 4).le(4, 2).le(16, 2).id("data").le(dataSize, 4).raw(QByteArray(400, 0));
    return h.b;
}

QByteArray w64()
{
    const QByteArray tail = QByteArray::fromHex("f3acd3118cd100c04f8edb8a");
    Bytes fmt;
    fmt.le(3, 2).le(2, 2).le(352800, 4).le(352800 * 8, 4).le(8, 2).le(32, 2);
    Bytes h;
    h.raw("riff" + QByteArray::fromHex("2e91cf11a5d628db04c10000")).le(0, 8).raw("wave" + tail);
    h.raw("fmt " + tail).le(24 + 16, 8).raw(fmt.b);
    h.raw("data" + tail).le(24 + 64, 8).raw(QByteArray(64, 0));
    return h.b;
}

QByteArray flac(bool streamInfo = true)
{
    Bytes h;
    h.id("fLaC").be(streamInfo ? 0x80 : 0x84, 1).be(34, 3).be(4096, 2).be(4096, 2).be(0, 3).be(0, 3);
    h.be((quint64(48000) << 44) | (quint64(1) << 41) | (quint64(23) << 36) | 1000, 8).raw(QByteArray(16, 0));
    return h.b;
}

} // namespace

class TestOutputCheck : public QObject {
    Q_OBJECT

private slots:
    void headers_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("reads");
        QTest::newRow("dsf") << "a.dsf" << dsf() << true;
        QTest::newRow("dsf cut short") << "a.dsf" << dsf().left(5000) << false;
        QTest::newRow("dsf total past the end") << "a.dsf" << dsf(1 << 20) << false;
        QTest::newRow("dsf header only") << "a.dsf" << dsf().left(92) << false;
        QTest::newRow("dsf named dff") << "a.dff" << dsf() << false;
        QTest::newRow("dff") << "a.dff" << dff() << true;
        QTest::newRow("dff cut short") << "a.dff" << dff().left(200) << false;
        QTest::newRow("dff sound chunk past the form") << "a.dff" << dff(100) << false;
        QTest::newRow("wav") << "a.WAV" << wav() << true;
        QTest::newRow("wav data past the end") << "a.wav" << wav(4000) << false;
        QTest::newRow("wav without data") << "a.wav" << wav().left(44) << false;
        QTest::newRow("w64") << "a.w64" << w64() << true;
        QTest::newRow("w64 cut short") << "a.w64" << w64().left(120) << false;
        QTest::newRow("flac") << "a.flac" << flac() << true;
        QTest::newRow("flac without streaminfo") << "a.flac" << flac(false) << false;
        QTest::newRow("text") << "a.dsf" << QByteArray("partial") << false;
        QTest::newRow("unknown container") << "a.xyz" << QByteArray("anything") << true;
    }
    void headers()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(bool, reads);
        QTemporaryDir dir;
        QFile f(dir.filePath(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(content);
        f.close();
        const QString problem = outputHeaderProblem(f.fileName());
        QVERIFY2(problem.isEmpty() == reads, qPrintable(problem));
        const OutputCheck check = checkOutputFile(f.fileName(), FileStamp());
        QCOMPARE(check.problem, reads ? OutputCheck::None : OutputCheck::Unreadable);
    }

    // Files written by an independent encoder read as they should.
    void filesFromAnotherEncoder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("wav") << "a.wav" << QStringList{"-c:a", "pcm_s24le"};
        QTest::newRow("rf64") << "b.wav" << QStringList{"-c:a", "pcm_f32le", "-rf64", "always"};
        QTest::newRow("w64") << "c.w64" << QStringList{"-c:a", "pcm_s16le"};
        QTest::newRow("flac") << "d.flac" << QStringList{"-c:a", "flac"};
    }
    void filesFromAnotherEncoder()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, options);
        QTemporaryDir dir;
        const QString path = dir.filePath(name);
        QProcess p;
        p.start("ffmpeg", QStringList{"-loglevel", "error", "-f", "lavfi", "-i", "sine=duration=0.2", "-ac", "2"}
                              + options + QStringList{path});
        QVERIFY2(p.waitForFinished(30000) && p.exitCode() == 0, "ffmpeg (scripts/install-deps.sh) is needed");
        QCOMPARE(outputHeaderProblem(path), QString());
        QFile f(path);
        QVERIFY(f.resize(f.size() / 2) || name.endsWith(".flac"));
        if (!name.endsWith(".flac")) // FLAC keeps no length in its header that a cut could contradict
            QVERIFY(!outputHeaderProblem(path).isEmpty());
    }

    void missingEmptyAndUntouched()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("a.dsf");
        QCOMPARE(checkOutputFile(path, FileStamp()).problem, OutputCheck::Missing);
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        QCOMPARE(checkOutputFile(path, FileStamp()).problem, OutputCheck::Empty);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(dsf());
        f.close();
        const FileStamp before = fileStamp(path);
        QCOMPARE(checkOutputFile(path, before).problem, OutputCheck::NotWritten);
        QCOMPARE(checkOutputFile(path, FileStamp()).problem, OutputCheck::None);
    }
};

QTEST_GUILESS_MAIN(TestOutputCheck)
#include "tst_output_check.moc"
