#include "preview_reader.h"

#include <QFile>
#include <QFileInfo>

#include "wav_decode.h"

namespace pv {

namespace {

class FileSource : public ByteSource {
public:
    explicit FileSource(QFile& file) : file_(file) {}
    std::int64_t size() const override { return file_.size(); }
    bool seek(std::int64_t pos) override { return file_.seek(pos); }
    std::int64_t read(char* dst, std::int64_t n) override { return file_.read(dst, n); }

private:
    QFile& file_;
};

QString messageFor(const WavDecodeResult& r)
{
    switch (r.error) {
    case WavError::None: return {};
    case WavError::NotRiffWave: return QStringLiteral("not RIFF/WAVE");
    case WavError::MissingChunks: return QStringLiteral("missing fmt/data chunk");
    case WavError::UnsupportedTag: return QStringLiteral("unsupported WAV tag %1").arg(r.detail);
    case WavError::BadChannelCount: return QStringLiteral("bad channel count");
    case WavError::UnsupportedDepth: return QStringLiteral("unsupported depth %1").arg(r.detail);
    case WavError::NoSamples: return QStringLiteral("no samples");
    case WavError::SeekFailed: return QStringLiteral("seek failed");
    case WavError::NoSamplesDecoded: return QStringLiteral("no samples decoded");
    }
    return QStringLiteral("unknown error");
}

bool failWith(const QString& message, QString* error)
{
    if (error)
        *error = message;
    return false;
}

} // namespace

bool readPreview(const QString& path, PreviewData& out, QString* error)
{
    out = PreviewData{};
    out.path = path;
    out.suffix = QFileInfo(path).suffix().toUpper();
    if (out.suffix != QLatin1String("WAV"))
        return failWith(QStringLiteral("unsupported (only WAV)"), error);

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failWith(file.errorString(), error);
    FileSource src(file);
    const WavDecodeResult r = decodeWavPreview(src, out.samples);
    out.sampleRate = r.sampleRate;
    out.channels = r.channels;
    if (r.error != WavError::None) {
        out.samples.clear();
        out.samples.shrink_to_fit();
        return failWith(messageFor(r), error);
    }
    out.ok = true;
    return true;
}

} // namespace pv
