// Runs the spectral denoiser over a sound file the way the engine's
// restoration stage does: options through the command-line parser, the whole
// file in blocks, the latency removed. For the black-box check with sox and
// numpy (spectral_check.py).
//   spectral_probe IN OUT [denoiser options...]
#include <cstdio>
#include <string>
#include <vector>

#include <sndfile.h>

#include "restore/spectral/spectral_options.h"

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: spectral_probe IN OUT [options]\n");
        return 2;
    }
    std::vector<std::string> args(argv + 3, argv + argc);
    zuvo::restore::SpectralConfig config;
    bool enabled = false;
    std::vector<std::string> errors;
    for (std::size_t i = 0; i < args.size(); ++i)
        if (!zuvo::restore::parseSpectralOption(args, i, config, enabled, errors))
            errors.push_back("unknown option " + args[i]);
    for (const auto& e : errors)
        std::fprintf(stderr, "%s\n", e.c_str());
    if (!errors.empty() || !enabled) {
        if (errors.empty())
            std::fprintf(stderr, "no denoiser chosen\n");
        return 2;
    }
    SF_INFO info{};
    SNDFILE* in = sf_open(argv[1], SFM_READ, &info);
    if (!in) {
        std::fprintf(stderr, "cannot read %s: %s\n", argv[1], sf_strerror(nullptr));
        return 1;
    }
    const auto channels = static_cast<std::size_t>(info.channels);
    zuvo::restore::SpectralDenoiser denoiser;
    std::string error;
    if (!denoiser.configure(config, info.channels, info.samplerate, error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        sf_close(in);
        return 1;
    }
    std::fprintf(stderr, "%s\n", denoiser.description().c_str());
    SF_INFO outInfo{};
    outInfo.samplerate = info.samplerate;
    outInfo.channels = info.channels;
    outInfo.format = SF_FORMAT_WAV | SF_FORMAT_DOUBLE;
    SNDFILE* out = sf_open(argv[2], SFM_WRITE, &outInfo);
    if (!out) {
        std::fprintf(stderr, "cannot write %s\n", argv[2]);
        sf_close(in);
        return 1;
    }
    const std::size_t block = 4096;
    std::vector<double> frames(block * channels);
    std::vector<std::vector<double>> planar(channels, std::vector<double>(block));
    std::size_t skip = denoiser.latency(), flush = denoiser.latency();
    bool ended = false;
    while (!ended || flush > 0) {
        std::size_t n = 0;
        if (!ended) {
            n = static_cast<std::size_t>(sf_readf_double(in, frames.data(), block));
            ended = n < block;
        }
        if (n == 0) { // the input is over: zeros push the last samples out
            n = std::min(block, flush);
            flush -= n;
            std::fill(frames.begin(), frames.end(), 0.0);
        }
        for (std::size_t c = 0; c < channels; ++c)
            for (std::size_t i = 0; i < n; ++i)
                planar[c][i] = frames[i * channels + c];
        denoiser.process(planar, n);
        const std::size_t drop = std::min(skip, n);
        skip -= drop;
        for (std::size_t c = 0; c < channels; ++c)
            for (std::size_t i = drop; i < n; ++i)
                frames[(i - drop) * channels + c] = planar[c][i];
        sf_writef_double(out, frames.data(), static_cast<sf_count_t>(n - drop));
    }
    sf_close(in);
    sf_close(out);
    return 0;
}
