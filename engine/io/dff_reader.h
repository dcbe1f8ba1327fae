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

    // One chunk of an IFF-style walk: its id, where its body starts, its
    // declared size, and where the next chunk starts (always past this one).
    struct Chunk {
        char id[4] = {};
        std::uint64_t body = 0;
        std::uint64_t size = 0;
        std::uint64_t next = 0;
    };
    enum class Step { Chunk, End, Overrun, ReadError };

private:
    // Reads the chunk header at `pos` inside a parent ending at `end`. A
    // chunk whose size passes `end` is an Overrun (c.size still says what it
    // declared); a missing pad byte at the very end is tolerated.
    Step nextChunk(std::uint64_t pos, std::uint64_t end, Chunk& c);
    bool readProp(std::uint64_t start, std::uint64_t end, std::string* error);
    void readDiin(std::uint64_t start, std::uint64_t end);
    bool damaged(std::string* error, const std::string& why) const;
    bool openDst(std::uint64_t begin, std::uint64_t end, std::string* error);

    bool dstCompressed_ = false;
    std::uint64_t exactBytes_ = 0; // from our MANF chunk, 0 when absent
    std::unique_ptr<DffDstSource> dst_;

    std::uint64_t dataStart_ = 0;
    std::vector<std::uint8_t> buffer_;
};

} // namespace zuvo::io
