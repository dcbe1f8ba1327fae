#pragma once
// The report's pages, drawn on a cairo context (A4 portrait, points).
#include "report/report_analysis.h"
#include "report/report_facts.h"

typedef struct _cairo cairo_t;

namespace zuvo::report {

constexpr double kPageWidth = 595.0, kPageHeight = 842.0;

// A text cursor that wraps lines at the right margin.
class PageText {
public:
    PageText(cairo_t* cr, double top) : cr_(cr), y_(top) {}
    void heading(const std::string& text);
    void line(const std::string& text, double size = 8.5, bool mono = false);
    // "label: value" rows with the values aligned.
    void field(const std::string& label, const std::string& value);
    void table(const std::vector<std::vector<std::string>>& rows, const std::vector<double>& widths);
    void skip(double points) { y_ += points; }
    double y() const { return y_; }

private:
    // Starts a new page when `height` more points would not fit.
    void room(double height);
    cairo_t* cr_;
    double y_;
};

void drawSummaryPage(cairo_t* cr, const RunFacts& facts, const Analysis& analysis);
void drawSpectrumPage(cairo_t* cr, const RunFacts& facts, const Analysis& analysis);
void drawFilterPage(cairo_t* cr, const RunFacts& facts, const dsp::ForwardDesign& design);
void drawNoisePage(cairo_t* cr, const RunFacts& facts, const Analysis& analysis);

} // namespace zuvo::report
