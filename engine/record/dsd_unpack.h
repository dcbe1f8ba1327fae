#pragma once
// Direct DSD capture: the device's frames (DoP words or native DSD words) as
// per-channel DSD bytes, earliest bit in bit 7 (what the DSF writer takes).

#include <alsa/asoundlib.h>

#include <cstdint>
#include <string>
#include <vector>

#include "record/capture_format.h"

namespace zuvo::record {

// DoP: 16 DSD bits per PCM word under alternating 0x05 / 0xFA markers, at a
// sixteenth of the DSD rate. Native: the device's DSD words as they are.
bool chooseDsdCaptureFormat(const AcceptsFn& accepts, bool dop, int dsdRate, int askedChannels, CaptureFormat& out,
                            std::string* error);

class DsdUnpacker {
public:
    DsdUnpacker(snd_pcm_format_t format, unsigned channels, bool dop);

    // Appends the DSD bytes of `frames` interleaved frames to `out[c]`.
    void unpack(const std::uint8_t* data, std::size_t frames, std::vector<std::vector<std::uint8_t>>& out);

    // DoP frames whose markers were missing, unequal across channels or out
    // of alternation; their bits are replaced by DSD silence.
    std::uint64_t brokenFrames() const { return broken_; }
    std::uint64_t firstBrokenFrame() const { return firstBroken_; }
    std::uint64_t frames() const { return frames_; }

private:
    snd_pcm_format_t format_;
    unsigned channels_;
    bool dop_;
    std::size_t width_;     // bytes per sample word
    bool bigEndian_;
    int lastMarker_ = -1;
    std::uint64_t broken_ = 0;
    std::uint64_t firstBroken_ = 0;
    std::uint64_t frames_ = 0;
};

} // namespace zuvo::record
