// The pure pieces of playback: the player's command line, the log form of
// it, the position lines and the re-joining of output split mid-line.
#include <QtTest>

#include "line_carry.h"
#include "player_args.h"

class TestPlayerArgs : public QObject {
    Q_OBJECT
private slots:
    void arguments_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("device");
        QTest::addColumn<bool>("stream");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("file only") << "/m/a.dsf" << "" << false << QStringList{"-i", "/m/a.dsf"};
        QTest::newRow("streaming") << "/m/a.dsf" << "" << true << QStringList{"-i", "/m/a.dsf", "-stream"};
        QTest::newRow("device") << "/m/a.dsf" << "hw:DS1" << false << QStringList{"-i", "/m/a.dsf", "-dev", "hw:DS1"};
        QTest::newRow("all, in order") << "/m/a b.dff" << "hw:1,0" << true
                                       << QStringList{"-i", "/m/a b.dff", "-stream", "-dev", "hw:1,0"};
        QTest::newRow("blank device") << "x.dsf" << "   " << true << QStringList{"-i", "x.dsf", "-stream"};
        QTest::newRow("device as typed") << "x.dsf" << "plughw:CARD=DAC" << false
                                         << QStringList{"-i", "x.dsf", "-dev", "plughw:CARD=DAC"};
        QTest::newRow("non-ASCII path") << "/音乐/曲.dsf" << "" << false << QStringList{"-i", "/音乐/曲.dsf"};
    }

    void arguments()
    {
        QFETCH(QString, file);
        QFETCH(QString, device);
        QFETCH(bool, stream);
        QFETCH(QStringList, expected);
        QCOMPARE(buildPlayerArgs(file, device, stream), expected);
    }

    void quotedForTheLog()
    {
        QCOMPARE(quotedArgs({"-i", "/m/a b.dsf", "-stream"}), QStringLiteral("\"-i\" \"/m/a b.dsf\" \"-stream\""));
        QCOMPARE(quotedArgs({"-i", ""}), QStringLiteral("\"-i\" \"\""));
    }

    void positionLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<double>("pos");
        QTest::addColumn<double>("dur");
        QTest::newRow("plain") << "[PROGRESS] pos=12.5 dur=180.0" << true << 12.5 << 180.0;
        QTest::newRow("integers") << "[PROGRESS] pos=3 dur=4" << true << 3.0 << 4.0;
        QTest::newRow("trailing CR") << "[PROGRESS] pos=1.0 dur=2.0\r" << true << 1.0 << 2.0;
        QTest::newRow("comma decimals") << "[PROGRESS] pos=1,5 dur=2,0" << false << 0.0 << 0.0;
        QTest::newRow("other line") << "[PLAYER] finished" << false << 0.0 << 0.0;
        QTest::newRow("missing duration") << "[PROGRESS] pos=1.0" << false << 0.0 << 0.0;
    }

    void positionLines()
    {
        QFETCH(QString, line);
        QFETCH(bool, ok);
        QFETCH(double, pos);
        QFETCH(double, dur);
        double p = 0, d = 0;
        QCOMPARE(parsePlayerPosition(line, &p, &d), ok);
        if (ok) {
            QCOMPARE(p, pos);
            QCOMPARE(d, dur);
        }
    }

    void lineCarry_data()
    {
        QTest::addColumn<QList<QByteArray>>("chunks");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QByteArray>("rest");
        QTest::newRow("whole lines") << QList<QByteArray>{"a\nb\n"} << QStringList{"a", "b"} << QByteArray();
        QTest::newRow("split mid-line") << QList<QByteArray>{"ab", "c\nd"} << QStringList{"abc"} << QByteArray("d");
        QTest::newRow("carriage returns go") << QList<QByteArray>{"x\r\n", "\ry\r\n"} << QStringList{"x", "y"}
                                             << QByteArray();
        QTest::newRow("empty lines kept for the caller") << QList<QByteArray>{"\n\n"} << QStringList{"", ""}
                                                         << QByteArray();
        // A character cut between two chunks is only decoded once whole.
        QTest::newRow("UTF-8 split") << QList<QByteArray>{QByteArray("\xe6\x92", 2), QByteArray("\xad\n", 2)}
                                     << QStringList{QStringLiteral("播")} << QByteArray();
    }

    void lineCarry()
    {
        QFETCH(QList<QByteArray>, chunks);
        QFETCH(QStringList, lines);
        QFETCH(QByteArray, rest);
        LineCarry carry;
        QStringList got;
        for (const QByteArray& c : chunks)
            got += carry.take(c);
        QCOMPARE(got, lines);
        QCOMPARE(carry.pending(), rest);
        carry.clear();
        QVERIFY(carry.pending().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPlayerArgs)
#include "tst_player_args.moc"
