#pragma once
// Numbers in messages, independent of the process locale.

#include <string>

namespace zuvo::restore {

// Fixed notation with `decimals` digits after the point ("-15.0", "46.4").
std::string formatNumber(double v, int decimals);

} // namespace zuvo::restore
