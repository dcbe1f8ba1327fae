#include "io/pcm_writer.h"

#include <cmath>
#include <sndfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include "io/path_names.h"

namespace zuvo::io {

namespace {
SNDFILE* sf(void* h) { return static_cast<SNDFILE*>(h); }

int subtype(PcmSampleFormat s)
{
    switch (s) {
    case PcmSampleFormat::Int16: return SF_FORMAT_PCM_16;
    case PcmSampleFormat::Int24: return SF_FORMAT_PCM_24;
    case PcmSampleFormat::Int32: return SF_FORMAT_PCM_32;
    case PcmSampleFormat::Float32: return SF_FORMAT_FLOAT;
    }
    return SF_FORMAT_PCM_24;
}

int containerFor(const std::string& path, bool flac)
{
    const std::string ext = lowerExtension(path);
    if (flac || ext == ".flac")
        return SF_FORMAT_FLAC;
    if (ext == ".w64")
        return SF_FORMAT_W64;
    if (ext == ".wav")
        return SF_FORMAT_RF64; // downgraded to plain WAV below 4 GiB
    return 0;
}
} // namespace

bool checkPcmOutput(const std::string& path, const PcmOutputFormat& f, std::string* error)
{
    const int container = containerFor(path, f.flac);
    if (container == 0) {
        if (error)
            *error = "PCM output must end in .wav, .w64 or .flac: " + path;
        return false;
    }
    if (container == SF_FORMAT_FLAC) {
        if (f.sample == PcmSampleFormat::Int32 || f.sample == PcmSampleFormat::Float32) {
            if (error)
                *error = "FLAC holds 16 or 24-bit samples only (choose --bit 16/24 or a .wav output)";
            return false;
        }
        if (f.sampleRate > 655350) {
            if (error)
                *error = "FLAC cannot hold a sample rate of " + std::to_string(f.sampleRate) + " Hz";
            return false;
        }
        if (f.channels > 8) {
            if (error)
                *error = "FLAC holds at most 8 channels";
            return false;
        }
    }
    SF_INFO si{};
    si.channels = f.channels;
    si.samplerate = f.sampleRate;
    si.format = container | subtype(f.sample);
    if (!sf_format_check(&si)) {
        if (error)
            *error = "libsndfile cannot write this format to " + path;
        return false;
    }
    return true;
}

PcmWriter::~PcmWriter()
{
    if (handle_)
        discard();
}

bool PcmWriter::open(const std::string& path, const PcmOutputFormat& f, std::string* error)
{
    if (!checkPcmOutput(path, f, error))
        return false;
    SF_INFO si{};
    si.channels = f.channels;
    si.samplerate = f.sampleRate;
    si.format = containerFor(path, f.flac) | subtype(f.sample);
    path_ = path;
    struct stat st {};
    removable_ = ::stat(path.c_str(), &st) != 0 || S_ISREG(st.st_mode); // never delete a device
    SNDFILE* h = sf_open(path.c_str(), SFM_WRITE, &si);
    if (!h) {
        if (error)
            *error = "cannot create " + path + ": " + sf_strerror(nullptr);
        return false;
    }
    handle_ = h;
    channels_ = f.channels;
    integer_ = f.sample != PcmSampleFormat::Float32;
    if ((si.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RF64)
        sf_command(h, SFC_RF64_AUTO_DOWNGRADE, nullptr, SF_TRUE);
    sf_command(h, SFC_SET_CLIPPING, nullptr, SF_TRUE);
    return true;
}

void PcmWriter::setTags(const Tags& t)
{
    if (!handle_)
        return;
    auto set = [this](int id, const std::string& v) {
        if (!v.empty())
            sf_set_string(sf(handle_), id, v.c_str());
    };
    set(SF_STR_ARTIST, t.artist);
    set(SF_STR_TITLE, t.title);
    set(SF_STR_ALBUM, t.album);
    set(SF_STR_GENRE, t.genre);
    set(SF_STR_DATE, t.year);
    set(SF_STR_COMMENT, t.comment);
    if (t.track > 0)
        set(SF_STR_TRACKNUMBER, std::to_string(t.track));
}

bool PcmWriter::write(const std::vector<double>& in, std::string* error)
{
    if (integer_)
        for (double v : in)
            if (std::fabs(v) > 1.0)
                ++clipped_;
    const sf_count_t frames = static_cast<sf_count_t>(in.size() / static_cast<std::size_t>(channels_));
    if (sf_writef_double(sf(handle_), in.data(), frames) != frames) {
        if (error)
            *error = "cannot write " + path_ + ": " + sf_strerror(sf(handle_));
        return false;
    }
    return true;
}

bool PcmWriter::finalize(std::string* error)
{
    if (!handle_)
        return true;
    sf_write_sync(sf(handle_));
    const int err = sf_error(sf(handle_));
    const int closeErr = sf_close(sf(handle_));
    handle_ = nullptr;
    if (err != SF_ERR_NO_ERROR || closeErr != 0) {
        if (error)
            *error = "cannot finish writing " + path_;
        if (removable_)
            ::unlink(path_.c_str());
        return false;
    }
    return true;
}

void PcmWriter::discard()
{
    if (handle_) {
        sf_close(sf(handle_));
        handle_ = nullptr;
    }
    if (!path_.empty() && removable_)
        ::unlink(path_.c_str());
}

} // namespace zuvo::io
