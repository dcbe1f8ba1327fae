// Time of the effect chain alone, per configuration: 60 s of stereo noise at
// 44.1 kHz in 4096-frame blocks, as the conversion feeds it. Times are the
// thread's CPU time, so a busy machine does not inflate them.
#include <ctime>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "cli/options.h"
#include "effects/effect_chain.h"

int main()
{
    const double fs = 44100;
    const std::size_t frames = 60 * 44100, block = 4096;
    std::mt19937_64 rng(3);
    std::normal_distribution<double> g(0.0, 0.1);
    std::vector<double> l(frames), r(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        l[i] = g(rng);
        r[i] = g(rng);
    }
    const std::string eq10 = "31,2.0,0.7q;63,-1.0,1.0q;125,1.5,1.0o;250,-2.0,1.0q;500,1.0,1.0q;1000,-1.5,2.0q;"
                             "2000,2.0,1.0q;4000,-1.0,1.0q;8000,1.5,1.0q;16000,2.0,0.7q";
    const std::vector<std::pair<const char*, std::vector<std::string>>> cases = {
        {"eq10", {"--eq", eq10}},
        {"tone", {"--bass", "2", "--treble", "-1"}},
        {"surround side", {"--surround", "15", "80", "side"}},
        {"hrtf ms", {"--hrtf", "ms"}},
        {"hrtf stereo", {"--hrtf", "stereo"}},
        {"width + crossfeed", {"--stereo-width", "1.3", "--stereo-crossfeed", "0.2"}},
        {"dsre", {"--dsre", "0.5"}},
        {"eq10 + tone + hrtf ms + surround", {"--eq", eq10, "--bass", "2", "--treble", "-1", "--hrtf", "ms", "--surround", "15", "80", "side"}},
    };
    std::printf("%-34s %10s %10s %10s %8s\n", "chain", "build ms", "bound ms", "run ms", "x cpu");
    for (const auto& [name, extra] : cases) {
        std::vector<std::string> args = {"-i", "in.wav"};
        args.insert(args.end(), extra.begin(), extra.end());
        args.push_back("out.dsf");
        const auto parsed = zuvo::cli::parseCommandLine(args);
        if (parsed.usageError()) {
            std::printf("%s: refused\n", name);
            return 1;
        }
        auto now = [] {
            timespec ts{};
            clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
            return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
        };
        const double t0 = now();
        zuvo::effects::EffectChain chain;
        std::string error;
        if (!chain.build(parsed.options.effects, 2, fs, error)) {
            std::printf("%s: %s\n", name, error.c_str());
            return 1;
        }
        const double t1 = now();
        const double bound = chain.worstCaseGain();
        if (bound > 1.0)
            chain.addLimiter(bound * zuvo::effects::kLimiterCeilingMargin);
        const double t2 = now();
        zuvo::effects::Planar p(2);
        for (std::size_t at = 0; at < frames; at += block) {
            const std::size_t n = std::min(block, frames - at);
            p.resize(2);
            p[0].assign(l.begin() + long(at), l.begin() + long(at + n));
            p[1].assign(r.begin() + long(at), r.begin() + long(at + n));
            chain.run(p, n);
        }
        const double t3 = now();
        auto ms = [](double a, double b) { return b - a; };
        std::printf("%-34s %10.1f %10.1f %10.1f %8.0f\n", name, ms(t0, t1), ms(t1, t2), ms(t2, t3),
                    60000.0 / ms(t2, t3));
    }
    return 0;
}
