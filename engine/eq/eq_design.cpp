#include "eq_design.h"

#include <algorithm>
#include <cmath>

namespace zuvo::eq {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kMinQ = 0.025;
constexpr double kMaxQ = 500.0;

double clampedCenter(double hz, double fs)
{
    return std::clamp(hz, 1.0, 0.49 * fs);
}

} // namespace

BandKind bandKindAt(int index, int count)
{
    if (index == 0)
        return BandKind::LowShelf;
    if (count == kMaxBands && index == count - 1)
        return BandKind::HighShelf;
    return BandKind::Peaking;
}

bool isBandwidthUnit(char unit)
{
    return unit == 'q' || unit == 'h' || unit == 'k' || unit == 'o' || unit == 's';
}

double bandQ(const BandSpec &band, double fs)
{
    const double f0 = clampedCenter(band.centerHz, fs);
    const double bw = band.bandwidth;
    double q = 0.7071067811865476;
    if (!(bw > 0) || !std::isfinite(bw))
        return std::clamp(q, kMinQ, kMaxQ);
    switch (band.unit) {
    case 'h': q = f0 / bw; break;
    case 'k': q = f0 / (bw * 1000.0); break;
    case 'o': {
        const double w0 = 2.0 * kPi * f0 / fs;
        const double x = std::log(2.0) / 2.0 * bw * w0 / std::sin(w0);
        q = 1.0 / (2.0 * std::sinh(std::min(x, 30.0)));
        break;
    }
    case 's': {
        const double a = std::pow(10.0, band.gainDb / 40.0);
        const double inv = (a + 1.0 / a) * (1.0 / bw - 1.0) + 2.0;
        // Slopes past the no-overshoot limit make the root negative; the
        // steepest defined slope is taken instead.
        q = inv > 1e-12 ? 1.0 / std::sqrt(inv) : kMaxQ;
        break;
    }
    default: q = bw; break; // 'q'
    }
    if (!std::isfinite(q))
        q = kMaxQ;
    return std::clamp(q, kMinQ, kMaxQ);
}

Biquad designBand(const BandSpec &band, BandKind kind, double fs)
{
    const double f0 = clampedCenter(band.centerHz, fs);
    const double gain = std::isfinite(band.gainDb) ? band.gainDb : 0.0;
    const double a = std::pow(10.0, gain / 40.0);
    const double w0 = 2.0 * kPi * f0 / fs;
    const double cw = std::cos(w0);
    const double alpha = std::sin(w0) / (2.0 * bandQ(band, fs));

    double b0, b1, b2, a0, a1, a2;
    switch (kind) {
    case BandKind::Peaking:
        b0 = 1 + alpha * a;
        b1 = -2 * cw;
        b2 = 1 - alpha * a;
        a0 = 1 + alpha / a;
        a1 = -2 * cw;
        a2 = 1 - alpha / a;
        break;
    case BandKind::LowShelf: {
        const double s = 2 * std::sqrt(a) * alpha;
        b0 = a * ((a + 1) - (a - 1) * cw + s);
        b1 = 2 * a * ((a - 1) - (a + 1) * cw);
        b2 = a * ((a + 1) - (a - 1) * cw - s);
        a0 = (a + 1) + (a - 1) * cw + s;
        a1 = -2 * ((a - 1) + (a + 1) * cw);
        a2 = (a + 1) + (a - 1) * cw - s;
        break;
    }
    case BandKind::HighShelf:
    default: {
        const double s = 2 * std::sqrt(a) * alpha;
        b0 = a * ((a + 1) + (a - 1) * cw + s);
        b1 = -2 * a * ((a - 1) + (a + 1) * cw);
        b2 = a * ((a + 1) + (a - 1) * cw - s);
        a0 = (a + 1) - (a - 1) * cw + s;
        a1 = 2 * ((a - 1) - (a + 1) * cw);
        a2 = (a + 1) - (a - 1) * cw - s;
        break;
    }
    }
    return Biquad{b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
}

std::complex<double> response(const Biquad &q, double hz, double fs)
{
    const std::complex<double> z1 = std::polar(1.0, -2.0 * kPi * hz / fs);
    const std::complex<double> z2 = z1 * z1;
    return (q.b0 + q.b1 * z1 + q.b2 * z2) / (1.0 + q.a1 * z1 + q.a2 * z2);
}

double magnitudeDb(const Biquad &q, double hz, double fs)
{
    return 20.0 * std::log10(std::max(std::abs(response(q, hz, fs)), 1e-30));
}

} // namespace zuvo::eq
