#pragma once
// Reads the frames of a DSDIFF "DST " chunk in order and decodes them with
// our DST decoder; checks each frame against its DSTC CRC when present.
// Every error names the frame (counted from 1).
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace zuvo::io {

class DffDstSource {
public:
    // [begin, end): the body of the "DST " chunk.
    bool open(std::FILE* file, const std::string& path, std::uint64_t begin, std::uint64_t end, int channels,
              int dsdRate, std::string* error);
    std::uint64_t frames() const { return frames_; }
    std::uint64_t frameBytes() const { return frameBytes_; }
    // Like DsdReader::read: up to `n` bytes per channel (the caller stops at
    // the stream's length). -1 with the error on a damaged frame.
    long long read(std::size_t n, std::vector<std::vector<std::uint8_t>>& out, std::string* error);

private:
    bool nextFrame(std::string* error);
    bool chunkHeader(std::uint64_t at, char id[4], std::uint64_t& size);
    bool fail(std::string* error, const std::string& why);

    std::FILE* file_ = nullptr;
    std::string path_;
    std::uint64_t pos_ = 0, end_ = 0;
    int channels_ = 0;
    int frameBits_ = 0;
    std::uint64_t frameBytes_ = 0;
    std::uint64_t frames_ = 0;
    std::uint64_t decoded_ = 0; // frames decoded so far
    std::vector<std::uint8_t> payload_;
    std::vector<std::vector<std::uint8_t>> frame_;
    std::size_t offset_ = 0; // bytes per channel of frame_ already delivered
};

} // namespace zuvo::io
