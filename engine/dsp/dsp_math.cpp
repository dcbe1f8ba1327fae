#include "dsp_math.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zuvo::dsp::detail {

double besselI0(double x)
{
    // Power series; converges quickly for the beta values filters use (< 50).
    double sum = 1.0, term = 1.0;
    const double q = x * x / 4.0;
    for (int k = 1; k < 500; ++k) {
        term *= q / (double(k) * double(k));
        sum += term;
        if (term < sum * 1e-18)
            break;
    }
    return sum;
}

double kaiserBeta(double a)
{
    if (a > 50)
        return 0.1102 * (a - 8.7);
    if (a >= 21)
        return 0.5842 * std::pow(a - 21, 0.4) + 0.07886 * (a - 21);
    return 0;
}

int kaiserLength(double a, double df)
{
    df = std::max(df, 1e-6); // callers validate band edges; never divide by zero
    const double n = (a - 7.95) / (14.36 * df) + 1;
    return std::max(3, int(std::ceil(n)));
}

std::vector<double> makeWindow(const char* type, int n, double beta)
{
    std::vector<double> w(n, 1.0);
    const std::string t(type);
    const double m = n - 1;
    for (int i = 0; i < n; ++i) {
        const double x = m > 0 ? double(i) / m : 0.5; // 0..1
        const double p = 2 * kPi * x;
        if (t == "kaiser") {
            const double r = 2 * x - 1;
            w[i] = besselI0(beta * std::sqrt(std::max(0.0, 1 - r * r))) / besselI0(beta);
        } else if (t == "blackman") {
            w[i] = 0.42 - 0.5 * std::cos(p) + 0.08 * std::cos(2 * p);
        } else if (t == "flattop") {
            w[i] = 0.21557895 - 0.41663158 * std::cos(p) + 0.277263158 * std::cos(2 * p)
                 - 0.083578947 * std::cos(3 * p) + 0.006947368 * std::cos(4 * p);
        } else if (t == "bartlett") {
            w[i] = 1 - std::abs(2 * x - 1);
        } else if (t == "hamming") {
            w[i] = 0.54 - 0.46 * std::cos(p);
        } else if (t == "hanning") {
            w[i] = 0.5 - 0.5 * std::cos(p);
        }
    }
    return w;
}

std::vector<double> windowedSincLowpass(int n, double fc, const std::vector<double>& w)
{
    std::vector<double> h(n);
    const double c = (n - 1) / 2.0;
    double sum = 0;
    for (int i = 0; i < n; ++i) {
        const double t = i - c;
        const double s = t == 0 ? 2 * fc : std::sin(2 * kPi * fc * t) / (kPi * t);
        h[i] = s * w[i];
        sum += h[i];
    }
    for (double& v : h)
        v /= sum;
    return h;
}

void fft(std::vector<cplx>& a, bool inverse)
{
    const std::size_t n = a.size();
    for (std::size_t i = 1, j = 0; i < n; ++i) {
        std::size_t bit = n >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(a[i], a[j]);
    }
    for (std::size_t len = 2; len <= n; len <<= 1) {
        const double ang = 2 * kPi / double(len) * (inverse ? 1 : -1);
        const std::size_t half = len / 2;
        std::vector<cplx> tw(half);
        for (std::size_t k = 0; k < half; ++k)
            tw[k] = std::polar(1.0, ang * double(k)); // exact per-index twiddles keep the error floor low
        for (std::size_t i = 0; i < n; i += len) {
            for (std::size_t k = 0; k < half; ++k) {
                const cplx u = a[i + k];
                const cplx v = a[i + k + half] * tw[k];
                a[i + k] = u + v;
                a[i + k + half] = u - v;
            }
        }
    }
}

cplx firResponse(const double* h, std::size_t n, double f)
{
    // Horner-free direct sum with a rotating phasor re-anchored every 64
    // taps so long filters keep double-precision accuracy in the stop band.
    double re = 0, im = 0;
    const double w = -2 * kPi * f;
    for (std::size_t base = 0; base < n; base += 64) {
        cplx ph = std::polar(1.0, w * double(base));
        const cplx step = std::polar(1.0, w);
        const std::size_t end = std::min(n, base + 64);
        for (std::size_t i = base; i < end; ++i) {
            re += h[i] * ph.real();
            im += h[i] * ph.imag();
            ph *= step;
        }
    }
    return {re, im};
}

std::vector<double> minimumPhase(const std::vector<double>& h)
{
    // Real cepstrum of |H|, folded onto positive quefrencies. A large FFT
    // keeps cepstral aliasing small; a floor under |H| bounds the log where
    // the stop band has zeros on the unit circle.
    std::size_t n = 1;
    while (n < h.size() * 32)
        n <<= 1;
    std::vector<cplx> a(n);
    for (std::size_t i = 0; i < h.size(); ++i)
        a[i] = h[i];
    fft(a, false);
    for (auto& v : a)
        v = std::log(std::max(std::abs(v), 1e-13));
    fft(a, true);
    for (auto& v : a)
        v /= double(n);
    std::vector<cplx> c(n);
    c[0] = a[0].real();
    for (std::size_t i = 1; i < n / 2; ++i)
        c[i] = 2.0 * a[i].real();
    c[n / 2] = a[n / 2].real();
    fft(c, false);
    for (auto& v : c)
        v = std::exp(v);
    fft(c, true);
    std::vector<double> out(h.size());
    for (std::size_t i = 0; i < h.size(); ++i)
        out[i] = c[i].real() / double(n);
    return out;
}

std::vector<double> legendreRoots(int n)
{
    std::vector<double> r;
    for (int i = 1; i <= n; ++i) {
        double x = std::cos(kPi * (i - 0.25) / (n + 0.5));
        for (int it = 0; it < 100; ++it) {
            double p0 = 1, p1 = x;
            for (int k = 2; k <= n; ++k) {
                const double p2 = ((2 * k - 1) * x * p1 - (k - 1) * p0) / k;
                p0 = p1;
                p1 = p2;
            }
            const double pn = n == 0 ? 1 : p1;
            const double pm = n == 0 ? 0 : p0;
            const double d = n * (x * pn - pm) / (x * x - 1);
            const double dx = pn / d;
            x -= dx;
            if (std::abs(dx) < 1e-16)
                break;
        }
        r.push_back(x);
    }
    std::sort(r.begin(), r.end());
    return r;
}

std::vector<double> polyFromRoots(const std::vector<cplx>& roots)
{
    std::vector<cplx> p{1.0};
    for (const cplx& r : roots) {
        std::vector<cplx> q(p.size() + 1, 0.0);
        for (std::size_t i = 0; i < p.size(); ++i) {
            q[i] += p[i];
            q[i + 1] -= p[i] * r;
        }
        p = q;
    }
    std::vector<double> out(p.size());
    for (std::size_t i = 0; i < p.size(); ++i)
        out[i] = p[i].real();
    return out;
}

} // namespace zuvo::dsp::detail
