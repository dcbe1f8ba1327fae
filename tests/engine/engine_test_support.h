#pragma once
// Helpers shared by the engine suites: running the real CLI, making PCM
// inputs with libsndfile, and asking ffprobe/ffmpeg (an independent decoder)
// what our files contain.

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace enginetest {

struct RunResult {
    int exitCode = -1;
    bool crashed = false;
    QString out;
    QString err;
};

QString enginePath();
RunResult runEngine(const QStringList& args, int timeoutMs = 120000, const QByteArray& stdinData = {});

// Writes `frames` frames; `sample(frame, channel)` gives values in [-1, 1].
bool writePcm(const QString& path, int rate, int channels, long frames, int sfFormat,
              const std::function<double(long, int)>& sample);
// Reads a PCM file with libsndfile into per-channel vectors.
bool readPcm(const QString& path, int& rate, std::vector<std::vector<double>>& channels);

QJsonObject ffprobe(const QString& path); // {"streams": [...], "format": {...}}
// ffprobe's duration of a DSD file against the expected one. DSF pads its
// last block of 4096 bytes per channel, and ffmpeg counts the padding, so a
// DSF may read up to one block (plus rounding) longer.
bool dsdDurationMatches(const QJsonObject& probe, double expected, int dsdRate);
// Decodes any file with ffmpeg to doubles at `rate`, per channel.
bool ffmpegDecode(const QString& path, int rate, int channels, std::vector<std::vector<double>>& out);

// Amplitude of the sinusoid at `freq` in `x` (least-squares fit over the
// slice [skip, x.size() - skip)).
double toneAmplitude(const std::vector<double>& x, int rate, double freq, std::size_t skip = 0);
// Frequency of the strongest sinusoid between lo and hi, 1 Hz resolution.
double dominantFrequency(const std::vector<double>& x, int rate, double lo, double hi);
// RMS of what remains after removing the fitted tone at `freq`.
double residualRms(const std::vector<double>& x, int rate, double freq, std::size_t skip = 0);

} // namespace enginetest
