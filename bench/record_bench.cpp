// Can the recorder modulate in real time? Encodes stereo PCM at a capture
// rate to DSD with the recorder's signal path and reports the CPU time per
// second of audio, i.e. the share of one core that live recording needs.
//
//   record_bench [--rate HZ] [--oversampling N] [--seconds S] [modulator]
//
// Both channels run on the calling thread one after the other, so the
// figure is the whole load, not a per-thread share. The input is a -6 dBFS
// tone plus low-level noise in blocks of 4096 frames, as the recorder feeds
// its encoders.
#include "dsp/dsd_pipeline.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <random>
#include <string>
#include <vector>

using namespace zuvo::dsp;

namespace {

double threadCpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + ts.tv_nsec * 1e-9;
}

} // namespace

int main(int argc, char** argv)
{
    ForwardConfig config;
    config.inputRate = 96000;
    double seconds = 20;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        const bool hasValue = i + 1 < argc;
        if (a == "--rate" && hasValue)
            config.inputRate = std::atoi(argv[++i]);
        else if (a == "--oversampling" && hasValue)
            config.dsdMultiple = std::atoi(argv[++i]);
        else if (a == "--seconds" && hasValue)
            seconds = std::atof(argv[++i]);
        else if (a == "--order" && hasValue)
            config.modulator = {ModulatorType::SingleLoop, std::atoi(argv[++i])};
        else if (a == "--cifb")
            config.modulator = {ModulatorType::Cifb, 0};
        else if (a == "--mash")
            config.modulator = {ModulatorType::Mash, 0};
        else {
            std::fprintf(stderr, "usage: record_bench [--rate HZ] [--oversampling N] [--seconds S] [--order N|--cifb|--mash]\n");
            return 2;
        }
    }
    std::string error;
    const double designStart = threadCpuSeconds();
    auto design = designForward(config, &error);
    if (!design) {
        std::fprintf(stderr, "design refused: %s\n", error.c_str());
        return 2;
    }
    const double designCpu = threadCpuSeconds() - designStart;

    const std::size_t block = 4096;
    const auto total = static_cast<std::size_t>(seconds * config.inputRate);
    std::mt19937 rng(1);
    std::normal_distribution<double> noise(0.0, 1e-4);
    std::vector<std::vector<double>> in(2, std::vector<double>(block));
    std::vector<ChannelEncoder> encoders;
    encoders.emplace_back(design);
    encoders.emplace_back(design);
    std::vector<std::uint8_t> out;
    std::size_t bytes = 0;

    double encodeCpu = 0;
    for (std::size_t done = 0; done < total; done += block) {
        const std::size_t n = std::min(block, total - done);
        for (std::size_t c = 0; c < 2; ++c)
            for (std::size_t i = 0; i < n; ++i)
                in[c][i] = 0.5 * std::sin(2 * M_PI * 997.0 * (c + 1) * double(done + i) / config.inputRate) + noise(rng);
        const double t0 = threadCpuSeconds();
        for (std::size_t c = 0; c < 2; ++c) {
            out.clear();
            encoders[c].process(in[c].data(), n, out);
            bytes += out.size();
        }
        encodeCpu += threadCpuSeconds() - t0;
    }
    const double audio = static_cast<double>(total) / config.inputRate;
    std::printf("record_bench: 2 ch, %d Hz -> DSD%d (%d Hz), %.1f s of audio\n", config.inputRate, config.dsdMultiple,
                dsdRateHz(*design), audio);
    std::printf("  design: %.3f s CPU (once, before capture starts)\n", designCpu);
    std::printf("  encode: %.3f s CPU for %.1f s of audio, %zu DSD bytes\n", encodeCpu, audio, bytes);
    std::printf("  load: %.1f %% of one core (%.1fx real time on one core)\n", 100.0 * encodeCpu / audio,
                encodeCpu > 0 ? audio / encodeCpu : 0.0);
    return 0;
}
