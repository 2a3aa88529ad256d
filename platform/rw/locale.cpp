#include "rw/locale.h"

#include "rw/rwdate.h"
#include "qballg/cp1252_literal.h"

#include <atomic>
#include <string>
#include <string_view>

namespace {

const char* const kEnglishMonths[12] = {"January",   "February", "March",    "April",
                                        "May",       "June",     "July",     "August",
                                        "September", "October",  "November", "December"};
const char* const kEnglishMonthAbbreviations[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
const RWLocaleSnapshot::MonthAlias kEnglishMonthAliases[] = {{nullptr, 0}};

// Text of the German locale is Windows-1252, like the library's: "ä" is the single byte 0xE4.
const char* const kGermanMonths[12] = {"Januar", "Februar", "März"_cp1252, "April",   "Mai",      "Juni",
                                       "Juli",   "August",  "September",   "Oktober", "November", "Dezember"};
const char* const kGermanMonthAbbreviations[12] = {"Jan", "Feb", "Mär"_cp1252, "Apr", "Mai", "Jun",
                                                   "Jul", "Aug", "Sep",        "Okt", "Nov", "Dez"};
// "Mrz" is the usual abbreviation where "ä" cannot be written; "Maerz" the spelled-out transcription.
const RWLocaleSnapshot::MonthAlias kGermanMonthAliases[] = {{"Mrz", 3}, {"Maerz", 3}, {nullptr, 0}};

unsigned char foldCase(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + ('a' - 'A'));
    // Windows-1252 capitals: À..Þ except the multiplication sign, and Š Œ Ž Ÿ.
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 0x20);
    switch (c) {
    case 0x8A:
        return 0x9A;
    case 0x8C:
        return 0x9C;
    case 0x8E:
        return 0x9E;
    case 0x9F:
        return 0xFF;
    default:
        return c;
    }
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (foldCase(static_cast<unsigned char>(a[i])) != foldCase(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

bool isDigit(unsigned char c) { return c >= '0' && c <= '9'; }

// Letters of a month name: ASCII letters and the Windows-1252 letters (À..ÿ without × and ÷).
bool isLetter(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= 0xC0 && c != 0xD7 && c != 0xF7);
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && equalIgnoringCase(text.substr(0, prefix.size()), prefix);
}

// "german", "German_Germany.1252", "de", "de_DE", "de-AT", "de_DE.UTF-8", "deu" and the like.
bool isGermanLocaleName(const char* name) {
    if (!name) return false;
    std::string_view n(name);
    if (startsWithIgnoringCase(n, "german")) return true;
    for (std::string_view language : {std::string_view("deu"), std::string_view("de")}) {
        if (!startsWithIgnoringCase(n, language)) continue;
        if (n.size() == language.size()) return true;
        char next = n[language.size()];
        if (next == '_' || next == '-' || next == '.' || next == '@') return true;
    }
    return false;
}

// Reads a date's parts left to right from the text: numbers after skipping whatever is no digit, a month
// also as a name.
class DateScanner {
public:
    DateScanner(std::string_view text, const RWLocale& locale) : text_(text), locale_(locale) {}

    // Skips non-digits, then reads 1..maxDigits digits.
    bool number(unsigned maxDigits, unsigned& out) {
        while (pos_ < text_.size() && !isDigit(at(pos_)))
            ++pos_;
        return digits(maxDigits, out);
    }

    // The first month name or number ahead; words that name no month are skipped like other non-digits.
    bool month(unsigned& out) {
        while (pos_ < text_.size()) {
            unsigned char c = at(pos_);
            if (isDigit(c)) return digits(2, out);
            if (!isLetter(c)) {
                ++pos_;
                continue;
            }
            size_t start = pos_;
            while (pos_ < text_.size() && isLetter(at(pos_)))
                ++pos_;
            int index = locale_.monthIndex(RWCString(text_.substr(start, pos_ - start)));
            if (index > 0) {
                out = static_cast<unsigned>(index);
                return true;
            }
        }
        return false;
    }

    bool digitsRemain() const {
        for (size_t i = pos_; i < text_.size(); ++i)
            if (isDigit(at(i))) return true;
        return false;
    }

private:
    unsigned char at(size_t i) const { return static_cast<unsigned char>(text_[i]); }

    bool digits(unsigned maxDigits, unsigned& out) {
        unsigned value = 0;
        unsigned count = 0;
        while (count < maxDigits && pos_ < text_.size() && isDigit(at(pos_))) {
            value = value * 10 + (at(pos_) - '0');
            ++pos_;
            ++count;
        }
        if (count == 0) return false;
        out = value;
        return true;
    }

    std::string_view text_;
    const RWLocale& locale_;
    size_t pos_ = 0;
};

const RWLocale& cLocale() {
    static const RWLocaleSnapshot snapshot("C");
    return snapshot;
}

std::atomic<const RWLocale*> installedGlobal{nullptr};

} // namespace

const RWLocale& RWLocale::global() {
    const RWLocale* installed = installedGlobal.load();
    return installed ? *installed : cLocale();
}

const RWLocale* RWLocale::global(const RWLocale* locale) {
    const RWLocale* previous = installedGlobal.exchange(locale);
    return previous ? previous : &cLocale();
}

RWLocaleSnapshot::RWLocaleSnapshot(const char* localeName) {
    if (isGermanLocaleName(localeName)) {
        order_ = DayMonthYear;
        monthNames_ = kGermanMonths;
        monthAbbreviations_ = kGermanMonthAbbreviations;
        monthAliases_ = kGermanMonthAliases;
    } else {
        order_ = MonthDayYear;
        monthNames_ = kEnglishMonths;
        monthAbbreviations_ = kEnglishMonthAbbreviations;
        monthAliases_ = kEnglishMonthAliases;
    }
}

int RWLocaleSnapshot::monthIndex(const RWCString& name) const {
    std::string_view n(name.std());
    for (int i = 0; i < 12; ++i)
        if (equalIgnoringCase(n, monthNames_[i]) || equalIgnoringCase(n, monthAbbreviations_[i]))
            return i + 1;
    for (const MonthAlias* alias = monthAliases_; alias->name; ++alias)
        if (equalIgnoringCase(n, alias->name)) return alias->month;
    return 0;
}

RWCString RWLocaleSnapshot::monthName(unsigned month, RWBoolean abbreviated) const {
    if (month < 1 || month > 12) return RWCString();
    return RWCString(abbreviated ? monthAbbreviations_[month - 1] : monthNames_[month - 1]);
}

RWBoolean RWLocaleSnapshot::stringToDate(const RWCString& text, struct tm* out) const {
    if (!out) return false;
    DateScanner scan(text.std(), *this);
    unsigned day = 0;
    unsigned month = 0;
    unsigned year = 0;
    bool complete = order_ == DayMonthYear ? scan.number(2, day) && scan.month(month)
                                           : scan.month(month) && scan.number(2, day);
    if (!complete || !scan.number(4, year) || scan.digitsRemain()) return false;
    if (year < 100) year += 1900;
    if (!RWDate::dayWithinMonth(month, day, year)) return false;
    out->tm_mday = static_cast<int>(day);
    out->tm_mon = static_cast<int>(month) - 1;
    out->tm_year = static_cast<int>(year) - 1900;
    return true;
}
