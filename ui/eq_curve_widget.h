#pragma once
#include <QList>
#include <QWidget>

#include "conversion_settings.h"
#include "eq_curve_model.h"

// The equaliser's magnitude response on a log-frequency axis: the sum of
// every band (with the pre-cut) drawn strongly, each band faintly.
class EqCurveWidget : public QWidget {
    Q_OBJECT
public:
    explicit EqCurveWidget(QWidget* parent = nullptr);

    void setBands(const QList<EqBand>& bands);
    void setEqEnabled(bool enabled);
    void setPrecutDb(double db);

    const QList<EqBand>& bands() const { return bands_; }
    double precutDb() const { return precutDb_; }
    bool eqEnabled() const { return enabled_; }
    // The curve as last computed for drawing.
    const EqCurve& curve() const { return curve_; }

    QSize sizeHint() const override { return {480, 220}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void recompute();

    QList<EqBand> bands_;
    double precutDb_ = 0.0;
    bool enabled_ = false;
    EqCurve curve_;
};
