// Native driver of the signal path, used by run.sh:
//   dsp_bench convert IN.wav OUT.dsf [--oversampling N] [--sos-ef | --order N | --cifb N | --mash]
//       WAV (16/24/32-bit PCM, 32-bit float) -> DSF, one thread per channel,
//       as the engine does; prints the speed. The fallback when the engine
//       CLI is not built.
//   dsp_bench synth OUT.dsf [--oversampling N] [modulator] [--seconds S] [--level dB]
//       a double-precision 997 Hz tone encoded straight to DSF (both
//       channels), to measure the modulator without the source's rounding.
//   dsp_bench sweep [--oversampling N] [modulator]
//       input-level sweep with unity gain: overloads and in-band SNR per
//       level, and the highest level that is still clean.
#include "dsp/dsd_pipeline.h"
#include "spectrum_check.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

using namespace zuvo::dsp;

static bool parseModulator(int argc, char** argv, int& i, ForwardConfig& c)
{
    const std::string a = argv[i];
    auto num = [&](int def) {
        if (i + 1 < argc && argv[i + 1][0] != '-')
            return std::atoi(argv[++i]);
        return def;
    };
    if (a == "--sos-ef")
        c.modulator.type = ModulatorType::SosEf, c.modulator.order = num(0);
    else if (a == "--order")
        c.modulator.type = ModulatorType::SingleLoop, c.modulator.order = num(9);
    else if (a == "--cifb")
        c.modulator.type = ModulatorType::Cifb, c.modulator.order = num(0);
    else if (a == "--mash")
        c.modulator.type = ModulatorType::Mash, c.modulator.order = num(0);
    else if (a == "--oversampling")
        c.dsdMultiple = num(64);
    else
        return false;
    return true;
}

static bool readWav(const char* path, int& rate, int& channels, std::vector<std::vector<double>>& out)
{
    std::ifstream f(path, std::ios::binary);
    if (!f)
        return false;
    std::vector<char> all((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    if (all.size() < 44 || std::memcmp(all.data(), "RIFF", 4) || std::memcmp(all.data() + 8, "WAVE", 4))
        return false;
    std::size_t p = 12;
    int fmtTag = 0, bits = 0;
    while (p + 8 <= all.size()) {
        std::uint32_t sz;
        std::memcpy(&sz, all.data() + p + 4, 4);
        const char* id = all.data() + p;
        const char* body = all.data() + p + 8;
        if (!std::memcmp(id, "fmt ", 4)) {
            std::uint16_t tag, ch, bps;
            std::uint32_t sr;
            std::memcpy(&tag, body, 2);
            std::memcpy(&ch, body + 2, 2);
            std::memcpy(&sr, body + 4, 4);
            std::memcpy(&bps, body + 14, 2);
            if (tag == 0xFFFE && sz >= 40)
                std::memcpy(&tag, body + 24, 2);
            fmtTag = tag;
            channels = ch;
            rate = int(sr);
            bits = bps;
        } else if (!std::memcmp(id, "data", 4)) {
            const std::size_t bytes = std::min<std::size_t>(sz, all.size() - p - 8);
            const int bpsmp = bits / 8;
            const std::size_t frames = bytes / (std::size_t(bpsmp) * channels);
            out.assign(channels, std::vector<double>(frames));
            for (std::size_t i = 0; i < frames; ++i)
                for (int c = 0; c < channels; ++c) {
                    const unsigned char* s = reinterpret_cast<const unsigned char*>(body) + (i * channels + c) * bpsmp;
                    double v = 0;
                    if (fmtTag == 3 && bits == 32) {
                        float fl;
                        std::memcpy(&fl, s, 4);
                        v = fl;
                    } else if (bits == 16) {
                        v = std::int16_t(s[0] | (s[1] << 8)) / 32768.0;
                    } else if (bits == 24) {
                        std::int32_t x = (s[0] << 8) | (s[1] << 16) | (s[2] << 24);
                        v = (x >> 8) / 8388608.0;
                    } else if (bits == 32) {
                        std::int32_t x;
                        std::memcpy(&x, s, 4);
                        v = x / 2147483648.0;
                    }
                    out[c][i] = v;
                }
            return true;
        }
        p += 8 + sz + (sz & 1);
    }
    return false;
}

static void put64(std::vector<unsigned char>& b, std::uint64_t v)
{
    for (int i = 0; i < 8; ++i)
        b.push_back((v >> (8 * i)) & 0xff);
}
static void put32(std::vector<unsigned char>& b, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        b.push_back((v >> (8 * i)) & 0xff);
}

static bool writeDsf(const char* path, int rate, const std::vector<std::vector<std::uint8_t>>& ch)
{
    const std::size_t block = 4096, nch = ch.size(), bytes = ch[0].size();
    const std::size_t nblocks = (bytes + block - 1) / block;
    const std::uint64_t dataSize = 12 + nblocks * block * nch;
    std::vector<unsigned char> h;
    h.insert(h.end(), {'D', 'S', 'D', ' '});
    put64(h, 28);
    put64(h, 28 + 52 + dataSize);
    put64(h, 0);
    h.insert(h.end(), {'f', 'm', 't', ' '});
    put64(h, 52);
    put32(h, 1);
    put32(h, 0);
    put32(h, nch == 2 ? 2 : 1);
    put32(h, std::uint32_t(nch));
    put32(h, std::uint32_t(rate));
    put32(h, 1);
    put64(h, std::uint64_t(bytes) * 8);
    put32(h, block);
    put32(h, 0);
    h.insert(h.end(), {'d', 'a', 't', 'a'});
    put64(h, dataSize);
    std::ofstream f(path, std::ios::binary);
    f.write(reinterpret_cast<const char*>(h.data()), std::streamsize(h.size()));
    static unsigned char rev[256];
    for (int i = 0; i < 256; ++i) {
        int r = 0;
        for (int b = 0; b < 8; ++b)
            r |= ((i >> b) & 1) << (7 - b);
        rev[i] = std::uint8_t(r);
    }
    std::vector<unsigned char> buf(block);
    for (std::size_t b = 0; b < nblocks; ++b)
        for (std::size_t c = 0; c < nch; ++c) {
            std::fill(buf.begin(), buf.end(), 0);
            for (std::size_t i = 0; i < block && b * block + i < bytes; ++i)
                buf[i] = rev[ch[c][b * block + i]]; // DSF stores the earliest bit in the LSB
            f.write(reinterpret_cast<const char*>(buf.data()), std::streamsize(block));
        }
    return bool(f);
}

static int convert(int argc, char** argv)
{
    if (argc < 4) {
        std::fprintf(stderr, "usage: dsp_bench convert IN.wav OUT.dsf [options]\n");
        return 2;
    }
    ForwardConfig c;
    for (int i = 4; i < argc; ++i)
        if (!parseModulator(argc, argv, i, c)) {
            std::fprintf(stderr, "unknown option %s\n", argv[i]);
            return 2;
        }
    int rate = 0, channels = 0;
    std::vector<std::vector<double>> pcm;
    if (!readWav(argv[2], rate, channels, pcm)) {
        std::fprintf(stderr, "cannot read %s\n", argv[2]);
        return 1;
    }
    c.inputRate = rate;
    std::string err;
    const auto t0 = std::chrono::steady_clock::now();
    auto d = designForward(c, &err);
    if (!d) {
        std::fprintf(stderr, "design refused: %s\n", err.c_str());
        return 2;
    }
    std::vector<std::vector<std::uint8_t>> out(channels);
    std::vector<ChannelEncoder::Stats> stats(channels);
    std::vector<std::thread> th;
    for (int ch = 0; ch < channels; ++ch)
        th.emplace_back([&, ch] {
            ChannelEncoder enc(d);
            const auto& x = pcm[ch];
            for (std::size_t p = 0; p < x.size(); p += 65536)
                enc.process(x.data() + p, std::min<std::size_t>(65536, x.size() - p), out[ch]);
            enc.finish(out[ch]);
            stats[ch] = enc.stats();
        });
    for (auto& t : th)
        t.join();
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    if (!writeDsf(argv[3], dsdRateHz(*d), out))
        return 1;
    const double secs = double(pcm[0].size()) / rate;
    std::printf("native: %.1f s of audio in %.2f s (%.1fx realtime), overloads %llu, resets %llu\n", secs, wall,
                secs / wall, (unsigned long long)stats[0].overloads, (unsigned long long)stats[0].resets);
    return 0;
}

// A double-precision 997 Hz tone straight into the encoder (no file and no
// float32 rounding in the source), written as DSF for the analyser.
static int synth(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    ForwardConfig c;
    double seconds = 8, level = -6;
    for (int i = 3; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--seconds") && i + 1 < argc)
            seconds = std::atof(argv[++i]);
        else if (!std::strcmp(argv[i], "--level") && i + 1 < argc)
            level = std::atof(argv[++i]);
        else if (!parseModulator(argc, argv, i, c))
            return 2;
    }
    std::string err;
    auto d = designForward(c, &err);
    if (!d) {
        std::fprintf(stderr, "design refused: %s\n", err.c_str());
        return 2;
    }
    const auto x = zuvo_test::sine(997, 44100, std::pow(10.0, level / 20), std::size_t(seconds * 44100));
    std::vector<std::vector<std::uint8_t>> out(1);
    ChannelEncoder enc(d);
    enc.process(x.data(), x.size(), out[0]);
    enc.finish(out[0]);
    out.push_back(out[0]);
    return writeDsf(argv[2], dsdRateHz(*d), out) ? 0 : 1;
}

static int sweep(int argc, char** argv)
{
    ForwardConfig c;
    for (int i = 2; i < argc; ++i)
        if (!parseModulator(argc, argv, i, c))
            return 2;
    c.gain = 1.0;
    std::string err;
    auto d = designForward(c, &err);
    if (!d) {
        std::printf("design refused: %s\n", err.c_str());
        return 2;
    }
    std::printf("design limit (modulator input): %.2f dBFS\n", summary(*d).modulatorMaxStableDbfs);
    double lastClean = -99;
    bool broken = false;
    for (double db = -12; db <= 0.001 && !broken; db += 0.25) {
        const auto in = zuvo_test::sine(997, 44100, std::pow(10.0, db / 20), 44100 / 2);
        ChannelEncoder enc(d);
        std::vector<std::uint8_t> out;
        enc.process(in.data(), in.size(), out);
        enc.finish(out);
        const auto s = enc.stats();
        const auto r = zuvo_test::analyseTone(zuvo_test::unpackMsbFirst(out), dsdRateHz(*d), 997);
        const bool clean = s.overloads == 0 && r.snrDb > 100;
        if (db >= -6 || !clean)
            std::printf("  %6.2f dBFS: overloads %6llu resets %4llu SNR %7.2f dB %s\n", db,
                        (unsigned long long)s.overloads, (unsigned long long)s.resets, r.snrDb, clean ? "" : "<-");
        if (clean)
            lastClean = db;
        else if (db > lastClean + 0.75)
            broken = true;
    }
    std::printf("highest clean level: %.2f dBFS at the modulator input\n", lastClean);
    return 0;
}

int main(int argc, char** argv)
{
    if (argc > 1 && !std::strcmp(argv[1], "convert"))
        return convert(argc, argv);
    if (argc > 1 && !std::strcmp(argv[1], "sweep"))
        return sweep(argc, argv);
    if (argc > 1 && !std::strcmp(argv[1], "synth"))
        return synth(argc, argv);
    std::fprintf(stderr, "usage: dsp_bench convert|sweep ...\n");
    return 2;
}
