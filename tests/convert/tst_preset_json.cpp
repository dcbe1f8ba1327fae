#include <QtTest>

#include "conversion_settings.h"
#include "preset_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject parse(const QByteArray& text)
{
    QJsonParseError err;
    const QJsonDocument doc = QJsonDocument::fromJson(text, &err);
    if (err.error != QJsonParseError::NoError)
        qWarning("parse error: %s", qPrintable(err.errorString()));
    return doc.object();
}

// Every preset-carried field away from its default, with texts that need
// escaping and numbers that do not print as short decimals.
ConversionSettings busyPreset()
{
    ConversionSettings s;
    s.oversampling = 256;
    s.taps = 8192;
    s.passband_cutoff = 22050;
    s.stopband_cutoff = 26146;
    s.enable_high_bandwidth = true;
    s.use_dst = true;
    s.dst_compression = 3;
    s.algorithm = QStringLiteral("window");
    s.window_type = QStringLiteral("kaiser");
    s.beta = 8.6;
    s.max_iterations = 40;
    s.grid_density = 16;
    s.filter_type = QStringLiteral("minphase");
    s.predistortion = true;
    s.pdfreport = false;
    s.report = true;
    s.noise_profiling = true;
    s.denoise_tier = 2;
    s.force_channels = true;
    s.reset_channels = 4;
    s.quad = true;
    s.unsrs = true;
    s.swapchannels = true;
    s.enable_eq = true;
    s.eq_bands = {EqBand{1000.0, -3.0, 1.0, 'q'}, EqBand{8000.0, 2.5, 0.5, 'o'},
                  EqBand{31.25, 1.0 / 3.0, 100.0, 'h'}};
    s.artist = QStringLiteral("Ärtist \"quoted\" \\ back");
    s.title = QStringLiteral("夜曲\n第二行");
    s.album = QStringLiteral("Album");
    s.genre = QStringLiteral("Classical");
    s.year = QStringLiteral("1977?");
    s.comment = QStringLiteral("tab\there");
    s.track_number = 12;
    s.metadata_from_input = true;
    s.report_peak = true;
    s.report_rms = true;
    s.report_no_dynamic_range = true;
    s.verbose_log = true;
    s.stopgain_alpha = 150.5;
    s.abs_value = 0.891;
    s.abs_db_value = -1.5;
    s.apply_hrtf = true;
    s.hrtf_mode = 2;
    s.hrtf_mix = 0.25;
    s.hrtf_side_mix = 0.0;
    s.hrtf_depth = -1.0;
    s.apply_surround = true;
    s.surround_delay_ms = -5;
    s.surround_mix = 60;
    s.surround_side = true;
    s.surround_balance = -20;
    s.tone_bass_db = 3.0;
    s.tone_treble_db = -2.0;
    s.eq_precut_db = -6.0;
    s.apply_dsre = true;
    s.dsreMix = 0.1;
    s.advanced = {{QStringLiteral("--dehum"), QString()},
                  {QStringLiteral("--dehum-q"), QStringLiteral("12")},
                  {QStringLiteral("--equalizer"), QStringLiteral("100,3,50;1 2 3")}};
    return s;
}

const QStringList kExpectedKeys = {
    "oversampling", "taps", "passband_cutoff", "stopband_cutoff", "enable_high_bandwidth",
    "use_dst", "dst_compression", "algorithm", "window_type", "beta", "max_iterations",
    "grid_density", "filter_type", "predistortion", "pdfreport", "report", "noise_profiling",
    "denoise_tier", "keep_harmonics", "force_channels", "reset_channels", "quad", "unsrs",
    "swapchannels", "enable_eq", "eq_bands", "artist", "title", "album", "genre", "year",
    "comment", "track_number", "metadata_from_input", "report_peak", "report_rms",
    "report_no_dynamic_range", "verbose_log", "stopgain_alpha", "abs_value", "abs_db_value",
    "apply_hrtf", "hrtf_mode", "hrtf_mix", "hrtf_side_mix", "hrtf_depth", "apply_surround",
    "surround_delay_ms", "surround_mix", "surround_side", "surround_balance", "tone_bass_db",
    "tone_treble_db", "eq_precut_db", "apply_dsre", "dsreMix", "advanced"};

}  // namespace

Q_DECLARE_METATYPE(ConversionSettings)

class TestPresetJson : public QObject {
    Q_OBJECT

private slots:
    void freshRecordDefaults();
    void copiesAreIndependent();
    void writtenKeysInTableOrder();
    void writtenTypes();
    void roundTripText();
    void roundTripObject();
    void panelOnlyFieldsNeverWritten();
    void read_data();
    void read();
    void missingKeysTakeDefaultsWithoutBase();
    void baseIsKeptForMissingKeys();
};

void TestPresetJson::freshRecordDefaults()
{
    const ConversionSettings s;
    // The documented non-zero defaults.
    QCOMPARE(s.pdfreport, true);
    QCOMPARE(s.filter_type, QStringLiteral("standard"));
    QCOMPARE(s.hrtf_mode, 1);
    QCOMPARE(s.hrtf_mix, 1.0);
    QCOMPARE(s.hrtf_side_mix, 1.0);
    QCOMPARE(s.hrtf_depth, 1.0);
    QCOMPARE(s.surround_delay_ms, 15);
    QCOMPARE(s.surround_mix, 80);
    QCOMPARE(s.dsreMix, 0.35);
    QCOMPARE(s.modulator_order, 9);
    QCOMPARE(s.predistortion, false);
    QCOMPARE(s.psy_strategy, QStringLiteral("balanced"));
    QCOMPARE(s.psy_phon, 80.0);
    QCOMPARE(s.compand_points, QStringLiteral("-20,-10;-40,-20"));
    QCOMPARE(s.compand_attack_ms, 5.0);
    QCOMPARE(s.compand_release_ms, 100.0);
    QCOMPARE(s.compressor_threshold_db, -12.0);
    QCOMPARE(s.compressor_ratio, 4.0);
    QCOMPARE(s.compressor_soft_knee, true);
    QCOMPARE(s.compressor_attack_ms, 5.0);
    QCOMPARE(s.compressor_release_ms, 100.0);
    QCOMPARE(s.soft_limiter_value, 0.05);
    QCOMPARE(s.crossfeed_profile, QStringLiteral("meier"));
    QCOMPARE(s.crossfeed_custom_db[0], -6.0);
    QCOMPARE(s.crossfeed_custom_db[1], -12.0);
    QCOMPARE(s.dsne_ratio, 30.0);
    QCOMPARE(s.dsne_knee, 12.0);
    QCOMPARE(s.dsne_margin, 3.0);
    QVERIFY(!s.ns_pole.has_value());
    QCOMPARE(s.eqBandCount(), 0);

    // Every other preset-carried value is zero, off or empty: checked through
    // the written form so a new field cannot slip past.
    const QJsonObject o = presetToJsonObject(s);
    const QSet<QString> nonZero = {"pdfreport", "filter_type", "hrtf_mode", "hrtf_mix",
                                   "hrtf_side_mix", "hrtf_depth", "surround_delay_ms",
                                   "surround_mix", "dsreMix"};
    for (auto it = o.constBegin(); it != o.constEnd(); ++it) {
        if (nonZero.contains(it.key()))
            continue;
        const QJsonValue v = it.value();
        const bool zero = (v.isBool() && !v.toBool()) || (v.isDouble() && v.toDouble() == 0.0)
                          || (v.isString() && v.toString().isEmpty())
                          || (v.isArray() && v.toArray().isEmpty())
                          || (v.isObject() && v.toObject().isEmpty());
        QVERIFY2(zero, qPrintable(it.key()));
    }
}

void TestPresetJson::copiesAreIndependent()
{
    ConversionSettings a = busyPreset();
    ConversionSettings b = a;
    QVERIFY(a == b);
    b.eq_bands[0].gainDB = 9.0;
    b.advanced.insert(QStringLiteral("--cover"), QStringLiteral("c.jpg"));
    b.inputs.append(QStringLiteral("x.wav"));
    QCOMPARE(a.eq_bands[0].gainDB, -3.0);
    QVERIFY(!a.advanced.contains(QStringLiteral("--cover")));
    QVERIFY(a.inputs.isEmpty());
    QCOMPARE(b.eqBandCount(), 3);
}

void TestPresetJson::writtenKeysInTableOrder()
{
    QCOMPARE(presetKeyOrder(), kExpectedKeys);
    QCOMPARE(kExpectedKeys.size(), 57);

    // The keys of the top-level object, in the order the text carries them.
    const QByteArray text = presetToJson(busyPreset());
    QStringList seen;
    QRegularExpression topKey(QStringLiteral("^    \"([^\"]+)\":"));
    for (const QByteArray& line : text.split('\n')) {
        const auto m = topKey.match(QString::fromUtf8(line));
        if (m.hasMatch())
            seen << m.captured(1);
    }
    QCOMPARE(seen, kExpectedKeys);

    // Bands keep their own field order.
    const qsizetype c = text.indexOf("\"centerFreq\"");
    const qsizetype g = text.indexOf("\"gainDB\"");
    const qsizetype b = text.indexOf("\"bandwidth\"");
    const qsizetype t = text.indexOf("\"bwType\"");
    QVERIFY(c > 0 && c < g && g < b && b < t);
}

void TestPresetJson::writtenTypes()
{
    ConversionSettings s = busyPreset();
    s.beta = 8.0;  // a whole double must still be a JSON number, not a string
    const QByteArray text = presetToJson(s);
    // Laid out like QJsonDocument's indented form.
    QVERIFY(text.startsWith("{\n    \"oversampling\": 256,\n    \"taps\": 8192,\n"));
    QVERIFY(text.endsWith("}\n"));
    QVERIFY(text.contains("\n    \"year\": \"1977?\",\n"));
    QVERIFY(text.contains("\n    \"keep_harmonics\": false,\n"));
    QVERIFY(text.contains("\"bwType\": \"o\""));
    QVERIFY(text.contains("\n    \"dsreMix\": 0.1,\n"));

    const QJsonObject o = parse(text);
    QVERIFY(o.value("taps").isDouble());
    QVERIFY(o.value("beta").isDouble());
    QVERIFY(o.value("use_dst").isBool());
    QVERIFY(o.value("year").isString());
    QVERIFY(o.value("eq_bands").isArray());
    QCOMPARE(o.value("eq_bands").toArray().size(), 3);
    QVERIFY(o.value("advanced").isObject());
    QCOMPARE(o.value("advanced").toObject().value("--dehum-q").toString(), QStringLiteral("12"));
    QCOMPARE(o.value("advanced").toObject().value("--dehum").toString(), QString());
    QCOMPARE(o, presetToJsonObject(s));
}

void TestPresetJson::roundTripText()
{
    ConversionSettings s = busyPreset();
    s.keep_harmonics = true;
    const PresetReadResult r = presetFromJson(parse(presetToJson(s)), nullptr);

    // keep_harmonics is written but never read back: it counts as the one
    // unsupported key and keeps the starting record's value.
    QCOMPARE(r.unsupportedKeys, 1);
    QCOMPARE(r.settings.keep_harmonics, false);
    ConversionSettings expected = s;
    expected.keep_harmonics = false;
    QCOMPARE(presetToJson(r.settings), presetToJson(expected));
    QVERIFY(r.settings == expected);
    QCOMPARE(r.settings.eqBandCount(), 3);
}

void TestPresetJson::roundTripObject()
{
    const ConversionSettings s = busyPreset();
    const PresetReadResult r = presetFromJson(presetToJsonObject(s), nullptr);
    QCOMPARE(r.unsupportedKeys, 1);
    QVERIFY(r.settings == s);
}

void TestPresetJson::panelOnlyFieldsNeverWritten()
{
    ConversionSettings s;
    s.modulator_order = 3;
    s.psy = true;
    s.inputs = QStringList{QStringLiteral("a.wav")};
    s.output_dir = QStringLiteral("/out");
    s.log_file = QStringLiteral("log.txt");
    s.dither = true;
    QCOMPARE(presetToJson(s), presetToJson(ConversionSettings{}));

    const ConversionSettings back = presetFromJson(presetToJsonObject(s), nullptr).settings;
    QCOMPARE(back.modulator_order, 9);
    QVERIFY(!back.psy);
    QVERIFY(back.inputs.isEmpty());
}

void TestPresetJson::read_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<ConversionSettings>("expected");
    QTest::addColumn<int>("unsupported");

    const ConversionSettings d;
    QTest::newRow("empty object") << QByteArray("{}") << d << 0;
    {
        ConversionSettings e = d;
        e.taps = 4096;
        QTest::newRow("two unknown keys and keep_harmonics")
            << QByteArray(R"({"taps": 4096, "foo": 1, "bar": "x", "keep_harmonics": true})") << e << 3;
    }
    {
        ConversionSettings e = d;
        e.enable_eq = true;
        e.eq_bands = {EqBand{1000.0, -3.0, 1.0, 'q'}, EqBand{50.0, 1.0, 2.0, 'q'},
                      EqBand{60.0, 0.0, 0.0, 'h'}};
        QTest::newRow("bands: invalid dropped, bwType defaulted")
            << QByteArray(R"({"enable_eq": true, "eq_bands": [
                 {"centerFreq": 1000, "gainDB": -3, "bandwidth": 1, "bwType": "q"},
                 {"centerFreq": 0, "gainDB": 5, "bandwidth": 1, "bwType": "o"},
                 {"centerFreq": -10, "gainDB": 5, "bandwidth": 1, "bwType": "o"},
                 {"centerFreq": 50, "gainDB": 1, "bandwidth": 2},
                 {"centerFreq": 60, "bwType": "hz"},
                 "not an object"]})")
            << e << 0;
    }
    {
        ConversionSettings e = d;
        e.eq_bands = {EqBand{440.0, 0.0, 0.0, 'q'}};
        QTest::newRow("empty bwType is q")
            << QByteArray(R"({"eq_bands": [{"centerFreq": 440, "bwType": ""}]})") << e << 0;
    }
    {
        ConversionSettings e = d;
        e.taps = 0;
        e.pdfreport = false;
        e.artist.clear();
        e.beta = 0.0;
        e.filter_type.clear();
        QTest::newRow("wrong JSON types read as zero")
            << QByteArray(R"({"taps": "8192", "pdfreport": 1, "artist": 5, "beta": "x",
                             "filter_type": null, "eq_bands": {"centerFreq": 1}})")
            << e << 0;
    }
    {
        ConversionSettings e = d;
        e.taps = 3;
        e.reset_channels = -3;
        e.oversampling = 0;
        QTest::newRow("integers drop fractions, overflow reads as 0")
            << QByteArray(R"({"taps": 3.9, "reset_channels": -3.9, "oversampling": 1e12})") << e << 0;
    }
    {
        ConversionSettings e = d;
        e.advanced = {{QStringLiteral("--cover"), QStringLiteral("c.jpg")},
                      {QStringLiteral("--dehum"), QString()}};
        QTest::newRow("advanced: only string members")
            << QByteArray(R"({"advanced": {"--cover": "c.jpg", "--dehum": "", "--dehum-q": 12,
                             "--bit": null}})")
            << e << 0;
    }
    {
        ConversionSettings e = d;
        e.hrtf_mode = 0;
        e.dsreMix = 0.5;
        e.year = QStringLiteral("2001");
        QTest::newRow("camel-case key and text year")
            << QByteArray(R"({"hrtf_mode": 0, "dsreMix": 0.5, "year": "2001", "DSREMIX": 1})")
            << e << 1;
    }
    {
        // Keys that exist in the record but not in the preset format are
        // unknown to the reader.
        QTest::newRow("panel-only keys are unsupported")
            << QByteArray(R"({"modulator_order": 3, "inputs": ["a"], "output_dir": "/o"})") << d << 3;
    }
}

void TestPresetJson::read()
{
    QFETCH(QByteArray, json);
    QFETCH(ConversionSettings, expected);
    QFETCH(int, unsupported);
    const QJsonObject o = parse(json);
    QVERIFY(!o.isEmpty() || json == "{}");
    const PresetReadResult r = presetFromJson(o, nullptr);
    QCOMPARE(r.unsupportedKeys, unsupported);
    QCOMPARE(presetToJson(r.settings), presetToJson(expected));
    QVERIFY(r.settings == expected);
}

void TestPresetJson::missingKeysTakeDefaultsWithoutBase()
{
    const PresetReadResult r = presetFromJson(parse(R"({"taps": 2048})"), nullptr);
    QCOMPARE(r.unsupportedKeys, 0);
    ConversionSettings expected;
    expected.taps = 2048;
    QVERIFY(r.settings == expected);
    QVERIFY(r.settings.pdfreport);
    QCOMPARE(r.settings.filter_type, QStringLiteral("standard"));
}

void TestPresetJson::baseIsKeptForMissingKeys()
{
    ConversionSettings base = busyPreset();
    base.keep_harmonics = true;
    base.modulator_order = 5;
    base.inputs = QStringList{QStringLiteral("in.wav")};
    base.advanced = {{QStringLiteral("--dehum"), QString()},
                     {QStringLiteral("--bit"), QStringLiteral("24")}};

    const PresetReadResult r = presetFromJson(
        parse(R"({"taps": 1024, "keep_harmonics": false,
                  "advanced": {"--dehum": "x", "--cover": "c.jpg"}})"),
        &base);
    QCOMPARE(r.unsupportedKeys, 1);

    ConversionSettings expected = base;
    expected.taps = 1024;
    expected.advanced = {{QStringLiteral("--bit"), QStringLiteral("24")},
                         {QStringLiteral("--cover"), QStringLiteral("c.jpg")},
                         {QStringLiteral("--dehum"), QStringLiteral("x")}};
    QVERIFY(r.settings == expected);
    QCOMPARE(r.settings.keep_harmonics, true);
    QCOMPARE(r.settings.eqBandCount(), 3);

    // A preset that names the bands replaces the base's list.
    const PresetReadResult r2 = presetFromJson(
        parse(R"({"eq_bands": [{"centerFreq": 100, "gainDB": 1, "bandwidth": 2, "bwType": "s"}]})"),
        &base);
    QCOMPARE(r2.settings.eq_bands, (QList<EqBand>{EqBand{100.0, 1.0, 2.0, 's'}}));
}

QTEST_GUILESS_MAIN(TestPresetJson)
#include "tst_preset_json.moc"
