#pragma once
// Command-line forms of the spectral denoiser.
//
//   --wiener                    Wiener denoiser, floor -15 dB, frame 32 ms
//   --wiener-floor DB           its floor, -60 to -1 dB (a positive value is
//                               read as the attenuation: 15 = -15 dB); implies --wiener
//   --wiener-frame MS           its frame, 5 to 500 ms; implies --wiener
//   --denoise light|standard|deep   ("strong" is deep)
//   --keep-harmonics on|off     for whichever denoiser runs; alone it does nothing
//   --noise-reduce TEXT         TEXT: the largest attenuation in dB, 1 to 40,
//                               optionally followed by "dB" ("12", "12dB"), or
//                               one of the --denoise words
//
// One denoiser runs. --denoise and --noise-reduce name a strength of the same
// denoiser: the later one on the line wins. --wiener (or its floor/frame)
// together with --denoise or --noise-reduce is an error, in either order.

#include <cstddef>
#include <string>
#include <vector>

#include "restore/spectral/spectral_denoiser.h"

namespace zuvo::restore {

// When args[i] is one of the options above: consumes its value (moving `i`
// to it), updates `c` and `enabled`, records problems in `errors` and returns
// true. Start with a default SpectralConfig and enabled = false.
bool parseSpectralOption(const std::vector<std::string>& args, std::size_t& i, SpectralConfig& c, bool& enabled,
                         std::vector<std::string>& errors);

// The --help lines for these options, each ending in '\n'.
std::string spectralHelpText();

} // namespace zuvo::restore
