// RWFile: a binary file with the byte widths of the original 32-bit little-endian platform on any host.
//
//   char, unsigned char        1 byte
//   short, unsigned short      2 bytes
//   int, unsigned, wchar_t     4 / 4 / 2 bytes
//   long, unsigned long        4 bytes: a long is narrowed on write and sign-extended on read,
//                              an unsigned long zero-extended
//   float, double              4 / 8 bytes, IEEE
//
// All little-endian, no tags, no padding. Writes and reads go through a buffer of the object's own, so a
// record written field by field costs no system call per field.
#pragma once

#include "rw/defs.h"
#include "rw/endian.h"

#include <cstdint>
#include <cstring>

#include <string>
#include <vector>

// This RWFile offers writing and reading in place (reserveWrite, commitWrite, readWindow, commitRead).
#define RWFILE_IN_PLACE 1

class RWFile {
public:
    // mode as for fopen; with no mode, open an existing file for update or else create it.
    RWFile(const char* name, const char* mode = 0);
    ~RWFile();
    RWFile(const RWFile&) = delete;
    RWFile& operator=(const RWFile&) = delete;

    const char* GetName() const { return name_.c_str(); }
    RWBoolean isValid() const { return fd_ >= 0; }
    RWBoolean Exists() const;
    static RWBoolean Exists(const char* name);
    RWBoolean IsEmpty();

    RWBoolean good() const { return isValid() && !eof_ && !error_; }
    RWBoolean eof() const { return eof_; }
    RWBoolean Eof() const { return eof_; }
    RWBoolean Error() const { return error_; }
    void ClearErr() { eof_ = error_ = false; }

    long CurOffset() const;
    RWBoolean SeekTo(long offset);
    RWBoolean SeekToBegin() { return SeekTo(0); }
    RWBoolean SeekToEnd();
    RWBoolean Flush();
    // Empties the file; it stays open for update.
    RWBoolean Erase();

    RWBoolean Read(char& v) { return readRaw(&v, 1); }
    RWBoolean Read(signed char& v) { return readRaw(&v, 1); }
    RWBoolean Read(unsigned char& v) { return readRaw(&v, 1); }
    RWBoolean Read(bool& v);
    RWBoolean Read(wchar_t& v) { return readWire<std::uint16_t>(v); }
    RWBoolean Read(short& v) { return readWire<std::int16_t>(v); }
    RWBoolean Read(unsigned short& v) { return readWire<std::uint16_t>(v); }
    RWBoolean Read(int& v) { return readWire<std::int32_t>(v); }
    RWBoolean Read(unsigned int& v) { return readWire<std::uint32_t>(v); }
    RWBoolean Read(long& v) { return readWire<std::int32_t>(v); }
    RWBoolean Read(unsigned long& v) { return readWire<std::uint32_t>(v); }
    RWBoolean Read(float& v) { return readWire<float>(v); }
    RWBoolean Read(double& v) { return readWire<double>(v); }
    RWBoolean Read(char* v, size_t n) { return readRaw(v, n); }
    RWBoolean Read(unsigned char* v, size_t n) { return readRaw(v, n); }
    RWBoolean Read(short* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(unsigned short* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(int* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(unsigned int* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(long* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(unsigned long* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(float* v, size_t n) { return readArray(v, n); }
    RWBoolean Read(double* v, size_t n) { return readArray(v, n); }
    // Reads n bytes into s. If the file cannot hold n more bytes, the file fails and s stays unchanged:
    // no allocation is made from a stored length that the file does not back.
    RWBoolean ReadString(std::string& s, size_t n) {
        if (n > readEnd_ - readPos_ || eof_ || error_) return readStringSlow(s, n);
        s.assign(reinterpret_cast<const char*>(buf_.data() + readPos_), n); // from the read-ahead, in place
        readPos_ += n;
        offset_ += static_cast<long long>(n);
        return true;
    }

    RWBoolean Write(char v) { return writeRaw(&v, 1); }
    RWBoolean Write(signed char v) { return writeRaw(&v, 1); }
    RWBoolean Write(unsigned char v) { return writeRaw(&v, 1); }
    RWBoolean Write(bool v) { return Write(static_cast<char>(v)); }
    RWBoolean Write(wchar_t v) { return writeWire<std::uint16_t>(v); }
    RWBoolean Write(short v) { return writeWire<std::int16_t>(v); }
    RWBoolean Write(unsigned short v) { return writeWire<std::uint16_t>(v); }
    RWBoolean Write(int v) { return writeWire<std::int32_t>(v); }
    RWBoolean Write(unsigned int v) { return writeWire<std::uint32_t>(v); }
    RWBoolean Write(long v) { return writeWire<std::int32_t>(v); }
    RWBoolean Write(unsigned long v) { return writeWire<std::uint32_t>(v); }
    RWBoolean Write(float v) { return writeWire<float>(v); }
    RWBoolean Write(double v) { return writeWire<double>(v); }
    // The characters and the terminating NUL.
    RWBoolean Write(const char* s);
    RWBoolean Write(const char* v, size_t n) { return writeRaw(v, n); }
    RWBoolean Write(const unsigned char* v, size_t n) { return writeRaw(v, n); }
    RWBoolean Write(const short* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const unsigned short* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const int* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const unsigned int* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const long* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const unsigned long* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const float* v, size_t n) { return writeArray(v, n); }
    RWBoolean Write(const double* v, size_t n) { return writeArray(v, n); }

    // Extensions of this platform (RWFILE_IN_PLACE tells they are there), for encoders that work in place.
    // Writing in place, for a caller that knows how many bytes a record part takes: room for n bytes in
    // the write buffer, or null when the buffer cannot take them (then write as usual). The caller fills
    // the n bytes and hands them over with commitWrite(n), with no other call on the file in between.
    unsigned char* reserveWrite(size_t n) {
        if (buf_.size() - writeLen_ < n || buf_.empty() || readEnd_ != 0 || error_)
            return reserveWriteSlow(n);
        return buf_.data() + writeLen_;
    }
    void commitWrite(size_t n) {
        writeLen_ += n;
        offset_ += static_cast<long long>(n);
    }

    // Reading in place: the read-ahead from the current position (n = 0 while the file has failed, is at
    // its end or holds no read-ahead), consumed with commitRead(n) before any other call on the file.
    const unsigned char* readWindow(size_t& n) const {
        n = eof_ || error_ ? 0 : readEnd_ - readPos_;
        return buf_.data() + readPos_;
    }
    void commitRead(size_t n) {
        readPos_ += n;
        offset_ += static_cast<long long>(n);
    }

private:
    template <class T>
    RWBoolean readArray(T* v, size_t n) {
        for (size_t i = 0; i < n; ++i)
            if (!Read(v[i])) return false;
        return true;
    }
    template <class T>
    RWBoolean writeArray(const T* v, size_t n) {
        for (size_t i = 0; i < n; ++i)
            if (!Write(v[i])) return false;
        return true;
    }
    // The buffered cases inline, with one bounds check; the rest (refill, flush, errors) in the .cpp.
    RWBoolean readRaw(void* out, size_t n) {
        if (readEnd_ - readPos_ < n || readPos_ == readEnd_ || eof_ || error_) return readRawSlow(out, n);
        std::memcpy(out, buf_.data() + readPos_, n);
        readPos_ += n;
        offset_ += static_cast<long long>(n);
        return true;
    }
    RWBoolean writeRaw(const void* in, size_t n) {
        if (buf_.size() - writeLen_ < n || buf_.empty() || readEnd_ != 0 || error_)
            return writeRawSlow(in, n);
        std::memcpy(buf_.data() + writeLen_, in, n);
        writeLen_ += n;
        offset_ += static_cast<long long>(n);
        return true;
    }
    template <class Wire, class T>
    RWBoolean readWire(T& v) {
        unsigned char b[sizeof(Wire)];
        if (!readRaw(b, sizeof b)) return false;
        v = static_cast<T>(rwwire::load<Wire>(b));
        return true;
    }
    template <class Wire, class T>
    RWBoolean writeWire(T v) {
        unsigned char b[sizeof(Wire)];
        rwwire::store<Wire>(b, static_cast<Wire>(v));
        return writeRaw(b, sizeof b);
    }
    RWBoolean readRawSlow(void* out, size_t n);
    RWBoolean readStringSlow(std::string& s, size_t n);
    RWBoolean writeRawSlow(const void* in, size_t n);
    unsigned char* reserveWriteSlow(size_t n);
    bool flushWrites();
    void dropReadAhead();
    long long remainingBytes();

    std::string name_;
    int fd_ = -1;
    bool eof_ = false;
    bool error_ = false;
    bool append_ = false;
    // One buffer serves either pending writes or read-ahead, never both.
    std::vector<unsigned char> buf_;
    size_t writeLen_ = 0; // pending bytes in buf_[0, writeLen_)
    size_t readPos_ = 0;  // read-ahead in buf_[readPos_, readEnd_)
    size_t readEnd_ = 0;
    long long offset_ = 0; // the logical position of the next read or write
};
