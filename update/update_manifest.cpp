#include "update_manifest.h"

#include <QCoreApplication>

#include "checker_texts.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include "payload_names.h"
#include "update_version.h"

namespace {

UpdatePayload readPayload(const QJsonObject& o)
{
    UpdatePayload p;
    p.url = o.value(QLatin1String("url")).toString();
    p.name = payloadFileName(o.value(QLatin1String("name")).toString(), p.url);
    // JSON numbers are doubles; anything outside a sane byte count is treated
    // as "unknown" (0), which leaves the checksum as the only test.
    const double size = o.value(QLatin1String("size")).toDouble();
    p.size = (size >= 0 && size < 9.0e15) ? static_cast<qint64>(size) : 0;
    p.sha256 = o.value(QLatin1String("sha256")).toString();
    return p;
}

ManifestVerdict failed(const QString& message)
{
    ManifestVerdict v;
    v.kind = ManifestVerdict::Failed;
    v.message = message;
    return v;
}

} // namespace

ManifestVerdict parseUpdateManifest(const QByteArray& json, const QString& localVersion,
                                    const QString& platformKey)
{
    QJsonParseError err{};
    const QJsonDocument doc = QJsonDocument::fromJson(json, &err);
    if (err.error != QJsonParseError::NoError)
        return failed(trChecker("更新清单格式不对 (%1)").arg(err.errorString()));
    if (!doc.isObject())
        return failed(trChecker("更新清单格式不对 (%1)").arg(trChecker("根不是对象")));

    const QJsonObject root = doc.object();
    QJsonObject release = root.value(QLatin1String("latest")).toObject();
    if (release.isEmpty())
        release = root;

    ManifestVerdict v;
    v.localVersion = localVersion;
    v.remoteVersion = release.value(QLatin1String("version")).toString();
    if (v.remoteVersion.isEmpty())
        return failed(trChecker("更新清单里没有版本号"));
    if (compareVersions(localVersion, v.remoteVersion) >= 0) {
        v.kind = ManifestVerdict::AlreadyLatest;
        return v;
    }

    v.info.version = v.remoteVersion;
    v.info.released = release.value(QLatin1String("released")).toString();
    v.info.notes = release.value(QLatin1String("notes")).toString();
    const QJsonArray files = release.value(QLatin1String("files")).toArray();
    for (const QJsonValue& fv : files) {
        const QJsonObject f = fv.toObject();
        if (f.value(QLatin1String("platform")).toString() != platformKey)
            continue;
        const bool hasOverwrite = f.contains(QLatin1String("overwrite"));
        const bool hasInstaller = f.contains(QLatin1String("installer"));
        if (hasOverwrite)
            v.info.overwrite = readPayload(f.value(QLatin1String("overwrite")).toObject());
        if (hasInstaller)
            v.info.installer = readPayload(f.value(QLatin1String("installer")).toObject());
        if (!hasOverwrite && !hasInstaller)
            v.info.installer = readPayload(f);
    }

    if (!v.info.overwrite.isUsable() && !v.info.installer.isUsable())
        return failed(trChecker("清单里没有适用于本机 (%1) 的更新载荷").arg(platformKey));
    for (const UpdatePayload* p : {&v.info.overwrite, &v.info.installer}) {
        if (p->isUsable() && !isSafePayloadName(p->name))
            return failed(trChecker("更新清单里的文件名不安全, 已拒绝: %1").arg(p->name));
    }
    v.kind = ManifestVerdict::Available;
    return v;
}
