// DSDIFF reading. Every size in the file is hostile until checked: a chunk
// walk only moves forward, never leaves its parent chunk or the file, and a
// size that would pass either is an error (or, for the sound data, a
// truncation), never a new read position.
#include "io/dff_reader.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "io/be_fields.h"

namespace zuvo::io {

namespace {

std::string idText(const char* id)
{
    std::string s;
    for (int i = 0; i < 4; ++i)
        s += (id[i] >= 0x20 && id[i] < 0x7F) ? id[i] : '?';
    return "'" + s + "'";
}

constexpr std::uint64_t kMaxTextChunk = 1u << 20;
constexpr std::uint64_t kMaxId3Chunk = 64u << 20;
} // namespace

DffReader::Step DffReader::nextChunk(std::uint64_t pos, std::uint64_t end, Chunk& c)
{
    if (pos > end || end - pos < 12)
        return Step::End;
    std::uint8_t h[12];
    if (!seek(pos) || !readExact(h, 12))
        return Step::ReadError;
    std::memcpy(c.id, h, 4);
    c.size = be(h + 4, 8);
    c.body = pos + 12;
    if (c.size > end - c.body)
        return Step::Overrun;
    c.next = std::min(c.body + c.size + (c.size & 1), end);
    return Step::Chunk;
}

bool DffReader::damaged(std::string* error, const std::string& why) const
{
    if (error && error->empty())
        *error = path_ + ": damaged DSDIFF file (" + why + ")";
    return false;
}

bool DffReader::readProp(std::uint64_t start, std::uint64_t end, std::string* error)
{
    char type[4];
    if (end - start < 4 || !seek(start) || !readExact(type, 4) || std::memcmp(type, "SND ", 4) != 0)
        return damaged(error, "PROP chunk is not of type SND");
    bool compressed = false;
    Chunk c;
    for (std::uint64_t pos = start + 4;; pos = c.next) {
        const Step step = nextChunk(pos, end, c);
        if (step == Step::End)
            break;
        if (step == Step::ReadError)
            return damaged(error, "cannot read the PROP chunk");
        if (step == Step::Overrun)
            return damaged(error, "chunk " + idText(c.id) + " declares " + std::to_string(c.size)
                               + " bytes, more than its PROP chunk holds");
        std::uint8_t body[8] = {};
        if (!readExact(body, static_cast<std::size_t>(std::min<std::uint64_t>(c.size, 8))))
            return damaged(error, "cannot read the PROP chunk");
        if (std::memcmp(c.id, "FS  ", 4) == 0 && c.size >= 4)
            info_.sampleRate = static_cast<int>(std::min<std::uint64_t>(be(body, 4), std::numeric_limits<int>::max()));
        else if (std::memcmp(c.id, "CHNL", 4) == 0 && c.size >= 2)
            info_.channels = static_cast<int>(be(body, 2));
        else if (std::memcmp(c.id, "CMPR", 4) == 0 && c.size >= 4) {
            dstCompressed_ = std::memcmp(body, "DST ", 4) == 0;
            compressed = std::memcmp(body, "DSD ", 4) != 0 && !dstCompressed_;
        }
    }
    if (compressed) {
        if (error)
            *error = path_ + ": this DSDIFF compression type is not supported (plain DSD and DST only)";
        return false;
    }
    return true;
}

void DffReader::readDiin(std::uint64_t start, std::uint64_t end)
{
    // Artist and title are a courtesy: a damaged DIIN costs them, not the audio.
    Chunk c;
    for (std::uint64_t pos = start; nextChunk(pos, end, c) == Step::Chunk; pos = c.next) {
        const bool artist = std::memcmp(c.id, "DIAR", 4) == 0;
        const bool title = std::memcmp(c.id, "DITI", 4) == 0;
        if ((artist || title) && c.size >= 4 && c.size < kMaxTextChunk) {
            std::vector<std::uint8_t> body(static_cast<std::size_t>(c.size));
            if (readExact(body.data(), body.size())) {
                const std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(be(body.data(), 4)), body.size() - 4);
                (artist ? tags_.artist : tags_.title) = std::string(reinterpret_cast<const char*>(body.data() + 4), n);
            }
        }
    }
}

bool DffReader::open(const std::string& path, std::string* error)
{
    if (error)
        error->clear();
    if (!openFile(path, error))
        return false;
    std::uint8_t h[16];
    if (!readExact(h, 16) || std::memcmp(h, "FRM8", 4) != 0 || std::memcmp(h + 12, "DSD ", 4) != 0)
        return damaged(error, "no FRM8/DSD form");
    // A form declaring more than the file is judged by its chunks: only
    // missing sound data is a truncation. Bytes after a shorter form are
    // not part of it.
    const std::uint64_t formSize = be(h + 4, 8);
    const std::uint64_t formEnd = fileSize_ >= 12 && formSize <= fileSize_ - 12 ? 12 + formSize : fileSize_;
    std::uint64_t dataSize = 0;
    bool haveProp = false;
    Chunk c;
    for (std::uint64_t pos = 16;; pos = c.next) {
        const Step step = nextChunk(pos, formEnd, c);
        if (step == Step::End)
            break;
        if (step == Step::ReadError)
            return damaged(error, "cannot read a chunk header");
        const bool sound = std::memcmp(c.id, "DSD ", 4) == 0;
        if (step == Step::Overrun) {
            if (sound && dataStart_ == 0)
                return truncated(error, "bytes of DSD sound data", c.size, formEnd - c.body);
            // Metadata cut after complete sound data costs only the metadata.
            if (dataStart_ != 0)
                break;
            return damaged(error, "chunk " + idText(c.id) + " declares " + std::to_string(c.size)
                               + " bytes, more than the file holds after it");
        }
        if (std::memcmp(c.id, "PROP", 4) == 0 && !haveProp) {
            if (!readProp(c.body, c.body + c.size, error))
                return damaged(error, "PROP chunk");
            haveProp = true;
        } else if (sound && dataStart_ == 0) {
            dataStart_ = c.body;
            dataSize = c.size;
        } else if (std::memcmp(c.id, "DST ", 4) == 0) {
            if (!haveProp || !dstCompressed_)
                return damaged(error, "DST data without a DST compression type");
            if (!openDst(c.body, c.body + c.size, error))
                return false;
        } else if (std::memcmp(c.id, "MANF", 4) == 0 && c.size >= 16) {
            std::uint8_t m[16];
            if (readExact(m, 16) && std::memcmp(m, kManfId, 4) == 0 && std::memcmp(m + 4, kManfLengthTag, 4) == 0)
                exactBytes_ = be(m + 8, 8);
        } else if (std::memcmp(c.id, "DIIN", 4) == 0) {
            readDiin(c.body, c.body + c.size);
        } else if (std::memcmp(c.id, "ID3 ", 4) == 0 && c.size < kMaxId3Chunk) {
            std::vector<std::uint8_t> tag(static_cast<std::size_t>(c.size));
            Tags extra;
            if (readExact(tag.data(), tag.size()) && parseId3v2(tag.data(), tag.size(), extra))
                tags_.fillEmptyFrom(extra);
        }
    }
    if (!haveProp || info_.channels < 1 || info_.channels > 8 || info_.sampleRate <= 0)
        return damaged(error, "missing or unsupported sound properties");
    if (dst_) {
        const std::uint64_t framed = dst_->frames() * dst_->frameBytes();
        info_.bytesPerChannel = exactBytes_ > 0 && exactBytes_ <= framed ? exactBytes_ : framed;
        info_.container = "DSDIFF";
        return true;
    }
    if (dataStart_ == 0)
        return damaged(error, "no sound data");
    info_.bytesPerChannel = dataSize / static_cast<std::uint64_t>(info_.channels);
    info_.container = "DSDIFF";
    return seek(dataStart_) || damaged(error, "cannot seek to the data");
}

bool DffReader::openDst(std::uint64_t begin, std::uint64_t end, std::string* error)
{
    if (info_.channels < 1 || info_.channels > 8 || info_.sampleRate <= 0) {
        if (error)
            *error = path_ + ": damaged DSDIFF file (DST data before the sound properties)";
        return false;
    }
    dst_ = std::make_unique<DffDstSource>();
    return dst_->open(file_, path_, begin, end, info_.channels, info_.sampleRate, error);
}

long long DffReader::read(std::size_t maxBytes, std::vector<std::vector<std::uint8_t>>& out, std::string* error)
{
    if (dst_) {
        const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>(maxBytes, info_.bytesPerChannel - consumed_));
        if (n == 0) {
            out.assign(static_cast<std::size_t>(info_.channels), {});
            return 0;
        }
        const long long got = dst_->read(n, out, error);
        if (got > 0)
            consumed_ += static_cast<std::uint64_t>(got);
        return got;
    }
    const auto ch = static_cast<std::size_t>(info_.channels);
    out.resize(ch);
    const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>(maxBytes, info_.bytesPerChannel - consumed_));
    buffer_.resize(n * ch);
    if (n > 0 && !readExact(buffer_.data(), buffer_.size())) {
        if (error)
            *error = path_ + ": read error in the DSD data";
        return -1;
    }
    for (std::size_t c = 0; c < ch; ++c) {
        out[c].resize(n);
        for (std::size_t i = 0; i < n; ++i)
            out[c][i] = buffer_[i * ch + c];
    }
    consumed_ += n;
    return static_cast<long long>(n);
}

} // namespace zuvo::io
