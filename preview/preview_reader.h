#pragma once
#include <QString>
#include <vector>

namespace pv {

// The beginning of one file as the preview shows it.
struct PreviewData {
    bool ok = false;          // at least one frame decoded
    double sampleRate = 0.0;  // Hz
    int channels = 0;
    QString path;             // as given
    QString suffix;           // upper case
    std::vector<float> samples; // mono mean of the channels, full scale ±1

    double seconds() const { return sampleRate > 0 ? double(samples.size()) / sampleRate : 0.0; }
};

// Reads at most the first 30 s of a WAV file. On failure `out.ok` is false
// and `error` (when given) receives an English message for the user.
bool readPreview(const QString& path, PreviewData& out, QString* error = nullptr);

} // namespace pv
