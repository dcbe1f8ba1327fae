#pragma once
#include <cstdio>

namespace zuvo::cli {

// Machine-readable listing for front-ends: one line "refused OPTION" for
// every option this build rejects, taken from the same tables the parser and
// the modulator design use, so the list shrinks as features are added; and
// one line "supports OPTION" for each optional feature a front-end offers
// only when the engine has it (the PDF report).
void printCapabilities(std::FILE* out);

} // namespace zuvo::cli
