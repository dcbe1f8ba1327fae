#pragma once
// Numbers that users and scripts read back: fixed decimals with a '.'
// whatever the process locale (the window hosts the engine in-process, and
// a Qt application sets the locale from the environment).
#include <string>

namespace zuvo::analysis {

// "-23.05", "-inf", "inf", "nan".
std::string fixed(double value, int decimals);

} // namespace zuvo::analysis
