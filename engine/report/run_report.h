#pragma once
// The PDF report of a PCM -> DSD run, as the run sees it: feed it the
// samples entering the encoders and the bytes they made, then let it write
// "<output without extension>.report.pdf" once the audio is complete. A
// report that cannot be written is a warning; the audio stays.
#include <memory>
#include <string>
#include <vector>

#include "dsp/dsd_pipeline.h"
#include "report/report_facts.h"
#include "report/report_tap.h"

namespace zuvo::run {
struct RunContext;
}

namespace zuvo::report {

// "/music/a.dsf" -> "/music/a.report.pdf".
std::string reportPathFor(const std::string& output);

// Writes the pages to `path` through a temporary file in the same folder,
// renamed when complete. Returns false with `error` set; nothing is left.
bool writeReport(const std::string& path, const RunFacts& facts, const dsp::ForwardDesign& design,
                 const ReportTap& tap, std::string* error);

class RunReport {
public:
    RunReport(std::shared_ptr<const dsp::ForwardDesign> design, int channels, int inputRate, long long totalFrames);

    // After each block: the first `n` samples of planar[c] went into encoder
    // c and bytes[c] came out.
    void add(const std::vector<std::vector<double>>& planar, std::size_t n,
             const std::vector<std::vector<std::uint8_t>>& bytes);
    // Writes the report; says "report: PATH" (or a warning) on the log and
    // standard error.
    void finish(run::RunContext& ctx, RunFacts facts);

private:
    std::shared_ptr<const dsp::ForwardDesign> design_;
    ReportTap tap_;
};

} // namespace zuvo::report
