#pragma once
// Readers for the engine's own DSD containers (reverse mode and tests). Both
// deliver bytes per channel with the earliest bit in bit 7, the order the
// decimators take.

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "io/tags.h"

namespace zuvo::io {

struct DsdStreamInfo {
    int channels = 0;
    int sampleRate = 0;                 // 1-bit samples per second
    std::uint64_t bytesPerChannel = 0;  // valid bytes (padding excluded)
    std::string container;              // "DSF" or "DSDIFF"
};

class DsdReader {
public:
    virtual ~DsdReader();
    virtual bool open(const std::string& path, std::string* error) = 0;
    const DsdStreamInfo& info() const { return info_; }
    const Tags& tags() const { return tags_; }
    // Reads up to `maxBytes` per channel into `out[c]` (replaced). Returns the
    // bytes per channel read, 0 at the end, -1 on a read error.
    virtual long long read(std::size_t maxBytes, std::vector<std::vector<std::uint8_t>>& out, std::string* error) = 0;
    // Reads from memory instead of a file; open() then parses it. For the
    // fuzz targets, which feed thousands of inputs a second.
    bool attachMemory(const std::uint8_t* data, std::size_t size, const std::string& name);

protected:
    // Opens `path`, unless attachMemory() already gave the reader its bytes.
    bool openFile(const std::string& path, std::string* error);
    bool readExact(void* dst, std::size_t n);
    bool seek(std::uint64_t offset);
    // "<path> is truncated: ..." with what the header declares and what the
    // file holds, the one wording every input uses.
    bool truncated(std::string* error, const char* what, std::uint64_t declared, std::uint64_t found) const;

    std::FILE* file_ = nullptr;
    std::string path_;
    std::uint64_t fileSize_ = 0; // every offset and size read is checked against it
    DsdStreamInfo info_;
    Tags tags_;
    std::uint64_t consumed_ = 0; // bytes per channel delivered
};

// Chooses the reader by the file's signature ("DSD " or "FRM8"); the error
// names the problem when the file is neither or is damaged.
std::unique_ptr<DsdReader> openDsdFile(const std::string& path, std::string* error);
// The same over bytes in memory (which must outlive the reader).
std::unique_ptr<DsdReader> openDsdMemory(const std::uint8_t* data, std::size_t size, const std::string& name,
                                         std::string* error);

} // namespace zuvo::io
