#include "rw/bstream.h"
#include "rw/cstring.h"

#include "allokationen.h"
#include "test_util.h"

#include <algorithm>
#include <climits>
#include <random>
#include <streambuf>

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

// The stream reads the string piece by piece and lets it grow only with the characters that arrive: it
// used to set aside 64 kB at once for any length the streambuf could not show to be there.
TEST(RWbistream, HugeStoredLengthAllocatesNoMoreThanTheInputHolds) {
    for (const char* laenge : {"\xF0\xFF\xFF\x7F", "\x00\x00\x01\x00", "\x00\x10\x00\x00"}) {
        const std::string bytes = std::string(laenge, 4) + std::string(laenge, 4) + "abc";
        std::istringstream in(bytes);
        RWbistream s(in);
        RWCString r("keep");
        AllokationsZaehler zaehler;
        r.restoreFrom(s);
        EXPECT_EQ(r, "keep");
        EXPECT_TRUE(s.fail());
        EXPECT_LE(zaehler.stand().groesste, 2 * bytes.size()) << hex(bytesOf(bytes));
    }
}

namespace {
// Hands out its bytes seven at a time: in_avail never shows a longer string to be there.
class Tropfpuffer : public std::streambuf {
public:
    explicit Tropfpuffer(std::string bytes) : bytes_(std::move(bytes)) {}

protected:
    int_type underflow() override {
        if (pos_ >= bytes_.size()) return traits_type::eof();
        const size_t n = std::min<size_t>(7, bytes_.size() - pos_);
        setg(bytes_.data() + pos_, bytes_.data() + pos_, bytes_.data() + pos_ + n);
        pos_ += n;
        return traits_type::to_int_type(*gptr());
    }

private:
    std::string bytes_;
    size_t pos_ = 0;
};
} // namespace

TEST(RWbistream, LongStringFromAStreambufThatShowsFewBytesAtATimeReadsBackWhole) {
    std::string text(100003, '\0');
    for (size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char>(i * 7);
    std::ostringstream out;
    {
        RWbostream s(out);
        RWCString(text).saveOn(s);
        s << 42;
    }
    Tropfpuffer tropfen(out.str());
    RWbistream s(&tropfen);
    RWCString r;
    int danach = 0;
    r.restoreFrom(s);
    s >> danach;
    EXPECT_TRUE(s.good());
    EXPECT_EQ(r.std(), text);
    EXPECT_EQ(danach, 42);
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
