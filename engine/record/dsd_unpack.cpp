#include "record/dsd_unpack.h"

namespace zuvo::record {

namespace {

constexpr std::uint8_t kMarkerA = 0x05;
constexpr std::uint8_t kMarkerB = 0xFA;
constexpr std::uint8_t kDsdSilence = 0x69;

} // namespace

bool chooseDsdCaptureFormat(const AcceptsFn& accepts, bool dop, int dsdRate, int askedChannels, CaptureFormat& out,
                            std::string* error)
{
    struct Option {
        snd_pcm_format_t format;
        int bitsPerFrame;
    };
    static const Option kDop[] = {{SND_PCM_FORMAT_S32_LE, 16}, {SND_PCM_FORMAT_S24_3LE, 16}};
    static const Option kNative[] = {{SND_PCM_FORMAT_DSD_U32_BE, 32}, {SND_PCM_FORMAT_DSD_U32_LE, 32},
                                     {SND_PCM_FORMAT_DSD_U16_BE, 16}, {SND_PCM_FORMAT_DSD_U16_LE, 16},
                                     {SND_PCM_FORMAT_DSD_U8, 8}};
    std::vector<unsigned> channels;
    if (askedChannels > 0)
        channels.push_back(static_cast<unsigned>(askedChannels));
    else
        channels = {2, 1, 4, 6, 8, 3, 5, 7};
    const Option* begin = dop ? std::begin(kDop) : std::begin(kNative);
    const Option* end = dop ? std::end(kDop) : std::end(kNative);
    for (unsigned ch : channels)
        for (const Option* o = begin; o != end; ++o) {
            const auto rate = static_cast<unsigned>(dsdRate / o->bitsPerFrame);
            if (accepts(o->format, rate, ch)) {
                out = {o->format, rate, ch};
                return true;
            }
        }
    if (error)
        *error = dop ? "the device takes no DoP carrier (S32 or S24 at " + std::to_string(dsdRate / 16) + " Hz)"
                     : "the device takes no native DSD format at DSD" + std::to_string(dsdRate / 44100);
    return false;
}

DsdUnpacker::DsdUnpacker(snd_pcm_format_t format, unsigned channels, bool dop)
    : format_(format)
    , channels_(channels)
    , dop_(dop)
    , width_(static_cast<std::size_t>(snd_pcm_format_physical_width(format) / 8))
    , bigEndian_(snd_pcm_format_big_endian(format) == 1)
{
}

void DsdUnpacker::unpack(const std::uint8_t* data, std::size_t frames, std::vector<std::vector<std::uint8_t>>& out)
{
    out.resize(channels_);
    const std::size_t frameBytes = width_ * channels_;
    for (std::size_t f = 0; f < frames; ++f, ++frames_) {
        const std::uint8_t* frame = data + f * frameBytes;
        if (!dop_) {
            for (unsigned c = 0; c < channels_; ++c) {
                const std::uint8_t* w = frame + c * width_;
                for (std::size_t i = 0; i < width_; ++i)
                    out[c].push_back(bigEndian_ ? w[i] : w[width_ - 1 - i]);
            }
            continue;
        }
        // Little-endian words: the marker is the top byte, then the earlier
        // and the later DSD byte.
        const std::size_t top = width_ - 1;
        const std::uint8_t marker = frame[top];
        bool valid = (marker == kMarkerA || marker == kMarkerB) && marker != lastMarker_;
        for (unsigned c = 1; c < channels_ && valid; ++c)
            valid = frame[c * width_ + top] == marker;
        if (valid) {
            lastMarker_ = marker;
            for (unsigned c = 0; c < channels_; ++c) {
                out[c].push_back(frame[c * width_ + top - 1]);
                out[c].push_back(frame[c * width_ + top - 2]);
            }
            continue;
        }
        if (broken_++ == 0)
            firstBroken_ = frames_;
        // Follow a readable marker so one bad frame costs one frame.
        if (marker == kMarkerA || marker == kMarkerB)
            lastMarker_ = marker;
        else if (lastMarker_ >= 0)
            lastMarker_ = lastMarker_ == kMarkerA ? kMarkerB : kMarkerA;
        for (unsigned c = 0; c < channels_; ++c) {
            out[c].push_back(kDsdSilence);
            out[c].push_back(kDsdSilence);
        }
    }
}

} // namespace zuvo::record
