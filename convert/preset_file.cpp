#include "preset_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include "preset_json.h"

PresetFileResult readPresetFile(const QString& path, const ConversionSettings& base)
{
    // A preset is a few kilobytes; anything far larger is not one.
    constexpr qint64 kMaxPresetBytes = 4 << 20;
    PresetFileResult result;
    result.settings = base;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        result.error = QCoreApplication::translate("ConversionQueue", "无法读取文件");
        return result;
    }
    if (f.size() > kMaxPresetBytes) {
        result.error = QCoreApplication::translate("ConversionQueue", "文件过大, 不是预设");
        return result;
    }
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(f.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        result.error = error.error != QJsonParseError::NoError
                           ? error.errorString()
                           : QCoreApplication::translate("ConversionQueue", "不是 JSON 对象");
        return result;
    }
    const PresetReadResult read = presetFromJson(doc.object(), &base);
    result.ok = true;
    result.settings = read.settings;
    result.unsupportedKeys = read.unsupportedKeys;
    return result;
}
