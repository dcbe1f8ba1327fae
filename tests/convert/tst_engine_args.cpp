// The engine command line built from a settings record. One table of cases:
// each changes a quiet record (or builds its own) and names the arguments the
// change must add before "--gui", after it and after the output path, with
// the notes and standard-error text it must produce. One case sets nearly
// everything at once, which pins the whole forward order.
#include <QtTest>

#include <QTemporaryFile>

#include <cmath>
#include <cstdio>
#include <limits>
#include <unistd.h>

#include "conversion_settings.h"
#include "engine_args.h"

namespace {

using S = ConversionSettings;
const double kNaN = std::numeric_limits<double>::quiet_NaN();

// Descriptor 2 into a temporary file, so the exact bytes written to standard
// error can be compared.
class StderrCapture {
public:
    StderrCapture() { file_.open(); std::fflush(stderr); saved_ = ::dup(2); ::dup2(file_.handle(), 2); }
    ~StderrCapture() { finish(); }
    QByteArray finish()
    {
        if (saved_ >= 0) {
            std::fflush(stderr);
            ::dup2(saved_, 2);
            ::close(saved_);
            saved_ = -1;
            file_.seek(0);
            text_ = file_.readAll();
        }
        return text_;
    }

private:
    QTemporaryFile file_;
    int saved_ = -1;
    QByteArray text_;
};

S fresh(const QString& out = "out.dsf")
{
    S s;
    s.inputs = QStringList{"in.wav"};
    s.output_path = out;
    return s;
}

// Fresh, with the three arguments that are on by default switched off.
S quiet()
{
    S s = fresh();
    s.modulator_order = 0;
    s.predistortion = true;
    s.pdfreport = false;
    return s;
}

struct Case {
    const char* name;
    void (*set)(S&);        // applied to quiet()
    QStringList beforeGui;  // or, with `whole`, the complete list
    QStringList afterGui = {};
    QStringList afterOutput = {};
    QStringList notes = {};
    QByteArray stderrText = {};
    bool whole = false;
};

const QStringList kEveryRow = {
    "-i", "a.wav", "-i", "b.wav", "--artist", "A", "--title", "T", "--album", "Al", "--genre", "G", "--year", "1999",
    "--comment", "C", "--track", "998", "--metadata-from-input", "--dehum", "--cover", "c.jpg", "--gui",
    "--log-file", "l.txt", "--oversampling", "8192", "--taps", "4096", "--passband-cutoff", "20000",
    "--stopband-cutoff", "24000", "--high-bandwidth", "--lufs", "-14.000000", "--harmonics", "0.200000", "tube",
    "--dst", "--opencl", "--stopgain-alpha", "140.000000", "--minphase", "--delta-f", "0.500000", "--log", "fir",
    "--memory-cache", "4", "--mash", "3", "--unsrs", "--swap-channels", "--unpredistortion", "--report",
    "--report", "-pdfrp", "--hfacheck", "--resetchannels", "4", "--quad", "--zero", "0.100000",
    "--noise-threshold", "-90.000000", "--abs", "0.500000", "--absdb", "-1.000000", "--eq", "1000,-3.0,1.0q",
    "--pipe", "--force-endianness", "b", "--stereoexpander", "1.2", "--log", "freq", "--auto-pan",
    "--target-width", "1.500000", "--pan-report", "--psy", "--psy-strategy", "loud", "--psy-phon", "70.000000",
    "--apo", "normal", "--dither", "2", "--compand", "-20,-10;-40,-20", "5.000000", "100.000000", "--stats",
    "--spectrogram", "s.png", "--noise-reduce", "p.prof", "--denoise", "standard", "--keep-harmonics", "off",
    "--rate", "44100", "--lal", "--lal-lookahead", "5.000000", "--lal-threshold", "-1.000000", "--adaptive",
    "--pbe", "2", "--pbe-precut", "3.000000", "--filter-type", "slow", "--dst-compression", "1",
    "--noise-profiling", "--peak", "--rms", "--no-dynamic-range", "--verbose", "--sos-ef", "--cifb", "4", "--dxd",
    "--poly", "--poly-degree", "3", "--poly-report", "--dsne", "0.500000", "--dsee", "0.300000", "--dsre",
    "0.350000", "--hrtf", "stereo", "--bass", "2.000000", "--treble", "-1.000000", "--eq-precut", "-3.000000",
    "--compressor", "-12.000000", "4.000000", "soft", "5.000000", "100.000000", "--soft-limiter", "0.050000",
    "--crossfeed", "custom", "-6.000000", "-12.000000", "--convolve", "ir.wav", "--cue", "c.cue", "--dsne-ratio",
    "20.000000", "--rg", "album", "out.dsf", "--surround", "15", "80", "side", "10"};

void setEveryRow(S& s)
{
    s = fresh();
    s.inputs = QStringList{"a.wav", "b.wav"};
    s.artist = "A", s.title = "T", s.album = "Al", s.genre = "G", s.year = "1999", s.comment = "C";
    s.track_number = 998, s.metadata_from_input = true, s.advanced = {{"--cover", "c.jpg"}, {"--dehum", ""}};
    s.log_file = "l.txt", s.oversampling = 8192, s.taps = 4096, s.passband_cutoff = 20000;
    s.stopband_cutoff = 24000, s.enable_high_bandwidth = true, s.lufs_target = -14.0;
    s.harmonics_enabled = true, s.harmonics_amount = 0.2, s.harmonics_profile = "tube";
    s.use_dst = s.use_opencl = true, s.stopgain_alpha = 140.0, s.algorithm = "minphase", s.delta_f = 0.5;
    s.log_fir = true, s.memory_cache = 4, s.use_mash = true, s.mash_order = 3, s.ns_pole = 0.9;
    s.unsrs = s.swapchannels = s.report = s.report_extra1 = s.hfa_check = true;
    s.reset_channels = 4, s.quad = true, s.ns_zeros = {0.1}, s.noise_threshold = -90.0;
    s.abs_value = 0.5, s.abs_db_value = -1.0, s.enable_eq = true, s.eq_bands = {EqBand{1000.0, -3.0, 1.0, 'q'}};
    s.pipe_mode = s.force_endianness = true, s.endianness = "b";
    s.stereo_expander = true, s.stereo_expander_params = "1.2", s.log_freq_2 = true;
    s.auto_pan = true, s.auto_pan_target_width = 1.5f, s.pan_report = true;
    s.psy = true, s.psy_strategy = "loud", s.psy_phon = 70.0, s.apo = 2, s.dither = true, s.dither_value = 2;
    s.compand = s.stats = true, s.spectrogram_path = "s.png", s.noise_reduce = true;
    s.noise_reduce_profile = "p.prof", s.denoise_tier = 2, s.rate_enabled = true, s.rate = 44100;
    s.lal = true, s.lal_lookahead = 5.0, s.lal_threshold = -1.0, s.adaptive = true;
    s.pbe = true, s.pbe_level = 2, s.pbe_precut = 3.0, s.filter_type = "slow", s.dst_compression = 1;
    s.noise_profiling = s.report_peak = s.report_rms = s.report_no_dynamic_range = s.verbose_log = true;
    s.use_sos_ef = s.use_cifb = true, s.cifb_order = 4, s.dxd = true;
    s.poly = true, s.poly_degree = 3, s.poly_report = true, s.dsne = true, s.dsne_amount = 0.5;
    s.dsee = true, s.dsee_amount = 0.3, s.apply_dsre = true, s.apply_hrtf = true, s.hrtf_mode = 2;
    s.tone_bass_db = 2.0, s.tone_treble_db = -1.0, s.eq_precut_db = -3.0, s.compressor = s.soft_limiter = true;
    s.crossfeed = true, s.crossfeed_profile = "custom", s.convolve_files = QStringList{"ir.wav"};
    s.cue_file = "c.cue", s.dsne_ratio = 20.0, s.replay_gain_mode = 2;
    s.apply_surround = s.surround_side = true, s.surround_balance = 10;
}

const QString kQuadOff = "警告: 四声道模式需要重置声道数为4, 当前为%1, 已忽略quad参数";
const QByteArray kBadSegment = "[advanced] --equalizer: 需要三个值(频率 增益 带宽), 这一段忽略了: ";

const QList<Case>& cases()
{
    static const QList<Case> table = {
        // Fresh records, as a new window makes them.
        {"fresh .dsf", [](S& s) { s = fresh(); },
         {"-i", "in.wav", "--gui", "--order", "9", "--unpredistortion", "-pdfrp", "out.dsf"}, {}, {}, {}, {}, true},
        {"fresh .DFF", [](S& s) { s = fresh("D:/x/OUT.DFF"); },
         {"-i", "in.wav", "--artist", "", "--title", "", "--gui", "--order", "9", "--unpredistortion", "-pdfrp",
          "D:/x/OUT.DFF"}, {}, {}, {}, {}, true},
        {"inputs in order, empty kept", [](S& s) { s.inputs = QStringList{"a b.wav", "", "c.flac"}; },
         {"-i", "a b.wav", "-i", "", "-i", "c.flac", "--gui", "out.dsf"}, {}, {}, {}, {}, true},
        {"empty output is an argument", [](S& s) { s.output_path.clear(); }, {"-i", "in.wav", "--gui", ""},
         {}, {}, {}, {}, true},
        // Tags and the DSDIFF blanks.
        {"negative track not sent", [](S& s) { s.track_number = -1; }, {}},
        {".dff with artist: title blank", [](S& s) { s.output_path = "o.dff", s.artist = "A"; },
         {"-i", "in.wav", "--artist", "A", "--title", "", "--gui", "o.dff"}, {}, {}, {}, {}, true},
        {".dff with tags from input", [](S& s) { s.output_path = "o.dff", s.metadata_from_input = true; },
         {"-i", "in.wav", "--metadata-from-input", "--gui", "o.dff"}, {}, {}, {}, {}, true},
        {".dff blanks after advanced", [](S& s) { s.output_path = "o.dff", s.advanced = {{"--dehum", ""}}; },
         {"-i", "in.wav", "--dehum", "--artist", "", "--title", "", "--gui", "o.dff"}, {}, {}, {}, {}, true},
        {"folder named .dff", [](S& s) { s.output_path = "d.dff/o.dsf"; },
         {"-i", "in.wav", "--gui", "d.dff/o.dsf"}, {}, {}, {}, {}, true},
        // Values that are not sent, and the notes.
        {"harmonics with empty profile", [](S& s) { s.harmonics_enabled = true, s.harmonics_amount = 0.15; },
         {}, {"--harmonics", "0.150000", ""}},
        {"harmonics off", [](S& s) { s.harmonics_amount = 0.15, s.harmonics_profile = "tube"; }, {}},
        {"negative stop-band gain", [](S& s) { s.stopgain_alpha = -5.0; }, {}},
        {"memory cache 1", [](S& s) { s.memory_cache = 1; }, {}},
        {"order below 1", [](S& s) { s.modulator_order = -1; }, {}},
        {"remez: window ignored, limits always", [](S& s) { s.algorithm = "remez", s.window_type = "kaiser"; },
         {}, {"--algorithm", "--maxiterations", "0", "--griddensity", "0"}, {},
         {"使用Remez算法进行执行", "注意: 窗口类型参数已被忽略"}},
        {"window, beta 0 not sent", [](S& s) { s.algorithm = "window", s.window_type = "blackman"; },
         {}, {"--window-type", "blackman"}, {}, {"使用窗口法进行执行, 窗口类型: blackman"}},
        {"window without type", [](S& s) { s.algorithm = "window", s.beta = 5.0; }, {}},
        {"algorithm is case-sensitive", [](S& s) { s.algorithm = "Remez"; }, {}},
        {"log all replaces the others", [](S& s) { s.log_all = s.log_fir = s.log_ns = s.log_freq = true; },
         {}, {"--log", "all"}},
        {"log fir, ns, freq", [](S& s) { s.log_fir = s.log_ns = s.log_freq = true; },
         {}, {"--log", "fir", "--log", "ns", "--log", "freq"}},
        // Modulators.
        {"mash without order, no pole", [](S& s) { s.use_mash = true, s.ns_pole = 0.5, s.modulator_order = 9; },
         {}, {"--mash"}},
        {"sos-ef replaces --order", [](S& s) { s.use_sos_ef = true, s.modulator_order = 9; }, {}, {"--sos-ef"}},
        {"cifb order 0 still sent", [](S& s) { s.use_cifb = true, s.modulator_order = 9; }, {}, {"--cifb", "0"}},
        {"pole 0 is a value", [](S& s) { s.ns_pole = 0.0; }, {}, {"--pole", "0.000000"}},
        // Channels and reports.
        {"force channels overrides", [](S& s) { s.force_channels = s.unsrs = s.quad = true, s.reset_channels = 4; },
         {}, {"--forcechannels"}, {},
         {"注意: 强制原始声道数已启用, 忽略添加环绕声道参数",
          "启用强制原始声道数, 忽略重置声道数、四声道模式和添加环绕声道参数"}},
        {"quad with two channels", [](S& s) { s.quad = true, s.reset_channels = 2; },
         {}, {"--resetchannels", "2"}, {}, {kQuadOff.arg(2)}},
        {"quad without reset", [](S& s) { s.quad = true; }, {}, {}, {}, {kQuadOff.arg(0)}},
        {"second report alone", [](S& s) { s.report_extra2 = true; }, {}, {"--report"}},
        // Equaliser.
        {"eq with no bands", [](S& s) { s.enable_eq = true; }, {}, {"--eq", ""}, {}, {"应用EQ: "}},
        {"pre-cut needs the equaliser", [](S& s) { s.eq_precut_db = -6.0, s.eq_bands = {{100, 1, 1, 'q'}}; }, {}},
        // Switches with values and defaults.
        {"default endianness", [](S& s) { s.force_endianness = true; }, {}, {"--force-endianness", "l"}},
        {"expander without parameters", [](S& s) { s.stereo_expander = true; }, {}},
        {"pan settings need auto-pan", [](S& s) { s.pan_report = true, s.auto_pan_target_width = 1.5f; }, {}},
        {"auto-pan float width widened", [](S& s) { s.auto_pan = true, s.auto_pan_target_width = 0.1f; },
         {}, {"--auto-pan", "--target-width", "0.100000"}},
        {"psy defaults", [](S& s) { s.psy = true; }, {}, {"--psy", "--psy-phon", "80.000000"}},
        {"psy balanced strategy not sent", [](S& s) { s.psy = true, s.psy_strategy = "balanced", s.psy_phon = 0; },
         {}, {"--psy"}},
        {"apo 3", [](S& s) { s.apo = 3; }, {}, {"--apo", "aggressive"}},
        {"apo 5 has no value", [](S& s) { s.apo = 5; }, {}, {"--apo"}},
        {"apo -1", [](S& s) { s.apo = -1; }, {}},
        {"dither value needs the switch", [](S& s) { s.dither_value = 3; }, {}},
        {"dither without value", [](S& s) { s.dither = true; }, {}, {"--dither"}},
        {"noise reduce without profile", [](S& s) { s.noise_reduce = true; }, {}},
        {"denoise 1", [](S& s) { s.denoise_tier = 1, s.keep_harmonics = true; },
         {}, {"--denoise", "light", "--keep-harmonics", "on"}},
        {"denoise 7", [](S& s) { s.denoise_tier = 7; }, {}, {"--denoise", "deep", "--keep-harmonics", "off"}},
        {"rate 0 not sent", [](S& s) { s.rate_enabled = true; }, {}},
        {"look-ahead limiter with zeros", [](S& s) { s.lal = true; },
         {}, {"--lal", "--lal-lookahead", "0.000000", "--lal-threshold", "0.000000"}},
        {"pbe without level or pre-cut", [](S& s) { s.pbe = true; }, {}},
        {"empty filter type", [](S& s) { s.filter_type.clear(); }, {}, {"--filter-type", ""}},
        {"poly off: not even the report", [](S& s) { s.poly_report = s.poly_auto = true; }, {}},
        {"poly auto replaces the degree", [](S& s) { s.poly = s.poly_auto = true, s.poly_load = "l.poly"; },
         {}, {"--poly", "--poly-load", "l.poly", "--poly-auto"}},
        // Tunings sent only when they differ from their defaults; NaN differs.
        {"dsne tunings need dsne", [](S& s) { s.dsne_ratio = 10.0; }, {}},
        {"dsne NaN ratio after the cue sheet", [](S& s) { s.dsne = true, s.dsne_ratio = kNaN, s.cue_file = "a.cue"; },
         {}, {"--dsne", "--cue", "a.cue", "--dsne-ratio", "nan"}},
        {"dsne margin", [](S& s) { s.dsne = true, s.dsne_margin = -3.0; }, {}, {"--dsne", "--dsne-margin", "-3.000000"}},
        {"dsee every tuning", [](S& s) { s.dsee = true, s.dsee_drive = 2.0, s.dsee_hmix = kNaN, s.dsee_air = 0.02; },
         {}, {"--dsee", "--dsee-drive", "2.000000", "--dsee-hmix", "nan", "--dsee-air", "0.020000"}},
        {"dsre mix 0", [](S& s) { s.apply_dsre = true, s.dsreMix = 0.0; }, {}, {"--dsre"}},
        {"hrtf mode 0", [](S& s) { s.apply_hrtf = true, s.hrtf_mode = 0; }, {}, {"--hrtf", "mono"}},
        {"hrtf mode 7 and tunings",
         [](S& s) { s.apply_hrtf = true, s.hrtf_mode = 7, s.hrtf_mix = 0.5, s.hrtf_side_mix = kNaN, s.hrtf_depth = -1; },
         {}, {"--hrtf", "ms", "--hrtf-mix", "0.500000", "--hrtf-side-mix", "nan", "--hrtf-depth", "-1.000000"}},
        {"compressor hard knee", [](S& s) { s.compressor = true, s.compressor_soft_knee = false; },
         {}, {"--compressor", "-12.000000", "4.000000", "hard", "5.000000", "100.000000"}},
        {"crossfeed default profile", [](S& s) { s.crossfeed = true; }, {}, {"--crossfeed", "meier"}},
        {"crossfeed profile case-sensitive", [](S& s) { s.crossfeed = true, s.crossfeed_profile = "Custom"; },
         {}, {"--crossfeed", "Custom"}},
        {"convolve skips empty entries", [](S& s) { s.convolve_files = QStringList{"", "ir1.wav", "", "ir 2.wav"}; },
         {}, {"--convolve", "ir1.wav", "--convolve", "ir 2.wav"}},
        {"replay gain 1", [](S& s) { s.replay_gain_mode = 1; }, {}, {"--rg"}},
        {"replay gain 3", [](S& s) { s.replay_gain_mode = 3; }, {}},
        {"surround negative delay, balance 0", [](S& s) { s.apply_surround = true, s.surround_delay_ms = -5; },
         {}, {}, {"--surround", "-5", "80"}},
        // Advanced rows.
        {"advanced: empty value takes the default", [](S& s) { s.advanced = {{"--dehum-q", ""}}; }, {"--dehum-q", "10"}},
        {"advanced: no value, no default: dropped", [](S& s) { s.advanced = {{"--expand-ratio", ""}}; }, {}},
        {"advanced: switch ignores its value", [](S& s) { s.advanced = {{"--dehum", "x"}}; }, {"--dehum"}},
        {"advanced: value not checked", [](S& s) { s.advanced = {{"--mp-poles", "abc"}}; }, {"--mp-poles", "abc"}},
        {"advanced: unknown keys ignored", [](S& s) { s.advanced = {{"--not-an-option", "1"}, {"-i", "x"}}; }, {}},
        {"advanced: table order, not map order",
         [](S& s) { s.advanced = {{"--bit", "24"}, {"--cover", "c.jpg"}, {"--dehum", ""}, {"--stereo-width", ""}}; },
         {"--dehum", "--stereo-width", "1.2", "--bit", "24", "--cover", "c.jpg"}},
        {"advanced equalizer", [](S& s) { s.advanced = {{"--equalizer", " 1,2,3 ;\t4  5 6;, ;7,8,9,10;"}}; },
         {"--equalizer", "1", "2", "3", "--equalizer", "4", "5", "6"}, {}, {}, {}, kBadSegment + "'7 8 9 10'\n"},
        // Reverse mode: nothing but inputs, log, output and format.
        {"reverse to .FLAC",
         [](S& s) {
             s.reverse = s.use_dst = s.apply_surround = s.metadata_from_input = true;
             s.inputs = QStringList{"a.dsf", "b.dff"}, s.log_file = "l.txt", s.output_path = "x/o.FLAC";
             s.artist = "A", s.advanced = {{"--bit", "24"}};
         },
         {"--reverse", "-i", "a.dsf", "-i", "b.dff", "--log-file", "l.txt", "x/o.FLAC", "--format", "flac"},
         {}, {}, {}, {}, true},
        {"reverse to .dff: no blank tags", [](S& s) { s.reverse = true, s.output_path = "o.flac.dff"; },
         {"--reverse", "-i", "in.wav", "o.flac.dff"}, {}, {}, {}, {}, true},
        {"every forward row in order", setEveryRow, kEveryRow, {}, {},
         {"启用DST压缩", "启用OpenCL加速", "启用四声道模式", "应用EQ: 1000,-3.0,1.0q"}, {}, true},
    };
    return table;
}

} // namespace

class TestEngineArgs : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        notes_.clear();
        setArgNoteSink([this](const char* line) { notes_ << QString::fromUtf8(line); });
    }
    void cleanup() { setArgNoteSink(nullptr); }

    void args_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < cases().size(); ++i)
            QTest::newRow(cases()[i].name) << i;
    }
    void args()
    {
        QFETCH(int, index);
        const Case& c = cases()[index];
        S s = quiet();
        c.set(s);
        const QStringList expected = c.whole ? c.beforeGui
                                             : QStringList{"-i", "in.wav"} + c.beforeGui + QStringList{"--gui"}
                                                   + c.afterGui + QStringList{"out.dsf"} + c.afterOutput;
        StderrCapture err;
        const QStringList got = buildEngineArgs(s);
        QCOMPARE(err.finish(), c.stderrText);
        QCOMPARE(got, expected);
        QCOMPARE(notes_, c.notes);
    }

    void formatFloat_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("0.15") << 0.15 << "0.150000";
        QTest::newRow("negative zero") << -0.0 << "-0.000000";
        QTest::newRow("rounds at six decimals") << 2.0000005 << "2.000001";
        QTest::newRow("large") << 1e20 << "100000000000000000000.000000";
        QTest::newRow("NaN") << kNaN << "nan";
        QTest::newRow("negative infinity") << -std::numeric_limits<double>::infinity() << "-inf";
    }
    void formatFloat()
    {
        QFETCH(double, value);
        QFETCH(QString, expected);
        QCOMPARE(formatEngineFloat(value), expected);
    }

    void eqBands()
    {
        QCOMPARE(formatEqBands({EqBand{31.7, -0.04, 0.25, 'k'}, EqBand{99.4, 12.36, 3.0, 's'}}),
                 QString("32,-0.0,0.2k;99,12.4,3.0s"));
        // Each band is cut to its 128-byte buffer; the others are unaffected.
        const QStringList parts = formatEqBands({EqBand{1e200, 0.0, 1.0, 'q'}, EqBand{50, 1, 1, 'q'}}).split(';');
        QCOMPARE(parts.size(), 2);
        QVERIFY(QRegularExpression("^[0-9]{127}$").match(parts[0]).hasMatch());
        QCOMPARE(parts[1], QString("50,1.0,1.0q"));
    }

    void defaultNoteSinkWritesToStderr()
    {
        setArgNoteSink(nullptr);
        S s = quiet();
        s.reset_channels = 3, s.quad = s.use_dst = true;
        StderrCapture err;
        buildEngineArgs(s);
        QCOMPARE(QString::fromUtf8(err.finish()), "启用DST压缩\n" + kQuadOff.arg(3) + "\n");
    }

    void longNotesAreCut()
    {
        S s = quiet();
        s.algorithm = "window", s.window_type = QString(2000, 'w');
        const QStringList args = buildEngineArgs(s);
        QCOMPARE(args.at(args.indexOf("--window-type") + 1), s.window_type); // the argument stays whole
        QCOMPARE(notes_.size(), 1);
        QCOMPARE(notes_.first().toUtf8().size(), 1023);
    }

    void outputPathFollowsNamingRules()
    {
        S s = quiet();
        s.output_dir = "/music/out/", s.output_ext = "dff", s.name_template = "{track:02} {input}";
        s.queue_number = 4, s.inputs = QStringList{"/music/in/song.flac"};
        QCOMPARE(buildEngineArgs(s), (QStringList{"-i", "/music/in/song.flac", "--artist", "", "--title", "", "--gui",
                                                  "/music/out/04 song.dff"}));
    }

private:
    QStringList notes_;
};

QTEST_GUILESS_MAIN(TestEngineArgs)
#include "tst_engine_args.moc"
