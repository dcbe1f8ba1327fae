#include "io/input_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zuvo::io {

const char* fileKindName(unsigned mode)
{
    switch (mode & S_IFMT) {
    case S_IFIFO: return "a FIFO (named pipe)";
    case S_IFCHR: return "a character device";
    case S_IFBLK: return "a block device";
    case S_IFSOCK: return "a socket";
    case S_IFDIR: return "a folder";
    default: return "not a regular file";
    }
}

InputFd openRegularInput(const std::string& path, std::string* error)
{
    // O_NONBLOCK keeps open() of a FIFO without a writer from waiting; the
    // file's kind is then judged on the descriptor itself, so nothing can
    // swap the file between the check and the read.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        if (error)
            *error = "cannot open " + path + ": " + std::strerror(errno);
        return {};
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        if (error)
            *error = "cannot read " + path + ": it is " + fileKindName(st.st_mode)
                + ", not a regular file; give the audio as a file";
        ::close(fd);
        return {};
    }
    const int flags = ::fcntl(fd, F_GETFL);
    if (flags >= 0)
        ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);
    return {fd, static_cast<std::uint64_t>(st.st_size)};
}

} // namespace zuvo::io
