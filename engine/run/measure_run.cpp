#include "run/measure_run.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "analysis/loudness_meter.h"
#include "analysis/number_text.h"
#include "io/pcm_reader.h"
#include "run/exit_codes.h"
#include "run/pcm_input.h"

namespace zuvo::run {

namespace {

// A file name as one CSV field: quoted when it holds a comma, a quote or a
// line break.
std::string csvField(const std::string& s)
{
    if (s.find_first_of(",\"\r\n") == std::string::npos)
        return s;
    std::string q = "\"";
    for (char c : s) {
        if (c == '"')
            q += '"';
        q += c;
    }
    return q + '"';
}

std::string plrText(const analysis::LoudnessFigures& f)
{
    if (!std::isfinite(f.integratedLufs) || !std::isfinite(f.truePeakDbtp))
        return "nan";
    return analysis::fixed(f.plrDb(), 2);
}

} // namespace

int runMeasure(RunContext& ctx)
{
    const cli::EngineOptions& o = ctx.options;
    std::fputs("file,integrated_lufs,lra_lu,true_peak_dbtp,plr_db\n", stdout);
    std::fflush(stdout);
    int code = kExitOk;
    const auto inputs = static_cast<double>(o.inputs.size());
    for (std::size_t k = 0; k < o.inputs.size(); ++k) {
        const std::string& input = o.inputs[k];
        io::PcmReader reader;
        if (const int refused = openPcmInput(ctx, reader, input, InputDetail::WithFrames)) {
            code = refused == kExitUsage ? kExitUsage : kExitFailure;
            continue;
        }
        const io::PcmStreamInfo& in = reader.info();
        const auto channels = static_cast<std::size_t>(in.channels);
        analysis::LoudnessMeter meter(in.channels, in.sampleRate, in.layout);
        if (!meter.valid()) {
            report(ctx, "%s: cannot measure %d channel(s) at %d Hz", input.c_str(), in.channels, in.sampleRate);
            code = kExitFailure;
            continue;
        }
        std::vector<double> interleaved;
        std::vector<std::vector<double>> planar(channels);
        std::string error;
        long long done = 0;
        bool failed = false;
        for (;;) {
            if (ctx.stopRequested()) {
                report(ctx, "stopped on request; the inputs after %s were not measured", input.c_str());
                return kExitStopped;
            }
            const long long got = reader.read(16384, interleaved, &error);
            if (got < 0) {
                report(ctx, "%s", error.c_str());
                failed = true;
                break;
            }
            if (got == 0)
                break;
            const auto n = static_cast<std::size_t>(got);
            for (std::size_t c = 0; c < channels; ++c)
                takeChannel(interleaved, channels, c, n, planar[c]);
            meter.add(planar, n);
            done += got;
            if (in.frames > 0)
                ctx.progress.update(100.0 * (static_cast<double>(k)
                                             + static_cast<double>(done) / static_cast<double>(in.frames)) / inputs);
        }
        if (failed) {
            code = kExitFailure;
            continue;
        }
        const analysis::LoudnessFigures f = meter.figures();
        const std::string row = csvField(input) + "," + analysis::fixed(f.integratedLufs, 2) + ","
                                + analysis::fixed(f.rangeLu, 2) + "," + analysis::fixed(f.truePeakDbtp, 2) + ","
                                + plrText(f);
        std::fputs((row + "\n").c_str(), stdout);
        std::fflush(stdout);
        ctx.log.line("measured %s: %s", input.c_str(), row.c_str());
    }
    ctx.progress.finish(code == kExitOk);
    return code;
}

} // namespace zuvo::run
