// Virtual streams: the abstract interfaces that forms write to and read from. What the bytes look like
// belongs to the concrete stream (binary: bstream.h, portable text: pstream.h).
#pragma once

#include "rw/defs.h"

#include <string>

// The scalar types of the virtual streams, for declaring and defining their operators in one go.
#define RW_VSTREAM_SCALARS(X)                                                                                \
    X(char)                                                                                                  \
    X(signed char) X(unsigned char) X(wchar_t) X(short) X(unsigned short) X(int) X(unsigned int) X(long)     \
        X(unsigned long) X(float) X(double)

class RWvios {
public:
    enum { goodbit = 0, eofbit = 1, failbit = 2, badbit = 4 };
    virtual ~RWvios() = default;

    virtual int eof() { return (state_ & eofbit) != 0; }
    virtual int fail() { return (state_ & (failbit | badbit)) != 0; }
    virtual int bad() { return (state_ & badbit) != 0; }
    virtual int good() { return state_ == goodbit; }
    virtual int rdstate() { return state_; }
    virtual void clear(int v = 0) { state_ = v; }
    operator void*() { return fail() ? nullptr : this; }

protected:
    void setstate(int bits) { state_ |= bits; }

private:
    int state_ = goodbit;
};

class RWvostream : public virtual RWvios {
public:
    // A C string: putString(s, strlen(s)).
    virtual RWvostream& operator<<(const char* s) = 0;
    // A character as itself (the portable stream escapes it and adds no separator).
    virtual RWvostream& operator<<(char c) = 0;
    virtual RWvostream& operator<<(signed char c) = 0;
    virtual RWvostream& operator<<(unsigned char c) = 0;
    virtual RWvostream& operator<<(wchar_t c) = 0;
    virtual RWvostream& operator<<(short v) = 0;
    virtual RWvostream& operator<<(unsigned short v) = 0;
    virtual RWvostream& operator<<(int v) = 0;
    virtual RWvostream& operator<<(unsigned int v) = 0;
    virtual RWvostream& operator<<(long v) = 0;
    virtual RWvostream& operator<<(unsigned long v) = 0;
    virtual RWvostream& operator<<(float v) = 0;
    virtual RWvostream& operator<<(double v) = 0;

    // A character as a number (the portable stream writes its numeric value and a newline).
    virtual RWvostream& put(char c) = 0;
    virtual RWvostream& put(signed char c) = 0;
    virtual RWvostream& put(unsigned char c) = 0;
    virtual RWvostream& put(wchar_t c) = 0;
    virtual RWvostream& put(short v) = 0;
    virtual RWvostream& put(unsigned short v) = 0;
    virtual RWvostream& put(int v) = 0;
    virtual RWvostream& put(unsigned int v) = 0;
    virtual RWvostream& put(long v) = 0;
    virtual RWvostream& put(unsigned long v) = 0;
    virtual RWvostream& put(float v) = 0;
    virtual RWvostream& put(double v) = 0;

    // Arrays: n values, no count.
    virtual RWvostream& put(const char* p, size_t n) = 0;
    virtual RWvostream& put(const signed char* p, size_t n) = 0;
    virtual RWvostream& put(const unsigned char* p, size_t n) = 0;
    virtual RWvostream& put(const wchar_t* p, size_t n) = 0;
    virtual RWvostream& put(const short* p, size_t n) = 0;
    virtual RWvostream& put(const unsigned short* p, size_t n) = 0;
    virtual RWvostream& put(const int* p, size_t n) = 0;
    virtual RWvostream& put(const unsigned int* p, size_t n) = 0;
    virtual RWvostream& put(const long* p, size_t n) = 0;
    virtual RWvostream& put(const unsigned long* p, size_t n) = 0;
    virtual RWvostream& put(const float* p, size_t n) = 0;
    virtual RWvostream& put(const double* p, size_t n) = 0;

    // A string of n characters, in the stream's own string form.
    virtual RWvostream& putString(const char* s, size_t n) = 0;
    virtual RWvostream& flush() = 0;
};

class RWvistream : public virtual RWvios {
public:
    virtual int get() = 0; // the next character as a number, EOF at the end
    virtual RWvistream& operator>>(char& c) = 0;
    virtual RWvistream& operator>>(signed char& c) = 0;
    virtual RWvistream& operator>>(unsigned char& c) = 0;
    virtual RWvistream& operator>>(wchar_t& c) = 0;
    virtual RWvistream& operator>>(short& v) = 0;
    virtual RWvistream& operator>>(unsigned short& v) = 0;
    virtual RWvistream& operator>>(int& v) = 0;
    virtual RWvistream& operator>>(unsigned int& v) = 0;
    virtual RWvistream& operator>>(long& v) = 0;
    virtual RWvistream& operator>>(unsigned long& v) = 0;
    virtual RWvistream& operator>>(float& v) = 0;
    virtual RWvistream& operator>>(double& v) = 0;

    virtual RWvistream& get(char& c) = 0;
    virtual RWvistream& get(signed char& c) = 0;
    virtual RWvistream& get(unsigned char& c) = 0;
    virtual RWvistream& get(wchar_t& c) = 0;
    virtual RWvistream& get(short& v) = 0;
    virtual RWvistream& get(unsigned short& v) = 0;
    virtual RWvistream& get(int& v) = 0;
    virtual RWvistream& get(unsigned int& v) = 0;
    virtual RWvistream& get(long& v) = 0;
    virtual RWvistream& get(unsigned long& v) = 0;
    virtual RWvistream& get(float& v) = 0;
    virtual RWvistream& get(double& v) = 0;

    virtual RWvistream& get(char* p, size_t n) = 0;
    virtual RWvistream& get(signed char* p, size_t n) = 0;
    virtual RWvistream& get(unsigned char* p, size_t n) = 0;
    virtual RWvistream& get(wchar_t* p, size_t n) = 0;
    virtual RWvistream& get(short* p, size_t n) = 0;
    virtual RWvistream& get(unsigned short* p, size_t n) = 0;
    virtual RWvistream& get(int* p, size_t n) = 0;
    virtual RWvistream& get(unsigned int* p, size_t n) = 0;
    virtual RWvistream& get(long* p, size_t n) = 0;
    virtual RWvistream& get(unsigned long* p, size_t n) = 0;
    virtual RWvistream& get(float* p, size_t n) = 0;
    virtual RWvistream& get(double* p, size_t n) = 0;

    // Reads a string written by putString into s, at most maxlen - 1 characters and a NUL.
    virtual RWvistream& getString(char* s, size_t maxlen) = 0;
    // Reads a string written by putString whose length the caller already read as n. The characters go to
    // s only when all n arrived; storage grows with the input read, never ahead of it from n alone.
    virtual RWvistream& getString(std::string& s, size_t n) = 0;
};
