#include "modulator.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace zuvo::dsp::detail {

cplx Ntf::eval(double f) const
{
    const cplx z = std::polar(1.0, 2 * kPi * f);
    cplx r = 1.0;
    for (std::size_t i = 0; i < zeros.size(); ++i)
        r *= (z - zeros[i]) / (z - poles[i]);
    return r;
}

// Largest |NTF| outside the noise-shaping band (where it matters for
// stability; inside the band it is tiny).
static double maxGain(const Ntf& t)
{
    double m = 0;
    const double lo = std::min(0.25, 2 * t.bandEdge);
    for (int i = 0; i <= 1024; ++i)
        m = std::max(m, std::abs(t.eval(lo + (0.5 - lo) * i / 1024.0)));
    return m;
}

Ntf synthesizeNtf(int order, double fb, double hinf)
{
    Ntf t;
    t.bandEdge = fb;
    for (double r : legendreRoots(order))
        t.zeros.push_back(std::polar(1.0, 2 * kPi * fb * (std::abs(r) < 1e-12 ? 0.0 : r)));
    auto polesFor = [&](double fc) {
        std::vector<cplx> p;
        const double wa = 2 * std::tan(kPi * fc);
        for (int k = 0; k < order; ++k) {
            const cplx s = wa * std::polar(1.0, kPi * (2.0 * k + order + 1) / (2.0 * order));
            p.push_back((2.0 + s) / (2.0 - s));
        }
        // Make conjugates exact so the realised coefficients are real.
        for (auto& z : p)
            if (std::abs(z.imag()) < 1e-14)
                z = z.real();
        return p;
    };
    double lo = 1e-5, hi = 0.49;
    for (int it = 0; it < 100; ++it) {
        const double mid = std::sqrt(lo * hi);
        t.poles = polesFor(mid);
        if (maxGain(t) > hinf)
            hi = mid;
        else
            lo = mid;
    }
    t.poles = polesFor(lo);
    t.hinf = maxGain(t);
    return t;
}

namespace {

struct Topo {
    ModulatorType type = ModulatorType::SosEf;
    int n = 0;
    // Resonator chain (single loop / CIFB): sections of one or two states.
    std::vector<int> start;
    std::vector<bool> pair;
    std::vector<double> g;
    std::vector<double> c;    // single loop: feed-forward to the quantiser
    std::vector<double> a, b; // CIFB: feedback and feed-in per state
    // Error-feedback cascade.
    std::vector<int> sosOrder;
    std::vector<double> sb1, sb2, sa1, sa2;
};

void chainSections(const Ntf& ntf, Topo& t)
{
    // One section per conjugate zero pair (a resonator tuned to the zero),
    // one single integrator for the zero at DC (odd orders).
    std::vector<double> th;
    for (const cplx& z : ntf.zeros)
        if (z.imag() >= 0)
            th.push_back(std::arg(z));
    std::sort(th.begin(), th.end());
    int idx = 0;
    for (double a : th) {
        t.start.push_back(idx);
        if (a < 1e-15) {
            t.pair.push_back(false);
            t.g.push_back(0);
            idx += 1;
        } else {
            t.pair.push_back(true);
            t.g.push_back(2 - 2 * std::cos(a));
            idx += 2;
        }
    }
    t.n = idx;
}

void step(const Topo& t, const double* x, double u, double v, double* xn)
{
    switch (t.type) {
    case ModulatorType::SingleLoop: {
        double s = u - v;
        for (std::size_t k = 0; k < t.start.size(); ++k) {
            const int i = t.start[k];
            if (!t.pair[k]) {
                xn[i] = x[i] + s;
                s = xn[i];
            } else {
                xn[i] = x[i] + s - t.g[k] * x[i + 1];
                xn[i + 1] = x[i + 1] + xn[i];
                s = xn[i + 1];
            }
        }
        break;
    }
    case ModulatorType::Cifb: {
        double s = 0;
        for (std::size_t k = 0; k < t.start.size(); ++k) {
            const int i = t.start[k];
            if (!t.pair[k]) {
                xn[i] = x[i] + s + t.b[i] * u - t.a[i] * v;
                s = xn[i];
            } else {
                xn[i] = x[i] + s + t.b[i] * u - t.a[i] * v - t.g[k] * x[i + 1];
                xn[i + 1] = x[i + 1] + xn[i] + t.b[i + 1] * u - t.a[i + 1] * v;
                s = xn[i + 1];
            }
        }
        break;
    }
    case ModulatorType::SosEf:
    default: {
        double y = u;
        int i = 0;
        for (int ord : t.sosOrder) {
            y += x[i];
            i += ord;
        }
        double in = v - y; // quantisation error, shaped by the cascade
        i = 0;
        for (std::size_t k = 0; k < t.sosOrder.size(); ++k) {
            const double o = in + x[i];
            if (t.sosOrder[k] == 2) {
                xn[i] = t.sb1[k] * in - t.sa1[k] * o + x[i + 1];
                xn[i + 1] = t.sb2[k] * in - t.sa2[k] * o;
                i += 2;
            } else {
                xn[i] = t.sb1[k] * in - t.sa1[k] * o;
                i += 1;
            }
            in = o;
        }
        break;
    }
    }
}

double outputOf(const Topo& t, const double* x, double u)
{
    switch (t.type) {
    case ModulatorType::SingleLoop: {
        double y = u;
        for (int i = 0; i < t.n; ++i)
            y += t.c[i] * x[i];
        return y;
    }
    case ModulatorType::Cifb:
        return x[t.n - 1];
    case ModulatorType::SosEf:
    default: {
        double y = u;
        int i = 0;
        for (int ord : t.sosOrder) {
            y += x[i];
            i += ord;
        }
        return y;
    }
    }
}

// Least squares via Householder QR (rows >= cols), column-major M.
std::vector<double> leastSquares(int rows, int cols, std::vector<double> M, std::vector<double> b)
{
    // Scale columns: integrator responses differ by orders of magnitude.
    std::vector<double> sc(cols, 1.0);
    for (int j = 0; j < cols; ++j) {
        double s = 0;
        for (int i = 0; i < rows; ++i)
            s = std::max(s, std::abs(M[j * rows + i]));
        sc[j] = s > 0 ? s : 1.0;
        for (int i = 0; i < rows; ++i)
            M[j * rows + i] /= sc[j];
    }
    for (int k = 0; k < cols; ++k) {
        double norm = 0;
        for (int i = k; i < rows; ++i)
            norm += M[k * rows + i] * M[k * rows + i];
        norm = std::sqrt(norm);
        if (norm == 0)
            continue;
        const double alpha = M[k * rows + k] > 0 ? -norm : norm;
        std::vector<double> vv(rows, 0.0);
        for (int i = k; i < rows; ++i)
            vv[i] = M[k * rows + i];
        vv[k] -= alpha;
        double vn = 0;
        for (int i = k; i < rows; ++i)
            vn += vv[i] * vv[i];
        if (vn == 0)
            continue;
        for (int j = k; j < cols; ++j) {
            double d = 0;
            for (int i = k; i < rows; ++i)
                d += vv[i] * M[j * rows + i];
            d = 2 * d / vn;
            for (int i = k; i < rows; ++i)
                M[j * rows + i] -= d * vv[i];
        }
        double d = 0;
        for (int i = k; i < rows; ++i)
            d += vv[i] * b[i];
        d = 2 * d / vn;
        for (int i = k; i < rows; ++i)
            b[i] -= d * vv[i];
    }
    std::vector<double> x(cols, 0.0);
    for (int k = cols - 1; k >= 0; --k) {
        double s = b[k];
        for (int j = k + 1; j < cols; ++j)
            s -= M[j * rows + k] * x[j];
        x[k] = s / M[k * rows + k];
    }
    for (int j = 0; j < cols; ++j)
        x[j] /= sc[j];
    return x;
}

// Impulse response of the loop filter the NTF asks for: L1 = 1 - 1/NTF.
std::vector<double> desiredLoopResponse(const Ntf& ntf, int len)
{
    const auto num = polyFromRoots(ntf.zeros); // z^-k coefficients, num[0] = 1
    const auto den = polyFromRoots(ntf.poles);
    std::vector<double> h(len, 0.0);
    for (int i = 0; i < len; ++i) {
        double acc = (i < int(num.size()) ? num[i] : 0.0) - (i < int(den.size()) ? den[i] : 0.0);
        for (int k = 1; k <= i && k < int(num.size()); ++k)
            acc -= num[k] * h[i - k];
        h[i] = acc;
    }
    return h;
}

void toStateSpace(const Topo& t, ModulatorDesign& d)
{
    const int n = t.n;
    d.n = n;
    d.A.assign(std::size_t(n) * n, 0.0);
    d.B0.assign(n, 0.0);
    d.B1.assign(n, 0.0);
    d.C.assign(n, 0.0);
    std::vector<double> x(n), xn(n);
    for (int j = 0; j < n; ++j) {
        std::fill(x.begin(), x.end(), 0.0);
        x[j] = 1;
        step(t, x.data(), 0, 0, xn.data());
        for (int i = 0; i < n; ++i)
            d.A[std::size_t(i) * n + j] = xn[i];
        d.C[j] = outputOf(t, x.data(), 0);
    }
    std::fill(x.begin(), x.end(), 0.0);
    step(t, x.data(), 1, 0, xn.data());
    d.B0 = xn;
    step(t, x.data(), 0, 1, xn.data());
    d.B1 = xn;
    d.D0 = outputOf(t, x.data(), 1);
}

cplx transfer(const ModulatorDesign& d, const std::vector<double>& B, double D, double f)
{
    // C (zI - A)^-1 B + D by complex Gaussian elimination.
    const int n = d.n;
    const cplx z = std::polar(1.0, 2 * kPi * f);
    std::vector<cplx> M(std::size_t(n) * n), r(n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j)
            M[std::size_t(i) * n + j] = -d.A[std::size_t(i) * n + j];
        M[std::size_t(i) * n + i] += z;
        r[i] = B[i];
    }
    for (int c = 0; c < n; ++c) {
        int p = c;
        for (int i = c + 1; i < n; ++i)
            if (std::abs(M[std::size_t(i) * n + c]) > std::abs(M[std::size_t(p) * n + c]))
                p = i;
        if (p != c) {
            for (int j = 0; j < n; ++j)
                std::swap(M[std::size_t(c) * n + j], M[std::size_t(p) * n + j]);
            std::swap(r[c], r[p]);
        }
        for (int i = c + 1; i < n; ++i) {
            const cplx fct = M[std::size_t(i) * n + c] / M[std::size_t(c) * n + c];
            for (int j = c; j < n; ++j)
                M[std::size_t(i) * n + j] -= fct * M[std::size_t(c) * n + j];
            r[i] -= fct * r[c];
        }
    }
    std::vector<cplx> xs(n);
    for (int c = n - 1; c >= 0; --c) {
        cplx s = r[c];
        for (int j = c + 1; j < n; ++j)
            s -= M[std::size_t(c) * n + j] * xs[j];
        xs[c] = s / M[std::size_t(c) * n + c];
    }
    cplx y = D;
    for (int i = 0; i < n; ++i)
        y += d.C[i] * xs[i];
    return y;
}

} // namespace

cplx ModulatorDesign::loopU(double f) const { return transfer(*this, B0, D0, f); }
cplx ModulatorDesign::loopV(double f) const { return transfer(*this, B1, 0.0, f); }

int defaultOrder(ModulatorType type)
{
    switch (type) {
    case ModulatorType::SingleLoop: return 9;
    case ModulatorType::Cifb: return 7;
    case ModulatorType::Mash: return 2;
    case ModulatorType::SosEf:
    default: return 8; // eight states fill two 4-wide vectors in the block kernel
    }
}

double defaultHinf(ModulatorType type, int order)
{
    (void)type;
    // Out-of-band gain: the classic 1.5 bound for a one-bit quantiser, a
    // little less from order 9 up where the measured stable range shrinks
    // fastest (at 1.45 the order-9 loop keeps -5 dBFS; at 1.5, -5.75).
    if (order <= 3)
        return 1.6;
    if (order <= 8)
        return 1.5;
    return 1.45;
}

static const char* typeName(ModulatorType t)
{
    switch (t) {
    case ModulatorType::SingleLoop: return "single loop, resonators with feed-forward";
    case ModulatorType::Cifb: return "CIFB, resonator chain with distributed feedback";
    case ModulatorType::Mash: return "MASH";
    case ModulatorType::SosEf:
    default: return "error feedback, cascaded second-order sections";
    }
}

bool designModulator(ModulatorType type, int order, double fb, ModulatorDesign& d, std::string* error)
{
    if (type == ModulatorType::Mash) {
        if (error)
            *error = "MASH modulators are not available for 1-bit DSD: a MASH cancels the first stage's noise by "
                     "adding the later stages' outputs, which makes the output multi-level; squeezing it back "
                     "into one bit re-quantises it and undoes the cancellation. Use --sos-ef, --order N or --cifb N.";
        return false;
    }
    if (order == 0)
        order = defaultOrder(type);
    if (order < 2 || order > kMaxModOrder) {
        if (error)
            *error = "modulator order " + std::to_string(order) + " is out of range: use 2 to "
                     + std::to_string(kMaxModOrder);
        return false;
    }
    d = {};
    d.type = type;
    d.order = order;
    d.ntf = synthesizeNtf(order, fb, defaultHinf(type, order));

    Topo t;
    t.type = type;
    if (type == ModulatorType::SosEf) {
        std::vector<cplx> zp, pp;
        std::vector<double> zr, pr;
        for (const cplx& z : d.ntf.zeros)
            if (z.imag() > 1e-15)
                zp.push_back(z);
            else if (std::abs(z.imag()) <= 1e-15)
                zr.push_back(z.real());
        for (const cplx& p : d.ntf.poles)
            if (p.imag() > 1e-15)
                pp.push_back(p);
            else if (std::abs(p.imag()) <= 1e-15)
                pr.push_back(p.real());
        auto byArg = [](const cplx& a, const cplx& b) { return std::arg(a) < std::arg(b); };
        std::sort(zp.begin(), zp.end(), byArg);
        std::sort(pp.begin(), pp.end(), byArg);
        if (zp.size() != pp.size() || zr.size() != pr.size()) {
            if (error)
                *error = "internal: unmatched NTF sections";
            return false;
        }
        for (std::size_t k = 0; k < zr.size(); ++k) {
            t.sosOrder.push_back(1);
            t.sb1.push_back(-zr[k]);
            t.sb2.push_back(0);
            t.sa1.push_back(-pr[k]);
            t.sa2.push_back(0);
        }
        for (std::size_t k = 0; k < zp.size(); ++k) {
            t.sosOrder.push_back(2);
            t.sb1.push_back(-2 * zp[k].real());
            t.sb2.push_back(std::norm(zp[k]));
            t.sa1.push_back(-2 * pp[k].real());
            t.sa2.push_back(std::norm(pp[k]));
        }
        t.n = order;
    } else {
        chainSections(d.ntf, t);
        const int n = t.n;
        const int len = 4 * n + 8;
        const auto h = desiredLoopResponse(d.ntf, len);
        std::vector<double> M(std::size_t(len) * n, 0.0), rhs(len);
        std::vector<double> x(n), xn(n);
        if (type == ModulatorType::SingleLoop) {
            t.c.assign(n, 0.0);
            std::fill(x.begin(), x.end(), 0.0);
            for (int k = 0; k < len; ++k) {
                // y[k] = sum c_i x_i[k] with v = delta
                for (int i = 0; i < n; ++i)
                    M[std::size_t(i) * len + k] = x[i];
                step(t, x.data(), 0, k == 0 ? 1 : 0, xn.data());
                x = xn;
            }
            for (int k = 0; k < len; ++k)
                rhs[k] = h[k];
            t.c = leastSquares(len, n, M, rhs);
        } else {
            t.a.assign(n, 0.0);
            t.b.assign(n, 0.0);
            for (int j = 0; j < n; ++j) {
                Topo u = t;
                u.a.assign(n, 0.0);
                u.a[j] = -1; // inject +v at state j
                std::fill(x.begin(), x.end(), 0.0);
                for (int k = 0; k < len; ++k) {
                    M[std::size_t(j) * len + k] = -x[n - 1]; // contribution of -a_j v
                    step(u, x.data(), 0, k == 0 ? 1 : 0, xn.data());
                    x = xn;
                }
            }
            for (int k = 0; k < len; ++k)
                rhs[k] = h[k];
            t.a = leastSquares(len, n, M, rhs);
            t.b.assign(n, 0.0);
            t.b[0] = t.a[0]; // classic: the signal enters at the first integrator only
        }
    }
    toStateSpace(t, d);
    d.topology = std::string(typeName(type)) + ", order " + std::to_string(order);

    // Check the realisation reproduces the designed NTF.
    double worst = 0;
    for (int i = 1; i < 200; ++i) {
        const double f = 0.5 * i / 200.0;
        const cplx a = d.ntfRealised(f), b = d.ntf.eval(f);
        worst = std::max(worst, std::abs(a - b) / std::max(1e-300, std::abs(b)));
    }
    if (!(worst < 1e-2)) { // 1% = 0.09 dB of noise shape: pole placement, not zeros
        if (error)
            *error = "internal: modulator realisation does not match its NTF (" + std::to_string(worst) + ")";
        return false;
    }

    // Measure the largest stable sine amplitude: descend in 0.25 dB steps
    // until three consecutive levels run clean, with a tone near the bottom
    // of the band (1 kHz at DSD64) and one a quarter of the way up (5 kHz);
    // low tones drive the integrators hardest, higher ones the resonators.
    // The sweep runs through the block kernel with open limits.
    d.limit.assign(d.n, 1e300);
    buildBlockKernel(d, d.kernel);
    ModulatorRunner r(&d);
    r.clipping = false;
    r.track = true;
    const int len = 40000;
    std::vector<double> u(len);
    std::vector<std::uint8_t> bits(len);
    std::vector<double> base; // reference state sizes; empty while measuring them
    auto simulate = [&](double amp, double f0, std::vector<double>& ms) {
        for (int i = 0; i < len; ++i)
            u[i] = amp * std::sin(2 * kPi * f0 * i);
        r.reset();
        std::fill(r.maxAbsState.begin(), r.maxAbsState.end(), 0.0);
        for (int i = 0; i < len; i += 2000) {
            r.run(u.data() + i, std::min(2000, len - i), bits.data() + i);
            for (std::size_t k = 0; k < r.maxAbsState.size(); ++k) {
                const double m = r.maxAbsState[k];
                if (!(m < 1e30) || (!base.empty() && k < base.size() && m > 20 * base[k] + 1e-300))
                    return false; // lost: no need to run on
            }
        }
        ms = r.maxAbsState;
        return true;
    };
    const double tones[2] = {fb * 0.05, fb * 0.25};
    // Reference state sizes from a moderate tone. A design that cannot even
    // carry that, or whose quantiser input wanders far beyond the +-1 it
    // decides between, is unusable.
    std::vector<double> ms, ref(d.n, 0.0);
    for (double f0 : tones) {
        r.maxAbsY = 0;
        r.trackInBlocks = false; // per sample here: it also watches the quantiser input
        const bool ok = simulate(0.25, f0, ms);
        r.trackInBlocks = true;
        if (!ok || r.maxAbsY > 8) {
            if (error)
                *error = "modulator " + d.topology + " is unstable even at -12 dBFS; choose a lower order";
            return false;
        }
        for (int i = 0; i < d.n; ++i)
            ref[i] = std::max(ref[i], ms[i]);
    }
    base = ref;
    auto stableAt = [&](double amp, std::vector<double>& peak) {
        peak.assign(d.n, 0.0);
        for (double f0 : tones) {
            if (!simulate(amp, f0, ms))
                return false;
            for (int i = 0; i < d.n; ++i) {
                if (ms[i] > 20 * base[i] + 1e-300)
                    return false;
                peak[i] = std::max(peak[i], ms[i]);
            }
        }
        return true;
    };
    // Bisection on a 0.25 dB grid (stability falls off monotonically with
    // level in practice), then the two grid steps below must be clean too.
    std::vector<double> peakState, atLevel;
    auto clean = [&](int q) { return stableAt(std::pow(10.0, q * 0.25 / 20), peakState); };
    int lo = -120, hi = 0; // quarter-dB steps: -30 dB .. 0 dB
    if (clean(hi)) {
        lo = hi;
    } else {
        while (hi - lo > 1) {
            const int mid = (lo + hi) / 2;
            if (clean(mid))
                lo = mid;
            else
                hi = mid;
        }
    }
    while (lo > -120 && !(clean(lo - 1) && clean(lo - 2) && clean(lo)))
        --lo;
    clean(lo);
    atLevel = peakState;
    const double level = lo * 0.25;
    d.maxStable = std::pow(10.0, level / 20);
    if (atLevel.empty())
        atLevel = base;
    d.limit.resize(d.n);
    // Clip levels well above anything a stable run reaches, so clipping
    // only ever acts on a loop that has actually lost control.
    for (int i = 0; i < d.n; ++i)
        d.limit[i] = 2.0 * std::max(atLevel[i], base[i]);
    buildBlockKernel(d, d.kernel);
    return true;
}

ModulatorRunner::ModulatorRunner(const ModulatorDesign* d)
    : d_(d)
{
    const int np = std::max(d->n, d->kernel.np);
    x_.assign(np, 0.0);
    xn_.assign(np, 0.0);
    maxAbsState.assign(d->n, 0.0);
}

namespace {
// A NaN or infinity in the state passes every clip test (comparisons with
// NaN are false) and stays forever, pinning the output to one value: the
// loop is dead, not overloaded.
bool stateFinite(const double* x, int n)
{
    double sum = 0;
    for (int i = 0; i < n; ++i)
        sum += x[i] * 0.0;
    return sum == 0.0;
}
} // namespace

// Once per call, outside the sample loops, so that those stay as they are.
__attribute__((noinline)) void ModulatorRunner::resetIfDead()
{
    if (stateFinite(x_.data(), d_->n))
        return;
    std::fill(x_.begin(), x_.end(), 0.0);
    windowCount_ = windowClipped_ = 0;
    ++resets;
    ++nonFiniteResets;
}

void ModulatorRunner::reset()
{
    std::fill(x_.begin(), x_.end(), 0.0);
    windowCount_ = windowClipped_ = 0;
}

void ModulatorRunner::run(const double* u, std::size_t n, std::uint8_t* bits)
{
    if (track && trackInBlocks && d_->kernel.np != 0) {
        const std::size_t nb = n / kBlock;
        flags_.resize(nb);
        runBlocks(d_->kernel, x_.data(), u, nb, bits, flags_.data(), maxAbsState.data());
        if (nb * kBlock < n)
            runSamples(u + nb * kBlock, n - nb * kBlock, bits + nb * kBlock);
        return;
    }
    if (track || !clipping || d_->kernel.np == 0) {
        runSamples(u, n, bits);
        if (clipping)
            resetIfDead();
        return;
    }
    const std::size_t nb = n / kBlock;
    std::size_t done = runWindowed(u, nb, bits, false);
    if (done < n)
        runSamples(u + done, n - done, bits + done);
    resetIfDead();
}

std::size_t ModulatorRunner::runWindowed(const double* u, std::size_t nblocks, std::uint8_t* out, bool packed)
{
    constexpr std::uint32_t kWindow = 1024;
    std::size_t blocks = 0;
    while (blocks < nblocks) {
        std::size_t nb = nblocks - blocks;
        const std::uint32_t room = windowCount_ < kWindow ? (kWindow - windowCount_) / kBlock : 0;
        nb = std::min<std::size_t>(nb, std::max<std::uint32_t>(room, 1));
        flags_.resize(nb);
        std::uint8_t* dst = out + (packed ? blocks : blocks * kBlock);
        const std::size_t c
            = runBlocks(d_->kernel, x_.data(), u + blocks * kBlock, nb, dst, flags_.data(), nullptr, packed);
        overloads += c;
        windowClipped_ += std::uint32_t(c) * kBlock;
        windowCount_ += std::uint32_t(nb) * kBlock;
        blocks += nb;
        if (windowCount_ >= kWindow) {
            // Sustained clipping means the loop has lost lock; clipping
            // alone would keep it limit-cycling, so start afresh.
            if (windowClipped_ > 64) {
                std::fill(x_.begin(), x_.end(), 0.0);
                ++resets;
            }
            windowCount_ = windowClipped_ = 0;
        }
    }
    return blocks * kBlock;
}

void ModulatorRunner::runPacked(const double* u, std::size_t n, std::vector<std::uint8_t>& out, unsigned& acc,
                                int& nacc)
{
    std::uint8_t b[8];
    std::size_t i = 0;
    auto single = [&](std::size_t count) {
        runSamples(u + i, count, b);
        for (std::size_t k = 0; k < count; ++k) {
            acc = (acc << 1) | b[k];
            if (++nacc == 8) {
                out.push_back(std::uint8_t(acc));
                acc = 0;
                nacc = 0;
            }
        }
        i += count;
    };
    if (nacc != 0)
        single(std::min<std::size_t>(n, std::size_t(8 - nacc)));
    if (d_->kernel.np != 0 && n - i >= std::size_t(kBlock)) {
        const std::size_t nb = (n - i) / kBlock;
        const std::size_t o = out.size();
        out.resize(o + nb);
        i += runWindowed(u + i, nb, out.data() + o, true);
    }
    while (i < n)
        single(std::min<std::size_t>(n - i, 8));
    if (clipping)
        resetIfDead();
}

void ModulatorRunner::runSamples(const double* u, std::size_t n, std::uint8_t* bits)
{
    const int N = d_->n;
    const double* A = d_->A.data();
    const double* B0 = d_->B0.data();
    const double* B1 = d_->B1.data();
    const double* C = d_->C.data();
    const double* lim = d_->limit.data();
    const double D0 = d_->D0;
    double* x = x_.data();
    double* xn = xn_.data();
    for (std::size_t t = 0; t < n; ++t) {
        double y = D0 * u[t];
        for (int i = 0; i < N; ++i)
            y += C[i] * x[i];
        const double v = y >= 0 ? 1.0 : -1.0;
        bits[t] = y >= 0;
        for (int i = 0; i < N; ++i) {
            double s = B0[i] * u[t] + B1[i] * v;
            for (int j = 0; j < N; ++j)
                s += A[i * N + j] * x[j];
            xn[i] = s;
        }
        std::swap(x, xn);
        if (track) {
            maxAbsY = std::max(maxAbsY, std::abs(y));
            for (int i = 0; i < N; ++i)
                maxAbsState[i] = std::max(maxAbsState[i], std::abs(x[i]));
        }
        if (clipping) {
            bool clipped = false;
            for (int i = 0; i < N; ++i) {
                if (x[i] > lim[i]) {
                    x[i] = lim[i];
                    clipped = true;
                } else if (x[i] < -lim[i]) {
                    x[i] = -lim[i];
                    clipped = true;
                }
            }
            if (clipped) {
                ++overloads;
                ++windowClipped_;
            }
            if (++windowCount_ == 1024) {
                // Sustained clipping means the loop has lost lock; clipping
                // alone would keep it limit-cycling, so start afresh.
                if (windowClipped_ > 64) {
                    std::fill(x, x + N, 0.0);
                    ++resets;
                }
                windowCount_ = windowClipped_ = 0;
            }
        }
    }
    if (x != x_.data())
        std::memcpy(x_.data(), x, sizeof(double) * N);
}

} // namespace zuvo::dsp::detail
