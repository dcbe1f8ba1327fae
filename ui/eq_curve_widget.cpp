#include "eq_curve_widget.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kLeft = 44;   // room for the dB labels
constexpr int kBottom = 20; // room for the frequency labels
constexpr int kTop = 8;
constexpr int kRight = 10;
const double kGridHz[] = {20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000};

QString hzLabel(double hz)
{
    return hz >= 1000 ? QStringLiteral("%1k").arg(hz / 1000) : QString::number(hz);
}

} // namespace

EqCurveWidget::EqCurveWidget(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(240, 150);
    // A frequency plot reads left to right in every language; so do its
    // axis labels ("12 dB", not "dB 12" in a right-to-left interface).
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    recompute();
}

void EqCurveWidget::setBands(const QList<EqBand>& bands)
{
    bands_ = bands;
    recompute();
}

void EqCurveWidget::setEqEnabled(bool enabled)
{
    enabled_ = enabled;
    update();
}

void EqCurveWidget::setPrecutDb(double db)
{
    precutDb_ = db;
    recompute();
}

void EqCurveWidget::resizeEvent(QResizeEvent*)
{
    recompute();
}

void EqCurveWidget::recompute()
{
    // One point per pixel column is enough between the band points the model adds.
    curve_ = computeEqCurve(bands_, precutDb_, std::max(64, width() - kLeft - kRight));
    update();
}

void EqCurveWidget::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF plot(kLeft, kTop, width() - kLeft - kRight, height() - kTop - kBottom);
    p.fillRect(rect(), palette().base());

    // The dB range grows in 6 dB steps to hold the curve, at least +-12 dB.
    double peak = 12.0;
    for (double v : curve_.sumDb)
        peak = std::max(peak, std::abs(v));
    for (const auto& band : curve_.bandDb)
        for (double v : band)
            peak = std::max(peak, std::abs(v));
    const double range = std::min(48.0, std::ceil(peak / 6.0) * 6.0);
    const double step = range > 24 ? 12.0 : 6.0;
    const double logLo = std::log10(kEqCurveMinHz);
    const double logHi = std::log10(kEqCurveMaxHz);
    auto xOf = [&](double hz) { return plot.left() + plot.width() * (std::log10(hz) - logLo) / (logHi - logLo); };
    auto yOf = [&](double db) { return plot.center().y() - plot.height() / 2 * std::clamp(db / range, -1.0, 1.0); };

    QFont small = font();
    small.setPointSizeF(std::max(6.0, small.pointSizeF() * 0.8));
    p.setFont(small);
    const QColor gridColor = palette().mid().color();
    const QColor textColor = palette().text().color();
    for (double db = -range; db <= range + 1e-9; db += step) {
        p.setPen(QPen(gridColor, db == 0 ? 1.2 : 0.5));
        p.drawLine(QPointF(plot.left(), yOf(db)), QPointF(plot.right(), yOf(db)));
        p.setPen(textColor);
        p.drawText(QRectF(0, yOf(db) - 8, kLeft - 4, 16), Qt::AlignRight | Qt::AlignVCenter,
                   QStringLiteral("%1 dB").arg(db, 0, 'f', 0));
    }
    for (double hz : kGridHz) {
        p.setPen(QPen(gridColor, 0.5));
        p.drawLine(QPointF(xOf(hz), plot.top()), QPointF(xOf(hz), plot.bottom()));
        p.setPen(textColor);
        p.drawText(QRectF(xOf(hz) - 20, plot.bottom() + 2, 40, kBottom - 2), Qt::AlignHCenter | Qt::AlignTop,
                   hzLabel(hz));
    }
    p.setPen(QPen(gridColor, 1));
    p.drawRect(plot);

    auto pathOf = [&](const QVector<double>& db) {
        QPainterPath path;
        for (int i = 0; i < curve_.freqs.size(); ++i) {
            const QPointF pt(xOf(curve_.freqs[i]), yOf(db[i]));
            if (i == 0)
                path.moveTo(pt);
            else
                path.lineTo(pt);
        }
        return path;
    };
    p.setClipRect(plot);
    QColor accent = enabled_ ? palette().highlight().color() : palette().mid().color();
    QColor faint = accent;
    faint.setAlpha(140);
    p.setPen(QPen(faint, 1.2));
    for (const auto& band : curve_.bandDb)
        p.drawPath(pathOf(band));
    p.setPen(QPen(accent, 2.4));
    if (!curve_.sumDb.isEmpty())
        p.drawPath(pathOf(curve_.sumDb));
    p.setClipping(false);
    if (!enabled_) {
        p.setPen(textColor);
        p.drawText(plot.adjusted(6, 4, -6, -4), Qt::AlignTop | Qt::AlignRight,
                   QCoreApplication::translate("MainWindow", "均衡器未启用"));
    }
}
