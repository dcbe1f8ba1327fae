#include "effects/fft_convolver.h"

#include <algorithm>
#include <mutex>

#include <fftw3.h>

namespace zuvo::effects {

namespace {

// FFTW's planner is not re-entrant; our conversions may run on several
// threads of one process (in-process engine runs).
std::mutex& plannerMutex()
{
    static std::mutex m;
    return m;
}

fftw_complex* cx(std::complex<double>* p)
{
    return reinterpret_cast<fftw_complex*>(p);
}

} // namespace

std::vector<std::complex<double>> spectrumOf(const std::vector<double>& h, std::size_t n)
{
    std::vector<double> t(n, 0.0);
    std::copy(h.begin(), h.begin() + static_cast<std::ptrdiff_t>(std::min(n, h.size())), t.begin());
    std::vector<std::complex<double>> f(n / 2 + 1);
    fftw_plan plan;
    {
        std::lock_guard<std::mutex> lock(plannerMutex());
        plan = fftw_plan_dft_r2c_1d(static_cast<int>(n), t.data(), cx(f.data()), FFTW_ESTIMATE);
    }
    fftw_execute(plan);
    std::lock_guard<std::mutex> lock(plannerMutex());
    fftw_destroy_plan(plan);
    return f;
}

FftConvolver::FftConvolver(std::size_t block, const std::vector<std::vector<std::vector<double>>>& filters)
    : block_(block), bins_(block + 1)
{
    outputs_ = static_cast<int>(filters.size());
    sources_ = outputs_ > 0 ? static_cast<int>(filters[0].size()) : 0;
    std::size_t longest = 1;
    for (const auto& row : filters)
        for (const auto& h : row)
            longest = std::max(longest, h.size());
    partitions_ = (longest + block_ - 1) / block_;
    time_.assign(2 * block_, 0.0);
    acc_.assign(bins_, {});
    makePlans();
    filters_.assign(static_cast<std::size_t>(outputs_ * sources_) * partitions_, Spectrum(bins_));
    for (int o = 0; o < outputs_; ++o)
        for (int s = 0; s < sources_; ++s) {
            const auto& h = filters[static_cast<std::size_t>(o)][static_cast<std::size_t>(s)];
            for (std::size_t p = 0; p < partitions_; ++p) {
                std::fill(time_.begin(), time_.end(), 0.0);
                for (std::size_t k = 0; k < block_ && p * block_ + k < h.size(); ++k)
                    time_[k] = h[p * block_ + k];
                Spectrum& dst = filters_[(static_cast<std::size_t>(o * sources_ + s)) * partitions_ + p];
                fftw_execute_dft_r2c(static_cast<fftw_plan>(forward_), time_.data(), cx(dst.data()));
                // The inverse transform is unnormalised: fold 1 / (2B) in here.
                for (auto& v : dst)
                    v /= static_cast<double>(2 * block_);
            }
        }
    last_.assign(static_cast<std::size_t>(sources_), std::vector<double>(block_, 0.0));
    fdl_.assign(static_cast<std::size_t>(sources_) * partitions_, Spectrum(bins_));
}

FftConvolver::~FftConvolver()
{
    destroyPlans();
}

FftConvolver::FftConvolver(const FftConvolver& other)
    : block_(other.block_), bins_(other.bins_), partitions_(other.partitions_), sources_(other.sources_),
      outputs_(other.outputs_), filters_(other.filters_), last_(other.last_), fdl_(other.fdl_), head_(other.head_),
      time_(other.time_), acc_(other.acc_)
{
    if (block_ > 0)
        makePlans();
}

FftConvolver& FftConvolver::operator=(const FftConvolver& other)
{
    if (this != &other) {
        destroyPlans();
        block_ = other.block_;
        bins_ = other.bins_;
        partitions_ = other.partitions_;
        sources_ = other.sources_;
        outputs_ = other.outputs_;
        filters_ = other.filters_;
        last_ = other.last_;
        fdl_ = other.fdl_;
        head_ = other.head_;
        time_ = other.time_;
        acc_ = other.acc_;
        if (block_ > 0)
            makePlans();
    }
    return *this;
}

void FftConvolver::makePlans()
{
    // Plans are made on scratch arrays and run with the new-array interface
    // (alignment-independent: FFTW_UNALIGNED), so copies and vectors of any
    // alignment can use them.
    std::lock_guard<std::mutex> lock(plannerMutex());
    std::vector<double> t(2 * block_);
    Spectrum f(bins_);
    const int n = static_cast<int>(2 * block_);
    forward_ = fftw_plan_dft_r2c_1d(n, t.data(), cx(f.data()), FFTW_ESTIMATE | FFTW_UNALIGNED);
    inverse_ = fftw_plan_dft_c2r_1d(n, cx(f.data()), t.data(), FFTW_ESTIMATE | FFTW_UNALIGNED);
}

void FftConvolver::destroyPlans()
{
    std::lock_guard<std::mutex> lock(plannerMutex());
    if (forward_)
        fftw_destroy_plan(static_cast<fftw_plan>(forward_));
    if (inverse_)
        fftw_destroy_plan(static_cast<fftw_plan>(inverse_));
    forward_ = inverse_ = nullptr;
}

void FftConvolver::process(const double* const* in, double* const* out)
{
    head_ = head_ == 0 ? partitions_ - 1 : head_ - 1;
    for (int s = 0; s < sources_; ++s) {
        auto& prev = last_[static_cast<std::size_t>(s)];
        std::copy(prev.begin(), prev.end(), time_.begin());
        std::copy(in[s], in[s] + block_, time_.begin() + static_cast<std::ptrdiff_t>(block_));
        std::copy(in[s], in[s] + block_, prev.begin());
        Spectrum& slot = fdl_[static_cast<std::size_t>(s) * partitions_ + head_];
        fftw_execute_dft_r2c(static_cast<fftw_plan>(forward_), time_.data(), cx(slot.data()));
    }
    for (int o = 0; o < outputs_; ++o) {
        std::fill(acc_.begin(), acc_.end(), std::complex<double>());
        for (int s = 0; s < sources_; ++s)
            for (std::size_t p = 0; p < partitions_; ++p) {
                // Written out: std::complex's operator* checks for
                // infinities on every product (C99 Annex G) and would not
                // vectorise.
                const double* h = reinterpret_cast<const double*>(
                    filters_[(static_cast<std::size_t>(o * sources_ + s)) * partitions_ + p].data());
                const double* x = reinterpret_cast<const double*>(
                    fdl_[static_cast<std::size_t>(s) * partitions_ + (head_ + p) % partitions_].data());
                double* a = reinterpret_cast<double*>(acc_.data());
                for (std::size_t k = 0; k < 2 * bins_; k += 2) {
                    a[k] += h[k] * x[k] - h[k + 1] * x[k + 1];
                    a[k + 1] += h[k] * x[k + 1] + h[k + 1] * x[k];
                }
            }
        fftw_execute_dft_c2r(static_cast<fftw_plan>(inverse_), cx(acc_.data()), time_.data());
        std::copy(time_.begin() + static_cast<std::ptrdiff_t>(block_), time_.end(), out[o]);
    }
}

} // namespace zuvo::effects
