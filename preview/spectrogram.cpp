#include "spectrogram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "fft_radix2.h"

namespace pv {

namespace {

struct RowBins {
    int first;
    int last; // inclusive; first > last: no bin
};

std::vector<RowBins> rowBins(double sampleRate)
{
    std::vector<RowBins> rows(kImageHeight);
    for (int r = 0; r < kImageHeight; ++r) {
        const double k = std::floor(rowFrequency(r, sampleRate) * (kFftSize - 1) / sampleRate);
        // Clamped in double first: a tiny sample rate puts k far above any bin.
        const int centre = int(std::clamp(k, -2.0, double(kBins) + 2.0));
        rows[std::size_t(r)] = {std::max(centre - 1, 1), std::min(centre + 1, kBins - 1)};
    }
    return rows;
}

std::vector<double> hannWindow()
{
    std::vector<double> w(kFftSize);
    for (int i = 0; i < kFftSize; ++i)
        w[std::size_t(i)] = 0.5 * (1.0 - std::cos(2.0 * std::numbers::pi * i / (kFftSize - 1)));
    return w;
}

bool cancelled(const std::atomic<bool>* cancel) { return cancel && cancel->load(std::memory_order_relaxed); }

} // namespace

double rowFrequency(int row, double sampleRate)
{
    return 20.0 * std::pow((sampleRate / 2.0) / 20.0, double(row) / (kImageHeight - 1));
}

double levelOf(double v)
{
    const double u = 20.0 * std::log10(std::max(v, 1e-12)) / kFloorDb;
    if (std::isnan(u))
        return 1.0;
    return std::clamp(u, 0.0, 1.0);
}

QRgb paletteColour(double u)
{
    static constexpr std::array<std::array<double, 3>, 6> stops{{
        {0.05, 0.05, 0.3},
        {0.0, 0.0, 1.0},
        {0.0, 1.0, 1.0},
        {0.0, 1.0, 0.0},
        {1.0, 1.0, 0.0},
        {1.0, 0.2, 0.0},
    }};
    u = std::isnan(u) ? 1.0 : std::clamp(u, 0.0, 1.0);
    const int i = std::min(int(5.0 * u), 4);
    const double t = 5.0 * u - i;
    std::array<double, 3> c{};
    for (std::size_t k = 0; k < 3; ++k)
        c[k] = stops[std::size_t(i)][k] + (stops[std::size_t(i) + 1][k] - stops[std::size_t(i)][k]) * t;
    if (u > 0.9) {
        const double w = (u - 0.9) / 0.1;
        for (double& x : c)
            x += (1.0 - x) * w;
    }
    // The same rounding as QColor::fromRgbF(...).rgb(): to 16 bits, then to 8.
    const auto to8 = [](double x) {
        const unsigned wide = unsigned(std::lround(std::clamp(float(x), 0.0f, 1.0f) * 65535.0f));
        return int((wide - (wide >> 8) + 0x80) >> 8);
    };
    return qRgb(to8(c[0]), to8(c[1]), to8(c[2]));
}

Spectrogram computeSpectrogram(const float* samples, std::size_t count, double sampleRate,
                               const std::atomic<bool>* cancel)
{
    Spectrogram out;
    if (count < std::size_t(kFftSize) || !(sampleRate > 0.0))
        return out;
    const int columns = int(std::min<std::size_t>(count / kHop, kMaxColumns));

    const std::vector<double> window = hannWindow();
    const std::vector<RowBins> rows = rowBins(sampleRate);
    const Radix2Fft fft(kFftSize);

    // Only the row averages are kept: they do not depend on the loudest bin,
    // which divides them once every column is known.
    std::vector<double> rowMean(std::size_t(columns) * kImageHeight, 0.0);
    std::vector<double> re(kFftSize), im(kFftSize), magA(kBins), magB(kBins);
    double largest = 1e-12;

    const auto frame = [&](int c, std::vector<double>& dst) {
        const std::size_t start = std::size_t(c) * kHop;
        for (int i = 0; i < kFftSize; ++i) {
            const std::size_t at = start + std::size_t(i);
            const double x = at < count ? double(samples[at]) * window[std::size_t(i)] : 0.0;
            dst[std::size_t(i)] = x;
        }
    };
    const auto keepRows = [&](int c, const std::vector<double>& mag) {
        for (int k = 0; k < kBins; ++k)
            largest = std::max(largest, mag[std::size_t(k)]);
        double* dst = rowMean.data() + std::size_t(c) * kImageHeight;
        for (int r = 0; r < kImageHeight; ++r) {
            const RowBins b = rows[std::size_t(r)];
            if (b.first > b.last)
                continue;
            double sum = 0.0;
            for (int k = b.first; k <= b.last; ++k)
                sum += mag[std::size_t(k)];
            dst[r] = sum / (b.last - b.first + 1);
        }
    };

    // Two real frames share one complex transform: column c in the real part,
    // column c + 1 in the imaginary part, separated by conjugate symmetry.
    for (int c = 0; c < columns; c += 2) {
        if (cancelled(cancel))
            return {};
        const bool pair = c + 1 < columns;
        frame(c, re);
        if (pair)
            frame(c + 1, im);
        else
            std::fill(im.begin(), im.end(), 0.0);
        fft.transform(re.data(), im.data());
        for (int k = 0; k < kBins; ++k) {
            const std::size_t m = std::size_t((kFftSize - k) % kFftSize);
            const std::size_t kk = std::size_t(k);
            const double sr = re[kk] + re[m], dr = re[kk] - re[m];
            const double si = im[kk] + im[m], di = im[kk] - im[m];
            magA[kk] = 0.5 * std::sqrt(sr * sr + di * di);
            magB[kk] = 0.5 * std::sqrt(si * si + dr * dr);
        }
        keepRows(c, magA);
        if (pair)
            keepRows(c + 1, magB);
    }

    out.columns = columns;
    out.image = QImage(columns, kImageHeight, QImage::Format_RGB32);
    out.image.fill(Qt::black);
    for (int r = 0; r < kImageHeight; ++r) {
        auto* line = reinterpret_cast<QRgb*>(out.image.scanLine(kImageHeight - 1 - r));
        for (int c = 0; c < columns; ++c)
            line[c] = paletteColour(levelOf(rowMean[std::size_t(c) * kImageHeight + std::size_t(r)] / largest));
    }
    return out;
}

} // namespace pv
