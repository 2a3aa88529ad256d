// Binary virtual streams over std::streambuf: the same widths and byte order as RWFile, no separators.
// putString(s, n) writes n as 4 bytes and then the n bytes, so an RWCString carries its length twice.
// A short read sets fail and eof.
#pragma once

#include "rw/vstream.h"

#include <iosfwd>

class RWbostream : public RWvostream {
public:
    explicit RWbostream(std::ostream& s);
    explicit RWbostream(std::streambuf* sb);

    RWvostream& operator<<(const char* s) override;
#define X(T)                                                                                                 \
    RWvostream& operator<<(T v) override;                                                                    \
    RWvostream& put(T v) override { return *this << v; }                                                     \
    RWvostream& put(const T* p, size_t n) override;
    RW_VSTREAM_SCALARS(X)
#undef X
    RWvostream& putString(const char* s, size_t n) override;
    RWvostream& flush() override;

private:
    void write(const void* p, size_t n);
    std::streambuf* sb_;
    std::ostream* os_ = nullptr;
};

class RWbistream : public RWvistream {
public:
    explicit RWbistream(std::istream& s);
    explicit RWbistream(std::streambuf* sb);

    int get() override;
#define X(T)                                                                                                 \
    RWvistream& operator>>(T& v) override;                                                                   \
    RWvistream& get(T& v) override { return *this >> v; }                                                    \
    RWvistream& get(T* p, size_t n) override;
    RW_VSTREAM_SCALARS(X)
#undef X
    RWvistream& getString(char* s, size_t maxlen) override;
    RWvistream& getString(std::string& s, size_t n) override;

private:
    bool read(void* p, size_t n);
    std::streambuf* sb_;
    std::istream* is_ = nullptr;
};
