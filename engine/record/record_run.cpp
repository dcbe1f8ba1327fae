// Two threads: the device thread reads periods from ALSA (and plays them to
// the monitor device when asked), the calling thread modulates and writes
// the DSF, like a file conversion whose input never ends by itself.
#include "record/record_run.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <memory>
#include <thread>

#include "alsa_device.h"
#include "io/dsd_writer.h"
#include "report/run_facts.h"
#include "report/run_report.h"
#include "record/capture_format.h"
#include "record/capture_queue.h"
#include "record/capture_session.h"
#include "record/dsd_record.h"
#include "run/channel_pool.h"
#include "run/exit_codes.h"
#include "run/forward_run.h"
#include "run/levels.h"
#include "run/pcm_input.h"

namespace zuvo::record {

using alsa::AlsaDevice;
using run::report;

namespace {

void printSection(const char* title, const std::vector<std::string>& devices, bool numbered)
{
    std::printf("%s (%zu):\n", title, devices.size());
    for (std::size_t i = 0; i < devices.size(); ++i) {
        std::string line = devices[i];
        const auto tab = line.find('\t');
        if (tab != std::string::npos)
            line = line.substr(0, tab) + " \u2014 " + line.substr(tab + 1);
        // Only input devices carry the "[n] " mark that callers count.
        if (numbered)
            std::printf("  [%zu] %s\n", i, line.c_str());
        else
            std::printf("  - %s\n", line.c_str());
    }
}

} // namespace

int listDevices()
{
    printSection("Available audio INPUT devices", AlsaDevice::listDevices(AlsaDevice::Direction::Capture), true);
    printSection("Available audio OUTPUT devices", AlsaDevice::listDevices(AlsaDevice::Direction::Playback), false);
    std::fflush(stdout);
    return kExitOk;
}

int runRecord(run::RunContext& ctx)
{
    if (ctx.options.record.dsd)
        return runDsdRecord(ctx);
    const cli::EngineOptions& o = ctx.options;
    const RecordOptions& r = o.record;
    std::string error;
    Capture cap;
    const int refused = openCapture(ctx, [&r](const AcceptsFn& accepts, CaptureFormat& out, std::string* e) {
        return chooseCaptureFormat(accepts, r.sampleRate, r.channels, out, e);
    }, cap);
    if (refused)
        return refused;
    const CaptureFormat& fmt = cap.fmt;

    dsp::ForwardConfig config = run::forwardConfig(o, static_cast<int>(fmt.rate));
    if (!o.gain && !std::isnan(r.headroomDb))
        config.gain = std::pow(10.0, -r.headroomDb / 20.0);
    auto design = dsp::designForward(config, &error);
    if (!design) {
        report(ctx, "design refused: %s", error.c_str());
        return kExitUsage;
    }
    const dsp::DesignSummary& summary = dsp::summary(*design);
    const int dsdRate = dsp::dsdRateHz(*design);
    ctx.log.line("record: DSD%d (%d Hz), modulator %s", o.oversampling, dsdRate, run::modulatorName(o.modulator.type));
    ctx.log.text(summary.text);
    ctx.log.line("applied gain %.6f (%.2f dB), input clean up to %.2f dBFS", summary.appliedGain,
                 20 * std::log10(summary.appliedGain), summary.maxStableInputDbfs);

    auto writer = io::makeDsdWriter(io::DsdContainer::Dsf);
    if (!writer->open(o.output, {static_cast<int>(fmt.channels), dsdRate}, o.tags, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    std::printf("[REC] recording from \"%s\": %s, %u Hz, %u ch -> DSD%d %s\n", r.device.c_str(),
                formatName(fmt.format), fmt.rate, fmt.channels, o.oversampling, o.output.c_str());
    std::fflush(stdout);

    const auto channels = static_cast<std::size_t>(fmt.channels);
    std::vector<dsp::ChannelEncoder> encoders;
    for (std::size_t c = 0; c < channels; ++c)
        encoders.emplace_back(design);
    const std::vector<std::size_t> source = run::channelSources(channels, o.swapChannels);
    run::ChannelPool pool(run::ChannelPool::threadsFor(static_cast<int>(channels)));

    std::atomic<bool> abort{false};
    const std::function<bool()> stop = [&] { return abort.load() || ctx.control.received("q") || ctx.stopRequested(); };
    const unsigned long long limit =
        r.durationSeconds > 0 ? static_cast<unsigned long long>(std::llround(r.durationSeconds * fmt.rate)) : 0;
    // Four seconds of slack between the device and the modulator.
    CaptureQueue queue(static_cast<std::size_t>(fmt.rate) * cap.device.frameBytes() * 4);
    CaptureResult captured;
    RecordingProgress progress(ctx, fmt.rate, limit);
    std::thread deviceThread(captureLoop, std::ref(cap), limit, std::cref(stop), std::ref(queue), std::ref(captured));

    // Blocks of a few thousand frames keep the pool's per-call cost small.
    const std::size_t blockSamples = std::max<std::size_t>(4096, cap.device.periodFrames()) * channels;
    const std::size_t bytesPerSample = sampleBytes(fmt.format);
    std::vector<double> pending;
    std::vector<std::uint8_t> block;
    std::vector<std::vector<double>> planar(channels);
    std::vector<std::vector<std::uint8_t>> bytes(channels);
    std::vector<run::ChannelLevel> levels(channels);
    std::string writeError;
    // With a set duration the report's excerpts spread over it; otherwise
    // they are taken from the start.
    std::unique_ptr<report::RunReport> pdf;
    if (o.pdfReport)
        pdf = std::make_unique<report::RunReport>(design, static_cast<int>(channels), static_cast<int>(fmt.rate),
                                                  static_cast<long long>(limit));
    const auto encode = [&](bool last) {
        const std::size_t n = pending.size() / channels;
        pool.run(static_cast<int>(channels), [&](int ci) {
            const auto c = static_cast<std::size_t>(ci);
            bytes[c].clear();
            run::takeChannel(pending, channels, source[c], n, planar[c]);
            levels[c].add(planar[c].data(), n, 1);
            encoders[c].process(planar[c].data(), n, bytes[c]);
            if (last)
                encoders[c].finish(bytes[c]);
        });
        if (pdf)
            pdf->add(planar, n, bytes);
        pending.clear();
        return writer->write(bytes, &writeError);
    };
    bool more = true;
    while (more) {
        more = queue.pop(block);
        if (more)
            toDoubles(fmt.format, block.data(), block.size() / bytesPerSample, pending);
        if ((pending.size() >= blockSamples || !more) && !encode(!more)) {
            abort = true;
            queue.close();
            break;
        }
        progress.update(captured.frames);
    }
    deviceThread.join();
    cap.device.drop();
    if (!writeError.empty() || !writer->finalize(&writeError)) {
        writer->discard();
        report(ctx, "%s", writeError.c_str());
        return kExitFailure;
    }
    progress.finish(captured.error.empty());

    const double seconds = static_cast<double>(captured.frames.load()) / fmt.rate;
    ctx.log.line("recorded %.3f s, %llu DSD bytes per channel", seconds,
                 static_cast<unsigned long long>(writer->bytesPerChannel()));
    reportCapture(ctx, cap, captured);
    std::uint64_t overloads = 0;
    for (std::size_t c = 0; c < channels; ++c) {
        overloads += encoders[c].stats().overloads;
        ctx.log.line("channel %zu: input peak %.2f dBFS, rms %.2f dBFS", c + 1, levels[c].peakDbfs(), levels[c].rmsDbfs());
    }
    if (overloads > 0)
        report(ctx, "warning: the modulator was overloaded at %llu sample(s); raise --record-headroom",
               static_cast<unsigned long long>(overloads));
    std::printf("[REC] saved %.3f s to %s\n", seconds, o.output.c_str());
    std::fflush(stdout);
    if (!captured.error.empty()) {
        report(ctx, "the capture ended early: %s; what was recorded is saved in %s", captured.error.c_str(),
               o.output.c_str());
        return kExitFailure;
    }
    if (pdf)
        pdf->finish(ctx, report::recordFacts(o, r.device, static_cast<int>(fmt.rate), static_cast<int>(channels),
                                             summary, levels, encoders, seconds));
    return kExitOk;
}

} // namespace zuvo::record
