#pragma once
#include <QWidget>

class LogPane;
class QCheckBox;
class QProgressBar;
class QPushButton;

// The bottom of the main window: start/stop, the log switches, the queue's
// progress bar and the log pane.
class QHBoxLayout;

class RunControlsPanel : public QWidget {
    Q_OBJECT
public:
    explicit RunControlsPanel(QWidget* parent = nullptr);

    LogPane* log() const { return log_; }
    QProgressBar* progress() const { return progress_; }
    bool verbose() const;
    void setVerbose(bool on);
    void setRunning(bool running);
    // Adds `w` to the bottom row of buttons (after the log switches).
    void addToButtonRow(QWidget* w);

signals:
    void startClicked();
    void stopClicked();

private:
    QHBoxLayout* buttonRow_ = nullptr;
    QHBoxLayout* extraRow_ = nullptr;
    QPushButton* start_ = nullptr;
    QPushButton* stop_ = nullptr;
    QCheckBox* verbose_ = nullptr;
    QCheckBox* keepLog_ = nullptr;
    QProgressBar* progress_ = nullptr;
    LogPane* log_ = nullptr;
};
