#pragma once
// Which mains frequency hums in a recording: 50 or 60 Hz.
//
// Rule: over the analysed stretch (Hann-windowed, all channels summed in
// power) the energy at 50 + 100 + 150 Hz is compared with the energy at
// 60 + 120 + 180 Hz, each measured with a Goertzel filter. 60 Hz wins only
// when its sum is more than twice (3 dB over) the 50 Hz sum, so that music
// without hum, whose energy leaks a little unevenly into both sets, keeps
// the default; a closer call, silence (no energy at either set) or a
// stretch too short to tell the two apart (under 0.2 s) gives 50 Hz.
// Mains is rarely exactly on its nominal frequency and a 5 Hz wide notch
// 0.1 Hz off takes only ~12 dB; so the fundamental is then refined within
// +-0.5 Hz of the nominal value to where the summed Goertzel power of the
// first five harmonics peaks (0.05 Hz steps, then 0.005 Hz). Without a
// hum to refine on (silence, or harmonics less than 6 dB over the spectrum
// half-way between them) the nominal value stays.

#include <cstddef>
#include <vector>

namespace zuvo::restore {

struct HumGuess {
    double mainsHz = 50;  // refined fundamental
    double nominalHz = 50;
    double energy50 = 0, energy60 = 0; // summed Goertzel powers of the two sets
};

// Goertzel power of `x` at `hz` with a Hann window.
double goertzelPower(const double* x, std::size_t n, double hz, double fs);

HumGuess detectMains(const std::vector<std::vector<double>>& channels, std::size_t n, double fs);

} // namespace zuvo::restore
