#include "simd_kernels.h"

#include <cstring>

namespace zuvo::dsp::detail {

#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define ZUVO_CLONES __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define ZUVO_CLONES
#endif

// Helpers taking or returning vectors must be inlined into each clone:
// out of line they would be compiled for the baseline ABI.
typedef double v4d __attribute__((vector_size(32)));

__attribute__((always_inline)) static inline v4d load4(const double* p)
{
    v4d v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
__attribute__((always_inline)) static inline void store4(double* p, v4d v) { std::memcpy(p, &v, sizeof v); }

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

typedef long long v4i __attribute__((vector_size(32)));

__attribute__((always_inline)) static inline v4d phase(const double* xs, const double* g, int taps, int copy)
{
    if (copy >= 0)
        return load4(xs - copy);
    // Four partial sums so long filters are not bound by the add latency.
    v4d a0 = {0, 0, 0, 0}, a1 = a0, a2 = a0, a3 = a0;
    int k = 0;
    for (; k + 4 <= taps; k += 4) {
        a0 += g[k] * load4(xs - k);
        a1 += g[k + 1] * load4(xs - k - 1);
        a2 += g[k + 2] * load4(xs - k - 2);
        a3 += g[k + 3] * load4(xs - k - 3);
    }
    for (; k < taps; ++k)
        a0 += g[k] * load4(xs - k);
    return (a0 + a1) + (a2 + a3);
}

ZUVO_CLONES void interpolate2(const double* x, const double* g0, int n0, int copy0, const double* g1, int n1,
                              int copy1, double* out, std::size_t n)
{
    std::size_t i = 0;
    for (; i + 4 <= n; i += 4) {
        const v4d e = phase(x + i, g0, n0, copy0);
        const v4d o = phase(x + i, g1, n1, copy1);
        // Interleave e0 o0 e1 o1 | e2 o2 e3 o3.
        store4(out + 2 * i, __builtin_shuffle(e, o, v4i{0, 4, 1, 5}));
        store4(out + 2 * i + 4, __builtin_shuffle(e, o, v4i{2, 6, 3, 7}));
    }
    for (; i < n; ++i) {
        for (int r = 0; r < 2; ++r) {
            const double* g = r ? g1 : g0;
            const int taps = r ? n1 : n0, copy = r ? copy1 : copy0;
            double a = 0;
            if (copy >= 0)
                a = x[std::ptrdiff_t(i) - copy];
            else
                for (int k = 0; k < taps; ++k)
                    a += g[k] * x[std::ptrdiff_t(i) - k];
            out[2 * i + std::size_t(r)] = a;
        }
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
