#pragma once
// When a writer's next header refresh is due (kHeaderRefreshSeconds apart).
#include <chrono>

namespace zuvo::io {

class HeaderClock {
public:
    explicit HeaderClock(double seconds) : interval_(std::chrono::duration<double>(seconds)) {}
    void restart() { last_ = std::chrono::steady_clock::now(); }
    bool due()
    {
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < interval_)
            return false;
        last_ = now;
        return true;
    }

private:
    std::chrono::duration<double> interval_;
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

} // namespace zuvo::io
