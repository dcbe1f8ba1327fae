#pragma once
// PCM input through libsndfile, read block by block as doubles (full scale
// 1.0) so memory stays bounded whatever the file's length and rate.

#include <cstdint>
#include <string>
#include <vector>

#include "io/tags.h"

namespace zuvo::io {

struct PcmStreamInfo {
    int channels = 0;
    int sampleRate = 0;
    std::int64_t frames = 0;     // as the file declares it
    std::string formatName;      // e.g. "WAV (Microsoft) / Signed 24 bit PCM"
    bool truncated = false;      // the file holds less audio than its header declares
    unsigned long long declaredBytes = 0;
    unsigned long long presentBytes = 0;
};

// Extensions of formats this engine cannot decode, with their names, so the
// message says what the file is instead of "unknown format".
const char* unsupportedInputFormatName(const std::string& path);

class PcmReader {
public:
    PcmReader() = default;
    ~PcmReader();
    PcmReader(const PcmReader&) = delete;
    PcmReader& operator=(const PcmReader&) = delete;

    bool open(const std::string& path, std::string* error);
    const PcmStreamInfo& info() const { return info_; }
    Tags tags() const;
    // Reads up to `frames` interleaved frames into `out` (resized). Returns
    // the frames read (0 at the end) or -1 on a decoding error.
    long long read(std::size_t frames, std::vector<double>& out, std::string* error);

private:
    void* handle_ = nullptr; // SNDFILE*
    PcmStreamInfo info_;
    std::string path_;
};

} // namespace zuvo::io
