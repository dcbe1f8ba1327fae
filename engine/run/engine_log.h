#pragma once
// The run's detailed log file (--log-file): appended to, one timestamped line
// per entry, safe to call from the channel threads. A log that cannot be
// opened only costs the log, never the conversion.

#include <cstdio>
#include <mutex>
#include <string>

namespace zuvo::run {

class EngineLog {
public:
    EngineLog() = default;
    ~EngineLog();
    EngineLog(const EngineLog&) = delete;
    EngineLog& operator=(const EngineLog&) = delete;

    bool open(const std::string& path, std::string* error);
    bool isOpen() const { return file_ != nullptr; }
    void line(const char* format, ...) __attribute__((format(printf, 2, 3)));
    // Multi-line text, each line prefixed with `indent`.
    void text(const std::string& text, const char* indent = "  ");

private:
    std::FILE* file_ = nullptr;
    std::mutex mutex_;
};

} // namespace zuvo::run
