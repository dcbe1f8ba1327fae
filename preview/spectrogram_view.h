#pragma once
#include <QWidget>
#include <memory>

#include "preview_reader.h"
#include "spectrogram.h"

namespace pv {

// The spectrogram of a preview with its time and frequency axes and a dB
// legend. The image is computed on a pool thread; the view shows
// "computing…" until it arrives.
class SpectrogramView : public QWidget {
    Q_OBJECT
public:
    explicit SpectrogramView(QWidget* parent = nullptr);
    ~SpectrogramView() override;

    void setData(std::shared_ptr<const PreviewData> data);
    bool isComputing() const { return computing_; }
    int columns() const { return spec_.columns; }
    const QImage& image() const { return spec_.image; }

    // Where the image is drawn, and the vertical pixel of a frequency in it.
    QRect plotRect() const;
    int yForFrequency(double hz) const;

signals:
    void computed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void takeResult();
    void drawAxes(class QPainter& p, const QRect& plot) const;
    void drawLegend(class QPainter& p, const QRect& plot) const;

    void dropJob();

    std::shared_ptr<const PreviewData> data_;
    Spectrogram spec_;
    std::shared_ptr<class SpectrogramJob> job_;
    bool computing_ = false;
};

} // namespace pv
