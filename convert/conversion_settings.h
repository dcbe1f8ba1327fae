#pragma once
// The value record of one conversion: every parameter the engine command line,
// the output naming and the preset files are built from. It is copied by value
// into each queued run, so it holds no pointers and no shared state.
//
// Field names are the preset JSON keys (lower_snake_case, plus `dsreMix`, which
// the sister front-end spells that way); fields without a preset key use the
// names the command-line builder documents.

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

// One equaliser band. Only bands with centerFreq > 0 are ever kept in a record.
struct EqBand {
    double centerFreq = 0.0;  // Hz
    double gainDB = 0.0;
    double bandwidth = 0.0;   // in the unit bwType names
    char bwType = 'q';        // q, h, k, o or s

    bool operator==(const EqBand&) const = default;
};

struct ConversionSettings {
    // ---- Carried by preset files, in preset key order ----------------------
    int32_t oversampling = 0;        // DSD multiplier (64, 128, ...); 0 = not sent
    int32_t taps = 0;                // 0 = the engine chooses
    int32_t passband_cutoff = 0;     // Hz, 0 = automatic
    int32_t stopband_cutoff = 0;     // Hz, 0 = automatic
    bool enable_high_bandwidth = false;
    bool use_dst = false;            // only meaningful with .dff output
    int32_t dst_compression = 0;
    QString algorithm;               // "window", "remez", "minphase" or empty
    QString window_type;             // "kaiser", "blackman", ...
    double beta = 0.0;               // Kaiser beta
    int32_t max_iterations = 0;      // Remez
    int32_t grid_density = 0;        // Remez
    QString filter_type = QStringLiteral("standard");
    bool predistortion = false;      // cleared => "--unpredistortion" is sent
    bool pdfreport = true;
    bool report = false;
    bool noise_profiling = false;
    int32_t denoise_tier = 0;        // 0 off, 1 light, 2 standard, 3+ deep
    bool keep_harmonics = false;     // written to presets, never read back
    bool force_channels = false;
    int32_t reset_channels = 0;
    bool quad = false;               // needs reset_channels == 4
    bool unsrs = false;
    bool swapchannels = false;
    bool enable_eq = false;
    QList<EqBand> eq_bands;
    QString artist;
    QString title;
    QString album;
    QString genre;
    QString year;                    // text on purpose: "1977?" is a valid tag
    QString comment;
    int32_t track_number = 0;        // 0 = no track tag
    bool metadata_from_input = false;
    bool report_peak = false;
    bool report_rms = false;
    bool report_no_dynamic_range = false;
    bool verbose_log = false;
    double stopgain_alpha = 0.0;     // dB, 0 = not sent
    double abs_value = 0.0;          // linear input gain, 0 = automatic
    double abs_db_value = 0.0;       // input gain in dB, 0 = automatic
    bool apply_hrtf = false;
    int32_t hrtf_mode = 1;           // 0 mono, 1 ms, 2 stereo
    double hrtf_mix = 1.0;
    double hrtf_side_mix = 1.0;
    double hrtf_depth = 1.0;
    bool apply_surround = false;
    int32_t surround_delay_ms = 15;
    int32_t surround_mix = 80;
    bool surround_side = false;
    int32_t surround_balance = 0;    // -100..100, 0 = not sent
    double tone_bass_db = 0.0;
    double tone_treble_db = 0.0;
    double eq_precut_db = 0.0;       // only sent while enable_eq is on
    bool apply_dsre = false;
    double dsreMix = 0.35;
    // Extra engine options from the Advanced page: option name -> value text
    // (empty for a switch). Keys are rows of advancedOptionTable().
    QMap<QString, QString> advanced;

    // ---- Panel-only engine parameters (no preset key) ----------------------
    int32_t modulator_order = 9;     // single-loop order, "--order"
    bool psy = false;
    QString psy_strategy = QStringLiteral("balanced");
    double psy_phon = 80.0;
    int32_t apo = 0;                 // 0 off, 1 light, 2 normal, 3 aggressive
    bool dither = false;
    int32_t dither_value = 0;        // sent after "--dither" only when > 0
    bool compand = false;
    QString compand_points = QStringLiteral("-20,-10;-40,-20");
    double compand_attack_ms = 5.0;
    double compand_release_ms = 100.0;
    bool compressor = false;
    double compressor_threshold_db = -12.0;
    double compressor_ratio = 4.0;
    bool compressor_soft_knee = true;
    double compressor_attack_ms = 5.0;
    double compressor_release_ms = 100.0;
    bool soft_limiter = false;
    double soft_limiter_value = 0.05;
    bool crossfeed = false;
    QString crossfeed_profile = QStringLiteral("meier");
    std::array<double, 2> crossfeed_custom_db{-6.0, -12.0};  // used by "custom"
    double dsne_ratio = 30.0;
    double dsne_knee = 12.0;
    double dsne_margin = 3.0;

    // ---- Further engine parameters (no preset key) --------------------------
    QStringList inputs;              // the first entry is the file being converted
    bool reverse = false;            // DSD -> PCM
    QString log_file;
    double lufs_target = 0.0;
    bool harmonics_enabled = false;
    double harmonics_amount = 0.0;
    QString harmonics_profile;
    bool use_opencl = false;
    bool pipe_mode = false;
    bool log_fir = false;
    bool log_ns = false;
    bool log_freq = false;
    bool log_freq_2 = false;         // a second "--log freq", late in the list
    bool log_all = false;
    int32_t memory_cache = 0;        // sent only when > 1
    bool use_mash = false;
    int32_t mash_order = 0;
    bool use_sos_ef = false;
    bool use_cifb = false;
    int32_t cifb_order = 0;
    bool hfa_check = false;
    bool report_extra1 = false;
    bool report_extra2 = false;
    QList<double> ns_zeros;
    std::optional<double> ns_pole;
    double noise_threshold = 0.0;
    double delta_f = 0.0;
    bool force_endianness = false;
    QString endianness;              // empty means "l"
    bool stereo_expander = false;
    QString stereo_expander_params;
    bool auto_pan = false;
    float auto_pan_target_width = 0.0f;
    bool pan_report = false;
    bool stats = false;
    QString spectrogram_path;
    bool noise_reduce = false;
    QString noise_reduce_profile;
    bool rate_enabled = false;
    int32_t rate = 0;
    bool lal = false;
    double lal_lookahead = 0.0;
    double lal_threshold = 0.0;
    bool adaptive = false;
    bool dxd = false;
    bool poly = false;
    int32_t poly_degree = 0;
    bool poly_auto = false;
    QString poly_save;
    QString poly_load;
    bool poly_report = false;
    bool dsne = false;
    double dsne_amount = 0.0;
    bool dsee = false;
    double dsee_amount = 0.0;
    // The engine's own tuning values, so that switching DSEE on sends only
    // "--dsee" until the user actually moves one of the tunings.
    double dsee_drive = 1.0;
    double dsee_hmix = 0.5;
    double dsee_air = 0.01;
    bool pbe = false;
    int32_t pbe_level = 0;
    double pbe_precut = 0.0;
    QStringList convolve_files;      // empty entries are skipped
    QString cue_file;
    int32_t replay_gain_mode = 0;    // 1 track, 2 album, anything else off

    // ---- Output naming (no preset key) --------------------------------------
    QString output_path;             // explicit output file (output-file mode)
    QString output_dir;              // non-empty selects output-folder mode
    QString name_template;           // empty means "{input}"
    QString output_ext;              // without the dot; empty means "dsf"
    int32_t queue_number = 0;        // position in the queue, feeds {track}

    // The band count is derived rather than stored, so it can never disagree
    // with the list.
    int eqBandCount() const { return int(eq_bands.size()); }

    bool operator==(const ConversionSettings&) const = default;
};
