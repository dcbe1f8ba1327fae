// Feeds one DSF or DSDIFF file to the engine's reader: open, then read the
// whole stream in uneven pieces. The reader takes a path, so the input goes
// into an anonymous in-memory file opened through /proc.
#include <cstdint>
#include <cstring>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

#include "io/dsd_reader.h"

namespace {
int memoryFile()
{
    static const int fd = ::memfd_create("zuvo-fuzz", 0);
    return fd;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const int fd = memoryFile();
    if (fd < 0 || ::ftruncate(fd, 0) != 0)
        return 0;
    // The magic is forced so that every input exercises the one reader this
    // target is about; seeds are whole files, the fuzzer mutates the rest.
    static const char magic[] = ZUVO_FUZZ_MAGIC;
    std::vector<std::uint8_t> file(data, data + size);
    if (file.size() < 4)
        file.insert(file.begin(), magic, magic + 4 - file.size());
    std::memcpy(file.data(), magic, 4);
    if (::pwrite(fd, file.data(), file.size(), 0) != static_cast<ssize_t>(file.size()))
        return 0;
    const std::string path = "/proc/self/fd/" + std::to_string(fd);
    std::string error;
    auto reader = zuvo::io::openDsdFile(path, &error);
    if (!reader)
        return 0;
    std::vector<std::vector<std::uint8_t>> out;
    std::size_t piece = 1000;
    std::uint64_t total = 0;
    for (;;) {
        const long long got = reader->read(piece, out, &error);
        if (got <= 0)
            break;
        total += static_cast<std::uint64_t>(got);
        // Whatever the header says, a reader cannot deliver more than the
        // file holds.
        if (total > file.size())
            __builtin_trap();
        piece = piece * 7 % 8191 + 1;
    }
    return 0;
}
