#include "log_mirror.h"

LogMirror::LogMirror()
    : LogMirror(qEnvironmentVariable("ZUVO_AI_GUI_LOG"))
{
}

LogMirror::LogMirror(const QString& path)
    : path_(path)
{
}

void LogMirror::write(const QString& text, bool isError)
{
    if (path_.isEmpty())
        return;
    if (!triedOpen_) {
        triedOpen_ = true; // a file that cannot be opened is not retried for every line
        file_.setFileName(path_);
        file_.open(QIODevice::Append | QIODevice::Text);
    }
    if (!file_.isOpen())
        return;
    const QByteArray line = (isError ? QByteArrayLiteral("[err] ") : QByteArrayLiteral("[log] "))
                            + text.toUtf8() + '\n';
    file_.write(line);
}

void LogMirror::flush()
{
    if (file_.isOpen())
        file_.flush();
}
