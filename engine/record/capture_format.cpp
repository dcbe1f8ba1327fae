#include "record/capture_format.h"

#include <cstring>

namespace zuvo::record {

namespace {

// Widest first: the modulator sees the device's full resolution.
const snd_pcm_format_t kFormats[] = {SND_PCM_FORMAT_S32_LE, SND_PCM_FORMAT_FLOAT_LE, SND_PCM_FORMAT_S24_3LE,
                                     SND_PCM_FORMAT_S24_LE, SND_PCM_FORMAT_S16_LE};
// The 44.1 kHz family first: its rates divide the DSD rates exactly.
const unsigned kRates[] = {44100, 48000, 88200, 96000, 176400, 192000, 352800, 384000};
const unsigned kChannels[] = {2, 1, 4, 6, 8, 3, 5, 7};

} // namespace

bool chooseCaptureFormat(const AcceptsFn& accepts, int askedRate, int askedChannels, CaptureFormat& out,
                         std::string* error)
{
    std::vector<unsigned> rates, channels;
    if (askedRate > 0)
        rates.push_back(static_cast<unsigned>(askedRate));
    else
        rates.assign(std::begin(kRates), std::end(kRates));
    if (askedChannels > 0)
        channels.push_back(static_cast<unsigned>(askedChannels));
    else
        channels.assign(std::begin(kChannels), std::end(kChannels));
    for (unsigned ch : channels)
        for (unsigned rate : rates)
            for (snd_pcm_format_t f : kFormats)
                if (accepts(f, rate, ch)) {
                    out = {f, rate, ch};
                    return true;
                }
    if (error) {
        *error = "the device takes none of S32, float, S24 or S16 at ";
        *error += askedRate > 0 ? std::to_string(askedRate) + " Hz" : std::string("44.1 to 384 kHz");
        *error += askedChannels > 0 ? " with " + std::to_string(askedChannels) + " channel(s)" : std::string();
    }
    return false;
}

std::size_t sampleBytes(snd_pcm_format_t format)
{
    switch (format) {
    case SND_PCM_FORMAT_S16_LE: return 2;
    case SND_PCM_FORMAT_S24_3LE: return 3;
    default: return 4;
    }
}

void toDoubles(snd_pcm_format_t format, const std::uint8_t* p, std::size_t samples, std::vector<double>& out)
{
    const std::size_t base = out.size();
    out.resize(base + samples);
    double* o = out.data() + base;
    for (std::size_t i = 0; i < samples; ++i) {
        switch (format) {
        case SND_PCM_FORMAT_S16_LE:
            o[i] = static_cast<std::int16_t>(p[2 * i] | (p[2 * i + 1] << 8)) / 32768.0;
            break;
        case SND_PCM_FORMAT_S24_3LE: {
            const std::uint8_t* s = p + 3 * i;
            std::int32_t v = s[0] | (s[1] << 8) | (s[2] << 16);
            o[i] = ((v ^ 0x800000) - 0x800000) / 8388608.0;
            break;
        }
        case SND_PCM_FORMAT_S24_LE: {
            std::int32_t v = 0;
            std::memcpy(&v, p + 4 * i, 4);
            v &= 0xFFFFFF;
            o[i] = ((v ^ 0x800000) - 0x800000) / 8388608.0;
            break;
        }
        case SND_PCM_FORMAT_FLOAT_LE: {
            float f = 0;
            std::memcpy(&f, p + 4 * i, 4);
            o[i] = f;
            break;
        }
        default: {
            std::int32_t v = 0;
            std::memcpy(&v, p + 4 * i, 4);
            o[i] = v / 2147483648.0;
            break;
        }
        }
    }
}

} // namespace zuvo::record
