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
    if (modeChecks)
        if (const int refused = modeChecks(in))
            return refused;
    if (in.truncated) {
        report(ctx, "%s is truncated: its header declares %llu bytes of audio and the file holds %llu",
               input.c_str(), in.declaredBytes, in.presentBytes);
        return kExitFailure;
    }
    return 0;
}

std::vector<std::size_t> channelSources(std::size_t channels, bool swapFirstTwo)
{
    std::vector<std::size_t> source(channels);
    for (std::size_t c = 0; c < channels; ++c)
        source[c] = c;
    if (swapFirstTwo && channels >= 2)
        std::swap(source[0], source[1]);
    return source;
}

void takeChannel(const std::vector<double>& interleaved, std::size_t channels, std::size_t source,
                 std::size_t frames, std::vector<double>& out)
{
    out.resize(frames);
    const double* src = interleaved.data() + source;
    for (std::size_t i = 0; i < frames; ++i)
        out[i] = src[i * channels];
}

} // namespace zuvo::run
