#include "rw/rwdate.h"

#include "rw/bstream.h"
#include "rw/locale.h"
#include "rw/rwfile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

const RWLocaleSnapshot& german() {
    static const RWLocaleSnapshot snapshot("german");
    return snapshot;
}

RWDate parsedGerman(const char* text) { return RWDate(RWCString(text), german()); }

std::string tempPath(const char* name) { return ::testing::TempDir() + "rwdate_test_" + name; }

std::vector<unsigned char> fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<unsigned char>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace

TEST(RWDate, KnownDayNumbersAndTheirCalendarParts) {
    EXPECT_EQ(RWDate(1, 1, 1901).julian(), 2415386ul);
    EXPECT_EQ(RWDate(1, 1, 1970).julian(), 2440588ul);
    EXPECT_EQ(RWDate(1, 1, 2000).julian(), 2451545ul);
    EXPECT_EQ(RWDate(1, 3, 2000).julian(), 2451605ul);
    EXPECT_EQ(RWDate(31, 12, 1999).julian() + 1, RWDate(1, 1, 2000).julian());

    RWDate d(29, 2, 2004);
    EXPECT_TRUE(d.isValid());
    EXPECT_EQ(d.dayOfMonth(), 29u);
    EXPECT_EQ(d.month(), 2u);
    EXPECT_EQ(d.year(), 2004u);
    EXPECT_EQ(d.day(), 60u);
    EXPECT_EQ(RWDate(31, 12, 2004).day(), 366u);
    EXPECT_EQ(RWDate(31, 12, 2003).day(), 365u);
    EXPECT_EQ(RWDate(1, 3, 2003).day(), 60u);
    EXPECT_EQ(RWDate(1, 1, 2003).day(), 1u);

    EXPECT_EQ(RWDate(1, 1, 1970).weekDay(), 4u);  // a Thursday
    EXPECT_EQ(RWDate(15, 3, 2010).weekDay(), 1u); // a Monday
    EXPECT_EQ(RWDate(14, 3, 2010).weekDay(), 7u); // a Sunday
}

TEST(RWDate, EveryDayOfFourCenturiesConvertsBothWays) {
    unsigned long expected = RWDate(1, 1, 1900).julian();
    for (unsigned year = 1900; year < 2300; ++year)
        for (unsigned month = 1; month <= 12; ++month)
            for (unsigned day = 1; day <= RWDate::daysInMonthYear(month, year); ++day) {
                RWDate d(day, month, year);
                ASSERT_EQ(d.julian(), expected) << day << "." << month << "." << year;
                ASSERT_EQ(d.dayOfMonth(), day);
                ASSERT_EQ(d.month(), month);
                ASSERT_EQ(d.year(), year);
                ++expected;
            }
}

TEST(RWDate, TwoDigitYearsMeanThe1900s) {
    EXPECT_EQ(RWDate(1, 2, 70), RWDate(1, 2, 1970));
    EXPECT_EQ(RWDate(1, 1, 0).year(), 1900u);
    EXPECT_EQ(RWDate(1, 1, 99).year(), 1999u);
    EXPECT_EQ(RWDate(1, 1, 100).year(), 100u);
}

TEST(RWDate, DefaultConstructorIsAValidToday) {
    RWDate today;
    ASSERT_TRUE(today.isValid());
    EXPECT_EQ(RWDate(today.dayOfMonth(), today.month(), today.year()), today);
}

TEST(RWDate, ImpossibleDaysAndMonthsGiveTheInvalidDate) {
    EXPECT_FALSE(RWDate(31, 2, 2004).isValid());
    EXPECT_FALSE(RWDate(30, 2, 2004).isValid());
    EXPECT_FALSE(RWDate(29, 2, 2003).isValid());
    EXPECT_FALSE(RWDate(31, 4, 2004).isValid());
    EXPECT_FALSE(RWDate(1, 13, 2004).isValid());
    EXPECT_FALSE(RWDate(1, 0, 2004).isValid());
    EXPECT_FALSE(RWDate(0, 1, 2004).isValid());
    EXPECT_EQ(RWDate(31, 2, 2004).julian(), 0ul);
    EXPECT_TRUE(RWDate(29, 2, 2004).isValid());
}

TEST(RWDate, InvalidDateHasNoCalendarParts) {
    RWDate invalid = RWDate::fromJulian(0);
    EXPECT_FALSE(invalid.isValid());
    EXPECT_EQ(invalid.dayOfMonth(), 0u);
    EXPECT_EQ(invalid.day(), 0u);
    EXPECT_EQ(invalid.month(), 0u);
    EXPECT_EQ(invalid.year(), 0u);
    EXPECT_EQ(invalid.weekDay(), 0u);
    EXPECT_EQ(invalid.asString("%d.%m.%Y"), "");
}

TEST(RWDate, HugeDayNumbersGiveCalendarPartsWithoutOverflow) {
    for (unsigned long julian : {0xFFFFFFE3ul, 0xFFFFFFFFul, ~0ul, ~0ul - 28, 1ul}) {
        RWDate d = RWDate::fromJulian(julian);
        EXPECT_TRUE(d.isValid());
        EXPECT_GE(d.dayOfMonth(), 1u);
        EXPECT_LE(d.dayOfMonth(), 31u);
        EXPECT_GE(d.month(), 1u);
        EXPECT_LE(d.month(), 12u);
        EXPECT_GE(d.day(), 1u);
        EXPECT_LE(d.day(), 366u);
        EXPECT_GE(d.weekDay(), 1u);
        EXPECT_LE(d.weekDay(), 7u);
        (void)d.year();
        EXPECT_FALSE(d.asString("%d.%m.%Y").isNull());
    }
    // The invalid date minus a month wraps around, as on the original platform, and still converts.
    RWDate wrapped = RWDate::fromJulian(0) - 29;
    EXPECT_TRUE(wrapped.isValid());
    EXPECT_GE(wrapped.month(), 1u);
}

TEST(RWDate, LeapYearsAndDaysInMonthFollowTheGregorianRules) {
    EXPECT_TRUE(RWDate::leapYear(2000));
    EXPECT_FALSE(RWDate::leapYear(1900));
    EXPECT_TRUE(RWDate::leapYear(2004));
    EXPECT_FALSE(RWDate::leapYear(2010));
    EXPECT_EQ(RWDate::daysInMonthYear(2, 2000), 29u);
    EXPECT_EQ(RWDate::daysInMonthYear(2, 1900), 28u);
    EXPECT_EQ(RWDate::daysInMonthYear(2, 2004), 29u);
    EXPECT_EQ(RWDate::daysInMonthYear(2, 2010), 28u);
    EXPECT_EQ(RWDate::daysInMonthYear(1, 2010), 31u);
    EXPECT_EQ(RWDate::daysInMonthYear(4, 2010), 30u);
    EXPECT_EQ(RWDate::daysInMonthYear(12, 2010), 31u);
    EXPECT_EQ(RWDate::daysInMonthYear(0, 2010), 0u);
    EXPECT_EQ(RWDate::daysInMonthYear(13, 2010), 0u);
    EXPECT_EQ(RWDate::daysInYear(2000), 366u);
    EXPECT_EQ(RWDate::daysInYear(1900), 365u);
    EXPECT_TRUE(RWDate::dayWithinMonth(2, 29, 2004));
    EXPECT_FALSE(RWDate::dayWithinMonth(2, 29, 1900));
    EXPECT_FALSE(RWDate::dayWithinMonth(2, 0, 2004));
    EXPECT_FALSE(RWDate::dayWithinMonth(13, 1, 2004));
}

TEST(RWDate, DayBeforeArithmeticStepsBackAWholeMonth) {
    RWDate march15(15, 3, 2010);
    RWDate back = march15 - RWDate::daysInMonthYear(2, 2010);
    EXPECT_EQ(back, RWDate(15, 2, 2010));
    EXPECT_EQ(march15 - back, 28ul);
    EXPECT_EQ(back + 28, march15);
    RWDate d = march15;
    --d;
    EXPECT_EQ(d, RWDate(14, 3, 2010));
    d += 18;
    EXPECT_EQ(d, RWDate(1, 4, 2010));
    EXPECT_TRUE(back < march15);
}

TEST(RWDate, AsStringFormatsDayMonthAndYear) {
    RWDate d(1, 2, 1970);
    EXPECT_EQ(d.asString("%d.%m.%Y"), "01.02.1970");
    EXPECT_EQ(d.asString("%d%m%Y"), "01021970");
    EXPECT_EQ(d.asString("%d.%m.%y"), "01.02.70");
    EXPECT_EQ(RWDate(31, 12, 2004).asString("%d.%m.%y"), "31.12.04");
    EXPECT_EQ(RWDate(5, 6, 150).asString("%Y"), "0150");
    EXPECT_EQ(d.asString("100%% am %d."), "100% am 01.");
    EXPECT_EQ(d.asString("%q%"), "%q%");
    EXPECT_EQ(d.asString(""), "");
    EXPECT_EQ(d.asString("%d. %B %Y", german()), "01. Februar 1970");
    EXPECT_EQ(RWDate(3, 3, 2004).asString("%b", german()), "M\xE4r");
    EXPECT_EQ(d.asString("%b %d, %Y", RWLocaleSnapshot("C")), "Feb 01, 1970");
}

TEST(RWDate, ParsesEveryGermanNumericForm) {
    RWDate expected(1, 2, 1970);
    for (const char* text : {"01.02.1970", "1.2.1970", "01021970", "010270", "1.2.70", " 01 / 02 / 1970 ",
                             "01.02.1970 abends"}) {
        EXPECT_EQ(parsedGerman(text), expected) << text;
    }
    EXPECT_EQ(parsedGerman("31.12.2004"), RWDate(31, 12, 2004));
    EXPECT_EQ(RWDate("01.02.1970", german()), expected); // a literal picks the text constructor
    EXPECT_EQ(parsedGerman("29.02.2004"), RWDate(29, 2, 2004));
}

TEST(RWDate, ParsesGermanMonthNamesInAnyCase) {
    RWDate expected(1, 2, 1970);
    for (const char* text :
         {"1. Februar 1970", "1. Feb 1970", "1. Feb. 1970", "01-FEBRUAR-1970", "1 februar 70"})
        EXPECT_EQ(parsedGerman(text), expected) << text;
    RWDate march(3, 3, 2004);
    for (const char* text :
         {"3. M\xE4rz 2004", "3. M\xC4RZ 2004", "3. M\xE4r 2004", "3. Mrz 2004", "3. Maerz 2004"})
        EXPECT_EQ(parsedGerman(text), march) << text;
    EXPECT_EQ(parsedGerman("24. Dezember 1999"), RWDate(24, 12, 1999));
    EXPECT_EQ(parsedGerman("1. Okt. 2001"), RWDate(1, 10, 2001));
    EXPECT_EQ(parsedGerman("1. Mai 2001"), RWDate(1, 5, 2001));
}

TEST(RWDate, TextThatIsNoDateGivesTheInvalidDate) {
    for (const char* text : {"", "2010", "abc", "01.02", "1. Febr 1970", "31.02.1970", "01.13.1970",
                             "00.01.1970", "01.00.1970", "0102197012", "01.02.1970 12", "1. Smarch 1970"}) {
        EXPECT_FALSE(parsedGerman(text).isValid()) << text;
    }
}

TEST(RWDate, CLocaleReadsMonthDayYearWithEnglishNames) {
    RWLocaleSnapshot c("C");
    EXPECT_EQ(RWDate(RWCString("02/01/1970"), c), RWDate(1, 2, 1970));
    EXPECT_EQ(RWDate(RWCString("February 1, 1970"), c), RWDate(1, 2, 1970));
    EXPECT_EQ(RWDate(RWCString("dec 24 99"), c), RWDate(24, 12, 1999));
    EXPECT_FALSE(
        RWDate(RWCString("Februar 1970"), c).isValid()); // no English name: "19" is taken as the month
    // Without a locale the global one, at first "C", reads the text.
    EXPECT_EQ(RWDate(RWCString("02/01/1970")), RWDate(1, 2, 1970));
}

TEST(RWDate, RWFileStoresTheDayNumberInFourBytes) {
    std::string path = tempPath("file.bin");
    std::remove(path.c_str());
    {
        RWFile f(path.c_str(), "wb");
        ASSERT_TRUE(f.isValid());
        f << RWDate(1, 1, 1970);
    }
    EXPECT_EQ(fileBytes(path), (std::vector<unsigned char>{0x8C, 0x3D, 0x25, 0x00}));
    RWDate restored = RWDate::fromJulian(0);
    {
        RWFile f(path.c_str(), "rb");
        f >> restored;
        EXPECT_FALSE(f.Error());
    }
    EXPECT_EQ(restored, RWDate(1, 1, 1970));
    std::remove(path.c_str());
}

TEST(RWDate, TruncatedRWFileLeavesTheDateUnchanged) {
    std::string path = tempPath("truncated.bin");
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out.write("\x8C\x3D\x25", 3);
    }
    RWDate date(24, 12, 1999);
    {
        RWFile f(path.c_str(), "rb");
        ASSERT_TRUE(f.isValid());
        f >> date;
        EXPECT_TRUE(f.Eof());
    }
    EXPECT_EQ(date, RWDate(24, 12, 1999));
    std::remove(path.c_str());
}

TEST(RWDate, BinaryVirtualStreamRoundTrip) {
    std::stringstream buffer;
    {
        RWbostream out(buffer);
        out << RWDate(1, 1, 1970) << RWDate(29, 2, 2004);
        out.flush();
        EXPECT_TRUE(out.good());
    }
    EXPECT_EQ(buffer.str().substr(0, 4), std::string("\x8C\x3D\x25\x00", 4));
    EXPECT_EQ(buffer.str().size(), 8u);
    RWbistream in(buffer);
    RWDate first = RWDate::fromJulian(0);
    RWDate second = RWDate::fromJulian(0);
    in >> first >> second;
    EXPECT_TRUE(in.good());
    EXPECT_EQ(first, RWDate(1, 1, 1970));
    EXPECT_EQ(second, RWDate(29, 2, 2004));

    RWDate untouched(24, 12, 1999);
    in >> untouched; // nothing left
    EXPECT_TRUE(in.fail());
    EXPECT_EQ(untouched, RWDate(24, 12, 1999));
}

TEST(RWLocaleSnapshot, GermanNamesAnyCaseAndWindows1252Umlaut) {
    EXPECT_EQ(german().monthIndex("Januar"), 1);
    EXPECT_EQ(german().monthIndex("jan"), 1);
    EXPECT_EQ(german().monthIndex("M\xE4rz"), 3);
    EXPECT_EQ(german().monthIndex("m\xC4RZ"), 3);
    EXPECT_EQ(german().monthIndex("M\xE4r"), 3);
    EXPECT_EQ(german().monthIndex("Mrz"), 3);
    EXPECT_EQ(german().monthIndex("OKTOBER"), 10);
    EXPECT_EQ(german().monthIndex("Dez"), 12);
    EXPECT_EQ(german().monthIndex("December"), 0);
    EXPECT_EQ(german().monthIndex(""), 0);
    EXPECT_EQ(german().monthName(3), "M\xE4rz");
    EXPECT_EQ(german().monthName(10, true), "Okt");
    EXPECT_EQ(german().monthName(0), "");
    EXPECT_EQ(german().monthName(13), "");
}

TEST(RWLocaleSnapshot, LocaleNamesSelectGermanOrC) {
    for (const char* name : {"german", "German_Germany.1252", "de", "de_DE", "de-AT", "de_DE.UTF-8", "deu"})
        EXPECT_EQ(RWLocaleSnapshot(name).monthIndex("Dezember"), 12) << name;
    for (const char* name : {"C", "", "en_US", "dk", "denmark"})
        EXPECT_EQ(RWLocaleSnapshot(name).monthIndex("December"), 12) << name;
    EXPECT_EQ(RWLocaleSnapshot().monthName(1), "January");
}

TEST(RWLocaleSnapshot, StringToDateFillsTheTmFields) {
    struct tm t = {};
    ASSERT_TRUE(german().stringToDate("1. Februar 1970", &t));
    EXPECT_EQ(t.tm_mday, 1);
    EXPECT_EQ(t.tm_mon, 1);
    EXPECT_EQ(t.tm_year, 70);
    EXPECT_FALSE(german().stringToDate("31.02.1970", &t));
    EXPECT_FALSE(german().stringToDate("01.02.1970", nullptr));
}

TEST(RWLocaleSnapshot, GlobalIsCUntilAnotherIsInstalled) {
    EXPECT_EQ(RWLocale::global().monthIndex("December"), 12);
    const RWLocale* previous = RWLocale::global(&german());
    EXPECT_EQ(RWLocale::global().monthIndex("Dezember"), 12);
    EXPECT_EQ(RWDate(RWCString("01.02.1970")), RWDate(1, 2, 1970));
    EXPECT_EQ(RWLocale::global(previous), &german());
    EXPECT_EQ(RWLocale::global().monthIndex("December"), 12);
    EXPECT_EQ(RWDate(RWCString("02/01/1970")), RWDate(1, 2, 1970));
}
