#pragma once
// The engine's library entry run inside this process by an InProcRunner.
// Output lines arrive on the runner's reader thread; the end is reported
// from poll() on the GUI thread.

#include "engine_session.h"
#include "inproc_runner.h"

class EngineInProcSession final : public EngineSession {
public:
    explicit EngineInProcSession(zuvo::EngineEntryFn entry,
                                 zuvo::InProcRunner::ControlChannel channel = zuvo::InProcRunner::ControlChannel::Queue);
    ~EngineInProcSession() override;

    int start(const QString& program, const QList<QString>& arguments) override;
    bool isRunning() const override;
    int writeLine(const QString& text, bool* flushed) override;
    int stop(int timeoutMs) override;
    bool waitForFinished(int timeoutMs) override;
    void terminate() override;
    void kill() override;
    bool canKill() const override;
    bool isInProcess() const override;
    void close() override;
    void poll() override;
    QString errorString() const override;

    zuvo::InProcRunner& runner() { return *runner_; }

private:
    std::unique_ptr<zuvo::InProcRunner> runner_;
    QString errorString_;
    bool started_ = false;
    bool finishReported_ = false;
};
