#include "plot_axes.h"

#include <cmath>

namespace pv {

std::vector<Tick> timeTicks(double seconds, int lengthPx, int minSpacingPx)
{
    std::vector<Tick> ticks;
    if (!(seconds > 0.0) || lengthPx <= 0)
        return ticks;
    static const double steps[] = {0.001, 0.002, 0.005, 0.01, 0.02, 0.05, 0.1, 0.2, 0.5,
                                   1, 2, 5, 10, 15, 30, 60, 120, 300, 600};
    double step = steps[std::size(steps) - 1];
    for (double s : steps) {
        if (s / seconds * lengthPx >= minSpacingPx) {
            step = s;
            break;
        }
    }
    const int decimals = step < 0.01 ? 3 : step < 0.1 ? 2 : step < 1.0 ? 1 : 0;
    const int count = int(std::floor(seconds / step + 1e-9));
    for (int i = 0; i <= count; ++i) {
        const double v = i * step;
        ticks.push_back({v, v / seconds, QString::number(v, 'f', decimals) + QStringLiteral(" s")});
    }
    return ticks;
}

double frequencyFraction(double hz, double nyquist)
{
    return std::log(hz / 20.0) / std::log(nyquist / 20.0);
}

QString frequencyLabel(double hz)
{
    if (hz < 1000.0)
        return QString::number(std::round(hz), 'f', 0);
    return QString::number(hz / 1000.0, 'g', 4) + QLatin1Char('k');
}

std::vector<Tick> frequencyTicks(double nyquist)
{
    std::vector<Tick> ticks;
    if (!(nyquist > 20.0))
        return ticks;
    ticks.push_back({20.0, 0.0, frequencyLabel(20.0)});
    for (double decade = 10.0; decade < nyquist; decade *= 10.0) {
        for (double m : {1.0, 2.0, 5.0}) {
            const double f = decade * m;
            if (f <= 20.0)
                continue;
            const double at = frequencyFraction(f, nyquist);
            if (at > 0.94)
                continue;
            ticks.push_back({f, at, frequencyLabel(f)});
        }
    }
    ticks.push_back({nyquist, 1.0, frequencyLabel(nyquist)});
    return ticks;
}

} // namespace pv
