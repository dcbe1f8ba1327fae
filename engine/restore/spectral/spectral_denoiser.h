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
// one-pole of 80 ms, then replaced by a running median across +-16 bins so
// that steady narrow components (tones, partials) are not taken for noise,
// then the minimum of that over the last 1.5 s is kept (8 sub-windows, so the
// estimate rises again within about 0.2 s of the noise getting louder). No
// noise-only introduction is needed. The minimum of a fluctuating quantity is
// biased low; the factor that removes the bias is measured at configure()
// time by running the same tracker on 4 s of deterministic unit white noise
// with the same frame and hop (mean true power over mean tracked minimum).
//
// Gain. Posterior SNR gamma = |X|^2 / lambda; a-priori SNR by decision
// direction, xi = 0.98 |G_prev X_prev|^2 / lambda + 0.02 max(gamma - 1, 0);
// Wiener gain G = xi / (1 + xi). The slow decision-directed xi is what keeps
// isolated noise peaks from opening the gain (musical noise). The gain is then
// held at or above the floor, smoothed across frequency with
// (0.25, 0.5, 0.25), and applied.
//
// Floors: light -12 dB, standard -18 dB, --wiener -15 dB unless
// --wiener-floor says otherwise, --noise-reduce N: -N dB. Deep follows the
// threshold of hearing (Terhardt's approximation, ATH(f) dB):
//   floor(f) = -20 dB - 10 dB * clamp((ATH(f) + 5 dB) / 30 dB, 0, 1),
// -20 dB where the ear is most sensitive (2-5 kHz), down to -30 dB where it is
// least (below ~100 Hz, above ~14 kHz).
//
// Keep harmonics. Per frame: peaks are local maxima over +-2 bins with
// gamma > 4 (6 dB over the floor); fundamental candidates are the 8 strongest
// peaks divided by 1..6 (40 Hz to 2 kHz); a candidate scores the ln(gamma) of
// every peak within one bin of one of its harmonics minus ln(4) / 2 per
// harmonic missing below its highest matched one, and needs 3 matches. The
// peaks of the best series, weaker local maxima (gamma > 2) at its harmonic
// positions up to one harmonic past the highest matched one, and every peak
// with gamma > 31.6 (15 dB) are protected with their +-1 neighbours: their
// gain is 1, released over later frames by halving so protection does not
// flicker.
//
// Channels are processed independently (each its own noise floor and gains).
// Measured at 44.1 kHz on 1 kHz at -20 dBFS plus white noise at -50 dBFS (the
// figures printed by --help and by bench/spectral_bench):
// see spectralHelpText().

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
