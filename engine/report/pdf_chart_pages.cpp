// The pages with charts: spectra, the filter chain's response, the noise floor.
#include <algorithm>
#include <cairo.h>
#include <cmath>

#include "report/number_text.h"
#include "report/pdf_pages.h"
#include "report/pdf_plot.h"

namespace zuvo::report {

namespace {

constexpr double kLeft = 42, kWidth = kPageWidth - 84;

struct Colour {
    double r, g, b;
};
constexpr Colour kColours[] = {{0.05, 0.30, 0.75}, {0.85, 0.35, 0.05}, {0.10, 0.60, 0.20}, {0.60, 0.10, 0.60}};

Series series(const std::string& label, std::size_t index)
{
    const Colour& c = kColours[index % 4];
    Series s;
    s.label = label;
    s.r = c.r;
    s.g = c.g;
    s.b = c.b;
    return s;
}

// A density curve on a log axis: bins gathered into log-spaced buckets, each
// shown by its mean (noise) or its largest bin (so tones keep their height).
std::vector<std::pair<double, double>> psdPoints(const Psd& p, double lo, double hi, bool peaks)
{
    std::vector<std::pair<double, double>> out;
    if (p.empty())
        return out;
    constexpr int kBuckets = 700;
    const double step = std::log(hi / lo) / kBuckets;
    std::size_t k = std::max<std::size_t>(1, std::size_t(lo / p.binHz()));
    for (int b = 0; b < kBuckets && k < p.sum.size(); ++b) {
        const double edge = lo * std::exp(step * (b + 1));
        double sum = 0, top = 0;
        std::size_t n = 0;
        const double first = double(k) * p.binHz();
        for (; k < p.sum.size() && (double(k) * p.binHz() < edge || n == 0); ++k, ++n) {
            sum += p.density(k);
            top = std::max(top, p.density(k));
        }
        const double v = peaks ? top : sum / double(n);
        out.emplace_back(std::sqrt(first * double(k - 1) * p.binHz()) , v > 0 ? 10 * std::log10(v) : -INFINITY);
    }
    return out;
}

// y range: from the highest point (rounded up to 10 dB) down to at least
// `span` dB below it, further when a curve goes deeper (never past 320 dB).
void fitY(Chart& c, double span)
{
    double top = -INFINITY, bottom = INFINITY;
    for (const Series& s : c.series)
        for (const auto& p : s.points)
            if (std::isfinite(p.second) && p.first >= c.xMin && p.first <= c.xMax) {
                top = std::max(top, p.second);
                bottom = std::min(bottom, p.second);
            }
    if (!std::isfinite(top))
        top = bottom = 0;
    c.yMax = std::ceil(top / 10) * 10 + 10;
    c.yMin = std::max(std::min(c.yMax - span, std::floor((bottom - 5) / 20) * 20), c.yMax - 320);
    if (c.yMax - c.yMin > 220)
        c.yStep = 40;
}

std::string channelName(std::size_t c) { return "channel " + std::to_string(c + 1); }

std::string dbfs(double v) { return std::isnan(v) ? "n/a" : fixed(v, 2) + " dBFS"; }

} // namespace

void drawSpectrumPage(cairo_t* cr, const RunFacts& f, const Analysis& a)
{
    const std::size_t shown = std::min<std::size_t>(a.channels.size(), 2);
    Chart in;
    in.title = "Input spectrum (signal entering the encoder, before the gain)";
    in.xLabel = "frequency";
    in.yLabel = "dBFS/Hz";
    in.xMin = 10;
    in.xMax = f.inputRate / 2.0;
    for (std::size_t c = 0; c < shown; ++c) {
        Series s = series(channelName(c), c);
        s.points = psdPoints(a.channels[c].input, in.xMin, in.xMax, true);
        in.series.push_back(std::move(s));
    }
    fitY(in, 200);
    if (!a.channels.empty() && !a.channels[0].input.empty())
        in.notes.push_back("Welch, Kaiser window (beta 20), " + fixed(a.channels[0].input.binHz(), 1) + " Hz bins, peak per bucket");
    drawChart(cr, kLeft, 40, kWidth, 360, in);

    Chart out;
    out.title = "DSD output spectrum and modulation error";
    out.xLabel = "frequency";
    out.yLabel = "dBFS/Hz";
    out.xMin = 10;
    out.xMax = std::min(f.dsdRate / 2.0, 200000.0 * f.dsdMultiple / 64);
    for (std::size_t c = 0; c < shown; ++c) {
        Series s = series("output, " + channelName(c), c);
        s.points = psdPoints(a.channels[c].output, out.xMin, out.xMax, false);
        out.series.push_back(std::move(s));
        Series e = series("error, " + channelName(c), c + 2);
        e.points = psdPoints(a.channels[c].error, out.xMin, out.xMax, false);
        out.series.push_back(std::move(e));
    }
    fitY(out, 200);
    if (!a.channels.empty() && !a.channels[0].output.empty())
        out.notes.push_back("+-1 bit stream, " + fixed(a.channels[0].output.binHz(), 1) + " Hz bins, mean per bucket");
    drawChart(cr, kLeft, 420, kWidth, 380, out);
}

void drawFilterPage(cairo_t* cr, const RunFacts& f, const dsp::ForwardDesign& design)
{
    Chart whole;
    whole.title = "Interpolation chain response (gain excluded, with the modulator's signal transfer)";
    whole.xLabel = "frequency";
    whole.yLabel = "dB";
    whole.xMin = 10;
    whole.xMax = f.dsdRate / 2.0;
    whole.yMin = -200;
    whole.yMax = 10;
    whole.yStep = 20;
    Series s = series("magnitude", 0);
    constexpr int kPoints = 500;
    for (int i = 0; i <= kPoints; ++i) {
        const double hz = whole.xMin * std::pow(whole.xMax / whole.xMin, double(i) / kPoints);
        s.points.emplace_back(hz, 20 * std::log10(std::max(dsp::chainMagnitude(design, hz), 1e-12)));
    }
    whole.series.push_back(std::move(s));
    whole.notes.push_back("image rejection " + fixed(f.stopbandAttenuationDb, 1) + " dB");
    drawChart(cr, kLeft, 40, kWidth, 360, whole);

    Chart pass;
    pass.title = "Pass band detail, 20 Hz - 20 kHz";
    pass.xLabel = "frequency";
    pass.yLabel = "dB";
    pass.logX = false;
    pass.xMin = 0;
    pass.xMax = std::min(20000.0, f.inputRate / 2.0);
    Series p = series("magnitude", 0);
    double lo = INFINITY, hi = -INFINITY;
    for (int i = 0; i <= 250; ++i) {
        const double hz = 20 + (pass.xMax - 20) * i / 250.0;
        const double v = 20 * std::log10(std::max(dsp::chainMagnitude(design, hz), 1e-12));
        lo = std::min(lo, v);
        hi = std::max(hi, v);
        p.points.emplace_back(hz, v);
    }
    pass.series.push_back(std::move(p));
    // A scale that shows the ripple without magnifying rounding noise.
    const double half = std::max(0.01, (hi - lo) * 0.75);
    const double mid = (hi + lo) / 2;
    pass.yStep = std::pow(10.0, std::floor(std::log10(half)));
    pass.yMin = std::floor((mid - half) / pass.yStep) * pass.yStep;
    pass.yMax = std::ceil((mid + half) / pass.yStep) * pass.yStep;
    pass.notes.push_back("ripple " + fixed(f.passbandRippleDb, 6) + " dB p-p");
    drawChart(cr, kLeft, 420, kWidth, 330, pass);
}

void drawNoisePage(cairo_t* cr, const RunFacts&, const Analysis& a)
{
    Chart c;
    c.title = "Noise floor: modulation error, 20 Hz - 20 kHz";
    c.xLabel = "frequency";
    c.yLabel = "dBFS/Hz";
    c.xMin = 20;
    c.xMax = 20000;
    for (std::size_t ch = 0; ch < std::min<std::size_t>(a.channels.size(), 4); ++ch) {
        Series s = series(channelName(ch), ch);
        s.points = psdPoints(a.channels[ch].error, c.xMin, c.xMax, false);
        c.series.push_back(std::move(s));
    }
    fitY(c, 60);
    if (c.yMax - c.yMin <= 80)
        c.yStep = 10;
    drawChart(cr, kLeft, 40, kWidth, 300, c);

    PageText t(cr, 350);
    t.heading("Noise per 1 kHz band");
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> head = {"Band"};
    const std::size_t cols = std::min<std::size_t>(a.channels.size(), 4);
    for (std::size_t ch = 0; ch < cols; ++ch)
        head.push_back(channelName(ch));
    rows.push_back(head);
    for (int b = 0; b < kNoiseBands; ++b) {
        std::vector<std::string> row = {(b == 0 ? std::string("20 Hz") : hertz(1000.0 * b)) + " - " + hertz(1000.0 * (b + 1))};
        for (std::size_t ch = 0; ch < cols; ++ch)
            row.push_back(a.channels[ch].bandNoiseDbfs.size() > std::size_t(b) ? dbfs(a.channels[ch].bandNoiseDbfs[std::size_t(b)])
                                                                             : "n/a");
        rows.push_back(row);
    }
    std::vector<std::string> total = {"20 Hz - 20 kHz"}, weighted = {"A-weighted"};
    for (std::size_t ch = 0; ch < cols; ++ch) {
        total.push_back(dbfs(a.channels[ch].inBandNoiseDbfs));
        weighted.push_back(dbfs(a.channels[ch].aWeightedNoiseDbfs));
    }
    rows.push_back(total);
    rows.push_back(weighted);
    t.table(rows, {110, 95, 95, 95, 95});
    t.skip(4);
    t.line("The noise floor is the modulation error (1-bit output minus the modulator's ideal input) of the measured "
           "excerpts. Band figures integrate its density over each band; the A-weighted figure weights every bin "
           "with the A curve (0 dB at 1 kHz) before integrating 20 Hz - 20 kHz.",
           7.5);
}

} // namespace zuvo::report
