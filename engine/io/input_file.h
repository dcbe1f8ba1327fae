#pragma once
// Opening an input file for reading without ever blocking: a FIFO, a device
// or a socket would stall open() or read() until someone writes to it, so
// anything but a regular file is refused with a message that says what it is.
#include <cstdint>
#include <string>

namespace zuvo::io {

struct InputFd {
    int fd = -1;              // open for reading, blocking mode restored
    std::uint64_t size = 0;   // the file's size when it was opened
};

// Returns the open descriptor, or fd -1 with `error` naming the path and why.
InputFd openRegularInput(const std::string& path, std::string* error);

// What a non-regular file is, for messages ("a FIFO", "a directory", ...).
const char* fileKindName(unsigned mode);

} // namespace zuvo::io
