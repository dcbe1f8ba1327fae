#include "io/pcm_reader.h"

#include <algorithm>
#include <cstdlib>
#include <sndfile.h>

#include "io/path_names.h"

namespace zuvo::io {

namespace {
SNDFILE* sf(void* h) { return static_cast<SNDFILE*>(h); }
} // namespace

const char* unsupportedInputFormatName(const std::string& path)
{
    static const struct { const char* ext; const char* name; } table[] = {
        {".m4a", "MPEG-4 audio (AAC/ALAC)"}, {".mp4", "MPEG-4"},    {".ape", "Monkey's Audio"},
        {".wv", "WavPack"},                  {".tta", "True Audio"}, {".wsd", "WSD (DSD)"},
        {".iso", "SACD disc image"},         {".dst", "DST-compressed DSD"},
        {".dsf", "DSF (DSD; use --reverse to turn it into PCM)"},
        {".dff", "DSDIFF (DSD; use --reverse to turn it into PCM)"},
    };
    const std::string ext = lowerExtension(path);
    for (const auto& row : table)
        if (ext == row.ext)
            return row.name;
    return nullptr;
}

PcmReader::~PcmReader()
{
    if (handle_)
        sf_close(sf(handle_));
}

bool PcmReader::open(const std::string& path, std::string* error)
{
    path_ = path;
    if (const char* name = unsupportedInputFormatName(path)) {
        if (error)
            *error = "input format not supported by this version: " + std::string(name) + " (" + path + ")";
        return false;
    }
    SF_INFO si{};
    SNDFILE* h = sf_open(path.c_str(), SFM_READ, &si);
    if (!h) {
        if (error)
            *error = "cannot read " + path + ": " + sf_strerror(nullptr);
        return false;
    }
    handle_ = h;
    info_.channels = si.channels;
    info_.sampleRate = si.samplerate;
    info_.frames = si.frames;

    SF_FORMAT_INFO major{};
    major.format = si.format & SF_FORMAT_TYPEMASK;
    sf_command(h, SFC_GET_FORMAT_INFO, &major, sizeof major);
    SF_FORMAT_INFO sub{};
    sub.format = si.format & SF_FORMAT_SUBMASK;
    sf_command(h, SFC_GET_FORMAT_INFO, &sub, sizeof sub);
    info_.formatName = std::string(major.name ? major.name : "?") + " / " + (sub.name ? sub.name : "?");

    // libsndfile shortens a stream whose header claims more than the file
    // holds and says so only in its log ("data : N (should be M)"). A size
    // of 0 or all ones is a placeholder left by a streaming writer, not
    // damage; any other shortfall means the file was cut.
    char log[8192] = {};
    sf_command(h, SFC_GET_LOG_INFO, log, sizeof log);
    const std::string text(log);
    for (std::size_t pos = text.find("(should be "); pos != std::string::npos; pos = text.find("(should be ", pos + 1)) {
        const std::size_t lineStart = text.rfind('\n', pos) + 1;
        const std::size_t colon = text.find(':', lineStart);
        if (colon == std::string::npos || colon > pos)
            continue;
        const unsigned long long declared = std::strtoull(text.c_str() + colon + 1, nullptr, 10);
        const unsigned long long actual = std::strtoull(text.c_str() + pos + 11, nullptr, 10);
        const bool placeholder = declared == 0 || declared >= 0x7FFFFFFFull;
        if (declared > actual && !placeholder) {
            info_.truncated = true;
            info_.declaredBytes = declared;
            info_.presentBytes = actual;
        }
    }
    // Integer input is scaled to +-1.0; float input keeps its values so
    // overs above full scale are seen, not wrapped.
    sf_command(h, SFC_SET_NORM_DOUBLE, nullptr, SF_TRUE);
    return true;
}

Tags PcmReader::tags() const
{
    Tags t;
    if (!handle_)
        return t;
    auto get = [this](int id) {
        const char* s = sf_get_string(sf(handle_), id);
        return std::string(s ? s : "");
    };
    t.artist = get(SF_STR_ARTIST);
    t.title = get(SF_STR_TITLE);
    t.album = get(SF_STR_ALBUM);
    t.genre = get(SF_STR_GENRE);
    t.year = get(SF_STR_DATE);
    t.comment = get(SF_STR_COMMENT);
    const int track = std::atoi(get(SF_STR_TRACKNUMBER).c_str());
    t.track = track >= 1 && track <= 998 ? track : 0;
    return t;
}

long long PcmReader::read(std::size_t frames, std::vector<double>& out, std::string* error)
{
    out.resize(frames * static_cast<std::size_t>(info_.channels));
    const sf_count_t got = sf_readf_double(sf(handle_), out.data(), static_cast<sf_count_t>(frames));
    if (got < 0 || (got == 0 && sf_error(sf(handle_)) != SF_ERR_NO_ERROR)) {
        if (error)
            *error = "decoding error in " + path_ + ": " + sf_strerror(sf(handle_));
        return -1;
    }
    out.resize(static_cast<std::size_t>(got) * static_cast<std::size_t>(info_.channels));
    return got;
}

} // namespace zuvo::io
