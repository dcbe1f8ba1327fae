#pragma once
// About / Diagnostics: runs the engine once with --version, --list-devices or
// --help as a plain child process (one run at a time, 30 s at most) and shows
// its answer. The dialog deletes itself when closed.

#include <QDialog>

class QPlainTextEdit;
class QProcess;
class QPushButton;
class QTimer;

class DiagnosticsDialog : public QDialog {
    Q_OBJECT
public:
    static constexpr int kTimeoutMs = 30000;

    // `enginePath` empty = look it up on the first click. `probeLog` empty =
    // no --log-file for the runs.
    DiagnosticsDialog(const QString& enginePath, const QString& probeLog, QWidget* parent = nullptr);
    ~DiagnosticsDialog() override;

    void runProbe(const QStringList& arguments);
    bool isBusy() const { return busy_; }
    QPlainTextEdit* textView() const { return text_; }
    QPushButton* versionButton() const { return buttons_[0]; }
    QPushButton* devicesButton() const { return buttons_[1]; }
    QPushButton* helpButton() const { return buttons_[2]; }

private:
    void onFinished(int exitCode);
    void onError();
    void onTimeout();
    void setBusy(bool busy);

    QString enginePath_;
    QString probeLog_;
    QPlainTextEdit* text_ = nullptr;
    QPushButton* buttons_[3] = {};
    QProcess* process_ = nullptr;
    QTimer* timer_ = nullptr;
    bool busy_ = false;
    bool cursorSet_ = false;
};
