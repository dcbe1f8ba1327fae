#pragma once
// DSD test streams for the DST suites, made without the engine: a
// first-order sigma-delta modulator turns a sine into a 1-bit stream, so the
// bits have the statistics of real DSD (signal plus shaped noise).
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace dsttest {

enum class Signal { Tone, FullScale, Silence, Noise };

inline const char* signalName(Signal s)
{
    switch (s) {
    case Signal::Tone: return "tone";
    case Signal::FullScale: return "full-scale";
    case Signal::Silence: return "silence";
    case Signal::Noise: return "noise";
    }
    return "?";
}

// `bytes` DSD bytes (earliest bit in bit 7) of channel `channel`.
inline std::vector<std::uint8_t> dsdBytes(Signal s, std::size_t bytes, int channel, int rate = 2822400)
{
    std::vector<std::uint8_t> out(bytes, 0);
    if (s == Signal::Silence) {
        std::fill(out.begin(), out.end(), 0x69);
        return out;
    }
    if (s == Signal::Noise) {
        std::mt19937 rng(1234u + static_cast<unsigned>(channel));
        for (auto& b : out)
            b = static_cast<std::uint8_t>(rng() & 0xffu);
        return out;
    }
    const double amp = s == Signal::FullScale ? 0.95 : 0.5;
    const double f = 997.0 * (1 + channel);
    double integ1 = 0, integ2 = 0;
    double y = 0;
    for (std::size_t i = 0; i < bytes * 8; ++i) {
        const double x = amp * std::sin(2 * M_PI * f * static_cast<double>(i) / rate);
        // Second-order loop: shaped noise like a real modulator's.
        integ1 += x - y;
        integ2 += integ1 - y;
        y = integ2 >= 0 ? 1.0 : -1.0;
        if (y > 0)
            out[i / 8] |= static_cast<std::uint8_t>(0x80u >> (i % 8));
    }
    return out;
}

} // namespace dsttest
