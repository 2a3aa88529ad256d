// qbFormularL145 (injury) and qbFormularL146 (spine): their stored layouts from 10.1999 on, in which the
// common answers once stood between the own fields, the composed answers, size figures and XML.
#include "health/qbFormularAllgGesu.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace qbtest;

namespace {

std::vector<std::string> namenDerTabelle(const qbFeldTabelle& t) {
    std::vector<std::string> namen;
    for (const qbFeld& z : t)
        namen.push_back(z.name);
    return namen;
}

// The seventeen common fields of a default health form on RWFile.
Bytes gesuStandard() {
    return cat({text(""), text(""), text(""), int32(-1), text(""), ein(0xff), ein(0xff), text(""), text(""),
                text(""), text(""), text(""), ein(0xff), text(""), ein(0xff), text(""), text("")});
}

// n unanswered pairs of a Flag and a Text.
Bytes leerePaare(int n) {
    Bytes out;
    for (int i = 0; i < n; ++i)
        out = cat({out, ein(0xff), text("")});
    return out;
}

const qbFeldTabelle& l145Tabelle() { return qbFormularL145::felder(); }
const qbFeldTabelle& l146Tabelle() { return qbFormularL146::felder(); }

const char* const kL145Name = "Erkl\xE4rung Verletzungen";
const char* const kL146Name = "Erkl\xE4rung Wirbels\xE4ulenbeschwerden";

const std::initializer_list<const char*> kL145Felder = {"Verletzungshergang",
                                                        "VerletzteOrgane",
                                                        "VerletzteGelenke",
                                                        "ArbeitsunfaehigVerletzungJN",
                                                        "ArbeitsunfaehigVerletzung",
                                                        "Verletzung",
                                                        "RoentgenaufnahmenJN",
                                                        "Roentgenaufnahmen",
                                                        "ArthroskopieJN",
                                                        "Arthroskopie",
                                                        "KoerperseiteArthroskopie",
                                                        "WeitereOperationJN",
                                                        "WeitereOperation",
                                                        "KoerperseiteWeitereOperation",
                                                        "Verordnung",
                                                        "AngabenVerordnung",
                                                        "VerordneteMedikamente",
                                                        "GeheiltJN",
                                                        "GeheiltSeit",
                                                        "Beschwerden",
                                                        "OperationJN",
                                                        "Operation",
                                                        "RehaJN",
                                                        "Reha",
                                                        "DauerfolgenJN",
                                                        "Dauerfolgen",
                                                        "Koerperhaelfte"};

// The L145 layout of "10.1999"; "01.2000" appends AntwortZuFrage.
const std::initializer_list<const char*> kL145Layout1999 = {"Verletzungshergang",
                                                            "Verletzung",
                                                            "ArztAdresse",
                                                            "KrankenhausJN",
                                                            "KurJN",
                                                            "KrankenhausKur",
                                                            "AdresseKrankenhausKurstaette",
                                                            "(Text)",
                                                            "GeheiltJN",
                                                            "GeheiltSeit",
                                                            "Beschwerden",
                                                            "OperationJN",
                                                            "Operation",
                                                            "RehaJN",
                                                            "Reha",
                                                            "DauerfolgenJN",
                                                            "Dauerfolgen",
                                                            "AdresseWeitererArzt",
                                                            "DatumBehandlungWeitererArzt",
                                                            "ErkrankungWeitererArzt",
                                                            "ArbeitsunfaehigJN",
                                                            "DatumArbeitsunfaehigkeit",
                                                            "ErkrankungArbeitsunfaehigkeit",
                                                            "(Flag)",
                                                            "(Int)",
                                                            "(Text)",
                                                            "Koerperhaelfte",
                                                            "Beginn",
                                                            "Dauer",
                                                            "Krankheit"};

// The own L145 fields of records before 10.2002 behind VerletzteOrgane and VerletzteGelenke.
const std::initializer_list<const char*> kL145VorOktober2002Rest = {
    "Verletzung", "(Text)", "GeheiltJN", "GeheiltSeit",   "Beschwerden", "OperationJN",
    "Operation",  "RehaJN", "Reha",      "DauerfolgenJN", "Dauerfolgen", "Koerperhaelfte"};

const std::initializer_list<const char*> kL146Felder1bis20 = {"Frage1",
                                                              "DeswegenArbeitsunfaehigJN",
                                                              "DauerArbeitsunfaehig",
                                                              "Wirbelsaeulenabschnitt",
                                                              "Diagnose",
                                                              "RoentgenJN",
                                                              "DatumRoentgen",
                                                              "OperationJN",
                                                              "Operation",
                                                              "Verordnung",
                                                              "SonstigeVerordnung",
                                                              "EinzelheitenVerordnung",
                                                              "Medikamente",
                                                              "GeheiltJN",
                                                              "GeheiltSeit",
                                                              "Beschwerden",
                                                              "OperationGeplantJN",
                                                              "GeplanteOperation",
                                                              "RehaJN",
                                                              "Reha"};
const std::initializer_list<const char*> kL146Felder21bis30 = {"KopfschmerzenJN",
                                                               "Kopfschmerzen",
                                                               "GelenkerkrankungenJN",
                                                               "Gelenkerkrankungen",
                                                               "BeckenschiefstandJN",
                                                               "Beckenschiefstand",
                                                               "NervenschmerzenJN",
                                                               "Nervenschmerzen",
                                                               "RheumaJN",
                                                               "Rheuma"};

// The L146 layout of "10.1999"; "01.2000" appends AntwortZuFrage.
const std::initializer_list<const char*> kL146Layout1999 = {"Beginn",
                                                            "Dauer",
                                                            "Frage1",
                                                            "DeswegenArbeitsunfaehigJN",
                                                            "DauerArbeitsunfaehig",
                                                            "Wirbelsaeulenabschnitt",
                                                            "Diagnose",
                                                            "ArztAdresse",
                                                            "KrankenhausJN",
                                                            "KurJN",
                                                            "KrankenhausKur",
                                                            "AdresseKrankenhausKurstaette",
                                                            "RoentgenJN",
                                                            "DatumRoentgen",
                                                            "OperationJN",
                                                            "Operation",
                                                            "Verordnung",
                                                            "SonstigeVerordnung",
                                                            "EinzelheitenVerordnung",
                                                            "Medikamente",
                                                            "GeheiltJN",
                                                            "GeheiltSeit",
                                                            "Beschwerden",
                                                            "OperationGeplantJN",
                                                            "GeplanteOperation",
                                                            "RehaJN",
                                                            "Reha",
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
    F erwartet;
    Satz s{erwartet, F::felder()};
};
class L145AltSatz : public AltSatzTest<qbFormularL145> {
protected:
    void kopf(const char* version) { s.kopf(version, "L145", kL145Name, 5, "VP2"); }
};
class L146AltSatz : public AltSatzTest<qbFormularL146> {
protected:
    void kopf(const char* version) { s.kopf(version, "L146", kL146Name, 5, "VP2"); }
};
class L145L146Strom : public ::testing::TestWithParam<Strom> {};

template <class F>
concept HatAntwortVerordnung = requires(const F& f) {
    f.AntwortVerordnung();
};

const std::pair<int, const char*> kPhrasen[] = {
    {1, "hat 1 Woche angedauert; "},   {2, "hat 2 Wochen angedauert; "},
    {3, "hat 3 Wochen angedauert; "},  {4, "hat 1 Monat angedauert; "},
    {8, "hat 2 Monate angedauert; "},  {12, "hat 3 Monate angedauert; "},
    {24, "hat 6 Monate angedauert; "}, {28, "hat l\xE4nger als 6 Monate angedauert; "},
    {-1, "dauert noch an; "},          {0, "dauert noch an; "},
    {5, "dauert noch an; "},           {INT_MAX, "dauert noch an; "}};

} // namespace

// ---- Construction

TEST(L145, ConstructorSetsTheHeaderAndLeavesTheCommonDauerAtMinusOne) {
    qbFormularL145 f;
    EXPECT_EQ(f.RefVersion().std(), "10.2002");
    EXPECT_EQ(f.RefDruckstueckNummer().std(), "L145");
    EXPECT_EQ(f.RefDruckstueckName().std(), kL145Name);
    EXPECT_EQ(f.RefSeitenanzahl(), 2);
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    EXPECT_EQ(f.RefDauer(), -1);
    EXPECT_EQ(f.RefArbeitsunfaehigVerletzungJN(), 0xff);
    EXPECT_EQ(f.RefDauerfolgenJN(), 0xff);
    EXPECT_TRUE(f.RefKoerperhaelfte().isNull());
}

TEST(L146, ConstructorSetsTheHeaderAndTheCommonDauerToZero_Quirk) {
    qbFormularL146 f;
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
    EXPECT_EQ(f.RefDruckstueckNummer().std(), "L146");
    EXPECT_EQ(f.RefDruckstueckName().std(), kL146Name);
    EXPECT_EQ(f.RefSeitenanzahl(), 2);
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    EXPECT_EQ(f.RefDauer(), 0);
    EXPECT_EQ(f.RefRheumaJN(), 0xff);
    EXPECT_EQ(f.RefDeswegenArbeitsunfaehigJN(), 0xff);
    EXPECT_TRUE(f.RefFrage1().isNull());
}

// ---- Composed answers

TEST(L145, AntwortFrage1OfADefaultFormEndsInThreeBlanks) {
    qbFormularL145 f;
    EXPECT_EQ(f.AntwortFrage1().std(), "Beginn: ; dauert noch an; " + std::string(3, ' '));
}

TEST(L145, AntwortFrage1JoinsBeginnDauerPhraseAndTheThreeInjuryTexts) {
    qbFormularL145 f;
    f.RefBeginn("03.2001");
    f.RefDauer(28);
    f.RefVerletzungshergang("Sturz");
    f.RefVerletzteOrgane("Milz");
    f.RefVerletzteGelenke("Knie");
    EXPECT_EQ(f.AntwortFrage1().std(),
              "Beginn: 03.2001; hat l\xE4nger als 6 Monate angedauert; Sturz Milz Knie ");
}

TEST(L145, AntwortFrage1UsesTheSingularPhraseForEveryDauerCode) {
    qbFormularL145 f;
    f.RefBeginn("2001");
    f.RefVerletzungshergang("Sturz");
    for (const auto& [dauer, phrase] : kPhrasen) {
        f.RefDauer(dauer);
        EXPECT_EQ(f.AntwortFrage1().std(), std::string("Beginn: 2001; ") + phrase + "Sturz   ") << dauer;
    }
}

TEST(L145, Dauer5GivesStillGoingOnNotAWeekOrMonth) {
    qbFormularL145 f;
    f.RefDauer(5);
    EXPECT_EQ(f.AntwortFrage1().std(), "Beginn: ; dauert noch an;    ");
}

TEST(L146, AntwortFrage1OfADefaultFormWithDauerZeroSaysStillGoingOn) {
    qbFormularL146 f;
    EXPECT_EQ(f.AntwortFrage1().std(), "Beginn: ; dauert noch an; ");
}

TEST(L146, AntwortFrage1UsesTheSingularPhraseForEveryDauerCodeAndAppendsFrage1) {
    qbFormularL146 f;
    f.RefBeginn("2001");
    f.RefFrage1("Bandscheibe");
    for (const auto& [dauer, phrase] : kPhrasen) {
        f.RefDauer(dauer);
        EXPECT_EQ(f.AntwortFrage1().std(), std::string("Beginn: 2001; ") + phrase + "Bandscheibe") << dauer;
    }
}

TEST(L146, Dauer5GivesStillGoingOnNotAWeekOrMonth) {
    qbFormularL146 f;
    f.RefDauer(5);
    f.RefFrage1("x");
    EXPECT_EQ(f.AntwortFrage1().std(), "Beginn: ; dauert noch an; x");
}

TEST(L146, AntwortVerordnungJoinsSonstigeVerordnungAndEinzelheiten) {
    qbFormularL146 f;
    f.RefSonstigeVerordnung("Massage");
    f.RefEinzelheitenVerordnung("zweimal w\xF6"
                                "chentlich");
    EXPECT_EQ(f.AntwortVerordnung().std(), "Massage; zweimal w\xF6"
                                           "chentlich");
}

TEST(L146, AntwortVerordnungWithEmptySonstigeVerordnungIsEinzelheitenUnchanged) {
    qbFormularL146 f;
    f.RefEinzelheitenVerordnung("Fango");
    EXPECT_EQ(f.AntwortVerordnung().std(), "Fango");
    f.RefEinzelheitenVerordnung("");
    EXPECT_EQ(f.AntwortVerordnung().std(), "");
}

TEST(L146, AntwortVerordnungWithEmptyEinzelheitenKeepsTheSeparator) {
    qbFormularL146 f;
    f.RefSonstigeVerordnung("Massage");
    EXPECT_EQ(f.AntwortVerordnung().std(), "Massage; ");
}

TEST(L145, HasNoAntwortVerordnungAlthoughItHoldsVerordnung_Quirk) {
    static_assert(!HatAntwortVerordnung<qbFormularL145>);
    static_assert(HatAntwortVerordnung<qbFormularL146>);
    qbFormularL145 f;
    f.RefVerordnung("Gips");
    f.RefAngabenVerordnung("6 Wochen");
    EXPECT_EQ(f.RefVerordnung().std(), "Gips");
    EXPECT_EQ(f.RefAngabenVerordnung().std(), "6 Wochen");
}

// ---- Saving

TEST(L145, DefaultSavesHeaderCommonFieldsAndTheTwentySevenOwnFields) {
    qbFormularL145 f;
    const Bytes eigene =
        cat({text(""), text(""), text(""),  ein(0xff), text(""),  text(""), ein(0xff), text(""), ein(0xff),
             text(""), text(""), ein(0xff), text(""),  text(""),  text(""), text(""),  text(""), ein(0xff),
             text(""), text(""), ein(0xff), text(""),  ein(0xff), text(""), ein(0xff), text(""), text("")});
    const Bytes erwartet =
        cat({text("10.2002"), text("L145"), text(kL145Name), int32(2), text("VP1"), gesuStandard(), eigene});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L146, DefaultSavesHeaderCommonFieldsWithDauerZeroAndTheThirtyOwnFields) {
    qbFormularL146 f;
    const Bytes gesu =
        cat({text(""), text(""), text(""), int32(0), text(""), ein(0xff), ein(0xff), text(""), text(""),
             text(""), text(""), text(""), ein(0xff), text(""), ein(0xff), text(""), text("")});
    const Bytes eigene =
        cat({text(""),  ein(0xff), text(""),  text(""), text(""),  ein(0xff), text(""),
             ein(0xff), text(""),  text(""),  text(""), text(""),  text(""),  ein(0xff),
             text(""),  text(""),  ein(0xff), text(""), ein(0xff), text(""),  leerePaare(5)});
    const Bytes erwartet =
        cat({text("05.2002"), text("L146"), text(kL146Name), int32(2), text("VP1"), gesu, eigene});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L145, RestoringA04_2002RecordAndSavingItGivesA10_2002RecordWithTheNewFieldsAtDefaults) {
    const AltSatz alt = AltSatz::kopf("04.2002", "L145", "Verletzung", 5, "VP2")
                            // the common fields 1 to 12 and 15 to 17
                            .text("Unfall")
                            .text("ja")
                            .text("2000")
                            .ganz(8)
                            .text("Dr. M\xFCller")
                            .flag(1)
                            .flag(0)
                            .text("Klinik")
                            .text("Bonn")
                            .text("Dr. Weiss")
                            .text("2001")
                            .text("Prellung")
                            .flag(1)
                            .text("05.2000")
                            .text("Bruch")
                            // the own fields of the layout before 05.2002
                            .text("Sturz")
                            .text("Fraktur")
                            .text("weg")
                            .flag(1)
                            .text("2001")
                            .text("keine")
                            .flag(0)
                            .text("")
                            .flag(1)
                            .text("Kur")
                            .flag(0)
                            .text("")
                            .text("links");
    bool genauAmEnde = false;
    const auto f = alt.lies<qbFormularL145>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefVersion().std(), "04.2002");
    const Bytes erwartet = cat({text("10.2002"), text("L145"), text("Verletzung"), int32(5), text("VP2"),
                                // common fields, 13 and 14 at their defaults
                                text("Unfall"), text("ja"), text("2000"), int32(8), text("Dr. M\xFCller"),
                                ein(1), ein(0), text("Klinik"), text("Bonn"), text("Dr. Weiss"), text("2001"),
                                text("Prellung"), ein(0xff), text(""), ein(1), text("05.2000"), text("Bruch"),
                                // own fields, the new ones at their defaults
                                text("Sturz"), text(""), text(""), ein(0xff), text(""), text("Fraktur"),
                                ein(0xff), text(""), ein(0xff), text(""), text(""), ein(0xff), text(""),
                                text(""), text(""), text(""), text(""), ein(1), text("2001"), text("keine"),
                                ein(0), text(""), ein(1), text("Kur"), ein(0), text(""), text("links")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "10.2002");
}

TEST(L146, RestoringA04_2002RecordAndSavingItGivesA05_2002RecordWithTheNewFieldsAtDefaults) {
    AltSatz alt = AltSatz::kopf("04.2002", "L146", "Wirbel", 5, "VP2");
    alt.text("Ischias").text("").text("1999").ganz(12).text("Dr. Rot").flag(0).flag(1).text("").text(
        "Bad Ems");
    alt.text("").text("").text("").flag(0).text("").text("");
    alt.text("LWS")
        .flag(1)
        .text("3 Wochen")
        .text("lumbal")
        .text("Prolaps")
        .flag(1)
        .text("2000")
        .flag(0)
        .text("");
    alt.text("Krankengymnastik")
        .text("Massage")
        .text("Fango")
        .text("Ibuprofen")
        .flag(1)
        .text("2001")
        .text("keine");
    alt.flag(0).text("").flag(1).text("Kur");
    bool genauAmEnde = false;
    const auto f = alt.lies<qbFormularL146>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    const Bytes erwartet = cat({text("05.2002"),
                                text("L146"),
                                text("Wirbel"),
                                int32(5),
                                text("VP2"),
                                text("Ischias"),
                                text(""),
                                text("1999"),
                                int32(12),
                                text("Dr. Rot"),
                                ein(0),
                                ein(1),
                                text(""),
                                text("Bad Ems"),
                                text(""),
                                text(""),
                                text(""),
                                ein(0xff),
                                text(""),
                                ein(0),
                                text(""),
                                text(""),
                                text("LWS"),
                                ein(1),
                                text("3 Wochen"),
                                text("lumbal"),
                                text("Prolaps"),
                                ein(1),
                                text("2000"),
                                ein(0),
                                text(""),
                                text("Krankengymnastik"),
                                text("Massage"),
                                text("Fango"),
                                text("Ibuprofen"),
                                ein(1),
                                text("2001"),
                                text("keine"),
                                ein(0),
                                text(""),
                                ein(1),
                                text("Kur"),
                                leerePaare(5)});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
}

TEST_P(L145L146Strom, FilledL145RoundTripsAndIsStampedOnEveryStream) {
    qbFormularL145 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    f.RefVersion("04.2002");
    qbFormularL145 gelesen;
    rundreise(f, gelesen, GetParam());
    EXPECT_EQ(f.RefVersion().std(), "10.2002");
    erwarteGleicheFelder(f, gelesen, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
}

TEST_P(L145L146Strom, FilledL146RoundTripsAndIsStampedOnEveryStream) {
    qbFormularL146 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    f.RefVersion("01.2000");
    qbFormularL146 gelesen;
    rundreise(f, gelesen, GetParam());
    EXPECT_EQ(f.RefVersion().std(), "05.2002");
    erwarteGleicheFelder(f, gelesen, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L145L146Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- Size

TEST(L145, BinaryStoreSizeIsTheCommonFigurePlus84AndTheOwnTextLengths) {
    qbFormularL145 f;
    const RWspace kopf = 20 + 7 + 4 + std::strlen(kL145Name) + 3;
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 84);
    f.RefVerletzungshergang("Sturz");
    f.RefKoerperhaelfte("links");
    f.RefVerordneteMedikamente("Ibuprofen");
    f.RefGeheiltJN(1);
    f.RefBeginn("2001");
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 4 + 84 + 5 + 5 + 9);
}

TEST(L146, BinaryStoreSizeIsTheCommonFigurePlus87AndTheOwnTextLengths) {
    qbFormularL146 f;
    const RWspace kopf = 20 + 7 + 4 + std::strlen(kL146Name) + 3;
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 87);
    f.RefFrage1("Ischias");
    f.RefRheuma("nein");
    f.RefKopfschmerzenJN(1);
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 87 + 7 + 4);
}

TEST(L145, BinaryStoreSizeIsTheSavedBytesLessTheCharactersOfAntwortZuFrage_Quirk) {
    qbFormularL145 f;
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    f.RefVersion("10.2002");
    const RWspace vorher = f.binaryStoreSize();
    f.RefAntwortZuFrage("eine l\xE4ngere Antwort");
    EXPECT_EQ(f.binaryStoreSize(), vorher);
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() - f.RefAntwortZuFrage().length());
}

TEST(L146, BinaryStoreSizeIsTheSavedBytesLessTheCharactersOfAntwortZuFrage_Quirk) {
    qbFormularL146 f;
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    f.RefVersion("05.2002");
    ASSERT_FALSE(f.RefAntwortZuFrage().isNull());
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() - f.RefAntwortZuFrage().length());
}

// ---- Copy, identity, reset

TEST(L145, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    qbFormularL145 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    const qbFormularL145 kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()}, "copy: ");
    qbFormularL145 ziel;
    fuelleAlle(ziel, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()}, 300);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()}, "assignment: ");
    std::unique_ptr<RWCollectable> c(quelle.copy());
    EXPECT_EQ(c->isA(), qbFormularL145::classIsA());
    erwarteGleicheFelder(quelle, static_cast<const qbFormular&>(*c),
                         {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()}, "copy(): ");
}

TEST(L146, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    qbFormularL146 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    const qbFormularL146 kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()}, "copy: ");
    qbFormularL146 ziel;
    fuelleAlle(ziel, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()}, 300);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()}, "assignment: ");
    std::unique_ptr<RWCollectable> neu(quelle.newSpecies());
    EXPECT_EQ(neu->isA(), qbFormularL146::classIsA());
    erwarteGleicheFelder(qbFormularL146(), static_cast<const qbFormular&>(*neu),
                         {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()}, "newSpecies(): ");
}

TEST(L145, LoescheResetsEverythingAndGivesBackVP1) {
    qbFormularL145 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    EXPECT_EQ(f.RefDauer(), -1);
    erwarteGleicheFelder(qbFormularL145(), f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
}

TEST(L146, LoescheResetsEverythingAndGivesBackVP1AndDauerZero) {
    qbFormularL146 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    EXPECT_EQ(f.RefDauer(), 0);
    erwarteGleicheFelder(qbFormularL146(), f, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
}

// ---- XML

TEST(L145, XMLgetDatNestsTheHeaderAndListsTheOwnFieldsButNoCommonOne) {
    qbFormularL145 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    CQBXMLdata knoten("L145");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL145");
    ASSERT_EQ(knoten.entryCount(), 28u);
    const CQBXMLdata& kopf = *knoten.entryAt(0);
    EXPECT_TRUE(kopf.isAdded());
    EXPECT_EQ(kopf.Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(kopf), kKopfSchluessel);
    std::vector<std::string> eigene = eintragsNamen(knoten);
    eigene.erase(eigene.begin());
    EXPECT_EQ(eigene, std::vector<std::string>(kL145Felder.begin(), kL145Felder.end()));
    RWCString s;
    EXPECT_FALSE(knoten.Listvalue("Krankheit", s));
    EXPECT_FALSE(knoten.Listvalue("ArztAdresse", s));
    EXPECT_TRUE(knoten.Listvalue("Koerperhaelfte", s));
    EXPECT_EQ(s.std(), f.RefKoerperhaelfte().std());
    unsigned char flag = 0;
    EXPECT_TRUE(knoten.Listvalue("RehaJN", flag));
    EXPECT_EQ(flag, f.RefRehaJN());
}

TEST(L145, XMLputDatReadsTheOwnKeysButNoHeaderOrCommonField) {
    qbFormularL145 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    CQBXMLdata knoten("L145");
    quelle.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Krankheit", "fremd"));
    knoten.List(CQBXMLdata("Dauer", 8));
    qbFormularL145 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL145");
    erwarteGleicheFelder(quelle, ziel, {&l145Tabelle()});
    erwarteGleicheFelder(qbFormularL145(), ziel, {&kopfTabelle(), &gesuTabelle()});
}

TEST(L145, XMLputDatWithANodeOfAnotherTypeChangesNothing) {
    qbFormularL146 andere;
    fuelleAlle(andere, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    CQBXMLdata knoten("L146");
    andere.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Verletzung", "fremd"));
    const CQBXMLdata vorher(knoten);
    qbFormularL145 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    erwarteGleicheFelder(qbFormularL145(), ziel, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
}

TEST(L145, XMLputDatAcceptsAnEmptyNodeOfItsTypeAndChangesNothing) {
    qbFormularL145 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    const qbFormularL145 vorher(f);
    CQBXMLdata knoten("leer");
    knoten.clear("qbFormularL145");
    f.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL145");
    EXPECT_EQ(knoten.entryCount(), 0u);
    erwarteGleicheFelder(vorher, f, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
}

TEST(L146, XMLgetDatNestsTheHeaderAndListsTheOwnFieldsButNoCommonOne) {
    qbFormularL146 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    CQBXMLdata knoten("L146");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL146");
    ASSERT_EQ(knoten.entryCount(), 31u);
    EXPECT_TRUE(knoten.entryAt(0)->isAdded());
    EXPECT_EQ(knoten.entryAt(0)->Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(*knoten.entryAt(0)), kKopfSchluessel);
    std::vector<std::string> erwartet(kL146Felder1bis20.begin(), kL146Felder1bis20.end());
    erwartet.insert(erwartet.end(), kL146Felder21bis30.begin(), kL146Felder21bis30.end());
    std::vector<std::string> eigene = eintragsNamen(knoten);
    eigene.erase(eigene.begin());
    EXPECT_EQ(eigene, erwartet);
    EXPECT_EQ(namenDerTabelle(l146Tabelle()), erwartet);
    RWCString s;
    EXPECT_FALSE(knoten.Listvalue("Beginn", s));
}

TEST(L146, XMLputDatReadsTheOwnKeysButNoHeaderOrCommonField) {
    qbFormularL146 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
    CQBXMLdata knoten("L146");
    quelle.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Beginn", "fremd"));
    qbFormularL146 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL146");
    erwarteGleicheFelder(quelle, ziel, {&l146Tabelle()});
    erwarteGleicheFelder(qbFormularL146(), ziel, {&kopfTabelle(), &gesuTabelle()});
}

TEST(L146, XMLputDatWithANodeOfAnotherTypeChangesNothing) {
    qbFormularL145 andere;
    fuelleAlle(andere, {&kopfTabelle(), &gesuTabelle(), &l145Tabelle()});
    CQBXMLdata knoten("L145");
    andere.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Frage1", "fremd"));
    const CQBXMLdata vorher(knoten);
    qbFormularL146 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    erwarteGleicheFelder(qbFormularL146(), ziel, {&kopfTabelle(), &gesuTabelle(), &l146Tabelle()});
}

// ---- L145 legacy records on every stream kind

TEST_P(L145AltSatz, Record10_1999HoldsTheTripleThenOwnAndCommonFieldsMixedWithoutAntwortZuFrage_Quirk) {
    kopf("10.1999");
    s.tripel().folge(kL145Layout1999);
    pruefe();
}

TEST_P(L145AltSatz, Record01_2000HoldsTheTripleThenOwnAndCommonFieldsMixedAndAntwortZuFrageLast_Quirk) {
    kopf("01.2000");
    s.tripel().folge(kL145Layout1999).gemeinsam("AntwortZuFrage");
    pruefe();
}

TEST_P(L145AltSatz, Record04_2002ReadsTheLayoutWithoutVerletzteOrganeAndVerletzteGelenke) {
    kopf("04.2002");
    s.gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder15bis17)
        .eigen("Verletzungshergang")
        .folge(kL145VorOktober2002Rest);
    pruefe();
}

TEST_P(L145AltSatz, Record05_2002ReadsVerletzteOrganeAndVerletzteGelenke) {
    kopf("05.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
    s.folge({"Verletzungshergang", "VerletzteOrgane", "VerletzteGelenke"}).folge(kL145VorOktober2002Rest);
    pruefe();
}

TEST_P(L145AltSatz, Record09_2002StillReadsTheLayoutBefore10_2002) {
    kopf("09.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
    s.folge({"Verletzungshergang", "VerletzteOrgane", "VerletzteGelenke"}).folge(kL145VorOktober2002Rest);
    pruefe();
}

TEST_P(L145AltSatz, Record10_2002ReadsTheCurrentLayout) {
    kopf("10.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17).folge(kL145Felder);
    pruefe();
}

TEST_P(L145AltSatz, Record12_2030ReadsAsTheCurrentLayout) {
    kopf("12.2030");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17).folge(kL145Felder);
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L145AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- L146 legacy records on every stream kind

TEST_P(L146AltSatz, Record10_1999HoldsTheTripleThenOwnAndCommonFieldsMixedWithoutAntwortZuFrage_Quirk) {
    kopf("10.1999");
    s.tripel().folge(kL146Layout1999);
    pruefe();
}

TEST_P(L146AltSatz, Record01_2000HoldsTheTripleThenOwnAndCommonFieldsMixedAndAntwortZuFrageLast_Quirk) {
    kopf("01.2000");
    s.tripel().folge(kL146Layout1999).gemeinsam("AntwortZuFrage");
    pruefe();
}

TEST_P(L146AltSatz, Record04_2002ReadsTheTwentyFieldsBefore05_2002) {
    kopf("04.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17).folge(kL146Felder1bis20);
    pruefe();
}

TEST_P(L146AltSatz, Record05_2002ReadsTheCurrentLayout) {
    kopf("05.2002");
    s.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
    s.folge(kL146Felder1bis20).folge(kL146Felder21bis30);
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L146AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
