#pragma once
// Which bins of one frame hold partials worth keeping: spectral peaks, and the
// harmonic series of a fundamental found by a harmonic sieve over them. The
// rules and thresholds are described in spectral_denoiser.h.

#include <cstddef>
#include <vector>

namespace zuvo::restore {

struct HarmonicResult {
    double fundamentalHz = 0.0;       // 0 when no series was found
    std::vector<std::size_t> centres; // protected peak bins (each with +-1 neighbours)
};

// gamma: power over noise floor per bin; binHz: bin spacing.
HarmonicResult findProtectedPartials(const std::vector<double>& gamma, double binHz);

} // namespace zuvo::restore
