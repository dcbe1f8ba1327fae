#pragma once
// What the recorder asks of a capture device, and how the device's sample
// words become doubles at full scale 1.0.

#include <alsa/asoundlib.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zuvo::record {

struct CaptureFormat {
    snd_pcm_format_t format = SND_PCM_FORMAT_S32_LE;
    unsigned rate = 0;
    unsigned channels = 0;
};

// Answers whether the device takes this format, rate and channel count.
using AcceptsFn = std::function<bool(snd_pcm_format_t, unsigned rate, unsigned channels)>;

// Picks the widest sample format the device takes, the asked rate and
// channel count, or (for 0) the first of a fixed preference list. Returns
// false with `error` set when nothing fits.
bool chooseCaptureFormat(const AcceptsFn& accepts, int askedRate, int askedChannels, CaptureFormat& out,
                         std::string* error);

// Bytes per sample of the formats chooseCaptureFormat can pick.
std::size_t sampleBytes(snd_pcm_format_t format);

// Appends `frames` interleaved frames of `format` as doubles.
void toDoubles(snd_pcm_format_t format, const std::uint8_t* data, std::size_t samples, std::vector<double>& out);

} // namespace zuvo::record
