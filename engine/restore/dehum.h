#pragma once
// Removes mains hum: a cascade of notch biquads at the mains frequency and
// its harmonics (fundamental + 9 harmonics, those above 0.45 fs skipped).
//
// Every notch has the same width in Hz: the notch at harmonic k gets
// Q_k = k * Q, so its -3 dB width f_k / Q_k equals the fundamental's f0 / Q
// (5 Hz for 50 Hz at the default Q 10). A wider notch at the upper harmonics
// would take more music with it for no better hum removal.
//
// The mains frequency is found from the first kDetectSeconds of the input
// (hum_detector.h). Those seconds are held back until the decision, so the
// stage has a constant latency of that many samples; the chain hides it.

#include <cstddef>
#include <string>
#include <vector>

#include "eq/eq_design.h"
#include "restore/hum_detector.h"

namespace zuvo::restore {

constexpr double kDehumDetectSeconds = 2.0;
constexpr int kDehumHarmonics = 10; // fundamental included
constexpr double kDehumMaxFraction = 0.45;

// Notches for `mainsHz` at rate fs, fundamental Q `q`.
std::vector<eq::Biquad> designHumNotches(double mainsHz, double q, double fs);

class Dehum {
public:
    // mainsHz 0 = detect from the input; 50 or 60 forces it.
    Dehum(int channels, double fs, double q, double mainsHz = 0);

    std::size_t latency() const { return latency_; }
    void process(std::vector<std::vector<double>>& ch, std::size_t n);

    bool decided() const { return decided_; }
    const HumGuess& guess() const { return guess_; }
    std::size_t notchCount() const { return notches_.size(); }

private:
    void decide();
    void filter(std::size_t c, double* x, std::size_t n);

    double fs_, q_;
    std::size_t latency_;
    bool decided_ = false;
    HumGuess guess_;
    std::vector<eq::Biquad> notches_;
    std::vector<std::vector<double>> state_;   // per channel: 2 values per section
    std::vector<std::vector<double>> pending_; // input held until the decision
    std::vector<std::vector<double>> out_;     // filtered samples waiting to leave
    std::size_t outRead_ = 0;
};

} // namespace zuvo::restore
