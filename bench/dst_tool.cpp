// DST bench and check tool.
//   dst_tool encode IN.dff OUT.dff LEVEL   re-encode a DSDIFF (plain or DST) as DST
//   dst_tool compare A.dff B.dff           DSD bits of two DSDIFF/DSF files equal?
//   dst_tool stats IN.dff SECONDS LEVEL... size ratio and encoding speed per level
//                                          over the first SECONDS (0 = all), frames
//                                          coded in memory (no file written); speeds
//                                          are audio seconds per CPU second of one
//                                          thread, so a busy machine does not skew them
#include <algorithm>
#include <ctime>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "dst/dst_decoder.h"
#include "dst/dst_encoder.h"
#include "dst/dst_frame.h"
#include "io/dff_writer.h"
#include "io/dsd_reader.h"

using namespace zuvo;

namespace {

double cpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

bool readAll(const char* path, io::DsdStreamInfo& info, std::vector<std::vector<std::uint8_t>>& data)
{
    std::string error;
    auto r = io::openDsdFile(path, &error);
    if (!r) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return false;
    }
    info = r->info();
    data.assign(static_cast<std::size_t>(info.channels), {});
    std::vector<std::vector<std::uint8_t>> chunk;
    for (;;) {
        const long long n = r->read(1 << 16, chunk, &error);
        if (n < 0) {
            std::fprintf(stderr, "%s\n", error.c_str());
            return false;
        }
        if (n == 0)
            break;
        for (std::size_t c = 0; c < data.size(); ++c)
            data[c].insert(data[c].end(), chunk[c].begin(), chunk[c].end());
    }
    return true;
}

int encode(const char* in, const char* out, int level)
{
    io::DsdStreamInfo info;
    std::vector<std::vector<std::uint8_t>> data;
    if (!readAll(in, info, data))
        return 1;
    io::DffWriter w;
    std::string error;
    if (!w.open(out, {info.channels, info.sampleRate, {}, level}, {}, &error) || !w.write(data, &error)
        || !w.finalize(&error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    return 0;
}

int compare(const char* a, const char* b)
{
    io::DsdStreamInfo ia, ib;
    std::vector<std::vector<std::uint8_t>> da, db;
    if (!readAll(a, ia, da) || !readAll(b, ib, db))
        return 1;
    if (da != db) {
        std::printf("DIFFERENT (%llu vs %llu bytes per channel)\n", static_cast<unsigned long long>(ia.bytesPerChannel),
                    static_cast<unsigned long long>(ib.bytesPerChannel));
        for (std::size_t c = 0; c < da.size() && c < db.size(); ++c)
            for (std::size_t i = 0; i < da[c].size() && i < db[c].size(); ++i)
                if (da[c][i] != db[c][i]) {
                    std::printf("channel %zu first differs at byte %zu\n", c, i);
                    break;
                }
        return 1;
    }
    std::printf("identical: %d channels, %llu bytes per channel\n", ia.channels,
                static_cast<unsigned long long>(ia.bytesPerChannel));
    return 0;
}

int stats(const char* in, double limitSeconds, const std::vector<int>& levels)
{
    io::DsdStreamInfo info;
    std::vector<std::vector<std::uint8_t>> data;
    if (!readAll(in, info, data))
        return 1;
    const int bits = dst::frameBits(info.sampleRate);
    const std::size_t fb = static_cast<std::size_t>(bits) / 8;
    std::size_t frames = data[0].size() / fb;
    if (limitSeconds > 0)
        frames = std::min(frames, static_cast<std::size_t>(limitSeconds * dst::kFramesPerSecond));
    const double seconds = static_cast<double>(frames) / dst::kFramesPerSecond;
    std::printf("%s: %d ch, DSD rate %d, %zu frames (%.1f s)\n", in, info.channels, info.sampleRate, frames, seconds);
    std::printf("level  ratio(coded/plain)  stored-frames  encode xRT/core  decode xRT/core  roundtrip\n");
    for (int level : levels) {
        std::size_t total = 0, stored = 0;
        double encSec = 0, decSec = 0;
        bool exact = true;
        std::vector<std::vector<std::uint8_t>> back;
        for (std::size_t f = 0; f < frames; ++f) {
            std::vector<const std::uint8_t*> planes;
            for (auto& ch : data)
                planes.push_back(ch.data() + f * fb);
            dst::FrameStats st;
            const double t0 = cpuSeconds();
            const auto frame = dst::encodeFrame(planes, bits, level, &st);
            const double t1 = cpuSeconds();
            std::string why;
            const bool ok = dst::decodeFrame(frame.data(), frame.size(), info.channels, bits, back, &why);
            const double t2 = cpuSeconds();
            encSec += t1 - t0;
            decSec += t2 - t1;
            total += frame.size();
            stored += st.coded ? 0 : 1;
            for (std::size_t c = 0; ok && c < planes.size(); ++c)
                exact = exact && std::memcmp(back[c].data(), planes[c], fb) == 0;
            exact = exact && ok;
        }
        const double plain = static_cast<double>(frames * fb * data.size());
        std::printf("%5d  %18.4f  %13zu  %15.1f  %15.1f  %s\n", level, static_cast<double>(total) / plain, stored,
                    seconds / encSec, seconds / decSec, exact ? "bit-exact" : "MISMATCH");
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 5 && std::strcmp(argv[1], "encode") == 0)
        return encode(argv[2], argv[3], std::atoi(argv[4]));
    if (argc == 4 && std::strcmp(argv[1], "compare") == 0)
        return compare(argv[2], argv[3]);
    if (argc >= 5 && std::strcmp(argv[1], "stats") == 0) {
        std::vector<int> levels;
        for (int i = 4; i < argc; ++i)
            levels.push_back(std::atoi(argv[i]));
        return stats(argv[2], std::atof(argv[3]), levels);
    }
    std::fprintf(stderr, "usage: dst_tool encode IN OUT LEVEL | compare A B | stats IN SECONDS LEVEL...\n");
    return 2;
}
