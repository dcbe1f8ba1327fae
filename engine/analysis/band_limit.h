#pragma once
// A linear-phase low-pass (Kaiser-windowed sinc) for the measuring pass: the
// conversion's interpolation filter removes what lies above its pass band,
// so the loudness that reaches the output is measured without it too.
#include <cstddef>
#include <vector>

namespace zuvo::analysis {

class BandLimit {
public:
    // Pass band up to passHz, stopped from stopHz on (about 80 dB). A stop
    // at or above the Nyquist frequency with a pass band close to it is
    // still cut at the middle of the transition.
    BandLimit(int sampleRate, double passHz, double stopHz);
    // In place; the output lags by delay() samples.
    void process(double* x, std::size_t n);
    std::size_t delay() const { return (taps_.size() - 1) / 2; }
    std::size_t length() const { return taps_.size(); }

private:
    std::vector<double> taps_;
    std::vector<double> history_; // ring, doubled
    std::size_t pos_ = 0;
};

// The pass and stop edges of the conversion's first interpolation stage for
// these settings at `inputRate` (the values it uses when none are given).
struct PassBand {
    double passHz = 20000;
    double stopHz = 22050;
};
PassBand conversionPassBand(int inputRate, double passHz, double stopHz, bool highBandwidth, bool slowRollOff,
                            bool equiripple);

} // namespace zuvo::analysis
