#include "dst/dst_encoder.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "dst/dst_arith.h"
#include "dst/dst_bits.h"
#include "dst/dst_filter.h"
#include "dst/dst_frame.h"
#include "dst/dst_predict.h"
#include "dst/dst_tables.h"

namespace zuvo::dst {

namespace {

struct ChannelCode {
    std::vector<int> coefs;
    std::vector<int> probs;
    std::vector<std::uint8_t> residual; // per bit: 1 where the prediction missed
    std::vector<std::uint8_t> index;    // per bit: probability table entry
    double bits = 1e300;                // estimated size, header included
};

inline unsigned bitAt(const std::uint8_t* bytes, int i)
{
    return (bytes[i >> 3] >> (7 - (i & 7))) & 1u;
}

// One prediction pass: error counts per table entry, optionally the
// per-bit residual and index for the arithmetic coder.
template <bool Keep>
void predictPass(const std::uint8_t* bytes, int nbits, const PredictionTables& pt, std::array<std::uint32_t, kMaxProbs>& ones,
                 std::array<std::uint32_t, kMaxProbs>& total, std::uint8_t* residual, std::uint8_t* index)
{
    ones.fill(0);
    total.fill(0);
    std::uint64_t h0 = kInitialHistory, h1 = kInitialHistory;
    for (int i = 0; i < nbits; ++i) {
        const int p = pt.predict(h0, h1);
        const unsigned b = bitAt(bytes, i);
        const unsigned miss = b ^ predictedBit(p);
        const unsigned idx = probIndex(p, kMaxProbs);
        ones[idx] += miss;
        total[idx] += 1;
        if constexpr (Keep) {
            residual[i] = static_cast<std::uint8_t>(miss);
            index[i] = static_cast<std::uint8_t>(idx);
        }
        pushHistory(h0, h1, b);
    }
}

// Probability table from the counts, and the estimated code size in bits.
double tableAndCost(const std::array<std::uint32_t, kMaxProbs>& ones, const std::array<std::uint32_t, kMaxProbs>& total,
                    std::vector<int>& probs)
{
    int length = 1;
    for (int j = 0; j < kMaxProbs; ++j)
        if (total[static_cast<std::size_t>(j)] > 0)
            length = j + 1;
    probs.assign(static_cast<std::size_t>(length), 128);
    double bits = 0;
    for (int j = 0; j < length; ++j) {
        const double n = total[static_cast<std::size_t>(j)], n1 = ones[static_cast<std::size_t>(j)];
        if (n == 0)
            continue;
        const int p = static_cast<int>(std::clamp(std::lround(256.0 * (n1 + 0.4) / (n + 0.8)), 1L, 128L));
        probs[static_cast<std::size_t>(j)] = p;
        const double q = p / 256.0;
        bits -= n1 * std::log2(q) + (n - n1) * std::log2(1.0 - q);
    }
    return bits + ptableBits(probs);
}

ChannelCode codeChannel(const std::uint8_t* bytes, int nbits, const LevelPlan& plan)
{
    std::vector<int> orders{plan.order};
    orders.insert(orders.end(), plan.extraOrders.begin(), plan.extraOrders.end());
    const int maxOrder = *std::max_element(orders.begin(), orders.end());
    const std::vector<double> r = autocorrelation(bytes, nbits, maxOrder);

    struct Trial {
        std::vector<int> coefs;
    };
    std::vector<Trial> trials;
    for (std::size_t o = 0; o < orders.size(); ++o) {
        const std::vector<double> a = levinson(r, orders[o]);
        if (a.empty())
            continue;
        const std::vector<int> firsts = firstCoefficientChoices(a);
        const std::size_t n = o == 0 ? std::min<std::size_t>(firsts.size(), static_cast<std::size_t>(plan.scalings)) : 1;
        for (std::size_t s = 0; s < n; ++s)
            trials.push_back({quantise(a, firsts[s])});
    }
    if (trials.empty())
        trials.push_back({std::vector<int>(1, 0)});

    ChannelCode best;
    PredictionTables pt;
    std::array<std::uint32_t, kMaxProbs> ones{}, total{};
    std::size_t bestTrial = 0;
    if (trials.size() > 1) {
        for (std::size_t t = 0; t < trials.size(); ++t) {
            pt.build(trials[t].coefs);
            predictPass<false>(bytes, nbits, pt, ones, total, nullptr, nullptr);
            std::vector<int> probs;
            const double bits = tableAndCost(ones, total, probs) + filterBits(trials[t].coefs);
            if (bits < best.bits) {
                best.bits = bits;
                bestTrial = t;
            }
        }
    }
    best.coefs = trials[bestTrial].coefs;
    pt.build(best.coefs);
    best.residual.resize(static_cast<std::size_t>(nbits));
    best.index.resize(static_cast<std::size_t>(nbits));
    predictPass<true>(bytes, nbits, pt, ones, total, best.residual.data(), best.index.data());
    best.bits = tableAndCost(ones, total, best.probs) + filterBits(best.coefs);
    return best;
}

} // namespace

LevelPlan planForLevel(int level)
{
    LevelPlan p;
    switch (std::clamp(level, 1, 9)) {
    case 1: p.order = 8; break;
    case 2: p.order = 16; break;
    case 3: p.order = 24; break;
    case 4: p.order = 32; break;
    case 5: p.order = 48; break;
    case 6: p.order = 64; p.scalings = 2; break;
    case 7: p.order = 96; p.scalings = 3; break;
    case 8: p.order = 128; p.scalings = 3; break;
    case 9: p.order = 128; p.scalings = 3; p.extraOrders = {48, 64, 96}; break;
    }
    return p;
}

std::vector<std::uint8_t> storedFrame(const std::vector<const std::uint8_t*>& channels, int frameBits)
{
    const std::size_t ch = channels.size();
    const std::size_t n = static_cast<std::size_t>(frameBits) / 8;
    std::vector<std::uint8_t> out(1 + n * ch, 0);
    for (std::size_t c = 0; c < ch; ++c)
        for (std::size_t i = 0; i < n; ++i)
            out[1 + i * ch + c] = channels[c][i];
    return out;
}

std::vector<std::uint8_t> encodeFrame(const std::vector<const std::uint8_t*>& channels, int frameBits, int level,
                                      FrameStats* stats)
{
    const LevelPlan plan = planForLevel(level);
    const std::size_t chCount = channels.size();
    std::vector<ChannelCode> codes(chCount);
    for (std::size_t c = 0; c < chCount; ++c)
        codes[c] = codeChannel(channels[c], frameBits, plan);
    FrameTables tables;
    for (std::size_t c = 0; c < chCount; ++c) {
        tables.filters.push_back(codes[c].coefs);
        tables.probs.push_back(codes[c].probs);
        tables.filterOf.push_back(static_cast<int>(c));
        tables.probsOf.push_back(static_cast<int>(c));
        tables.halfProb.push_back(false);
    }
    BitWriter w;
    w.putBit(1); // DST coded
    writeFrameTables(w, tables);

    ArithEncoder ac;
    std::vector<const std::uint8_t*> probOf(chCount);
    std::vector<std::array<std::uint8_t, kMaxProbs>> p(chCount);
    for (std::size_t c = 0; c < chCount; ++c)
        for (std::size_t j = 0; j < static_cast<std::size_t>(kMaxProbs); ++j)
            p[c][j] = static_cast<std::uint8_t>(codes[c].probs[std::min(j, codes[c].probs.size() - 1)]);
    for (int i = 0; i < frameBits; ++i)
        for (std::size_t c = 0; c < chCount; ++c)
            ac.encode(codes[c].residual[static_cast<std::size_t>(i)], p[c][codes[c].index[static_cast<std::size_t>(i)]]);
    ac.finish(w);

    const std::size_t storedSize = 1 + static_cast<std::size_t>(frameBits) / 8 * chCount;
    if (w.bytes().size() >= storedSize) {
        if (stats)
            *stats = {false, storedSize};
        return storedFrame(channels, frameBits);
    }
    if (stats)
        *stats = {true, w.bytes().size()};
    return std::move(w.bytes());
}

} // namespace zuvo::dst
