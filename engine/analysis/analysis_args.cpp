#include "analysis/analysis_options.h"

#include "analysis/number_text.h"
#include "cli/option_values.h"

namespace zuvo::analysis {

bool isDsdPath(const std::string& path)
{
    if (path.size() < 4)
        return false;
    std::string ext = path.substr(path.size() - 4);
    for (char& c : ext)
        c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    return ext == ".dsf" || ext == ".dff";
}

bool takeAnalysisOption(const std::vector<std::string>& args, std::size_t& i, AnalysisOptions& o,
                        std::vector<std::string>& errors)
{
    const std::string& a = args[i];
    if (a == "--measure") {
        o.measure = true;
    } else if (a == "--stats") {
        o.stats = true;
    } else if (a == "--stop-lossy") {
        o.stopLossy = true;
    } else if (a == "--rg") {
        o.replayGain = ReplayGainMode::Track;
        // "album" is the only value; anything else is the next argument.
        if (i + 1 < args.size() && args[i + 1] == "album") {
            o.replayGain = ReplayGainMode::Album;
            ++i;
        }
    } else if (a == "--lufs") {
        if (i + 1 >= args.size()) {
            errors.push_back("--lufs needs a value");
            return true;
        }
        const std::string& text = args[++i];
        double x = 0;
        if (!cli::parseDouble(text, x) || !(x >= kLufsLowest && x <= kLufsHighest))
            errors.push_back("--lufs: '" + text + "' is not a loudness from " + fixed(kLufsLowest, 0) + " to "
                             + fixed(kLufsHighest, 0) + " LUFS");
        else
            o.lufsTarget = x;
    } else {
        return false;
    }
    return true;
}

void validateAnalysis(AnalysisOptions& o, bool forward, bool explicitGain, std::vector<std::string>& errors,
                      std::vector<std::string>& warnings)
{
    if (!forward) {
        if (o.measure)
            errors.emplace_back("--measure reads PCM inputs: it excludes --reverse, --dxd and --record");
        if (o.lufsTarget)
            errors.emplace_back("--lufs applies to DSF and DSDIFF outputs only (not to --reverse, --dxd or --record)");
        if (o.replayGain != ReplayGainMode::Off)
            errors.emplace_back("--rg applies to DSF and DSDIFF outputs only (not to --reverse, --dxd or --record)");
        if (o.stopLossy)
            errors.emplace_back("--stop-lossy applies to PCM-to-DSD conversions only");
        if (o.stats)
            errors.emplace_back("--stats applies to PCM-to-DSD conversions only");
        return;
    }
    if (o.measure) {
        if (o.lufsTarget || o.replayGain != ReplayGainMode::Off)
            errors.emplace_back("--measure writes no output: --lufs and --rg need a conversion");
        if (o.stats)
            errors.emplace_back("--measure prints its own CSV: leave out --stats");
        if (o.stopLossy)
            warnings.emplace_back("--stop-lossy has no effect with --measure (nothing is written)");
    }
    if (o.lufsTarget && explicitGain)
        warnings.emplace_back("--lufs sets the level: the gain of --abs/--absdb is replaced by the loudness gain");
}

} // namespace zuvo::analysis
