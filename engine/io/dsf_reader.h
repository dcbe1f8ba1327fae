#pragma once
#include "io/dsd_reader.h"

namespace zuvo::io {

class DsfReader final : public DsdReader {
public:
    bool open(const std::string& path, std::string* error) override;
    long long read(std::size_t maxBytes, std::vector<std::vector<std::uint8_t>>& out, std::string* error) override;

private:
    std::uint64_t dataStart_ = 0;
    std::uint32_t blockSize_ = 4096;
    std::vector<std::uint8_t> group_;    // one block of every channel
    std::size_t groupOffset_ = 0;         // bytes per channel already taken from group_
    std::size_t groupFill_ = 0;           // bytes per channel in group_
};

} // namespace zuvo::io
