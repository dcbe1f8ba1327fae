#pragma once
#include <QImage>
#include <atomic>
#include <cstddef>

namespace pv {

inline constexpr int kFftSize = 2048;
inline constexpr int kHop = 512;
inline constexpr int kBins = kFftSize / 2;
inline constexpr int kMaxColumns = 2048;
inline constexpr int kImageHeight = 220;
inline constexpr double kFloorDb = -120.0;

struct Spectrogram {
    int columns = 0; // 0: nothing could be computed
    QImage image;    // columns × 220, RGB32; image line 219 − r is row r
};

// One image column per hop of 512 samples (at most 2048), each a Hann-windowed
// 2048-point spectrum mapped onto 220 log-spaced rows from 20 Hz to Nyquist and
// coloured by its level relative to the loudest bin of the whole signal.
// Returns an empty result when `cancel` becomes true.
Spectrogram computeSpectrogram(const float* samples, std::size_t count, double sampleRate,
                               const std::atomic<bool>* cancel = nullptr);

// Frequency (Hz) shown by row r (0 = bottom).
double rowFrequency(int row, double sampleRate);
// Level 0..1 (0 = loudest, 1 = 120 dB below or less) of a relative magnitude.
double levelOf(double relativeMagnitude);
// Colour of a level: navy for the loudest, through blue, cyan, green and
// yellow to red, blending into white over the faintest tenth.
QRgb paletteColour(double level);

} // namespace pv
