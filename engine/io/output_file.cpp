#include "io/output_file.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace zuvo::io {

namespace {
constexpr std::size_t kBufferSize = 1 << 20; // large sequential writes, few syscalls
}

OutputFile::~OutputFile()
{
    if (file_)
        discard();
    delete[] buffer_;
}

bool OutputFile::fail(std::string* error, const char* what)
{
    if (error)
        *error = std::string(what) + " " + path_ + ": " + std::strerror(errno ? errno : EIO);
    return false;
}

bool OutputFile::open(const std::string& path, std::string* error)
{
    path_ = path;
    // Only a regular file (or a new one) is ours to delete on failure: the
    // output may name a device such as /dev/null.
    struct stat st {};
    removable_ = ::stat(path.c_str(), &st) != 0 || S_ISREG(st.st_mode);
    errno = 0;
    file_ = std::fopen(path.c_str(), "wb");
    if (!file_)
        return fail(error, "cannot create");
    if (!buffer_)
        buffer_ = new char[kBufferSize];
    std::setvbuf(file_, buffer_, _IOFBF, kBufferSize);
    written_ = 0;
    return true;
}

bool OutputFile::write(const void* data, std::size_t size, std::string* error)
{
    if (!file_)
        return fail(error, "not open:");
    if (size == 0)
        return true;
    errno = 0;
    if (std::fwrite(data, 1, size, file_) != size)
        return fail(error, "cannot write");
    written_ += size;
    return true;
}

bool OutputFile::writeLE(std::uint64_t v, int bytes, std::string* error)
{
    std::uint8_t b[8];
    for (int i = 0; i < bytes; ++i)
        b[i] = static_cast<std::uint8_t>(v >> (8 * i));
    return write(b, static_cast<std::size_t>(bytes), error);
}

bool OutputFile::writeBE(std::uint64_t v, int bytes, std::string* error)
{
    std::uint8_t b[8];
    for (int i = 0; i < bytes; ++i)
        b[i] = static_cast<std::uint8_t>(v >> (8 * (bytes - 1 - i)));
    return write(b, static_cast<std::size_t>(bytes), error);
}

bool OutputFile::patch(std::uint64_t offset, const std::uint8_t* bytes, int n, std::string* error)
{
    errno = 0;
    if (std::fflush(file_) != 0)
        return fail(error, "cannot write");
    if (fseeko(file_, static_cast<off_t>(offset), SEEK_SET) != 0)
        return fail(error, "cannot seek in");
    if (std::fwrite(bytes, 1, static_cast<std::size_t>(n), file_) != static_cast<std::size_t>(n))
        return fail(error, "cannot write");
    if (std::fflush(file_) != 0)
        return fail(error, "cannot write");
    if (fseeko(file_, 0, SEEK_END) != 0)
        return fail(error, "cannot seek in");
    return true;
}

bool OutputFile::patchLE(std::uint64_t offset, std::uint64_t v, int bytes, std::string* error)
{
    std::uint8_t b[8];
    for (int i = 0; i < bytes; ++i)
        b[i] = static_cast<std::uint8_t>(v >> (8 * i));
    return patch(offset, b, bytes, error);
}

bool OutputFile::patchBE(std::uint64_t offset, std::uint64_t v, int bytes, std::string* error)
{
    std::uint8_t b[8];
    for (int i = 0; i < bytes; ++i)
        b[i] = static_cast<std::uint8_t>(v >> (8 * (bytes - 1 - i)));
    return patch(offset, b, bytes, error);
}

bool OutputFile::sync(std::string* error)
{
    if (!file_)
        return fail(error, "not open:");
    errno = 0;
    if (std::fflush(file_) != 0)
        return fail(error, "cannot write");
    if (::fdatasync(fileno(file_)) != 0 && errno != EINVAL && errno != EROFS)
        return fail(error, "cannot write");
    return true;
}

bool OutputFile::close(std::string* error)
{
    if (!file_)
        return true;
    errno = 0;
    bool ok = std::fflush(file_) == 0;
    if (ok && ::fsync(fileno(file_)) != 0 && errno != EINVAL && errno != EROFS)
        ok = false; // delayed allocation failures (full disk) surface here
    const int err = errno;
    if (std::fclose(file_) != 0 && ok)
        ok = false;
    file_ = nullptr;
    if (!ok) {
        errno = err ? err : errno;
        return fail(error, "cannot finish writing");
    }
    return true;
}

void OutputFile::discard()
{
    if (file_) {
        std::fclose(file_);
        file_ = nullptr;
    }
    if (!path_.empty() && removable_)
        ::unlink(path_.c_str());
}

} // namespace zuvo::io
