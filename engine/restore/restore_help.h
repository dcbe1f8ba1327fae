#pragma once
#include <cstdio>

namespace zuvo::restore {

// The restoration and mastering part of --help, with the processing order.
void printRestoreHelp(std::FILE* out);

} // namespace zuvo::restore
