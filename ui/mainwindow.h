#pragma once
#include <QMainWindow>
#include <QString>
#include <memory>

class QTemporaryDir;
class QTimer;
class LogPane;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // The one way every feature writes to the log pane.
    void appendLog(const QString& text, bool isError = false);

    // Decides the engine log file for this run (once) and returns it.
    QString ensureEngineLogPath();
    QString engineLogFile() const { return engineLogPath_; }
    QString probeLogFile() const { return probeLogPath_; }

private:
    void buildUi();
    void locateEngine();
    void onPollTimer();

    LogPane* log_ = nullptr;
    QTimer* pollTimer_ = nullptr;
    QString enginePath_;
    QString engineLogPath_;
    QString probeLogPath_;
    std::unique_ptr<QTemporaryDir> engineLogTempDir_;
};
