#pragma once
// Linear prediction for click repair: an all-pole (AR) model of a stretch of
// audio, the prediction residual, and least-squares AR interpolation of
// missing samples.
//
// Coefficients a[0..p] with a[0] = 1 define the prediction-error filter
// e[t] = sum_k a[k] x[t-k].

#include <cstddef>
#include <vector>

namespace zuvo::restore {

// Burg's method. Returns false for a silent or degenerate stretch (the
// caller then leaves it alone).
bool fitAr(const double* x, std::size_t n, int order, std::vector<double>& a);

// e[t] for t in [first, last): needs x[t - p .. t].
void arResidual(const double* x, const std::vector<double>& a, std::size_t first, std::size_t last, double* e);

// Replaces x[u] for every u in `unknown` (sorted, each >= p, each + p < n of
// the buffer) by the values that minimise the residual energy of every
// prediction that involves them, the other samples held fixed. Returns false
// (x untouched) when the system is singular.
bool lsarInterpolate(double* x, const std::vector<double>& a, const std::vector<std::size_t>& unknown);

} // namespace zuvo::restore
