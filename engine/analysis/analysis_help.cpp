#include "analysis/analysis_help.h"

namespace zuvo::analysis {

void printAnalysisHelp(std::FILE* out)
{
    std::fputs(
        "Loudness and analysis:\n"
        "  --measure              measure only, write nothing: one CSV line per input on standard output\n"
        "                         after 'file,integrated_lufs,lra_lu,true_peak_dbtp,plr_db' (two decimals,\n"
        "                         '.' whatever the locale; silence gives -inf, and nan for the PLR).\n"
        "                         Several inputs allowed; a given .dsf/.dff output is left untouched\n"
        "  --lufs X               normalise to X LUFS integrated (-70 to 0), measured in a first pass\n"
        "                         after the effects; holds for the DSD output itself. The true peak stays\n"
        "                         at or below -1 dBTP and the modulator's stable level less 1 dB: when the\n"
        "                         target would pass it, the gain is lowered (said on standard error) and\n"
        "                         the output lands below the target\n"
        "  --rg [album]           ReplayGain 2.0 tags (reference -18 LUFS) of the output:\n"
        "                         REPLAYGAIN_TRACK_GAIN/_PEAK; 'album' adds REPLAYGAIN_ALBUM_GAIN/_PEAK\n"
        "                         over the run's inputs (one per conversion: equal to the track values)\n"
        "  --stop-lossy           refuse (exit code 1, nothing written) an input whose spectrum, over its\n"
        "                         first 30 s, falls by 30 dB or more within 1 kHz at a cut-off between\n"
        "                         15 and 20.5 kHz with only the noise floor above, in the average and in\n"
        "                         at least a quarter of the frames: a lossy codec's low-pass.\n"
        "                         Measured on 11 lossless test signals: no false alarm. Through MP3\n"
        "                         128k/192k, AAC 128k and Vorbis 128k: 28 of 36 detected; missed are a\n"
        "                         sine sweep and music at -55 LUFS in 16 bits (content at the dither floor)\n"
        "  --stats                statistics at the end: per channel 'stats channel=N dc_offset= peak_dbfs=\n"
        "                         rms_dbfs= crest_db= clipped= dynamic_range_db=', then 'stats\n"
        "                         integrated_lufs= loudness_range_lu= true_peak_dbtp=' of the input\n"
        "  Dynamic range: the channel's peak over the RMS of its loudest 20 % of 3 s blocks, in dB;\n"
        "  crest factor: peak over RMS of the whole channel, in dB. Clipped: samples at 32767/32768 or above.\n",
        out);
}

} // namespace zuvo::analysis
