#include "io/dsd_reader.h"

#include <cerrno>
#include <cstring>

#include <unistd.h>

#include "io/dff_reader.h"
#include "io/dsf_reader.h"
#include "io/input_file.h"

namespace zuvo::io {

DsdReader::~DsdReader()
{
    if (file_)
        std::fclose(file_);
}

bool DsdReader::attachMemory(const std::uint8_t* data, std::size_t size, const std::string& name)
{
    if (file_ || size == 0)
        return false;
    file_ = ::fmemopen(const_cast<std::uint8_t*>(data), size, "rb");
    path_ = name;
    fileSize_ = size;
    return file_ != nullptr;
}

bool DsdReader::openFile(const std::string& path, std::string* error)
{
    if (file_)
        return true;
    path_ = path;
    const InputFd in = openRegularInput(path, error);
    if (in.fd < 0)
        return false;
    file_ = ::fdopen(in.fd, "rb");
    if (!file_) {
        if (error)
            *error = "cannot open " + path + ": " + std::strerror(errno);
        ::close(in.fd);
        return false;
    }
    fileSize_ = in.size;
    return true;
}

bool DsdReader::truncated(std::string* error, const char* what, std::uint64_t declared, std::uint64_t found) const
{
    if (error)
        *error = path_ + " is truncated: its header declares " + std::to_string(declared) + " " + what
            + " and the file holds " + std::to_string(found);
    return false;
}

bool DsdReader::readExact(void* dst, std::size_t n)
{
    return std::fread(dst, 1, n, file_) == n;
}

bool DsdReader::seek(std::uint64_t offset)
{
    // Past the end of the file is never a valid place to read from.
    return offset <= fileSize_ && fseeko(file_, static_cast<off_t>(offset), SEEK_SET) == 0;
}

std::unique_ptr<DsdReader> openDsdFile(const std::string& path, std::string* error)
{
    const InputFd in = openRegularInput(path, error);
    if (in.fd < 0)
        return nullptr;
    char magic[4] = {};
    const ssize_t got = ::read(in.fd, magic, 4);
    ::close(in.fd);
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

std::unique_ptr<DsdReader> openDsdMemory(const std::uint8_t* data, std::size_t size, const std::string& name,
                                         std::string* error)
{
    std::unique_ptr<DsdReader> reader;
    if (size >= 4 && std::memcmp(data, "DSD ", 4) == 0)
        reader = std::make_unique<DsfReader>();
    else if (size >= 4 && std::memcmp(data, "FRM8", 4) == 0)
        reader = std::make_unique<DffReader>();
    if (!reader || !reader->attachMemory(data, size, name)) {
        if (error)
            *error = name + " is neither a DSF nor a DSDIFF file";
        return nullptr;
    }
    if (!reader->open(name, error))
        return nullptr;
    return reader;
}

} // namespace zuvo::io
