#pragma once
// Noise-shaping 1-bit modulators. Every topology is written once as a plain
// per-sample update of its own state variables (which is what we clip on
// overload); the design step turns that update into a state-space model
//   y = C x + D0 u,  v = sign(y),  x' = A x + B0 u + B1 v
// which a single fast kernel runs for every topology.

#include "dsd_pipeline.h"
#include "dsp_math.h"
#include "mod_kernel.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zuvo::dsp::detail {

constexpr int kMaxModOrder = 12;

struct Ntf {
    std::vector<cplx> zeros, poles;
    double bandEdge = 0; // cycles/sample the zeros were optimised for
    double hinf = 0;     // max |NTF| on the unit circle
    cplx eval(double f) const;
};

// Optimised zeros spread over [0, bandEdge] (roots of the Legendre
// polynomial, which minimise the integrated in-band noise), maximally flat
// poles scaled so the out-of-band gain equals hinf.
Ntf synthesizeNtf(int order, double bandEdge, double hinf);

struct ModulatorDesign {
    ModulatorType type = ModulatorType::SosEf;
    int order = 0;
    int n = 0;                      // states
    std::string topology;           // human-readable
    std::vector<double> A, B0, B1, C; // A row-major n x n
    double D0 = 0;
    std::vector<double> limit;      // per-state clip levels
    Ntf ntf;
    double maxStable = 0;           // largest sine amplitude (at the modulator input) that stays stable
    BlockKernel kernel;             // fast form of the same loop

    cplx loopU(double f) const;     // u -> y
    cplx loopV(double f) const;     // v -> y
    cplx stf(double f) const { return loopU(f) / (1.0 - loopV(f)); }
    cplx ntfRealised(double f) const { return 1.0 / (1.0 - loopV(f)); }
};

int defaultOrder(ModulatorType type);
double defaultHinf(ModulatorType type, int order);
bool designModulator(ModulatorType type, int order, double bandEdge, ModulatorDesign& out, std::string* error);

// Per-channel runner: the tight loop.
class ModulatorRunner {
public:
    explicit ModulatorRunner(const ModulatorDesign* d);
    // u: n samples; bits: n values 0/1 (1 = +1).
    void run(const double* u, std::size_t n, std::uint8_t* bits);
    // Same loop, appending packed bytes (earliest bit in bit 7); acc/nacc
    // carry a partly filled byte between calls.
    void runPacked(const double* u, std::size_t n, std::vector<std::uint8_t>& out, unsigned& acc, int& nacc);
    void reset();
    std::uint64_t overloads = 0, resets = 0;
    std::uint64_t nonFiniteResets = 0; // resets of a state that held NaN or infinity
    // Test/design hooks.
    bool clipping = true;
    double maxAbsY = 0;
    std::vector<double> maxAbsState;
    bool track = false;
    bool trackInBlocks = false; // track through the block kernel (its limits must be open)

private:
    const ModulatorDesign* d_;
    void runSamples(const double* u, std::size_t n, std::uint8_t* bits);
    // Resets a state that holds NaN or infinity (counted in nonFiniteResets).
    void resetIfDead();
    // Runs whole blocks with the overload window; returns samples done.
    std::size_t runWindowed(const double* u, std::size_t nblocks, std::uint8_t* bits, bool packed);
    std::vector<double> x_, xn_;
    std::vector<std::uint8_t> flags_;
    std::uint32_t windowCount_ = 0, windowClipped_ = 0;
};

} // namespace zuvo::dsp::detail
