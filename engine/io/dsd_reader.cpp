#include "io/dsd_reader.h"

#include <cerrno>
#include <cstring>

#include "io/dff_reader.h"
#include "io/dsf_reader.h"

namespace zuvo::io {

DsdReader::~DsdReader()
{
    if (file_)
        std::fclose(file_);
}

bool DsdReader::openFile(const std::string& path, std::string* error)
{
    path_ = path;
    file_ = std::fopen(path.c_str(), "rb");
    if (!file_) {
        if (error)
            *error = "cannot open " + path + ": " + std::strerror(errno);
        return false;
    }
    return true;
}

bool DsdReader::readExact(void* dst, std::size_t n)
{
    return std::fread(dst, 1, n, file_) == n;
}

bool DsdReader::seek(std::uint64_t offset)
{
    return fseeko(file_, static_cast<off_t>(offset), SEEK_SET) == 0;
}

std::unique_ptr<DsdReader> openDsdFile(const std::string& path, std::string* error)
{
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (!f) {
        if (error)
            *error = "cannot open " + path + ": " + std::strerror(errno);
        return nullptr;
    }
    char magic[4] = {};
    const std::size_t got = std::fread(magic, 1, 4, f);
    std::fclose(f);
    std::unique_ptr<DsdReader> reader;
    if (got == 4 && std::memcmp(magic, "DSD ", 4) == 0)
        reader = std::make_unique<DsfReader>();
    else if (got == 4 && std::memcmp(magic, "FRM8", 4) == 0)
        reader = std::make_unique<DffReader>();
    else {
        if (error)
            *error = path + " is neither a DSF nor a DSDIFF file";
        return nullptr;
    }
    if (!reader->open(path, error))
        return nullptr;
    return reader;
}

} // namespace zuvo::io
