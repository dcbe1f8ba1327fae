#include "cli/unsupported_options.h"

#include <cstring>

#include "cli/option_values.h"

namespace zuvo::cli {

namespace {

struct Row {
    const char* name;
    ValueShape shape;
};

// Another modulator family's noise shaping, some effects and dynamics,
// analysis extras and OpenCL are not in this version of the engine.
const Row kRows[] = {
    // Noise-shaping variants of another modulator family.
    {"--single-pole", ValueShape::None},
    {"--no-ns", ValueShape::None}, {"--quantization-type", ValueShape::One},
    {"--quantization-ratio", ValueShape::One}, {"--zero", ValueShape::Numbers}, {"--pole", ValueShape::One},
    {"--noise-threshold", ValueShape::One}, {"--delta-f", ValueShape::One}, {"--psy", ValueShape::None},
    {"--psy-strategy", ValueShape::One}, {"--psy-phon", ValueShape::One}, {"--dither", ValueShape::OptionalNumber},
    {"--adaptive", ValueShape::None}, {"--poly", ValueShape::None}, {"--poly-save", ValueShape::One},
    {"--poly-load", ValueShape::One}, {"--poly-auto", ValueShape::None}, {"--poly-degree", ValueShape::One},
    {"--poly-report", ValueShape::None},
    // Tone, equaliser and spatial effects.
    {"--auto-pan", ValueShape::None},
    {"--target-width", ValueShape::One}, {"--pan-report", ValueShape::None}, {"--crossfeed", ValueShape::Crossfeed},
    {"--convolve", ValueShape::One}, {"--dsne", ValueShape::OptionalNumber}, {"--dsne-ratio", ValueShape::One}, {"--dsne-knee", ValueShape::One},
    {"--dsne-margin", ValueShape::One}, {"--dsee", ValueShape::OptionalNumber}, {"--dsee-drive", ValueShape::One},
    {"--dsee-hmix", ValueShape::One}, {"--dsee-air", ValueShape::One}, {"--harmonics", ValueShape::Two},
    {"--pbe", ValueShape::One}, {"--pbe-precut", ValueShape::One}, {"--apo", ValueShape::OptionalApo},
    // Dynamics and loudness.
    {"--compand", ValueShape::Three},
    {"--compressor", ValueShape::Five}, {"--soft-limiter", ValueShape::One}, {"--lal", ValueShape::None},
    {"--lal-lookahead", ValueShape::One}, {"--lal-threshold", ValueShape::One}, {"--rate", ValueShape::One},
    // Channel re-mapping.
    // Containers, transports and hardware.
    {"--opencl", ValueShape::None},
    {"--pipe", ValueShape::None}, {"--force-endianness", ValueShape::One}, {"--memory-cache", ValueShape::One},
    {"--cue", ValueShape::One},
    // Analysis extras.
    {"--spectrogram", ValueShape::One},
    {"--hfacheck", ValueShape::None},
};

} // namespace

bool lookupUnsupported(const std::string& name, ValueShape& shape)
{
    for (const Row& r : kRows) {
        if (name == r.name) {
            shape = r.shape;
            return true;
        }
    }
    return false;
}

std::vector<std::string> unsupportedOptionNames()
{
    std::vector<std::string> names;
    for (const Row& r : kRows)
        names.emplace_back(r.name);
    return names;
}

std::size_t valueCount(ValueShape shape, const std::vector<std::string>& args, std::size_t i)
{
    const std::size_t left = args.size() - i - 1;
    auto at = [&](std::size_t k) -> const std::string& { return args[i + k]; };
    std::size_t n = 0;
    switch (shape) {
    case ValueShape::None: n = 0; break;
    case ValueShape::One: n = 1; break;
    case ValueShape::Two: n = 2; break;
    case ValueShape::Three: n = 3; break;
    case ValueShape::Five: n = 5; break;
    case ValueShape::OptionalNumber: n = left >= 1 && isNumber(at(1)) ? 1 : 0; break;
    case ValueShape::OptionalApo:
        n = left >= 1 && (at(1) == "light" || at(1) == "normal" || at(1) == "aggressive") ? 1 : 0;
        break;
    case ValueShape::OptionalAlbum: n = left >= 1 && at(1) == "album" ? 1 : 0; break;
    case ValueShape::Numbers:
        while (n < left && isNumber(at(n + 1)))
            ++n;
        break;
    case ValueShape::Crossfeed:
        n = 1;
        if (left >= 1 && at(1) == "custom")
            n = 3;
        break;
    case ValueShape::Surround:
        n = 2;
        if (left > n && at(n + 1) == "side")
            ++n;
        if (left > n && isNumber(at(n + 1)))
            ++n;
        break;
    }
    return n < left ? n : left;
}

} // namespace zuvo::cli
