// The PDF report through the real CLI, read back with poppler's tools: page
// count, the figures it prints against the engine's own --report and an
// independent decoder, the file's name, what happens on failures, and the
// audio left untouched by it.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <sndfile.h>

#include "engine_test_support.h"

using namespace enginetest;

namespace {

QString tool(const QString& program, const QStringList& args)
{
    QProcess p;
    p.start(program, args);
    if (!p.waitForFinished(60000) || p.exitCode() != 0)
        return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}

int pageCount(const QString& pdf)
{
    const QRegularExpressionMatch m = QRegularExpression("Pages:\\s+(\\d+)").match(tool("pdfinfo", {pdf}));
    return m.hasMatch() ? m.captured(1).toInt() : -1;
}

QString pdfText(const QString& pdf) { return tool("pdftotext", {"-layout", pdf, "-"}); }

QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Everything in `dir` whose name holds ".part": a temporary the report left.
QStringList leftovers(const QDir& dir)
{
    QStringList out;
    for (const QString& name : dir.entryList(QDir::Files))
        if (name.contains(".part"))
            out << name;
    return out;
}

} // namespace

class PdfReportTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void reportBesideTheOutput();
    void figuresMatchTheEngineAndADecoder();
    void audioIdenticalWithAndWithout_data();
    void audioIdenticalWithAndWithout();
    void noisePageWhenAsked();
    void noiseProfilingAloneIsAUsageError_data();
    void noiseProfilingAloneIsAUsageError();
    void noReportAfterAFailedRun();
    void noReportAfterAStoppedRun();
    void unwritableReportIsAWarning();
    void noReportForDsdToPcm();

private:
    QString tone(const QString& name, int rate, double seconds);
    QTemporaryDir dir_;
};

void PdfReportTest::initTestCase()
{
    QVERIFY(dir_.isValid());
    QVERIFY2(QFile::exists(enginePath()), qPrintable(enginePath()));
    if (tool("pdfinfo", {"-v"}).isNull() && QProcess::execute("pdfinfo", {"-v"}) < 0)
        QSKIP("poppler-utils (pdfinfo, pdftotext) are not installed");
}

// 1 kHz left at -6 dBFS, 3 kHz right at -12 dBFS.
QString PdfReportTest::tone(const QString& name, int rate, double seconds)
{
    const QString path = dir_.filePath(name);
    if (!QFile::exists(path))
        writePcm(path, rate, 2, long(seconds * rate), SF_FORMAT_WAV | SF_FORMAT_PCM_24, [rate](long i, int c) {
            const double t = double(i) / rate;
            return c == 0 ? 0.5 * std::sin(2 * M_PI * 1000 * t) : 0.25 * std::sin(2 * M_PI * 3000 * t);
        });
    return path;
}

void PdfReportTest::reportBesideTheOutput()
{
    const QString out = dir_.filePath("beside.dsf");
    const RunResult r = runEngine({"-i", tone("t44.wav", 44100, 6), "-pdfrp", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QString pdf = dir_.filePath("beside.report.pdf");
    QVERIFY(QFile::exists(pdf));
    QVERIFY2(r.err.contains("report: " + pdf), qPrintable(r.err));
    QCOMPARE(pageCount(pdf), 3);
    const QString text = pdfText(pdf);
    for (const QString& needle : {QString("DSD64 (2822400 Hz)"), QString("44100 Hz PCM"), out,
                                  QString("Interpolation chain response"), QString("DSD output spectrum")})
        QVERIFY2(text.contains(needle), qPrintable(needle));
    QVERIFY(leftovers(QDir(dir_.path())).isEmpty());
}

void PdfReportTest::figuresMatchTheEngineAndADecoder()
{
    const QString out = dir_.filePath("figures.dsf");
    const RunResult r = runEngine({"-i", tone("t48.wav", 48000, 8), "--report", "--oversampling", "128", "-pdfrp", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QString text = pdfText(dir_.filePath("figures.report.pdf"));
    QVERIFY(text.contains("DSD128 (5644800 Hz)"));
    // The input table repeats the engine's --report figures.
    for (int c = 1; c <= 2; ++c) {
        const QRegularExpressionMatch engine =
            QRegularExpression(QString("channel %1: peak (\\S+) dBFS rms (\\S+) dBFS").arg(c)).match(r.out);
        QVERIFY2(engine.hasMatch(), qPrintable(r.out));
        const QRegularExpression row(QString("\\n%1\\s+%2 dBFS\\s+%3 dBFS")
                                         .arg(c)
                                         .arg(QRegularExpression::escape(engine.captured(1)),
                                              QRegularExpression::escape(engine.captured(2))));
        QVERIFY2(row.match(text).hasMatch(), qPrintable(engine.captured(0)));
    }
    // The output's in-band level against ffmpeg's decoding of the DSF.
    std::vector<std::vector<double>> pcm;
    QVERIFY(ffmpegDecode(out, 48000, 2, pcm));
    const QRegularExpression outRow("\\n(\\d)\\s+(\\S+) dBFS\\s+(\\S+) dBFS\\s+(\\S+) dB\\s+(\\d+)\\s+(\\S+) dBFS");
    auto it = outRow.globalMatch(text);
    int rows = 0;
    while (it.hasNext()) {
        const auto m = it.next();
        const int c = m.captured(1).toInt() - 1;
        const double freq = c == 0 ? 1000 : 3000;
        const double decoded = 20 * std::log10(toneAmplitude(pcm[std::size_t(c)], 48000, freq, 4800) / std::sqrt(2.0));
        const double reported = m.captured(6).toDouble();
        QVERIFY2(std::fabs(decoded - reported) < 0.5, qPrintable(QString("channel %1: decoded %2, report %3")
                                                                      .arg(c + 1).arg(decoded).arg(reported)));
        QCOMPARE(m.captured(5).toInt(), 0); // no overloads at these levels
        QVERIFY(m.captured(4).toDouble() > 0); // headroom left
        ++rows;
    }
    QCOMPARE(rows, 2);
    // Noise figures: noise shaping leaves little in the audio band and much above it.
    const QRegularExpressionMatch noise =
        QRegularExpression("\\n1\\s+(\\S+) dBFS\\s+(\\S+) dBFS\\s+(\\S+) dBFS\\s*\\n2").match(text);
    QVERIFY2(noise.hasMatch(), qPrintable(text));
    const double inBand = noise.captured(1).toDouble(), aWeighted = noise.captured(2).toDouble(),
                 ultrasonic = noise.captured(3).toDouble();
    QVERIFY2(inBand < -120 && aWeighted < -120, qPrintable(noise.captured(0)));
    QVERIFY2(ultrasonic > inBand + 40, qPrintable(noise.captured(0)));
}

void PdfReportTest::audioIdenticalWithAndWithout_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("DSD64") << QStringList{};
    QTest::newRow("DSD256") << QStringList{"--oversampling", "256"};
    QTest::newRow("DSD128, tone controls, DFF") << QStringList{"--oversampling", "128", "--bass", "4", "--dff"};
}

void PdfReportTest::audioIdenticalWithAndWithout()
{
    QFETCH(QStringList, options);
    const bool dff = options.removeAll("--dff") > 0;
    const QString ext = dff ? ".dff" : ".dsf";
    const QString plain = dir_.filePath("plain" + QString::number(qHash(QTest::currentDataTag())) + ext);
    const QString with = dir_.filePath("with" + QString::number(qHash(QTest::currentDataTag())) + ext);
    const QString in = tone("t44.wav", 44100, 6);
    const RunResult a = runEngine(QStringList{"-i", in} + options + QStringList{plain});
    const RunResult b = runEngine(QStringList{"-i", in, "-pdfrp", "--noise-profiling"} + options + QStringList{with});
    QVERIFY2(a.exitCode == 0 && b.exitCode == 0, qPrintable(a.err + b.err));
    const QByteArray x = fileBytes(plain), y = fileBytes(with);
    QVERIFY(x.size() > 100000);
    QVERIFY(x == y);
    QVERIFY(QFile::exists(QFileInfo(with).path() + "/" + QFileInfo(with).completeBaseName() + ".report.pdf"));
    QVERIFY(!QFile::exists(QFileInfo(plain).path() + "/" + QFileInfo(plain).completeBaseName() + ".report.pdf"));
}

void PdfReportTest::noisePageWhenAsked()
{
    const QString out = dir_.filePath("noise.dsf");
    const RunResult r = runEngine({"-i", tone("t44.wav", 44100, 6), "-pdfrp", "--noise-profile", out});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QString pdf = dir_.filePath("noise.report.pdf");
    QCOMPARE(pageCount(pdf), 4);
    const QString text = pdfText(pdf);
    QVERIFY(text.contains("Noise per 1 kHz band"));
    QVERIFY(text.contains("19 kHz - 20 kHz"));
    // Every band is a figure, and the bands add up to the whole.
    const QRegularExpressionMatch total = QRegularExpression("\\n20 Hz - 20 kHz\\s+(\\S+) dBFS").match(text);
    QVERIFY(total.hasMatch());
    double sum = 0;
    auto it = QRegularExpression("\\n(20 Hz - 1 kHz|\\d+ kHz - \\d+ kHz)\\s+(\\S+) dBFS").globalMatch(text);
    int bands = 0;
    while (it.hasNext()) {
        sum += std::pow(10.0, it.next().captured(2).toDouble() / 10);
        ++bands;
    }
    QCOMPARE(bands, 20);
    QVERIFY2(std::fabs(10 * std::log10(sum) - total.captured(1).toDouble()) < 0.05, qPrintable(total.captured(0)));
}

void PdfReportTest::noiseProfilingAloneIsAUsageError_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("long") << "--noise-profiling";
    QTest::newRow("short") << "--noise-profile";
}

void PdfReportTest::noiseProfilingAloneIsAUsageError()
{
    QFETCH(QString, option);
    const QString out = dir_.filePath("refused.dsf");
    const RunResult r = runEngine({"-i", tone("t44.wav", 44100, 6), option, out});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(r.err.contains("--noise-profiling needs --pdf-report (-pdfrp)"), qPrintable(r.err));
    QVERIFY(!QFile::exists(out));
    QVERIFY(!QFile::exists(dir_.filePath("refused.report.pdf")));
}

void PdfReportTest::noReportAfterAFailedRun()
{
    // A WAV whose data stops long before its header says: a read failure.
    const QString broken = dir_.filePath("broken.wav");
    QByteArray bytes = fileBytes(tone("t44.wav", 44100, 6));
    bytes.truncate(bytes.size() / 3);
    {
        QFile f(broken);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    const QString out = dir_.filePath("broken.dsf");
    const RunResult r = runEngine({"-i", broken, "-pdfrp", out});
    if (r.exitCode == 0)
        QSKIP("this truncation is read as a shorter file; the failure case is not reached");
    QCOMPARE(r.exitCode, 1);
    QVERIFY(!QFile::exists(dir_.filePath("broken.report.pdf")));
    QVERIFY(leftovers(QDir(dir_.path())).isEmpty());
}

void PdfReportTest::noReportAfterAStoppedRun()
{
    const QString in = tone("long.wav", 44100, 40);
    const QString out = dir_.filePath("stopped.dsf");
    QProcess p;
    p.start(enginePath(), {"-i", in, "--gui", "--oversampling", "256", "-pdfrp", out});
    QVERIFY(p.waitForStarted());
    QElapsedTimer t;
    t.start();
    QByteArray seen;
    while (!seen.contains("[PROGRESS]") && t.elapsed() < 20000) {
        p.waitForReadyRead(200);
        seen += p.readAllStandardOutput();
    }
    p.write("stop\n");
    QVERIFY(p.waitForFinished(30000));
    QCOMPARE(p.exitCode(), 195);
    QVERIFY(QFile::exists(out));
    QVERIFY(!QFile::exists(dir_.filePath("stopped.report.pdf")));
    QVERIFY(leftovers(QDir(dir_.path())).isEmpty());
}

void PdfReportTest::unwritableReportIsAWarning()
{
    // A folder where the report should go: the rename cannot replace it.
    const QString out = dir_.filePath("blocked.dsf");
    QVERIFY(QDir(dir_.path()).mkpath("blocked.report.pdf/inside"));
    const RunResult r = runEngine({"-i", tone("t44.wav", 44100, 6), "-pdfrp", out});
    QCOMPARE(r.exitCode, 0);
    QVERIFY2(r.err.contains("warning: no PDF report"), qPrintable(r.err));
    QVERIFY(QFileInfo(out).size() > 100000);
    QVERIFY(QFileInfo(dir_.filePath("blocked.report.pdf")).isDir());
    QVERIFY(leftovers(QDir(dir_.path())).isEmpty());
}

void PdfReportTest::noReportForDsdToPcm()
{
    const QString dsf = dir_.filePath("forreverse.dsf");
    QCOMPARE(runEngine({"-i", tone("t44.wav", 44100, 6), dsf}).exitCode, 0);
    const QString wav = dir_.filePath("reversed.wav");
    const RunResult r = runEngine({"--reverse", "-i", dsf, "-pdfrp", wav});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY2(r.err.contains("made for PCM to DSD conversions"), qPrintable(r.err));
    QVERIFY(QFile::exists(wav));
    QVERIFY(!QFile::exists(dir_.filePath("reversed.report.pdf")));
}

QTEST_GUILESS_MAIN(PdfReportTest)
#include "tst_pdf_report.moc"
