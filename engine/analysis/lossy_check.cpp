#include "analysis/lossy_check.h"

#include <algorithm>
#include <cmath>

#include <fftw3.h>

#include "analysis/number_text.h"

namespace zuvo::analysis {

SpectrumAverage::SpectrumAverage(int channels, int sampleRate)
    : channels_(std::max(channels, 1)), rate_(sampleRate),
      limitFrames_(static_cast<std::size_t>(kLossyScanSeconds * std::max(sampleRate, 1))),
      pending_(static_cast<std::size_t>(channels_), std::vector<double>(kFrame)), window_(kFrame),
      sum_(kFrame / 2 + 1, 0.0)
{
    for (std::size_t i = 0; i < kFrame; ++i)
        window_[i] = 0.5 - 0.5 * std::cos(2 * M_PI * static_cast<double>(i) / kFrame);
    const double binHz = static_cast<double>(std::max(sampleRate, 1)) / kFrame;
    firstStored_ = std::min(kFrame / 2, static_cast<std::size_t>((kLossyLowestHz - 1000) / binHz));
    lastStored_ = std::min(kFrame / 2, static_cast<std::size_t>(25000 / binHz));
    frameSum_.assign(lastStored_ + 1 - firstStored_, 0.0);
    in_ = fftw_alloc_real(kFrame);
    auto* out = fftw_alloc_complex(kFrame / 2 + 1);
    out_ = out;
    plan_ = fftw_plan_dft_r2c_1d(static_cast<int>(kFrame), in_, out, FFTW_ESTIMATE);
}

SpectrumAverage::~SpectrumAverage()
{
    if (plan_)
        fftw_destroy_plan(static_cast<fftw_plan>(plan_));
    fftw_free(in_);
    fftw_free(out_);
}

bool SpectrumAverage::full() const
{
    return seen_ >= limitFrames_;
}

bool SpectrumAverage::addInterleaved(const double* x, std::size_t frames)
{
    const auto ch = static_cast<std::size_t>(channels_);
    for (std::size_t i = 0; i < frames && !full(); ++i, ++seen_) {
        for (std::size_t c = 0; c < ch; ++c)
            pending_[c][fill_] = x[i * ch + c];
        if (++fill_ == kFrame) {
            transform();
            fill_ = 0;
        }
    }
    return !full();
}

void SpectrumAverage::transform()
{
    auto* out = static_cast<fftw_complex*>(out_);
    std::fill(frameSum_.begin(), frameSum_.end(), 0.0);
    for (const std::vector<double>& x : pending_) {
        for (std::size_t i = 0; i < kFrame; ++i)
            in_[i] = x[i] * window_[i];
        fftw_execute(static_cast<fftw_plan>(plan_));
        for (std::size_t k = 0; k < sum_.size(); ++k) {
            const double p = out[k][0] * out[k][0] + out[k][1] * out[k][1];
            sum_[k] += p;
            if (k >= firstStored_ && k <= lastStored_)
                frameSum_[k - firstStored_] += p;
        }
    }
    framePower_.emplace_back(frameSum_.begin(), frameSum_.end());
    ++frames_;
}

std::vector<double> SpectrumAverage::power() const
{
    if (frames_ == 0)
        return {};
    std::vector<double> p(sum_);
    const double scale = 1.0 / (static_cast<double>(frames_) * channels_ * kFrame * kFrame);
    for (double& v : p)
        v *= scale;
    return p;
}

namespace {

// Level in dB of bins between lo and hi Hz at quantile q (0.5 = median).
double bandLevel(const std::vector<double>& db, double binHz, double lo, double hi, double q)
{
    const auto a = static_cast<std::size_t>(std::max(0.0, std::ceil(lo / binHz)));
    const auto b = std::min(db.size() - 1, static_cast<std::size_t>(std::floor(hi / binHz)));
    if (b < a)
        return -INFINITY;
    std::vector<double> v(db.begin() + static_cast<std::ptrdiff_t>(a), db.begin() + static_cast<std::ptrdiff_t>(b) + 1);
    const auto k = static_cast<std::size_t>(q * static_cast<double>(v.size() - 1) + 0.5);
    std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(k), v.end());
    return v[k];
}

double frameBandLevel(const std::vector<float>& p, std::size_t first, double binHz, double lo, double hi)
{
    std::vector<double> db;
    for (std::size_t k = static_cast<std::size_t>(std::ceil(lo / binHz)); k <= static_cast<std::size_t>(hi / binHz); ++k)
        if (k >= first && k - first < p.size())
            db.push_back(10 * std::log10(static_cast<double>(p[k - first]) + 1e-30));
    if (db.empty())
        return -INFINITY;
    std::nth_element(db.begin(), db.begin() + static_cast<std::ptrdiff_t>(db.size() / 2), db.end());
    return db[db.size() / 2];
}

} // namespace

LossyVerdict judge(const SpectrumAverage& spectrum)
{
    LossyVerdict v = judgeSpectrum(spectrum.power(), spectrum.sampleRate());
    if (!v.lossy)
        return v;
    const double binHz = static_cast<double>(spectrum.sampleRate()) / SpectrumAverage::kFrame;
    std::size_t withSignal = 0, cut = 0;
    for (const std::vector<float>& f : spectrum.framePower()) {
        if (*std::max_element(f.begin(), f.end()) <= 0)
            continue;
        ++withSignal;
        const double below = frameBandLevel(f, spectrum.firstStoredBin(), binHz, v.cutoffHz - 800, v.cutoffHz - 200);
        const double above = frameBandLevel(f, spectrum.firstStoredBin(), binHz, v.cutoffHz + 200, v.cutoffHz + 800);
        if (below - above >= kLossyFrameDropDb)
            ++cut;
    }
    if (withSignal == 0 || static_cast<double>(cut) < kLossyFrameShare * static_cast<double>(withSignal)) {
        const double share = withSignal ? 100.0 * static_cast<double>(cut) / static_cast<double>(withSignal) : 0.0;
        v.lossy = false;
        v.reason = "the signal ends at " + fixed(v.cutoffHz / 1000, 1) + " kHz in only " + fixed(share, 0)
                   + " % of its frames";
    }
    return v;
}

LossyVerdict judgeSpectrum(const std::vector<double>& power, int sampleRate)
{
    LossyVerdict verdict;
    if (power.size() < 16 || sampleRate < 44100)
        return verdict;
    const double peak = *std::max_element(power.begin(), power.end());
    if (!(peak > 0))
        return verdict;
    // Levels relative to the strongest bin; a floor far below any real
    // signal keeps digital silence finite.
    std::vector<double> db(power.size());
    for (std::size_t k = 0; k < power.size(); ++k)
        db[k] = 10 * std::log10(power[k] / peak + 1e-30);
    const double nyquist = sampleRate / 2.0;
    const double binHz = nyquist / static_cast<double>(power.size() - 1);
    double bestDrop = -INFINITY, bestFc = 0;
    bool found = false;
    for (double fc = kLossyLowestHz; fc <= kLossyHighestHz + 1e-9; fc += 50) {
        if (fc + 800 > nyquist - 200)
            break;
        const double below = bandLevel(db, binHz, fc - 800, fc - 200, 0.5);
        const double above = bandLevel(db, binHz, fc + 200, fc + 800, 0.5);
        const double reach = bandLevel(db, binHz, fc - 3000, fc - 200, 0.5);
        const double upper = bandLevel(db, binHz, fc + 200, std::min(fc + 4000, nyquist - 200), 0.95);
        const double drop = below - above;
        const bool cliff = drop >= kLossyDropDb && reach - above >= kLossyReachDb && upper - above <= kLossyFlatDb;
        if (cliff && (!found || drop > bestDrop)) {
            found = true;
            bestDrop = drop;
            bestFc = fc;
        } else if (!found && drop > bestDrop) {
            bestDrop = drop;
        }
    }
    verdict.dropDb = std::isfinite(bestDrop) ? bestDrop : 0;
    if (found) {
        verdict.lossy = true;
        verdict.cutoffHz = bestFc;
        verdict.reason = "low-pass at " + fixed(bestFc / 1000, 1) + " kHz, " + fixed(bestDrop, 0)
                         + " dB down within 1 kHz and nothing above it";
    }
    return verdict;
}

} // namespace zuvo::analysis
