#pragma once
#include <QPlainTextEdit>

#include "log_mirror.h"

// The read-only, monospace log at the bottom of the main window. Every part
// of the program writes to it through append(); error lines are drawn red and
// everything shown is mirrored to ZUVO_AI_GUI_LOG when that is set.
class LogPane : public QPlainTextEdit {
    Q_OBJECT
public:
    static constexpr int kMaxBlocks = 20000;

    explicit LogPane(QWidget* parent = nullptr);
    void append(const QString& text, bool isError);

private:
    LogMirror mirror_;
};
