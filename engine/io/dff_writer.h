#pragma once
#include "io/channel_backlog.h"
#include "io/dff_dst_writer.h"
#include "io/dsd_writer.h"
#include "io/header_clock.h"

namespace zuvo::io {

class DffWriter final : public DsdWriter {
public:
    bool open(const std::string& path, const DsdFormat& format, const Tags& tags, std::string* error) override;
    bool write(const std::vector<std::vector<std::uint8_t>>& perChannel, std::string* error) override;
    bool finalize(std::string* error) override;
    void discard() override;
    std::uint64_t bytesPerChannel() const override { return validBytes_; }

private:
    bool writeInterleaved(std::size_t n, std::string* error);
    bool finalizeDst(std::string* error);
    // Form and sound data sizes of what is on disk so far.
    // `toDisk`: wait for the bytes to reach the disk first (once a second).
    bool refreshHeader(bool toDisk, std::string* error);

    OutputFile file_;
    DsdFormat format_;
    Tags tags_;
    ChannelBacklog pending_;
    std::vector<std::uint8_t> interleaved_;
    std::uint64_t validBytes_ = 0;
    std::uint64_t dsdChunkOffset_ = 0;
    bool useDst_ = false;
    DffDstSink dst_;
    HeaderClock clock_{kHeaderRefreshSeconds};
};

} // namespace zuvo::io
