#include "engine_args.h"

#include "output_naming.h"

#include <QByteArray>

#include <charconv>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <string>

namespace {

// ---- Note sink ---------------------------------------------------------------

std::mutex g_sinkMutex;
std::function<void(const char*)> g_sink;

void defaultSink(const char* line)
{
    std::fprintf(stderr, "%s\n", line);
}

// Notes are printf-formatted into a fixed buffer: a pathological window type
// or band list is cut rather than allocated without bound.
#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
void note(const char* fmt, ...)
{
    char buf[1024];
    va_list ap;
    va_start(ap, fmt);
    std::vsnprintf(buf, sizeof buf, fmt, ap);
    va_end(ap);

    std::function<void(const char*)> sink;
    {
        std::lock_guard<std::mutex> lock(g_sinkMutex);
        sink = g_sink;
    }
    if (sink)
        sink(buf);
    else
        defaultSink(buf);
}

// ---- Formatting --------------------------------------------------------------

QString integer(int v) { return QString::number(v); }

QString fl(double v) { return formatEngineFloat(v); }

bool isBlank(char16_t c)
{
    // The engine tokenises these values like a C stream does.
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\v' || c == u'\f' || c == u'\r';
}

QStringList splitAtBlanks(const QString& text)
{
    QStringList pieces;
    QString cur;
    for (QChar c : text) {
        if (isBlank(c.unicode())) {
            if (!cur.isEmpty())
                pieces.append(cur);
            cur.clear();
        } else {
            cur += c;
        }
    }
    if (!cur.isEmpty())
        pieces.append(cur);
    return pieces;
}

void appendAdvanced(QStringList& args, const ConversionSettings& s)
{
    for (const AdvancedOption& row : advancedOptionTable()) {
        const auto it = s.advanced.constFind(row.option);
        if (it == s.advanced.constEnd())
            continue;
        const QString& value = it.value();
        switch (row.kind) {
        case AdvancedOption::Switch:
            args << row.option;
            break;
        case AdvancedOption::Triples: {
            const EqualizerSegments segs = splitAdvancedEqualizer(value);
            for (const QStringList& t : segs.triples)
                args << row.option << t;
            const QByteArray name = row.option.toUtf8();
            for (const QString& bad : segs.rejected)
                std::fprintf(stderr,
                             "[advanced] %s: 需要三个值(频率 增益 带宽), 这一段忽略了: '%s'\n",
                             name.constData(), bad.toUtf8().constData());
            break;
        }
        default: {
            // The value is passed as typed; the engine is the one to reject
            // "abc" for a number.
            const QString& v = value.isEmpty() ? row.defaultText : value;
            if (!v.isEmpty())
                args << row.option << v;
            break;
        }
        }
    }
}

QString lowerExtension(const QString& path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot < 0 ? QString() : path.mid(dot).toLower();
}

QStringList reverseArgs(const ConversionSettings& s, const QString& out, const QString& ext)
{
    QStringList args{QStringLiteral("--reverse")};
    for (const QString& in : s.inputs)
        args << QStringLiteral("-i") << in;
    if (!s.log_file.isEmpty())
        args << QStringLiteral("--log-file") << s.log_file;
    args << out;
    if (ext == u".flac")
        args << QStringLiteral("--format") << QStringLiteral("flac");
    return args;
}

void appendFilterDesign(QStringList& args, const ConversionSettings& s)
{
    if (s.algorithm == u"remez") {
        // The engine takes "--algorithm" as the Remez switch; window options
        // would be silently meaningless, so say so.
        args << QStringLiteral("--algorithm");
        note("使用Remez算法进行执行");
        note("注意: 窗口类型参数已被忽略");
        args << QStringLiteral("--maxiterations") << integer(s.max_iterations);
        args << QStringLiteral("--griddensity") << integer(s.grid_density);
    } else if (s.algorithm == u"window" && !s.window_type.isEmpty()) {
        args << QStringLiteral("--window-type") << s.window_type;
        note("使用窗口法进行执行, 窗口类型: %s", s.window_type.toUtf8().constData());
        if (s.beta > 0.0)
            args << QStringLiteral("--beta") << fl(s.beta);
    } else if (s.algorithm == u"minphase") {
        args << QStringLiteral("--minphase");
    }
}

void appendModulator(QStringList& args, const ConversionSettings& s)
{
    if (s.use_mash) {
        args << QStringLiteral("--mash");
        if (s.mash_order > 0)
            args << integer(s.mash_order);
    } else if (!s.use_sos_ef && !s.use_cifb && s.modulator_order >= 1) {
        args << QStringLiteral("--order") << integer(s.modulator_order);
    }
    // "--sos-ef" and "--cifb" have their own, later places in the list.
}

void appendChannels(QStringList& args, const ConversionSettings& s)
{
    if (s.force_channels) {
        args << QStringLiteral("--forcechannels");
        note("启用强制原始声道数, 忽略重置声道数、四声道模式和添加环绕声道参数");
        return;
    }
    if (s.reset_channels != 0)
        args << QStringLiteral("--resetchannels") << integer(s.reset_channels);
    if (s.quad) {
        if (s.reset_channels == 4) {
            args << QStringLiteral("--quad");
            note("启用四声道模式");
        } else {
            note("警告: 四声道模式需要重置声道数为4, 当前为%d, 已忽略quad参数", s.reset_channels);
        }
    }
}

void appendPoly(QStringList& args, const ConversionSettings& s)
{
    if (!s.poly)
        return;
    args << QStringLiteral("--poly");
    if (!s.poly_save.isEmpty())
        args << QStringLiteral("--poly-save") << s.poly_save;
    if (!s.poly_load.isEmpty())
        args << QStringLiteral("--poly-load") << s.poly_load;
    if (s.poly_auto)
        args << QStringLiteral("--poly-auto");
    else
        args << QStringLiteral("--poly-degree") << integer(s.poly_degree);
    if (s.poly_report)
        args << QStringLiteral("--poly-report");
}

const char* denoiseWord(int tier)
{
    if (tier == 1)
        return "light";
    if (tier == 2)
        return "standard";
    return "deep";
}

}  // namespace

// ---- Public ------------------------------------------------------------------

void setArgNoteSink(std::function<void(const char* utf8Line)> sink)
{
    std::lock_guard<std::mutex> lock(g_sinkMutex);
    g_sink = std::move(sink);
}

namespace {

// printf's "%.Nf" without the process locale: the engine reads '.' as the
// decimal point whatever language the desktop runs in. std::to_chars rounds
// the exact binary value like printf and spells NaN, infinities and negative
// zero the same way.
void appendFixed(QByteArray& out, double value, int decimals)
{
    char buf[400]; // the longest "%f" of a double is 309 digits, a sign, a point and 6 decimals
    const auto [end, ec] = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
    if (ec == std::errc())
        out.append(buf, end - buf);
}

} // namespace

QString formatEngineFloat(double value)
{
    QByteArray text;
    appendFixed(text, value, 6);
    return QString::fromLatin1(text);
}

QString formatEqBands(const QList<EqBand>& bands)
{
    // Each band is formatted into a 128-byte buffer; longer text is cut there.
    constexpr qsizetype kBandBytes = 127;
    QByteArray joined;
    for (qsizetype i = 0; i < bands.size(); ++i) {
        const EqBand& b = bands.at(i);
        QByteArray band;
        appendFixed(band, b.centerFreq, 0);
        band += ',';
        appendFixed(band, b.gainDB, 1);
        band += ',';
        appendFixed(band, b.bandwidth, 1);
        if (b.bwType != '\0')
            band += b.bwType;
        if (i > 0)
            joined += ';';
        joined += band.left(kBandBytes);
    }
    return QString::fromUtf8(joined);
}

EqualizerSegments splitAdvancedEqualizer(const QString& value)
{
    EqualizerSegments result;
    const QStringList segments = value.split(u';');  // keeps empty segments
    for (QString seg : segments) {
        seg.replace(u',', u' ');
        const QStringList pieces = splitAtBlanks(seg);
        if (pieces.size() == 3)
            result.triples.append(pieces);
        else if (!pieces.isEmpty())
            result.rejected.append(seg);
    }
    return result;
}

QStringList buildEngineArgs(const ConversionSettings& s)
{
    const QString out = outputPathFor(s);
    const QString ext = lowerExtension(out);

    if (s.reverse)
        return reverseArgs(s, out, ext);

    QStringList a;
    for (const QString& in : s.inputs)
        a << QStringLiteral("-i") << in;

    // Tags.
    if (!s.artist.isEmpty())
        a << QStringLiteral("--artist") << s.artist;
    if (!s.title.isEmpty())
        a << QStringLiteral("--title") << s.title;
    if (!s.album.isEmpty())
        a << QStringLiteral("--album") << s.album;
    if (!s.genre.isEmpty())
        a << QStringLiteral("--genre") << s.genre;
    if (!s.year.isEmpty())
        a << QStringLiteral("--year") << s.year;
    if (!s.comment.isEmpty())
        a << QStringLiteral("--comment") << s.comment;
    if (s.track_number > 0)
        a << QStringLiteral("--track") << integer(s.track_number);
    if (s.metadata_from_input)
        a << QStringLiteral("--metadata-from-input");

    appendAdvanced(a, s);

    // DSDIFF output always gets artist and title: blank ones are sent
    // explicitly unless the input's own tags are meant to fill them.
    if (ext == u".dff" && !s.metadata_from_input) {
        if (s.artist.isEmpty())
            a << QStringLiteral("--artist") << QString();
        if (s.title.isEmpty())
            a << QStringLiteral("--title") << QString();
    }

    a << QStringLiteral("--gui");
    if (!s.log_file.isEmpty())
        a << QStringLiteral("--log-file") << s.log_file;
    if (s.oversampling != 0)
        a << QStringLiteral("--oversampling") << integer(s.oversampling);
    if (s.taps != 0)
        a << QStringLiteral("--taps") << integer(s.taps);
    if (s.passband_cutoff != 0)
        a << QStringLiteral("--passband-cutoff") << integer(s.passband_cutoff);
    if (s.stopband_cutoff != 0)
        a << QStringLiteral("--stopband-cutoff") << integer(s.stopband_cutoff);
    if (s.enable_high_bandwidth)
        a << QStringLiteral("--high-bandwidth");
    if (s.lufs_target != 0.0)
        a << QStringLiteral("--lufs") << fl(s.lufs_target);
    if (s.harmonics_enabled)
        a << QStringLiteral("--harmonics") << fl(s.harmonics_amount) << s.harmonics_profile;
    if (s.use_dst) {
        a << QStringLiteral("--dst");
        note("启用DST压缩");
    }
    if (s.use_opencl) {
        a << QStringLiteral("--opencl");
        note("启用OpenCL加速");
    }
    if (s.stopgain_alpha > 0.0)
        a << QStringLiteral("--stopgain-alpha") << fl(s.stopgain_alpha);

    appendFilterDesign(a, s);

    if (s.delta_f != 0.0)
        a << QStringLiteral("--delta-f") << fl(s.delta_f);

    if (s.log_all) {
        a << QStringLiteral("--log") << QStringLiteral("all");
    } else {
        if (s.log_fir)
            a << QStringLiteral("--log") << QStringLiteral("fir");
        if (s.log_ns)
            a << QStringLiteral("--log") << QStringLiteral("ns");
        if (s.log_freq)
            a << QStringLiteral("--log") << QStringLiteral("freq");
    }
    if (s.memory_cache > 1)
        a << QStringLiteral("--memory-cache") << integer(s.memory_cache);

    appendModulator(a, s);

    if (s.unsrs) {
        if (s.force_channels)
            note("注意: 强制原始声道数已启用, 忽略添加环绕声道参数");
        else
            a << QStringLiteral("--unsrs");
    }
    if (s.swapchannels)
        a << QStringLiteral("--swap-channels");
    // The engine pre-distorts by default; the option switches that off.
    if (!s.predistortion)
        a << QStringLiteral("--unpredistortion");
    if (s.report)
        a << QStringLiteral("--report");
    if (s.report_extra1 || s.report_extra2)
        a << QStringLiteral("--report");
    if (s.pdfreport)
        a << QStringLiteral("-pdfrp");
    if (s.hfa_check)
        a << QStringLiteral("--hfacheck");

    appendChannels(a, s);

    if (!s.ns_zeros.isEmpty()) {
        a << QStringLiteral("--zero");
        for (double z : s.ns_zeros)
            a << fl(z);
    }
    if (!s.use_mash && s.ns_pole.has_value())
        a << QStringLiteral("--pole") << fl(*s.ns_pole);
    if (s.noise_threshold != 0.0)
        a << QStringLiteral("--noise-threshold") << fl(s.noise_threshold);
    if (s.abs_value != 0.0)
        a << QStringLiteral("--abs") << fl(s.abs_value);
    if (s.abs_db_value != 0.0)
        a << QStringLiteral("--absdb") << fl(s.abs_db_value);
    if (s.enable_eq) {
        const QString bands = formatEqBands(s.eq_bands);
        a << QStringLiteral("--eq") << bands;
        note("应用EQ: %s", bands.toUtf8().constData());
    }
    if (s.pipe_mode)
        a << QStringLiteral("--pipe");
    if (s.force_endianness)
        a << QStringLiteral("--force-endianness")
          << (s.endianness.isEmpty() ? QStringLiteral("l") : s.endianness);
    if (s.stereo_expander && !s.stereo_expander_params.isEmpty())
        a << QStringLiteral("--stereoexpander") << s.stereo_expander_params;
    if (s.log_freq_2)
        a << QStringLiteral("--log") << QStringLiteral("freq");
    if (s.auto_pan) {
        a << QStringLiteral("--auto-pan");
        if (s.auto_pan_target_width > 0.0f)
            a << QStringLiteral("--target-width") << fl(double(s.auto_pan_target_width));
        if (s.pan_report)
            a << QStringLiteral("--pan-report");
    }
    if (s.psy) {
        a << QStringLiteral("--psy");
        if (!s.psy_strategy.isEmpty() && s.psy_strategy != u"balanced")
            a << QStringLiteral("--psy-strategy") << s.psy_strategy;
        if (s.psy_phon > 0.0)
            a << QStringLiteral("--psy-phon") << fl(s.psy_phon);
    }
    if (s.apo > 0) {
        a << QStringLiteral("--apo");
        if (s.apo == 1)
            a << QStringLiteral("light");
        else if (s.apo == 2)
            a << QStringLiteral("normal");
        else if (s.apo == 3)
            a << QStringLiteral("aggressive");
    }
    if (s.dither) {
        a << QStringLiteral("--dither");
        if (s.dither_value > 0)
            a << integer(s.dither_value);
    }
    if (s.compand)
        a << QStringLiteral("--compand") << s.compand_points << fl(s.compand_attack_ms)
          << fl(s.compand_release_ms);
    if (s.stats)
        a << QStringLiteral("--stats");
    if (!s.spectrogram_path.isEmpty())
        a << QStringLiteral("--spectrogram") << s.spectrogram_path;
    if (s.noise_reduce && !s.noise_reduce_profile.isEmpty())
        a << QStringLiteral("--noise-reduce") << s.noise_reduce_profile;
    if (s.denoise_tier > 0)
        a << QStringLiteral("--denoise") << QString::fromLatin1(denoiseWord(s.denoise_tier))
          << QStringLiteral("--keep-harmonics")
          << (s.keep_harmonics ? QStringLiteral("on") : QStringLiteral("off"));
    if (s.rate_enabled && s.rate > 0)
        a << QStringLiteral("--rate") << integer(s.rate);
    if (s.lal)
        a << QStringLiteral("--lal") << QStringLiteral("--lal-lookahead") << fl(s.lal_lookahead)
          << QStringLiteral("--lal-threshold") << fl(s.lal_threshold);
    if (s.adaptive)
        a << QStringLiteral("--adaptive");
    if (s.pbe) {
        if (s.pbe_level > 0)
            a << QStringLiteral("--pbe") << integer(s.pbe_level);
        if (s.pbe_precut > 0.0)
            a << QStringLiteral("--pbe-precut") << fl(s.pbe_precut);
    }
    if (s.filter_type != u"standard")
        a << QStringLiteral("--filter-type") << s.filter_type;
    if (s.dst_compression > 0)
        a << QStringLiteral("--dst-compression") << integer(s.dst_compression);
    if (s.noise_profiling)
        a << QStringLiteral("--noise-profiling");
    if (s.report_peak)
        a << QStringLiteral("--peak");
    if (s.report_rms)
        a << QStringLiteral("--rms");
    if (s.report_no_dynamic_range)
        a << QStringLiteral("--no-dynamic-range");
    if (s.verbose_log)
        a << QStringLiteral("--verbose");
    if (s.use_sos_ef)
        a << QStringLiteral("--sos-ef");
    if (s.use_cifb)
        a << QStringLiteral("--cifb") << integer(s.cifb_order);
    if (s.dxd)
        a << QStringLiteral("--dxd");

    appendPoly(a, s);

    if (s.dsne) {
        a << QStringLiteral("--dsne");
        if (s.dsne_amount > 0.0)
            a << fl(s.dsne_amount);
    }
    // "Differs from the default" is a plain comparison, so NaN is sent.
    if (s.dsee) {
        a << QStringLiteral("--dsee");
        if (s.dsee_amount > 0.0)
            a << fl(s.dsee_amount);
        if (s.dsee_drive != 1.0)
            a << QStringLiteral("--dsee-drive") << fl(s.dsee_drive);
        if (s.dsee_hmix != 0.5)
            a << QStringLiteral("--dsee-hmix") << fl(s.dsee_hmix);
        if (s.dsee_air != 0.01)
            a << QStringLiteral("--dsee-air") << fl(s.dsee_air);
    }
    if (s.apply_dsre) {
        a << QStringLiteral("--dsre");
        if (s.dsreMix > 0.0)
            a << fl(s.dsreMix);
    }
    if (s.apply_hrtf) {
        a << QStringLiteral("--hrtf");
        if (s.hrtf_mode == 0)
            a << QStringLiteral("mono");
        else if (s.hrtf_mode == 2)
            a << QStringLiteral("stereo");
        else
            a << QStringLiteral("ms");
        if (s.hrtf_mix != 1.0)
            a << QStringLiteral("--hrtf-mix") << fl(s.hrtf_mix);
        if (s.hrtf_side_mix != 1.0)
            a << QStringLiteral("--hrtf-side-mix") << fl(s.hrtf_side_mix);
        if (s.hrtf_depth != 1.0)
            a << QStringLiteral("--hrtf-depth") << fl(s.hrtf_depth);
    }
    if (s.tone_bass_db != 0.0)
        a << QStringLiteral("--bass") << fl(s.tone_bass_db);
    if (s.tone_treble_db != 0.0)
        a << QStringLiteral("--treble") << fl(s.tone_treble_db);
    if (s.enable_eq && s.eq_precut_db != 0.0)
        a << QStringLiteral("--eq-precut") << fl(s.eq_precut_db);
    if (s.compressor)
        a << QStringLiteral("--compressor") << fl(s.compressor_threshold_db)
          << fl(s.compressor_ratio)
          << (s.compressor_soft_knee ? QStringLiteral("soft") : QStringLiteral("hard"))
          << fl(s.compressor_attack_ms) << fl(s.compressor_release_ms);
    if (s.soft_limiter)
        a << QStringLiteral("--soft-limiter") << fl(s.soft_limiter_value);
    if (s.crossfeed) {
        a << QStringLiteral("--crossfeed") << s.crossfeed_profile;
        if (s.crossfeed_profile == u"custom")
            a << fl(s.crossfeed_custom_db[0]) << fl(s.crossfeed_custom_db[1]);
    }
    for (const QString& ir : s.convolve_files)
        if (!ir.isEmpty())
            a << QStringLiteral("--convolve") << ir;
    if (!s.cue_file.isEmpty())
        a << QStringLiteral("--cue") << s.cue_file;
    if (s.dsne) {
        if (s.dsne_ratio != 30.0)
            a << QStringLiteral("--dsne-ratio") << fl(s.dsne_ratio);
        if (s.dsne_knee != 12.0)
            a << QStringLiteral("--dsne-knee") << fl(s.dsne_knee);
        if (s.dsne_margin != 3.0)
            a << QStringLiteral("--dsne-margin") << fl(s.dsne_margin);
    }
    if (s.replay_gain_mode == 1)
        a << QStringLiteral("--rg");
    else if (s.replay_gain_mode == 2)
        a << QStringLiteral("--rg") << QStringLiteral("album");

    a << out;

    // Surround deliberately follows the output path: the engine reads it as
    // a trailing effect stage.
    if (s.apply_surround) {
        a << QStringLiteral("--surround") << integer(s.surround_delay_ms)
          << integer(s.surround_mix);
        if (s.surround_side)
            a << QStringLiteral("side");
        if (s.surround_balance != 0)
            a << integer(s.surround_balance);
    }
    return a;
}

const QList<AdvancedOption>& advancedOptionTable()
{
    using namespace Qt::StringLiterals;
    using K = AdvancedOption;
    static const QList<AdvancedOption> table = {
        {u"--dehum"_s, K::Switch, {}, 0, u"去掉市电嗡声(50/60 Hz 及谐波)"_s},
        {u"--dehum-q"_s, K::Number, u"10"_s, 0, u"嗡声陷波器的 Q(默认 10)"_s},
        {u"--decrackle"_s, K::Switch, {}, 0, u"修老录音的爆豆/噼啪声"_s},
        {u"--decrackle-threshold"_s, K::Number, u"5"_s, 0, u"爆豆检测门限(默认 5)"_s},
        {u"--expand"_s, K::Switch, {}, 0, u"向下扩展器: 把音符之间的底噪压下去"_s},
        {u"--expand-threshold"_s, K::Number, {}, 0, u"扩展器门限 dB"_s},
        {u"--expand-ratio"_s, K::Number, {}, 0, u"扩展比"_s},
        {u"--expand-knee"_s, K::Number, {}, 0, u"扩展 knee 宽度 dB"_s},
        {u"--expand-attack"_s, K::Number, {}, 0, u"扩展启动时间 ms"_s},
        {u"--expand-release"_s, K::Number, {}, 0, u"扩展释放时间 ms"_s},
        {u"--wiener"_s, K::Switch, {}, 0, u"维纳滤波降噪"_s},
        {u"--wiener-floor"_s, K::Number, {}, 0, u"维纳滤波的噪声底 dB"_s},
        {u"--wiener-frame"_s, K::Number, u"32"_s, 0, u"维纳帧长 ms(默认 32)"_s},
        {u"--master"_s, K::Switch, {}, 0,
         u"母带链预设: 去嗡 + 去爆豆 + 扩展 + 频谱 EQ + 立体声加宽"_s},
        {u"--mp-ns"_s, K::Switch, {}, 1, u"多极点噪声整形"_s},
        {u"--mp-poles"_s, K::Integer, {}, 1, u"多极点整形的极数"_s},
        {u"--single-pole"_s, K::Switch, {}, 1, u"强制单极点整形(关掉多极点)"_s},
        {u"--no-ns"_s, K::Switch, {}, 1, u"关闭噪声整形"_s},
        {u"--quantization-type"_s, K::Text, {}, 1, u"量化类型: rms | peak | hardlimit"_s},
        {u"--quantization-ratio"_s, K::Number, {}, 1, u"量化门限比"_s},
        {u"--stereo"_s, K::Switch, {}, 2, u"立体声加宽"_s},
        {u"--stereo-auto"_s, K::Switch, {}, 2, u"自动加宽(隐含 --stereo)"_s},
        {u"--stereo-width"_s, K::Number, u"1.2"_s, 2, u"宽度系数(默认 1.2)"_s},
        {u"--stereo-crossfeed"_s, K::Number, u"0.15"_s, 2, u"交叉馈送量(默认 0.15)"_s},
        {u"--eq-bass"_s, K::Number, {}, 2, u"低架 EQ 增益 dB"_s},
        {u"--eq-presence"_s, K::Number, {}, 2, u"临场段 EQ 增益 dB"_s},
        {u"--eq-air"_s, K::Number, {}, 2, u"空气段 EQ 增益 dB"_s},
        {u"--equalizer"_s, K::Triples, {}, 2,
         u"三段参数 EQ: 频率(Hz) 增益(dB) 带宽(Hz), 空格分隔; 多段用 ';' 分隔(每段一次 -eq)"_s},
        {u"--measure"_s, K::Switch, {}, 3,
         u"只测量不转换: 打印 I / LRA / 真峰值 / PLR 的 CSV(不写输出文件)"_s},
        {u"--pdf-report"_s, K::Switch, {}, 3, u"生成 PCM / PDM 分析报告(PDF)"_s},
        {u"--noise-profile"_s, K::Switch, {}, 3, u"报告里加 FFT 噪声底分析(需 --pdf-report)"_s},
        {u"--bit"_s, K::Integer, {}, 4, u"解码位深(反向 PDM→PCM)"_s},
        {u"--float"_s, K::Switch, {}, 4, u"反向输出 float32"_s},
        {u"--sampling"_s, K::Integer, {}, 4, u"输出采样率(反向)"_s},
        {u"--lowpass"_s, K::Integer, {}, 4, u"反向低通频率 Hz"_s},
        {u"--dxd-samplerate"_s, K::Integer, {}, 4, u"DXD 输出采样率"_s},
        {u"--dsre-mix"_s, K::Integer, {}, 4, u"DSRE 混合比"_s},
        {u"--stop-lossy"_s, K::Switch, {}, 4, u"输入像有损压缩时中止(不出半成品)"_s},
        {u"--music-type"_s, K::Integer, {}, 4, u"音乐类型编号(>0)"_s},
        {u"--mastering-preset"_s, K::Text, {}, 4, u"母带预设名: classical | pop | jazz …"_s},
        {u"--cover"_s, K::Text, {}, 4, u"封面图路径(嵌进 DSF/DFF 的 APIC)"_s},
        {u"--hrtf-load"_s, K::Text, {}, 4, u"HRTF 文件路径"_s},
    };
    return table;
}
