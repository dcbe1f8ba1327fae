// Feeds one DSF or DSDIFF file to the engine's reader: open, then read the
// whole stream in uneven pieces. The bytes are read from memory through the
// same parsing code that reads files.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "io/dsd_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The magic is forced so that every input exercises the one reader this
    // target is about; seeds are whole files, the fuzzer mutates the rest.
    static const char magic[] = ZUVO_FUZZ_MAGIC;
    std::vector<std::uint8_t> file(data, data + size);
    if (file.size() < 4)
        file.insert(file.begin(), magic, magic + 4 - file.size());
    std::memcpy(file.data(), magic, 4);
    std::string error;
    auto reader = zuvo::io::openDsdMemory(file.data(), file.size(), "fuzz-input", &error);
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
