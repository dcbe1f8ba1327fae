#include "wav_decode.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace pv {

bool MemorySource::seek(std::int64_t pos)
{
    if (pos < 0 || pos > size_)
        return false;
    pos_ = pos;
    return true;
}

std::int64_t MemorySource::read(char* dst, std::int64_t n)
{
    const std::int64_t count = std::min(n, size_ - pos_);
    if (count <= 0)
        return 0;
    std::memcpy(dst, data_ + pos_, std::size_t(count));
    pos_ += count;
    return count;
}

namespace {

std::uint16_t le16(const unsigned char* p) { return std::uint16_t(p[0] | (p[1] << 8)); }

std::uint32_t le32(const unsigned char* p)
{
    return std::uint32_t(p[0]) | (std::uint32_t(p[1]) << 8) | (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[3]) << 24);
}

// Keeps reading until n bytes arrived or the source has nothing more.
std::int64_t readFully(ByteSource& src, void* dst, std::int64_t n)
{
    auto* out = static_cast<char*>(dst);
    std::int64_t got = 0;
    while (got < n) {
        const std::int64_t r = src.read(out + got, n - got);
        if (r <= 0)
            break;
        got += r;
    }
    return got;
}

struct Layout {
    bool haveFmt = false;
    bool haveData = false;
    int tag = 0;
    int channels = 0;
    std::uint32_t rate = 0;
    int bits = 0;
    std::int64_t dataStart = 0;
    std::int64_t dataSize = 0;
};

void takeFormat(const unsigned char* f, std::int64_t got, Layout& out)
{
    if (got < 16)
        return;
    out.tag = le16(f);
    out.channels = le16(f + 2);
    out.rate = le32(f + 4);
    out.bits = le16(f + 14);
    if (out.tag == 0xFFFE && got >= 26) {
        const int sub = le16(f + 24);
        out.tag = (sub == 1 || sub == 3) ? sub : -1;
    }
    out.haveFmt = true;
}

// Walks the chunk list forward from offset 12 until the data chunk, the end
// of the file or a header that cannot be right.
Layout walkChunks(ByteSource& src, std::int64_t fileSize)
{
    Layout out;
    std::int64_t pos = 12;
    for (;;) {
        unsigned char head[8];
        if (!src.seek(pos) || readFully(src, head, 8) < 8)
            break;
        const std::uint32_t size = le32(head + 4);
        if (size & 0x80000000u)
            break;
        if (std::memcmp(head, "fmt ", 4) == 0) {
            unsigned char fmt[40];
            const std::int64_t want = std::min<std::int64_t>(size, 40);
            takeFormat(fmt, readFully(src, fmt, want), out);
        } else if (std::memcmp(head, "data", 4) == 0) {
            out.haveData = true;
            out.dataStart = pos + 8;
            // A zero size is what a recorder leaves while it is still writing:
            // the samples then run to the end of the file.
            out.dataSize = size != 0 ? std::int64_t(size) : std::max<std::int64_t>(0, fileSize - out.dataStart);
            break;
        }
        const std::int64_t next = pos + 8 + std::int64_t(size) + std::int64_t(size & 1u);
        if (next + 8 > fileSize)
            break;
        pos = next;
    }
    return out;
}

template <typename DecodeOne>
void mixFrames(const unsigned char* in, std::int64_t frames, int channels, int bytesPerSample, DecodeOne decode,
               std::vector<float>& out)
{
    const float divisor = float(channels);
    for (std::int64_t f = 0; f < frames; ++f) {
        float sum = 0.0f;
        for (int c = 0; c < channels; ++c) {
            sum += decode(in);
            in += bytesPerSample;
        }
        out.push_back(sum / divisor);
    }
}

void decodeBlock(const unsigned char* in, std::int64_t frames, int channels, int tag, int bits, std::vector<float>& out)
{
    if (tag == 3) {
        mixFrames(in, frames, channels, 4, [](const unsigned char* p) {
            float v;
            const std::uint32_t u = le32(p);
            std::memcpy(&v, &u, 4);
            return v;
        }, out);
    } else if (bits == 16) {
        mixFrames(in, frames, channels, 2,
                  [](const unsigned char* p) { return float(std::int16_t(le16(p))) * (1.0f / 32768.0f); }, out);
    } else if (bits == 24) {
        mixFrames(in, frames, channels, 3, [](const unsigned char* p) {
            const std::int32_t raw = std::int32_t(p[0] | (p[1] << 8) | (p[2] << 16));
            const std::int32_t v = (raw ^ 0x800000) - 0x800000; // sign-extend bit 23
            return float(v) * (1.0f / 8388608.0f);
        }, out);
    } else {
        mixFrames(in, frames, channels, 4,
                  [](const unsigned char* p) { return float(std::int32_t(le32(p))) * (1.0f / 2147483648.0f); }, out);
    }
}

WavDecodeResult fail(WavError e, int detail = 0)
{
    WavDecodeResult r;
    r.error = e;
    r.detail = detail;
    return r;
}

} // namespace

WavDecodeResult decodeWavPreview(ByteSource& src, std::vector<float>& samples)
{
    samples.clear();
    unsigned char riff[12];
    if (!src.seek(0) || readFully(src, riff, 12) < 12 || std::memcmp(riff, "RIFF", 4) != 0
        || std::memcmp(riff + 8, "WAVE", 4) != 0)
        return fail(WavError::NotRiffWave);
    const std::int64_t fileSize = src.size();
    if (fileSize < 20)
        return fail(WavError::MissingChunks);

    const Layout l = walkChunks(src, fileSize);
    if (!l.haveFmt || !l.haveData)
        return fail(WavError::MissingChunks);
    if (l.tag != 1 && l.tag != 3)
        return fail(WavError::UnsupportedTag, l.tag);
    if (l.channels < 1 || l.channels > 8)
        return fail(WavError::BadChannelCount);
    const bool depthOk = l.tag == 3 ? l.bits == 32 : (l.bits == 16 || l.bits == 24 || l.bits == 32);
    if (!depthOk)
        return fail(WavError::UnsupportedDepth, l.bits);

    WavDecodeResult r;
    r.sampleRate = double(l.rate);
    r.channels = l.channels;
    const int bytesPerSample = l.bits / 8;
    const std::int64_t frameSize = std::int64_t(bytesPerSample) * l.channels;
    const auto cap = std::int64_t(std::floor(r.sampleRate * kPreviewSeconds));
    const std::int64_t frames = std::min(l.dataSize / frameSize, cap);
    if (frames < 1) {
        r.error = WavError::NoSamples;
        return r;
    }
    if (!src.seek(l.dataStart)) {
        r.error = WavError::SeekFailed;
        return r;
    }

    // The header's data size may lie; the file size may not.
    const std::int64_t present = std::max<std::int64_t>(0, fileSize - l.dataStart) / frameSize;
    samples.reserve(std::size_t(std::min(frames, present)));
    const std::int64_t blockFrames = std::min<std::int64_t>(8192, kMaxReadBytes / frameSize);
    std::vector<unsigned char> block(std::size_t(blockFrames * frameSize));
    std::int64_t left = frames;
    while (left > 0) {
        const std::int64_t ask = std::min(left, blockFrames);
        const std::int64_t got = readFully(src, block.data(), ask * frameSize);
        const std::int64_t whole = got / frameSize;
        if (whole <= 0)
            break;
        decodeBlock(block.data(), whole, l.channels, l.tag, l.bits, samples);
        left -= whole;
        if (whole < ask)
            break;
    }
    if (samples.empty())
        r.error = WavError::NoSamplesDecoded;
    return r;
}

} // namespace pv
