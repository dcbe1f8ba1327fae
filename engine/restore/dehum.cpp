#include "restore/dehum.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zuvo::restore {

std::vector<eq::Biquad> designHumNotches(double mainsHz, double q, double fs)
{
    std::vector<eq::Biquad> out;
    for (int k = 1; k <= kDehumHarmonics; ++k) {
        const double f = mainsHz * k;
        if (f > kDehumMaxFraction * fs)
            break;
        // Bilinear notch (RBJ): exact zero at f, -3 dB width f / (k q).
        const double w = 2 * std::numbers::pi * f / fs;
        const double alpha = std::sin(w) / (2 * q * k);
        const double a0 = 1 + alpha;
        eq::Biquad b;
        b.b0 = 1 / a0;
        b.b1 = -2 * std::cos(w) / a0;
        b.b2 = 1 / a0;
        b.a1 = -2 * std::cos(w) / a0;
        b.a2 = (1 - alpha) / a0;
        out.push_back(b);
    }
    return out;
}

Dehum::Dehum(int channels, double fs, double q, double mainsHz)
    : fs_(fs), q_(q), latency_(static_cast<std::size_t>(std::lround(kDehumDetectSeconds * fs)))
{
    const auto c = static_cast<std::size_t>(channels);
    pending_.resize(c);
    out_.assign(c, std::vector<double>(latency_, 0.0));
    if (mainsHz > 0) {
        guess_.mainsHz = mainsHz;
        notches_ = designHumNotches(mainsHz, q_, fs_);
        decided_ = true;
    }
    state_.assign(c, std::vector<double>(2 * kDehumHarmonics, 0.0));
}

void Dehum::decide()
{
    guess_ = detectMains(pending_, latency_, fs_);
    notches_ = designHumNotches(guess_.mainsHz, q_, fs_);
    decided_ = true;
    for (std::size_t c = 0; c < pending_.size(); ++c) {
        filter(c, pending_[c].data(), pending_[c].size());
        out_[c].insert(out_[c].end(), pending_[c].begin(), pending_[c].end());
        pending_[c].clear();
        pending_[c].shrink_to_fit();
    }
}

void Dehum::filter(std::size_t c, double* x, std::size_t n)
{
    double* st = state_[c].data();
    for (std::size_t s = 0; s < notches_.size(); ++s) {
        const eq::Biquad& b = notches_[s];
        double z1 = st[2 * s], z2 = st[2 * s + 1];
        for (std::size_t i = 0; i < n; ++i) {
            // Transposed direct form II.
            const double in = x[i];
            const double y = b.b0 * in + z1;
            z1 = b.b1 * in - b.a1 * y + z2;
            z2 = b.b2 * in - b.a2 * y;
            x[i] = y;
        }
        st[2 * s] = z1;
        st[2 * s + 1] = z2;
    }
}

void Dehum::process(std::vector<std::vector<double>>& ch, std::size_t n)
{
    for (std::size_t c = 0; c < ch.size(); ++c) {
        if (decided_) {
            filter(c, ch[c].data(), n);
            out_[c].insert(out_[c].end(), ch[c].begin(), ch[c].begin() + static_cast<std::ptrdiff_t>(n));
        } else {
            pending_[c].insert(pending_[c].end(), ch[c].begin(), ch[c].begin() + static_cast<std::ptrdiff_t>(n));
        }
    }
    if (!decided_ && !pending_.empty() && pending_[0].size() >= latency_)
        decide();
    // Before the decision the queue still holds the leading silence: the
    // output lags by exactly latency_ samples either way.
    for (std::size_t c = 0; c < ch.size(); ++c) {
        std::copy_n(out_[c].begin() + static_cast<std::ptrdiff_t>(outRead_), n, ch[c].begin());
    }
    outRead_ += n;
    if (outRead_ > (1u << 16)) {
        for (auto& q : out_)
            q.erase(q.begin(), q.begin() + static_cast<std::ptrdiff_t>(outRead_));
        outRead_ = 0;
    }
}

} // namespace zuvo::restore
