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
    std::vector<double> cos_;
    std::vector<double> sin_;
};

} // namespace pv
