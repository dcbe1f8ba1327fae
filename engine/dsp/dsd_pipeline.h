#pragma once
// The engine's signal path as the rest of the engine sees it: one encoder per
// channel turns PCM samples at the input rate into packed 1-bit DSD, one
// decimator per channel turns DSD back into PCM, and a resampler serves the
// PCM-to-PCM (DXD) path. Designs are made once per run and shared read-only
// by the per-channel objects, which run on their own threads.
//
// Errors are values: design functions return an empty pointer and fill
// `error` with a message meant for the user.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zuvo::dsp {

constexpr int kDsdBaseRate = 44100; // DSD64 = 64 x 44100 Hz

enum class FilterAlgorithm { Default, Window, Remez, MinPhase };
enum class ModulatorType { SosEf, SingleLoop, Cifb, Mash };

// First interpolation stage; every field at its "unset" value lets the
// engine choose.
struct FirOptions {
    int taps = 0;                          // --taps, 0 = engine default
    FilterAlgorithm algorithm = FilterAlgorithm::Default; // --algorithm (remez) / --minphase
    int maxIterations = 0;                 // --maxiterations (Remez), 0 = default
    int gridDensity = 0;                   // --griddensity (Remez), 0 = default
    std::string windowType;                // --window-type: kaiser blackman flattop bartlett hamming hanning
    double beta = NAN;                     // --beta (Kaiser), NaN = default
    bool minimumPhase = false;             // --minphase, --filter-type minphase
    bool slowRollOff = false;              // --filter-type slow
    double passbandHz = 0;                 // --passband-cutoff, 0 = automatic
    double stopbandHz = 0;                 // --stopband-cutoff, 0 = automatic
    double stopbandAttenuationDb = 0;      // --stopgain-alpha, 0 = automatic
    bool highBandwidth = false;            // --high-bandwidth
};

struct ModulatorOptions {
    ModulatorType type = ModulatorType::SosEf;
    int order = 0; // --order N / --cifb N / --mash N; 0 = default of the type
};

struct ForwardConfig {
    int inputRate = 44100;   // Hz, 44.1 kHz and 48 kHz families
    int dsdMultiple = 64;    // 64 … 8192: output rate = dsdMultiple x 44100
    FirOptions fir;
    ModulatorOptions modulator;
    double gain = NAN;       // linear gain applied before modulation; NaN = automatic headroom
    bool predistortion = true; // compensate the interpolation chain's droop
    // Worst-case linear gain of the effects that run before the encoder. The
    // automatic gain is divided by it, and an explicit gain is lowered when
    // gain x effectGain would pass the automatic gain, so that effects never
    // push the modulator past its stable level.
    double effectGain = 1.0;
};

struct DesignSummary {
    std::string text;                 // multi-line description for the engine log
    double passbandRippleDb = 0;      // peak-to-peak, 20 Hz – 20 kHz (or the pass band)
    double stopbandAttenuationDb = 0; // worst image rejection of the whole chain
    double appliedGain = 1.0;         // the linear gain actually used
    double maxStableInputDbfs = 0;    // highest input level the modulator takes without overload
    // Added by the signal path: the same limit measured at the modulator's
    // own input (before the gain), i.e. independent of the gain choice.
    double modulatorMaxStableDbfs = 0;
    // Gain the user asked for (NaN = automatic) and whether the effects'
    // headroom lowered it.
    bool gainLoweredForEffects = false;
};

struct ForwardDesign; // opaque, immutable once made

std::shared_ptr<const ForwardDesign> designForward(const ForwardConfig& config, std::string* error);
const DesignSummary& summary(const ForwardDesign& design);
int dsdRateHz(const ForwardDesign& design);

// Added by the signal path, for measurement (tests, benchmark, diagnostics):
// runs `in` through the design's gain and interpolation chain only, without
// the modulator. The result is at the DSD rate, delay-compensated and as
// long as the input (same convention as ChannelEncoder).
std::vector<double> interpolateOnly(const ForwardDesign& design, const double* in, std::size_t n);
// Magnitude of the interpolation chain times the modulator's signal transfer
// at `hz` (gain excluded; 1.0 = flat), and the time the chain's filters need
// to settle after a start from silence (sum of the stage lengths).
double chainMagnitude(const ForwardDesign& design, double hz);
double settleSeconds(const ForwardDesign& design);

// PCM (one channel, full scale = 1.0) -> DSD bytes, MSB first (the earliest
// bit in bit 7: DSDIFF order; the DSF writer reverses bytes).
class ChannelEncoder {
public:
    explicit ChannelEncoder(std::shared_ptr<const ForwardDesign> design);
    ~ChannelEncoder();
    ChannelEncoder(ChannelEncoder&&) noexcept;
    ChannelEncoder& operator=(ChannelEncoder&&) noexcept;

    // Appends the DSD bytes produced by `n` input samples.
    void process(const double* in, std::size_t n, std::vector<std::uint8_t>& out);
    // Drains the filters' delay so the output is as long as the input, and
    // pads the last byte with the DSD idle pattern.
    void finish(std::vector<std::uint8_t>& out);

    struct Stats {
        std::uint64_t overloads = 0;   // state checks (one per 8 samples) at which the modulator state was clipped
        std::uint64_t resets = 0;      // times the modulator had to be reset
        std::uint64_t nonFiniteResets = 0; // of which because its state held NaN or infinity
        double peakInput = 0;          // largest |sample| after gain
    };
    Stats stats() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

// DSD -> PCM (reverse mode).
struct ReverseConfig {
    int dsdRate = 2822400;   // Hz
    int outputRate = 0;      // 0 = default (see reverseDefaultRate)
    double lowpassHz = 0;    // 0 = default
};
// Default output: 352800 Hz (DXD) whenever the DSD rate allows it (every
// rate from DSD64 up), low-passed by reverseDefaultLowpass (30 kHz at DSD64,
// 45 kHz at DSD128, 60 kHz above, never beyond 0.4535 x the output rate).
// Samples are doubles at full scale 1.0. kReverseDefaultBits is the default
// integer word length for files: 24-bit rounding noise (about -144 dBFS in
// the audio band) sits above the in-band noise of our own DSD64 streams
// (about -158 dBFS), so 32-bit float is the lossless choice.
int reverseDefaultRate(int dsdRate);
double reverseDefaultLowpass(int dsdRate, int outputRate);
constexpr int kReverseDefaultBits = 24;

class ChannelDecimator {
public:
    ChannelDecimator(const ReverseConfig& config, std::string* error);
    ~ChannelDecimator();
    ChannelDecimator(ChannelDecimator&&) noexcept;
    ChannelDecimator& operator=(ChannelDecimator&&) noexcept;
    bool valid() const;
    int outputRate() const;

    // `bytes` MSB first. Appends PCM samples (full scale = 1.0).
    void process(const std::uint8_t* bytes, std::size_t n, std::vector<double>& out);
    void finish(std::vector<double>& out);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

// PCM -> PCM at another rate (the DXD path, e.g. 44100 -> 352800).
class ChannelResampler {
public:
    ChannelResampler(int inputRate, int outputRate, std::string* error);
    ~ChannelResampler();
    ChannelResampler(ChannelResampler&&) noexcept;
    ChannelResampler& operator=(ChannelResampler&&) noexcept;
    bool valid() const;

    void process(const double* in, std::size_t n, std::vector<double>& out);
    void finish(std::vector<double>& out);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace zuvo::dsp
