#pragma once
// PCM input through libsndfile, read block by block as doubles (full scale
// 1.0) so memory stays bounded whatever the file's length and rate.

#include <cstdint>
#include <string>
#include <vector>

#include "io/channel_layout.h"
#include "io/tags.h"

namespace zuvo::io {

struct PcmStreamInfo {
    int channels = 0;
    int sampleRate = 0;
    std::int64_t frames = 0;     // what the decoder expects to deliver
    std::string formatName;      // e.g. "WAV (Microsoft) / Signed 24 bit PCM"
    // The file holds less audio than its header declares; `truncation`
    // says so in one sentence ("<path> is truncated: its header declares
    // N frames and the file holds M").
    bool truncated = false;
    std::string truncation;
    // Speakers in file order: from the channel mask when there is one,
    // else defaultLayout(channels).
    ChannelLayout layout;
    bool layoutFromFile = false;
};

// Reads libsndfile's header log for what the header declared: the frame
// counts it states and the sizes of data chunks the file cannot hold.
// `frames` is what the decoder will deliver and `bytesPerFrame` its frame
// size (0 when unknown). Returns the sentence for PcmStreamInfo::truncation,
// empty when nothing is missing. A pad byte and streaming placeholders
// (sizes 0 and 0xFFFFFFFF) are slack, not damage. Pure, for the tests.
std::string truncationFromLog(const std::string& path, const std::string& log, long long frames, int bytesPerFrame);

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
    long long delivered_ = 0;
    bool checkEnd_ = false; // whether a short stream is a truncation (exact frame counts)
};

} // namespace zuvo::io
