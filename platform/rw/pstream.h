// Portable virtual streams over std::streambuf: printable ASCII text that any platform reads back.
//
// Numbers (put(T) for every scalar, operator<< for all but the narrow characters) are decimal, one per line:
// "-2\n". long and unsigned long keep the original platform's 32 bits: they are narrowed on writing, and a
// value outside that range fails the reader. A char's number is its signed value ("-28\n" for 0xE4); the
// reader takes -128..255 for every narrow character type. wchar_t (2 bytes on the original platform) is a
// number 0..65535 with operator<< too, because a text escape holds one byte only.
// double: scientific with 16 significant digits, "2.500000000000000e+00\n"; when that does not read back to
// the same bits, 17 digits. float: 8 significant digits, else 9. Infinities and NaNs: "inf", "-inf", "nan",
// "-nan". The text does not depend on the C locale.
//
// operator<<(char) writes the character itself, escaped and without a separator. putString(s, n) writes
// '"', the escaped characters and '"'; the length is not inside (RWCString writes it before, as a number).
// Escapes: \n \t \b \r \f \v \a \\ \", \[ for '{', \] for '}', and \xhh (two lower-case hex digits) for the
// blank and every byte below 0x20 or from 0x7F up. No line gets longer than 80 characters: a
// newline goes before a character, quote or number that would not fit. The reader skips blanks, \n, \r and \t
// between values and between the escapes of a string.
//
// A syntax error (no number where one belongs, a missing quote, a bad escape, a string of the wrong length)
// sets fail, and the end of input sets eof with it. Unlike the vendor, which raises RWExternalErr, nothing is
// thrown: the readers test the stream state, and a damaged file must not end in an exception. Once the stream
// is not good, reads change nothing.
#pragma once

#include "rw/vstream.h"

#include <iosfwd>

// The scalars whose operator<< and operator>> are their numbers: all but the narrow characters.
#define RW_PSTREAM_NUMBERS(X)                                                                                \
    X(wchar_t) X(short) X(unsigned short) X(int) X(unsigned int) X(long) X(unsigned long) X(float) X(double)

class RWpostream : public RWvostream {
public:
    explicit RWpostream(std::ostream& s);
    explicit RWpostream(std::streambuf* sb);

    RWvostream& operator<<(const char* s) override;
    RWvostream& operator<<(char c) override;
    RWvostream& operator<<(signed char c) override;
    RWvostream& operator<<(unsigned char c) override;
#define X(T)                                                                                                 \
    RWvostream& operator<<(T v) override { return put(v); }
    RW_PSTREAM_NUMBERS(X)
#undef X
#define X(T)                                                                                                 \
    RWvostream& put(T v) override;                                                                           \
    RWvostream& put(const T* p, size_t n) override;
    RW_VSTREAM_SCALARS(X)
#undef X
    RWvostream& putString(const char* s, size_t n) override;
    RWvostream& flush() override;

private:
    void putNumber(char* text, size_t n);
    void putUnit(std::string& out, const char* unit, size_t n);
    void putCharacter(std::string& out, unsigned char c);
    void write(const char* p, size_t n);
    std::streambuf* sb_;
    std::ostream* os_ = nullptr;
    size_t column_ = 0; // characters on the current output line
};

class RWpistream : public RWvistream {
public:
    explicit RWpistream(std::istream& s);
    explicit RWpistream(std::streambuf* sb);

    int get() override;
    RWvistream& operator>>(char& c) override;
    RWvistream& operator>>(signed char& c) override;
    RWvistream& operator>>(unsigned char& c) override;
#define X(T)                                                                                                 \
    RWvistream& operator>>(T& v) override { return get(v); }
    RW_PSTREAM_NUMBERS(X)
#undef X
#define X(T)                                                                                                 \
    RWvistream& get(T& v) override;                                                                          \
    RWvistream& get(T* p, size_t n) override;
    RW_VSTREAM_SCALARS(X)
#undef X
    RWvistream& getString(char* s, size_t maxlen) override;
    RWvistream& getString(std::string& s, size_t n) override;

private:
    enum class Unit { character, quote, error };
    void syntaxError(bool atEnd);
    bool skipWhitespace();
    bool readToken(char* token, size_t& length);
    template <class T>
    void readNumber(T& v);
    bool readCharacter(unsigned char& c);
    Unit readStringUnit(unsigned char& c);
    bool readOpeningQuote();
    bool readQuoted(std::string& value, size_t limit);
    std::streambuf* sb_;
    std::istream* is_ = nullptr;
};
