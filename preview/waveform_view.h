#pragma once
#include <QWidget>
#include <memory>
#include <vector>

#include "preview_reader.h"

namespace pv {

// The mono mix of a preview as a min/max envelope, one line per pixel
// column; columns holding a clipped sample (|x| ≥ 0.999) are drawn in red.
class WaveformView : public QWidget {
    Q_OBJECT
public:
    static constexpr float kClipLevel = 0.999f;

    explicit WaveformView(QWidget* parent = nullptr);
    void setData(std::shared_ptr<const PreviewData> data);
    QRect plotRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Column {
        float lo = 0.0f;
        float hi = 0.0f;
        bool any = false;
        bool clipped = false;
    };
    // Min/max per pixel column, recomputed only when the width changes.
    const std::vector<Column>& envelope(int width) const;
    void drawEnvelope(class QPainter& p, const QRect& plot) const;
    void drawAxes(class QPainter& p, const QRect& plot) const;

    std::shared_ptr<const PreviewData> data_;
    mutable std::vector<Column> envelope_;
    mutable int envelopeWidth_ = -1;
};

} // namespace pv
