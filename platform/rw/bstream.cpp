#include "rw/bstream.h"

#include "rw/endian.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <istream>
#include <ostream>
#include <type_traits>

namespace {

// The stored width of each scalar on the original platform.
template <class T>
struct Wire;
template <>
struct Wire<char> {
    using type = std::int8_t;
};
template <>
struct Wire<signed char> {
    using type = std::int8_t;
};
template <>
struct Wire<unsigned char> {
    using type = std::uint8_t;
};
template <>
struct Wire<wchar_t> {
    using type = std::uint16_t;
};
template <>
struct Wire<short> {
    using type = std::int16_t;
};
template <>
struct Wire<unsigned short> {
    using type = std::uint16_t;
};
template <>
struct Wire<int> {
    using type = std::int32_t;
};
template <>
struct Wire<unsigned int> {
    using type = std::uint32_t;
};
template <>
struct Wire<long> {
    using type = std::int32_t;
};
template <>
struct Wire<unsigned long> {
    using type = std::uint32_t;
};
template <>
struct Wire<float> {
    using type = float;
};
template <>
struct Wire<double> {
    using type = double;
};

} // namespace

// ---- RWbostream

RWbostream::RWbostream(std::ostream& s) : sb_(s.rdbuf()), os_(&s) {
    if (!sb_) setstate(badbit);
}
RWbostream::RWbostream(std::streambuf* sb) : sb_(sb) {
    if (!sb_) setstate(badbit);
}

void RWbostream::write(const void* p, size_t n) {
    if (!RWvios::good()) return; // the state itself, without a virtual call per value
    if (static_cast<size_t>(sb_->sputn(static_cast<const char*>(p), static_cast<std::streamsize>(n))) != n) {
        setstate(failbit | badbit);
        if (os_) os_->setstate(std::ios::badbit);
    }
}

#define X(T)                                                                                                 \
    RWvostream& RWbostream::operator<<(T v) {                                                                \
        using W = Wire<T>::type;                                                                             \
        unsigned char b[sizeof(W)];                                                                          \
        rwwire::store<W>(b, static_cast<W>(v));                                                              \
        write(b, sizeof b);                                                                                  \
        return *this;                                                                                        \
    }                                                                                                        \
    RWvostream& RWbostream::put(const T* p, size_t n) {                                                      \
        if constexpr (sizeof(Wire<T>::type) == 1) /* bytes as they are, in one piece */                      \
            write(p, n);                                                                                     \
        else                                                                                                 \
            for (size_t i = 0; i < n; ++i)                                                                   \
                *this << p[i];                                                                               \
        return *this;                                                                                        \
    }
RW_VSTREAM_SCALARS(X)
#undef X

RWvostream& RWbostream::operator<<(const char* s) {
    s = s ? s : "";
    return putString(s, std::char_traits<char>::length(s));
}

// The count and a short string go to the streambuf in one piece.
RWvostream& RWbostream::putString(const char* s, size_t n) {
    unsigned char stueck[256];
    rwwire::store<std::uint32_t>(stueck, static_cast<std::uint32_t>(n));
    if (n <= sizeof stueck - 4) {
        std::memcpy(stueck + 4, s, n);
        write(stueck, 4 + n);
    } else {
        write(stueck, 4);
        write(s, n);
    }
    return *this;
}

RWvostream& RWbostream::flush() {
    if (sb_ && sb_->pubsync() != 0) setstate(badbit);
    return *this;
}

// ---- RWbistream

RWbistream::RWbistream(std::istream& s) : sb_(s.rdbuf()), is_(&s) {
    if (!sb_) setstate(badbit);
}
RWbistream::RWbistream(std::streambuf* sb) : sb_(sb) {
    if (!sb_) setstate(badbit);
}

bool RWbistream::read(void* p, size_t n) {
    if (!RWvios::good()) return false;
    if (static_cast<size_t>(sb_->sgetn(static_cast<char*>(p), static_cast<std::streamsize>(n))) != n) {
        setstate(failbit | eofbit);
        if (is_) is_->setstate(std::ios::failbit | std::ios::eofbit);
        return false;
    }
    return true;
}

int RWbistream::get() {
    unsigned char c;
    return read(&c, 1) ? c : std::char_traits<char>::eof();
}

#define X(T)                                                                                                 \
    RWvistream& RWbistream::operator>>(T& v) {                                                               \
        using W = Wire<T>::type;                                                                             \
        unsigned char b[sizeof(W)];                                                                          \
        if (read(b, sizeof b)) v = static_cast<T>(rwwire::load<W>(b));                                       \
        return *this;                                                                                        \
    }                                                                                                        \
    RWvistream& RWbistream::get(T* p, size_t n) {                                                            \
        for (size_t i = 0; i < n && good(); ++i)                                                             \
            *this >> p[i];                                                                                   \
        return *this;                                                                                        \
    }
RW_VSTREAM_SCALARS(X)
#undef X

RWvistream& RWbistream::getString(char* s, size_t maxlen) {
    unsigned int n = 0;
    *this >> n;
    if (!good()) return *this;
    if (maxlen == 0 || n > maxlen - 1) {
        setstate(failbit);
        return *this;
    }
    if (read(s, n)) s[n] = '\0';
    return *this;
}

RWvistream& RWbistream::getString(std::string& s, size_t n) {
    unsigned int stored = 0;
    *this >> stored;
    if (!good()) return *this;
    if (stored != n) { // the two lengths of one string disagree: the stream is out of step
        setstate(failbit);
        return *this;
    }
    if (sb_->in_avail() >= static_cast<std::streamsize>(n)) { // all buffered: straight into s
        s.resize(n);
        read(s.data(), n);
        return *this;
    }
    // The streambuf cannot tell that the string is all there: it is read piece by piece, and the string
    // grows only with the characters that arrived, however long the stored length says it is.
    std::string value;
    char stueck[4096];
    while (value.size() < n) {
        const size_t will = std::min(sizeof stueck, n - value.size());
        if (!read(stueck, will)) return *this;
        value.append(stueck, will);
    }
    s.swap(value);
    return *this;
}
