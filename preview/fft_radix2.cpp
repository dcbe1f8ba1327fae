#include "fft_radix2.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace pv {

Radix2Fft::Radix2Fft(int size)
    : n_(size)
{
    int bits = 0;
    while ((1 << bits) < n_)
        ++bits;
    for (int i = 0; i < n_; ++i) {
        int j = 0;
        for (int b = 0; b < bits; ++b)
            j |= ((i >> b) & 1) << (bits - 1 - b);
        if (i < j) {
            swapPairs_.push_back(i);
            swapPairs_.push_back(j);
        }
    }
    cos_.resize(std::size_t(n_ / 2));
    sin_.resize(std::size_t(n_ / 2));
    for (int k = 0; k < n_ / 2; ++k) {
        const double a = -2.0 * std::numbers::pi * k / n_;
        cos_[std::size_t(k)] = std::cos(a);
        sin_[std::size_t(k)] = std::sin(a);
    }
}

void Radix2Fft::transform(double* re, double* im) const
{
    for (std::size_t p = 0; p < swapPairs_.size(); p += 2) {
        const int i = swapPairs_[p];
        const int j = swapPairs_[p + 1];
        std::swap(re[i], re[j]);
        std::swap(im[i], im[j]);
    }
    for (int len = 2; len <= n_; len <<= 1) {
        const int half = len / 2;
        const int step = n_ / len;
        for (int start = 0; start < n_; start += len) {
            double* ar = re + start;
            double* ai = im + start;
            double* br = ar + half;
            double* bi = ai + half;
            for (int k = 0; k < half; ++k) {
                const double wr = cos_[std::size_t(k * step)];
                const double wi = sin_[std::size_t(k * step)];
                const double tr = br[k] * wr - bi[k] * wi;
                const double ti = br[k] * wi + bi[k] * wr;
                br[k] = ar[k] - tr;
                bi[k] = ai[k] - ti;
                ar[k] += tr;
                ai[k] += ti;
            }
        }
    }
}

} // namespace pv
