// The inbox that carries a session's lines and end from the reporting
// thread to the GUI thread's timer.

#include <QtTest>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

#include "engine_inproc_session.h"
#include "session_inbox.h"

using namespace std::chrono_literals;

namespace {

std::atomic<bool> g_release{false};

int entryThreeLines(int, char**)
{
    std::printf("one\ntwo\n");
    std::fflush(stdout);
    std::fprintf(stderr, "three\n");
    return 7;
}

int entryHolds(int, char**)
{
    std::printf("holding\n");
    std::fflush(stdout);
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    while (!g_release && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(5ms);
    std::printf("released\n");
    return 0;
}

// Drains like the main window's timer until a Finished event shows up.
QList<SessionEvent> drainUntilFinished(EngineSession& session, SessionInbox& inbox)
{
    QList<SessionEvent> all;
    const auto deadline = std::chrono::steady_clock::now() + 8s;
    while (std::chrono::steady_clock::now() < deadline) {
        session.poll();
        all += inbox.drain();
        if (!all.isEmpty() && all.last().kind == SessionEvent::Finished)
            break;
        std::this_thread::sleep_for(10ms);
    }
    return all;
}

} // namespace

class TestSessionInbox : public QObject {
    Q_OBJECT

private slots:
    void init() { g_release = false; }
    void cleanup() { g_release = true; }

    void drainGivesArrivalOrderOnce();
    void producersOnManyThreads();
    void carriesAnInProcessRun();
    void detachedSessionReachesNothing();
    void inboxMayGoFirst();
    void fastProducerWaitsForDrains();
};

void TestSessionInbox::drainGivesArrivalOrderOnce()
{
    SessionInbox inbox;
    QVERIFY(inbox.isEmpty());
    inbox.pushLine("a\n", false);
    inbox.pushLine("b\n", true);
    inbox.pushFinished(195, true);
    QVERIFY(!inbox.isEmpty());

    const QList<SessionEvent> events = inbox.drain();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events[0].kind, SessionEvent::Line);
    QCOMPARE(events[0].text, QStringLiteral("a\n"));
    QVERIFY(!events[0].fromStderr);
    QCOMPARE(events[1].text, QStringLiteral("b\n"));
    QVERIFY(events[1].fromStderr);
    QCOMPARE(events[2].kind, SessionEvent::Finished);
    QCOMPARE(events[2].exitCode, 195);
    QVERIFY(events[2].crashed);

    QVERIFY(inbox.drain().isEmpty());
    QVERIFY(inbox.isEmpty());
}

void TestSessionInbox::producersOnManyThreads()
{
    constexpr int kThreads = 4;
    constexpr int kPerThread = 5000;
    SessionInbox inbox;
    std::atomic<int> running{kThreads};
    std::vector<std::thread> producers;
    for (int t = 0; t < kThreads; ++t)
        producers.emplace_back([&inbox, &running, t] {
            for (int i = 0; i < kPerThread; ++i)
                inbox.pushLine(QStringLiteral("%1 %2").arg(t).arg(i), t % 2 == 1);
            inbox.pushFinished(t, false);
            --running;
        });

    // Drain while the producers are still pushing, as the GUI timer would.
    QList<SessionEvent> all;
    while (running > 0)
        all += inbox.drain();
    for (std::thread& p : producers)
        p.join();
    all += inbox.drain();

    QCOMPARE(all.size(), kThreads * (kPerThread + 1));
    std::vector<int> next(kThreads, 0);
    std::vector<bool> finished(kThreads, false);
    for (const SessionEvent& e : all) {
        if (e.kind == SessionEvent::Finished) {
            QCOMPARE(next[std::size_t(e.exitCode)], kPerThread); // after all of that thread's lines
            finished[std::size_t(e.exitCode)] = true;
            continue;
        }
        const QStringList parts = e.text.split(' ');
        const int t = parts[0].toInt();
        QCOMPARE(parts[1].toInt(), next[std::size_t(t)]); // each thread's lines in its order
        QCOMPARE(e.fromStderr, t % 2 == 1);
        ++next[std::size_t(t)];
    }
    QCOMPARE(finished, std::vector<bool>(kThreads, true));
}

void TestSessionInbox::carriesAnInProcessRun()
{
    EngineInProcSession session(entryThreeLines);
    SessionInbox inbox;
    inbox.attach(session);
    QCOMPARE(session.start("engine", {}), 0);
    const QList<SessionEvent> events = drainUntilFinished(session, inbox);

    QCOMPARE(events.size(), 4);
    QStringList lines;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(events[i].kind, SessionEvent::Line);
        lines << events[i].text;
    }
    QCOMPARE(lines, (QStringList{"one\n", "two\n", "three\n"}));
    QCOMPARE(events[3].kind, SessionEvent::Finished);
    QCOMPARE(events[3].exitCode, 7);
    QVERIFY(!events[3].crashed);
}

void TestSessionInbox::detachedSessionReachesNothing()
{
    EngineInProcSession session(entryThreeLines);
    SessionInbox inbox;
    inbox.attach(session);
    SessionInbox::detach(session);
    QCOMPARE(session.start("engine", {}), 0);
    QVERIFY(session.waitForFinished(5000));
    session.poll();
    QVERIFY(inbox.drain().isEmpty());
}

void TestSessionInbox::inboxMayGoFirst()
{
    EngineInProcSession session(entryHolds);
    {
        SessionInbox inbox;
        inbox.attach(session);
        QCOMPARE(session.start("engine", {}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!inbox.isEmpty(), 3000); // "holding"
    }
    g_release = true; // "released" and the end now go to storage nobody drains
    QVERIFY(session.waitForFinished(5000));
    session.poll();
    QVERIFY(!session.isRunning());
}

void TestSessionInbox::fastProducerWaitsForDrains()
{
    // A producer thread ahead of the GUI thread by a full backlog waits for
    // the next drain; without drains it waits once, briefly, and goes on.
    SessionInbox inbox;
    std::atomic<int> pushed{0};
    const int total = int(SessionInbox::kBacklog) + 10;
    std::thread producer([&] {
        for (int i = 0; i < total; ++i, ++pushed)
            inbox.pushLine(QStringLiteral("x"), false);
    });
    QTRY_COMPARE(pushed.load(), int(SessionInbox::kBacklog));
    std::this_thread::sleep_for(50ms);
    QCOMPARE(pushed.load(), int(SessionInbox::kBacklog));
    QCOMPARE(inbox.drain().size(), SessionInbox::kBacklog);
    producer.join();
    QCOMPARE(inbox.drain().size(), qsizetype(10));

    QElapsedTimer t;
    t.start();
    std::thread unattended([&] {
        for (int i = 0; i < 2 * total; ++i)
            inbox.pushLine(QStringLiteral("y"), false);
    });
    unattended.join();
    QVERIFY(t.elapsed() >= SessionInbox::kMaxWaitMs - 20 && t.elapsed() < 10000); // once, not per line
    QCOMPARE(inbox.drain().size(), qsizetype(2 * total));
}

QTEST_GUILESS_MAIN(TestSessionInbox)
#include "tst_session_inbox.moc"
