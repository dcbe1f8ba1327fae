#include "output_check.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstring>

namespace {


// Reads fixed fields at absolute positions; a field past the end reads as
// missing, never as zero.
class Header {
public:
    explicit Header(QFile& f) : f_(f), size_(f.size()) {}
    qint64 size() const { return size_; }
    bool bytes(qint64 at, void* out, qint64 n)
    {
        return at >= 0 && n >= 0 && at <= size_ - n && f_.seek(at) && f_.read(static_cast<char*>(out), n) == n;
    }
    bool id(qint64 at, const char* expected)
    {
        char got[4];
        return bytes(at, got, 4) && std::memcmp(got, expected, 4) == 0;
    }
    bool le(qint64 at, int n, quint64& v) { return number(at, n, false, v); }
    bool be(qint64 at, int n, quint64& v) { return number(at, n, true, v); }

private:
    bool number(qint64 at, int n, bool bigEndian, quint64& v)
    {
        unsigned char b[8];
        if (n > 8 || !bytes(at, b, n))
            return false;
        v = 0;
        for (int i = 0; i < n; ++i)
            v |= quint64(b[bigEndian ? i : n - 1 - i]) << (8 * (n - 1 - i));
        return true;
    }
    QFile& f_;
    qint64 size_;
};

QString dsfProblem(Header& h)
{
    quint64 head = 0, total = 0, meta = 0, fmt = 0, version = 0, id = 0, channels = 0, rate = 0, bits = 0,
            block = 0, data = 0;
    if (!h.id(0, "DSD ") || !h.le(4, 8, head) || head != 28)
        return QCoreApplication::translate("ConversionQueue", "不是 DSF 文件");
    if (!h.le(12, 8, total) || total != quint64(h.size()))
        return QCoreApplication::translate("ConversionQueue", "DSF 头里的文件长度与实际不符 (文件不完整)");
    if (!h.id(28, "fmt ") || !h.le(32, 8, fmt) || fmt != 52 || !h.le(40, 4, version) || version != 1
        || !h.le(44, 4, id) || id != 0 || !h.le(52, 4, channels) || channels < 1 || channels > 6
        || !h.le(56, 4, rate) || rate == 0 || !h.le(60, 4, bits) || (bits != 1 && bits != 8)
        || !h.le(72, 4, block) || block != 4096)
        return QCoreApplication::translate("ConversionQueue", "DSF 格式块不对");
    if (!h.id(80, "data") || !h.le(84, 8, data) || data < 12 || data > quint64(h.size()) - 80)
        return QCoreApplication::translate("ConversionQueue", "DSF 数据块不对");
    if (!h.le(20, 8, meta) || (meta != 0 && (meta < 80 + data || meta >= quint64(h.size()))))
        return QCoreApplication::translate("ConversionQueue", "DSF 元数据位置不对");
    return {};
}

QString dffProblem(Header& h)
{
    quint64 form = 0;
    if (!h.id(0, "FRM8") || !h.be(4, 8, form) || !h.id(12, "DSD "))
        return QCoreApplication::translate("ConversionQueue", "不是 DSDIFF 文件");
    if (form < 4 || form > quint64(h.size()) - 12)
        return QCoreApplication::translate("ConversionQueue", "DSDIFF 头里的长度与实际不符 (文件不完整)");
    const quint64 end = 12 + form;
    bool fver = false, prop = false, sound = false;
    quint64 at = 16;
    for (int n = 0; at + 12 <= end && n < 4096; ++n) {
        quint64 size = 0;
        if (!h.be(qint64(at) + 4, 8, size) || size > end - at - 12)
            return QCoreApplication::translate("ConversionQueue", "DSDIFF 块超出文件");
        if (n == 0)
            fver = h.id(qint64(at), "FVER");
        if (h.id(qint64(at), "PROP"))
            prop = h.id(qint64(at) + 12, "SND ");
        if (h.id(qint64(at), "DSD ") || h.id(qint64(at), "DST "))
            sound = prop;
        at += 12 + size + (size & 1);
    }
    if (!fver || !prop || !sound)
        return QCoreApplication::translate("ConversionQueue", "DSDIFF 缺少 FVER/PROP/声音块");
    return {};
}

QString riffProblem(Header& h)
{
    const bool rf64 = h.id(0, "RF64") || h.id(0, "BW64");
    if ((!h.id(0, "RIFF") && !rf64) || !h.id(8, "WAVE"))
        return QCoreApplication::translate("ConversionQueue", "不是 WAV 文件");
    bool fmt = false;
    quint64 ds64Data = 0; // RF64 keeps the real data size here
    quint64 at = 12;
    for (int n = 0; at + 8 <= quint64(h.size()) && n < 4096; ++n) {
        quint64 size = 0, channels = 0, rate = 0;
        h.le(qint64(at) + 4, 4, size);
        if (rf64 && h.id(qint64(at), "ds64") && (size < 24 || !h.le(qint64(at) + 16, 8, ds64Data)))
            return QCoreApplication::translate("ConversionQueue", "RF64 的 ds64 块不对");
        if (h.id(qint64(at), "data")) {
            if (rf64 && size == 0xFFFFFFFF)
                size = ds64Data;
            if (!fmt)
                return QCoreApplication::translate("ConversionQueue", "WAV 缺少格式块");
            if (size > quint64(h.size()) - at - 8)
                return QCoreApplication::translate("ConversionQueue", "WAV 数据块超出文件 (文件不完整)");
            return {};
        }
        if (size > quint64(h.size()) - at - 8)
            break;
        if (h.id(qint64(at), "fmt ")) {
            if (size < 16 || !h.le(qint64(at) + 10, 2, channels) || channels == 0 || !h.le(qint64(at) + 12, 4, rate)
                || rate == 0)
                return QCoreApplication::translate("ConversionQueue", "WAV 格式块不对");
            fmt = true;
        }
        at += 8 + size + (size & 1);
    }
    return QCoreApplication::translate("ConversionQueue", "WAV 缺少数据块");
}

QString w64Problem(Header& h)
{
    static const unsigned char kRiff[16] = {'r', 'i', 'f', 'f', 0x2E, 0x91, 0xCF, 0x11,
                                            0xA5, 0xD6, 0x28, 0xDB, 0x04, 0xC1, 0x00, 0x00};
    static const unsigned char kTail[12] = {0xF3, 0xAC, 0xD3, 0x11, 0x8C, 0xD1, 0x00, 0xC0, 0x4F, 0x8E, 0xDB, 0x8A};
    unsigned char guid[16];
    if (!h.bytes(0, guid, 16) || std::memcmp(guid, kRiff, 16) != 0 || !h.id(24, "wave"))
        return QCoreApplication::translate("ConversionQueue", "不是 W64 文件");
    bool fmt = false;
    quint64 at = 40;
    for (int n = 0; at + 24 <= quint64(h.size()) && n < 4096; ++n) {
        quint64 size = 0;
        if (!h.bytes(qint64(at), guid, 16) || !h.le(qint64(at) + 16, 8, size) || size < 24
            || size > quint64(h.size()) - at)
            return QCoreApplication::translate("ConversionQueue", "W64 块超出文件 (文件不完整)");
        const bool known = std::memcmp(guid + 4, kTail, 12) == 0;
        if (known && std::memcmp(guid, "fmt ", 4) == 0)
            fmt = size >= 24 + 16;
        if (known && std::memcmp(guid, "data", 4) == 0)
            return fmt ? QString() : QCoreApplication::translate("ConversionQueue", "W64 缺少格式块");
        at += (size + 7) & ~quint64(7);
    }
    return QCoreApplication::translate("ConversionQueue", "W64 缺少数据块");
}

QString flacProblem(Header& h)
{
    quint64 block = 0, length = 0, rate = 0;
    if (!h.id(0, "fLaC"))
        return QCoreApplication::translate("ConversionQueue", "不是 FLAC 文件");
    if (!h.be(4, 1, block) || (block & 0x7F) != 0 || !h.be(5, 3, length) || length != 34 || !h.be(18, 3, rate)
        || (rate >> 4) == 0)
        return QCoreApplication::translate("ConversionQueue", "FLAC 缺少 STREAMINFO");
    return {};
}

} // namespace

FileStamp fileStamp(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    return {true, info.size(), info.lastModified()};
}

QString outputHeaderProblem(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QCoreApplication::translate("ConversionQueue", "无法打开");
    Header h(f);
    const QString ext = QFileInfo(path).suffix().toLower();
    if (ext == u"dsf")
        return dsfProblem(h);
    if (ext == u"dff")
        return dffProblem(h);
    if (ext == u"wav")
        return riffProblem(h);
    if (ext == u"w64")
        return w64Problem(h);
    if (ext == u"flac")
        return flacProblem(h);
    return {};
}

OutputCheck checkOutputFile(const QString& path, const FileStamp& before)
{
    const FileStamp now = fileStamp(path);
    if (!now.exists)
        return {OutputCheck::Missing, {}};
    if (before.exists && now == before)
        return {OutputCheck::NotWritten, {}};
    if (now.size == 0)
        return {OutputCheck::Empty, {}};
    const QString problem = outputHeaderProblem(path);
    if (!problem.isEmpty())
        return {OutputCheck::Unreadable, problem};
    return {};
}
