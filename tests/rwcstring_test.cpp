#include "rw/cstring.h"

#include <gtest/gtest.h>

TEST(RWCString, ConstructsFromTextAndFromBytesWithLength) {
    RWCString a("abc");
    EXPECT_EQ(a.length(), 3u);
    EXPECT_STREQ(a.data(), "abc");
    RWCString b("a\0b", 3);
    EXPECT_EQ(b.length(), 3u);
    EXPECT_EQ(b[1], '\0');
    EXPECT_TRUE(RWCString().isNull());
    EXPECT_TRUE(RWCString(static_cast<const char*>(nullptr)).isNull());
}

TEST(RWCString, SubstringIsClampedToWhatExists) {
    RWCString v("10.2002");
    EXPECT_EQ(RWCString(v(0, 2)), "10");
    EXPECT_EQ(RWCString(v(3, 4)), "2002");
    RWCString shortVersion("1.2");
    EXPECT_EQ(RWCString(shortVersion(3, 4)), "");
    EXPECT_EQ(RWCString(shortVersion(2, 4)), "2");
    EXPECT_EQ(RWCString(shortVersion(100, 4)), "");
    RWCString empty;
    EXPECT_EQ(RWCString(empty(0, 2)), "");
    EXPECT_EQ(v(5, 100).length(), 2u);
}

TEST(RWCString, VersionKeyBuildsFromSubstringsAndAtoi) {
    RWCString v("11.2001");
    RWCString key = RWCString(v(3, 4)) + RWCString(v(0, 2));
    EXPECT_EQ(atoi(key), 200111);
}

TEST(RWCString, IndexContainsFirstStrip) {
    RWCString s("  Hallo Welt  ");
    EXPECT_EQ(s.index("Welt"), 8u);
    EXPECT_EQ(s.index("welt"), RW_NPOS);
    EXPECT_EQ(s.index("welt", 0, RWCString::ignoreCase), 8u);
    EXPECT_EQ(s.index("Hallo", 3), RW_NPOS);
    EXPECT_EQ(s.index("x", 99), RW_NPOS);
    EXPECT_TRUE(s.contains("Hallo"));
    EXPECT_FALSE(s.contains("hallo"));
    EXPECT_EQ(s.first('W'), 8u);
    EXPECT_EQ(s.first('Z'), RW_NPOS);
    EXPECT_EQ(RWCString(s.strip()), "  Hallo Welt");
    EXPECT_EQ(RWCString(s.strip(RWCString::leading)), "Hallo Welt  ");
    EXPECT_EQ(RWCString(s.strip(RWCString::both)), "Hallo Welt");
    RWCString blanks("   ");
    EXPECT_EQ(RWCString(blanks.strip(RWCString::both)), "");
}

TEST(RWCString, InsertAppendPrependAndConcatenation) {
    RWCString d("01021970");
    d.insert(2, ".");
    d.insert(5, ".");
    EXPECT_EQ(d, "01.02.1970");
    RWCString s("b");
    s.append("c").prepend("a");
    s += "d";
    s += RWCString("e");
    EXPECT_EQ(s, "abcde");
    EXPECT_EQ(RWCString("x") + "y", "xy");
    EXPECT_EQ("x" + RWCString("y"), "xy");
    RWCString far("ab");
    far.insert(10, "c");
    EXPECT_EQ(far, "abc");
}

TEST(RWCString, ComparisonsWithStringsAndLiterals) {
    RWCString l145("L145");
    EXPECT_TRUE(l145 == "L145");
    EXPECT_TRUE("L145" == l145);
    EXPECT_FALSE(l145 == "l145");
    EXPECT_TRUE(l145 != RWCString("l145"));
    EXPECT_TRUE(RWCString("12.2001") > RWCString("01.2002"));
    EXPECT_TRUE(RWCString("a") < "b");
    EXPECT_EQ(l145.compareTo("l145", RWCString::ignoreCase), 0);
    EXPECT_EQ(RWCString("abc").hash(), RWCString("abc").hash());
    EXPECT_NE(RWCString("abc").hash(), RWCString("abd").hash());
}

TEST(RWCString, SubstringAssignmentReplacesInPlace) {
    RWCString s("Hallo Welt");
    s(0, 5) = "Tschau";
    EXPECT_EQ(s, "Tschau Welt");
    EXPECT_TRUE(s(0, 6) == "Tschau");
}

TEST(RWCString, BinaryStoreSizeIsLengthPlusFour) { EXPECT_EQ(RWCString("abc").binaryStoreSize(), 7u); }
