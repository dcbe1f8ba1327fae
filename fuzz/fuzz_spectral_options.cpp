// Feeds the spectral denoiser's option parser: the input is split at NUL bytes
// into arguments. Whatever the parser accepts without an error must be a
// set-up the denoiser accepts.
#include <cstdint>
#include <string>
#include <vector>

#include "restore/spectral/spectral_config.h"
#include "restore/spectral/spectral_options.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::string> args;
    std::string current;
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] == 0) {
            args.push_back(current);
            current.clear();
        } else {
            current.push_back(static_cast<char>(data[i]));
        }
    }
    if (!current.empty())
        args.push_back(current);
    if (args.size() > 256)
        return 0;
    zuvo::restore::SpectralConfig config;
    bool enabled = false;
    std::vector<std::string> errors;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::size_t before = i;
        zuvo::restore::parseSpectralOption(args, i, config, enabled, errors);
        if (i < before || i >= args.size())
            __builtin_trap(); // the walk only moves forward, within the line
    }
    std::string error;
    if (errors.empty() && enabled && !zuvo::restore::checkSpectralConfig(config, 2, 44100.0, error))
        __builtin_trap();
    return 0;
}
