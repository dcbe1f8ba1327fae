#pragma once
#include <cstdio>

namespace zuvo::effects {

// The effect options' part of --help.
void printEffectsHelp(std::FILE* out);

} // namespace zuvo::effects
