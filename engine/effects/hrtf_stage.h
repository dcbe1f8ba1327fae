#pragma once
// Binaural rendering of the front pair through head-related impulse
// responses (hrtf_set.h), by partitioned FFT convolution (fft_convolver.h).
//
// Geometry, from the depth d (--hrtf-depth, -1..1): a speaker pair at
// azimuth +-a with a = 30 + 60 (1 - d) degrees (d = 1: +-30, in front;
// d = 0: +-90, at the ears; d = -1: +-150, behind), elevation 0; a centre
// source at azimuth 0 (d >= 0) or 180 (d < 0), elevation 90 (1 - |d|).
// With M = (L + R) / 2, S = (L - R) / 2 and the side mix m (--hrtf-side-mix):
//   stereo: L' = M + m S to the left speaker, R' = M - m S to the right one
//   ms:     M to the centre source, m S to the left speaker and -m S to the
//           right one
//   mono:   M to the centre source
// The ears' signals replace L and R: out = (1 - x) dry + x wet with the
// dry/wet mix x (--hrtf-mix). Every channel is delayed by the block length
// kHrtfBlock (the convolution's latency, which the chain hides).

#include <string>
#include <vector>

#include "effects/block.h"
#include "effects/effect_options.h"
#include "effects/fft_convolver.h"
#include "effects/hrtf_set.h"

namespace zuvo::effects {

constexpr std::size_t kHrtfBlock = 256;

struct HrtfGeometry {
    double speakerAzimuth = 30;  // degrees, the left speaker; the right one at minus this
    double centreAzimuth = 0;
    double centreElevation = 0;
};
HrtfGeometry hrtfGeometry(double depth);

// The filters from the sources (in the order the mode defines them: stereo
// L' R'; ms M S; mono M) to the two ears: [ear][source].
std::vector<std::vector<std::vector<double>>> hrtfFilters(const HrtfSet& set, HrtfMode mode, double depth,
                                                          double sideMix);

class HrtfStage {
public:
    HrtfStage() = default;
    HrtfStage(int channels, double fs, const HrtfSet& set, HrtfMode mode, double mix, double sideMix, double depth);
    void process(Planar& block, std::size_t n);
    ResponseMatrix response(double hz, double fs) const;
    std::size_t latency() const { return kHrtfBlock; }

private:
    void sources(double l, double r, double* s) const;

    int channels_ = 0;
    HrtfMode mode_ = HrtfMode::Stereo;
    double mix_ = 1, sideMix_ = 1;
    FftConvolver conv_;
    std::vector<std::vector<double>> in_;   // per source, one block being filled
    std::vector<std::vector<double>> wet_;  // per ear, the previous block's result
    std::vector<std::vector<double>> dry_;  // per channel, one block of delay
    std::size_t pos_ = 0;
    // Filter spectra on a fine grid, for response(): [ear][source][bin].
    std::vector<std::vector<std::vector<cplx>>> spectra_;
    double gridHz_ = 1;
};

} // namespace zuvo::effects
