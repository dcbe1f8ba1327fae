#pragma once
// One printf-formatted line for the stage descriptions that go to the log.
// Log lines are for people reading a run, so the C locale's number format
// is not a concern here the way it is for figures that parsers read back.
#include <cstdarg>
#include <cstdio>
#include <string>

namespace zuvo {

inline std::string logText(const char* format, ...) __attribute__((format(printf, 1, 2)));
inline std::string logText(const char* format, ...)
{
    char line[512];
    va_list ap;
    va_start(ap, format);
    std::vsnprintf(line, sizeof line, format, ap);
    va_end(ap);
    return line;
}

} // namespace zuvo
