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

// Sample buffers that do not zero what they are about to overwrite: every
// stage resizes its output and fills it completely.
template <class T>
struct NoInitAllocator : std::allocator<T> {
    template <class U>
    struct rebind {
        using other = NoInitAllocator<U>;
    };
    NoInitAllocator() = default;
    template <class U>
    NoInitAllocator(const NoInitAllocator<U>&) noexcept {}
    template <class U>
    void construct(U* p) noexcept
    {
        ::new (static_cast<void*>(p)) U;
    }
    template <class U, class... A>
    void construct(U* p, A&&... a)
    {
        ::new (static_cast<void*>(p)) U(std::forward<A>(a)...);
    }
};
using Samples = std::vector<double, NoInitAllocator<double>>;

class Stage {
public:
    virtual ~Stage() = default;
    // Appends the outputs produced by n inputs.
    virtual void process(const double* in, std::size_t n, Samples& out) = 0;
};

// General L/M polyphase resampler (interpolator when M == 1, decimator when
// L == 1). The prototype h runs at L x input rate; gain scales it (L for
// interpolation keeps unity pass-band gain).
class PolyphaseStage final : public Stage {
public:
    PolyphaseStage(const std::vector<double>& h, int L, int M, double gain);
    void process(const double* in, std::size_t n, Samples& out) override;

private:
    int L_, M_, P_;
    std::vector<double> table_; // L_ rows of P_ taps
    std::vector<double> buf_;
    std::int64_t base_ = 0;     // absolute input index of buf_[0]
    std::int64_t avail_ = 0;    // absolute index one past the last input
    std::int64_t next_ = 0;     // next output index
    std::vector<std::int32_t> phaseOf_;  // per output index modulo L_: phase
};

// 2x interpolator with short filters (half-band or binomial): both output
// phases are computed tap-outer across a block of inputs, and a phase that
// is a single unit tap (the half-band's centre) is a plain copy.
class TwoPhaseInterpolator final : public Stage {
public:
    explicit TwoPhaseInterpolator(const std::vector<double>& h); // prototype at the output rate, sum 1
    void process(const double* in, std::size_t n, Samples& out) override;

private:
    std::vector<double> g_[2]; // phase r: g_[r][k] multiplies x[i-k]
    int copyDelay_[2];         // >= 0: the phase is x[i - copyDelay]
    int H_;                    // history length
    std::vector<double> hist_;
    Samples work_;
};

// First decimation stage straight from packed 1-bit data: an FIR evaluated
// through per-byte lookup tables, decimating by 8.
class BitDecimator {
public:
    explicit BitDecimator(const std::vector<double>& h); // prototype at the DSD rate
    void process(const std::uint8_t* bytes, std::size_t n, Samples& out);

private:
    int B_;                           // bytes spanned by the filter
    std::vector<double> tables_;      // B_ x 256
    std::vector<std::uint8_t> hist_;  // last B_-1 bytes
};

} // namespace zuvo::dsp::detail
