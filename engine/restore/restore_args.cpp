#include "restore/restore_args.h"

#include "cli/option_values.h"
#include "restore/mastering_presets.h"
#include "restore/spectral/spectral_options.h"

namespace zuvo::restore {

namespace {

struct Reader {
    const std::vector<std::string>& args;
    std::size_t& i;
    std::vector<std::string>& errors;

    bool text(std::string& out)
    {
        if (i + 1 >= args.size()) {
            errors.push_back(args[i] + " needs a value");
            return false;
        }
        out = args[++i];
        return true;
    }
    // `lo`/`hi` as text so that the message shows them exactly as written.
    bool number(double lo, double hi, const char* range, double& out)
    {
        const std::string name = args[i];
        std::string s;
        if (!text(s))
            return false;
        double v = 0;
        if (!cli::parseDouble(s, v) || v < lo || v > hi) {
            errors.push_back(name + ": '" + s + "' is not a number " + range);
            return false;
        }
        out = v;
        return true;
    }
};

} // namespace

bool parseRestoreOption(const std::vector<std::string>& args, std::size_t& i, RestoreOptions& o,
                        std::vector<std::string>& errors)
{
    if (parseSpectralOption(args, i, o.spectral, o.spectralOn, errors))
        return true;
    const std::string& a = args[i];
    Reader r{args, i, errors};
    ExpanderOptions& e = o.expand;
    if (a == "--dehum") {
        o.dehum.on = true;
    } else if (a == "--dehum-q") {
        o.dehum.qGiven = r.number(0.5, 100, "from 0.5 to 100", o.dehum.q) || o.dehum.qGiven;
    } else if (a == "--decrackle") {
        o.decrackle.on = true;
    } else if (a == "--decrackle-threshold") {
        o.decrackle.thresholdGiven
            = r.number(2, 50, "from 2 to 50", o.decrackle.threshold) || o.decrackle.thresholdGiven;
    } else if (a == "--expand") {
        e.on = true;
    } else if (a == "--expand-threshold") {
        e.thresholdGiven = r.number(-120, 0, "from -120 to 0 (dB)", e.thresholdDb) || e.thresholdGiven;
    } else if (a == "--expand-ratio") {
        e.ratioGiven = r.number(1, 20, "from 1 to 20", e.ratio) || e.ratioGiven;
    } else if (a == "--expand-knee") {
        e.kneeGiven = r.number(0, 40, "from 0 to 40 (dB)", e.kneeDb) || e.kneeGiven;
    } else if (a == "--expand-attack") {
        e.attackGiven = r.number(0, 1000, "from 0 to 1000 (ms)", e.attackMs) || e.attackGiven;
    } else if (a == "--expand-release") {
        e.releaseGiven = r.number(0, 10000, "from 0 to 10000 (ms)", e.releaseMs) || e.releaseGiven;
    } else if (a == "--master") {
        o.master = true;
    } else if (a == "--mastering-preset") {
        std::string s;
        if (r.text(s)) {
            const MasteringPreset p = presetByName(s);
            if (p == MasteringPreset::None) {
                errors.push_back("--mastering-preset: '" + s + "' is not one of classical, pop, jazz");
            } else {
                if (o.presetGiven && p != o.preset)
                    errors.push_back("--mastering-preset and --music-type name different presets; give one");
                o.preset = p;
                o.presetGiven = o.master = true;
            }
        }
    } else if (a == "--music-type") {
        std::string s;
        if (r.text(s)) {
            long long n = 0;
            const MasteringPreset p = cli::parseInt(s, n) ? presetByMusicType(n) : MasteringPreset::None;
            if (p == MasteringPreset::None) {
                errors.push_back("--music-type: '" + s + "' is not one of 1 (classical), 2 (pop), 3 (jazz)");
            } else {
                if (o.presetGiven && p != o.preset)
                    errors.push_back("--mastering-preset and --music-type name different presets; give one");
                o.preset = p;
                o.musicType = static_cast<int>(n);
                o.presetGiven = o.master = true;
            }
        }
    } else {
        return false;
    }
    return true;
}

void finishRestoreOptions(RestoreOptions& o, bool forwardMode, std::vector<std::string>& errors,
                          std::vector<std::string>& warnings)
{
    if (o.master && o.preset == MasteringPreset::None)
        o.preset = MasteringPreset::Pop;
    applyMasteringRestore(o);
    if (!forwardMode && (o.any() || o.master))
        errors.push_back("--dehum, --decrackle, --expand and --master apply to PCM to DSD file conversion only (not to --reverse, --dxd or --record)");
    if (o.dehum.qGiven && !o.dehum.on)
        warnings.push_back("--dehum-q has no effect without --dehum");
    if (o.decrackle.thresholdGiven && !o.decrackle.on)
        warnings.push_back("--decrackle-threshold has no effect without --decrackle");
    const ExpanderOptions& e = o.expand;
    if ((e.thresholdGiven || e.ratioGiven || e.kneeGiven || e.attackGiven || e.releaseGiven) && !e.on)
        warnings.push_back("--expand-threshold/-ratio/-knee/-attack/-release have no effect without --expand");
}

} // namespace zuvo::restore
