// qbFormularL036, the stay-abroad declaration: its own equality over Land and Index with the two directions
// that differ, and the form list that holds several of one person, told apart by Land and Index.
#include "core/qbFormularListe.h"
#include "sport/qbFormularL036.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <string>
#include <vector>

using namespace qbtest;

namespace {

qbFormularL036 aufenthalt(const char* person, const char* land, int index, const char* dauer = "") {
    qbFormularL036 f;
    f.RefPersonenKennung(person);
    f.RefLand(land);
    f.RefIndex(index);
    f.RefDauer(dauer);
    return f;
}

// Land:Index:Dauer of each stay in the list, in its order.
std::vector<std::string> stays(qbFormularListe& liste) {
    std::vector<std::string> out;
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        const auto& f = static_cast<const qbFormularL036&>(*liste.liefereFormularAnPos(static_cast<int>(i)));
        out.push_back(f.RefPersonenKennung().std() + ":" + f.RefLand().std() + ":" +
                      std::to_string(f.RefIndex()) + ":" + f.RefDauer().std());
    }
    return out;
}

// Three stays of VP1 (two in Kenia with indices 0 and 1, one in Peru with 0) and one of VP2 in Kenia.
qbFormularListe vierAufenthalte() {
    qbFormularListe liste;
    for (qbFormularL036 f :
         {aufenthalt("VP1", "Kenia", 0, "3 Monate"), aufenthalt("VP1", "Kenia", 1, "1 Jahr"),
          aufenthalt("VP1", "Peru", 0, "6 Wochen"), aufenthalt("VP2", "Kenia", 0, "2 Jahre")})
        liste.neuesFormular(f);
    return liste;
}

} // namespace

// ---- Equality

TEST(L036, TwoFormsOfTheSamePersonWithDifferentIndexAreNotEqualEvenWithTheSameLand) {
    const qbFormularL036 a = aufenthalt("VP1", "Kenia", 0);
    const qbFormularL036 b = aufenthalt("VP1", "Kenia", 1);
    EXPECT_FALSE(a.isEqual(&b));
    EXPECT_FALSE(b.isEqual(&a));
    EXPECT_EQ(a == b, 0);
    EXPECT_EQ(b == a, 0);
    const qbFormularL036 c = aufenthalt("VP1", "Kenia", 0, "anders");
    EXPECT_EQ(a == c, 1);
    EXPECT_TRUE(a.isEqual(&c));
}

TEST(L036, SameIndexWithOneEmptyLandIsEqualInOneDirectionOfIsEqualAndNotInTheOther_Quirk) {
    const qbFormularL036 leer = aufenthalt("VP1", "", 2);
    const qbFormularL036 kenia = aufenthalt("VP1", "Kenia", 2);
    // isEqual skips Land when the argument's is empty, operator== when this object's is.
    EXPECT_TRUE(kenia.isEqual(&leer));
    EXPECT_FALSE(leer.isEqual(&kenia));
    EXPECT_EQ(leer == kenia, 1);
    EXPECT_EQ(kenia == leer, 0);
}

TEST(L036, EqualityComparesNummerAndPersonFirst) {
    const qbFormularL036 a = aufenthalt("VP1", "Kenia", 0);
    qbFormularL036 b = aufenthalt("VP2", "Kenia", 0);
    EXPECT_FALSE(a.isEqual(&b));
    EXPECT_EQ(a == b, 0);
    b.RefPersonenKennung("VP1");
    b.RefDruckstueckNummer("L440");
    EXPECT_FALSE(a.isEqual(&b));
    EXPECT_EQ(a == b, 0);
}

// A form of another class carries no stay: it compares as a new L036 would.
TEST(L036, IsEqualWithAPlainFormComparesItsHeaderAndAnEmptyStay) {
    qbFormular kopf;
    kopf.RefDruckstueckNummer("L036");
    kopf.RefPersonenKennung("VP1");
    EXPECT_TRUE(aufenthalt("VP1", "Kenia", 0).isEqual(&kopf));
    EXPECT_FALSE(aufenthalt("VP1", "Kenia", 1).isEqual(&kopf));
}

TEST(L036, AfterLoescheLandIsEmptyAndIndexIs0) {
    qbFormularL036 f = aufenthalt("VP2", "Kenia", 3, "1 Jahr");
    f.loesche();
    EXPECT_TRUE(f.RefLand().isNull());
    EXPECT_EQ(f.RefIndex(), 0);
    EXPECT_TRUE(f.RefDauer().isNull());
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
}

TEST(L036, IndexPassesThroughXmlAndStreamsAsAPlainInt) {
    const qbFormularL036 f = aufenthalt("VP1", "Kenia", -70000);
    CQBXMLdata knoten("L036");
    f.XMLgetDat(knoten);
    ASSERT_EQ(knoten.entryAt(knoten.entryCount() - 1)->Name().std(), "Index");
    EXPECT_EQ(knoten.entryAt(knoten.entryCount() - 1)->value().kind(), QBvar::intValue);
    qbFormularL036 ausXml;
    ausXml.XMLputDat(knoten);
    EXPECT_EQ(ausXml.RefIndex(), -70000);
    const Bytes b = gespeichert(f);
    EXPECT_EQ(hex(Bytes(b.end() - 4, b.end())), hex(int32(-70000)));
    for (Strom strom : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        qbFormularL036 gelesen;
        rundreise(f, gelesen, strom);
        EXPECT_EQ(gelesen.RefIndex(), -70000) << name(strom);
    }
}

// ---- The form list: several stays of one person

TEST(L036Liste, NeuesFormularAppendsEveryStayEvenOneEqualToAStoredOne) {
    qbFormularListe liste = vierAufenthalte();
    qbFormularL036 nochmal = aufenthalt("VP1", "Kenia", 0, "wieder");
    liste.neuesFormular(nochmal);
    EXPECT_EQ(stays(liste),
              (std::vector<std::string>{"VP1:Kenia:0:3 Monate", "VP1:Kenia:1:1 Jahr", "VP1:Peru:0:6 Wochen",
                                        "VP2:Kenia:0:2 Jahre", "VP1:Kenia:0:wieder"}));
}

TEST(L036Liste, LiefereFormularFindsTheStayOfPersonLandAndIndex) {
    const qbFormularListe liste = vierAufenthalte();
    qbFormularL036 f;
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, "Kenia", "1"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "1 Jahr");
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, "Peru", "0"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "6 Wochen");
    EXPECT_EQ(liste.liefereFormular("L036", f, 1, "Kenia", "0"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "2 Jahre");
    EXPECT_EQ(liste.liefereFormular("L036", f, 1, "Kenia", "1"), 0u);
    EXPECT_TRUE(f.RefDauer().isNull()) << "a search that finds nothing resets the caller's form";
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, "Chile", "0"), 0u);
}

// Without a country the probe's empty Land matches every Land: the first stay of that Index wins.
TEST(L036Liste, SearchWithoutLandFindsTheFirstStayOfThatIndex) {
    const qbFormularListe liste = vierAufenthalte();
    qbFormularL036 f;
    EXPECT_EQ(liste.liefereFormular("L036", f, 0), 1u);
    EXPECT_EQ(f.RefDauer().std(), "3 Monate");
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, ""), 1u);
    EXPECT_EQ(f.RefLand().std(), "Kenia");
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, "", "1"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "1 Jahr");
    EXPECT_TRUE(liste.FormularVorhanden("L036", 0, "", "1"));
    EXPECT_FALSE(liste.FormularVorhanden("L036", 0, "", "2"));
}

// The index arrives as text and is read with atoi: what it cannot read counts as 0.
TEST(L036Liste, IndexOfTheSearchIsReadWithAtoi) {
    const qbFormularListe liste = vierAufenthalte();
    EXPECT_TRUE(liste.FormularVorhanden("L036", 0, "Kenia", "1 Jahr"));
    qbFormularL036 f;
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, "Peru", "x"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "6 Wochen");
    EXPECT_TRUE(liste.FormularVorhanden("L036", 0, "Kenia", "01x"));
    EXPECT_FALSE(liste.FormularVorhanden("L036", 0, "Peru", "1"));
}

TEST(L036Liste, FormularVorhandenAsksPersonLandAndIndex) {
    const qbFormularListe liste = vierAufenthalte();
    EXPECT_TRUE(liste.FormularVorhanden("L036", 0, "Kenia", "0"));
    EXPECT_TRUE(liste.FormularVorhanden("L036", 0, "Kenia"));
    EXPECT_TRUE(liste.FormularVorhanden("L036", 0, "Peru", "0"));
    EXPECT_FALSE(liste.FormularVorhanden("L036", 0, "Peru", "1"));
    EXPECT_TRUE(liste.FormularVorhanden("L036", 1, "Kenia", "0"));
    EXPECT_FALSE(liste.FormularVorhanden("L036", 1, "Peru", "0"));
    EXPECT_FALSE(liste.FormularVorhanden("L036", 5, "Kenia", "0")) << "person 5 is VN";
}

TEST(L036Liste, LoescheFormularRemovesOnlyTheFirstStayThatMatches) {
    qbFormularListe liste = vierAufenthalte();
    EXPECT_EQ(liste.loescheFormular("L036", 0, "Peru", "0"), 1u);
    EXPECT_EQ(stays(liste), (std::vector<std::string>{"VP1:Kenia:0:3 Monate", "VP1:Kenia:1:1 Jahr",
                                                      "VP2:Kenia:0:2 Jahre"}));
    EXPECT_EQ(liste.loescheFormular("L036", 0, "Peru", "0"), 0u);
    // Without a country: the first of that person and index.
    EXPECT_EQ(liste.loescheFormular("L036", 0), 1u);
    EXPECT_EQ(stays(liste), (std::vector<std::string>{"VP1:Kenia:1:1 Jahr", "VP2:Kenia:0:2 Jahre"}));
    EXPECT_EQ(liste.loescheFormular("L036", 0, "Kenia", "1"), 1u);
    EXPECT_EQ(stays(liste), (std::vector<std::string>{"VP2:Kenia:0:2 Jahre"}));
}

// A caller that updates a stay removes the old one by its Land and Index first.
TEST(L036Liste, UpdatingAStayIsRemovingItByLandAndIndexThenAddingTheNewOne) {
    qbFormularListe liste = vierAufenthalte();
    ASSERT_EQ(liste.loescheFormular("L036", 0, "Kenia", "1"), 1u);
    qbFormularL036 neu = aufenthalt("VP1", "Kenia", 1, "2 Jahre");
    liste.neuesFormular(neu);
    qbFormularL036 f;
    EXPECT_EQ(liste.liefereFormular("L036", f, 0, "Kenia", "1"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "2 Jahre");
    EXPECT_EQ(liste.AnzahlFormulare(), 4u);
}

TEST(L036Liste, StaysSurviveTheListsStreamAndItsXmlImport) {
    qbFormularListe liste = vierAufenthalte();
    TempFile tmp("l036");
    {
        RWFile f(tmp.path(), "wb");
        f << liste;
    }
    qbFormularListe gelesen;
    {
        RWFile f(tmp.path(), "rb");
        f >> gelesen;
    }
    EXPECT_EQ(stays(gelesen), stays(liste));
    // An XML tree of the forms' own: every stay is added.
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        CQBXMLdata element("");
        static_cast<const qbFormularL036&>(*liste.liefereFormularAnPos(static_cast<int>(i)))
            .XMLgetDat(element);
        sammlung.List(std::move(element));
    }
    CQBXMLdata baum("");
    baum.clear("qbFormularListe");
    baum.List(std::move(sammlung));
    qbFormularListe ausXml;
    ausXml.XMLputDat(baum);
    EXPECT_EQ(ausXml.AnzahlFormulare(), 4u);
    qbFormularL036 f;
    EXPECT_EQ(ausXml.liefereFormular("L036", f, 0, "Kenia", "1"), 1u);
    EXPECT_EQ(f.RefDauer().std(), "1 Jahr");
}

TEST(L036Liste, LoescheGesundheitsFormulareLeavesTheStays) {
    qbFormularListe liste = vierAufenthalte();
    liste.loescheGesundheitsFormulare(0);
    EXPECT_EQ(liste.AnzahlFormulare(), 4u);
}
