#include "effects/effect_chain.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "log_text.h"

namespace zuvo::effects {

namespace {

bool derivesSurround(const EffectOptions& o, int inChannels)
{
    return inChannels == 2 && (o.unsrs || o.quad);
}

} // namespace

int outputChannels(const EffectOptions& o, int ins, std::string& error)
{
    int outs = o.resetChannels > 0 ? o.resetChannels : ins;
    if (o.unsrs) {
        if (ins != 2) {
            error = "--unsrs derives surround channels from a stereo input; this input has " + std::to_string(ins)
                + " channel(s)";
            return 0;
        }
        if (o.resetChannels == 0)
            outs = 4;
        if (surroundTargets(outs).empty()) {
            error = "--unsrs needs an output with surround channels (--resetchannels 4 to 8, not "
                + std::to_string(outs) + ")";
            return 0;
        }
    }
    const bool frontPair = o.stereo || o.surround.on || o.hrtf != HrtfMode::Off;
    if (frontPair && outs < 2) {
        error = "--stereo, --surround and --hrtf work on a front pair; the output has " + std::to_string(outs)
            + " channel";
        return 0;
    }
    return outs;
}

bool EffectChain::build(const EffectOptions& o, int ins, double fs, std::string& error)
{
    stages_.clear();
    lines_.clear();
    probeHz_.clear();
    fs_ = fs;
    ins_ = ins;
    outs_ = outputChannels(o, ins, error);
    if (outs_ == 0)
        return false;

    // Equalisers and pre-cut.
    std::vector<eq::Biquad> eqSections = designEqBands(o.eqBands, fs);
    for (std::size_t i = 0; i < o.eqBands.size(); ++i) {
        const eq::BandSpec& b = o.eqBands[i];
        const auto kind = eq::bandKindAt(static_cast<int>(i), static_cast<int>(o.eqBands.size()));
        lines_.push_back(logText("  eq band %zu: %s %.1f Hz, %+.2f dB, Q %.4f", i + 1,
                             kind == eq::BandKind::LowShelf    ? "low shelf"
                                 : kind == eq::BandKind::HighShelf ? "high shelf"
                                                                   : "peaking",
                             b.centerHz, b.gainDb, eq::bandQ(b, fs)));
        probeHz_.push_back(b.centerHz);
    }
    for (const eq::BandSpec& b : o.paramBands) {
        eqSections.push_back(eq::designBand(b, eq::BandKind::Peaking, fs));
        lines_.push_back(logText("  equalizer: peaking %.1f Hz, %+.2f dB, %.1f Hz wide (Q %.4f)", b.centerHz, b.gainDb,
                             b.bandwidth, eq::bandQ(b, fs)));
        probeHz_.push_back(b.centerHz);
    }
    if (o.eqBass.given) {
        eqSections.push_back(designShelf(eq::BandKind::LowShelf, kEqBassHz, o.eqBass.gainDb, fs));
        lines_.push_back(logText("  eq-bass: low shelf %.0f Hz, %+.2f dB", kEqBassHz, o.eqBass.gainDb));
    }
    if (o.eqPresence.given) {
        eq::BandSpec b{kEqPresenceHz, o.eqPresence.gainDb, 1.0, 'o'};
        eqSections.push_back(eq::designBand(b, eq::BandKind::Peaking, fs));
        lines_.push_back(logText("  eq-presence: peaking %.0f Hz, one octave, %+.2f dB", kEqPresenceHz, o.eqPresence.gainDb));
        probeHz_.push_back(kEqPresenceHz);
    }
    if (o.eqAir.given) {
        eqSections.push_back(designShelf(eq::BandKind::HighShelf, kEqAirHz, o.eqAir.gainDb, fs));
        lines_.push_back(logText("  eq-air: high shelf %.0f Hz, %+.2f dB", kEqAirHz, o.eqAir.gainDb));
    }
    const bool anyEq = o.eqGiven || !eqSections.empty();
    const double precut = anyEq ? std::pow(10.0, -o.eqPrecutDb / 20.0) : 1.0;
    if (anyEq && o.eqPrecutDb != 0)
        lines_.push_back(logText("  eq pre-cut: -%.2f dB", o.eqPrecutDb));
    if (!eqSections.empty() || precut != 1.0)
        stages_.push_back(FilterStage("equaliser", precut, std::move(eqSections), ins));

    // Tone.
    std::vector<eq::Biquad> tone;
    if (o.bassDb != 0) {
        tone.push_back(designShelf(eq::BandKind::LowShelf, kBassHz, o.bassDb, fs));
        lines_.push_back(logText("  bass: low shelf %.0f Hz, Q 0.7071, %+.2f dB", kBassHz, o.bassDb));
    }
    if (o.trebleDb != 0) {
        tone.push_back(designShelf(eq::BandKind::HighShelf, kTrebleHz, o.trebleDb, fs));
        lines_.push_back(logText("  treble: high shelf %.0f Hz, Q 0.7071, %+.2f dB", kTrebleHz, o.trebleDb));
    }
    if (!tone.empty())
        stages_.push_back(FilterStage("tone", 1.0, std::move(tone), ins));

    if (o.dsre && o.dsreMix > 0) {
        stages_.push_back(DsreStage(ins, fs, o.dsreMix));
        lines_.push_back(logText("  dsre: mix %.3f, second harmonics of %.0f-%.0f Hz at %.1f dB x mix, above %.0f Hz",
                             o.dsreMix, kDsreLowHz, kDsreHighHz, 20 * std::log10(kDsreLevel), kDsreOutHz));
    }

    // Channels.
    if (outs_ != ins) {
        stages_.push_back(MixStage(ins, outs_, remixMatrix(ins, outs_)));
        std::string roles;
        for (Role r : layoutFor(outs_))
            roles += std::string(roles.empty() ? "" : " ") + roleName(r);
        lines_.push_back(logText("  channels: %d -> %d (%s), constant-power fold-down", ins, outs_, roles.c_str()));
    }
    if (derivesSurround(o, ins)) {
        stages_.push_back(SurroundDeriveStage(outs_, fs));
        maxDelaySeconds_ = std::max(maxDelaySeconds_, kDeriveDelayMs / 1000.0);
        lines_.push_back(logText("  surround channels derived: (L-R)/2, %.0f ms later, low-passed at %.0f Hz",
                             kDeriveDelayMs, kDeriveLowpassHz));
    }

    // Stereo image.
    if (o.stereo) {
        stages_.push_back(WidthStage(outs_, fs, o.stereoWidth, o.stereoAuto, o.stereoCrossfeed));
        lines_.push_back(logText("  stereo: width %s%.3f, crossfeed %.3f (%.0f Hz one-pole, %.1f ms)",
                             o.stereoAuto ? "automatic up to " : "", o.stereoWidth, o.stereoCrossfeed, kCrossfeedHz,
                             kCrossfeedDelayMs));
    }
    if (o.surround.on) {
        stages_.push_back(SurroundStage(outs_, fs, o.surround));
        maxDelaySeconds_ = std::max(maxDelaySeconds_, o.surround.delayMs / 1000.0);
        lines_.push_back(logText("  surround: %.0f ms, mix %.0f %%, %s, balance %+.0f", o.surround.delayMs,
                             o.surround.mixPercent, o.surround.side ? "side signal" : "opposite channel",
                             o.surround.balance));
    }

    // Spatial.
    if (o.hrtf != HrtfMode::Off) {
        HrtfSet set;
        if (!set.open(o.hrtfFile.empty() ? kDefaultSofaPath : o.hrtfFile, fs, error))
            return false;
        stages_.push_back(HrtfStage(outs_, fs, set, o.hrtf, o.hrtfMix, o.hrtfSideMix, o.hrtfDepth));
        const HrtfGeometry g = hrtfGeometry(o.hrtfDepth);
        const char* mode = o.hrtf == HrtfMode::Mono ? "mono" : o.hrtf == HrtfMode::MidSide ? "ms" : "stereo";
        lines_.push_back(logText("  hrtf: %s, set %s (%d taps at %.0f Hz), speakers at +-%.0f deg, centre at %.0f deg "
                             "azimuth %.0f deg elevation, mix %.2f, side mix %.2f, block %zu",
                             mode, set.path().c_str(), set.length(), fs, g.speakerAzimuth, g.centreAzimuth,
                             g.centreElevation, o.hrtfMix, o.hrtfSideMix, kHrtfBlock));
    }
    toDrop_ = latency();
    return true;
}

void EffectChain::process(Planar& block, std::size_t n)
{
    for (Stage& s : stages_)
        std::visit([&](auto& st) { st.process(block, n); }, s);
}

ResponseMatrix EffectChain::response(double hz) const
{
    ResponseMatrix h = ResponseMatrix::identity(ins_);
    for (const Stage& s : stages_)
        h = std::visit([&](const auto& st) { return st.response(hz, fs_); }, s).times(h);
    return h;
}

double EffectChain::worstCaseGain() const
{
    if (stages_.empty())
        return 1.0;
    double worst = 0;
    auto probe = [&](double hz) {
        const ResponseMatrix h = response(hz);
        for (int o = 0; o < h.outs; ++o) {
            double sum = 0;
            for (int i = 0; i < h.ins; ++i)
                sum += std::abs(h.at(o, i));
            worst = std::max(worst, sum);
        }
    };
    const double nyquist = 0.5 * fs_;
    // Log grid below 1 kHz; above it a linear grid fine enough to land on
    // the peaks of the delay combs (period 1 / delay).
    for (int k = 0; k <= 2048; ++k)
        probe(5.0 * std::pow(200.0, k / 2048.0));
    // At most 2^18 points: long delays at high rates would otherwise take
    // seconds; a peak missed between points is the safety limiter's.
    const double step = std::max(std::clamp(1.0 / (8.0 * std::max(maxDelaySeconds_, 1e-3)), 0.25, 2.0),
                                 (nyquist - 1000.0) / 262144.0);
    for (double hz = 1000.0; hz < nyquist; hz += step)
        probe(hz);
    for (double hz : probeHz_)
        if (hz < nyquist)
            probe(hz);
    return worst;
}

std::size_t EffectChain::run(Planar& block, std::size_t n)
{
    process(block, n);
    const std::size_t drop = std::min(toDrop_, n);
    if (drop > 0) {
        for (auto& ch : block)
            ch.erase(ch.begin(), ch.begin() + static_cast<std::ptrdiff_t>(drop));
        toDrop_ -= drop;
    }
    for (auto& ch : block)
        ch.resize(n - drop);
    return n - drop;
}

std::size_t EffectChain::drain(Planar& block)
{
    const std::size_t n = latency();
    block.assign(static_cast<std::size_t>(ins_), std::vector<double>(n, 0.0));
    return run(block, n);
}

void EffectChain::addLimiter(double ceiling)
{
    stages_.push_back(PeakLimiter(outs_, fs_, ceiling));
    toDrop_ = latency();
    lines_.push_back(logText("  safety limiter: ceiling %+.2f dB (0.25 dB above the sine bound), true-peak estimate, %.1f ms look-ahead, "
                         "%.0f ms release", 20 * std::log10(ceiling), kLimiterLookaheadMs, kLimiterReleaseMs));
}

std::size_t EffectChain::latency() const
{
    std::size_t total = 0;
    for (const Stage& s : stages_)
        if (const auto* l = std::get_if<PeakLimiter>(&s))
            total += l->latency();
        else if (const auto* h = std::get_if<HrtfStage>(&s))
            total += h->latency();
    return total;
}

std::uint64_t EffectChain::limitedSamples() const
{
    std::uint64_t total = 0;
    for (const Stage& s : stages_)
        if (const auto* l = std::get_if<PeakLimiter>(&s))
            total += l->limitedSamples();
    return total;
}

double EffectChain::smallestLimiterGain() const
{
    double g = 1.0;
    for (const Stage& s : stages_)
        if (const auto* l = std::get_if<PeakLimiter>(&s))
            g = std::min(g, l->smallestGain());
    return g;
}

} // namespace zuvo::effects
