// The first page: what was converted, how, and the figures measured on it.
#include "report/pdf_pages.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <sstream>

#include "report/number_text.h"
#include "report/pdf_plot.h"

namespace zuvo::report {

namespace {

constexpr double kLeft = 42, kRight = kPageWidth - 42;

// Splits `text` into lines no wider than `width`, at spaces where possible.
std::vector<std::string> wrap(cairo_t* cr, const std::string& text, double width)
{
    std::vector<std::string> lines;
    std::string rest = text;
    while (!rest.empty()) {
        if (textWidth(cr, rest) <= width) {
            lines.push_back(rest);
            break;
        }
        std::size_t fit = 1;
        while (fit < rest.size() && textWidth(cr, rest.substr(0, fit + 1)) <= width)
            ++fit;
        // Never cut inside a UTF-8 sequence.
        while (fit < rest.size() && (static_cast<unsigned char>(rest[fit]) & 0xC0) == 0x80)
            --fit;
        const std::size_t space = rest.rfind(' ', fit);
        const std::size_t cut = space != std::string::npos && space > fit / 2 ? space : std::max<std::size_t>(fit, 1);
        lines.push_back(rest.substr(0, cut));
        rest = rest.substr(cut);
        if (!rest.empty() && rest[0] == ' ')
            rest.erase(0, 1);
    }
    return lines;
}

std::string db(double v, int decimals = 2) { return std::isnan(v) ? "n/a" : fixed(v, decimals) + " dB"; }
std::string dbfs(double v, int decimals = 2) { return std::isnan(v) ? "n/a" : fixed(v, decimals) + " dBFS"; }

constexpr double kTop = 36, kBottom = kPageHeight - 36;

} // namespace

void PageText::room(double height)
{
    if (y_ + height <= kBottom)
        return;
    cairo_show_page(cr_);
    y_ = kTop;
}

void PageText::heading(const std::string& text)
{
    room(24 + 22); // a heading never ends a page alone
    y_ += 8;
    setFont(cr_, 11, true);
    cairo_set_source_rgb(cr_, 0, 0, 0);
    showText(cr_, kLeft, y_ + 11, text);
    y_ += 16;
}

void PageText::line(const std::string& text, double size, bool mono)
{
    setFont(cr_, size, false, mono);
    cairo_set_source_rgb(cr_, 0, 0, 0);
    for (const std::string& l : wrap(cr_, text, kRight - kLeft)) {
        room(size * 1.3);
        setFont(cr_, size, false, mono);
        showText(cr_, kLeft, y_ + size, l);
        y_ += size * 1.3;
    }
}

void PageText::field(const std::string& label, const std::string& value)
{
    constexpr double kValueX = kLeft + 110;
    room(11);
    setFont(cr_, 8.5, true);
    cairo_set_source_rgb(cr_, 0, 0, 0);
    showText(cr_, kLeft, y_ + 8.5, label);
    setFont(cr_, 8.5);
    for (const std::string& l : wrap(cr_, value, kRight - kValueX)) {
        room(11);
        setFont(cr_, 8.5);
        showText(cr_, kValueX, y_ + 8.5, l);
        y_ += 11;
    }
}

void PageText::table(const std::vector<std::vector<std::string>>& rows, const std::vector<double>& widths)
{
    for (std::size_t r = 0; r < rows.size(); ++r) {
        room(r == 0 ? 24 : 11);
        setFont(cr_, 8, r == 0);
        cairo_set_source_rgb(cr_, 0, 0, 0);
        double x = kLeft;
        for (std::size_t i = 0; i < rows[r].size() && i < widths.size(); ++i) {
            showText(cr_, x, y_ + 8, rows[r][i]);
            x += widths[i];
        }
        y_ += 11;
        if (r == 0) {
            cairo_set_line_width(cr_, 0.5);
            cairo_move_to(cr_, kLeft, y_ - 1);
            cairo_line_to(cr_, x, y_ - 1);
            cairo_stroke(cr_);
            y_ += 2;
        }
    }
}

void drawSummaryPage(cairo_t* cr, const RunFacts& f, const Analysis& a)
{
    PageText t(cr, 36);
    setFont(cr, 16, true);
    showText(cr, kLeft, 52, "Conversion report");
    t.skip(26);
    t.field("Engine", "ZuvoEngine " + f.version);
    t.field("Input", f.input);
    t.field("Output", f.output);
    t.field("Command line", f.commandLine);
    t.field("Rates", std::to_string(f.inputRate) + " Hz PCM -> DSD" + std::to_string(f.dsdMultiple) + " ("
                         + std::to_string(f.dsdRate) + " Hz)");
    t.field("Channels", std::to_string(f.inChannels) + " in, " + std::to_string(f.outChannels) + " out");
    t.field("Duration", fixed(f.seconds, 3) + " s");
    t.field("Modulator", f.modulator);
    t.field("Gain", db(f.appliedGainDb) + " before the modulator");
    t.field("Filters", "pass-band ripple " + fixed(f.passbandRippleDb, 6) + " dB p-p, image rejection "
                           + db(f.stopbandAttenuationDb, 1));
    if (!f.effects.empty()) {
        t.heading("Effects");
        for (const std::string& e : f.effects)
            t.line(e, 7.5);
    }
    t.heading("Design summary");
    std::istringstream lines(f.designText);
    for (std::string l; std::getline(lines, l);)
        t.line(l, 7, true);

    t.heading("Levels");
    std::vector<std::vector<std::string>> rows = {{"Input channel", "Peak", "RMS"}};
    for (std::size_t c = 0; c < f.inputLevels.size(); ++c)
        rows.push_back({std::to_string(c + 1), dbfs(f.inputLevels[c].peakDbfs), dbfs(f.inputLevels[c].rmsDbfs)});
    t.table(rows, {90, 90, 90});
    t.skip(6);
    rows = {{"Output channel", "Modulator peak", "Stable up to", "Headroom", "Overloads", "In-band level"}};
    for (std::size_t c = 0; c < f.modulators.size(); ++c) {
        const ModulatorFacts& m = f.modulators[c];
        const double peak = m.peakInput > 0 ? 20 * std::log10(m.peakInput) : -INFINITY;
        std::string level = "n/a";
        if (c < a.channels.size() && !a.channels[c].output.empty())
            level = dbfs(powerDb(a.channels[c].output.bandPower(20, 20000)));
        rows.push_back({std::to_string(c + 1), dbfs(peak), dbfs(f.modulatorMaxStableDbfs),
                        db(f.modulatorMaxStableDbfs - peak), std::to_string(m.overloads), level});
    }
    t.table(rows, {78, 82, 76, 66, 56, 80});

    t.heading("Noise added by the conversion");
    rows = {{"Output channel", "20 Hz - 20 kHz", "A-weighted", "20 kHz - 50 kHz"}};
    for (std::size_t c = 0; c < a.channels.size(); ++c)
        rows.push_back({std::to_string(c + 1), dbfs(a.channels[c].inBandNoiseDbfs),
                        dbfs(a.channels[c].aWeightedNoiseDbfs), dbfs(a.channels[c].ultrasonicNoiseDbfs)});
    t.table(rows, {78, 90, 90, 90});
    t.skip(4);
    t.line("Levels are 10 log10 of the mean square with full scale = 1.0 (a full-scale sine has an RMS of -3.01 dBFS). "
           "Input levels and modulator figures cover the whole file. Headroom is the modulator's largest input "
           "(after the gain) below the largest level its design keeps stable.",
           7.5);
    t.line("Noise is the modulation error: the 1-bit output (+1/-1) minus the modulator's ideal input, i.e. the same "
           "excerpt run through the same gain and interpolation filters without the modulator; its power is "
           "integrated over the band from a Welch spectrum. Measured on "
           + std::to_string(a.excerpts) + " excerpt(s) spread over the file, " + fixed(a.measuredSeconds, 2)
           + " s per channel; the in-band level of the output comes from the same excerpts.",
           7.5);
}

} // namespace zuvo::report
