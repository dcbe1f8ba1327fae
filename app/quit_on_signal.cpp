#include "quit_on_signal.h"

#include <QCoreApplication>

#ifdef Q_OS_WIN
void quitEventLoopOnTerminationSignals() {}
#else
#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int signalPipe[2] = {-1, -1};

void onSignal(int)
{
    // Only async-signal-safe work here: wake the event loop through the pipe.
    const char byte = 1;
    [[maybe_unused]] ssize_t n = ::write(signalPipe[0], &byte, 1);
}

} // namespace

void quitEventLoopOnTerminationSignals()
{
    if (signalPipe[0] >= 0 || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0)
        return;
    auto* notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
        char byte;
        [[maybe_unused]] ssize_t n = ::read(signalPipe[1], &byte, 1);
        QCoreApplication::quit();
    });
    struct sigaction action {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int sig : {SIGTERM, SIGINT, SIGHUP})
        sigaction(sig, &action, nullptr);
}
#endif
