#include "effects/stereo_stages.h"

#include <algorithm>
#include <cmath>

namespace zuvo::effects {

namespace {

std::size_t samples(double ms, double fs)
{
    return static_cast<std::size_t>(std::lround(ms * fs / 1000.0));
}

} // namespace

WidthStage::WidthStage(int channels, double fs, double width, bool automatic, double crossfeed)
    : channels_(channels), fs_(fs), width_(width), w_(automatic ? 1.0 : width), auto_(automatic),
      crossfeed_(crossfeed), delayL_(samples(kCrossfeedDelayMs, fs)), delayR_(samples(kCrossfeedDelayMs, fs)),
      lpL_(OnePole::at(kCrossfeedHz, fs)), lpR_(OnePole::at(kCrossfeedHz, fs))
{
}

void WidthStage::process(Planar& block, std::size_t n)
{
    double* l = block[0].data();
    double* r = block[1].data();
    double w0 = w_, w1 = w_;
    if (auto_ && n > 0) {
        double em = 0, es = 0;
        for (std::size_t k = 0; k < n; ++k) {
            const double m = 0.5 * (l[k] + r[k]), s = 0.5 * (l[k] - r[k]);
            em += m * m;
            es += s * s;
        }
        const double alpha = 1.0 - std::exp(-static_cast<double>(n) / (kAutoTimeConstant * fs_));
        energyMid_ += alpha * (em / static_cast<double>(n) - energyMid_);
        energySide_ += alpha * (es / static_cast<double>(n) - energySide_);
        const double lo = std::min(1.0, width_), hi = std::max(1.0, width_);
        double target = 1.0;
        if (energySide_ > 1e-20 && energyMid_ > 1e-20)
            target = std::clamp(kAutoSideToMid * std::sqrt(energyMid_ / energySide_), lo, hi);
        w1 = w_ + alpha * (target - w_);
        w_ = w1;
    }
    for (std::size_t k = 0; k < n; ++k) {
        const double w = w0 + (w1 - w0) * static_cast<double>(k + 1) / static_cast<double>(n);
        const double m = 0.5 * (l[k] + r[k]), s = 0.5 * (l[k] - r[k]) * w;
        l[k] = m + s;
        r[k] = m - s;
    }
    if (crossfeed_ > 0) {
        dl_.resize(n);
        dr_.resize(n);
        delayL_.process(l, n, dl_.data());
        delayR_.process(r, n, dr_.data());
        for (std::size_t k = 0; k < n; ++k) {
            const double fromL = lpL_.step(dl_[k]), fromR = lpR_.step(dr_[k]);
            l[k] += crossfeed_ * fromR;
            r[k] += crossfeed_ * fromL;
        }
    }
}

ResponseMatrix WidthStage::response(double hz, double fs) const
{
    const double w = auto_ ? std::max(1.0, width_) : width_;
    const double a = 0.5 * (1 + w), b = 0.5 * (1 - w);
    const cplx x = crossfeed_ * lpL_.response(hz, fs) * delayResponse(delayL_.delay(), hz, fs);
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    // [1 x; x 1] * [a b; b a]
    r.at(0, 0) = a + x * b;
    r.at(0, 1) = b + x * a;
    r.at(1, 0) = x * a + b;
    r.at(1, 1) = x * b + a;
    return r;
}

SurroundStage::SurroundStage(int channels, double fs, const SurroundOptions& o)
    : channels_(channels), side_(o.side), delayA_(samples(o.delayMs, fs)), delayB_(samples(o.delayMs, fs))
{
    const double g = o.mixPercent / 100.0;
    gl_ = g * std::min(1.0, 1.0 - o.balance / 100.0);
    gr_ = g * std::min(1.0, 1.0 + o.balance / 100.0);
}

void SurroundStage::process(Planar& block, std::size_t n)
{
    double* l = block[0].data();
    double* r = block[1].data();
    da_.resize(n);
    if (side_) {
        a_.resize(n);
        for (std::size_t k = 0; k < n; ++k)
            a_[k] = 0.5 * (l[k] - r[k]);
        delayA_.process(a_.data(), n, da_.data());
        for (std::size_t k = 0; k < n; ++k) {
            l[k] += gl_ * da_[k];
            r[k] -= gr_ * da_[k];
        }
        return;
    }
    db_.resize(n);
    delayA_.process(r, n, da_.data()); // right, heard on the left
    delayB_.process(l, n, db_.data());
    for (std::size_t k = 0; k < n; ++k) {
        l[k] += gl_ * da_[k];
        r[k] += gr_ * db_[k];
    }
}

ResponseMatrix SurroundStage::response(double hz, double fs) const
{
    const cplx e = delayResponse(delayA_.delay(), hz, fs);
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    if (side_) {
        r.at(0, 0) = 1.0 + 0.5 * gl_ * e;
        r.at(0, 1) = -0.5 * gl_ * e;
        r.at(1, 0) = -0.5 * gr_ * e;
        r.at(1, 1) = 1.0 + 0.5 * gr_ * e;
    } else {
        r.at(0, 1) = gl_ * e;
        r.at(1, 0) = gr_ * e;
    }
    return r;
}

} // namespace zuvo::effects
