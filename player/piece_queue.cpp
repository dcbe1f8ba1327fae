#include "piece_queue.h"

#include <algorithm>

namespace zuvo::player {

bool PieceQueue::push(std::vector<std::uint8_t>&& piece)
{
    std::unique_lock lock(mutex_);
    // One piece always fits, however small the capacity.
    changed_.wait(lock, [&] { return cancelled_ || bytes_ == 0 || bytes_ + piece.size() <= capacity_; });
    if (cancelled_)
        return false;
    bytes_ += piece.size();
    peak_ = std::max(peak_, bytes_);
    pieces_.push_back(std::move(piece));
    changed_.notify_all();
    return true;
}

void PieceQueue::finish(const std::string& error)
{
    std::lock_guard lock(mutex_);
    finished_ = true;
    error_ = error;
    changed_.notify_all();
}

bool PieceQueue::pop(std::vector<std::uint8_t>& piece)
{
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return cancelled_ || finished_ || !pieces_.empty(); });
    if (cancelled_ || pieces_.empty())
        return false;
    piece = std::move(pieces_.front());
    pieces_.pop_front();
    bytes_ -= piece.size();
    changed_.notify_all();
    return true;
}

void PieceQueue::cancel()
{
    std::lock_guard lock(mutex_);
    cancelled_ = true;
    changed_.notify_all();
}

std::string PieceQueue::error() const
{
    std::lock_guard lock(mutex_);
    return error_;
}

std::size_t PieceQueue::peakBytes() const
{
    std::lock_guard lock(mutex_);
    return peak_;
}

} // namespace zuvo::player
