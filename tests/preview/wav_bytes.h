#pragma once
// Hand-assembled RIFF/WAVE bytes for the preview tests, so that every odd
// layout (padding, zero sizes, extensible headers) can be written on purpose.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtEndian>
#include <cmath>

namespace wavbytes {

inline QByteArray le16(int v)
{
    QByteArray b(2, 0);
    qToLittleEndian<quint16>(quint16(v), b.data());
    return b;
}

inline QByteArray le32(quint32 v)
{
    QByteArray b(4, 0);
    qToLittleEndian<quint32>(v, b.data());
    return b;
}

// A chunk with its pad byte when the body is odd; `declared` overrides the size field.
inline QByteArray chunk(const char* id, const QByteArray& body, qint64 declared = -1)
{
    QByteArray c(id, 4);
    c += le32(quint32(declared < 0 ? body.size() : declared));
    c += body;
    if (body.size() % 2)
        c += '\0';
    return c;
}

inline QByteArray fmtBody(int tag, int channels, quint32 rate, int bits)
{
    const int align = channels * bits / 8;
    return le16(tag) + le16(channels) + le32(rate) + le32(rate * quint32(align)) + le16(align) + le16(bits);
}

// WAVE_FORMAT_EXTENSIBLE with the first two bytes of the sub-format GUID.
inline QByteArray extensibleBody(int channels, quint32 rate, int bits, int subFormat)
{
    static const char guidTail[] = "\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71";
    return fmtBody(0xFFFE, channels, rate, bits) + le16(22) + le16(bits) + le32(3) + le16(subFormat)
           + QByteArray(guidTail, 14);
}

inline QByteArray riff(const QByteArray& chunks)
{
    return QByteArray("RIFF") + le32(quint32(chunks.size() + 4)) + QByteArray("WAVE") + chunks;
}

inline QByteArray pcm16(std::initializer_list<int> values)
{
    QByteArray b;
    for (int v : values)
        b += le16(v);
    return b;
}

inline QByteArray pcm24(std::initializer_list<quint32> values)
{
    QByteArray b;
    for (quint32 v : values)
        b += le32(v).left(3);
    return b;
}

inline QByteArray float32(std::initializer_list<float> values)
{
    QByteArray b;
    for (float v : values) {
        quint32 u;
        std::memcpy(&u, &v, 4);
        b += le32(u);
    }
    return b;
}

// A mono 16-bit sine of `frames` frames.
inline QByteArray sine16(double hz, quint32 rate, qint64 frames, double amplitude = 0.5)
{
    QByteArray b(frames * 2, Qt::Uninitialized);
    for (qint64 i = 0; i < frames; ++i) {
        const int v = int(std::lround(amplitude * 32767.0 * std::sin(2.0 * M_PI * hz * double(i) / rate)));
        qToLittleEndian<qint16>(qint16(v), b.data() + 2 * i);
    }
    return b;
}

inline QString write(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        return {};
    return path;
}

} // namespace wavbytes
