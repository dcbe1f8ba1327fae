// Reading what the engine prints: progress values and the engine-log tail
// shown after a failure.
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "engine_output.h"

class TestEngineOutput : public QObject {
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
        // Only what the failed run appended; a log cut short since is all its own.
        QCOMPARE(engineLogTail(path, 70000 + 17), (QStringList{"second"}));
        QCOMPARE(engineLogTail(path, 1 << 20), (QStringList{"first whole line", "second"}));
        QCOMPARE(engineLogTail(dir.filePath("missing.log")), QStringList());
        QCOMPARE(engineLogTail(QString()), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestEngineOutput)
#include "tst_engine_output.moc"
