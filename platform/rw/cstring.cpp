#include "rw/cstring.h"

#include "rw/rwfile.h"
#include "rw/vstream.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

unsigned char foldCase(unsigned char c) { return static_cast<unsigned char>(std::tolower(c)); }

size_t findFrom(const std::string& s, std::string_view pat, size_t from, RWCString::caseCompare cmp) {
    if (from > s.size()) return RW_NPOS;
    if (cmp == RWCString::exact) {
        size_t at = s.find(pat, from);
        return at == std::string::npos ? RW_NPOS : at;
    }
    auto it = std::search(s.begin() + static_cast<std::ptrdiff_t>(from), s.end(), pat.begin(), pat.end(),
                          [](char a, char b) { return foldCase(a) == foldCase(b); });
    return it == s.end() && !pat.empty() ? RW_NPOS : static_cast<size_t>(it - s.begin());
}

} // namespace

// ---- RWCSubString

RWCSubString::RWCSubString(const RWCString& s, size_t start, size_t len)
    : str_(const_cast<RWCString*>(&s)), begin_(start), extent_(len) {
    if (begin_ == RW_NPOS) {
        extent_ = 0;
        return;
    }
    // Clamp to what exists: stored versions of any length are cut into month and year.
    const size_t size = s.length();
    if (begin_ > size) begin_ = size;
    extent_ = std::min(extent_, size - begin_);
}

const char* RWCSubString::startData() const { return str_->data() + (isNull() ? 0 : begin_); }

std::string_view RWCSubString::view() const {
    return isNull() ? std::string_view() : std::string_view(str_->data() + begin_, extent_);
}

char& RWCSubString::operator()(size_t i) { return str_->s_[begin_ + i]; }
char RWCSubString::operator()(size_t i) const { return str_->s_[begin_ + i]; }

RWCSubString& RWCSubString::operator=(const char* s) {
    if (!isNull()) {
        std::string_view v(s ? s : "");
        str_->s_.replace(begin_, extent_, v);
        extent_ = v.size();
    }
    return *this;
}

RWCSubString& RWCSubString::operator=(const RWCString& s) { return *this = RWCString(s).data(); }

RWCSubString& RWCSubString::operator=(const RWCSubString& s) {
    if (!isNull()) {
        std::string copy(s.view());
        str_->s_.replace(begin_, extent_, copy);
        extent_ = copy.size();
    }
    return *this;
}

void RWCSubString::toLower() {
    for (size_t i = 0; i < extent_; ++i)
        (*this)(i) = static_cast<char>(std::tolower((unsigned char)(*this)(i)));
}

void RWCSubString::toUpper() {
    for (size_t i = 0; i < extent_; ++i)
        (*this)(i) = static_cast<char>(std::toupper((unsigned char)(*this)(i)));
}

// ---- RWCString

RWCSubString RWCString::operator()(size_t start, size_t len) { return RWCSubString(*this, start, len); }

const RWCSubString RWCString::operator()(size_t start, size_t len) const {
    return RWCSubString(*this, start, len);
}

size_t RWCString::index(const char* pat, size_t i, caseCompare cmp) const {
    return findFrom(s_, pat ? pat : "", i, cmp);
}

size_t RWCString::index(const RWCString& pat, size_t i, caseCompare cmp) const {
    return findFrom(s_, pat.s_, i, cmp);
}

size_t RWCString::first(char c) const {
    size_t at = s_.find(c);
    return at == std::string::npos ? RW_NPOS : at;
}

size_t RWCString::last(char c) const {
    size_t at = s_.rfind(c);
    return at == std::string::npos ? RW_NPOS : at;
}

RWCSubString RWCString::strip(stripType how, char c) {
    size_t begin = 0, end = s_.size();
    if (how & leading)
        while (begin < end && s_[begin] == c)
            ++begin;
    if (how & trailing)
        while (end > begin && s_[end - 1] == c)
            --end;
    return RWCSubString(*this, begin, end - begin);
}

const RWCSubString RWCString::strip(stripType how, char c) const {
    return const_cast<RWCString*>(this)->strip(how, c);
}

RWCString& RWCString::insert(size_t pos, const char* s) {
    s_.insert(std::min(pos, s_.size()), s ? s : "");
    return *this;
}

RWCString& RWCString::insert(size_t pos, const RWCString& s) {
    s_.insert(std::min(pos, s_.size()), s.s_);
    return *this;
}

RWCString& RWCString::append(const char* s) {
    s_.append(s ? s : "");
    return *this;
}

RWCString& RWCString::append(const char* s, size_t n) {
    if (s) s_.append(s, n);
    return *this;
}

RWCString& RWCString::append(const RWCString& s) {
    s_.append(s.s_);
    return *this;
}

RWCString& RWCString::append(char c, size_t n) {
    s_.append(n, c);
    return *this;
}

RWCString& RWCString::prepend(const char* s) { return insert(0, s); }
RWCString& RWCString::prepend(const RWCString& s) { return insert(0, s); }

RWCString& RWCString::remove(size_t pos) {
    if (pos < s_.size()) s_.erase(pos);
    return *this;
}

RWCString& RWCString::remove(size_t pos, size_t n) {
    if (pos < s_.size()) s_.erase(pos, n);
    return *this;
}

int RWCString::compareTo(const char* s, caseCompare cmp) const {
    std::string_view a(s_), b(s ? s : "");
    if (cmp == exact) {
        int r = a.compare(b);
        return r < 0 ? -1 : r > 0 ? 1 : 0;
    }
    for (size_t i = 0; i < a.size() && i < b.size(); ++i) {
        unsigned char x = foldCase(a[i]), y = foldCase(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

int RWCString::compareTo(const RWCString& s, caseCompare cmp) const {
    if (cmp == exact) {
        int r = s_.compare(s.s_);
        return r < 0 ? -1 : r > 0 ? 1 : 0;
    }
    return compareTo(s.data(), cmp);
}

unsigned RWCString::hash(caseCompare cmp) const {
    // FNV-1a over 32 bits: stable across hosts.
    unsigned h = 2166136261u;
    for (unsigned char c : s_) {
        h ^= cmp == exact ? c : foldCase(c);
        h *= 16777619u;
    }
    return h;
}

void RWCString::toLower() {
    for (char& c : s_)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

void RWCString::toUpper() {
    for (char& c : s_)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

void RWCString::saveOn(RWvostream& s) const {
    s << static_cast<unsigned>(s_.size());
    s.putString(s_.data(), s_.size());
}

void RWCString::restoreFrom(RWvistream& s) {
    unsigned n = 0;
    s >> n;
    if (!s.good()) return;
    s.getString(s_, n);
}

RWBoolean operator<(const RWCString& a, const RWCString& b) { return a.compareTo(b) < 0; }
RWBoolean operator<(const RWCString& a, const char* b) { return a.compareTo(b) < 0; }
RWBoolean operator<(const char* a, const RWCString& b) { return b.compareTo(a) > 0; }
RWBoolean operator>(const RWCString& a, const RWCString& b) { return b < a; }
RWBoolean operator<=(const RWCString& a, const RWCString& b) { return !(b < a); }
RWBoolean operator>=(const RWCString& a, const RWCString& b) { return !(a < b); }

RWBoolean operator==(const RWCSubString& a, const char* b) {
    return a.view() == std::string_view(b ? b : "");
}
RWBoolean operator==(const RWCSubString& a, const RWCString& b) {
    return a.view() == std::string_view(b.std());
}
RWBoolean operator==(const RWCString& a, const RWCSubString& b) { return b == a; }
RWBoolean operator!=(const RWCSubString& a, const char* b) { return !(a == b); }
RWBoolean operator!=(const RWCSubString& a, const RWCString& b) { return !(a == b); }

RWCString operator+(const RWCString& a, const RWCString& b) { return RWCString(a.std() + b.std()); }
RWCString operator+(const RWCString& a, const char* b) { return RWCString(a.std() + (b ? b : "")); }
RWCString operator+(const char* a, const RWCString& b) { return RWCString((a ? a : "") + b.std()); }

RWCString toLower(const RWCString& s) {
    RWCString r(s);
    r.toLower();
    return r;
}

RWCString toUpper(const RWCString& s) {
    RWCString r(s);
    r.toUpper();
    return r;
}
