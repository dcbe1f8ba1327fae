#include "preset_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

#include <cmath>
#include <limits>
#include <variant>

namespace {

using S = ConversionSettings;

struct EqBandsTag {};
struct AdvancedTag {};

using Member = std::variant<int32_t S::*, double S::*, bool S::*, QString S::*, EqBandsTag,
                            AdvancedTag>;

struct Field {
    const char* key;
    Member member;
    bool readBack;  // false: written for the sister front-end, never read
};

// Preset key order; reader and writer both walk this one table.
const Field kFields[] = {
    {"oversampling", &S::oversampling, true},
    {"taps", &S::taps, true},
    {"passband_cutoff", &S::passband_cutoff, true},
    {"stopband_cutoff", &S::stopband_cutoff, true},
    {"enable_high_bandwidth", &S::enable_high_bandwidth, true},
    {"use_dst", &S::use_dst, true},
    {"dst_compression", &S::dst_compression, true},
    {"algorithm", &S::algorithm, true},
    {"window_type", &S::window_type, true},
    {"beta", &S::beta, true},
    {"max_iterations", &S::max_iterations, true},
    {"grid_density", &S::grid_density, true},
    {"filter_type", &S::filter_type, true},
    {"predistortion", &S::predistortion, true},
    {"pdfreport", &S::pdfreport, true},
    {"report", &S::report, true},
    {"noise_profiling", &S::noise_profiling, true},
    {"denoise_tier", &S::denoise_tier, true},
    {"keep_harmonics", &S::keep_harmonics, false},
    {"force_channels", &S::force_channels, true},
    {"reset_channels", &S::reset_channels, true},
    {"quad", &S::quad, true},
    {"unsrs", &S::unsrs, true},
    {"swapchannels", &S::swapchannels, true},
    {"enable_eq", &S::enable_eq, true},
    {"eq_bands", EqBandsTag{}, true},
    {"artist", &S::artist, true},
    {"title", &S::title, true},
    {"album", &S::album, true},
    {"genre", &S::genre, true},
    {"year", &S::year, true},
    {"comment", &S::comment, true},
    {"track_number", &S::track_number, true},
    {"metadata_from_input", &S::metadata_from_input, true},
    {"report_peak", &S::report_peak, true},
    {"report_rms", &S::report_rms, true},
    {"report_no_dynamic_range", &S::report_no_dynamic_range, true},
    {"verbose_log", &S::verbose_log, true},
    {"stopgain_alpha", &S::stopgain_alpha, true},
    {"abs_value", &S::abs_value, true},
    {"abs_db_value", &S::abs_db_value, true},
    {"apply_hrtf", &S::apply_hrtf, true},
    {"hrtf_mode", &S::hrtf_mode, true},
    {"hrtf_mix", &S::hrtf_mix, true},
    {"hrtf_side_mix", &S::hrtf_side_mix, true},
    {"hrtf_depth", &S::hrtf_depth, true},
    {"apply_surround", &S::apply_surround, true},
    {"surround_delay_ms", &S::surround_delay_ms, true},
    {"surround_mix", &S::surround_mix, true},
    {"surround_side", &S::surround_side, true},
    {"surround_balance", &S::surround_balance, true},
    {"tone_bass_db", &S::tone_bass_db, true},
    {"tone_treble_db", &S::tone_treble_db, true},
    {"eq_precut_db", &S::eq_precut_db, true},
    {"apply_dsre", &S::apply_dsre, true},
    {"dsreMix", &S::dsreMix, true},
    {"advanced", AdvancedTag{}, true},
};

const Field* findField(const QString& key)
{
    const QByteArray k = key.toUtf8();
    for (const Field& f : kFields)
        if (k == f.key)
            return &f;
    return nullptr;
}

// Integer keys accept any JSON number and drop the fraction, as the sister
// front-end's reader does; out-of-range numbers read as 0 rather than wrap.
int32_t toInt32(const QJsonValue& v)
{
    if (!v.isDouble())
        return 0;
    const double d = std::trunc(v.toDouble());
    if (!(d >= double(std::numeric_limits<int32_t>::min())
          && d <= double(std::numeric_limits<int32_t>::max())))
        return 0;
    return int32_t(d);
}

QString bwTypeText(char c)
{
    if (c == '\0')
        return QString();
    return QString::fromLatin1(&c, 1);
}

char bwTypeFrom(const QJsonValue& v)
{
    const QByteArray utf8 = v.toString().toUtf8();
    return utf8.isEmpty() ? 'q' : utf8.at(0);
}

QJsonObject bandToJson(const EqBand& b)
{
    QJsonObject o;
    o.insert(QStringLiteral("centerFreq"), b.centerFreq);
    o.insert(QStringLiteral("gainDB"), b.gainDB);
    o.insert(QStringLiteral("bandwidth"), b.bandwidth);
    o.insert(QStringLiteral("bwType"), bwTypeText(b.bwType));
    return o;
}

QJsonValue fieldValue(const ConversionSettings& s, const Field& f)
{
    return std::visit(
        [&s](auto&& m) -> QJsonValue {
            using M = std::decay_t<decltype(m)>;
            if constexpr (std::is_same_v<M, EqBandsTag>) {
                QJsonArray arr;
                for (const EqBand& b : s.eq_bands)
                    arr.append(bandToJson(b));
                return arr;
            } else if constexpr (std::is_same_v<M, AdvancedTag>) {
                QJsonObject o;
                for (auto it = s.advanced.constBegin(); it != s.advanced.constEnd(); ++it)
                    o.insert(it.key(), it.value());
                return o;
            } else if constexpr (std::is_same_v<M, int32_t S::*>) {
                return int(s.*m);
            } else {
                return QJsonValue(s.*m);
            }
        },
        f.member);
}

// ---- Ordered text writer ---------------------------------------------------------

// Scalars are formatted by Qt itself, so numbers and string escapes match
// what QJsonDocument would write.
QByteArray scalarText(const QJsonValue& v)
{
    QByteArray text = QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Compact);
    return text.mid(1, text.size() - 2);  // strip "[" and "]"
}

QByteArray keyText(const QString& key) { return scalarText(QJsonValue(key)); }

void writeValue(QByteArray& out, const QJsonValue& v, int indent);

QByteArray pad(int indent) { return QByteArray(4 * indent, ' '); }

void writeMembers(QByteArray& out, const QList<QPair<QString, QJsonValue>>& members, int indent)
{
    out += "{\n";
    for (qsizetype i = 0; i < members.size(); ++i) {
        out += pad(indent + 1) + keyText(members[i].first) + ": ";
        writeValue(out, members[i].second, indent + 1);
        out += i + 1 < members.size() ? ",\n" : "\n";
    }
    out += pad(indent) + "}";
}

// Objects come out in QJsonObject's (sorted) order, which is the order the
// advanced map keeps anyway.
void writeValue(QByteArray& out, const QJsonValue& v, int indent)
{
    if (v.isArray()) {
        const QJsonArray arr = v.toArray();
        out += "[\n";
        for (qsizetype i = 0; i < arr.size(); ++i) {
            out += pad(indent + 1);
            writeValue(out, arr.at(i), indent + 1);
            out += i + 1 < arr.size() ? ",\n" : "\n";
        }
        out += pad(indent) + "]";
    } else if (v.isObject()) {
        const QJsonObject o = v.toObject();
        QList<QPair<QString, QJsonValue>> members;
        for (auto it = o.constBegin(); it != o.constEnd(); ++it)
            members.append({it.key(), it.value()});
        writeMembers(out, members, indent);
    } else {
        out += scalarText(v);
    }
}

// Bands keep the field order of the band table, not the sorted one.
void writeBands(QByteArray& out, const QList<EqBand>& bands, int indent)
{
    out += "[\n";
    for (qsizetype i = 0; i < bands.size(); ++i) {
        const EqBand& b = bands.at(i);
        out += pad(indent + 1);
        writeMembers(out,
                     {{QStringLiteral("centerFreq"), b.centerFreq},
                      {QStringLiteral("gainDB"), b.gainDB},
                      {QStringLiteral("bandwidth"), b.bandwidth},
                      {QStringLiteral("bwType"), bwTypeText(b.bwType)}},
                     indent + 1);
        out += i + 1 < bands.size() ? ",\n" : "\n";
    }
    out += pad(indent) + "]";
}

}  // namespace

const QStringList& presetKeyOrder()
{
    static const QStringList keys = [] {
        QStringList k;
        for (const Field& f : kFields)
            k.append(QString::fromLatin1(f.key));
        return k;
    }();
    return keys;
}

QJsonObject presetToJsonObject(const ConversionSettings& s)
{
    QJsonObject o;
    for (const Field& f : kFields)
        o.insert(QString::fromLatin1(f.key), fieldValue(s, f));
    return o;
}

QByteArray presetToJson(const ConversionSettings& s)
{
    QByteArray out = "{\n";
    const qsizetype n = std::size(kFields);
    for (qsizetype i = 0; i < n; ++i) {
        const Field& f = kFields[i];
        out += pad(1) + keyText(QString::fromLatin1(f.key)) + ": ";
        if (std::holds_alternative<EqBandsTag>(f.member))
            writeBands(out, s.eq_bands, 1);
        else
            writeValue(out, fieldValue(s, f), 1);
        out += i + 1 < n ? ",\n" : "\n";
    }
    out += "}\n";
    return out;
}

PresetReadResult presetFromJson(const QJsonObject& object, const ConversionSettings* base)
{
    PresetReadResult r{base ? *base : ConversionSettings{}, 0};
    ConversionSettings& s = r.settings;

    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const Field* f = findField(it.key());
        if (!f || !f->readBack) {
            ++r.unsupportedKeys;
            continue;
        }
        const QJsonValue v = it.value();
        std::visit(
            [&s, &v](auto&& m) {
                using M = std::decay_t<decltype(m)>;
                if constexpr (std::is_same_v<M, EqBandsTag>) {
                    s.eq_bands.clear();
                    const QJsonArray arr = v.toArray();
                    for (const QJsonValue& e : arr) {
                        const QJsonObject bo = e.toObject();
                        EqBand b;
                        b.centerFreq = bo.value(QStringLiteral("centerFreq")).toDouble();
                        b.gainDB = bo.value(QStringLiteral("gainDB")).toDouble();
                        b.bandwidth = bo.value(QStringLiteral("bandwidth")).toDouble();
                        b.bwType = bwTypeFrom(bo.value(QStringLiteral("bwType")));
                        if (b.centerFreq > 0.0)
                            s.eq_bands.append(b);
                    }
                } else if constexpr (std::is_same_v<M, AdvancedTag>) {
                    // Merged into the base: a per-track preset adds options
                    // on top of the panel's.
                    const QJsonObject adv = v.toObject();
                    for (auto a = adv.constBegin(); a != adv.constEnd(); ++a)
                        if (a.value().isString())
                            s.advanced.insert(a.key(), a.value().toString());
                } else if constexpr (std::is_same_v<M, int32_t S::*>) {
                    s.*m = toInt32(v);
                } else if constexpr (std::is_same_v<M, double S::*>) {
                    s.*m = v.toDouble();
                } else if constexpr (std::is_same_v<M, bool S::*>) {
                    s.*m = v.toBool();
                } else {
                    s.*m = v.toString();
                }
            },
            f->member);
    }
    return r;
}
