#pragma once
// A line chart drawn with cairo: frame, grid, tick labels, axis titles and a
// legend. Log or linear frequency axis; points outside the ranges are clipped.
#include <string>
#include <utility>
#include <vector>

typedef struct _cairo cairo_t;

namespace zuvo::report {

struct Series {
    std::string label;
    double r = 0, g = 0, b = 0;
    std::vector<std::pair<double, double>> points; // (x, y)
};

struct Chart {
    std::string title, xLabel, yLabel;
    bool logX = true;
    double xMin = 20, xMax = 20000;
    double yMin = -160, yMax = 0;
    double yStep = 20;           // grid spacing on the y axis
    std::vector<Series> series;
    std::vector<std::string> notes; // short lines under the legend
};

// Draws `chart` in the box (x, y, w, h) in points, title included.
void drawChart(cairo_t* cr, double x, double y, double w, double h, const Chart& chart);

// Text helpers shared by the pages.
void setFont(cairo_t* cr, double size, bool bold = false, bool mono = false);
double textWidth(cairo_t* cr, const std::string& text);
void showText(cairo_t* cr, double x, double y, const std::string& text);

} // namespace zuvo::report
