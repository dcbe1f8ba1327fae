#pragma once
// The preview's WAV decoder, free of Qt so that it can be fuzzed and tested
// on raw bytes. It only ever reads forward through the chunk list and never
// sizes a buffer from a header field that the file size has not confirmed.
#include <cstdint>
#include <vector>

namespace pv {

// Random-access bytes, usually a file.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    virtual std::int64_t size() const = 0;
    virtual bool seek(std::int64_t pos) = 0;
    // Reads up to n bytes at the current position; returns the count, 0 at
    // the end, negative on error.
    virtual std::int64_t read(char* dst, std::int64_t n) = 0;
};

// A source over bytes in memory (fuzzing, tests).
class MemorySource : public ByteSource {
public:
    MemorySource(const std::uint8_t* data, std::size_t size) : data_(data), size_(std::int64_t(size)) {}
    std::int64_t size() const override { return size_; }
    bool seek(std::int64_t pos) override;
    std::int64_t read(char* dst, std::int64_t n) override;

private:
    const std::uint8_t* data_;
    std::int64_t size_;
    std::int64_t pos_ = 0;
};

enum class WavError {
    None,
    NotRiffWave,        // "not RIFF/WAVE"
    MissingChunks,      // "missing fmt/data chunk"
    UnsupportedTag,     // "unsupported WAV tag %1", detail = tag
    BadChannelCount,    // "bad channel count"
    UnsupportedDepth,   // "unsupported depth %1", detail = bits
    NoSamples,          // "no samples"
    SeekFailed,         // "seek failed"
    NoSamplesDecoded,   // "no samples decoded"
};

struct WavDecodeResult {
    WavError error = WavError::None;
    int detail = 0;
    double sampleRate = 0.0;
    int channels = 0;
};

// At most this many seconds are decoded, and no single read is larger than
// kMaxReadBytes, however big the file is.
inline constexpr int kPreviewSeconds = 30;
inline constexpr std::int64_t kMaxReadBytes = 1048576;

// Decodes the start of a PCM or float WAV as the mono mean of its channels
// (full scale = ±1) into `samples` (cleared first).
WavDecodeResult decodeWavPreview(ByteSource& src, std::vector<float>& samples);

} // namespace pv
