#include "player_test_support.h"

#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>

namespace playertest {

namespace {

std::uint64_t le(const char* p, int n)
{
    std::uint64_t v = 0;
    for (int i = n - 1; i >= 0; --i)
        v = (v << 8) | static_cast<unsigned char>(p[i]);
    return v;
}

std::uint64_t be(const char* p, int n)
{
    std::uint64_t v = 0;
    for (int i = 0; i < n; ++i)
        v = (v << 8) | static_cast<unsigned char>(p[i]);
    return v;
}

unsigned char reversed(unsigned char b)
{
    unsigned char r = 0;
    for (int i = 0; i < 8; ++i)
        if (b & (1 << i))
            r |= static_cast<unsigned char>(0x80 >> i);
    return r;
}

bool readDsf(const QByteArray& d, int& rate, std::vector<QByteArray>& out)
{
    if (d.size() < 92 || !d.startsWith("DSD "))
        return false;
    const auto fmt = static_cast<qsizetype>(le(d.constData() + 4, 8));
    if (fmt + 52 > d.size() || d.mid(fmt, 4) != "fmt ")
        return false;
    const char* f = d.constData() + fmt;
    const int channels = int(le(f + 24, 4));
    rate = int(le(f + 28, 4));
    const std::uint64_t samples = le(f + 36, 8);
    const auto block = static_cast<qsizetype>(le(f + 44, 4));
    const qsizetype data = fmt + static_cast<qsizetype>(le(f + 4, 8)) + 12;
    if (channels < 1 || block < 1 || data > d.size())
        return false;
    const auto bytes = static_cast<qsizetype>(samples / 8);
    out.assign(std::size_t(channels), QByteArray());
    for (qsizetype off = data; off + block * channels <= d.size(); off += block * channels)
        for (int c = 0; c < channels; ++c)
            out[std::size_t(c)].append(d.constData() + off + c * block, block);
    for (QByteArray& c : out) {
        if (c.size() < bytes)
            return false;
        c.truncate(bytes);
        for (char& b : c)
            b = static_cast<char>(reversed(static_cast<unsigned char>(b)));
    }
    return true;
}

bool readDff(const QByteArray& d, int& rate, std::vector<QByteArray>& out)
{
    if (d.size() < 16 || !d.startsWith("FRM8") || d.mid(12, 4) != "DSD ")
        return false;
    int channels = 0;
    rate = 0;
    // Top-level chunks, then the property chunk's sub-chunks; every walk only moves forward.
    auto walk = [&](qsizetype pos, qsizetype end, auto&& self) -> bool {
        while (pos + 12 <= end) {
            const QByteArray id = d.mid(pos, 4);
            const auto size = static_cast<qsizetype>(be(d.constData() + pos + 4, 8));
            const qsizetype body = pos + 12;
            if (size < 0 || body + size > end)
                return false;
            if (id == "PROP" && d.mid(body, 4) == "SND ") {
                if (!self(body + 4, body + size, self))
                    return false;
            } else if (id == "FS  ") {
                rate = int(be(d.constData() + body, 4));
            } else if (id == "CHNL") {
                channels = int(be(d.constData() + body, 2));
            } else if (id == "DSD " && channels > 0) {
                out.assign(std::size_t(channels), QByteArray());
                for (qsizetype i = 0; i + channels <= size; i += channels)
                    for (int c = 0; c < channels; ++c)
                        out[std::size_t(c)].append(d[body + i + c]);
                return true;
            }
            pos = body + size + (size & 1);
        }
        return true;
    };
    return walk(16, d.size(), walk) && !out.empty() && rate > 0;
}

} // namespace

QString playerPath()
{
    return QStringLiteral(ZUVO_PLAYER_PATH);
}

void startPlayer(QProcess& p, const QString& alsaConfig, const QStringList& args)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("ALSA_CONFIG_PATH"), alsaConfig);
    p.setProcessEnvironment(env);
    p.start(playerPath(), args);
}

PlayResult runPlayer(const QString& alsaConfig, const QStringList& args, int timeoutMs)
{
    QProcess p;
    startPlayer(p, alsaConfig, args);
    PlayResult r;
    if (!p.waitForStarted(10000))
        return r;
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

QStringList chosenPath(const QString& out)
{
    static const QRegularExpression re(QStringLiteral("^\\[PATH\\] (\\S+) format=(\\S+) rate=(\\d+)"),
                                       QRegularExpression::MultilineOption);
    const QRegularExpressionMatch m = re.match(out);
    return m.hasMatch() ? QStringList{m.captured(1), m.captured(2), m.captured(3)} : QStringList{};
}

bool readDsdBits(const QString& path, int& rate, std::vector<QByteArray>& channels)
{
    const QByteArray d = readAll(path);
    return readDsf(d, rate, channels) || readDff(d, rate, channels);
}

bool writeSparseDsf(const QString& path, int rate, int channels, std::uint64_t bytesPerChannel)
{
    const std::uint64_t block = 4096;
    const std::uint64_t blocks = (bytesPerChannel + block - 1) / block;
    const std::uint64_t dataBytes = blocks * block * std::uint64_t(channels);
    QByteArray h(92, '\0');
    auto put = [&h](int at, std::uint64_t v, int n) {
        for (int i = 0; i < n; ++i)
            h[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    };
    h.replace(0, 4, "DSD ");
    put(4, 28, 8);
    put(12, 92 + dataBytes, 8);
    put(20, 0, 8);
    h.replace(28, 4, "fmt ");
    put(32, 52, 8);
    put(40, 1, 4);             // version
    put(44, 0, 4);             // raw DSD
    put(48, channels == 2 ? 2 : 1, 4);
    put(52, std::uint64_t(channels), 4);
    put(56, std::uint64_t(rate), 4);
    put(60, 1, 4);             // bits per sample
    put(64, bytesPerChannel * 8, 8);
    put(72, block, 4);
    h.replace(80, 4, "data");
    put(84, 12 + dataBytes, 8);
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(h) != h.size())
        return false;
    return f.resize(qint64(92 + dataBytes));
}

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace playertest
