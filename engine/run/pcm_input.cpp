#include "run/pcm_input.h"

#include <utility>

#include "run/exit_codes.h"
#include "run/output_checks.h"

namespace zuvo::run {

int openPcmInput(RunContext& ctx, io::PcmReader& reader, const std::string& input, InputDetail detailLine,
                 const PcmInputChecks& modeChecks)
{
    const std::string& output = ctx.options.output;
    if (sameFile(input, output)) {
        report(ctx, "the output is the input file: %s", output.c_str());
        return kExitUsage;
    }
    std::string error;
    if (!reader.open(input, &error)) {
        report(ctx, "%s", error.c_str());
        return kExitFailure;
    }
    const io::PcmStreamInfo& in = reader.info();
    if (detailLine == InputDetail::WithFrames)
        detail(ctx, "input: %s, %s, %d Hz, %d channel(s), %lld frames", input.c_str(), in.formatName.c_str(),
               in.sampleRate, in.channels, static_cast<long long>(in.frames));
    else
        detail(ctx, "input: %s, %s, %d Hz, %d channel(s)", input.c_str(), in.formatName.c_str(), in.sampleRate,
               in.channels);
    if (in.channels < 1 || in.channels > 8) {
        report(ctx, "%s has %d channels; this engine takes 1 to 8", input.c_str(), in.channels);
        return kExitFailure;
    }
    detail(ctx, "channels: %s (%s)", io::layoutText(in.layout).c_str(),
           in.layoutFromFile ? "from the file's channel mask" : "assumed from the channel count");
    if (modeChecks)
        if (const int refused = modeChecks(in))
            return refused;
    if (in.truncated) {
        report(ctx, "%s", in.truncation.c_str());
        return kExitFailure;
    }
    return 0;
}

namespace {
std::string perChannel(const std::vector<std::uint64_t>& counts)
{
    std::string out;
    for (std::size_t c = 0; c < counts.size(); ++c)
        if (counts[c] > 0)
            out += (out.empty() ? "" : ", ") + std::string("channel ") + std::to_string(c + 1) + ": "
                + std::to_string(counts[c]);
    return out;
}
} // namespace

void reportSignalRepairs(RunContext& ctx, const std::vector<std::uint64_t>& nonFinite,
                         const std::vector<dsp::ChannelEncoder>& encoders)
{
    std::uint64_t bad = 0;
    for (std::uint64_t n : nonFinite)
        bad += n;
    if (bad > 0)
        report(ctx, "warning: %llu non-finite input sample(s) (NaN or infinity) replaced by the sample before (%s)",
               static_cast<unsigned long long>(bad), perChannel(nonFinite).c_str());
    std::vector<std::uint64_t> resets;
    std::uint64_t dead = 0;
    for (const auto& e : encoders) {
        resets.push_back(e.stats().nonFiniteResets);
        dead += resets.back();
    }
    if (dead > 0)
        report(ctx, "warning: the modulator state became non-finite and was reset %llu time(s) (%s)",
               static_cast<unsigned long long>(dead), perChannel(resets).c_str());
}

std::vector<std::size_t> channelSources(std::size_t channels, bool swapFirstTwo)
{
    std::vector<std::size_t> order(channels);
    for (std::size_t c = 0; c < channels; ++c)
        order[c] = c;
    return channelSources(order, swapFirstTwo);
}

std::vector<std::size_t> channelSources(std::vector<std::size_t> order, bool swapFirstTwo)
{
    if (swapFirstTwo && order.size() >= 2)
        std::swap(order[0], order[1]);
    return order;
}

io::ChannelLayout writtenLayout(const io::ChannelLayout& fileLayout, const std::vector<std::size_t>& order)
{
    io::ChannelLayout out;
    for (std::size_t i : order)
        out.push_back(i < fileLayout.size() ? fileLayout[i] : io::Speaker::Other);
    return out;
}

std::size_t takeChannel(const std::vector<double>& interleaved, std::size_t channels, std::size_t source,
                        std::size_t frames, std::vector<double>& out)
{
    out.resize(frames);
    const double* src = interleaved.data() + source;
    std::size_t replaced = 0;
    double previous = 0.0;
    for (std::size_t i = 0; i < frames; ++i) {
        double v = src[i * channels];
        // x - x is 0 for every finite x and NaN for NaN and infinities.
        if (v - v != 0.0) {
            v = previous;
            ++replaced;
        }
        out[i] = v;
        previous = v;
    }
    return replaced;
}

} // namespace zuvo::run
