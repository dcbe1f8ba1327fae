#pragma once
// Spectral denoising: a short-time Fourier transform with overlap-add,
// a noise floor tracked per bin while the music plays, and a suppression gain
// per bin.
//
// Transform. Frame N samples, hop H = N / 4 (75 % overlap), periodic
// sqrt-Hann window w[i] = sin(pi i / N) for analysis and synthesis. The
// squared windows overlapped at N / 4 sum to exactly 2, so the synthesis is
// scaled by 1 / (2 N) (FFTW transforms are unnormalised): with every gain at
// 1 the output is the input delayed by latency() = N samples (to rounding).
// N is the frame length in milliseconds times the rate, moved to the nearest
// multiple of 4 whose factors are only 2, 3 and 5 (fast FFTW sizes):
//   --wiener: --wiener-frame ms (default 32 ms: 1440 samples at 44.1 kHz),
//   tiers and --noise-reduce: 46.4 ms (2048 samples at 44.1 kHz).
//
// Noise floor (lambda, per bin). The power |X|^2 is smoothed over time with a
// one-pole of 80 ms. A running median across frequency (+-16 bins, +-k/2 at
// the lowest bins k) marks peaks: a bin more than 6 dB above its median is a
// tone or partial, and the noise under it is taken to be the median's (scaled,
// see below); every other bin keeps its own smoothed power, so coloured noise
// keeps its shape (DC and the first bin always keep their own). The minimum of
// that over the last 1.5 s is the floor, kept as 8 sub-window minima: it
// follows quieter noise at once and louder noise within 1.5 s. No noise-only
// introduction is needed. The first 1 / (1 - pole) frames (~90 ms) are
// averaged as a plain mean and pass unchanged. A frame any quarter of which
// is below -140 dBFS RMS (digital silence, e.g. before the first note) leaves
// the floor alone. The minimum of a fluctuating quantity is biased low; the
// factors that remove the bias (one for bins tracked through their own power,
// one for bins tracked through the median) are measured at configure() time
// by running the tracker on ~3.3 s of deterministic unit white noise with the
// same frame and hop (mean true power over mean tracked minimum).
//
// Gain. Posterior SNR gamma = |X|^2 / lambda; a-priori SNR by decision
// direction, xi = 0.98 |G_prev X_prev|^2 / lambda + 0.02 max(gamma - 1, 0);
// Wiener gain G = xi / (1 + xi), multiplied by a knee that is 0 below
// xi = 0.3 (-5.2 dB), 1 above xi = 1 (0 dB), linear between. The slow xi and
// the knee keep lone noise peaks at the floor, which is where musical noise
// would come from; G_prev is the knee'd gain, so a peak the knee shut does not
// open the next frame. The gain is then held at or above the floor and
// smoothed across frequency upwards only: max(g[k], 0.25 g[k-1] + 0.5 g[k] +
// 0.25 g[k+1]), so a partial's main lobe is never pulled down by bins at the
// floor beside it. Over time the smoothing is the decision-directed xi.
//
// Floors: light -12 dB, standard -18 dB, --wiener -15 dB unless
// --wiener-floor says otherwise, --noise-reduce N: -N dB. Deep follows the
// threshold of hearing (Terhardt's approximation, ATH(f) dB):
//   floor(f) = -20 dB - 10 dB * clamp((ATH(f) + 5 dB) / 30 dB, 0, 1),
// -20 dB where the ear is most sensitive (2-5 kHz), down to -30 dB where it is
// least (below ~100 Hz, above ~14 kHz).
//
// Keep harmonics. Per frame: peaks are local maxima over +-2 bins with
// gamma > 6.3 (8 dB over the floor); fundamental candidates are the 8 strongest
// peaks divided by 1..6 (40 Hz to 2 kHz); a candidate scores the ln(gamma) of
// every peak within one bin of one of its harmonics minus ln(4) / 2 per
// harmonic missing below its highest matched one, and needs 4 matches; the
// best series counts only when the previous frame's was within 3 % (or one
// bin) of it (a note lasts; chance alignments of noise peaks do not). The
// peaks of the series, weaker local maxima (gamma > 2) at its harmonic
// positions up to one harmonic past the highest matched one, and every peak
// with gamma > 31.6 (15 dB) that was a peak in the previous frame too (a lone
// noise peak lasts one frame) are protected with their +-1 neighbours: their
// gain is 1, released over later frames by halving so protection does not
// flicker.
//
// Channels are processed independently (each its own noise floor and gains).
//
// Measured (bench/spectral_bench, 10 s at 44.1 kHz; tests/engine/
// restore_spectral check the bounds): on 1 kHz at -20 dBFS RMS plus white
// noise at -50 dBFS RMS the SNR rises by 11.5 dB (light), 16.2 dB (standard),
// 19.4 dB (deep), 13.0 dB (Wiener, -15 dB, 32 ms); with pink noise instead
// 11.0 / 14.7 / 16.7 / 11.9 dB. On noise alone the output holds nothing
// beyond the noise turned down to the floor above -110 dBFS in any frame
// (white noise; -95 dBFS with pink noise, deep, keep harmonics). A 220 Hz tone
// with 9 harmonics each 5 dB below the last keeps every partial within
// 0.25 dB with keep harmonics (0.5 dB Wiener), while the plain tiers take
// 1.3-1.6 dB off the 9th and 2.4-2.8 dB off the 10th. Cost: 41-47 x real time
// for 44.1 kHz stereo on one core of the build machine (15-23 x while other
// builds share it).

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace zuvo::restore {

struct SpectralConfig {
    enum class Mode { Wiener, Light, Standard, Deep, Reduce } mode = Mode::Standard;
    double floorDb = -18.0;  // Wiener: the gain floor, -60 to 0 dB (0 passes the signal through)
    double frameMs = 46.4;   // frame length; the tiers and Reduce use 46.4 ms
    bool keepHarmonics = false;
    double reduceDb = 0.0;   // Reduce: the largest attenuation in dB
};

class SpectralChannel;
struct SpectralSetup;

// Frame length of the tiers and of --noise-reduce.
constexpr double kTierFrameMs = 46.4;

class SpectralDenoiser {
public:
    SpectralDenoiser();
    ~SpectralDenoiser();
    SpectralDenoiser(SpectralDenoiser&&) noexcept;
    SpectralDenoiser& operator=(SpectralDenoiser&&) noexcept;

    bool configure(const SpectralConfig& c, int channels, double fs, std::string& error);
    // Constant, in samples: the output is the input this much later. Feed this
    // many zeros at the end to get the last input samples out.
    std::size_t latency() const;
    // In place, all channels, any n (each ch[c] holds at least n samples).
    void process(std::vector<std::vector<double>>& ch, std::size_t n);
    std::string description() const;

    // The gain floor at a frequency, as a linear factor (for measurements).
    double floorGain(double hz) const;
    std::size_t frameLength() const { return frame_; }

private:
    SpectralConfig config_;
    double fs_ = 0;
    std::size_t frame_ = 0;
    std::unique_ptr<SpectralSetup> setup_; // shared by the channels, read only
    std::vector<std::unique_ptr<SpectralChannel>> channels_;
};

} // namespace zuvo::restore
