#pragma once
#include <cstdio>

namespace zuvo::analysis {

// The --help section on loudness, statistics and the lossy-input check.
void printAnalysisHelp(std::FILE* out);

} // namespace zuvo::analysis
