#pragma once
#include <QList>
#include <QPlainTextEdit>

#include "log_mirror.h"

// The read-only, monospace log at the bottom of the main window. Every part
// of the program writes to it through append(); error lines are drawn red and
// everything shown is mirrored to ZUVO_AI_GUI_LOG when that is set.
//
// Lines are collected and inserted together once control is back in the
// event loop: an engine that prints thousands of lines costs one edit of the
// document, not thousands. Only the newest kMaxBlocks lines are kept.
class LogPane : public QPlainTextEdit {
    Q_OBJECT
public:
    static constexpr int kMaxBlocks = 20000;

    explicit LogPane(QWidget* parent = nullptr);
    ~LogPane() override;

    void append(const QString& text, bool isError);
    // Shows what append() has collected so far; called by the event loop.
    void flushPending();
    bool hasPending() const { return !pending_.isEmpty(); }

private:
    struct Pending {
        QString text;
        bool isError;
    };
    LogMirror mirror_;
    QList<Pending> pending_;
    bool flushQueued_ = false;
};
