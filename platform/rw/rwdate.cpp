#include "rw/rwdate.h"

#include "rw/rwfile.h"
#include "rw/vstream.h"

#include <atomic>
#include <ctime>
#include <string>

namespace {

// The Gregorian calendar repeats every 400 years, which are exactly this many days.
constexpr unsigned long kDaysPer400Years = 146097;
// Day number 0 is 1 Mar 4801 BC (astronomical year -4800) plus this many days; counting from a 1 March
// puts the leap day at the end of the counted year.
constexpr unsigned long kDaysFromMarch4801BC = 32044;

struct CivilDate {
    long long year;
    unsigned month;
    unsigned day;
    unsigned dayOfYear;
};

bool isLeap(long long year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// Unsigned arithmetic on whole 400-year cycles first: any day number, however large, converts without
// overflow.
CivilDate civilFromJulian(unsigned long julian) {
    unsigned long cycles = julian / kDaysPer400Years;
    unsigned long dayOfCycle = julian % kDaysPer400Years + kDaysFromMarch4801BC;
    if (dayOfCycle >= kDaysPer400Years) {
        dayOfCycle -= kDaysPer400Years;
        ++cycles;
    }
    unsigned long yearOfCycle =
        (dayOfCycle - dayOfCycle / 1460 + dayOfCycle / 36524 - dayOfCycle / 146096) / 365;
    unsigned long dayFromMarch = dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100);
    unsigned long monthFromMarch = (5 * dayFromMarch + 2) / 153;

    CivilDate civil;
    civil.day = static_cast<unsigned>(dayFromMarch - (153 * monthFromMarch + 2) / 5 + 1);
    civil.month = static_cast<unsigned>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    civil.year = static_cast<long long>(cycles * 400 + yearOfCycle) - 4800 + (civil.month <= 2 ? 1 : 0);
    // 1 January is day 306 counted from 1 March.
    civil.dayOfYear = static_cast<unsigned>(
        civil.month <= 2 ? dayFromMarch - 306 + 1 : dayFromMarch + 59 + (isLeap(civil.year) ? 1 : 0) + 1);
    return civil;
}

// The day, month and year must form an existing date.
unsigned long julianFromCivil(unsigned day, unsigned month, unsigned year) {
    unsigned long beforeMarch = month <= 2 ? 1 : 0;
    unsigned long y = static_cast<unsigned long>(year) + 4800 - beforeMarch;
    unsigned long monthFromMarch = month + 12 * beforeMarch - 3;
    return day + (153 * monthFromMarch + 2) / 5 + 365 * y + y / 4 - y / 100 + y / 400 - kDaysFromMarch4801BC -
           1;
}

void appendNumber(std::string& out, unsigned long value, size_t minDigits) {
    std::string digits = std::to_string(value);
    if (digits.size() < minDigits) out.append(minDigits - digits.size(), '0');
    out += digits;
}

} // namespace

namespace {
std::atomic<unsigned long> fixedToday{0};
}

unsigned long RWDate::fixToday(unsigned long julianDay) { return fixedToday.exchange(julianDay); }

RWDate::RWDate() {
    if (unsigned long fixed = fixedToday.load()) {
        julian_ = fixed;
        return;
    }
    std::time_t now = std::time(nullptr);
    struct tm local;
    if (localtime_r(&now, &local))
        julian_ =
            julianFromCivil(static_cast<unsigned>(local.tm_mday), static_cast<unsigned>(local.tm_mon + 1),
                            static_cast<unsigned>(local.tm_year + 1900));
}

RWDate::RWDate(unsigned day, unsigned month, unsigned year) {
    if (year <= 99) year += 1900;
    if (dayWithinMonth(month, day, year)) julian_ = julianFromCivil(day, month, year);
}

RWDate::RWDate(const RWCString& text, const RWLocale& locale) {
    struct tm parsed = {};
    if (!locale.stringToDate(text, &parsed)) return;
    // Years below 100 would be taken for 19xx by the day-month-year constructor; none reach here from a
    // snapshot, which adds the 1900 itself.
    long long year = static_cast<long long>(parsed.tm_year) + 1900;
    if (parsed.tm_mday < 1 || parsed.tm_mon < 0 || parsed.tm_mon > 11 || year < 100 || year > 0xFFFFFFFFLL)
        return;
    *this = RWDate(static_cast<unsigned>(parsed.tm_mday), static_cast<unsigned>(parsed.tm_mon + 1),
                   static_cast<unsigned>(year));
}

RWDate RWDate::fromJulian(unsigned long julianDay) {
    RWDate d(0, 0, 0); // invalid at once, without asking the clock for today
    d.julian_ = julianDay;
    return d;
}

unsigned RWDate::dayOfMonth() const { return isValid() ? civilFromJulian(julian_).day : 0; }

unsigned RWDate::day() const { return isValid() ? civilFromJulian(julian_).dayOfYear : 0; }

unsigned RWDate::month() const { return isValid() ? civilFromJulian(julian_).month : 0; }

unsigned RWDate::year() const {
    // Years outside the unsigned range wrap, which the conversion to unsigned defines.
    return isValid() ? static_cast<unsigned>(civilFromJulian(julian_).year) : 0;
}

// Day number 0 was a Monday.
unsigned RWDate::weekDay() const { return isValid() ? static_cast<unsigned>(julian_ % 7) + 1 : 0; }

RWCString RWDate::asString(const char* format, const RWLocale& locale) const {
    if (!isValid() || !format) return RWCString();
    CivilDate civil = civilFromJulian(julian_);
    unsigned year = static_cast<unsigned>(civil.year);
    std::string out;
    for (const char* p = format; *p; ++p) {
        if (*p != '%' || p[1] == '\0') {
            out += *p;
            continue;
        }
        switch (*++p) {
        case 'd':
            appendNumber(out, civil.day, 2);
            break;
        case 'm':
            appendNumber(out, civil.month, 2);
            break;
        case 'Y':
            appendNumber(out, year, 4);
            break;
        case 'y':
            appendNumber(out, year % 100, 2);
            break;
        case 'B':
            out += locale.monthName(civil.month, false).std();
            break;
        case 'b':
            out += locale.monthName(civil.month, true).std();
            break;
        case '%':
            out += '%';
            break;
        default:
            out += '%';
            out += *p;
            break;
        }
    }
    return RWCString(std::move(out));
}

unsigned RWDate::daysInMonthYear(unsigned month, unsigned year) {
    static const unsigned kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    return month == 2 && leapYear(year) ? 29 : kDays[month - 1];
}

unsigned RWDate::daysInYear(unsigned year) { return leapYear(year) ? 366 : 365; }

RWBoolean RWDate::leapYear(unsigned year) { return isLeap(year); }

RWBoolean RWDate::dayWithinMonth(unsigned month, unsigned day, unsigned year) {
    return day >= 1 && day <= daysInMonthYear(month, year);
}

void RWDate::saveOn(RWFile& f) const { f.Write(static_cast<unsigned>(julian_)); }

void RWDate::saveOn(RWvostream& s) const { s << static_cast<unsigned long>(julian_); }

void RWDate::restoreFrom(RWFile& f) {
    unsigned stored = 0;
    if (f.Read(stored)) julian_ = stored;
}

void RWDate::restoreFrom(RWvistream& s) {
    unsigned long stored = 0;
    s >> stored;
    if (!s.fail()) julian_ = stored;
}

RWFile& operator<<(RWFile& f, const RWDate& d) {
    d.saveOn(f);
    return f;
}

RWFile& operator>>(RWFile& f, RWDate& d) {
    d.restoreFrom(f);
    return f;
}

RWvostream& operator<<(RWvostream& s, const RWDate& d) {
    d.saveOn(s);
    return s;
}

RWvistream& operator>>(RWvistream& s, RWDate& d) {
    d.restoreFrom(s);
    return s;
}
