#pragma once
#include <QMainWindow>
#include <QString>
#include <memory>

#include "conversion_settings.h"
#include "per_track_dialog.h"

class AdvancedPage;
class BasicPage;
class ChannelsPage;
class ConversionQueue;
class EngineCapabilityProbe;
class EqualizerPage;
class FilterPage;
class DiagnosticsDialog;
class InputOutputPanel;
class ParameterTabs;
class SpatialTonePage;
struct EqBand;
struct MasterPreset;
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

    // Preview (mainwindow_preview.cpp): the button's choice of file, the
    // dialog on one file, and the start-up hook; true when a dialog opened.
    void previewCurrentFile();
    void openPreview(const QString& path, bool spectrogram = false);
    bool runPreviewHook();

    // Presets (mainwindow_presets.cpp): the manager, the per-track choice
    // and what the queue asks when it reaches a file.
    void openPresetManager();
    void openPerTrackPresets();
    const PerTrackAssignment& perTrackAssignment() const { return perTrack_; }
    // Record to controls (after a preset is loaded) and controls to record
    // (before a run or a preset save): the only two ways a record moves.
    void applySettings(const ConversionSettings& settings);
    ConversionSettings collectSettings();
    // The controls' part of collectSettings, written over `settings`.
    void collectInto(ConversionSettings& settings);

    // The parameter pages. Pages of other features join with insertPage
    // (ParameterTabs), e.g. playback at 5 and recording at 7.
    ParameterTabs* parameterTabs() const { return tabs_; }
    // Equaliser demonstration: its page, the switch on, three bands.
    void showEqDemo();
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
    void connectPresets();
    void buildUi();
    QWidget* createPlayPage(QWidget* parent);
    void shutDownPlayback();
    QWidget* createRecordPage(QWidget* parent);
    void shutDownRecording();
    QWidget* createDiagnosticsButtons(QWidget* parent);
    void locateEngine();
    // Optional features the engine has: enables the boxes that need them.
    void applyEngineCapabilities();
    void onPollTimer();
    void buildPages();
    void setParametersLocked(bool locked);
    void onDstClicked(bool on);
    void onMasterPresetRequested(const MasterPreset& preset);
    // True (and says why) when the chosen options include ones the engine refuses.
    bool refuseUnsupportedOptions(const ConversionSettings& settings);
    void addPaths(const QStringList& paths);
    bool refuseWhileConverting(const QString& message);
    void showStartProblem(const StartProblem& problem);
    void onQueueFinished(int doneCount, int failedCount, bool stopped, const QString& outputFolder);

    InputOutputPanel* io_ = nullptr;
    RunControlsPanel* run_ = nullptr;
    ParameterTabs* tabs_ = nullptr;
    BasicPage* basic_ = nullptr;
    FilterPage* filter_ = nullptr;
    EqualizerPage* eq_ = nullptr;
    SpatialTonePage* spatial_ = nullptr;
    ChannelsPage* channels_ = nullptr;
    AdvancedPage* advanced_ = nullptr;
    EngineCapabilityProbe* capabilities_ = nullptr;
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
    PerTrackAssignment perTrack_;
};
