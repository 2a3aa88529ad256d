// qbFormularL450 (mountain sports) and qbFormularL451 (diving): the two texts the mountain form leaves out
// of its size, the diving form's version test on its last field, its Tauchlehrer Flags that start at 0,
// its XML order and its size constant two below the record.
#include "sport/qbFormularL450.h"
#include "sport/qbFormularL451.h"
#include "core/qbFormularListe.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "sport_felder.h"
#include "test_util.h"

#include <string>
#include <type_traits>
#include <vector>

using namespace qbtest;

namespace {

const qbFeldTabelle& l451() { return qbFormularL451::felder(); }

// A diving record of that version with a value of its own in every field it holds.
AltSatz tauchSatz(qbFormularL451& erwartet, const std::string& version, bool mitApnoe) {
    Satz satz(erwartet, l451());
    satz.kopf(version, "L451", "Tauchen", 2, "VP2");
    for (const SportFeld& f : kL451Felder)
        if (mitApnoe || std::string(f.name) != "ApnoetauchenJN") satz.eigen(f.name);
    return satz.satz();
}

const Strom kStroeme[] = {Strom::Datei, Strom::Binaer, Strom::Portabel};

} // namespace

// ---- Mountain sports

TEST(L450, BinaryStoreSizeStaysBelowTheRecordByTheLengthOfMitgliedBergsportvereinSeit_Quirk) {
    qbFormularL450 f;
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    f.RefMitgliedBergsportvereinSeit("1987");
    EXPECT_EQ(f.binaryStoreSize() + 4, gespeichert(f).size());
    f.RefExpeditionenHaeufigkeit("j\xE4hrlich");
    EXPECT_EQ(f.binaryStoreSize() + 4 + 8, gespeichert(f).size());
    f.RefAusbildung("DAV");
    EXPECT_EQ(f.binaryStoreSize() + 4 + 8, gespeichert(f).size());
}

TEST(L450, RisikoMitVersichernJNHasACapitalV_Quirk) {
    qbFormularL450 f;
    f.RefRisikoMitVersichernJN(1);
    f.RefKletternGrad(7);
    CQBXMLdata knoten("L450");
    f.XMLgetDat(knoten);
    unsigned char risiko = 0;
    EXPECT_TRUE(knoten.Listvalue("RisikoMitVersichernJN", risiko));
    EXPECT_EQ(risiko, 1);
    EXPECT_FALSE(knoten.Listvalue("RisikoMitversichernJN", risiko));
}

// A replacing piece: a second L450 of the same person takes the place of the first.
TEST(L450, TwoNeuesFormularWithAnL450OfTheSamePersonGiveOneElement) {
    qbFormularListe liste;
    qbFormularL450 erste, zweite, andere;
    erste.RefBeginn("1985");
    zweite.RefBeginn("1990");
    andere.RefPersonenKennung("VP2");
    liste.neuesFormular(erste);
    liste.neuesFormular(andere);
    liste.neuesFormular(zweite);
    ASSERT_EQ(liste.AnzahlFormulare(), 2u);
    qbFormularL450 f;
    EXPECT_EQ(liste.liefereFormular("L450", f, 0), 1u);
    EXPECT_EQ(f.RefBeginn().std(), "1990");
    EXPECT_EQ(liste.liefereFormularAnPos(0)->RefPersonenKennung().std(), "VP2");
}

// ---- Diving

TEST(L451, RecordWithTheKey200503IsReadWithoutApnoetauchenJN) {
    for (Strom strom : kStroeme) {
        SCOPED_TRACE(name(strom));
        qbFormularL451 erwartet;
        const AltSatz satz = tauchSatz(erwartet, "03.2005", false);
        bool amEnde = false;
        const auto f = satz.lies<qbFormularL451>(strom, &amEnde);
        EXPECT_TRUE(amEnde) << "the reader did not stop at the record's end";
        EXPECT_EQ(f.RefApnoetauchenJN(), 0xff);
        erwarteGleicheFelder(erwartet, f, {&qbFormular::felder(), &l451()});
    }
}

TEST(L451, RecordStoredAs04_2005ReadsApnoetauchenJNAsItsLastByte) {
    for (Strom strom : kStroeme) {
        SCOPED_TRACE(name(strom));
        qbFormularL451 erwartet;
        const AltSatz satz = tauchSatz(erwartet, "04.2005", true);
        ASSERT_EQ(satz.werte().back().art, AltSatz::Art::Flag);
        bool amEnde = false;
        const auto f = satz.lies<qbFormularL451>(strom, &amEnde);
        EXPECT_TRUE(amEnde);
        EXPECT_EQ(f.RefApnoetauchenJN(), static_cast<unsigned char>(satz.werte().back().zahl));
        erwarteGleicheFelder(erwartet, f, {&qbFormular::felder(), &l451()});
    }
}

// The field stands as it stood: an older record read into a filled object leaves it.
TEST(L451, OlderRecordLeavesApnoetauchenJNAsItStood) {
    qbFormularL451 erwartet;
    const AltSatz satz = tauchSatz(erwartet, "11.2001", false);
    qbFormularL451 f;
    f.RefApnoetauchenJN(1);
    satz.liesIn(f, Strom::Binaer);
    EXPECT_EQ(f.RefApnoetauchenJN(), 1);
    EXPECT_EQ(f.RefTauchlehrerBeruflich(), erwartet.RefTauchlehrerBeruflich());
}

TEST(L451, DefaultHasTheFourTauchlehrerFlagsAt0AndEveryOtherFlagAt0xff) {
    const qbFormularL451 f;
    EXPECT_EQ(f.RefTauchlehrerNein(), 0);
    EXPECT_EQ(f.RefTauchlehrerEhrenamtlich(), 0);
    EXPECT_EQ(f.RefTauchlehrerNebenberuflich(), 0);
    EXPECT_EQ(f.RefTauchlehrerBeruflich(), 0);
    int flags = 0;
    for (const qbFeld& z : l451())
        if (z.art == qbArt::Flag && std::string(z.name).rfind("Tauchlehrer", 0) != 0) {
            EXPECT_EQ(f.*z.mitglied.flag, 0xff) << z.name;
            ++flags;
        }
    EXPECT_EQ(flags, 39);
    EXPECT_EQ(f.RefJahr1(), 0);
    EXPECT_EQ(f.RefStunden3(), 0);
}

TEST(L451, XmlHasApnoetauchenJNBetweenSchnorchelnJNAndSporttauchenJNBothWays_Quirk) {
    qbFormularL451 f;
    fuelleAlle(f, {&l451()});
    CQBXMLdata knoten("L451");
    f.XMLgetDat(knoten);
    const std::vector<std::string> namen = eintragsNamen(knoten);
    ASSERT_EQ(namen.size(), 59u);
    EXPECT_EQ(namen[6], "SchnorchelnJN");
    EXPECT_EQ(namen[7], "ApnoetauchenJN");
    EXPECT_EQ(namen[8], "SporttauchenJN");
    EXPECT_EQ(namen.back(), "TauchlehrerBeruflich");
    qbFormularL451 ziel;
    ziel.XMLputDat(knoten);
    erwarteGleicheFelder(f, ziel, {&l451()});
}

TEST(L451, BinaryStoreSizeIs121TwoBelowThe123TheRecordHolds_Quirk) {
    qbFormularL451 f;
    f.RefPersonenKennung("");
    f.RefVersion("");
    f.RefDruckstueckName("");
    f.RefDruckstueckNummer("");
    EXPECT_EQ(f.binaryStoreSize(), 121u);
    f.RefKrankheit("Asthma");
    EXPECT_EQ(f.binaryStoreSize(), 127u);
    EXPECT_EQ(gespeichert(f).size(), 123u + 6u + 7u); // the stamp writes "04.2005" into Version
    EXPECT_EQ(f.binaryStoreSize(), 121u + 6u + 7u);
}
