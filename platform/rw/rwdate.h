// RWDate: a calendar date held as its astronomical Julian day number (1 Jan 1970 = 2440588); the day
// number 0 is the invalid date.
//
// Stored as the day number: 4 bytes unsigned on RWFile and the binary stream (1 Jan 1970 = 8C 3D 25 00),
// a number on the portable stream.
#pragma once

#include "rw/cstring.h"
#include "rw/locale.h"

class RWFile;
class RWvistream;
class RWvostream;

class RWDate {
public:
    RWDate(); // today, local time
    // day of the month, month 1..12, year (a year up to 99 means 1900 + year). A day or month that does
    // not exist gives the invalid date.
    RWDate(unsigned day, unsigned month, unsigned year);
    // Parsed with the locale; text that is no date gives the invalid date.
    explicit RWDate(const RWCString& text, const RWLocale& locale = RWLocale::global());
    static RWDate fromJulian(unsigned long julianDay);
    // Fixes the day that RWDate() gives as today (tests of date logic); 0 returns to the clock. Returns the
    // day fixed before, or 0.
    static unsigned long fixToday(unsigned long julianDay);

    unsigned long julian() const { return julian_; }
    void julian(unsigned long julianDay) { julian_ = julianDay; }
    RWBoolean isValid() const { return julian_ > 0; }
    // The invalid date gives 0 for each of these. Any other day number gives its proleptic Gregorian date;
    // a year outside 1..UINT_MAX (day numbers before AD 1 or beyond) wraps modulo 2^32.
    unsigned dayOfMonth() const;
    unsigned day() const; // day of the year, 1..366
    unsigned month() const;
    unsigned year() const;
    unsigned weekDay() const; // 1 = Monday .. 7 = Sunday

    // %d day (2 digits), %m month (2 digits), %Y year (4 digits), %y year modulo 100 (2 digits), %% a
    // percent sign, %B / %b the locale's full / abbreviated month name; other characters are copied.
    // The invalid date gives the empty text.
    RWCString asString(const char* format, const RWLocale& locale = RWLocale::global()) const;

    // The Gregorian rules for the year as given (no 1900 is added here). A month outside 1..12 has 0 days.
    static unsigned daysInMonthYear(unsigned month, unsigned year);
    static unsigned daysInYear(unsigned year);
    static RWBoolean leapYear(unsigned year);
    static RWBoolean dayWithinMonth(unsigned month, unsigned day, unsigned year);

    RWDate& operator+=(unsigned long days) {
        julian_ += days;
        return *this;
    }
    RWDate& operator-=(unsigned long days) {
        julian_ -= days;
        return *this;
    }
    RWDate& operator++() {
        ++julian_;
        return *this;
    }
    RWDate& operator--() {
        --julian_;
        return *this;
    }
    friend RWDate operator+(const RWDate& d, unsigned long days) { return fromJulian(d.julian_ + days); }
    friend RWDate operator-(const RWDate& d, unsigned long days) { return fromJulian(d.julian_ - days); }
    friend unsigned long operator-(const RWDate& a, const RWDate& b) { return a.julian_ - b.julian_; }
    friend RWBoolean operator==(const RWDate& a, const RWDate& b) { return a.julian_ == b.julian_; }
    friend RWBoolean operator!=(const RWDate& a, const RWDate& b) { return a.julian_ != b.julian_; }
    friend RWBoolean operator<(const RWDate& a, const RWDate& b) { return a.julian_ < b.julian_; }
    friend RWBoolean operator<=(const RWDate& a, const RWDate& b) { return a.julian_ <= b.julian_; }
    friend RWBoolean operator>(const RWDate& a, const RWDate& b) { return a.julian_ > b.julian_; }
    friend RWBoolean operator>=(const RWDate& a, const RWDate& b) { return a.julian_ >= b.julian_; }
    unsigned hash() const { return static_cast<unsigned>(julian_); }

    void saveOn(RWFile& f) const;
    void saveOn(RWvostream& s) const;
    void restoreFrom(RWFile& f);
    void restoreFrom(RWvistream& s);
    RWspace binaryStoreSize() const { return 4; }

private:
    unsigned long julian_ = 0;
};

RWFile& operator<<(RWFile& f, const RWDate& d);
RWFile& operator>>(RWFile& f, RWDate& d);
RWvostream& operator<<(RWvostream& s, const RWDate& d);
RWvistream& operator>>(RWvistream& s, RWDate& d);
