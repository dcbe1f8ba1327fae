#include "run/levels.h"

#include <cstdio>

#include "analysis/number_text.h"

namespace zuvo::run {

std::string levelReport(const std::vector<ChannelLevel>& levels, bool peak, bool rms)
{
    // Fixed '.' decimals whatever the locale of a hosting process.
    std::string out;
    for (std::size_t c = 0; c < levels.size(); ++c) {
        out += "channel " + std::to_string(c + 1) + ":";
        if (peak)
            out += " peak " + analysis::fixed(levels[c].peakDbfs(), 2) + " dBFS";
        if (rms)
            out += " rms " + analysis::fixed(levels[c].rmsDbfs(), 2) + " dBFS";
        out += '\n';
    }
    return out;
}

void printLevelReport(const cli::EngineOptions& o, const std::vector<ChannelLevel>& levels)
{
    if (!o.report && !o.reportPeak && !o.reportRms)
        return;
    const bool both = !o.reportPeak && !o.reportRms;
    std::fprintf(stdout, "%s", levelReport(levels, both || o.reportPeak, both || o.reportRms).c_str());
    std::fflush(stdout);
}

} // namespace zuvo::run
