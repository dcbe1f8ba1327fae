#pragma once
// Hot FIR loops, compiled for several instruction-set levels and picked at
// load time, so a baseline x86-64 build still runs AVX2/AVX-512 code where
// the processor has it.

#include <cstddef>
#include <cstdint>

namespace zuvo::dsp::detail {

// out[i] = sum_k g[k] * x[i - k], i = 0..n-1 (x[-taps+1 .. n-1] readable).
void firOuter(const double* x, const double* g, int taps, double* out, std::size_t n);
// 2x interpolation of n inputs into 2n interleaved outputs:
// out[2i+r] = sum_k g_r[k] x[i-k]; a phase with copy_r >= 0 is x[i-copy_r].
void interpolate2(const double* x, const double* g0, int n0, int copy0, const double* g1, int n1, int copy1,
                  double* out, std::size_t n);
// sum_j a[j] * b[j]
double dot(const double* a, const double* b, int n);
// Packs 0/1 bits, earliest in bit 7.
void packBits(const std::uint8_t* bits, std::size_t nbytes, std::uint8_t* out);

} // namespace zuvo::dsp::detail
