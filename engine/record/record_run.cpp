// Two threads: the device thread reads periods from ALSA (and plays them to
// the monitor device when asked), the calling thread modulates and writes
// the DSF, like a file conversion whose input never ends by itself.
#include "record/record_run.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <thread>

#include "alsa_device.h"
#include "io/dsd_writer.h"
#include "record/capture_format.h"
#include "record/capture_queue.h"
#include "run/channel_pool.h"
#include "run/exit_codes.h"
#include "run/forward_run.h"
#include "run/levels.h"
#include "run/output_checks.h"
#include "run/pcm_input.h"

namespace zuvo::record {

using alsa::AlsaDevice;
using run::report;

namespace {

const char* formatName(snd_pcm_format_t f)
{
    const char* n = snd_pcm_format_name(f);
    return n ? n : "?";
}

struct CaptureResult {
    unsigned long long frames = 0;
    std::string error;              // device failure that ended the capture
    std::string monitorProblem;     // monitoring given up (the recording went on)
};

// The device thread's whole job.
void capture(AlsaDevice& device, AlsaDevice* monitor, const CaptureFormat& fmt, unsigned long long limit,
             const std::function<bool()>& stop, CaptureQueue& queue, CaptureResult& result)
{
    const std::size_t period = device.periodFrames();
    std::vector<std::uint8_t> raw(period * device.frameBytes());
    while (!stop()) {
        std::size_t want = period;
        if (limit > 0) {
            if (result.frames >= limit)
                break;
            want = static_cast<std::size_t>(std::min<unsigned long long>(period, limit - result.frames));
        }
        const long long got = device.read(raw.data(), want, stop, &result.error);
        if (got <= 0)
            break;
        const auto n = static_cast<std::size_t>(got);
        if (monitor) {
            std::string error;
            if (monitor->write(raw.data(), n, stop, &error) < 0) {
                result.monitorProblem = error;
                monitor = nullptr;
            }
        }
        std::vector<double> block;
        block.reserve(n * fmt.channels);
        toDoubles(fmt.format, raw.data(), n * fmt.channels, block);
        if (!queue.push(std::move(block)))
            break;
        result.frames += n;
    }
    queue.close();
}

bool openMonitor(AlsaDevice& monitor, const RecordOptions& r, const CaptureFormat& f, std::size_t period,
                 std::string* error)
{
    const std::string name = r.monitorDevice.empty() ? "default" : r.monitorDevice;
    return monitor.open(name, error, AlsaDevice::Direction::Playback, false)
        && monitor.configure(f.format, f.rate, f.channels, error, period);
}

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
    const cli::EngineOptions& o = ctx.options;
    const RecordOptions& r = o.record;
    std::string error;
    if (!run::outputFolderExists(o.output, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    AlsaDevice device;
    if (!device.open(r.device, &error, AlsaDevice::Direction::Capture, r.exclusive)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    CaptureFormat fmt;
    const auto accepts = [&device](snd_pcm_format_t f, unsigned rate, unsigned ch) { return device.accepts(f, rate, ch); };
    if (!chooseCaptureFormat(accepts, r.sampleRate, r.channels, fmt, &error)) {
        report(ctx, "capture device \"%s\"%s: %s", r.device.c_str(), r.exclusive ? " (exclusive)" : "", error.c_str());
        return kExitFailure;
    }
    if (fmt.channels > static_cast<unsigned>(io::maxChannels(io::DsdContainer::Dsf))) {
        report(ctx, "a DSF file holds at most %d channels", io::maxChannels(io::DsdContainer::Dsf));
        return kExitUsage;
    }
    if (!device.configure(fmt.format, fmt.rate, fmt.channels, &error, static_cast<std::size_t>(r.bufferFrames))) {
        report(ctx, "capture device \"%s\": %s", r.device.c_str(), error.c_str());
        return kExitFailure;
    }

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
    ctx.log.line("record: device \"%s\"%s, %s, %u Hz, %u channel(s), period %zu frames; DSD%d (%d Hz), modulator %s",
                 r.device.c_str(), r.exclusive ? " (exclusive)" : "", formatName(fmt.format), fmt.rate, fmt.channels,
                 device.periodFrames(), o.oversampling, dsdRate, run::modulatorName(o.modulator.type));
    ctx.log.text(summary.text);
    ctx.log.line("applied gain %.6f (%.2f dB), input clean up to %.2f dBFS", summary.appliedGain,
                 20 * std::log10(summary.appliedGain), summary.maxStableInputDbfs);

    AlsaDevice monitorDevice;
    AlsaDevice* monitor = nullptr;
    if (r.monitor) {
        if (openMonitor(monitorDevice, r, fmt, device.periodFrames(), &error))
            monitor = &monitorDevice;
        else
            report(ctx, "warning: monitoring is off: %s; the recording goes on", error.c_str());
    }

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
    CaptureQueue queue(static_cast<std::size_t>(fmt.rate) * channels * 4);
    CaptureResult captured;
    std::thread deviceThread(capture, std::ref(device), monitor, std::cref(fmt), limit, std::cref(stop),
                             std::ref(queue), std::ref(captured));

    // Blocks of a few thousand frames keep the pool's per-call cost small.
    const std::size_t blockSamples = std::max<std::size_t>(4096, device.periodFrames()) * channels;
    std::vector<double> pending, block;
    std::vector<std::vector<double>> planar(channels);
    std::vector<std::vector<std::uint8_t>> bytes(channels);
    std::vector<run::ChannelLevel> levels(channels);
    std::string writeError;
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
        pending.clear();
        return writer->write(bytes, &writeError);
    };
    bool more = true;
    while (more) {
        more = queue.pop(block);
        if (more)
            pending.insert(pending.end(), block.begin(), block.end());
        if (pending.size() >= blockSamples || !more) {
            if (!encode(!more)) {
                abort = true;
                queue.close();
                break;
            }
        }
        if (limit > 0)
            ctx.progress.update(100.0 * static_cast<double>(captured.frames) / static_cast<double>(limit), 1.0);
    }
    deviceThread.join();
    device.drop();
    if (!writeError.empty() || !writer->finalize(&writeError)) {
        writer->discard();
        report(ctx, "%s", writeError.c_str());
        return kExitFailure;
    }
    ctx.progress.finish(captured.error.empty());

    const double seconds = static_cast<double>(captured.frames) / fmt.rate;
    ctx.log.line("recorded %.3f s (%llu frames), %llu DSD bytes per channel, %llu overrun(s)", seconds,
                 captured.frames, static_cast<unsigned long long>(writer->bytesPerChannel()), device.overruns());
    if (device.overruns() > 0)
        report(ctx, "warning: %llu capture overrun(s) recovered; the recording has a gap at each",
               device.overruns());
    if (!captured.monitorProblem.empty())
        report(ctx, "warning: monitoring stopped: %s", captured.monitorProblem.c_str());
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
    return kExitOk;
}

} // namespace zuvo::record
