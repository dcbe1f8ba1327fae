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

    void write(const QString& text, bool isError);

private:
    QString path_;
    QFile file_;
    bool triedOpen_ = false;
};
