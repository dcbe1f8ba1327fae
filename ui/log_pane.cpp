#include "log_pane.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QScrollBar>
#include <QTextBlock>

namespace {

// One flush inserts lines for about this long before the event loop gets its
// turn; the rest follows at once from the event loop.
constexpr qint64 kFlushSliceMs = 12;
constexpr qsizetype kLinesPerInsert = 128;
constexpr qsizetype kImmediateMirrorLines = 64;

} // namespace

LogPane::~LogPane()
{
    mirror_.flush();
}

LogPane::LogPane(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setMaximumBlockCount(kMaxBlocks);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
}

void LogPane::append(const QString& text, bool isError)
{
    mirror_.write(text, isError);
    // Lines reach the mirror file at once, except in a burst: beyond the first
    // few dozen lines before the pane is next drawn, they follow together when
    // it is, before the event loop goes on.
    pending_.append({text, isError});
    if (pending_.size() <= kImmediateMirrorLines)
        mirror_.flush();
    // Lines that the block limit would push out before they could be seen are
    // not worth laying out; the mirror has them all.
    if (pending_.size() >= 2 * kMaxBlocks)
        pending_.remove(0, pending_.size() - kMaxBlocks);
    if (!flushQueued_) {
        flushQueued_ = true;
        QMetaObject::invokeMethod(this, &LogPane::flushPending, Qt::QueuedConnection);
    }
}

void LogPane::flushPending()
{
    flushQueued_ = false;
    mirror_.flush();
    if (pending_.isEmpty())
        return;
    qsizetype next = pending_.size() > kMaxBlocks ? pending_.size() - kMaxBlocks : 0;

    QElapsedTimer slice;
    slice.start();
    QTextCharFormat plain;
    QTextCharFormat error;
    error.setForeground(QColor(200, 60, 60));
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    QString run;
    bool needBreak = !document()->isEmpty();
    while (next < pending_.size() && slice.elapsed() < kFlushSliceMs) {
        // One insertion per run of lines of the same colour, a few hundred at a time.
        const bool isError = pending_.at(next).isError;
        const qsizetype stop = std::min(pending_.size(), next + kLinesPerInsert);
        run.clear();
        for (; next < stop && pending_.at(next).isError == isError; ++next) {
            if (needBreak)
                run += QChar::ParagraphSeparator;
            run += pending_.at(next).text;
            needBreak = true;
        }
        cursor.insertText(run, isError ? error : plain);
    }
    pending_.remove(0, next);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    if (!pending_.isEmpty()) {
        flushQueued_ = true;
        QMetaObject::invokeMethod(this, &LogPane::flushPending, Qt::QueuedConnection);
    }
}
