#include "rw/cstring.h"
#include "rw/rwfile.h"

#include "test_util.h"

#include <cfloat>
#include <climits>
#include <cstring>

using namespace qbtest;

TEST(RWFile, ScalarsHaveTheWidthsOfThe32BitLittleEndianPlatform) {
    TempFile tmp("scalars");
    {
        RWFile f(tmp.path(), "wb");
        ASSERT_TRUE(f.isValid());
        f.Write('A');
        f.Write(static_cast<unsigned char>(0xFF));
        f.Write(static_cast<short>(-2));
        f.Write(static_cast<unsigned short>(0x1234));
        f.Write(static_cast<int>(-1));
        f.Write(0x01020304u);
        f.Write(static_cast<long>(-3));
        f.Write(0xA1B2C3D4ul);
        f.Write(1.0);
        f.Write(true);
    }
    Bytes expected{0x41, 0xFF, 0xFE, 0xFF, 0x34, 0x12, 0xFF, 0xFF, 0xFF, 0xFF, 0x04,
                   0x03, 0x02, 0x01, 0xFD, 0xFF, 0xFF, 0xFF, 0xD4, 0xC3, 0xB2, 0xA1,
                   0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F, 0x01};
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(expected));
}

TEST(RWFile, LongIsNarrowedOnWriteAndSignExtendedOnRead) {
    TempFile tmp("long");
    {
        RWFile f(tmp.path(), "wb");
        f.Write(static_cast<long>(0x1FFFFFFFFL)); // only the low 32 bits reach the file
        f.Write(static_cast<long>(INT32_MIN));
        f.Write(static_cast<unsigned long>(0xFFFFFFFFul));
    }
    EXPECT_EQ(readBytes(tmp.path()).size(), 12u);
    RWFile f(tmp.path(), "rb");
    long a = 0, b = 0;
    unsigned long c = 0;
    ASSERT_TRUE(f.Read(a) && f.Read(b) && f.Read(c));
    EXPECT_EQ(a, -1L);
    EXPECT_EQ(b, static_cast<long>(INT32_MIN));
    EXPECT_EQ(c, 0xFFFFFFFFul);
}

TEST(RWFile, StringIsFourByteLengthThenBytesWithoutTerminator) {
    TempFile tmp("string");
    {
        RWFile f(tmp.path(), "wb");
        RWCString("abc").saveOn(f);
        RWCString().saveOn(f);
        RWCString("Erkl\xE4rung").saveOn(f);
    }
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(cat({text("abc"), text(""), text("Erkl\xE4rung")})));
    RWFile f(tmp.path(), "rb");
    RWCString a, b("x"), c;
    a.restoreFrom(f);
    b.restoreFrom(f);
    c.restoreFrom(f);
    EXPECT_EQ(a, "abc");
    EXPECT_EQ(b, "");
    EXPECT_EQ(c, "Erkl\xE4rung");
    EXPECT_TRUE(f.good());
}

TEST(RWFile, CStringWriteAddsTheTerminatingNul) {
    TempFile tmp("cstr");
    {
        RWFile f(tmp.path(), "wb");
        f.Write("ab");
    }
    EXPECT_EQ(readBytes(tmp.path()), (Bytes{'a', 'b', 0}));
}

TEST(RWFile, EveryScalarTypeAndArrayRoundTrips) {
    TempFile tmp("roundtrip");
    const int ints[3] = {INT32_MIN, 0, INT32_MAX};
    const double doubles[4] = {DBL_MIN, DBL_MAX, -0.0, 0.1};
    {
        RWFile f(tmp.path());
        f.Write(static_cast<signed char>(-5));
        f.Write(L'\x20AC');
        f.Write(1.5f);
        f.Write(ints, 3);
        f.Write(doubles, 4);
        f.Write("xyz", 3);
    }
    RWFile f(tmp.path());
    signed char sc = 0;
    wchar_t wc = 0;
    float fl = 0;
    int ri[3] = {};
    double rd[4] = {};
    char chars[3] = {};
    ASSERT_TRUE(f.Read(sc) && f.Read(wc) && f.Read(fl) && f.Read(ri, 3) && f.Read(rd, 4) && f.Read(chars, 3));
    EXPECT_EQ(sc, -5);
    EXPECT_EQ(wc, L'\x20AC');
    EXPECT_EQ(fl, 1.5f);
    EXPECT_EQ(std::memcmp(ri, ints, sizeof ints), 0);
    EXPECT_EQ(std::memcmp(rd, doubles, sizeof doubles), 0);
    EXPECT_EQ(std::string(chars, 3), "xyz");
    EXPECT_EQ(f.CurOffset(), 1 + 2 + 4 + 12 + 32 + 3);
    char more;
    EXPECT_FALSE(f.Read(more));
    EXPECT_TRUE(f.eof());
    EXPECT_FALSE(f.good());
}

TEST(RWFile, WithoutModeOpensExistingForUpdateOrCreates) {
    TempFile tmp("nomode");
    EXPECT_FALSE(RWFile::Exists(tmp.path()));
    {
        RWFile f(tmp.path());
        ASSERT_TRUE(f.isValid());
        EXPECT_TRUE(f.IsEmpty());
        f.Write(7);
    }
    {
        RWFile f(tmp.path());
        EXPECT_TRUE(f.Exists());
        EXPECT_FALSE(f.IsEmpty());
        int v = 0;
        ASSERT_TRUE(f.Read(v));
        EXPECT_EQ(v, 7);
        f.Write(8);
    }
    EXPECT_EQ(readBytes(tmp.path()), cat({int32(7), int32(8)}));
}

TEST(RWFile, ModesFollowFopen) {
    TempFile tmp("modes");
    EXPECT_FALSE(RWFile(tmp.path(), "rb").isValid()); // no such file
    EXPECT_FALSE(RWFile(tmp.path(), "xyz").isValid());
    { RWFile(tmp.path(), "wb").Write(1); }
    { RWFile(tmp.path(), "ab").Write(2); }
    EXPECT_EQ(readBytes(tmp.path()), cat({int32(1), int32(2)}));
    {
        RWFile f(tmp.path(), "rb");
        f.Write(3); // opened for reading only: the buffered write fails at the latest on flush
        EXPECT_FALSE(f.Flush());
        EXPECT_TRUE(f.Error());
    }
    EXPECT_EQ(readBytes(tmp.path()).size(), 8u);
    EXPECT_STREQ(RWFile(tmp.path(), "rb").GetName(), tmp.path());
}

TEST(RWFile, SeekEraseAndOffsets) {
    TempFile tmp("seek");
    RWFile f(tmp.path(), "wb+");
    f.Write(1);
    f.Write(2);
    f.Write(3);
    EXPECT_EQ(f.CurOffset(), 12);
    ASSERT_TRUE(f.SeekTo(4));
    int v = 0;
    ASSERT_TRUE(f.Read(v));
    EXPECT_EQ(v, 2);
    f.Write(9); // overwrite the third value after a read
    ASSERT_TRUE(f.SeekToBegin());
    ASSERT_TRUE(f.Read(v));
    EXPECT_EQ(v, 1);
    ASSERT_TRUE(f.SeekToEnd());
    EXPECT_EQ(f.CurOffset(), 12);
    f.Flush();
    EXPECT_EQ(readBytes(tmp.path()), cat({int32(1), int32(2), int32(9)}));
    ASSERT_TRUE(f.Erase());
    EXPECT_TRUE(f.IsEmpty());
    EXPECT_EQ(f.CurOffset(), 0);
    f.Write(5);
    f.Flush();
    EXPECT_EQ(readBytes(tmp.path()), int32(5));
}

TEST(RWFile, ShortReadLeavesTheTargetUnchangedAndSetsEof) {
    TempFile tmp("short");
    writeBytes(tmp.path(), {0x01, 0x02});
    RWFile f(tmp.path(), "rb");
    int v = 42;
    EXPECT_FALSE(f.Read(v));
    EXPECT_EQ(v, 42);
    EXPECT_TRUE(f.eof());
    f.ClearErr();
    EXPECT_TRUE(f.good());
}

TEST(RWFile, StringLengthBeyondTheFileFailsAndLeavesTheStringUnchanged) {
    TempFile tmp("hugelen");
    writeBytes(tmp.path(), cat({int32(-1), bytesOf("abc")})); // length 0xFFFFFFFF, three bytes behind it
    RWFile f(tmp.path(), "rb");
    RWCString s("keep");
    s.restoreFrom(f);
    EXPECT_EQ(s, "keep");
    EXPECT_FALSE(f.good());
}

TEST(RWFile, LargeRecordsCrossTheBufferBoundary) {
    TempFile tmp("large");
    std::string big(200000, 'x');
    for (size_t i = 0; i < big.size(); ++i)
        big[i] = static_cast<char>('a' + i % 26);
    {
        RWFile f(tmp.path(), "wb");
        for (int i = 0; i < 30000; ++i)
            f.Write(i);
        RWCString(big.c_str(), big.size()).saveOn(f);
        f.Write(-7);
    }
    RWFile f(tmp.path(), "rb");
    for (int i = 0; i < 30000; ++i) {
        int v = -1;
        ASSERT_TRUE(f.Read(v));
        ASSERT_EQ(v, i);
    }
    RWCString s;
    s.restoreFrom(f);
    EXPECT_EQ(s.std(), big);
    int last = 0;
    ASSERT_TRUE(f.Read(last));
    EXPECT_EQ(last, -7);
}

TEST(RWFile, ReservedRoomWrittenInPlaceReachesTheFileAtTheOffsetAfterCommit) {
    TempFile tmp("inplace");
    {
        RWFile f(tmp.path(), "wb");
        f.Write('<');
        unsigned char* p = f.reserveWrite(3);
        ASSERT_NE(p, nullptr);
        p[0] = 'a';
        p[1] = 'b';
        p[2] = 'c';
        f.commitWrite(3);
        EXPECT_EQ(f.CurOffset(), 4);
        f.Write('>');
    }
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(bytesOf("<abc>")));
}

TEST(RWFile, ReservedRoomAtTheBufferEndFlushesFirstSoNoByteIsLost) {
    TempFile tmp("inplace-full");
    const size_t stueck = 1000, anzahl = 200; // 200 kB through a buffer of 64 kB
    {
        RWFile f(tmp.path(), "wb");
        for (size_t i = 0; i < anzahl; ++i) {
            unsigned char* p = f.reserveWrite(stueck);
            ASSERT_NE(p, nullptr) << i;
            std::memset(p, static_cast<int>('A' + i % 26), stueck);
            f.commitWrite(stueck);
        }
    }
    const Bytes bytes = readBytes(tmp.path());
    ASSERT_EQ(bytes.size(), stueck * anzahl);
    for (size_t i = 0; i < bytes.size(); ++i)
        ASSERT_EQ(bytes[i], 'A' + i / stueck % 26) << i;
}

TEST(RWFile, NoReservedRoomBeyondTheBufferOrOnAFileThatCannotWrite) {
    TempFile tmp("inplace-none");
    {
        RWFile f(tmp.path(), "wb");
        EXPECT_EQ(f.reserveWrite(1 << 20), nullptr); // larger than the buffer: write it piece by piece
        EXPECT_EQ(f.CurOffset(), 0);
    }
    RWFile closed(nullptr);
    EXPECT_EQ(closed.reserveWrite(4), nullptr);
    RWFile nurLesen(tmp.path(), "rb");
    ASSERT_TRUE(nurLesen.isValid());
    nurLesen.Write(1);
    EXPECT_FALSE(nurLesen.Flush()); // the descriptor refuses the write: the file fails
    EXPECT_EQ(nurLesen.reserveWrite(4), nullptr);
}

TEST(RWFile, ReservedRoomAfterReadingIsWrittenAtTheLogicalPosition) {
    TempFile tmp("inplace-update");
    {
        RWFile f(tmp.path(), "wb");
        f.Write("0123456789", 10);
    }
    {
        RWFile f(tmp.path()); // for update
        char c[3];
        ASSERT_TRUE(f.Read(c, 3)); // the read-ahead holds the whole file
        unsigned char* p = f.reserveWrite(2);
        ASSERT_NE(p, nullptr);
        p[0] = 'x';
        p[1] = 'y';
        f.commitWrite(2);
        EXPECT_EQ(f.CurOffset(), 5);
    }
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(bytesOf("012xy56789")));
}
