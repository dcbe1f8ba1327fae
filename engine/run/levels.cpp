#include "run/levels.h"

#include <cstdio>

namespace zuvo::run {

std::string levelReport(const std::vector<ChannelLevel>& levels, bool peak, bool rms)
{
    std::string out;
    char line[160];
    for (std::size_t c = 0; c < levels.size(); ++c) {
        int n = std::snprintf(line, sizeof line, "channel %zu:", c + 1);
        if (peak)
            n += std::snprintf(line + n, sizeof line - static_cast<std::size_t>(n), " peak %.2f dBFS", levels[c].peakDbfs());
        if (rms)
            std::snprintf(line + n, sizeof line - static_cast<std::size_t>(n), " rms %.2f dBFS", levels[c].rmsDbfs());
        out += line;
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
