// qbFormularL452 (motor racing) and qbFormularL453 (motorcycle racing): the blocks of a Flag, two Ints and a
// Text per kind of race, the irregular names, the setter of L452 that takes its text by value, and nothing
// that ties a Flag to its block.
#include "sport/qbFormularL452.h"
#include "sport/qbFormularL453.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <type_traits>

using namespace qbtest;

namespace {

template <class F>
void erwarteIntsBei0UndFlagsBei0xff(const F& f) {
    int ints = 0, flags = 0;
    for (const qbFeld& z : F::felder()) {
        if (z.art == qbArt::Int) {
            EXPECT_EQ(f.*z.mitglied.ganz, 0) << z.name;
            ++ints;
        }
        if (z.art == qbArt::Flag) {
            EXPECT_EQ(f.*z.mitglied.flag, 0xff) << z.name;
            ++flags;
        }
    }
    EXPECT_GT(ints, 0);
    EXPECT_GT(flags, 0);
}

} // namespace

TEST(L452, DefaultObjectHasEveryIntAt0AndEveryFlagAt0xff) {
    erwarteIntsBei0UndFlagsBei0xff(qbFormularL452());
    EXPECT_EQ(qbFormularL452().RefBergstreckenGeplant(), 0);
}

TEST(L453, DefaultObjectHasEveryIntAt0AndEveryFlagAt0xff) {
    erwarteIntsBei0UndFlagsBei0xff(qbFormularL453());
    EXPECT_EQ(qbFormularL453().RefBergrennenGeplant(), 0);
}

TEST(L452, AndereRennen2BisherIsSetAndStoredWhileAndereRennenJNStaysUnanswered) {
    qbFormularL452 f;
    f.RefAndereRennen2Bisher(4);
    qbFormularL452 gelesen;
    rundreise(f, gelesen, Strom::Datei);
    EXPECT_EQ(gelesen.RefAndereRennen2Bisher(), 4);
    EXPECT_EQ(gelesen.RefAndereRennenJN(), 0xff);
}

TEST(L453, AndereRennen2BisherIsSetAndStoredWhileAndereRennenJNStaysUnanswered) {
    qbFormularL453 f;
    f.RefAndereRennen2Bisher(4);
    qbFormularL453 gelesen;
    rundreise(f, gelesen, Strom::Portabel);
    EXPECT_EQ(gelesen.RefAndereRennen2Bisher(), 4);
    EXPECT_EQ(gelesen.RefAndereRennenJN(), 0xff);
}

// The one setter of the family that takes its text by value; L453's takes a const reference.
TEST(L452, RefTypTakesItsTextByValueUnlikeL453_Quirk) {
    void (qbFormularL452::*setzeL452)(RWCString) = &qbFormularL452::RefTyp;
    void (qbFormularL453::*setzeL453)(const RWCString&) = &qbFormularL453::RefTyp;
    qbFormularL452 a;
    (a.*setzeL452)("Porsche 911");
    qbFormularL453 b;
    (b.*setzeL453)("RC 8");
    EXPECT_EQ(a.RefTyp().std(), "Porsche 911");
    EXPECT_EQ(b.RefTyp().std(), "RC 8");
}

TEST(L452, HillClimbHasTheFlagBergrennenJNAndTheBlockBergstrecken_Quirk) {
    qbFormularL452 f;
    f.RefBergrennenJN(1);
    f.RefBergstreckenBisher(2);
    f.RefBergstreckenGeplant(3);
    f.RefBergstreckenBezeichnung("Schauinsland");
    f.RefPlazierungen("2.");
    f.RefKW("220");
    f.RefHubraum("3600");
    CQBXMLdata knoten("L452");
    f.XMLgetDat(knoten);
    int bisher = 0;
    RWCString kw;
    EXPECT_TRUE(knoten.Listvalue("BergstreckenBisher", bisher));
    EXPECT_EQ(bisher, 2);
    EXPECT_TRUE(knoten.Listvalue("KW", kw));
    EXPECT_EQ(kw.std(), "220");
    EXPECT_FALSE(knoten.Listvalue("BergrennenBisher", bisher));
}

TEST(L453, HillClimbIsBergrennenThroughoutAndRisikoMitversichernJNHasASmallV_Quirk) {
    qbFormularL453 f;
    f.RefBergrennenBisher(2);
    f.RefRisikoMitversichernJN(0);
    f.RefZylinder("2");
    CQBXMLdata knoten("L453");
    f.XMLgetDat(knoten);
    int bisher = 0;
    unsigned char risiko = 0xff;
    EXPECT_TRUE(knoten.Listvalue("BergrennenBisher", bisher));
    EXPECT_EQ(bisher, 2);
    EXPECT_TRUE(knoten.Listvalue("RisikoMitversichernJN", risiko));
    EXPECT_EQ(risiko, 0);
}
