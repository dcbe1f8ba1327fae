#include <QtTest>

#include "conversion_settings.h"
#include "engine_args.h"

#include <QTemporaryFile>

#include <cmath>
#include <cstdio>
#include <limits>
#ifdef _WIN32
#include <io.h>
#define dup _dup
#define dup2 _dup2
#define close _close
#else
#include <unistd.h>
#endif

Q_DECLARE_METATYPE(ConversionSettings)

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

// Redirects file descriptor 2 into a temporary file for its lifetime, so the
// exact bytes the builder writes to standard error can be compared.
class StderrCapture {
public:
    StderrCapture()
    {
        m_file.open();
        std::fflush(stderr);
        m_saved = ::dup(2);
        ::dup2(m_file.handle(), 2);
    }
    ~StderrCapture() { finish(); }
    QByteArray finish()
    {
        if (m_saved >= 0) {
            std::fflush(stderr);
            ::dup2(m_saved, 2);
            ::close(m_saved);
            m_saved = -1;
            m_file.seek(0);
            m_text = m_file.readAll();
        }
        return m_text;
    }

private:
    QTemporaryFile m_file;
    int m_saved = -1;
    QByteArray m_text;
};

// One input, an explicit output file, otherwise a fresh record.
ConversionSettings fresh(const QString& out = QStringLiteral("out.dsf"))
{
    ConversionSettings s;
    s.inputs = QStringList{QStringLiteral("in.wav")};
    s.output_path = out;
    return s;
}

// A fresh record with the three arguments that are on by default switched
// off, so each row below shows only what its own change adds.
ConversionSettings quiet()
{
    ConversionSettings s = fresh();
    s.modulator_order = 0;
    s.predistortion = true;
    s.pdfreport = false;
    return s;
}

// The argument list of quiet() with extra arguments before "--gui", after it,
// and after the output path.
QStringList q(const QStringList& beforeGui, const QStringList& afterGui,
              const QStringList& afterOutput = {})
{
    return QStringList{"-i", "in.wav"} + beforeGui + QStringList{"--gui"} + afterGui
           + QStringList{"out.dsf"} + afterOutput;
}

}  // namespace

class TestEngineArgs : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void args_data();
    void args();

    void formatFloat_data();
    void formatFloat();
    void eqBands();
    void equalizerSplit_data();
    void equalizerSplit();
    void advancedTable();
    void defaultNoteSinkWritesToStderr();
    void longNotesAreCut();
    void outputPathFollowsNamingRules();

private:
    QStringList m_notes;
};

void TestEngineArgs::init()
{
    m_notes.clear();
    setArgNoteSink([this](const char* line) { m_notes << QString::fromUtf8(line); });
}

void TestEngineArgs::cleanup()
{
    setArgNoteSink(nullptr);
}

void TestEngineArgs::args_data()
{
    QTest::addColumn<ConversionSettings>("settings");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("notes");
    QTest::addColumn<QByteArray>("stderrText");

    auto row = [](const char* name, const ConversionSettings& s, const QStringList& args,
                  const QStringList& notes = {}, const QByteArray& err = {}) {
        QTest::newRow(name) << s << args << notes << err;
    };

    // ---- Fresh records -------------------------------------------------------
    row("fresh .dsf", fresh(),
        {"-i", "in.wav", "--gui", "--order", "9", "--unpredistortion", "-pdfrp", "out.dsf"});
    row("fresh .dff", fresh("out.dff"),
        {"-i", "in.wav", "--artist", "", "--title", "", "--gui", "--order", "9",
         "--unpredistortion", "-pdfrp", "out.dff"});
    row("fresh .DFF (extension case ignored)", fresh("D:/x/OUT.DFF"),
        {"-i", "in.wav", "--artist", "", "--title", "", "--gui", "--order", "9",
         "--unpredistortion", "-pdfrp", "D:/x/OUT.DFF"});
    row("quiet base", quiet(), q({}, {}));
    {
        ConversionSettings s = quiet();
        s.inputs = QStringList{"a b.wav", "", "c.flac"};
        row("inputs in order, empty ones kept", s,
            {"-i", "a b.wav", "-i", "", "-i", "c.flac", "--gui", "out.dsf"});
    }
    {
        ConversionSettings s = quiet();
        s.inputs.clear();
        row("no input", s, {"--gui", "out.dsf"});
    }
    {
        ConversionSettings s = quiet();
        s.output_path.clear();
        row("empty output is still an argument", s, {"-i", "in.wav", "--gui", ""});
    }

    // ---- Tags and the DSDIFF blanks ---------------------------------------------
    {
        ConversionSettings s = quiet();
        s.artist = "A";
        s.title = "T";
        s.album = "Al";
        s.genre = "G";
        s.year = "1977?";
        s.comment = "C";
        s.track_number = 7;
        s.metadata_from_input = true;
        row("all tags", s,
            q({"--artist", "A", "--title", "T", "--album", "Al", "--genre", "G", "--year", "1977?",
               "--comment", "C", "--track", "7", "--metadata-from-input"},
              {}));
    }
    {
        ConversionSettings s = quiet();
        s.track_number = -1;
        row("negative track not sent", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.output_path = "out.dff";
        s.artist = "A";
        row(".dff with artist: only the title blank", s,
            {"-i", "in.wav", "--artist", "A", "--title", "", "--gui", "out.dff"});
    }
    {
        ConversionSettings s = quiet();
        s.output_path = "out.dff";
        s.title = "T";
        row(".dff with title: only the artist blank", s,
            {"-i", "in.wav", "--title", "T", "--artist", "", "--gui", "out.dff"});
    }
    {
        ConversionSettings s = quiet();
        s.output_path = "out.dff";
        s.metadata_from_input = true;
        row(".dff with tags from input: no blanks", s,
            {"-i", "in.wav", "--metadata-from-input", "--gui", "out.dff"});
    }
    {
        ConversionSettings s = quiet();
        s.output_path = "out.dff";
        s.advanced = {{"--dehum", ""}};
        row(".dff blanks follow the advanced options", s,
            {"-i", "in.wav", "--dehum", "--artist", "", "--title", "", "--gui", "out.dff"});
    }
    {
        ConversionSettings s = quiet();
        s.output_path = "dir.dff/out.dsf";
        row("folder named .dff is not a .dff output", s,
            {"-i", "in.wav", "--gui", "dir.dff/out.dsf"});
    }

    // ---- Plain integer and float rows -----------------------------------------
    {
        ConversionSettings s = quiet();
        s.log_file = "log.txt";
        s.oversampling = 256;
        s.taps = -16;
        s.passband_cutoff = 20000;
        s.stopband_cutoff = 24096;
        s.enable_high_bandwidth = true;
        s.lufs_target = -14.0;
        row("rows 14-20", s,
            q({}, {"--log-file", "log.txt", "--oversampling", "256", "--taps", "-16",
                   "--passband-cutoff", "20000", "--stopband-cutoff", "24096", "--high-bandwidth",
                   "--lufs", "-14.000000"}));
    }
    {
        ConversionSettings s = quiet();
        s.harmonics_enabled = true;
        s.harmonics_amount = 0.15;
        row("harmonics with empty profile", s, q({}, {"--harmonics", "0.150000", ""}));
    }
    {
        ConversionSettings s = quiet();
        s.harmonics_amount = 0.15;
        s.harmonics_profile = "tube";
        row("harmonics off", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.use_dst = true;
        s.use_opencl = true;
        row("dst and opencl notes", s, q({}, {"--dst", "--opencl"}),
            {"启用DST压缩", "启用OpenCL加速"});
    }
    {
        ConversionSettings s = quiet();
        s.stopgain_alpha = -5.0;
        row("negative stop-band gain not sent", s, q({}, {}));
        s.stopgain_alpha = 140.5;
        row("stop-band gain", s, q({}, {"--stopgain-alpha", "140.500000"}));
    }

    // ---- Filter design -----------------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.algorithm = "remez";
        s.window_type = "kaiser";
        s.beta = 8.6;
        row("remez ignores the window, iterations always sent", s,
            q({}, {"--algorithm", "--maxiterations", "0", "--griddensity", "0"}),
            {"使用Remez算法进行执行", "注意: 窗口类型参数已被忽略"});
        s.max_iterations = 40;
        s.grid_density = -16;
        row("remez with values", s,
            q({}, {"--algorithm", "--maxiterations", "40", "--griddensity", "-16"}),
            {"使用Remez算法进行执行", "注意: 窗口类型参数已被忽略"});
    }
    {
        ConversionSettings s = quiet();
        s.algorithm = "window";
        s.window_type = "kaiser";
        s.beta = 8.6;
        s.max_iterations = 40;
        row("window with beta", s, q({}, {"--window-type", "kaiser", "--beta", "8.600000"}),
            {"使用窗口法进行执行, 窗口类型: kaiser"});
        s.window_type = "blackman";
        s.beta = 0.0;
        row("window, beta 0 not sent", s, q({}, {"--window-type", "blackman"}),
            {"使用窗口法进行执行, 窗口类型: blackman"});
        s.window_type.clear();
        s.beta = 5.0;
        row("window without type emits nothing", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.algorithm = "minphase";
        s.window_type = "kaiser";
        row("minphase", s, q({}, {"--minphase"}));
        s.algorithm = "Remez";
        row("algorithm is case-sensitive", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.delta_f = -0.25;
        row("delta-f", s, q({}, {"--delta-f", "-0.250000"}));
    }

    // ---- Log flags and memory cache ---------------------------------------------
    {
        ConversionSettings s = quiet();
        s.log_fir = s.log_ns = s.log_freq = true;
        row("log fir, ns, freq", s, q({}, {"--log", "fir", "--log", "ns", "--log", "freq"}));
        s.log_all = true;
        row("log all replaces the others", s, q({}, {"--log", "all"}));
        s.log_freq_2 = true;
        s.stereo_expander = true;
        s.stereo_expander_params = "1.5";
        row("log all and the second freq after the expander", s,
            q({}, {"--log", "all", "--stereoexpander", "1.5", "--log", "freq"}));
    }
    {
        ConversionSettings s = quiet();
        s.memory_cache = 1;
        row("memory cache 1 not sent", s, q({}, {}));
        s.memory_cache = 2;
        row("memory cache 2", s, q({}, {"--memory-cache", "2"}));
    }

    // ---- Modulator ------------------------------------------------------------------
    {
        ConversionSettings s = fresh();
        s.pdfreport = false;
        s.predistortion = true;
        s.modulator_order = 5;
        row("single loop order", s, q({}, {"--order", "5"}));
        s.modulator_order = -1;
        row("order below 1 not sent", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.modulator_order = 9;
        s.use_mash = true;
        s.ns_pole = 0.5;
        row("mash without order, pole suppressed", s, q({}, {"--mash"}));
        s.mash_order = 3;
        row("mash with order", s, q({}, {"--mash", "3"}));
        s.use_sos_ef = true;
        s.use_cifb = true;
        s.verbose_log = true;
        row("mash with sos-ef and cifb", s,
            q({}, {"--mash", "3", "--verbose", "--sos-ef", "--cifb", "0"}));
    }
    {
        ConversionSettings s = quiet();
        s.modulator_order = 9;
        s.use_sos_ef = true;
        s.dst_compression = 2;
        s.dxd = true;
        row("sos-ef replaces --order, late in the list", s,
            q({}, {"--dst-compression", "2", "--sos-ef", "--dxd"}));
    }
    {
        ConversionSettings s = quiet();
        s.modulator_order = 9;
        s.use_cifb = true;
        s.cifb_order = 0;
        row("cifb order 0 still sent", s, q({}, {"--cifb", "0"}));
        s.cifb_order = 5;
        row("cifb order 5", s, q({}, {"--cifb", "5"}));
    }
    {
        ConversionSettings s = quiet();
        s.ns_pole = -0.5;
        s.ns_zeros = {0.1, -0.2};
        row("zeros and pole", s,
            q({}, {"--zero", "0.100000", "-0.200000", "--pole", "-0.500000"}));
        s.ns_zeros.clear();
        s.ns_pole = 0.0;
        row("pole 0 is a value", s, q({}, {"--pole", "0.000000"}));
    }

    // ---- Channels and reports ------------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.unsrs = true;
        s.swapchannels = true;
        row("unsrs and swap", s, q({}, {"--unsrs", "--swap-channels"}));
        s.force_channels = true;
        s.reset_channels = 4;
        s.quad = true;
        row("force channels overrides unsrs, reset and quad", s,
            q({}, {"--swap-channels", "--forcechannels"}),
            {"注意: 强制原始声道数已启用, 忽略添加环绕声道参数",
             "启用强制原始声道数, 忽略重置声道数、四声道模式和添加环绕声道参数"});
    }
    {
        ConversionSettings s = quiet();
        s.reset_channels = 4;
        s.quad = true;
        row("quad with four channels", s, q({}, {"--resetchannels", "4", "--quad"}),
            {"启用四声道模式"});
        s.reset_channels = 2;
        row("quad with two channels", s, q({}, {"--resetchannels", "2"}),
            {"警告: 四声道模式需要重置声道数为4, 当前为2, 已忽略quad参数"});
        s.reset_channels = 0;
        row("quad without reset", s, q({}, {}),
            {"警告: 四声道模式需要重置声道数为4, 当前为0, 已忽略quad参数"});
        s.reset_channels = -6;
        s.quad = false;
        row("reset to a negative count", s, q({}, {"--resetchannels", "-6"}));
    }
    {
        ConversionSettings s = quiet();
        s.predistortion = false;
        s.report = true;
        s.report_extra1 = true;
        s.pdfreport = true;
        s.hfa_check = true;
        row("report twice, pdf report, hfa", s,
            q({}, {"--unpredistortion", "--report", "--report", "-pdfrp", "--hfacheck"}));
        s.report = false;
        s.report_extra1 = false;
        s.report_extra2 = true;
        row("second report alone", s,
            q({}, {"--unpredistortion", "--report", "-pdfrp", "--hfacheck"}));
    }
    {
        ConversionSettings s = quiet();
        s.noise_threshold = -90.0;
        s.abs_value = 0.5;
        s.abs_db_value = -1.5;
        row("threshold and gains", s,
            q({}, {"--noise-threshold", "-90.000000", "--abs", "0.500000", "--absdb",
                   "-1.500000"}));
    }

    // ---- Equaliser -----------------------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.enable_eq = true;
        row("eq with no bands", s, q({}, {"--eq", ""}), {"应用EQ: "});
        s.eq_bands = {EqBand{1000.0, -3.0, 1.0, 'q'}, EqBand{8000.0, 2.5, 0.5, 'o'}};
        s.eq_precut_db = -6.0;
        s.tone_treble_db = 1.0;
        row("eq bands and pre-cut after the treble", s,
            q({}, {"--eq", "1000,-3.0,1.0q;8000,2.5,0.5o", "--treble", "1.000000",
                   "--eq-precut", "-6.000000"}),
            {"应用EQ: 1000,-3.0,1.0q;8000,2.5,0.5o"});
        s.enable_eq = false;
        row("pre-cut and bands need the equaliser", s, q({}, {"--treble", "1.000000"}));
    }

    // ---- Rows 47-75 -------------------------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.pipe_mode = true;
        s.force_endianness = true;
        row("pipe and default endianness", s, q({}, {"--pipe", "--force-endianness", "l"}));
        s.endianness = "b";
        row("explicit endianness", s, q({}, {"--pipe", "--force-endianness", "b"}));
    }
    {
        ConversionSettings s = quiet();
        s.stereo_expander = true;
        row("expander without parameters", s, q({}, {}));
        s.stereo_expander = false;
        s.stereo_expander_params = "1.5";
        row("expander off", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.pan_report = true;
        s.auto_pan_target_width = 1.5f;
        row("pan settings without auto-pan", s, q({}, {}));
        s.auto_pan = true;
        row("auto-pan with width and report", s,
            q({}, {"--auto-pan", "--target-width", "1.500000", "--pan-report"}));
        s.auto_pan_target_width = 0.1f;  // widened from float: 0.100000001...
        s.pan_report = false;
        row("auto-pan float width", s, q({}, {"--auto-pan", "--target-width", "0.100000"}));
        s.auto_pan_target_width = -1.0f;
        row("auto-pan, width not positive", s, q({}, {"--auto-pan"}));
    }
    {
        ConversionSettings s = quiet();
        s.psy = true;
        row("psy defaults", s, q({}, {"--psy", "--psy-phon", "80.000000"}));
        s.psy_strategy = "loud";
        s.psy_phon = 0.0;
        row("psy strategy, phon 0", s, q({}, {"--psy", "--psy-strategy", "loud"}));
        s.psy_strategy.clear();
        row("psy empty strategy", s, q({}, {"--psy"}));
    }
    for (int level : {0, -1, 1, 2, 3, 4, 5}) {
        ConversionSettings s = quiet();
        s.apo = level;
        QStringList extra;
        if (level > 0)
            extra << "--apo";
        if (level == 1)
            extra << "light";
        if (level == 2)
            extra << "normal";
        if (level == 3)
            extra << "aggressive";
        QTest::addRow("apo %d", level) << s << q({}, extra) << QStringList() << QByteArray();
    }
    {
        ConversionSettings s = quiet();
        s.dither_value = 3;
        row("dither value without the switch", s, q({}, {}));
        s.dither = true;
        row("dither with value", s, q({}, {"--dither", "3"}));
        s.dither_value = 0;
        row("dither without value", s, q({}, {"--dither"}));
    }
    {
        ConversionSettings s = quiet();
        s.compand = true;
        s.stats = true;
        s.spectrogram_path = "spectrum.png";
        row("compand defaults, stats, spectrogram", s,
            q({}, {"--compand", "-20,-10;-40,-20", "5.000000", "100.000000", "--stats",
                   "--spectrogram", "spectrum.png"}));
    }
    {
        ConversionSettings s = quiet();
        s.noise_reduce = true;
        row("noise reduce without profile", s, q({}, {}));
        s.noise_reduce_profile = "hiss.prof";
        row("noise reduce", s, q({}, {"--noise-reduce", "hiss.prof"}));
    }
    {
        const char* words[] = {nullptr, "light", "standard", "deep", "deep", "deep", "deep", "deep"};
        for (int tier : {0, 1, 2, 3, 7}) {
            for (bool keep : {false, true}) {
                ConversionSettings s = quiet();
                s.denoise_tier = tier;
                s.keep_harmonics = keep;
                const QStringList extra =
                    tier > 0 ? QStringList{"--denoise", words[tier], "--keep-harmonics",
                                           keep ? "on" : "off"}
                             : QStringList{};
                QTest::addRow("denoise %d keep %d", tier, int(keep))
                    << s << q({}, extra) << QStringList() << QByteArray();
            }
        }
    }
    {
        ConversionSettings s = quiet();
        s.rate_enabled = true;
        row("rate 0 not sent", s, q({}, {}));
        s.rate = 44100;
        row("rate", s, q({}, {"--rate", "44100"}));
    }
    {
        ConversionSettings s = quiet();
        s.lal = true;
        s.adaptive = true;
        row("look-ahead limiter with zeros", s,
            q({}, {"--lal", "--lal-lookahead", "0.000000", "--lal-threshold", "0.000000",
                   "--adaptive"}));
    }
    {
        ConversionSettings s = quiet();
        s.pbe = true;
        row("pbe without level or pre-cut", s, q({}, {}));
        s.pbe_level = 2;
        s.pbe_precut = 1.5;
        row("pbe with level and pre-cut", s, q({}, {"--pbe", "2", "--pbe-precut", "1.500000"}));
        s.pbe = false;
        row("pbe off", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.filter_type = "slow";
        row("filter type slow", s, q({}, {"--filter-type", "slow"}));
        s.filter_type.clear();
        row("empty filter type is an empty argument", s, q({}, {"--filter-type", ""}));
    }
    {
        ConversionSettings s = quiet();
        s.dst_compression = -1;
        s.noise_profiling = s.report_peak = s.report_rms = s.report_no_dynamic_range = true;
        s.verbose_log = true;
        row("report options", s,
            q({}, {"--noise-profiling", "--peak", "--rms", "--no-dynamic-range", "--verbose"}));
    }

    // ---- Poly ---------------------------------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.poly_report = true;
        s.poly_auto = true;
        row("poly off sends nothing, not even the report", s, q({}, {}));
        s.poly = true;
        s.poly_auto = false;
        s.poly_report = false;
        row("poly, degree 0", s, q({}, {"--poly", "--poly-degree", "0"}));
        s.poly_save = "save.poly";
        s.poly_load = "load.poly";
        s.poly_degree = 5;
        s.poly_report = true;
        row("poly save, load, degree, report", s,
            q({}, {"--poly", "--poly-save", "save.poly", "--poly-load", "load.poly",
                   "--poly-degree", "5", "--poly-report"}));
        s.poly_auto = true;
        row("poly auto replaces the degree", s,
            q({}, {"--poly", "--poly-save", "save.poly", "--poly-load", "load.poly",
                   "--poly-auto", "--poly-report"}));
    }

    // ---- DSNE / DSEE / DSRE / HRTF --------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.dsne_ratio = 10.0;
        row("dsne tunings need dsne", s, q({}, {}));
        s.dsne = true;
        s.dsne_ratio = 30.0;
        row("dsne defaults", s, q({}, {"--dsne"}));
        s.dsne_amount = 0.5;
        s.dsne_ratio = kNaN;
        s.dsne_knee = 6.0;
        s.cue_file = "a.cue";
        row("dsne amount, NaN ratio and knee after the cue sheet", s,
            q({}, {"--dsne", "0.500000", "--cue", "a.cue", "--dsne-ratio", "nan", "--dsne-knee",
                   "6.000000"}));
        s.dsne_ratio = 30.0;
        s.dsne_knee = 12.0;
        s.dsne_margin = -3.0;
        s.cue_file.clear();
        row("dsne margin", s, q({}, {"--dsne", "0.500000", "--dsne-margin", "-3.000000"}));
    }
    {
        ConversionSettings s = quiet();
        s.dsee = true;
        row("dsee defaults", s, q({}, {"--dsee"}));
        s.dsee_amount = 0.3;
        s.dsee_drive = 2.0;
        s.dsee_hmix = kNaN;
        s.dsee_air = 0.02;
        row("dsee every tuning, NaN differs", s,
            q({}, {"--dsee", "0.300000", "--dsee-drive", "2.000000", "--dsee-hmix", "nan",
                   "--dsee-air", "0.020000"}));
    }
    {
        ConversionSettings s = quiet();
        s.apply_dsre = true;
        row("dsre default mix", s, q({}, {"--dsre", "0.350000"}));
        s.dsreMix = 0.0;
        row("dsre mix 0", s, q({}, {"--dsre"}));
    }
    {
        const char* modes[] = {"mono", "ms", "stereo", "ms"};
        const int values[] = {0, 1, 2, 7};
        for (int i = 0; i < 4; ++i) {
            ConversionSettings s = quiet();
            s.apply_hrtf = true;
            s.hrtf_mode = values[i];
            QTest::addRow("hrtf mode %d", values[i])
                << s << q({}, {"--hrtf", modes[i]}) << QStringList() << QByteArray();
        }
        ConversionSettings s = quiet();
        s.apply_hrtf = true;
        s.hrtf_mix = 0.5;
        s.hrtf_side_mix = kNaN;
        s.hrtf_depth = -1.0;
        row("hrtf tunings", s,
            q({}, {"--hrtf", "ms", "--hrtf-mix", "0.500000", "--hrtf-side-mix", "nan",
                   "--hrtf-depth", "-1.000000"}));
        s.apply_hrtf = false;
        row("hrtf off", s, q({}, {}));
    }
    {
        ConversionSettings s = quiet();
        s.tone_bass_db = -2.0;
        s.tone_treble_db = 3.5;
        row("tone", s, q({}, {"--bass", "-2.000000", "--treble", "3.500000"}));
    }

    // ---- Compressor, limiter, crossfeed, convolution, cue, replay gain ---------------
    {
        ConversionSettings s = quiet();
        s.compressor = true;
        row("compressor defaults", s,
            q({}, {"--compressor", "-12.000000", "4.000000", "soft", "5.000000", "100.000000"}));
        s.compressor_soft_knee = false;
        s.compressor_threshold_db = -20.5;
        s.compressor_ratio = 2.0;
        s.compressor_attack_ms = 0.15;
        s.compressor_release_ms = 250.0;
        row("compressor hard knee", s,
            q({}, {"--compressor", "-20.500000", "2.000000", "hard", "0.150000", "250.000000"}));
    }
    {
        ConversionSettings s = quiet();
        s.soft_limiter = true;
        row("soft limiter", s, q({}, {"--soft-limiter", "0.050000"}));
    }
    {
        ConversionSettings s = quiet();
        s.crossfeed = true;
        row("crossfeed default profile", s, q({}, {"--crossfeed", "meier"}));
        s.crossfeed_profile = "custom";
        row("crossfeed custom levels", s,
            q({}, {"--crossfeed", "custom", "-6.000000", "-12.000000"}));
        s.crossfeed_custom_db = {-3.5, kNaN};
        row("crossfeed custom, own levels", s,
            q({}, {"--crossfeed", "custom", "-3.500000", "nan"}));
        s.crossfeed_profile = "Custom";
        row("crossfeed profile is case-sensitive", s, q({}, {"--crossfeed", "Custom"}));
        s.crossfeed_profile.clear();
        row("crossfeed empty profile", s, q({}, {"--crossfeed", ""}));
    }
    {
        ConversionSettings s = quiet();
        s.convolve_files = QStringList{"", "ir1.wav", "", "ir 2.wav", ""};
        row("convolve skips empty entries", s,
            q({}, {"--convolve", "ir1.wav", "--convolve", "ir 2.wav"}));
    }
    for (int mode : {0, 1, 2, 3, -1}) {
        ConversionSettings s = quiet();
        s.replay_gain_mode = mode;
        QStringList extra;
        if (mode == 1)
            extra = {"--rg"};
        if (mode == 2)
            extra = {"--rg", "album"};
        QTest::addRow("replay gain %d", mode) << s << q({}, extra) << QStringList() << QByteArray();
    }

    // ---- Surround after the output ----------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.apply_surround = true;
        row("surround defaults follow the output", s, q({}, {}, {"--surround", "15", "80"}));
        s.surround_delay_ms = -5;
        s.surround_side = true;
        s.surround_balance = -20;
        row("surround negative delay, side, balance", s,
            q({}, {}, {"--surround", "-5", "80", "side", "-20"}));
        s.surround_balance = 0;
        s.surround_mix = 0;
        row("surround balance 0 not sent", s, q({}, {}, {"--surround", "-5", "0", "side"}));
    }

    // ---- Advanced options -----------------------------------------------------------------
    {
        ConversionSettings s = quiet();
        s.advanced = {{"--dehum-q", ""}};
        row("advanced number empty takes its default", s, q({"--dehum-q", "10"}, {}));
        s.advanced = {{"--dehum-q", "12.5"}};
        row("advanced number with value", s, q({"--dehum-q", "12.5"}, {}));
        s.advanced = {{"--expand-ratio", ""}};
        row("advanced number without default is dropped", s, q({}, {}));
        s.advanced = {{"--dehum", "ignored"}};
        row("advanced switch ignores its value", s, q({"--dehum"}, {}));
        s.advanced = {{"--mp-poles", "abc"}};
        row("advanced value is not checked", s, q({"--mp-poles", "abc"}, {}));
        s.advanced = {{"--mp-poles", ""}};
        row("advanced integer without default is dropped", s, q({}, {}));
        s.advanced = {{"--cover", "c d.jpg"}, {"--mastering-preset", ""}};
        row("advanced text", s, q({"--cover", "c d.jpg"}, {}));
        s.advanced = {{"--not-an-option", "1"}, {"-i", "x"}};
        row("unknown advanced keys ignored", s, q({}, {}));
        // Map order is alphabetical; emission follows the table.
        s.advanced = {{"--bit", "24"}, {"--cover", "c.jpg"}, {"--dehum", ""},
                      {"--stereo-width", ""}, {"--wiener", ""}, {"--stop-lossy", ""}};
        row("advanced in table order", s,
            q({"--dehum", "--wiener", "--stereo-width", "1.2", "--bit", "24", "--stop-lossy",
               "--cover", "c.jpg"},
              {}));
    }
    {
        ConversionSettings s = quiet();
        s.advanced = {{"--equalizer", "100,3,50;;1 2"}};
        row("advanced equalizer with a short segment", s,
            q({"--equalizer", "100", "3", "50"}, {}), {},
            "[advanced] --equalizer: 需要三个值(频率 增益 带宽), 这一段忽略了: '1 2'\n");
        s.advanced = {{"--equalizer", " 1,2,3 ;\t4  5 6;, ;7,8,9,10;"}};
        row("advanced equalizer: blanks, commas, four values", s,
            q({"--equalizer", "1", "2", "3", "--equalizer", "4", "5", "6"}, {}), {},
            "[advanced] --equalizer: 需要三个值(频率 增益 带宽), 这一段忽略了: '7 8 9 10'\n");
        s.advanced = {{"--equalizer", ""}};
        row("advanced equalizer empty", s, q({}, {}));
    }

    // ---- Reverse mode --------------------------------------------------------------------
    {
        ConversionSettings s = fresh("x/out.FLAC");
        s.reverse = true;
        s.inputs = QStringList{"a.dsf", "b.dff"};
        s.log_file = "log.txt";
        s.artist = "A";
        s.metadata_from_input = true;
        s.advanced = {{"--bit", "24"}};
        s.apply_surround = true;
        s.use_dst = true;
        s.enable_eq = true;
        row("reverse to .FLAC", s,
            {"--reverse", "-i", "a.dsf", "-i", "b.dff", "--log-file", "log.txt", "x/out.FLAC",
             "--format", "flac"});
        s.output_path = "x/out.wav";
        s.log_file.clear();
        row("reverse to .wav", s, {"--reverse", "-i", "a.dsf", "-i", "b.dff", "x/out.wav"});
        s.output_path = "x/out.flac.wav";
        row("reverse, .flac not last", s,
            {"--reverse", "-i", "a.dsf", "-i", "b.dff", "x/out.flac.wav"});
        s.output_path = "out.dff";
        s.artist.clear();
        s.metadata_from_input = false;
        row("reverse to .dff: no blank tags", s,
            {"--reverse", "-i", "a.dsf", "-i", "b.dff", "out.dff"});
    }

    // ---- Everything at once: the whole forward order -----------------------------------
    {
        ConversionSettings s = fresh();
        s.inputs = QStringList{"a.wav", "b.wav"};
        s.artist = "A";
        s.title = "T";
        s.album = "Al";
        s.genre = "G";
        s.year = "1999";
        s.comment = "C";
        s.track_number = 5;
        s.metadata_from_input = true;
        s.advanced = {{"--cover", "c.jpg"}, {"--dehum", ""}};
        s.log_file = "l.txt";
        s.oversampling = 128;
        s.taps = 4096;
        s.passband_cutoff = 20000;
        s.stopband_cutoff = 24000;
        s.enable_high_bandwidth = true;
        s.lufs_target = -14.0;
        s.harmonics_enabled = true;
        s.harmonics_amount = 0.2;
        s.harmonics_profile = "tube";
        s.use_dst = true;
        s.use_opencl = true;
        s.stopgain_alpha = 140.0;
        s.algorithm = "minphase";
        s.delta_f = 0.5;
        s.log_fir = true;
        s.memory_cache = 4;
        s.use_mash = true;
        s.mash_order = 3;
        s.ns_pole = 0.9;
        s.unsrs = true;
        s.swapchannels = true;
        s.report = true;
        s.report_extra1 = true;
        s.hfa_check = true;
        s.reset_channels = 4;
        s.quad = true;
        s.ns_zeros = {0.1};
        s.noise_threshold = -90.0;
        s.abs_value = 0.5;
        s.abs_db_value = -1.0;
        s.enable_eq = true;
        s.eq_bands = {EqBand{1000.0, -3.0, 1.0, 'q'}};
        s.pipe_mode = true;
        s.force_endianness = true;
        s.endianness = "b";
        s.stereo_expander = true;
        s.stereo_expander_params = "1.2";
        s.log_freq_2 = true;
        s.auto_pan = true;
        s.auto_pan_target_width = 1.5f;
        s.pan_report = true;
        s.psy = true;
        s.psy_strategy = "loud";
        s.psy_phon = 70.0;
        s.apo = 2;
        s.dither = true;
        s.dither_value = 2;
        s.compand = true;
        s.stats = true;
        s.spectrogram_path = "s.png";
        s.noise_reduce = true;
        s.noise_reduce_profile = "p.prof";
        s.denoise_tier = 2;
        s.rate_enabled = true;
        s.rate = 44100;
        s.lal = true;
        s.lal_lookahead = 5.0;
        s.lal_threshold = -1.0;
        s.adaptive = true;
        s.pbe = true;
        s.pbe_level = 2;
        s.pbe_precut = 3.0;
        s.filter_type = "slow";
        s.dst_compression = 1;
        s.noise_profiling = true;
        s.report_peak = true;
        s.report_rms = true;
        s.report_no_dynamic_range = true;
        s.verbose_log = true;
        s.use_sos_ef = true;
        s.use_cifb = true;
        s.cifb_order = 4;
        s.dxd = true;
        s.poly = true;
        s.poly_degree = 3;
        s.poly_report = true;
        s.dsne = true;
        s.dsne_amount = 0.5;
        s.dsee = true;
        s.dsee_amount = 0.3;
        s.apply_dsre = true;
        s.apply_hrtf = true;
        s.hrtf_mode = 2;
        s.tone_bass_db = 2.0;
        s.tone_treble_db = -1.0;
        s.eq_precut_db = -3.0;
        s.compressor = true;
        s.soft_limiter = true;
        s.crossfeed = true;
        s.crossfeed_profile = "custom";
        s.convolve_files = QStringList{"ir.wav"};
        s.cue_file = "c.cue";
        s.dsne_ratio = 20.0;
        s.replay_gain_mode = 2;
        s.apply_surround = true;
        s.surround_side = true;
        s.surround_balance = 10;
        row("every forward row in order", s,
            {"-i", "a.wav", "-i", "b.wav", "--artist", "A", "--title", "T", "--album", "Al",
             "--genre", "G", "--year", "1999", "--comment", "C", "--track", "5",
             "--metadata-from-input", "--dehum", "--cover", "c.jpg", "--gui", "--log-file",
             "l.txt", "--oversampling", "128", "--taps", "4096", "--passband-cutoff", "20000",
             "--stopband-cutoff", "24000", "--high-bandwidth", "--lufs", "-14.000000",
             "--harmonics", "0.200000", "tube", "--dst", "--opencl", "--stopgain-alpha",
             "140.000000", "--minphase", "--delta-f", "0.500000", "--log", "fir",
             "--memory-cache", "4", "--mash", "3", "--unsrs", "--swap-channels",
             "--unpredistortion", "--report", "--report", "-pdfrp", "--hfacheck",
             "--resetchannels", "4", "--quad", "--zero", "0.100000", "--noise-threshold",
             "-90.000000", "--abs", "0.500000", "--absdb", "-1.000000", "--eq", "1000,-3.0,1.0q",
             "--pipe", "--force-endianness", "b", "--stereoexpander", "1.2", "--log", "freq",
             "--auto-pan", "--target-width", "1.500000", "--pan-report", "--psy",
             "--psy-strategy", "loud", "--psy-phon", "70.000000", "--apo", "normal", "--dither",
             "2", "--compand", "-20,-10;-40,-20", "5.000000", "100.000000", "--stats",
             "--spectrogram", "s.png", "--noise-reduce", "p.prof", "--denoise", "standard",
             "--keep-harmonics", "off", "--rate", "44100", "--lal", "--lal-lookahead",
             "5.000000", "--lal-threshold", "-1.000000", "--adaptive", "--pbe", "2",
             "--pbe-precut", "3.000000", "--filter-type", "slow", "--dst-compression", "1",
             "--noise-profiling", "--peak", "--rms", "--no-dynamic-range", "--verbose",
             "--sos-ef", "--cifb", "4", "--dxd", "--poly", "--poly-degree", "3",
             "--poly-report", "--dsne", "0.500000", "--dsee", "0.300000", "--dsre", "0.350000",
             "--hrtf", "stereo", "--bass", "2.000000", "--treble", "-1.000000", "--eq-precut",
             "-3.000000", "--compressor", "-12.000000", "4.000000", "soft", "5.000000",
             "100.000000", "--soft-limiter", "0.050000", "--crossfeed", "custom", "-6.000000",
             "-12.000000", "--convolve", "ir.wav", "--cue", "c.cue", "--dsne-ratio",
             "20.000000", "--rg", "album", "out.dsf", "--surround", "15", "80", "side", "10"},
            {"启用DST压缩", "启用OpenCL加速", "启用四声道模式", "应用EQ: 1000,-3.0,1.0q"});
    }
}

void TestEngineArgs::args()
{
    QFETCH(ConversionSettings, settings);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, notes);
    QFETCH(QByteArray, stderrText);

    StderrCapture err;
    const QStringList got = buildEngineArgs(settings);
    const QByteArray errText = err.finish();

    QCOMPARE(got, expected);
    QCOMPARE(m_notes, notes);
    QCOMPARE(QString::fromUtf8(errText), QString::fromUtf8(stderrText));
}

void TestEngineArgs::formatFloat_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("0.15") << 0.15 << "0.150000";
    QTest::newRow("-3") << -3.0 << "-3.000000";
    QTest::newRow("zero") << 0.0 << "0.000000";
    QTest::newRow("negative zero") << -0.0 << "-0.000000";
    QTest::newRow("rounds at six decimals") << 2.0000005 << "2.000001";
    QTest::newRow("tiny negative") << -1e-9 << "-0.000000";
    QTest::newRow("large") << 1e20 << "100000000000000000000.000000";
    QTest::newRow("NaN") << kNaN << "nan";
    QTest::newRow("negative NaN") << -kNaN << "-nan";
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << "inf";
    QTest::newRow("negative infinity") << -std::numeric_limits<double>::infinity() << "-inf";
}

void TestEngineArgs::formatFloat()
{
    QFETCH(double, value);
    QFETCH(QString, expected);
    QCOMPARE(formatEngineFloat(value), expected);
}

void TestEngineArgs::eqBands()
{
    QCOMPARE(formatEqBands({}), QString());
    QCOMPARE(formatEqBands({EqBand{1000.0, -3.0, 1.0, 'q'}, EqBand{8000.0, 2.5, 0.5, 'o'}}),
             QStringLiteral("1000,-3.0,1.0q;8000,2.5,0.5o"));
    QCOMPARE(formatEqBands({EqBand{31.7, -0.04, 0.25, 'k'}, EqBand{99.4, 12.36, 3.0, 's'},
                            EqBand{60.0, 0.0, 2.0, 'h'}}),
             QStringLiteral("32,-0.0,0.2k;99,12.4,3.0s;60,0.0,2.0h"));
    // Each band is cut to its 127-byte buffer, the others are unaffected.
    const QString huge = formatEqBands({EqBand{1e200, 0.0, 1.0, 'q'}, EqBand{50.0, 1.0, 1.0, 'q'}});
    const QStringList parts = huge.split(u';');
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts[0].size(), 127);
    // 1e200 has 201 integer digits, so the cut leaves digits only.
    QVERIFY(QRegularExpression(QStringLiteral("^[0-9]{127}$")).match(parts[0]).hasMatch());
    QCOMPARE(parts[1], QStringLiteral("50,1.0,1.0q"));
}

void TestEngineArgs::equalizerSplit_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QList<QStringList>>("triples");
    QTest::addColumn<QStringList>("rejected");

    QTest::newRow("example") << "100,3,50;;1 2" << QList<QStringList>{{"100", "3", "50"}}
                             << QStringList{"1 2"};
    QTest::newRow("empty") << "" << QList<QStringList>{} << QStringList{};
    QTest::newRow("separators only") << ";;,;  " << QList<QStringList>{} << QStringList{};
    QTest::newRow("mixed blanks and commas")
        << "1, 2 ,3;4\t5\n6" << QList<QStringList>{{"1", "2", "3"}, {"4", "5", "6"}}
        << QStringList{};
    QTest::newRow("comma runs collapse") << "1,,2,,,3" << QList<QStringList>{{"1", "2", "3"}}
                                         << QStringList{};
    QTest::newRow("too many") << "1 2 3 4;a" << QList<QStringList>{}
                              << QStringList{"1 2 3 4", "a"};
    QTest::newRow("rejected text after comma replacement")
        << " 5,6 " << QList<QStringList>{} << QStringList{" 5 6 "};
    QTest::newRow("values not checked") << "x,y,z" << QList<QStringList>{{"x", "y", "z"}}
                                        << QStringList{};
}

void TestEngineArgs::equalizerSplit()
{
    QFETCH(QString, value);
    QFETCH(QList<QStringList>, triples);
    QFETCH(QStringList, rejected);
    const EqualizerSegments segs = splitAdvancedEqualizer(value);
    QCOMPARE(segs.triples, triples);
    QCOMPARE(segs.rejected, rejected);
}

void TestEngineArgs::advancedTable()
{
    const QList<AdvancedOption>& table = advancedOptionTable();
    QCOMPARE(table.size(), 42);
    QCOMPARE(table.first().option, QStringLiteral("--dehum"));
    QCOMPARE(table.last().option, QStringLiteral("--hrtf-load"));

    QSet<QString> names;
    int previousGroup = 0;
    int withDefault = 0;
    for (const AdvancedOption& row : table) {
        QVERIFY2(row.option.startsWith(QStringLiteral("--")), qPrintable(row.option));
        QVERIFY2(!names.contains(row.option), qPrintable(row.option));
        names.insert(row.option);
        QVERIFY(row.kind >= 0 && row.kind <= 4);
        // Groups run in blocks, so the Advanced page can fill its boxes in order.
        QVERIFY(row.group >= previousGroup && row.group <= 4);
        previousGroup = row.group;
        QVERIFY(!row.description.isEmpty());
        if (!row.defaultText.isEmpty()) {
            ++withDefault;
            QVERIFY2(row.kind == AdvancedOption::Number, qPrintable(row.option));
        }
    }
    QCOMPARE(withDefault, 5);

    const auto find = [&table](const char* name) {
        for (const AdvancedOption& row : table)
            if (row.option == QLatin1String(name))
                return row;
        return AdvancedOption{};
    };
    QCOMPARE(find("--equalizer").kind, int(AdvancedOption::Triples));
    QCOMPARE(find("--equalizer").group, 2);
    QCOMPARE(find("--stereo-crossfeed").defaultText, QStringLiteral("0.15"));
    QCOMPARE(find("--wiener-frame").defaultText, QStringLiteral("32"));
    QCOMPARE(find("--quantization-type").description,
             QStringLiteral("量化类型: rms | peak | hardlimit"));
    QCOMPARE(find("--mastering-preset").description,
             QStringLiteral("母带预设名: classical | pop | jazz …"));
    QCOMPARE(find("--dsre-mix").kind, int(AdvancedOption::Integer));
    QCOMPARE(find("--cover").kind, int(AdvancedOption::Text));
    QCOMPARE(find("--measure").group, 3);
}

void TestEngineArgs::defaultNoteSinkWritesToStderr()
{
    setArgNoteSink(nullptr);
    ConversionSettings s = quiet();
    s.reset_channels = 3;
    s.quad = true;
    s.use_dst = true;

    StderrCapture err;
    buildEngineArgs(s);
    const QByteArray text = err.finish();
    QCOMPARE(QString::fromUtf8(text),
             QStringLiteral("启用DST压缩\n警告: 四声道模式需要重置声道数为4, 当前为3, 已忽略quad参数\n"));
    QVERIFY(m_notes.isEmpty());
}

void TestEngineArgs::longNotesAreCut()
{
    ConversionSettings s = quiet();
    s.algorithm = "window";
    s.window_type = QString(2000, u'w');
    const QStringList args = buildEngineArgs(s);
    QCOMPARE(args.at(args.indexOf("--window-type") + 1), s.window_type);  // the argument is whole
    QCOMPARE(m_notes.size(), 1);
    const QByteArray note = m_notes.first().toUtf8();
    QCOMPARE(note.size(), 1023);
    QVERIFY(note.startsWith("使用窗口法进行执行, 窗口类型: www"));
}

void TestEngineArgs::outputPathFollowsNamingRules()
{
    ConversionSettings s = quiet();
    s.output_path = "ignored.dsf";
    s.output_dir = "/music/out/";
    s.output_ext = "dff";
    s.name_template = "{track:02} {input}";
    s.queue_number = 4;
    s.inputs = QStringList{"/music/in/song.flac"};
    // Folder mode with a .dff extension also brings the blank DSDIFF tags.
    QCOMPARE(buildEngineArgs(s),
             (QStringList{"-i", "/music/in/song.flac", "--artist", "", "--title", "", "--gui",
                          "/music/out/04 song.dff"}));
}

QTEST_GUILESS_MAIN(TestEngineArgs)
#include "tst_engine_args.moc"
