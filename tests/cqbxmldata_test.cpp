#include "qballg/CQBXMLdata.h"
#include "qballg/QBvar.h"
#include "qballg/qbAllgFunktionen.h"
#include "rw/tphasht.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

RWDate dayNumber(unsigned long julian) {
    RWDate d = RWDate::fromJulian(julian);
    d.julian(julian); // also for day numbers fromJulian might not take
    return d;
}

std::vector<const CQBXMLdata*> iterate(CQBXMLdata& node) {
    std::vector<const CQBXMLdata*> out;
    RWTPtrHashTableIterator<CQBXMLdata> it(*node.List());
    while (CQBXMLdata* entry = it())
        out.push_back(entry);
    return out;
}

uint64_t bitsOf(double d) { return std::bit_cast<uint64_t>(d); }

// A header node as a form builds it, added into the form's node.
CQBXMLdata formNode() {
    CQBXMLdata node("");
    node.clear("qbFormularL300");
    CQBXMLdata header("");
    header.clear("qbFormular");
    header.List(CQBXMLdata("Version", RWCString("11.2001")));
    header.List(CQBXMLdata("DruckstueckNummer", RWCString("L300")));
    header.List(CQBXMLdata("PersonenKennung", RWCString("VP1")));
    node.add(header);
    node.List(CQBXMLdata("Anzahl", 3));
    return node;
}

} // namespace

// ---------------------------------------------------------------------------------------------------------
// The tree

static_assert(!std::is_constructible_v<CQBXMLdata, RWCString, char>, "a char must be stored by choice");
static_assert(!std::is_convertible_v<RWCString, CQBXMLdata>, "a name alone makes no node by accident");

TEST(CQBXMLdata, NameConstructorMakesAnEmptyNode) {
    CQBXMLdata node("Liste");
    EXPECT_EQ(node.Name(), "Liste");
    EXPECT_EQ(node.Typ(), "");
    EXPECT_EQ(node.Attribute(), "");
    EXPECT_TRUE(node.value().isEmpty());
    EXPECT_EQ(node.entryCount(), 0u);
    EXPECT_TRUE(node.List()->isEmpty());
    CQBXMLdata header("");
    EXPECT_EQ(header.Name(), "");
}

TEST(CQBXMLdata, LeafConstructorsHoldTheirTypedValue) {
    EXPECT_EQ(*CQBXMLdata("t", RWCString("abc")).value().ifText(), "abc");
    EXPECT_EQ(*CQBXMLdata("t", "literal").value().ifText(), "literal"); // not bool
    char buffer[] = "buffer";
    EXPECT_EQ(*CQBXMLdata("t", buffer).value().ifText(), "buffer");
    EXPECT_EQ(*CQBXMLdata("f", static_cast<unsigned char>(0xFF)).value().ifFlag(), 0xFF);
    EXPECT_EQ(*CQBXMLdata("i", -7).value().ifInt(), -7);
    EXPECT_EQ(*CQBXMLdata("l", 123456789012L).value().ifLong(), 123456789012L);
    EXPECT_EQ(*CQBXMLdata("d", 2.5).value().ifDouble(), 2.5);
    EXPECT_EQ(*CQBXMLdata("b", true).value().ifBool(), true);
    EXPECT_EQ(CQBXMLdata("dt", dayNumber(2440588)).value().ifDate()->julian(), 2440588u);
    const short small = 4; // promoted, not converted
    EXPECT_EQ(*CQBXMLdata("s", small).value().ifInt(), 4);
    const CQBXMLdata leaf("Name", 5);
    EXPECT_EQ(leaf.Name(), "Name");
    EXPECT_EQ(leaf.entryCount(), 0u);
}

TEST(CQBXMLdata, ListvalueReadsEveryType) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("Text", RWCString("Erkl\xE4rung")))
        .List(CQBXMLdata("Flag", static_cast<unsigned char>(7)))
        .List(CQBXMLdata("Int", 42))
        .List(CQBXMLdata("Long", 70000L))
        .List(CQBXMLdata("Double", 0.25))
        .List(CQBXMLdata("Bool", true))
        .List(CQBXMLdata("Date", dayNumber(2451545)));
    RWCString text;
    unsigned char flag = 0;
    int i = 0;
    long l = 0;
    double d = 0;
    bool b = false;
    RWDate date = dayNumber(1);
    EXPECT_TRUE(node.Listvalue("Text", text));
    EXPECT_TRUE(node.Listvalue("Flag", flag));
    EXPECT_TRUE(node.Listvalue("Int", i));
    EXPECT_TRUE(node.Listvalue("Long", l));
    EXPECT_TRUE(node.Listvalue("Double", d));
    EXPECT_TRUE(node.Listvalue("Bool", b));
    EXPECT_TRUE(node.Listvalue("Date", date));
    EXPECT_EQ(text, "Erkl\xE4rung");
    EXPECT_EQ(flag, 7);
    EXPECT_EQ(i, 42);
    EXPECT_EQ(l, 70000L);
    EXPECT_EQ(d, 0.25);
    EXPECT_TRUE(b);
    EXPECT_EQ(date.julian(), 2451545u);
}

TEST(CQBXMLdata, ListvalueLeavesOutUntouchedForAMissingKey) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("Other", 1));
    RWCString text("keep");
    unsigned char flag = 9;
    int i = 9;
    long l = 9;
    double d = 9.5;
    bool b = true;
    RWDate date = dayNumber(99);
    EXPECT_FALSE(node.Listvalue("Missing", text));
    EXPECT_FALSE(node.Listvalue("Missing", flag));
    EXPECT_FALSE(node.Listvalue("Missing", i));
    EXPECT_FALSE(node.Listvalue("Missing", l));
    EXPECT_FALSE(node.Listvalue("Missing", d));
    EXPECT_FALSE(node.Listvalue("Missing", b));
    EXPECT_FALSE(node.Listvalue("Missing", date));
    EXPECT_FALSE(node.Listvalue("other", i)); // names are case-sensitive
    EXPECT_EQ(text, "keep");
    EXPECT_EQ(flag, 9);
    EXPECT_EQ(i, 9);
    EXPECT_EQ(l, 9);
    EXPECT_EQ(d, 9.5);
    EXPECT_TRUE(b);
    EXPECT_EQ(date.julian(), 99u);
}

TEST(CQBXMLdata, ListvalueConvertsBetweenIntegersOnlyWithoutLoss) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("Int", 200))
        .List(CQBXMLdata("Big", 300))
        .List(CQBXMLdata("Flag", static_cast<unsigned char>(255)))
        .List(CQBXMLdata("SmallLong", -5L))
        .List(CQBXMLdata("HugeLong", 5000000000L))
        .List(CQBXMLdata("Exact", 9007199254740992L))    // 2^53
        .List(CQBXMLdata("Inexact", 9007199254740993L)); // 2^53 + 1
    unsigned char flag = 0;
    EXPECT_TRUE(node.Listvalue("Int", flag));
    EXPECT_EQ(flag, 200);
    EXPECT_FALSE(node.Listvalue("Big", flag));
    EXPECT_FALSE(node.Listvalue("SmallLong", flag));
    EXPECT_EQ(flag, 200);
    int i = 0;
    EXPECT_TRUE(node.Listvalue("Flag", i));
    EXPECT_EQ(i, 255);
    EXPECT_TRUE(node.Listvalue("SmallLong", i));
    EXPECT_EQ(i, -5);
    EXPECT_FALSE(node.Listvalue("HugeLong", i));
    EXPECT_EQ(i, -5);
    long l = 0;
    EXPECT_TRUE(node.Listvalue("Int", l));
    EXPECT_EQ(l, 200);
    double d = 0;
    EXPECT_TRUE(node.Listvalue("Int", d));
    EXPECT_EQ(d, 200.0);
    EXPECT_TRUE(node.Listvalue("Exact", d));
    EXPECT_EQ(d, 9007199254740992.0);
    EXPECT_FALSE(node.Listvalue("Inexact", d));
}

TEST(CQBXMLdata, ListvalueRefusesOtherKinds) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("Text", "12"))
        .List(CQBXMLdata("Int", 1))
        .List(CQBXMLdata("Double", 1.0))
        .List(CQBXMLdata("Bool", true))
        .List(CQBXMLdata("Date", dayNumber(5)));
    int i = -1;
    EXPECT_FALSE(node.Listvalue("Text", i));
    EXPECT_FALSE(node.Listvalue("Double", i));
    EXPECT_FALSE(node.Listvalue("Bool", i));
    EXPECT_FALSE(node.Listvalue("Date", i));
    EXPECT_EQ(i, -1);
    RWCString text("keep");
    EXPECT_FALSE(node.Listvalue("Int", text));
    EXPECT_EQ(text, "keep");
    bool b = false;
    EXPECT_FALSE(node.Listvalue("Int", b));
    RWDate date = dayNumber(7);
    EXPECT_FALSE(node.Listvalue("Int", date));
    EXPECT_EQ(date.julian(), 7u);
    double d = 3;
    EXPECT_FALSE(node.Listvalue("Bool", d));
    EXPECT_EQ(d, 3);
}

TEST(CQBXMLdata, ListvalueTakesTheFirstFittingEntryInOrder) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("Key", "text")).List(CQBXMLdata("Key", 1)).List(CQBXMLdata("Key", 2));
    int i = 0;
    EXPECT_TRUE(node.Listvalue("Key", i));
    EXPECT_EQ(i, 1);
    RWCString text;
    EXPECT_TRUE(node.Listvalue("Key", text));
    EXPECT_EQ(text, "text");
}

TEST(CQBXMLdata, ListvalueLooksAtDirectEntriesOnly) {
    CQBXMLdata inner("Inner");
    inner.List(CQBXMLdata("Deep", 1));
    CQBXMLdata node("n");
    node.List(inner);
    int i = 0;
    EXPECT_FALSE(node.Listvalue("Deep", i));
    EXPECT_TRUE(node.Listvalue("Inner").isEmpty()); // a node without a value of its own
}

TEST(CQBXMLdata, ListStoresACopySoTheOriginalMayChangeOrGo) {
    CQBXMLdata node("n");
    {
        CQBXMLdata entry("Sub");
        entry.List(CQBXMLdata("A", 1));
        CQBXMLdata& returned = node.List(entry);
        EXPECT_EQ(&returned, &node);
        entry.List(CQBXMLdata("B", 2));
        entry.clear("changed");
        entry.Attribute("x");
    }
    ASSERT_EQ(node.entryCount(), 1u);
    const CQBXMLdata* stored = node.entryAt(0);
    EXPECT_EQ(stored->Name(), "Sub");
    EXPECT_EQ(stored->Typ(), "");
    EXPECT_EQ(stored->Attribute(), "");
    ASSERT_EQ(stored->entryCount(), 1u);
    int a = 0;
    EXPECT_TRUE(stored->Listvalue("A", a));
    EXPECT_EQ(a, 1);
}

TEST(CQBXMLdata, AddMakesTheKeysOfTheOtherNodeReadableFromThisNode) {
    CQBXMLdata node = formNode();
    EXPECT_EQ(node.Typ(), "qbFormularL300");
    RWCString number, person, version;
    EXPECT_TRUE(node.Listvalue("DruckstueckNummer", number));
    EXPECT_TRUE(node.Listvalue("PersonenKennung", person));
    EXPECT_TRUE(node.Listvalue("Version", version));
    EXPECT_EQ(number, "L300");
    EXPECT_EQ(person, "VP1");
    EXPECT_EQ(version, "11.2001");
    int count = 0;
    EXPECT_TRUE(node.Listvalue("Anzahl", count));
    EXPECT_EQ(count, 3);
    // The header node stands whole as the first entry, marked as taken in; then the form's own.
    ASSERT_EQ(node.entryCount(), 2u);
    EXPECT_TRUE(node.entryAt(0)->isAdded());
    EXPECT_EQ(node.entryAt(0)->Typ(), "qbFormular");
    EXPECT_EQ(node.entryAt(0)->entryCount(), 3u);
    EXPECT_FALSE(node.entryAt(1)->isAdded());
    EXPECT_EQ(node.entryAt(1)->Name(), "Anzahl");
}

TEST(CQBXMLdata, KeyOfTheNodeItselfHidesOneOfTheSameNameTakenInByAdd) {
    // A health declaration that nests the common answers holds "ArztAdresse" twice.
    CQBXMLdata node("");
    node.clear("qbFormularL144");
    CQBXMLdata gemeinsam("");
    gemeinsam.clear("qbFormularAllgGesu");
    CQBXMLdata header("");
    header.clear("qbFormular");
    header.List(CQBXMLdata("DruckstueckNummer", RWCString("L144")));
    gemeinsam.add(header);
    gemeinsam.List(CQBXMLdata("ArztAdresse", RWCString("gemeinsam")));
    node.add(gemeinsam);
    node.List(CQBXMLdata("ArztAdresse", RWCString("eigen")));
    RWCString arzt, nummer;
    EXPECT_TRUE(node.Listvalue("ArztAdresse", arzt));
    EXPECT_EQ(arzt, "eigen");
    EXPECT_TRUE(node.Listvalue("DruckstueckNummer", nummer)); // two levels down
    EXPECT_EQ(nummer, "L144");
    EXPECT_EQ(node.Listvalue("DruckstueckNummer").asString(), "L144");
    // a node appended with List is not looked into
    CQBXMLdata liste("");
    liste.List(header);
    EXPECT_FALSE(liste.Listvalue("DruckstueckNummer", nummer));
    // the mark survives the XML text
    CQBXMLdata gelesen("");
    ASSERT_TRUE(gelesen.fromXML(node.asXML()));
    EXPECT_TRUE(gelesen.sameTree(node));
    EXPECT_TRUE(gelesen.entryAt(0)->isAdded());
}

TEST(CQBXMLdata, AddTakesEntriesOnlyAndCopiesThem) {
    CQBXMLdata node("n");
    node.Typ("mine");
    CQBXMLdata other("other", 5);
    other.Typ("theirs");
    other.Attribute("a");
    other.List(CQBXMLdata("K", 1));
    node.add(other);
    other.clear("gone");
    EXPECT_EQ(node.Name(), "n");
    EXPECT_EQ(node.Typ(), "mine");
    EXPECT_EQ(node.Attribute(), "");
    EXPECT_TRUE(node.value().isEmpty());
    int k = 0;
    EXPECT_TRUE(node.Listvalue("K", k));
    EXPECT_EQ(k, 1);
}

TEST(CQBXMLdata, AddOfItselfTakesInACopyOfItsFormerSelf) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("A", 1)).List(CQBXMLdata("B", 2));
    node.add(node);
    ASSERT_EQ(node.entryCount(), 3u);
    ASSERT_EQ(node.entryAt(2)->entryCount(), 2u);
    EXPECT_EQ(node.entryAt(2)->entryAt(1)->Name(), "B");
    EXPECT_EQ(node.List()->entries(), 3u);
}

TEST(CQBXMLdata, ListAndAddOfAMovedNodeGiveTheTreeOfACopyAndLeaveItEmpty) {
    auto beispiel = [] {
        CQBXMLdata n("Sub", RWCString("Wert \xE4"));
        n.Typ("t");
        n.Attribute("a");
        n.List(CQBXMLdata("A", 1)).List(CQBXMLdata("B", 2.5));
        return n;
    };
    CQBXMLdata kopiert("n"), bewegt("n");
    const CQBXMLdata eins = beispiel(), zwei = beispiel();
    kopiert.List(eins).add(zwei);
    CQBXMLdata quelleList = beispiel(), quelleAdd = beispiel();
    CQBXMLdata& zurueck = bewegt.List(std::move(quelleList));
    EXPECT_EQ(&zurueck, &bewegt);
    bewegt.add(std::move(quelleAdd));
    EXPECT_TRUE(bewegt.sameTree(kopiert));
    EXPECT_FALSE(bewegt.entryAt(0)->isAdded());
    EXPECT_TRUE(bewegt.entryAt(1)->isAdded());
    int a = 0;
    EXPECT_TRUE(bewegt.Listvalue("A", a)); // found in the entry taken in
    EXPECT_EQ(a, 1);
    EXPECT_EQ(bewegt.List()->entries(), 2u);
    // the moved nodes are empty and usable
    EXPECT_EQ(quelleList.entryCount(), 0u);
    EXPECT_EQ(quelleAdd.entryCount(), 0u);
    quelleList.clear("wieder");
    quelleList.List(CQBXMLdata("C", 3));
    EXPECT_EQ(quelleList.entryCount(), 1u);
}

TEST(CQBXMLdata, MovingANodeIntoItselfTakesInACopyOfItsFormerSelf) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("A", 1)).List(CQBXMLdata("B", 2));
    node.add(std::move(node));
    ASSERT_EQ(node.entryCount(), 3u);
    EXPECT_TRUE(node.entryAt(2)->isAdded());
    EXPECT_EQ(node.entryAt(2)->entryCount(), 2u);
    node.List(std::move(node));
    ASSERT_EQ(node.entryCount(), 4u);
    EXPECT_EQ(node.entryAt(3)->entryCount(), 3u);
}

TEST(CQBXMLdata, ListTableFollowsEntriesMovedIn) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("A", 1));
    ASSERT_EQ(node.List()->entries(), 1u);
    CQBXMLdata b("B", 2);
    node.List(std::move(b));
    CQBXMLdata c("C", 3);
    node.add(std::move(c));
    EXPECT_EQ(node.List()->entries(), 3u);
}

TEST(CQBXMLdata, ClearEmptiesTheNodeAndSetsTyp) {
    CQBXMLdata node("Name", 12);
    node.Attribute("attr");
    node.Typ("old");
    node.List(CQBXMLdata("A", 1));
    RWTPtrHashTable<CQBXMLdata>* table = node.List();
    node.clear("qbFormular");
    EXPECT_EQ(node.Typ(), "qbFormular");
    EXPECT_EQ(node.Name(), "Name");
    EXPECT_EQ(node.Attribute(), "");
    EXPECT_TRUE(node.value().isEmpty());
    EXPECT_EQ(node.entryCount(), 0u);
    EXPECT_EQ(node.List(), table);
    EXPECT_TRUE(table->isEmpty());
    int a = 0;
    EXPECT_FALSE(node.Listvalue("A", a));
}

TEST(CQBXMLdata, ClearAcceptsATypTakenFromAnEntry) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("qbFormularX", 1));
    node.clear(node.entryAt(0)->Name());
    EXPECT_EQ(node.Typ(), "qbFormularX");
}

TEST(CQBXMLdata, TypSetterChangesNothingElse) {
    CQBXMLdata node = formNode();
    node.Attribute("attr");
    const CQBXMLdata before = node;
    node.Typ("qbFormular");
    EXPECT_EQ(node.Typ(), "qbFormular");
    node.Typ(before.Typ());
    EXPECT_TRUE(node.sameTree(before));
}

TEST(CQBXMLdata, GetChildrenFindsTheFirstDirectEntryWithTheAttribute) {
    CQBXMLdata node("qbFormularListe");
    node.List(CQBXMLdata("Version", 1));
    CQBXMLdata collection("RWDlistCollectables");
    collection.Attribute("Liste");
    CQBXMLdata deeper("Deeper");
    deeper.Attribute("Tief");
    collection.List(deeper);
    node.List(collection);
    CQBXMLdata second("Second");
    second.Attribute("Liste");
    node.List(second);

    CQBXMLdata* found = node.GetChildren("Liste");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->Name(), "RWDlistCollectables");
    EXPECT_EQ(found, node.entryAt(1));
    EXPECT_EQ(node.GetChildren("Tief"), nullptr); // not a direct entry
    EXPECT_EQ(node.GetChildren("liste"), nullptr);
    EXPECT_EQ(node.GetChildren(""), nullptr); // bears no attribute
    const CQBXMLdata& constNode = node;
    EXPECT_EQ(constNode.GetChildren("Liste"), found);
}

TEST(CQBXMLdata, ListTableHoldsEveryEntryAndKeepsEqualNamesInOrder) {
    CQBXMLdata node("n");
    for (int i = 0; i < 5; ++i)
        node.List(CQBXMLdata("element", i));
    node.List(CQBXMLdata("Version", 9));
    RWTPtrHashTable<CQBXMLdata>* table = node.List();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->entries(), 6u);

    const std::vector<const CQBXMLdata*> seen = iterate(node);
    ASSERT_EQ(seen.size(), 6u);
    int next = 0;
    for (const CQBXMLdata* entry : seen) {
        if (entry->Name() != "element") continue;
        EXPECT_EQ(*entry->value().ifInt(), next++);
    }
    EXPECT_EQ(next, 5);
    // The table points at the entries themselves.
    for (const CQBXMLdata* entry : seen) {
        bool inList = false;
        for (size_t i = 0; i < node.entryCount(); ++i)
            inList = inList || node.entryAt(i) == entry;
        EXPECT_TRUE(inList);
    }
    const CQBXMLdata probe("Version");
    ASSERT_NE(table->find(&probe), nullptr);
    EXPECT_EQ(*table->find(&probe)->value().ifInt(), 9);
    const CQBXMLdata elementProbe("element");
    EXPECT_EQ(table->occurrencesOf(&elementProbe), 5u);
}

TEST(CQBXMLdata, ListTableFollowsLaterChanges) {
    CQBXMLdata node("n");
    RWTPtrHashTable<CQBXMLdata>* table = node.List();
    node.List(CQBXMLdata("A", 1));
    CQBXMLdata other("o");
    other.List(CQBXMLdata("B", 2)).List(CQBXMLdata("C", 3));
    node.add(other);
    EXPECT_EQ(table->entries(), 2u);
    EXPECT_EQ(iterate(node).size(), 2u);
    node = other; // the table stays the node's and now holds other's copies
    EXPECT_EQ(node.List(), table);
    EXPECT_EQ(table->entries(), 2u);
    for (const CQBXMLdata* entry : iterate(node))
        EXPECT_TRUE(entry == node.entryAt(0) || entry == node.entryAt(1));
    node.clear("t");
    EXPECT_TRUE(table->isEmpty());
}

TEST(CQBXMLdata, CopiesAreDeepAndIndependent) {
    CQBXMLdata node = formNode();
    node.Attribute("a");
    CQBXMLdata copy(node);
    EXPECT_TRUE(copy.sameTree(node));
    EXPECT_NE(copy.entryAt(0), node.entryAt(0));
    copy.entryAt(0)->clear("changed");
    EXPECT_EQ(node.entryAt(0)->Typ(), "qbFormular");
    CQBXMLdata assigned("x");
    assigned = node;
    EXPECT_TRUE(assigned.sameTree(node));
    const CQBXMLdata& self = assigned;
    assigned = self;
    EXPECT_TRUE(assigned.sameTree(node));
    CQBXMLdata moved(std::move(assigned));
    EXPECT_TRUE(moved.sameTree(node));
    EXPECT_EQ(moved.List()->entries(), node.entryCount());
}

TEST(CQBXMLdata, EqualityComparesNamesForTheTable) {
    EXPECT_TRUE(CQBXMLdata("a", 1) == CQBXMLdata("a", "other"));
    EXPECT_FALSE(CQBXMLdata("a") == CQBXMLdata("b"));
    EXPECT_FALSE(CQBXMLdata("a", 1).sameTree(CQBXMLdata("a", "other")));
    EXPECT_EQ(CQBXMLdata::hashName(CQBXMLdata("key")), RWCString("key").hash());
}

TEST(CQBXMLdata, ListvalueAsVariantGivesTheValueOrNothing) {
    CQBXMLdata node("n");
    node.List(CQBXMLdata("Beteiligung", 3)).List(CQBXMLdata("Name", "Meier"));
    node.List(CQBXMLdata("Sub"));
    const QBvar beteiligung = node.Listvalue("Beteiligung");
    EXPECT_EQ(beteiligung.kind(), QBvar::intValue);
    EXPECT_EQ(beteiligung.asInt(), 3);
    const int asInt = node.Listvalue("Beteiligung");
    EXPECT_EQ(asInt, 3);
    EXPECT_EQ(node.Listvalue("Name").asString(), "Meier");
    EXPECT_TRUE(node.Listvalue("Missing").isEmpty());
    EXPECT_EQ(node.Listvalue("Missing").asInt(), 0);
    EXPECT_TRUE(node.Listvalue("Sub").isEmpty());
}

// ---------------------------------------------------------------------------------------------------------
// XML text

namespace {

const char* const kAwkwardTexts[] = {
    "",
    " ",
    "   ",
    "  leading and trailing  ",
    "line one\nline two\r\nline three\rend",
    "\t tab \t",
    "a < b && c > d",
    "\"double\" and 'single' quotes",
    "&amp; is no entity here",
    "]]> and <!-- -->",
    "\x80 \x81\x8D\x8F\x90\x9D \x9F \xA0 \xE4\xF6\xFC\xDF \xFF",
    "\x7F",
};

CQBXMLdata everyKind() {
    CQBXMLdata root("qbFormularListe \xC4rger");
    root.Typ("qbFormularListe");
    root.Attribute("Wurzel & <Attr>");
    root.List(CQBXMLdata("Text", RWCString("Erkl\xE4rung Verletzungen")))
        .List(CQBXMLdata("Flag", static_cast<unsigned char>(0xFF)))
        .List(CQBXMLdata("Flag0", static_cast<unsigned char>(0)))
        .List(CQBXMLdata("Int", INT_MIN))
        .List(CQBXMLdata("IntMax", INT_MAX))
        .List(CQBXMLdata("Long", LONG_MIN))
        .List(CQBXMLdata("LongMax", LONG_MAX))
        .List(CQBXMLdata("Double", 0.1))
        .List(CQBXMLdata("NegZero", -0.0))
        .List(CQBXMLdata("Inf", std::numeric_limits<double>::infinity()))
        .List(CQBXMLdata("NegInf", -std::numeric_limits<double>::infinity()))
        .List(CQBXMLdata("NaN", std::numeric_limits<double>::quiet_NaN()))
        .List(CQBXMLdata("Denormal", std::numeric_limits<double>::denorm_min()))
        .List(CQBXMLdata("Bool", true))
        .List(CQBXMLdata("False", false))
        .List(CQBXMLdata("Date", dayNumber(2440588)))
        .List(CQBXMLdata("NoDate", dayNumber(0)))
        .List(CQBXMLdata("LastDate", dayNumber(4294967295UL)));
    CQBXMLdata texts("Texte");
    texts.Attribute("Liste");
    int i = 0;
    for (const char* text : kAwkwardTexts)
        texts.List(CQBXMLdata(("T" + std::to_string(i++)).c_str(), text));
    texts.List(CQBXMLdata("Nul", RWCString("a\0b", 3)));
    texts.List(CQBXMLdata("Controls", RWCString("\x01\x02\x1B\x1F")));
    CQBXMLdata header("");
    header.clear("qbFormular");
    header.List(CQBXMLdata("Version", RWCString("11.2001")));
    texts.List(header);
    root.List(texts);
    CQBXMLdata odd(RWCString("name\x01with control", 17));
    odd.Typ(RWCString("typ\x02", 4));
    odd.Attribute(RWCString("attr\x03", 5));
    root.List(odd);
    root.List(CQBXMLdata(" blank name ", " "));
    return root;
}

} // namespace

TEST(CQBXMLdata, AsXMLWritesTheDocumentedSchema) {
    CQBXMLdata node("Liste");
    node.Typ("qbFormularListe");
    node.List(CQBXMLdata("Version", 3));
    CQBXMLdata collection("RWDlistCollectables");
    collection.Attribute("Liste");
    node.List(collection);
    node.List(CQBXMLdata("Name", "M\xFCller & <S\xF6hne>"));
    node.List(CQBXMLdata("Wert", 1.5))
        .List(CQBXMLdata("Ja", true))
        .List(CQBXMLdata("Art", static_cast<unsigned char>(2)))
        .List(CQBXMLdata("Summe", 7L))
        .List(CQBXMLdata("Datum", dayNumber(2440588)))
        .List(CQBXMLdata("Leer", ""))
        .List(CQBXMLdata("Zeilen", "a\tb\nc"))
        .List(CQBXMLdata("Steuer", RWCString("a\x01", 2)));
    EXPECT_EQ(node.asXMLUtf8(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<node name=\"Liste\" typ=\"qbFormularListe\">\n"
              "  <node name=\"Version\" type=\"int\" value=\"3\" />\n"
              "  <node name=\"RWDlistCollectables\" attribute=\"Liste\" />\n"
              "  <node name=\"Name\" type=\"text\" value=\"M\xC3\xBCller &amp; &lt;S\xC3\xB6hne>\" />\n"
              "  <node name=\"Wert\" type=\"double\" value=\"1.5\" />\n"
              "  <node name=\"Ja\" type=\"bool\" value=\"true\" />\n"
              "  <node name=\"Art\" type=\"flag\" value=\"2\" />\n"
              "  <node name=\"Summe\" type=\"long\" value=\"7\" />\n"
              "  <node name=\"Datum\" type=\"date\" value=\"2440588\" />\n"
              "  <node name=\"Leer\" type=\"text\" value=\"\" />\n"
              "  <node name=\"Zeilen\" type=\"text\" value=\"a&#09;b&#10;c\" />\n"
              "  <node name=\"Steuer\" type=\"text\" value-hex=\"6101\" />\n"
              "</node>\n");
    EXPECT_EQ(node.asXML().std(), node.asXMLUtf8());
}

TEST(CQBXMLdata, XmlRoundTripKeepsTheWholeTreeExactly) {
    const CQBXMLdata original = everyKind();
    const RWCString xml = original.asXML();
    CQBXMLdata read("before");
    std::string error;
    ASSERT_TRUE(read.fromXML(xml, &error)) << error << "\n" << xml.std();
    EXPECT_TRUE(read.sameTree(original)) << xml.std();
    EXPECT_EQ(read.asXML(), xml);
}

TEST(CQBXMLdata, XmlRoundTripKeepsEveryValue) {
    CQBXMLdata read("");
    ASSERT_TRUE(read.fromXML(everyKind().asXML()));
    EXPECT_EQ(read.Name(), "qbFormularListe \xC4rger");
    EXPECT_EQ(read.Typ(), "qbFormularListe");
    EXPECT_EQ(read.Attribute(), "Wurzel & <Attr>");
    RWCString text;
    EXPECT_TRUE(read.Listvalue("Text", text));
    EXPECT_EQ(text, "Erkl\xE4rung Verletzungen");
    unsigned char flag = 1;
    EXPECT_TRUE(read.Listvalue("Flag", flag));
    EXPECT_EQ(flag, 0xFF);
    EXPECT_TRUE(read.Listvalue("Flag0", flag));
    EXPECT_EQ(flag, 0);
    int i = 0;
    EXPECT_TRUE(read.Listvalue("Int", i));
    EXPECT_EQ(i, INT_MIN);
    EXPECT_TRUE(read.Listvalue("IntMax", i));
    EXPECT_EQ(i, INT_MAX);
    long l = 0;
    EXPECT_TRUE(read.Listvalue("Long", l));
    EXPECT_EQ(l, LONG_MIN);
    EXPECT_TRUE(read.Listvalue("LongMax", l));
    EXPECT_EQ(l, LONG_MAX);
    double d = 0;
    EXPECT_TRUE(read.Listvalue("Double", d));
    EXPECT_EQ(bitsOf(d), bitsOf(0.1));
    EXPECT_TRUE(read.Listvalue("NegZero", d));
    EXPECT_EQ(bitsOf(d), bitsOf(-0.0));
    EXPECT_TRUE(read.Listvalue("NaN", d));
    EXPECT_EQ(bitsOf(d), bitsOf(std::numeric_limits<double>::quiet_NaN()));
    bool b = false;
    EXPECT_TRUE(read.Listvalue("Bool", b));
    EXPECT_TRUE(b);
    EXPECT_TRUE(read.Listvalue("False", b));
    EXPECT_FALSE(b);
    RWDate date = dayNumber(1);
    EXPECT_TRUE(read.Listvalue("Date", date));
    EXPECT_EQ(date.julian(), 2440588u);
    EXPECT_TRUE(read.Listvalue("NoDate", date));
    EXPECT_EQ(date.julian(), 0u);
    EXPECT_TRUE(read.Listvalue("LastDate", date));
    EXPECT_EQ(date.julian(), 4294967295UL);

    const CQBXMLdata* texts = read.GetChildren("Liste");
    ASSERT_NE(texts, nullptr);
    int n = 0;
    for (const char* expected : kAwkwardTexts) {
        RWCString got("unset");
        EXPECT_TRUE(texts->Listvalue(("T" + std::to_string(n++)).c_str(), got));
        EXPECT_EQ(got.std(), expected);
    }
    EXPECT_TRUE(texts->Listvalue("Nul", text));
    EXPECT_EQ(text.std(), std::string("a\0b", 3));
    EXPECT_TRUE(texts->Listvalue("Controls", text));
    EXPECT_EQ(text, "\x01\x02\x1B\x1F");
    ASSERT_EQ(texts->entryAt(texts->entryCount() - 1)->Typ(), "qbFormular");
    EXPECT_EQ(read.entryAt(read.entryCount() - 2)->Name().std(), std::string("name\x01with control", 17));
    EXPECT_EQ(read.entryAt(read.entryCount() - 2)->Typ().std(), std::string("typ\x02", 4));
    EXPECT_TRUE(read.Listvalue(" blank name ", text));
    EXPECT_EQ(text, " ");
}

TEST(CQBXMLdata, XmlRoundTripOfDoublesIsBitExact) {
    std::vector<double> values = {0.0,
                                  -0.0,
                                  1.0,
                                  -1.5,
                                  0.1,
                                  1.0 / 3.0,
                                  1e300,
                                  -1e-300,
                                  123456789.125,
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::lowest(),
                                  std::numeric_limits<double>::min(),
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::epsilon(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN(),
                                  -std::numeric_limits<double>::quiet_NaN(),
                                  std::bit_cast<double>(uint64_t{0x7FF0000000000001}), // signalling
                                  std::bit_cast<double>(uint64_t{0xFFF8DEADBEEF0001})};
    std::mt19937_64 random(20240531);
    for (int i = 0; i < 200; ++i)
        values.push_back(std::bit_cast<double>(random()));
    CQBXMLdata node("doubles");
    for (double v : values)
        node.List(CQBXMLdata("d", v));
    CQBXMLdata read("");
    std::string error;
    ASSERT_TRUE(read.fromXML(node.asXML(), &error)) << error;
    ASSERT_EQ(read.entryCount(), values.size());
    for (size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(bitsOf(*read.entryAt(i)->value().ifDouble()), bitsOf(values[i])) << i;
}

TEST(CQBXMLdata, XmlWritesTextAsUtf8) {
    const std::string xml = CQBXMLdata("N\xE4me", "\x80").asXMLUtf8();
    EXPECT_NE(xml.find("name=\"N\xC3\xA4me\""), std::string::npos) << xml;
    EXPECT_NE(xml.find("value=\"\xE2\x82\xAC\""), std::string::npos) << xml;
}

TEST(CQBXMLdata, FromXMLReadsAHandWrittenDocument) {
    const char* xml = "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?>\n"
                      "<!-- a comment -->\n"
                      "<node typ='qbFormular' name='Kopf'>\n"
                      "  <?note ignored?>\n"
                      "  <node name='Text' type='text' value='&lt;&#228;&#xE4;&apos;&quot;&amp;&gt;' />\n"
                      "  <node name='Umbruch' type='text' value='a\nb\tc\r\nd' />\n"
                      "  <node name='Erhalten' type='text' value='a&#10;b&#9;c&#13;&#10;d' />\n"
                      "  <node name='Zahl' type='&#105;nt' value='007'></node>\n"
                      "</node>\n";
    CQBXMLdata node("");
    std::string error;
    ASSERT_TRUE(node.fromXMLUtf8(xml, &error)) << error;
    EXPECT_EQ(node.Name(), "Kopf");
    EXPECT_EQ(node.Typ(), "qbFormular");
    RWCString text;
    EXPECT_TRUE(node.Listvalue("Text", text));
    EXPECT_EQ(text, "<\xE4\xE4'\"&>");
    EXPECT_TRUE(node.Listvalue("Umbruch", text)); // literal breaks are blanks in XML attributes
    EXPECT_EQ(text, "a b c d");
    EXPECT_TRUE(node.Listvalue("Erhalten", text));
    EXPECT_EQ(text, "a\nb\tc\r\nd");
    int zahl = 0;
    EXPECT_TRUE(node.Listvalue("Zahl", zahl));
    EXPECT_EQ(zahl, 7);
}

TEST(CQBXMLdata, FromXMLRefusesBadDocumentsAndKeepsTheNode) {
    struct Case {
        const char* xml;
        const char* problem;
    };
    const Case cases[] = {
        {"", "no root element"},
        {"   \n", "no root element"},
        {"<node", "malformed XML at byte offset"},
        {"<node></nodes>", "malformed XML"},
        {"<node/><node/>", "second root element"},
        {"<node/>trailing", "text outside the root element"},
        {"<other/>", "unknown element"},
        {"<node><child/></node>", "unknown element"},
        {"<node>text</node>", "text content"},
        {"<node><![CDATA[x]]></node>", "unexpected content"},
        {"<node color='red'/>", "unknown attribute color"},
        {"<node name='a' name='b'/>", "given twice"},
        {"<node name='a' name-hex='62'/>", "given twice"},
        {"<node type='int'/>", "type without value"},
        {"<node value='1'/>", "value without type"},
        {"<node type='float' value='1'/>", "unknown type \"float\""},
        {"<node type='int' value='1x'/>", "is no int value"},
        {"<node type='int' value=' 1'/>", "is no int value"},
        {"<node type='int' value='+1'/>", "is no int value"},
        {"<node type='int' value='2147483648'/>", "is no int value"},
        {"<node type='long' value='99999999999999999999'/>", "is no long value"},
        {"<node type='flag' value='256'/>", "is no flag value"},
        {"<node type='flag' value='-1'/>", "is no flag value"},
        {"<node type='double' value='1,5'/>", "is no double value"},
        {"<node type='double' value='1e999'/>", "is no double value"},
        {"<node type='double' value='nan(1)'/>", "is no double value"},
        {"<node type='double' value='nan:7FF0000000000000'/>", "is no double value"},
        {"<node type='double' value=''/>", "is no double value"},
        {"<node type='bool' value='yes'/>", "is no bool value"},
        {"<node type='date' value='-1'/>", "is no date value"},
        {"<node type='int' value-hex='01'/>", "value-hex is for texts only"},
        {"<node type='text' value-hex='0'/>", "hex"},
        {"<node type='text' value-hex='zz'/>", "hex"},
        {"<node name='&unknown;'/>", "reference"},
        {"<node name='&#0;'/>", "reference"},
        {"<node name='&#1;'/>", "reference"},
        {"<node name='&#xD800;'/>", "reference"},
        {"<node name='a & b'/>", "reference"},
        {"<node name='a<b'/>", "'<'"},
        {"<node name='\x01'/>", "not allowed in XML"},
        {"<node name='\xC3'/>", "malformed UTF-8 at byte offset 12"},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><node/>", "only UTF-8"},
        {"<node/><?xml version='1.0'?>", "declaration"},
    };
    for (const Case& c : cases) {
        CQBXMLdata node = formNode();
        const CQBXMLdata before = node;
        std::string error;
        EXPECT_FALSE(node.fromXMLUtf8(c.xml, &error)) << c.xml;
        EXPECT_TRUE(node.sameTree(before)) << c.xml;
        EXPECT_NE(error.find(c.problem), std::string::npos) << c.xml << " gave: " << error;
    }
    CQBXMLdata node = formNode();
    EXPECT_FALSE(node.fromXML(RWCString("<node><node name='x' type='int' value='q'/>")));
    EXPECT_FALSE(node.fromXMLUtf8(std::string_view("<node name='a\0b'/>", 17)));
    EXPECT_TRUE(node.sameTree(formNode()));
}

TEST(CQBXMLdata, FromXMLRefusesACharacterOutsideWindows1252) {
    for (const char* xml :
         {"<node name='x' type='text' value='\xE4\xB8\xAD'/>",
          "<node name='x' type='text' value='&#x4E2D;'/>", "<node name='\xF0\x9F\x98\x80'/>"}) {
        CQBXMLdata node = formNode();
        std::string error;
        EXPECT_FALSE(node.fromXMLUtf8(xml, &error)) << xml;
        EXPECT_TRUE(node.sameTree(formNode()));
        EXPECT_NE(error.find("no Windows-1252 form"), std::string::npos) << error;
        EXPECT_NE(error.find("U+"), std::string::npos) << error;
    }
}

TEST(CQBXMLdata, FromXMLErrorNamesTheElementAndItsOffset) {
    const std::string xml =
        "<node>\n  <node name='ok' type='int' value='1'/>\n  <node type='int' value='x'/>\n</node>";
    CQBXMLdata node("");
    std::string error;
    EXPECT_FALSE(node.fromXMLUtf8(xml, &error));
    const size_t offset = xml.find("<node type");
    EXPECT_NE(error.find("<node> at byte offset " + std::to_string(offset)), std::string::npos) << error;
}

TEST(CQBXMLdata, FromXMLRefusesNestingBeyondTheLimit) {
    std::string ok, deep;
    for (int i = 0; i < 256; ++i)
        ok += "<node>";
    for (int i = 0; i < 256; ++i)
        ok += "</node>";
    for (int i = 0; i < 100000; ++i)
        deep += "<node>";
    for (int i = 0; i < 100000; ++i)
        deep += "</node>";
    CQBXMLdata node("");
    std::string error;
    EXPECT_TRUE(node.fromXMLUtf8(ok, &error)) << error;
    EXPECT_FALSE(node.fromXMLUtf8(deep, &error));
    EXPECT_NE(error.find("deeper than 256"), std::string::npos) << error;
}

TEST(CQBXMLdata, FromXMLOfRandomBytesNeverCrashesAndFailsCleanly) {
    std::mt19937 random(12345);
    const std::string valid = everyKind().asXMLUtf8();
    const char alphabet[] = "<>/='\"&;#x node name type value text int 01 \xC3\xA4\n";
    for (int round = 0; round < 3000; ++round) {
        std::string xml;
        switch (round % 3) {
        case 0: { // random bytes
            const size_t length = random() % 200;
            for (size_t i = 0; i < length; ++i)
                xml += static_cast<char>(random() % 256);
            break;
        }
        case 1: { // random markup-like text
            const size_t length = random() % 200;
            for (size_t i = 0; i < length; ++i)
                xml += alphabet[random() % (sizeof alphabet - 1)];
            break;
        }
        default: { // a valid document with a few bytes changed, cut or repeated
            xml = valid;
            const int edits = 1 + random() % 4;
            for (int e = 0; e < edits && !xml.empty(); ++e) {
                const size_t at = random() % xml.size();
                switch (random() % 3) {
                case 0:
                    xml[at] = static_cast<char>(random() % 256);
                    break;
                case 1:
                    xml.erase(at, random() % 16);
                    break;
                default:
                    xml.insert(at, xml.substr(at, random() % 16));
                    break;
                }
            }
        }
        }
        CQBXMLdata node = formNode();
        std::string error;
        if (node.fromXMLUtf8(xml, &error)) {
            // What was read writes out and reads back the same.
            CQBXMLdata again("");
            ASSERT_TRUE(again.fromXML(node.asXML(), &error)) << error;
            EXPECT_TRUE(again.sameTree(node));
        } else {
            EXPECT_FALSE(error.empty());
            EXPECT_TRUE(node.sameTree(formNode()));
        }
    }
}

// ---------------------------------------------------------------------------------------------------------
// QBvar

static_assert(!std::is_constructible_v<QBvar, char>, "a char must be stored by choice");

TEST(QBvar, EmptyGivesZeroAndTheEmptyText) {
    const QBvar v;
    EXPECT_TRUE(v.isEmpty());
    EXPECT_EQ(v.kind(), QBvar::empty);
    EXPECT_EQ(v.asInt(), 0);
    EXPECT_EQ(v.asLong(), 0);
    EXPECT_EQ(v.asDouble(), 0.0);
    EXPECT_EQ(v.asString(), "");
}

TEST(QBvar, ConstructorsSetTheKind) {
    EXPECT_EQ(QBvar(RWCString("a")).kind(), QBvar::text);
    EXPECT_EQ(QBvar("a").kind(), QBvar::text);
    EXPECT_EQ(QBvar(static_cast<unsigned char>(1)).kind(), QBvar::flag);
    EXPECT_EQ(QBvar(1).kind(), QBvar::intValue);
    EXPECT_EQ(QBvar(1L).kind(), QBvar::longValue);
    EXPECT_EQ(QBvar(1.0).kind(), QBvar::doubleValue);
    EXPECT_EQ(QBvar(true).kind(), QBvar::boolValue);
    EXPECT_EQ(QBvar(dayNumber(1)).kind(), QBvar::date);
    EXPECT_FALSE(QBvar(0).isEmpty());
    EXPECT_FALSE(QBvar("").isEmpty());
}

TEST(QBvar, TextConvertsToNumbersLikeAtoiAtolAtof) {
    EXPECT_EQ(QBvar(" \t42abc").asInt(), 42);
    EXPECT_EQ(QBvar("-17").asInt(), -17);
    EXPECT_EQ(QBvar("+5").asLong(), 5);
    EXPECT_EQ(QBvar("abc").asInt(), 0);
    EXPECT_EQ(QBvar("").asLong(), 0);
    EXPECT_EQ(QBvar("3.75").asInt(), 3);
    EXPECT_EQ(QBvar("3.75").asDouble(), 3.75);
    EXPECT_EQ(QBvar("1e3").asInt(), 1);
    EXPECT_EQ(QBvar("1e3").asDouble(), 1000.0);
    EXPECT_EQ(QBvar(" -2.5x").asDouble(), -2.5);
    EXPECT_EQ(QBvar("3,5").asDouble(), 3.0); // never the locale's decimal comma
    EXPECT_EQ(QBvar("x1").asDouble(), 0.0);
    EXPECT_EQ(QBvar("-+1").asDouble(), 0.0);
    EXPECT_EQ(QBvar("1e999").asDouble(), HUGE_VAL);
    EXPECT_EQ(QBvar("1e-999").asDouble(), 0.0);
    EXPECT_EQ(QBvar("99999999999").asInt(), INT_MAX);
    EXPECT_EQ(QBvar("-99999999999").asInt(), INT_MIN);
    EXPECT_EQ(QBvar("99999999999999999999999").asLong(), LONG_MAX);
    EXPECT_EQ(QBvar("-9223372036854775808").asLong(), LONG_MIN);
}

TEST(QBvar, NumbersConvertToDecimalText) {
    EXPECT_EQ(QBvar(-42).asString(), "-42");
    EXPECT_EQ(QBvar(1234567890123L).asString(), "1234567890123");
    EXPECT_EQ(QBvar(static_cast<unsigned char>(255)).asString(), "255");
    EXPECT_EQ(QBvar(0.1).asString(), "0.1");
    EXPECT_EQ(QBvar(3.0).asString(), "3");
    EXPECT_EQ(QBvar(-2.5).asString(), "-2.5");
    EXPECT_EQ(QBvar(true).asString(), "1");
    EXPECT_EQ(QBvar(false).asString(), "0");
    EXPECT_EQ(QBvar("text").asString(), "text");
}

TEST(QBvar, NumbersConvertBetweenKinds) {
    EXPECT_EQ(QBvar(3.9).asInt(), 3);
    EXPECT_EQ(QBvar(-3.9).asLong(), -3);
    EXPECT_EQ(QBvar(1e300).asInt(), INT_MAX);
    EXPECT_EQ(QBvar(-1e300).asLong(), LONG_MIN);
    EXPECT_EQ(QBvar(std::numeric_limits<double>::quiet_NaN()).asInt(), 0);
    EXPECT_EQ(QBvar(5000000000L).asInt(), INT_MAX);
    EXPECT_EQ(QBvar(5000000000L).asDouble(), 5e9);
    EXPECT_EQ(QBvar(static_cast<unsigned char>(200)).asInt(), 200);
    EXPECT_EQ(QBvar(true).asInt(), 1);
    EXPECT_EQ(QBvar(7).asDouble(), 7.0);
}

TEST(QBvar, ConversionOperatorsServeAssignments) {
    const QBvar v(12);
    const int i = v;
    const long l = v;
    const double d = v;
    const RWCString s = v;
    EXPECT_EQ(i, 12);
    EXPECT_EQ(l, 12);
    EXPECT_EQ(d, 12.0);
    EXPECT_EQ(s, "12");
    EXPECT_EQ(static_cast<int>(QBvar("8")), 8);
    EXPECT_EQ(static_cast<RWCString>(QBvar(2.5)), "2.5");
}

TEST(QBvar, DateConvertsToDayNumberAndGermanText) {
    const QBvar v(dayNumber(2440588));
    EXPECT_EQ(v.asLong(), 2440588);
    EXPECT_EQ(v.asInt(), 2440588);
    EXPECT_EQ(v.asDouble(), 2440588.0);
    EXPECT_EQ(v.asString(), "01.01.1970");
    EXPECT_EQ(QBvar(dayNumber(0)).asString(), "");
}

TEST(QBvar, IdenticalComparesKindAndBits) {
    EXPECT_TRUE(QBvar(1).identical(QBvar(1)));
    EXPECT_FALSE(QBvar(1).identical(QBvar(1L)));
    EXPECT_FALSE(QBvar(0.0).identical(QBvar(-0.0)));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(QBvar(nan).identical(QBvar(nan)));
    EXPECT_TRUE(QBvar("a").identical(QBvar(RWCString("a"))));
    EXPECT_TRUE(QBvar().identical(QBvar()));
}

// ---------------------------------------------------------------------------------------------------------
// doubleToRWCString

TEST(DoubleToRWCString, FormsIndexCallGivesPlainIntegers) {
    EXPECT_EQ(doubleToRWCString(3, "", "", 0, 1), "3");
    EXPECT_EQ(doubleToRWCString(12, "", "", 0, 1), "12");
    EXPECT_EQ(doubleToRWCString(0, "", "", 0, 1), "0");
    EXPECT_EQ(doubleToRWCString(1234, "", "", 0, 1), "1234");
    EXPECT_EQ(doubleToRWCString(-5, "", "", 0, 1), "-5");
    EXPECT_EQ(doubleToRWCString(1000000, "", "", 0, 1), "1000000");
}

TEST(DoubleToRWCString, GroupsThousandsAndRoundsDecimals) {
    EXPECT_EQ(doubleToRWCString(1234567.891, ".", ",", 2, 1), "1.234.567,89");
    EXPECT_EQ(doubleToRWCString(-1234567.891, ".", ",", 2, 1), "-1.234.567,89");
    EXPECT_EQ(doubleToRWCString(1234.5678, ".", ",", 2, 1), "1.234,57");
    EXPECT_EQ(doubleToRWCString(999, ".", ",", 0, 1), "999");
    EXPECT_EQ(doubleToRWCString(1000, ".", ",", 0, 1), "1.000");
    EXPECT_EQ(doubleToRWCString(100, ".", ",", 3, 1), "100,000");
    EXPECT_EQ(doubleToRWCString(0.25, "", ".", 1, 1), "0.2"); // the binary value is exactly a tie: to even
    EXPECT_EQ(doubleToRWCString(0.126, "", ".", 2, 1), "0.13");
    EXPECT_EQ(doubleToRWCString(1234567, "'", ".", 0, 1), "1'234'567");
    EXPECT_EQ(doubleToRWCString(9.996, ".", ",", 2, 1), "10,00");
}

TEST(DoubleToRWCString, EdgeCases) {
    EXPECT_EQ(doubleToRWCString(-0.001, ".", ",", 2, 1), "0,00"); // no minus for what rounds to zero
    EXPECT_EQ(doubleToRWCString(-0.0, "", "", 0, 1), "0");
    EXPECT_EQ(doubleToRWCString(2.5, nullptr, nullptr, 0, 1), "2");
    EXPECT_EQ(doubleToRWCString(1.5, "", ",", -3, 1), "2");
    EXPECT_EQ(doubleToRWCString(std::numeric_limits<double>::quiet_NaN(), "", "", 0, 1), "nan");
    EXPECT_EQ(doubleToRWCString(-std::numeric_limits<double>::infinity(), "", "", 0, 1), "-inf");
    EXPECT_EQ(doubleToRWCString(1e300, "", "", 0, 1).length(), 301u);
    EXPECT_EQ(doubleToRWCString(1.0, "", ",", 99, 1).std(), "1," + std::string(30, '0'));
}
