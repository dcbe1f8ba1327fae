#pragma once
#include <vector>

namespace pv {

// In-place iterative radix-2 complex FFT (forward, e^{-2πi·nk/N}, no scaling)
// for one power-of-two size. The twiddles come from a table computed once,
// which keeps every butterfly as accurate as the direct definition.
class Radix2Fft {
public:
    explicit Radix2Fft(int size);
    int size() const { return n_; }
    void transform(double* re, double* im) const;

private:
    int n_;
    std::vector<int> swapPairs_; // bit-reversal swaps, flattened (i, j) with i < j
    // Twiddles stage after stage, each stage's run contiguous: the stage of
    // length L starts at L/2 − 1 and holds e^{−2πik/L} for k < L/2.
    std::vector<double> cos_;
    std::vector<double> sin_;
};

} // namespace pv
