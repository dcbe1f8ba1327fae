#pragma once
// PCM output through libsndfile for the reverse and DXD paths. The container
// follows the extension (.wav, .w64, .flac); a WAV that outgrows 4 GiB is
// written as RF64.

#include <string>
#include <vector>

#include "io/tags.h"

namespace zuvo::io {

enum class PcmSampleFormat { Int16, Int24, Int32, Float32 };

struct PcmOutputFormat {
    int channels = 2;
    int sampleRate = 176400;
    PcmSampleFormat sample = PcmSampleFormat::Int24;
    bool flac = false; // forced FLAC whatever the extension
};

// Checks that the container can hold the format; the message says why not.
bool checkPcmOutput(const std::string& path, const PcmOutputFormat& format, std::string* error);

class PcmWriter {
public:
    PcmWriter() = default;
    ~PcmWriter(); // an unfinished file is removed
    PcmWriter(const PcmWriter&) = delete;
    PcmWriter& operator=(const PcmWriter&) = delete;

    bool open(const std::string& path, const PcmOutputFormat& format, std::string* error);
    // Text tags; called right after open, before any audio.
    void setTags(const Tags& tags);
    // Interleaved frames, full scale 1.0; values beyond it are clipped by
    // libsndfile for integer formats.
    bool write(const std::vector<double>& interleaved, std::string* error);
    bool finalize(std::string* error);
    void discard();
    long long clippedSamples() const { return clipped_; }

private:
    void* handle_ = nullptr;
    std::string path_;
    int channels_ = 0;
    bool integer_ = true;
    bool removable_ = false;
    long long clipped_ = 0;
    std::vector<double> scratch_;
};

} // namespace zuvo::io
