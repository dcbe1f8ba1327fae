#include "effects/channel_stages.h"

#include <cmath>
#include <utility>

namespace zuvo::effects {

MixStage::MixStage(int ins, int outs, std::vector<double> matrix)
    : ins_(ins), outs_(outs), m_(std::move(matrix)), scratch_(static_cast<std::size_t>(outs))
{
}

void MixStage::process(Planar& block, std::size_t n)
{
    for (int o = 0; o < outs_; ++o) {
        std::vector<double>& y = scratch_[static_cast<std::size_t>(o)];
        y.assign(n, 0.0);
        for (int i = 0; i < ins_; ++i) {
            const double g = m_[static_cast<std::size_t>(o * ins_ + i)];
            if (g == 0.0)
                continue;
            const double* x = block[static_cast<std::size_t>(i)].data();
            for (std::size_t k = 0; k < n; ++k)
                y[k] += g * x[k];
        }
    }
    block.resize(static_cast<std::size_t>(outs_));
    for (int o = 0; o < outs_; ++o)
        std::swap(block[static_cast<std::size_t>(o)], scratch_[static_cast<std::size_t>(o)]);
}

ResponseMatrix MixStage::response(double, double) const
{
    ResponseMatrix r{outs_, ins_, std::vector<cplx>(m_.begin(), m_.end())};
    return r;
}

SurroundDeriveStage::SurroundDeriveStage(int channels, double fs)
    : channels_(channels), targets_(surroundTargets(channels)),
      delay_(static_cast<std::size_t>(std::lround(kDeriveDelayMs * fs / 1000.0))),
      lowpass_(OnePole::at(kDeriveLowpassHz, fs))
{
    const std::size_t pairs = targets_.size() / 2;
    level_ = pairs > 0 ? 1.0 / std::sqrt(static_cast<double>(pairs)) : 0.0;
}

void SurroundDeriveStage::process(Planar& block, std::size_t n)
{
    ambience_.resize(n);
    delayed_.resize(n);
    const double* l = block[0].data();
    const double* r = block[1].data();
    for (std::size_t k = 0; k < n; ++k)
        ambience_[k] = 0.5 * (l[k] - r[k]);
    delay_.process(ambience_.data(), n, delayed_.data());
    for (std::size_t k = 0; k < n; ++k)
        delayed_[k] = lowpass_.step(delayed_[k]);
    for (const SurroundTarget& t : targets_) {
        double* y = block[static_cast<std::size_t>(t.channel)].data();
        const double g = t.sign * level_;
        for (std::size_t k = 0; k < n; ++k)
            y[k] += g * delayed_[k];
    }
}

ResponseMatrix SurroundDeriveStage::response(double hz, double fs) const
{
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    const cplx h = 0.5 * lowpass_.response(hz, fs) * delayResponse(delay_.delay(), hz, fs);
    for (const SurroundTarget& t : targets_) {
        r.at(t.channel, 0) += t.sign * level_ * h;
        r.at(t.channel, 1) -= t.sign * level_ * h;
    }
    return r;
}

} // namespace zuvo::effects
