#pragma once
// Prediction filter design for one channel of one frame: the linear
// predictor of the +-1 sequence that minimises the squared prediction error
// (autocorrelation method, Levinson-Durbin recursion), quantised to the
// format's 9-bit coefficients.
#include <cstdint>
#include <vector>

namespace zuvo::dst {

// Autocorrelation of the +-1 sequence for lags 0..maxLag. `bytes` hold
// `bits` DSD bits, the earliest in bit 7 of the first byte.
std::vector<double> autocorrelation(const std::uint8_t* bytes, int bits, int maxLag);

// Predictor a[0..order-1] with x[n] ~ sum a[k] x[n-1-k]. A little white
// noise is added to r[0] so that periodic patterns (digital silence) give a
// well-conditioned system. Returns an empty vector when r[0] is zero.
std::vector<double> levinson(const std::vector<double>& r, int order);

// Format coefficients for a predictor: the predictor scaled and rounded,
// each within -255..255 so that no history can push the 128-tap sum outside
// 16 bits. The scale is set by the first coefficient, which becomes exactly
// `first`: ffmpeg 5.1's decoder (our independent check) reproduces the
// frames bit-exactly only when the first coefficient is 0, +-128 or -256
// (measured on every other value we tried; later coefficients are free).
// With `first` 0 the lag-1 tap is dropped and the rest scaled to a peak of
// 128.
std::vector<int> quantise(const std::vector<double>& a, int first);

// First-coefficient values worth trying for `a`, best guess first: +-128
// (the sign of a[0]), then -256 when a[0] is negative, then 0.
std::vector<int> firstCoefficientChoices(const std::vector<double>& a);

} // namespace zuvo::dst
