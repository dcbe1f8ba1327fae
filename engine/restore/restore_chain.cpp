#include "restore/restore_chain.h"

#include <cmath>

#include "log_text.h"

namespace zuvo::restore {

bool RestoreChain::build(const RestoreOptions& o, int channels, double fs, std::string& error)
{
    stages_.clear();
    lines_.clear();
    channels_ = channels;
    if (channels < 1 || !(fs > 0)) {
        error = "restoration needs at least one channel and a sample rate";
        return false;
    }
    if (o.dehum.on) {
        stages_.emplace_back(Dehum(channels, fs, o.dehum.q));
        lines_.push_back(logText("  dehum: 50/60 Hz found from the first %.0f s, notches at the fundamental and "
                             "harmonics up to %d x (below %.0f Hz), each mains/Q wide (%.2f Hz at 50 Hz, Q %.2f "
                             "at the fundamental)",
                             kDehumDetectSeconds, kDehumHarmonics, kDehumMaxFraction * fs, 50.0 / o.dehum.q,
                             o.dehum.q));
    }
    if (o.decrackle.on) {
        stages_.emplace_back(Decrackle(channels, o.decrackle.threshold));
        lines_.push_back(logText("  decrackle: AR order %d over %zu-sample blocks, clicks above %.2f x robust sigma "
                             "of the residual, repaired by least-squares AR interpolation",
                             kCrackleOrder, kCrackleHop, o.decrackle.threshold));
    }
    if (o.spectralOn) {
        SpectralDenoiser denoiser;
        if (!denoiser.configure(o.spectral, channels, fs, error))
            return false;
        lines_.push_back("  " + denoiser.description());
        stages_.emplace_back(std::move(denoiser));
    }
    if (o.expand.on) {
        const ExpanderOptions& e = o.expand;
        stages_.emplace_back(Expander(channels, fs, e.thresholdDb, e.ratio, e.kneeDb, e.attackMs, e.releaseMs));
        lines_.push_back(logText("  expander: threshold %.1f dB, ratio 1:%.2f, knee %.1f dB, attack %.1f ms, release "
                             "%.1f ms, linked %.0f ms RMS detector",
                             e.thresholdDb, e.ratio, e.kneeDb, e.attackMs, e.releaseMs, kExpanderRmsMs));
    }
    toDrop_.clear();
    for (const RestoreStage& st : stages_)
        toDrop_.push_back(std::visit([](const auto& x) { return x.latency(); }, st));
    return true;
}

std::size_t RestoreChain::latency() const
{
    std::size_t total = 0;
    for (const RestoreStage& s : stages_)
        total += std::visit([](const auto& st) { return st.latency(); }, s);
    return total;
}

std::size_t RestoreChain::run(Planar& block, std::size_t n)
{
    // Each stage's own delay is dropped right behind it, so that the next
    // stage never sees the leading silence (an expander would close on it).
    for (std::size_t s = 0; s < stages_.size(); ++s) {
        std::visit([&](auto& st) { st.process(block, n); }, stages_[s]);
        const std::size_t drop = std::min(toDrop_[s], n);
        if (drop > 0) {
            for (auto& ch : block)
                ch.erase(ch.begin(), ch.begin() + static_cast<std::ptrdiff_t>(drop));
            toDrop_[s] -= drop;
            n -= drop;
        }
    }
    for (auto& ch : block)
        ch.resize(n);
    return n;
}

std::size_t RestoreChain::drain(Planar& block)
{
    // Stage by stage: the silence that pushes one stage's held samples out
    // goes through that stage only; the samples then go on down the chain.
    block.assign(static_cast<std::size_t>(channels_), std::vector<double>());
    std::size_t n = 0;
    for (std::size_t s = 0; s < stages_.size(); ++s) {
        std::size_t pushed = 0;
        std::visit(
            [&](auto& st) {
                if constexpr (requires { st.markEnd(); })
                    st.markEnd();
                pushed = st.latency();
            },
            stages_[s]);
        for (auto& ch : block)
            ch.resize(n + pushed, 0.0);
        n += pushed;
        for (std::size_t k = s; k < stages_.size(); ++k) {
            if (k > s && n == 0)
                break;
            std::visit([&](auto& st) { st.process(block, n); }, stages_[k]);
            const std::size_t drop = std::min(toDrop_[k], n);
            if (drop > 0) {
                for (auto& ch : block)
                    ch.erase(ch.begin(), ch.begin() + static_cast<std::ptrdiff_t>(drop));
                toDrop_[k] -= drop;
                n -= drop;
            }
        }
        // What came out of the later stages is final; only stage s's flush
        // went through them, so keep it and flush the next stage after it.
        finished_.resize(static_cast<std::size_t>(channels_));
        for (std::size_t c = 0; c < block.size(); ++c) {
            finished_[c].insert(finished_[c].end(), block[c].begin(), block[c].begin() + static_cast<std::ptrdiff_t>(n));
            block[c].clear();
        }
        n = 0;
    }
    block.swap(finished_);
    finished_.clear();
    n = block.empty() ? 0 : block[0].size();
    return n;
}

std::vector<std::string> RestoreChain::summary() const
{
    std::vector<std::string> out;
    for (const RestoreStage& s : stages_) {
        if (const auto* d = std::get_if<Dehum>(&s))
            out.push_back(logText("dehum: mains %.3f Hz (energy at 50/100/150 Hz %.3g, at 60/120/180 Hz %.3g), %zu notches",
                              d->guess().mainsHz, d->guess().energy50, d->guess().energy60, d->notchCount()));
        else if (const auto* c = std::get_if<Decrackle>(&s))
            out.push_back(logText("decrackle: %llu click(s) repaired, %llu sample(s) interpolated",
                              static_cast<unsigned long long>(c->clicks()),
                              static_cast<unsigned long long>(c->repairedSamples())));
        else if (const auto* e = std::get_if<Expander>(&s))
            out.push_back(logText("expander: deepest gain %.1f dB", e->smallestGainDb()));
    }
    return out;
}

} // namespace zuvo::restore
