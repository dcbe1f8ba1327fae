#pragma once
// The device side of a recording, shared by PCM and direct-DSD capture: open
// and configure the capture device (and the monitor), then a thread that
// reads periods, plays them to the monitor and queues the raw frames.

#include <atomic>
#include <functional>
#include <string>

#include "alsa_device.h"
#include "record/capture_format.h"
#include "record/capture_queue.h"
#include "run/run_context.h"

namespace zuvo::record {

struct Capture {
    alsa::AlsaDevice device;
    alsa::AlsaDevice monitorDevice;
    alsa::AlsaDevice* monitor = nullptr;
    CaptureFormat fmt;
};

struct CaptureResult {
    std::atomic<unsigned long long> frames{0}; // read by the encoding thread while the device thread counts
    std::string error;          // device failure that ended the capture
    std::string monitorProblem; // monitoring given up (the recording went on)
};

using ChooseFn = std::function<bool(const AcceptsFn& accepts, CaptureFormat& out, std::string* error)>;

// Opens, chooses the format with `choose` and configures; on failure reports
// and returns the exit code, else 0. Also opens the monitor when asked.
int openCapture(run::RunContext& ctx, const ChooseFn& choose, Capture& capture);

// The device thread: reads until `stop`, `limit` frames (0 = no limit) or an
// error, then closes the queue.
void captureLoop(Capture& capture, unsigned long long limit, const std::function<bool()>& stop, CaptureQueue& queue,
                 CaptureResult& result);

// Overruns and monitor trouble, after the thread ended.
void reportCapture(run::RunContext& ctx, const Capture& capture, const CaptureResult& result);

const char* formatName(snd_pcm_format_t format);

// Where a recording stands: "[PROGRESS]" lines with --gui and a duration,
// and a "[REC] … s" line on standard output every ten seconds of audio.
// Nothing on standard error, which callers read as trouble.
class RecordingProgress {
public:
    RecordingProgress(run::RunContext& ctx, unsigned rate, unsigned long long limit)
        : ctx_(ctx), rate_(rate), limit_(limit) {}
    void update(unsigned long long frames);
    void finish(bool completed);

private:
    run::RunContext& ctx_;
    unsigned rate_;
    unsigned long long limit_;
    unsigned long long nextNote_ = 10;
};

} // namespace zuvo::record
