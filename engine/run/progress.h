#pragma once
// Progress for the front-end ("[PROGRESS] 12.3" lines on standard output,
// at most ten a second) or for a person (one line on standard error,
// updated in place on a terminal, occasional lines otherwise).

#include <chrono>
#include <cstdio>

namespace zuvo::run {

class ProgressReporter {
public:
    explicit ProgressReporter(bool gui);
    // `percent` in [0, 100]; `speed` = audio seconds per wall second, 0 if unknown.
    void update(double percent, double speed = 0);
    // Last report: "[PROGRESS] 100.0" for the front-end, a final line otherwise.
    void finish(bool completed);

private:
    bool gui_;
    bool tty_;
    std::chrono::steady_clock::time_point last_{};
    bool any_ = false;
    int lastTenth_ = -1;  // last printed value x 10
    int lastDecile_ = -1; // non-terminal stderr: one line per 10 %
};

} // namespace zuvo::run
