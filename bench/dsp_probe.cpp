// Quick look at one design: prints the design summary and the in-band
// figures of a short tone encoded through the whole chain.
//   dsp_probe [multiple] [type sos|order|cifb] [order] [level dBFS] [seconds] [input rate]
#include "dsp/dsd_pipeline.h"
#include "spectrum_check.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

static double cpuNow()
{
    timespec ts;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return ts.tv_sec + ts.tv_nsec * 1e-9;
}

using namespace zuvo::dsp;

int main(int argc, char** argv)
{
    ForwardConfig c;
    c.dsdMultiple = argc > 1 ? std::atoi(argv[1]) : 64;
    const char* type = argc > 2 ? argv[2] : "sos";
    if (!std::strcmp(type, "order"))
        c.modulator.type = ModulatorType::SingleLoop;
    else if (!std::strcmp(type, "cifb"))
        c.modulator.type = ModulatorType::Cifb;
    else if (!std::strcmp(type, "mash"))
        c.modulator.type = ModulatorType::Mash;
    c.modulator.order = argc > 3 ? std::atoi(argv[3]) : 0;
    const double level = argc > 4 ? std::atof(argv[4]) : -6;
    const double secs = argc > 5 ? std::atof(argv[5]) : 0.5;
    c.inputRate = argc > 6 ? std::atoi(argv[6]) : 44100;
    if (std::getenv("NOPRE"))
        c.predistortion = false;
    std::string err;
    auto t0 = std::chrono::steady_clock::now();
    auto d = designForward(c, &err);
    auto t1 = std::chrono::steady_clock::now();
    if (!d) {
        std::printf("design error: %s\n", err.c_str());
        return 2;
    }
    std::printf("%s(design %.0f ms)\n", summary(*d).text.c_str(),
                std::chrono::duration<double, std::milli>(t1 - t0).count());
    const std::size_t n = std::size_t(secs * c.inputRate);
    std::vector<double> in(n);
    const double a = std::pow(10.0, level / 20);
    for (std::size_t i = 0; i < n; ++i)
        in[i] = a * std::sin(2 * M_PI * 997.0 * double(i) / c.inputRate);
    ChannelEncoder enc(d);
    std::vector<std::uint8_t> out;
    t0 = std::chrono::steady_clock::now();
    const double c0 = cpuNow();
    enc.process(in.data(), n, out);
    enc.finish(out);
    const double cpu = cpuNow() - c0;
    t1 = std::chrono::steady_clock::now();
    const double wall = std::chrono::duration<double>(t1 - t0).count();
    std::printf("encode: %zu bytes, %.1f x realtime per CPU second (%.1f x by wall clock), one channel\n",
                out.size(), secs / cpu, secs / wall);
    auto st = enc.stats();
    std::printf("overloads %llu resets %llu peak %.4f\n", (unsigned long long)st.overloads,
                (unsigned long long)st.resets, st.peakInput);
    if (std::getenv("NOANALYSE"))
        return 0;
    auto x = zuvo_test::unpackMsbFirst(out);
    auto r = zuvo_test::analyseTone(x, dsdRateHz(*d), 997.0);
    std::printf("tone %.1f Hz at %.3f dBFS, SNR %.2f dB, THD+N %.2f dB, noise 20-50k %.2f dBFS\n", r.toneHz,
                r.signalDb, r.snrDb, r.thdnDb, r.bandNoiseDb);
    return 0;
}
