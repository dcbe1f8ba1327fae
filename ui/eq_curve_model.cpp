#include "eq_curve_model.h"

#include <algorithm>
#include <cmath>

#include "eq/eq_design.h"

namespace {

zuvo::eq::BandSpec designOf(const EqBand& band)
{
    zuvo::eq::BandSpec design;
    design.centerHz = band.centerFreq;
    design.gainDb = band.gainDB;
    design.bandwidth = band.bandwidth;
    design.unit = band.bwType;
    return design;
}

} // namespace

double eqBandDb(const QList<EqBand>& bands, int index, double hz, double sampleRate)
{
    const zuvo::eq::BandKind kind = zuvo::eq::bandKindAt(index, int(bands.size()));
    const zuvo::eq::Biquad q = zuvo::eq::designBand(designOf(bands[index]), kind, sampleRate);
    return zuvo::eq::magnitudeDb(q, hz, sampleRate);
}

EqCurve computeEqCurve(const QList<EqBand>& bands, double precutDb, int points, double sampleRate)
{
    EqCurve curve;
    points = std::max(points, 2);
    const double lo = std::log(kEqCurveMinHz);
    const double hi = std::log(kEqCurveMaxHz);
    for (int i = 0; i < points; ++i)
        curve.freqs.append(std::exp(lo + (hi - lo) * i / (points - 1)));
    for (const EqBand& band : bands) {
        const double q = zuvo::eq::bandQ(designOf(band), sampleRate);
        const double f0 = band.centerFreq;
        for (double f : {f0, f0 * (1.0 - 0.5 / q), f0 * (1.0 + 0.5 / q)}) {
            if (f > kEqCurveMinHz && f < kEqCurveMaxHz)
                curve.freqs.append(f);
        }
    }
    std::sort(curve.freqs.begin(), curve.freqs.end());

    curve.sumDb = QVector<double>(curve.freqs.size(), precutDb);
    for (int b = 0; b < bands.size(); ++b) {
        const zuvo::eq::BandKind kind = zuvo::eq::bandKindAt(b, int(bands.size()));
        const zuvo::eq::Biquad q = zuvo::eq::designBand(designOf(bands[b]), kind, sampleRate);
        QVector<double> db(curve.freqs.size());
        for (int i = 0; i < curve.freqs.size(); ++i) {
            db[i] = zuvo::eq::magnitudeDb(q, curve.freqs[i], sampleRate);
            curve.sumDb[i] += db[i];
        }
        curve.bandDb.append(db);
    }
    return curve;
}
