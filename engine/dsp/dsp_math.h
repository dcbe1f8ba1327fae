#pragma once
// Small numeric helpers shared by the designers: windows, Bessel I0, an FFT
// for the minimum-phase transform, frequency-response evaluation, and the
// polynomial/root arithmetic the noise-transfer-function designer needs.

#include <complex>
#include <cstddef>
#include <vector>

namespace zuvo::dsp::detail {

using cplx = std::complex<double>;
constexpr double kPi = 3.14159265358979323846;

double besselI0(double x);
// Kaiser's empirical formulas: beta for a stop-band attenuation in dB and the
// length for a transition width given as a fraction of the sampling rate.
double kaiserBeta(double attenuationDb);
int kaiserLength(double attenuationDb, double transitionFraction);

// Window of length n; type is one of kaiser blackman flattop bartlett hamming
// hanning (already validated by the caller).
std::vector<double> makeWindow(const char* type, int n, double beta);

// Windowed-sinc low-pass, cutoff in cycles/sample (0..0.5), unity DC gain.
std::vector<double> windowedSincLowpass(int n, double cutoff, const std::vector<double>& window);

// In-place radix-2 FFT (size a power of two). inverse=true computes the
// unnormalised inverse.
void fft(std::vector<cplx>& a, bool inverse);

// H(e^{j2 pi f}) of an FIR, f in cycles/sample.
cplx firResponse(const double* h, std::size_t n, double f);
inline cplx firResponse(const std::vector<double>& h, double f) { return firResponse(h.data(), h.size(), f); }

// Minimum-phase FIR with the magnitude response of h (homomorphic method).
std::vector<double> minimumPhase(const std::vector<double>& h);

// Roots of the Legendre polynomial P_n on [-1, 1], ascending.
std::vector<double> legendreRoots(int n);

// Monic polynomial (highest power first) from its roots; the imaginary part
// is dropped because the callers always pass conjugate-closed root sets.
std::vector<double> polyFromRoots(const std::vector<cplx>& roots);

} // namespace zuvo::dsp::detail
