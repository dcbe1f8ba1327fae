#pragma once
// Auditioning a file through the player: one playback at a time, its output
// lines into the log, its end classified, and a stop that escalates by timers
// (ask, then terminate, then kill) without ever blocking the GUI thread.
// No widgets: the window forwards the buttons and shows what this reports.

#include <QString>

#include "session_controller.h"

class PlaybackController : public SessionController {
    Q_OBJECT
public:
    static constexpr int kStopGraceMs = 8000;
    static constexpr int kKillDelayMs = 1500;
    static constexpr int kShutdownWaitMs = 5000;

    explicit PlaybackController(QObject* parent = nullptr);
    ~PlaybackController() override;

    bool isPlaying() const { return playing_; }
    quint32 generation() const { return generation_; }

    // `file` is the output-file field as typed (trimmed here).
    void startPlayback(const QString& file, const QString& device, bool stream);
    void stopPlayback();
    // The program closes: "stop", a bounded wait, then a kill if it can.
    void shutDown();

signals:
    void playingChanged(bool playing);
    void positionChanged(double seconds, double duration);

private:
    void drain() override;
    void setPlaying(bool playing);
    void onStopGraceExpired(quint32 generation);
    void onKillDelayExpired(quint32 generation);

    bool playing_ = false;
    quint32 generation_ = 0;
};
