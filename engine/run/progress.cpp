#include "run/progress.h"

#include <algorithm>
#include <unistd.h>

namespace zuvo::run {

ProgressReporter::ProgressReporter(bool gui) : gui_(gui), tty_(::isatty(2) == 1) {}

void ProgressReporter::update(double percent, double speed)
{
    percent = std::clamp(percent, 0.0, 100.0);
    const auto now = std::chrono::steady_clock::now();
    const int tenth = static_cast<int>(percent * 10.0);
    if (any_ && now - last_ < std::chrono::milliseconds(100))
        return;
    if (gui_) {
        // 100.0 is kept for finish() so the caller can trust it means done.
        if (tenth == lastTenth_ || tenth >= 1000)
            return;
        // Integers, not %.1f: an in-process engine shares the host's locale,
        // and a decimal comma would break the protocol line.
        std::fprintf(stdout, "[PROGRESS] %d.%d\n", tenth / 10, tenth % 10);
        std::fflush(stdout);
    } else if (tty_) {
        if (tenth == lastTenth_)
            return;
        if (speed > 0)
            std::fprintf(stderr, "\rProgress: %5.1f %%  (%.1fx realtime)   ", tenth / 10.0, speed);
        else
            std::fprintf(stderr, "\rProgress: %5.1f %%   ", tenth / 10.0);
        std::fflush(stderr);
    } else {
        const int decile = tenth / 100;
        if (decile == lastDecile_)
            return;
        lastDecile_ = decile;
        std::fprintf(stderr, "Progress: %d %%\n", decile * 10);
        std::fflush(stderr);
    }
    any_ = true;
    last_ = now;
    lastTenth_ = tenth;
}

void ProgressReporter::finish(bool completed)
{
    if (gui_) {
        if (completed) {
            std::fprintf(stdout, "[PROGRESS] 100.0\n");
            std::fflush(stdout);
        }
        return;
    }
    if (tty_) {
        if (completed)
            std::fprintf(stderr, "\rProgress: 100.0 %%                         \n");
        else if (any_)
            std::fprintf(stderr, "\n");
    } else if (completed && lastDecile_ < 10) {
        std::fprintf(stderr, "Progress: 100 %%\n");
    }
    std::fflush(stderr);
}

} // namespace zuvo::run
