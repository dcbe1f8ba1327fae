#pragma once
// Per-bin noise floor tracked while the signal plays: time-smoothed power,
// a running median across frequency, and the minimum over a sliding window
// kept as sub-window minima. The constants are described in
// spectral_denoiser.h.

#include <cstddef>
#include <vector>

namespace zuvo::restore {

struct NoiseTrackerSetup {
    std::size_t bins = 0;
    double smoothing = 0.0;      // one-pole coefficient per frame
    std::size_t subWindows = 8;
    std::size_t subLength = 1;   // frames per sub-window
    std::size_t medianHalf = 16; // bins each side of the running median
    double peakOverMedian = 4.0; // a bin this far above the median is a peak
    double medianScale = 1.0;    // a peak bin is tracked as median * medianScale
    double bias = 1.0;           // multiplies the tracked minimum
};

// setup for a frame hop (samples) at a rate; bias left at 1.
NoiseTrackerSetup noiseTrackerSetup(std::size_t bins, std::size_t hop, double fs);

class NoiseTracker {
public:
    explicit NoiseTracker(const NoiseTrackerSetup& s = {});
    // power: |X|^2 of one frame, `bins` values. Returns the floor per bin.
    const std::vector<double>& update(const std::vector<double>& power);
    // The last floor, for frames that must not move it.
    const std::vector<double>& floor() const { return floor_; }

private:
    void runningMedian();

    NoiseTrackerSetup s_;
    std::size_t frames_ = 0;
    std::vector<double> smooth_, median_, current_, floor_, scratch_;
    std::vector<std::vector<double>> subMin_; // ring of sub-window minima
    std::size_t inSub_ = 0, ring_ = 0;
};

// Sets bias and medianScale so that the tracker is unbiased on white noise:
// the windowed frames of unit white noise have mean power sum(w^2); the
// tracker's mean output on twice its window (+16 frames) of such noise is
// measured through each path.
void calibrateTracker(NoiseTrackerSetup& s, const std::vector<double>& window, std::size_t hop);

} // namespace zuvo::restore
