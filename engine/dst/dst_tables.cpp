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
    for (const auto& f : t.filters) {
        w.put(static_cast<std::uint32_t>(f.size() - 1), 7);
        w.putBit(0); // plain coefficients
        for (int c : f)
            w.putSigned(c, kCoefBits);
    }
    for (const auto& p : t.probs) {
        w.put(static_cast<std::uint32_t>(p.size() - 1), 6);
        w.putBit(0);
        for (int v : p)
            w.put(static_cast<std::uint32_t>(v - 1), kProbBits);
    }
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
    return 8.0 + kCoefBits * static_cast<double>(coefs.size());
}

double ptableBits(const std::vector<int>& probs)
{
    return 7.0 + kProbBits * static_cast<double>(probs.size());
}

} // namespace zuvo::dst
