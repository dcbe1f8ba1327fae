#pragma once
// Design of the interpolation/decimation stages. Every stage is described by
// a prototype low-pass running at L x its input rate, normalised to unity DC
// gain; the runtime classes in fir_stages.h turn it into polyphase tables.

#include "dsd_pipeline.h"
#include "dsp_math.h"

#include <string>
#include <vector>

namespace zuvo::dsp::detail {

struct FirStage {
    std::string name;
    int L = 1, M = 1;        // rate change L/M
    double inRate = 0;       // Hz
    double outRate = 0;      // Hz
    std::vector<double> h;   // prototype at L*inRate, sum(h) == 1
    bool halfband = false;   // L == 2, M == 1, every other tap zero except the centre
    double passHz = 0;       // band this stage must keep flat
    double stopHz = 0;       // first frequency it must reject

    double protoRate() const { return double(L) * inRate; }
    double delaySeconds() const; // DC group delay
    cplx response(double hz) const { return firResponse(h, hz / protoRate()); }
};

// Resolved first-stage parameters after applying defaults.
struct Stage1Plan {
    double passHz = 0, stopHz = 0, attenuationDb = 0;
    int taps = 0;
    FilterAlgorithm algorithm = FilterAlgorithm::Window;
    std::string window;
    double beta = 0;
    bool minimumPhase = false;
    int maxIterations = 0, gridDensity = 0;
    bool autoTaps = true;
};

// Validates the options and fills the plan; returns false with a message.
bool planStage1(const FirOptions& o, int inputRate, Stage1Plan& plan, std::string* error);
// Designs the 2x first stage (prototype at 2 x inputRate).
bool designStage1(const Stage1Plan& plan, int inputRate, FirStage& out, std::string* error);

// Half-band 2x stage keeping [0, passHz] and rejecting images by attenuationDb.
FirStage designHalfband(double inRate, double passHz, double attenuationDb);
// 2x stage (1 + z^-1)^p / 2^p: a p-fold zero at the output's Nyquist
// frequency, p chosen so the images of [0, audioHz] sit attenuationDb down.
// Only sensible where those images are narrow compared with the rate (the
// top stages); its small pass-band droop is left to the pre-distortion.
FirStage designBinomial(double inRate, double audioHz, double attenuationDb);
// Runtime form a stage should use: every 2x stage runs two-phase.
inline bool runsTwoPhase(const FirStage& s) { return s.L == 2 && s.M == 1; }

// Rational L/M stage with a Kaiser prototype.
// delayOffset: the prototype's delay (N-1)/2 is made congruent to it modulo
// M, so that with the earlier stages' delay the total is whole output samples.
FirStage designRational(double inRate, int L, int M, double passHz, double stopHz, double attenuationDb,
                        int delayOffset = 0);
// Plain Kaiser low-pass used by decimators: prototype at `rate`. The length
// is odd and its delay (N-1)/2 is congruent to delayOffset modulo
// delayMultiple, so a stage's delay can be made a whole number of its
// output samples and the chain's delay compensated exactly.
std::vector<double> kaiserLowpass(double rate, double passHz, double stopHz, double attenuationDb, int minTaps = 3,
                                  int delayMultiple = 1, int delayOffset = 0);

// Least-squares linear-phase correction (odd length, at `rate`) whose
// magnitude follows target(f) over [0, passHz].
std::vector<double> designCorrection(double rate, double passHz, const std::vector<double>& freqs,
                                     const std::vector<double>& target, int length);

std::vector<double> convolve(const std::vector<double>& a, const std::vector<double>& b);

} // namespace zuvo::dsp::detail
