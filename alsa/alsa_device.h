#pragma once
// One ALSA device, playback or capture: what it takes, its configuration and
// the blocking transfers. Transfers are made a period at a time so the caller
// can look at its stop flag between them.

#include <alsa/asoundlib.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zuvo::alsa {

class AlsaDevice {
public:
    AlsaDevice() = default;
    ~AlsaDevice();
    AlsaDevice(const AlsaDevice&) = delete;
    AlsaDevice& operator=(const AlsaDevice&) = delete;

    enum class Direction { Playback, Capture };

    // `exact` asks ALSA for no automatic format, rate or channel conversion:
    // the device's own formats or nothing.
    bool open(const std::string& name, std::string* error, Direction direction = Direction::Playback,
              bool exact = false);
    // Whether the device takes exactly this format, rate and channel count
    // with an access mode this class can write.
    bool accepts(snd_pcm_format_t format, unsigned rate, unsigned channels) const;
    // `periodFrames` 0 lets the device choose around 50 ms; otherwise the
    // period is that many frames and the buffer holds eight periods.
    bool configure(snd_pcm_format_t format, unsigned rate, unsigned channels, std::string* error,
                   std::size_t periodFrames = 0);

    // Interleaved frames in the configured format. Returns the frames written
    // (fewer only when `stop` turned true) or -1 with `error` set.
    long long write(const std::uint8_t* data, std::size_t frames, const std::function<bool()>& stop, std::string* error);
    // Capture: reads up to `frames` interleaved frames. Returns the frames
    // read (0 when `stop` turned true first) or -1 with `error` set. An
    // overrun is recovered and counted, not returned.
    long long read(std::uint8_t* data, std::size_t frames, const std::function<bool()>& stop, std::string* error);
    unsigned long long overruns() const { return overruns_; }

    // Lets the queued frames play out; returns false when `stop` cut it short.
    bool drain(const std::function<bool()>& stop);
    void drop();
    // Frames written but not yet heard.
    long long delayFrames() const;

    std::size_t frameBytes() const { return frameBytes_; }
    std::size_t periodFrames() const { return periodFrames_; }
    bool interleaved() const { return interleaved_; }

    // "NAME\tdescription" for every device of that direction ALSA knows.
    static std::vector<std::string> listDevices(Direction direction);

private:
    bool chooseAccess(snd_pcm_hw_params_t* params, bool* interleaved) const;

    snd_pcm_t* pcm_ = nullptr;
    bool interleaved_ = true;
    unsigned channels_ = 0;
    std::size_t sampleBytes_ = 0;
    std::size_t frameBytes_ = 0;
    std::size_t periodFrames_ = 1024;
    std::vector<std::uint8_t> planar_;
    unsigned long long overruns_ = 0;
};

} // namespace zuvo::alsa
