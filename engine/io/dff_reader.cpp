#include "io/dff_reader.h"

#include <algorithm>
#include <cstring>

namespace zuvo::io {

namespace {
std::uint64_t be(const std::uint8_t* p, int n)
{
    std::uint64_t v = 0;
    for (int i = 0; i < n; ++i)
        v = (v << 8) | p[i];
    return v;
}
} // namespace

bool DffReader::readProp(std::uint64_t end, std::string* error)
{
    char type[4];
    if (!readExact(type, 4) || std::memcmp(type, "SND ", 4) != 0)
        return false;
    bool compressed = false;
    std::uint64_t pos = static_cast<std::uint64_t>(ftello(file_));
    while (pos + 12 <= end) {
        std::uint8_t h[12];
        if (!seek(pos) || !readExact(h, 12))
            return false;
        const std::uint64_t size = be(h + 4, 8);
        std::uint8_t body[8] = {};
        const std::size_t want = static_cast<std::size_t>(std::min<std::uint64_t>(size, 8));
        if (!readExact(body, want))
            return false;
        if (std::memcmp(h, "FS  ", 4) == 0 && size >= 4)
            info_.sampleRate = static_cast<int>(be(body, 4));
        else if (std::memcmp(h, "CHNL", 4) == 0 && size >= 2)
            info_.channels = static_cast<int>(be(body, 2));
        else if (std::memcmp(h, "CMPR", 4) == 0 && size >= 4) {
            dstCompressed_ = std::memcmp(body, "DST ", 4) == 0;
            compressed = std::memcmp(body, "DSD ", 4) != 0 && !dstCompressed_;
        }
        pos += 12 + size + (size & 1);
    }
    if (compressed) {
        if (error)
            *error = path_ + ": this DSDIFF compression type is not supported (plain DSD and DST only)";
        return false;
    }
    return true;
}

void DffReader::readDiin(std::uint64_t end)
{
    std::uint64_t pos = static_cast<std::uint64_t>(ftello(file_));
    while (pos + 12 <= end) {
        std::uint8_t h[12];
        if (!seek(pos) || !readExact(h, 12))
            return;
        const std::uint64_t size = be(h + 4, 8);
        const bool artist = std::memcmp(h, "DIAR", 4) == 0;
        const bool title = std::memcmp(h, "DITI", 4) == 0;
        if ((artist || title) && size >= 4 && size < (1u << 20)) {
            std::vector<std::uint8_t> body(static_cast<std::size_t>(size));
            if (readExact(body.data(), body.size())) {
                const std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(be(body.data(), 4)), body.size() - 4);
                std::string text(reinterpret_cast<const char*>(body.data() + 4), n);
                (artist ? tags_.artist : tags_.title) = text;
            }
        }
        pos += 12 + size + (size & 1);
    }
}

bool DffReader::open(const std::string& path, std::string* error)
{
    if (!openFile(path, error))
        return false;
    auto bad = [&](const char* why) {
        if (error && error->empty())
            *error = path + ": damaged DSDIFF file (" + why + ")";
        return false;
    };
    if (error)
        error->clear();
    std::uint8_t h[16];
    if (!readExact(h, 16) || std::memcmp(h, "FRM8", 4) != 0 || std::memcmp(h + 12, "DSD ", 4) != 0)
        return bad("no FRM8/DSD form");
    fseeko(file_, 0, SEEK_END);
    const std::uint64_t fileSize = static_cast<std::uint64_t>(ftello(file_));
    const std::uint64_t formEnd = std::min<std::uint64_t>(12 + be(h + 4, 8), fileSize);
    std::uint64_t pos = 16;
    std::uint64_t dataSize = 0;
    bool haveProp = false;
    while (pos + 12 <= formEnd) {
        std::uint8_t c[12];
        if (!seek(pos) || !readExact(c, 12))
            return bad("chunk header");
        const std::uint64_t size = be(c + 4, 8);
        const std::uint64_t bodyEnd = pos + 12 + size;
        if (std::memcmp(c, "PROP", 4) == 0) {
            if (!readProp(std::min(bodyEnd, formEnd), error))
                return bad("PROP chunk");
            haveProp = true;
        } else if (std::memcmp(c, "DSD ", 4) == 0) {
            dataStart_ = pos + 12;
            // A file cut short keeps what it has.
            dataSize = std::min(size, fileSize - dataStart_);
        } else if (std::memcmp(c, "DST ", 4) == 0) {
            if (!haveProp || !dstCompressed_)
                return bad("DST data without a DST compression type");
            if (!openDst(pos + 12, std::min(bodyEnd, formEnd), error))
                return false;
        } else if (std::memcmp(c, "MANF", 4) == 0 && size >= 16) {
            std::uint8_t m[16];
            if (readExact(m, 16) && std::memcmp(m, kManfId, 4) == 0 && std::memcmp(m + 4, kManfLengthTag, 4) == 0)
                exactBytes_ = be(m + 8, 8);
        } else if (std::memcmp(c, "DIIN", 4) == 0) {
            readDiin(std::min(bodyEnd, formEnd));
        } else if (std::memcmp(c, "ID3 ", 4) == 0 && size < (64u << 20)) {
            std::vector<std::uint8_t> tag(static_cast<std::size_t>(size));
            Tags extra;
            if (readExact(tag.data(), tag.size()) && parseId3v2(tag.data(), tag.size(), extra))
                tags_.fillEmptyFrom(extra);
        }
        pos = bodyEnd + (size & 1);
    }
    if (!haveProp || info_.channels < 1 || info_.channels > 8 || info_.sampleRate <= 0)
        return bad("missing or unsupported sound properties");
    if (dst_) {
        const std::uint64_t framed = dst_->frames() * dst_->frameBytes();
        info_.bytesPerChannel = exactBytes_ > 0 && exactBytes_ <= framed ? exactBytes_ : framed;
        info_.container = "DSDIFF";
        return true;
    }
    if (dataStart_ == 0)
        return bad("no sound data");
    info_.bytesPerChannel = dataSize / static_cast<std::uint64_t>(info_.channels);
    info_.container = "DSDIFF";
    return seek(dataStart_) || bad("cannot seek to the data");
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
