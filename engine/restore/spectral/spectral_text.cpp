#include "restore/spectral/spectral_text.h"

#include <charconv>

namespace zuvo::restore {

std::string formatNumber(double v, int decimals)
{
    char b[64];
    const auto r = std::to_chars(b, b + sizeof b, v, std::chars_format::fixed, decimals);
    if (r.ec != std::errc())
        return "?";
    return std::string(b, r.ptr);
}

} // namespace zuvo::restore
