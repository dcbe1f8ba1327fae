#include "dst/dst_decoder.h"

#include "dst/dst_arith.h"
#include "dst/dst_bits.h"
#include "dst/dst_frame.h"
#include "dst/dst_predict.h"
#include "dst/dst_tables.h"

namespace zuvo::dst {

namespace {

bool decodeStored(const std::uint8_t* data, std::size_t size, int channels, std::size_t bytes,
                  std::vector<std::vector<std::uint8_t>>& out, std::string* why)
{
    if ((data[0] & 0x7f) != 0) {
        *why = "reserved bits set in a stored frame";
        return false;
    }
    const auto ch = static_cast<std::size_t>(channels);
    if (size < 1 + bytes * ch) {
        *why = "stored frame shorter than a frame of DSD";
        return false;
    }
    for (std::size_t c = 0; c < ch; ++c)
        for (std::size_t i = 0; i < bytes; ++i)
            out[c][i] = data[1 + i * ch + c];
    return true;
}

} // namespace

bool decodeFrame(const std::uint8_t* data, std::size_t size, int channels, int frameBits,
                 std::vector<std::vector<std::uint8_t>>& out, std::string* why)
{
    std::string local;
    if (!why)
        why = &local;
    const auto ch = static_cast<std::size_t>(channels);
    const std::size_t bytes = static_cast<std::size_t>(frameBits) / 8;
    if (channels < 1 || channels > kMaxChannels || frameBits <= 0 || frameBits % 8 != 0) {
        *why = "unsupported channel count or frame length";
        return false;
    }
    out.assign(ch, std::vector<std::uint8_t>(bytes, 0));
    if (size == 0) {
        *why = "empty frame";
        return false;
    }
    if ((data[0] & 0x80) == 0)
        return decodeStored(data, size, channels, bytes, out, why);

    BitReader r(data, size);
    r.bit();
    FrameTables t;
    if (!readFrameTables(r, channels, t, why))
        return false;
    std::vector<PredictionTables> pt(t.filters.size());
    for (std::size_t f = 0; f < t.filters.size(); ++f)
        pt[f].build(t.filters[f]);

    ArithDecoder ac;
    if (!ac.start(r)) {
        *why = "arithmetic code does not start with a zero bit";
        return false;
    }
    std::vector<std::uint64_t> h0(ch, kInitialHistory), h1(ch, kInitialHistory);
    for (int i = 0; i < frameBits; ++i) {
        for (std::size_t c = 0; c < ch; ++c) {
            const auto f = static_cast<std::size_t>(t.filterOf[c]);
            const int pred = pt[f].predict(h0[c], h1[c]);
            unsigned p = 128;
            if (!t.halfProb[c] || i >= static_cast<int>(t.filters[f].size())) {
                const auto& probs = t.probs[static_cast<std::size_t>(t.probsOf[c])];
                p = static_cast<unsigned>(probs[probIndex(pred, static_cast<int>(probs.size()))]);
            }
            const unsigned bit = ac.decode(p) ^ predictedBit(pred);
            if (bit)
                out[c][static_cast<std::size_t>(i) >> 3] |= static_cast<std::uint8_t>(0x80u >> (i & 7));
            pushHistory(h0[c], h1[c], bit);
        }
        // Garbage drives the decoder far past the end of the frame.
        if (r.position() > r.size() + 64) {
            *why = "arithmetic code runs past the end of the frame";
            return false;
        }
    }
    return true;
}

} // namespace zuvo::dst
