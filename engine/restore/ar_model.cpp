#include "restore/ar_model.h"

#include <cmath>

namespace zuvo::restore {

bool fitAr(const double* x, std::size_t n, int order, std::vector<double>& a)
{
    // Burg's method: no window, so the model keeps the spectrum's full
    // dynamic range (a windowed autocorrelation would stop at the window's
    // side lobes, and long gaps in tonal music need that range).
    const auto p = static_cast<std::size_t>(order);
    if (n <= 2 * p)
        return false;
    std::vector<double> f(x, x + n), b(x, x + n);
    a.assign(p + 1, 0.0);
    a[0] = 1;
    double energy = 0;
    for (std::size_t i = 0; i < n; ++i)
        energy += x[i] * x[i];
    if (!(energy > 1e-20))
        return false;
    std::vector<double> prev;
    for (std::size_t m = 1; m <= p; ++m) {
        double num = 0, den = 0;
        for (std::size_t t = m; t < n; ++t) {
            num += f[t] * b[t - 1];
            den += f[t] * f[t] + b[t - 1] * b[t - 1];
        }
        if (!(den > 0))
            return false;
        const double k = -2 * num / den;
        if (!(std::abs(k) < 1))
            return false;
        prev = a;
        for (std::size_t i = 1; i <= m; ++i)
            a[i] = prev[i] + k * prev[m - i];
        // Update the errors from the top down so that b[t - 1] is still the
        // previous order's.
        for (std::size_t t = n - 1; t >= m; --t) {
            const double ft = f[t], bt = b[t - 1];
            f[t] = ft + k * bt;
            b[t] = bt + k * ft;
        }
    }
    return true;
}

void arResidual(const double* x, const std::vector<double>& a, std::size_t first, std::size_t last, double* e)
{
    const std::size_t p = a.size() - 1;
    for (std::size_t t = first; t < last; ++t) {
        double s = 0;
        for (std::size_t k = 0; k <= p; ++k)
            s += a[k] * x[t - k];
        e[t - first] = s;
    }
}

namespace {

// In-place Cholesky solve of the symmetric positive definite m x m system.
bool choleskySolve(std::vector<double>& m, std::vector<double>& b, std::size_t n)
{
    for (std::size_t j = 0; j < n; ++j) {
        double d = m[j * n + j];
        for (std::size_t k = 0; k < j; ++k)
            d -= m[j * n + k] * m[j * n + k];
        if (!(d > 1e-300))
            return false;
        d = std::sqrt(d);
        m[j * n + j] = d;
        for (std::size_t i = j + 1; i < n; ++i) {
            double s = m[i * n + j];
            for (std::size_t k = 0; k < j; ++k)
                s -= m[i * n + k] * m[j * n + k];
            m[i * n + j] = s / d;
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        double s = b[i];
        for (std::size_t k = 0; k < i; ++k)
            s -= m[i * n + k] * b[k];
        b[i] = s / m[i * n + i];
    }
    for (std::size_t i = n; i-- > 0;) {
        double s = b[i];
        for (std::size_t k = i + 1; k < n; ++k)
            s -= m[k * n + i] * b[k];
        b[i] = s / m[i * n + i];
    }
    return true;
}

} // namespace

bool lsarInterpolate(double* x, const std::vector<double>& a, const std::vector<std::size_t>& unknown)
{
    const std::size_t m = unknown.size();
    if (m == 0)
        return true;
    const std::size_t p = a.size() - 1;
    // Every prediction touching an unknown sample is in the sum, so the
    // normal matrix is the coefficients' autocorrelation at the unknowns'
    // distances.
    std::vector<double> ra(p + 1, 0.0);
    for (std::size_t l = 0; l <= p; ++l)
        for (std::size_t k = 0; k + l <= p; ++k)
            ra[l] += a[k] * a[k + l];
    std::vector<double> mat(m * m, 0.0);
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = 0; j < m; ++j) {
            const std::size_t d = unknown[i] > unknown[j] ? unknown[i] - unknown[j] : unknown[j] - unknown[i];
            mat[i * m + j] = d <= p ? ra[d] : 0.0;
        }
    // Residual with the unknowns at zero, over every prediction involving them.
    std::vector<double> saved(m);
    for (std::size_t i = 0; i < m; ++i) {
        saved[i] = x[unknown[i]];
        x[unknown[i]] = 0;
    }
    const std::size_t first = unknown.front(), last = unknown.back() + p + 1;
    std::vector<double> e(last - first);
    arResidual(x, a, first, last, e.data());
    std::vector<double> b(m, 0.0);
    for (std::size_t i = 0; i < m; ++i) {
        double s = 0;
        for (std::size_t k = 0; k <= p; ++k)
            s += a[k] * e[unknown[i] + k - first];
        b[i] = -s;
    }
    if (!choleskySolve(mat, b, m)) {
        for (std::size_t i = 0; i < m; ++i)
            x[unknown[i]] = saved[i];
        return false;
    }
    for (std::size_t i = 0; i < m; ++i)
        x[unknown[i]] = b[i];
    return true;
}

} // namespace zuvo::restore
