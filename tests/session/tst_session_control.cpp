// The in-memory control queue and the engine-side reader that consumes it
// (also from standard input, as a child engine does).

#include <QtTest>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "control/control_channel.h"
#include "inproc_runner.h"

using zuvo::InprocCtlQueue;
using namespace std::chrono_literals;

namespace {

// Polls `condition` for up to `timeout`; the queue and listener work on
// their own threads, so the tests wait for effects instead of sleeping.
template <typename F>
bool eventually(F condition, std::chrono::milliseconds timeout = 3000ms)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(2ms);
    }
    return true;
}

std::string popString(InprocCtlQueue& q, int capacity = 256)
{
    std::vector<char> buf(std::size_t(capacity), 'X');
    const int n = InprocCtlQueue::popLine(&q, buf.data(), capacity);
    if (n < 0)
        return "<error>";
    if (n == 0)
        return "<closed>";
    return std::string(buf.data(), std::size_t(n)) + (buf[std::size_t(n)] == '\0' ? "" : "<unterminated>");
}

} // namespace

class TestSessionControl : public QObject {
    Q_OBJECT

private slots:
    void popStripsLineEnds_data();
    void popStripsLineEnds();
    void popRefusesUnusableBuffers();
    void linesComeOutFirstInFirstOut();
    void blankAndOverlongLinesAreNotCommands();
    void nullQueueReadsAsClosed();
    void capacityRefusesAllButStop();
    void closedQueueTakesOnlyStop();
    void closeWakesEveryBlockedReader();
    void destroyingWaitsForReadersInside();

    void hostOptionsAreTakenOut_data();
    void hostOptionsAreTakenOut();
    void listenerReadsTheQueueUntilClosed();
    void listenerGoneMeansNoMoreHandlerCalls();
    void listenerReadsStandardInput();
};

void TestSessionControl::popStripsLineEnds_data()
{
    QTest::addColumn<QByteArray>("pushed");
    QTest::addColumn<QByteArray>("popped");
    QTest::newRow("plain") << QByteArray("stop") << QByteArray("stop");
    QTest::newRow("lf") << QByteArray("stop\n") << QByteArray("stop");
    QTest::newRow("crlf") << QByteArray("q\r\n") << QByteArray("q");
    QTest::newRow("several") << QByteArray("q\r\n\r\n\n") << QByteArray("q");
    QTest::newRow("inner kept") << QByteArray("a\rb c\n") << QByteArray("a\rb c");
    QTest::newRow("utf8") << QByteArray("停止\n") << QByteArray("停止");
}

void TestSessionControl::popStripsLineEnds()
{
    QFETCH(QByteArray, pushed);
    QFETCH(QByteArray, popped);
    InprocCtlQueue q;
    QCOMPARE(q.push(pushed.toStdString()), InprocCtlQueue::Push::Accepted);
    QCOMPARE(QByteArray::fromStdString(popString(q)), popped);
}

void TestSessionControl::popRefusesUnusableBuffers()
{
    InprocCtlQueue q;
    q.push("q");
    char buf[4];
    QCOMPARE(InprocCtlQueue::popLine(&q, nullptr, 16), -1);
    QCOMPARE(InprocCtlQueue::popLine(&q, buf, 1), -1);
    QCOMPARE(q.size(), std::size_t(1)); // nothing was taken by the refused calls
    QCOMPARE(InprocCtlQueue::popLine(&q, buf, 2), 1);
    QCOMPARE(QByteArray(buf), QByteArray("q"));
}

void TestSessionControl::linesComeOutFirstInFirstOut()
{
    InprocCtlQueue q;
    for (const char* s : {"one", "two", "three"})
        q.push(s);
    QCOMPARE(popString(q), std::string("one"));
    QCOMPARE(popString(q), std::string("two"));
    QCOMPARE(popString(q), std::string("three"));
}

void TestSessionControl::blankAndOverlongLinesAreNotCommands()
{
    InprocCtlQueue q;
    q.push("\r\n");
    q.push(std::string(300, 'x'));
    q.push("stop");
    q.close();
    // A blank line returning 0 would tell the engine the channel is over.
    QCOMPARE(popString(q, 256), std::string("stop"));
    QCOMPARE(popString(q, 256), std::string("<closed>"));
}

void TestSessionControl::nullQueueReadsAsClosed()
{
    char buf[8];
    QCOMPARE(InprocCtlQueue::popLine(nullptr, buf, int(sizeof buf)), 0);
}

void TestSessionControl::capacityRefusesAllButStop()
{
    InprocCtlQueue q;
    for (std::size_t i = 0; i < InprocCtlQueue::kCapacity; ++i)
        QCOMPARE(q.push("line " + std::to_string(i)), InprocCtlQueue::Push::Accepted);
    QCOMPARE(q.push("one too many"), InprocCtlQueue::Push::Refused);
    QCOMPARE(q.push("stop"), InprocCtlQueue::Push::ForcedStop);
    QCOMPARE(q.size(), InprocCtlQueue::kCapacity + 1);

    // The forced stop counts: one pop still leaves the queue full.
    QCOMPARE(popString(q), std::string("line 0"));
    QCOMPARE(q.push("still full"), InprocCtlQueue::Push::Refused);
    QCOMPARE(popString(q), std::string("line 1"));
    QCOMPARE(q.push("fits again"), InprocCtlQueue::Push::Accepted);
    for (std::size_t i = 2; i < InprocCtlQueue::kCapacity; ++i)
        QCOMPARE(popString(q), "line " + std::to_string(i));
    QCOMPARE(popString(q), std::string("stop"));
    QCOMPARE(popString(q), std::string("fits again"));
}

void TestSessionControl::closedQueueTakesOnlyStop()
{
    InprocCtlQueue q;
    q.push("before");
    q.close();
    QVERIFY(q.isClosed());
    QCOMPARE(q.push("q"), InprocCtlQueue::Push::Refused);
    QCOMPARE(q.push("stop"), InprocCtlQueue::Push::ForcedStop);
    QCOMPARE(popString(q), std::string("before"));
    QCOMPARE(popString(q), std::string("stop"));
    QCOMPARE(popString(q), std::string("<closed>"));
}

void TestSessionControl::closeWakesEveryBlockedReader()
{
    InprocCtlQueue q;
    constexpr int kReaders = 4;
    std::vector<std::future<int>> results;
    for (int i = 0; i < kReaders; ++i)
        results.push_back(std::async(std::launch::async, [&q] {
            char buf[64];
            return InprocCtlQueue::popLine(&q, buf, int(sizeof buf));
        }));
    QVERIFY(eventually([&] { return q.readersInside() == kReaders; }));
    q.push("x");
    QVERIFY(eventually([&] { return q.readersInside() == kReaders - 1; }));
    q.close();
    int ones = 0, zeros = 0;
    for (auto& r : results) {
        QCOMPARE(r.wait_for(3s), std::future_status::ready);
        const int n = r.get();
        (n == 1 ? ones : zeros) += 1;
    }
    QCOMPARE(ones, 1);
    QCOMPARE(zeros, kReaders - 1);
    QCOMPARE(q.readersInside(), 0);
}

void TestSessionControl::destroyingWaitsForReadersInside()
{
    auto* q = new InprocCtlQueue;
    auto reader = std::async(std::launch::async, [q] {
        char buf[64];
        return InprocCtlQueue::popLine(q, buf, int(sizeof buf));
    });
    QVERIFY(eventually([&] { return q->readersInside() == 1; }));
    delete q; // must wake the reader and wait for it to leave (ASan sees any late touch)
    QCOMPARE(reader.wait_for(3s), std::future_status::ready);
    QCOMPARE(reader.get(), 0);
}

void TestSessionControl::hostOptionsAreTakenOut_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QStringList>("kept");
    QTest::addColumn<bool>("host");
    QTest::addColumn<bool>("hasQueue");
    QTest::addColumn<bool>("malformed");

    QTest::newRow("none") << QStringList{"eng", "-i", "a.wav"} << QStringList{"eng", "-i", "a.wav"} << false << false << false;
    QTest::newRow("full") << QStringList{"eng", "x", "-inproc-host", "-inproc-ctl", "4096", "-inproc-ctl-fn", "8192"}
                          << QStringList{"eng", "x"} << true << true << false;
    QTest::newRow("host only") << QStringList{"eng", "-inproc-host"} << QStringList{"eng"} << true << false << false;
    QTest::newRow("missing value") << QStringList{"eng", "-inproc-host", "-inproc-ctl"} << QStringList{"eng"} << true << false << true;
    QTest::newRow("zero address") << QStringList{"eng", "-inproc-ctl", "0", "-inproc-ctl-fn", "8"}
                                  << QStringList{"eng", "0"} << false << false << true;
    QTest::newRow("not a number") << QStringList{"eng", "-inproc-ctl", "12ab"} << QStringList{"eng", "12ab"} << false << false << true;
    QTest::newRow("argv0 untouched") << QStringList{"-inproc-host", "y"} << QStringList{"-inproc-host", "y"} << false << false << false;
}

void TestSessionControl::hostOptionsAreTakenOut()
{
    QFETCH(QStringList, args);
    QFETCH(QStringList, kept);
    QFETCH(bool, host);
    QFETCH(bool, hasQueue);
    QFETCH(bool, malformed);

    std::vector<std::string> v;
    for (const QString& a : args)
        v.push_back(a.toStdString());
    const zuvo::InprocHostOptions opts = zuvo::takeInprocHostOptions(v);
    QStringList rest;
    for (const std::string& a : v)
        rest << QString::fromStdString(a);
    QCOMPARE(rest, kept);
    QCOMPARE(opts.host, host);
    QCOMPARE(opts.hasQueue(), hasQueue);
    QCOMPARE(opts.malformed, malformed);
    if (hasQueue) {
        QCOMPARE(reinterpret_cast<std::uintptr_t>(opts.queue), std::uintptr_t(4096));
        QCOMPARE(reinterpret_cast<std::uintptr_t>(opts.popLine), std::uintptr_t(8192));
    }
}

void TestSessionControl::listenerReadsTheQueueUntilClosed()
{
    const auto queue = InprocCtlQueue::createForEngine();
    zuvo::InprocHostOptions opts;
    opts.host = true;
    opts.queue = queue.get();
    opts.popLine = &InprocCtlQueue::popLine;

    std::mutex m;
    std::vector<std::string> seen;
    {
        zuvo::ControlListener listener(opts);
        listener.start([&](const std::string& line) {
            std::lock_guard lock(m);
            seen.push_back(line);
        });
        queue->push("  q \r\n");
        queue->push("\n");
        queue->push("stop\n");
        QVERIFY(eventually([&] { return listener.stopRequested(); }));
        QVERIFY(listener.received("q"));
        QVERIFY(!listener.received(""));
    }
    {
        std::lock_guard lock(m);
        QCOMPARE(seen, (std::vector<std::string>{"q", "stop"}));
    }
    // The listener's reader is detached and still blocked in the queue; the
    // host's close is what lets it end.
    QVERIFY(eventually([&] { return queue->readersInside() == 1; }));
    queue->close();
    QVERIFY(eventually([&] { return queue->readersInside() == 0; }));
}

void TestSessionControl::listenerGoneMeansNoMoreHandlerCalls()
{
    const auto queue = InprocCtlQueue::createForEngine();
    zuvo::InprocHostOptions opts;
    opts.host = true;
    opts.queue = queue.get();
    opts.popLine = &InprocCtlQueue::popLine;

    auto calls = std::make_shared<std::atomic<int>>(0);
    {
        zuvo::ControlListener listener(opts);
        listener.start([calls](const std::string&) { ++*calls; });
        queue->push("first");
        QVERIFY(eventually([&] { return calls->load() == 1; }));
        QVERIFY(eventually([&] { return queue->readersInside() == 1; }));
    }
    queue->push("after the engine returned");
    queue->close();
    QVERIFY(eventually([&] { return queue->readersInside() == 0 && queue->size() == 0; }));
    QCOMPARE(calls->load(), 1);
}

void TestSessionControl::listenerReadsStandardInput()
{
    // A child engine gets its commands on descriptor 0; a host without a
    // queue puts its control pipe there too.
    const int savedIn = ::dup(0);
    QVERIFY(savedIn >= 0);
    const auto withStdinPipe = [&](auto body) {
        int fds[2];
        if (::pipe(fds) != 0)
            return;
        ::dup2(fds[0], 0);
        ::close(fds[0]);
        body(fds[1]);
        ::dup2(savedIn, 0);
    };

    bool qSeen = false, stopAfterEof = true;
    withStdinPipe([&](int writeEnd) {
        zuvo::ControlListener listener(zuvo::InprocHostOptions{});
        listener.start({});
        ::write(writeEnd, "q\r\n", 3);
        qSeen = eventually([&] { return listener.received("q"); });
        ::close(writeEnd);
        std::this_thread::sleep_for(250ms); // the reader meets end of input
        stopAfterEof = listener.stopRequested();
    });

    bool stopSeen = false;
    withStdinPipe([&](int writeEnd) {
        zuvo::InprocHostOptions hostWithoutQueue;
        hostWithoutQueue.host = true;
        zuvo::ControlListener listener(hostWithoutQueue);
        listener.start({});
        ::write(writeEnd, "st", 2); // a command split across writes
        std::this_thread::sleep_for(20ms);
        ::write(writeEnd, "op\n\n", 4);
        stopSeen = eventually([&] { return listener.stopRequested(); });
        ::close(writeEnd);
    });
    ::close(savedIn);

    QVERIFY(qSeen);
    QVERIFY(!stopAfterEof);
    QVERIFY(stopSeen);
}

QTEST_GUILESS_MAIN(TestSessionControl)
#include "tst_session_control.moc"
