#pragma once
// Programme loudness (integrated, range; libebur128) and true peak (our own
// interpolator, see true_peak.h) of a multichannel
// signal, fed block by block as planar doubles at full scale 1.0.
#include <cstddef>
#include <memory>
#include <vector>

#include "io/channel_layout.h"

namespace zuvo::analysis {

struct LoudnessFigures {
    double integratedLufs = 0; // -inf for silence (nothing above the absolute gate)
    double rangeLu = 0;        // 0 when too short or silent
    double truePeakDbtp = 0;   // largest over the channels; -inf for digital silence
    double samplePeakDbfs = 0;
    // Peak-to-loudness ratio: true peak minus integrated; -inf/nan when silent.
    double plrDb() const { return truePeakDbtp - integratedLufs; }
};

class LoudnessMeter {
public:
    // `layout` names the speakers (LFE is left out of the loudness, the
    // surrounds weigh +1.5 dB); empty = the WAVE default of `channels`.
    LoudnessMeter(int channels, int sampleRate, const io::ChannelLayout& layout = {});
    ~LoudnessMeter();
    LoudnessMeter(const LoudnessMeter&) = delete;
    LoudnessMeter& operator=(const LoudnessMeter&) = delete;

    bool valid() const;
    // `planar[c]` holds at least `frames` samples of channel c.
    void add(const std::vector<std::vector<double>>& planar, std::size_t frames);
    void addInterleaved(const double* frames, std::size_t count);
    LoudnessFigures figures() const;
    int channels() const { return channels_; }

    // Integrated loudness over several meters together (an album), -inf
    // when none holds a gated block.
    static double integratedOver(const std::vector<const LoudnessMeter*>& meters);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
    int channels_ = 0;
    std::vector<double> interleaved_;
};

double toDb(double linear);

} // namespace zuvo::analysis
