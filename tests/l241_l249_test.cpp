// qbFormularL241 (airways) and qbFormularL249 (allergies): the records of "10.1999" and "01.2000" with the
// common answers between the own fields, the layouts before and from 05.2002, and L241's composed answer.
#include "health/qbFormularL241.h"
#include "health/qbFormularL249.h"

#include "erklaerungen_util.h"
#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <algorithm>
#include <climits>
#include <string>
#include <utility>
#include <vector>

using namespace qbtest;

namespace {

const char* const kL241Name = "Erkl\xE4rung Atemwegserkrankungen";
const char* const kL249Name = "Erkl\xE4rung Allergien";

// The own fields of the list, without the named ones.
std::vector<std::string> ohne(const std::vector<FeldArt>& felder, const std::vector<std::string>& weg) {
    std::vector<std::string> n;
    for (const FeldArt& f : felder)
        if (std::find(weg.begin(), weg.end(), f.name) == weg.end()) n.push_back(f.name);
    return n;
}

// L241's layout of "10.1999"; "01.2000" appends AntwortZuFrage.
const std::initializer_list<const char*> kL241Layout1999 = {"Diagnose",
                                                            "Beginn",
                                                            "Dauer",
                                                            "Frage1",
                                                            "AsthmaJN",
                                                            "ChronischeBronchitisJN",
                                                            "LungenemphysemJN",
                                                            "LungenBronchialtumorJN",
                                                            "LungenEmbolieJN",
                                                            "LungentuberkoloseJN",
                                                            "SarkoidoseJN",
                                                            "SonstigeJN",
                                                            "Sonstige",
                                                            "ArztAdresse",
                                                            "KrankenhausJN",
                                                            "KurJN",
                                                            "KrankenhausKur",
                                                            "AdresseKrankenhausKurstaette",
                                                            "OperationJN",
                                                            "Operation",
                                                            "Medikamente",
                                                            "AllergienJN",
                                                            "DatumAllergien",
                                                            "Allergien",
                                                            "AllergietestJN",
                                                            "Allergietest",
                                                            "Zigaretten",
                                                            "GeheiltJN",
                                                            "GeheiltSeit",
                                                            "Beschwerden",
                                                            "OperationGeplantJN",
                                                            "GeplanteOperation",
                                                            "AktuelleMedikamente",
                                                            "LungenfunktionsEinschraenkungJN",
                                                            "LungenfunktionsEinschraenkung",
                                                            "Roentgenkontrolle",
                                                            "BluthochdruckJN",
                                                            "Bluthochdruck",
                                                            "HerzerkrankungenJN",
                                                            "Herzerkrankungen",
                                                            "DiabetesJN",
                                                            "Diabetes",
                                                            "FettstoffwechselstoerungJN",
                                                            "Fettstoffwechselstoerung",
                                                            "NierenerkrankungJN",
                                                            "Nierenerkrankung",
                                                            "GefaessErkrankungJN",
                                                            "GefaessErkrankung",
                                                            "HauterkrankungJN",
                                                            "Hauterkrankung",
                                                            "SonstigeErkrankungJN",
                                                            "SonstigeErkrankung",
                                                            "AdresseWeitererArzt",
                                                            "ErkrankungWeitererArzt",
                                                            "MedikamenteWeitererArzt",
                                                            "ArbeitsunfaehigJN",
                                                            "DatumArbeitsunfaehigkeit",
                                                            "ErkrankungArbeitsunfaehigkeit",
                                                            "(Flag)",
                                                            "(Int)",
                                                            "(Text)",
                                                            "Krankheit"};

// L249's layout of "10.1999"; "01.2000" appends AntwortZuFrage. ArbeitsplatzwechselJN is the form's own.
const std::initializer_list<const char*> kL249Layout1999 = {"AsthmaJN",
                                                            "Asthma",
                                                            "SpastischeBronchitisJN",
                                                            "SpastischeBronchitis",
                                                            "ChronischeBronchitisJN",
                                                            "ChronischeBronchitis",
                                                            "HeuschnupfenJN",
                                                            "Heuschnupfen",
                                                            "NahrungsmittelJN",
                                                            "Nahrungsmittel",
                                                            "InsektensticheJN",
                                                            "Insektenstiche",
                                                            "ArbeitsstoffeJN",
                                                            "Arbeitsstoffe",
                                                            "SonstigeUeberempfindlichkeitenJN",
                                                            "SonstigeUeberempfindlichkeiten",
                                                            "EkzemJN",
                                                            "Ekzem",
                                                            "NesselsuchtJN",
                                                            "Nesselsucht",
                                                            "NeurodermitisJN",
                                                            "Neurodermitis",
                                                            "GesamterKoerperJN",
                                                            "HaendeJN",
                                                            "GesichtJN",
                                                            "SonstigeKoerperstellenJN",
                                                            "SonstigeKoerperstellen",
                                                            "WeitereHauterkrankungenJN",
                                                            "WeitereHauterkrankungen",
                                                            "ErkrankungenFamilieJN",
                                                            "ErkrankungenFamilie",
                                                            "HausarbeitJN",
                                                            "ArbeitJN",
                                                            "TiereJN",
                                                            "AnstrengungenJN",
                                                            "LebensmittelJN",
                                                            "AndereGelegenheitenJN",
                                                            "AndereGelegenheiten",
                                                            "ArztAdresse",
                                                            "KrankenhausJN",
                                                            "KurJN",
                                                            "KrankenhausKur",
                                                            "AdresseKrankenhausKurstaette",
                                                            "AllergietestJN",
                                                            "Allergietest",
                                                            "ArztAllergien",
                                                            "Medikamente",
                                                            "HyposensibilisierungJN",
                                                            "Hyposensibilisierung",
                                                            "HyposensibilisierungGeplantJN",
                                                            "HyposensibilisierungGeplant",
                                                            "ArbeitsplatzwechselJN",
                                                            "Arbeitsplatzwechsel",
                                                            "AktuelleMedikamente",
                                                            "AdresseWeitererArzt",
                                                            "DatumBehandlungWeitererArzt",
                                                            "ErkrankungWeitererArzt",
                                                            "ArbeitsunfaehigJN",
                                                            "DatumArbeitsunfaehigkeit",
                                                            "ErkrankungArbeitsunfaehigkeit",
                                                            "(Flag)",
                                                            "(Int)",
                                                            "(Text)",
                                                            "Krankheit"};

template <class F>
class AltSatzTest : public ::testing::TestWithParam<Strom> {
protected:
    void pruefe() {
        bool genauAmEnde = false;
        const F gelesen = s.satz().template lies<F>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    }
    void folge(const std::vector<std::string>& felder) {
        for (const std::string& f : felder)
            s.feld(f.c_str());
    }
    // The common fields of a record from 12.2000 on, with 13 and 14 where the version holds them.
    void gemeinsam(const char* version) {
        s.gemeinsam(kFelder1bis12);
        if (qbFormularAllgGesu::mitArbeitsplatzwechsel(schluessel(version))) s.gemeinsam(kFelder13und14);
        s.gemeinsam(kFelder15bis17);
    }
    F erwartet;
    Satz s{erwartet, F::felder()};
};
class L241AltSatz : public AltSatzTest<qbFormularL241> {
protected:
    void kopf(const char* version) { s.kopf(version, "L241", kL241Name, 4, "VP2"); }
};
class L249AltSatz : public AltSatzTest<qbFormularL249> {
protected:
    void kopf(const char* version) { s.kopf(version, "L249", kL249Name, 4, "VN"); }
};

// A form whose every field already holds a value, so that a field a record leaves alone shows.
template <class F>
F vorbelegt() {
    F f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &F::felder()}, 700);
    return f;
}

} // namespace

// ---- L241's composed answer

TEST(L241, AntwortFrage1OfADefaultFormSaysStillGoingOn) {
    qbFormularL241 f;
    EXPECT_EQ(f.AntwortFrage1().std(), "Beginn: ; dauert noch an; ");
}

TEST(L241, AntwortFrage1JoinsBeginnTheSingularDauerPhraseAndFrage1ForEveryCode) {
    const std::pair<int, const char*> phrasen[] = {
        {1, "hat 1 Woche angedauert; "},   {2, "hat 2 Wochen angedauert; "},
        {3, "hat 3 Wochen angedauert; "},  {4, "hat 1 Monat angedauert; "},
        {8, "hat 2 Monate angedauert; "},  {12, "hat 3 Monate angedauert; "},
        {24, "hat 6 Monate angedauert; "}, {28, "hat l\xE4nger als 6 Monate angedauert; "},
        {-1, "dauert noch an; "},          {0, "dauert noch an; "},
        {INT_MIN, "dauert noch an; "},     {INT_MAX, "dauert noch an; "}};
    qbFormularL241 f;
    f.RefBeginn("1998");
    f.RefFrage1("Asthma seit der Kindheit");
    for (const auto& [dauer, phrase] : phrasen) {
        f.RefDauer(dauer);
        EXPECT_EQ(f.AntwortFrage1().std(),
                  std::string("Beginn: 1998; ") + phrase + "Asthma seit der Kindheit")
            << dauer;
    }
}

TEST(L241, DauerBetweenTheListedCodesGivesStillGoingOn) {
    qbFormularL241 f;
    for (int dauer : {5, 6, 7, 9, 10, 11, 13, 20, 23, 25, 27, 29}) {
        f.RefDauer(dauer);
        EXPECT_EQ(f.AntwortFrage1().std(), "Beginn: ; dauert noch an; ") << dauer;
    }
}

// ---- Edge cases of the stored layouts

TEST(L241, Record10_1999LeavesAntwortZuFrageAndZigarettenJNAsTheyWere_Quirk) {
    qbFormularL241 erwartet;
    Satz s(erwartet, qbFormularL241::felder());
    s.kopf("10.1999", "L241", kL241Name, 2, "VP1").tripel().folge(kL241Layout1999);
    qbFormularL241 f = vorbelegt<qbFormularL241>();
    const std::string antwort = f.RefAntwortZuFrage().std();
    const unsigned char zigaretten = f.RefZigarettenJN();
    bool genauAmEnde = false;
    s.satz().liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefAntwortZuFrage().std(), antwort);
    EXPECT_EQ(f.RefZigarettenJN(), zigaretten);
    EXPECT_EQ(f.RefKrankheit(), erwartet.RefKrankheit());
}

TEST(L241, Record01_2000ReadsAntwortZuFrageButLeavesZigarettenJN) {
    qbFormularL241 erwartet;
    Satz s(erwartet, qbFormularL241::felder());
    s.kopf("01.2000", "L241", kL241Name, 2, "VP1")
        .tripel()
        .folge(kL241Layout1999)
        .gemeinsam("AntwortZuFrage");
    qbFormularL241 f = vorbelegt<qbFormularL241>();
    const unsigned char zigaretten = f.RefZigarettenJN();
    bool genauAmEnde = false;
    s.satz().liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefAntwortZuFrage(), erwartet.RefAntwortZuFrage());
    EXPECT_EQ(f.RefZigarettenJN(), zigaretten);
}

TEST(L241, EarlyLayoutLeavesDatumBehandlungWeitererArztAndTheChangeOfWorkplaceAsTheyWere) {
    qbFormularL241 erwartet;
    Satz s(erwartet, qbFormularL241::felder());
    s.kopf("01.2000", "L241", kL241Name, 2, "VP1")
        .tripel()
        .folge(kL241Layout1999)
        .gemeinsam("AntwortZuFrage");
    qbFormularL241 f = vorbelegt<qbFormularL241>();
    const qbFormularL241 vorher(f);
    s.satz().liesIn(f, Strom::Binaer);
    EXPECT_EQ(f.RefDatumBehandlungWeitererArzt(), vorher.RefDatumBehandlungWeitererArzt());
    EXPECT_EQ(f.RefArbeitsplatzwechselJN(), vorher.RefArbeitsplatzwechselJN());
    EXPECT_EQ(f.RefDatumArbeitsplatzwechsel(), vorher.RefDatumArbeitsplatzwechsel());
}

TEST(L241, Record11_2001TakesTheCurrentLayoutWithoutZigarettenJN) {
    qbFormularL241 erwartet;
    Satz s(erwartet, qbFormularL241::felder());
    s.kopf("11.2001", "L241", kL241Name, 2, "VP1")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    for (const std::string& n : ohne(liste(kL241Felder), {"ZigarettenJN"}))
        s.eigen(n.c_str());
    qbFormularL241 f = vorbelegt<qbFormularL241>();
    const unsigned char zigaretten = f.RefZigarettenJN();
    bool genauAmEnde = false;
    s.satz().liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefZigarettenJN(), zigaretten);
    EXPECT_EQ(f.RefZigaretten(), erwartet.RefZigaretten());
    EXPECT_EQ(f.RefMedikamenteWeitererArzt(), erwartet.RefMedikamenteWeitererArzt());
}

TEST(L241, Record05_2002ReadsZigarettenJN) {
    qbFormularL241 erwartet;
    Satz s(erwartet, qbFormularL241::felder());
    s.kopf("05.2002", "L241", kL241Name, 2, "VP1")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    for (const FeldArt& fa : kL241Felder)
        s.eigen(fa.name);
    bool genauAmEnde = false;
    const auto f = s.satz().lies<qbFormularL241>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefZigarettenJN(), erwartet.RefZigarettenJN());
}

TEST(L249, Record01_2000ReadsAntwortZuFrageAndNeitherZigarettenJNNorZigaretten) {
    qbFormularL249 erwartet;
    Satz s(erwartet, qbFormularL249::felder());
    s.kopf("01.2000", "L249", kL249Name, 2, "VP1")
        .tripel()
        .folge(kL249Layout1999)
        .gemeinsam("AntwortZuFrage");
    qbFormularL249 f = vorbelegt<qbFormularL249>();
    const qbFormularL249 vorher(f);
    bool genauAmEnde = false;
    s.satz().liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefAntwortZuFrage(), erwartet.RefAntwortZuFrage());
    EXPECT_EQ(f.RefZigarettenJN(), vorher.RefZigarettenJN());
    EXPECT_EQ(f.RefZigaretten(), vorher.RefZigaretten());
}

TEST(L249, EarlyLayoutReadsTheOwnChangeOfWorkplaceAndLeavesTheCommonOneBeginnAndDauer_Quirk) {
    qbFormularL249 erwartet;
    Satz s(erwartet, qbFormularL249::felder());
    s.kopf("10.1999", "L249", kL249Name, 2, "VP1").tripel().folge(kL249Layout1999);
    qbFormularL249 f = vorbelegt<qbFormularL249>();
    const qbFormularL249 vorher(f);
    s.satz().liesIn(f, Strom::Portabel);
    EXPECT_EQ(f.RefArbeitsplatzwechselJN(), erwartet.RefArbeitsplatzwechselJN());
    EXPECT_EQ(f.RefArbeitsplatzwechsel(), erwartet.RefArbeitsplatzwechsel());
    const qbFormularAllgGesu &gesu = f, &gesuVorher = vorher;
    EXPECT_EQ(gesu.qbFormularAllgGesu::RefArbeitsplatzwechselJN(),
              gesuVorher.qbFormularAllgGesu::RefArbeitsplatzwechselJN());
    EXPECT_EQ(f.RefDatumArbeitsplatzwechsel(), vorher.RefDatumArbeitsplatzwechsel());
    EXPECT_EQ(f.RefBeginn(), vorher.RefBeginn());
    EXPECT_EQ(f.RefDauer(), vorher.RefDauer());
    EXPECT_EQ(f.RefAntwortZuFrage(), vorher.RefAntwortZuFrage());
}

TEST(L249, Record11_2001TakesTheCurrentLayoutWithoutTheZigarettenPair) {
    qbFormularL249 erwartet;
    Satz s(erwartet, qbFormularL249::felder());
    s.kopf("11.2001", "L249", kL249Name, 2, "VP1")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    for (const std::string& n : ohne(liste(kL249Felder), {"ZigarettenJN", "Zigaretten"}))
        s.eigen(n.c_str());
    qbFormularL249 f = vorbelegt<qbFormularL249>();
    const qbFormularL249 vorher(f);
    bool genauAmEnde = false;
    s.satz().liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefZigarettenJN(), vorher.RefZigarettenJN());
    EXPECT_EQ(f.RefZigaretten(), vorher.RefZigaretten());
    EXPECT_EQ(f.RefAktuelleMedikamente(), erwartet.RefAktuelleMedikamente());
}

TEST(L249, Record05_2002ReadsTheZigarettenPair) {
    qbFormularL249 erwartet;
    Satz s(erwartet, qbFormularL249::felder());
    s.kopf("05.2002", "L249", kL249Name, 2, "VP1")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    for (const FeldArt& fa : kL249Felder)
        s.eigen(fa.name);
    bool genauAmEnde = false;
    const auto f = s.satz().lies<qbFormularL249>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefZigarettenJN(), erwartet.RefZigarettenJN());
    EXPECT_EQ(f.RefZigaretten(), erwartet.RefZigaretten());
}

TEST(L249, TiereJNIsPassedOverByTheConstructorAndStartsAtZeroAfterLoescheToo_Quirk) {
    qbFormularL249 f;
    EXPECT_EQ(f.RefTiereJN(), 0);
    EXPECT_EQ(f.RefHausarbeitJN(), 0xff);
    f.RefTiereJN(1);
    f.loesche();
    EXPECT_EQ(f.RefTiereJN(), 0);
}

// ---- Every stored layout on every stream kind

TEST_P(L241AltSatz, Record10_1999HoldsTheTripleThenOwnAndCommonFieldsMixedWithoutAntwortZuFrage_Quirk) {
    kopf("10.1999");
    s.tripel().folge(kL241Layout1999);
    pruefe();
}

TEST_P(L241AltSatz, Record01_2000HoldsTheTripleThenOwnAndCommonFieldsMixedAndAntwortZuFrageLast_Quirk) {
    kopf("01.2000");
    s.tripel().folge(kL241Layout1999).gemeinsam("AntwortZuFrage");
    pruefe();
}

TEST_P(L241AltSatz, Record11_2000HoldsTheCommonTripleAndTheLayoutBefore05_2002) {
    kopf("11.2000");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17).tripel();
    folge(ohne(liste(kL241Felder), {"ZigarettenJN"}));
    pruefe();
}

TEST_P(L241AltSatz, Record04_2002ReadsTheLayoutWithoutZigarettenJN) {
    kopf("04.2002");
    gemeinsam("04.2002");
    folge(ohne(liste(kL241Felder), {"ZigarettenJN"}));
    pruefe();
}

TEST_P(L241AltSatz, Record05_2002ReadsTheCurrentLayout) {
    kopf("05.2002");
    gemeinsam("05.2002");
    folge(namen(liste(kL241Felder)));
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L241AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST_P(L249AltSatz, Record10_1999HoldsTheTripleThenOwnAndCommonFieldsMixedWithoutAntwortZuFrage_Quirk) {
    kopf("10.1999");
    s.tripel().folge(kL249Layout1999);
    pruefe();
}

TEST_P(L249AltSatz, Record01_2000HoldsTheTripleThenOwnAndCommonFieldsMixedAndAntwortZuFrageLast_Quirk) {
    kopf("01.2000");
    s.tripel().folge(kL249Layout1999).gemeinsam("AntwortZuFrage");
    pruefe();
}

TEST_P(L249AltSatz, Record11_2000HoldsTheCommonTripleAndTheLayoutBefore05_2002) {
    kopf("11.2000");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17).tripel();
    folge(ohne(liste(kL249Felder), {"ZigarettenJN", "Zigaretten"}));
    pruefe();
}

TEST_P(L249AltSatz, Record11_2001ReadsTheChangeOfWorkplaceButNotTheZigarettenPair) {
    kopf("11.2001");
    gemeinsam("11.2001");
    folge(ohne(liste(kL249Felder), {"ZigarettenJN", "Zigaretten"}));
    pruefe();
}

TEST_P(L249AltSatz, Record05_2002ReadsTheCurrentLayout) {
    kopf("05.2002");
    gemeinsam("05.2002");
    folge(namen(liste(kL249Felder)));
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L249AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
