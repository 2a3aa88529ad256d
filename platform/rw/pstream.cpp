#include "rw/pstream.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <istream>
#include <limits>
#include <ostream>
#include <string_view>
#include <type_traits>

namespace {

// The value range of each integral scalar on the original platform. The narrow characters take both their
// signed and their unsigned numbers, so a char written on either kind of platform reads back.
template <class W, long long Min = std::numeric_limits<W>::min(),
          long long Max = std::numeric_limits<W>::max()>
struct Range {
    using wire = W;
    static constexpr long long min = Min;
    static constexpr long long max = Max;
};
// clang-format off
template <class T> struct Wire;
template <> struct Wire<char> : Range<std::int8_t, -128, 255> {};
template <> struct Wire<signed char> : Range<std::int8_t, -128, 255> {};
template <> struct Wire<unsigned char> : Range<std::uint8_t, -128, 255> {};
template <> struct Wire<wchar_t> : Range<std::uint16_t> {};
template <> struct Wire<short> : Range<std::int16_t> {};
template <> struct Wire<unsigned short> : Range<std::uint16_t> {};
template <> struct Wire<int> : Range<std::int32_t> {};
template <> struct Wire<unsigned int> : Range<std::uint32_t> {};
template <> struct Wire<long> : Range<std::int32_t> {};
template <> struct Wire<unsigned long> : Range<std::uint32_t> {};
// clang-format on

constexpr size_t kLineWidth = 80; // no output line gets longer
constexpr size_t kTokenMax = 64;  // longer than any number this stream writes
constexpr size_t kNumberMax = 64; // room for the longest number text and its newline
constexpr size_t kStringChunk = 4096;

bool isWhitespace(int c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

// Characters a number token may hold; "inf" and "nan" are numbers too.
bool isTokenCharacter(int c) {
    return c != 0 && c != std::char_traits<char>::eof() &&
           std::string_view("0123456789+-.eEinfaINFA").find(static_cast<char>(c)) != std::string_view::npos;
}

// digits significant digits, or one more when those do not read back to the same bits.
template <class F>
size_t formatFloating(char* text, F v, int digits) {
    if (std::isnan(v)) { // the payload of a NaN is not kept: every NaN reads back as the default one
        const char* name = std::signbit(v) ? "-nan" : "nan";
        std::strcpy(text, name);
        return std::strlen(name);
    }
    for (int precision = digits - 1;; ++precision) {
        auto written =
            std::to_chars(text, text + kNumberMax - 1, v, std::chars_format::scientific, precision);
        F back{};
        auto parsed = std::from_chars(text, written.ptr, back);
        bool same = parsed.ec == std::errc() && std::memcmp(&back, &v, sizeof v) == 0;
        if (same || precision >= digits) return static_cast<size_t>(written.ptr - text);
    }
}

template <class T>
size_t formatNumber(char* text, T v) {
    if constexpr (std::is_same_v<T, double>) {
        return formatFloating(text, v, 16);
    } else if constexpr (std::is_same_v<T, float>) {
        return formatFloating(text, v, 8);
    } else {
        auto n = static_cast<long long>(static_cast<typename Wire<T>::wire>(v));
        return static_cast<size_t>(std::to_chars(text, text + kNumberMax - 1, n).ptr - text);
    }
}

// The characters with a named escape, and the letter after the backslash that names each.
constexpr std::string_view kNamedCharacters = "\n\t\b\r\f\v\a\\\"{}";
constexpr std::string_view kEscapeLetters = "ntbrfva\\\"[]";

// The text of c as it stands in a string: itself, or its escape.
size_t escape(unsigned char c, char* unit) {
    if (auto named = kNamedCharacters.find(static_cast<char>(c)); named != std::string_view::npos) {
        unit[0] = '\\';
        unit[1] = kEscapeLetters[named];
        return 2;
    }
    if (c > ' ' && c < 0x7F) {
        unit[0] = static_cast<char>(c);
        return 1;
    }
    const char* hex = "0123456789abcdef";
    unit[0] = '\\';
    unit[1] = 'x';
    unit[2] = hex[c >> 4];
    unit[3] = hex[c & 0xF];
    return 4;
}

int hexValue(int c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

} // namespace

// ---- RWpostream

RWpostream::RWpostream(std::ostream& s) : sb_(s.rdbuf()), os_(&s) {
    if (!sb_) setstate(badbit);
}
RWpostream::RWpostream(std::streambuf* sb) : sb_(sb) {
    if (!sb_) setstate(badbit);
}

void RWpostream::write(const char* p, size_t n) {
    if (!good() || n == 0) return;
    if (static_cast<size_t>(sb_->sputn(p, static_cast<std::streamsize>(n))) != n) {
        setstate(failbit | badbit);
        if (os_) os_->setstate(std::ios::badbit);
    }
}

// text has room for the newline behind its n characters.
void RWpostream::putNumber(char* text, size_t n) {
    if (column_ > 0 && column_ + n > kLineWidth) write("\n", 1);
    text[n] = '\n';
    write(text, n + 1);
    column_ = 0;
}

// Appends one unit of character output, behind a newline when it would make the line too long.
void RWpostream::putUnit(std::string& out, const char* unit, size_t n) {
    if (column_ > 0 && column_ + n > kLineWidth) {
        out.push_back('\n');
        column_ = 0;
    }
    out.append(unit, n);
    column_ += n;
}

void RWpostream::putCharacter(std::string& out, unsigned char c) {
    char unit[4];
    putUnit(out, unit, escape(c, unit));
}

#define X(T)                                                                                                 \
    RWvostream& RWpostream::put(T v) {                                                                       \
        char text[kNumberMax];                                                                               \
        putNumber(text, formatNumber(text, v));                                                              \
        return *this;                                                                                        \
    }                                                                                                        \
    RWvostream& RWpostream::put(const T* p, size_t n) {                                                      \
        for (size_t i = 0; i < n; ++i)                                                                       \
            put(p[i]);                                                                                       \
        return *this;                                                                                        \
    }
RW_VSTREAM_SCALARS(X)
#undef X

RWvostream& RWpostream::operator<<(char c) {
    std::string out;
    putCharacter(out, static_cast<unsigned char>(c));
    write(out.data(), out.size());
    return *this;
}
RWvostream& RWpostream::operator<<(signed char c) { return *this << static_cast<char>(c); }
RWvostream& RWpostream::operator<<(unsigned char c) { return *this << static_cast<char>(c); }

RWvostream& RWpostream::operator<<(const char* s) {
    s = s ? s : "";
    return putString(s, std::char_traits<char>::length(s));
}

RWvostream& RWpostream::putString(const char* s, size_t n) {
    std::string out;
    out.reserve(std::min(n, kStringChunk) + 8);
    putUnit(out, "\"", 1);
    for (size_t i = 0; i < n; ++i) {
        putCharacter(out, static_cast<unsigned char>(s[i]));
        if (out.size() >= kStringChunk) {
            write(out.data(), out.size());
            out.clear();
        }
    }
    putUnit(out, "\"", 1);
    write(out.data(), out.size());
    return *this;
}

RWvostream& RWpostream::flush() {
    if (sb_ && sb_->pubsync() != 0) setstate(badbit);
    return *this;
}

// ---- RWpistream

RWpistream::RWpistream(std::istream& s) : sb_(s.rdbuf()), is_(&s) {
    if (!sb_) setstate(badbit);
}
RWpistream::RWpistream(std::streambuf* sb) : sb_(sb) {
    if (!sb_) setstate(badbit);
}

void RWpistream::syntaxError(bool atEnd) {
    setstate(atEnd ? failbit | eofbit : failbit);
    // Tell the std::istream about its end too, unless that would throw at the reader.
    if (atEnd && is_ && (is_->exceptions() & (std::ios::failbit | std::ios::eofbit)) == 0)
        is_->setstate(std::ios::failbit | std::ios::eofbit);
}

bool RWpistream::skipWhitespace() {
    if (!good()) return false;
    for (;;) {
        int c = sb_->sgetc();
        if (c == std::char_traits<char>::eof()) {
            syntaxError(true);
            return false;
        }
        if (!isWhitespace(c)) return true;
        sb_->sbumpc();
    }
}

// Takes the characters of one number and no more; the character behind it stays in the stream.
bool RWpistream::readToken(char* token, size_t& length) {
    length = 0;
    if (!skipWhitespace()) return false;
    for (int c = sb_->sgetc(); isTokenCharacter(c); c = sb_->sgetc()) {
        if (length == kTokenMax) {
            syntaxError(false);
            return false;
        }
        token[length++] = static_cast<char>(sb_->sbumpc());
    }
    if (length == 0) {
        syntaxError(false);
        return false;
    }
    // from_chars takes no plus sign; a plus before a minus stays an error.
    if (length > 1 && token[0] == '+' && token[1] != '-') {
        std::memmove(token, token + 1, --length);
    }
    return true;
}

// Stores into v only a whole token in the range of T.
template <class T>
void RWpistream::readNumber(T& v) {
    char token[kTokenMax];
    size_t length = 0;
    if (!readToken(token, length)) return;
    std::from_chars_result parsed;
    bool inRange = true;
    if constexpr (std::is_floating_point_v<T>) {
        T x{};
        parsed = std::from_chars(token, token + length, x);
        if (parsed.ec == std::errc() && parsed.ptr == token + length) v = x;
    } else {
        long long x = 0;
        parsed = std::from_chars(token, token + length, x);
        inRange = x >= Wire<T>::min && x <= Wire<T>::max;
        if (parsed.ec == std::errc() && parsed.ptr == token + length && inRange) v = static_cast<T>(x);
    }
    if (parsed.ec != std::errc() || parsed.ptr != token + length || !inRange) syntaxError(false);
}

// One character as putCharacter wrote it, whitespace before it skipped.
bool RWpistream::readCharacter(unsigned char& c) {
    if (!skipWhitespace()) return false;
    int first = sb_->sbumpc();
    if (first != '\\') {
        c = static_cast<unsigned char>(first);
        return true;
    }
    const int eof = std::char_traits<char>::eof();
    int code = sb_->sbumpc();
    if (auto named = kEscapeLetters.find(static_cast<char>(code));
        code != eof && named != std::string_view::npos) {
        c = static_cast<unsigned char>(kNamedCharacters[named]);
        return true;
    }
    if (code == 'x') {
        int high = sb_->sbumpc();
        int low = high == eof ? eof : sb_->sbumpc();
        if (hexValue(high) >= 0 && hexValue(low) >= 0) {
            c = static_cast<unsigned char>(hexValue(high) * 16 + hexValue(low));
            return true;
        }
        syntaxError(low == eof);
        return false;
    }
    syntaxError(code == eof);
    return false;
}

RWpistream::Unit RWpistream::readStringUnit(unsigned char& c) {
    if (!skipWhitespace()) return Unit::error;
    if (sb_->sgetc() == '"') {
        sb_->sbumpc();
        return Unit::quote;
    }
    return readCharacter(c) ? Unit::character : Unit::error;
}

bool RWpistream::readOpeningQuote() {
    if (!skipWhitespace()) return false;
    if (sb_->sgetc() != '"') {
        syntaxError(false);
        return false;
    }
    sb_->sbumpc();
    return true;
}

int RWpistream::get() {
    if (!good()) return std::char_traits<char>::eof();
    int c = sb_->sbumpc();
    if (c == std::char_traits<char>::eof()) syntaxError(true);
    return c;
}

#define X(T)                                                                                                 \
    RWvistream& RWpistream::get(T& v) {                                                                      \
        readNumber(v);                                                                                       \
        return *this;                                                                                        \
    }                                                                                                        \
    RWvistream& RWpistream::get(T* p, size_t n) {                                                            \
        for (size_t i = 0; i < n && good(); ++i)                                                             \
            get(p[i]);                                                                                       \
        return *this;                                                                                        \
    }
RW_VSTREAM_SCALARS(X)
#undef X

RWvistream& RWpistream::operator>>(char& c) {
    unsigned char u;
    if (readCharacter(u)) c = static_cast<char>(u);
    return *this;
}
RWvistream& RWpistream::operator>>(signed char& c) {
    unsigned char u;
    if (readCharacter(u)) c = static_cast<signed char>(u);
    return *this;
}
RWvistream& RWpistream::operator>>(unsigned char& c) {
    readCharacter(c);
    return *this;
}

// A quoted string of at most limit characters into value; a longer one, or a syntax error, fails the
// stream. The buffer grows only with the characters that arrive.
bool RWpistream::readQuoted(std::string& value, size_t limit) {
    if (!readOpeningQuote()) return false;
    for (;;) {
        unsigned char c = 0;
        switch (readStringUnit(c)) {
        case Unit::error:
            return false;
        case Unit::quote:
            return true;
        case Unit::character:
            if (value.size() == limit) {
                syntaxError(false);
                return false;
            }
            value.push_back(static_cast<char>(c));
        }
    }
}

RWvistream& RWpistream::getString(char* s, size_t maxlen) {
    if (!good()) return *this;
    if (!s || maxlen == 0) { // not even the NUL fits
        setstate(failbit);
        return *this;
    }
    std::string value;
    if (!readQuoted(value, maxlen - 1)) return *this;
    std::memcpy(s, value.data(), value.size());
    s[value.size()] = '\0';
    return *this;
}

RWvistream& RWpistream::getString(std::string& s, size_t n) {
    std::string value;
    if (!readQuoted(value, n)) return *this;
    // The length stored before the string and the string disagree: the stream is out of step.
    if (value.size() != n)
        syntaxError(false);
    else
        s.swap(value);
    return *this;
}
