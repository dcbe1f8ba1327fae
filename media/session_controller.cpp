#include "session_controller.h"

#include <QCoreApplication>

#include "engine_session.h"
#include "session_inbox.h"

SessionController::SessionController(QObject* parent)
    : QObject(parent)
    , inbox_(std::make_unique<SessionInbox>())
{
}

SessionController::~SessionController()
{
    discardSession();
}

bool SessionController::childProcessesForced()
{
    return qEnvironmentVariable("ZUVO_GUI_INPROC") == QLatin1String("0");
}

QString SessionController::sessionKindText(bool inProcess)
{
    return inProcess ? QCoreApplication::translate("MainWindow", "进程内(直接调库)")
                     : QCoreApplication::translate("MainWindow", "子进程");
}

void SessionController::adoptSession(EngineSession* session)
{
    discardSession();
    carry_.clear();
    session_ = session;
    inbox_->attach(*session_);
}

void SessionController::discardSession()
{
    if (!session_)
        return;
    SessionInbox::detach(*session_);
    delete session_;
    session_ = nullptr;
}

void SessionController::poll()
{
    if (session_)
        session_->poll();
    drain();
}

SessionController::RunEnd SessionController::drainLines(const std::function<void(const QString&)>& onLine)
{
    RunEnd end;
    for (const SessionEvent& event : inbox_->drain()) {
        if (event.kind == SessionEvent::Finished) {
            end.finished = true;
            end.exitCode = event.exitCode;
            end.crashed = event.crashed;
            continue;
        }
        for (const QString& line : carry_.take(event.text.toUtf8())) {
            if (line.isEmpty())
                continue;
            emit logLine(line, event.fromStderr);
            if (onLine)
                onLine(line);
        }
    }
    return end;
}
