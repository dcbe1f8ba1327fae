#pragma once
#include <QFile>
#include <QString>

// Copies every log-pane line to the file named by ZUVO_AI_GUI_LOG so that
// automated runs can read what a user would have seen.
class LogMirror {
public:
    // Reads the variable once; an unset or empty variable disables mirroring.
    LogMirror();
    explicit LogMirror(const QString& path);

    // Buffered until flush(): a flood of lines costs a few writes, not one per line.
    void write(const QString& text, bool isError);
    void flush();

private:
    QString path_;
    QFile file_;
    bool triedOpen_ = false;
};
