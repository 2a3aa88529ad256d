// RWCString: a byte string (Windows-1252 text in this library) with the vendor's interface.
// Substrings are clamped to the characters that exist: they never throw and never read out of bounds.
#pragma once

#include "rw/defs.h"
#include "rw/rwfile.h"

#include <string>
#include <string_view>

class RWCString;
class RWvistream;
class RWvostream;

class RWCSubString {
public:
    RWCSubString(const RWCSubString&) = default;

    RWCSubString& operator=(const char* s);
    RWCSubString& operator=(const RWCString& s);
    RWCSubString& operator=(const RWCSubString& s);

    char& operator()(size_t i);
    char operator()(size_t i) const;
    char& operator[](size_t i) { return (*this)(i); }
    char operator[](size_t i) const { return (*this)(i); }

    size_t length() const { return extent_; }
    size_t start() const { return begin_; }
    RWBoolean isNull() const { return begin_ == RW_NPOS; }
    int operator!() const { return isNull(); }
    const char* startData() const;
    std::string_view view() const;

    void toLower();
    void toUpper();

private:
    friend class RWCString;
    RWCSubString(const RWCString& s, size_t start, size_t len);

    RWCString* str_;
    size_t begin_;
    size_t extent_;
};

class RWCString {
public:
    enum stripType { leading = 0x1, trailing = 0x2, both = 0x3 };
    enum caseCompare { exact, ignoreCase };

    RWCString() = default;
    RWCString(const char* s) : s_(s ? s : "") {}
    RWCString(const char* s, size_t n) : s_(s ? s : "", s ? n : 0) {}
    explicit RWCString(char c) : s_(1, c) {}
    RWCString(char c, size_t n) : s_(n, c) {}
    RWCString(const RWCSubString& sub) : s_(sub.view()) {}
    explicit RWCString(std::string s) : s_(std::move(s)) {}
    explicit RWCString(std::string_view s) : s_(s) {}

    RWCString& operator=(const char* s) {
        s_ = s ? s : "";
        return *this;
    }
    RWCString& operator=(const RWCSubString& sub) {
        s_ = std::string(sub.view());
        return *this;
    }

    operator const char*() const { return s_.c_str(); }
    const char* data() const { return s_.c_str(); }
    size_t length() const { return s_.size(); }
    RWBoolean isNull() const { return s_.empty(); }
    const std::string& std() const { return s_; }
    std::string& std() { return s_; }

    char& operator[](size_t i) { return s_[i]; }
    char operator[](size_t i) const { return s_[i]; }
    char& operator()(size_t i) { return s_[i]; }
    char operator()(size_t i) const { return s_[i]; }
    RWCSubString operator()(size_t start, size_t len);
    const RWCSubString operator()(size_t start, size_t len) const;

    size_t index(const char* pat, size_t i = 0, caseCompare cmp = exact) const;
    size_t index(const RWCString& pat, size_t i = 0, caseCompare cmp = exact) const;
    RWBoolean contains(const char* pat, caseCompare cmp = exact) const {
        return index(pat, 0, cmp) != RW_NPOS;
    }
    RWBoolean contains(const RWCString& pat, caseCompare cmp = exact) const {
        return index(pat, 0, cmp) != RW_NPOS;
    }
    size_t first(char c) const;
    size_t last(char c) const;
    RWCSubString strip(stripType how = trailing, char c = ' ');
    const RWCSubString strip(stripType how = trailing, char c = ' ') const;

    RWCString& insert(size_t pos, const char* s);
    RWCString& insert(size_t pos, const RWCString& s);
    RWCString& append(const char* s);
    RWCString& append(const char* s, size_t n);
    RWCString& append(const RWCString& s);
    RWCString& append(char c, size_t n = 1);
    RWCString& prepend(const char* s);
    RWCString& prepend(const RWCString& s);
    RWCString& remove(size_t pos);
    RWCString& remove(size_t pos, size_t n);
    RWCString& operator+=(const char* s) { return append(s); }
    RWCString& operator+=(const RWCString& s) { return append(s); }
    RWCString& operator+=(char c) { return append(c); }

    int compareTo(const char* s, caseCompare cmp = exact) const;
    int compareTo(const RWCString& s, caseCompare cmp = exact) const;
    unsigned hash(caseCompare cmp = exact) const;
    static unsigned hash(const RWCString& s) { return s.hash(); }
    void toLower();
    void toUpper();

    // Stored as a 4-byte length and the bytes (RWFile); as length and string on a virtual stream.
    void saveOn(RWFile& f) const {
        f.Write(static_cast<unsigned>(s_.size()));
        f.Write(s_.data(), s_.size());
    }
    void saveOn(RWvostream& s) const;
    // A length that the input cannot hold fails the stream and leaves the string unchanged.
    void restoreFrom(RWFile& f) {
        unsigned n = 0;
        if (f.Read(n)) f.ReadString(s_, n);
    }
    void restoreFrom(RWvistream& s);
    RWspace binaryStoreSize() const { return length() + 4; }

private:
    friend class RWCSubString;
    std::string s_;
};

// Inline: the forms compare texts with literals on every read of a record.
inline RWBoolean operator==(const RWCString& a, const RWCString& b) { return a.std() == b.std(); }
inline RWBoolean operator==(const RWCString& a, const char* b) {
    return std::string_view(a.std()) == std::string_view(b ? b : "");
}
inline RWBoolean operator==(const char* a, const RWCString& b) { return b == a; }
inline RWBoolean operator!=(const RWCString& a, const RWCString& b) { return !(a == b); }
inline RWBoolean operator!=(const RWCString& a, const char* b) { return !(a == b); }
inline RWBoolean operator!=(const char* a, const RWCString& b) { return !(b == a); }
RWBoolean operator<(const RWCString& a, const RWCString& b);
RWBoolean operator<(const RWCString& a, const char* b);
RWBoolean operator<(const char* a, const RWCString& b);
RWBoolean operator>(const RWCString& a, const RWCString& b);
RWBoolean operator<=(const RWCString& a, const RWCString& b);
RWBoolean operator>=(const RWCString& a, const RWCString& b);

RWBoolean operator==(const RWCSubString& a, const char* b);
RWBoolean operator==(const RWCSubString& a, const RWCString& b);
RWBoolean operator==(const RWCString& a, const RWCSubString& b);
RWBoolean operator!=(const RWCSubString& a, const char* b);
RWBoolean operator!=(const RWCSubString& a, const RWCString& b);

RWCString operator+(const RWCString& a, const RWCString& b);
RWCString operator+(const RWCString& a, const char* b);
RWCString operator+(const char* a, const RWCString& b);

RWCString toLower(const RWCString& s);
RWCString toUpper(const RWCString& s);
