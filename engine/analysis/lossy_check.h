#pragma once
// Whether a PCM signal carries the low-pass shelf that lossy codecs leave:
// content up to a cut-off between 15 and 20.5 kHz, then a cliff down to the
// noise floor.
//
// The signal's average power spectrum (all channels, 8192-point Hann
// frames, the first kLossyScanSeconds of the file) is compared around every
// candidate cut-off fc, in 50 Hz steps from 15 kHz to 20.5 kHz:
//   below  = median level of [fc - 800, fc - 200] Hz
//   above  = median level of [fc + 200, fc + 800] Hz
//   reach  = median level of [fc - 3000, fc - 200] Hz
//   upper  = 95th percentile of [fc + 200, min(fc + 4000, Nyquist - 200)] Hz
// fc is a lossy cut-off when below - above >= 30 dB (a drop of 30 dB within
// 1 kHz), reach - above >= 30 dB (the band below carries content, not a few
// tones over a floor) and upper - above <= 10 dB (nothing comes back above:
// the band is at the floor). The cut-off reported is the candidate with the
// largest drop. Inputs below 44.1 kHz, shorter than one frame or silent are
// never called lossy.
// A signal that merely ends at fc somewhere (a sweep reaching 20 kHz in its
// last moment) has the same average; a codec cuts every frame. So the cut-off
// must also show frame by frame: in at least kLossyFrameShare of the frames
// that carry any signal, below - above >= kLossyFrameDropDb at fc.
#include <cstddef>
#include <string>
#include <vector>

namespace zuvo::analysis {

constexpr double kLossyScanSeconds = 30.0;
constexpr double kLossyDropDb = 30.0;
constexpr double kLossyFrameDropDb = 15.0;
constexpr double kLossyFrameShare = 0.25;
constexpr double kLossyReachDb = 30.0;
constexpr double kLossyFlatDb = 10.0;
constexpr double kLossyLowestHz = 15000.0;
constexpr double kLossyHighestHz = 20500.0;

struct LossyVerdict {
    bool lossy = false;
    double cutoffHz = 0;   // with lossy: the cut-off found
    double dropDb = 0;     // largest drop seen at any candidate
    std::string reason;    // one sentence for the user
};

class SpectrumAverage {
public:
    static constexpr std::size_t kFrame = 8192;
    SpectrumAverage(int channels, int sampleRate);
    ~SpectrumAverage();
    SpectrumAverage(const SpectrumAverage&) = delete;
    SpectrumAverage& operator=(const SpectrumAverage&) = delete;

    // Interleaved frames; returns false once enough has been seen.
    bool addInterleaved(const double* x, std::size_t frames);
    bool full() const;
    // Average power per bin (kFrame / 2 + 1 bins), empty before one frame.
    std::vector<double> power() const;
    int sampleRate() const { return rate_; }
    // Per frame, the power of bins [firstStoredBin(), ...) up to 25 kHz.
    const std::vector<std::vector<float>>& framePower() const { return framePower_; }
    std::size_t firstStoredBin() const { return firstStored_; }

private:
    void transform();
    int channels_, rate_;
    std::size_t limitFrames_, seen_ = 0, fill_ = 0, frames_ = 0;
    std::vector<std::vector<double>> pending_;
    std::vector<double> window_, sum_, frameSum_;
    std::vector<std::vector<float>> framePower_;
    std::size_t firstStored_ = 0, lastStored_ = 0;
    void* plan_ = nullptr;
    double* in_ = nullptr;
    void* out_ = nullptr;
};

// The decision on an average power spectrum (bins 0 .. N/2 of an N-point
// transform at `sampleRate`).
LossyVerdict judgeSpectrum(const std::vector<double>& power, int sampleRate);
// judgeSpectrum on the average, then the frame-by-frame condition.
LossyVerdict judge(const SpectrumAverage& spectrum);

} // namespace zuvo::analysis
