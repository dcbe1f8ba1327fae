#include "player_run.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "alsa_device.h"
#include "frame_producer.h"
#include "piece_queue.h"

namespace zuvo::player {

using alsa::AlsaDevice;

namespace {

void say(const std::string& line)
{
    std::fputs((line + "\n").c_str(), stdout);
    std::fflush(stdout);
}

void complain(const std::string& line)
{
    std::fputs(("ZuvoPlayerEngine: error: " + line + "\n").c_str(), stderr);
    std::fflush(stderr);
}

// Fixed-point text independent of the process locale (the front-end sets one).
std::string seconds(double s)
{
    char buf[32];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, std::max(0.0, s), std::chars_format::fixed, 1);
    return ec == std::errc() ? std::string(buf, end) : std::string("0.0");
}

// Without -stream the player reads far ahead, so a short file is in memory
// whole and a slow disk cannot interrupt it; with -stream it keeps about half
// a second ahead. Both are bounded: a 4 GB DSD512 file never sits in memory.
std::size_t queueCapacity(bool stream, std::size_t bytesPerSecond)
{
    if (!stream)
        return std::size_t(256) << 20;
    return std::clamp<std::size_t>(bytesPerSecond / 2, std::size_t(1) << 20, std::size_t(8) << 20);
}

class Progress {
public:
    Progress(double duration, unsigned rate) : duration_(duration), rate_(rate) {}

    void maybeReport(long long framesWritten, long long delay, bool force)
    {
        const auto now = std::chrono::steady_clock::now();
        if (!force && now - last_ < std::chrono::seconds(1))
            return;
        last_ = now;
        const double pos = std::min(duration_, double(std::max(0LL, framesWritten - delay)) / rate_);
        say("[PROGRESS] pos=" + seconds(pos) + " dur=" + seconds(duration_));
    }

private:
    double duration_;
    unsigned rate_;
    std::chrono::steady_clock::time_point last_{};
};

} // namespace

int listDevices()
{
    const std::vector<std::string> devices = AlsaDevice::listDevices(AlsaDevice::Direction::Playback);
    say("Playback devices (" + std::to_string(devices.size()) + "):");
    for (const std::string& d : devices)
        say(d);
    return kExitOk;
}

int playFile(const PlayerOptions& options, const std::function<bool()>& stopRequested)
{
    std::string error;
    std::unique_ptr<FrameProducer> producer = FrameProducer::open(options.input, &error);
    if (!producer) {
        complain("cannot play " + options.input + ": " + error);
        return kExitBadFile;
    }
    const SourceInfo& info = producer->info();
    say("[PLAYER] file: " + options.input);
    say("[PLAYER] source: " + info.summary + ", " + seconds(info.seconds) + " s");

    AlsaDevice device;
    if (!device.open(options.device, &error)) {
        complain(error);
        return kExitNoDevice;
    }
    const PlanRequest request{options.forceDop, options.forcePcm, options.maxRate};
    const auto accepts = [&device](snd_pcm_format_t f, unsigned rate, unsigned ch) {
        return device.accepts(f, rate, ch);
    };
    const std::optional<OutputPlan> plan = chooseOutput(accepts, info.format, request, &error);
    if (!plan) {
        complain("device \"" + options.device + "\": " + error);
        return kExitNoFormat;
    }
    say(describePlan(*plan));
    if (!producer->prepare(*plan, &error) || !device.configure(plan->format, plan->rate, plan->channels, &error)) {
        complain(error);
        return kExitNoFormat;
    }
    say("[PLAYER] device: " + options.device + (device.interleaved() ? "" : " (non-interleaved)")
        + (options.stream ? ", streaming" : ""));

    const std::size_t frameBytes = device.frameBytes();
    PieceQueue queue(queueCapacity(options.stream, frameBytes * plan->rate));
    std::thread reader([&queue, &producer] {
        std::string readError;
        for (;;) {
            std::vector<std::uint8_t> piece;
            const int more = producer->next(piece, &readError);
            if (!piece.empty() && !queue.push(std::move(piece)))
                return;
            if (more <= 0) {
                queue.finish(more < 0 ? readError : std::string());
                return;
            }
        }
    });

    Progress progress(info.seconds, plan->rate);
    long long written = 0;
    int result = kExitOk;
    std::vector<std::uint8_t> piece;
    progress.maybeReport(0, 0, true);
    while (queue.pop(piece)) {
        const std::size_t frames = piece.size() / frameBytes;
        const long long w = device.write(piece.data(), frames, stopRequested, &error);
        if (w < 0) {
            complain(error);
            result = kExitPlayback;
            break;
        }
        written += w;
        if (stopRequested())
            break;
        progress.maybeReport(written, device.delayFrames(), false);
    }
    queue.cancel();
    reader.join();

    if (result == kExitOk && !stopRequested() && !queue.error().empty()) {
        complain(queue.error());
        result = kExitBadFile;
    }
    if (result == kExitOk && !stopRequested())
        device.drain(stopRequested);
    if (stopRequested()) {
        device.drop();
        say("[PLAYER] stopped");
        return kExitStopped;
    }
    if (result == kExitOk) {
        progress.maybeReport(written, 0, true);
        say("[PLAYER] finished");
    }
    return result;
}

} // namespace zuvo::player
