// Spectral denoiser: SNR improvement per tier, musical-noise residue, partial
// levels with and without harmonic protection, and CPU cost as a multiple of
// real time for 44.1 kHz stereo. Usage: spectral_bench [seconds] (default 10).
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "spectral_measure.h"

using namespace spectral_measure;
using zuvo::restore::SpectralConfig;
using zuvo::restore::SpectralDenoiser;

namespace {

constexpr double kFs = 44100.0;

SpectralConfig configFor(SpectralConfig::Mode m, bool keep = false)
{
    SpectralConfig c;
    c.mode = m;
    c.keepHarmonics = keep;
    if (m == SpectralConfig::Mode::Wiener) {
        c.floorDb = -15.0;
        c.frameMs = 32.0;
    }
    return c;
}

SpectralDenoiser make(const SpectralConfig& c, int channels)
{
    SpectralDenoiser d;
    std::string error;
    if (!d.configure(c, channels, kFs, error)) {
        std::fprintf(stderr, "configure: %s\n", error.c_str());
        std::exit(1);
    }
    return d;
}

} // namespace

int main(int argc, char** argv)
{
    const double seconds = argc > 1 ? std::atof(argv[1]) : 10.0;
    const auto n = static_cast<std::size_t>(seconds * kFs);
    const auto from = static_cast<std::size_t>(2.0 * kFs);
    struct Row {
        const char* name;
        SpectralConfig::Mode mode;
    } rows[] = {{"light", SpectralConfig::Mode::Light},
                {"standard", SpectralConfig::Mode::Standard},
                {"deep", SpectralConfig::Mode::Deep},
                {"wiener", SpectralConfig::Mode::Wiener}};

    std::vector<double> toneIn = whiteNoise(n, -50.0, 1);
    addSine(toneIn, 1000.0, -20.0 + 3.0103, kFs); // -20 dBFS RMS
    const std::vector<double> noiseIn = whiteNoise(n, -50.0, 2);
    std::printf("signal: 1 kHz sine at -20 dBFS RMS + white noise at -50 dBFS RMS, %.0f s, 44.1 kHz\n", seconds);
    std::printf("%-9s %-4s %10s %10s %10s %14s %14s\n", "mode", "keep", "SNR in", "SNR out", "gain dB", "residue/frame", "residue/avg");
    for (const Row& r : rows)
        for (bool keep : {false, true}) {
            SpectralDenoiser d = make(configFor(r.mode, keep), 1);
            const auto y = runAligned(d, {toneIn}, 4096)[0];
            const double in = snrDb(toneIn, 1000.0, kFs, from, n), out = snrDb(y, 1000.0, kFs, from, n);
            SpectralDenoiser d2 = make(configFor(r.mode, keep), 1);
            const auto yn = runAligned(d2, {noiseIn}, 4096)[0];
            const Residue res = musicalResidue(d2, noiseIn, yn, kFs, from);
            std::printf("%-9s %-4s %10.2f %10.2f %10.2f %14.1f %14.1f\n", r.name, keep ? "on" : "off", in, out, out - in,
                        res.framePeakDb, res.averagePeakDb);
        }

    // Harmonic tone: 220 Hz and 9 overtones, each 5 dB below the last.
    std::vector<double> harm = whiteNoise(n, -50.0, 3);
    for (int h = 1; h <= 10; ++h)
        addSine(harm, 220.0 * h, -20.0 - 5.0 * (h - 1), kFs, 0.3 * h);
    std::printf("\n220 Hz + 9 harmonics (-20 dBFS, 5 dB less each) in white noise at -50 dBFS: partial change in dB\n");
    std::printf("%-9s %-4s", "mode", "keep");
    for (int h = 1; h <= 10; ++h)
        std::printf(" %6d", h);
    std::printf("\n");
    for (const Row& r : rows)
        for (bool keep : {false, true}) {
            SpectralDenoiser d = make(configFor(r.mode, keep), 1);
            const auto y = runAligned(d, {harm}, 4096)[0];
            std::printf("%-9s %-4s", r.name, keep ? "on" : "off");
            for (int h = 1; h <= 10; ++h) {
                const double a = fitSine(y, 220.0 * h, kFs, from, n).amplitude;
                std::printf(" %6.2f", 20.0 * std::log10(a / dbToAmp(-20.0 - 5.0 * (h - 1))));
            }
            std::printf("\n");
        }

    std::vector<double> pink = pinkNoise(n, -50.0, 4);
    addSine(pink, 1000.0, -20.0 + 3.0103, kFs);
    std::printf("\n1 kHz at -20 dBFS + pink noise at -50 dBFS: SNR change in dB\n");
    for (const Row& r : rows) {
        SpectralDenoiser d = make(configFor(r.mode), 1);
        const auto y = runAligned(d, {pink}, 4096)[0];
        std::printf("%-9s %10.2f\n", r.name, snrDb(y, 1000.0, kFs, from, n) - snrDb(pink, 1000.0, kFs, from, n));
    }

    // White noise 10 dB louder from 4 s on: how fast the floor follows.
    if (seconds >= 8.0) {
        std::vector<double> step = whiteNoise(n, -60.0, 5);
        const auto at = static_cast<std::size_t>(4.0 * kFs);
        for (std::size_t i = at; i < n; ++i)
            step[i] *= dbToAmp(10.0);
        std::printf("\nwhite noise -60 dBFS, then -50 dBFS from 4 s: noise change in dB after the step\n");
        std::printf("%-9s %10s %10s %10s %10s\n", "mode", "0-0.5 s", "0.5-1 s", "1-1.5 s", "1.5-2 s");
        for (const Row& r : rows) {
            SpectralDenoiser d = make(configFor(r.mode), 1);
            const auto y = runAligned(d, {step}, 4096)[0];
            std::printf("%-9s", r.name);
            for (int q = 0; q < 4; ++q) {
                double a = 0, b = 0;
                for (std::size_t i = at + q * 22050; i < at + (q + 1) * 22050; ++i) {
                    a += step[i] * step[i];
                    b += y[i] * y[i];
                }
                std::printf(" %10.2f", 10.0 * std::log10(b / a));
            }
            std::printf("\n");
        }
    }

    std::printf("\nCPU, 44.1 kHz stereo, blocks of 4096:\n");
    std::vector<std::vector<double>> stereo = {toneIn, harm};
    for (const Row& r : rows)
        for (bool keep : {false, true}) {
            SpectralDenoiser d = make(configFor(r.mode, keep), 2);
            const auto t0 = std::chrono::steady_clock::now();
            runAligned(d, stereo, 4096);
            const double s = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
            std::printf("%-9s keep %-3s %8.1f x real time\n", r.name, keep ? "on" : "off", seconds / s);
        }
    return 0;
}
