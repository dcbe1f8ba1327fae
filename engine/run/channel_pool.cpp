#include "run/channel_pool.h"

#include <algorithm>

namespace zuvo::run {

ChannelPool::ChannelPool(int threads)
{
    for (int i = 1; i < threads; ++i)
        threads_.emplace_back([this] { worker(); });
}

ChannelPool::~ChannelPool()
{
    {
        std::lock_guard lock(mutex_);
        quit_ = true;
    }
    wake_.notify_all();
    for (auto& t : threads_)
        t.join();
}

int ChannelPool::threadsFor(int channels)
{
    const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    return std::clamp(channels, 1, cores);
}

void ChannelPool::drain()
{
    // Called with the lock held; runs tasks until none is left to start.
    while (task_ && next_ < count_) {
        const int index = next_++;
        const auto* task = task_;
        mutex_.unlock();
        (*task)(index);
        mutex_.lock();
        if (--remaining_ == 0)
            done_.notify_all();
    }
}

void ChannelPool::worker()
{
    std::unique_lock lock(mutex_);
    unsigned seen = generation_;
    for (;;) {
        wake_.wait(lock, [&] { return quit_ || generation_ != seen; });
        if (quit_)
            return;
        seen = generation_;
        drain();
    }
}

void ChannelPool::run(int tasks, const std::function<void(int)>& task)
{
    if (threads_.empty() || tasks <= 1) {
        for (int i = 0; i < tasks; ++i)
            task(i);
        return;
    }
    std::unique_lock lock(mutex_);
    task_ = &task;
    next_ = 0;
    count_ = tasks;
    remaining_ = tasks;
    ++generation_;
    wake_.notify_all();
    drain();
    done_.wait(lock, [&] { return remaining_ == 0; });
    task_ = nullptr;
}

} // namespace zuvo::run
