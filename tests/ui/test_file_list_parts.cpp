// Which paths may join the file list: audio suffixes, folder scans and
// duplicate detection.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "audio_files.h"

class TestFileListParts : public QObject {
    Q_OBJECT

private slots:
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

QTEST_GUILESS_MAIN(TestFileListParts)
#include "test_file_list_parts.moc"
