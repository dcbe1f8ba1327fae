#include "log_pane.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextBlock>

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

    QTextCharFormat format;
    if (isError)
        format.setForeground(QColor(200, 60, 60));
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty())
        cursor.insertBlock();
    cursor.insertText(text, format);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}
