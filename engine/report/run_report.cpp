#include "report/run_report.h"

#include <cairo-pdf.h>
#include <cairo.h>
#include <cstdio>
#include <unistd.h>

#include "report/pdf_pages.h"
#include "report/report_analysis.h"
#include "run/run_context.h"

namespace zuvo::report {

std::string reportPathFor(const std::string& output)
{
    const std::size_t slash = output.find_last_of('/');
    const std::size_t dot = output.find_last_of('.');
    const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
    const bool hasExtension = dot != std::string::npos && dot > name; // ".dsf" alone is a name
    return (hasExtension ? output.substr(0, dot) : output) + ".report.pdf";
}

namespace {

TapLayout layoutFor(const dsp::ForwardDesign& design, int inputRate)
{
    TapLayout l;
    l.inputRate = inputRate;
    l.dsdRate = dsp::dsdRateHz(design);
    l.settleSeconds = dsp::settleSeconds(design);
    l.dsdSamplesPerExcerpt = measuredSpan(l.dsdRate);
    return l;
}

} // namespace

bool writeReport(const std::string& path, const RunFacts& facts, const dsp::ForwardDesign& design,
                 const ReportTap& tap, std::string* error)
{
    const Analysis analysis = analyse(tap, design);
    const std::string temp = path + ".part" + std::to_string(::getpid());
    cairo_surface_t* surface = cairo_pdf_surface_create(temp.c_str(), kPageWidth, kPageHeight);
    cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_TITLE, "Conversion report");
    cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_CREATOR, ("ZuvoEngine " + facts.version).c_str());
    cairo_t* cr = cairo_create(surface);
    drawSummaryPage(cr, facts, analysis);
    cairo_show_page(cr);
    drawSpectrumPage(cr, facts, analysis);
    cairo_show_page(cr);
    drawFilterPage(cr, facts, design);
    cairo_show_page(cr);
    if (facts.noiseProfiling) {
        drawNoisePage(cr, facts, analysis);
        cairo_show_page(cr);
    }
    cairo_status_t status = cairo_status(cr);
    cairo_destroy(cr);
    cairo_surface_finish(surface);
    if (status == CAIRO_STATUS_SUCCESS)
        status = cairo_surface_status(surface);
    cairo_surface_destroy(surface);
    if (status != CAIRO_STATUS_SUCCESS) {
        std::remove(temp.c_str());
        if (error)
            *error = std::string("could not write ") + path + ": " + cairo_status_to_string(status);
        return false;
    }
    if (std::rename(temp.c_str(), path.c_str()) != 0) {
        std::remove(temp.c_str());
        if (error)
            *error = "could not write " + path;
        return false;
    }
    return true;
}

RunReport::RunReport(std::shared_ptr<const dsp::ForwardDesign> design, int channels, int inputRate,
                     long long totalFrames)
    : design_(std::move(design)), tap_(layoutFor(*design_, inputRate), channels, totalFrames)
{
}

void RunReport::add(const std::vector<std::vector<double>>& planar, std::size_t n,
                    const std::vector<std::vector<std::uint8_t>>& bytes)
{
    for (std::size_t c = 0; c < bytes.size(); ++c) {
        if (c < planar.size() && n > 0)
            tap_.addSignal(c, planar[c].data(), n);
        tap_.addBytes(c, bytes[c]);
    }
}

void RunReport::finish(run::RunContext& ctx, RunFacts facts)
{
    const std::string path = reportPathFor(facts.output);
    std::string error;
    if (writeReport(path, facts, *design_, tap_, &error)) {
        ctx.log.line("report: %s", path.c_str());
        std::fprintf(stderr, "report: %s\n", path.c_str());
    } else {
        run::report(ctx, "warning: no PDF report: %s; the audio is complete", error.c_str());
    }
}

} // namespace zuvo::report
