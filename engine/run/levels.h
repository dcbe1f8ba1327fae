#pragma once
// Peak and RMS of each channel, measured on the input as it is read; the
// numbers of the --report summary and of the log.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/options.h"

namespace zuvo::run {

struct ChannelLevel {
    double peak = 0;
    double sumSquares = 0;
    std::uint64_t count = 0;

    void add(const double* x, std::size_t n, std::size_t stride)
    {
        for (std::size_t i = 0; i < n; ++i) {
            const double v = x[i * stride];
            const double a = std::fabs(v);
            if (a > peak)
                peak = a;
            sumSquares += v * v;
        }
        count += n;
    }
    double peakDbfs() const { return peak > 0 ? 20 * std::log10(peak) : -INFINITY; }
    double rmsDbfs() const { return count && sumSquares > 0 ? 10 * std::log10(sumSquares / static_cast<double>(count)) : -INFINITY; }
};

// "ch1 peak -3.01 dBFS rms -6.02 dBFS" lines; which figures per the flags.
std::string levelReport(const std::vector<ChannelLevel>& levels, bool peak, bool rms);
// The --report / --peak / --rms summary on standard output; --report alone
// asks for both figures. Nothing when none of them is given.
void printLevelReport(const cli::EngineOptions& o, const std::vector<ChannelLevel>& levels);

} // namespace zuvo::run
