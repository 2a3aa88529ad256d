// Small helpers shared by the tests: temporary files and byte comparison.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace qbtest {

using Bytes = std::vector<unsigned char>;

// A file name in the test's temporary folder, removed when the object goes.
class TempFile {
public:
    explicit TempFile(const std::string& stem) {
        static int counter = 0;
        path_ = ::testing::TempDir() + "qbformul_" + stem + "_" + std::to_string(processId()) + "_" +
                std::to_string(counter++) + ".bin";
        std::remove(path_.c_str());
    }
    ~TempFile() { std::remove(path_.c_str()); }
    const char* path() const { return path_.c_str(); }

private:
    static int processId();
    std::string path_;
};

inline Bytes readBytes(const char* path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void writeBytes(const char* path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

inline Bytes bytesOf(const std::string& s) { return Bytes(s.begin(), s.end()); }

inline std::string hex(const Bytes& b) {
    std::string out;
    char buf[4];
    for (size_t i = 0; i < b.size(); ++i) {
        std::snprintf(buf, sizeof buf, "%02X", b[i]);
        if (i) out += ' ';
        out += buf;
    }
    return out;
}

// Concatenates pieces of expected bytes.
inline Bytes cat(std::initializer_list<Bytes> parts) {
    Bytes out;
    for (const Bytes& p : parts)
        out.insert(out.end(), p.begin(), p.end());
    return out;
}

// A stored RWCString: 4-byte little-endian length, then the characters.
inline Bytes text(const std::string& s) {
    uint32_t n = static_cast<uint32_t>(s.size());
    Bytes out;
    out.reserve(4 + s.size());
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<unsigned char>(n >> shift));
    for (char c : s)
        out.push_back(static_cast<unsigned char>(c));
    return out;
}

inline Bytes int32(int32_t v) {
    uint32_t u = static_cast<uint32_t>(v);
    return {static_cast<unsigned char>(u), static_cast<unsigned char>(u >> 8),
            static_cast<unsigned char>(u >> 16), static_cast<unsigned char>(u >> 24)};
}

inline Bytes uint16(uint16_t v) {
    return {static_cast<unsigned char>(v), static_cast<unsigned char>(v >> 8)};
}

} // namespace qbtest
