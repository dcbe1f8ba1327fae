// PCM -> DSD: design of the interpolation chain and modulator, and the
// per-channel encoder that runs them.

#include "dsd_pipeline.h"
#include "fir_design.h"
#include "fir_stages.h"
#include "modulator.h"
#include "simd_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace zuvo::dsp {

using namespace detail;

// Automatic gain keeps the modulator this far below its measured maximum
// stable level, which absorbs the interpolation filters' overshoot on
// clipped masters (inter-sample peaks of a few tenths of a dB) and leaves
// margin for material the stability sweep did not exercise.
constexpr double kAutoHeadroomDb = 1.0;
// Images of the audio band must sit at least this far down; the stages are
// designed with margin above it.
constexpr double kChainAttenuationDb = 170.0;
constexpr double kBinomialAttenuationDb = 160.0;
constexpr double kBinomialFromHz = 705600.0;

struct ForwardDesign {
    ForwardConfig config;
    std::vector<FirStage> stages;
    ModulatorDesign mod;
    double gain = 1;
    int dsdRate = 0;
    std::int64_t skip = 0; // chain delay in output samples, dropped at the start
    DesignSummary sum;
    double chainMagnitude(double hz) const
    {
        double m = 1;
        for (const auto& s : stages)
            m *= std::abs(s.response(hz));
        return m;
    }
};

static std::string fmt(const char* f, double v)
{
    char b[64];
    std::snprintf(b, sizeof b, f, v);
    return b;
}

static void measure(ForwardDesign& d, double stage1Pass)
{
    DesignSummary& s = d.sum;
    const double audio = std::min(20000.0, stage1Pass);
    // Pass band: whole chain including the modulator's signal transfer.
    double lo = 1e9, hi = -1e9;
    for (int i = 0; i <= 400; ++i) {
        const double f = 20 + (audio - 20) * i / 400.0;
        const double m = d.chainMagnitude(f) * std::abs(d.mod.stf(f / d.dsdRate));
        const double db = 20 * std::log10(m);
        lo = std::min(lo, db);
        hi = std::max(hi, db);
    }
    s.passbandRippleDb = hi - lo;

    // Image rejection: for each rate-raising stage, the images of the audio
    // band it creates, weighted by every later stage at the frequency they
    // land on (after any decimation inside the stage).
    double worst = 0; // linear
    std::ostringstream per;
    for (std::size_t si = 0; si < d.stages.size(); ++si) {
        const FirStage& st = d.stages[si];
        double sw = 0;
        const double proto = st.protoRate();
        for (int k = 1; k * st.inRate - audio < proto / 2; ++k) {
            for (int sign : {-1, 1}) {
                for (int g = 0; g <= 16; ++g) {
                    const double f = audio * g / 16.0;
                    const double F = k * st.inRate + sign * f;
                    if (F > proto / 2 || F < 0)
                        continue;
                    double m = std::abs(st.response(F));
                    double Fo = std::fmod(F, st.outRate);
                    if (Fo > st.outRate / 2)
                        Fo = st.outRate - Fo;
                    for (std::size_t t = si + 1; t < d.stages.size(); ++t)
                        m *= std::abs(d.stages[t].response(Fo));
                    sw = std::max(sw, m);
                }
            }
        }
        worst = std::max(worst, sw);
        per << "    " << st.name << ": " << fmt("%.0f", st.inRate) << " -> " << fmt("%.0f", st.outRate) << " Hz, "
            << st.h.size() << " taps, images " << fmt("%.1f", -20 * std::log10(std::max(sw, 1e-30))) << " dB down\n";
    }
    s.stopbandAttenuationDb = -20 * std::log10(std::max(worst, 1e-30));

    // First stage's own stop band.
    const FirStage& s1 = d.stages.front();
    double sb = 0;
    for (int i = 0; i <= 300; ++i) {
        const double f = s1.stopHz + (s1.protoRate() / 2 - s1.stopHz) * i / 300.0;
        sb = std::max(sb, std::abs(s1.response(f)));
    }
    s.appliedGain = d.gain;
    s.modulatorMaxStableDbfs = 20 * std::log10(d.mod.maxStable);
    s.maxStableInputDbfs = 20 * std::log10(d.mod.maxStable / d.gain);

    std::ostringstream o;
    o << "DSD rate " << d.dsdRate << " Hz (DSD" << d.config.dsdMultiple << ") from " << d.config.inputRate << " Hz\n";
    o << "  interpolation: " << d.stages.size() << " stages\n" << per.str();
    o << "  first stage: pass " << fmt("%.0f", s1.passHz) << " Hz, stop " << fmt("%.0f", s1.stopHz) << " Hz, "
      << fmt("%.1f", -20 * std::log10(std::max(sb, 1e-30))) << " dB stop-band attenuation\n";
    o << "  pass-band ripple (20 Hz - " << fmt("%.0f", audio) << " Hz, whole chain): "
      << fmt("%.6f", s.passbandRippleDb) << " dB p-p" << (d.config.predistortion ? " (pre-distortion on)\n" : "\n");
    o << "  image rejection of the chain: " << fmt("%.1f", s.stopbandAttenuationDb) << " dB\n";
    o << "  modulator: " << d.mod.topology << ", NTF max gain " << fmt("%.2f", d.mod.ntf.hinf)
      << ", optimised band 0 - " << fmt("%.0f", d.mod.ntf.bandEdge * d.dsdRate) << " Hz\n";
    o << "  modulator max stable level: " << fmt("%.2f", s.modulatorMaxStableDbfs) << " dBFS; gain "
      << fmt("%.4f", d.gain) << " (" << fmt("%.2f", 20 * std::log10(d.gain)) << " dB), input clean up to "
      << fmt("%.2f", s.maxStableInputDbfs) << " dBFS\n";
    s.text = o.str();
}

std::shared_ptr<const ForwardDesign> designForward(const ForwardConfig& c, std::string* error)
{
    auto fail = [&](const std::string& m) {
        if (error)
            *error = m;
        return std::shared_ptr<const ForwardDesign>();
    };
    const int mult = c.dsdMultiple;
    if (mult < 64 || mult > 8192 || (mult & (mult - 1)) != 0)
        return fail("--oversampling " + std::to_string(mult)
                    + " is not a DSD rate: use 64, 128, 256, 512, 1024, 2048, 4096 or 8192");
    if (!std::isnan(c.gain) && !(c.gain > 0 && c.gain <= 16))
        return fail("gain must be a positive linear factor no larger than 16 (+24 dB)");

    auto d = std::make_shared<ForwardDesign>();
    d->config = c;
    d->dsdRate = mult * kDsdBaseRate;

    Stage1Plan plan;
    if (!planStage1(c.fir, c.inputRate, plan, error))
        return nullptr;
    FirStage s1;
    if (!designStage1(plan, c.inputRate, s1, error))
        return nullptr;
    d->stages.push_back(s1);
    double rate = s1.outRate;
    double content = plan.stopHz; // above this the signal is already gone
    if (c.inputRate % 48000 == 0) {
        // 48 kHz family: 147/160 onto the 44.1 kHz grid, right after the
        // first stage so the rational step only has to keep the band the
        // first stage already shaped (a wide, cheap transition).
        const double out = rate * 147 / 160;
        // Stage 1's delay is d1 samples at `rate` = 147*d1 prototype samples;
        // pick the rational stage's delay so the sum is whole output samples.
        const long d1 = std::lround(d->stages[0].delaySeconds() * rate);
        const int offset = int(((-147L * d1) % 160 + 160) % 160);
        d->stages.push_back(
            designRational(rate, 147, 160, content, std::min(rate, out) - content, kChainAttenuationDb, offset));
        rate = out;
    }
    if (rate > d->dsdRate)
        return fail("input rate " + std::to_string(c.inputRate) + " Hz is too high for DSD"
                    + std::to_string(mult));
    // Half-bands while the images are wide; from 705.6 kHz up the images of
    // the audio band are narrow islands around multiples of the rate, and a
    // short binomial filter with its zeros piled there rejects them as well
    // for a third of the work.
    const double audio = std::max(20000.0, std::min(plan.passHz, content));
    while (rate < d->dsdRate) {
        if (rate >= kBinomialFromHz)
            d->stages.push_back(designBinomial(rate, audio, kBinomialAttenuationDb));
        else
            d->stages.push_back(designHalfband(rate, std::min(content, 0.45 * rate), kChainAttenuationDb));
        rate *= 2;
    }
    if (std::abs(rate - d->dsdRate) > 0.5)
        return fail("internal: interpolation chain does not reach the DSD rate");

    // Noise-shaping band: the audio band at DSD64/128; above that the zeros
    // are spread over a proportionally wider band so the loop keeps the
    // same, well-conditioned design and the ultrasonic range stays quiet too.
    const double band = 20000.0 * std::max(1.0, mult / 128.0);
    if (!designModulator(c.modulator.type, c.modulator.order, band / d->dsdRate, d->mod, error))
        return nullptr;

    const double autoGain = d->mod.maxStable * std::pow(10.0, -kAutoHeadroomDb / 20);
    const double effectGain = std::isfinite(c.effectGain) ? std::max(1.0, c.effectGain) : 1.0;
    d->gain = std::isnan(c.gain) ? autoGain / effectGain : c.gain;
    if (!std::isnan(c.gain) && effectGain > 1.0 && c.gain * effectGain > autoGain) {
        d->gain = autoGain / effectGain;
        d->sum.gainLoweredForEffects = true;
    }

    if (c.predistortion) {
        // Pre-distortion: equalise the whole chain's pass-band magnitude
        // (later stages, the modulator's signal transfer, and the first
        // stage's own droop unless the slow roll-off is what the user asked
        // for) by folding a short linear-phase correction into stage 1.
        const double pass = plan.passHz;
        std::vector<double> fr, target;
        double dev = 0;
        for (int i = 0; i <= 300; ++i) {
            const double f = pass * (i + 0.5) / 301.0; // the loop filter is singular at DC
            double m = std::abs(d->mod.stf(f / d->dsdRate));
            for (std::size_t k = c.fir.slowRollOff ? 1 : 0; k < d->stages.size(); ++k)
                m *= std::abs(d->stages[k].response(f));
            fr.push_back(f);
            target.push_back(1.0 / m);
            dev = std::max(dev, std::abs(1.0 / m - 1));
        }
        if (dev > 1e-9) {
            const auto corr = designCorrection(d->stages[0].protoRate(), pass, fr, target, 31);
            d->stages[0].h = convolve(d->stages[0].h, corr);
        }
    }

    double delay = 0;
    for (const auto& s : d->stages)
        delay += s.delaySeconds();
    d->skip = std::llround(delay * d->dsdRate);
    measure(*d, plan.passHz);
    return d;
}

const DesignSummary& summary(const ForwardDesign& d) { return d.sum; }
int dsdRateHz(const ForwardDesign& d) { return d.dsdRate; }

double chainMagnitude(const ForwardDesign& d, double hz)
{
    return d.chainMagnitude(hz) * std::abs(d.mod.stf(hz / d.dsdRate));
}

double settleSeconds(const ForwardDesign& d)
{
    double t = 0;
    for (const auto& s : d.stages)
        t += double(s.h.size()) / s.protoRate();
    return t;
}

struct ChannelEncoder::Impl {
    std::shared_ptr<const ForwardDesign> d;
    std::vector<std::unique_ptr<Stage>> stages;
    ModulatorRunner mod;
    Samples a, b;
    std::vector<std::uint8_t> bits;
    std::int64_t skipLeft = 0;
    std::uint64_t inCount = 0, outCount = 0;
    unsigned acc = 0;
    int nacc = 0;
    double peak = 0;
    std::size_t block = 4096;

    explicit Impl(std::shared_ptr<const ForwardDesign> dd)
        : d(std::move(dd))
        , mod(&d->mod)
    {
        for (const auto& s : d->stages) {
            if (runsTwoPhase(s))
                stages.push_back(std::make_unique<TwoPhaseInterpolator>(s.h));
            else
                stages.push_back(std::make_unique<PolyphaseStage>(s.h, s.L, s.M, double(s.L)));
        }
        skipLeft = d->skip;
        const double ratio = double(d->dsdRate) / d->config.inputRate;
        // Chunks of about 16k output samples keep every stage's buffers in
        // the second-level cache.
        block = std::max<std::size_t>(1, std::size_t((1 << 14) / ratio));
    }

    // Runs n already-scaled samples through the chain and modulator, never
    // emitting more than `limit` bits in total.
    void run(const double* in, std::size_t n, std::uint64_t limit, std::vector<std::uint8_t>& out)
    {
        a.assign(in, in + n);
        for (auto& s : stages) {
            b.clear();
            s->process(a.data(), a.size(), b);
            std::swap(a, b);
        }
        std::size_t off = 0;
        if (skipLeft > 0) {
            off = std::min<std::size_t>(a.size(), std::size_t(skipLeft));
            skipLeft -= std::int64_t(off);
        }
        std::size_t m = a.size() - off;
        if (outCount + m > limit)
            m = std::size_t(limit - outCount);
        if (m == 0)
            return;
        mod.runPacked(a.data() + off, m, out, acc, nacc);
        outCount += m;
    }
};

ChannelEncoder::ChannelEncoder(std::shared_ptr<const ForwardDesign> design)
    : impl_(std::make_unique<Impl>(std::move(design)))
{
}
ChannelEncoder::~ChannelEncoder() = default;
ChannelEncoder::ChannelEncoder(ChannelEncoder&&) noexcept = default;
ChannelEncoder& ChannelEncoder::operator=(ChannelEncoder&&) noexcept = default;

void ChannelEncoder::process(const double* in, std::size_t n, std::vector<std::uint8_t>& out)
{
    Impl& m = *impl_;
    std::vector<double> scaled;
    for (std::size_t done = 0; done < n;) {
        const std::size_t k = std::min(m.block, n - done);
        scaled.resize(k);
        for (std::size_t i = 0; i < k; ++i) {
            const double v = in[done + i] * m.d->gain;
            m.peak = std::max(m.peak, std::abs(v));
            scaled[i] = v;
        }
        m.inCount += k;
        m.run(scaled.data(), k, UINT64_MAX, out);
        done += k;
    }
}

void ChannelEncoder::finish(std::vector<std::uint8_t>& out)
{
    Impl& m = *impl_;
    const std::uint64_t total = std::uint64_t(
        std::llround(double(m.inCount) * m.d->dsdRate / double(m.d->config.inputRate)));
    std::vector<double> zeros(m.block, 0.0);
    int guard = 0;
    while (m.outCount < total && guard++ < 1000000)
        m.run(zeros.data(), zeros.size(), total, out);
    if (m.nacc > 0) {
        // Fill the rest of the byte with the idle pattern's bits at the
        // same positions, so the tail decodes as silence.
        const unsigned idle = 0x69;
        unsigned v = m.acc;
        for (int q = m.nacc; q < 8; ++q)
            v = (v << 1) | ((idle >> (7 - q)) & 1u);
        out.push_back(std::uint8_t(v));
        m.acc = 0;
        m.nacc = 0;
    }
}

std::vector<double> interpolateOnly(const ForwardDesign& d, const double* in, std::size_t n)
{
    std::vector<std::unique_ptr<Stage>> stages;
    for (const auto& s : d.stages) {
        if (runsTwoPhase(s))
            stages.push_back(std::make_unique<TwoPhaseInterpolator>(s.h));
        else
            stages.push_back(std::make_unique<PolyphaseStage>(s.h, s.L, s.M, double(s.L)));
    }
    const auto total = std::size_t(std::llround(double(n) * d.dsdRate / double(d.config.inputRate)));
    std::vector<double> result;
    result.reserve(total);
    std::int64_t skip = d.skip;
    Samples a, b;
    const std::vector<double> zeros(4096, 0.0);
    std::size_t pos = 0;
    int guard = 0;
    while (result.size() < total && guard++ < 1000000) {
        const std::size_t k = pos < n ? std::min<std::size_t>(4096, n - pos) : zeros.size();
        if (pos < n) {
            a.resize(k);
            for (std::size_t i = 0; i < k; ++i)
                a[i] = in[pos + i] * d.gain;
            pos += k;
        } else {
            a.assign(zeros.begin(), zeros.end());
        }
        for (auto& s : stages) {
            b.clear();
            s->process(a.data(), a.size(), b);
            std::swap(a, b);
        }
        std::size_t off = 0;
        if (skip > 0) {
            off = std::min<std::size_t>(a.size(), std::size_t(skip));
            skip -= std::int64_t(off);
        }
        const std::size_t m = std::min(a.size() - off, total - result.size());
        result.insert(result.end(), a.begin() + std::ptrdiff_t(off), a.begin() + std::ptrdiff_t(off + m));
    }
    return result;
}

ChannelEncoder::Stats ChannelEncoder::stats() const
{
    Stats s;
    s.overloads = impl_->mod.overloads;
    s.resets = impl_->mod.resets;
    s.nonFiniteResets = impl_->mod.nonFiniteResets;
    s.peakInput = impl_->peak;
    return s;
}

} // namespace zuvo::dsp
