#include "tar_listing.h"

#include <QIODevice>
#include <QSet>
#include <QStringList>

#include <cstring>

namespace {

constexpr qint64 kBlock = 512;
constexpr qint64 kMaxMetaSize = 64 * 1024; // long names and pax records

// Octal number field; false for anything else (base-256 sizes included,
// which only archives far beyond any update's size need).
bool parseOctal(const char* field, int width, qint64* out)
{
    qint64 value = 0;
    int i = 0;
    while (i < width && (field[i] == ' ' || field[i] == '\0'))
        ++i;
    if (i == width) {
        *out = 0;
        return true;
    }
    int digits = 0;
    for (; i < width && field[i] >= '0' && field[i] <= '7'; ++i, ++digits) {
        if (value > (qint64(1) << 58))
            return false;
        value = value * 8 + (field[i] - '0');
    }
    for (; i < width; ++i) {
        if (field[i] != ' ' && field[i] != '\0')
            return false;
    }
    *out = value;
    return digits > 0;
}

QString cString(const char* field, int width)
{
    int n = 0;
    while (n < width && field[n] != '\0')
        ++n;
    return QString::fromUtf8(field, n);
}

bool checksumMatches(const char* h)
{
    qint64 stored = 0;
    if (!parseOctal(h + 148, 8, &stored))
        return false;
    qint64 sum = 0;
    for (int i = 0; i < kBlock; ++i)
        sum += (i >= 148 && i < 156) ? ' ' : static_cast<unsigned char>(h[i]);
    return sum == stored;
}

// "len key=value\n" records; only path and linkpath matter for placement.
void readPax(const QByteArray& data, QString* path, QString* link)
{
    qsizetype pos = 0;
    while (pos < data.size()) {
        const qsizetype space = data.indexOf(' ', pos);
        if (space < 0)
            return;
        bool ok = false;
        const qsizetype len = data.mid(pos, space - pos).toLongLong(&ok);
        // A record holds at least its length, a blank, "k=" and a newline.
        if (!ok || len < space - pos + 4 || len > data.size() - pos)
            return;
        const QByteArray record = data.mid(space + 1, len - (space - pos) - 2);
        const qsizetype eq = record.indexOf('=');
        if (eq > 0) {
            const QByteArray key = record.left(eq);
            if (key == "path")
                *path = QString::fromUtf8(record.mid(eq + 1));
            else if (key == "linkpath")
                *link = QString::fromUtf8(record.mid(eq + 1));
        }
        pos += len;
    }
}

bool isAllZero(const char* h)
{
    for (int i = 0; i < kBlock; ++i) {
        if (h[i] != 0)
            return false;
    }
    return true;
}

} // namespace

QString readTarListing(QIODevice& device, QList<TarMember>* members)
{
    members->clear();
    const qint64 total = device.size();
    qint64 pos = 0;
    QString pendingPath;
    QString pendingLink;
    char h[kBlock];
    while (true) {
        if (pos + kBlock > total)
            {
            if (pos != total)
                return QStringLiteral("archive truncated");
            return members->isEmpty() ? QStringLiteral("empty archive") : QString();
        }
        if (!device.seek(pos) || device.read(h, kBlock) != kBlock)
            return QStringLiteral("cannot read archive");
        pos += kBlock;
        if (isAllZero(h))
            return members->isEmpty() ? QStringLiteral("empty archive") : QString();
        if (!checksumMatches(h))
            return QStringLiteral("damaged header");
        qint64 size = 0;
        if (!parseOctal(h + 124, 12, &size))
            return QStringLiteral("bad size field");
        const qint64 padded = (size + kBlock - 1) / kBlock * kBlock;
        if (padded > total - pos)
            return QStringLiteral("archive truncated");
        const char type = h[156];

        if (type == 'L' || type == 'K' || type == 'x' || type == 'g') {
            if (size > kMaxMetaSize)
                return QStringLiteral("oversized header record");
            QByteArray data(static_cast<qsizetype>(size), '\0');
            if (!device.seek(pos) || device.read(data.data(), size) != size)
                return QStringLiteral("cannot read archive");
            if (type == 'L')
                pendingPath = QString::fromUtf8(data.constData(), qstrnlen(data.constData(), data.size()));
            else if (type == 'K')
                pendingLink = QString::fromUtf8(data.constData(), qstrnlen(data.constData(), data.size()));
            else if (type == 'x')
                readPax(data, &pendingPath, &pendingLink);
            else {
                QString globalPath, globalLink;
                readPax(data, &globalPath, &globalLink);
                if (!globalPath.isEmpty() || !globalLink.isEmpty())
                    return QStringLiteral("global path record");
            }
            pos += padded;
            continue;
        }

        TarMember m;
        QString name = cString(h, 100);
        if (std::memcmp(h + 257, "ustar", 5) == 0) {
            const QString prefix = cString(h + 345, 155);
            if (!prefix.isEmpty())
                name = prefix + QLatin1Char('/') + name;
        }
        m.path = pendingPath.isEmpty() ? name : pendingPath;
        m.link = pendingLink.isEmpty() ? cString(h + 157, 100) : pendingLink;
        pendingPath.clear();
        pendingLink.clear();
        m.size = size;
        switch (type) {
        case '0': case '\0': case '7': m.type = TarMember::File; break;
        case '5': m.type = TarMember::Directory; break;
        case '2': m.type = TarMember::Symlink; break;
        case '1': m.type = TarMember::Hardlink; break;
        default:
            return QStringLiteral("unsupported member type '%1'").arg(QLatin1Char(type >= 32 && type < 127 ? type : '?'));
        }
        members->append(m);
        pos += padded;
    }
}

QString normalisedMemberPath(const QString& path)
{
    // "a//b", "./a/./b/" and "a/b" all name the same place.
    QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts.removeAll(QStringLiteral("."));
    return parts.join(QLatin1Char('/'));
}

namespace {

bool hasControlChar(const QString& s)
{
    for (QChar c : s) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            return true;
    }
    return false;
}

// Lexical resolution inside the folder; false when it climbs out of it.
bool staysInside(const QStringList& parts)
{
    int depth = 0;
    for (const QString& part : parts) {
        if (part.isEmpty() || part == QLatin1String("."))
            continue;
        if (part == QLatin1String("..")) {
            if (--depth < 0)
                return false;
        } else {
            ++depth;
        }
    }
    return true;
}

QString checkPath(const QString& raw)
{
    if (raw.isEmpty())
        return QStringLiteral("empty member name");
    if (raw.startsWith(QLatin1Char('/')) || raw.contains(QLatin1Char('\\')))
        return QStringLiteral("absolute or foreign path: %1").arg(raw);
    if (hasControlChar(raw))
        return QStringLiteral("control character in a member name");
    const QStringList parts = raw.split(QLatin1Char('/'));
    if (parts.contains(QLatin1String("..")))
        return QStringLiteral("member leaves the folder: %1").arg(raw);
    return {};
}

} // namespace

QString checkTarMembers(const QList<TarMember>& members)
{
    QSet<QString> links;
    for (const TarMember& m : members) {
        if (QString e = checkPath(m.path); !e.isEmpty())
            return e;
        const QString path = normalisedMemberPath(m.path);
        if (path.isEmpty() && m.type != TarMember::Directory)
            return QStringLiteral("member replaces the folder itself");

        const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        QString prefix;
        for (int i = 0; i + 1 < parts.size(); ++i) {
            prefix += (i ? QStringLiteral("/") : QString()) + parts[i];
            if (links.contains(prefix))
                return QStringLiteral("member passes through a link: %1").arg(m.path);
        }

        if (m.type == TarMember::Hardlink) {
            if (QString e = checkPath(m.link); !e.isEmpty())
                return e;
        } else if (m.type == TarMember::Symlink) {
            if (m.link.isEmpty() || m.link.startsWith(QLatin1Char('/')) || hasControlChar(m.link))
                return QStringLiteral("link points outside the folder: %1").arg(m.path);
            QStringList target = parts.mid(0, parts.size() - 1);
            target += m.link.split(QLatin1Char('/'));
            if (!staysInside(target))
                return QStringLiteral("link points outside the folder: %1").arg(m.path);
            links.insert(path);
        }
    }
    return {};
}
