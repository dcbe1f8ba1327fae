#pragma once
// Welch power spectral density: windowed segments with half overlap,
// averaged. The density is one-sided, in full-scale squared per hertz, so
// integrating it over a band gives that band's mean-square power (full
// scale = 1.0, the convention of the level figures).
#include <cstddef>
#include <vector>

namespace zuvo::report {

struct Psd {
    double rate = 0;            // sample rate of the analysed signal, Hz
    std::size_t segment = 0;    // FFT length
    std::size_t averages = 0;   // segments summed so far
    std::vector<double> sum;    // per bin, segment - 1 .. summed density

    bool empty() const { return averages == 0; }
    double binHz() const { return rate / double(segment); }
    double density(std::size_t bin) const { return averages ? sum[bin] / double(averages) : 0; }
    // Mean-square power between lo and hi Hz (bins whose centre lies inside).
    double bandPower(double lo, double hi) const;
    // Same, each bin weighted by weight(f) (a power weighting).
    template <typename W>
    double weightedPower(double lo, double hi, W weight) const
    {
        double p = 0;
        for (std::size_t k = 1; k < sum.size(); ++k) {
            const double f = double(k) * binHz();
            if (f >= lo && f < hi)
                p += density(k) * weight(f) * binHz();
        }
        return p;
    }
};

// A Welch accumulator with a fixed segment length; add() may be called for
// several excerpts, each analysed on its own (no segment spans two).
class WelchAnalyser {
public:
    // `overlap`: segments advance by half their length (more averages from
    // short signals) instead of a whole length (half the work).
    WelchAnalyser(double rate, std::size_t segment, bool overlap = true);
    ~WelchAnalyser();
    WelchAnalyser(const WelchAnalyser&) = delete;
    WelchAnalyser& operator=(const WelchAnalyser&) = delete;

    void add(const double* x, std::size_t n);
    const Psd& result() const { return psd_; }

private:
    Psd psd_;
    std::vector<double> window_;
    double windowPower_ = 0;
    std::size_t hop_ = 0;
    double* in_ = nullptr;
    void* out_ = nullptr;  // fftw_complex*
    void* plan_ = nullptr; // fftw_plan
};

// Largest power of two not above n (0 for n == 0).
std::size_t floorPowerOfTwo(std::size_t n);

// A-weighting as a power factor (|A(f)|^2, 1.0 at 1 kHz).
double aWeightingPower(double hz);

} // namespace zuvo::report
