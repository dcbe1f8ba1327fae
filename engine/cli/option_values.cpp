#include "cli/option_values.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

namespace zuvo::cli {

bool parseInt(const std::string& text, long long& out)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    errno = 0;
    const long long v = std::strtoll(text.c_str(), &end, 10);
    if (errno != 0 || *end != '\0')
        return false;
    out = v;
    return true;
}

bool parseDouble(const std::string& text, double& out)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    errno = 0;
    const double v = std::strtod(text.c_str(), &end);
    if (errno != 0 || *end != '\0' || !std::isfinite(v))
        return false;
    out = v;
    return true;
}

bool isNumber(const std::string& text)
{
    double v;
    return parseDouble(text, v);
}

} // namespace zuvo::cli
