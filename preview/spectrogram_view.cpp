#include "spectrogram_view.h"

#include <QPainter>

#include "plot_axes.h"
#include "spectrogram_job.h"
#include "view_style.h"

namespace pv {

namespace {
constexpr int kLeft = 46;
constexpr int kRight = 78;
constexpr int kTop = 10;
constexpr int kBottom = 22;
} // namespace

SpectrogramView::SpectrogramView(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(360, 160);
}

SpectrogramView::~SpectrogramView()
{
    dropJob();
}

void SpectrogramView::dropJob()
{
    // A computation still running finds the flag and ends early; with the
    // connection gone its result could not reach this view anyway.
    if (job_) {
        disconnect(job_.get(), nullptr, this, nullptr);
        job_->cancel();
        job_.reset();
    }
}

void SpectrogramView::setData(std::shared_ptr<const PreviewData> data)
{
    dropJob();
    data_ = std::move(data);
    spec_ = {};
    computing_ = false;
    if (data_ && data_->ok && data_->samples.size() >= std::size_t(kFftSize) && data_->sampleRate > 0) {
        computing_ = true;
        job_ = SpectrogramJob::create(data_);
        // Emitted on the pool thread, so queued to this (GUI) thread; connected
        // first, because a short signal may be done at once.
        connect(job_.get(), &SpectrogramJob::ready, this, &SpectrogramView::takeResult, Qt::QueuedConnection);
        SpectrogramJob::start(job_);
    }
    update();
}

void SpectrogramView::takeResult()
{
    if (!job_ || sender() != job_.get())
        return;
    spec_ = job_->take();
    job_.reset();
    computing_ = false;
    update();
    emit computed();
}

QRect SpectrogramView::plotRect() const
{
    return rect().adjusted(kLeft, kTop, -kRight, -kBottom);
}

int SpectrogramView::yForFrequency(double hz) const
{
    const QRect plot = plotRect();
    const double nyquist = data_ ? data_->sampleRate / 2.0 : 0.0;
    const double row = frequencyFraction(hz, nyquist) * (kImageHeight - 1);
    // Row r occupies image line 219 - r; its centre is half a line below that line's top.
    return plot.top() + int(std::floor((kImageHeight - 1 - row + 0.5) * plot.height() / kImageHeight));
}

void SpectrogramView::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), style::background());
    p.setPen(style::text());
    if (spec_.image.isNull()) {
        p.drawText(rect(), Qt::AlignCenter, computing_ ? QStringLiteral("computing…") : QStringLiteral("(no data)"));
        return;
    }
    const QRect plot = plotRect();
    if (plot.width() < 8 || plot.height() < 8) {
        p.drawImage(rect(), spec_.image);
        return;
    }
    p.drawImage(plot, spec_.image);
    drawAxes(p, plot);
    drawLegend(p, plot);
}

void SpectrogramView::drawAxes(QPainter& p, const QRect& plot) const
{
    QFont small = font();
    small.setPixelSize(10);
    p.setFont(small);
    p.setPen(style::axis());
    p.drawRect(plot.adjusted(0, 0, -1, -1));

    const double nyquist = data_->sampleRate / 2.0;
    for (const Tick& t : frequencyTicks(nyquist)) {
        const int y = yForFrequency(t.value);
        p.drawLine(plot.left() - 4, y, plot.left() - 1, y);
        p.drawText(QRect(0, y - 7, kLeft - 6, 14), Qt::AlignRight | Qt::AlignVCenter, t.label);
    }
    // The unit sits at the far left, clear of the right-aligned tick labels.
    p.drawText(QRect(2, plot.top(), 14, plot.height()), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Hz"));

    const double seconds = double(spec_.columns) * kHop / data_->sampleRate;
    for (const Tick& t : timeTicks(seconds, plot.width())) {
        const int x = plot.left() + int(std::lround(t.fraction * (plot.width() - 1)));
        p.drawLine(x, plot.bottom() + 1, x, plot.bottom() + 4);
        p.drawText(QRect(x - 30, plot.bottom() + 5, 60, 14), Qt::AlignHCenter | Qt::AlignTop, t.label);
    }
}

void SpectrogramView::drawLegend(QPainter& p, const QRect& plot) const
{
    const QRect bar(plot.right() + 10, plot.top(), 12, plot.height());
    for (int y = 0; y < bar.height(); ++y) {
        const double level = bar.height() > 1 ? double(y) / (bar.height() - 1) : 0.0;
        p.setPen(QColor::fromRgb(paletteColour(level)));
        p.drawLine(bar.left(), bar.top() + y, bar.right(), bar.top() + y);
    }
    p.setPen(style::axis());
    p.drawRect(bar.adjusted(0, 0, -1, -1));
    for (int db = 0; db >= int(kFloorDb); db -= 20) {
        const int y = bar.top() + int(std::lround(db / kFloorDb * (bar.height() - 1)));
        p.drawLine(bar.right() + 1, y, bar.right() + 3, y);
        const QString label = db == 0 ? QStringLiteral("0 dB") : QString::number(db);
        p.drawText(QRect(bar.right() + 5, y - 7, kRight - 28, 14), Qt::AlignLeft | Qt::AlignVCenter, label);
    }
}

} // namespace pv
