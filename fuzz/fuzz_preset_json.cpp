// Feeds the front-end's preset reader the way the queue loads a preset file:
// parse the text as JSON, read the object into a settings record, and write
// it back out.
#include <cstdint>

#include <QJsonDocument>
#include <QJsonParseError>

#include "preset_json.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        return 0;
    const PresetReadResult read = presetFromJson(doc.object());
    // What was read must write and read back to the same record.
    const QByteArray again = presetToJson(read.settings);
    const QJsonDocument back = QJsonDocument::fromJson(again, &error);
    if (error.error != QJsonParseError::NoError || !back.isObject())
        __builtin_trap();
    presetFromJson(back.object());
    return 0;
}
