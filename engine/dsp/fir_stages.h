#pragma once
// Runtime filter stages. Each keeps its own history so it can be fed blocks
// of any size; coefficients are laid out per phase, reversed, so every output
// is one contiguous dot product (or, for short half-bands, a tap-outer loop
// that vectorises across outputs).

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace zuvo::dsp::detail {

class Stage {
public:
    virtual ~Stage() = default;
    // Appends the outputs produced by n inputs.
    virtual void process(const double* in, std::size_t n, std::vector<double>& out) = 0;
};

// General L/M polyphase resampler (interpolator when M == 1, decimator when
// L == 1). The prototype h runs at L x input rate; gain scales it (L for
// interpolation keeps unity pass-band gain).
class PolyphaseStage final : public Stage {
public:
    PolyphaseStage(const std::vector<double>& h, int L, int M, double gain);
    void process(const double* in, std::size_t n, std::vector<double>& out) override;

private:
    int L_, M_, P_;
    std::vector<double> table_; // L_ rows of P_ taps
    std::vector<double> buf_;
    std::int64_t base_ = 0;     // absolute input index of buf_[0]
    std::int64_t avail_ = 0;    // absolute index one past the last input
    std::int64_t next_ = 0;     // next output index
    std::vector<std::int32_t> phaseOf_;  // per output index modulo L_: phase
};

// 2x half-band interpolator: one branch is the centre tap (a pure delay),
// the other a short symmetric FIR.
class HalfbandInterpolator final : public Stage {
public:
    explicit HalfbandInterpolator(const std::vector<double>& h); // length 4K-1
    void process(const double* in, std::size_t n, std::vector<double>& out) override;

private:
    int K2_;                    // taps in the non-trivial branch (2K)
    int delay_;                 // K-1
    std::vector<double> g_;     // branch taps, g_[k] multiplies x[i-k]
    std::vector<double> hist_;  // last 2K-1 inputs
    std::vector<double> work_, even_;
};

// First decimation stage straight from packed 1-bit data: an FIR evaluated
// through per-byte lookup tables, decimating by 8.
class BitDecimator {
public:
    explicit BitDecimator(const std::vector<double>& h); // prototype at the DSD rate
    void process(const std::uint8_t* bytes, std::size_t n, std::vector<double>& out);

private:
    int B_;                           // bytes spanned by the filter
    std::vector<double> tables_;      // B_ x 256
    std::vector<std::uint8_t> hist_;  // last B_-1 bytes
};

} // namespace zuvo::dsp::detail
