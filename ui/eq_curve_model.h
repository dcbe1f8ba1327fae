#pragma once
// The numbers behind the equaliser's response curve, kept apart from the
// widget so they can be checked without a window. Each band is designed by
// the engine's own band design, so the curve is what the engine applies.
#include <QList>
#include <QVector>

#include "conversion_settings.h"

struct EqCurve {
    QVector<double> freqs;           // Hz, ascending
    QVector<QVector<double>> bandDb; // one magnitude list per band, over freqs
    QVector<double> sumDb;           // pre-cut + every band
};

constexpr double kEqPreviewRate = 44100.0;
constexpr double kEqCurveMinHz = 20.0;
constexpr double kEqCurveMaxHz = 20000.0;

// `points` log-spaced frequencies over 20 Hz..20 kHz, plus each band's centre
// and its two half-bandwidth edges, so that a very narrow band's peak is
// never stepped over.
EqCurve computeEqCurve(const QList<EqBand>& bands, double precutDb, int points,
                       double sampleRate = kEqPreviewRate);

// Magnitude in dB of band `index` of `bands` at `hz` (the kind follows the
// band's position, as in the engine).
double eqBandDb(const QList<EqBand>& bands, int index, double hz, double sampleRate = kEqPreviewRate);
