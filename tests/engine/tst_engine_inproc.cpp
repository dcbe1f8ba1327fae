// The engine's entry called inside the test's own process, the way the
// front-end's in-process runner calls it: host options are stripped, the
// control queue replaces standard input.
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <cstring>
#include <thread>

#include <sndfile.h>

#include "engine_main.h"
#include "engine_test_support.h"

using namespace enginetest;

namespace {

int callEngine(QStringList args)
{
    args.prepend("ZuvoEngine");
    std::vector<QByteArray> bytes;
    for (const QString& a : args)
        bytes.push_back(a.toUtf8());
    std::vector<char*> argv;
    for (QByteArray& b : bytes)
        argv.push_back(b.data());
    argv.push_back(nullptr);
    return zuvo_engine_main(static_cast<int>(bytes.size()), argv.data());
}

// A host queue that hands out "stop" once, after a delay, then reports
// itself closed.
struct FakeQueue {
    std::atomic<int> calls{0};
    int delayMs = 0;
};

int fakePopLine(void* queue, char* buffer, int capacity)
{
    auto* q = static_cast<FakeQueue*>(queue);
    if (q->calls++ > 0 || capacity < 5)
        return 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(q->delayMs));
    std::memcpy(buffer, "stop", 5);
    return 4;
}

} // namespace

class EngineInprocTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void hostOptionsAreStripped();
    void convertsWithoutQueue();
    void stopThroughQueue();

private:
    QString input(double seconds);
    QTemporaryDir dir_;
};

void EngineInprocTest::initTestCase()
{
    QVERIFY(dir_.isValid());
}

QString EngineInprocTest::input(double seconds)
{
    const QString path = dir_.filePath(QString("in-%1.wav").arg(seconds));
    if (!QFile::exists(path))
        writePcm(path, 44100, 2, long(seconds * 44100), SF_FORMAT_WAV | SF_FORMAT_PCM_16,
                 [](long i, int) { return 0.3 * std::sin(2 * M_PI * 440.0 * i / 44100.0); });
    return path;
}

void EngineInprocTest::hostOptionsAreStripped()
{
    QCOMPARE(callEngine({"--version", "-inproc-host"}), 0);
    FakeQueue q;
    QCOMPARE(callEngine({"--version", "-inproc-host", "-inproc-ctl", QString::number(reinterpret_cast<quintptr>(&q)),
                         "-inproc-ctl-fn", QString::number(reinterpret_cast<quintptr>(&fakePopLine))}),
             0);
}

void EngineInprocTest::convertsWithoutQueue()
{
    // No queue: the engine must not take the host's standard input as its
    // control channel, and it runs to the end.
    const QString out = dir_.filePath("inproc.dsf");
    QCOMPARE(callEngine({"-i", input(0.5), "--gui", out, "-inproc-host"}), 0);
    const QJsonObject probe = ffprobe(out);
    QCOMPARE(probe["streams"].toArray().at(0).toObject()["channels"].toInt(), 2);
    QVERIFY(dsdDurationMatches(probe, 0.5, 2822400));
    // A usage error in-process is a return value, not an exit.
    QCOMPARE(callEngine({"-i", input(0.5), "--bass", "loud", out, "-inproc-host"}), 2);
}

void EngineInprocTest::stopThroughQueue()
{
    FakeQueue q;
    q.delayMs = 400;
    const QString out = dir_.filePath("inproc-stopped.dff");
    const int rc = callEngine({"-i", input(30.0), "--gui", "--oversampling", "256", out, "-inproc-host", "-inproc-ctl",
                               QString::number(reinterpret_cast<quintptr>(&q)), "-inproc-ctl-fn",
                               QString::number(reinterpret_cast<quintptr>(&fakePopLine))});
    QCOMPARE(rc, 195);
    const QJsonObject probe = ffprobe(out);
    QCOMPARE(probe["streams"].toArray().at(0).toObject()["channels"].toInt(), 2);
    const double d = probe["format"].toObject()["duration"].toString().toDouble();
    QVERIFY2(d >= 0 && d < 30.0, qPrintable(QString::number(d)));
}

QTEST_GUILESS_MAIN(EngineInprocTest)
#include "tst_engine_inproc.moc"
