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

void PolyphaseStage::process(const double* in, std::size_t n, Samples& out)
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

TwoPhaseInterpolator::TwoPhaseInterpolator(const std::vector<double>& h)
{
    for (int r = 0; r < 2; ++r) {
        for (std::size_t j = std::size_t(r); j < h.size(); j += 2)
            g_[r].push_back(2.0 * h[j]);
        copyDelay_[r] = -1;
        int nz = 0, at = 0;
        for (std::size_t k = 0; k < g_[r].size(); ++k)
            if (g_[r][k] != 0) {
                ++nz;
                at = int(k);
            }
        if (nz == 1 && g_[r][std::size_t(at)] == 1.0)
            copyDelay_[r] = at;
    }
    H_ = int(std::max(g_[0].size(), g_[1].size())) - 1;
    hist_.assign(std::size_t(std::max(H_, 0)), 0.0);
}

void TwoPhaseInterpolator::process(const double* in, std::size_t n, Samples& out)
{
    const std::size_t H = std::size_t(H_);
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
        const double* w = work_.data() + H;
        interpolate2(w, g_[0].data(), int(g_[0].size()), copyDelay_[0], g_[1].data(), int(g_[1].size()),
                     copyDelay_[1], o, m);
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

void BitDecimator::process(const std::uint8_t* bytes, std::size_t n, Samples& out)
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
