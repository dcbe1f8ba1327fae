#include "run/engine_log.h"

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <ctime>
#include <sys/time.h>

namespace zuvo::run {

EngineLog::~EngineLog()
{
    if (file_)
        std::fclose(file_);
}

bool EngineLog::open(const std::string& path, std::string* error)
{
    file_ = std::fopen(path.c_str(), "a");
    if (!file_) {
        if (error)
            *error = "cannot open the log file " + path + ": " + std::strerror(errno);
        return false;
    }
    return true;
}

void EngineLog::line(const char* format, ...)
{
    if (!file_)
        return;
    char body[4096];
    va_list ap;
    va_start(ap, format);
    std::vsnprintf(body, sizeof body, format, ap);
    va_end(ap);
    timeval tv{};
    ::gettimeofday(&tv, nullptr);
    std::tm tm{};
    localtime_r(&tv.tv_sec, &tm);
    char stamp[40];
    std::strftime(stamp, sizeof stamp, "%Y-%m-%d %H:%M:%S", &tm);
    std::lock_guard lock(mutex_);
    std::fprintf(file_, "%s.%03ld %s\n", stamp, static_cast<long>(tv.tv_usec / 1000), body);
    // Flushed per line: the front-end shows this file's tail after a failure,
    // possibly while the engine is still alive.
    std::fflush(file_);
}

void EngineLog::text(const std::string& text, const char* indent)
{
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        line("%s%s", indent, text.substr(start, end - start).c_str());
        start = end + 1;
    }
}

} // namespace zuvo::run
