#include "effects/hrtf_stage.h"

#include <algorithm>
#include <cmath>

namespace zuvo::effects {

HrtfGeometry hrtfGeometry(double depth)
{
    const double d = std::clamp(depth, -1.0, 1.0);
    HrtfGeometry g;
    g.speakerAzimuth = 30.0 + 60.0 * (1.0 - d);
    g.centreAzimuth = d >= 0 ? 0.0 : 180.0;
    g.centreElevation = 90.0 * (1.0 - std::fabs(d));
    return g;
}

std::vector<std::vector<std::vector<double>>> hrtfFilters(const HrtfSet& set, HrtfMode mode, double depth,
                                                          double sideMix)
{
    const HrtfGeometry g = hrtfGeometry(depth);
    std::vector<std::vector<std::vector<double>>> f(2);
    if (mode == HrtfMode::Stereo) {
        const Hrir l = set.at(g.speakerAzimuth, 0), r = set.at(-g.speakerAzimuth, 0);
        f[0] = {l.left, r.left};
        f[1] = {l.right, r.right};
        return f;
    }
    const Hrir c = set.at(g.centreAzimuth, g.centreElevation);
    f[0] = {c.left};
    f[1] = {c.right};
    if (mode == HrtfMode::MidSide) {
        const Hrir l = set.at(g.speakerAzimuth, 0), r = set.at(-g.speakerAzimuth, 0);
        auto diff = [&](const std::vector<double>& a, const std::vector<double>& b) {
            std::vector<double> d(std::max(a.size(), b.size()), 0.0);
            for (std::size_t k = 0; k < d.size(); ++k)
                d[k] = sideMix * ((k < a.size() ? a[k] : 0.0) - (k < b.size() ? b[k] : 0.0));
            return d;
        };
        f[0].push_back(diff(l.left, r.left));
        f[1].push_back(diff(l.right, r.right));
    }
    return f;
}

HrtfStage::HrtfStage(int channels, double fs, const HrtfSet& set, HrtfMode mode, double mix, double sideMix,
                     double depth)
    : channels_(channels), mode_(mode), mix_(mix), sideMix_(sideMix)
{
    const auto filters = hrtfFilters(set, mode, depth, sideMix);
    conv_ = FftConvolver(kHrtfBlock, filters);
    const auto sources = static_cast<std::size_t>(conv_.sources());
    in_.assign(sources, std::vector<double>(kHrtfBlock, 0.0));
    wet_.assign(2, std::vector<double>(kHrtfBlock, 0.0));
    dry_.assign(static_cast<std::size_t>(channels), std::vector<double>(kHrtfBlock, 0.0));
    std::size_t longest = 1;
    for (const auto& ear : filters)
        for (const auto& h : ear)
            longest = std::max(longest, h.size());
    std::size_t n = 1 << 16;
    while (n < 4 * longest)
        n *= 2;
    gridHz_ = fs / static_cast<double>(n);
    spectra_.resize(2);
    for (std::size_t e = 0; e < 2; ++e)
        for (const auto& h : filters[e])
            spectra_[e].push_back(spectrumOf(h, n));
}

void HrtfStage::sources(double l, double r, double* s) const
{
    const double m = 0.5 * (l + r), side = 0.5 * (l - r);
    switch (mode_) {
    case HrtfMode::Stereo:
        s[0] = m + sideMix_ * side;
        s[1] = m - sideMix_ * side;
        break;
    case HrtfMode::MidSide:
        s[0] = m;
        s[1] = side; // the side mix is in the filter
        break;
    default: s[0] = m; break;
    }
}

void HrtfStage::process(Planar& block, std::size_t n)
{
    double src[2] = {0, 0};
    const auto chans = static_cast<std::size_t>(channels_);
    std::vector<const double*> inPtr(in_.size());
    for (std::size_t s = 0; s < in_.size(); ++s)
        inPtr[s] = in_[s].data();
    double* outPtr[2] = {wet_[0].data(), wet_[1].data()};
    // In runs that end at a block boundary of the convolution.
    for (std::size_t k = 0; k < n;) {
        const std::size_t m = std::min(n - k, kHrtfBlock - pos_);
        for (std::size_t j = 0; j < m; ++j) {
            sources(block[0][k + j], block[1][k + j], src);
            for (std::size_t s = 0; s < in_.size(); ++s)
                in_[s][pos_ + j] = src[s];
        }
        for (std::size_t c = 0; c < chans; ++c) {
            double* x = block[c].data() + k;
            double* d = dry_[c].data() + pos_;
            for (std::size_t j = 0; j < m; ++j) {
                const double t = d[j];
                d[j] = x[j];
                x[j] = t;
            }
        }
        for (std::size_t e = 0; e < 2; ++e) {
            double* x = block[e].data() + k;
            const double* w = wet_[e].data() + pos_;
            for (std::size_t j = 0; j < m; ++j)
                x[j] = (1.0 - mix_) * x[j] + mix_ * w[j];
        }
        k += m;
        pos_ += m;
        if (pos_ == kHrtfBlock) {
            conv_.process(inPtr.data(), outPtr);
            pos_ = 0;
        }
    }
}

ResponseMatrix HrtfStage::response(double hz, double fs) const
{
    // Source mix over L, R per mode.
    double a[2][2] = {{0.5, 0.5}, {0.5, -0.5}};
    if (mode_ == HrtfMode::Stereo) {
        a[0][0] = a[1][1] = 0.5 * (1 + sideMix_);
        a[0][1] = a[1][0] = 0.5 * (1 - sideMix_);
    }
    const double pos = std::clamp(hz, 0.0, 0.5 * fs) / gridHz_;
    const std::size_t i = static_cast<std::size_t>(pos);
    const double frac = pos - static_cast<double>(i);
    const cplx delay = delayResponse(kHrtfBlock, hz, fs);
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    for (int c = 0; c < channels_; ++c)
        r.at(c, c) = delay;
    for (int e = 0; e < 2; ++e)
        for (int ch = 0; ch < 2; ++ch) {
            cplx wet = 0;
            for (std::size_t s = 0; s < spectra_[static_cast<std::size_t>(e)].size(); ++s) {
                const auto& f = spectra_[static_cast<std::size_t>(e)][s];
                const std::size_t j = std::min(i + 1, f.size() - 1);
                const cplx h = f[std::min(i, f.size() - 1)] * (1 - frac) + f[j] * frac;
                wet += h * a[s][ch];
            }
            r.at(e, ch) = delay * ((e == ch ? 1.0 - mix_ : 0.0) + mix_ * wet);
        }
    return r;
}

} // namespace zuvo::effects
