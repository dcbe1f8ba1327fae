#include "io/tags.h"

#include <cctype>

#include <unistd.h>

#include "io/input_file.h"

#include <algorithm>
#include <cstdlib>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace zuvo::io {

bool Tags::hasText() const
{
    return !(artist.empty() && title.empty() && album.empty() && genre.empty() && year.empty()
             && comment.empty() && track == 0 && userText.empty());
}

bool Tags::empty() const
{
    return !hasText() && cover.empty();
}

void Tags::fillEmptyFrom(const Tags& o)
{
    auto fill = [](std::string& mine, const std::string& theirs) {
        if (mine.empty())
            mine = theirs;
    };
    fill(artist, o.artist);
    fill(title, o.title);
    fill(album, o.album);
    fill(genre, o.genre);
    fill(year, o.year);
    fill(comment, o.comment);
    if (track == 0)
        track = o.track;
    if (cover.empty()) {
        cover = o.cover;
        coverMime = o.coverMime;
    }
    for (const auto& [description, value] : o.userText)
        if (userTextValue(description).empty())
            setUserText(description, value);
}

bool loadCover(const std::string& path, Tags& tags, std::string* error)
{
    // A FIFO or device as the cover would block the run: regular files only.
    std::string why;
    const InputFd in = openRegularInput(path, &why);
    if (in.fd < 0) {
        if (error)
            *error = "the cover image: " + why;
        return false;
    }
    std::FILE* f = ::fdopen(in.fd, "rb");
    if (!f) {
        ::close(in.fd);
        if (error)
            *error = "cannot read the cover image " + path + ": " + std::strerror(errno);
        return false;
    }
    std::vector<std::uint8_t> data;
    std::uint8_t chunk[65536];
    std::size_t n;
    constexpr std::size_t kMaxCover = 16u << 20; // an ID3 tag is limited to 256 MiB; covers are far smaller
    while ((n = std::fread(chunk, 1, sizeof chunk, f)) > 0 && data.size() <= kMaxCover)
        data.insert(data.end(), chunk, chunk + n);
    std::fclose(f);
    if (data.size() > kMaxCover) {
        if (error)
            *error = "the cover image " + path + " is larger than 16 MiB";
        return false;
    }
    static const std::uint8_t png[] = {0x89, 'P', 'N', 'G'};
    if (data.size() > 4 && std::memcmp(data.data(), png, 4) == 0) {
        tags.coverMime = "image/png";
    } else if (data.size() > 3 && data[0] == 0xFF && data[1] == 0xD8 && data[2] == 0xFF) {
        tags.coverMime = "image/jpeg";
    } else {
        if (error)
            *error = "the cover image " + path + " is neither JPEG nor PNG";
        return false;
    }
    tags.cover = std::move(data);
    return true;
}

namespace {

bool isAscii(const std::string& s)
{
    for (unsigned char c : s)
        if (c >= 0x80)
            return false;
    return true;
}

// UTF-8 -> code points; malformed bytes become U+FFFD so a bad tag never
// aborts a conversion.
std::vector<char32_t> decodeUtf8(const std::string& s)
{
    std::vector<char32_t> out;
    std::size_t i = 0;
    while (i < s.size()) {
        const unsigned char c = static_cast<unsigned char>(s[i]);
        int extra = 0;
        char32_t cp = 0;
        if (c < 0x80) { cp = c; }
        else if ((c & 0xE0) == 0xC0) { cp = c & 0x1F; extra = 1; }
        else if ((c & 0xF0) == 0xE0) { cp = c & 0x0F; extra = 2; }
        else if ((c & 0xF8) == 0xF0) { cp = c & 0x07; extra = 3; }
        else { out.push_back(0xFFFD); ++i; continue; }
        bool ok = true;
        for (int k = 1; k <= extra; ++k) {
            if (i + k >= s.size() || (static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) { ok = false; break; }
            cp = (cp << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
        }
        if (!ok) { out.push_back(0xFFFD); ++i; continue; }
        out.push_back(cp);
        i += 1 + extra;
    }
    return out;
}

void appendUtf8(std::string& out, char32_t cp)
{
    if (cp < 0x80) out += static_cast<char>(cp);
    else if (cp < 0x800) { out += static_cast<char>(0xC0 | (cp >> 6)); out += static_cast<char>(0x80 | (cp & 0x3F)); }
    else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// Encoded text as it goes into a frame: encoding byte first.
std::vector<std::uint8_t> encodeText(const std::string& s, bool terminate)
{
    std::vector<std::uint8_t> b;
    if (isAscii(s)) {
        b.push_back(0);
        for (char c : s)
            b.push_back(static_cast<std::uint8_t>(c));
        if (terminate) b.push_back(0);
        return b;
    }
    b.push_back(1);
    b.push_back(0xFF); b.push_back(0xFE); // BOM, little endian
    for (char32_t cp : decodeUtf8(s)) {
        auto unit = [&b](std::uint16_t u) { b.push_back(u & 0xFF); b.push_back(u >> 8); };
        if (cp >= 0x10000) {
            cp -= 0x10000;
            unit(static_cast<std::uint16_t>(0xD800 + (cp >> 10)));
            unit(static_cast<std::uint16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            unit(static_cast<std::uint16_t>(cp));
        }
    }
    if (terminate) { b.push_back(0); b.push_back(0); }
    return b;
}

void appendFrame(std::vector<std::uint8_t>& tag, const char id[4], const std::vector<std::uint8_t>& body)
{
    tag.insert(tag.end(), id, id + 4);
    const auto n = static_cast<std::uint32_t>(body.size());
    tag.push_back(n >> 24); tag.push_back(n >> 16); tag.push_back(n >> 8); tag.push_back(n);
    tag.push_back(0); tag.push_back(0); // flags
    tag.insert(tag.end(), body.begin(), body.end());
}

// Text as stored in a frame body (encoding byte first) -> UTF-8.
std::string decodeText(const std::uint8_t* p, std::size_t n)
{
    if (n == 0) return {};
    const int enc = p[0];
    ++p; --n;
    std::string out;
    if (enc == 0 || enc == 3) {
        for (std::size_t i = 0; i < n && p[i]; ++i) {
            if (enc == 3) out += static_cast<char>(p[i]);
            else appendUtf8(out, p[i]);
        }
        return out;
    }
    bool little = enc == 1; // v2.3 UTF-16 defaults to a BOM; 2 = UTF-16BE
    std::size_t i = 0;
    if (n >= 2 && p[0] == 0xFF && p[1] == 0xFE) { little = true; i = 2; }
    else if (n >= 2 && p[0] == 0xFE && p[1] == 0xFF) { little = false; i = 2; }
    for (; i + 1 < n; i += 2) {
        char32_t u = little ? (p[i] | (p[i + 1] << 8)) : ((p[i] << 8) | p[i + 1]);
        if (u == 0) break;
        if (u >= 0xD800 && u < 0xDC00 && i + 3 < n) {
            const char32_t lo = little ? (p[i + 2] | (p[i + 3] << 8)) : ((p[i + 2] << 8) | p[i + 3]);
            u = 0x10000 + ((u - 0xD800) << 10) + (lo - 0xDC00);
            i += 2;
        }
        appendUtf8(out, u);
    }
    return out;
}

} // namespace

namespace {

bool sameDescription(const std::string& a, const std::string& b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

// TXXX body: encoding, terminated description, value; both in one encoding.
std::vector<std::uint8_t> userTextBody(const std::string& description, const std::string& value)
{
    const bool ascii = isAscii(description) && isAscii(value);
    std::vector<std::uint8_t> body;
    if (ascii) {
        body = encodeText(description, true);
        body.insert(body.end(), value.begin(), value.end());
        return body;
    }
    // UTF-16 with a BOM before each string.
    auto encode16 = [](const std::string& s) {
        std::vector<std::uint8_t> b = encodeText(s, false);
        if (b[0] == 0) { // plain ASCII: re-encode as UTF-16
            std::vector<std::uint8_t> w = {1, 0xFF, 0xFE};
            for (std::size_t i = 1; i < b.size(); ++i) { w.push_back(b[i]); w.push_back(0); }
            return w;
        }
        return b;
    };
    body = encode16(description);
    body.push_back(0); body.push_back(0);
    const auto v = encode16(value);
    body.insert(body.end(), v.begin() + 1, v.end());
    return body;
}

void parseUserText(const std::uint8_t* body, std::size_t n, Tags& out)
{
    if (n < 2)
        return;
    const int enc = body[0];
    const bool wide = enc == 1 || enc == 2;
    std::size_t i = 1;
    if (wide) {
        while (i + 1 < n && !(body[i] == 0 && body[i + 1] == 0)) i += 2;
    } else {
        while (i < n && body[i] != 0) ++i;
    }
    const std::size_t descEnd = i;
    i += wide ? 2 : 1;
    std::vector<std::uint8_t> desc(body, body + descEnd);
    std::vector<std::uint8_t> value;
    value.push_back(body[0]);
    if (i < n)
        value.insert(value.end(), body + i, body + n);
    out.setUserText(decodeText(desc.data(), desc.size()), decodeText(value.data(), value.size()));
}

} // namespace

void Tags::setUserText(const std::string& description, const std::string& value)
{
    for (auto& [d, v] : userText) {
        if (sameDescription(d, description)) {
            v = value;
            return;
        }
    }
    userText.emplace_back(description, value);
}

std::string Tags::userTextValue(const std::string& description) const
{
    for (const auto& [d, v] : userText)
        if (sameDescription(d, description))
            return v;
    return {};
}

std::vector<std::uint8_t> buildId3v2(const Tags& t)
{
    std::vector<std::uint8_t> frames;
    auto text = [&frames](const char id[4], const std::string& v) {
        if (!v.empty())
            appendFrame(frames, id, encodeText(v, false));
    };
    text("TIT2", t.title);
    text("TPE1", t.artist);
    text("TALB", t.album);
    text("TCON", t.genre);
    text("TYER", t.year);
    if (t.track > 0)
        text("TRCK", std::to_string(t.track));
    if (!t.comment.empty()) {
        // COMM: encoding, language, empty short description, then the text,
        // both in the frame's one encoding.
        const bool ascii = isAscii(t.comment);
        std::vector<std::uint8_t> body;
        body.push_back(ascii ? 0 : 1);
        body.push_back('e'); body.push_back('n'); body.push_back('g');
        if (ascii) {
            body.push_back(0);
        } else {
            body.push_back(0xFF); body.push_back(0xFE); body.push_back(0); body.push_back(0);
        }
        auto txt = encodeText(t.comment, false);
        body.insert(body.end(), txt.begin() + 1, txt.end());
        appendFrame(frames, "COMM", body);
    }
    for (const auto& [description, value] : t.userText)
        if (!description.empty())
            appendFrame(frames, "TXXX", userTextBody(description, value));
    if (!t.cover.empty()) {
        // APIC: encoding, MIME type, picture type 3 (front cover), empty description, data.
        std::vector<std::uint8_t> body;
        body.push_back(0);
        for (char c : t.coverMime)
            body.push_back(static_cast<std::uint8_t>(c));
        body.push_back(0);
        body.push_back(3);
        body.push_back(0);
        body.insert(body.end(), t.cover.begin(), t.cover.end());
        appendFrame(frames, "APIC", body);
    }
    std::vector<std::uint8_t> tag = {'I', 'D', '3', 3, 0, 0};
    const auto n = static_cast<std::uint32_t>(frames.size());
    tag.push_back((n >> 21) & 0x7F); tag.push_back((n >> 14) & 0x7F);
    tag.push_back((n >> 7) & 0x7F); tag.push_back(n & 0x7F);
    tag.insert(tag.end(), frames.begin(), frames.end());
    return tag;
}

bool parseId3v2(const std::uint8_t* d, std::size_t size, Tags& out)
{
    if (size < 10 || std::memcmp(d, "ID3", 3) != 0)
        return false;
    const int version = d[3];
    const std::size_t tagSize = (std::size_t(d[6] & 0x7F) << 21) | (std::size_t(d[7] & 0x7F) << 14)
        | (std::size_t(d[8] & 0x7F) << 7) | std::size_t(d[9] & 0x7F);
    const std::size_t end = std::min(size, tagSize + 10);
    std::size_t pos = 10;
    while (pos + 10 <= end && d[pos] != 0) {
        const std::uint8_t* f = d + pos;
        std::size_t n;
        if (version >= 4)
            n = (std::size_t(f[4] & 0x7F) << 21) | (std::size_t(f[5] & 0x7F) << 14) | (std::size_t(f[6] & 0x7F) << 7) | (f[7] & 0x7F);
        else
            n = (std::size_t(f[4]) << 24) | (std::size_t(f[5]) << 16) | (std::size_t(f[6]) << 8) | f[7];
        if (pos + 10 + n > end)
            break;
        const std::uint8_t* body = f + 10;
        const std::string id(reinterpret_cast<const char*>(f), 4);
        if (id == "TIT2") out.title = decodeText(body, n);
        else if (id == "TPE1") out.artist = decodeText(body, n);
        else if (id == "TALB") out.album = decodeText(body, n);
        else if (id == "TCON") out.genre = decodeText(body, n);
        else if (id == "TYER" || id == "TDRC") out.year = decodeText(body, n);
        else if (id == "TRCK") out.track = std::atoi(decodeText(body, n).c_str());
        else if (id == "TXXX") parseUserText(body, n, out);
        else if (id == "COMM" && n > 4) {
            // Skip language and the terminated short description.
            const int enc = body[0];
            std::size_t i = 4;
            if (enc == 1 || enc == 2) {
                while (i + 1 < n && !(body[i] == 0 && body[i + 1] == 0)) i += 2;
                i += 2;
            } else {
                while (i < n && body[i] != 0) ++i;
                i += 1;
            }
            if (i <= n) {
                std::vector<std::uint8_t> rest;
                rest.push_back(body[0]);
                rest.insert(rest.end(), body + i, body + n);
                out.comment = decodeText(rest.data(), rest.size());
            }
        }
        pos += 10 + n;
    }
    return true;
}

} // namespace zuvo::io
