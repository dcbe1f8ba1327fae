#pragma once
#include "io/channel_backlog.h"
#include "io/dsd_writer.h"
#include "io/header_clock.h"

namespace zuvo::io {

class DsfWriter final : public DsdWriter {
public:
    bool open(const std::string& path, const DsdFormat& format, const Tags& tags, std::string* error) override;
    bool write(const std::vector<std::vector<std::uint8_t>>& perChannel, std::string* error) override;
    bool finalize(std::string* error) override;
    void discard() override;
    std::uint64_t bytesPerChannel() const override { return validBytes_; }

private:
    bool flushBlocks(bool padLast, std::string* error);
    // Sizes of what is on disk so far, valid as a file that ends here.
    // `toDisk`: wait for the bytes to reach the disk first (once a second).
    bool refreshHeader(bool toDisk, std::string* error);

    OutputFile file_;
    DsdFormat format_;
    Tags tags_;
    ChannelBacklog pending_;
    std::size_t offset_ = 0;
    std::uint64_t validBytes_ = 0;
    std::uint64_t blocks_ = 0;
    HeaderClock clock_{kHeaderRefreshSeconds};
};

} // namespace zuvo::io
