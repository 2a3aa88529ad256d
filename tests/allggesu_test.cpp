// qbFormularAllgGesu, the base of the health declarations: its stored layouts from 10.1999 on, the two
// equalities that differ on purpose, the Dauer phrases, the size figure that leaves out the characters
// of AntwortZuFrage, and its XML.
#include "health/qbFormularAllgGesu.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL147.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <climits>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace qbtest;

namespace {

qbFormularAllgGesu mitVierFeldern(const char* nummer, const char* person, const char* krankheit,
                                  const char* antwort) {
    qbFormularAllgGesu g;
    g.RefDruckstueckNummer(nummer);
    g.RefPersonenKennung(person);
    g.RefKrankheit(krankheit);
    g.RefAntwortZuFrage(antwort);
    return g;
}

class AllgGesuAltSatz : public ::testing::TestWithParam<Strom> {
protected:
    // Restores a fresh qbFormularAllgGesu from the record and compares every field with the expectation.
    void pruefe(const Satz& s, const qbFormularAllgGesu& erwartet) {
        bool genauAmEnde = false;
        const auto gelesen = s.satz().lies<qbFormularAllgGesu>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &gesuTabelle()});
    }
    qbFormularAllgGesu erwartet;
    Satz s{erwartet, gesuTabelle()};
    void kopf(const char* version) { s.kopf(version, "L145", "Erkl\xE4rung Verletzungen", 7, "VP2"); }
};

} // namespace

// ---- Construction and accessors

TEST(AllgGesu, DefaultConstructorSetsNoHeaderConstants) {
    qbFormularAllgGesu g;
    EXPECT_EQ(g.RefVersion().std(), "");
    EXPECT_EQ(g.RefDruckstueckNummer().std(), "");
    EXPECT_EQ(g.RefDruckstueckName().std(), "");
    EXPECT_EQ(g.RefSeitenanzahl(), 0);
    EXPECT_EQ(g.RefPersonenKennung().std(), "");
}

TEST(AllgGesu, DefaultFieldsAreEmptyTextsUnansweredFlagsAndDauerMinusOne) {
    qbFormularAllgGesu g;
    EXPECT_EQ(g.RefDauer(), -1);
    EXPECT_EQ(g.RefKrankenhausJN(), 0xff);
    EXPECT_EQ(g.RefKurJN(), 0xff);
    EXPECT_EQ(g.RefArbeitsplatzwechselJN(), 0xff);
    EXPECT_EQ(g.RefArbeitsunfaehigJN(), 0xff);
    for (const qbFeld& z : gesuTabelle()) {
        if (z.art == qbArt::Text) {
            EXPECT_TRUE((g.*z.mitglied.text).isNull()) << z.name;
        }
    }
}

TEST(AllgGesu, AntwortZuFragePassesByValueWhereOtherTextsPassByReference_Quirk) {
    using Gesu = qbFormularAllgGesu;
    static_assert(std::is_same_v<decltype(std::declval<const Gesu&>().RefAntwortZuFrage()), RWCString>);
    static_assert(std::is_same_v<decltype(std::declval<const Gesu&>().RefKrankheit()), const RWCString&>);
    static_assert(std::is_invocable_v<void (Gesu::*)(RWCString), Gesu&, RWCString>);
    Gesu g;
    g.RefAntwortZuFrage("Antwort");
    EXPECT_EQ(g.RefAntwortZuFrage().std(), "Antwort");
}

TEST(AllgGesu, SettersStoreWhatTheyAreGiven) {
    qbFormularAllgGesu g;
    g.RefKrankheit("Masern");
    g.RefBeginn("03.1999");
    g.RefDauer(12);
    g.RefArztAdresse("Dr. M\xFCller");
    g.RefKrankenhausJN(1);
    g.RefKurJN(0);
    g.RefKrankenhausKur("Kur");
    g.RefAdresseKrankenhausKurstaette("Bad Ems");
    g.RefAdresseWeitererArzt("Dr. Weiss");
    g.RefDatumBehandlungWeitererArzt("1998");
    g.RefErkrankungWeitererArzt("Grippe");
    g.RefArbeitsplatzwechselJN(1);
    g.RefDatumArbeitsplatzwechsel("2001");
    g.RefArbeitsunfaehigJN(0);
    g.RefDatumArbeitsunfaehigkeit("05.1999");
    g.RefErkrankungArbeitsunfaehigkeit("Bruch");
    EXPECT_EQ(g.RefKrankheit().std(), "Masern");
    EXPECT_EQ(g.RefBeginn().std(), "03.1999");
    EXPECT_EQ(g.RefDauer(), 12);
    EXPECT_EQ(g.RefArztAdresse().std(), "Dr. M\xFCller");
    EXPECT_EQ(g.RefKrankenhausJN(), 1);
    EXPECT_EQ(g.RefKurJN(), 0);
    EXPECT_EQ(g.RefKrankenhausKur().std(), "Kur");
    EXPECT_EQ(g.RefAdresseKrankenhausKurstaette().std(), "Bad Ems");
    EXPECT_EQ(g.RefAdresseWeitererArzt().std(), "Dr. Weiss");
    EXPECT_EQ(g.RefDatumBehandlungWeitererArzt().std(), "1998");
    EXPECT_EQ(g.RefErkrankungWeitererArzt().std(), "Grippe");
    EXPECT_EQ(g.RefArbeitsplatzwechselJN(), 1);
    EXPECT_EQ(g.RefDatumArbeitsplatzwechsel().std(), "2001");
    EXPECT_EQ(g.RefArbeitsunfaehigJN(), 0);
    EXPECT_EQ(g.RefDatumArbeitsunfaehigkeit().std(), "05.1999");
    EXPECT_EQ(g.RefErkrankungArbeitsunfaehigkeit().std(), "Bruch");
}

// ---- Dauer phrases

TEST(AllgGesu, DauerPhraseSingularForEveryCode) {
    const std::pair<int, const char*> faelle[] = {
        {1, "hat 1 Woche angedauert; "},   {2, "hat 2 Wochen angedauert; "},
        {3, "hat 3 Wochen angedauert; "},  {4, "hat 1 Monat angedauert; "},
        {8, "hat 2 Monate angedauert; "},  {12, "hat 3 Monate angedauert; "},
        {24, "hat 6 Monate angedauert; "}, {28, "hat l\xE4nger als 6 Monate angedauert; "}};
    for (const auto& [dauer, phrase] : faelle)
        EXPECT_EQ(qbFormularAllgGesu::DauerPhrase(dauer, qbFormularAllgGesu::Einzahl).std(), phrase) << dauer;
}

TEST(AllgGesu, DauerPhrasePluralForEveryCode) {
    const std::pair<int, const char*> faelle[] = {
        {1, "haben 1 Woche angedauert; "},   {2, "haben 2 Wochen angedauert; "},
        {3, "haben 3 Wochen angedauert; "},  {4, "haben 1 Monat angedauert; "},
        {8, "haben 2 Monate angedauert; "},  {12, "haben 3 Monate angedauert; "},
        {24, "haben 6 Monate angedauert; "}, {28, "haben l\xE4nger als 6 Monate angedauert; "}};
    for (const auto& [dauer, phrase] : faelle)
        EXPECT_EQ(qbFormularAllgGesu::DauerPhrase(dauer, qbFormularAllgGesu::Mehrzahl).std(), phrase)
            << dauer;
}

TEST(AllgGesu, DauerPhraseOfAnyOtherCodeSaysStillGoingOn) {
    for (int dauer : {-1, 0, 5, 6, 7, 9, 13, 25, 27, 29, 100, INT_MIN, INT_MAX}) {
        EXPECT_EQ(qbFormularAllgGesu::DauerPhrase(dauer, qbFormularAllgGesu::Einzahl).std(),
                  "dauert noch an; ")
            << dauer;
        EXPECT_EQ(qbFormularAllgGesu::DauerPhrase(dauer, qbFormularAllgGesu::Mehrzahl).std(),
                  "dauern noch an; ")
            << dauer;
    }
}

// ---- Version test of the Arbeitsplatzwechsel fields

TEST(AllgGesu, ArbeitsplatzwechselIsReadFromKey200205OnAndFromTheIsolatedKey200111_Quirk) {
    EXPECT_TRUE(qbFormularAllgGesu::mitArbeitsplatzwechsel(200111));
    EXPECT_TRUE(qbFormularAllgGesu::mitArbeitsplatzwechsel(200205));
    EXPECT_TRUE(qbFormularAllgGesu::mitArbeitsplatzwechsel(203012));
    for (int k : {0, 199910, 200001, 200011, 200012, 200110, 200112, 200201, 200204})
        EXPECT_FALSE(qbFormularAllgGesu::mitArbeitsplatzwechsel(k)) << k;
}

// ---- Saving

TEST(AllgGesu, SaveWritesHeaderAndSeventeenFieldsAndDoesNotStampVersion) {
    qbFormularAllgGesu g;
    g.RefVersion("12.2000");
    g.RefDruckstueckNummer("L145");
    g.RefDruckstueckName("Erkl\xE4rung");
    g.RefPersonenKennung("VP1");
    g.RefKrankheit("Masern");
    g.RefAntwortZuFrage("ja");
    g.RefBeginn("1999");
    g.RefDauer(28);
    g.RefArztAdresse("Dr. M\xFCller");
    g.RefKrankenhausJN(1);
    g.RefKurJN(0);
    g.RefDatumArbeitsplatzwechsel("2001");
    g.RefErkrankungArbeitsunfaehigkeit("Bruch");
    const Bytes erwartet = cat({text("12.2000"),
                                text("L145"),
                                text("Erkl\xE4rung"),
                                int32(0),
                                text("VP1"),
                                text("Masern"),
                                text("ja"),
                                text("1999"),
                                int32(28),
                                text("Dr. M\xFCller"),
                                ein(1),
                                ein(0),
                                text(""),
                                text(""),
                                text(""),
                                text(""),
                                text(""),
                                ein(0xff),
                                text("2001"),
                                ein(0xff),
                                text(""),
                                text("Bruch")});
    EXPECT_EQ(hex(gespeichert(g)), hex(erwartet));
    EXPECT_EQ(g.RefVersion().std(), "12.2000");
}

class AllgGesuStrom : public ::testing::TestWithParam<Strom> {};

TEST_P(AllgGesuStrom, FilledFormOfTheCurrentLayoutRoundTrips) {
    qbFormularAllgGesu g;
    fuelleAlle(g, {&kopfTabelle(), &gesuTabelle()});
    g.RefVersion("05.2002");
    qbFormularAllgGesu gelesen;
    rundreise(g, gelesen, GetParam());
    erwarteGleicheFelder(g, gelesen, {&kopfTabelle(), &gesuTabelle()});
    EXPECT_EQ(g.RefVersion().std(), "05.2002");
}

INSTANTIATE_TEST_SUITE_P(JederStrom, AllgGesuStrom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- Size

TEST(AllgGesu, BinaryStoreSizeIsHeaderPlus56PlusTheElevenTextLengths) {
    qbFormularAllgGesu g;
    EXPECT_EQ(g.binaryStoreSize(), 20u + 56u);
    g.RefVersion("05.2002");
    g.RefDruckstueckNummer("L145");
    g.RefDruckstueckName("Name");
    g.RefPersonenKennung("VP1");
    EXPECT_EQ(g.binaryStoreSize(), 20u + 56u + 7u + 4u + 4u + 3u);
    fuelleAlle(g, {&gesuTabelle()});
    size_t texte = 0;
    for (const qbFeld& z : gesuTabelle())
        if (z.art == qbArt::Text && std::string(z.name) != "AntwortZuFrage")
            texte += (g.*z.mitglied.text).length();
    EXPECT_EQ(g.binaryStoreSize(), 20u + 56u + 7u + 4u + 4u + 3u + texte);
}

TEST(AllgGesu, BinaryStoreSizeLeavesOutTheCharactersOfAntwortZuFrage_Quirk) {
    qbFormularAllgGesu g;
    fuelleAlle(g, {&kopfTabelle(), &gesuTabelle()});
    const RWspace vorher = g.binaryStoreSize();
    g.RefAntwortZuFrage("eine viel l\xE4ngere Antwort auf die Frage");
    EXPECT_EQ(g.binaryStoreSize(), vorher);
    EXPECT_EQ(g.binaryStoreSize(), gespeichert(g).size() - g.RefAntwortZuFrage().length());
}

// ---- Equality

TEST(AllgGesu, EqualityNeedsTheSameDruckstueckNummerAndPersonenKennung) {
    const auto a = mitVierFeldern("L145", "VP1", "", "");
    const auto gleich = mitVierFeldern("L145", "VP1", "", "");
    const auto andereNummer = mitVierFeldern("L146", "VP1", "", "");
    const auto anderePerson = mitVierFeldern("L145", "VP2", "", "");
    EXPECT_TRUE(a == gleich);
    EXPECT_FALSE(a == andereNummer);
    EXPECT_FALSE(a == anderePerson);
    EXPECT_TRUE(a.isEqual(&gleich));
    EXPECT_FALSE(a.isEqual(&andereNummer));
    EXPECT_FALSE(a.isEqual(&anderePerson));
}

TEST(AllgGesu, EqualityLooksAtNothingBeyondTheFourFields) {
    auto a = mitVierFeldern("L145", "VP1", "Masern", "ja");
    auto b = mitVierFeldern("L145", "VP1", "Masern", "ja");
    b.RefBeginn("1999");
    b.RefDauer(4);
    b.RefKrankenhausJN(1);
    b.RefVersion("01.2000");
    b.RefDruckstueckName("anders");
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.isEqual(&b));
}

TEST(AllgGesu, OperatorEqualsTestsTheLeftKrankheitAndIsEqualTheRight_Quirk) {
    const auto gefuellt = mitVierFeldern("L145", "VP1", "Masern", "");
    const auto leer = mitVierFeldern("L145", "VP1", "", "");
    EXPECT_FALSE(gefuellt == leer);
    EXPECT_TRUE(gefuellt.isEqual(&leer));
    EXPECT_TRUE(leer == gefuellt);
    EXPECT_FALSE(leer.isEqual(&gefuellt));
}

TEST(AllgGesu, IsEqualIsTrueWhenEitherAntwortZuFrageIsEmpty_Quirk) {
    const auto mitJa = mitVierFeldern("L145", "VP1", "", "ja");
    const auto mitNein = mitVierFeldern("L145", "VP1", "", "nein");
    const auto ohne = mitVierFeldern("L145", "VP1", "", "");
    EXPECT_TRUE(mitJa.isEqual(&ohne));
    EXPECT_TRUE(ohne.isEqual(&mitJa));
    EXPECT_FALSE(mitJa.isEqual(&mitNein));
    const auto auchJa = mitVierFeldern("L145", "VP1", "", "ja");
    EXPECT_TRUE(mitJa.isEqual(&auchJa));
}

TEST(AllgGesu, OperatorEqualsMatchesDifferingAnswersOnlyWhenTheLeftOneIsEmpty_Quirk) {
    const auto mitJa = mitVierFeldern("L145", "VP1", "", "ja");
    const auto mitNein = mitVierFeldern("L145", "VP1", "", "nein");
    const auto ohne = mitVierFeldern("L145", "VP1", "", "");
    EXPECT_TRUE(ohne == mitJa);
    EXPECT_FALSE(mitJa == ohne);
    EXPECT_FALSE(mitJa == mitNein);
    EXPECT_TRUE(mitJa == mitVierFeldern("L145", "VP1", "", "ja"));
}

TEST(AllgGesu, EqualityComparesTextsByLengthAndBytes) {
    const auto a = mitVierFeldern("L145", "VP1", "Masern", "ja");
    EXPECT_FALSE(a == mitVierFeldern("L145", "VP1", "Masern ", "ja"));
    EXPECT_FALSE(a == mitVierFeldern("L145", "VP1", "masern", "ja"));
    EXPECT_FALSE(a == mitVierFeldern("L145", "VP1", "Masern", "Ja"));
}

TEST(AllgGesu, IsEqualOfTheFamilyIsTheBaseOneThroughACollectablePointer) {
    qbFormularL147 links, rechts;
    links.RefKrankheit("Masern");
    const RWCollectable& l = links;
    EXPECT_TRUE(l.isEqual(&rechts));
    EXPECT_FALSE(rechts.isEqual(&links));
    EXPECT_FALSE(links == rechts);
    EXPECT_TRUE(rechts == links);
}

// ---- Copy, identity, reset

TEST(AllgGesu, CopyConstructorAndAssignmentCarryTheHeaderAndAllSeventeenFields) {
    qbFormularAllgGesu quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle()});
    qbFormularAllgGesu kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle()}, "copy: ");
    qbFormularAllgGesu ziel;
    fuelleAlle(ziel, {&kopfTabelle(), &gesuTabelle()}, 500);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle()}, "assignment: ");
    kopie.RefKrankheit("anders");
    EXPECT_NE(quelle.RefKrankheit().std(), "anders");
}

TEST(AllgGesu, CopyAndNewSpeciesGiveObjectsOfTheClass) {
    qbFormularAllgGesu g;
    fuelleAlle(g, {&kopfTabelle(), &gesuTabelle()});
    std::unique_ptr<RWCollectable> kopie(g.copy());
    std::unique_ptr<RWCollectable> neu(g.newSpecies());
    EXPECT_EQ(kopie->isA(), qbFormularAllgGesu::classIsA());
    EXPECT_EQ(neu->isA(), qbFormularAllgGesu::classIsA());
    EXPECT_EQ(g.isA(), qbFormularAllgGesu::classIsA());
    erwarteGleicheFelder(g, static_cast<const qbFormular&>(*kopie), {&kopfTabelle(), &gesuTabelle()});
    erwarteGleicheFelder(qbFormularAllgGesu(), static_cast<const qbFormular&>(*neu),
                         {&kopfTabelle(), &gesuTabelle()});
}

TEST(AllgGesu, LoescheResetsHeaderAndFieldsToTheDefaultsOfTheBase) {
    qbFormularAllgGesu g;
    fuelleAlle(g, {&kopfTabelle(), &gesuTabelle()});
    g.loesche();
    erwarteGleicheFelder(qbFormularAllgGesu(), g, {&kopfTabelle(), &gesuTabelle()});
}

TEST(AllgGesu, LoescheOfAnL147WithVP2GivesBackVN) {
    qbFormularL147 f;
    f.RefPersonenKennung("VP2");
    f.RefKrankheit("Masern");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), "VN");
    EXPECT_TRUE(f.RefKrankheit().isNull());
}

// ---- XML

TEST(AllgGesu, XMLgetDatNestsTheHeaderNodeAndListsTheSeventeenFieldsInOrder) {
    qbFormularAllgGesu g;
    fuelleAlle(g, {&kopfTabelle(), &gesuTabelle()});
    CQBXMLdata knoten("Gesu");
    knoten.List(CQBXMLdata("alt", "weg"));
    g.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularAllgGesu");
    ASSERT_EQ(knoten.entryCount(), 18u);
    const CQBXMLdata& kopf = *knoten.entryAt(0);
    EXPECT_TRUE(kopf.isAdded());
    EXPECT_EQ(kopf.Name().std(), "");
    EXPECT_EQ(kopf.Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(kopf), kKopfSchluessel);
    std::vector<std::string> eigene = eintragsNamen(knoten);
    eigene.erase(eigene.begin());
    EXPECT_EQ(eigene, kGesuSchluessel);
    RWCString s;
    EXPECT_TRUE(knoten.Listvalue("Krankheit", s));
    EXPECT_EQ(s.std(), g.RefKrankheit().std());
    int dauer = 0;
    EXPECT_TRUE(knoten.Listvalue("Dauer", dauer));
    EXPECT_EQ(dauer, g.RefDauer());
    unsigned char flag = 0;
    EXPECT_TRUE(knoten.Listvalue("KurJN", flag));
    EXPECT_EQ(flag, g.RefKurJN());
}

TEST(AllgGesu, XMLputDatReadsTheSeventeenFieldsAndTheHeaderButNotVersionOrSeitenanzahl) {
    qbFormularAllgGesu quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle()});
    quelle.RefVersion("01.2000");
    CQBXMLdata knoten("Gesu");
    quelle.XMLgetDat(knoten);
    qbFormularAllgGesu ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularAllgGesu");
    erwarteGleicheFelder(quelle, ziel, {&gesuTabelle()});
    EXPECT_EQ(ziel.RefDruckstueckNummer().std(), quelle.RefDruckstueckNummer().std());
    EXPECT_EQ(ziel.RefDruckstueckName().std(), quelle.RefDruckstueckName().std());
    EXPECT_EQ(ziel.RefPersonenKennung().std(), quelle.RefPersonenKennung().std());
    EXPECT_EQ(ziel.RefVersion().std(), "");
    EXPECT_EQ(ziel.RefSeitenanzahl(), 0);
}

TEST(AllgGesu, XMLputDatIgnoresANodeOfAnotherTypeAndLeavesItUnchanged) {
    qbFormularAllgGesu quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle()});
    CQBXMLdata knoten("Gesu");
    quelle.XMLgetDat(knoten);
    knoten.Typ("qbFormularL145");
    const CQBXMLdata vorher(knoten);
    qbFormularAllgGesu ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    erwarteGleicheFelder(qbFormularAllgGesu(), ziel, {&kopfTabelle(), &gesuTabelle()});
}

TEST(AllgGesu, XmlRoundTripOfAFreshL145RestoresOwnFieldsButNotKrankheitNameOrPerson) {
    qbFormularL145 quelle;
    quelle.RefVerletzungshergang("Sturz");
    quelle.RefVerletzteGelenke("Knie");
    quelle.RefGeheiltJN(1);
    quelle.RefKrankheit("Bruch");
    quelle.RefDruckstueckName("anders");
    quelle.RefPersonenKennung("VP2");
    CQBXMLdata knoten("L145");
    quelle.XMLgetDat(knoten);
    qbFormularL145 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL145");
    EXPECT_EQ(ziel.RefVerletzungshergang().std(), "Sturz");
    EXPECT_EQ(ziel.RefVerletzteGelenke().std(), "Knie");
    EXPECT_EQ(ziel.RefGeheiltJN(), 1);
    EXPECT_EQ(ziel.RefKrankheit().std(), "");
    EXPECT_EQ(ziel.RefDruckstueckName().std(), "Erkl\xE4rung Verletzungen");
    EXPECT_EQ(ziel.RefPersonenKennung().std(), "VP1");
}

// ---- Legacy records, every stored layout on every stream kind

TEST_P(AllgGesuAltSatz, Record10_1999HoldsOnlyTheTripleBehindTheHeader_Quirk) {
    kopf("10.1999");
    s.tripel();
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record01_2000HoldsOnlyTheTripleBehindTheHeader_Quirk) {
    kopf("01.2000");
    s.tripel();
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record01_2000ConsumesHeaderAndTripleAndLeavesAllSeventeenFieldsAsTheyWere_Quirk) {
    qbFormularAllgGesu form;
    fuelleAlle(form, {&gesuTabelle()});
    const qbFormularAllgGesu vorher(form);
    const AltSatz satz =
        AltSatz::kopf("01.2000", "L146", "Erkl\xE4rung", 3, "VP1").flag(1).ganz(12345).text("dreizehn");
    bool genauAmEnde = false;
    satz.liesIn(form, GetParam(), &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    erwarteGleicheFelder(vorher, form, {&gesuTabelle()});
    EXPECT_EQ(form.RefVersion().std(), "01.2000");
    EXPECT_EQ(form.RefDruckstueckNummer().std(), "L146");
    EXPECT_EQ(form.RefPersonenKennung().std(), "VP1");
}

TEST_P(AllgGesuAltSatz, Record11_2000HoldsFields1To12And15To17AndTheTriple_Quirk) {
    kopf("11.2000");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17).tripel();
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record12_2000HoldsFields1To12And15To17AndNoTriple) {
    kopf("12.2000");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record10_2001HasNoSeitenanzahlAndNoArbeitsplatzwechsel) {
    kopf("10.2001");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record11_2001CarriesArbeitsplatzwechselUnderTheIsolatedKey200111_Quirk) {
    kopf("11.2001");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record12_2001HasNoArbeitsplatzwechsel_Quirk) {
    kopf("12.2001");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record04_2002HasNoArbeitsplatzwechsel) {
    kopf("04.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record05_2002HoldsAllSeventeenFields) {
    kopf("05.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, Record12_2030ReadsAsTheCurrentLayout) {
    kopf("12.2030");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, UnreadableVersionGivesKeyZeroAndTheOldestKeyLayoutWithTheTriple_Quirk) {
    kopf("xx");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17).tripel();
    pruefe(s, erwartet);
}

TEST_P(AllgGesuAltSatz, RestoredOldRecordKeepsItsVersionAndSavesItUnstamped) {
    kopf("11.2000");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17).tripel();
    const auto gelesen = s.satz().lies<qbFormularAllgGesu>(GetParam());
    EXPECT_EQ(gelesen.RefVersion().std(), "11.2000");
    const Bytes bytes = gespeichert(gelesen);
    ASSERT_GE(bytes.size(), 11u);
    EXPECT_EQ(hex(Bytes(bytes.begin(), bytes.begin() + 11)), hex(text("11.2000")));
    EXPECT_EQ(gelesen.RefVersion().std(), "11.2000");
}

INSTANTIATE_TEST_SUITE_P(JederStrom, AllgGesuAltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
