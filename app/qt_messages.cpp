#include "qt_messages.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdlib>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

int g_stderrCopy = -1;

void writeAll(const QByteArray& bytes)
{
    const char* p = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
#ifdef Q_OS_WIN
        const int n = _write(g_stderrCopy, p, unsigned(left));
#else
        const ssize_t n = ::write(g_stderrCopy, p, size_t(left));
#endif
        if (n <= 0)
            return; // nowhere to complain about a failing standard error
        p += n;
        left -= n;
    }
}

void handler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // One write per message, so that messages from several threads stay whole.
    writeAll(qFormatLogMessage(type, context, message).toLocal8Bit() + '\n');
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

void routeQtMessagesToOriginalStderr()
{
    if (g_stderrCopy >= 0)
        return;
#ifdef Q_OS_WIN
    g_stderrCopy = _dup(2);
#else
    g_stderrCopy = ::fcntl(2, F_DUPFD_CLOEXEC, 3);
#endif
    if (g_stderrCopy >= 0)
        qInstallMessageHandler(handler);
}
