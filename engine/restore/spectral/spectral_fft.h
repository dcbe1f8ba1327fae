#pragma once
// One real FFT size with its own aligned buffers: forward (time -> spectrum,
// n / 2 + 1 bins) and inverse (spectrum -> time, unnormalised).

#include <complex>
#include <cstddef>

namespace zuvo::restore {

class RealFft {
public:
    explicit RealFft(std::size_t n);
    ~RealFft();
    RealFft(const RealFft&) = delete;
    RealFft& operator=(const RealFft&) = delete;

    std::size_t size() const { return n_; }
    double* time() { return time_; }
    std::complex<double>* spectrum() { return spectrum_; }
    void forward();
    void inverse();

private:
    std::size_t n_;
    double* time_ = nullptr;
    std::complex<double>* spectrum_ = nullptr;
    void* forward_ = nullptr;
    void* inverse_ = nullptr;
};

} // namespace zuvo::restore
