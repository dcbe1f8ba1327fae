#include "report/run_facts.h"

#include <cmath>

#include "dsp/modulator.h"
#include "run/forward_run.h"

namespace zuvo::report {

namespace {

std::string quoted(const std::vector<std::string>& args)
{
    std::string out;
    for (const std::string& a : args) {
        const bool plain = !a.empty() && a.find_first_of(" \"'\t") == std::string::npos;
        out += (out.empty() ? "" : " ") + (plain ? a : "\"" + a + "\"");
    }
    return out;
}

RunFacts commonFacts(const cli::EngineOptions& o, const std::string& input, int rate, int channels,
                     const dsp::DesignSummary& summary, const std::vector<run::ChannelLevel>& levels,
                     const std::vector<dsp::ChannelEncoder>& encoders, double seconds)
{
    RunFacts f;
    f.version = ZUVO_VERSION;
    f.input = input;
    f.output = o.output;
    f.commandLine = quoted(o.arguments);
    f.inputRate = rate;
    f.dsdMultiple = o.oversampling;
    f.dsdRate = o.oversampling * dsp::kDsdBaseRate;
    f.inChannels = channels;
    f.outChannels = int(encoders.size());
    f.modulator = std::string(run::modulatorName(o.modulator.type)) + ", order "
                  + std::to_string(o.modulator.order ? o.modulator.order : dsp::detail::defaultOrder(o.modulator.type));
    f.designText = summary.text;
    f.seconds = seconds;
    f.appliedGainDb = 20 * std::log10(summary.appliedGain);
    f.passbandRippleDb = summary.passbandRippleDb;
    f.stopbandAttenuationDb = summary.stopbandAttenuationDb;
    f.modulatorMaxStableDbfs = summary.modulatorMaxStableDbfs;
    for (const run::ChannelLevel& l : levels)
        f.inputLevels.push_back({l.peakDbfs(), l.rmsDbfs()});
    for (const dsp::ChannelEncoder& e : encoders) {
        const auto st = e.stats();
        f.modulators.push_back({st.peakInput, st.overloads, st.resets});
    }
    f.noiseProfiling = o.noiseProfiling;
    return f;
}

} // namespace

RunFacts reportFacts(const cli::EngineOptions& o, const io::PcmStreamInfo& in, const dsp::DesignSummary& summary,
                     const effects::EffectChain& chain, const std::vector<run::ChannelLevel>& levels,
                     const std::vector<dsp::ChannelEncoder>& encoders, double seconds)
{
    RunFacts f = commonFacts(o, o.inputs.empty() ? std::string() : o.inputs.front(), in.sampleRate, in.channels,
                             summary, levels, encoders, seconds);
    if (!chain.empty())
        f.effects = chain.description();
    return f;
}

RunFacts recordFacts(const cli::EngineOptions& o, const std::string& device, int rate, int channels,
                     const dsp::DesignSummary& summary, const std::vector<run::ChannelLevel>& levels,
                     const std::vector<dsp::ChannelEncoder>& encoders, double seconds)
{
    return commonFacts(o, "capture device \"" + device + "\"", rate, channels, summary, levels, encoders, seconds);
}

} // namespace zuvo::report
