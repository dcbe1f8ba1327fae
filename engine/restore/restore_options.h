#pragma once
// What the restoration and mastering options of the command line ask for, as
// plain values. `*Given` flags record what the user typed, so that a
// mastering preset fills in only what was left open.

#include "restore/spectral/spectral_denoiser.h"

namespace zuvo::restore {

struct DehumOptions {
    bool on = false;
    double q = 10;          // Q of the notch at the fundamental
    bool qGiven = false;
};

struct DecrackleOptions {
    bool on = false;
    double threshold = 5;   // x robust sigma of the predictor's residual
    bool thresholdGiven = false;
};

struct ExpanderOptions {
    bool on = false;
    double thresholdDb = -50;
    double ratio = 2;
    double kneeDb = 6;
    double attackMs = 5;    // time to open again when the level rises
    double releaseMs = 100; // time to close when the level falls
    bool thresholdGiven = false, ratioGiven = false, kneeGiven = false, attackGiven = false,
         releaseGiven = false;
};

enum class MasteringPreset { None, Classical, Pop, Jazz };

struct RestoreOptions {
    DehumOptions dehum;
    DecrackleOptions decrackle;
    ExpanderOptions expand;
    bool master = false;                            // --master
    MasteringPreset preset = MasteringPreset::None; // --mastering-preset / --music-type
    bool presetGiven = false;
    int musicType = 0;                              // --music-type N as given, 0 = absent
    SpectralConfig spectral;                        // --wiener / --denoise / --noise-reduce
    bool spectralOn = false;

    bool any() const { return dehum.on || decrackle.on || spectralOn || expand.on; }
};

} // namespace zuvo::restore
