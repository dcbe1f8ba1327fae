#pragma once
// Uniformly partitioned overlap-save convolution with FFTW: a matrix of
// filters (outputs x sources), each cut into partitions of the block length
// B, run one block of B samples at a time against a frequency-domain delay
// line per source. Cost per block: one forward FFT per source, one inverse
// per output and outputs x sources x partitions spectrum products.

#include <complex>
#include <cstddef>
#include <vector>

namespace zuvo::effects {

// The first n / 2 + 1 bins of the n-point DFT of h (zero-padded or cut to n).
std::vector<std::complex<double>> spectrumOf(const std::vector<double>& h, std::size_t n);

class FftConvolver {
public:
    FftConvolver() = default;
    // filters[o][s]: impulse response from source s to output o (any lengths).
    FftConvolver(std::size_t block, const std::vector<std::vector<std::vector<double>>>& filters);
    ~FftConvolver();
    FftConvolver(const FftConvolver& other);
    FftConvolver& operator=(const FftConvolver& other);

    std::size_t block() const { return block_; }
    int sources() const { return sources_; }
    int outputs() const { return outputs_; }
    // in[s]: B new samples of source s; out[o]: B samples written.
    void process(const double* const* in, double* const* out);

private:
    using Spectrum = std::vector<std::complex<double>>;
    void makePlans();
    void destroyPlans();

    std::size_t block_ = 0, bins_ = 0, partitions_ = 0;
    int sources_ = 0, outputs_ = 0;
    std::vector<Spectrum> filters_;          // [(o * sources + s) * partitions + p]
    std::vector<std::vector<double>> last_;  // previous block per source
    std::vector<Spectrum> fdl_;              // [s * partitions + slot]
    std::size_t head_ = 0;                   // slot of the newest spectrum
    std::vector<double> time_;
    Spectrum acc_;
    void* forward_ = nullptr;
    void* inverse_ = nullptr;
};

} // namespace zuvo::effects
