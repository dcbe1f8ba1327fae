#pragma once
// Inter-sample peak of one channel: the signal oversampled (4x below
// 96 kHz, 2x below 192 kHz, as is above) through a long windowed-sinc
// interpolator (128 taps per phase, cut-off at 0.96 x Nyquist), so that
// content close to the Nyquist frequency is not under-read. Inter-sample
// peaks are looked for next to samples of at least half the largest peak
// so far (a peak 6 dB above both its neighbours is not looked for).
#include <cstddef>
#include <vector>

namespace zuvo::analysis {

class TruePeak {
public:
    explicit TruePeak(int sampleRate);
    void add(const double* x, std::size_t n, std::size_t stride = 1);
    // Largest |sample| of the oversampled signal seen so far (linear). The
    // ringing of an abrupt end (the interpolator's tail after the last
    // sample) is not counted: it belongs to the cut, not to the programme.
    double peak() const;
    int factor() const { return factor_; }

private:
    int factor_;
    std::size_t taps_; // per phase
    std::vector<double> coefficients_; // phase-major: phase p, tap k
    std::vector<double> history_;      // the last taps_ inputs, newest last (ring of 2 x taps_)
    std::size_t pos_ = 0;
    bool started_ = false;
    double peak_ = 0;
    double computeAt(const double* newestLast) const;
};

} // namespace zuvo::analysis
