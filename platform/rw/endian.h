// Little-endian loads and stores of fixed-width values, whatever the host's byte order.
// Shared by RWFile and the binary virtual streams, which write the same bytes.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace rwwire {

template <class T>
inline T load(const unsigned char* p) {
    static_assert(sizeof(T) == 1 || sizeof(T) == 2 || sizeof(T) == 4 || sizeof(T) == 8,
                  "stored values are 1, 2, 4 or 8 bytes wide");
    T v;
    std::memcpy(&v, p, sizeof v);
    if constexpr (std::endian::native == std::endian::big && sizeof(T) > 1) {
        unsigned char b[sizeof(T)];
        std::memcpy(b, &v, sizeof b);
        for (size_t i = 0; i < sizeof b / 2; ++i)
            std::swap(b[i], b[sizeof b - 1 - i]);
        std::memcpy(&v, b, sizeof b);
    }
    return v;
}

template <class T>
inline void store(unsigned char* p, T v) {
    std::memcpy(p, &v, sizeof v);
    if constexpr (std::endian::native == std::endian::big && sizeof(T) > 1)
        for (size_t i = 0; i < sizeof(T) / 2; ++i)
            std::swap(p[i], p[sizeof(T) - 1 - i]);
}

} // namespace rwwire
