#include "restore/spectral/spectral_options.h"

#include <cmath>

#include "cli/option_values.h"

namespace zuvo::restore {

namespace {

constexpr double kWienerFloorDb = -15.0;
constexpr double kWienerFrameMs = 32.0;

using Mode = SpectralConfig::Mode;

const char* const kConflict = "--wiener cannot be combined with --denoise or --noise-reduce: choose one denoiser";

bool tierWord(const std::string& w, Mode& m)
{
    if (w == "light")
        m = Mode::Light;
    else if (w == "standard")
        m = Mode::Standard;
    else if (w == "deep" || w == "strong")
        m = Mode::Deep;
    else
        return false;
    return true;
}

// Switches to `mode`, with its defaults when no denoiser was chosen yet (so
// "--wiener-floor -20 --wiener" keeps the floor). False on a Wiener / tier clash.
bool select(Mode mode, SpectralConfig& c, bool& enabled, std::vector<std::string>& errors)
{
    const bool wantWiener = mode == Mode::Wiener;
    if (enabled && (c.mode == Mode::Wiener) != wantWiener) {
        errors.push_back(kConflict);
        return false;
    }
    if (!enabled && wantWiener) {
        c.floorDb = kWienerFloorDb;
        c.frameMs = kWienerFrameMs;
    }
    if (!wantWiener)
        c.frameMs = kTierFrameMs;
    c.mode = mode;
    enabled = true;
    return true;
}

bool value(const std::vector<std::string>& args, std::size_t& i, std::string& out, std::vector<std::string>& errors)
{
    if (i + 1 >= args.size()) {
        errors.push_back(args[i] + " needs a value");
        return false;
    }
    out = args[++i];
    return true;
}

// "12", "12dB", "12 dB" -> 12.
bool reductionDb(std::string t, double& out)
{
    for (const char* unit : {"dB", "db", "DB"}) {
        const std::string u(unit);
        if (t.size() > u.size() && t.compare(t.size() - u.size(), u.size(), u) == 0) {
            t.resize(t.size() - u.size());
            while (!t.empty() && t.back() == ' ')
                t.pop_back();
            break;
        }
    }
    return cli::parseDouble(t, out);
}

} // namespace

bool parseSpectralOption(const std::vector<std::string>& args, std::size_t& i, SpectralConfig& c, bool& enabled,
                         std::vector<std::string>& errors)
{
    const std::string& a = args[i];
    std::string v;
    if (a == "--wiener") {
        select(Mode::Wiener, c, enabled, errors);
    } else if (a == "--wiener-floor") {
        double x = 0;
        if (!value(args, i, v, errors))
            return true;
        if (!cli::parseDouble(v, x) || std::fabs(x) < 1.0 || std::fabs(x) > 60.0) {
            errors.push_back("--wiener-floor: '" + v + "' is not a floor from -60 to -1 dB");
            return true;
        }
        if (select(Mode::Wiener, c, enabled, errors))
            c.floorDb = -std::fabs(x);
    } else if (a == "--wiener-frame") {
        double x = 0;
        if (!value(args, i, v, errors))
            return true;
        if (!cli::parseDouble(v, x) || x < 5.0 || x > 500.0) {
            errors.push_back("--wiener-frame: '" + v + "' is not a frame length from 5 to 500 ms");
            return true;
        }
        if (select(Mode::Wiener, c, enabled, errors))
            c.frameMs = x;
    } else if (a == "--denoise") {
        Mode m;
        if (!value(args, i, v, errors))
            return true;
        if (!tierWord(v, m)) {
            errors.push_back("--denoise: '" + v + "' is not light, standard or deep");
            return true;
        }
        select(m, c, enabled, errors);
    } else if (a == "--keep-harmonics") {
        if (!value(args, i, v, errors))
            return true;
        if (v == "on")
            c.keepHarmonics = true;
        else if (v == "off")
            c.keepHarmonics = false;
        else
            errors.push_back("--keep-harmonics: '" + v + "' is not on or off");
    } else if (a == "--noise-reduce") {
        if (!value(args, i, v, errors))
            return true;
        Mode m;
        double db = 0;
        if (tierWord(v, m)) {
            select(m, c, enabled, errors);
        } else if (reductionDb(v, db) && db >= 1.0 && db <= 40.0) {
            if (select(Mode::Reduce, c, enabled, errors))
                c.reduceDb = db;
        } else {
            errors.push_back("--noise-reduce: '" + v
                             + "' is neither a reduction from 1 to 40 dB (such as 12 or 12dB) nor light, standard or deep");
        }
    } else {
        return false;
    }
    return true;
}

std::string spectralHelpText()
{
    return "Spectral denoising (restoration, per channel, before the effects; one denoiser at a time):\n"
           "  --denoise light|standard|deep  STFT denoiser, 46.4 ms frames at 75% overlap, noise floor\n"
           "                         tracked while the music plays (1.5 s minimum, tones excluded),\n"
           "                         decision-directed Wiener gain held above a floor: light -12 dB,\n"
           "                         standard -18 dB, deep -20 dB (2-5 kHz) to -30 dB (hearing-weighted).\n"
           "                         Measured on 1 kHz at -20 dBFS + white noise at -50 dBFS, 44.1 kHz:\n"
           "                         SNR +11.5 dB (light), +16.2 dB (standard), +19.4 dB (deep).\n"
           "  --keep-harmonics on|off  hold spectral peaks and the harmonic series of a detected\n"
           "                         fundamental at full level (default off): partials of a 220 Hz tone\n"
           "                         in that noise stay within 0.5 dB, where the tiers alone take up to\n"
           "                         2.8 dB off the weakest\n"
           "  --noise-reduce TEXT    TEXT is the largest attenuation in dB, 1-40 (\"12\" or \"12dB\"), or\n"
           "                         light, standard or deep; with --denoise the later one wins\n"
           "  --wiener               Wiener denoiser (floor -15 dB, 32 ms frames); not with --denoise\n"
           "                         or --noise-reduce. SNR +13.0 dB on the signal above.\n"
           "  --wiener-floor DB      its gain floor, -60 to -1 dB (implies --wiener)\n"
           "  --wiener-frame MS      its frame length, 5-500 ms, default 32 (implies --wiener)\n"
           "  On noise alone nothing beyond the noise turned down to the floor rises above -90 dBFS\n"
           "  in any frame (no musical noise). Latency: one frame.\n";
}

} // namespace zuvo::restore
