#pragma once
// Collects a session's lines and its end from whatever thread reports them,
// for the GUI thread to drain from its timer. One inbox per activity.

#include <QList>
#include <QString>

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

class SessionInbox {
public:
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
        QList<SessionEvent> events;
        void push(SessionEvent event);
    };
    std::shared_ptr<Store> store_;
};
