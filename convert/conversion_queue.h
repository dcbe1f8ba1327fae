#pragma once
#include <QObject>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "conversion_settings.h"
#include "engine_output.h"
#include "output_check.h"
#include "session_inbox.h"

class EngineSession;
class QTimer;

// Runs the engine once per queued file, one after another: builds each run's
// arguments, owns the run's session, reads its output, classifies how it
// ended and sums the batch up. It never touches a widget: the window listens
// to its signals and calls poll() from its timer.
class ConversionQueue : public QObject {
    Q_OBJECT
public:
    // Per-file outcome, as the file list shows it.
    enum FileState { Stopped = 0, Running = 1, Done = 2, Failed = -1 };

    struct PresetRef {
        QString name;
        QString path;
    };
    using PresetLookup = std::function<std::optional<PresetRef>(const QString& file)>;

    explicit ConversionQueue(QObject* parent = nullptr);
    ~ConversionQueue() override;

    bool isConverting() const { return converting_; }
    bool hasRunningSession() const;

    // Starts a queue whose start checks have passed.
    void start(const QStringList& files, const ConversionSettings& panel, const QString& enginePath);
    void stopConversion();
    void sendControl(const QString& command);
    // Drains the session's output; called from the window's 150 ms timer.
    // Each call works for a bounded time and leaves the rest of a flood of
    // output to follow-up calls from the event loop, so that the window (and
    // its Stop button) stays responsive while thousands of lines arrive.
    void poll();
    // Ends a running engine when the program closes.
    void shutDown();

    void setPresetLookup(PresetLookup lookup) { presetLookup_ = std::move(lookup); }

signals:
    void logLine(const QString& text, bool isError);
    void fileStateChanged(int index, int state);
    void progressChanged(int perMille);
    void runningChanged(bool converting);
    // The batch is over; `outputFolder` is where its files went.
    void queueFinished(int doneCount, int failedCount, bool stopped, const QString& outputFolder);

private:
    void runNext();
    void queueRunNext();
    void onEngineLine(const QString& line, bool isStderr);
    void onEngineFinished(int exitCode, bool crashed);
    void showEngineLogTail();
    void endQueue();
    void failCurrent(const QString& message);
    ConversionSettings settingsForCurrentFile();
    void discardSession();
    void onStopConfirmationTimeout();
    void processBacklog();
    void finishRunOutput();
    bool outputIsUsable(const QString& name);

    void log(const QString& text) { emit logLine(text, false); }
    void logError(const QString& text) { emit logLine(text, true); }

    // Queue state.
    bool converting_ = false;
    bool stopRequested_ = false;
    bool startFailed_ = false;
    int currentIndex_ = 0;
    int totalCount_ = 0;
    bool multiFile_ = false;
    int doneCount_ = 0;
    int failedCount_ = 0;

    QStringList files_;
    ConversionSettings panel_;
    QString enginePath_;
    QString currentOutput_;
    FileStamp outputBefore_;     // the output as it was when the run started
    bool expectsOutput_ = true;  // a measuring run writes none
    qint64 logStartOffset_ = 0;  // the shared engine log's size when the run started
    QString outputFolder_;
    PresetLookup presetLookup_;

    EngineSession* session_ = nullptr;
    std::unique_ptr<SessionInbox> inbox_;
    // Drained from the inbox, not handled yet: the drained lists as they came,
    // so that a flood is never copied into one long list.
    std::deque<QList<SessionEvent>> backlog_;
    qsizetype backlogNext_ = 0; // in backlog_.front()
    bool backlogQueued_ = false;
    LongLineCutter cutOut_;
    LongLineCutter cutErr_;
    QTimer* stopConfirmTimer_ = nullptr;
};
