#include "io/dff_dst_writer.h"

#include <algorithm>
#include <atomic>
#include <thread>

#include "dst/crc32.h"
#include "dst/dst_encoder.h"
#include "dst/dst_frame.h"
#include "io/bit_order.h"
#include "io/be_fields.h"

namespace zuvo::io {

namespace {
using Bytes = std::vector<std::uint8_t>;

} // namespace

bool DffDstSink::start(int channels, int dsdRate, int level, std::string* error)
{
    if (!dst::rateFitsFrames(dsdRate) || channels < 1 || channels > dst::kMaxChannels) {
        if (error)
            *error = "DST compression needs 1 to 8 channels and a DSD rate that is a multiple of 600 bytes per second";
        return false;
    }
    channels_ = channels;
    frameBits_ = dst::frameBits(dsdRate);
    level_ = level;
    validBytes_ = 0;
    coded_ = 0;
    index_.clear();
    return true;
}

Bytes DffDstSink::cmprBody()
{
    Bytes cmpr;
    putId(cmpr, "DST ");
    const std::string name = "DST Encoded";
    cmpr.push_back(static_cast<std::uint8_t>(name.size()));
    cmpr.insert(cmpr.end(), name.begin(), name.end());
    if ((name.size() + 1) & 1)
        cmpr.push_back(0);
    return cmpr;
}

Bytes DffDstSink::chunkHead() const
{
    Bytes b;
    putId(b, "DST ");
    putBE(b, 0, 8); // patched
    putId(b, "FRTE");
    putBE(b, 6, 8);
    putBE(b, 0, 4); // number of frames, patched
    putBE(b, dst::kFramesPerSecond, 2);
    return b;
}

bool DffDstSink::writeFrames(OutputFile& file, ChannelBacklog& backlog, std::size_t count, std::string* error)
{
    const std::size_t frameBytes = static_cast<std::size_t>(frameBits_) / 8;
    const auto ch = static_cast<std::size_t>(channels_);
    std::vector<Bytes> coded(count);
    std::vector<std::uint32_t> crcs(count);
    std::vector<dst::FrameStats> stats(count);
    // Frames are independent: spread them over the cores.
    // Frames are independent: spread pairs of them over the cores.
    std::atomic<std::size_t> next{0};
    auto work = [&] {
        for (std::size_t f; (f = 2 * next.fetch_add(1)) < count;) {
            std::vector<const std::uint8_t*> a(ch), b(ch);
            for (std::size_t c = 0; c < ch; ++c) {
                a[c] = backlog.data(c) + f * frameBytes;
                b[c] = backlog.data(c) + (f + 1) * frameBytes;
            }
            if (f + 1 < count)
                dst::encodeFramePair(a, b, frameBits_, level_, coded[f], coded[f + 1], &stats[f], &stats[f + 1]);
            else
                coded[f] = dst::encodeFrame(a, frameBits_, level_, &stats[f]);
            for (std::size_t k = f; k < f + 2 && k < count; ++k)
                crcs[k] = dst::crc32Interleaved(k == f ? a : b, frameBytes);
        }
    };
    const unsigned threads = std::min<unsigned>(std::max(1u, std::thread::hardware_concurrency()), static_cast<unsigned>((count + 1) / 2));
    std::vector<std::thread> pool;
    for (unsigned t = 1; t < threads; ++t)
        pool.emplace_back(work);
    work();
    for (auto& t : pool)
        t.join();

    Bytes out;
    for (std::size_t f = 0; f < count; ++f) {
        out.clear();
        putId(out, "DSTF");
        putBE(out, coded[f].size(), 8);
        index_.push_back({file.position() + out.size(), static_cast<std::uint32_t>(coded[f].size())});
        out.insert(out.end(), coded[f].begin(), coded[f].end());
        if (coded[f].size() & 1)
            out.push_back(0);
        putId(out, "DSTC");
        putBE(out, 4, 8);
        putBE(out, crcs[f], 4);
        if (!file.write(out.data(), out.size(), error))
            return false;
        coded_ += stats[f].coded ? 1 : 0;
    }
    backlog.drop(count * frameBytes);
    return true;
}

bool DffDstSink::push(OutputFile& file, ChannelBacklog& backlog, std::string* error)
{
    const std::size_t frameBytes = static_cast<std::size_t>(frameBits_) / 8;
    const std::size_t whole = backlog.common() / frameBytes;
    if (whole == 0)
        return true;
    validBytes_ += whole * frameBytes;
    return writeFrames(file, backlog, whole, error);
}

bool DffDstSink::finish(OutputFile& file, ChannelBacklog& backlog, std::uint64_t chunkOffset, std::string* error)
{
    const std::size_t frameBytes = static_cast<std::size_t>(frameBits_) / 8;
    const std::size_t longest = backlog.padToLongest();
    if (!push(file, backlog, error))
        return false;
    const std::size_t rest = longest % frameBytes;
    if (rest > 0) {
        std::vector<std::vector<std::uint8_t>> fill(static_cast<std::size_t>(channels_),
                                                    std::vector<std::uint8_t>(frameBytes - rest, kDsdSilenceMsbFirst));
        backlog.append(fill);
        validBytes_ += rest;
        if (!writeFrames(file, backlog, 1, error))
            return false;
    }
    const std::uint64_t chunkSize = file.position() - chunkOffset - 12;
    if (!file.patchBE(chunkOffset + 4, chunkSize, 8, error)
        || !file.patchBE(chunkOffset + 24, index_.size(), 4, error))
        return false;
    Bytes tail;
    putId(tail, "DSTI");
    putBE(tail, index_.size() * 12, 8);
    for (const IndexEntry& e : index_) {
        putBE(tail, e.offset, 8);
        putBE(tail, e.length, 4);
    }
    putId(tail, "MANF");
    putBE(tail, 16, 8);
    putId(tail, kManfId);
    putId(tail, kManfLengthTag);
    putBE(tail, validBytes_, 8);
    return file.write(tail.data(), tail.size(), error);
}

} // namespace zuvo::io
