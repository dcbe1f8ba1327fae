#include "restore/spectral/spectral_fft.h"

#include <mutex>

#include <fftw3.h>

namespace zuvo::restore {

namespace {

// FFTW's planner is not re-entrant and conversions may run on several threads
// of one process. FFTW's own planner lock covers every caller in the process
// (also the effect chain's planner); our mutex covers the moment before it is
// switched on.
std::mutex& plannerMutex()
{
    static std::mutex m;
    return m;
}

void makePlannerThreadSafe()
{
    static std::once_flag once;
    std::call_once(once, [] { fftw_make_planner_thread_safe(); });
}

} // namespace

RealFft::RealFft(std::size_t n) : n_(n)
{
    makePlannerThreadSafe();
    std::lock_guard<std::mutex> lock(plannerMutex());
    time_ = static_cast<double*>(fftw_malloc(sizeof(double) * n));
    spectrum_ = reinterpret_cast<std::complex<double>*>(fftw_malloc(sizeof(fftw_complex) * (n / 2 + 1)));
    auto* c = reinterpret_cast<fftw_complex*>(spectrum_);
    forward_ = fftw_plan_dft_r2c_1d(static_cast<int>(n), time_, c, FFTW_ESTIMATE);
    // c2r overwrites its input; the spectrum is rebuilt for every frame anyway.
    inverse_ = fftw_plan_dft_c2r_1d(static_cast<int>(n), c, time_, FFTW_ESTIMATE);
}

RealFft::~RealFft()
{
    std::lock_guard<std::mutex> lock(plannerMutex());
    fftw_destroy_plan(static_cast<fftw_plan>(forward_));
    fftw_destroy_plan(static_cast<fftw_plan>(inverse_));
    fftw_free(time_);
    fftw_free(spectrum_);
}

void RealFft::forward()
{
    fftw_execute(static_cast<fftw_plan>(forward_));
}

void RealFft::inverse()
{
    fftw_execute(static_cast<fftw_plan>(inverse_));
}

} // namespace zuvo::restore
