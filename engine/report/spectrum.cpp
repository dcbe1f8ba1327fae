#include "report/spectrum.h"

#include <algorithm>
#include <cmath>
#include <fftw3.h>
#include <mutex>

namespace zuvo::report {

namespace {
// FFTW's planner is not thread-safe; its plans run on any thread.
std::mutex& plannerLock()
{
    static std::mutex m;
    return m;
}
} // namespace

double Psd::bandPower(double lo, double hi) const
{
    return weightedPower(lo, hi, [](double) { return 1.0; });
}

WelchAnalyser::WelchAnalyser(double rate, std::size_t segment, bool overlap)
    : hop_(overlap ? segment / 2 : segment)
{
    psd_.rate = rate;
    psd_.segment = segment;
    psd_.sum.assign(segment / 2 + 1, 0.0);
    window_.resize(segment);
    // Kaiser, beta 20: side lobes near -190 dB, so the skirt of a loud tone
    // does not hide a noise floor 150 dB below it.
    constexpr double kBeta = 20;
    auto i0 = [](double x) {
        double sum = 1, term = 1;
        for (int k = 1; k < 200 && term > sum * 1e-17; ++k) {
            term *= (x / (2 * k)) * (x / (2 * k));
            sum += term;
        }
        return sum;
    };
    const double norm = i0(kBeta);
    for (std::size_t i = 0; i < segment; ++i) {
        const double r = 2.0 * double(i) / double(segment) - 1.0;
        window_[i] = i0(kBeta * std::sqrt(std::max(0.0, 1 - r * r))) / norm;
        windowPower_ += window_[i] * window_[i];
    }
    const std::lock_guard<std::mutex> lock(plannerLock());
    in_ = fftw_alloc_real(segment);
    auto* out = fftw_alloc_complex(segment / 2 + 1);
    out_ = out;
    plan_ = fftw_plan_dft_r2c_1d(int(segment), in_, out, FFTW_ESTIMATE);
}

WelchAnalyser::~WelchAnalyser()
{
    const std::lock_guard<std::mutex> lock(plannerLock());
    fftw_destroy_plan(static_cast<fftw_plan>(plan_));
    fftw_free(in_);
    fftw_free(out_);
}

void WelchAnalyser::add(const double* x, std::size_t n)
{
    const std::size_t N = psd_.segment;
    const std::size_t hop = hop_;
    auto* out = static_cast<fftw_complex*>(out_);
    // One-sided density: |X|^2 / (rate * sum w^2), doubled except DC and Nyquist.
    const double scale = 1.0 / (psd_.rate * windowPower_);
    for (std::size_t start = 0; start + N <= n; start += hop) {
        for (std::size_t i = 0; i < N; ++i)
            in_[i] = x[start + i] * window_[i];
        fftw_execute(static_cast<fftw_plan>(plan_));
        for (std::size_t k = 0; k < psd_.sum.size(); ++k) {
            const double p = (out[k][0] * out[k][0] + out[k][1] * out[k][1]) * scale;
            psd_.sum[k] += (k == 0 || k == N / 2) ? p : 2 * p;
        }
        ++psd_.averages;
    }
}

std::size_t floorPowerOfTwo(std::size_t n)
{
    std::size_t p = 1;
    if (n == 0)
        return 0;
    while (p <= n / 2)
        p *= 2;
    return p;
}

double aWeightingPower(double f)
{
    const double f2 = f * f;
    const double num = 12194.0 * 12194.0 * f2 * f2;
    const double den = (f2 + 20.6 * 20.6) * std::sqrt((f2 + 107.7 * 107.7) * (f2 + 737.9 * 737.9)) * (f2 + 12194.0 * 12194.0);
    const double a = num / den;
    // Normalised to 1.0 at 1 kHz (the +2.0 dB of the standard curve).
    static const double at1k = [] {
        const double g = 1e6;
        return 12194.0 * 12194.0 * g * g
               / ((g + 20.6 * 20.6) * std::sqrt((g + 107.7 * 107.7) * (g + 737.9 * 737.9)) * (g + 12194.0 * 12194.0));
    }();
    const double r = a / at1k;
    return r * r;
}

} // namespace zuvo::report
