#include "preset_store.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>

#include "preset_json.h"

namespace {

const QString kPresets = QStringLiteral("presets");

bool canWriteInto(const QString& dir)
{
    // The folder may not exist yet: it is writable when it can be made and
    // a file can be created in it. A probe file tells the truth on network
    // and read-only mounts where permission bits do not.
    if (!QDir().mkpath(dir))
        return false;
    QFile probe(QDir(dir).filePath(QStringLiteral(".zuvo-write-probe")));
    if (!probe.open(QIODevice::WriteOnly))
        return false;
    probe.close();
    probe.remove();
    return true;
}

} // namespace

PresetStore::PresetStore(QString programDir, QString workingDir, QString userDataDir)
    : programDir_(std::move(programDir))
    , workingDir_(std::move(workingDir))
    , userDataDir_(std::move(userDataDir))
{
}

PresetStore PresetStore::forApplication()
{
    return PresetStore(QCoreApplication::applicationDirPath(), QDir::currentPath(),
                       QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QStringList PresetStore::candidateDirs() const
{
    QStringList dirs{
        QDir::cleanPath(programDir_ + QLatin1Char('/') + kPresets),
        QDir::cleanPath(programDir_ + QStringLiteral("/../") + kPresets),
        QDir::cleanPath(workingDir_ + QLatin1Char('/') + kPresets),
    };
#ifndef Q_OS_WIN
    // An installed program cannot write beside itself; what it saved in the
    // user's folder must be found again.
    if (!userDataDir_.isEmpty())
        dirs << QDir::cleanPath(userDataDir_ + QLatin1Char('/') + kPresets);
#endif
    dirs.removeDuplicates();
    return dirs;
}

QString PresetStore::writeDir() const
{
    const QString own = QDir::cleanPath(programDir_ + QLatin1Char('/') + kPresets);
#ifdef Q_OS_WIN
    QDir().mkpath(own);
    return own;
#else
    if (canWriteInto(own) || userDataDir_.isEmpty())
        return own;
    const QString user = QDir::cleanPath(userDataDir_ + QLatin1Char('/') + kPresets);
    QDir().mkpath(user);
    return user;
#endif
}

QList<PresetEntry> PresetStore::list() const
{
    QList<PresetEntry> entries;
    QSet<QString> seen;
    for (const QString& dirPath : candidateDirs()) {
        const QDir dir(dirPath);
        if (!dir.exists())
            continue;
        const QFileInfoList files =
            dir.entryInfoList({QStringLiteral("*.json")}, QDir::Files | QDir::Readable, QDir::Name);
        for (const QFileInfo& info : files) {
            const QString name = info.completeBaseName();
            if (seen.contains(name))
                continue;
            seen.insert(name);
            entries.append({name, info.absoluteFilePath()});
        }
    }
    return entries;
}

QString PresetStore::pathForName(const QString& name) const
{
    QString file = name.trimmed();
    if (!file.endsWith(QStringLiteral(".json")))
        file += QStringLiteral(".json");
    return writeDir() + QLatin1Char('/') + file;
}

QString PresetStore::nameProblem(const QString& rawName)
{
    const QString name = rawName.trimmed();
    if (name.isEmpty())
        return QCoreApplication::translate("PresetStore", "名称为空");
    // One rule for every platform: a preset saved here must open there too.
    static const QString forbidden = QStringLiteral("/\\:*?\"<>|");
    for (const QChar c : name) {
        if (forbidden.contains(c) || c.unicode() < 0x20)
            return QCoreApplication::translate("PresetStore", "名称不能包含 %1 或控制字符")
                .arg(QStringLiteral("/ \\ : * ? \" < > |"));
    }
    if (name == QStringLiteral(".") || name == QStringLiteral("..") || name.endsWith(QLatin1Char('.')))
        return QCoreApplication::translate("PresetStore", "名称不能以点结尾");
    static const QStringList reserved{QStringLiteral("CON"), QStringLiteral("PRN"), QStringLiteral("AUX"),
                                      QStringLiteral("NUL")};
    QString stem = name.section(QLatin1Char('.'), 0, 0).toUpper();
    if (reserved.contains(stem)
        || (stem.size() == 4 && (stem.startsWith(QStringLiteral("COM")) || stem.startsWith(QStringLiteral("LPT")))
            && stem.at(3).isDigit()))
        return QCoreApplication::translate("PresetStore", "名称 %1 是系统保留的设备名").arg(name);
    return {};
}

PresetSave PresetStore::save(const QString& name, const ConversionSettings& settings) const
{
    PresetSave result;
    const QString problem = nameProblem(name);
    if (!problem.isEmpty()) {
        result.status = PresetSave::InvalidName;
        result.error = problem;
        return result;
    }
    result.path = pathForName(name);
    QSaveFile file(result.path);
    if (!file.open(QIODevice::WriteOnly)) {
        result.status = PresetSave::CannotWrite;
        result.error = file.errorString();
        return result;
    }
    const QByteArray text = presetToJson(settings);
    if (file.write(text) != text.size() || !file.commit()) {
        result.status = PresetSave::CannotWrite;
        result.error = file.errorString();
    }
    return result;
}

PresetLoad PresetStore::load(const QString& path, const ConversionSettings* base)
{
    PresetLoad result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.status = PresetLoad::CannotRead;
        result.error = QCoreApplication::translate("PresetStore", "无法读取文件");
        return result;
    }
    // A preset is a few kilobytes; anything vastly larger is not one of ours
    // and is not read into memory whole.
    constexpr qint64 kMaxPresetBytes = 16 * 1024 * 1024;
    if (file.size() > kMaxPresetBytes) {
        result.status = PresetLoad::ParseError;
        result.error = QCoreApplication::translate("PresetStore", "文件过大 (%1 字节)").arg(file.size());
        return result;
    }
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        result.status = PresetLoad::ParseError;
        result.error = parseError.errorString();
        return result;
    }
    if (!doc.isObject()) {
        result.status = PresetLoad::ParseError;
        result.error = QCoreApplication::translate("PresetStore", "顶层不是 JSON 对象");
        return result;
    }
    const PresetReadResult read = presetFromJson(doc.object(), base);
    result.settings = read.settings;
    result.unsupportedKeys = read.unsupportedKeys;
    return result;
}

bool PresetStore::remove(const QString& path)
{
    return QFile::remove(path);
}
