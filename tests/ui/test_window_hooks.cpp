// The program's start-up hooks, run as a user's automation runs them.
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run {
    int exitCode = -1;
    QString out;
};

Run runApp(const QMap<QString, QString>& vars, const QTemporaryDir& dir)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("ZUVO_NO_UPDATE_CHECK", "1");
    env.insert("ZUVO_SETTINGS_DIR", dir.filePath("settings"));
    for (auto it = vars.begin(); it != vars.end(); ++it)
        env.insert(it.key(), it.value());
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(ZUVO_APP_PATH, {});
    Run r;
    if (!p.waitForFinished(60000)) {
        p.kill();
        p.waitForFinished();
        return r;
    }
    r.exitCode = p.exitCode();
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    return r;
}

} // namespace

class TestWindowHooks : public QObject {
    Q_OBJECT

private slots:
    void dumpModPrintsTheModulatorChoices()
    {
        QTemporaryDir dir;
        const Run r = runApp({{"ZUVO_GUI_DUMP_MOD", "1"}}, dir);
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.out, QStringLiteral("单环 (NS, --order 9)\nMASH 4-2-1\nSOS-EF\nCIFB\n"));
    }

    // Every page can be shot; the EQ demonstration draws its curve. The
    // pictures differ from page to page, so the tab hook really switched.
    void shotsOfEveryPage()
    {
        QTemporaryDir dir;
        QList<QImage> shots;
        for (int tab = 0; tab < 6; ++tab) {
            const QString path = dir.filePath(QStringLiteral("tab%1.png").arg(tab));
            const Run r = runApp({{"ZUVO_GUI_DUMP_MOD", "1"}, {"ZUVO_GUI_SHOT", path}, {"ZUVO_GUI_TAB", QString::number(tab)}},
                                 dir);
            QCOMPARE(r.exitCode, 0);
            QVERIFY(r.out.startsWith(QStringLiteral("[shot] saved -> ") + path));
            QImage image(path);
            QVERIFY(!image.isNull());
            for (const QImage& other : shots)
                QVERIFY(other != image);
            shots.append(image);
        }
        const QString eq = dir.filePath("eq.png");
        const Run r = runApp({{"ZUVO_GUI_DUMP_MOD", "1"}, {"ZUVO_GUI_SHOT", eq}, {"ZUVO_GUI_EQDEMO", "1"}}, dir);
        QCOMPARE(r.exitCode, 0);
        QVERIFY(QImage(eq) != shots[2]); // the same page, now with three bands and the switch on
    }
};

QTEST_MAIN(TestWindowHooks)
#include "test_window_hooks.moc"
