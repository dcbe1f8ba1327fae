#pragma once
// The DST-compressed sound data of a DSDIFF file: a "DST " chunk holding the
// frame information (FRTE), then per frame a DSTF chunk (the coded frame)
// and a DSTC chunk (CRC-32 of the frame's DSD bytes as they would lie in an
// uncompressed file), then after it a DSTI index chunk and a MANF chunk with
// the exact DSD length (the last frame is padded with silence to 1/75 s).
// Each DSTI entry holds the file offset of a frame's data (just after its
// DSTF chunk header, 8 bytes) and the data's length (4 bytes).
#include <cstdint>
#include <string>
#include <vector>

#include "io/channel_backlog.h"
#include "io/output_file.h"

namespace zuvo::io {

class DffDstSink {
public:
    // False when the rate does not divide into 1/75 s frames of whole bytes.
    bool start(int channels, int dsdRate, int level, std::string* error);
    // PROP's CMPR body for DST.
    static std::vector<std::uint8_t> cmprBody();
    // The head of the sound chunk, written where the uncompressed DSD chunk
    // would start (sizes patched by finish).
    std::vector<std::uint8_t> chunkHead() const;
    // Encodes and writes every whole frame in the backlog.
    bool push(OutputFile& file, ChannelBacklog& backlog, std::string* error);
    // Pads and writes the last frame, patches the sizes of the chunk that
    // starts at `chunkOffset`, writes the index and length chunks.
    bool finish(OutputFile& file, ChannelBacklog& backlog, std::uint64_t chunkOffset, std::string* error);
    std::uint64_t validBytes() const { return validBytes_; }
    std::uint64_t frames() const { return index_.size(); }
    std::uint64_t codedFrames() const { return coded_; }

private:
    bool writeFrames(OutputFile& file, ChannelBacklog& backlog, std::size_t count, std::string* error);

    int channels_ = 0;
    int frameBits_ = 0;
    int level_ = 0;
    std::uint64_t validBytes_ = 0;
    std::uint64_t coded_ = 0;
    struct IndexEntry {
        std::uint64_t offset;
        std::uint32_t length;
    };
    std::vector<IndexEntry> index_;
};

// What the MANF chunk says: the exact DSD bytes per channel.
constexpr char kManfId[] = "ZUVO";
constexpr char kManfLengthTag[] = "DSDL";

} // namespace zuvo::io
