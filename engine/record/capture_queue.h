#pragma once
// Hands captured blocks from the device thread to the encoding thread. It is
// bounded: when encoding falls behind for longer than the queue holds, the
// device thread waits, the device's own buffer overruns, and the overrun is
// counted there, so a slow machine shows up in the log rather than in memory.

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <vector>

namespace zuvo::record {

class CaptureQueue {
public:
    explicit CaptureQueue(std::size_t maxBytes) : max_(maxBytes) {}

    // False when the queue was closed (the consumer gave up).
    bool push(std::vector<std::uint8_t> block)
    {
        std::unique_lock<std::mutex> lock(m_);
        room_.wait(lock, [&] { return closed_ || held_ < max_; });
        if (closed_)
            return false;
        held_ += block.size();
        blocks_.push_back(std::move(block));
        ready_.notify_one();
        return true;
    }

    // Waits for a block; false once closed and empty.
    bool pop(std::vector<std::uint8_t>& block)
    {
        std::unique_lock<std::mutex> lock(m_);
        ready_.wait(lock, [&] { return closed_ || !blocks_.empty(); });
        if (blocks_.empty())
            return false;
        block = std::move(blocks_.front());
        blocks_.pop_front();
        held_ -= block.size();
        room_.notify_one();
        return true;
    }

    void close()
    {
        std::lock_guard<std::mutex> lock(m_);
        closed_ = true;
        ready_.notify_all();
        room_.notify_all();
    }

private:
    std::mutex m_;
    std::condition_variable ready_, room_;
    std::deque<std::vector<std::uint8_t>> blocks_;
    std::size_t held_ = 0;
    std::size_t max_;
    bool closed_ = false;
};

} // namespace zuvo::record
