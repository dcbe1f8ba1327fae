#pragma once
// Collects what the PDF report analyses while a conversion runs, at a
// bounded cost: a few excerpts spread over the file (chosen from its known
// length), each holding the signal as it enters the encoder and the DSD
// bytes the encoder made for the same span. Everything else is copied only
// when it falls inside an excerpt.
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuvo::report {

struct ExcerptPlan {
    std::int64_t start = 0;  // first input frame
    std::int64_t frames = 0; // input frames, a whole number of DSD bytes
};

struct TapLayout {
    int inputRate = 44100;
    int dsdRate = 2822400;
    double settleSeconds = 0.05; // filters' settling time: margin around each measured span
    std::size_t maxExcerpts = 4;
    std::size_t dsdSamplesPerExcerpt = std::size_t(1) << 20; // measured span, DSD samples (0.37 s at DSD64)
};

// The excerpts for a file of `totalFrames` (0 = unknown length: one at the
// start). Each is margin + measured span + margin; they never overlap and
// start on frames that map to whole DSD bytes.
std::vector<ExcerptPlan> planExcerpts(const TapLayout& layout, std::int64_t totalFrames);
// Input frames per DSD byte boundary step: frame counts that are multiples
// of it map to whole bytes.
std::int64_t byteAlignedStep(int inputRate, int dsdRate);
// Margin, in input frames, on each side of an excerpt's measured span.
std::int64_t marginFrames(const TapLayout& layout);

class ReportTap {
public:
    ReportTap(const TapLayout& layout, int channels, std::int64_t totalFrames);

    // Samples entering channel c's encoder, in order, block after block.
    void addSignal(std::size_t c, const double* x, std::size_t n);
    // The bytes channel c's encoder produced (MSB = earliest bit), in order.
    void addBytes(std::size_t c, const std::vector<std::uint8_t>& bytes);

    const TapLayout& layout() const { return layout_; }
    const std::vector<ExcerptPlan>& excerpts() const { return plan_; }
    int channels() const { return int(signal_.size()); }
    // Captured data of excerpt k on channel c; shorter than planned when the
    // file ended early.
    const std::vector<double>& signal(std::size_t c, std::size_t k) const { return signal_[c][k]; }
    const std::vector<std::uint8_t>& bytes(std::size_t c, std::size_t k) const { return bytes_[c][k]; }

private:
    TapLayout layout_;
    std::vector<ExcerptPlan> plan_;
    std::vector<std::vector<std::vector<double>>> signal_;       // [channel][excerpt]
    std::vector<std::vector<std::vector<std::uint8_t>>> bytes_;  // [channel][excerpt]
    std::vector<std::int64_t> signalPos_, bytePos_;
};

} // namespace zuvo::report
