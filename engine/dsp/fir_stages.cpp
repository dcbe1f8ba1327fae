#include "fir_stages.h"

#include <algorithm>
#include <cstring>

#include "simd_kernels.h"

namespace zuvo::dsp::detail {

PolyphaseStage::PolyphaseStage(const std::vector<double>& h, int L, int M, double gain)
    : L_(L), M_(M)
{
    P_ = int((h.size() + std::size_t(L) - 1) / std::size_t(L));
    table_.assign(std::size_t(L) * P_, 0.0);
    for (int p = 0; p < L; ++p)
        for (int j = 0; j < P_; ++j) {
            const std::size_t k = std::size_t(p) + std::size_t(P_ - 1 - j) * L;
            table_[std::size_t(p) * P_ + j] = k < h.size() ? gain * h[k] : 0.0;
        }
    buf_.assign(std::size_t(P_ - 1), 0.0);
    base_ = -(P_ - 1);
}

void PolyphaseStage::process(const double* in, std::size_t n, std::vector<double>& out)
{
    buf_.insert(buf_.end(), in, in + n);
    avail_ += std::int64_t(n);
    const int P = P_;
    for (;;) {
        const std::int64_t t = next_ * M_;
        const std::int64_t i = t / L_;
        if (i >= avail_)
            break;
        const int p = int(t - i * L_);
        const double* x = buf_.data() + (i - P + 1 - base_);
        const double* c = table_.data() + std::size_t(p) * P;
        out.push_back(dot(c, x, P));
        ++next_;
    }
    // Keep only the history the next output needs.
    const std::int64_t need = (next_ * M_) / L_ - P + 1;
    const std::int64_t drop = std::min<std::int64_t>(need - base_, std::int64_t(buf_.size()));
    if (drop > 4096 || drop * 2 > std::int64_t(buf_.size())) {
        if (drop > 0) {
            buf_.erase(buf_.begin(), buf_.begin() + drop);
            base_ += drop;
        }
    }
}

HalfbandInterpolator::HalfbandInterpolator(const std::vector<double>& h)
{
    const int n = int(h.size());
    const int K = (n + 1) / 4;
    K2_ = 2 * K;
    delay_ = K - 1;
    g_.resize(K2_);
    for (int k = 0; k < K2_; ++k)
        g_[k] = 2.0 * h[2 * k];
    hist_.assign(std::size_t(K2_ - 1), 0.0);
}

void HalfbandInterpolator::process(const double* in, std::size_t n, std::vector<double>& out)
{
    const std::size_t H = std::size_t(K2_ - 1);
    constexpr std::size_t kBlock = 2048;
    const std::size_t old = out.size();
    out.resize(old + 2 * n);
    double* o = out.data() + old;
    for (std::size_t done = 0; done < n;) {
        const std::size_t m = std::min(kBlock, n - done);
        // work_ = [history | block]; x[i] lives at work_[H + i].
        work_.resize(H + m);
        std::memcpy(work_.data(), hist_.data(), H * sizeof(double));
        std::memcpy(work_.data() + H, in + done, m * sizeof(double));
        even_.resize(m);
        const double* w = work_.data();
        // g_ is stored so that g_[k] multiplies x[i-k].
        firOuter(w + H, g_.data(), K2_, even_.data(), m);
        const double* e = even_.data();
        const double* d = w + H - delay_;
        for (std::size_t i = 0; i < m; ++i) {
            o[2 * i] = e[i];
            o[2 * i + 1] = d[i];
        }
        o += 2 * m;
        std::memcpy(hist_.data(), work_.data() + m, H * sizeof(double));
        done += m;
    }
}

BitDecimator::BitDecimator(const std::vector<double>& h)
{
    B_ = int((h.size() + 7) / 8);
    tables_.assign(std::size_t(B_) * 256, 0.0);
    for (int b = 0; b < B_; ++b)
        for (int v = 0; v < 256; ++v) {
            double s = 0;
            for (int q = 0; q < 8; ++q) {
                const std::size_t k = std::size_t(8 * b + 7 - q);
                const double c = k < h.size() ? h[k] : 0.0;
                s += ((v >> (7 - q)) & 1) ? c : -c;
            }
            tables_[std::size_t(b) * 256 + v] = s;
        }
    hist_.assign(std::size_t(B_ - 1), 0x69); // idle pattern: silence
}

void BitDecimator::process(const std::uint8_t* bytes, std::size_t n, std::vector<double>& out)
{
    std::vector<std::uint8_t> w(hist_);
    w.insert(w.end(), bytes, bytes + n);
    const std::size_t H = std::size_t(B_ - 1);
    const double* t = tables_.data();
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint8_t* cur = w.data() + H + i; // byte n-b is cur[-b]
        double acc = 0;
        for (int b = 0; b < B_; ++b)
            acc += t[std::size_t(b) * 256 + cur[-b]];
        out.push_back(acc);
    }
    std::copy(w.end() - std::ptrdiff_t(H), w.end(), hist_.begin());
}

} // namespace zuvo::dsp::detail
