#pragma once
// The DSD bytes a container writer holds back. Encoders hand over each
// channel's bytes separately and channels may run ahead of each other, but a
// container lays out all channels together: only the length every channel
// has can go out, and at the end the short channels are padded with silence.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "io/bit_order.h"

namespace zuvo::io {

class ChannelBacklog {
public:
    void reset(int channels) { pending_.assign(static_cast<std::size_t>(channels), {}); }
    std::size_t channels() const { return pending_.size(); }

    void append(const std::vector<std::vector<std::uint8_t>>& perChannel)
    {
        for (std::size_t c = 0; c < pending_.size() && c < perChannel.size(); ++c)
            pending_[c].insert(pending_[c].end(), perChannel[c].begin(), perChannel[c].end());
    }
    // Bytes every channel has.
    std::size_t common() const
    {
        std::size_t n = SIZE_MAX;
        for (const auto& p : pending_)
            n = std::min(n, p.size());
        return n;
    }
    // Pads the channels that ended short with silence; returns the length.
    std::size_t padToLongest()
    {
        std::size_t longest = 0;
        for (const auto& p : pending_)
            longest = std::max(longest, p.size());
        for (auto& p : pending_)
            p.resize(longest, kDsdSilenceMsbFirst);
        return longest;
    }
    const std::uint8_t* data(std::size_t c) const { return pending_[c].data(); }
    // Forgets the first `n` bytes of every channel, once they are written.
    void drop(std::size_t n)
    {
        for (auto& p : pending_)
            p.erase(p.begin(), p.begin() + static_cast<std::ptrdiff_t>(n));
    }

private:
    std::vector<std::vector<std::uint8_t>> pending_;
};

} // namespace zuvo::io
