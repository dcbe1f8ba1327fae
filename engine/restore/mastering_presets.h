#pragma once
// Mastering: fixed parameter sets of existing stages.
//
// --master turns on dehum + decrackle + expander + a gentle shelving EQ +
// stereo widening (stereo inputs only). --mastering-preset NAME and
// --music-type N choose the set and imply --master; --master alone is "pop".
//
//                          classical      pop          jazz
//   dehum Q                10             10           10
//   decrackle threshold    6              5            5.5
//   expander threshold dB  -60            -50          -55
//   expander ratio         1.5            2            1.7
//   expander knee dB       10             6            8
//   expander attack ms     10             5            8
//   expander release ms    200            100          150
//   low shelf 80 Hz dB     +0.5           +1.5         +1.0    (as --eq-bass)
//   high shelf 12 kHz dB   +0.5           +1.5         +1.0    (as --eq-air)
//   stereo width           none           1.15         1.08    (as --stereo-width)
//
// --music-type: 1 classical, 2 pop, 3 jazz.
// Whatever the user gives explicitly wins: an expander or decrackle value on
// the command line replaces the preset's, the EQ is added only when no
// equaliser or tone option was given, the widening only when no stereo-image
// option was given and the output is the input's stereo pair.

#include <string>

#include "effects/effect_options.h"
#include "restore/restore_options.h"

namespace zuvo::restore {

struct MasteringSet {
    const char* name;
    double dehumQ;
    double decrackleThreshold;
    double expandThresholdDb, expandRatio, expandKneeDb, expandAttackMs, expandReleaseMs;
    double bassShelfDb, airShelfDb;
    double width; // 0 = no widening
};

const MasteringSet& masteringSet(MasteringPreset p);
// "classical" -> Classical ...; None for an unknown name.
MasteringPreset presetByName(const std::string& name);
// 1, 2, 3 -> Classical, Pop, Jazz; None otherwise.
MasteringPreset presetByMusicType(long long n);

// Fills the restoration stages the user left open (after the whole command
// line is read). No-op without --master.
void applyMasteringRestore(RestoreOptions& o);
// Adds the preset's EQ and widening to `fx` for an input with `channels`
// channels. Returns a line for the log (empty when nothing was added).
std::string applyMasteringEffects(const RestoreOptions& o, int channels, effects::EffectOptions& fx);

} // namespace zuvo::restore
