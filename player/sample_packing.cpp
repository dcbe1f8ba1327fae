#include "sample_packing.h"

#include <cmath>
#include <cstring>

namespace zuvo::player {

namespace {

struct Layout {
    int physicalBytes;
    int width;
    bool bigEndian;
};

Layout layoutOf(snd_pcm_format_t f)
{
    return {snd_pcm_format_physical_width(f) / 8, snd_pcm_format_width(f), snd_pcm_format_big_endian(f) == 1};
}

void store(std::uint32_t value, const Layout& l, std::uint8_t* dst)
{
    for (int i = 0; i < l.physicalBytes; ++i) {
        const auto byte = static_cast<std::uint8_t>(value >> (8 * i));
        dst[l.bigEndian ? l.physicalBytes - 1 - i : i] = byte;
    }
}

} // namespace

void appendNativeDsd(const std::vector<std::vector<std::uint8_t>>& channels, std::size_t n, snd_pcm_format_t format,
                     std::vector<std::uint8_t>& out)
{
    const Layout l = layoutOf(format);
    const std::size_t w = static_cast<std::size_t>(l.physicalBytes);
    const std::size_t ch = channels.size();
    const std::size_t frames = n / w;
    const std::size_t base = out.size();
    out.resize(base + frames * ch * w);
    std::uint8_t* dst = out.data() + base;
    for (std::size_t f = 0; f < frames; ++f) {
        for (std::size_t c = 0; c < ch; ++c) {
            const std::uint8_t* src = channels[c].data() + f * w;
            // The earliest byte is the most significant one of the word.
            for (std::size_t i = 0; i < w; ++i)
                dst[l.bigEndian ? i : w - 1 - i] = src[i];
            dst += w;
        }
    }
}

void appendDop(const std::vector<std::vector<std::uint8_t>>& channels, std::size_t n, snd_pcm_format_t format,
               bool& nextIsB, std::vector<std::uint8_t>& out)
{
    const Layout l = layoutOf(format);
    const std::size_t ch = channels.size();
    const std::size_t frames = n / 2;
    const std::size_t base = out.size();
    out.resize(base + frames * ch * static_cast<std::size_t>(l.physicalBytes));
    std::uint8_t* dst = out.data() + base;
    for (std::size_t f = 0; f < frames; ++f) {
        const std::uint32_t marker = nextIsB ? kDopMarkerB : kDopMarkerA;
        nextIsB = !nextIsB;
        for (std::size_t c = 0; c < ch; ++c) {
            const std::uint8_t* src = channels[c].data() + 2 * f;
            std::uint32_t word = (marker << 16) | (std::uint32_t(src[0]) << 8) | src[1];
            if (l.width == 32)
                word <<= 8;
            store(word, l, dst);
            dst += l.physicalBytes;
        }
    }
}

void appendPcm(const std::vector<std::vector<double>>& channels, std::size_t n, snd_pcm_format_t format,
               std::vector<std::uint8_t>& out)
{
    const Layout l = layoutOf(format);
    const bool isFloat = format == SND_PCM_FORMAT_FLOAT_LE || format == SND_PCM_FORMAT_FLOAT_BE;
    const std::size_t ch = channels.size();
    const std::size_t base = out.size();
    out.resize(base + n * ch * static_cast<std::size_t>(l.physicalBytes));
    std::uint8_t* dst = out.data() + base;
    const double scale = std::ldexp(1.0, l.width - 1);
    const double hi = scale - 1.0;
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t c = 0; c < ch; ++c) {
            const double x = channels[c][i];
            std::uint32_t bits;
            if (isFloat) {
                const float v = static_cast<float>(std::fmax(-1.0, std::fmin(1.0, x)));
                std::memcpy(&bits, &v, 4);
            } else {
                const double v = std::fmax(-scale, std::fmin(hi, std::nearbyint(x * scale)));
                bits = static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<std::int64_t>(v)));
            }
            store(bits, l, dst);
            dst += l.physicalBytes;
        }
    }
}

} // namespace zuvo::player
