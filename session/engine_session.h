#pragma once
// One run of the conversion engine, the player or the recorder, either as a
// child process or inside this process. Owners: factory -> setCallbacks ->
// start -> poll() from a GUI timer (writeLine/stop on request) -> the finish
// callback -> delete.

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>

class QObject;

class EngineSession {
public:
    using LineCallback = std::function<void(const QString& line, bool fromStderr)>;
    using FinishedCallback = std::function<void(int exitCode, bool crashed)>;

    // Result codes.
    static constexpr int kOk = 0;
    static constexpr int kNotRunning = -1;    // writeLine without a run; in process also a bad start
    static constexpr int kAlreadyRunning = -2; // start while a run is active
    static constexpr int kStartFailed = -3;    // child could not be started; see errorString()
    static constexpr int kStopTimedOut = -1000;

    virtual ~EngineSession();
    EngineSession(const EngineSession&) = delete;
    EngineSession& operator=(const EngineSession&) = delete;

    virtual int start(const QString& program, const QList<QString>& arguments) = 0;
    virtual bool isRunning() const = 0;
    // Sends one control line; returns the bytes handed over, 0 when refused,
    // -1 without a run. `flushed` may be null.
    virtual int writeLine(const QString& text, bool* flushed) = 0;
    // Asks the engine to stop and waits; never ends it by force.
    virtual int stop(int timeoutMs) = 0;
    virtual bool waitForFinished(int timeoutMs) = 0;
    virtual void terminate() = 0;
    virtual void kill() = 0;
    virtual bool canKill() const = 0;
    virtual bool isInProcess() const;
    virtual void close() = 0;
    // GUI thread: collects output and reports the end (once per run).
    virtual void poll() = 0;
    virtual QString errorString() const = 0;

    // Replaces both callbacks. Output that arrives while no line callback is
    // set is dropped. An in-process session calls `onLine` from its reader
    // thread; `onFinished` always comes on the GUI thread.
    void setCallbacks(LineCallback onLine, FinishedCallback onFinished);

protected:
    EngineSession();

    // Shared with the in-process reader thread, which may outlive the
    // session; the session empties it when it goes away.
    class Callbacks {
    public:
        void set(LineCallback onLine, FinishedCallback onFinished);
        void clear();
        bool hasLine() const;
        // Calls a copy under the lock: replacing the callbacks from another
        // thread waits for a call in progress, and a callback may replace
        // them from inside itself.
        void line(const QString& text, bool fromStderr) const;
        void finished(int exitCode, bool crashed) const;

    private:
        mutable std::recursive_mutex mutex_;
        LineCallback onLine_;
        FinishedCallback onFinished_;
    };

    const std::shared_ptr<Callbacks>& callbacks() const { return callbacks_; }

private:
    std::shared_ptr<Callbacks> callbacks_;
};

// Reads ZUVO_GUI_INPROC at each call: exactly "0" gives a child-process
// session, anything else an in-process one. The caller owns the result;
// `parent` owns the child's QProcess.
EngineSession* createEngineSession(QObject* parent);
EngineSession* createPlayerSession(QObject* parent);
