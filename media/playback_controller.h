#pragma once
// Auditioning a file through the player: one playback at a time, its output
// lines into the log, its end classified, and a stop that escalates by timers
// (ask, then terminate, then kill) without ever blocking the GUI thread.
// No widgets: the window forwards the buttons and shows what this reports.

#include <QObject>
#include <QString>

#include <memory>

#include "line_carry.h"

class EngineSession;
class SessionInbox;

class PlaybackController : public QObject {
    Q_OBJECT
public:
    static constexpr int kStopGraceMs = 8000;
    static constexpr int kKillDelayMs = 1500;
    static constexpr int kShutdownWaitMs = 5000;

    explicit PlaybackController(QObject* parent = nullptr);
    ~PlaybackController() override;

    bool isPlaying() const { return playing_; }
    quint32 generation() const { return generation_; }
    bool hasSession() const { return session_ != nullptr; }

    // `file` is the output-file field as typed (trimmed here).
    void startPlayback(const QString& file, const QString& device, bool stream);
    void stopPlayback();
    // GUI timer: the session reports its news, then the inbox is drained.
    void poll();
    // The program closes: "stop", a bounded wait, then a kill if it can.
    void shutDown();

signals:
    void logLine(const QString& text, bool isError);
    void playingChanged(bool playing);
    void positionChanged(double seconds, double duration);

private:
    void drain();
    void setPlaying(bool playing);
    void discardSession();
    void onStopGraceExpired(quint32 generation);
    void onKillDelayExpired(quint32 generation);

    void log(const QString& text) { emit logLine(text, false); }
    void logError(const QString& text) { emit logLine(text, true); }

    EngineSession* session_ = nullptr;
    std::unique_ptr<SessionInbox> inbox_;
    LineCarry carry_;
    bool playing_ = false;
    quint32 generation_ = 0;
};
