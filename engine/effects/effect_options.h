#pragma once
// What the effect options of the command line ask for, as plain values. The
// chain (effect_chain.h) is built from this record and the input's rate and
// channel count; nothing here depends on either.

#include <string>
#include <vector>

#include "eq/eq_design.h"

namespace zuvo::effects {

// Gains of the fixed-frequency bands of the advanced equaliser. NaN-free:
// `given` says whether the option was on the command line.
struct FixedBand {
    bool given = false;
    double gainDb = 0;
};

struct SurroundOptions {
    bool on = false;
    double delayMs = 15;  // delay of the ambience, 0..500 ms
    double mixPercent = 80; // ambience level, 0..100 % of the dry level
    bool side = false;    // ambience from the side signal instead of the opposite channel
    double balance = 0;   // -100 (ambience left only) .. 100 (right only)
};

enum class HrtfMode { Off, Mono, MidSide, Stereo };

struct EffectOptions {
    // Equaliser "--eq": bands in slot order (kinds by eq::bandKindAt).
    bool eqGiven = false;
    std::vector<eq::BandSpec> eqBands;
    double eqPrecutDb = 0;               // --eq-precut, magnitude of the cut
    // Advanced equaliser: "--equalizer f g bwHz" (peaking), and the fixed bands.
    std::vector<eq::BandSpec> paramBands;
    FixedBand eqBass, eqPresence, eqAir;
    // Tone.
    double bassDb = 0, trebleDb = 0;

    // Channels (--swap-channels is applied where the input is de-interleaved).
    bool forceChannels = false;
    int resetChannels = 0;               // 0 = keep the input's count
    bool quad = false;
    bool unsrs = false;

    // Stereo image.
    bool stereo = false;
    bool stereoAuto = false;
    double stereoWidth = 1.2;
    double stereoCrossfeed = 0;
    bool widthGiven = false;             // --stereo-width / --stereo-crossfeed
    bool expanderGiven = false;          // --stereoexpander "W[,C]"
    SurroundOptions surround;

    // Spatial.
    HrtfMode hrtf = HrtfMode::Off;
    double hrtfMix = 1.0, hrtfSideMix = 1.0, hrtfDepth = 1.0;
    std::string hrtfFile;                // --hrtf-load, empty = the system default set

    // Harmonic enhancement.
    bool dsre = false;
    double dsreMix = 0.35;

    bool any() const
    {
        return eqGiven || !paramBands.empty() || eqBass.given || eqPresence.given || eqAir.given || bassDb != 0
            || trebleDb != 0 || resetChannels != 0 || quad || unsrs || stereo || stereoAuto
            || surround.on || hrtf != HrtfMode::Off || dsre;
    }
};

} // namespace zuvo::effects
