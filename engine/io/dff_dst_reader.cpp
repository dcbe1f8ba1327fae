#include "io/dff_dst_reader.h"

#include <algorithm>
#include <cstring>

#include "dst/crc32.h"
#include "dst/dst_decoder.h"
#include "dst/dst_frame.h"
#include "io/be_fields.h"

namespace zuvo::io {

bool DffDstSource::chunkHeader(std::uint64_t at, char id[4], std::uint64_t& size)
{
    std::uint8_t h[12];
    if (at + 12 > end_ || fseeko(file_, static_cast<off_t>(at), SEEK_SET) != 0 || std::fread(h, 1, 12, file_) != 12)
        return false;
    std::memcpy(id, h, 4);
    size = be(h + 4, 8);
    return true;
}

bool DffDstSource::fail(std::string* error, const std::string& why)
{
    if (error)
        *error = path_ + ": DST frame " + std::to_string(decoded_ + 1) + " of " + std::to_string(frames_)
            + " is damaged (" + why + ")";
    return false;
}

bool DffDstSource::open(std::FILE* file, const std::string& path, std::uint64_t begin, std::uint64_t end, int channels,
                        int dsdRate, std::string* error)
{
    file_ = file;
    path_ = path;
    pos_ = begin;
    end_ = end;
    channels_ = channels;
    if (!dst::rateFitsFrames(dsdRate) || channels < 1 || channels > dst::kMaxChannels) {
        if (error)
            *error = path + ": DST data at an unsupported rate or channel count";
        return false;
    }
    frameBits_ = dst::frameBits(dsdRate);
    frameBytes_ = static_cast<std::uint64_t>(frameBits_) / 8;
    char id[4];
    std::uint64_t size = 0;
    std::uint8_t body[6];
    if (!chunkHeader(pos_, id, size) || std::memcmp(id, "FRTE", 4) != 0 || size < 6
        || std::fread(body, 1, 6, file_) != 6) {
        if (error)
            *error = path + ": damaged DSDIFF file (DST chunk without frame information)";
        return false;
    }
    frames_ = be(body, 4);
    if (be(body + 4, 2) != dst::kFramesPerSecond) {
        if (error)
            *error = path + ": DST frame rate " + std::to_string(be(body + 4, 2)) + " is not supported (75 only)";
        return false;
    }
    pos_ += 12 + size + (size & 1);
    return true;
}

bool DffDstSource::nextFrame(std::string* error)
{
    if (decoded_ >= frames_)
        return fail(error, "more frames read than announced");
    char id[4];
    std::uint64_t size = 0;
    for (;;) {
        if (!chunkHeader(pos_, id, size))
            return fail(error, "missing");
        const std::uint64_t bodyEnd = pos_ + 12 + size;
        if (bodyEnd > end_ || bodyEnd < pos_)
            return fail(error, "chunk runs past the DST data");
        if (std::memcmp(id, "DSTF", 4) == 0)
            break;
        pos_ = bodyEnd + (size & 1); // other chunks (DSTC of a skipped frame, unknown ones)
    }
    // A coded frame is never larger than the stored form (plus slack for
    // other encoders); anything bigger is not a frame.
    const std::uint64_t storedSize = 1 + frameBytes_ * static_cast<std::uint64_t>(channels_);
    if (size == 0 || size > 2 * storedSize)
        return fail(error, "frame size " + std::to_string(size));
    payload_.resize(static_cast<std::size_t>(size));
    if (std::fread(payload_.data(), 1, payload_.size(), file_) != payload_.size())
        return fail(error, "read error");
    pos_ += 12 + size + (size & 1);
    std::string why;
    if (!dst::decodeFrame(payload_.data(), payload_.size(), channels_, frameBits_, frame_, &why))
        return fail(error, why);
    if (chunkHeader(pos_, id, size) && std::memcmp(id, "DSTC", 4) == 0) {
        std::uint8_t crc[4];
        if (size == 4 && std::fread(crc, 1, 4, file_) == 4) {
            std::vector<const std::uint8_t*> planes;
            for (const auto& c : frame_)
                planes.push_back(c.data());
            if (dst::crc32Interleaved(planes, static_cast<std::size_t>(frameBytes_)) != be(crc, 4))
                return fail(error, "CRC mismatch");
        }
        pos_ += 12 + size + (size & 1);
    }
    ++decoded_;
    offset_ = 0;
    return true;
}

long long DffDstSource::read(std::size_t n, std::vector<std::vector<std::uint8_t>>& out, std::string* error)
{
    const auto ch = static_cast<std::size_t>(channels_);
    out.assign(ch, {});
    std::size_t got = 0;
    while (got < n) {
        if (frame_.empty() || offset_ >= frameBytes_) {
            if (!nextFrame(error))
                return -1;
        }
        const std::size_t take = std::min<std::size_t>(n - got, frameBytes_ - offset_);
        for (std::size_t c = 0; c < ch; ++c)
            out[c].insert(out[c].end(), frame_[c].begin() + static_cast<std::ptrdiff_t>(offset_),
                          frame_[c].begin() + static_cast<std::ptrdiff_t>(offset_ + take));
        offset_ += take;
        got += take;
    }
    return static_cast<long long>(got);
}

} // namespace zuvo::io
