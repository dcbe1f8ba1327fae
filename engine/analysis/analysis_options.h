#pragma once
// Loudness, level statistics and input checks asked for on the command line.
#include <optional>
#include <string>
#include <vector>

namespace zuvo::analysis {

enum class ReplayGainMode { Off, Track, Album };

struct AnalysisOptions {
    bool measure = false;            // --measure: CSV of loudness figures, no output file
    bool stats = false;              // --stats: statistics block at the end
    bool stopLossy = false;          // --stop-lossy: refuse inputs that look lossy
    std::optional<double> lufsTarget; // --lufs X: normalise to X LUFS integrated
    ReplayGainMode replayGain = ReplayGainMode::Off; // --rg [album]

    // Whether the conversion needs a measuring pass before it.
    bool needsFirstPass() const { return lufsTarget.has_value() || replayGain != ReplayGainMode::Off; }
};

constexpr double kLufsLowest = -70.0;
constexpr double kLufsHighest = 0.0;

// Takes the option at args[i] (and its values, moving i past them) when it
// is one of the above; bad values go to `errors`. False: not ours.
bool takeAnalysisOption(const std::vector<std::string>& args, std::size_t& i, AnalysisOptions& options,
                        std::vector<std::string>& errors);

// Whether a plain argument names a DSD file (.dsf/.dff, any case): with
// --measure, that one is the conversion's output, not an input.
bool isDsdPath(const std::string& path);

// Conflicts with the run's mode, once the whole command line is read.
// `forward`: PCM to DSD (not --reverse, --dxd or --record).
void validateAnalysis(AnalysisOptions& options, bool forward, bool explicitGain, std::vector<std::string>& errors,
                      std::vector<std::string>& warnings);

} // namespace zuvo::analysis
