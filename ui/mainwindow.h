#pragma once
#include <QMainWindow>
#include <QString>
#include <memory>

#include "conversion_settings.h"

class ConversionQueue;
class DiagnosticsDialog;
class InputOutputPanel;
class PlaybackController;
class PlayPage;
class RecordingController;
class RecordingProbe;
class RecordPage;
class QTemporaryDir;
class QTimer;
class RunControlsPanel;
struct StartProblem;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // The one way every feature writes to the log pane.
    void appendLog(const QString& text, bool isError = false);

    // Decides the engine log file for this run (once) and returns it.
    QString ensureEngineLogPath();
    QString probeLogFile() const { return probeLogPath_; }

    // Queues `inputs` and converts them into `output` (a folder when it is an
    // existing directory or ends with "/", else a file), as if a user had.
    void runAutorun(const QString& value, bool closeWhenDone);

    void startConversion();
    void stopConversion();

    // Playback (mainwindow_playback.cpp).
    void startPlayback();
    void stopPlayback();
    // ZUVO_AI_PLAYTEST: true when this start-up hook was the one to run.
    bool runPlaytestHook();

    // Recording (mainwindow_recording.cpp).
    void startRecording();
    void stopRecording();
    void runRecordingProbe();
    // The Recording page became the current page: probes once when no verdict exists.
    void recordPageShown();
    // ZUVO_AI_RECTEST: true when this start-up hook was the one to run.
    bool runRectestHook();

    // About / Diagnostics (mainwindow_diagnostics.cpp); the dialog deletes itself.
    DiagnosticsDialog* openDiagnostics();

private:
    void buildUi();
    QWidget* createPlayPage(QWidget* parent);
    void shutDownPlayback();
    QWidget* createRecordPage(QWidget* parent);
    void shutDownRecording();
    QWidget* createDiagnosticsButtons(QWidget* parent);
    QWidget* temporaryPlacement(QWidget* recordPage, QWidget* diagnosticsRow);
    void locateEngine();
    void onPollTimer();
    ConversionSettings collectSettings();
    void addPaths(const QStringList& paths);
    bool refuseWhileConverting(const QString& message);
    void showStartProblem(const StartProblem& problem);
    void onQueueFinished(int doneCount, int failedCount, bool stopped, const QString& outputFolder);

    InputOutputPanel* io_ = nullptr;
    RunControlsPanel* run_ = nullptr;
    ConversionQueue* queue_ = nullptr;
    QTimer* pollTimer_ = nullptr;
    PlayPage* playPage_ = nullptr;
    PlaybackController* playback_ = nullptr;
    RecordPage* recordPage_ = nullptr;
    RecordingController* recording_ = nullptr;
    RecordingProbe* recordingProbe_ = nullptr;
    ConversionSettings settings_;
    QString enginePath_;
    QString engineLogPath_;
    QString probeLogPath_;
    std::unique_ptr<QTemporaryDir> engineLogTempDir_;
    bool closeAfterAutorun_ = false;
};
