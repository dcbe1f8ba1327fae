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
    std::vector<std::uint8_t> symbol;   // per bit: table entry << 1 | 1 where the prediction missed
    double bits = 1e300;                // estimated size, header included
};

// One prediction pass: error counts per table entry, optionally the
// per-bit residual and index for the arithmetic coder.
// The table count is a template argument so that the sum unrolls.
template <bool Keep, int Tables>
void predictPassN(const std::uint8_t* bytes, int nbits, const PredictionTables& pt, std::uint32_t* ones,
                  std::uint32_t* total, std::uint8_t* symbol)
{
    std::uint64_t h0 = kInitialHistory, h1 = kInitialHistory;
    for (int i = 0; i < nbits; ++i) {
        int p = 0;
        for (int j = 0; j < Tables; ++j) {
            const std::uint64_t h = j < 8 ? h0 >> (8 * j) : h1 >> (8 * (j - 8));
            p += pt.t[static_cast<std::size_t>(j)][h & 255u];
        }
        const unsigned b = (bytes[i >> 3] >> (7 - (i & 7))) & 1u;
        const unsigned miss = b ^ predictedBit(p);
        const unsigned idx = probIndex(p, kMaxProbs);
        if constexpr (!Keep) {
            ones[idx] += miss;
            total[idx] += 1;
        } else {
            symbol[i] = static_cast<std::uint8_t>(idx << 1 | miss);
        }
        if constexpr (Tables > 8)
            h1 = (h1 << 1) | (h0 >> 63);
        h0 = (h0 << 1) | b;
    }
}

template <bool Keep>
void predictPass(const std::uint8_t* bytes, int nbits, const PredictionTables& pt, std::array<std::uint32_t, kMaxProbs>& ones,
                 std::array<std::uint32_t, kMaxProbs>& total, std::uint8_t* symbol)
{
    ones.fill(0);
    total.fill(0);
    std::uint32_t* o = ones.data();
    std::uint32_t* t = total.data();
    switch (pt.tableCount) {
#define ZUVO_DST_CASE(n) case n: predictPassN<Keep, n>(bytes, nbits, pt, o, t, symbol); break;
        ZUVO_DST_CASE(1) ZUVO_DST_CASE(2) ZUVO_DST_CASE(3) ZUVO_DST_CASE(4) ZUVO_DST_CASE(5) ZUVO_DST_CASE(6)
        ZUVO_DST_CASE(7) ZUVO_DST_CASE(8) ZUVO_DST_CASE(9) ZUVO_DST_CASE(10) ZUVO_DST_CASE(11) ZUVO_DST_CASE(12)
        ZUVO_DST_CASE(13) ZUVO_DST_CASE(14) ZUVO_DST_CASE(15) ZUVO_DST_CASE(16)
#undef ZUVO_DST_CASE
    default: predictPassN<Keep, 16>(bytes, nbits, pt, o, t, symbol); break;
    }
    if constexpr (Keep) {
        // Counting from the symbols, in four interleaved histograms, avoids
        // the store-to-load chain of incrementing one counter bit after bit.
        std::array<std::array<std::uint32_t, 2 * kMaxProbs>, 4> h{};
        int i = 0;
        for (; i + 4 <= nbits; i += 4) {
            ++h[0][symbol[i]];
            ++h[1][symbol[i + 1]];
            ++h[2][symbol[i + 2]];
            ++h[3][symbol[i + 3]];
        }
        for (; i < nbits; ++i)
            ++h[0][symbol[i]];
        for (std::size_t j = 0; j < static_cast<std::size_t>(kMaxProbs); ++j) {
            const std::uint32_t hits = h[0][2 * j] + h[1][2 * j] + h[2][2 * j] + h[3][2 * j];
            ones[j] = h[0][2 * j + 1] + h[1][2 * j + 1] + h[2][2 * j + 1] + h[3][2 * j + 1];
            total[j] = hits + ones[j];
        }
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
            predictPass<false>(bytes, nbits, pt, ones, total, nullptr);
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
    best.symbol.resize(static_cast<std::size_t>(nbits));
    predictPass<true>(bytes, nbits, pt, ones, total, best.symbol.data());
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

namespace {

// A frame up to its arithmetic code: the header, and the symbols to code in
// order (bit by bit, channels interleaved), each probability << 1 | miss.
struct PreparedFrame {
    BitWriter header;
    std::vector<std::uint16_t> symbols;
};

PreparedFrame prepare(const std::vector<const std::uint8_t*>& channels, int frameBits, int level)
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
    PreparedFrame f;
    f.header.putBit(1); // DST coded
    writeFrameTables(f.header, tables);

    const auto bits = static_cast<std::size_t>(frameBits);
    f.symbols.resize(bits * chCount);
    for (std::size_t c = 0; c < chCount; ++c) {
        std::array<std::uint16_t, kMaxProbs * 2> map{};
        for (std::size_t j = 0; j < static_cast<std::size_t>(kMaxProbs); ++j) {
            const auto p = static_cast<unsigned>(codes[c].probs[std::min(j, codes[c].probs.size() - 1)]);
            map[2 * j] = static_cast<std::uint16_t>(p << 1);
            map[2 * j + 1] = static_cast<std::uint16_t>(p << 1 | 1u);
        }
        const std::uint8_t* sym = codes[c].symbol.data();
        std::uint16_t* out = f.symbols.data() + c;
        for (std::size_t i = 0; i < bits; ++i)
            out[i * chCount] = map[sym[i]];
    }
    return f;
}

std::vector<std::uint8_t> complete(PreparedFrame& f, ArithEncoder& ac, const std::vector<const std::uint8_t*>& channels,
                                   int frameBits, FrameStats* stats)
{
    ac.finish(f.header);
    std::vector<std::uint8_t>& bytes = f.header.bytes();
    const std::size_t storedSize = 1 + static_cast<std::size_t>(frameBits) / 8 * channels.size();
    if (bytes.size() >= storedSize) {
        if (stats)
            *stats = {false, storedSize};
        return storedFrame(channels, frameBits);
    }
    if (stats)
        *stats = {true, bytes.size()};
    return std::move(bytes);
}

} // namespace

std::vector<std::uint8_t> encodeFrame(const std::vector<const std::uint8_t*>& channels, int frameBits, int level,
                                      FrameStats* stats)
{
    PreparedFrame f = prepare(channels, frameBits, level);
    ArithEncoder ac;
    for (const std::uint16_t s : f.symbols)
        ac.encode(s & 1u, s >> 1);
    return complete(f, ac, channels, frameBits, stats);
}

void encodeFramePair(const std::vector<const std::uint8_t*>& first, const std::vector<const std::uint8_t*>& second,
                     int frameBits, int level, std::vector<std::uint8_t>& outFirst, std::vector<std::uint8_t>& outSecond,
                     FrameStats* statsFirst, FrameStats* statsSecond)
{
    PreparedFrame a = prepare(first, frameBits, level);
    PreparedFrame b = prepare(second, frameBits, level);
    // Two independent codes in one loop: each symbol's interval update is a
    // chain of dependent operations, and two chains keep the core busier.
    ArithEncoder acA, acB;
    const std::size_t n = std::min(a.symbols.size(), b.symbols.size());
    const std::uint16_t* sa = a.symbols.data();
    const std::uint16_t* sb = b.symbols.data();
    for (std::size_t i = 0; i < n; ++i) {
        acA.encode(sa[i] & 1u, sa[i] >> 1);
        acB.encode(sb[i] & 1u, sb[i] >> 1);
    }
    for (std::size_t i = n; i < a.symbols.size(); ++i)
        acA.encode(sa[i] & 1u, sa[i] >> 1);
    for (std::size_t i = n; i < b.symbols.size(); ++i)
        acB.encode(sb[i] & 1u, sb[i] >> 1);
    outFirst = complete(a, acA, first, frameBits, statsFirst);
    outSecond = complete(b, acB, second, frameBits, statsSecond);
}

} // namespace zuvo::dst
