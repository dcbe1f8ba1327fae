// PCM -> high-rate PCM: decode a block, resample each channel on its own
// thread, write through libsndfile.
#include "run/dxd_run.h"

#include <chrono>

#include "io/pcm_reader.h"
#include "io/pcm_writer.h"
#include "run/channel_pool.h"
#include "run/exit_codes.h"
#include "run/levels.h"
#include "run/output_checks.h"
#include "run/pcm_input.h"
#include "run/pcm_output_format.h"
#include "run/planar_pcm_sink.h"

namespace zuvo::run {

int runDxd(RunContext& ctx)
{
    const cli::EngineOptions& o = ctx.options;
    const std::string& input = o.inputs.front();
    io::PcmReader reader;
    if (const int refused = openPcmInput(ctx, reader, input, InputDetail::Plain))
        return refused;
    const io::PcmStreamInfo& in = reader.info();
    std::string error;
    const auto ch = static_cast<std::size_t>(in.channels);
    std::vector<dsp::ChannelResampler> resamplers;
    for (std::size_t c = 0; c < ch; ++c) {
        resamplers.emplace_back(in.sampleRate, o.dxdRate, &error);
        if (!resamplers.back().valid()) {
            report(ctx, "resampler refused %d -> %d Hz: %s", in.sampleRate, o.dxdRate, error.c_str());
            return kExitUsage;
        }
    }
    io::PcmOutputFormat format;
    format.channels = in.channels;
    format.sampleRate = o.dxdRate;
    format.sample = pcmSampleFormat(o);
    format.flac = o.flac;
    if (!io::checkPcmOutput(o.output, format, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitUsage;
    }
    if (!outputFolderExists(o.output, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    io::Tags tags = o.tags;
    if (o.metadataFromInput)
        tags.fillEmptyFrom(reader.tags());
    io::PcmWriter writer;
    if (!writer.open(o.output, format, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    writer.setTags(tags);
    ctx.log.line("dxd: %s %d Hz -> %d Hz, %d channel(s)", input.c_str(), in.sampleRate, o.dxdRate, in.channels);

    const std::vector<std::size_t> source = channelSources(ch, o.swapChannels);
    ChannelPool pool(ChannelPool::threadsFor(in.channels));
    std::vector<double> block;
    std::vector<std::vector<double>> planar(ch);
    PlanarPcmSink sink(writer, ch);
    std::vector<ChannelLevel> levels(ch);
    const auto started = std::chrono::steady_clock::now();
    long long done = 0;
    bool stopped = false;
    std::vector<std::uint64_t> nonFinite(ch, 0);
    for (;;) {
        if (ctx.stopRequested()) {
            stopped = true;
            break;
        }
        const long long got = reader.read(16384, block, &error);
        if (got < 0) {
            writer.discard();
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
        if (got == 0)
            break;
        const auto n = static_cast<std::size_t>(got);
        pool.run(in.channels, [&](int ci) {
            const auto c = static_cast<std::size_t>(ci);
            nonFinite[c] += takeChannel(block, ch, source[c], n, planar[c]);
            levels[c].add(planar[c].data(), n, 1);
            resamplers[c].process(planar[c].data(), n, sink.channel(c));
        });
        if (!sink.flush(&error)) {
            writer.discard();
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
        done += got;
        const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
        if (in.frames > 0)
            ctx.progress.update(100.0 * static_cast<double>(done) / static_cast<double>(in.frames),
                                elapsed > 0 ? static_cast<double>(done) / in.sampleRate / elapsed : 0);
    }
    if (!stopped) {
        pool.run(in.channels, [&](int ci) {
            const auto c = static_cast<std::size_t>(ci);
            resamplers[c].finish(sink.channel(c));
        });
        if (!sink.flush(&error)) {
            writer.discard();
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
    }
    if (!writer.finalize(&error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    ctx.progress.finish(!stopped);
    const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    const double seconds = static_cast<double>(done) / in.sampleRate;
    ctx.log.line("resampled %.3f s in %.3f s; %lld sample(s) clipped", seconds, elapsed, writer.clippedSamples());
    if (writer.clippedSamples() > 0)
        report(ctx, "warning: %lld sample(s) exceeded full scale and were clipped", writer.clippedSamples());
    reportSignalRepairs(ctx, nonFinite, {});
    printLevelReport(o, levels);
    if (stopped)
        return reportStopped(ctx);
    return kExitOk;
}

} // namespace zuvo::run
