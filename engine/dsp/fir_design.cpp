#include "fir_design.h"

#include <liquid/liquid.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zuvo::dsp::detail {

double FirStage::delaySeconds() const
{
    double num = 0, den = 0;
    for (std::size_t i = 0; i < h.size(); ++i) {
        num += double(i) * h[i];
        den += h[i];
    }
    return num / den / protoRate();
}

static bool isFamilyRate(int r)
{
    for (int base : {44100, 48000})
        for (int k = 0; k <= 4; ++k)
            if (r == base << k)
                return true;
    return false;
}

bool planStage1(const FirOptions& o, int inputRate, Stage1Plan& p, std::string* error)
{
    auto fail = [&](const std::string& m) {
        if (error)
            *error = m;
        return false;
    };
    if (!isFamilyRate(inputRate))
        return fail("unsupported input rate " + std::to_string(inputRate)
                    + " Hz: use 44.1 kHz or 48 kHz times 1, 2, 4, 8 or 16");
    const double fs = inputRate;
    const bool remez = o.algorithm == FilterAlgorithm::Remez;
    if (!remez && o.taps != 0 && (o.taps < 512 || o.taps > 1048576))
        return fail("--taps " + std::to_string(o.taps)
                    + " is out of range: use 0 (automatic) or 512 to 1048576 taps");
    // The Parks-McClellan exchange reaches the same attenuation with far
    // fewer taps, and liquid's implementation stops converging beyond a few
    // hundred on this band layout, hence its own range.
    if (remez && o.taps != 0 && (o.taps < 63 || o.taps > 1023))
        return fail("--taps " + std::to_string(o.taps)
                    + " is out of range for the Remez design: use 0 (automatic) or 63 to 1023 taps");
    if (o.maxIterations < 0 || o.maxIterations > 100000)
        return fail("--maxiterations must be between 1 and 100000");
    if (o.gridDensity < 0 || o.gridDensity > 1024)
        return fail("--griddensity must be between 1 and 1024");
    static const char* windows[] = {"kaiser", "blackman", "flattop", "bartlett", "hamming", "hanning"};
    if (!o.windowType.empty()
        && std::none_of(std::begin(windows), std::end(windows), [&](const char* w) { return o.windowType == w; }))
        return fail("unknown window type '" + o.windowType
                    + "': use kaiser, blackman, flattop, bartlett, hamming or hanning");
    if (!std::isnan(o.beta) && (o.beta < 0 || o.beta > 60))
        return fail("--beta must be between 0 and 60");
    if (o.stopbandAttenuationDb != 0 && (o.stopbandAttenuationDb < 20 || o.stopbandAttenuationDb > 250))
        return fail("--stopgain-alpha must be between 20 and 250 dB");
    if (o.passbandHz < 0 || o.stopbandHz < 0)
        return fail("cut-off frequencies must be positive");
    if (o.algorithm == FilterAlgorithm::Remez && !o.windowType.empty())
        return fail("--algorithm (Remez) and --window-type are alternatives; choose one");

    // Pass band: the audio band, or (high bandwidth) as close to the input's
    // Nyquist as a sharp filter allows. "Slow" trades pass-band extension
    // for a transition twice as wide and much less ringing.
    double pass = 20000.0;
    if (o.highBandwidth)
        pass = 0.4762 * fs;
    if (o.slowRollOff)
        pass = 0.36 * fs;
    // Window designs stop at the input's Nyquist frequency; the equiripple
    // design stops where the first image of the audio band begins, which is
    // what it must reject, and gets a transition wide enough to converge.
    double stop = remez ? std::max(0.5 * fs, fs - pass) : 0.5 * fs;
    if (o.passbandHz > 0)
        pass = o.passbandHz;
    if (o.stopbandHz > 0)
        stop = o.stopbandHz;
    if (o.passbandHz > 0 && o.stopbandHz == 0 && pass >= stop)
        stop = std::min(fs, pass * 1.1);
    if (pass < 1000)
        return fail("pass-band cut-off below 1 kHz is not an audio filter");
    if (stop <= pass)
        return fail("stop-band cut-off (" + std::to_string(int(stop)) + " Hz) must be above the pass-band cut-off ("
                    + std::to_string(int(pass)) + " Hz)");
    if (stop > fs)
        return fail("stop-band cut-off must not exceed the input rate (" + std::to_string(inputRate)
                    + " Hz), or images of the input would pass");
    if (pass > 0.5 * fs)
        return fail("pass-band cut-off must not exceed half the input rate");
    p.passHz = pass;
    p.stopHz = stop;
    p.attenuationDb = o.stopbandAttenuationDb > 0 ? o.stopbandAttenuationDb : remez ? 150.0 : 170.0;

    p.algorithm = o.algorithm;
    if (p.algorithm == FilterAlgorithm::Default)
        p.algorithm = FilterAlgorithm::Window;
    p.minimumPhase = o.minimumPhase || o.algorithm == FilterAlgorithm::MinPhase;
    if (p.algorithm == FilterAlgorithm::MinPhase)
        p.algorithm = FilterAlgorithm::Window;
    p.window = o.windowType.empty() ? "kaiser" : o.windowType;
    p.beta = std::isnan(o.beta) ? kaiserBeta(p.attenuationDb) : o.beta;
    p.maxIterations = o.maxIterations > 0 ? o.maxIterations : 40;
    p.gridDensity = o.gridDensity > 0 ? o.gridDensity : 16;

    const double df = (stop - pass) / (2 * fs);
    int taps = o.taps;
    if (taps == 0) {
        taps = kaiserLength(p.attenuationDb, df);
        if (p.window != "kaiser") // fixed windows need roughly this much more length
            taps = int(taps * 1.3);
        if (p.algorithm == FilterAlgorithm::Remez)
            taps = std::min(int(taps * 0.8), 241); // equiripple: ~20% shorter than Kaiser
        taps = std::max(taps, 63);
        if (taps % 2 == 0)
            ++taps;
    }
    p.taps = taps;
    p.autoTaps = o.taps == 0;
    return true;
}

static bool remezLowpass(int n, double passF, double stopF, double attenuationDb, std::vector<double>& h,
                         std::string* error)
{
    float bands[4] = {0.0f, float(passF), float(stopF), 0.5f};
    float des[2] = {1.0f, 0.0f};
    // Weight the stop band so the equiripple error there is the requested
    // attenuation while the pass band keeps about 0.001 dB of ripple.
    const double dp = 1e-4, ds = std::pow(10.0, -attenuationDb / 20);
    float w[2] = {1.0f, float(std::min(1e6, dp / ds))};
    liquid_firdespm_wtype wt[2] = {LIQUID_FIRDESPM_FLATWEIGHT, LIQUID_FIRDESPM_FLATWEIGHT};
    std::vector<float> hf(n);
    if (firdespm_run(unsigned(n), 2, bands, des, w, wt, LIQUID_FIRDESPM_BANDPASS, hf.data()) != 0) {
        if (error)
            *error = "Remez (Parks-McClellan) design did not converge for " + std::to_string(n) + " taps";
        return false;
    }
    h.assign(hf.begin(), hf.end());
    const double s = std::accumulate(h.begin(), h.end(), 0.0);
    if (!(std::abs(s) > 1e-6)) {
        if (error)
            *error = "Remez design failed (degenerate result)";
        return false;
    }
    for (double& v : h)
        v /= s;
    return true;
}

bool designStage1(const Stage1Plan& p, int inputRate, FirStage& out, std::string* error)
{
    const double rate = 2.0 * inputRate;
    out = {};
    out.name = "stage 1";
    out.L = 2;
    out.M = 1;
    out.inRate = inputRate;
    out.outRate = rate;
    out.passHz = p.passHz;
    out.stopHz = p.stopHz;
    if (p.algorithm == FilterAlgorithm::Remez) {
        // Judge the exchange by the response it produced: liquid reports
        // success even when it has not converged.
        auto attenuation = [&](const std::vector<double>& h) {
            double worst = 0;
            for (int i = 0; i <= 400; ++i) {
                const double f = p.stopHz + (rate / 2 - p.stopHz) * i / 400.0;
                worst = std::max(worst, std::abs(firResponse(h, f / rate)));
            }
            double lo = 1e9, hi = 0;
            for (int i = 0; i <= 100; ++i) {
                const double m = std::abs(firResponse(h, p.passHz * i / 100.0 / rate));
                lo = std::min(lo, m);
                hi = std::max(hi, m);
            }
            if (!(hi < 1.01 && lo > 0.99))
                return 0.0;
            return -20 * std::log10(std::max(worst, 1e-30));
        };
        int n = p.taps;
        std::string why;
        for (;;) {
            std::vector<double> h;
            if (remezLowpass(n, p.passHz / rate, p.stopHz / rate, p.attenuationDb, h, &why)) {
                const double a = attenuation(h);
                if (a >= std::min(p.attenuationDb - 10, 120.0) || (!p.autoTaps && a >= 40)) {
                    out.h = h;
                    break;
                }
            }
            if (!p.autoTaps || n <= 63) {
                if (error)
                    *error = "the Remez (Parks-McClellan) exchange did not converge for " + std::to_string(n)
                           + " taps with these band edges; use fewer taps (about 240 at most), wider transition "
                             "or the window method";
                return false;
            }
            n -= 16;
        }
    } else {
        const auto w = makeWindow(p.window.c_str(), p.taps, p.beta);
        out.h = windowedSincLowpass(p.taps, 0.5 * (p.passHz + p.stopHz) / rate, w);
    }
    if (p.minimumPhase)
        out.h = minimumPhase(out.h);
    return true;
}

FirStage designHalfband(double inRate, double passHz, double attenuationDb)
{
    FirStage s;
    s.name = "half-band";
    s.L = 2;
    s.M = 1;
    s.inRate = inRate;
    s.outRate = 2 * inRate;
    s.halfband = true;
    s.passHz = passHz;
    s.stopHz = inRate - passHz;
    const double df = (inRate - 2 * passHz) / (2 * inRate);
    const int n0 = kaiserLength(attenuationDb, df);
    int k = (n0 + 1 + 3) / 4; // length 4k-1
    k = std::max(k, 2);
    const int n = 4 * k - 1;
    const auto w = makeWindow("kaiser", n, kaiserBeta(attenuationDb));
    s.h = windowedSincLowpass(n, 0.25, w);
    // Exact half-band structure: centre 1/2, zeros at even distances, and the
    // other branch summing to 1/2 so DC passes with gain exactly one.
    const int c = n / 2;
    double other = 0;
    for (int i = 0; i < n; ++i) {
        if (i == c)
            continue;
        if ((i - c) % 2 == 0)
            s.h[i] = 0;
        else
            other += s.h[i];
    }
    for (int i = 0; i < n; ++i)
        if ((i - c) % 2 != 0)
            s.h[i] *= 0.5 / other;
    s.h[c] = 0.5;
    return s;
}

FirStage designBinomial(double inRate, double audioHz, double attenuationDb)
{
    FirStage s;
    s.L = 2;
    s.M = 1;
    s.inRate = inRate;
    s.outRate = 2 * inRate;
    s.passHz = audioHz;
    s.stopHz = inRate - audioHz;
    const double perOrder = -20 * std::log10(std::sin(kPi * audioHz / s.outRate));
    int p = std::max(2, int(std::ceil(attenuationDb / perOrder)));
    p += p % 2; // odd length: a whole-sample delay the chain can remove exactly
    s.name = "binomial (order " + std::to_string(p) + ")";
    s.h.assign(std::size_t(p) + 1, 0.0);
    double c = 1;
    for (int k = 0; k <= p; ++k) {
        s.h[std::size_t(k)] = c / std::ldexp(1.0, p);
        c = c * (p - k) / (k + 1);
    }
    return s;
}

std::vector<double> kaiserLowpass(double rate, double passHz, double stopHz, double attenuationDb, int minTaps,
                                  int delayMultiple, int delayOffset)
{
    const int n0 = std::max(minTaps, kaiserLength(attenuationDb, (stopHz - passHz) / rate));
    int d = (n0 - 1 + 1) / 2;
    while (((d - delayOffset) % delayMultiple + delayMultiple) % delayMultiple != 0)
        ++d;
    const int n = 2 * d + 1;
    const auto w = makeWindow("kaiser", n, kaiserBeta(attenuationDb));
    return windowedSincLowpass(n, 0.5 * (passHz + stopHz) / rate, w);
}

FirStage designRational(double inRate, int L, int M, double passHz, double stopHz, double attenuationDb,
                        int delayOffset)
{
    FirStage s;
    s.name = "rational " + std::to_string(L) + "/" + std::to_string(M);
    s.L = L;
    s.M = M;
    s.inRate = inRate;
    s.outRate = inRate * L / M;
    s.passHz = passHz;
    s.stopHz = stopHz;
    s.h = kaiserLowpass(inRate * L, passHz, stopHz, attenuationDb, L, M, delayOffset);
    return s;
}

std::vector<double> designCorrection(double rate, double passHz, const std::vector<double>& freqs,
                                     const std::vector<double>& target, int length)
{
    // Symmetric FIR C(f) = c0 + 2 sum c_k cos(2 pi f k / rate), least squares
    // over the pass-band grid, with a small ridge so the result stays close
    // to a pure delay outside the band it was fitted on.
    const int m = length / 2 + 1;
    std::vector<double> ata(m * m, 0.0), atb(m, 0.0);
    for (std::size_t g = 0; g < freqs.size(); ++g) {
        if (freqs[g] > passHz)
            continue;
        std::vector<double> row(m);
        for (int k = 0; k < m; ++k)
            row[k] = (k == 0 ? 1.0 : 2.0) * std::cos(2 * kPi * freqs[g] * k / rate);
        for (int i = 0; i < m; ++i) {
            atb[i] += row[i] * target[g];
            for (int j = 0; j < m; ++j)
                ata[i * m + j] += row[i] * row[j];
        }
    }
    const double ridge = 1e-12 * ata[0];
    for (int i = 0; i < m; ++i)
        ata[i * m + i] += ridge;
    // Gaussian elimination with partial pivoting.
    std::vector<double> x = atb;
    for (int col = 0; col < m; ++col) {
        int piv = col;
        for (int r = col + 1; r < m; ++r)
            if (std::abs(ata[r * m + col]) > std::abs(ata[piv * m + col]))
                piv = r;
        if (piv != col) {
            for (int j = 0; j < m; ++j)
                std::swap(ata[col * m + j], ata[piv * m + j]);
            std::swap(x[col], x[piv]);
        }
        for (int r = col + 1; r < m; ++r) {
            const double f = ata[r * m + col] / ata[col * m + col];
            for (int j = col; j < m; ++j)
                ata[r * m + j] -= f * ata[col * m + j];
            x[r] -= f * x[col];
        }
    }
    for (int col = m - 1; col >= 0; --col) {
        for (int j = col + 1; j < m; ++j)
            x[col] -= ata[col * m + j] * x[j];
        x[col] /= ata[col * m + col];
    }
    std::vector<double> c(2 * m - 1);
    for (int k = 0; k < m; ++k)
        c[m - 1 + k] = c[m - 1 - k] = x[k];
    return c;
}

std::vector<double> convolve(const std::vector<double>& a, const std::vector<double>& b)
{
    std::vector<double> r(a.size() + b.size() - 1, 0.0);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j)
            r[i + j] += a[i] * b[j];
    return r;
}

} // namespace zuvo::dsp::detail
