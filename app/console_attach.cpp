#include "console_attach.h"

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>

bool attachConsole()
{
    HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    HANDLE err = GetStdHandle(STD_ERROR_HANDLE);
    if (!GetConsoleWindow()) {
        if (!AttachConsole(ATTACH_PARENT_PROCESS)) {
            if (_fileno(stdout) == -2) {
                _close(1);
                freopen("NUL", "w", stdout);
            }
            if (_fileno(stderr) == -2) {
                _close(2);
                freopen("NUL", "w", stderr);
            }
            return false;
        }
        const auto invalid = [](HANDLE h) { return h == nullptr || h == INVALID_HANDLE_VALUE; };
        if (invalid(out)) {
            _close(1);
            freopen("CONOUT$", "w", stdout);
        }
        if (invalid(err)) {
            _close(2);
            freopen("CONOUT$", "w", stderr);
        }
    }
    SetConsoleOutputCP(65001);
    SetConsoleCP(65001);
    return GetConsoleWindow() != nullptr;
}

#else
#include <unistd.h>

bool attachConsole()
{
    return isatty(STDOUT_FILENO) || isatty(STDERR_FILENO);
}
#endif
