#pragma once
#include <cstdio>

namespace zuvo::cli {

void printHelp(std::FILE* out, const char* version);

} // namespace zuvo::cli
