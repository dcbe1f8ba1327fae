#include "dst/dst_filter.h"

#include <algorithm>
#include <cmath>

namespace zuvo::dst {

namespace {
// Portable bit count (no dependence on the popcnt instruction).
inline int popcount64(std::uint64_t x)
{
    x = x - ((x >> 1) & 0x5555555555555555ull);
    x = (x & 0x3333333333333333ull) + ((x >> 2) & 0x3333333333333333ull);
    x = (x + (x >> 4)) & 0x0f0f0f0f0f0f0f0full;
    return static_cast<int>((x * 0x0101010101010101ull) >> 56);
}

std::vector<std::uint64_t> packWords(const std::uint8_t* bytes, int bits)
{
    const std::size_t nbytes = static_cast<std::size_t>(bits) / 8;
    std::vector<std::uint64_t> w((nbytes + 7) / 8, 0);
    for (std::size_t i = 0; i < nbytes; ++i)
        w[i / 8] |= static_cast<std::uint64_t>(bytes[i]) << (56 - 8 * (i % 8));
    return w;
}
} // namespace

std::vector<double> autocorrelation(const std::uint8_t* bytes, int bits, int maxLag)
{
    const std::vector<std::uint64_t> x = packWords(bytes, bits);
    const std::size_t words = x.size();
    // Bits past the end (a partial last word) are zero in x; the count of
    // compared pairs is exact, differences there are removed below.
    const int tail = static_cast<int>(words * 64) - bits;
    std::vector<double> r(static_cast<std::size_t>(maxLag) + 1, 0.0);
    for (int k = 0; k <= maxLag && k < bits; ++k) {
        const std::size_t q = static_cast<std::size_t>(k) / 64;
        const int s = k % 64;
        long long diff = 0;
        for (std::size_t w = q; w < words; ++w) {
            const std::uint64_t cur = x[w - q];
            const std::uint64_t prev = w - q >= 1 ? x[w - q - 1] : 0;
            std::uint64_t y = s ? (cur >> s) | (prev << (64 - s)) : cur;
            std::uint64_t d = x[w] ^ y;
            if (w == q)
                d &= s ? (~std::uint64_t{0} >> s) : ~std::uint64_t{0};
            diff += popcount64(d);
        }
        // Past the end both x and the shifted x may hold data bits against
        // zeros; count those pairs out by recomputing the last word exactly.
        if (tail > 0) {
            const std::size_t w = words - 1;
            const std::uint64_t keep = ~std::uint64_t{0} << tail;
            const std::uint64_t cur = x[w - q];
            const std::uint64_t prev = w - q >= 1 ? x[w - q - 1] : 0;
            const std::uint64_t y = s ? (cur >> s) | (prev << (64 - s)) : cur;
            std::uint64_t d = x[w] ^ y;
            if (w == q)
                d &= s ? (~std::uint64_t{0} >> s) : ~std::uint64_t{0};
            diff -= popcount64(d & ~keep);
        }
        const long long pairs = bits - k;
        r[static_cast<std::size_t>(k)] = static_cast<double>(pairs - 2 * diff);
    }
    return r;
}

std::vector<double> levinson(const std::vector<double>& rIn, int order)
{
    if (rIn.empty() || rIn[0] <= 0)
        return {};
    std::vector<double> r(rIn.begin(), rIn.begin() + std::min<std::size_t>(rIn.size(), static_cast<std::size_t>(order) + 1));
    order = static_cast<int>(r.size()) - 1;
    r[0] *= 1.0 + 1e-5;
    // A gentle Gaussian lag window keeps the design robust for short frames.
    for (int k = 1; k <= order; ++k)
        r[static_cast<std::size_t>(k)] *= std::exp(-0.5 * std::pow(k * 1e-3, 2));
    std::vector<double> a(static_cast<std::size_t>(order), 0.0), prev;
    double err = r[0];
    for (int m = 0; m < order; ++m) {
        double acc = r[static_cast<std::size_t>(m) + 1];
        for (int k = 0; k < m; ++k)
            acc -= a[static_cast<std::size_t>(k)] * r[static_cast<std::size_t>(m - k)];
        const double kk = acc / err;
        prev = a;
        a[static_cast<std::size_t>(m)] = kk;
        for (int k = 0; k < m; ++k)
            a[static_cast<std::size_t>(k)] = prev[static_cast<std::size_t>(k)] - kk * prev[static_cast<std::size_t>(m - 1 - k)];
        err *= 1.0 - kk * kk;
        if (err <= r[0] * 1e-9)
            break;
    }
    return a;
}

std::vector<int> quantise(const std::vector<double>& a, int first)
{
    std::vector<int> c(a.size(), 0);
    if (a.empty())
        return c;
    double scale = 0;
    if (first != 0 && std::fabs(a[0]) > 1e-9) {
        scale = std::fabs(first) / std::fabs(a[0]);
    } else {
        first = 0;
        double m = 0;
        for (std::size_t k = 1; k < a.size(); ++k)
            m = std::max(m, std::fabs(a[k]));
        scale = m > 0 ? 128.0 / m : 0.0;
    }
    c[0] = first;
    for (std::size_t k = 1; k < a.size(); ++k)
        c[k] = static_cast<int>(std::clamp(std::lround(a[k] * scale), -255L, 255L));
    return c;
}

std::vector<int> firstCoefficientChoices(const std::vector<double>& a)
{
    if (a.empty() || std::fabs(a[0]) <= 1e-9)
        return {0};
    if (a[0] > 0)
        return {128, 0};
    return {-128, -256, 0};
}

} // namespace zuvo::dst
