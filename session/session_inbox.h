#pragma once
// Collects a session's lines and its end from whatever thread reports them,
// for the GUI thread to drain from its timer. One inbox per activity.

#include <QList>
#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>

class EngineSession;

struct SessionEvent {
    enum Kind { Line, Finished };
    Kind kind = Line;
    QString text;          // Line
    bool fromStderr = false;
    int exitCode = 0;      // Finished
    bool crashed = false;
};

// A producer on another thread waits while the GUI thread has kBacklog events
// it has not drained yet: an engine inside the program that prints faster
// than the window can show is slowed to the window's pace instead of filling
// memory and taking the CPU the window needs. The wait gives up after
// kMaxWaitMs and stays off until the next drain, so a GUI thread that is
// itself waiting for the run (closing the program) is never deadlocked.
class SessionInbox {
public:
    static constexpr qsizetype kBacklog = 50000;
    static constexpr int kMaxWaitMs = 200;

    SessionInbox();
    ~SessionInbox();
    SessionInbox(const SessionInbox&) = delete;
    SessionInbox& operator=(const SessionInbox&) = delete;

    // Any thread.
    void pushLine(const QString& text, bool fromStderr);
    void pushFinished(int exitCode, bool crashed);

    // Installs callbacks on `session` that push into this inbox. They keep
    // the inbox's storage alive, so the order in which the inbox and the
    // session go away does not matter.
    void attach(EngineSession& session);
    // Removes all callbacks from `session`; nothing reaches the inbox after.
    static void detach(EngineSession& session);

    // GUI thread: everything pushed so far, in arrival order.
    QList<SessionEvent> drain();
    bool isEmpty() const;

private:
    struct Store {
        std::mutex mutex;
        std::condition_variable drained;
        QList<SessionEvent> events;
        bool throttling = true;
        void push(SessionEvent event);
    };
    std::shared_ptr<Store> store_;
};
