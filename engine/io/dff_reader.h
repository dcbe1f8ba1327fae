#pragma once
#include <memory>

#include "io/dff_dst_reader.h"
#include "io/dff_dst_writer.h"
#include "io/dsd_reader.h"

namespace zuvo::io {

class DffReader final : public DsdReader {
public:
    bool open(const std::string& path, std::string* error) override;
    long long read(std::size_t maxBytes, std::vector<std::vector<std::uint8_t>>& out, std::string* error) override;

private:
    bool readProp(std::uint64_t end, std::string* error);
    void readDiin(std::uint64_t end);
    bool openDst(std::uint64_t begin, std::uint64_t end, std::string* error);

    bool dstCompressed_ = false;
    std::uint64_t exactBytes_ = 0; // from our MANF chunk, 0 when absent
    std::unique_ptr<DffDstSource> dst_;

    std::uint64_t dataStart_ = 0;
    std::vector<std::uint8_t> buffer_;
};

} // namespace zuvo::io
