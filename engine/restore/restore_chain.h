#pragma once
// Restoration before the effects, per channel at the input rate in 64-bit
// float, always in this order:
//   dehum -> decrackle -> spectral denoise -> downward expander
// A stage that is off is not in the list; with nothing on the chain is
// empty() and the caller skips it.
//
// Every stage works in place on all channels with a constant latency. The
// chain hides it stage by stage: each stage's first latency() frames are
// dropped right behind it (so the next stage never sees that silence), and
// drain() flushes each stage with as many silent frames in turn. The output
// is exactly as long as the input and sample-aligned with it; stages with a
// markEnd() are told where the input ended before their flush.

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "restore/decrackle.h"
#include "restore/dehum.h"
#include "restore/expander.h"
#include "restore/restore_options.h"
#include "restore/spectral/spectral_denoiser.h"

namespace zuvo::restore {

using Planar = std::vector<std::vector<double>>;
using RestoreStage = std::variant<Dehum, Decrackle, SpectralDenoiser, Expander>;

class RestoreChain {
public:
    // False with `error` set when the options cannot apply to this input.
    bool build(const RestoreOptions& o, int channels, double fs, std::string& error);

    bool empty() const { return stages_.empty(); }
    std::size_t latency() const;

    // `block` holds the channels with at least n samples; returns how many
    // frames it holds afterwards (n minus what is still hidden).
    std::size_t run(Planar& block, std::size_t n);
    // At the end: the input's last latency() frames.
    std::size_t drain(Planar& block);

    const std::vector<std::string>& description() const { return lines_; }
    // Figures for the log once the run is over.
    std::vector<std::string> summary() const;

private:
    std::vector<RestoreStage> stages_;
    std::vector<std::string> lines_;
    int channels_ = 0;
    std::vector<std::size_t> toDrop_; // per stage: leading frames still to drop
    Planar finished_;
};

} // namespace zuvo::restore
