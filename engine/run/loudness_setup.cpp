#include "run/loudness_setup.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "analysis/band_limit.h"
#include "analysis/loudness_plan.h"
#include "analysis/number_text.h"
#include "run/exit_codes.h"

namespace zuvo::run {

using analysis::fixed;

double outputCeilingDbtp(const dsp::DesignSummary& design)
{
    return std::min(analysis::kTruePeakCeilingDbtp, design.modulatorMaxStableDbfs - 1.0);
}

LoudnessSetup prepareLoudness(RunContext& ctx, const std::string& input, const std::vector<std::size_t>& source,
                              const io::ChannelLayout& outLayout, int channels, int sampleRate,
                              const dsp::DesignSummary& design, io::Tags& tags)
{
    const analysis::AnalysisOptions& a = ctx.options.analysis;
    LoudnessSetup setup;
    if (!a.needsFirstPass())
        return setup;
    std::string error;
    auto path = makeEffectsPath(ctx.options, channels, sampleRate, error);
    if (!path) {
        report(ctx, "%s", error.c_str());
        setup.exitCode = kExitUsage;
        return setup;
    }
    // The path holds the restoration stages in front of the effects, so
    // that the measurement sees what the modulator sees.
    // The interpolation filter then drops what lies above its pass band:
    // the measurement drops it too, or full-band material would land low.
    const dsp::FirOptions& fir = ctx.options.fir;
    const analysis::PassBand band = analysis::conversionPassBand(sampleRate, fir.passbandHz, fir.stopbandHz,
        fir.highBandwidth, fir.slowRollOff, fir.algorithm == dsp::FilterAlgorithm::Remez);
    if (band.passHz < 0.495 * sampleRate) {
        auto filters = std::make_shared<std::vector<analysis::BandLimit>>(
            static_cast<std::size_t>(path->outChannels), analysis::BandLimit(sampleRate, band.passHz, band.stopHz));
        PreModulatorPath limit;
        limit.outChannels = path->outChannels;
        limit.run = [filters](Planar& p, std::size_t n) {
            for (std::size_t c = 0; c < filters->size() && c < p.size(); ++c)
                (*filters)[c].process(p[c].data(), n);
            return n;
        };
        limit.drain = [](Planar&) { return std::size_t{0}; };
        *path = thenPath(std::move(*path), std::move(limit));
    }
    const FirstPass pass = measurePreModulator(ctx, input, source, outLayout, *path, 50.0);
    if (pass.exitCode) {
        setup.exitCode = pass.exitCode;
        return setup;
    }
    setup.measured = true;
    const analysis::LoudnessFigures& f = pass.figures;
    const double modulatorDb = 20 * std::log10(design.appliedGain);
    ctx.log.line("loudness before the modulator: integrated %s LUFS, range %s LU, true peak %s dBTP",
                 fixed(f.integratedLufs, 2).c_str(), fixed(f.rangeLu, 2).c_str(), fixed(f.truePeakDbtp, 2).c_str());

    // Output level = pre-modulator level + loudness gain + modulator gain.
    double totalDb = modulatorDb;
    if (a.lufsTarget) {
        const double ceiling = outputCeilingDbtp(design);
        const analysis::LoudnessPlan plan = analysis::planLoudness(f.integratedLufs, f.truePeakDbtp, *a.lufsTarget, ceiling);
        if (plan.silent) {
            report(ctx, "warning: --lufs: %s is silent (no loudness to measure); no loudness gain applied", input.c_str());
        } else {
            totalDb = plan.gainDb;
            const std::string text = "--lufs " + fixed(*a.lufsTarget, 1) + ": output gain " + fixed(plan.gainDb, 2)
                                     + " dB (of which the modulator's " + fixed(modulatorDb, 2) + " dB), expected "
                                     + fixed(plan.expectedLufs, 2) + " LUFS, true peak " + fixed(plan.expectedPeakDbtp, 2)
                                     + " dBTP";
            detail(ctx, "%s", text.c_str());
            if (plan.limited) {
                const std::string why = "--lufs: the true peak would reach " + fixed(f.truePeakDbtp + plan.wantedGainDb, 2)
                                        + " dBTP; the gain was lowered by " + fixed(plan.wantedGainDb - plan.gainDb, 2)
                                        + " dB to keep " + fixed(ceiling, 2) + " dBTP, so the output lands at "
                                        + fixed(plan.expectedLufs, 2) + " LUFS instead of " + fixed(*a.lufsTarget, 2);
                report(ctx, "warning: %s", why.c_str());
            }
        }
    }
    setup.gain = std::pow(10.0, (totalDb - modulatorDb) / 20);

    if (a.replayGain != analysis::ReplayGainMode::Off) {
        const double outLufs = f.integratedLufs + totalDb;
        const double outPeak = f.truePeakDbtp + totalDb;
        const analysis::ReplayGainValues rg = analysis::replayGain(outLufs, outPeak);
        if (!rg.valid) {
            report(ctx, "warning: --rg: %s is silent (no loudness to measure); no ReplayGain tags written", input.c_str());
        } else {
            tags.setUserText("REPLAYGAIN_TRACK_GAIN", analysis::replayGainText(rg.gainDb));
            tags.setUserText("REPLAYGAIN_TRACK_PEAK", analysis::replayPeakText(rg.peak));
            // A run converts one input: the album is that one track.
            if (a.replayGain == analysis::ReplayGainMode::Album) {
                tags.setUserText("REPLAYGAIN_ALBUM_GAIN", analysis::replayGainText(rg.gainDb));
                tags.setUserText("REPLAYGAIN_ALBUM_PEAK", analysis::replayPeakText(rg.peak));
            }
            ctx.log.line("ReplayGain: output %s LUFS, gain %s, peak %s", fixed(outLufs, 2).c_str(),
                         analysis::replayGainText(rg.gainDb).c_str(), analysis::replayPeakText(rg.peak).c_str());
        }
    }
    return setup;
}

} // namespace zuvo::run
