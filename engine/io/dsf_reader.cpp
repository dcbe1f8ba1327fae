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
} // namespace

bool DsfReader::open(const std::string& path, std::string* error)
{
    if (!openFile(path, error))
        return false;
    auto bad = [&](const char* why) {
        if (error)
            *error = path + ": damaged DSF file (" + why + ")";
        return false;
    };
    std::uint8_t h[28];
    if (!readExact(h, sizeof h) || std::memcmp(h, "DSD ", 4) != 0)
        return bad("no DSD header");
    const std::uint64_t headerSize = le(h + 4, 8);
    const std::uint64_t metaPointer = le(h + 20, 8);
    std::uint8_t fmt[52];
    if (!seek(headerSize) || !readExact(fmt, sizeof fmt) || std::memcmp(fmt, "fmt ", 4) != 0)
        return bad("no fmt chunk");
    const std::uint64_t fmtSize = le(fmt + 4, 8);
    if (le(fmt + 16, 4) != 0)
        return bad("not raw DSD");
    info_.channels = static_cast<int>(le(fmt + 24, 4));
    info_.sampleRate = static_cast<int>(le(fmt + 28, 4));
    const int bits = static_cast<int>(le(fmt + 32, 4));
    const std::uint64_t samples = le(fmt + 36, 8);
    blockSize_ = static_cast<std::uint32_t>(le(fmt + 44, 4));
    if (info_.channels < 1 || info_.channels > 8 || info_.sampleRate <= 0 || blockSize_ == 0 || bits != 1)
        return bad("unsupported format fields");
    std::uint8_t dh[12];
    if (!seek(headerSize + fmtSize) || !readExact(dh, sizeof dh) || std::memcmp(dh, "data", 4) != 0)
        return bad("no data chunk");
    const std::uint64_t dataSize = le(dh + 4, 8) - 12;
    dataStart_ = headerSize + fmtSize + 12;
    info_.bytesPerChannel = std::min<std::uint64_t>(samples / 8, dataSize / static_cast<std::uint64_t>(info_.channels));
    info_.container = "DSF";
    if (metaPointer > 0 && seek(metaPointer)) {
        std::vector<std::uint8_t> meta(10);
        if (readExact(meta.data(), 10) && std::memcmp(meta.data(), "ID3", 3) == 0) {
            const std::size_t n = (std::size_t(meta[6] & 0x7F) << 21) | (std::size_t(meta[7] & 0x7F) << 14)
                | (std::size_t(meta[8] & 0x7F) << 7) | std::size_t(meta[9] & 0x7F);
            if (n < (64u << 20)) {
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
            group_.resize(blockSize_ * ch);
            if (!readExact(group_.data(), group_.size())) {
                // A file cut inside its last block still gives what it has.
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
