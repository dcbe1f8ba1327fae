#include "waveform_view.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "plot_axes.h"
#include "view_style.h"

namespace pv {

namespace {
constexpr int kLeft = 30;
constexpr int kRight = 8;
constexpr int kTop = 18;
constexpr int kBottom = 22;
} // namespace

WaveformView::WaveformView(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(360, 120);
}

void WaveformView::setData(std::shared_ptr<const PreviewData> data)
{
    data_ = std::move(data);
    envelope_.clear();
    envelopeWidth_ = -1;
    update();
}

QRect WaveformView::plotRect() const
{
    const QRect inner = rect().adjusted(kLeft, kTop, -kRight, -kBottom);
    // Too small for axes: the envelope gets the whole view.
    return inner.width() >= 8 && inner.height() >= 8 ? inner : rect();
}

void WaveformView::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), style::background());
    if (width() < 8 || height() < 8)
        return;
    const QRect plot = plotRect();
    const bool haveSamples = data_ && data_->ok && !data_->samples.empty();
    if (plot != rect())
        drawAxes(p, plot);
    p.setPen(style::axis());
    const int mid = plot.top() + plot.height() / 2;
    p.drawLine(plot.left(), mid, plot.right(), mid);
    if (haveSamples)
        drawEnvelope(p, plot);
    else {
        p.setPen(style::text());
        p.drawText(plot, Qt::AlignCenter, QStringLiteral("(no data)"));
    }
    p.setPen(style::text());
    const double seconds = data_ ? data_->seconds() : 0.0;
    p.drawText(rect().adjusted(3, 3, -3, -3), Qt::AlignRight | Qt::AlignTop,
               QStringLiteral("%1 s").arg(QString::number(seconds, 'f', 1)));
}

const std::vector<WaveformView::Column>& WaveformView::envelope(int w) const
{
    if (w == envelopeWidth_)
        return envelope_;
    envelopeWidth_ = w;
    envelope_.assign(std::size_t(std::max(w, 0)), Column{});
    const std::vector<float>& s = data_->samples;
    const std::size_t n = s.size();
    for (int x = 0; x < w; ++x) {
        const std::size_t i0 = std::size_t(double(x) * n / w);
        const std::size_t i1 = std::min(n, std::max(i0 + 1, std::size_t(double(x + 1) * n / w)));
        Column& col = envelope_[std::size_t(x)];
        for (std::size_t i = i0; i < i1; ++i) {
            const float v = s[i];
            if (!std::isfinite(v))
                continue;
            col.lo = col.any ? std::min(col.lo, v) : v;
            col.hi = col.any ? std::max(col.hi, v) : v;
            col.any = true;
            col.clipped = col.clipped || std::fabs(v) >= kClipLevel;
        }
    }
    return envelope_;
}

void WaveformView::drawEnvelope(QPainter& p, const QRect& plot) const
{
    const double half = (plot.height() - 1) / 2.0;
    const double mid = plot.top() + half;
    const auto yOf = [&](float v) { return int(std::lround(mid - std::clamp(double(v), -1.0, 1.0) * half)); };
    const std::vector<Column>& columns = envelope(plot.width());
    for (int x = 0; x < int(columns.size()); ++x) {
        const Column& c = columns[std::size_t(x)];
        if (!c.any)
            continue;
        p.setPen(c.clipped ? style::clipped() : style::wave());
        p.drawLine(plot.left() + x, yOf(c.hi), plot.left() + x, yOf(c.lo));
    }
}

void WaveformView::drawAxes(QPainter& p, const QRect& plot) const
{
    QFont small = font();
    small.setPixelSize(10);
    p.setFont(small);
    const double half = (plot.height() - 1) / 2.0;
    const double mid = plot.top() + half;
    for (double a : {1.0, 0.5, 0.0, -0.5, -1.0}) {
        const int y = int(std::lround(mid - a * half));
        p.setPen(style::grid());
        p.drawLine(plot.left(), y, plot.right(), y);
        p.setPen(style::axis());
        p.drawText(QRect(0, y - 7, kLeft - 4, 14), Qt::AlignRight | Qt::AlignVCenter,
                   QString::number(a, 'g', 2).replace(QLatin1Char('-'), QChar(0x2212)));
    }
    p.setPen(style::axis());
    p.drawRect(plot.adjusted(0, 0, -1, -1));
    const double seconds = data_ ? data_->seconds() : 0.0;
    for (const Tick& t : timeTicks(seconds, plot.width())) {
        const int x = plot.left() + int(std::lround(t.fraction * (plot.width() - 1)));
        p.drawLine(x, plot.bottom() + 1, x, plot.bottom() + 4);
        p.drawText(QRect(x - 30, plot.bottom() + 5, 60, 14), Qt::AlignHCenter | Qt::AlignTop, t.label);
    }
}

} // namespace pv
