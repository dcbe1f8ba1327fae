#pragma once
// One ALSA playback device: what it takes, its configuration and the blocking
// writes. Writes are made a period at a time so the caller can look at its
// stop flag between them.

#include <alsa/asoundlib.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zuvo::player {

class AlsaDevice {
public:
    AlsaDevice() = default;
    ~AlsaDevice();
    AlsaDevice(const AlsaDevice&) = delete;
    AlsaDevice& operator=(const AlsaDevice&) = delete;

    bool open(const std::string& name, std::string* error);
    // Whether the device takes exactly this format, rate and channel count
    // with an access mode this class can write.
    bool accepts(snd_pcm_format_t format, unsigned rate, unsigned channels) const;
    bool configure(snd_pcm_format_t format, unsigned rate, unsigned channels, std::string* error);

    // Interleaved frames in the configured format. Returns the frames written
    // (fewer only when `stop` turned true) or -1 with `error` set.
    long long write(const std::uint8_t* data, std::size_t frames, const std::function<bool()>& stop, std::string* error);
    // Lets the queued frames play out; returns false when `stop` cut it short.
    bool drain(const std::function<bool()>& stop);
    void drop();
    // Frames written but not yet heard.
    long long delayFrames() const;

    std::size_t frameBytes() const { return frameBytes_; }
    std::size_t periodFrames() const { return periodFrames_; }
    bool interleaved() const { return interleaved_; }

    // "NAME\tdescription" for every playback device ALSA knows.
    static std::vector<std::string> listPlaybackDevices();

private:
    bool chooseAccess(snd_pcm_hw_params_t* params, bool* interleaved) const;

    snd_pcm_t* pcm_ = nullptr;
    bool interleaved_ = true;
    unsigned channels_ = 0;
    std::size_t sampleBytes_ = 0;
    std::size_t frameBytes_ = 0;
    std::size_t periodFrames_ = 1024;
    std::vector<std::uint8_t> planar_;
};

} // namespace zuvo::player
