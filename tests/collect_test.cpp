#include "rw/bstream.h"
#include "rw/collect.h"
#include "rw/cstring.h"
#include "rw/dlistcol.h"
#include "rw/factory.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"
#include "rw/rwstore.h"
#include "rw/toolerr.h"
#include "rw/tphasht.h"
#include "rw/tvslist.h"

#include "test_util.h"

#include <vector>

using namespace qbtest;

namespace {

// A small collectable with one int and one string, registered for these tests only.
class Sample : public RWCollectable {
public:
    static constexpr RWClassID kId = 0x7001;
    explicit Sample(int k = 0, const char* t = "") : key(k), label(t) {}
    RWCollectable* newSpecies() const override { return new Sample; }
    RWCollectable* copy() const override { return new Sample(*this); }
    RWClassID isA() const override { return kId; }
    RWBoolean isEqual(const RWCollectable* o) const override {
        return o && o->isA() == kId && static_cast<const Sample*>(o)->key == key;
    }
    void saveGuts(RWFile& f) const override {
        f.Write(key);
        label.saveOn(f);
    }
    void restoreGuts(RWFile& f) override {
        f.Read(key);
        label.restoreFrom(f);
    }
    void saveGuts(RWvostream& s) const override {
        s << key;
        label.saveOn(s);
    }
    void restoreGuts(RWvistream& s) override {
        s >> key;
        label.restoreFrom(s);
    }
    static int destroyed;
    ~Sample() override { ++destroyed; }
    int key;
    RWCString label;
};
int Sample::destroyed = 0;

RWCollectable* createSample() { return new Sample; }

class Collectables : public ::testing::Test {
protected:
    void SetUp() override { rwAddToFactory(createSample, Sample::kId, "Sample"); }
    void TearDown() override {
        rwRemoveFromFactory(Sample::kId);
        rwRemoveFromFactory(RWStringID("Sample"));
    }
};

const Bytes kMagic{0x88, 0x88, 0x00, 0x00};

Bytes sampleRecord(int key, const std::string& label) {
    return cat({uint16(Sample::kId), int32(key), text(label)});
}

} // namespace

TEST_F(Collectables, OutermostFileSaveWritesMagicThenClassIdAndGuts) {
    TempFile tmp("one");
    {
        RWFile f(tmp.path(), "wb");
        Sample(5, "x").recursiveSaveOn(f);
    }
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(cat({kMagic, sampleRecord(5, "x")})));
}

TEST_F(Collectables,
       ObjectStoredTwiceInOneOperationIsWrittenOnceThenReferencedWithoutMagicUnderAnOuterGuard) {
    TempFile tmp("twice");
    Sample a(1, "a"), b(2, "b");
    {
        RWFile f(tmp.path(), "wb");
        RWUseStoreTable outer;
        f << a << b << a;
        f << static_cast<const RWCollectable*>(nullptr);
    }
    // The magic belongs to the guard that creates the store table: here the test's own guard, so none.
    Bytes expected =
        cat({sampleRecord(1, "a"), sampleRecord(2, "b"), {0xFF, 0xFF}, int32(1), {0xFF, 0xFF}, int32(0)});
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(expected));

    RWFile f(tmp.path(), "rb");
    RWUseReadTable outer;
    RWCollectable *x = nullptr, *y = nullptr, *z = nullptr, *nil = reinterpret_cast<RWCollectable*>(1);
    f >> x >> y >> z >> nil;
    ASSERT_NE(x, nullptr);
    EXPECT_EQ(x, z); // identity kept
    EXPECT_EQ(nil, nullptr);
    EXPECT_EQ(static_cast<Sample*>(y)->label, "b");
    delete x;
    delete y;
}

TEST_F(Collectables, SeparateOperationsEachWriteTheirOwnMagic) {
    TempFile tmp("sep");
    Sample a(1, "a");
    {
        RWFile f(tmp.path(), "wb");
        f << a << a;
    }
    EXPECT_EQ(hex(readBytes(tmp.path())),
              hex(cat({kMagic, sampleRecord(1, "a"), kMagic, sampleRecord(1, "a")})));
}

TEST_F(Collectables, VirtualStreamFramesNewObjectsAndReferences) {
    std::ostringstream out;
    {
        RWbostream s(out);
        RWUseStoreTable outer;
        Sample a(3, "c");
        s << a << a;
    }
    Bytes expected = cat({{':'},
                          uint16(Sample::kId),
                          {'{'},
                          int32(3),
                          int32(1),
                          int32(1),
                          bytesOf("c"),
                          {'}'},
                          {'@'},
                          int32(1)});
    EXPECT_EQ(hex(bytesOf(out.str())), hex(expected));
    std::istringstream in(out.str());
    RWbistream s(in);
    RWUseReadTable outer;
    RWCollectable *x = nullptr, *y = nullptr;
    s >> x >> y;
    ASSERT_NE(x, nullptr);
    EXPECT_EQ(x, y);
    EXPECT_EQ(static_cast<Sample*>(x)->key, 3);
    delete x;
}

TEST_F(Collectables, UnknownClassIdRaisesInternalErrorNamingTheId) {
    TempFile tmp("unknown");
    writeBytes(tmp.path(), cat({kMagic, uint16(0x1234)}));
    RWFile f(tmp.path(), "rb");
    RWCollectable* c = nullptr;
    try {
        f >> c;
        FAIL() << "no exception";
    } catch (const RWInternalErr& e) {
        EXPECT_STREQ(e.why(), "[NOCREATE] RWFactory: no create function for class with ID 4660 (0x1234)");
    }
}

TEST_F(Collectables, BadMagicRaisesExternalError) {
    TempFile tmp("magic");
    writeBytes(tmp.path(), cat({int32(0x1234), sampleRecord(1, "")}));
    RWFile f(tmp.path(), "rb");
    RWCollectable* c = nullptr;
    EXPECT_THROW(f >> c, RWExternalErr);
}

TEST_F(Collectables, ReferenceOutsideTheReadTableRaisesInternalError) {
    TempFile tmp("ref");
    writeBytes(tmp.path(), cat({kMagic, {0xFF, 0xFF}, int32(7)}));
    RWFile f(tmp.path(), "rb");
    RWCollectable* c = nullptr;
    try {
        f >> c;
        FAIL() << "no exception";
    } catch (const RWInternalErr& e) {
        EXPECT_STREQ(e.why(), "[REF] Bad persistence reference");
    }
}

TEST_F(Collectables, RestoreIntoAnObjectOfAnotherClassIsRefused) {
    TempFile tmp("wrong");
    writeBytes(tmp.path(), cat({kMagic, sampleRecord(1, "")}));
    RWFile f(tmp.path(), "rb");
    RWDlistCollectables list;
    EXPECT_THROW(f >> list, RWInternalErr);
}

TEST_F(Collectables, TruncatedRecordsNeverThrowOrLeak) {
    TempFile tmp("trunc");
    Bytes whole = cat({kMagic, sampleRecord(9, "label")});
    for (size_t cut = 0; cut < whole.size(); ++cut) {
        writeBytes(tmp.path(), Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(cut)));
        RWFile f(tmp.path(), "rb");
        RWCollectable* c = nullptr;
        f >> c;
        delete c; // partly filled or nil
    }
}

TEST_F(Collectables, ListSavesCountThenElementsAndRestoresThem) {
    TempFile tmp("list");
    Sample a(1, "a"), b(2, "b");
    RWDlistCollectables list;
    list.insert(&a);
    list.insert(&b);
    list.insert(&a);
    {
        RWFile f(tmp.path(), "wb");
        f << list;
    }
    Bytes expected = cat({kMagic,
                          uint16(0x8010),
                          int32(3),
                          sampleRecord(1, "a"),
                          sampleRecord(2, "b"),
                          {0xFF, 0xFF},
                          int32(2)});
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(expected));

    RWDlistCollectables restored;
    Sample::destroyed = 0;
    {
        RWFile f(tmp.path(), "rb");
        f >> restored;
    }
    ASSERT_EQ(restored.entries(), 3u);
    EXPECT_EQ(restored.at(0), restored.at(2));
    EXPECT_EQ(static_cast<Sample*>(restored.at(1))->label, "b");
    restored.clearAndDestroy(); // the element stored twice is deleted once
    EXPECT_EQ(Sample::destroyed, 2);
    EXPECT_EQ(restored.entries(), 0u);
}

TEST_F(Collectables, HugeStoredCountEndsWithTheStream) {
    TempFile tmp("count");
    writeBytes(tmp.path(), cat({kMagic, uint16(0x8010), int32(-1), sampleRecord(4, "d")}));
    RWDlistCollectables restored;
    RWFile f(tmp.path(), "rb");
    f >> restored;
    EXPECT_EQ(restored.entries(), 1u);
    restored.clearAndDestroy();
}

TEST(RWDlistCollectables, FindRemoveAndIterateWorkThroughIsEqual) {
    RWDlistCollectables list;
    list.insert(new Sample(1, "first"));
    list.insert(new Sample(2));
    list.insert(new Sample(1, "second"));
    Sample probe(1);
    EXPECT_EQ(static_cast<Sample*>(list.find(&probe))->label, "first");
    EXPECT_EQ(list.occurrencesOf(&probe), 2u);
    EXPECT_EQ(list.index(&probe), 0u);
    list.removeAndDestroy(&probe);
    EXPECT_EQ(list.entries(), 2u);
    EXPECT_EQ(static_cast<Sample*>(list.find(&probe))->label, "second");
    RWCollectable* removed = list.remove(&probe);
    ASSERT_NE(removed, nullptr);
    delete removed;
    EXPECT_EQ(list.find(&probe), nullptr);
    RWDlistCollectablesIterator it(list);
    int seen = 0;
    while (RWCollectable* c = it()) {
        EXPECT_EQ(it.key(), c);
        ++seen;
    }
    EXPECT_EQ(seen, 1);
    list.clearAndDestroy();
}

TEST_F(Collectables, FactoryCreatesByIdAndByNameAndForgetsOnRemoval) {
    RWCollectable* byId = getRWFactory()->create(Sample::kId);
    RWCollectable* byName = getRWFactory()->create(RWStringID("Sample"));
    ASSERT_NE(byId, nullptr);
    ASSERT_NE(byName, nullptr);
    EXPECT_EQ(byId->isA(), Sample::kId);
    EXPECT_EQ(byName->isA(), Sample::kId);
    delete byId;
    delete byName;
    EXPECT_EQ(getRWFactory()->classID(RWStringID("Sample")), Sample::kId);
    rwRemoveFromFactory(Sample::kId);
    EXPECT_EQ(getRWFactory()->create(Sample::kId), nullptr);
    RWCollectable* stillByName = getRWFactory()->create(RWStringID("Sample"));
    EXPECT_NE(stillByName, nullptr);
    delete stillByName;
    rwRemoveFromFactory(RWStringID("Sample"));
    EXPECT_EQ(getRWFactory()->create(RWStringID("Sample")), nullptr);
}

TEST(RWTValSlist, KeepsValuesInOrderWithVendorIteration) {
    RWTValSlist<RWCString> list;
    list.insert("a");
    list.append("b");
    list.prepend("z");
    EXPECT_EQ(list.entries(), 3u);
    EXPECT_EQ(list.first(), "z");
    EXPECT_EQ(list.at(2), "b");
    EXPECT_TRUE(list.contains("a"));
    EXPECT_EQ(list.index("b"), 2u);
    RWTValSlistIterator<RWCString> it(list);
    std::string joined;
    while (it())
        joined += it.key().std();
    EXPECT_EQ(joined, "zab");
    EXPECT_TRUE(list.remove("a"));
    EXPECT_EQ(list.removeFirst(), "z");
    EXPECT_EQ(list.entries(), 1u);
    list.clear();
    EXPECT_TRUE(list.isEmpty());
}

namespace {
struct Named {
    RWCString name;
    int value;
    bool operator==(const Named& o) const { return name == o.name; }
};
unsigned hashNamed(const Named& n) { return n.name.hash(); }
} // namespace

TEST(RWTPtrHashTable, FindsByEqualityAndIteratesEqualHashesInInsertionOrder) {
    RWTPtrHashTable<Named> table(hashNamed);
    Named a{"", 1}, b{"", 2}, c{"x", 3};
    table.insert(&a);
    table.insert(&c);
    table.insert(&b);
    EXPECT_EQ(table.entries(), 3u);
    Named probe{"x", 0};
    EXPECT_EQ(table.find(&probe), &c);
    RWTPtrHashTableIterator<Named> it(table);
    std::vector<int> emptyNamed;
    while (Named* n = it())
        if (n->name.isNull()) emptyNamed.push_back(n->value);
    EXPECT_EQ(emptyNamed, (std::vector<int>{1, 2}));
    EXPECT_EQ(table.remove(&probe), &c);
    EXPECT_EQ(table.entries(), 2u);
}

TEST(RWxmsg, RWThrowRaisesTheExceptionAsItsOwnType) {
    EXPECT_THROW(RWThrow(RWInternalErr(RWMessage(RWTOOL_REF))), RWInternalErr);
    EXPECT_THROW(RWThrow(RWExternalErr("x")), RWExternalErr);
    try {
        RWThrow(RWInternalErr(RWMessage(RWTOOL_REF)));
    } catch (const RWxmsg& e) {
        EXPECT_STREQ(e.why(), "[REF] Bad persistence reference");
    }
}

TEST(RWReadTable, NumbersEntriesFromOneInOrderBeyondItsOwnArray) {
    RWReadTable table;
    std::vector<RWCollectable> objects(40);
    int other = 0;
    for (size_t i = 0; i < objects.size(); ++i)
        i == 20 ? table.append(static_cast<void*>(&other)) : table.append(&objects[i]);
    EXPECT_EQ(table.entries(), 41u);
    EXPECT_EQ(table(0), nullptr); // nil
    EXPECT_TRUE(table.isCollectable(0));
    for (size_t i = 0; i < objects.size(); ++i) {
        if (i == 20) {
            EXPECT_EQ(table(21), &other);
            EXPECT_FALSE(table.isCollectable(21));
            EXPECT_EQ(table.collectableAt(21), nullptr);
            continue;
        }
        EXPECT_EQ(table(i + 1), &objects[i]) << i;
        EXPECT_TRUE(table.isCollectable(i + 1)) << i;
        EXPECT_EQ(table.collectableAt(i + 1), &objects[i]) << i;
    }
    EXPECT_EQ(table(41), nullptr);
    EXPECT_FALSE(table.isCollectable(41));
    EXPECT_EQ(table.collectableAt(41), nullptr);
}
