#include "analysis/number_text.h"

#include <charconv>
#include <cmath>

namespace zuvo::analysis {

std::string fixed(double value, int decimals)
{
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
    std::string s(buf, r.ptr);
    // "-0.00" reads as a sign that is not there.
    if (s[0] == '-' && s.find_first_not_of("-0.") == std::string::npos)
        s.erase(0, 1);
    return s;
}

} // namespace zuvo::analysis
