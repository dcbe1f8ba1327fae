// The queue's window-free pieces: reading engine progress, the engine-log
// tail shown after a failure, and which paths may join the file list.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "audio_files.h"
#include "engine_output.h"

class TestQueueParts : public QObject {
    Q_OBJECT

private slots:
    void progressLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("isStderr");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("perMille"); // -1: not a progress value, the line is logged
        QTest::newRow("single") << "[PROGRESS] 42.5" << false << 0 << 1 << 425;
        QTest::newRow("second of four") << "[PROGRESS] 42.5" << false << 1 << 4 << 356;
        QTest::newRow("clamped") << "[PROGRESS] 150" << false << 0 << 1 << 1000;
        QTest::newRow("last of three at end") << "[PROGRESS] 100" << false << 2 << 3 << 1000;
        QTest::newRow("no number") << "[PROGRESS] done" << false << 0 << 1 << -1;
        QTest::newRow("stderr never") << "[PROGRESS] 10" << true << 0 << 1 << -1;
        QTest::newRow("chinese marker, truncated") << "进度: 33.39%" << false << 0 << 1 << 333;
        QTest::newRow("first number wins") << "[PROGRESS] 7 of 9" << false << 0 << 1 << 70;
        QTest::newRow("plain line") << "writing 12 blocks" << false << 0 << 1 << -1;
        QTest::newRow("marker case matters") << "[progress] 50" << false << 0 << 1 << -1;
    }
    void progressLines()
    {
        QFETCH(QString, line);
        QFETCH(bool, isStderr);
        QFETCH(int, index);
        QFETCH(int, total);
        QFETCH(int, perMille);
        const std::optional<double> percent = progressPercent(line, isStderr);
        QCOMPARE(percent.has_value(), perMille >= 0);
        if (percent)
            QCOMPARE(progressPerMille(*percent, index, total), perMille);
    }

    void logTailOfALargeLog()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("engine.log");
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        int n = 0;
        while (f.size() < 1024 * 1024)
            f.write(QString("line %1 of a long engine log with some padding text\r\n").arg(++n).toUtf8());
        f.write("\n   \n  last words  \n");
        f.close();

        const QStringList tail = engineLogTail(path);
        QCOMPARE(tail.size(), 120);
        QCOMPARE(tail.last(), QString("last words"));
        QCOMPARE(tail.at(tail.size() - 2), QString()); // kept, counted, not shown
        QCOMPARE(tail.first(), QString("line %1 of a long engine log with some padding text").arg(n - 117));
    }

    void logTailSkipsAPartialFirstLine()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("engine.log");
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(70000, 'x'));
        f.write("\nfirst whole line\nsecond\n");
        f.close();
        QCOMPARE(engineLogTail(path), (QStringList{"first whole line", "second"}));
        QCOMPARE(engineLogTail(dir.filePath("missing.log")), QStringList());
        QCOMPARE(engineLogTail(QString()), QStringList());
    }

    void audioSuffixes_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("audio");
        QTest::newRow("wav") << "/a/b.wav" << true;
        QTest::newRow("upper") << "/a/B.FLAC" << true;
        QTest::newRow("aif") << "x.aif" << true;
        QTest::newRow("iso") << "disc.ISO" << true;
        QTest::newRow("txt") << "notes.txt" << false;
        QTest::newRow("no suffix") << "/music/wav" << false;
        QTest::newRow("dot in folder") << "/music.wav/readme" << false;
        QTest::newRow("double") << "a.wav.bak" << false;
    }
    void audioSuffixes()
    {
        QFETCH(QString, path);
        QFETCH(bool, audio);
        QCOMPARE(isAudioFile(path), audio);
    }

    void folderScanAndQueueAddition()
    {
        QTemporaryDir dir;
        const auto touch = [&](const QString& rel) {
            QDir().mkpath(QFileInfo(dir.filePath(rel)).path());
            QFile f(dir.filePath(rel));
            f.open(QIODevice::WriteOnly);
        };
        touch("album/01.wav");
        touch("album/cd2/02.FLAC");
        touch("album/cover.jpg");
        touch("texts/readme.txt");
        QVERIFY(QFile::link(dir.filePath("album/01.wav"), dir.filePath("album/link.wav")));

        QStringList found = scanAudioFiles(dir.filePath("album"));
        found.sort();
        QCOMPARE(found, (QStringList{dir.filePath("album/01.wav"), dir.filePath("album/cd2/02.FLAC")}));
        QCOMPARE(scanAudioFiles(dir.filePath("texts")), QStringList());

        const QueueAddition plan = planQueueAddition(
            {dir.filePath("album/01.wav")},
            {dir.filePath("ALBUM/01.WAV"), dir.filePath("album/cd2/02.FLAC"), dir.filePath("album/cd2/02.flac"),
             dir.filePath("album/none.wav"), dir.filePath("album")});
        QCOMPARE(plan.added, QStringList{dir.filePath("album/cd2/02.FLAC")});
        QCOMPARE(plan.duplicates, 2);
    }
};

QTEST_GUILESS_MAIN(TestQueueParts)
#include "test_queue_parts.moc"
