#pragma once
// Common face of the DSF and DSDIFF writers. Data arrives per channel as DSD
// bytes with the earliest bit in bit 7 (what the encoders produce); each
// writer arranges and orders the bits as its container wants.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "io/channel_layout.h"
#include "io/output_file.h"
#include "io/tags.h"

namespace zuvo::io {

struct DsdFormat {
    int channels = 2;
    int sampleRate = 2822400; // 1-bit samples per second per channel
    // Speakers of the channels in the order they are written (see
    // containerOrder); empty means defaultLayout(channels).
    ChannelLayout layout;
    int dstLevel = 0;         // DSDIFF only: DST compression level 1..9, 0 = plain DSD
};

// A run killed mid-way (or a power cut) leaves whatever reached the disk:
// the writers rewrite their size fields this often so that it is a valid,
// shorter file.
// Between refreshes the new bytes wait in memory (see OutputFile), so the
// file on disk is always one the writer completed; past this many pending
// bytes a refresh comes early.
constexpr double kHeaderRefreshSeconds = 1.0;
constexpr std::size_t kRefreshPendingBytes = std::size_t(2) << 20;

class DsdWriter {
public:
    virtual ~DsdWriter() = default;
    virtual bool open(const std::string& path, const DsdFormat& format, const Tags& tags, std::string* error) = 0;
    // `perChannel[c]` holds new bytes of channel c. Channels may run ahead of
    // each other; only what all channels have is laid out.
    virtual bool write(const std::vector<std::vector<std::uint8_t>>& perChannel, std::string* error) = 0;
    // Pads, patches sizes and closes. The file is complete and valid after it.
    virtual bool finalize(std::string* error) = 0;
    // Failure path: closes and deletes the file.
    virtual void discard() = 0;
    // Bytes per channel accepted so far (before padding).
    virtual std::uint64_t bytesPerChannel() const = 0;
};

enum class DsdContainer { Dsf, Dff };

// Maximum channel count each container can describe.
int maxChannels(DsdContainer container);
std::unique_ptr<DsdWriter> makeDsdWriter(DsdContainer container);

} // namespace zuvo::io
