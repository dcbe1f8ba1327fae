#pragma once
// What a conversion learns about its input on the way, for --report/--peak/
// --rms (dynamic range and crest factor added to the level lines) and
// --stats (a statistics block with the integrated loudness).
#include <memory>
#include <string>
#include <vector>

#include "analysis/channel_stats.h"
#include "analysis/loudness_meter.h"
#include "cli/options.h"
#include "run/levels.h"

namespace zuvo::run {

class InputAnalysis {
public:
    InputAnalysis(const cli::EngineOptions& options, int channels, int sampleRate, const io::ChannelLayout& layout);
    // Whether any figure is asked for; when not, the adds cost nothing.
    bool active() const { return active_; }
    // One channel's repaired samples; channels may come from different threads.
    void addChannel(std::size_t channel, const double* x, std::size_t n);
    // The repaired block of all channels, from one thread (for the loudness).
    void addBlock(const std::vector<std::vector<double>>& planar, std::size_t n);

    std::vector<analysis::ChannelFigures> channelFigures() const;
    bool measuresLoudness() const { return meter_ != nullptr; }
    analysis::LoudnessFigures loudness() const;

private:
    bool active_ = false;
    std::vector<analysis::ChannelStats> stats_;
    std::unique_ptr<analysis::LoudnessMeter> meter_;
};

// "channel 1: dynamic range 12.30 dB crest 15.02 dB" per channel.
std::string dynamicRangeLines(const std::vector<analysis::ChannelFigures>& figures);
// "stats channel=1 dc_offset=... peak_dbfs=..." per channel, then
// "stats integrated_lufs=... loudness_range_lu=... true_peak_dbtp=...".
std::string statsLines(const std::vector<analysis::ChannelFigures>& figures, const analysis::LoudnessFigures& loudness,
                       bool dynamicRange);

// The end-of-run standard output: the level lines (--report/--peak/--rms)
// with the dynamic-range lines unless --no-dynamic-range, then --stats.
void printAnalysisReport(const cli::EngineOptions& options, const std::vector<ChannelLevel>& levels,
                         const InputAnalysis& input);

} // namespace zuvo::run
