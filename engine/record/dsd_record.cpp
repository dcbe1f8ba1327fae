#include "record/dsd_record.h"

#include <atomic>
#include <cmath>
#include <thread>

#include "io/dsd_writer.h"
#include "record/capture_session.h"
#include "record/dsd_unpack.h"
#include "run/exit_codes.h"

namespace zuvo::record {

using run::report;

int runDsdRecord(run::RunContext& ctx)
{
    const cli::EngineOptions& o = ctx.options;
    const RecordOptions& r = o.record;
    const bool dop = r.dsdMode != "native";
    const int dsdRate = o.oversampling * 44100;
    Capture cap;
    const int refused = openCapture(ctx, [&](const AcceptsFn& accepts, CaptureFormat& out, std::string* e) {
        return chooseDsdCaptureFormat(accepts, dop, dsdRate, r.channels, out, e);
    }, cap);
    if (refused)
        return refused;
    const CaptureFormat& fmt = cap.fmt;
    if (!std::isnan(r.headroomDb))
        std::printf("[REC] note: --record-headroom does not apply to direct DSD: the device's bits are stored unchanged\n");

    std::string error;
    auto writer = io::makeDsdWriter(io::DsdContainer::Dsf);
    if (!writer->open(o.output, {static_cast<int>(fmt.channels), dsdRate}, o.tags, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    std::printf("[REC] recording %s from \"%s\": %s, %u Hz, %u ch -> DSD%d %s\n", dop ? "DoP" : "native DSD",
                r.device.c_str(), formatName(fmt.format), fmt.rate, fmt.channels, o.oversampling, o.output.c_str());
    std::fflush(stdout);

    std::atomic<bool> abort{false};
    const std::function<bool()> stop = [&] { return abort.load() || ctx.control.received("q") || ctx.stopRequested(); };
    const unsigned long long limit =
        r.durationSeconds > 0 ? static_cast<unsigned long long>(std::llround(r.durationSeconds * fmt.rate)) : 0;
    CaptureQueue queue(static_cast<std::size_t>(fmt.rate) * cap.device.frameBytes() * 4);
    CaptureResult captured;
    RecordingProgress progress(ctx, fmt.rate, limit);
    std::thread deviceThread(captureLoop, std::ref(cap), limit, std::cref(stop), std::ref(queue), std::ref(captured));

    DsdUnpacker unpacker(fmt.format, fmt.channels, dop);
    std::vector<std::uint8_t> block;
    std::vector<std::vector<std::uint8_t>> bytes(fmt.channels);
    std::string writeError;
    while (queue.pop(block)) {
        for (auto& b : bytes)
            b.clear();
        unpacker.unpack(block.data(), block.size() / cap.device.frameBytes(), bytes);
        if (!writer->write(bytes, &writeError)) {
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
    reportCapture(ctx, cap, captured);

    const double seconds = static_cast<double>(writer->bytesPerChannel()) * 8 / dsdRate;
    std::printf("[REC] saved %.3f s to %s\n", seconds, o.output.c_str());
    std::fflush(stdout);
    // PCM words carry a marker-like top byte now and then; a DoP source
    // has them in nearly every frame.
    if (dop && unpacker.frames() > 0 && unpacker.brokenFrames() * 2 > unpacker.frames()) {
        report(ctx, "the device is not delivering DoP: %llu of %llu frame(s) had no valid marker (try --dsd-mode "
                    "native, or --record for PCM); %s is complete but mostly silence",
               static_cast<unsigned long long>(unpacker.brokenFrames()), static_cast<unsigned long long>(unpacker.frames()),
               o.output.c_str());
        return kExitFailure;
    }
    if (unpacker.brokenFrames() > 0)
        report(ctx, "warning: DoP markers broken in %llu of %llu frame(s), first at %.3f s; those frames are "
                    "stored as DSD silence",
               static_cast<unsigned long long>(unpacker.brokenFrames()), static_cast<unsigned long long>(unpacker.frames()),
               static_cast<double>(unpacker.firstBrokenFrame()) / fmt.rate);
    if (!captured.error.empty()) {
        report(ctx, "the capture ended early: %s; what was recorded is saved in %s", captured.error.c_str(),
               o.output.c_str());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace zuvo::record
