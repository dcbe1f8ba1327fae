// DSF: a fixed 92-byte header (DSD, fmt and data chunk heads), then blocks of
// 4096 bytes per channel, channel after channel, earliest bit in bit 0, and
// an ID3v2 tag at the end that the header points to.
#include "io/dsf_writer.h"

#include <algorithm>
#include <cstdint>

#include "io/bit_order.h"

namespace zuvo::io {

namespace {
constexpr std::uint64_t kHeaderSize = 28;
constexpr std::uint64_t kFmtSize = 52;
constexpr std::uint64_t kDataHeadSize = 12;
constexpr std::uint64_t kDataStart = kHeaderSize + kFmtSize + kDataHeadSize;
constexpr std::size_t kBlock = 4096;

} // namespace

bool DsfWriter::open(const std::string& path, const DsdFormat& format, const Tags& tags, std::string* error)
{
    if (format.channels < 1 || format.channels > 6) {
        if (error)
            *error = "a DSF file holds 1 to 6 channels (use .dff for " + std::to_string(format.channels) + ")";
        return false;
    }
    const ChannelLayout layout = format.layout.empty() ? defaultLayout(format.channels) : format.layout;
    const int channelType = dsfChannelType(layout);
    if (channelType == 0 || layout.size() != static_cast<std::size_t>(format.channels)) {
        if (error)
            *error = "a DSF file has no channel type for the layout " + layoutText(layout) + " (use .dff)";
        return false;
    }
    format_ = format;
    tags_ = tags;
    pending_.reset(format.channels);
    validBytes_ = 0;
    blocks_ = 0;
    if (!file_.open(path, error))
        return false;
    OutputFile& f = file_;
    return f.write("DSD ", 4, error) && f.writeLE(kHeaderSize, 8, error)
        && f.writeLE(kDataStart, 8, error) // total file size, kept up to date
        && f.writeLE(0, 8, error)  // metadata pointer, patched at the end
        && f.write("fmt ", 4, error) && f.writeLE(kFmtSize, 8, error)
        && f.writeLE(1, 4, error)  // format version
        && f.writeLE(0, 4, error)  // DSD raw
        && f.writeLE(static_cast<std::uint64_t>(channelType), 4, error)
        && f.writeLE(static_cast<std::uint64_t>(format.channels), 4, error)
        && f.writeLE(static_cast<std::uint64_t>(format.sampleRate), 4, error)
        && f.writeLE(1, 4, error)  // bits per sample: 1 = earliest bit in bit 0
        && f.writeLE(0, 8, error)  // sample count, patched at the end
        && f.writeLE(kBlock, 4, error)
        && f.writeLE(0, 4, error)  // reserved
        && f.write("data", 4, error) && f.writeLE(kDataHeadSize, 8, error);
}

bool DsfWriter::flushBlocks(bool padLast, std::string* error)
{
    const auto& rev = bitReverseTable();
    std::uint8_t block[kBlock];
    for (;;) {
        const std::size_t have = pending_.common() - offset_;
        if (have == 0 || (have < kBlock && !padLast))
            return true;
        for (std::size_t c = 0; c < pending_.channels(); ++c) {
            const std::uint8_t* p = pending_.data(c) + offset_;
            const std::size_t n = std::min(have, kBlock);
            for (std::size_t i = 0; i < n; ++i)
                block[i] = rev[p[i]];
            // Bytes past the valid length are ignored by readers (the sample
            // count says where the signal ends); silence keeps them harmless.
            for (std::size_t i = n; i < kBlock; ++i)
                block[i] = rev[kDsdSilenceMsbFirst];
            if (!file_.write(block, kBlock, error))
                return false;
        }
        const std::size_t n = std::min(have, kBlock);
        offset_ += n;
        ++blocks_;
        if (n < kBlock)
            return true;
    }
}

bool DsfWriter::write(const std::vector<std::vector<std::uint8_t>>& perChannel, std::string* error)
{
    pending_.append(perChannel);
    const std::size_t before = offset_;
    if (!flushBlocks(false, error))
        return false;
    validBytes_ += offset_ - before;
    // Drop what went out so the buffers stay one block deep.
    pending_.drop(offset_);
    offset_ = 0;
    if (clock_.due())
        return refreshHeader(true, error);
    return file_.pendingBytes() < kRefreshPendingBytes || refreshHeader(false, error);
}

bool DsfWriter::refreshHeader(bool toDisk, std::string* error)
{
    const std::uint64_t dataBytes = blocks_ * kBlock * static_cast<std::uint64_t>(format_.channels);
    return file_.sync(error, toDisk) && file_.patchLE(12, kDataStart + dataBytes, 8, error)
        && file_.patchLE(kHeaderSize + 36, validBytes_ * 8, 8, error)
        && file_.patchLE(kHeaderSize + kFmtSize + 4, kDataHeadSize + dataBytes, 8, error);
}

bool DsfWriter::finalize(std::string* error)
{
    pending_.padToLongest();
    const std::size_t before = offset_;
    if (!flushBlocks(true, error))
        return false;
    validBytes_ += offset_ - before;
    pending_.drop(offset_);
    offset_ = 0;

    const std::uint64_t dataBytes = blocks_ * kBlock * static_cast<std::uint64_t>(format_.channels);
    const std::uint64_t metaOffset = kDataStart + dataBytes;
    std::uint64_t total = metaOffset;
    std::uint64_t metaPointer = 0;
    if (!tags_.empty()) {
        const auto id3 = buildId3v2(tags_);
        if (!file_.write(id3.data(), id3.size(), error))
            return false;
        total += id3.size();
        metaPointer = metaOffset;
    }
    return file_.patchLE(12, total, 8, error) && file_.patchLE(20, metaPointer, 8, error)
        && file_.patchLE(kHeaderSize + 36, validBytes_ * 8, 8, error)
        && file_.patchLE(kHeaderSize + kFmtSize + 4, kDataHeadSize + dataBytes, 8, error)
        && file_.close(error);
}

void DsfWriter::discard()
{
    file_.discard();
}

} // namespace zuvo::io
