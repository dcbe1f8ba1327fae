#pragma once
#include "io/dsd_reader.h"

namespace zuvo::io {

class DffReader final : public DsdReader {
public:
    bool open(const std::string& path, std::string* error) override;
    long long read(std::size_t maxBytes, std::vector<std::vector<std::uint8_t>>& out, std::string* error) override;

private:
    bool readProp(std::uint64_t end, std::string* error);
    void readDiin(std::uint64_t end);

    std::uint64_t dataStart_ = 0;
    std::vector<std::uint8_t> buffer_;
};

} // namespace zuvo::io
