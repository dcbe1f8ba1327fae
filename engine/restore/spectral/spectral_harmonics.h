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

// gamma: power over noise floor per bin; binHz: bin spacing. peaks: on entry
// the previous frame's peak bins (1 = peak), on return this frame's; a strong
// peak outside a series is protected only when it was a peak (within one
// bin) in the previous frame too, since a lone noise peak lasts one frame.
// previousF0: likewise the previous frame's fundamental (0 for none), updated;
// a series is used only when the previous frame found nearly the same one.
HarmonicResult findProtectedPartials(const std::vector<double>& gamma, double binHz, std::vector<unsigned char>& peaks,
                                     double& previousF0);

} // namespace zuvo::restore
