#include "report/number_text.h"

#include <charconv>
#include <cmath>

namespace zuvo::report {

std::string fixed(double value, int decimals)
{
    if (std::isnan(value))
        return "n/a";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";
    if (value == 0)
        value = 0; // no "-0.00"
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
    std::string s(buf, r.ptr);
    // A value that rounds to zero prints without its sign.
    if (s[0] == '-' && s.find_first_not_of("-0.") == std::string::npos)
        s.erase(0, 1);
    return s;
}

std::string hertz(double hz)
{
    if (hz >= 1e6) {
        const double m = hz / 1e6;
        return fixed(m, std::fabs(m - std::round(m)) < 1e-9 ? 0 : 2) + " MHz";
    }
    if (hz >= 1000) {
        const double k = hz / 1000;
        return fixed(k, std::fabs(k - std::round(k)) < 1e-9 ? 0 : 1) + " kHz";
    }
    return fixed(hz, 0) + " Hz";
}

} // namespace zuvo::report
