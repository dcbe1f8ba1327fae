#pragma once
#include <QString>
#include <vector>

namespace pv {

// One labelled mark on an axis; `fraction` runs 0..1 along it (time: left to
// right; frequency: bottom to top).
struct Tick {
    double value;
    double fraction;
    QString label;
};

// Marks on a time axis 0..seconds drawn over `lengthPx` pixels, at round
// steps (1-2-5) at least `minSpacingPx` apart.
std::vector<Tick> timeTicks(double seconds, int lengthPx, int minSpacingPx = 60);

// Marks on the logarithmic frequency axis 20 Hz .. nyquist: 1-2-5 per decade
// and both ends, none crowding the Nyquist mark.
std::vector<Tick> frequencyTicks(double nyquist);

// Position of f on that axis, 0 at 20 Hz and 1 at the Nyquist frequency.
double frequencyFraction(double hz, double nyquist);

// "20", "500", "1k", "22.05k": short, and the same in every locale.
QString frequencyLabel(double hz);

} // namespace pv
