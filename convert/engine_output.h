#pragma once
#include <QString>
#include <QStringList>
#include <optional>

// Reading what the engine prints, without any widget.

// The percentage carried by a progress line ("[PROGRESS] 42.5", "进度: 10"),
// or nothing when the line is not one (standard-error lines never are) or
// carries no number.
std::optional<double> progressPercent(const QString& line, bool isStderr);

// True when the line announces progress, whether or not it carries a number.
bool isProgressLine(const QString& line, bool isStderr);

// Position of the queue's progress bar (0..1000) for `percent` of the file
// at `index` in a queue of `total` files.
int progressPerMille(double percent, int index, int total);

// The end of an engine log file as it is shown after a failure: at most the
// last 120 lines of the last 64 KiB (no partial first line), each trimmed.
// Lines that were blank apart from white space stay in the list as empty
// strings; they count as kept but are not shown. The log is shared by the
// runs of a queue, so only what lies after `fromOffset` (the file's size when
// the failed run started) is read; a file that has shrunk since is read whole.
QStringList engineLogTail(const QString& path, qint64 fromOffset = 0);

// Joins the pieces in which an over-long engine line arrives (pieces without
// a final "\n" continue the line) and keeps only its head, so that one
// runaway line neither floods the log pane nor costs seconds of layout.
class LongLineCutter {
public:
    static constexpr qsizetype kMaxShown = 8192; // characters

    // One delivered piece; returns the line to show when it is complete.
    std::optional<QString> feed(const QString& piece);
    // The unfinished rest when the output ends without a last "\n".
    std::optional<QString> finish();

private:
    QString take();

    QString head_;
    qsizetype dropped_ = 0;
    bool open_ = false;
};
