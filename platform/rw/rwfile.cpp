#include "rw/rwfile.h"

#include "rw/endian.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Pending writes go to the file 64 kB at a time; a refill reads 32 kB ahead, the size of a first-level
// data cache: a larger read-ahead made reading records slower, as the kernel's copy evicted what the
// reader works on, while larger writes save system calls.
constexpr size_t kBufferSize = 64 * 1024;
constexpr size_t kReadAhead = 32 * 1024;

// fopen's mode letters as open(2) flags; -1 for a mode fopen would refuse.
int openFlags(const char* mode, bool& append) {
    append = false;
    int flags;
    switch (mode[0]) {
    case 'r':
        flags = O_RDONLY;
        break;
    case 'w':
        flags = O_WRONLY | O_CREAT | O_TRUNC;
        break;
    case 'a':
        flags = O_WRONLY | O_CREAT | O_APPEND;
        append = true;
        break;
    default:
        return -1;
    }
    for (const char* p = mode + 1; *p; ++p) {
        if (*p == '+')
            flags = (flags & ~(O_RDONLY | O_WRONLY)) | O_RDWR;
        else if (*p != 'b' && *p != 't')
            return -1;
    }
    return flags | O_CLOEXEC;
}

} // namespace

RWFile::RWFile(const char* name, const char* mode) : name_(name ? name : "") {
    if (!name) return;
    if (mode) {
        int flags = openFlags(mode, append_);
        if (flags >= 0) fd_ = ::open(name, flags, 0666);
    } else {
        fd_ = ::open(name, O_RDWR | O_CLOEXEC);
        if (fd_ < 0 && errno == ENOENT) fd_ = ::open(name, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    }
    if (fd_ >= 0 && append_) offset_ = ::lseek(fd_, 0, SEEK_END);
}

RWFile::~RWFile() {
    if (fd_ < 0) return;
    flushWrites();
    ::close(fd_);
}

RWBoolean RWFile::Exists() const { return Exists(name_.c_str()); }

RWBoolean RWFile::Exists(const char* name) {
    struct stat st;
    return name && ::stat(name, &st) == 0;
}

RWBoolean RWFile::IsEmpty() {
    if (fd_ < 0) return true;
    if (writeLen_ > 0) return false;
    struct stat st;
    return ::fstat(fd_, &st) == 0 && st.st_size == 0;
}

long RWFile::CurOffset() const { return static_cast<long>(offset_); }

bool RWFile::flushWrites() {
    size_t done = 0;
    while (done < writeLen_) {
        ssize_t n = ::write(fd_, buf_.data() + done, writeLen_ - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            error_ = true;
            writeLen_ = 0;
            return false;
        }
        done += static_cast<size_t>(n);
    }
    writeLen_ = 0;
    return true;
}

void RWFile::dropReadAhead() {
    if (readEnd_ > readPos_) ::lseek(fd_, offset_, SEEK_SET);
    readPos_ = readEnd_ = 0;
}

RWBoolean RWFile::Flush() {
    if (fd_ < 0) return false;
    return flushWrites();
}

RWBoolean RWFile::SeekTo(long offset) {
    if (fd_ < 0 || offset < 0) return false;
    if (!flushWrites()) return false;
    readPos_ = readEnd_ = 0;
    if (::lseek(fd_, offset, SEEK_SET) < 0) return false;
    offset_ = offset;
    eof_ = false;
    return true;
}

RWBoolean RWFile::SeekToEnd() {
    if (fd_ < 0 || !flushWrites()) return false;
    readPos_ = readEnd_ = 0;
    off_t end = ::lseek(fd_, 0, SEEK_END);
    if (end < 0) return false;
    offset_ = end;
    eof_ = false;
    return true;
}

RWBoolean RWFile::Erase() {
    if (fd_ < 0) return false;
    writeLen_ = 0;
    readPos_ = readEnd_ = 0;
    if (::ftruncate(fd_, 0) != 0) return false;
    ::lseek(fd_, 0, SEEK_SET);
    offset_ = 0;
    eof_ = false;
    return true;
}

RWBoolean RWFile::writeRawSlow(const void* in, size_t n) {
    if (fd_ < 0 || error_) return false;
    if (readEnd_ > readPos_ || readEnd_ != 0) dropReadAhead();
    if (buf_.size() < kBufferSize) buf_.resize(kBufferSize);
    const unsigned char* p = static_cast<const unsigned char*>(in);
    if (writeLen_ + n > buf_.size()) {
        if (!flushWrites()) return false;
        if (n > buf_.size()) {
            // A large block goes straight to the file.
            writeLen_ = 0;
            size_t done = 0;
            while (done < n) {
                ssize_t w = ::write(fd_, p + done, n - done);
                if (w < 0 && errno == EINTR) continue;
                if (w <= 0) {
                    error_ = true;
                    return false;
                }
                done += static_cast<size_t>(w);
            }
            offset_ += static_cast<long long>(n);
            return true;
        }
    }
    std::memcpy(buf_.data() + writeLen_, p, n);
    writeLen_ += n;
    offset_ += static_cast<long long>(n);
    return true;
}

unsigned char* RWFile::reserveWriteSlow(size_t n) {
    if (fd_ < 0 || error_) return nullptr;
    if (readEnd_ > readPos_ || readEnd_ != 0) dropReadAhead();
    if (buf_.size() < kBufferSize) buf_.resize(kBufferSize);
    if (n > buf_.size()) return nullptr; // written piece by piece, a large block straight to the file
    if (writeLen_ + n > buf_.size() && !flushWrites()) return nullptr;
    return buf_.data() + writeLen_;
}

RWBoolean RWFile::readRawSlow(void* out, size_t n) {
    if (fd_ < 0 || eof_ || error_) return false;
    if (writeLen_ > 0 && !flushWrites()) return false;
    if (buf_.size() < kBufferSize) buf_.resize(kBufferSize);
    unsigned char* p = static_cast<unsigned char*>(out);
    size_t have = readEnd_ - readPos_;
    if (have >= n) {
        std::memcpy(p, buf_.data() + readPos_, n);
        readPos_ += n;
        offset_ += static_cast<long long>(n);
        return true;
    }
    // Gather into a scratch copy first: a short read leaves the target unchanged.
    std::vector<unsigned char> scratch;
    unsigned char* dst = p;
    if (n > have) {
        scratch.resize(n);
        dst = scratch.data();
    }
    std::memcpy(dst, buf_.data() + readPos_, have);
    size_t got = have;
    readPos_ = readEnd_ = 0;
    while (got < n) {
        ssize_t r;
        if (n - got >= kReadAhead) {
            r = ::read(fd_, dst + got, n - got);
            if (r > 0) got += static_cast<size_t>(r);
        } else {
            r = ::read(fd_, buf_.data(), kReadAhead);
            if (r > 0) {
                size_t take = std::min(static_cast<size_t>(r), n - got);
                std::memcpy(dst + got, buf_.data(), take);
                got += take;
                readPos_ = take;
                readEnd_ = static_cast<size_t>(r);
            }
        }
        if (r < 0 && errno == EINTR) continue;
        if (r < 0) {
            error_ = true;
            return false;
        }
        if (r == 0) {
            eof_ = true;
            // Keep the position where the file ended, as stdio would.
            offset_ += static_cast<long long>(got);
            return false;
        }
    }
    std::memcpy(p, dst, n);
    offset_ += static_cast<long long>(n);
    return true;
}

long long RWFile::remainingBytes() {
    struct stat st;
    if (::fstat(fd_, &st) != 0) return 0;
    return std::max<long long>(0, static_cast<long long>(st.st_size) - offset_);
}

RWBoolean RWFile::readStringSlow(std::string& s, size_t n) {
    if (fd_ < 0 || eof_ || error_) return false;
    if (writeLen_ > 0 && !flushWrites()) return false;
    if (n > readEnd_ - readPos_ && static_cast<unsigned long long>(remainingBytes()) < n) {
        // The stored length promises more than the file holds.
        eof_ = true;
        return false;
    }
    std::string value(n, '\0');
    if (!readRaw(value.data(), n)) return false;
    s.swap(value);
    return true;
}

// Scalars: fixed widths, little-endian.

RWBoolean RWFile::Read(bool& v) {
    char c;
    if (!Read(c)) return false;
    v = c != 0;
    return true;
}

RWBoolean RWFile::Write(const char* s) { return writeRaw(s ? s : "", (s ? std::strlen(s) : 0) + 1); }
