#include "payload_names.h"

#include <QUrl>

namespace {

bool isReservedDeviceName(const QString& name)
{
    // Windows treats these as devices whatever follows the first dot.
    const QString base = name.section(QLatin1Char('.'), 0, 0).trimmed().toUpper();
    static const char* const fixed[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$", "CLOCK$"};
    for (const char* r : fixed) {
        if (base == QLatin1String(r))
            return true;
    }
    if (base.size() == 4 && (base.startsWith(QLatin1String("COM")) || base.startsWith(QLatin1String("LPT"))))
        return base[3] >= QLatin1Char('0') && base[3] <= QLatin1Char('9');
    return false;
}

bool isAllowedChar(QChar c)
{
    if (c.isLetterOrNumber())
        return true;
    static const QString extra = QStringLiteral("._-+~ ()[]");
    return extra.contains(c);
}

} // namespace

bool isSafePayloadName(const QString& name)
{
    if (name.isEmpty() || name.size() > 200)
        return false;
    if (name.contains(QLatin1String("..")) || name.startsWith(QLatin1Char('-')))
        return false;
    if (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')) || name.startsWith(QLatin1Char(' ')))
        return false;
    for (QChar c : name) {
        if (!isAllowedChar(c))
            return false;
    }
    return !isReservedDeviceName(name);
}

QString payloadFileName(const QString& name, const QString& url)
{
    if (!name.isEmpty())
        return name;
    return QUrl(url).fileName();
}
