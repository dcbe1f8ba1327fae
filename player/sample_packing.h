#pragma once
// Device frames from per-channel data: native DSD words, DoP words and PCM
// samples, interleaved, in the byte order of the ALSA sample format. DSD
// bytes come with the earliest bit in bit 7, as the engine's readers give them.

#include <alsa/asoundlib.h>

#include <cstdint>
#include <vector>

namespace zuvo::player {

constexpr std::uint8_t kDopMarkerA = 0x05;
constexpr std::uint8_t kDopMarkerB = 0xFA;

// `n` bytes of every channel (a multiple of the format's DSD bytes per frame).
void appendNativeDsd(const std::vector<std::vector<std::uint8_t>>& channels, std::size_t n, snd_pcm_format_t format,
                     std::vector<std::uint8_t>& out);

// `n` bytes of every channel (even); one frame carries two bytes per channel
// under a marker that alternates from frame to frame. `nextIsB` carries the
// alternation across calls.
void appendDop(const std::vector<std::vector<std::uint8_t>>& channels, std::size_t n, snd_pcm_format_t format,
               bool& nextIsB, std::vector<std::uint8_t>& out);

// `n` samples of every channel, full scale 1.0, clipped.
void appendPcm(const std::vector<std::vector<double>>& channels, std::size_t n, snd_pcm_format_t format,
               std::vector<std::uint8_t>& out);

} // namespace zuvo::player
