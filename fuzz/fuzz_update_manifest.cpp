// Fuzz target: the update manifest reader and the version comparison.
#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

#include "update_manifest.h"
#include "update_version.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const char* platform : {"linux-x64", "windows-x64"}) {
        const ManifestVerdict v = parseUpdateManifest(json, QStringLiteral("1.2.3"), QString::fromLatin1(platform));
        if (v.kind == ManifestVerdict::Available && !v.info.overwrite.isUsable() && !v.info.installer.isUsable())
            __builtin_trap(); // an offer must always carry something to install
    }
    // The raw text as a version, against itself and a fixed one.
    const QString text = QString::fromUtf8(json);
    if (compareVersions(text, text) != 0)
        __builtin_trap();
    const int a = compareVersions(text, QStringLiteral("1.2.3"));
    if (a != -compareVersions(QStringLiteral("1.2.3"), text))
        __builtin_trap();
    return 0;
}
