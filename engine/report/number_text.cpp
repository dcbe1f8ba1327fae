#include "report/number_text.h"

#include <cmath>

#include "analysis/number_text.h"

namespace zuvo::report {

std::string fixed(double value, int decimals)
{
    // A figure that could not be measured reads as such, not as "nan".
    return std::isnan(value) ? "n/a" : analysis::fixed(value, decimals);
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
