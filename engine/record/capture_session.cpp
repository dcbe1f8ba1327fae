#include "record/capture_session.h"

#include "io/dsd_writer.h"
#include "run/exit_codes.h"
#include "run/output_checks.h"

namespace zuvo::record {

using alsa::AlsaDevice;
using run::report;

const char* formatName(snd_pcm_format_t f)
{
    const char* n = snd_pcm_format_name(f);
    return n ? n : "?";
}

int openCapture(run::RunContext& ctx, const ChooseFn& choose, Capture& cap)
{
    const cli::EngineOptions& o = ctx.options;
    const RecordOptions& r = o.record;
    std::string error;
    if (!run::outputFolderExists(o.output, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    if (!cap.device.open(r.device, &error, AlsaDevice::Direction::Capture, r.exclusive)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    AlsaDevice& device = cap.device;
    const AcceptsFn accepts = [&device](snd_pcm_format_t f, unsigned rate, unsigned ch) {
        return device.accepts(f, rate, ch);
    };
    if (!choose(accepts, cap.fmt, &error)) {
        report(ctx, "capture device \"%s\"%s: %s", r.device.c_str(), r.exclusive ? " (exclusive)" : "", error.c_str());
        return kExitFailure;
    }
    if (cap.fmt.channels > static_cast<unsigned>(io::maxChannels(io::DsdContainer::Dsf))) {
        report(ctx, "a DSF file holds at most %d channels", io::maxChannels(io::DsdContainer::Dsf));
        return kExitUsage;
    }
    if (!device.configure(cap.fmt.format, cap.fmt.rate, cap.fmt.channels, &error,
                          static_cast<std::size_t>(r.bufferFrames))) {
        report(ctx, "capture device \"%s\": %s", r.device.c_str(), error.c_str());
        return kExitFailure;
    }
    if (r.monitor) {
        const std::string name = r.monitorDevice.empty() ? "default" : r.monitorDevice;
        if (cap.monitorDevice.open(name, &error, AlsaDevice::Direction::Playback, false)
            && cap.monitorDevice.configure(cap.fmt.format, cap.fmt.rate, cap.fmt.channels, &error,
                                           device.periodFrames()))
            cap.monitor = &cap.monitorDevice;
        else
            report(ctx, "warning: monitoring is off: %s; the recording goes on", error.c_str());
    }
    ctx.log.line("record: device \"%s\"%s, %s, %u Hz, %u channel(s), period %zu frames", r.device.c_str(),
                 r.exclusive ? " (exclusive)" : "", formatName(cap.fmt.format), cap.fmt.rate, cap.fmt.channels,
                 device.periodFrames());
    return 0;
}

void captureLoop(Capture& cap, unsigned long long limit, const std::function<bool()>& stop, CaptureQueue& queue,
                 CaptureResult& result)
{
    AlsaDevice& device = cap.device;
    AlsaDevice* monitor = cap.monitor;
    const std::size_t period = device.periodFrames();
    const std::size_t frameBytes = device.frameBytes();
    while (!stop()) {
        std::size_t want = period;
        if (limit > 0) {
            if (result.frames >= limit)
                break;
            want = static_cast<std::size_t>(std::min<unsigned long long>(period, limit - result.frames.load()));
        }
        std::vector<std::uint8_t> raw(want * frameBytes);
        const long long got = device.read(raw.data(), want, stop, &result.error);
        if (got <= 0)
            break;
        const auto n = static_cast<std::size_t>(got);
        raw.resize(n * frameBytes);
        if (monitor) {
            std::string error;
            if (monitor->write(raw.data(), n, stop, &error) < 0) {
                result.monitorProblem = error;
                monitor = nullptr;
            }
        }
        if (!queue.push(std::move(raw)))
            break;
        result.frames += n;
    }
    queue.close();
}

void reportCapture(run::RunContext& ctx, const Capture& cap, const CaptureResult& result)
{
    ctx.log.line("captured %llu frames, %llu overrun(s)", result.frames.load(), cap.device.overruns());
    if (cap.device.overruns() > 0)
        report(ctx, "warning: %llu capture overrun(s) recovered; the recording has a gap at each",
               cap.device.overruns());
    if (!result.monitorProblem.empty())
        report(ctx, "warning: monitoring stopped: %s", result.monitorProblem.c_str());
}

void RecordingProgress::update(unsigned long long frames)
{
    if (ctx_.options.gui && limit_ > 0)
        ctx_.progress.update(100.0 * static_cast<double>(frames) / static_cast<double>(limit_), 1.0);
    if (rate_ > 0 && frames / rate_ >= nextNote_) {
        std::printf("[REC] %llu s recorded\n", nextNote_);
        std::fflush(stdout);
        nextNote_ += 10;
    }
}

void RecordingProgress::finish(bool completed)
{
    if (ctx_.options.gui)
        ctx_.progress.finish(completed);
}

} // namespace zuvo::record
