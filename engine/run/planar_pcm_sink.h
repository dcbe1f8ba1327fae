#pragma once
// Per-channel PCM on its way to the writer. The channel threads append to
// their own buffer and may run ahead of each other (a resampler or decimator
// yields a varying count per block); flush() interleaves and writes only the
// frames every channel has, the rest waits for the next flush.
#include <cstddef>
#include <string>
#include <vector>

#include "io/pcm_writer.h"

namespace zuvo::run {

class PlanarPcmSink {
public:
    PlanarPcmSink(io::PcmWriter& writer, std::size_t channels);

    // Channel c's pending samples; a channel thread touches only its own.
    std::vector<double>& channel(std::size_t c) { return pcm_[c]; }
    bool flush(std::string* error);

private:
    io::PcmWriter& writer_;
    std::vector<std::vector<double>> pcm_;
    std::vector<double> interleaved_;
};

} // namespace zuvo::run
