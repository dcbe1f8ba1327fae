// Preset files on disk: search order and shadowing, where saves go, names
// that cannot be files, atomic writes, and files that are not ours.
#include <QtTest>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/mount.h>

#include "preset_json.h"
#include "preset_store.h"

namespace {

void writeFile(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(text);
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class TestPresetStore : public QObject {
    Q_OBJECT

private slots:
    void searchOrderAndShadowing()
    {
        QTemporaryDir root;
        const QString app = root.filePath("opt/zuvo/bin");
        const QString cwd = root.filePath("home/work");
        const QString user = root.filePath("home/.local/share/ZUVO/ZuvoAudioTools");
        writeFile(app + "/presets/Album A.json", "{\"taps\": 1}");
        writeFile(app + "/../presets/Album A.json", "{\"taps\": 2}");
        writeFile(app + "/../presets/Vinyl.json", "{}");
        writeFile(cwd + "/presets/Vinyl.json", "{}");
        writeFile(cwd + "/presets/Tape.json", "{}");
        writeFile(cwd + "/presets/notes.txt", "not a preset");
        writeFile(user + "/presets/Mine.json", "{}");
        writeFile(user + "/presets/Tape.json", "{}");

        const PresetStore store(app, cwd, user);
        QStringList shown;
        for (const PresetEntry& e : store.list())
            shown << e.name + QLatin1Char('@') + QDir(root.path()).relativeFilePath(e.path);
        QCOMPARE(shown, (QStringList{
                            "Album A@opt/zuvo/bin/presets/Album A.json",
                            "Vinyl@opt/zuvo/presets/Vinyl.json",
                            "Tape@home/work/presets/Tape.json",
                            "Mine@home/.local/share/ZUVO/ZuvoAudioTools/presets/Mine.json",
                        }));
        QCOMPARE(PresetStore::load(store.list().first().path).settings.taps, 1);
    }

    void writeFolderFallsBackWhenProgramFolderIsNotWritable()
    {
        QTemporaryDir root;
        const QString user = root.filePath("user");
        const PresetStore writable(root.filePath("bin"), root.path(), user);
        QCOMPARE(writable.writeDir(), root.filePath("bin/presets"));
        QVERIFY(QFileInfo(root.filePath("bin/presets")).isDir());

        // A program folder below a plain file can never hold a folder, as
        // root or not: the store must write to the user's folder instead,
        // and list what it wrote there.
        writeFile(root.filePath("blocker"), "x");
        const PresetStore installed(root.filePath("blocker/bin"), root.path(), user);
        QCOMPARE(installed.writeDir(), user + "/presets");
        const PresetSave saved = installed.save("Album A", ConversionSettings());
        QCOMPARE(saved.status, PresetSave::Ok);
        QCOMPARE(saved.path, user + "/presets/Album A.json");
        QCOMPARE(installed.list().size(), 1);
        QCOMPARE(installed.list().first().name, QStringLiteral("Album A"));
    }

    void namesThatCannotBeFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("plain") << "Album A" << true;
        QTest::newRow("cjk") << "古典 黑胶" << true;
        QTest::newRow("dots inside") << "v1.2 master" << true;
        QTest::newRow("json suffix") << "Tape.json" << true;
        QTest::newRow("slash") << "rock/pop" << false;
        QTest::newRow("backslash") << "rock\\pop" << false;
        QTest::newRow("parent") << ".." << false;
        QTest::newRow("colon") << "a:b" << false;
        QTest::newRow("question") << "why?" << false;
        QTest::newRow("newline") << "a\nb" << false;
        QTest::newRow("device") << "con" << false;
        QTest::newRow("device with suffix") << "LPT1.json" << false;
        QTest::newRow("not a device") << "COMA" << true;
        QTest::newRow("trailing dot") << "name." << false;
    }
    void namesThatCannotBeFiles()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        QCOMPARE(PresetStore::nameProblem(name).isEmpty(), valid);
        if (valid)
            return;
        QTemporaryDir root;
        const PresetStore store(root.filePath("bin"), root.path(), root.filePath("user"));
        const PresetSave saved = store.save(name, ConversionSettings());
        QCOMPARE(saved.status, PresetSave::InvalidName);
        QVERIFY(!saved.error.isEmpty());
        QCOMPARE(QDir(root.filePath("bin/presets")).entryList(QDir::Files | QDir::Hidden).size(), 0);
    }

    void savedPresetReadsBackFieldForField()
    {
        QTemporaryDir root;
        const PresetStore store(root.filePath("bin"), root.path(), root.filePath("user"));
        ConversionSettings s;
        s.oversampling = 128;
        s.taps = 65536;
        s.algorithm = "remez";
        s.beta = 7.25;
        s.enable_eq = true;
        s.eq_bands = {{300, 6, 1, 'q'}, {1000, 3.5, 1, 'o'}, {6000, -4, 0.707, 's'}};
        s.artist = "Ünïcødé \"quoted\"";
        s.advanced.insert("--dehum-q", "12");
        s.keep_harmonics = true;
        QCOMPARE(store.save("Album A", s).status, PresetSave::Ok);
        QCOMPARE(store.save("Album A.json", s).path, store.pathForName("Album A"));

        const PresetLoad loaded = PresetStore::load(store.pathForName("Album A"));
        QCOMPARE(loaded.status, PresetLoad::Ok);
        // keep_harmonics is written but deliberately not read back.
        QCOMPARE(loaded.unsupportedKeys, 1);
        ConversionSettings expected = s;
        expected.keep_harmonics = false;
        QCOMPARE(presetToJson(loaded.settings), presetToJson(expected));
    }

    void filesThatAreNotPresets()
    {
        QTemporaryDir root;
        QCOMPARE(PresetStore::load(root.filePath("missing.json")).status, PresetLoad::CannotRead);
        writeFile(root.filePath("broken.json"), "{\"taps\": 12,");
        const PresetLoad broken = PresetStore::load(root.filePath("broken.json"));
        QCOMPARE(broken.status, PresetLoad::ParseError);
        QVERIFY(!broken.error.isEmpty());
        writeFile(root.filePath("array.json"), "[1, 2]");
        QCOMPARE(PresetStore::load(root.filePath("array.json")).status, PresetLoad::ParseError);
        QCOMPARE(PresetStore::load(root.path()).status == PresetLoad::Ok, false);
    }

    void sisterFrontEndFileLoads()
    {
        // Other key order, extra keys, wrong types and a band without unit.
        QTemporaryDir root;
        writeFile(root.filePath("gtk.json"), R"({
            "window_title": "x", "taps": "4096", "oversampling": 256,
            "eq_bands": [{"bwType": "", "gainDB": 2, "bandwidth": 1.5, "centerFreq": 80},
                         {"centerFreq": 0, "gainDB": 9, "bandwidth": 1, "bwType": "o"}],
            "enable_eq": true, "advanced": {"--wiener": "", "--dehum-q": 8}, "keep_harmonics": true,
            "gtk_theme": "dark"})");
        const PresetLoad loaded = PresetStore::load(root.filePath("gtk.json"));
        QCOMPARE(loaded.status, PresetLoad::Ok);
        QCOMPARE(loaded.unsupportedKeys, 3);
        QCOMPARE(loaded.settings.oversampling, 256);
        QCOMPARE(loaded.settings.taps, 0);
        QCOMPARE(loaded.settings.eq_bands.size(), 1);
        QCOMPARE(loaded.settings.eq_bands[0].bwType, 'q');
        QCOMPARE(loaded.settings.advanced.size(), 1);
        QVERIFY(loaded.settings.pdfreport);
    }

    void fullDiskLeavesTheOldPresetIntact()
    {
        QTemporaryDir root;
        const QString mnt = root.filePath("small");
        QDir().mkpath(mnt + "/bin/presets");
        if (::mount("tmpfs", mnt.toLocal8Bit().constData(), "tmpfs", 0, "size=48k") != 0)
            QSKIP("cannot mount a small tmpfs here (needs root)");
        const auto unmount = qScopeGuard([&] { ::umount(mnt.toLocal8Bit().constData()); });
        const PresetStore store(mnt + "/bin", mnt, mnt + "/user");
        ConversionSettings first;
        first.taps = 1234;
        QCOMPARE(store.save("Album A", first).status, PresetSave::Ok);
        const QByteArray before = readFile(store.pathForName("Album A"));

        // Fill the disk, then save a preset that no longer fits.
        {
            QFile filler(mnt + "/filler");
            QVERIFY(filler.open(QIODevice::WriteOnly));
            const QByteArray block(4096, 'x');
            while (filler.write(block) == block.size() && filler.flush()) {
            }
        }
        ConversionSettings big;
        for (int i = 0; i < 400; ++i)
            big.advanced.insert(QStringLiteral("--opt%1").arg(i), QString(64, QLatin1Char('v')));
        const PresetSave failed = store.save("Album A", big);
        QCOMPARE(failed.status, PresetSave::CannotWrite);
        QCOMPARE(readFile(store.pathForName("Album A")), before);
        QCOMPARE(QDir(mnt + "/bin/presets").entryList(QDir::Files | QDir::Hidden), QStringList{"Album A.json"});
    }
};

QTEST_GUILESS_MAIN(TestPresetStore)
#include "tst_preset_store.moc"
