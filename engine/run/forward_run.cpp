// PCM -> DSD: decode a block, encode every channel on its own thread, hand the
// bytes to the container writer, report progress, listen for "stop".
#include "run/forward_run.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>

#include "effects/effect_chain.h"
#include "io/dsd_writer.h"
#include "io/path_names.h"
#include "io/pcm_reader.h"
#include "restore/mastering_presets.h"
#include "restore/restore_chain.h"
#include "report/run_facts.h"
#include "report/run_report.h"
#include "run/channel_pool.h"
#include "run/exit_codes.h"
#include "run/analysis_report.h"
#include "run/levels.h"
#include "run/loudness_setup.h"
#include "run/output_checks.h"
#include "run/pcm_input.h"

namespace zuvo::run {

namespace {

bool supportedRate(int rate)
{
    return rate >= 44100 && rate <= 384000 && (rate % 44100 == 0 || rate % 48000 == 0);
}

// Input frames per block: short enough that progress and "stop" are seen a
// few times a second, and that one block's output stays near 256 KiB per
// channel at every DSD rate (bounded memory even at DSD8192).
std::size_t blockFrames(int inputRate, int dsdRate)
{
    const double bytesPerFrame = static_cast<double>(dsdRate) / 8.0 / inputRate;
    const auto frames = static_cast<std::size_t>((1 << 18) / bytesPerFrame);
    return std::clamp<std::size_t>(frames, 1024, 16384);
}

} // namespace

dsp::ForwardConfig forwardConfig(const cli::EngineOptions& o, int inputRate)
{
    dsp::ForwardConfig c;
    c.inputRate = inputRate;
    c.dsdMultiple = o.oversampling;
    c.fir = o.fir;
    c.modulator = o.modulator;
    c.gain = o.gain ? *o.gain : NAN;
    c.predistortion = o.predistortion;
    return c;
}

const char* modulatorName(dsp::ModulatorType t)
{
    switch (t) {
    case dsp::ModulatorType::SosEf: return "SOS error feedback";
    case dsp::ModulatorType::SingleLoop: return "single loop";
    case dsp::ModulatorType::Cifb: return "CIFB";
    case dsp::ModulatorType::Mash: return "MASH";
    }
    return "?";
}

int runForward(RunContext& ctx)
{
    const cli::EngineOptions& o = ctx.options;
    const std::string& input = o.inputs.front();
    const std::string ext = io::lowerExtension(o.output);
    if (ext != ".dsf" && ext != ".dff") {
        report(ctx, "the output must end in .dsf or .dff (or use --reverse / --dxd for PCM): %s", o.output.c_str());
        return kExitUsage;
    }
    const auto container = ext == ".dsf" ? io::DsdContainer::Dsf : io::DsdContainer::Dff;
    if (o.dst && container != io::DsdContainer::Dff) {
        report(ctx, "DST compression is only possible with a DSDIFF (.dff) output: %s", o.output.c_str());
        return kExitUsage;
    }
    io::PcmReader reader;
    const int refused = openPcmInput(ctx, reader, input, InputDetail::WithFrames, [&](const io::PcmStreamInfo& in) {
        if (!supportedRate(in.sampleRate)) {
            report(ctx, "%s: sample rate %d Hz is not supported (44.1 and 48 kHz families, 44100 to 384000 Hz)",
                   input.c_str(), in.sampleRate);
            return kExitFailure;
        }
        std::string why;
        const int outs = effects::outputChannels(o.effects, in.channels, why);
        if (outs == 0) {
            report(ctx, "%s", why.c_str());
            return kExitUsage;
        }
        if (outs > io::maxChannels(container)) {
            if (outs == in.channels)
                report(ctx, "a DSF file holds at most %d channels and %s has %d: use a .dff output",
                       io::maxChannels(container), input.c_str(), in.channels);
            else
                report(ctx, "a DSF file holds at most %d channels and the channel options make %d: use a .dff output",
                       io::maxChannels(container), outs);
            return kExitUsage;
        }
        // Channel options that change the count write the default layout of
        // the new count, which every container can name.
        if (container == io::DsdContainer::Dsf && outs == in.channels
            && io::dsfChannelType(writtenLayout(in.layout, io::containerOrder(in.layout))) == 0) {
            report(ctx, "a DSF file has no channel type for the channels of %s (%s): use a .dff output",
                   input.c_str(), io::layoutText(in.layout).c_str());
            return kExitUsage;
        }
        return 0;
    });
    if (refused)
        return refused;
    const io::PcmStreamInfo& in = reader.info();
    if (o.analysis.stopLossy)
        if (const int lossy = refuseLossyInput(ctx, input))
            return lossy;

    std::string error;
    io::Tags tags = o.tags;
    if (o.metadataFromInput)
        tags.fillEmptyFrom(reader.tags());
    if (!o.coverPath.empty() && !io::loadCover(o.coverPath, tags, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitUsage;
    }

    ctx.log.line("tags: artist '%s', title '%s', album '%s', genre '%s', year '%s', track %d, comment '%s'",
                 tags.artist.c_str(), tags.title.c_str(), tags.album.c_str(), tags.genre.c_str(), tags.year.c_str(),
                 tags.track, tags.comment.c_str());

    restore::RestoreChain restoration;
    if (!restoration.build(o.restore, in.channels, in.sampleRate, error)) {
        report(ctx, "%s", error.c_str());
        return kExitUsage;
    }
    if (!restoration.empty()) {
        ctx.log.line("restoration (%d channel(s), %.3f s latency hidden):", in.channels,
                     static_cast<double>(restoration.latency()) / in.sampleRate);
        for (const std::string& line : restoration.description())
            ctx.log.line("%s", line.c_str());
    }
    effects::EffectOptions effectOptions = o.effects;
    const std::string mastering = restore::applyMasteringEffects(o.restore, in.channels, effectOptions);
    if (!mastering.empty())
        ctx.log.line("%s", mastering.c_str());
    effects::EffectChain chain;
    if (!chain.build(effectOptions, in.channels, in.sampleRate, error)) {
        report(ctx, "%s", error.c_str());
        return kExitUsage;
    }
    dsp::ForwardConfig config = forwardConfig(o, in.sampleRate);
    if (!chain.empty()) {
        config.effectGain = chain.worstCaseGain();
        ctx.log.line("effects (%d -> %d channels):", chain.inChannels(), chain.outChannels());
        for (const std::string& line : chain.description())
            ctx.log.line("%s", line.c_str());
        ctx.log.line("effects: worst-case gain %+.2f dB (largest sum of |H| over inputs, any frequency)",
                     20 * std::log10(config.effectGain));
        if (config.effectGain > 1.0) {
            chain.addLimiter(config.effectGain * effects::kLimiterCeilingMargin);
            ctx.log.line("%s", chain.description().back().c_str());
        }
    }
    auto design = dsp::designForward(config, &error);
    if (!design) {
        report(ctx, "design refused: %s", error.c_str());
        return kExitUsage;
    }
    const dsp::DesignSummary& summary = dsp::summary(*design);
    const int dsdRate = dsp::dsdRateHz(*design);
    ctx.log.line("DSD%d (%d Hz), modulator %s order %d, gain %s, predistortion %s", o.oversampling, dsdRate,
                 modulatorName(o.modulator.type), o.modulator.order,
                 o.gain ? std::to_string(*o.gain).c_str() : "automatic", o.predistortion ? "on" : "off");
    ctx.log.line("design summary:");
    ctx.log.text(summary.text);
    ctx.log.line("applied gain %.6f, pass-band ripple %.4f dB, image rejection %.1f dB, max stable input %.2f dBFS",
                 summary.appliedGain, summary.passbandRippleDb, summary.stopbandAttenuationDb, summary.maxStableInputDbfs);
    if (o.verbose || !o.logTopics.empty())
        std::fprintf(stderr, "%s\n", summary.text.c_str());
    if (config.effectGain > 1.0) {
        const char* how = summary.gainLoweredForEffects ? "the requested gain was lowered"
                          : o.gain                     ? "the requested gain already leaves room"
                                                       : "the automatic gain was lowered";
        ctx.log.line("headroom: effects can raise the level by %.2f dB; %s to %.2f dB so the modulator stays "
                     "below its stable level", 20 * std::log10(config.effectGain), how,
                     20 * std::log10(summary.appliedGain));
        detail(ctx, "headroom: effects can add %.2f dB; %s (gain %.2f dB)", 20 * std::log10(config.effectGain), how,
               20 * std::log10(summary.appliedGain));
    }

    if (!outputFolderExists(o.output, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    // Channels go out in the container's order and carry the input's
    // speaker positions (its channel mask) as the container's labels.
    const std::vector<std::size_t> order = io::containerOrder(in.layout);
    const LoudnessSetup loudness = prepareLoudness(ctx, input, channelSources(order, o.swapChannels),
        chain.outChannels() == in.channels ? writtenLayout(in.layout, order) : io::ChannelLayout{},
        in.channels, in.sampleRate, summary, tags);
    if (loudness.exitCode)
        return loudness.exitCode;
    auto writer = io::makeDsdWriter(container);
    const int dstLevel = o.dst ? o.dstLevel : 0;
    if (dstLevel > 0)
        ctx.log.line("DST compression level %d", dstLevel);
    io::DsdFormat format;
    format.channels = chain.outChannels();
    format.sampleRate = dsdRate;
    format.dstLevel = dstLevel;
    // The input's speaker labels only hold while the channels are the input's.
    if (chain.outChannels() == in.channels)
        format.layout = writtenLayout(in.layout, order);
    if (!writer->open(o.output, format, tags, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }

    const auto channels = static_cast<std::size_t>(in.channels);
    const int outChannels = chain.outChannels();
    std::vector<dsp::ChannelEncoder> encoders;
    encoders.reserve(static_cast<std::size_t>(outChannels));
    for (int c = 0; c < outChannels; ++c)
        encoders.emplace_back(design);
    const std::vector<std::size_t> source = channelSources(order, o.swapChannels);

    ChannelPool pool(ChannelPool::threadsFor(std::max(in.channels, outChannels)));
    const std::size_t frames = blockFrames(in.sampleRate, dsdRate);
    std::vector<double> interleaved;
    std::vector<std::vector<double>> planar(channels);
    std::vector<std::vector<std::uint8_t>> bytes(static_cast<std::size_t>(outChannels));
    std::vector<ChannelLevel> levels(channels);
    InputAnalysis inputAnalysis(o, in.channels, in.sampleRate, writtenLayout(in.layout, order));
    // The measuring pass took the first half of the progress.
    const double progressBase = loudness.measured ? 50.0 : 0.0;
    std::vector<std::uint64_t> nonFinite(channels, 0);
    std::unique_ptr<report::RunReport> pdf;
    if (o.pdfReport)
        pdf = std::make_unique<report::RunReport>(design, outChannels, in.sampleRate, in.frames);
    const auto started = std::chrono::steady_clock::now();
    long long done = 0;
    bool stopped = false;

    for (;;) {
        if (ctx.stopRequested()) {
            stopped = true;
            break;
        }
        const long long got = reader.read(frames, interleaved, &error);
        if (got < 0) {
            writer->discard();
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
        if (got == 0)
            break;
        auto n = static_cast<std::size_t>(got);
        if (chain.empty() && restoration.empty()) {
            pool.run(in.channels, [&](int ci) {
                const auto c = static_cast<std::size_t>(ci);
                nonFinite[c] += takeChannel(interleaved, channels, source[c], n, planar[c]);
                levels[c].add(planar[c].data(), n, 1);
                inputAnalysis.addChannel(c, planar[c].data(), n);
            });
            inputAnalysis.addBlock(planar, n);
            pool.run(in.channels, [&](int ci) {
                const auto c = static_cast<std::size_t>(ci);
                scaleBlock(planar[c], n, loudness.gain);
                bytes[c].clear();
                encoders[c].process(planar[c].data(), n, bytes[c]);
            });
            if (pdf)
                pdf->add(planar, n, bytes);
        } else {
            planar.resize(channels);
            for (std::size_t c = 0; c < channels; ++c) {
                nonFinite[c] += takeChannel(interleaved, channels, source[c], n, planar[c]);
                levels[c].add(planar[c].data(), n, 1);
                inputAnalysis.addChannel(c, planar[c].data(), n);
            }
            inputAnalysis.addBlock(planar, n);
            if (!restoration.empty())
                n = restoration.run(planar, n);
            const std::size_t ready = chain.empty() ? n : chain.run(planar, n);
            pool.run(outChannels, [&](int ci) {
                const auto c = static_cast<std::size_t>(ci);
                scaleBlock(planar[c], ready, loudness.gain);
                bytes[c].clear();
                encoders[c].process(planar[c].data(), ready, bytes[c]);
            });
            if (pdf)
                pdf->add(planar, ready, bytes);
        }
        if (!writer->write(bytes, &error)) {
            writer->discard();
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
        done += got;
        const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
        const double speed = elapsed > 0 ? static_cast<double>(done) / in.sampleRate / elapsed : 0;
        if (in.frames > 0)
            ctx.progress.update(progressBase + (100.0 - progressBase) * static_cast<double>(done)
                                / static_cast<double>(in.frames), speed);
    }
    if (!stopped) {
        // The restoration's held-back frames go through the effects first,
        // then the effects' own.
        std::vector<std::vector<double>> restored;
        std::size_t restoredTail = restoration.empty() ? 0 : restoration.drain(restored);
        if (restoredTail > 0 && !chain.empty())
            restoredTail = chain.run(restored, restoredTail);
        const std::size_t tail = chain.empty() ? 0 : chain.drain(planar);
        pool.run(outChannels, [&](int ci) {
            const auto c = static_cast<std::size_t>(ci);
            bytes[c].clear();
            if (restoredTail > 0) {
                scaleBlock(restored[c], restoredTail, loudness.gain);
                encoders[c].process(restored[c].data(), restoredTail, bytes[c]);
            }
            scaleBlock(planar[c], tail, loudness.gain);
            if (tail > 0)
                encoders[c].process(planar[c].data(), tail, bytes[c]);
            encoders[c].finish(bytes[c]);
        });
        if (pdf)
            pdf->add(planar, tail, bytes);
        if (!writer->write(bytes, &error)) {
            writer->discard();
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
    }
    if (!writer->finalize(&error)) {
        writer->discard();
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    ctx.progress.finish(!stopped);

    const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    const double seconds = static_cast<double>(done) / in.sampleRate;
    ctx.log.line("converted %.3f s of audio in %.3f s (%.1fx realtime), %llu DSD bytes per channel", seconds, elapsed,
                 elapsed > 0 ? seconds / elapsed : 0.0, static_cast<unsigned long long>(writer->bytesPerChannel()));
    std::uint64_t overloads = 0;
    for (std::size_t c = 0; c < channels; ++c)
        ctx.log.line("input channel %zu: peak %.2f dBFS, rms %.2f dBFS", c + 1, levels[c].peakDbfs(),
                     levels[c].rmsDbfs());
    for (std::size_t c = 0; c < encoders.size(); ++c) {
        const auto st = encoders[c].stats();
        overloads += st.overloads;
        ctx.log.line("output channel %zu: modulator peak input %.4f, overloads %llu, resets %llu", c + 1, st.peakInput,
                     static_cast<unsigned long long>(st.overloads), static_cast<unsigned long long>(st.resets));
    }
    for (const std::string& line : restoration.summary())
        ctx.log.line("%s", line.c_str());
    if (!chain.empty() && chain.limitedSamples() > 0)
        ctx.log.line("safety limiter: %llu sample(s) turned down, by at most %.2f dB",
                     static_cast<unsigned long long>(chain.limitedSamples()), -20 * std::log10(chain.smallestLimiterGain()));
    reportSignalRepairs(ctx, nonFinite, encoders);
    if (overloads > 0)
        report(ctx, "warning: the modulator was overloaded at %llu sample(s); lower the gain (--absdb)",
               static_cast<unsigned long long>(overloads));
    detail(ctx, "%.3f s of audio in %.3f s (%.1fx realtime)", seconds, elapsed, elapsed > 0 ? seconds / elapsed : 0.0);
    printAnalysisReport(o, levels, inputAnalysis);
    if (stopped)
        return reportStopped(ctx);
    detail(ctx, "done: %s", o.output.c_str());
    if (pdf)
        pdf->finish(ctx, report::reportFacts(o, in, summary, chain, levels, encoders, seconds));
    return kExitOk;
}

} // namespace zuvo::run
