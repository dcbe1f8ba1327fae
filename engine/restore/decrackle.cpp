#include "restore/decrackle.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "restore/ar_model.h"

namespace zuvo::restore {

namespace {

double robustSigma(const std::vector<double>& e)
{
    std::vector<double> mag(e.size());
    for (std::size_t i = 0; i < e.size(); ++i)
        mag[i] = std::abs(e[i]);
    const auto mid = mag.begin() + static_cast<std::ptrdiff_t>(mag.size() / 2);
    std::nth_element(mag.begin(), mid, mag.end());
    return 1.4826 * *mid;
}

// A residual this small is arithmetic, not signal (about -200 dBFS).
constexpr double kSigmaFloor = 1e-10;

} // namespace

void repairClicks(double* x, std::size_t n, std::size_t from, std::size_t to, double threshold,
                  std::vector<ClickRun>& runs)
{
    const std::size_t p = kCrackleOrder;
    std::vector<double> a;
    if (n <= 4 * p || !fitAr(x, n, kCrackleOrder, a))
        return;
    std::vector<double> e(n - p);
    arResidual(x, a, p, n, e.data());
    const double sigma = robustSigma(e);
    if (!(sigma > kSigmaFloor))
        return;
    // Excursions under kCrackleFloor are never clicks: on very clean material
    // sigma is the quantisation noise, and the model's own small misfit of a
    // loud tone would otherwise pass for crackle.
    const double limit = std::max(threshold * sigma, kCrackleFloor);
    // The forward residual of a click starts exactly at its first sample
    // and rings on for up to p samples after it; the backward residual (the
    // same model run against time) ends exactly at its last sample and rings
    // before it. A stretch where either is over the limit is one event; it is
    // cut down to [first forward hit, last backward hit], which keeps the
    // interpolated run close to the click's own length.
    auto backward = [&](std::size_t t) {
        double s = 0;
        for (std::size_t k = 0; k <= p; ++k)
            s += a[k] * x[t + k];
        return s;
    };
    struct Event {
        std::size_t first, last;              // any hit
        std::size_t fwdFirst = SIZE_MAX, bwdLast = 0;
    };
    std::vector<Event> events;
    const std::size_t lo = std::max(from, p);
    const std::size_t hi = n - p - kCracklePadAfter;
    for (std::size_t t = lo; t < hi; ++t) {
        const bool fwd = std::abs(e[t - p]) > limit;
        const bool bwd = std::abs(backward(t)) > limit;
        if (!fwd && !bwd)
            continue;
        if (events.empty() || t > events.back().last + kCrackleMergeGap) {
            if (t >= to)
                break;
            events.push_back({t, t});
        }
        Event& ev = events.back();
        ev.last = t;
        if (fwd)
            ev.fwdFirst = std::min(ev.fwdFirst, t);
        if (bwd)
            ev.bwdLast = t;
    }
    std::vector<ClickRun> found;
    for (const Event& ev : events) {
        std::size_t first = ev.first, last = ev.last + 1;
        if (ev.fwdFirst != SIZE_MAX && ev.bwdLast + 1 > ev.fwdFirst)
            first = ev.fwdFirst, last = ev.bwdLast + 1;
        // Samples before `from` have already left the stage.
        const ClickRun r{std::max(first - std::min(first, kCracklePadBefore), from),
                         std::min(last + kCracklePadAfter, hi)};
        if (!found.empty() && r.first <= found.back().last + kCrackleMergeGap)
            found.back().last = r.last;
        else
            found.push_back(r);
    }
    // Union with the earlier passes' runs, in order, overlaps joined.
    found.insert(found.end(), runs.begin(), runs.end());
    std::sort(found.begin(), found.end(), [](const ClickRun& l, const ClickRun& r) { return l.first < r.first; });
    std::vector<ClickRun> merged;
    for (const ClickRun& r : found) {
        if (r.last - r.first > kCrackleMaxRun)
            continue;
        if (!merged.empty() && r.first <= merged.back().last)
            merged.back().last = std::max(merged.back().last, r.last);
        else
            merged.push_back(r);
    }
    // Runs within one model order of each other share predictions: solve
    // them together.
    runs.clear();
    std::size_t i = 0;
    while (i < merged.size()) {
        std::size_t j = i + 1;
        while (j < merged.size() && merged[j].first < merged[j - 1].last + p)
            ++j;
        std::vector<std::size_t> unknown;
        for (std::size_t k = i; k < j; ++k)
            for (std::size_t u = merged[k].first; u < merged[k].last; ++u)
                unknown.push_back(u);
        if (unknown.size() <= kCrackleMaxUnknowns && lsarInterpolate(x, a, unknown))
            runs.insert(runs.end(), merged.begin() + static_cast<std::ptrdiff_t>(i),
                        merged.begin() + static_cast<std::ptrdiff_t>(j));
        i = j;
    }
}

Decrackle::Decrackle(int channels, double threshold) : threshold_(threshold)
{
    const auto c = static_cast<std::size_t>(channels);
    // Leading silence as the first block's past, and as the delay line.
    in_.assign(c, std::vector<double>(kCrackleContext, 0.0));
    out_.assign(c, std::vector<double>(latency(), 0.0));
    outRead_.assign(c, 0);
    blocks_.assign(c, 0);
}

void Decrackle::block(std::size_t c)
{
    std::vector<double>& buf = in_[c];
    const std::size_t n = kCrackleHop + 2 * kCrackleContext;
    // The first block's past is silence: the step from it into the music is
    // no click, so its first model-order samples are not searched. Likewise
    // the step from the music's end into the flushing silence.
    const std::size_t from = kCrackleContext + (blocks_[c] == 0 ? kCrackleOrder : 0);
    std::size_t to = kCrackleContext + kCrackleHop, len = n;
    const std::uint64_t start = blocks_[c] * kCrackleHop; // input index of buf[kCrackleContext]
    if (endAt_ != UINT64_MAX) {
        const std::uint64_t end = endAt_ + kCrackleContext - std::min<std::uint64_t>(start, endAt_ + kCrackleContext);
        len = static_cast<std::size_t>(std::min<std::uint64_t>(n, end));
        to = std::min(to, len > kCrackleOrder ? len - kCrackleOrder : 0);
    }
    ++blocks_[c];
    // Nor is that silence fitted: the model of the first block sees music only.
    const std::size_t skip = start == 0 ? kCrackleContext : 0;
    std::vector<ClickRun> runs;
    if (to > from && len > skip + 4 * kCrackleOrder)
        for (int pass = 0; pass < kCracklePasses; ++pass)
            repairClicks(buf.data() + skip, len - skip, from - skip, to - skip, threshold_, runs);
    for (ClickRun& r : runs)
        r.first += skip, r.last += skip;
    for (const ClickRun& r : runs) {
        ++clicks_;
        samples_ += r.last - r.first;
    }
    const auto begin = buf.begin() + static_cast<std::ptrdiff_t>(kCrackleContext);
    out_[c].insert(out_[c].end(), begin, begin + static_cast<std::ptrdiff_t>(kCrackleHop));
    buf.erase(buf.begin(), buf.begin() + static_cast<std::ptrdiff_t>(kCrackleHop));
}

void Decrackle::markEnd()
{
    if (endAt_ == UINT64_MAX && !in_.empty())
        endAt_ = blocks_[0] * kCrackleHop + (in_[0].size() - kCrackleContext);
}

void Decrackle::process(std::vector<std::vector<double>>& ch, std::size_t n)
{
    const std::size_t need = kCrackleHop + 2 * kCrackleContext;
    for (std::size_t c = 0; c < ch.size(); ++c) {
        in_[c].insert(in_[c].end(), ch[c].begin(), ch[c].begin() + static_cast<std::ptrdiff_t>(n));
        while (in_[c].size() >= need)
            block(c);
        std::vector<double>& q = out_[c];
        std::copy_n(q.begin() + static_cast<std::ptrdiff_t>(outRead_[c]), n, ch[c].begin());
        outRead_[c] += n;
        if (outRead_[c] > (1u << 16)) {
            q.erase(q.begin(), q.begin() + static_cast<std::ptrdiff_t>(outRead_[c]));
            outRead_[c] = 0;
        }
    }
}

} // namespace zuvo::restore
