#pragma once
// Pieces of device bytes between the reading thread and the playing one,
// bounded by their total size so memory does not grow with the file.

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

namespace zuvo::player {

class PieceQueue {
public:
    explicit PieceQueue(std::size_t capacityBytes) : capacity_(capacityBytes) {}

    // Producer: blocks while full; false once the queue was cancelled.
    bool push(std::vector<std::uint8_t>&& piece);
    // Producer: no more pieces; `error` non-empty when reading failed.
    void finish(const std::string& error);
    // Consumer: false when nothing more will come.
    bool pop(std::vector<std::uint8_t>& piece);
    // Consumer: wakes and ends the producer.
    void cancel();

    std::string error() const;
    std::size_t peakBytes() const;

private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::vector<std::uint8_t>> pieces_;
    std::size_t capacity_;
    std::size_t bytes_ = 0;
    std::size_t peak_ = 0;
    bool finished_ = false;
    bool cancelled_ = false;
    std::string error_;
};

} // namespace zuvo::player
