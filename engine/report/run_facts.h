#pragma once
// Gathers the report's RunFacts from the objects of a finished PCM -> DSD run.
#include <vector>

#include "cli/options.h"
#include "dsp/dsd_pipeline.h"
#include "effects/effect_chain.h"
#include "io/pcm_reader.h"
#include "report/report_facts.h"
#include "run/levels.h"

namespace zuvo::report {

// A recording: the capture device stands for the input file; no effects.
RunFacts recordFacts(const cli::EngineOptions& options, const std::string& device, int rate, int channels,
                     const dsp::DesignSummary& summary, const std::vector<run::ChannelLevel>& levels,
                     const std::vector<dsp::ChannelEncoder>& encoders, double seconds);

RunFacts reportFacts(const cli::EngineOptions& options, const io::PcmStreamInfo& input, const dsp::DesignSummary& summary,
                     const effects::EffectChain& chain, const std::vector<run::ChannelLevel>& levels,
                     const std::vector<dsp::ChannelEncoder>& encoders, double seconds);

} // namespace zuvo::report
