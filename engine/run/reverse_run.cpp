// DSD -> PCM: read every input in turn, decimate each channel on its own
// thread, write interleaved PCM through libsndfile.
#include "run/reverse_run.h"

#include <chrono>
#include <memory>

#include "io/dsd_reader.h"
#include "io/pcm_writer.h"
#include "run/channel_pool.h"
#include "run/exit_codes.h"
#include "run/output_checks.h"
#include "run/pcm_output_format.h"
#include "run/planar_pcm_sink.h"

namespace zuvo::run {

namespace {
constexpr std::size_t kBlockBytes = 1 << 16; // per channel per block
}

int runReverse(RunContext& ctx)
{
    const cli::EngineOptions& o = ctx.options;
    std::string error;
    for (const auto& in : o.inputs) {
        if (sameFile(in, o.output)) {
            report(ctx, "the output is an input file: %s", o.output.c_str());
            return kExitUsage;
        }
    }
    std::vector<std::unique_ptr<io::DsdReader>> readers;
    std::uint64_t totalBytes = 0;
    for (const auto& in : o.inputs) {
        auto r = io::openDsdFile(in, &error);
        if (!r) {
            report(ctx, "%s", error.c_str());
            return kExitFailure;
        }
        if (!readers.empty() && (r->info().channels != readers[0]->info().channels
                                 || r->info().sampleRate != readers[0]->info().sampleRate)) {
            report(ctx, "%s (%d ch, %d Hz) does not match the first input (%d ch, %d Hz); inputs are joined, so they must agree",
                   in.c_str(), r->info().channels, r->info().sampleRate, readers[0]->info().channels,
                   readers[0]->info().sampleRate);
            return kExitUsage;
        }
        detail(ctx, "input: %s, %s, %d Hz, %d channel(s), %.3f s", in.c_str(), r->info().container.c_str(),
               r->info().sampleRate, r->info().channels,
               static_cast<double>(r->info().bytesPerChannel) * 8.0 / r->info().sampleRate);
        totalBytes += r->info().bytesPerChannel;
        readers.push_back(std::move(r));
    }
    const int channels = readers[0]->info().channels;
    const int dsdRate = readers[0]->info().sampleRate;

    dsp::ReverseConfig config;
    config.dsdRate = dsdRate;
    config.outputRate = o.sampling;
    config.lowpassHz = o.lowpassHz;
    std::vector<dsp::ChannelDecimator> decimators;
    for (int c = 0; c < channels; ++c) {
        decimators.emplace_back(config, &error);
        if (!decimators.back().valid()) {
            report(ctx, "decimator refused: %s", error.c_str());
            return kExitUsage;
        }
    }
    io::PcmOutputFormat format;
    format.channels = channels;
    format.sampleRate = decimators[0].outputRate();
    format.sample = pcmSampleFormat(o);
    format.flac = o.flac;
    if (!io::checkPcmOutput(o.output, format, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitUsage;
    }
    ctx.log.line("reverse: %zu input(s), DSD %d Hz, %d channel(s) -> %d Hz, lowpass %s", readers.size(), dsdRate,
                 channels, format.sampleRate, o.lowpassHz > 0 ? std::to_string(o.lowpassHz).c_str() : "default");
    if (!outputFolderExists(o.output, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    io::PcmWriter writer;
    io::Tags tags = o.tags;
    tags.fillEmptyFrom(readers[0]->tags());
    if (!writer.open(o.output, format, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    writer.setTags(tags);

    const auto ch = static_cast<std::size_t>(channels);
    ChannelPool pool(ChannelPool::threadsFor(channels));
    std::vector<std::vector<std::uint8_t>> bytes;
    PlanarPcmSink sink(writer, ch);

    const auto started = std::chrono::steady_clock::now();
    std::uint64_t done = 0;
    bool stopped = false;
    for (auto& reader : readers) {
        for (;;) {
            if (ctx.stopRequested()) {
                stopped = true;
                break;
            }
            const long long got = reader->read(kBlockBytes, bytes, &error);
            if (got < 0) {
                writer.discard();
                report(ctx, "%s", error.c_str());
                return kExitFailure;
            }
            if (got == 0)
                break;
            pool.run(channels, [&](int ci) {
                const auto c = static_cast<std::size_t>(ci);
                decimators[c].process(bytes[c].data(), bytes[c].size(), sink.channel(c));
            });
            if (!sink.flush(&error)) {
                writer.discard();
                report(ctx, "%s", error.c_str());
                return kExitFailure;
            }
            done += static_cast<std::uint64_t>(got);
            const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
            const double speed = elapsed > 0 ? static_cast<double>(done) * 8.0 / dsdRate / elapsed : 0;
            if (totalBytes > 0)
                ctx.progress.update(100.0 * static_cast<double>(done) / static_cast<double>(totalBytes), speed);
        }
        if (stopped)
            break;
    }
    if (!stopped) {
        pool.run(channels, [&](int ci) {
            const auto c = static_cast<std::size_t>(ci);
            decimators[c].finish(sink.channel(c));
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
    const double seconds = static_cast<double>(done) * 8.0 / dsdRate;
    ctx.log.line("decoded %.3f s of DSD in %.3f s (%.1fx realtime); %lld sample(s) clipped", seconds, elapsed,
                 elapsed > 0 ? seconds / elapsed : 0.0, writer.clippedSamples());
    if (writer.clippedSamples() > 0)
        report(ctx, "warning: %lld sample(s) exceeded full scale and were clipped", writer.clippedSamples());
    if (stopped)
        return reportStopped(ctx);
    detail(ctx, "%.3f s of audio in %.3f s (%.1fx realtime); done: %s", seconds, elapsed,
           elapsed > 0 ? seconds / elapsed : 0.0, o.output.c_str());
    return kExitOk;
}

} // namespace zuvo::run
