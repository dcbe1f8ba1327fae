#pragma once
// A few worker threads that run one task per channel and wait for all of
// them; the calling thread works too. Kept for the whole run so a block costs
// no thread start-up.

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace zuvo::run {

class ChannelPool {
public:
    // `threads` in total, the caller included (1 = run inline).
    explicit ChannelPool(int threads);
    ~ChannelPool();
    ChannelPool(const ChannelPool&) = delete;
    ChannelPool& operator=(const ChannelPool&) = delete;

    void run(int tasks, const std::function<void(int)>& task);

    // Threads worth using for `channels` on this machine.
    static int threadsFor(int channels);

private:
    void worker();
    void drain();

    std::vector<std::thread> threads_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable done_;
    const std::function<void(int)>* task_ = nullptr;
    int next_ = 0;
    int count_ = 0;
    int remaining_ = 0;
    unsigned generation_ = 0;
    bool quit_ = false;
};

} // namespace zuvo::run
