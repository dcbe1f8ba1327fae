#pragma once
// Numbers for the report's text: fixed decimals, a '.' as decimal point
// whatever the process locale, "-inf" for silence in dB.
#include <string>

namespace zuvo::report {

std::string fixed(double value, int decimals);
// "12.3 kHz", "440 Hz": axis labels and band names.
std::string hertz(double hz);

} // namespace zuvo::report
