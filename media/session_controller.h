#pragma once
// What playback and recording share: one engine session at a time, its
// callbacks feeding an inbox from whatever thread they run on, and the GUI
// thread draining that inbox into log lines on a timer. Subclasses decide
// what a start, a stop and the end of a run mean.

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

#include "line_carry.h"

class EngineSession;
class SessionInbox;

class SessionController : public QObject {
    Q_OBJECT
public:
    explicit SessionController(QObject* parent = nullptr);
    ~SessionController() override;

    bool hasSession() const { return session_ != nullptr; }
    // GUI timer: the session reports its news, then the inbox is drained.
    void poll();

    // ZUVO_GUI_INPROC exactly "0" asks for child processes.
    static bool childProcessesForced();
    // "进程内(直接调库)" or "子进程", for the session log line.
    static QString sessionKindText(bool inProcess);

signals:
    void logLine(const QString& text, bool isError);

protected:
    struct RunEnd {
        bool finished = false;
        int exitCode = 0;
        bool crashed = false;
    };

    // Replaces any previous session by `session` (owned from now on) and
    // routes its output into the inbox; the carry-over buffer starts empty.
    void adoptSession(EngineSession* session);
    void discardSession();
    // Splits the inbox's text into lines (CR removed, empty lines skipped),
    // logs each (stderr as an error) and hands it to `onLine`; reports
    // whether the run's end was among the news.
    RunEnd drainLines(const std::function<void(const QString&)>& onLine = {});
    virtual void drain() = 0;

    void log(const QString& text) { emit logLine(text, false); }
    void logError(const QString& text) { emit logLine(text, true); }

    EngineSession* session_ = nullptr;

private:
    std::unique_ptr<SessionInbox> inbox_;
    LineCarry carry_;
};
