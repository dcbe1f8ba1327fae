// Preview speed: reading 30 s of stereo 96 kHz 24-bit WAV and computing its
// spectrogram. Writes the file once (to the folder given, else a temporary
// one), then times read + spectrogram several times and prints each run and
// the best and median figures.
//   preview_bench [folder] [runs]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <algorithm>
#include <ctime>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <vector>

#include "preview_reader.h"
#include "spectrogram.h"

namespace {

// CPU time of this process: on a shared, busy machine it says more than the
// wall clock, which also counts the time other programs had the cores.
double cpuMs()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

bool writeTestFile(const QString& path)
{
    const quint32 rate = 96000;
    const int channels = 2;
    const qint64 frames = 30LL * rate;
    const qint64 dataBytes = frames * channels * 3;
    QByteArray head("RIFF");
    auto put32 = [&head](quint32 v) { char b[4]; qToLittleEndian(v, b); head.append(b, 4); };
    auto put16 = [&head](quint16 v) { char b[2]; qToLittleEndian(v, b); head.append(b, 2); };
    put32(quint32(36 + dataBytes));
    head += "WAVEfmt ";
    put32(16); put16(1); put16(channels); put32(rate); put32(rate * channels * 3); put16(channels * 3); put16(24);
    head += "data";
    put32(quint32(dataBytes));
    QByteArray data(dataBytes, Qt::Uninitialized);
    std::mt19937 rng(1);
    std::normal_distribution<double> noise(0.0, 0.001);
    char* p = data.data();
    for (qint64 i = 0; i < frames; ++i) {
        const double t = double(i) / rate;
        const double sweep = 0.4 * std::sin(2.0 * std::numbers::pi * (200.0 * t + 300.0 * t * t));
        for (int c = 0; c < channels; ++c) {
            const auto v = std::int32_t(std::lround((sweep + noise(rng)) * 8388607.0));
            p[0] = char(v & 0xFF);
            p[1] = char((v >> 8) & 0xFF);
            p[2] = char((v >> 16) & 0xFF);
            p += 3;
        }
    }
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(head) == head.size() && f.write(data) == data.size();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir tmp;
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : tmp.path();
    const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 7;
    const QString path = folder + QStringLiteral("/preview_bench_96k24_stereo_30s.wav");
    if (!QFile::exists(path) && !writeTestFile(path)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return 1;
    }

    std::vector<double> totals, cpuTotals;
    for (int r = 0; r < runs; ++r) {
        QElapsedTimer clock;
        const double cpu0 = cpuMs();
        clock.start();
        pv::PreviewData data;
        QString error;
        if (!pv::readPreview(path, data, &error)) {
            std::fprintf(stderr, "read failed: %s\n", qPrintable(error));
            return 1;
        }
        const qint64 readNs = clock.nsecsElapsed();
        const pv::Spectrogram s = pv::computeSpectrogram(data.samples.data(), data.samples.size(), data.sampleRate);
        const qint64 totalNs = clock.nsecsElapsed();
        const double cpu = cpuMs() - cpu0;
        std::printf("run %d: read %.1f ms (%zu frames), spectrogram %.1f ms (%d columns), total %.1f ms wall, %.1f ms CPU\n",
                    r + 1, readNs / 1e6, data.samples.size(), (totalNs - readNs) / 1e6, s.columns, totalNs / 1e6, cpu);
        totals.push_back(totalNs / 1e6);
        cpuTotals.push_back(cpu);
    }
    std::sort(totals.begin(), totals.end());
    std::sort(cpuTotals.begin(), cpuTotals.end());
    std::printf("read + spectrogram, 30 s stereo 96 kHz 24-bit, %d runs: wall best %.1f ms, median %.1f ms; "
                "CPU best %.1f ms, median %.1f ms\n",
                runs, totals.front(), totals[totals.size() / 2], cpuTotals.front(), cpuTotals[cpuTotals.size() / 2]);
    return 0;
}
