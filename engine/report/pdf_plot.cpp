#include "report/pdf_plot.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>

#include "report/number_text.h"

namespace zuvo::report {

void setFont(cairo_t* cr, double size, bool bold, bool mono)
{
    cairo_select_font_face(cr, mono ? "monospace" : "sans-serif", CAIRO_FONT_SLANT_NORMAL,
                           bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, size);
}

double textWidth(cairo_t* cr, const std::string& text)
{
    cairo_text_extents_t e;
    cairo_text_extents(cr, text.c_str(), &e);
    return e.x_advance;
}

void showText(cairo_t* cr, double x, double y, const std::string& text)
{
    cairo_move_to(cr, x, y);
    cairo_show_text(cr, text.c_str());
}

namespace {

std::vector<double> logTicks(double lo, double hi)
{
    std::vector<double> t;
    for (double decade = std::pow(10.0, std::floor(std::log10(lo))); decade <= hi; decade *= 10)
        for (double m : {1.0, 2.0, 5.0})
            if (decade * m >= lo * 0.999 && decade * m <= hi * 1.001)
                t.push_back(decade * m);
    return t;
}

std::vector<double> linearTicks(double lo, double hi)
{
    const double span = hi - lo;
    double step = std::pow(10.0, std::floor(std::log10(span)));
    if (span / step < 4)
        step /= 2;
    if (span / step > 10)
        step *= 2;
    std::vector<double> t;
    for (double v = std::ceil(lo / step) * step; v <= hi + step * 1e-6; v += step)
        t.push_back(v);
    return t;
}

} // namespace

void drawChart(cairo_t* cr, double x, double y, double w, double h, const Chart& c)
{
    const double left = x + 46, right = x + w - 8, top = y + 18, bottom = y + h - 30;
    auto px = [&](double v) {
        const double t = c.logX ? (std::log10(v) - std::log10(c.xMin)) / (std::log10(c.xMax) - std::log10(c.xMin))
                                : (v - c.xMin) / (c.xMax - c.xMin);
        return left + t * (right - left);
    };
    auto py = [&](double v) { return bottom - (v - c.yMin) / (c.yMax - c.yMin) * (bottom - top); };

    cairo_save(cr);
    cairo_set_source_rgb(cr, 0, 0, 0);
    setFont(cr, 10, true);
    showText(cr, x, y + 10, c.title);

    // Grid and tick labels.
    setFont(cr, 7);
    cairo_set_line_width(cr, 0.4);
    double labelEnd = -1e9; // a label that would touch the previous one is left out
    for (double t : c.logX ? logTicks(c.xMin, c.xMax) : linearTicks(c.xMin, c.xMax)) {
        cairo_set_source_rgb(cr, 0.82, 0.82, 0.82);
        cairo_move_to(cr, px(t), top);
        cairo_line_to(cr, px(t), bottom);
        cairo_stroke(cr);
        cairo_set_source_rgb(cr, 0.2, 0.2, 0.2);
        const std::string label = hertz(t);
        const double lx = px(t) - textWidth(cr, label) / 2;
        if (lx < labelEnd + 4)
            continue;
        showText(cr, lx, bottom + 9, label);
        labelEnd = lx + textWidth(cr, label);
    }
    for (double v = std::ceil(c.yMin / c.yStep) * c.yStep; v <= c.yMax + 1e-9; v += c.yStep) {
        cairo_set_source_rgb(cr, 0.82, 0.82, 0.82);
        cairo_move_to(cr, left, py(v));
        cairo_line_to(cr, right, py(v));
        cairo_stroke(cr);
        cairo_set_source_rgb(cr, 0.2, 0.2, 0.2);
        const int decimals = c.yStep >= 1 ? 0 : int(std::ceil(-std::log10(c.yStep) - 1e-9));
        const std::string label = fixed(v, decimals);
        showText(cr, left - 3 - textWidth(cr, label), py(v) + 2.5, label);
    }
    cairo_set_source_rgb(cr, 0, 0, 0);
    setFont(cr, 8);
    showText(cr, (left + right) / 2 - textWidth(cr, c.xLabel) / 2, bottom + 21, c.xLabel);
    cairo_save(cr);
    cairo_move_to(cr, x + 9, (top + bottom) / 2 + textWidth(cr, c.yLabel) / 2);
    cairo_rotate(cr, -M_PI / 2);
    cairo_show_text(cr, c.yLabel.c_str());
    cairo_restore(cr);

    // Curves, clipped to the frame.
    cairo_save(cr);
    cairo_rectangle(cr, left, top, right - left, bottom - top);
    cairo_clip(cr);
    cairo_set_line_width(cr, 0.7);
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
    for (const Series& s : c.series) {
        cairo_set_source_rgb(cr, s.r, s.g, s.b);
        bool pen = false;
        for (const auto& [vx, vy] : s.points) {
            if (!std::isfinite(vy) || vx < c.xMin || vx > c.xMax || (c.logX && vx <= 0)) {
                pen = false;
                continue;
            }
            const double yy = py(std::clamp(vy, c.yMin - 1000, c.yMax + 1000));
            if (pen)
                cairo_line_to(cr, px(vx), yy);
            else
                cairo_move_to(cr, px(vx), yy);
            pen = true;
        }
        cairo_stroke(cr);
    }
    cairo_restore(cr);

    cairo_set_source_rgb(cr, 0, 0, 0);
    cairo_set_line_width(cr, 0.8);
    cairo_rectangle(cr, left, top, right - left, bottom - top);
    cairo_stroke(cr);

    // Legend, top right inside the frame.
    setFont(cr, 7.5);
    double widest = 0;
    for (const Series& s : c.series)
        widest = std::max(widest, textWidth(cr, s.label));
    for (const std::string& n : c.notes)
        widest = std::max(widest, textWidth(cr, n));
    const double lines = double(c.series.size() + c.notes.size());
    if (lines > 0) {
        const double lx = right - widest - 26, ly = top + 4;
        cairo_set_source_rgba(cr, 1, 1, 1, 0.9);
        cairo_rectangle(cr, lx - 4, ly, widest + 28, 10 * lines + 4);
        cairo_fill_preserve(cr);
        cairo_set_source_rgb(cr, 0.5, 0.5, 0.5);
        cairo_set_line_width(cr, 0.4);
        cairo_stroke(cr);
        double yy = ly + 10;
        for (const Series& s : c.series) {
            cairo_set_source_rgb(cr, s.r, s.g, s.b);
            cairo_set_line_width(cr, 1.5);
            cairo_move_to(cr, lx, yy - 3);
            cairo_line_to(cr, lx + 16, yy - 3);
            cairo_stroke(cr);
            cairo_set_source_rgb(cr, 0, 0, 0);
            showText(cr, lx + 20, yy, s.label);
            yy += 10;
        }
        cairo_set_source_rgb(cr, 0.2, 0.2, 0.2);
        for (const std::string& n : c.notes) {
            showText(cr, lx, yy, n);
            yy += 10;
        }
    }
    cairo_restore(cr);
}

} // namespace zuvo::report
