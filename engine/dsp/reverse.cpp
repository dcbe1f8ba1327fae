// DSD -> PCM (decimation) and PCM -> PCM (the DXD path).

#include "dsd_pipeline.h"
#include "fir_design.h"
#include "fir_stages.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zuvo::dsp {

using namespace detail;

// Stop-band attenuation of every decimation/resampling stage: well below
// the in-band noise of any DSD stream and below 24-bit quantisation.
constexpr double kReverseAttenuationDb = 150.0;

static bool familyRate(int r)
{
    for (int base : {44100, 48000})
        for (int k = 0; k <= 4; ++k)
            if (r == base << k)
                return true;
    return false;
}

static bool validDsdRate(int r)
{
    for (int k = 0; k <= 7; ++k)
        if (r == (kDsdBaseRate * 64) << k)
            return true;
    return false;
}

int reverseDefaultRate(int dsdRate)
{
    return std::min(352800, std::max(44100, dsdRate / 8));
}

double reverseDefaultLowpass(int dsdRate, int outputRate)
{
    // DSD's shaped noise climbs steeply above the audio band; the default
    // corner keeps the ultrasonic range the format can carry cleanly at
    // each rate and no more.
    const int mult = dsdRate / kDsdBaseRate;
    double lp = mult <= 64 ? 30000 : mult <= 128 ? 45000 : 60000;
    const double r44 = outputRate % 48000 == 0 ? outputRate * 147.0 / 160.0 : outputRate;
    return std::min(lp, 0.4535 * std::min<double>(outputRate, r44));
}

namespace {
// Shared timing for the length-exact, delay-compensated streams.
struct Timing {
    std::int64_t skipLeft = 0;
    std::uint64_t inCount = 0, outCount = 0;
    double ratio = 1; // output samples per input unit

    void emit(const Samples& src, std::vector<double>& out, std::uint64_t limit)
    {
        std::size_t off = 0;
        if (skipLeft > 0) {
            off = std::min<std::size_t>(src.size(), std::size_t(skipLeft));
            skipLeft -= std::int64_t(off);
        }
        std::size_t m = src.size() - off;
        if (outCount + m > limit)
            m = std::size_t(limit - outCount);
        out.insert(out.end(), src.begin() + std::ptrdiff_t(off), src.begin() + std::ptrdiff_t(off + m));
        outCount += m;
    }
};
} // namespace

struct ChannelDecimator::Impl {
    bool ok = false;
    int outRate = 0;
    std::unique_ptr<BitDecimator> first;
    std::vector<std::unique_ptr<Stage>> stages;
    Samples a, b;
    Timing tm;
    int dsdRate = 0;

    void run(const std::uint8_t* bytes, std::size_t n, std::vector<double>& out, std::uint64_t limit)
    {
        a.clear();
        first->process(bytes, n, a);
        for (auto& s : stages) {
            b.clear();
            s->process(a.data(), a.size(), b);
            std::swap(a, b);
        }
        tm.emit(a, out, limit);
    }
};

ChannelDecimator::ChannelDecimator(const ReverseConfig& c, std::string* error)
    : impl_(std::make_unique<Impl>())
{
    auto fail = [&](const std::string& m) {
        if (error)
            *error = m;
    };
    if (!validDsdRate(c.dsdRate))
        { fail("unsupported DSD rate " + std::to_string(c.dsdRate) + " Hz: expected 64 to 8192 x 44100 Hz"); return; }
    const int out = c.outputRate ? c.outputRate : reverseDefaultRate(c.dsdRate);
    if (!familyRate(out))
        {
        fail("unsupported PCM output rate " + std::to_string(out)
                    + " Hz: use 44.1 kHz or 48 kHz times 1, 2, 4, 8 or 16");
        return;
    }
    const bool fam48 = out % 48000 == 0;
    const double r44 = fam48 ? out * 147.0 / 160.0 : out;
    const double r1 = c.dsdRate / 8.0;
    if (r44 > r1)
        {
        fail("PCM output rate " + std::to_string(out) + " Hz is too high for a "
                    + std::to_string(c.dsdRate) + " Hz DSD stream (at most " + std::to_string(int(r1)) + " Hz)");
        return;
    }
    const double nyq = 0.5 * std::min<double>(out, r44);
    const double lp = c.lowpassHz > 0 ? c.lowpassHz : reverseDefaultLowpass(c.dsdRate, out);
    if (lp < 1000 || lp >= nyq * 0.98)
        {
        fail("low-pass " + std::to_string(int(lp)) + " Hz must lie between 1 kHz and just under "
                    + std::to_string(int(nyq)) + " Hz for " + std::to_string(out) + " Hz output");
        return;
    }
    const double keep = std::min(nyq, std::max(lp * 1.05, std::min(1.5 * lp, nyq)));

    Impl& m = *impl_;
    m.dsdRate = c.dsdRate;
    m.outRate = out;
    double delay = 0;
    {
        // Every stage's delay is made a whole number of samples at the rate
        // the last decimating stage produces (r44), so the chain's delay is
        // removed exactly. Here: (N-1)/2 - 7 bits, in multiples of dsd/r44.
        const int unit = int(std::llround(c.dsdRate / r44));
        const auto h = kaiserLowpass(c.dsdRate, lp, r1 - keep, kReverseAttenuationDb, 3, unit, 7);
        m.first = std::make_unique<BitDecimator>(h);
        // Output n is taken once byte n (bits 8n..8n+7) is in.
        delay += ((h.size() - 1) / 2.0 - 7) / c.dsdRate;
    }
    double rate = r1;
    while (rate > r44 + 0.5) {
        const int unit = int(std::llround(rate / r44));
        const auto h = kaiserLowpass(rate, lp, rate / 2 - keep, kReverseAttenuationDb, 3, unit, 0);
        m.stages.push_back(std::make_unique<PolyphaseStage>(h, 1, 2, 1.0));
        delay += (h.size() - 1) / 2.0 / rate;
        rate /= 2;
    }
    if (!fam48) {
        const auto h = kaiserLowpass(rate, lp, keep, kReverseAttenuationDb);
        m.stages.push_back(std::make_unique<PolyphaseStage>(h, 1, 1, 1.0));
        delay += (h.size() - 1) / 2.0 / rate;
    } else {
        // The earlier stages' delay is k samples at r44 = 160k prototype
        // samples; choose this stage's delay so the total is whole outputs.
        const long k = std::lround(delay * rate);
        const int offset = int(((-160L * k) % 147 + 147) % 147);
        const auto h = kaiserLowpass(rate * 160, lp, keep, kReverseAttenuationDb, 160, 147, offset);
        m.stages.push_back(std::make_unique<PolyphaseStage>(h, 160, 147, 160.0));
        delay += (h.size() - 1) / 2.0 / (rate * 160);
    }
    m.tm.skipLeft = std::llround(delay * out);
    m.tm.ratio = double(out) / c.dsdRate;
    m.ok = true;
}

ChannelDecimator::~ChannelDecimator() = default;
ChannelDecimator::ChannelDecimator(ChannelDecimator&&) noexcept = default;
ChannelDecimator& ChannelDecimator::operator=(ChannelDecimator&&) noexcept = default;
bool ChannelDecimator::valid() const { return impl_ && impl_->ok; }
int ChannelDecimator::outputRate() const { return impl_ ? impl_->outRate : 0; }

void ChannelDecimator::process(const std::uint8_t* bytes, std::size_t n, std::vector<double>& out)
{
    if (!valid())
        return;
    constexpr std::size_t kChunk = 1 << 15;
    for (std::size_t done = 0; done < n; done += kChunk) {
        const std::size_t k = std::min(kChunk, n - done);
        impl_->tm.inCount += k * 8;
        impl_->run(bytes + done, k, out, UINT64_MAX);
    }
}

void ChannelDecimator::finish(std::vector<double>& out)
{
    if (!valid())
        return;
    Impl& m = *impl_;
    const auto total = std::uint64_t(std::llround(double(m.tm.inCount) * m.tm.ratio));
    std::vector<std::uint8_t> idle(4096, 0x69);
    int guard = 0;
    while (m.tm.outCount < total && guard++ < 100000)
        m.run(idle.data(), idle.size(), out, total);
}

struct ChannelResampler::Impl {
    bool ok = false;
    bool passthrough = false;
    std::unique_ptr<PolyphaseStage> stage;
    Samples a;
    Timing tm;
};

ChannelResampler::ChannelResampler(int inputRate, int outputRate, std::string* error)
    : impl_(std::make_unique<Impl>())
{
    if (!familyRate(inputRate) || !familyRate(outputRate)) {
        if (error)
            *error = "unsupported resampling " + std::to_string(inputRate) + " -> " + std::to_string(outputRate)
                   + " Hz: both rates must be 44.1 kHz or 48 kHz times 1, 2, 4, 8 or 16";
        return;
    }
    Impl& m = *impl_;
    m.ok = true;
    m.tm.ratio = double(outputRate) / inputRate;
    if (inputRate == outputRate) {
        m.passthrough = true;
        return;
    }
    const int g = std::gcd(inputRate, outputRate);
    const int L = outputRate / g, M = inputRate / g;
    const double lo = std::min(inputRate, outputRate);
    // Keep the audio band (or 45% of the lower rate, if that is wider),
    // reject from the lower rate's Nyquist frequency.
    const double pass = std::max(std::min(20000.0, 0.4535 * lo), 0.4535 * lo);
    const auto h = kaiserLowpass(double(inputRate) * L, pass, 0.5 * lo, kReverseAttenuationDb, L, M, 0);
    m.stage = std::make_unique<PolyphaseStage>(h, L, M, double(L));
    m.tm.skipLeft = std::llround((h.size() - 1) / 2.0 / (double(inputRate) * L) * outputRate);
}

ChannelResampler::~ChannelResampler() = default;
ChannelResampler::ChannelResampler(ChannelResampler&&) noexcept = default;
ChannelResampler& ChannelResampler::operator=(ChannelResampler&&) noexcept = default;
bool ChannelResampler::valid() const { return impl_ && impl_->ok; }

void ChannelResampler::process(const double* in, std::size_t n, std::vector<double>& out)
{
    if (!valid())
        return;
    Impl& m = *impl_;
    m.tm.inCount += n;
    if (m.passthrough) {
        out.insert(out.end(), in, in + n);
        m.tm.outCount += n;
        return;
    }
    constexpr std::size_t kChunk = 1 << 14;
    for (std::size_t done = 0; done < n; done += kChunk) {
        const std::size_t k = std::min(kChunk, n - done);
        m.a.clear();
        m.stage->process(in + done, k, m.a);
        m.tm.emit(m.a, out, UINT64_MAX);
    }
}

void ChannelResampler::finish(std::vector<double>& out)
{
    if (!valid() || impl_->passthrough)
        return;
    Impl& m = *impl_;
    const auto total = std::uint64_t(std::llround(double(m.tm.inCount) * m.tm.ratio));
    std::vector<double> zeros(4096, 0.0);
    int guard = 0;
    while (m.tm.outCount < total && guard++ < 100000) {
        m.a.clear();
        m.stage->process(zeros.data(), zeros.size(), m.a);
        m.tm.emit(m.a, out, total);
    }
}

} // namespace zuvo::dsp
