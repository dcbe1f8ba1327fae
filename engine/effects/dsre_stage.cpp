#include "effects/dsre_stage.h"

#include <algorithm>
#include <cmath>

namespace zuvo::effects {

DsreStage::DsreStage(int channels, double fs, double mix)
    : channels_(channels), mix_(mix), envAlpha_(1.0 - std::exp(-1000.0 / (kDsreEnvelopeMs * fs)))
{
    Channel c;
    c.hp1 = c.hp2 = OnePole::at(kDsreLowHz, fs);
    c.lp1 = c.lp2 = OnePole::at(kDsreHighHz, fs);
    c.out1 = c.out2 = OnePole::at(kDsreOutHz, fs);
    state_.assign(static_cast<std::size_t>(channels), c);
}

void DsreStage::process(Planar& block, std::size_t n)
{
    const double g = mix_ * kDsreLevel;
    for (int ci = 0; ci < channels_; ++ci) {
        Channel& c = state_[static_cast<std::size_t>(ci)];
        double* x = block[static_cast<std::size_t>(ci)].data();
        for (std::size_t k = 0; k < n; ++k) {
            double s = x[k];
            s -= c.hp1.step(s); // one-pole high-pass: x - LP(x)
            s -= c.hp2.step(s);
            s = c.lp2.step(c.lp1.step(s));
            c.meanSquare += envAlpha_ * (s * s - c.meanSquare);
            const double e = std::sqrt(2.0 * c.meanSquare);
            double h = 0;
            if (e > 1e-12) {
                const double u = std::clamp(s / e, -2.0, 2.0);
                h = e * (2.0 * u * u - 1.0);
            }
            h -= c.out1.step(h);
            h -= c.out2.step(h);
            x[k] += g * h;
        }
    }
}

ResponseMatrix DsreStage::response(double, double) const
{
    // The sine bound: a full-scale sine in the enhanced band comes out with
    // its harmonic at most mix x kDsreLevel beside it. Anything beyond (the
    // generator's input capped at twice its envelope) is the limiter's.
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    const double bound = 1.0 + mix_ * kDsreLevel;
    for (int c = 0; c < channels_; ++c)
        r.at(c, c) = bound;
    return r;
}

} // namespace zuvo::effects
