#pragma once
// The binary arithmetic coder of DST: a 12-bit interval register A, the
// probability of a one given in 1/256 (1..128), and the "partial rounding"
// product ((A >> 8) | bit 7 of A) * p for the one's share, which sits at the
// top of the interval. The code stream starts with one bit that is always
// zero (the integer part of the code value) followed by the fraction bits.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "dst/dst_bits.h"

namespace zuvo::dst {

constexpr unsigned kAcBits = 12;
constexpr std::uint32_t kAcHalf = 1u << (kAcBits - 1);
// The interval register starts at 4080, not at the full 4095: with 4095
// ffmpeg's decoder (our independent check) gets the first few symbols of a
// frame wrong; with 4080 it decodes every test stream exactly.
constexpr std::uint32_t kAcStart = 4080;

inline std::uint32_t acOneShare(std::uint32_t a, unsigned p)
{
    return ((a >> 8) | ((a >> 7) & 1u)) * p;
}

class ArithEncoder {
public:
    void encode(unsigned bit, unsigned p)
    {
        const std::uint32_t q = acOneShare(a_, p);
        const std::uint32_t h = a_ - q;
        // Without branches on the symbol: misses are too frequent to predict.
        const std::uint32_t mask = 0u - (bit & 1u);
        low_ += h & mask;
        a_ = (q & mask) | (h & ~mask);
        if (low_ >> (kAcBits + pending_)) [[unlikely]] {
            low_ &= (std::uint64_t{1} << (kAcBits + pending_)) - 1;
            carry();
        }
        // a_ >= 1, so the shift is 0..11.
        const int n = __builtin_clz(a_) - (32 - static_cast<int>(kAcBits));
        a_ <<= n;
        low_ <<= n;
        pending_ += n;
        if (pending_ >= 32)
            flushWord();
    }
    // Ends the code: the value written is the lowest multiple of 2^-(pos+1)
    // inside the final interval; the decoder reads zeros after it.
    void finish(BitWriter& out);
    std::size_t bitCount() const { return words_.size() * 32 + static_cast<std::size_t>(pending_) + kAcBits; }

private:
    void carry();
    void flushWord()
    {
        const int shift = static_cast<int>(kAcBits) + pending_ - 32;
        words_.push_back(static_cast<std::uint32_t>(low_ >> shift));
        low_ &= (std::uint64_t{1} << shift) - 1;
        pending_ -= 32;
    }

    std::uint32_t a_ = kAcStart;
    std::uint64_t low_ = 0;  // settled-but-unwritten bits above the 12-bit window
    int pending_ = 1;        // starts with the always-zero leading bit
    std::vector<std::uint32_t> words_;
};

class ArithDecoder {
public:
    // False when the leading bit is not zero.
    bool start(BitReader& in)
    {
        in_ = &in;
        if (in.bit() != 0)
            return false;
        c_ = in.get(kAcBits);
        return true;
    }
    unsigned decode(unsigned p)
    {
        const std::uint32_t q = acOneShare(a_, p);
        const std::uint32_t h = a_ - q;
        unsigned bit;
        if (c_ >= h) {
            bit = 1;
            c_ -= h;
            a_ = q;
        } else {
            bit = 0;
            a_ = h;
        }
        if (a_ < kAcHalf) {
            const int n = __builtin_clz(a_) - (32 - static_cast<int>(kAcBits));
            a_ <<= n;
            c_ = (c_ << n) | in_->get(n);
        }
        return bit;
    }

private:
    BitReader* in_ = nullptr;
    std::uint32_t a_ = kAcStart;
    std::uint32_t c_ = 0;
};

} // namespace zuvo::dst
