#include "qballg/QBvar.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace {

// The blanks atoi skips in the "C" locale; the process locale plays no part.
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

// atol without its undefined behaviour: an overflowing number is clamped.
long textToLong(const RWCString& text) {
    const std::string& s = text.std();
    size_t i = 0;
    while (i < s.size() && isBlank(s[i]))
        ++i;
    bool negative = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) negative = s[i++] == '-';
    // Accumulated as a negative number, which has room for LONG_MIN.
    long value = 0;
    for (; i < s.size() && s[i] >= '0' && s[i] <= '9'; ++i) {
        const int digit = s[i] - '0';
        if (value < (LONG_MIN + digit) / 10) return negative ? LONG_MIN : LONG_MAX;
        value = value * 10 - digit;
    }
    if (negative) return value;
    return value == LONG_MIN ? LONG_MAX : -value;
}

// atof without the locale's decimal point: the longest prefix that is a number, 0 when none is.
double textToDouble(const RWCString& text) {
    const std::string& s = text.std();
    const char* p = s.data();
    const char* end = p + s.size();
    while (p < end && isBlank(*p))
        ++p;
    bool negative = false;
    if (p < end && (*p == '+' || *p == '-')) negative = *p++ == '-';
    if (p < end && (*p == '+' || *p == '-')) return 0.0;
    double value = 0.0;
    const auto [stop, ec] = std::from_chars(p, end, value, std::chars_format::general);
    if (ec == std::errc::result_out_of_range) {
        // Like strtod: too large gives infinity, too small zero.
        bool negativeExponent = false;
        for (const char* q = p; q + 1 < stop; ++q)
            if ((*q == 'e' || *q == 'E') && q[1] == '-') negativeExponent = true;
        value = negativeExponent ? 0.0 : HUGE_VAL;
    } else if (ec != std::errc()) {
        return 0.0;
    }
    return negative ? -value : value;
}

template <class Integer>
Integer clampToRange(long value) {
    if (value < std::numeric_limits<Integer>::min()) return std::numeric_limits<Integer>::min();
    if (value > std::numeric_limits<Integer>::max()) return std::numeric_limits<Integer>::max();
    return static_cast<Integer>(value);
}

template <class Integer>
Integer truncateDouble(double value) {
    if (std::isnan(value)) return 0;
    // The bounds are powers of two, exact in a double.
    const double lowest = static_cast<double>(std::numeric_limits<Integer>::min());
    const double beyondMax = -lowest;
    if (value <= lowest) return std::numeric_limits<Integer>::min();
    if (value >= beyondMax) return std::numeric_limits<Integer>::max();
    return static_cast<Integer>(value);
}

long dateToLong(const RWDate& date) {
    return static_cast<long>(std::min<unsigned long>(date.julian(), LONG_MAX));
}

} // namespace

long QBvar::asLong() const {
    switch (kind()) {
    case empty:
        return 0;
    case text:
        return textToLong(*ifText());
    case flag:
        return *ifFlag();
    case intValue:
        return *ifInt();
    case longValue:
        return *ifLong();
    case doubleValue:
        return truncateDouble<long>(*ifDouble());
    case boolValue:
        return *ifBool() ? 1 : 0;
    case date:
        return dateToLong(*ifDate());
    }
    return 0;
}

int QBvar::asInt() const {
    if (kind() == doubleValue) return truncateDouble<int>(*ifDouble());
    return clampToRange<int>(asLong());
}

double QBvar::asDouble() const {
    switch (kind()) {
    case empty:
        return 0.0;
    case text:
        return textToDouble(*ifText());
    case doubleValue:
        return *ifDouble();
    case date:
        return static_cast<double>(ifDate()->julian());
    default:
        return static_cast<double>(asLong());
    }
}

RWCString QBvar::asString() const {
    char buf[64];
    switch (kind()) {
    case empty:
        return RWCString();
    case text:
        return *ifText();
    case doubleValue: {
        const auto result = std::to_chars(buf, buf + sizeof buf, *ifDouble());
        return RWCString(buf, static_cast<size_t>(result.ptr - buf));
    }
    case date: {
        const RWDate& d = *ifDate();
        if (!d.isValid()) return RWCString();
        std::snprintf(buf, sizeof buf, "%02u.%02u.%04u", d.dayOfMonth(), d.month(), d.year());
        return RWCString(buf);
    }
    default: {
        const auto result = std::to_chars(buf, buf + sizeof buf, asLong());
        return RWCString(buf, static_cast<size_t>(result.ptr - buf));
    }
    }
}

bool QBvar::identical(const QBvar& other) const {
    if (kind() != other.kind()) return false;
    if (kind() == doubleValue)
        return std::bit_cast<std::uint64_t>(*ifDouble()) == std::bit_cast<std::uint64_t>(*other.ifDouble());
    return value_ == other.value_;
}
