// DSF reading. The header's fields size the block buffer and place every
// read, so each is checked against sane limits and against the file before
// it is used: a hostile block size must not turn into a huge allocation.
#include "io/dsf_reader.h"

#include <algorithm>
#include <cstring>

#include "io/bit_order.h"

namespace zuvo::io {

namespace {
std::uint64_t le(const std::uint8_t* p, int n)
{
    std::uint64_t v = 0;
    for (int i = n - 1; i >= 0; --i)
        v = (v << 8) | p[i];
    return v;
}

// Writers use 4096; anything above this is not a DSF block but an attack
// on the reader's memory.
constexpr std::uint64_t kMaxBlockSize = 1u << 20;
constexpr std::uint64_t kMaxSampleRate = 1u << 30;
constexpr std::size_t kMaxId3 = 64u << 20;
} // namespace

bool DsfReader::open(const std::string& path, std::string* error)
{
    if (!openFile(path, error))
        return false;
    auto bad = [&](const std::string& why) {
        if (error)
            *error = path + ": damaged DSF file (" + why + ")";
        return false;
    };
    std::uint8_t h[28];
    if (!readExact(h, sizeof h) || std::memcmp(h, "DSD ", 4) != 0)
        return bad("no DSD header");
    const std::uint64_t headerSize = le(h + 4, 8);
    const std::uint64_t metaPointer = le(h + 20, 8);
    if (headerSize < 28 || headerSize > fileSize_)
        return bad("DSD chunk size " + std::to_string(headerSize));
    std::uint8_t fmt[52];
    if (!seek(headerSize) || !readExact(fmt, sizeof fmt) || std::memcmp(fmt, "fmt ", 4) != 0)
        return bad("no fmt chunk");
    const std::uint64_t fmtSize = le(fmt + 4, 8);
    if (fmtSize < 52 || fmtSize > fileSize_ - headerSize)
        return bad("fmt chunk size " + std::to_string(fmtSize));
    if (le(fmt + 16, 4) != 0)
        return bad("not raw DSD");
    const std::uint64_t channels = le(fmt + 24, 4);
    const std::uint64_t rate = le(fmt + 28, 4);
    const std::uint64_t bits = le(fmt + 32, 4);
    const std::uint64_t samples = le(fmt + 36, 8);
    const std::uint64_t block = le(fmt + 44, 4);
    if (channels < 1 || channels > 8 || rate == 0 || rate > kMaxSampleRate || bits != 1)
        return bad("unsupported format fields");
    if (block == 0 || block > kMaxBlockSize)
        return bad("block size " + std::to_string(block));
    info_.channels = static_cast<int>(channels);
    info_.sampleRate = static_cast<int>(rate);
    blockSize_ = static_cast<std::uint32_t>(block);

    const std::uint64_t dataHead = headerSize + fmtSize;
    std::uint8_t dh[12];
    if (!seek(dataHead) || !readExact(dh, sizeof dh) || std::memcmp(dh, "data", 4) != 0)
        return bad("no data chunk");
    const std::uint64_t dataChunk = le(dh + 4, 8);
    if (dataChunk < 12)
        return bad("data chunk size " + std::to_string(dataChunk));
    dataStart_ = dataHead + 12;
    if (dataStart_ > fileSize_)
        return bad("no data chunk");
    // The sample count is what must be there; the data chunk's size may say
    // a little more (a streaming writer's placeholder) or the file may end
    // inside the padding of its last block. Neither is missing audio.
    const std::uint64_t present = std::min(dataChunk - 12, fileSize_ - dataStart_);
    const std::uint64_t groupBytes = block * channels;
    const std::uint64_t declared = samples / 8;
    // Blocks are laid channel after channel, so the last channel's bytes
    // come last: that is where a cut file first loses audio.
    const std::uint64_t groups = declared / block + (declared % block ? 1 : 0);
    if (groups > 0) {
        const std::uint64_t lastValid = declared - (groups - 1) * block;
        if (groups - 1 > present / groupBytes
            || present - (groups - 1) * groupBytes < (channels - 1) * block + lastValid) {
            const std::uint64_t tail = present % groupBytes;
            const std::uint64_t last = tail > (channels - 1) * block ? tail - (channels - 1) * block : 0;
            return truncated(error, "bytes of DSD data per channel", declared, (present / groupBytes) * block + last);
        }
    }
    info_.bytesPerChannel = declared;
    info_.container = "DSF";
    if (metaPointer >= dataStart_ && metaPointer < fileSize_ && fileSize_ - metaPointer >= 10 && seek(metaPointer)) {
        std::vector<std::uint8_t> meta(10);
        if (readExact(meta.data(), 10) && std::memcmp(meta.data(), "ID3", 3) == 0) {
            const std::size_t n = (std::size_t(meta[6] & 0x7F) << 21) | (std::size_t(meta[7] & 0x7F) << 14)
                | (std::size_t(meta[8] & 0x7F) << 7) | std::size_t(meta[9] & 0x7F);
            if (n < kMaxId3 && n <= fileSize_ - metaPointer - 10) {
                meta.resize(10 + n);
                if (readExact(meta.data() + 10, n))
                    parseId3v2(meta.data(), meta.size(), tags_);
            }
        }
    }
    return seek(dataStart_) || bad("cannot seek to the data");
}

long long DsfReader::read(std::size_t maxBytes, std::vector<std::vector<std::uint8_t>>& out, std::string* error)
{
    const auto ch = static_cast<std::size_t>(info_.channels);
    out.resize(ch);
    for (auto& o : out)
        o.clear();
    const auto& rev = bitReverseTable();
    std::size_t total = 0;
    while (total < maxBytes && consumed_ < info_.bytesPerChannel) {
        if (groupOffset_ == groupFill_) {
            // The last group may end inside its padding (the channels after
            // the last valid byte of the last channel need not be there).
            const std::uint64_t left = info_.bytesPerChannel - consumed_;
            const std::size_t want = left >= blockSize_ ? blockSize_ * ch
                                                         : (ch - 1) * blockSize_ + static_cast<std::size_t>(left);
            group_.resize(blockSize_ * ch);
            if (!readExact(group_.data(), want)) {
                if (error)
                    *error = path_ + ": the DSD data ends early (truncated file)";
                return total > 0 ? static_cast<long long>(total) : -1;
            }
            groupOffset_ = 0;
            groupFill_ = blockSize_;
        }
        const std::size_t take = static_cast<std::size_t>(std::min<std::uint64_t>(
            {maxBytes - total, groupFill_ - groupOffset_, info_.bytesPerChannel - consumed_}));
        for (std::size_t c = 0; c < ch; ++c) {
            const std::uint8_t* src = group_.data() + c * blockSize_ + groupOffset_;
            for (std::size_t i = 0; i < take; ++i)
                out[c].push_back(rev[src[i]]);
        }
        groupOffset_ += take;
        consumed_ += take;
        total += take;
    }
    return static_cast<long long>(total);
}

} // namespace zuvo::io
