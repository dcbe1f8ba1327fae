#include "io/pcm_reader.h"

#include <algorithm>
#include <cstdlib>
#include <vector>
#include <sndfile.h>

#include "io/input_file.h"
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

namespace {
Speaker speakerOf(int position)
{
    switch (position) {
    case SF_CHANNEL_MAP_MONO:
    case SF_CHANNEL_MAP_CENTER:
    case SF_CHANNEL_MAP_FRONT_CENTER: return Speaker::FrontCenter;
    case SF_CHANNEL_MAP_LEFT:
    case SF_CHANNEL_MAP_FRONT_LEFT: return Speaker::FrontLeft;
    case SF_CHANNEL_MAP_RIGHT:
    case SF_CHANNEL_MAP_FRONT_RIGHT: return Speaker::FrontRight;
    case SF_CHANNEL_MAP_LFE: return Speaker::Lfe;
    case SF_CHANNEL_MAP_REAR_LEFT:
    case SF_CHANNEL_MAP_SIDE_LEFT: return Speaker::SurroundLeft;
    case SF_CHANNEL_MAP_REAR_RIGHT:
    case SF_CHANNEL_MAP_SIDE_RIGHT: return Speaker::SurroundRight;
    default: return Speaker::Other;
    }
}

int bytesPerSample(int format)
{
    switch (format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
    case SF_FORMAT_ULAW:
    case SF_FORMAT_ALAW: return 1;
    case SF_FORMAT_PCM_16: return 2;
    case SF_FORMAT_PCM_24: return 3;
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_FLOAT: return 4;
    case SF_FORMAT_DOUBLE: return 8;
    default: return 0;
    }
}

bool placeholder(unsigned long long size)
{
    return size == 0 || size >= 0xFFFFFFFFull;
}
} // namespace

std::string truncationFromLog(const std::string& path, const std::string& log, long long frames, int bytesPerFrame)
{
    std::size_t lineStart = 0;
    while (lineStart < log.size()) {
        std::size_t lineEnd = log.find('\n', lineStart);
        if (lineEnd == std::string::npos)
            lineEnd = log.size();
        const std::string line = log.substr(lineStart, lineEnd - lineStart);
        lineStart = lineEnd + 1;
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos)
            continue;
        std::string key = line.substr(0, colon);
        key.erase(0, key.find_first_not_of(' '));
        key.erase(key.find_last_not_of(' ') + 1);
        const char* value = line.c_str() + colon + 1;
        // The frame count a header states (AIFF COMM, RF64 ds64) against
        // the frames the data holds.
        if (key == "Frames") {
            const unsigned long long declared = std::strtoull(value, nullptr, 10);
            if (!placeholder(declared) && frames >= 0 && declared > static_cast<unsigned long long>(frames))
                return path + " is truncated: its header declares " + std::to_string(declared)
                    + " frames and the file holds " + std::to_string(frames);
            continue;
        }
        // "data : N (should be M)": the audio chunk runs past the end of the
        // file. The container sizes (RIFF, FORM) are not audio: a pad byte
        // counted there is harmless.
        const std::size_t should = line.find("(should be ");
        if (should == std::string::npos || (key != "data" && key != "SSND"))
            continue;
        const unsigned long long declared = std::strtoull(value, nullptr, 10);
        const unsigned long long present = std::strtoull(line.c_str() + should + 11, nullptr, 10);
        const unsigned long long slack = bytesPerFrame > 0 ? static_cast<unsigned long long>(bytesPerFrame) : 1;
        if (!placeholder(declared) && declared > present && declared - present >= slack)
            return path + " is truncated: its header declares " + std::to_string(declared)
                + " bytes of audio and the file holds " + std::to_string(present);
    }
    return {};
}

bool PcmReader::open(const std::string& path, std::string* error)
{
    path_ = path;
    if (const char* name = unsupportedInputFormatName(path)) {
        if (error)
            *error = "input format not supported by this version: " + std::string(name) + " (" + path + ")";
        return false;
    }
    const InputFd in = openRegularInput(path, error);
    if (in.fd < 0)
        return false;
    SF_INFO si{};
    SNDFILE* h = sf_open_fd(in.fd, SFM_READ, &si, SF_TRUE);
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

    if (si.channels >= 1 && si.channels <= 64) {
        std::vector<int> map(static_cast<std::size_t>(si.channels));
        if (sf_command(h, SFC_GET_CHANNEL_MAP_INFO, map.data(), static_cast<int>(map.size() * sizeof(int)))) {
            for (int position : map)
                info_.layout.push_back(speakerOf(position));
            info_.layoutFromFile = true;
        } else {
            info_.layout = defaultLayout(si.channels);
        }
    }

    // libsndfile shortens a stream whose header claims more than the file
    // holds and says so only in its log.
    char log[8192] = {};
    sf_command(h, SFC_GET_LOG_INFO, log, sizeof log);
    info_.truncation = truncationFromLog(path, log, si.frames, bytesPerSample(si.format) * si.channels);
    info_.truncated = !info_.truncation.empty();
    // Where the decoder's frame count is the header's own (FLAC's stream
    // info), a stream that ends early is only found at its end. Lossy
    // streams estimate their length, so only lossless ones are held to it.
    const int type = si.format & SF_FORMAT_TYPEMASK;
    checkEnd_ = type != SF_FORMAT_OGG && type != SF_FORMAT_MPEG && si.frames > 0
        && si.frames < (static_cast<sf_count_t>(1) << 62);
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
    delivered_ += got;
    if (got == 0 && frames > 0 && checkEnd_ && delivered_ < info_.frames) {
        if (error)
            *error = path_ + " is truncated: its header declares " + std::to_string(info_.frames)
                + " frames and the file holds " + std::to_string(delivered_);
        return -1;
    }
    return got;
}

} // namespace zuvo::io
