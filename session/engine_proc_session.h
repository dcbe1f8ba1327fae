#pragma once
// The engine as a child process, driven through QProcess on the GUI thread.

#include "engine_session.h"

#include <QByteArray>
#include <QMetaObject>
#include <QProcess>

class EngineProcSession final : public EngineSession {
public:
    // The QProcess becomes a child of `parent` and stays there after the
    // session is deleted: the parent's lifetime bounds it, not ours.
    explicit EngineProcSession(QObject* parent);
    ~EngineProcSession() override;

    int start(const QString& program, const QList<QString>& arguments) override;
    bool isRunning() const override;
    int writeLine(const QString& text, bool* flushed) override;
    int stop(int timeoutMs) override;
    bool waitForFinished(int timeoutMs) override;
    void terminate() override;
    void kill() override;
    bool canKill() const override;
    void close() override;
    void poll() override;
    QString errorString() const override;

    QProcess* process() const { return process_; }

private:
    void drain(QProcess::ProcessChannel channel);
    void reportFinished(int exitCode, bool crashed);

    QProcess* process_;
    QByteArray pendingOut_;
    QByteArray pendingErr_;
    QString errorString_;
    bool started_ = false;
    bool finishReported_ = false;
    QList<QMetaObject::Connection> connections_;
};
