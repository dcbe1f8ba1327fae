#pragma once
// Big-endian fields and chunk ids as DSDIFF stores them, shared by its
// readers and writers.

#include <cstdint>
#include <vector>

namespace zuvo::io {

inline std::uint64_t be(const std::uint8_t* p, int n)
{
    std::uint64_t v = 0;
    for (int i = 0; i < n; ++i)
        v = (v << 8) | p[i];
    return v;
}

inline void putBE(std::vector<std::uint8_t>& b, std::uint64_t v, int n)
{
    for (int i = n - 1; i >= 0; --i)
        b.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

inline void putId(std::vector<std::uint8_t>& b, const char* id)
{
    // Byte by byte: a range insert into an empty vector trips a false
    // overflow warning in GCC 12.
    for (int i = 0; i < 4; ++i)
        b.push_back(static_cast<std::uint8_t>(id[i]));
}

} // namespace zuvo::io
