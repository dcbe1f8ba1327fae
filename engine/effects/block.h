#pragma once
// The block every stage works on: one vector of doubles per channel, all of
// the same length, at the input rate; and the frequency response of a stage
// as a small complex matrix (outputs x inputs) used for the headroom bound.

#include <cmath>
#include <complex>
#include <cstddef>
#include <vector>

namespace zuvo::effects {

using Planar = std::vector<std::vector<double>>;
using cplx = std::complex<double>;

struct ResponseMatrix {
    int outs = 0, ins = 0;
    std::vector<cplx> m; // row-major, outs x ins

    static ResponseMatrix identity(int n)
    {
        ResponseMatrix r{n, n, std::vector<cplx>(static_cast<std::size_t>(n * n))};
        for (int i = 0; i < n; ++i)
            r.at(i, i) = 1.0;
        return r;
    }
    cplx& at(int o, int i) { return m[static_cast<std::size_t>(o * ins + i)]; }
    cplx at(int o, int i) const { return m[static_cast<std::size_t>(o * ins + i)]; }
    // this x rhs
    ResponseMatrix times(const ResponseMatrix& rhs) const
    {
        ResponseMatrix r{outs, rhs.ins, std::vector<cplx>(static_cast<std::size_t>(outs * rhs.ins))};
        for (int o = 0; o < outs; ++o)
            for (int k = 0; k < ins; ++k) {
                const cplx a = at(o, k);
                if (a == cplx(0))
                    continue;
                for (int i = 0; i < rhs.ins; ++i)
                    r.at(o, i) += a * rhs.at(k, i);
            }
        return r;
    }
};

// Integer-sample delay line for one channel: keeps the last `delay` samples
// between blocks.
class DelayLine {
public:
    explicit DelayLine(std::size_t delay = 0) : history_(delay, 0.0) {}
    std::size_t delay() const { return history_.size(); }
    // out[n] = in[n - delay]; `out` may not alias `in`.
    void process(const double* in, std::size_t n, double* out)
    {
        const std::size_t d = history_.size();
        if (d == 0) {
            for (std::size_t k = 0; k < n; ++k)
                out[k] = in[k];
            return;
        }
        for (std::size_t k = 0; k < n; ++k)
            out[k] = k < d ? history_[k] : in[k - d];
        if (n >= d) {
            for (std::size_t k = 0; k < d; ++k)
                history_[k] = in[n - d + k];
        } else {
            history_.erase(history_.begin(), history_.begin() + static_cast<std::ptrdiff_t>(n));
            history_.insert(history_.end(), in, in + n);
        }
    }

private:
    std::vector<double> history_;
};

// First-order low-pass y += a (x - y), a = 1 - exp(-2 pi fc / fs).
struct OnePole {
    double a = 1, y = 0;
    static OnePole at(double fc, double fs)
    {
        OnePole p;
        p.a = 1.0 - std::exp(-2.0 * 3.14159265358979323846 * fc / fs);
        return p;
    }
    double step(double x) { return y += a * (x - y); }
    cplx response(double hz, double fs) const
    {
        const cplx z1 = std::polar(1.0, -2.0 * 3.14159265358979323846 * hz / fs);
        return a / (1.0 - (1.0 - a) * z1);
    }
};

inline cplx delayResponse(std::size_t samples, double hz, double fs)
{
    return std::polar(1.0, -2.0 * 3.14159265358979323846 * hz / fs * static_cast<double>(samples));
}

} // namespace zuvo::effects
