#include "dst/dst_tables.h"

namespace zuvo::dst {

namespace {

// Prediction of a coefficient from the ones before it, for the Rice-coded
// form: eighths, rounded as the format rounds.
constexpr int kFilterPred[3][3] = {{-8, 0, 0}, {-16, 8, 0}, {-9, -5, 6}};
constexpr int kProbPred[3][3] = {{-8, 0, 0}, {-16, 8, 0}, {-24, 24, -8}};

int predictedFrom(const int pred[3], const std::vector<int>& v, std::size_t j, int method)
{
    int x = 0;
    for (int k = 0; k <= method; ++k)
        x += pred[k] * v[j - static_cast<std::size_t>(k) - 1];
    return x >= 0 ? -((x + 4) / 8) : (-x + 3) / 8;
}

int riceRead(BitReader& r, int m)
{
    int run = 0;
    while (r.bit() == 0) {
        if (++run > 4096 || r.overrun())
            return 1 << 20; // out of every valid range
    }
    int v = (run << m) | static_cast<int>(r.get(m));
    if (v != 0 && r.bit())
        v = -v;
    return v;
}

bool readSegmentation(BitReader& r, int channels, std::string* why)
{
    const bool sameForAll = r.bit();
    const int lists = sameForAll ? 1 : channels;
    for (int c = 0; c < lists; ++c) {
        if (!r.bit()) { // end of this channel's segmentation
            *why = "more than one segment per channel (not decoded by this reader)";
            return false;
        }
    }
    return true;
}

bool readMap(BitReader& r, int channels, std::vector<int>& map, int& count, std::string* why)
{
    map.assign(static_cast<std::size_t>(channels), 0);
    count = 1;
    if (r.bit()) // same element for every channel
        return true;
    for (int c = 1; c < channels; ++c) {
        const int v = static_cast<int>(r.get(mapFieldBits(count)));
        if (v > count) {
            *why = "element map out of order";
            return false;
        }
        if (v == count)
            ++count;
        map[static_cast<std::size_t>(c)] = v;
    }
    return true;
}

// One coefficient list: length field, coded flag, then plain or Rice-coded
// values. `offset` and `bits` describe the plain form (value - offset in
// `bits` bits, signed or not).
bool readList(BitReader& r, int lengthBits, int bits, bool isSigned, int offset, int lo, int hi, const int pred[3][3],
              std::vector<int>& out, std::string* why)
{
    const int length = static_cast<int>(r.get(lengthBits)) + 1;
    out.assign(static_cast<std::size_t>(length), 0);
    auto plain = [&] { return (isSigned ? r.getSigned(bits) : static_cast<int>(r.get(bits))) + offset; };
    if (!r.bit()) {
        for (int& v : out)
            v = plain();
        return true;
    }
    const int method = static_cast<int>(r.get(2));
    if (method == 3 || method + 1 > length) {
        *why = "bad coefficient coding method";
        return false;
    }
    for (int j = 0; j <= method; ++j)
        out[static_cast<std::size_t>(j)] = plain();
    const int m = static_cast<int>(r.get(3));
    for (std::size_t j = static_cast<std::size_t>(method) + 1; j < out.size(); ++j) {
        const int v = riceRead(r, m) + predictedFrom(pred[method], out, j, method);
        if (v < lo || v > hi) {
            *why = "coefficient out of range";
            return false;
        }
        out[j] = v;
    }
    return true;
}

// The cheaper of the plain and the Rice-coded form of a coefficient list:
// the method (which predictor of the next value from the ones before) and
// the Rice parameter that give the fewest bits.
struct ListCoding {
    bool coded = false;
    int method = 0;
    int m = 0;
    int bits = 0; // after the length field
};

int riceBits(int r, int m)
{
    const int mag = r < 0 ? -r : r;
    return (mag >> m) + 1 + m + (mag != 0 ? 1 : 0);
}

ListCoding chooseCoding(const std::vector<int>& v, int width, const int pred[3][3])
{
    ListCoding best;
    best.bits = 1 + width * static_cast<int>(v.size());
    for (int method = 0; method < 3 && method + 1 < static_cast<int>(v.size()); ++method) {
        for (int m = 0; m < 8; ++m) {
            int bits = 1 + 2 + (method + 1) * width + 3;
            for (std::size_t j = static_cast<std::size_t>(method) + 1; j < v.size() && bits < best.bits; ++j)
                bits += riceBits(v[j] - predictedFrom(pred[method], v, j, method), m);
            if (bits < best.bits)
                best = {true, method, m, bits};
        }
    }
    return best;
}

void writeList(BitWriter& w, const std::vector<int>& v, int lengthBits, int width, bool isSigned, int offset,
               const int pred[3][3])
{
    w.put(static_cast<std::uint32_t>(v.size() - 1), lengthBits);
    const ListCoding c = chooseCoding(v, width, pred);
    auto plain = [&](int x) {
        if (isSigned)
            w.putSigned(x - offset, width);
        else
            w.put(static_cast<std::uint32_t>(x - offset), width);
    };
    w.putBit(c.coded ? 1 : 0);
    if (!c.coded) {
        for (int x : v)
            plain(x);
        return;
    }
    w.put(static_cast<std::uint32_t>(c.method), 2);
    for (int j = 0; j <= c.method; ++j)
        plain(v[static_cast<std::size_t>(j)]);
    w.put(static_cast<std::uint32_t>(c.m), 3);
    for (std::size_t j = static_cast<std::size_t>(c.method) + 1; j < v.size(); ++j) {
        const int r = v[j] - predictedFrom(pred[c.method], v, j, c.method);
        const int mag = r < 0 ? -r : r;
        for (int z = mag >> c.m; z > 0; --z)
            w.putBit(0);
        w.putBit(1);
        if (c.m > 0)
            w.put(static_cast<std::uint32_t>(mag) & ((1u << c.m) - 1u), c.m);
        if (mag != 0)
            w.putBit(r < 0 ? 1 : 0);
    }
}

void writeMap(BitWriter& w, const std::vector<int>& map)
{
    bool same = true;
    for (int v : map)
        same = same && v == 0;
    w.putBit(same ? 1 : 0);
    if (same)
        return;
    int count = 1;
    for (std::size_t c = 1; c < map.size(); ++c) {
        w.put(static_cast<std::uint32_t>(map[c]), mapFieldBits(count));
        if (map[c] == count)
            ++count;
    }
}

} // namespace

void writeFrameTables(BitWriter& w, const FrameTables& t)
{
    w.putBit(1); // the same segmentation for filters and probability tables
    w.putBit(1); // ... and for every channel
    w.putBit(1); // one segment: the channel's segmentation ends at once
    const bool sameMaps = t.filterOf == t.probsOf;
    w.putBit(sameMaps ? 1 : 0);
    writeMap(w, t.filterOf);
    if (!sameMaps)
        writeMap(w, t.probsOf);
    for (bool h : t.halfProb)
        w.putBit(h ? 1 : 0);
    for (const auto& f : t.filters)
        writeList(w, f, 7, kCoefBits, true, 0, kFilterPred);
    for (const auto& p : t.probs)
        writeList(w, p, 6, kProbBits, false, 1, kProbPred);
}

bool readFrameTables(BitReader& r, int channels, FrameTables& t, std::string* why)
{
    const bool sameSegmentation = r.bit();
    if (!readSegmentation(r, channels, why))
        return false;
    if (!sameSegmentation && !readSegmentation(r, channels, why))
        return false;
    const bool sameMaps = r.bit();
    int filters = 0, ptables = 0;
    if (!readMap(r, channels, t.filterOf, filters, why))
        return false;
    if (sameMaps) {
        t.probsOf = t.filterOf;
        ptables = filters;
    } else if (!readMap(r, channels, t.probsOf, ptables, why)) {
        return false;
    }
    t.halfProb.assign(static_cast<std::size_t>(channels), false);
    for (int c = 0; c < channels; ++c)
        t.halfProb[static_cast<std::size_t>(c)] = r.bit() != 0;
    t.filters.assign(static_cast<std::size_t>(filters), {});
    for (auto& f : t.filters)
        if (!readList(r, 7, kCoefBits, true, 0, -256, 255, kFilterPred, f, why))
            return false;
    t.probs.assign(static_cast<std::size_t>(ptables), {});
    for (auto& p : t.probs)
        if (!readList(r, 6, kProbBits, false, 1, 1, 128, kProbPred, p, why))
            return false;
    if (r.overrun()) {
        *why = "header longer than the frame";
        return false;
    }
    return true;
}

double filterBits(const std::vector<int>& coefs)
{
    return 7.0 + chooseCoding(coefs, kCoefBits, kFilterPred).bits;
}

double ptableBits(const std::vector<int>& probs)
{
    return 6.0 + chooseCoding(probs, kProbBits, kProbPred).bits;
}

} // namespace zuvo::dst
