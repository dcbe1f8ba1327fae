#include "analysis/loudness_plan.h"

#include <algorithm>
#include <cmath>

#include "analysis/number_text.h"

namespace zuvo::analysis {

LoudnessPlan planLoudness(double integratedLufs, double truePeakDbtp, double targetLufs, double ceilingDbtp)
{
    LoudnessPlan p;
    if (!std::isfinite(integratedLufs)) {
        p.silent = true;
        p.expectedLufs = integratedLufs;
        p.expectedPeakDbtp = truePeakDbtp;
        return p;
    }
    p.wantedGainDb = targetLufs - integratedLufs;
    p.gainDb = p.wantedGainDb;
    if (std::isfinite(truePeakDbtp) && truePeakDbtp + p.gainDb > ceilingDbtp) {
        p.gainDb = ceilingDbtp - truePeakDbtp;
        p.limited = true;
    }
    p.expectedLufs = integratedLufs + p.gainDb;
    p.expectedPeakDbtp = truePeakDbtp + p.gainDb;
    return p;
}

ReplayGainValues replayGain(double integratedLufs, double truePeakDbtp)
{
    ReplayGainValues v;
    if (!std::isfinite(integratedLufs))
        return v;
    v.valid = true;
    v.gainDb = kReplayGainReferenceLufs - integratedLufs;
    v.peak = std::isfinite(truePeakDbtp) ? std::pow(10.0, truePeakDbtp / 20) : 0.0;
    return v;
}

std::string replayGainText(double gainDb)
{
    return fixed(gainDb, 2) + " dB";
}

std::string replayPeakText(double peak)
{
    return fixed(std::max(peak, 0.0), 6);
}

} // namespace zuvo::analysis
