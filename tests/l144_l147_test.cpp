// qbFormularL144 (pregnancy) and qbFormularL147 (blood pressure), the two one-page health declarations:
// one layout of their own behind the common base, own ArztAdresse (and Beginn) beside the common ones,
// the stamp "05.2002", their size figures and their XML.
#include "health/qbFormularAllgGesu.h"
#include "health/qbFormularL144.h"
#include "health/qbFormularL147.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

// The seventeen common fields of a default health form on RWFile.
Bytes gesuStandard() {
    return cat({text(""), text(""), text(""), int32(-1), text(""), ein(0xff), ein(0xff), text(""), text(""),
                text(""), text(""), text(""), ein(0xff), text(""), ein(0xff), text(""), text("")});
}

const qbFeldTabelle& l144Tabelle() { return qbFormularL144::felder(); }
const qbFeldTabelle& l147Tabelle() { return qbFormularL147::felder(); }

const char* const kL144Name = "Erkl\xE4rung Schwangerschaft";
const char* const kL147Name = "Erkl\xE4rung Blutdruckkontrolle";

// The RWFile bytes of the header of a current record.
Bytes kopfBytes(const char* version, const char* nummer, const char* name, int seiten, const char* person) {
    return cat({text(version), text(nummer), text(name), int32(seiten), text(person)});
}

template <class F>
class AltSatzTest : public ::testing::TestWithParam<Strom> {
protected:
    void pruefe(const Satz& s, const F& erwartet) {
        bool genauAmEnde = false;
        const F gelesen = s.satz().template lies<F>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    }
};
class L144AltSatz : public AltSatzTest<qbFormularL144> {};
class L147AltSatz : public AltSatzTest<qbFormularL147> {};
class L144L147Strom : public ::testing::TestWithParam<Strom> {};

} // namespace

// ---- Construction

TEST(L144, ConstructorSetsTheHeaderOfTheClass) {
    qbFormularL144 f;
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
    EXPECT_EQ(f.RefDruckstueckNummer().std(), "L144");
    EXPECT_EQ(f.RefDruckstueckName().std(), kL144Name);
    EXPECT_EQ(f.RefSeitenanzahl(), 1);
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
}

TEST(L147, ConstructorSetsTheHeaderOfTheClassWithPersonVN) {
    qbFormularL147 f;
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
    EXPECT_EQ(f.RefDruckstueckNummer().std(), "L147");
    EXPECT_EQ(f.RefDruckstueckName().std(), kL147Name);
    EXPECT_EQ(f.RefSeitenanzahl(), 1);
    EXPECT_EQ(f.RefPersonenKennung().std(), "VN");
}

TEST(L144, SchwangerschaftsmonatDefaultsToZeroWhileTheCommonDauerStaysMinusOne) {
    qbFormularL144 f;
    EXPECT_EQ(f.RefSchwangerschaftsmonat(), 0);
    EXPECT_EQ(f.RefDauer(), -1);
    EXPECT_EQ(f.RefSchwangerschaftJN(), 0xff);
    EXPECT_EQ(f.RefKomplikationenJN(), 0xff);
    EXPECT_EQ(f.RefFruehereKomplikationenJN(), 0xff);
    EXPECT_TRUE(f.RefKomplikationen().isNull());
    EXPECT_TRUE(f.RefArztAdresse().isNull());
    EXPECT_TRUE(f.RefFruehereKomplikationen().isNull());
}

TEST(L147, DefaultsAreEmptyTextsAndTheCommonDauerMinusOne) {
    qbFormularL147 f;
    EXPECT_TRUE(f.RefArztAdresse().isNull());
    EXPECT_TRUE(f.RefBeginn().isNull());
    EXPECT_TRUE(f.RefMedikamente().isNull());
    EXPECT_EQ(f.RefDauer(), -1);
    EXPECT_EQ(f.RefKrankenhausJN(), 0xff);
}

TEST(L144, AccessorsReachTheOwnFields) {
    qbFormularL144 f;
    f.RefSchwangerschaftJN(1);
    f.RefSchwangerschaftsmonat(7);
    f.RefKomplikationenJN(0);
    f.RefKomplikationen("keine");
    f.RefFruehereKomplikationenJN(1);
    f.RefFruehereKomplikationen("Fr\xFChgeburt");
    EXPECT_EQ(f.RefSchwangerschaftJN(), 1);
    EXPECT_EQ(f.RefSchwangerschaftsmonat(), 7);
    EXPECT_EQ(f.RefKomplikationenJN(), 0);
    EXPECT_EQ(f.RefKomplikationen().std(), "keine");
    EXPECT_EQ(f.RefFruehereKomplikationenJN(), 1);
    EXPECT_EQ(f.RefFruehereKomplikationen().std(), "Fr\xFChgeburt");
}

TEST(L144, OwnArztAdresseIsAFieldBesideTheCommonOneAndHidesIt_Quirk) {
    qbFormularL144 f;
    f.RefArztAdresse("eigen");
    EXPECT_EQ(f.RefArztAdresse().std(), "eigen");
    EXPECT_TRUE(f.qbFormularAllgGesu::RefArztAdresse().isNull());
    f.qbFormularAllgGesu::RefArztAdresse("gemeinsam");
    EXPECT_EQ(f.RefArztAdresse().std(), "eigen");
    EXPECT_EQ(f.qbFormularAllgGesu::RefArztAdresse().std(), "gemeinsam");
}

TEST(L147, OwnArztAdresseAndBeginnAreFieldsBesideTheCommonOnesAndHideThem_Quirk) {
    qbFormularL147 f;
    f.RefArztAdresse("eigen");
    f.RefBeginn("2001");
    f.RefMedikamente("Betablocker");
    EXPECT_TRUE(f.qbFormularAllgGesu::RefArztAdresse().isNull());
    EXPECT_TRUE(f.qbFormularAllgGesu::RefBeginn().isNull());
    f.qbFormularAllgGesu::RefArztAdresse("gemeinsam");
    f.qbFormularAllgGesu::RefBeginn("1999");
    EXPECT_EQ(f.RefArztAdresse().std(), "eigen");
    EXPECT_EQ(f.RefBeginn().std(), "2001");
    EXPECT_EQ(f.RefMedikamente().std(), "Betablocker");
    EXPECT_EQ(f.qbFormularAllgGesu::RefArztAdresse().std(), "gemeinsam");
    EXPECT_EQ(f.qbFormularAllgGesu::RefBeginn().std(), "1999");
}

// ---- Saving

TEST(L144, DefaultSavesHeaderCommonFieldsAndOwnFieldsInTableOrder) {
    qbFormularL144 f;
    const Bytes erwartet = cat({kopfBytes("05.2002", "L144", kL144Name, 1, "VP1"), gesuStandard(), ein(0xff),
                                int32(0), ein(0xff), text(""), text(""), ein(0xff), text("")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L144, SaveStampsTheVersionAndWritesBothArztAdressen_Quirk) {
    qbFormularL144 f;
    f.RefVersion("01.2000");
    f.RefPersonenKennung("VP2");
    f.RefKrankheit("Schwangerschaft");
    f.qbFormularAllgGesu::RefArztAdresse("Dr. A");
    f.RefSchwangerschaftJN(1);
    f.RefSchwangerschaftsmonat(5);
    f.RefKomplikationenJN(0);
    f.RefKomplikationen("keine");
    f.RefArztAdresse("Dr. B\xE4r");
    f.RefFruehereKomplikationenJN(1);
    f.RefFruehereKomplikationen("Fr\xFChgeburt");
    const Bytes erwartet = cat({kopfBytes("05.2002", "L144", kL144Name, 1, "VP2"),
                                text("Schwangerschaft"),
                                text(""),
                                text(""),
                                int32(-1),
                                text("Dr. A"),
                                ein(0xff),
                                ein(0xff),
                                text(""),
                                text(""),
                                text(""),
                                text(""),
                                text(""),
                                ein(0xff),
                                text(""),
                                ein(0xff),
                                text(""),
                                text(""),
                                ein(1),
                                int32(5),
                                ein(0),
                                text("keine"),
                                text("Dr. B\xE4r"),
                                ein(1),
                                text("Fr\xFChgeburt")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
}

TEST(L147, SaveStampsTheVersionAndWritesCommonAndOwnArztAdresseAndBeginn_Quirk) {
    qbFormularL147 f;
    f.RefVersion("10.1999");
    f.qbFormularAllgGesu::RefBeginn("1999");
    f.qbFormularAllgGesu::RefArztAdresse("Dr. A");
    f.RefArztAdresse("Dr. B\xE4r");
    f.RefBeginn("2001");
    f.RefMedikamente("Betablocker");
    const Bytes erwartet = cat({kopfBytes("05.2002", "L147", kL147Name, 1, "VN"),
                                text(""),
                                text(""),
                                text("1999"),
                                int32(-1),
                                text("Dr. A"),
                                ein(0xff),
                                ein(0xff),
                                text(""),
                                text(""),
                                text(""),
                                text(""),
                                text(""),
                                ein(0xff),
                                text(""),
                                ein(0xff),
                                text(""),
                                text(""),
                                text("Dr. B\xE4r"),
                                text("2001"),
                                text("Betablocker")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
}

TEST(L144, SavingARestoredRecordOf10_1999Stamps05_2002AndWritesTheCurrentLayout) {
    const AltSatz alt = AltSatz::kopf("10.1999", "L144", "Schwanger", 9, "VP2")
                            .flag(7)
                            .ganz(3)
                            .text("weg")
                            .flag(1)
                            .ganz(6)
                            .flag(0)
                            .text("keine")
                            .text("Dr. B\xE4r")
                            .flag(1)
                            .text("Fr\xFChgeburt");
    const auto f = alt.lies<qbFormularL144>(Strom::Datei);
    EXPECT_EQ(f.RefVersion().std(), "10.1999");
    const Bytes erwartet =
        cat({kopfBytes("05.2002", "L144", "Schwanger", 1, "VP2"), gesuStandard(), ein(1), int32(6), ein(0),
             text("keine"), text("Dr. B\xE4r"), ein(1), text("Fr\xFChgeburt")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
}

TEST(L147, SavingARestoredRecordOf10_1999Stamps05_2002AndWritesTheCurrentLayout) {
    const AltSatz alt = AltSatz::kopf("10.1999", "L147", "Blutdruck", 9, "VP1")
                            .flag(7)
                            .ganz(3)
                            .text("weg")
                            .text("Dr. B\xE4r")
                            .text("2001")
                            .text("Betablocker");
    const auto f = alt.lies<qbFormularL147>(Strom::Datei);
    const Bytes erwartet = cat({kopfBytes("05.2002", "L147", "Blutdruck", 1, "VP1"), gesuStandard(),
                                text("Dr. B\xE4r"), text("2001"), text("Betablocker")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
}

TEST_P(L144L147Strom, FilledL144RoundTripsAndIsStampedOnEveryStream) {
    qbFormularL144 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
    f.RefVersion("01.2000");
    qbFormularL144 gelesen;
    rundreise(f, gelesen, GetParam());
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
    erwarteGleicheFelder(f, gelesen, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
}

TEST_P(L144L147Strom, FilledL147RoundTripsAndIsStampedOnEveryStream) {
    qbFormularL147 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
    f.RefVersion("10.1999");
    qbFormularL147 gelesen;
    rundreise(f, gelesen, GetParam());
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
    erwarteGleicheFelder(f, gelesen, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L144L147Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- Size

TEST(L144, BinaryStoreSizeIsTheCommonFigurePlus19AndThreeTextLengths) {
    qbFormularL144 f;
    const RWspace kopf = 20 + 7 + 4 + std::strlen(kL144Name) + 3;
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 19);
    f.RefKomplikationen("keine");
    f.RefArztAdresse("Dr. B\xE4r");
    f.RefFruehereKomplikationen("Fr\xFChgeburt");
    f.RefKrankheit("Masern");
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 6 + 19 + 5 + 7 + 10);
}

TEST(L147, BinaryStoreSizeIsTheCommonFigurePlus12AndThreeTextLengths) {
    qbFormularL147 f;
    const RWspace kopf = 20 + 7 + 4 + std::strlen(kL147Name) + 2;
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 12);
    f.RefArztAdresse("Dr. B\xE4r");
    f.RefBeginn("2001");
    f.RefMedikamente("Betablocker");
    f.qbFormularAllgGesu::RefBeginn("1999");
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 4 + 12 + 7 + 4 + 11);
}

TEST(L144, BinaryStoreSizeIsTheSavedBytesLessTheCharactersOfAntwortZuFrage_Quirk) {
    qbFormularL144 f;
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
    f.RefVersion("05.2002");
    ASSERT_FALSE(f.RefAntwortZuFrage().isNull());
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() - f.RefAntwortZuFrage().length());
}

TEST(L147, BinaryStoreSizeIsTheSavedBytesLessTheCharactersOfAntwortZuFrage_Quirk) {
    qbFormularL147 f;
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
    f.RefVersion("05.2002");
    ASSERT_FALSE(f.RefAntwortZuFrage().isNull());
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() - f.RefAntwortZuFrage().length());
}

// ---- Copy, identity, reset

TEST(L144, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    qbFormularL144 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
    const qbFormularL144 kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()}, "copy: ");
    qbFormularL144 ziel;
    fuelleAlle(ziel, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()}, 300);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()}, "assignment: ");
    std::unique_ptr<RWCollectable> c(quelle.copy());
    EXPECT_EQ(c->isA(), qbFormularL144::classIsA());
    erwarteGleicheFelder(quelle, static_cast<const qbFormular&>(*c),
                         {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()}, "copy(): ");
}

TEST(L147, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    qbFormularL147 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
    const qbFormularL147 kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()}, "copy: ");
    qbFormularL147 ziel;
    fuelleAlle(ziel, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()}, 300);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()}, "assignment: ");
    std::unique_ptr<RWCollectable> neu(quelle.newSpecies());
    EXPECT_EQ(neu->isA(), qbFormularL147::classIsA());
    erwarteGleicheFelder(qbFormularL147(), static_cast<const qbFormular&>(*neu),
                         {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()}, "newSpecies(): ");
}

TEST(L144, LoescheResetsEverythingAndGivesBackVP1) {
    qbFormularL144 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    erwarteGleicheFelder(qbFormularL144(), f, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
}

TEST(L147, LoescheResetsEverythingAndGivesBackVN) {
    qbFormularL147 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), "VN");
    erwarteGleicheFelder(qbFormularL147(), f, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
}

// ---- XML

TEST(L144, XMLgetDatNestsTheCommonNodeWithTheHeaderInsideAndArztAdresseStandsAtTwoLevels) {
    qbFormularL144 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
    f.qbFormularAllgGesu::RefArztAdresse("gemeinsam");
    f.RefArztAdresse("eigen");
    CQBXMLdata knoten("L144");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL144");
    ASSERT_EQ(knoten.entryCount(), 8u);
    const CQBXMLdata& gemeinsam = *knoten.entryAt(0);
    EXPECT_TRUE(gemeinsam.isAdded());
    EXPECT_EQ(gemeinsam.Name().std(), "");
    EXPECT_EQ(gemeinsam.Typ().std(), "qbFormularAllgGesu");
    ASSERT_EQ(gemeinsam.entryCount(), 18u);
    const CQBXMLdata& kopf = *gemeinsam.entryAt(0);
    EXPECT_TRUE(kopf.isAdded());
    EXPECT_EQ(kopf.Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(kopf), kKopfSchluessel);
    std::vector<std::string> gesu = eintragsNamen(gemeinsam);
    gesu.erase(gesu.begin());
    EXPECT_EQ(gesu, kGesuSchluessel);
    std::vector<std::string> eigene = eintragsNamen(knoten);
    eigene.erase(eigene.begin());
    EXPECT_EQ(eigene, (std::vector<std::string>{"SchwangerschaftJN", "Schwangerschaftsmonat",
                                                "KomplikationenJN", "Komplikationen", "ArztAdresse",
                                                "FruehereKomplikationenJN", "FruehereKomplikationen"}));
    RWCString oben, innen;
    EXPECT_TRUE(knoten.Listvalue("ArztAdresse", oben));
    EXPECT_TRUE(gemeinsam.Listvalue("ArztAdresse", innen));
    EXPECT_EQ(oben.std(), "eigen");
    EXPECT_EQ(innen.std(), "gemeinsam");
    RWCString person;
    EXPECT_TRUE(kopf.Listvalue("PersonenKennung", person));
    EXPECT_EQ(person.std(), f.RefPersonenKennung().std());
}

TEST(L144, XMLputDatReadsOnlyTheOwnKeysNotTheCommonFieldsNorTheHeader) {
    qbFormularL144 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
    quelle.RefPersonenKennung("VP2");
    CQBXMLdata knoten("L144");
    quelle.XMLgetDat(knoten);
    qbFormularL144 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL144");
    erwarteGleicheFelder(quelle, ziel, {&l144Tabelle()});
    const qbFormularL144 frisch;
    erwarteGleicheFelder(frisch, ziel, {&kopfTabelle(), &gesuTabelle()});
}

TEST(L144, XMLputDatIgnoresANodeOfAnotherType) {
    qbFormularAllgGesu gesu;
    fuelleAlle(gesu, {&kopfTabelle(), &gesuTabelle()});
    CQBXMLdata knoten("Gesu");
    gesu.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Komplikationen", "fremd"));
    const CQBXMLdata vorher(knoten);
    qbFormularL144 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    erwarteGleicheFelder(qbFormularL144(), ziel, {&kopfTabelle(), &gesuTabelle(), &l144Tabelle()});
}

TEST(L147, XMLgetDatNestsOnlyTheHeaderAndHoldsItsOwnArztAdresseAndBeginn) {
    qbFormularL147 f;
    f.qbFormularAllgGesu::RefArztAdresse("gemeinsam");
    f.qbFormularAllgGesu::RefBeginn("1999");
    f.RefKrankheit("Hochdruck");
    f.RefArztAdresse("eigen");
    f.RefBeginn("2001");
    f.RefMedikamente("Betablocker");
    CQBXMLdata knoten("L147");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL147");
    ASSERT_EQ(knoten.entryCount(), 4u);
    const CQBXMLdata& kopf = *knoten.entryAt(0);
    EXPECT_TRUE(kopf.isAdded());
    EXPECT_EQ(kopf.Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(kopf), kKopfSchluessel);
    EXPECT_EQ(eintragsNamen(knoten), (std::vector<std::string>{"", "ArztAdresse", "Beginn", "Medikamente"}));
    RWCString s;
    EXPECT_TRUE(knoten.Listvalue("ArztAdresse", s));
    EXPECT_EQ(s.std(), "eigen");
    EXPECT_TRUE(knoten.Listvalue("Beginn", s));
    EXPECT_EQ(s.std(), "2001");
    EXPECT_FALSE(knoten.Listvalue("Krankheit", s));
}

TEST(L147, XMLputDatReadsOnlyTheOwnKeysNotTheCommonFieldsNorTheHeader) {
    qbFormularL147 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l147Tabelle()});
    quelle.RefPersonenKennung("VP2");
    CQBXMLdata knoten("L147");
    quelle.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Krankheit", "fremd"));
    knoten.List(CQBXMLdata("PersonenKennung", "VP1"));
    qbFormularL147 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL147");
    erwarteGleicheFelder(quelle, ziel, {&l147Tabelle()});
    erwarteGleicheFelder(qbFormularL147(), ziel, {&kopfTabelle(), &gesuTabelle()});
}

TEST(L147, XMLputDatIgnoresANodeOfAnotherType) {
    qbFormularL144 andere;
    andere.RefArztAdresse("fremd");
    CQBXMLdata knoten("L144");
    andere.XMLgetDat(knoten);
    const CQBXMLdata vorher(knoten);
    qbFormularL147 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    EXPECT_TRUE(ziel.RefArztAdresse().isNull());
}

// ---- Legacy records on every stream kind

TEST_P(L144AltSatz, Record10_1999LeavesTheCommonFieldsAndConsumesTheTripleThenReadsAllOwnFields_Quirk) {
    qbFormularL144 erwartet;
    Satz s(erwartet, l144Tabelle());
    s.kopf("10.1999", "L144", kL144Name, 4, "VP2").tripel();
    for (const char* feld :
         {"SchwangerschaftJN", "Schwangerschaftsmonat", "KomplikationenJN", "Komplikationen", "ArztAdresse",
          "FruehereKomplikationenJN", "FruehereKomplikationen"})
        s.eigen(feld);
    pruefe(s, erwartet);
}

TEST_P(L144AltSatz, Record05_2002HoldsHeaderAllCommonFieldsAndAllOwnFields) {
    qbFormularL144 erwartet;
    Satz s(erwartet, l144Tabelle());
    s.kopf("05.2002", "L144", kL144Name, 4, "VP2")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    for (const char* feld :
         {"SchwangerschaftJN", "Schwangerschaftsmonat", "KomplikationenJN", "Komplikationen", "ArztAdresse",
          "FruehereKomplikationenJN", "FruehereKomplikationen"})
        s.eigen(feld);
    pruefe(s, erwartet);
}

TEST_P(L147AltSatz, Record10_1999LeavesTheCommonFieldsAndConsumesTheTripleThenReadsAllOwnFields_Quirk) {
    qbFormularL147 erwartet;
    Satz s(erwartet, l147Tabelle());
    s.kopf("10.1999", "L147", kL147Name, 4, "VP1")
        .tripel()
        .eigen("ArztAdresse")
        .eigen("Beginn")
        .eigen("Medikamente");
    pruefe(s, erwartet);
}

TEST_P(L147AltSatz, Record05_2002HoldsHeaderAllCommonFieldsAndAllOwnFields) {
    qbFormularL147 erwartet;
    Satz s(erwartet, l147Tabelle());
    s.kopf("05.2002", "L147", kL147Name, 4, "VP1")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17)
        .eigen("ArztAdresse")
        .eigen("Beginn")
        .eigen("Medikamente");
    pruefe(s, erwartet);
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L144AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
INSTANTIATE_TEST_SUITE_P(JederStrom, L147AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
