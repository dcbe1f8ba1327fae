#include "io/output_file.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace zuvo::io {

namespace {
// Past this, pending bytes go to the kernel even without a commit, so that
// a writer that never commits cannot hoard memory.
constexpr std::size_t kMaxPending = std::size_t(64) << 20;
}

OutputFile::~OutputFile()
{
    if (file_)
        discard();
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
    // Our own pending buffer batches the writes; stdio's would hand them to
    // the kernel at moments the writer does not choose.
    std::setvbuf(file_, nullptr, _IONBF, 0);
    pending_.clear();
    written_ = 0;
    return true;
}

bool OutputFile::write(const void* data, std::size_t size, std::string* error)
{
    if (!file_)
        return fail(error, "not open:");
    if (size == 0)
        return true;
    const auto* p = static_cast<const std::uint8_t*>(data);
    pending_.insert(pending_.end(), p, p + size);
    written_ += size;
    return pending_.size() < kMaxPending || commitPending(error);
}

bool OutputFile::commitPending(std::string* error)
{
    if (pending_.empty())
        return true;
    errno = 0;
    if (std::fwrite(pending_.data(), 1, pending_.size(), file_) != pending_.size())
        return fail(error, "cannot write");
    pending_.clear();
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
    if (!commitPending(error))
        return false;
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

bool OutputFile::sync(std::string* error, bool toDisk)
{
    if (!file_)
        return fail(error, "not open:");
    if (!commitPending(error))
        return false;
    errno = 0;
    if (std::fflush(file_) != 0)
        return fail(error, "cannot write");
    if (toDisk && ::fdatasync(fileno(file_)) != 0 && errno != EINVAL && errno != EROFS)
        return fail(error, "cannot write");
    return true;
}

bool OutputFile::close(std::string* error)
{
    if (!file_)
        return true;
    bool ok = commitPending(error);
    errno = 0;
    ok = ok && std::fflush(file_) == 0;
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
    pending_.clear();
    pending_.shrink_to_fit();
    if (file_) {
        std::fclose(file_);
        file_ = nullptr;
    }
    if (!path_.empty() && removable_)
        ::unlink(path_.c_str());
}

} // namespace zuvo::io
