#include "output_plan.h"

#include <array>
#include <vector>

namespace zuvo::player {

namespace {

constexpr std::array kNativeDsd{SND_PCM_FORMAT_DSD_U32_BE, SND_PCM_FORMAT_DSD_U32_LE, SND_PCM_FORMAT_DSD_U16_BE,
                                SND_PCM_FORMAT_DSD_U16_LE, SND_PCM_FORMAT_DSD_U8};
// DoP needs 24 bits of payload: a marker byte and two DSD bytes.
constexpr std::array kDopFormats{SND_PCM_FORMAT_S32_LE, SND_PCM_FORMAT_S24_3LE, SND_PCM_FORMAT_S24_LE,
                                 SND_PCM_FORMAT_S32_BE, SND_PCM_FORMAT_S24_3BE, SND_PCM_FORMAT_S24_BE};
constexpr std::array kPcmFormats{SND_PCM_FORMAT_S32_LE, SND_PCM_FORMAT_S24_3LE, SND_PCM_FORMAT_S24_LE,
                                 SND_PCM_FORMAT_FLOAT_LE, SND_PCM_FORMAT_S32_BE, SND_PCM_FORMAT_S24_3BE,
                                 SND_PCM_FORMAT_S16_LE, SND_PCM_FORMAT_S16_BE};

std::string num(long long v) { return std::to_string(v); }

bool withinCap(const PlanRequest& r, unsigned rate) { return r.maxRate <= 0 || rate <= unsigned(r.maxRate); }

// PCM rates the decimator and the resampler can make, best first: the file's
// own family before the other one, higher before lower.
std::vector<unsigned> familyRates(int sourceRate, unsigned highest)
{
    const bool src48 = sourceRate % 48000 == 0 && sourceRate % 44100 != 0;
    std::vector<unsigned> out;
    for (int pass = 0; pass < 2; ++pass) {
        const unsigned base = (pass == 0) == src48 ? 48000u : 44100u;
        for (int k = 4; k >= 0; --k) {
            const unsigned r = base << k;
            if (r <= highest)
                out.push_back(r);
        }
    }
    return out;
}

std::optional<OutputPlan> firstPcm(const AcceptsFn& accepts, const std::vector<unsigned>& rates, unsigned channels,
                                   const PlanRequest& request, OutputPath path)
{
    for (unsigned rate : rates) {
        if (!withinCap(request, rate))
            continue;
        for (snd_pcm_format_t f : kPcmFormats) {
            if (accepts(f, rate, channels)) {
                OutputPlan p;
                p.path = path;
                p.format = f;
                p.rate = rate;
                p.channels = channels;
                return p;
            }
        }
    }
    return std::nullopt;
}

std::optional<OutputPlan> chooseDsd(const AcceptsFn& accepts, const SourceFormat& s, const PlanRequest& r,
                                    std::string* error)
{
    const auto ch = static_cast<unsigned>(s.channels);
    if (!r.forceDop && !r.forcePcm) {
        for (snd_pcm_format_t f : kNativeDsd) {
            const unsigned rate = unsigned(s.rate) / unsigned(8 * dsdBytesPerFrame(f));
            if (withinCap(r, rate) && accepts(f, rate, ch))
                return OutputPlan{OutputPath::NativeDsd, f, rate, ch,
                                  "the device takes the DSD sample format " + std::string(snd_pcm_format_name(f))
                                      + " at " + num(rate) + " Hz"};
        }
    }
    std::string dopNote;
    if (!r.forcePcm) {
        const unsigned rate = unsigned(s.rate) / 16;
        for (snd_pcm_format_t f : kDopFormats) {
            if (withinCap(r, rate) && accepts(f, rate, ch))
                return OutputPlan{OutputPath::Dop, f, rate, ch,
                                  r.forceDop ? "DoP was asked for (-dop) and the device takes "
                                                   + std::string(snd_pcm_format_name(f)) + " at " + num(rate) + " Hz"
                                             : "the device takes no DSD sample format, but takes "
                                                   + std::string(snd_pcm_format_name(f)) + " at " + num(rate)
                                                   + " Hz, enough for DoP"};
        }
        dopNote = "the device takes no DSD sample format and no 24-bit PCM at " + num(rate) + " Hz for DoP";
    } else {
        dopNote = "PCM was asked for (-pcm)";
    }
    const unsigned highest = std::min(352800u * 160u / 147u, unsigned(s.rate) / 8);
    std::vector<unsigned> rates;
    for (unsigned rate : familyRates(44100, highest))
        if (rate % 48000 != 0 || rate * 147 / 160 <= unsigned(s.rate) / 8) // the decimator's limit
            rates.push_back(rate);
    if (auto p = firstPcm(accepts, rates, ch, r, OutputPath::DsdToPcm)) {
        p->reason = dopNote + "; converting DSD to PCM " + std::string(snd_pcm_format_name(p->format)) + " at "
            + num(p->rate) + " Hz";
        return p;
    }
    if (error)
        *error = "the device refuses every format for this file: no native DSD, no DoP at " + num(s.rate / 16)
            + " Hz and no PCM rate from 44100 Hz up with " + num(s.channels) + " channel(s)";
    return std::nullopt;
}

} // namespace

int dsdBytesPerFrame(snd_pcm_format_t f)
{
    switch (f) {
    case SND_PCM_FORMAT_DSD_U32_BE:
    case SND_PCM_FORMAT_DSD_U32_LE: return 4;
    case SND_PCM_FORMAT_DSD_U16_BE:
    case SND_PCM_FORMAT_DSD_U16_LE: return 2;
    default: return 1;
    }
}

std::optional<OutputPlan> chooseOutput(const AcceptsFn& accepts, const SourceFormat& s, const PlanRequest& r,
                                       std::string* error)
{
    if (s.channels < 1 || s.rate < 1) {
        if (error)
            *error = "the file has no playable audio";
        return std::nullopt;
    }
    if (s.dsd)
        return chooseDsd(accepts, s, r, error);

    const auto ch = static_cast<unsigned>(s.channels);
    if (auto p = firstPcm(accepts, {unsigned(s.rate)}, ch, r, OutputPath::Pcm)) {
        p->reason = "the device takes the file's rate " + num(s.rate) + " Hz as "
            + std::string(snd_pcm_format_name(p->format));
        return p;
    }
    if (auto p = firstPcm(accepts, familyRates(s.rate, 768000), ch, r, OutputPath::PcmResampled)) {
        p->reason = "the device does not take " + num(s.rate) + " Hz; resampling to " + num(p->rate) + " Hz "
            + std::string(snd_pcm_format_name(p->format));
        return p;
    }
    if (error)
        *error = "the device refuses every format for this file: no PCM format at " + num(s.rate)
            + " Hz or at any rate the player can resample to, with " + num(s.channels) + " channel(s)";
    return std::nullopt;
}

const char* pathName(OutputPath path)
{
    switch (path) {
    case OutputPath::NativeDsd: return "native-dsd";
    case OutputPath::Dop: return "dop";
    case OutputPath::DsdToPcm: return "dsd-to-pcm";
    case OutputPath::Pcm: return "pcm";
    case OutputPath::PcmResampled: return "pcm-resampled";
    }
    return "?";
}

std::string describePlan(const OutputPlan& p)
{
    return std::string("[PATH] ") + pathName(p.path) + " format=" + snd_pcm_format_name(p.format)
        + " rate=" + num(p.rate) + " channels=" + num(p.channels) + ": " + p.reason;
}

} // namespace zuvo::player
