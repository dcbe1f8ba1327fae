#pragma once
// Does the engine record? Runs "ZuvoEngine --list-devices" as a plain child
// process (never in-process, never a device opened), bounded by 30 s, and
// reads the answer: the input-device header means a recording backend, and
// every "[n] name" line after it is one input device.

#include <QObject>
#include <QString>

class QProcess;
class QTimer;

struct ProbeVerdict {
    bool available = false;
    int devices = 0;
    QString detail;   // for the backend status line
};

// Pure reading of one finished probe run.
ProbeVerdict readDeviceListing(const QString& out, const QString& err, int exitCode);

class RecordingProbe : public QObject {
    Q_OBJECT
public:
    static constexpr int kTimeoutMs = 30000;

    explicit RecordingProbe(QObject* parent = nullptr);
    bool isRunning() const;
    // `engine` empty = not found (reported at once as unavailable).
    void run(const QString& engine);

signals:
    void logLine(const QString& text, bool isError);
    void finished(bool available, const QString& detail);

private:
    QProcess* process_ = nullptr;
};
