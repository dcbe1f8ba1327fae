#include "engine_test_support.h"

#include <QJsonDocument>
#include <QProcess>

#include <cmath>
#include <sndfile.h>

namespace enginetest {

QString enginePath()
{
    return QStringLiteral(ZUVO_ENGINE_PATH);
}

RunResult runEngine(const QStringList& args, int timeoutMs, const QByteArray& stdinData)
{
    QProcess p;
    p.start(enginePath(), args);
    RunResult r;
    if (!p.waitForStarted(10000))
        return r;
    if (!stdinData.isEmpty())
        p.write(stdinData);
    p.closeWriteChannel();
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished(5000);
        r.crashed = true;
    }
    r.exitCode = p.exitCode();
    r.crashed = r.crashed || p.exitStatus() != QProcess::NormalExit;
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

bool writePcm(const QString& path, int rate, int channels, long frames, int sfFormat,
              const std::function<double(long, int)>& sample)
{
    SF_INFO si{};
    si.samplerate = rate;
    si.channels = channels;
    si.format = sfFormat;
    SNDFILE* f = sf_open(path.toUtf8().constData(), SFM_WRITE, &si);
    if (!f)
        return false;
    std::vector<double> buf(static_cast<std::size_t>(channels) * 4096);
    for (long start = 0; start < frames; start += 4096) {
        const long n = std::min<long>(4096, frames - start);
        for (long i = 0; i < n; ++i)
            for (int c = 0; c < channels; ++c)
                buf[static_cast<std::size_t>(i * channels + c)] = sample(start + i, c);
        sf_writef_double(f, buf.data(), n);
    }
    return sf_close(f) == 0;
}

bool readPcm(const QString& path, int& rate, std::vector<std::vector<double>>& out)
{
    SF_INFO si{};
    SNDFILE* f = sf_open(path.toUtf8().constData(), SFM_READ, &si);
    if (!f)
        return false;
    rate = si.samplerate;
    out.assign(static_cast<std::size_t>(si.channels), {});
    std::vector<double> buf(static_cast<std::size_t>(si.channels) * 4096);
    sf_count_t n;
    while ((n = sf_readf_double(f, buf.data(), 4096)) > 0)
        for (sf_count_t i = 0; i < n; ++i)
            for (int c = 0; c < si.channels; ++c)
                out[static_cast<std::size_t>(c)].push_back(buf[static_cast<std::size_t>(i * si.channels + c)]);
    sf_close(f);
    return true;
}

QJsonObject ffprobe(const QString& path)
{
    QProcess p;
    p.start(QStringLiteral("ffprobe"), {"-v", "error", "-show_streams", "-show_format", "-of", "json", path});
    if (!p.waitForFinished(60000))
        return {};
    return QJsonDocument::fromJson(p.readAllStandardOutput()).object();
}

bool dsdDurationMatches(const QJsonObject& probe, double expected, int dsdRate)
{
    const double d = probe["format"].toObject()["duration"].toString().toDouble();
    const bool dsf = probe["format"].toObject()["format_name"].toString() == "dsf";
    const double slack = dsf ? 4096.0 * 8.0 / dsdRate : 0.0;
    return d >= expected - 0.002 && d <= expected + slack + 0.002;
}

bool ffmpegDecode(const QString& path, int rate, int channels, std::vector<std::vector<double>>& out)
{
    QProcess p;
    p.start(QStringLiteral("ffmpeg"),
            {"-v", "error", "-i", path, "-af", QStringLiteral("aresample=%1:resampler=soxr:precision=28").arg(rate),
             "-ac", QString::number(channels), "-f", "f64le", "-"});
    if (!p.waitForFinished(120000) || p.exitCode() != 0)
        return false;
    const QByteArray raw = p.readAllStandardOutput();
    const auto* d = reinterpret_cast<const double*>(raw.constData());
    const std::size_t frames = static_cast<std::size_t>(raw.size()) / sizeof(double) / static_cast<std::size_t>(channels);
    out.assign(static_cast<std::size_t>(channels), std::vector<double>(frames));
    for (std::size_t i = 0; i < frames; ++i)
        for (int c = 0; c < channels; ++c)
            out[static_cast<std::size_t>(c)][i] = d[i * static_cast<std::size_t>(channels) + static_cast<std::size_t>(c)];
    return frames > 0;
}

namespace {
// Least-squares fit of a*cos + b*sin + dc at `freq`.
void fitTone(const std::vector<double>& x, int rate, double freq, std::size_t skip, double& a, double& b, double& dc)
{
    const std::size_t end = x.size() > skip ? x.size() - skip : 0;
    double scc = 0, sss = 0, scs = 0, sxc = 0, sxs = 0, sx = 0, n = 0;
    for (std::size_t i = skip; i < end; ++i) {
        const double w = 2 * M_PI * freq * static_cast<double>(i) / rate;
        const double c = std::cos(w), s = std::sin(w);
        scc += c * c; sss += s * s; scs += c * s; sxc += x[i] * c; sxs += x[i] * s; sx += x[i]; n += 1;
    }
    const double det = scc * sss - scs * scs;
    a = det != 0 ? (sxc * sss - sxs * scs) / det : 0;
    b = det != 0 ? (sxs * scc - sxc * scs) / det : 0;
    dc = n > 0 ? sx / n : 0;
}
} // namespace

double toneAmplitude(const std::vector<double>& x, int rate, double freq, std::size_t skip)
{
    double a, b, dc;
    fitTone(x, rate, freq, skip, a, b, dc);
    return std::hypot(a, b);
}

double residualRms(const std::vector<double>& x, int rate, double freq, std::size_t skip)
{
    double a, b, dc;
    fitTone(x, rate, freq, skip, a, b, dc);
    const std::size_t end = x.size() > skip ? x.size() - skip : 0;
    double e = 0, n = 0;
    for (std::size_t i = skip; i < end; ++i) {
        const double w = 2 * M_PI * freq * static_cast<double>(i) / rate;
        const double r = x[i] - a * std::cos(w) - b * std::sin(w) - dc;
        e += r * r;
        n += 1;
    }
    return n > 0 ? std::sqrt(e / n) : 0;
}

double dominantFrequency(const std::vector<double>& x, int rate, double lo, double hi)
{
    // Coarse DFT scan on a slice, then fine around the best bin.
    const std::size_t n = std::min<std::size_t>(x.size(), 16384);
    const std::size_t start = (x.size() - n) / 2; // away from start-up transients
    std::vector<double> slice(x.begin() + static_cast<std::ptrdiff_t>(start),
                              x.begin() + static_cast<std::ptrdiff_t>(start + n));
    double best = lo, bestAmp = -1;
    for (double f = lo; f <= hi; f += 1.0) {
        const double a = toneAmplitude(slice, rate, f);
        if (a > bestAmp) { bestAmp = a; best = f; }
    }
    return best;
}

} // namespace enginetest
