#include "report/report_analysis.h"

#include <algorithm>
#include <cmath>

#include "run/channel_pool.h"

namespace zuvo::report {

double powerDb(double p) { return p > 0 ? 10 * std::log10(p) : -INFINITY; }

std::size_t outputSegment(int dsdRate)
{
    return std::min<std::size_t>(floorPowerOfTwo(std::size_t(dsdRate / 40)), std::size_t(1) << 18);
}

std::size_t measuredSpan(int dsdRate)
{
    return std::max<std::size_t>(std::size_t(1) << 19, 4 * outputSegment(dsdRate));
}

namespace {


std::size_t inputSegment(int inputRate, std::size_t shortestExcerpt)
{
    std::size_t n = floorPowerOfTwo(std::size_t(inputRate / 5));
    n = std::min(n, floorPowerOfTwo(shortestExcerpt / 4));
    return std::max<std::size_t>(n, 256);
}

void unpackBits(const std::vector<std::uint8_t>& bytes, std::vector<double>& bits)
{
    bits.resize(bytes.size() * 8);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        for (int b = 0; b < 8; ++b)
            bits[i * 8 + std::size_t(b)] = (bytes[i] >> (7 - b)) & 1u ? 1.0 : -1.0;
}

} // namespace

Analysis analyse(const ReportTap& tap, const dsp::ForwardDesign& design)
{
    Analysis a;
    const TapLayout& l = tap.layout();
    const int channels = std::min(tap.channels(), kMaxAnalysedChannels);
    a.excerpts = tap.excerpts().size();
    // Excerpts a short file never reached stay empty and do not count.
    std::size_t shortest = SIZE_MAX;
    for (std::size_t k = 0; k < a.excerpts && channels > 0; ++k)
        if (!tap.signal(0, k).empty())
            shortest = std::min(shortest, tap.signal(0, k).size());
    if (channels == 0 || shortest == SIZE_MAX)
        return a;

    const std::size_t inSeg = inputSegment(l.inputRate, shortest);
    const std::size_t outSeg = outputSegment(l.dsdRate);
    const double ratio = double(l.dsdRate) / l.inputRate;
    const auto margin = std::size_t(marginFrames(l));
    // Channels are independent: each on its own thread, results in order.
    a.channels.resize(std::size_t(channels));
    std::vector<double> measured(std::size_t(channels), 0), whole(std::size_t(channels), 0);
    run::ChannelPool pool(run::ChannelPool::threadsFor(channels));
    pool.run(channels, [&](int ci) {
        const auto c = std::size_t(ci);
        std::vector<double> bits, error;
        // The DSD-rate spans are long: whole-length steps halve the work.
        WelchAnalyser input(l.inputRate, inSeg), output(l.dsdRate, outSeg, false), err(l.dsdRate, outSeg, false);
        for (std::size_t k = 0; k < a.excerpts; ++k) {
            const std::vector<double>& x = tap.signal(c, k);
            input.add(x.data(), x.size());
            whole[c] += double(x.size()) / l.inputRate;
            unpackBits(tap.bytes(c, k), bits);
            const auto frames = std::min(x.size(), std::size_t(double(bits.size()) / ratio));
            if (frames <= 2 * margin)
                continue;
            const auto from = std::size_t(std::llround(double(margin) * ratio));
            const auto to = std::size_t(std::llround(double(frames - margin) * ratio));
            if (to <= from + outSeg)
                continue;
            const std::vector<double> ideal = dsp::interpolateOnly(design, x.data(), frames);
            const std::size_t end = std::min({to, ideal.size(), bits.size()});
            error.resize(end - from);
            for (std::size_t i = from; i < end; ++i)
                error[i - from] = bits[i] - ideal[i];
            output.add(bits.data() + from, end - from);
            err.add(error.data(), error.size());
            measured[c] += double(end - from) / l.dsdRate;
        }
        ChannelAnalysis& ch = a.channels[c];
        ch.input = input.result();
        ch.output = output.result();
        ch.error = err.result();
        ch.inBandNoiseDbfs = ch.ultrasonicNoiseDbfs = ch.aWeightedNoiseDbfs = NAN;
        if (!ch.error.empty()) {
            ch.inBandNoiseDbfs = powerDb(ch.error.bandPower(20, 20000));
            ch.ultrasonicNoiseDbfs = powerDb(ch.error.bandPower(20000, std::min(50000.0, l.dsdRate / 2.0)));
            ch.aWeightedNoiseDbfs = powerDb(ch.error.weightedPower(20, 20000, aWeightingPower));
            for (int b = 0; b < kNoiseBands; ++b)
                ch.bandNoiseDbfs.push_back(powerDb(ch.error.bandPower(b == 0 ? 20 : 1000.0 * b, 1000.0 * (b + 1))));
        }
    });
    a.measuredSeconds = measured[0];
    a.excerptSeconds = whole[0];
    return a;
}

} // namespace zuvo::report
