// The identification forms L300 and L300_2 and the group tariff clause KOLL: L300's four layouts chosen by
// equality of the version key, its size four bytes over, the date with points; L300_2's XML key written one
// way and read another; KOLL's check and its message box.
#include "clerical/qbFormularKOLL.h"
#include "clerical/qbFormularL300.h"
#include "clerical/qbFormularL300_2.h"
#include "qballg/CQBXMLdata.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kL300Name = "Geldw\xE4schegesetz";
const char* const kL300_2Name = "Geldw\xE4schegesetz Firma";

struct Meldung {
    void* fenster;
    std::string text;
    std::string titel;
    unsigned art;
};
std::vector<Meldung> gezeigt;

int aufzeichnen(void* fenster, const char* text, const char* titel, unsigned art) {
    gezeigt.push_back({fenster, text, titel, art});
    return IDOK;
}

class KOLLPruefung : public ::testing::Test {
protected:
    void SetUp() override {
        vorher = qbSetMessageHandler(&aufzeichnen);
        gezeigt.clear();
    }
    void TearDown() override { qbSetMessageHandler(vorher); }
    qbMessageHandler vorher = nullptr;
};

// The nine fields every layout holds, the oldest layout alone.
const std::initializer_list<const char*> kNeunFelder = {
    "AntragstellerName",      "AntragstellerGebDat", "PersonalAusweisJN", "PassNr",          "PassBehoerde",
    "VermerkeDesVermittlers", "ReisepassJN",         "FremderName",       "FremderAnschrift"};
const std::initializer_list<const char*> kLayout200210 = {"AntragstellerName",
                                                          "AntragstellerGebDat",
                                                          "AntragstellerGebOrt",
                                                          "PersonalAusweisJN",
                                                          "PassNr",
                                                          "PassBehoerde",
                                                          "VermerkeDesVermittlers",
                                                          "ReisepassJN",
                                                          "FremderName",
                                                          "FremderAnschrift"};
const std::initializer_list<const char*> kZwoelfFelder = {"AntragstellerName",
                                                          "AntragstellerVorname",
                                                          "AntragstellerGebDat",
                                                          "AntragstellerGebOrt",
                                                          "AntragstellerNationalitaet",
                                                          "PersonalAusweisJN",
                                                          "PassNr",
                                                          "PassBehoerde",
                                                          "VermerkeDesVermittlers",
                                                          "ReisepassJN",
                                                          "FremderName",
                                                          "FremderAnschrift"};

class L300AltSatz : public ::testing::TestWithParam<Strom> {
protected:
    void pruefe(const std::string& version, std::initializer_list<const char*> felder) {
        s.kopf(version, "L300", "Geld", 3, "VP2").folge(felder);
        bool genauAmEnde = false;
        const auto gelesen = s.satz().lies<qbFormularL300>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &qbFormularL300::felder()});
    }
    qbFormularL300 erwartet;
    Satz s{erwartet, qbFormularL300::felder()};
};

class Clerical61Strom : public ::testing::TestWithParam<Strom> {};

} // namespace

// ---- L300

TEST(L300, ConstructorSetsTheHeaderAndLeavesEveryFlagUnanswered) {
    const qbFormularL300 f;
    EXPECT_EQ(f.RefVersion(), "08.2009");
    EXPECT_EQ(f.RefDruckstueckNummer(), "L300");
    EXPECT_EQ(f.RefDruckstueckName(), kL300Name);
    EXPECT_EQ(f.RefSeitenanzahl(), 1);
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    for (const qbFeld& z : qbFormularL300::felder())
        EXPECT_EQ(wert(z, f), z.art == qbArt::Flag ? "Flag 255" : "Text \"\"") << z.name;
}

TEST_P(L300AltSatz, Record10_1999ReadsTheNineFieldsOfTheOldestLayout) { pruefe("10.1999", kNeunFelder); }
TEST_P(L300AltSatz, Record11_2001ReadsTheNineFieldsOfTheOldestLayout_Quirk) {
    pruefe("11.2001", kNeunFelder);
}
TEST_P(L300AltSatz, Record10_2002ReadsThePlaceOfBirthToo) { pruefe("10.2002", kLayout200210); }
TEST_P(L300AltSatz, Record04_2003ReadsTheFirstTwelveFields) { pruefe("04.2003", kZwoelfFelder); }
TEST_P(L300AltSatz, Record08_2009ReadsAllFourteenFields) {
    std::vector<const char*> alle;
    for (const qbFeld& z : qbFormularL300::felder())
        alle.push_back(z.name);
    s.kopf("08.2009", "L300", "Geld", 3, "VP2");
    for (const char* f : alle)
        s.eigen(f);
    bool genauAmEnde = false;
    const auto gelesen = s.satz().lies<qbFormularL300>(GetParam(), &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &qbFormularL300::felder()});
}
// Equality, not a threshold: a later version reads the oldest layout.
TEST_P(L300AltSatz, Record09_2009ReadsNineFieldsSinceTheTestIsAnEquality_Quirk) {
    pruefe("09.2009", kNeunFelder);
}
TEST_P(L300AltSatz, Record11_2002BetweenTheKnownVersionsReadsNineFields_Quirk) {
    pruefe("11.2002", kNeunFelder);
}
INSTANTIATE_TEST_SUITE_P(JederStrom, L300AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST_P(Clerical61Strom, L300Record04_2003KeepsTheBeneficialOwnerAnswersTheObjectHeld) {
    qbFormularL300 leer;
    Satz s(leer, qbFormularL300::felder());
    s.kopf("04.2003", "L300", "Geld", 1, "VN").folge(kZwoelfFelder);
    const auto neu = s.satz().lies<qbFormularL300>(GetParam());
    EXPECT_EQ(neu.RefWirtschaftlichBerechtigterJN(), 0xff);
    EXPECT_EQ(neu.RefBerechtigerPrivatpersonJN(), 0xff);
    qbFormularL300 vorhanden;
    vorhanden.RefWirtschaftlichBerechtigterJN(1);
    vorhanden.RefBerechtigerPrivatpersonJN(0);
    bool genauAmEnde = false;
    s.satz().liesIn(vorhanden, GetParam(), &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(vorhanden.RefWirtschaftlichBerechtigterJN(), 1);
    EXPECT_EQ(vorhanden.RefBerechtigerPrivatpersonJN(), 0);
    EXPECT_EQ(vorhanden.RefAntragstellerName(), leer.RefAntragstellerName());
}

TEST_P(Clerical61Strom, FilledFormsRoundTripAndAreStamped) {
    qbFormularL300 l300;
    fuelleAlle(l300, {&qbFormularL300::felder()});
    l300.RefVersion("01.2001");
    qbFormularL300 l300Zurueck;
    rundreise(l300, l300Zurueck, GetParam());
    EXPECT_EQ(l300.RefVersion(), "08.2009");
    erwarteGleicheFelder(l300, l300Zurueck, {&kopfTabelle(), &qbFormularL300::felder()});

    qbFormularL300_2 firma;
    fuelleAlle(firma, {&qbFormularL300_2::felder()});
    firma.RefVersion("01.2001");
    qbFormularL300_2 firmaZurueck;
    rundreise(firma, firmaZurueck, GetParam());
    EXPECT_EQ(firmaZurueck.RefVersion(), "08.2009");
    erwarteGleicheFelder(firma, firmaZurueck, {&kopfTabelle(), &qbFormularL300_2::felder()});

    qbFormularKOLL koll;
    fuelleAlle(koll, {&qbFormularKOLL::felder()});
    koll.RefVersion("01.2001");
    qbFormularKOLL kollZurueck;
    rundreise(koll, kollZurueck, GetParam());
    EXPECT_EQ(kollZurueck.RefVersion(), "11.2001");
    EXPECT_EQ(kollZurueck.RefSeitenanzahl(), 0);
    erwarteGleicheFelder(koll, kollZurueck, {&kopfTabelle(), &qbFormularKOLL::felder()});
}

TEST(L300, SavedRecordIsTheHeaderAndTheFourteenFieldsInOrder) {
    qbFormularL300 f;
    f.RefAntragstellerName("Muster");
    f.RefAntragstellerGebDat("15011975");
    f.RefPersonalAusweisJN(1);
    f.RefBerechtigerPrivatpersonJN(0);
    const Bytes erwartet = AltSatz::kopf("08.2009", "L300", kL300Name, 1, "VN")
                               .text("Muster")
                               .text("")
                               .text("15011975")
                               .text("")
                               .text("")
                               .flag(1)
                               .texte(3)
                               .flag(0xff)
                               .texte(2)
                               .flag(0xff)
                               .flag(0)
                               .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
}

TEST(L300, BinaryStoreSizeCountsFourBytesMoreThanTheRecord_Quirk) {
    qbFormularL300 f;
    f.RefPassNr("L01X00T47");
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize() + 48 + 9);
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() + 4);
}

TEST(L300, VermerkeDesVermittlersJNOfThreeBlanksIsFalse) {
    qbFormularL300 f;
    EXPECT_FALSE(f.VermerkeDesVermittlersJN());
    f.RefVermerkeDesVermittlers("   ");
    EXPECT_FALSE(f.VermerkeDesVermittlersJN());
    f.RefVermerkeDesVermittlers(" x ");
    EXPECT_TRUE(f.VermerkeDesVermittlersJN());
}

TEST(L300, GebDatMitPktInsertsPointsOnlyIntoATextWithoutOne) {
    qbFormularL300 f;
    EXPECT_EQ(f.RefAntragstellerGebDatMitPkt(), "");
    f.RefAntragstellerGebDat("01021970");
    EXPECT_EQ(f.RefAntragstellerGebDatMitPkt(), "01.02.1970");
    f.RefAntragstellerGebDat("1.2.1970");
    EXPECT_EQ(f.RefAntragstellerGebDatMitPkt(), "1.2.1970");
    f.RefAntragstellerGebDat("0102");
    EXPECT_EQ(f.RefAntragstellerGebDatMitPkt(), "01.02.");
}

TEST(L300, LoescheLeavesThePersonEmptyAndKeepsTheVersion_Quirk) {
    qbFormularL300 f;
    fuelleAlle(f, {&qbFormularL300::felder()});
    f.RefVersion("04.2003");
    f.RefPersonenKennung("VP1");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung(), "");
    EXPECT_EQ(f.RefVersion(), "04.2003");
    EXPECT_EQ(f.RefDruckstueckNummer(), "L300");
    erwarteGleicheFelder(qbFormularL300(), f, {&qbFormularL300::felder()});
}

TEST(L300, CopyAndAssignmentCarryEveryField) {
    qbFormularL300 f;
    fuelleAlle(f, {&qbFormularL300::felder()});
    f.RefPersonenKennung("VP2");
    const qbFormularL300 kopie(f);
    erwarteGleicheFelder(f, kopie, {&kopfTabelle(), &qbFormularL300::felder()});
    qbFormularL300 zugewiesen;
    zugewiesen = f;
    erwarteGleicheFelder(f, zugewiesen, {&kopfTabelle(), &qbFormularL300::felder()});
}

TEST(L300, XmlListsTheFieldsUnderTheirNamesAndReadsThePerson) {
    qbFormularL300 f;
    fuelleAlle(f, {&qbFormularL300::felder()});
    f.RefPersonenKennung("VP2");
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularL300");
    std::vector<std::string> erwartet = {""};
    for (const qbFeld& z : qbFormularL300::felder())
        erwartet.push_back(z.name);
    EXPECT_EQ(eintragsNamen(knoten), erwartet);
    qbFormularL300 zurueck;
    zurueck.XMLputDat(knoten);
    EXPECT_EQ(zurueck.RefPersonenKennung(), "VP2");
    erwarteGleicheFelder(f, zurueck, {&qbFormularL300::felder()});
}

// ---- L300_2

TEST(L300_2, ConstructorSetsTheHeaderAndTheDefaults) {
    const qbFormularL300_2 f;
    EXPECT_EQ(f.RefVersion(), "08.2009");
    EXPECT_EQ(f.RefDruckstueckNummer(), "L300_2");
    EXPECT_EQ(f.RefDruckstueckName(), kL300_2Name);
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefMittelsFormularJN(), 0xff);
    EXPECT_EQ(f.RefAbweichendJN(), 0xff);
    EXPECT_EQ(f.RefName(), "");
}

TEST(L300_2, XmlPutOfItsOwnGetFindsNoMittelsFormularJNAndLeavesTheField_Quirk) {
    qbFormularL300_2 f;
    f.RefMittelsFormularJN(1);
    f.RefMittelsAuszugRegisterJN(0);
    f.RefName("Huber GmbH");
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(eintragsNamen(knoten),
              (std::vector<std::string>{"", "MittelsFormularJaJN", "MittelsAuszugRegisterJN",
                                        "MittelsAuszugGruendungJN", "AbweichendJN", "Name",
                                        "VermerkeDesVermittlers"}));
    qbFormularL300_2 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefMittelsFormularJN(), 0xff);
    EXPECT_EQ(ziel.RefMittelsAuszugRegisterJN(), 0);
    EXPECT_EQ(ziel.RefName(), "Huber GmbH");
    knoten.List(CQBXMLdata("MittelsFormularJN", static_cast<unsigned char>(1)));
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefMittelsFormularJN(), 1);
}

TEST(L300_2, SavedRecordAndSize) {
    qbFormularL300_2 f;
    f.RefMittelsFormularJN(1);
    f.RefName("Huber GmbH");
    const Bytes erwartet = AltSatz::kopf("08.2009", "L300_2", kL300_2Name, 1, "VN")
                               .flag(1)
                               .flags(3)
                               .text("Huber GmbH")
                               .text("")
                               .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize() + 12 + 10);
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
}

TEST(L300_2, LoescheLeavesThePersonEmpty_Quirk) {
    qbFormularL300_2 f;
    f.RefName("Huber GmbH");
    f.RefAbweichendJN(1);
    f.RefVersion("01.2009");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung(), "");
    EXPECT_EQ(f.RefVersion(), "01.2009");
    EXPECT_EQ(f.RefName(), "");
    EXPECT_EQ(f.RefAbweichendJN(), 0xff);
}

// ---- KOLL

TEST(KOLL, ConstructorSetsTheHeaderWithNoPages) {
    const qbFormularKOLL f;
    EXPECT_EQ(f.RefVersion(), "11.2001");
    EXPECT_EQ(f.RefDruckstueckNummer(), "KOLL");
    EXPECT_EQ(f.RefDruckstueckName(), "Gruppentarif-Klausel");
    EXPECT_EQ(f.RefSeitenanzahl(), 0);
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefVNMitgliedJN(), 0xff);
}

TEST(KOLL, SavedRecordAndSize) {
    qbFormularKOLL f;
    f.RefMitgliedsnummer("M 17");
    f.RefVPMitgliedJN(1);
    const Bytes erwartet = AltSatz::kopf("11.2001", "KOLL", "Gruppentarif-Klausel", 0, "VN")
                               .texte(2)
                               .text("M 17")
                               .flag(0xff)
                               .flag(1)
                               .flag(0xff)
                               .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize() + 15 + 4);
}

TEST_F(KOLLPruefung, NoNumberPartnerOrMemberNumberAsksForOne) {
    const qbFormularKOLL f;
    EXPECT_STREQ(f.pruefDaten(),
                 "Bitte geben Sie eine Gruppenvertragsnummer oder einen\nVertragspartner oder "
                 "Mitgliedsnummer (falls Verband) ein.");
}

TEST_F(KOLLPruefung, OnlyAMemberNumberAndNoFlagAtOneAsksForATick) {
    qbFormularKOLL f;
    f.RefMitgliedsnummer("M 17");
    EXPECT_STREQ(f.pruefDaten(), "Mindestens ein Haken muss gesetzt werden.");
    f.RefVNMitgliedJN(0); // 0 counts as not set, as 0xff does
    f.RefVPMitgliedJN(0);
    f.RefFamilienangehoerigerMitgliedJN(0xff);
    EXPECT_STREQ(f.pruefDaten(), "Mindestens ein Haken muss gesetzt werden.");
    f.RefFamilienangehoerigerMitgliedJN(1);
    EXPECT_STREQ(f.pruefDaten(), "");
}

TEST_F(KOLLPruefung, MessageIsShownWithCaptionAndTypeAndGivesFalse) {
    qbFormularKOLL f;
    int fenster = 0;
    EXPECT_FALSE(f.pruefDaten(1, &fenster));
    ASSERT_EQ(gezeigt.size(), 1u);
    EXPECT_EQ(gezeigt[0].fenster, &fenster);
    EXPECT_EQ(gezeigt[0].text, f.pruefDaten());
    EXPECT_EQ(gezeigt[0].titel, " Fehler");
    EXPECT_EQ(gezeigt[0].art, 0x10u);
}

TEST_F(KOLLPruefung, PruefDatenWithAnzeigenZeroShowsNothingAndGivesFalse) {
    qbFormularKOLL f;
    f.RefVertragspartner("Verband");
    int fenster = 0;
    EXPECT_FALSE(f.pruefDaten(0, &fenster));
    EXPECT_TRUE(gezeigt.empty());
}

TEST_F(KOLLPruefung, ClauseInOrderGivesTrueAndStaysSilent) {
    qbFormularKOLL f;
    f.RefKollektivvertragNummer("G 4711");
    f.RefVNMitgliedJN(1);
    EXPECT_TRUE(f.pruefDaten(1, nullptr));
    EXPECT_TRUE(gezeigt.empty());
}

namespace {

// A record of every field of the class, of that version, read on the stream kind.
template <class F>
void pruefeSatzAllerFelder(const char* version, const char* nummer, Strom art) {
    F erwartet;
    Satz s(erwartet, F::felder());
    s.kopf(version, nummer, "Stueck", 2, "VP1");
    for (const qbFeld& z : F::felder())
        s.eigen(z.name);
    bool genauAmEnde = false;
    const F gelesen = s.satz().template lies<F>(art, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde) << version << ": the reader did not stop at the record's end";
    erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &F::felder()});
}

} // namespace

TEST_P(Clerical61Strom, L300_2AndKOLLReadTheirOneLayoutWhateverTheVersion) {
    for (const char* version : {"10.1999", "11.2001", "08.2009", "12.2030"}) {
        pruefeSatzAllerFelder<qbFormularL300_2>(version, "L300_2", GetParam());
        pruefeSatzAllerFelder<qbFormularKOLL>(version, "KOLL", GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(JederStrom, Clerical61Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
