#pragma once
// What SpectralDenoiser::configure accepts, checked without building anything
// (the command-line parser only hands over what passes here).

#include <string>

#include "restore/spectral/spectral_denoiser.h"

namespace zuvo::restore {

bool checkSpectralConfig(const SpectralConfig& c, int channels, double fs, std::string& error);

} // namespace zuvo::restore
