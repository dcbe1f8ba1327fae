#pragma once
#include <QMainWindow>
#include <QString>
#include <memory>

#include "conversion_settings.h"

class ConversionQueue;
class InputOutputPanel;
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

private:
    void buildUi();
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
    ConversionSettings settings_;
    QString enginePath_;
    QString engineLogPath_;
    QString probeLogPath_;
    std::unique_ptr<QTemporaryDir> engineLogTempDir_;
    bool closeAfterAutorun_ = false;
};
