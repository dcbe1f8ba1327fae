#pragma once
// Which of the ways to feed a device a file goes: native DSD, DoP, DSD
// converted to PCM, or PCM (resampled when the device lacks the file's rate).

#include <alsa/asoundlib.h>

#include <functional>
#include <optional>
#include <string>

namespace zuvo::player {

enum class OutputPath { NativeDsd, Dop, DsdToPcm, Pcm, PcmResampled };

struct SourceFormat {
    bool dsd = false;
    int rate = 0;     // 1-bit samples per second for DSD, frames per second for PCM
    int channels = 0;
};

struct PlanRequest {
    bool forceDop = false;
    bool forcePcm = false;
    int maxRate = 0; // 0 = no cap
};

struct OutputPlan {
    OutputPath path = OutputPath::Pcm;
    snd_pcm_format_t format = SND_PCM_FORMAT_UNKNOWN;
    unsigned rate = 0;     // device frames per second
    unsigned channels = 0;
    std::string reason;
};

// Whether the device takes a format at exactly this rate with this many channels.
using AcceptsFn = std::function<bool(snd_pcm_format_t, unsigned rate, unsigned channels)>;

// Empty when the device takes nothing usable; `error` then says why.
std::optional<OutputPlan> chooseOutput(const AcceptsFn& accepts, const SourceFormat& source,
                                       const PlanRequest& request, std::string* error);

// Bytes of DSD per channel in one device frame of a native DSD format (1, 2 or 4).
int dsdBytesPerFrame(snd_pcm_format_t format);

// "[PATH] dop format=S32_LE rate=176400 channels=2: <reason>"
std::string describePlan(const OutputPlan& plan);
const char* pathName(OutputPath path);

} // namespace zuvo::player
