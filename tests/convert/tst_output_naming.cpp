#include <QtTest>

#include "conversion_settings.h"
#include "output_naming.h"

class TestOutputNaming : public QObject {
    Q_OBJECT

private slots:
    void stem_data();
    void stem();
    void expand_data();
    void expand();
    void outputPath_data();
    void outputPath();
};

void TestOutputNaming::stem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");

    QTest::newRow("windows path") << "C:\\music\\song.flac" << "song";
    QTest::newRow("posix path") << "/home/u/song.flac" << "song";
    QTest::newRow("mixed separators") << "C:/a\\b/song.x.flac" << "song.x";
    QTest::newRow("hidden file") << ".hidden" << ".hidden";
    QTest::newRow("hidden file with extension") << "dir/.bashrc.bak" << ".bashrc";
    QTest::newRow("several dots") << "a.b.c" << "a.b";
    QTest::newRow("no extension") << "noext" << "noext";
    QTest::newRow("dot only in folder") << "dir.d/file" << "file";
    QTest::newRow("trailing separator") << "/x/y/" << "";
    QTest::newRow("trailing dot") << "name." << "name";
    QTest::newRow("empty") << "" << "";
}

void TestOutputNaming::stem()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    QCOMPARE(fileStem(path), expected);
}

void TestOutputNaming::expand_data()
{
    QTest::addColumn<QString>("tmpl");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("ext");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("artist");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("expected");

    const QString in = QStringLiteral("C:\\music\\song.flac");
    QTest::newRow("track:02 with empty title") << "{track:02} - {title}" << in << "dsf" << 3 << "" << "" << "03 - song";
    QTest::newRow("track:02 wider number") << "{track:02}" << in << "dsf" << 123 << "" << "" << "123";
    QTest::newRow("track:9") << "{track:9}" << in << "dsf" << 3 << "" << "" << "000000003";
    QTest::newRow("track:1") << "{track:1}" << in << "dsf" << 7 << "" << "" << "7";
    QTest::newRow("track:10 is no value") << "{track:10}" << in << "dsf" << 3 << "" << "" << "song";
    QTest::newRow("track:0 is no value") << "{track:0}" << in << "dsf" << 3 << "" << "" << "song";
    QTest::newRow("track:02 at position 0") << "{track:02}" << in << "dsf" << 0 << "" << "" << "song";
    QTest::newRow("track") << "{track}" << in << "dsf" << 12 << "" << "" << "12";
    QTest::newRow("track 0 falls back") << "{track}" << in << "dsf" << 0 << "" << "" << "song";
    QTest::newRow("negative track falls back") << "x{track}" << in << "dsf" << -4 << "" << "" << "xsong";
    QTest::newRow("album into sub-folder") << "{album}/{input}" << in << "dsf" << 1 << "" << "" << "song/song";
    QTest::newRow("genre and year fall back") << "{genre}-{year}" << in << "dsf" << 1 << "G" << "T" << "song-song";
    QTest::newRow("artist and title") << "{artist} - {title}" << in << "dsf" << 1 << "A" << "T" << "A - T";
    QTest::newRow("artist only") << "{artist} - {title}" << in << "dsf" << 1 << "A" << "" << "A - song";
    QTest::newRow("unknown kept") << "{unknown}-x" << in << "dsf" << 1 << "" << "" << "{unknown}-x";
    QTest::newRow("case-sensitive names") << "{Input}" << in << "dsf" << 1 << "" << "" << "{Input}";
    QTest::newRow("empty braces kept") << "{}" << in << "dsf" << 1 << "" << "" << "{}";
    QTest::newRow("unclosed brace") << "a{b" << in << "dsf" << 1 << "" << "" << "a{b";
    QTest::newRow("unclosed after variable") << "{input}{title" << in << "dsf" << 1 << "" << "T" << "song{title";
    QTest::newRow("stray closing brace") << "x}{input}" << in << "dsf" << 1 << "" << "" << "x}song";
    QTest::newRow("brace inside name") << "{a{input}" << in << "dsf" << 1 << "" << "" << "{a{input}";
    QTest::newRow("ext variable") << "{input}.{ext}" << in << "dff" << 1 << "" << "" << "song.dff";
    QTest::newRow("empty ext stays empty") << "{input}-{ext}" << in << "" << 1 << "" << "" << "song-";
    QTest::newRow("only empty ext gives stem") << "{ext}" << in << "" << 1 << "" << "" << "song";
    QTest::newRow("empty template") << "" << in << "dsf" << 1 << "" << "" << "song";
    QTest::newRow("hidden input") << "{input}" << ".hidden" << "dsf" << 1 << "" << "" << ".hidden";
    QTest::newRow("dotted input") << "{input}" << "a.b.c" << "dsf" << 1 << "" << "" << "a.b";
    QTest::newRow("characters kept as typed") << "a:b*?{input}" << in << "dsf" << 1 << "" << "" << "a:b*?song";
    QTest::newRow("unicode title") << "{title}" << in << "dsf" << 1 << "" << "夜曲" << "夜曲";
}

void TestOutputNaming::expand()
{
    QFETCH(QString, tmpl);
    QFETCH(QString, input);
    QFETCH(QString, ext);
    QFETCH(int, number);
    QFETCH(QString, artist);
    QFETCH(QString, title);
    QFETCH(QString, expected);
    QCOMPARE(expandNameTemplate(tmpl, input, ext, number, artist, title), expected);
}

Q_DECLARE_METATYPE(ConversionSettings)

void TestOutputNaming::outputPath_data()
{
    QTest::addColumn<ConversionSettings>("settings");
    QTest::addColumn<QString>("expected");

    ConversionSettings folder;
    folder.output_dir = QStringLiteral("D:/out//");
    folder.inputs = QStringList{QStringLiteral("C:\\music\\song.flac")};
    folder.queue_number = 3;

    QTest::newRow("folder, defaults, trailing separators") << folder << "D:/out/song.dsf";
    {
        ConversionSettings s = folder;
        s.output_dir = QStringLiteral("D:\\out\\/\\");
        QTest::newRow("mixed trailing separators all removed") << s << "D:\\out/song.dsf";
    }
    {
        ConversionSettings s = folder;
        s.name_template = QStringLiteral("{album}/{input}");
        QTest::newRow("sub-folder from album") << s << "D:/out/song/song.dsf";
    }
    {
        ConversionSettings s = folder;
        s.name_template = QStringLiteral("{track:02} - {title}");
        s.title = QStringLiteral("Nocturne");
        QTest::newRow("queue number and title") << s << "D:/out/03 - Nocturne.dsf";
    }
    {
        ConversionSettings s = folder;
        s.name_template = QStringLiteral("{input}.{ext}");
        s.output_ext = QStringLiteral("dff");
        QTest::newRow("extension appended even after {ext}") << s << "D:/out/song.dff.dff";
    }
    {
        ConversionSettings s = folder;
        s.name_template = QStringLiteral("sub\\{input}");
        s.output_ext = QStringLiteral("wav");
        QTest::newRow("template separators kept") << s << "D:/out/sub\\song.wav";
    }
    {
        ConversionSettings s = folder;
        s.inputs = QStringList{QStringLiteral("/a/first.wav"), QStringLiteral("/a/second.wav")};
        QTest::newRow("first input names the file") << s << "D:/out/first.dsf";
    }
    {
        ConversionSettings s = folder;
        s.inputs.clear();
        QTest::newRow("no input") << s << "D:/out/.dsf";
    }
    {
        ConversionSettings s = folder;
        s.output_dir = QStringLiteral("/");
        QTest::newRow("root folder") << s << "/song.dsf";
    }
    {
        ConversionSettings s = folder;
        s.output_dir.clear();
        s.output_path = QStringLiteral("x/{input}.dff");
        s.name_template = QStringLiteral("{track}");
        QTest::newRow("output-file mode ignores the template") << s << "x/{input}.dff";
    }
    {
        ConversionSettings s = folder;
        s.output_dir.clear();
        QTest::newRow("output-file mode, empty file") << s << "";
    }
}

void TestOutputNaming::outputPath()
{
    QFETCH(ConversionSettings, settings);
    QFETCH(QString, expected);
    QCOMPARE(outputPathFor(settings), expected);
}

QTEST_GUILESS_MAIN(TestOutputNaming)
#include "tst_output_naming.moc"
