// Moving a record into the window and back: every control must carry its own
// field, and only its own, for any value its range allows.
#include <QComboBox>
#include <QRandomGenerator>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "engine_args.h"
#include "log_pane.h"
#include "mainwindow.h"

namespace {

// The fields the window's controls own; every other field of the record
// must come out of collectInto() exactly as it went in.
void copyControlledFields(ConversionSettings& d, const ConversionSettings& s)
{
    // Basic
    d.oversampling = s.oversampling; d.taps = s.taps;
    d.use_mash = s.use_mash; d.use_sos_ef = s.use_sos_ef; d.use_cifb = s.use_cifb; d.poly = s.poly;
    d.use_dst = s.use_dst; d.dxd = s.dxd; d.reverse = s.reverse; d.dst_compression = s.dst_compression;
    d.enable_high_bandwidth = s.enable_high_bandwidth; d.use_opencl = s.use_opencl; d.pdfreport = s.pdfreport;
    d.report = s.report; d.noise_profiling = s.noise_profiling; d.denoise_tier = s.denoise_tier;
    d.keep_harmonics = s.keep_harmonics; d.report_peak = s.report_peak; d.report_rms = s.report_rms;
    d.report_no_dynamic_range = s.report_no_dynamic_range;
    // Filter
    d.algorithm = s.algorithm; d.filter_type = s.filter_type; d.predistortion = s.predistortion;
    d.window_type = s.window_type; d.beta = s.beta; d.max_iterations = s.max_iterations;
    d.grid_density = s.grid_density; d.stopgain_alpha = s.stopgain_alpha; d.passband_cutoff = s.passband_cutoff;
    d.stopband_cutoff = s.stopband_cutoff; d.abs_value = s.abs_value; d.abs_db_value = s.abs_db_value;
    // Equalizer
    d.enable_eq = s.enable_eq; d.eq_bands = s.eq_bands;
    // Spatial & Tone
    d.apply_hrtf = s.apply_hrtf; d.hrtf_mode = s.hrtf_mode; d.hrtf_mix = s.hrtf_mix;
    d.hrtf_side_mix = s.hrtf_side_mix; d.hrtf_depth = s.hrtf_depth; d.apply_surround = s.apply_surround;
    d.surround_delay_ms = s.surround_delay_ms; d.surround_mix = s.surround_mix; d.surround_side = s.surround_side;
    d.surround_balance = s.surround_balance; d.tone_bass_db = s.tone_bass_db; d.tone_treble_db = s.tone_treble_db;
    d.eq_precut_db = s.eq_precut_db; d.apply_dsre = s.apply_dsre; d.dsreMix = s.dsreMix;
    // Channels
    d.force_channels = s.force_channels; d.reset_channels = s.reset_channels; d.quad = s.quad;
    d.unsrs = s.unsrs; d.swapchannels = s.swapchannels;
    // Advanced
    d.advanced = s.advanced;
    // Tags and the log switch
    d.artist = s.artist; d.title = s.title; d.album = s.album; d.genre = s.genre; d.year = s.year;
    d.comment = s.comment; d.track_number = s.track_number; d.metadata_from_input = s.metadata_from_input;
    d.verbose_log = s.verbose_log;
}

struct Random {
    QRandomGenerator g;
    explicit Random(quint32 seed) : g(seed) {}
    bool flag() { return g.bounded(2) == 1; }
    int in(int lo, int hi) { return lo + int(g.bounded(hi - lo + 1)); }
    // A value on the control's decimal grid, so the spin box shows it exactly.
    double grid(double lo, double hi, int decimals)
    {
        // k / 10^d is the double nearest the decimal, as the spin box and
        // the band table read it back.
        const double scale = std::pow(10.0, decimals);
        const int loUnits = int(std::llround(lo * scale));
        const int hiUnits = int(std::llround(hi * scale));
        return in(loUnits, hiUnits) / scale;
    }
    QString text() { return QStringLiteral("t%1 ✓").arg(g.bounded(100000)); }
    template <typename T> T pick(std::initializer_list<T> items) { return items.begin()[g.bounded(int(items.size()))]; }
};

// A record whose controlled fields are random within the controls' ranges
// and whose other fields are random too, so a stray write shows.
ConversionSettings randomRecord(Random& r)
{
    ConversionSettings s;
    s.oversampling = r.pick({64, 128, 256, 512, 1024, 2048, 4096, 8192});
    s.taps = r.in(0, 524288);
    const int mod = r.in(0, 3);
    s.use_mash = mod == 1; s.use_sos_ef = mod == 2; s.use_cifb = mod == 3;
    s.poly = r.flag(); s.use_dst = r.flag(); s.dxd = r.flag(); s.reverse = r.flag();
    s.dst_compression = r.in(0, 9);
    s.enable_high_bandwidth = r.flag(); s.use_opencl = r.flag(); s.pdfreport = r.flag(); s.report = r.flag();
    s.noise_profiling = r.flag(); s.denoise_tier = r.in(0, 3); s.keep_harmonics = r.flag();
    s.report_peak = r.flag(); s.report_rms = r.flag(); s.report_no_dynamic_range = r.flag();
    s.algorithm = r.pick({QStringLiteral("window"), QStringLiteral("remez"), QStringLiteral("minphase")});
    s.filter_type = r.pick({QStringLiteral("standard"), QStringLiteral("slow"), QStringLiteral("minphase")});
    s.predistortion = r.flag();
    s.window_type = r.pick({QStringLiteral("kaiser"), QStringLiteral("blackman"), QStringLiteral("flattop"),
                            QStringLiteral("bartlett"), QStringLiteral("hamming"), QStringLiteral("hanning")});
    s.beta = r.grid(0, 100, 1);
    s.max_iterations = r.in(1, 1000);
    s.grid_density = r.in(16, 256);
    s.stopgain_alpha = r.grid(0, 300, 1);
    s.passband_cutoff = r.in(0, 2000000);
    s.stopband_cutoff = r.in(0, 2000000);
    const double gain = r.grid(0.001, 20, 3);
    if (r.flag()) { s.abs_value = gain; s.abs_db_value = 0; } else { s.abs_value = 0; s.abs_db_value = gain; }
    s.enable_eq = r.flag();
    for (int i = r.in(0, 10); i > 0; --i)
        s.eq_bands.append(EqBand{double(r.in(1, 24000)), r.grid(-24, 24, 1), r.grid(0.1, 10, 2),
                                 r.pick({'q', 'h', 'k', 'o', 's'})});
    s.apply_hrtf = r.flag(); s.hrtf_mode = r.in(0, 2);
    s.hrtf_mix = r.grid(0, 1, 2); s.hrtf_side_mix = r.grid(0, 1, 2); s.hrtf_depth = r.grid(-1, 1, 2);
    s.apply_surround = r.flag(); s.surround_delay_ms = r.in(0, 500); s.surround_mix = r.in(0, 100);
    s.surround_side = r.flag(); s.surround_balance = r.in(-100, 100);
    s.tone_bass_db = r.grid(-24, 24, 1); s.tone_treble_db = r.grid(-24, 24, 1); s.eq_precut_db = r.grid(-24, 0, 1);
    s.apply_dsre = r.flag(); s.dsreMix = r.grid(0, 1, 2);
    s.force_channels = r.flag(); s.reset_channels = r.in(0, 8); s.quad = r.flag(); s.unsrs = r.flag();
    s.swapchannels = r.flag();
    for (const AdvancedOption& o : advancedOptionTable())
        if (r.g.bounded(4) == 0)
            s.advanced.insert(o.option, o.kind == AdvancedOption::Switch ? QString() : r.text());
    s.artist = r.text(); s.title = r.text(); s.album = r.text(); s.genre = r.text(); s.year = r.text();
    s.comment = r.text(); s.track_number = r.in(0, 998); s.metadata_from_input = r.flag(); s.verbose_log = r.flag();
    // Fields without a control: must pass through untouched.
    s.modulator_order = r.in(1, 64); s.psy = r.flag(); s.lufs_target = r.grid(-30, 0, 1);
    s.cifb_order = r.in(0, 9); s.mash_order = r.in(0, 9); s.poly_degree = r.in(0, 9); s.inputs = {r.text()};
    return s;
}

// What the output part of the panel shows in a fresh window.
void setFreshOutputFields(ConversionSettings& s)
{
    s.output_path.clear();
    s.output_dir.clear();
    s.name_template.clear();
    s.output_ext = QStringLiteral("dsf");
}

QString logText(MainWindow& w)
{
    LogPane* pane = w.findChild<LogPane*>();
    pane->flushPending();
    return pane->toPlainText();
}

} // namespace

class TestSettingsRoundTrip : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("ZUVO_ENGINE_BIN", FAKE_ENGINE_PATH);
        qputenv("ZUVO_SETTINGS_DIR", QFile::encodeName(settingsDir.path()));
    }

    void collectGivesBackWhatApplyShowed()
    {
        MainWindow w;
        for (quint32 seed = 1; seed <= 150; ++seed) {
            Random r(seed);
            const ConversionSettings shown = randomRecord(r);
            ConversionSettings out = randomRecord(r); // a different record underneath
            const ConversionSettings underneath = out;
            w.applySettings(shown);
            w.collectInto(out);

            ConversionSettings expected = underneath;
            copyControlledFields(expected, shown);
            setFreshOutputFields(expected);
            if (out != expected) {
                // Name the first field that differs, for the failure message.
                ConversionSettings probe = expected;
                copyControlledFields(probe, out);
                setFreshOutputFields(probe);
                QFAIL(qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(
                    probe == out ? "a controlled field differs" : "a field without a control was changed")));
            }
        }
    }

    void fullCollectKeepsUncontrolledFields()
    {
        MainWindow w;
        Random r(999);
        const ConversionSettings shown = randomRecord(r);
        w.applySettings(shown);
        ConversionSettings out = w.collectSettings();
        ConversionSettings expected = shown;
        setFreshOutputFields(expected);
        expected.log_file = out.log_file;
        QCOMPARE(out == expected, true);
    }

    void edgeCases_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("rate not in the list keeps the selection") << 0;
        QTest::newRow("Remez in another case shows the window method") << 1;
        QTest::newRow("both gains set shows dB") << 2;
        QTest::newRow("denoise 9 shows off") << 3;
        QTest::newRow("HRTF mode 5 shows ms") << 4;
    }
    void edgeCases()
    {
        QFETCH(int, row);
        MainWindow w;
        ConversionSettings before;
        before.oversampling = 256;
        w.applySettings(before);
        ConversionSettings s = before;
        switch (row) {
        case 0: s.oversampling = 3000; break;
        case 1: s.algorithm = QStringLiteral("Remez"); break;
        case 2: s.abs_value = 2.5; s.abs_db_value = 6.0; break;
        case 3: s.denoise_tier = 9; break;
        case 4: s.hrtf_mode = 5; break;
        }
        w.applySettings(s);
        const ConversionSettings out = w.collectSettings();
        switch (row) {
        case 0: QCOMPARE(out.oversampling, 256); break;
        case 1: QCOMPARE(out.algorithm, QStringLiteral("window")); break;
        case 2:
            QCOMPARE(out.abs_db_value, 6.0);
            QCOMPARE(out.abs_value, 0.0);
            break;
        case 3: QCOMPARE(out.denoise_tier, 0); break;
        case 4: QCOMPARE(out.hrtf_mode, 1); break;
        }
    }

    void invalidBandRowsAreDroppedAndCounted()
    {
        MainWindow w;
        ConversionSettings s;
        s.enable_eq = true;
        s.eq_bands = {EqBand{100, 1, 1, 'q'}, EqBand{200, 2, 1, 'o'}, EqBand{300, 3, 1, 'h'}};
        w.applySettings(s);
        auto* table = w.findChild<QTableWidget*>();
        table->item(0, 0)->setText(QStringLiteral("0"));
        table->item(2, 0)->setText(QStringLiteral("-5"));
        const ConversionSettings out = w.collectSettings();
        QCOMPARE(out.eq_bands.size(), 1);
        QCOMPARE(out.eq_bands[0], (EqBand{200, 2, 1, 'o'}));
        QVERIFY(logText(w).contains(QStringLiteral("均衡器: 2 行无效 (需中心频率>0) 已被跳过")));
    }

private:
    QTemporaryDir settingsDir;
};

QTEST_MAIN(TestSettingsRoundTrip)
#include "test_settings_roundtrip.moc"
