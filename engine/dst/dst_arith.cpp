#include "dst/dst_arith.h"

namespace zuvo::dst {

void ArithEncoder::carry()
{
    // The leading zero bit guarantees the carry stops inside the words.
    for (std::size_t i = words_.size(); i-- > 0;)
        if (++words_[i] != 0)
            return;
}

void ArithEncoder::finish(BitWriter& out)
{
    const std::uint64_t step = kAcHalf; // A >= kAcHalf, so one step up stays inside
    std::uint64_t v = (low_ + step - 1) & ~(step - 1);
    if (v >> (kAcBits + pending_)) {
        v &= (std::uint64_t{1} << (kAcBits + pending_)) - 1;
        carry();
    }
    for (std::uint32_t w : words_)
        out.put(w, 32);
    int n = static_cast<int>(kAcBits) + pending_;
    while (n > 32) {
        n -= 32;
        out.put(static_cast<std::uint32_t>(v >> n), 32);
    }
    out.put(static_cast<std::uint32_t>(v), n);
}

} // namespace zuvo::dst
