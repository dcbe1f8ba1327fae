#include "run/loudness_pass.h"

#include <utility>

#include "analysis/lossy_check.h"
#include "analysis/number_text.h"
#include "effects/effect_chain.h"
#include "effects/peak_limiter.h"
#include "io/pcm_reader.h"
#include "restore/mastering_presets.h"
#include "restore/restore_chain.h"
#include "run/exit_codes.h"
#include "run/pcm_input.h"

namespace zuvo::run {

namespace {

std::unique_ptr<PreModulatorPath> effectsOnly(const effects::EffectOptions& fx, int channels, int sampleRate,
                                              std::string& error)
{
    auto chain = std::make_shared<effects::EffectChain>();
    if (!chain->build(fx, channels, sampleRate, error))
        return nullptr;
    auto path = std::make_unique<PreModulatorPath>();
    path->outChannels = chain->outChannels();
    if (chain->empty()) {
        path->outChannels = channels;
        path->run = [](Planar&, std::size_t n) { return n; };
        path->drain = [](Planar&) { return std::size_t{0}; };
        return path;
    }
    // The conversion adds the same limiter when the effects can raise the level.
    const double gain = chain->worstCaseGain();
    if (gain > 1.0)
        chain->addLimiter(gain * effects::kLimiterCeilingMargin);
    path->run = [chain](Planar& p, std::size_t n) { return chain->run(p, n); };
    path->drain = [chain](Planar& p) { return chain->drain(p); };
    return path;
}

} // namespace

std::unique_ptr<PreModulatorPath> makeEffectsPath(const cli::EngineOptions& o, int channels, int sampleRate,
                                                  std::string& error)
{
    // The effects as the conversion builds them: with the mastering set's
    // EQ and widening.
    effects::EffectOptions fx = o.effects;
    restore::applyMasteringEffects(o.restore, channels, fx);
    auto path = effectsOnly(fx, channels, sampleRate, error);
    if (!path)
        return nullptr;
    // Restoration runs in front of the effects.
    auto restoration = std::make_shared<restore::RestoreChain>();
    if (!restoration->build(o.restore, channels, sampleRate, error))
        return nullptr;
    if (!restoration->empty()) {
        PreModulatorPath r;
        r.outChannels = channels;
        r.run = [restoration](Planar& p, std::size_t n) { return restoration->run(p, n); };
        r.drain = [restoration](Planar& p) { return restoration->drain(p); };
        *path = thenPath(std::move(r), std::move(*path));
    }
    return path;
}

PreModulatorPath thenPath(PreModulatorPath first, PreModulatorPath second)
{
    PreModulatorPath p;
    p.outChannels = second.outChannels;
    auto a = std::make_shared<PreModulatorPath>(std::move(first));
    auto b = std::make_shared<PreModulatorPath>(std::move(second));
    p.run = [a, b](Planar& x, std::size_t n) { return b->run(x, a->run(x, n)); };
    p.drain = [a, b](Planar& x) {
        // What the first stage still holds runs through the second, then
        // the second gives up its own tail after it.
        const std::size_t tail = a->drain(x);
        std::size_t ready = tail > 0 ? b->run(x, tail) : 0;
        Planar rest;
        const std::size_t more = b->drain(rest);
        if (ready == 0) // nothing came through: take the second's channel count
            x.assign(rest.size(), std::vector<double>());
        for (std::size_t c = 0; c < x.size() && c < rest.size(); ++c) {
            x[c].resize(ready + more);
            std::copy(rest[c].begin(), rest[c].begin() + static_cast<std::ptrdiff_t>(more), x[c].begin() + static_cast<std::ptrdiff_t>(ready));
        }
        return ready + more;
    };
    return p;
}

FirstPass measurePreModulator(RunContext& ctx, const std::string& input, const std::vector<std::size_t>& source,
                              const io::ChannelLayout& outLayout, PreModulatorPath& path, double progressShare)
{
    FirstPass result;
    io::PcmReader reader;
    std::string error;
    if (!reader.open(input, &error)) {
        report(ctx, "%s", error.c_str());
        result.exitCode = kExitFailure;
        return result;
    }
    const io::PcmStreamInfo& in = reader.info();
    const auto channels = static_cast<std::size_t>(in.channels);
    analysis::LoudnessMeter meter(path.outChannels, in.sampleRate, outLayout);
    if (!meter.valid()) {
        report(ctx, "cannot measure the loudness of %d channel(s) at %d Hz", path.outChannels, in.sampleRate);
        result.exitCode = kExitFailure;
        return result;
    }
    std::vector<double> interleaved;
    Planar planar(channels);
    long long done = 0;
    for (;;) {
        if (ctx.stopRequested()) {
            report(ctx, "stopped on request while measuring the loudness; no output was written");
            result.exitCode = kExitStopped;
            return result;
        }
        const long long got = reader.read(16384, interleaved, &error);
        if (got < 0) {
            report(ctx, "%s", error.c_str());
            result.exitCode = kExitFailure;
            return result;
        }
        if (got == 0)
            break;
        const auto n = static_cast<std::size_t>(got);
        planar.resize(channels);
        for (std::size_t c = 0; c < channels; ++c)
            takeChannel(interleaved, channels, source[c], n, planar[c]);
        meter.add(planar, path.run(planar, n));
        done += got;
        if (in.frames > 0)
            ctx.progress.update(progressShare * static_cast<double>(done) / static_cast<double>(in.frames));
    }
    const std::size_t tail = path.drain(planar);
    meter.add(planar, tail);
    result.figures = meter.figures();
    result.seconds = static_cast<double>(done) / in.sampleRate;
    return result;
}

int refuseLossyInput(RunContext& ctx, const std::string& input)
{
    io::PcmReader reader;
    std::string error;
    if (!reader.open(input, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    const io::PcmStreamInfo& in = reader.info();
    analysis::SpectrumAverage spectrum(in.channels, in.sampleRate);
    std::vector<double> interleaved;
    for (;;) {
        const long long got = reader.read(16384, interleaved, &error);
        if (got < 0) {
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
        if (got == 0)
            break;
        // A non-finite sample would spoil the whole average.
        for (double& v : interleaved)
            if (!std::isfinite(v))
                v = 0;
        if (!spectrum.addInterleaved(interleaved.data(), static_cast<std::size_t>(got)))
            break;
    }
    const analysis::LossyVerdict v = analysis::judge(spectrum);
    if (v.lossy) {
        report(ctx, "input looks lossy: %s (%s); refused by --stop-lossy, nothing was written", v.reason.c_str(),
               input.c_str());
        return kExitFailure;
    }
    detail(ctx, "lossy check: no lossy low-pass found in %s (largest drop %s dB%s%s)", input.c_str(),
           analysis::fixed(v.dropDb, 0).c_str(), v.reason.empty() ? "" : "; ", v.reason.c_str());
    return 0;
}

void scaleBlock(std::vector<double>& x, std::size_t n, double gain)
{
    if (gain == 1.0)
        return;
    for (std::size_t i = 0; i < n && i < x.size(); ++i)
        x[i] *= gain;
}

} // namespace zuvo::run
