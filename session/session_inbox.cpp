#include "session_inbox.h"

#include "engine_session.h"

#include <QCoreApplication>
#include <QThread>

#include <chrono>

SessionInbox::SessionInbox()
    : store_(std::make_shared<Store>())
{
}

SessionInbox::~SessionInbox() = default;

namespace {

bool onGuiThread()
{
    const QCoreApplication* app = QCoreApplication::instance();
    return !app || QThread::currentThread() == app->thread();
}

} // namespace

void SessionInbox::Store::push(SessionEvent event)
{
    std::unique_lock lock(mutex);
    if (throttling && events.size() >= kBacklog && !onGuiThread()) {
        if (!drained.wait_for(lock, std::chrono::milliseconds(kMaxWaitMs), [this] { return events.size() < kBacklog; }))
            throttling = false;
    }
    events.append(std::move(event));
}

void SessionInbox::pushLine(const QString& text, bool fromStderr)
{
    SessionEvent e;
    e.kind = SessionEvent::Line;
    e.text = text;
    e.fromStderr = fromStderr;
    store_->push(std::move(e));
}

void SessionInbox::pushFinished(int exitCode, bool crashed)
{
    SessionEvent e;
    e.kind = SessionEvent::Finished;
    e.exitCode = exitCode;
    e.crashed = crashed;
    store_->push(std::move(e));
}

void SessionInbox::attach(EngineSession& session)
{
    session.setCallbacks(
        [store = store_](const QString& text, bool fromStderr) {
            SessionEvent e;
            e.kind = SessionEvent::Line;
            e.text = text;
            e.fromStderr = fromStderr;
            store->push(std::move(e));
        },
        [store = store_](int exitCode, bool crashed) {
            SessionEvent e;
            e.kind = SessionEvent::Finished;
            e.exitCode = exitCode;
            e.crashed = crashed;
            store->push(std::move(e));
        });
}

void SessionInbox::detach(EngineSession& session)
{
    session.setCallbacks({}, {});
}

QList<SessionEvent> SessionInbox::drain()
{
    QList<SessionEvent> out;
    {
        std::lock_guard lock(store_->mutex);
        out.swap(store_->events);
        store_->throttling = true;
    }
    store_->drained.notify_all();
    return out;
}

bool SessionInbox::isEmpty() const
{
    std::lock_guard lock(store_->mutex);
    return store_->events.isEmpty();
}
