#pragma once
// Gains from measured loudness: the --lufs normalisation (capped so the
// true peak stays under a ceiling) and ReplayGain 2.0 values.
#include <string>

namespace zuvo::analysis {

constexpr double kTruePeakCeilingDbtp = -1.0;
constexpr double kReplayGainReferenceLufs = -18.0;

struct LoudnessPlan {
    double gainDb = 0;       // the gain to apply
    double wantedGainDb = 0; // target - integrated, before the cap
    bool limited = false;    // the true-peak cap lowered the gain
    bool silent = false;     // nothing to measure: no gain
    double expectedLufs = 0; // integrated loudness after the gain
    double expectedPeakDbtp = 0;
};

// `ceilingDbtp`: the highest true peak allowed after the gain.
LoudnessPlan planLoudness(double integratedLufs, double truePeakDbtp, double targetLufs, double ceilingDbtp);

struct ReplayGainValues {
    bool valid = false; // false for silence (no integrated loudness)
    double gainDb = 0;  // reference - integrated
    double peak = 0;    // true peak, linear (1.0 = full scale)
};

ReplayGainValues replayGain(double integratedLufs, double truePeakDbtp);
// Tag texts: "-3.21 dB" and "0.912345".
std::string replayGainText(double gainDb);
std::string replayPeakText(double peak);

} // namespace zuvo::analysis
