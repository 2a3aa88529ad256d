#include "qballg/cp1252.h"

#include <gtest/gtest.h>

#include <string>

TEST(Cp1252, EveryByteRoundTripsThroughUtf8) {
    for (int b = 0; b < 256; ++b) {
        const std::string byte(1, static_cast<char>(b));
        const std::string utf8 = cp1252ToUtf8(byte);
        std::string back;
        std::string error;
        ASSERT_TRUE(utf8ToCp1252(utf8, back, &error)) << "byte " << b << ": " << error;
        EXPECT_EQ(back, byte) << "byte " << b;
    }
}

TEST(Cp1252, AllBytesMapToDistinctCharacters) {
    std::string all;
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    std::string back;
    ASSERT_TRUE(utf8ToCp1252(cp1252ToUtf8(all), back));
    EXPECT_EQ(back, all);
    for (int a = 0; a < 256; ++a)
        for (int b = a + 1; b < 256; ++b)
            ASSERT_NE(cp1252ToCodePoint(static_cast<unsigned char>(a)),
                      cp1252ToCodePoint(static_cast<unsigned char>(b)));
}

TEST(Cp1252, EuroSignAndTheHighRangeFollowTheWindowsTable) {
    EXPECT_EQ(cp1252ToUtf8("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(cp1252ToCodePoint(0x80), U'\u20AC');
    EXPECT_EQ(cp1252ToCodePoint(0x8A), U'\u0160');
    EXPECT_EQ(cp1252ToCodePoint(0x93), U'\u201C');
    EXPECT_EQ(cp1252ToCodePoint(0x9F), U'\u0178');
    EXPECT_EQ(cp1252ToCodePoint(0xE4), U'\u00E4');
    std::string back;
    ASSERT_TRUE(utf8ToCp1252("\xE2\x82\xAC 5", back));
    EXPECT_EQ(back, "\x80 5");
}

TEST(Cp1252, UndefinedBytesMapToTheirC1Controls) {
    for (unsigned char b : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(cp1252ToCodePoint(b), static_cast<char32_t>(b));
        EXPECT_EQ(cp1252FromCodePoint(b), b);
    }
    // The other C1 controls have no byte of their own: 0x80 is the euro sign.
    EXPECT_EQ(cp1252FromCodePoint(0x80), -1);
    EXPECT_EQ(cp1252FromCodePoint(0x9F), -1);
}

TEST(Cp1252, GermanTextConvertsBothWays) {
    const std::string utf8(reinterpret_cast<const char*>(u8"Erklärung Verletzungen"));
    EXPECT_EQ(utf8, "Erkl\xC3\xA4rung Verletzungen");
    EXPECT_EQ(cp1252ToUtf8("Erkl\xE4rung Verletzungen"), utf8);
    std::string back;
    ASSERT_TRUE(utf8ToCp1252(utf8, back));
    EXPECT_EQ(back, "Erkl\xE4rung Verletzungen");
    ASSERT_TRUE(utf8ToCp1252("\xC3\x84\xC3\x96\xC3\x9C\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", back));
    EXPECT_EQ(back, "\xC4\xD6\xDC\xE4\xF6\xFC\xDF");
}

TEST(Cp1252, CharacterWithoutWindows1252FormFailsWithItsNameAndOffset) {
    std::string out = "unchanged";
    std::string error;
    EXPECT_FALSE(utf8ToCp1252("ab\xE4\xB8\xAD", out, &error)); // U+4E2D
    EXPECT_EQ(out, "unchanged");
    EXPECT_NE(error.find("U+4E2D"), std::string::npos) << error;
    EXPECT_NE(error.find("byte offset 2"), std::string::npos) << error;
    EXPECT_NE(error.find("Windows-1252"), std::string::npos) << error;
}

TEST(Cp1252, MalformedUtf8FailsWithOffset) {
    struct Case {
        const char* bytes;
        size_t offset;
        const char* problem;
    };
    const Case cases[] = {
        {"a\xC0\xAF", 1, "overlong"},        // '/' in two bytes
        {"ab\xE0\x80\xAF", 2, "overlong"},   // '/' in three bytes
        {"\xF0\x80\x80\xAF", 0, "overlong"}, // '/' in four bytes
        {"xyz\xC3", 3, "truncated"},         // lead byte at the end
        {"\xE2\x82", 0, "truncated"},        // euro sign cut short
        {"\xE2\x82x", 0, "missing continuation"},
        {"a\x80", 1, "unexpected continuation"},
        {"\xED\xA0\x80", 0, "surrogate"},
        {"\xF4\x90\x80\x80", 0, "beyond U+10FFFF"},
        {"\xFF", 0, "invalid lead"},
    };
    for (const Case& c : cases) {
        std::string out = "unchanged";
        std::string error;
        EXPECT_FALSE(utf8ToCp1252(c.bytes, out, &error)) << c.bytes;
        EXPECT_EQ(out, "unchanged");
        EXPECT_NE(error.find("malformed UTF-8 at byte offset " + std::to_string(c.offset)), std::string::npos)
            << error;
        EXPECT_NE(error.find(c.problem), std::string::npos) << error;
    }
}

TEST(Cp1252, NulBytesAndControlsPassBothWays) {
    const std::string text("a\0b\x01\x1F\x7F", 6);
    const std::string utf8 = cp1252ToUtf8(text);
    EXPECT_EQ(utf8, text);
    std::string back;
    ASSERT_TRUE(utf8ToCp1252(utf8, back));
    EXPECT_EQ(back, text);
}

TEST(Cp1252, RWCStringOverloads) {
    EXPECT_EQ(cp1252ToUtf8(RWCString("\xE4")), "\xC3\xA4");
    RWCString out("unchanged");
    EXPECT_TRUE(utf8ToCp1252("\xC3\xBC", out));
    EXPECT_EQ(out, "\xFC");
    EXPECT_FALSE(utf8ToCp1252("\xF0\x9F\x98\x80", out)); // an emoji
    EXPECT_EQ(out, "\xFC");
    EXPECT_EQ(cp1252ToUtf8(static_cast<const char*>(nullptr)), "");
}

TEST(Cp1252, EmptyTextConvertsToEmptyText) {
    EXPECT_EQ(cp1252ToUtf8(std::string_view()), "");
    std::string out = "x";
    EXPECT_TRUE(utf8ToCp1252("", out));
    EXPECT_EQ(out, "");
}

TEST(Cp1252, AsciiRunsBetweenOtherCharactersConvertWhole) {
    EXPECT_EQ(cp1252ToUtf8(std::string_view("\xE4")), "\xC3\xA4");
    EXPECT_EQ(cp1252ToUtf8(std::string_view("Stra\xDF"
                                            "e 12, \x80 5,00")),
              "Stra\xC3\x9F"
              "e 12, \xE2\x82\xAC 5,00");
    EXPECT_EQ(cp1252ToUtf8(std::string_view("\x80\x80"
                                            "abc\xFF")),
              "\xE2\x82\xAC\xE2\x82\xAC"
              "abc\xC3\xBF");
    const std::string lang(1000, 'x');
    EXPECT_EQ(cp1252ToUtf8(std::string_view(lang + "\xFC" + lang)), lang + "\xC3\xBC" + lang);
}
