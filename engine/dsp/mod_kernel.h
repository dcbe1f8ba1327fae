#pragma once
// Block form of the modulator loop. K samples are advanced per step:
//   [x(n+K) without v ; y(n..n+K-1) without v] = Mx x(n) + Mu u(n..n+K-1)
// then the K one-bit decisions are taken in order, each adding its exact
// contribution to the later candidates (the loop's Markov parameters) and
// to the new state. The result is bit-identical in exact arithmetic to the
// per-sample recursion, but the long dependency through A x is paid once
// per K samples instead of every sample.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuvo::dsp::detail {

constexpr int kBlock = 8;

struct BlockKernel {
    int n = 0;   // states
    int np = 0;  // padded states: 4, 8, 12 or 16
    int rows = 0; // np + kBlock
    // Column-major, `rows` = np + kBlock rows: [next state ; next block's
    // candidates]. See mod_kernel.cpp for the derivation.
    std::vector<double> Mx, MuX, Vv;
    std::vector<double> MuIn, Mc; // kBlock rows: within-block input terms; C A^j
    std::vector<double> Hv;       // h_l = C A^(l-1) B1 at Hv[l]
    std::vector<double> lim;
    std::vector<double> limLo; // -lim
    // B0 == -B1 (the input enters exactly where the output is fed back, as
    // in the error-feedback and single-loop forms): the input's block terms
    // then ride on the feedback columns as (v - u) and MuX is not needed.
    bool symmetric = false;
};

struct ModulatorDesign;
void buildBlockKernel(const ModulatorDesign& d, BlockKernel& k);

// Processes nblocks * kBlock samples; x has np entries (padding zero).
// Returns the number of blocks at which the state had to be clipped and
// writes those block indices' flags into clippedFlags (one byte per block).
// With `peak` (np entries) it also keeps the largest |state| seen.
// With `packed`, bits receives one byte per block (earliest bit in bit 7)
// instead of one 0/1 value per sample.
std::size_t runBlocks(const BlockKernel& k, double* x, const double* u, std::size_t nblocks, std::uint8_t* bits,
                      std::uint8_t* clippedFlags, double* peak = nullptr, bool packed = false);

} // namespace zuvo::dsp::detail
