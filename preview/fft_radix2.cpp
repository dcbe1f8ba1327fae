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
    for (int len = 2; len <= n_; len <<= 1) {
        for (int k = 0; k < len / 2; ++k) {
            // Reduced to a multiple of the full size's step so that every stage
            // takes bit-identical values from one angle grid.
            const double a = -2.0 * std::numbers::pi * double(k * (n_ / len)) / n_;
            cos_.push_back(std::cos(a));
            sin_.push_back(std::sin(a));
        }
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
    // The first stage needs no twiddle at all.
    for (int i = 0; i + 1 < n_; i += 2) {
        const double tr = re[i + 1], ti = im[i + 1];
        re[i + 1] = re[i] - tr;
        im[i + 1] = im[i] - ti;
        re[i] += tr;
        im[i] += ti;
    }
    for (int len = 4; len <= n_; len <<= 1) {
        const int half = len / 2;
        const double* wc = cos_.data() + (half - 1);
        const double* ws = sin_.data() + (half - 1);
        for (int start = 0; start < n_; start += len) {
            double* ar = re + start;
            double* ai = im + start;
            double* br = ar + half;
            double* bi = ai + half;
            for (int k = 0; k < half; ++k) {
                const double wr = wc[k];
                const double wi = ws[k];
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
