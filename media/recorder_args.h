#pragma once
// The Recording page's fields as the engine's record command line: every
// optional item only under its condition, in a fixed order, the output last.

#include <QList>
#include <QString>

struct RecorderSettings {
    QString device;            // as typed; blank or exactly "default" = the default device
    int channels = 2;          // 0 = automatic
    int sampleRate = 0;        // 0 = automatic
    int durationSeconds = 0;   // 0 = until stopped
    double headroomDb = 3.0;
    int bufferFrames = 512;    // the engine's own default is never written
    bool exclusive = false;
    bool monitor = false;
    QString monitorDevice;     // as typed
    bool directDsd = false;
    QString dsdMode = QStringLiteral("dop");
    bool pdfReport = false;
};

constexpr int kEngineDefaultRecordBuffer = 512;

// `engineLog` empty = no engine log file.
QList<QString> buildRecorderArgs(const RecorderSettings& settings, const QString& engineLog, const QString& output);

// Whether `path` ends in ".dsf", in any letter case.
bool isDsfPath(const QString& path);
