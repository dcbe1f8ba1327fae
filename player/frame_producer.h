#pragma once
// Turns a file into the device's bytes, piece by piece, along the chosen
// path. Every piece is a whole number of device frames.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "output_plan.h"

namespace zuvo::player {

struct SourceInfo {
    SourceFormat format;
    double seconds = 0;     // duration
    std::string summary;    // e.g. "DSF, DSD64 (2822400 Hz), 2 ch"
};

class FrameProducer {
public:
    virtual ~FrameProducer();
    // Opens a DSF/DSDIFF file by its signature, anything else through libsndfile.
    static std::unique_ptr<FrameProducer> open(const std::string& path, std::string* error);

    const SourceInfo& info() const { return info_; }
    virtual bool prepare(const OutputPlan& plan, std::string* error) = 0;
    // Appends the next piece to `out`: 1 more follows, 0 that was the end,
    // -1 a read error (what was appended is still valid).
    virtual int next(std::vector<std::uint8_t>& out, std::string* error) = 0;

protected:
    SourceInfo info_;
    OutputPlan plan_;
};

} // namespace zuvo::player
