#pragma once
// Equaliser band design shared by the engine's "--eq" stage and the window's
// response curve, so that the curve drawn for the user is exactly what the
// engine applies. Pure functions, no Qt, no allocation.
//
// Band kinds follow the engine's slot rule: in a list of n bands the first is
// a low shelf, the last is a high shelf only when n == 10, every other band is
// a peaking filter.
//
// Bandwidth units (the letter after the number in "f,g,bw{unit}"):
//   q  quality factor Q of the band (peaking: f0 / -3 dB-of-peak bandwidth,
//      shelf: the shelf's Q, 0.7071 = Butterworth-like, no overshoot)
//   h  bandwidth in Hz, converted to Q = f0 / bw
//   k  bandwidth in kHz, converted to Q = f0 / (1000 * bw)
//   o  bandwidth in octaves between the band edges, converted with the
//      bilinear-warped relation 1/Q = 2 sinh(ln2/2 * N * w0 / sin w0)
//   s  shelf slope S (1.0 = steepest without overshoot); on a peaking band
//      the same slope-to-Q relation is used:
//      1/Q = sqrt((A + 1/A) * (1/S - 1) + 2), A = 10^(g/40)
// Designs are RBJ (bilinear transform of the analog prototypes). The centre
// frequency is clamped into [1 Hz, 0.49 fs] so that bands set for a higher
// input rate still give a stable, defined filter at a lower one; Q is clamped
// into [0.025, 500].

#include <complex>

namespace zuvo::eq {

enum class BandKind { LowShelf, Peaking, HighShelf };

struct BandSpec {
    double centerHz = 1000.0;
    double gainDb = 0.0;
    double bandwidth = 1.0;
    char unit = 'q'; // q h k o s
};

// Normalised biquad: y = b0 x + b1 x1 + b2 x2 - a1 y1 - a2 y2.
struct Biquad {
    double b0 = 1, b1 = 0, b2 = 0, a1 = 0, a2 = 0;
};

constexpr int kMaxBands = 10;

// Kind of band `index` in a list of `count` bands.
BandKind bandKindAt(int index, int count);

// True when `unit` is one of the five unit letters.
bool isBandwidthUnit(char unit);

// The band's quality factor after unit conversion and clamping.
double bandQ(const BandSpec &band, double sampleRate);

Biquad designBand(const BandSpec &band, BandKind kind, double sampleRate);

// Complex response of one section at `hz`.
std::complex<double> response(const Biquad &q, double hz, double sampleRate);

// Magnitude in dB of one section at `hz`.
double magnitudeDb(const Biquad &q, double hz, double sampleRate);

} // namespace zuvo::eq
