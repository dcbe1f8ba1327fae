#include "analysis/loudness_meter.h"

#include <algorithm>
#include <cmath>

#include <ebur128.h>

#include "analysis/true_peak.h"

namespace zuvo::analysis {

struct LoudnessMeter::Impl {
    ebur128_state* st = nullptr;
    std::vector<TruePeak> peaks;
    ~Impl()
    {
        if (st)
            ebur128_destroy(&st);
    }
};

double toDb(double linear)
{
    return linear > 0 ? 20 * std::log10(linear) : -INFINITY;
}

namespace {

int channelWeight(io::Speaker s)
{
    switch (s) {
    case io::Speaker::FrontLeft: return EBUR128_LEFT;
    case io::Speaker::FrontRight: return EBUR128_RIGHT;
    case io::Speaker::FrontCenter: return EBUR128_CENTER;
    case io::Speaker::Lfe: return EBUR128_UNUSED;
    case io::Speaker::SurroundLeft: return EBUR128_LEFT_SURROUND;
    case io::Speaker::SurroundRight: return EBUR128_RIGHT_SURROUND;
    case io::Speaker::Other: return EBUR128_LEFT; // weight 1.0
    }
    return EBUR128_LEFT;
}

} // namespace

LoudnessMeter::LoudnessMeter(int channels, int sampleRate, const io::ChannelLayout& layout)
    : impl_(std::make_unique<Impl>()), channels_(channels)
{
    if (channels < 1 || sampleRate < 1)
        return;
    impl_->st = ebur128_init(static_cast<unsigned>(channels), static_cast<unsigned long>(sampleRate),
                             EBUR128_MODE_I | EBUR128_MODE_LRA | EBUR128_MODE_SAMPLE_PEAK);
    if (!impl_->st)
        return;
    impl_->peaks.assign(static_cast<std::size_t>(channels), TruePeak(sampleRate));
    const io::ChannelLayout l = layout.size() == static_cast<std::size_t>(channels) ? layout : io::defaultLayout(channels);
    for (int c = 0; c < channels; ++c) {
        // Mono counts as one channel of weight 1 (not as a pair).
        const int w = channels == 1 ? EBUR128_CENTER : channelWeight(l[static_cast<std::size_t>(c)]);
        ebur128_set_channel(impl_->st, static_cast<unsigned>(c), w);
    }
}

LoudnessMeter::~LoudnessMeter() = default;

bool LoudnessMeter::valid() const
{
    return impl_->st != nullptr;
}

void LoudnessMeter::add(const std::vector<std::vector<double>>& planar, std::size_t frames)
{
    if (!valid() || frames == 0)
        return;
    const auto ch = static_cast<std::size_t>(channels_);
    interleaved_.resize(frames * ch);
    for (std::size_t c = 0; c < ch; ++c) {
        const double* x = planar[c].data();
        for (std::size_t i = 0; i < frames; ++i)
            interleaved_[i * ch + c] = x[i];
    }
    ebur128_add_frames_double(impl_->st, interleaved_.data(), frames);
    for (std::size_t c = 0; c < ch; ++c)
        impl_->peaks[c].add(planar[c].data(), frames);
}

void LoudnessMeter::addInterleaved(const double* frames, std::size_t count)
{
    if (!valid() || count == 0)
        return;
    ebur128_add_frames_double(impl_->st, frames, count);
    const auto ch = static_cast<std::size_t>(channels_);
    for (std::size_t c = 0; c < ch; ++c)
        impl_->peaks[c].add(frames + c, count, ch);
}

LoudnessFigures LoudnessMeter::figures() const
{
    LoudnessFigures f;
    f.integratedLufs = f.truePeakDbtp = f.samplePeakDbfs = -INFINITY;
    if (!valid())
        return f;
    double v = 0;
    if (ebur128_loudness_global(impl_->st, &v) == EBUR128_SUCCESS && std::isfinite(v))
        f.integratedLufs = v;
    if (ebur128_loudness_range(impl_->st, &v) == EBUR128_SUCCESS && std::isfinite(v))
        f.rangeLu = v;
    double tp = 0, sp = 0;
    for (int c = 0; c < channels_; ++c) {
        tp = std::max(tp, impl_->peaks[static_cast<std::size_t>(c)].peak());
        if (ebur128_sample_peak(impl_->st, static_cast<unsigned>(c), &v) == EBUR128_SUCCESS)
            sp = std::max(sp, v);
    }
    // The true peak is never below the sample peak.
    f.truePeakDbtp = toDb(std::max(tp, sp));
    f.samplePeakDbfs = toDb(sp);
    return f;
}

double LoudnessMeter::integratedOver(const std::vector<const LoudnessMeter*>& meters)
{
    std::vector<ebur128_state*> states;
    for (const LoudnessMeter* m : meters)
        if (m && m->valid())
            states.push_back(m->impl_->st);
    double v = 0;
    if (states.empty() || ebur128_loudness_global_multiple(states.data(), states.size(), &v) != EBUR128_SUCCESS
        || !std::isfinite(v))
        return -INFINITY;
    return v;
}

} // namespace zuvo::analysis
