#pragma once
// The prediction filter run as the format defines it: the last 128 bits of a
// channel (most recent first) are 16 bytes of history, each byte indexes a
// 256-entry table of partial sums of eight coefficients, a one counting +1
// and a zero -1. The predicted bit is one when the sum is not negative; the
// arithmetic code carries whether the prediction missed.
#include <array>
#include <cstdint>
#include <vector>

namespace zuvo::dst {

struct PredictionTables {
    int tableCount = 0; // bytes of history the filter reaches
    std::array<std::array<std::int16_t, 256>, 16> t{};

    void build(const std::vector<int>& coefs)
    {
        const int order = static_cast<int>(coefs.size());
        tableCount = (order + 7) / 8;
        for (int j = 0; j < tableCount; ++j) {
            const int taps = order - 8 * j < 8 ? order - 8 * j : 8;
            for (int k = 0; k < 256; ++k) {
                int v = 0;
                for (int l = 0; l < taps; ++l)
                    v += (((k >> l) & 1) * 2 - 1) * coefs[static_cast<std::size_t>(8 * j + l)];
                t[static_cast<std::size_t>(j)][static_cast<std::size_t>(k)] = static_cast<std::int16_t>(v);
            }
        }
    }
    // h0: the 64 most recent bits, the latest in bit 0; h1: the 64 before.
    int predict(std::uint64_t h0, std::uint64_t h1) const
    {
        int sum = 0;
        for (int j = 0; j < tableCount; ++j) {
            const std::uint64_t h = j < 8 ? h0 >> (8 * j) : h1 >> (8 * (j - 8));
            sum += t[static_cast<std::size_t>(j)][h & 255u];
        }
        return sum;
    }
};

// Every frame starts from this history: alternating bits.
constexpr std::uint64_t kInitialHistory = 0xAAAAAAAAAAAAAAAAull;

inline void pushHistory(std::uint64_t& h0, std::uint64_t& h1, unsigned bit)
{
    h1 = (h1 << 1) | (h0 >> 63);
    h0 = (h0 << 1) | bit;
}

inline unsigned predictedBit(int prediction)
{
    return prediction >= 0 ? 1u : 0u;
}

inline unsigned probIndex(int prediction, int tableLength)
{
    const unsigned mag = static_cast<unsigned>(prediction < 0 ? -prediction : prediction) >> 3;
    const unsigned last = static_cast<unsigned>(tableLength - 1);
    return mag < last ? mag : last;
}

} // namespace zuvo::dst
