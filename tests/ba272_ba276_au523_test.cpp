// The membership applications BA272 and BA276 (Flags at 0, no stamp, the date with points, BA272's XML
// typed as a BA276) and the supplement AU523 with its two persons, stored on an RWFile only.
#include "clerical/qbFormularAU523.h"
#include "clerical/qbFormularBA272.h"
#include "clerical/qbFormularBA276.h"
#include "qballg/CQBXMLdata.h"
#include "sport/qbFormularL440.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace qbtest;

namespace {

qbPerson person(const char* name, const char* beruf) {
    qbPerson p;
    p.RefGebDat("15011975");
    p.RefBeruf(beruf);
    qbAdressDaten a;
    a.RefName(name);
    a.RefOrt("Regensburg");
    a.RefTelefon("0941 1");
    p.RefAdressDaten(&a);
    return p;
}

qbFormularAU523 gefuelltesAU523() {
    qbFormularAU523 f;
    f.RefPerson1(person("Muster", "Lehrerin"));
    f.RefBezug1("Ehefrau");
    f.RefPerson2(person("Muster", "Sch\xFCler"));
    f.RefBezug2("Sohn");
    f.RefPersonenKennung("VP2");
    return f;
}

// A person's record as the fixture writer writes it: its fourteen texts.
AltSatz& personSatz(AltSatz& s, const qbPerson& p) {
    const qbAdressDaten& a = p.RefAdressDaten();
    s.text(p.RefGebDat().std()).text(p.RefGeschlecht().std()).text(p.RefBeruf().std());
    for (const RWCString* t :
         {&a.RefAnrede(), &a.RefTitel(), &a.RefVorname(), &a.RefName(), &a.RefStrasse(), &a.RefPLZ(),
          &a.RefOrt(), &a.RefLand(), &a.RefTelefon(), &a.RefTelefax(), &a.RefEMail()})
        s.text(t->std());
    return s;
}

class MitgliedStrom : public ::testing::TestWithParam<Strom> {};
class MitgliedVirtuell : public ::testing::TestWithParam<Strom> {};

// A record of every field of the class, of that version, read on the stream kind: every field read, the
// reader at the record's end, the version kept.
template <class F>
void pruefeSatzAllerFelder(const char* version, const char* nummer, Strom art) {
    F erwartet;
    Satz s(erwartet, F::felder());
    s.kopf(version, nummer, "Antrag", 1, "VP1");
    for (const qbFeld& z : F::felder())
        s.eigen(z.name);
    bool genauAmEnde = false;
    const F gelesen = s.satz().template lies<F>(art, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
    erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &F::felder()});
}

} // namespace

// ---- BA272 and BA276

TEST(BA272, NewApplicationHasItsFlagsAtZeroWhileAnotherFamilyHasThemAt0xff) {
    const qbFormularBA272 f;
    EXPECT_EQ(f.RefVeroeffentlichenJN(), 0);
    for (const qbFeld& z : qbFormularBA272::felder())
        if (z.art == qbArt::Flag) {
            EXPECT_EQ(wert(z, f), "Flag 0") << z.name;
        }
    EXPECT_EQ(qbFormularL440().RefFreizeitsportJN(), 0xff);
    const qbFormularBA276 g;
    for (const qbFeld& z : qbFormularBA276::felder())
        if (z.art == qbArt::Flag) {
            EXPECT_EQ(wert(z, g), "Flag 0") << z.name;
        }
}

TEST(BA272, ConstructorsSetTheHeaders) {
    const qbFormularBA272 f;
    EXPECT_EQ(f.RefVersion(), "12.2001");
    EXPECT_EQ(f.RefDruckstueckNummer(), "BA272");
    EXPECT_EQ(f.RefDruckstueckName(), "UFB-UMU-Aufnahmeantrag");
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    const qbFormularBA276 g;
    EXPECT_EQ(g.RefVersion(), "05.2002");
    EXPECT_EQ(g.RefDruckstueckNummer(), "BA276");
    EXPECT_EQ(g.RefDruckstueckName(), "BAF-Aufnahmeantrag");
    EXPECT_EQ(g.RefSeitenanzahl(), 1);
    EXPECT_EQ(g.RefPersonenKennung(), "VN");
}

TEST(BA276, GebdatMitPktLeavesAShortTextAndPointsALongOne) {
    qbFormularBA276 f;
    f.RefGebdat("0102");
    EXPECT_EQ(f.RefGebdatMitPkt(), "0102");
    f.RefGebdat("01021970");
    EXPECT_EQ(f.RefGebdatMitPkt(), "01.02.1970");
    qbFormularBA272 g;
    g.RefGebdat1("01021970");
    g.RefGebdat2("0102");
    EXPECT_EQ(g.RefGebdat1mitPkt(), "01.02.1970");
    EXPECT_EQ(g.RefGebdat2mitPkt(), "0102");
}

TEST(BA272, GebdatMitPktOnATextWithPointsInsertsMore_Quirk) {
    qbFormularBA272 f;
    f.RefGebdat1("01.02.1970");
    EXPECT_EQ(f.RefGebdat1mitPkt(), "01..0.2.1970");
    EXPECT_EQ(f.RefGebdat1(), "01.02.1970");
}

TEST_P(MitgliedStrom, SaveWritesNoStampAndARestoredApplicationKeepsItsVersion_Quirk) {
    qbFormularBA272 f;
    fuelleAlle(f, {&qbFormularBA272::felder()});
    f.RefVersion("11.2001");
    qbFormularBA272 zurueck;
    rundreise(f, zurueck, GetParam());
    EXPECT_EQ(f.RefVersion(), "11.2001");
    erwarteGleicheFelder(f, zurueck, {&kopfTabelle(), &qbFormularBA272::felder()});
    qbFormularBA276 g;
    fuelleAlle(g, {&qbFormularBA276::felder()});
    g.RefVersion("01.2002");
    qbFormularBA276 gZurueck;
    rundreise(g, gZurueck, GetParam());
    EXPECT_EQ(gZurueck.RefVersion(), "01.2002");
    erwarteGleicheFelder(g, gZurueck, {&kopfTabelle(), &qbFormularBA276::felder()});
}

TEST_P(MitgliedStrom, OldRecordsReadEveryFieldBehindTheHeader) {
    pruefeSatzAllerFelder<qbFormularBA272>("10.1999", "BA272", GetParam());
    pruefeSatzAllerFelder<qbFormularBA272>("12.2001", "BA272", GetParam());
    pruefeSatzAllerFelder<qbFormularBA276>("10.1999", "BA276", GetParam());
    pruefeSatzAllerFelder<qbFormularBA276>("05.2002", "BA276", GetParam());
}
INSTANTIATE_TEST_SUITE_P(JederStrom, MitgliedStrom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(BA276, SavedRecordIsTheHeaderAndTheTableInOrder) {
    qbFormularBA276 f;
    f.RefMonat("05");
    f.RefVeroeffentlichenJN(1);
    f.RefInstitutOrt("Regensburg");
    const Bytes erwartet = AltSatz::kopf("05.2002", "BA276", "BAF-Aufnahmeantrag", 1, "VN")
                               .text("05")
                               .texte(16)
                               .flag(1)
                               .texte(3)
                               .flags(3, 0)
                               .texte(4)
                               .text("Regensburg")
                               .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
}

TEST(BA272, BinaryStoreSizeAdds147AndBA276Adds104AndTheTextLengths) {
    qbFormularBA272 f;
    f.RefOrt("Regensburg");
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize() + 147 + 10);
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    qbFormularBA276 g;
    g.RefOrt("Passau");
    EXPECT_EQ(g.binaryStoreSize(), qbFormular(g).binaryStoreSize() + 104 + 6);
    EXPECT_EQ(g.binaryStoreSize(), gespeichert(g).size());
}

TEST(BA272, XmlGetTypesTheNodeAsBA276WhichItsOwnPutRefuses_Quirk) {
    qbFormularBA272 f;
    f.RefSektion("Nord");
    f.RefIHKJN(1);
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularBA276");
    std::vector<std::string> erwartet = {""};
    for (const qbFeld& z : qbFormularBA272::felder())
        erwartet.push_back(z.name);
    EXPECT_EQ(eintragsNamen(knoten), erwartet);
    qbFormularBA272 ziel;
    const CQBXMLdata vorher(knoten);
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    EXPECT_EQ(ziel.RefSektion(), "");
    EXPECT_EQ(ziel.RefIHKJN(), 0);
    qbFormularBA276 anderer; // the other application takes the node: the keys it shares
    anderer.XMLputDat(knoten);
    EXPECT_EQ(anderer.RefSektion(), "Nord");
    knoten.Typ("qbFormularBA272");
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefSektion(), "Nord");
    EXPECT_EQ(ziel.RefIHKJN(), 1);
}

TEST(BA276, XmlRoundTripsEveryField) {
    qbFormularBA276 f;
    fuelleAlle(f, {&qbFormularBA276::felder()});
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularBA276");
    qbFormularBA276 ziel;
    ziel.XMLputDat(knoten);
    erwarteGleicheFelder(f, ziel, {&qbFormularBA276::felder()});
}

TEST(BA272, LoescheClearsTheFieldsAndPutsVNBackButKeepsTheVersion) {
    qbFormularBA272 f;
    fuelleAlle(f, {&qbFormularBA272::felder()});
    f.RefVersion("03.2001");
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefVersion(), "03.2001");
    erwarteGleicheFelder(qbFormularBA272(), f, {&qbFormularBA272::felder()});
    qbFormularBA276 g;
    fuelleAlle(g, {&qbFormularBA276::felder()});
    g.RefDruckstueckName("alt");
    g.RefPersonenKennung("");
    g.loesche();
    EXPECT_EQ(g.RefPersonenKennung(), "VN");
    EXPECT_EQ(g.RefDruckstueckName(), "alt");
    erwarteGleicheFelder(qbFormularBA276(), g, {&qbFormularBA276::felder()});
}

TEST(BA272, CopyAndAssignmentCarryEveryField) {
    qbFormularBA272 f;
    fuelleAlle(f, {&qbFormularBA272::felder()});
    const qbFormularBA272 kopie(f);
    erwarteGleicheFelder(f, kopie, {&kopfTabelle(), &qbFormularBA272::felder()});
    qbFormularBA272 zugewiesen;
    zugewiesen = f;
    erwarteGleicheFelder(f, zugewiesen, {&kopfTabelle(), &qbFormularBA272::felder()});
}

// ---- AU523

TEST(AU523, ConstructorSetsTheHeaderAndDefaultPersons) {
    qbFormularAU523 f;
    EXPECT_EQ(f.RefVersion(), "07.2007");
    EXPECT_EQ(f.RefDruckstueckNummer(), "AU523");
    EXPECT_EQ(f.RefDruckstueckName(), "Beiblatt ProAktiv");
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
    EXPECT_EQ(f.RefPerson1(), qbPerson());
    EXPECT_EQ(f.RefPerson2(), qbPerson());
    EXPECT_EQ(f.RefBezug1(), "");
}

TEST(AU523, RecordOnRWFileIsTheHeaderThenEachPersonsRecordAndItsBezug) {
    qbFormularAU523 f = gefuelltesAU523();
    AltSatz s = AltSatz::kopf("07.2007", "AU523", "Beiblatt ProAktiv", 1, "VP2");
    personSatz(s, f.RefPerson1()).text("Ehefrau");
    personSatz(s, f.RefPerson2()).text("Sohn");
    EXPECT_EQ(gespeichert(f), s.bytes());
}

TEST(AU523, SaveNeverStampsSoANewFormIsStoredAs07_2007AndAnOldOneKeepsItsVersion_Quirk) {
    qbFormularAU523 f;
    const Bytes neu = gespeichert(f);
    EXPECT_EQ(f.RefVersion(), "07.2007");
    EXPECT_EQ(std::string(neu.begin() + 4, neu.begin() + 11), "07.2007");
    AltSatz s = AltSatz::kopf("07.2004", "AU523", "Beiblatt ProAktiv", 1, "VP1");
    personSatz(s, qbPerson()).text("");
    personSatz(s, qbPerson()).text("");
    qbFormularAU523 alt = s.lies<qbFormularAU523>(Strom::Datei);
    EXPECT_EQ(gespeichert(alt), s.bytes());
    EXPECT_EQ(alt.RefVersion(), "07.2004");
}

TEST(AU523, OldRecordOnRWFileReadsBothPersonsAndEndsAtItsEnd) {
    const qbFormularAU523 muster = gefuelltesAU523();
    qbFormularAU523 m = muster;
    for (const char* version : {"10.1999", "07.2004"}) {
        AltSatz s = AltSatz::kopf(version, "AU523", "Beiblatt ProAktiv", 1, "VP2");
        personSatz(s, m.RefPerson1()).text("Ehefrau");
        personSatz(s, m.RefPerson2()).text("Sohn");
        bool genauAmEnde = false;
        qbFormularAU523 f = s.lies<qbFormularAU523>(Strom::Datei, &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << version;
        EXPECT_EQ(f.RefVersion(), version);
        EXPECT_EQ(f.RefPersonenKennung(), "VP2");
        EXPECT_EQ(f.RefPerson1(), m.RefPerson1());
        EXPECT_EQ(f.RefBezug1(), "Ehefrau");
        EXPECT_EQ(f.RefPerson2(), m.RefPerson2());
        EXPECT_EQ(f.RefBezug2(), "Sohn");
    }
}

// No virtual-stream operations of its own: the header alone travels there, unstamped, and comes back.
TEST_P(MitgliedVirtuell, AU523OnAVirtualStreamIsItsHeaderAlone) {
    const AltSatz kopf = AltSatz::kopf("07.2004", "AU523", "Beiblatt ProAktiv", 1, "VP2");
    bool genauAmEnde = false;
    qbFormularAU523 f = kopf.lies<qbFormularAU523>(GetParam(), &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefVersion(), "07.2004");
    EXPECT_EQ(f.RefPersonenKennung(), "VP2");
    EXPECT_EQ(f.RefPerson1(), qbPerson());
    qbFormularAU523 voll = gefuelltesAU523();
    qbFormularAU523 zurueck;
    rundreise(voll, zurueck, GetParam());
    EXPECT_EQ(zurueck.RefPersonenKennung(), "VP2");
    EXPECT_EQ(zurueck.RefPerson1(), qbPerson());
    EXPECT_EQ(zurueck.RefBezug1(), "");
}

TEST(AU523, BinaryStoreSizeIsTheHeadersAlone_Quirk) {
    const qbFormularAU523 f = gefuelltesAU523();
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize());
}

TEST(AU523, XmlRoundTripGivesDefaultPersonsAndEmptyBezugTexts) {
    qbFormularAU523 f = gefuelltesAU523();
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularAU523");
    EXPECT_EQ(eintragsNamen(knoten), std::vector<std::string>{""});
    qbFormularAU523 zurueck;
    zurueck.XMLputDat(knoten);
    EXPECT_EQ(zurueck.RefPersonenKennung(), "VP2");
    EXPECT_EQ(zurueck.RefPerson1(), qbPerson());
    EXPECT_EQ(zurueck.RefPerson2(), qbPerson());
    EXPECT_EQ(zurueck.RefBezug1(), "");
    EXPECT_EQ(zurueck.RefBezug2(), "");
}

TEST(AU523, CopyConstructorAndAssignmentKeepPersonsAndBezugTexts) {
    qbFormularAU523 f = gefuelltesAU523();
    qbFormularAU523 kopie(f);
    EXPECT_EQ(kopie.RefPerson1(), f.RefPerson1());
    EXPECT_EQ(kopie.RefPerson2(), f.RefPerson2());
    EXPECT_EQ(kopie.RefBezug1(), "Ehefrau");
    EXPECT_EQ(kopie.RefBezug2(), "Sohn");
    EXPECT_EQ(kopie.RefPersonenKennung(), "VP2");
    qbFormularAU523 zugewiesen;
    zugewiesen = f;
    EXPECT_EQ(zugewiesen.RefPerson2(), f.RefPerson2());
    EXPECT_EQ(zugewiesen.RefBezug2(), "Sohn");
}

TEST(AU523, LoescheResetsBothPersonsAndPutsVP1Back) {
    qbFormularAU523 f = gefuelltesAU523();
    f.RefVersion("07.2004");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
    EXPECT_EQ(f.RefVersion(), "07.2004");
    EXPECT_EQ(f.RefPerson1(), qbPerson());
    EXPECT_EQ(f.RefPerson2(), qbPerson());
    EXPECT_EQ(f.RefBezug1(), "");
    EXPECT_EQ(f.RefBezug2(), "");
}

INSTANTIATE_TEST_SUITE_P(BeideVirtuellen, MitgliedVirtuell, ::testing::Values(Strom::Binaer, Strom::Portabel),
                         stromName);

TEST(BA272, SavedRecordIsTheHeaderAndTheTableInOrder) {
    qbFormularBA272 f;
    f.RefMonat("12");
    f.RefIHKJN(1);
    f.RefKammerOrt("Passau");
    const Bytes erwartet = AltSatz::kopf("12.2001", "BA272", "UFB-UMU-Aufnahmeantrag", 1, "VN")
                               .text("12")
                               .texte(24)
                               .flag(0)
                               .flag(1)
                               .text("")
                               .flag(0)
                               .text("")
                               .flag(0)
                               .text("")
                               .text("Passau")
                               .text("")
                               .flags(3, 0)
                               .texte(5)
                               .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
}
