#include "restore/mastering_presets.h"

#include <cstdio>

namespace zuvo::restore {

namespace {

const MasteringSet kClassical{"classical", 10, 6, -60, 1.5, 10, 10, 200, 0.5, 0.5, 0};
const MasteringSet kPop{"pop", 10, 5, -50, 2, 6, 5, 100, 1.5, 1.5, 1.15};
const MasteringSet kJazz{"jazz", 10, 5.5, -55, 1.7, 8, 8, 150, 1.0, 1.0, 1.08};

bool userEq(const effects::EffectOptions& fx)
{
    return fx.eqGiven || !fx.paramBands.empty() || fx.eqBass.given || fx.eqPresence.given || fx.eqAir.given
        || fx.bassDb != 0 || fx.trebleDb != 0;
}

} // namespace

const MasteringSet& masteringSet(MasteringPreset p)
{
    switch (p) {
    case MasteringPreset::Classical: return kClassical;
    case MasteringPreset::Jazz: return kJazz;
    case MasteringPreset::Pop:
    case MasteringPreset::None: break;
    }
    return kPop;
}

MasteringPreset presetByName(const std::string& name)
{
    if (name == "classical")
        return MasteringPreset::Classical;
    if (name == "pop")
        return MasteringPreset::Pop;
    if (name == "jazz")
        return MasteringPreset::Jazz;
    return MasteringPreset::None;
}

MasteringPreset presetByMusicType(long long n)
{
    switch (n) {
    case 1: return MasteringPreset::Classical;
    case 2: return MasteringPreset::Pop;
    case 3: return MasteringPreset::Jazz;
    default: return MasteringPreset::None;
    }
}

void applyMasteringRestore(RestoreOptions& o)
{
    if (!o.master)
        return;
    const MasteringSet& s = masteringSet(o.preset);
    o.dehum.on = true;
    if (!o.dehum.qGiven)
        o.dehum.q = s.dehumQ;
    o.decrackle.on = true;
    if (!o.decrackle.thresholdGiven)
        o.decrackle.threshold = s.decrackleThreshold;
    ExpanderOptions& e = o.expand;
    e.on = true;
    if (!e.thresholdGiven)
        e.thresholdDb = s.expandThresholdDb;
    if (!e.ratioGiven)
        e.ratio = s.expandRatio;
    if (!e.kneeGiven)
        e.kneeDb = s.expandKneeDb;
    if (!e.attackGiven)
        e.attackMs = s.expandAttackMs;
    if (!e.releaseGiven)
        e.releaseMs = s.expandReleaseMs;
}

std::string applyMasteringEffects(const RestoreOptions& o, int channels, effects::EffectOptions& fx)
{
    if (!o.master)
        return {};
    const MasteringSet& s = masteringSet(o.preset);
    std::string line;
    char b[256];
    if (!userEq(fx)) {
        fx.eqBass = {true, s.bassShelfDb};
        fx.eqAir = {true, s.airShelfDb};
        std::snprintf(b, sizeof b, "mastering (%s): shelves %+.1f dB at 80 Hz and %+.1f dB at 12 kHz", s.name,
                      s.bassShelfDb, s.airShelfDb);
        line = b;
    } else {
        line = std::string("mastering (") + s.name + "): your equaliser options replace the preset's shelves";
    }
    const bool stereoPair = channels == 2 && (fx.resetChannels == 0 || fx.resetChannels == 2) && !fx.quad && !fx.unsrs;
    if (s.width > 0 && stereoPair && !fx.stereo && fx.hrtf == effects::HrtfMode::Off) {
        fx.stereo = true;
        fx.stereoWidth = s.width;
        fx.stereoCrossfeed = 0;
        std::snprintf(b, sizeof b, "; stereo width %.2f", s.width);
        line += b;
    }
    return line;
}

} // namespace zuvo::restore
