// Fuzz target: the tar listing walk and the member placement check that guard
// an update archive before it is unpacked.
#include <QBuffer>
#include <QByteArray>

#include <cstddef>
#include <cstdint>

#include "tar_listing.h"
#include "update_install.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QList<TarMember> members;
    if (!readTarListing(buffer, &members).isEmpty())
        return 0;
    if (checkTarMembers(members).isEmpty()) {
        // Whatever passed the check must never name a place outside.
        for (const TarMember& m : members) {
            const QString p = normalisedMemberPath(m.path);
            if (p.startsWith(QLatin1Char('/')) || p.split(QLatin1Char('/')).contains(QStringLiteral("..")))
                __builtin_trap();
        }
        QStringList written, folders;
        plannedPaths(members, &written, &folders);
    }
    return 0;
}
