#pragma once
// Recording through the conversion engine's record mode: one recording at a
// time with its own session, the engine's lines into the log, "q" to let it
// finish the DSF, and a single forced end when it has not after 12 s. The
// recording backend's probe result decides whether a start is allowed.
// No widgets: the window forwards the buttons and shows what this reports.

#include <QString>

#include "recorder_args.h"
#include "session_controller.h"

class RecordingController : public SessionController {
    Q_OBJECT
public:
    static constexpr int kStopEscalationMs = 12000;
    static constexpr int kShutdownWaitMs = 8000;

    explicit RecordingController(QObject* parent = nullptr);
    ~RecordingController() override;

    bool isRecording() const { return recording_; }
    bool isStopping() const { return stopping_; }
    bool backendProbed() const { return backendProbed_; }
    bool backendAvailable() const { return backendAvailable_; }
    QString recordPath() const { return recordPath_; }

    // `outputField` is the output-file field as typed (trimmed here);
    // `engineLog` empty = no engine log file.
    void startRecording(const QString& outputField, const RecorderSettings& settings, const QString& engineLog);
    void stopRecording();
    // The device probe's verdict.
    void setBackendStatus(bool available, const QString& detail);
    // The program closes: "q", a bounded wait, then a kill if it can.
    void shutDown();

signals:
    // A modal warning for the window to show (bad output path only).
    void warningRequested(const QString& title, const QString& text);
    void recordingChanged(bool recording);
    // The shared progress bar: its format text, and either full or empty.
    void progressChanged(const QString& format, bool full);
    void backendStatusChanged(bool available, const QString& statusText);

private:
    void drain() override;
    void setRecording(bool recording);
    void onStopEscalation();

    QString recordPath_;
    bool recording_ = false;
    bool stopping_ = false;
    bool backendProbed_ = false;
    bool backendAvailable_ = false;
};
