#pragma once
// One channel of the spectral denoiser: the streaming overlap-add around the
// per-frame gain computation. Shared, read-only set-up lives in SpectralSetup.

#include <cstddef>
#include <vector>

#include "restore/spectral/spectral_fft.h"
#include "restore/spectral/spectral_noise.h"

namespace zuvo::restore {

struct SpectralSetup {
    std::size_t frame = 0, hop = 0, bins = 0;
    double binHz = 0;
    std::vector<double> window;     // sqrt-Hann, analysis and synthesis
    std::vector<double> floorGain;  // per bin, linear
    NoiseTrackerSetup noise;
    bool keepHarmonics = false;
};

class SpectralChannel {
public:
    explicit SpectralChannel(const SpectralSetup& s);
    // In place, n samples.
    void process(double* x, std::size_t n);

private:
    void frame();
    void computeGains();

    const SpectralSetup& s_;
    RealFft fft_;
    NoiseTracker noise_;
    std::vector<double> in_, acc_, ready_;
    std::size_t fill_ = 0; // next write position in in_, from frame - hop to frame
    std::vector<double> power_, gamma_, prevClean_, gain_, smoothed_, protect_;
    std::vector<unsigned char> peaks_; // the previous frame's spectral peaks
    double lastF0_ = 0;                // and its fundamental, 0 for none
};

} // namespace zuvo::restore
