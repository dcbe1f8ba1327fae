#include "alsa_device.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

namespace zuvo::alsa {

namespace {

struct HwParams {
    snd_pcm_hw_params_t* p = nullptr;
    HwParams() { snd_pcm_hw_params_malloc(&p); }
    ~HwParams() { snd_pcm_hw_params_free(p); }
    HwParams(const HwParams&) = delete;
    HwParams& operator=(const HwParams&) = delete;
};

std::string alsaError(const char* what, int code)
{
    return std::string(what) + ": " + snd_strerror(code);
}

} // namespace

AlsaDevice::~AlsaDevice()
{
    if (pcm_)
        snd_pcm_close(pcm_);
}

bool AlsaDevice::open(const std::string& name, std::string* error, Direction direction, bool exact)
{
    const bool capture = direction == Direction::Capture;
    const int mode = exact ? SND_PCM_NO_AUTO_RESAMPLE | SND_PCM_NO_AUTO_CHANNELS | SND_PCM_NO_AUTO_FORMAT : 0;
    const int rc = snd_pcm_open(&pcm_, name.c_str(), capture ? SND_PCM_STREAM_CAPTURE : SND_PCM_STREAM_PLAYBACK, mode);
    if (rc < 0) {
        pcm_ = nullptr;
        if (error) {
            const std::string why = rc == -ENOENT ? "ALSA knows no device of that name (see --list-devices)"
                                  : rc == -EBUSY  ? "the device is in use by another program"
                                                  : std::string(snd_strerror(rc));
            *error = std::string(capture ? "cannot open the capture device \"" : "cannot open the playback device \"")
                   + name + "\": " + why;
        }
        return false;
    }
    return true;
}

bool AlsaDevice::chooseAccess(snd_pcm_hw_params_t* params, bool* interleaved) const
{
    if (snd_pcm_hw_params_set_access(pcm_, params, SND_PCM_ACCESS_RW_INTERLEAVED) == 0) {
        *interleaved = true;
        return true;
    }
    if (snd_pcm_hw_params_set_access(pcm_, params, SND_PCM_ACCESS_RW_NONINTERLEAVED) == 0) {
        *interleaved = false;
        return true;
    }
    return false;
}

bool AlsaDevice::accepts(snd_pcm_format_t format, unsigned rate, unsigned channels) const
{
    if (!pcm_)
        return false;
    HwParams hw;
    bool interleaved = true;
    if (snd_pcm_hw_params_any(pcm_, hw.p) < 0 || !chooseAccess(hw.p, &interleaved))
        return false;
    return snd_pcm_hw_params_set_format(pcm_, hw.p, format) == 0
        && snd_pcm_hw_params_set_channels(pcm_, hw.p, channels) == 0
        && snd_pcm_hw_params_set_rate(pcm_, hw.p, rate, 0) == 0;
}

bool AlsaDevice::configure(snd_pcm_format_t format, unsigned rate, unsigned channels, std::string* error,
                           std::size_t wantPeriod)
{
    HwParams hw;
    int rc = snd_pcm_hw_params_any(pcm_, hw.p);
    if (rc < 0 || !chooseAccess(hw.p, &interleaved_)) {
        if (error)
            *error = "the device offers no read-write access";
        return false;
    }
    if ((rc = snd_pcm_hw_params_set_format(pcm_, hw.p, format)) < 0
        || (rc = snd_pcm_hw_params_set_channels(pcm_, hw.p, channels)) < 0
        || (rc = snd_pcm_hw_params_set_rate(pcm_, hw.p, rate, 0)) < 0) {
        if (error)
            *error = alsaError("the device refused the chosen format", rc);
        return false;
    }
    // A short buffer keeps "stop" and the position display prompt; a few
    // periods in it ride out scheduling hiccups.
    if (wantPeriod > 0) {
        snd_pcm_uframes_t period = wantPeriod, buffer = wantPeriod * 8;
        snd_pcm_hw_params_set_period_size_near(pcm_, hw.p, &period, nullptr);
        snd_pcm_hw_params_set_buffer_size_near(pcm_, hw.p, &buffer);
    } else {
        unsigned bufferUs = 250000, periodUs = 50000;
        snd_pcm_hw_params_set_buffer_time_near(pcm_, hw.p, &bufferUs, nullptr);
        snd_pcm_hw_params_set_period_time_near(pcm_, hw.p, &periodUs, nullptr);
    }
    if ((rc = snd_pcm_hw_params(pcm_, hw.p)) < 0) {
        if (error)
            *error = alsaError("cannot configure the device", rc);
        return false;
    }
    snd_pcm_uframes_t period = 0;
    snd_pcm_hw_params_get_period_size(hw.p, &period, nullptr);
    periodFrames_ = std::clamp<std::size_t>(period, 16, 65536);
    channels_ = channels;
    sampleBytes_ = static_cast<std::size_t>(snd_pcm_format_physical_width(format) / 8);
    frameBytes_ = sampleBytes_ * channels;
    return true;
}

long long AlsaDevice::write(const std::uint8_t* data, std::size_t frames, const std::function<bool()>& stop,
                            std::string* error)
{
    std::size_t done = 0;
    while (done < frames) {
        if (stop && stop())
            return static_cast<long long>(done);
        const std::size_t n = std::min(periodFrames_, frames - done);
        const std::uint8_t* src = data + done * frameBytes_;
        snd_pcm_sframes_t w;
        if (interleaved_) {
            w = snd_pcm_writei(pcm_, src, n);
        } else {
            planar_.resize(n * frameBytes_);
            std::vector<void*> bufs(channels_);
            for (unsigned c = 0; c < channels_; ++c) {
                std::uint8_t* dst = planar_.data() + c * n * sampleBytes_;
                bufs[c] = dst;
                for (std::size_t i = 0; i < n; ++i)
                    std::copy_n(src + i * frameBytes_ + c * sampleBytes_, sampleBytes_, dst + i * sampleBytes_);
            }
            w = snd_pcm_writen(pcm_, bufs.data(), n);
        }
        if (w == -EAGAIN) {
            snd_pcm_wait(pcm_, 20);
            continue;
        }
        if (w < 0) {
            // An underrun (or a resume after suspend) is survivable: the
            // listener hears a gap, not the end of the song.
            const int rc = snd_pcm_recover(pcm_, static_cast<int>(w), 1);
            if (rc < 0) {
                if (error)
                    *error = alsaError("writing to the device failed", static_cast<int>(w));
                return -1;
            }
            continue;
        }
        done += static_cast<std::size_t>(w);
    }
    return static_cast<long long>(done);
}

long long AlsaDevice::read(std::uint8_t* data, std::size_t frames, const std::function<bool()>& stop,
                           std::string* error)
{
    for (;;) {
        if (stop && stop())
            return 0;
        const std::size_t n = std::min(periodFrames_, frames);
        snd_pcm_sframes_t r;
        if (interleaved_) {
            r = snd_pcm_readi(pcm_, data, n);
        } else {
            planar_.resize(n * frameBytes_);
            std::vector<void*> bufs(channels_);
            for (unsigned c = 0; c < channels_; ++c)
                bufs[c] = planar_.data() + c * n * sampleBytes_;
            r = snd_pcm_readn(pcm_, bufs.data(), n);
            for (snd_pcm_sframes_t i = 0; i < r; ++i)
                for (unsigned c = 0; c < channels_; ++c)
                    std::copy_n(planar_.data() + (c * n + static_cast<std::size_t>(i)) * sampleBytes_, sampleBytes_,
                                data + static_cast<std::size_t>(i) * frameBytes_ + c * sampleBytes_);
        }
        if (r == -EAGAIN || r == 0) {
            snd_pcm_wait(pcm_, 20);
            continue;
        }
        if (r < 0) {
            // An overrun loses the frames the device could not hold; the
            // recording goes on with a gap that the caller logs.
            if (r == -EPIPE)
                ++overruns_;
            const int rc = snd_pcm_recover(pcm_, static_cast<int>(r), 1);
            if (rc < 0) {
                if (error)
                    *error = alsaError("reading from the device failed", static_cast<int>(r));
                return -1;
            }
            continue;
        }
        return r;
    }
}

bool AlsaDevice::drain(const std::function<bool()>& stop)
{
    // Non-blocking, so a "stop" during the last buffer still ends at once.
    snd_pcm_nonblock(pcm_, 1);
    snd_pcm_drain(pcm_);
    while (snd_pcm_state(pcm_) == SND_PCM_STATE_DRAINING) {
        if (stop && stop()) {
            snd_pcm_drop(pcm_);
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

void AlsaDevice::drop()
{
    if (pcm_)
        snd_pcm_drop(pcm_);
}

long long AlsaDevice::delayFrames() const
{
    snd_pcm_sframes_t d = 0;
    if (!pcm_ || snd_pcm_delay(pcm_, &d) < 0 || d < 0)
        return 0;
    return d;
}

std::vector<std::string> AlsaDevice::listDevices(Direction direction)
{
    const std::string wanted = direction == Direction::Capture ? "Input" : "Output";
    std::vector<std::string> out;
    void** hints = nullptr;
    if (snd_device_name_hint(-1, "pcm", &hints) < 0 || !hints)
        return out;
    for (void** h = hints; *h; ++h) {
        char* name = snd_device_name_get_hint(*h, "NAME");
        char* desc = snd_device_name_get_hint(*h, "DESC");
        char* ioid = snd_device_name_get_hint(*h, "IOID");
        if (name && (!ioid || wanted == ioid)) {
            std::string d = desc ? desc : "";
            std::replace(d.begin(), d.end(), '\n', ' ');
            out.push_back(std::string(name) + (d.empty() ? "" : "\t" + d));
        }
        free(name);
        free(desc);
        free(ioid);
    }
    snd_device_name_free_hint(hints);
    return out;
}

} // namespace zuvo::alsa
