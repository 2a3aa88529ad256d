#include "rw/bstream.h"
#include "rw/cstring.h"

#include "test_util.h"

#include <climits>
#include <random>

using namespace qbtest;

TEST(RWbostream, WritesTheSameWidthsAsRWFile) {
    std::ostringstream out;
    RWbostream s(out);
    s << 'A' << static_cast<unsigned char>(0xFF) << static_cast<short>(-2) << -1 << 0x01020304u
      << static_cast<long>(-3) << 1.0;
    Bytes expected{0x41, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x04, 0x03, 0x02, 0x01,
                   0xFD, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F};
    EXPECT_EQ(hex(bytesOf(out.str())), hex(expected));
}

TEST(RWbostream, StringCarriesItsLengthTwice) {
    std::ostringstream out;
    RWbostream s(out);
    RWCString("abc").saveOn(s);
    EXPECT_EQ(hex(bytesOf(out.str())), hex(cat({int32(3), int32(3), bytesOf("abc")})));
}

TEST(RWbistream, EveryScalarRoundTrips) {
    std::stringstream io;
    {
        RWbostream s(io);
        s << static_cast<signed char>(-5) << static_cast<unsigned short>(65535) << INT_MIN << UINT_MAX
          << static_cast<long>(INT32_MIN) << 0xFFFFFFFFul << 2.5f << -0.0 << L'\x20AC';
        s.put('z');
        const int arr[2] = {7, 8};
        s.put(arr, 2);
    }
    RWbistream s(io);
    signed char sc;
    unsigned short us;
    int i;
    unsigned u;
    long l;
    unsigned long ul;
    float f;
    double d;
    wchar_t w;
    char c;
    int arr[2];
    s >> sc >> us >> i >> u >> l >> ul >> f >> d >> w;
    s.get(c);
    s.get(arr, 2);
    ASSERT_TRUE(s.good());
    EXPECT_EQ(sc, -5);
    EXPECT_EQ(us, 65535);
    EXPECT_EQ(i, INT_MIN);
    EXPECT_EQ(u, UINT_MAX);
    EXPECT_EQ(l, static_cast<long>(INT32_MIN));
    EXPECT_EQ(ul, 0xFFFFFFFFul);
    EXPECT_EQ(f, 2.5f);
    EXPECT_TRUE(std::signbit(d));
    EXPECT_EQ(w, L'\x20AC');
    EXPECT_EQ(c, 'z');
    EXPECT_EQ(arr[1], 8);
    EXPECT_EQ(s.get(), EOF);
    EXPECT_TRUE(s.eof());
    EXPECT_TRUE(s.fail());
}

TEST(RWbistream, StringRoundTripsAndShortReadLeavesItUnchanged) {
    std::stringstream io;
    {
        RWbostream s(io);
        RWCString("Geheilt seit").saveOn(s);
    }
    std::string bytes = io.str();
    {
        std::istringstream in(bytes);
        RWbistream s(in);
        RWCString r;
        r.restoreFrom(s);
        EXPECT_EQ(r, "Geheilt seit");
    }
    for (size_t cut = 0; cut < bytes.size(); ++cut) {
        std::istringstream in(bytes.substr(0, cut));
        RWbistream s(in);
        RWCString r("keep");
        r.restoreFrom(s);
        EXPECT_EQ(r, "keep") << "cut at " << cut;
        EXPECT_FALSE(s.good());
    }
}

TEST(RWbistream, DisagreeingLengthsFailTheStream) {
    std::istringstream in(std::string("\x03\0\0\0\x04\0\0\0abcd", 12));
    RWbistream s(in);
    RWCString r("keep");
    r.restoreFrom(s);
    EXPECT_EQ(r, "keep");
    EXPECT_TRUE(s.fail());
}

TEST(RWbistream, HugeStoredLengthAllocatesNoMoreThanTheInputHolds) {
    std::istringstream in(std::string("\xF0\xFF\xFF\x7F\xF0\xFF\xFF\x7F"
                                      "abc",
                                      11));
    RWbistream s(in);
    RWCString r("keep");
    r.restoreFrom(s);
    EXPECT_EQ(r, "keep");
    EXPECT_TRUE(s.fail());
}

TEST(RWbistream, GetStringIntoABufferRespectsItsSize) {
    std::stringstream io;
    {
        RWbostream s(io);
        s << "hello";
        s << "toolongforthebuffer";
    }
    RWbistream s(io);
    char buf[8];
    s.getString(buf, sizeof buf);
    EXPECT_STREQ(buf, "hello");
    s.getString(buf, sizeof buf);
    EXPECT_TRUE(s.fail());
}
