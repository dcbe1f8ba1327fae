#pragma once
// MSB-first bit packing for DST frames. The frame header fields are not
// byte aligned and the arithmetic code follows the last header bit directly.
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuvo::dst {

class BitWriter {
public:
    // Appends the low `n` bits of `v` (n <= 32), most significant first.
    void put(std::uint32_t v, int n)
    {
        if (n == 0)
            return;
        acc_ = (acc_ << n) | (v & (n == 32 ? ~0u : ((1u << n) - 1u)));
        held_ += n;
        bits_ += static_cast<std::size_t>(n);
        while (held_ >= 8) {
            held_ -= 8;
            bytes_.push_back(static_cast<std::uint8_t>(acc_ >> held_));
        }
    }
    void putBit(unsigned b) { put(b & 1u, 1); }
    // Two's complement in `n` bits.
    void putSigned(int v, int n) { put(static_cast<std::uint32_t>(v) & ((1u << n) - 1u), n); }
    std::size_t bitCount() const { return bits_; }
    // The bytes written, the last one padded with zero bits.
    std::vector<std::uint8_t>& bytes()
    {
        if (held_ > 0) {
            bytes_.push_back(static_cast<std::uint8_t>(acc_ << (8 - held_)));
            held_ = 0;
            // Further puts would misalign; the frame is complete by now.
        }
        return bytes_;
    }

private:
    std::vector<std::uint8_t> bytes_;
    std::uint64_t acc_ = 0;
    int held_ = 0;
    std::size_t bits_ = 0;
};

// Reads past the end as zeros; `overrun()` tells whether that happened.
class BitReader {
public:
    BitReader(const std::uint8_t* data, std::size_t size) : data_(data), bits_(size * 8) {}
    unsigned bit()
    {
        if (pos_ >= bits_) {
            ++pos_;
            return 0;
        }
        const unsigned b = (data_[pos_ >> 3] >> (7 - (pos_ & 7))) & 1u;
        ++pos_;
        return b;
    }
    std::uint32_t get(int n)
    {
        std::uint32_t v = 0;
        for (int i = 0; i < n; ++i)
            v = (v << 1) | bit();
        return v;
    }
    int getSigned(int n)
    {
        const std::uint32_t v = get(n);
        return (v & (1u << (n - 1))) ? static_cast<int>(v) - (1 << n) : static_cast<int>(v);
    }
    std::size_t position() const { return pos_; }
    std::size_t size() const { return bits_; }
    bool overrun() const { return pos_ > bits_; }

private:
    const std::uint8_t* data_;
    std::size_t bits_;
    std::size_t pos_ = 0;
};

} // namespace zuvo::dst
