// DSDIFF 1.5: FRM8 form of type "DSD " holding FVER, PROP (FS, CHNL, CMPR),
// the tag chunks (COMT, DIIN with DIAR/DITI), then the uncompressed DSD
// chunk, byte-interleaved and earliest bit in bit 7, then an ID3 chunk for
// the fields DSDIFF has no place for. COMT and DIIN come before the sound
// data so that readers which stop there still see artist and title.
#include "io/dff_writer.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

#include "io/bit_order.h"
#include "io/be_fields.h"

namespace zuvo::io {

namespace {

using Bytes = std::vector<std::uint8_t>;

// A chunk: id, 8-byte size, body, pad byte to an even length.
void putChunk(Bytes& b, const char* id, const Bytes& body)
{
    putId(b, id);
    putBE(b, body.size(), 8);
    b.insert(b.end(), body.begin(), body.end());
    if (body.size() & 1)
        b.push_back(0);
}

// Count and text. In COMT each comment carries its own pad byte inside the
// chunk; DIAR and DITI are nothing but the text, so their pad byte is the
// chunk's, outside its size (putChunk adds it).
enum class TextPad { InBody, ChunkPads };
void putCountedText(Bytes& b, const std::string& text, TextPad pad)
{
    putBE(b, text.size(), 4);
    b.insert(b.end(), text.begin(), text.end());
    if ((text.size() & 1) && pad == TextPad::InBody)
        b.push_back(0);
}

Bytes propChunkBody(const DsdFormat& f)
{
    Bytes prop;
    putId(prop, "SND ");
    Bytes fs;
    putBE(fs, static_cast<std::uint64_t>(f.sampleRate), 4);
    putChunk(prop, "FS  ", fs);
    Bytes chnl;
    putBE(chnl, static_cast<std::uint64_t>(f.channels), 2);
    for (const std::string& id : dffChannelIds(f.layout.empty() ? defaultLayout(f.channels) : f.layout))
        putId(chnl, id.c_str());
    putChunk(prop, "CHNL", chnl);
    Bytes cmpr;
    putId(cmpr, "DSD ");
    const std::string name = "not compressed";
    cmpr.push_back(static_cast<std::uint8_t>(name.size()));
    cmpr.insert(cmpr.end(), name.begin(), name.end());
    if ((name.size() + 1) & 1)
        cmpr.push_back(0);
    putChunk(prop, "CMPR", f.dstLevel > 0 ? DffDstSink::cmprBody() : cmpr);
    return prop;
}

Bytes tagChunks(const Tags& tags)
{
    Bytes out;
    if (!tags.comment.empty()) {
        std::time_t now = std::time(nullptr);
        std::tm tm{};
        gmtime_r(&now, &tm);
        Bytes comt;
        putBE(comt, 1, 2); // one comment
        putBE(comt, static_cast<std::uint64_t>(tm.tm_year + 1900), 2);
        comt.push_back(static_cast<std::uint8_t>(tm.tm_mon + 1));
        comt.push_back(static_cast<std::uint8_t>(tm.tm_mday));
        comt.push_back(static_cast<std::uint8_t>(tm.tm_hour));
        comt.push_back(static_cast<std::uint8_t>(tm.tm_min));
        putBE(comt, 0, 2); // general comment
        putBE(comt, 0, 2); // no reference
        putCountedText(comt, tags.comment, TextPad::InBody);
        putChunk(out, "COMT", comt);
    }
    // DIIN with artist and title is written even when both are empty: the
    // front-end always sends them for .dff and some players expect it.
    Bytes diin;
    Bytes diar;
    putCountedText(diar, tags.artist, TextPad::ChunkPads);
    putChunk(diin, "DIAR", diar);
    Bytes diti;
    putCountedText(diti, tags.title, TextPad::ChunkPads);
    putChunk(diin, "DITI", diti);
    putChunk(out, "DIIN", diin);
    return out;
}

} // namespace

bool DffWriter::open(const std::string& path, const DsdFormat& format, const Tags& tags, std::string* error)
{
    if (format.channels < 1 || format.channels > 1000
        || (!format.layout.empty() && format.layout.size() != static_cast<std::size_t>(format.channels))) {
        if (error)
            *error = "unsupported channel count for DSDIFF";
        return false;
    }
    format_ = format;
    tags_ = tags;
    pending_.reset(format.channels);
    validBytes_ = 0;
    useDst_ = format.dstLevel > 0;
    if (useDst_ && !dst_.start(format.channels, format.sampleRate, format.dstLevel, error))
        return false;

    Bytes head;
    putId(head, "FRM8");
    putBE(head, 0, 8); // form size, set below and kept up to date
    putId(head, "DSD ");
    Bytes fver;
    putBE(fver, 0x01050000, 4);
    putChunk(head, "FVER", fver);
    putChunk(head, "PROP", propChunkBody(format));
    const Bytes tagBytes = tagChunks(tags);
    head.insert(head.end(), tagBytes.begin(), tagBytes.end());
    dsdChunkOffset_ = head.size();
    if (useDst_) {
        const Bytes dstHead = dst_.chunkHead();
        head.insert(head.end(), dstHead.begin(), dstHead.end());
    } else {
        putId(head, "DSD ");
        putBE(head, 0, 8); // sound data size, kept up to date
    }
    // The form holds everything up to here: a valid file from the start.
    const std::uint64_t formSize = head.size() - 12;
    for (int i = 0; i < 8; ++i)
        head[static_cast<std::size_t>(4 + i)] = static_cast<std::uint8_t>(formSize >> (8 * (7 - i)));
    if (!file_.open(path, error))
        return false;
    return file_.write(head.data(), head.size(), error);
}

bool DffWriter::writeInterleaved(std::size_t n, std::string* error)
{
    const std::size_t ch = pending_.channels();
    interleaved_.resize(n * ch);
    for (std::size_t c = 0; c < ch; ++c) {
        const std::uint8_t* src = pending_.data(c);
        std::uint8_t* dst = interleaved_.data() + c;
        for (std::size_t i = 0; i < n; ++i)
            dst[i * ch] = src[i];
    }
    if (!file_.write(interleaved_.data(), interleaved_.size(), error))
        return false;
    validBytes_ += n;
    pending_.drop(n);
    return true;
}

bool DffWriter::write(const std::vector<std::vector<std::uint8_t>>& perChannel, std::string* error)
{
    pending_.append(perChannel);
    if (useDst_) {
        const bool ok = dst_.push(file_, pending_, error);
        validBytes_ = dst_.validBytes();
        // Frames are committed as they come so memory stays bounded; the
        // DST chunk's sizes and index are only written by finalize.
        if (ok && (clock_.due() || file_.pendingBytes() >= kRefreshPendingBytes))
            return file_.sync(error, false);
        return ok;
    }
    const std::size_t common = pending_.common();
    if (common > 0 && !writeInterleaved(common, error))
        return false;
    if (clock_.due())
        return refreshHeader(true, error);
    return file_.pendingBytes() < kRefreshPendingBytes || refreshHeader(false, error);
}

bool DffWriter::refreshHeader(bool toDisk, std::string* error)
{
    // An odd data size lacks its pad byte until the end; readers accept
    // that of a file's last chunk. The sound chunk grows before the form
    // does: killed between the two, the form still ends where the file
    // did before this commit, which readers take as a short last chunk,
    // never as a stray chunk header read out of the sound data.
    const std::uint64_t dataBytes = validBytes_ * pending_.channels();
    return file_.sync(error, toDisk) && file_.patchBE(dsdChunkOffset_ + 4, dataBytes, 8, error)
        && file_.patchBE(4, dsdChunkOffset_ + dataBytes, 8, error);
}

bool DffWriter::finalize(std::string* error)
{
    if (useDst_)
        return finalizeDst(error);
    const std::size_t longest = pending_.padToLongest();
    if (longest > 0 && !writeInterleaved(longest, error))
        return false;
    const std::uint64_t dataBytes = validBytes_ * pending_.channels();
    if ((dataBytes & 1) && !file_.writeU8(0, error))
        return false;
    // The fields DSDIFF has no chunk for (album, genre, year, track) travel
    // in an ID3 chunk after the sound data, where readers look for it.
    if (!tags_.empty()) {
        Bytes id3Chunk;
        putChunk(id3Chunk, "ID3 ", buildId3v2(tags_));
        if (!file_.write(id3Chunk.data(), id3Chunk.size(), error))
            return false;
    }
    const std::uint64_t formSize = file_.position() - 12;
    return file_.patchBE(4, formSize, 8, error) && file_.patchBE(dsdChunkOffset_ + 4, dataBytes, 8, error)
        && file_.close(error);
}

bool DffWriter::finalizeDst(std::string* error)
{
    if (!dst_.finish(file_, pending_, dsdChunkOffset_, error))
        return false;
    validBytes_ = dst_.validBytes();
    if (!tags_.empty()) {
        Bytes id3Chunk;
        putChunk(id3Chunk, "ID3 ", buildId3v2(tags_));
        if (!file_.write(id3Chunk.data(), id3Chunk.size(), error))
            return false;
    }
    return file_.patchBE(4, file_.position() - 12, 8, error) && file_.close(error);
}

void DffWriter::discard()
{
    file_.discard();
}

} // namespace zuvo::io
