#include "report/report_tap.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zuvo::report {

std::int64_t byteAlignedStep(int inputRate, int dsdRate)
{
    const std::int64_t bitsRate = std::int64_t(inputRate) * 8;
    return bitsRate / std::gcd(bitsRate, std::int64_t(dsdRate));
}

namespace {

std::int64_t roundUp(std::int64_t v, std::int64_t step) { return (v + step - 1) / step * step; }

// Long user filters would make the margins (and the memory they take) grow
// without bound; past a second the measured span simply includes their tail.
constexpr double kMaxMarginSeconds = 1.0;
constexpr double kMinMarginSeconds = 0.02;

} // namespace

std::int64_t marginFrames(const TapLayout& l)
{
    const double s = std::clamp(l.settleSeconds, kMinMarginSeconds, kMaxMarginSeconds);
    return roundUp(std::int64_t(std::ceil(s * l.inputRate)), byteAlignedStep(l.inputRate, l.dsdRate));
}

std::vector<ExcerptPlan> planExcerpts(const TapLayout& l, std::int64_t total)
{
    const std::int64_t step = byteAlignedStep(l.inputRate, l.dsdRate);
    const auto measured = std::int64_t(std::ceil(double(l.dsdSamplesPerExcerpt) * l.inputRate / l.dsdRate));
    const std::int64_t length = roundUp(measured, step) + 2 * marginFrames(l);
    if (total <= 0)
        return {ExcerptPlan{0, length}};
    if (total <= length)
        return {ExcerptPlan{0, total / step * step}};
    const auto count = std::int64_t(std::clamp<std::int64_t>(total / length, 1, std::int64_t(l.maxExcerpts)));
    std::vector<ExcerptPlan> plan;
    for (std::int64_t k = 0; k < count; ++k) {
        // Centred in the k-th of `count` equal parts of the file.
        const std::int64_t centre = (2 * k + 1) * total / (2 * count);
        std::int64_t start = std::clamp<std::int64_t>(centre - length / 2, 0, total - length);
        start = start / step * step;
        if (!plan.empty())
            start = std::max(start, plan.back().start + plan.back().frames);
        plan.push_back({start, length});
    }
    return plan;
}

ReportTap::ReportTap(const TapLayout& layout, int channels, std::int64_t totalFrames)
    : layout_(layout), plan_(planExcerpts(layout, totalFrames))
{
    const auto n = std::size_t(std::max(channels, 0));
    signal_.assign(n, std::vector<std::vector<double>>(plan_.size()));
    bytes_.assign(n, std::vector<std::vector<std::uint8_t>>(plan_.size()));
    signalPos_.assign(n, 0);
    bytePos_.assign(n, 0);
}

void ReportTap::addSignal(std::size_t c, const double* x, std::size_t n)
{
    if (c >= signal_.size())
        return;
    const std::int64_t from = signalPos_[c];
    const std::int64_t to = from + std::int64_t(n);
    for (std::size_t k = 0; k < plan_.size(); ++k) {
        const std::int64_t a = std::max(from, plan_[k].start);
        const std::int64_t b = std::min(to, plan_[k].start + plan_[k].frames);
        if (a < b)
            signal_[c][k].insert(signal_[c][k].end(), x + (a - from), x + (b - from));
    }
    signalPos_[c] = to;
}

void ReportTap::addBytes(std::size_t c, const std::vector<std::uint8_t>& bytes)
{
    if (c >= bytes_.size())
        return;
    const std::int64_t from = bytePos_[c];
    const std::int64_t to = from + std::int64_t(bytes.size());
    const std::int64_t perFrameDen = std::int64_t(layout_.inputRate) * 8;
    for (std::size_t k = 0; k < plan_.size(); ++k) {
        // Excerpts start and end on frames that map to whole bytes.
        const std::int64_t first = plan_[k].start * layout_.dsdRate / perFrameDen;
        const std::int64_t last = (plan_[k].start + plan_[k].frames) * layout_.dsdRate / perFrameDen;
        const std::int64_t a = std::max(from, first);
        const std::int64_t b = std::min(to, last);
        if (a < b)
            bytes_[c][k].insert(bytes_[c][k].end(), bytes.begin() + (a - from), bytes.begin() + (b - from));
    }
    bytePos_[c] = to;
}

} // namespace zuvo::report
