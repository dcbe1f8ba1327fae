#pragma once
// Command-line forms of the effect options, exactly as the front-end sends
// them, turned into an EffectOptions record. Numbers go through the engine's
// locale-independent parser.

#include <cstddef>
#include <string>
#include <vector>

#include "effects/effect_options.h"

namespace zuvo::effects {

// "f,g,bw{q|h|k|o|s};..." -> bands. An empty text is an empty list. A band
// without its unit letter is in Q. Returns false with `error` set on the
// first malformed band.
bool parseEqBands(const std::string& text, std::vector<eq::BandSpec>& out, std::string& error);

// When args[i] is an effect option: consumes its values (moving `i` to the
// last one), records problems in `errors` and returns true.
bool parseEffectOption(const std::vector<std::string>& args, std::size_t& i, EffectOptions& o,
                       std::vector<std::string>& errors);

// Checks between options, once the whole line is read.
void validateEffects(const EffectOptions& o, bool forwardMode, std::vector<std::string>& errors,
                     std::vector<std::string>& warnings);

} // namespace zuvo::effects
