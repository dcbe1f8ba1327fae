#include "restore/spectral/spectral_denoiser.h"

#include <algorithm>
#include <cmath>

#include "restore/spectral/spectral_channel.h"
#include "restore/spectral/spectral_config.h"
#include "restore/spectral/spectral_text.h"

namespace zuvo::restore {

namespace {

constexpr double kLightFloorDb = -12.0;
constexpr double kStandardFloorDb = -18.0;
constexpr double kDeepBestDb = -20.0, kDeepSpanDb = 10.0;
constexpr std::size_t kMinFrame = 64;

// Terhardt's threshold of hearing in dB SPL, f in Hz.
double thresholdOfHearing(double hz)
{
    const double f = std::max(hz, 20.0) / 1000.0;
    return 3.64 * std::pow(f, -0.8) - 6.5 * std::exp(-0.6 * (f - 3.3) * (f - 3.3)) + 1e-3 * std::pow(f, 4.0);
}

bool smoothOnly235(std::size_t n)
{
    for (std::size_t p : {2u, 3u, 5u})
        while (n % p == 0)
            n /= p;
    return n == 1;
}

// The multiple of 4 made of 2s, 3s and 5s nearest to `target`.
std::size_t frameFor(double target)
{
    const auto t = static_cast<std::size_t>(std::max(target, static_cast<double>(kMinFrame)));
    for (std::size_t d = 0;; ++d) {
        const std::size_t below = t > d ? t - d : 0;
        if (below >= kMinFrame && below % 4 == 0 && smoothOnly235(below))
            return below;
        const std::size_t above = t + d;
        if (above % 4 == 0 && smoothOnly235(above))
            return above;
    }
}

const char* modeName(SpectralConfig::Mode m)
{
    switch (m) {
    case SpectralConfig::Mode::Wiener: return "Wiener";
    case SpectralConfig::Mode::Light: return "light";
    case SpectralConfig::Mode::Standard: return "standard";
    case SpectralConfig::Mode::Deep: return "deep";
    case SpectralConfig::Mode::Reduce: return "noise-reduce";
    }
    return "?";
}

} // namespace

SpectralDenoiser::SpectralDenoiser() = default;
SpectralDenoiser::~SpectralDenoiser() = default;
SpectralDenoiser::SpectralDenoiser(SpectralDenoiser&&) noexcept = default;
SpectralDenoiser& SpectralDenoiser::operator=(SpectralDenoiser&&) noexcept = default;


double SpectralDenoiser::floorGain(double hz) const
{
    switch (config_.mode) {
    case SpectralConfig::Mode::Light: return std::pow(10.0, kLightFloorDb / 20.0);
    case SpectralConfig::Mode::Standard: return std::pow(10.0, kStandardFloorDb / 20.0);
    case SpectralConfig::Mode::Deep: {
        const double w = std::clamp((thresholdOfHearing(hz) + 5.0) / 30.0, 0.0, 1.0);
        return std::pow(10.0, (kDeepBestDb - kDeepSpanDb * w) / 20.0);
    }
    case SpectralConfig::Mode::Wiener: return std::pow(10.0, config_.floorDb / 20.0);
    case SpectralConfig::Mode::Reduce: return std::pow(10.0, -config_.reduceDb / 20.0);
    }
    return 1.0;
}

bool SpectralDenoiser::configure(const SpectralConfig& c, int channels, double fs, std::string& error)
{
    channels_.clear();
    setup_.reset();
    frame_ = 0;
    if (!checkSpectralConfig(c, channels, fs, error))
        return false;
    const double frameMs = c.mode == SpectralConfig::Mode::Wiener ? c.frameMs : kTierFrameMs;
    config_ = c;
    config_.frameMs = frameMs;
    fs_ = fs;
    frame_ = frameFor(frameMs * fs / 1000.0);

    auto s = std::make_unique<SpectralSetup>();
    s->frame = frame_;
    s->hop = frame_ / 4;
    s->bins = frame_ / 2 + 1;
    s->binHz = fs / static_cast<double>(frame_);
    s->window.resize(frame_);
    for (std::size_t i = 0; i < frame_; ++i) {
        s->window[i] = std::sin(M_PI * static_cast<double>(i) / static_cast<double>(frame_));
    }
    s->floorGain.resize(s->bins);
    for (std::size_t k = 0; k < s->bins; ++k)
        s->floorGain[k] = floorGain(static_cast<double>(k) * s->binHz);
    s->noise = noiseTrackerSetup(s->bins, s->hop, fs);
    calibrateTracker(s->noise, s->window, s->hop);
    s->keepHarmonics = c.keepHarmonics;
    setup_ = std::move(s);
    for (int i = 0; i < channels; ++i)
        channels_.push_back(std::make_unique<SpectralChannel>(*setup_));
    return true;
}

std::size_t SpectralDenoiser::latency() const
{
    return frame_;
}

void SpectralDenoiser::process(std::vector<std::vector<double>>& ch, std::size_t n)
{
    const std::size_t count = std::min(ch.size(), channels_.size());
    for (std::size_t c = 0; c < count; ++c)
        channels_[c]->process(ch[c].data(), std::min(n, ch[c].size()));
}

std::string SpectralDenoiser::description() const
{
    if (frame_ == 0)
        return "Spectral denoise: not configured";
    std::string floor;
    switch (config_.mode) {
    case SpectralConfig::Mode::Light: floor = formatNumber(kLightFloorDb, 0) + " dB"; break;
    case SpectralConfig::Mode::Standard: floor = formatNumber(kStandardFloorDb, 0) + " dB"; break;
    case SpectralConfig::Mode::Deep: floor = "-20 to -30 dB (hearing-weighted)"; break;
    case SpectralConfig::Mode::Wiener: floor = formatNumber(config_.floorDb, 1) + " dB"; break;
    case SpectralConfig::Mode::Reduce: floor = formatNumber(-config_.reduceDb, 1) + " dB"; break;
    }
    return std::string("Spectral denoise: ") + modeName(config_.mode) + ", floor " + floor + ", frame "
        + std::to_string(frame_) + " samples (" + formatNumber(1000.0 * static_cast<double>(frame_) / fs_, 1)
        + " ms, 75% overlap), keep harmonics " + (config_.keepHarmonics ? "on" : "off") + ", "
        + std::to_string(channels_.size()) + " channel(s) independently, latency " + std::to_string(frame_)
        + " samples";
}

} // namespace zuvo::restore
