#include "cli/refusal_reasons.h"

namespace zuvo::cli {

namespace {

struct Reason {
    const char* option;
    const char* text;
};

const Reason kReasons[] = {
    {"--single-pole",
     "a one-pole noise shaper cannot hold a 1-bit quantiser's noise below the audio's own floor (about 40 dB "
     "in-band SNR at DSD64); use --order N or --mp-ns --mp-poles N"},
    {"--no-ns",
     "a 1-bit quantiser without noise shaping leaves its full-scale noise in the audio band; every modulator "
     "of this engine shapes its noise"},
    {"--quantization-type",
     "the quantiser of a 1-bit modulator is the sign of its loop output; there is no rms, peak or hard-limit "
     "variant to choose"},
    {"--quantization-ratio",
     "the quantiser of a 1-bit modulator is the sign of its loop output and has no threshold ratio"},
};

} // namespace

std::string refusalReason(const std::string& option)
{
    for (const Reason& r : kReasons)
        if (option == r.option)
            return r.text;
    return {};
}

} // namespace zuvo::cli
