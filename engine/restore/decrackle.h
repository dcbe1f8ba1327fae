#pragma once
// Click and crackle repair for old records.
//
// Per channel, the signal is cut into blocks of kCrackleHop samples, each
// analysed with kCrackleContext samples of context on both sides:
//  1. an AR model of order kCrackleOrder is fitted to the block (ar_model.h);
//  2. a sample is suspect when the model's prediction residual exceeds
//     threshold x sigma, sigma = 1.4826 x the median absolute residual (a
//     robust estimate that the clicks themselves hardly move), and -90 dBFS;
//  3. a click's forward residual starts exactly at its first sample and
//     rings on after it; the backward residual (the model run against time)
//     ends exactly at its last sample. Hits closer than kCrackleMergeGap are
//     one event, cut to [first forward hit, last backward hit] and padded by
//     kCracklePadBefore / kCracklePadAfter: the run to re-estimate is about
//     as long as the click, not the click plus the model's ringing;
//  4. runs closer than the model order are solved together by least-squares
//     AR interpolation from the samples around them (runs longer than
//     kCrackleMaxRun are left alone: that is music, not a click);
//  5. the model is fitted again on the repaired block, and every run found
//     so far plus any new one is interpolated again with it: the first model
//     was fitted with the clicks in it.
// Samples that are not in a run are never changed. The stage delays its
// output by latency() = kCrackleHop + kCrackleContext samples.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuvo::restore {

constexpr int kCrackleOrder = 32;
constexpr std::size_t kCrackleHop = 4096;
constexpr std::size_t kCrackleContext = 512;
constexpr std::size_t kCrackleMergeGap = 8;
constexpr std::size_t kCracklePadBefore = 0;
constexpr std::size_t kCracklePadAfter = 1;
constexpr std::size_t kCrackleMaxRun = 200;
constexpr int kCracklePasses = 2;
constexpr double kCrackleFloor = 3.16e-5; // -90 dBFS: the smallest residual excursion taken for a click
constexpr std::size_t kCrackleMaxUnknowns = 600; // one least-squares system at most

// A run of repaired samples [first, last) in a buffer.
struct ClickRun {
    std::size_t first = 0, last = 0;
};

// One analysis-and-repair pass over x[0, n), looking for clicks that start
// in [from, to). `runs` holds the runs of earlier passes on input (they are
// interpolated again) and all runs repaired on return.
void repairClicks(double* x, std::size_t n, std::size_t from, std::size_t to, double threshold,
                  std::vector<ClickRun>& runs);

class Decrackle {
public:
    Decrackle(int channels, double threshold);

    std::size_t latency() const { return kCrackleHop + kCrackleContext; }
    void process(std::vector<std::vector<double>>& ch, std::size_t n);
    // The input ends here: what follows is the silence that flushes the
    // stage, and the step into it is no click.
    void markEnd();

    std::uint64_t clicks() const { return clicks_; }
    std::uint64_t repairedSamples() const { return samples_; }

private:
    void block(std::size_t c);

    double threshold_;
    std::vector<std::vector<double>> in_;  // per channel: context + samples not yet repaired
    std::vector<std::vector<double>> out_; // repaired samples waiting to leave
    std::vector<std::size_t> outRead_;
    std::vector<std::uint64_t> blocks_;
    std::vector<std::uint64_t> received_;
    std::uint64_t endAt_ = UINT64_MAX;
    std::uint64_t clicks_ = 0, samples_ = 0;
};

} // namespace zuvo::restore
