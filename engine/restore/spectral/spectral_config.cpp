#include "restore/spectral/spectral_config.h"

#include "restore/spectral/spectral_text.h"

namespace zuvo::restore {

namespace {

constexpr double kMinFrameMs = 5.0, kMaxFrameMs = 500.0;
constexpr double kMinRate = 4000.0, kMaxRate = 1e6;
constexpr int kMaxChannels = 64;

} // namespace

bool checkSpectralConfig(const SpectralConfig& c, int channels, double fs, std::string& error)
{
    using Mode = SpectralConfig::Mode;
    if (channels < 1 || channels > kMaxChannels) {
        error = "spectral denoiser: unsupported channel count " + std::to_string(channels);
        return false;
    }
    if (!(fs >= kMinRate && fs <= kMaxRate)) {
        error = "spectral denoiser: unsupported sample rate " + formatNumber(fs, 0) + " Hz";
        return false;
    }
    switch (c.mode) {
    case Mode::Wiener:
    case Mode::Light:
    case Mode::Standard:
    case Mode::Deep:
    case Mode::Reduce: break;
    default: error = "spectral denoiser: unknown mode"; return false;
    }
    const bool wiener = c.mode == Mode::Wiener;
    if (wiener && !(c.frameMs >= kMinFrameMs && c.frameMs <= kMaxFrameMs)) {
        error = "spectral denoiser: frame length must be from 5 to 500 ms";
        return false;
    }
    if (wiener && !(c.floorDb >= -60.0 && c.floorDb <= 0.0)) {
        error = "spectral denoiser: Wiener floor must be from -60 to 0 dB";
        return false;
    }
    if (c.mode == Mode::Reduce && !(c.reduceDb >= 1.0 && c.reduceDb <= 40.0)) {
        error = "spectral denoiser: noise reduction must be from 1 to 40 dB";
        return false;
    }
    return true;
}

} // namespace zuvo::restore
