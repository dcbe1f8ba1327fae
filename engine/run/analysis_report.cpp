#include "run/analysis_report.h"

#include <cmath>
#include <cstdio>

#include "analysis/number_text.h"

namespace zuvo::run {

using analysis::fixed;

namespace {

bool levelsAsked(const cli::EngineOptions& o)
{
    return o.report || o.reportPeak || o.reportRms;
}

} // namespace

InputAnalysis::InputAnalysis(const cli::EngineOptions& o, int channels, int sampleRate, const io::ChannelLayout& layout)
{
    const bool dynamicRange = levelsAsked(o) && !o.noDynamicRange;
    active_ = dynamicRange || o.analysis.stats;
    if (!active_)
        return;
    stats_.assign(static_cast<std::size_t>(channels), analysis::ChannelStats(sampleRate));
    if (o.analysis.stats)
        meter_ = std::make_unique<analysis::LoudnessMeter>(channels, sampleRate, layout);
}

void InputAnalysis::addChannel(std::size_t channel, const double* x, std::size_t n)
{
    if (active_ && channel < stats_.size())
        stats_[channel].add(x, n);
}

void InputAnalysis::addBlock(const std::vector<std::vector<double>>& planar, std::size_t n)
{
    if (meter_)
        meter_->add(planar, n);
}

std::vector<analysis::ChannelFigures> InputAnalysis::channelFigures() const
{
    std::vector<analysis::ChannelFigures> f;
    for (const analysis::ChannelStats& s : stats_)
        f.push_back(s.figures());
    return f;
}

analysis::LoudnessFigures InputAnalysis::loudness() const
{
    if (meter_)
        return meter_->figures();
    analysis::LoudnessFigures f;
    f.integratedLufs = f.truePeakDbtp = f.samplePeakDbfs = -INFINITY;
    return f;
}

std::string dynamicRangeLines(const std::vector<analysis::ChannelFigures>& figures)
{
    std::string out;
    for (std::size_t c = 0; c < figures.size(); ++c)
        out += "channel " + std::to_string(c + 1) + ": dynamic range " + fixed(figures[c].dynamicRangeDb, 2)
               + " dB crest " + fixed(figures[c].crestDb, 2) + " dB\n";
    return out;
}

std::string statsLines(const std::vector<analysis::ChannelFigures>& figures, const analysis::LoudnessFigures& l,
                       bool dynamicRange)
{
    std::string out;
    for (std::size_t c = 0; c < figures.size(); ++c) {
        const analysis::ChannelFigures& f = figures[c];
        out += "stats channel=" + std::to_string(c + 1) + " dc_offset=" + fixed(f.dcOffset, 6)
               + " peak_dbfs=" + fixed(f.peakDbfs, 2) + " rms_dbfs=" + fixed(f.rmsDbfs, 2)
               + " crest_db=" + fixed(f.crestDb, 2) + " clipped=" + std::to_string(f.clipped);
        if (dynamicRange)
            out += " dynamic_range_db=" + fixed(f.dynamicRangeDb, 2);
        out += '\n';
    }
    out += "stats integrated_lufs=" + fixed(l.integratedLufs, 2) + " loudness_range_lu=" + fixed(l.rangeLu, 2)
           + " true_peak_dbtp=" + fixed(l.truePeakDbtp, 2) + '\n';
    return out;
}

void printAnalysisReport(const cli::EngineOptions& o, const std::vector<ChannelLevel>& levels, const InputAnalysis& input)
{
    printLevelReport(o, levels);
    std::string out;
    if (levelsAsked(o) && !o.noDynamicRange)
        out += dynamicRangeLines(input.channelFigures());
    if (o.analysis.stats)
        out += statsLines(input.channelFigures(), input.loudness(), !o.noDynamicRange);
    if (!out.empty()) {
        std::fputs(out.c_str(), stdout);
        std::fflush(stdout);
    }
}

} // namespace zuvo::run
