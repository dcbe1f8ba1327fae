#include "simd_kernels.h"

#include <cstring>

namespace zuvo::dsp::detail {

#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define ZUVO_CLONES __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define ZUVO_CLONES
#endif

typedef double v4d __attribute__((vector_size(32)));

static inline v4d load4(const double* p)
{
    v4d v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
static inline void store4(double* p, v4d v) { std::memcpy(p, &v, sizeof v); }

ZUVO_CLONES void firOuter(const double* x, const double* g, int taps, double* out, std::size_t n)
{
    std::size_t i = 0;
    // Eight outputs per pass held in registers; each tap is one unaligned
    // load and one multiply-add per four outputs.
    for (; i + 8 <= n; i += 8) {
        v4d a0 = {0, 0, 0, 0}, a1 = {0, 0, 0, 0};
        const double* xs = x + i;
        for (int k = 0; k < taps; ++k) {
            const double gk = g[k];
            a0 += gk * load4(xs - k);
            a1 += gk * load4(xs - k + 4);
        }
        store4(out + i, a0);
        store4(out + i + 4, a1);
    }
    for (; i < n; ++i) {
        double a = 0;
        for (int k = 0; k < taps; ++k)
            a += g[k] * x[std::ptrdiff_t(i) - k];
        out[i] = a;
    }
}

ZUVO_CLONES double dot(const double* a, const double* b, int n)
{
    v4d s0 = {0, 0, 0, 0}, s1 = {0, 0, 0, 0}, s2 = {0, 0, 0, 0}, s3 = {0, 0, 0, 0};
    int j = 0;
    for (; j + 16 <= n; j += 16) {
        s0 += load4(a + j) * load4(b + j);
        s1 += load4(a + j + 4) * load4(b + j + 4);
        s2 += load4(a + j + 8) * load4(b + j + 8);
        s3 += load4(a + j + 12) * load4(b + j + 12);
    }
    for (; j + 4 <= n; j += 4)
        s0 += load4(a + j) * load4(b + j);
    const v4d s = (s0 + s1) + (s2 + s3);
    double r = (s[0] + s[1]) + (s[2] + s[3]);
    for (; j < n; ++j)
        r += a[j] * b[j];
    return r;
}

ZUVO_CLONES void packBits(const std::uint8_t* bits, std::size_t nbytes, std::uint8_t* out)
{
    for (std::size_t i = 0; i < nbytes; ++i) {
        const std::uint8_t* b = bits + 8 * i;
        out[i] = std::uint8_t((b[0] << 7) | (b[1] << 6) | (b[2] << 5) | (b[3] << 4) | (b[4] << 3) | (b[5] << 2)
                              | (b[6] << 1) | b[7]);
    }
}

} // namespace zuvo::dsp::detail
