#include "effects/effect_args.h"

#include <cmath>
#include <cstdio>

#include "cli/option_values.h"

namespace zuvo::effects {

namespace {

constexpr double kMaxGainDb = 30.0;

std::vector<std::string> split(const std::string& text, char sep)
{
    std::vector<std::string> out;
    std::size_t start = 0;
    for (;;) {
        const std::size_t p = text.find(sep, start);
        out.push_back(text.substr(start, p == std::string::npos ? std::string::npos : p - start));
        if (p == std::string::npos)
            return out;
        start = p + 1;
    }
}

std::string range(double lo, double hi)
{
    char b[80];
    std::snprintf(b, sizeof b, " from %g to %g", lo, hi);
    return b;
}

class Reader {
public:
    Reader(const std::vector<std::string>& args, std::size_t& i, std::vector<std::string>& errors)
        : args_(args), i_(i), errors_(errors), name_(args[i])
    {
    }
    bool text(std::string& out)
    {
        if (i_ + 1 >= args_.size()) {
            errors_.push_back(name_ + " needs a value");
            return false;
        }
        out = args_[++i_];
        return true;
    }
    bool number(double lo, double hi, double& out, const char* what = nullptr)
    {
        std::string t;
        if (!text(t))
            return false;
        return check(t, lo, hi, out, what);
    }
    bool check(const std::string& t, double lo, double hi, double& out, const char* what = nullptr)
    {
        double v = 0;
        if (!cli::parseDouble(t, v) || v < lo || v > hi) {
            errors_.push_back(name_ + (what ? std::string(" ") + what : std::string()) + ": '" + t
                              + "' is not a number" + range(lo, hi));
            return false;
        }
        out = v;
        return true;
    }
    // The next argument, when there is one and it is a number.
    bool optionalNumber(double& out)
    {
        if (i_ + 1 >= args_.size() || !cli::isNumber(args_[i_ + 1]))
            return false;
        return number(-1e300, 1e300, out);
    }
    bool peekIs(const char* word) const { return i_ + 1 < args_.size() && args_[i_ + 1] == word; }
    void skip() { ++i_; }
    void error(const std::string& text) { errors_.push_back(name_ + ": " + text); }

private:
    const std::vector<std::string>& args_;
    std::size_t& i_;
    std::vector<std::string>& errors_;
    std::string name_;
};

void fixedBand(Reader& r, FixedBand& band)
{
    double x = 0;
    if (r.number(-kMaxGainDb, kMaxGainDb, x)) {
        band.given = true;
        band.gainDb = x;
    }
}

} // namespace

bool parseEqBands(const std::string& text, std::vector<eq::BandSpec>& out, std::string& error)
{
    out.clear();
    if (text.empty())
        return true;
    const std::vector<std::string> bands = split(text, ';');
    for (std::size_t b = 0; b < bands.size(); ++b) {
        const std::string& band = bands[b];
        const std::vector<std::string> parts = split(band, ',');
        const std::string where = "band " + std::to_string(b + 1) + " '" + band + "'";
        if (parts.size() != 3) {
            error = where + " is not freq,gain,bandwidth[q|h|k|o|s]";
            return false;
        }
        eq::BandSpec parsed;
        std::string bw = parts[2];
        if (!bw.empty() && eq::isBandwidthUnit(bw.back())) {
            parsed.unit = bw.back();
            bw.pop_back();
        }
        if (!cli::parseDouble(parts[0], parsed.centerHz) || !(parsed.centerHz > 0) || parsed.centerHz > 1e6) {
            error = where + ": the frequency must be a number above 0 Hz";
            return false;
        }
        if (!cli::parseDouble(parts[1], parsed.gainDb) || std::fabs(parsed.gainDb) > kMaxGainDb) {
            error = where + ": the gain must be a number" + range(-kMaxGainDb, kMaxGainDb) + " dB";
            return false;
        }
        if (!cli::parseDouble(bw, parsed.bandwidth) || !(parsed.bandwidth > 0)) {
            error = where + ": the bandwidth must be a number above 0, followed by q, h, k, o or s";
            return false;
        }
        out.push_back(parsed);
    }
    if (out.size() > static_cast<std::size_t>(eq::kMaxBands)) {
        error = std::to_string(out.size()) + " bands given; at most " + std::to_string(eq::kMaxBands);
        return false;
    }
    return true;
}

bool parseEffectOption(const std::vector<std::string>& args, std::size_t& i, EffectOptions& o,
                       std::vector<std::string>& errors)
{
    const std::string& a = args[i];
    Reader r(args, i, errors);
    double x = 0;
    std::string s;
    if (a == "--eq") {
        if (r.text(s)) {
            std::string error;
            o.eqGiven = true;
            if (!parseEqBands(s, o.eqBands, error))
                r.error(error);
        }
    } else if (a == "--eq-precut") {
        if (r.number(-60, 60, x))
            o.eqPrecutDb = std::fabs(x);
    } else if (a == "--equalizer") {
        eq::BandSpec b;
        b.unit = 'h';
        const bool ok = r.number(1e-3, 1e6, b.centerHz, "frequency") & r.number(-kMaxGainDb, kMaxGainDb, b.gainDb, "gain")
            & r.number(1e-3, 1e6, b.bandwidth, "bandwidth (Hz)");
        if (ok)
            o.paramBands.push_back(b);
    } else if (a == "--eq-bass") {
        fixedBand(r, o.eqBass);
    } else if (a == "--eq-presence") {
        fixedBand(r, o.eqPresence);
    } else if (a == "--eq-air") {
        fixedBand(r, o.eqAir);
    } else if (a == "--bass") {
        if (r.number(-kMaxGainDb, kMaxGainDb, x))
            o.bassDb = x;
    } else if (a == "--treble") {
        if (r.number(-kMaxGainDb, kMaxGainDb, x))
            o.trebleDb = x;
    } else if (a == "--forcechannels") {
        o.forceChannels = true;
    } else if (a == "--resetchannels") {
        if (r.number(1, 8, x)) {
            if (x != std::floor(x))
                r.error("the channel count must be a whole number from 1 to 8");
            else
                o.resetChannels = static_cast<int>(x);
        }
    } else if (a == "--quad") {
        o.quad = true;
    } else if (a == "--unsrs") {
        o.unsrs = true;
    } else if (a == "--stereo") {
        o.stereo = true;
    } else if (a == "--stereo-auto") {
        o.stereo = o.stereoAuto = true;
    } else if (a == "--stereo-width") {
        if (r.number(0, 4, x)) {
            o.stereoWidth = x;
            o.stereo = o.widthGiven = true;
        }
    } else if (a == "--stereo-crossfeed") {
        if (r.number(0, 1, x)) {
            o.stereoCrossfeed = x;
            o.stereo = o.widthGiven = true;
        }
    } else if (a == "--stereoexpander") {
        // "W" or "W,C": the width stage's width and crossfeed.
        if (r.text(s)) {
            const std::vector<std::string> parts = split(s, ',');
            double w = 0, c = 0;
            if (parts.size() > 2 || !cli::parseDouble(parts[0], w) || w < 0 || w > 4
                || (parts.size() == 2 && (!cli::parseDouble(parts[1], c) || c < 0 || c > 1))) {
                r.error("'" + s + "' is not WIDTH (0 to 4) or WIDTH,CROSSFEED (crossfeed 0 to 1)");
            } else {
                o.stereoWidth = w;
                o.stereoCrossfeed = c;
                o.stereo = o.expanderGiven = true;
            }
        }
    } else if (a == "--dsre") {
        o.dsre = true;
        if (r.optionalNumber(x)) {
            if (x < 0 || x > 1)
                r.error("the mix must be from 0 to 1");
            else
                o.dsreMix = x;
        }
    } else if (a == "--dsre-mix") {
        // A fraction 0..1, or a percentage above 1 (the window's field is whole numbers).
        if (r.number(0, 100, x)) {
            o.dsre = true;
            o.dsreMix = x > 1 ? x / 100.0 : x;
        }
    } else if (a == "--hrtf") {
        if (r.text(s)) {
            if (s == "mono")
                o.hrtf = HrtfMode::Mono;
            else if (s == "ms")
                o.hrtf = HrtfMode::MidSide;
            else if (s == "stereo")
                o.hrtf = HrtfMode::Stereo;
            else
                r.error("'" + s + "' is not one of mono, ms, stereo");
        }
    } else if (a == "--hrtf-mix") {
        r.number(0, 1, o.hrtfMix);
    } else if (a == "--hrtf-side-mix") {
        r.number(0, 1, o.hrtfSideMix);
    } else if (a == "--hrtf-depth") {
        r.number(-1, 1, o.hrtfDepth);
    } else if (a == "--hrtf-load") {
        if (r.text(s)) {
            if (s.empty())
                r.error("empty path");
            o.hrtfFile = s;
        }
    } else if (a == "--surround") {
        SurroundOptions& sr = o.surround;
        sr.on = true;
        r.number(0, 500, sr.delayMs, "delay (ms)");
        r.number(0, 100, sr.mixPercent, "mix (%)");
        if (r.peekIs("side")) {
            r.skip();
            sr.side = true;
        }
        if (r.optionalNumber(x)) {
            if (x < -100 || x > 100)
                r.error("the balance must be from -100 to 100");
            else
                sr.balance = x;
        }
    } else {
        return false;
    }
    return true;
}

void validateEffects(const EffectOptions& o, bool forwardMode, std::vector<std::string>& errors,
                     std::vector<std::string>& warnings)
{
    if (!forwardMode) {
        if (o.any() || o.forceChannels || o.eqPrecutDb != 0)
            errors.push_back("effect and channel options apply to DSD conversion only, not to --reverse or --dxd");
        return;
    }
    if (o.forceChannels && (o.resetChannels != 0 || o.quad || o.unsrs))
        errors.push_back("--forcechannels keeps the input's channels and excludes --resetchannels, --quad and --unsrs");
    if (o.expanderGiven && o.widthGiven)
        errors.push_back("--stereoexpander sets the width and crossfeed itself; give it without --stereo-width and "
                         "--stereo-crossfeed");
    if (o.quad && o.resetChannels != 4)
        errors.push_back("--quad needs --resetchannels 4"
                         + (o.resetChannels ? std::string(" (") + std::to_string(o.resetChannels) + " given)"
                                            : std::string()));
    if (o.hrtf == HrtfMode::Off && (o.hrtfMix != 1.0 || o.hrtfSideMix != 1.0 || o.hrtfDepth != 1.0 || !o.hrtfFile.empty()))
        warnings.push_back("--hrtf-mix, --hrtf-side-mix, --hrtf-depth and --hrtf-load have no effect without --hrtf");
    if (o.hrtf == HrtfMode::Mono && o.hrtfSideMix != 1.0)
        warnings.push_back("--hrtf-side-mix has no effect with --hrtf mono");
    if (o.eqPrecutDb != 0 && !o.eqGiven && o.paramBands.empty() && !o.eqBass.given && !o.eqPresence.given
        && !o.eqAir.given)
        warnings.push_back("--eq-precut without an equaliser has no effect");
}

} // namespace zuvo::effects
