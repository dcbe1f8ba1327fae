#include "cli/option_values.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace zuvo::cli {

namespace {

// std::from_chars never looks at the process locale: "0.5" is a number and
// "0,5" is not, also when the host program runs with a decimal-comma locale.
// It takes no '+', which the command line has always accepted.
template <typename T, typename... Format>
bool parseWhole(const std::string& text, T& out, Format... format)
{
    const char* first = text.data();
    const char* last = first + text.size();
    if (first != last && *first == '+') {
        ++first;
        if (first != last && *first == '-')
            return false;
    }
    if (first == last)
        return false;
    T v{};
    const auto [end, ec] = std::from_chars(first, last, v, format...);
    if (ec != std::errc() || end != last)
        return false;
    out = v;
    return true;
}

} // namespace

bool parseInt(const std::string& text, long long& out)
{
    return parseWhole(text, out, 10);
}

bool parseDouble(const std::string& text, double& out)
{
    double v = 0;
    if (!parseWhole(text, v, std::chars_format::general) || !std::isfinite(v))
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
