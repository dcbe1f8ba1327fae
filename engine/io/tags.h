#pragma once
// Text tags carried into DSF (ID3v2 chunk) and DSDIFF (DIIN/COMT + ID3 chunk)
// outputs, and read back from PCM inputs and DSD files.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace zuvo::io {

struct Tags {
    std::string artist;
    std::string title;
    std::string album;
    std::string genre;
    std::string year;
    std::string comment;
    int track = 0; // 0 = none, else 1..998
    // Front cover (APIC in the ID3 tag): the image bytes and their MIME type.
    std::vector<std::uint8_t> cover;
    std::string coverMime;
    // User text frames (ID3 TXXX): description and value, e.g. the
    // REPLAYGAIN_* pairs. Descriptions compare without regard to case.
    std::vector<std::pair<std::string, std::string>> userText;

    bool empty() const;
    bool hasText() const;
    // Fields that are empty here take the value from `other`.
    void fillEmptyFrom(const Tags& other);
    // Sets (replacing a frame of the same description) or reads a user text
    // frame; userTextValue returns "" when there is none.
    void setUserText(const std::string& description, const std::string& value);
    std::string userTextValue(const std::string& description) const;
};

// ID3v2.3 tag (header included) with one text frame per non-empty field.
// Plain ASCII is stored as ISO-8859-1, anything else as UTF-16 with BOM, the
// encoding every DSD player understands.
std::vector<std::uint8_t> buildId3v2(const Tags& tags);

// Reads a JPEG or PNG file for the front cover; the message says why not.
bool loadCover(const std::string& path, Tags& tags, std::string* error);

// Parses the frames this engine writes (and the usual v2.3/v2.4 text frames
// of other writers). Returns false when `data` is not an ID3v2 tag.
bool parseId3v2(const std::uint8_t* data, std::size_t size, Tags& out);

} // namespace zuvo::io
