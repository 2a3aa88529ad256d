// RWLocale: how dates are read from and written to text. RWLocaleSnapshot("german") reads day, month,
// year in that order and knows the German month names.
#pragma once

#include "rw/cstring.h"

#include <ctime>

class RWLocale {
public:
    virtual ~RWLocale() = default;
    // Month number 1..12 for a full or abbreviated month name in any case; 0 when none fits.
    virtual int monthIndex(const RWCString& name) const = 0;
    virtual RWCString monthName(unsigned month, RWBoolean abbreviated = false) const = 0;
    // Reads a date; fills tm_mday, tm_mon (0..11) and tm_year (years since 1900). False when the text is
    // no date.
    virtual RWBoolean stringToDate(const RWCString& text, struct tm* out) const = 0;

    // The locale used when none is given: at first a snapshot of the "C" locale.
    static const RWLocale& global();
    // Installs a new global locale (not owned; it must outlive its use) and returns the previous one.
    // A null pointer puts the "C" snapshot back.
    static const RWLocale* global(const RWLocale* locale);
};

class RWLocaleSnapshot : public RWLocale {
public:
    // "german" (also "de", "de_DE" and the like) gives German month names and day-month-year order;
    // anything else, or no name, the "C" locale's English names and month-day-year order.
    explicit RWLocaleSnapshot(const char* localeName = 0);

    int monthIndex(const RWCString& name) const override;
    RWCString monthName(unsigned month, RWBoolean abbreviated = false) const override;
    RWBoolean stringToDate(const RWCString& text, struct tm* out) const override;

    // Further spellings a month name has in use (German "Mrz" for March); ends with a null name.
    struct MonthAlias {
        const char* name;
        int month;
    };

private:
    enum Order { DayMonthYear, MonthDayYear };
    Order order_;
    const char* const* monthNames_;
    const char* const* monthAbbreviations_;
    const MonthAlias* monthAliases_;
};
