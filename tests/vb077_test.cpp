// The research report VB077 (its nine contracts, the setters that empty dependent answers, the check that
// lists what is missing page by page, its operator== beside isEqual, stored on an RWFile only) and its
// supplement VB077A.
#include "clerical/qbFormularVB077.h"
#include "clerical/qbFormularVB077A.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/cp1252_literal.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

using namespace qbtest;

namespace {

using VA = qbFormularVB077::VERSICHERUNGSART;

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

class VB077Pruefung : public ::testing::Test {
protected:
    void SetUp() override {
        vorher = qbSetMessageHandler(&aufzeichnen);
        gezeigt.clear();
    }
    void TearDown() override { qbSetMessageHandler(vorher); }
    qbMessageHandler vorher = nullptr;
};

// Page one complete: nothing there is missing.
qbFormularVB077 seiteEinsVollstaendig() {
    qbFormularVB077 f;
    f.RefFD("FD Regensburg");
    f.RefBD("BD Ost");
    f.RefWohnortVN("Regensburg");
    f.RefTelefonVN("0941 1");
    f.RefFamilienstandVN("ledig");
    f.RefMtlEinkommenVN(3200);
    f.RefBerufVN("Schreiner");
    f.RefArbeitgeberVN("Holzbau Huber");
    f.RefWeitereVertraegeJN(0);
    return f;
}

// Both pages complete.
qbFormularVB077 vollstaendig() {
    qbFormularVB077 f = seiteEinsVollstaendig();
    f.RefZweckLV("Altersvorsorge");
    f.RefVerbindungKreditJN(0);
    f.RefVCAuskunft("ohne Befund");
    f.RefBestandssicherJN(0);
    f.RefNameRechercheur("Meier");
    f.RefVornameRechercheur("Hans");
    f.RefFDBDAgenturRechercheur("4711");
    return f;
}

const std::vector<std::string> kXmlFolge = {"",
                                            "FD",
                                            "BD",
                                            "WohnortVN",
                                            "TelefonVN",
                                            "FamilienstandVN",
                                            "AnzahlKinderVN",
                                            "MtlEinkommenVN",
                                            "MtlBelastungVN",
                                            "BerufVN",
                                            "BerufEhepartnerVN",
                                            "ArbeitgeberVN",
                                            "WohnqualitaetVN",
                                            "WohnhaftGegendVN",
                                            "HausGrundbesitzVN",
                                            "WeitereVertraegeJN",
                                            "ZweckLV",
                                            "SonstigerZweckLV",
                                            "VerbindungKreditJN",
                                            "Kreditinstitut",
                                            "Verhandlungspartner",
                                            "VCAuskunft",
                                            "ErgebnisVCAuskunft",
                                            "BestandssicherJN",
                                            "BestandssicherBegruendung",
                                            "AuslaendischerAntragstellerJN",
                                            "SeitWannInBRD",
                                            "DauerAufenthaltserlaubnis",
                                            "NationalitaetEhepartner",
                                            "BerufEhepartner",
                                            "NameRechercheur",
                                            "VornameRechercheur",
                                            "FDBDAgenturRechercheur"};

class VB077Strom : public ::testing::TestWithParam<Strom> {};
class VB077Virtuell : public ::testing::TestWithParam<Strom> {};

} // namespace

// ---- Construction and setters

TEST(VB077, ConstructorNamesSevenOfTheNineContracts) {
    qbFormularVB077 f;
    EXPECT_EQ(f.RefVersion(), "06.2003");
    EXPECT_EQ(f.RefDruckstueckNummer(), "VB077");
    EXPECT_EQ(f.RefDruckstueckName(), "Recherchebericht zum LV-Antrag");
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    const char* const arten[] = {"PHV",     "Rechtsschutz", "Hausrat", "Kfz", "Unfall",
                                 "Kranken", "Leben",        "",        ""};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(f.RefArt(i), arten[i]) << i;
        EXPECT_EQ(f.RefVertragJN(static_cast<VA>(i)), 0xff) << i;
        EXPECT_EQ(f.RefGesellschaft(i), "") << i;
    }
    EXPECT_EQ(f.RefWeitereVertraegeJN(), 0xff);
    EXPECT_EQ(f.RefAuslaendischerAntragstellerJN(), 0xff);
    EXPECT_EQ(f.RefMtlEinkommenVN(), 0);
}

TEST(VB077, RefVertragJNNotOneEmptiesTheContractButItsArt) {
    qbFormularVB077 f;
    f.RefVertragJN(qbFormularVB077::Kfz, 1);
    f.RefGesellschaft(qbFormularVB077::Kfz, "HUK");
    f.RefBeitrag(qbFormularVB077::Kfz, "40 EUR");
    f.RefSeit(qbFormularVB077::Kfz, "2001");
    f.RefAblauf(qbFormularVB077::Kfz, "2011");
    f.RefVertragJN(qbFormularVB077::Kfz, 1); // 1 empties nothing
    EXPECT_EQ(f.RefGesellschaft(qbFormularVB077::Kfz), "HUK");
    f.RefVertragJN(qbFormularVB077::Kfz, 0);
    EXPECT_EQ(f.RefVertragJN(qbFormularVB077::Kfz), 0);
    EXPECT_EQ(f.RefArt(qbFormularVB077::Kfz), "Kfz");
    EXPECT_EQ(f.RefGesellschaft(qbFormularVB077::Kfz), "");
    EXPECT_EQ(f.RefBeitrag(qbFormularVB077::Kfz), "");
    EXPECT_EQ(f.RefSeit(qbFormularVB077::Kfz), "");
    EXPECT_EQ(f.RefAblauf(qbFormularVB077::Kfz), "");
}

TEST(VB077, ClearingAContractLeavesTheArtTheAgentWroteAtIndices7And8) {
    qbFormularVB077 f;
    f.RefArt(7, "Berufsunfähigkeit"_cp1252);
    f.RefArt(8, "Tierhalter");
    f.RefGesellschaft(8, "Ergo");
    f.RefVertragJN(qbFormularVB077::Sonstige1, 0xff);
    f.RefVertragJN(qbFormularVB077::Sonstige2, 0);
    EXPECT_EQ(f.RefArt(7), "Berufsunfähigkeit"_cp1252);
    EXPECT_EQ(f.RefArt(8), "Tierhalter");
    EXPECT_EQ(f.RefGesellschaft(8), "");
}

TEST(VB077, RefWeitereVertraegeJN0SetsEveryContractTo0xffNot0AndKeepsEveryArt_Quirk) {
    qbFormularVB077 f;
    f.RefArt(7, "Tierhalter");
    for (int i = 0; i < 9; ++i) {
        f.RefVertragJN(static_cast<VA>(i), 1);
        f.RefGesellschaft(i, "G" + RWCString(std::to_string(i)));
    }
    f.RefWeitereVertraegeJN(0);
    EXPECT_EQ(f.RefWeitereVertraegeJN(), 0);
    const char* const arten[] = {"PHV",     "Rechtsschutz", "Hausrat",    "Kfz", "Unfall",
                                 "Kranken", "Leben",        "Tierhalter", ""};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(f.RefVertragJN(static_cast<VA>(i)), 0xff) << i;
        EXPECT_EQ(f.RefArt(i), arten[i]) << i;
        EXPECT_EQ(f.RefGesellschaft(i), "") << i;
    }
    f.RefVertragJN(qbFormularVB077::PHV, 1);
    f.RefWeitereVertraegeJN(1); // 1 touches no contract
    EXPECT_EQ(f.RefVertragJN(qbFormularVB077::PHV), 1);
}

TEST(VB077, RefZweckLVWithACapitalSonstigeEmptiesSonstigerZweckLV_Quirk) {
    qbFormularVB077 f;
    f.RefSonstigerZweckLV("Ausbildung");
    f.RefZweckLV("sonstige Zwecke");
    EXPECT_EQ(f.RefSonstigerZweckLV(), "Ausbildung");
    f.RefZweckLV("Sonstige");
    EXPECT_EQ(f.RefZweckLV(), "Sonstige");
    EXPECT_EQ(f.RefSonstigerZweckLV(), "");
}

TEST(VB077, CreditAndStabilitySettersEmptyTheirTextsUnlessOne) {
    qbFormularVB077 f;
    f.RefKreditinstitut("Sparkasse");
    f.RefVerhandlungspartner("Herr Huber");
    f.RefBestandssicherBegruendung("lange Kunde");
    f.RefVerbindungKreditJN(1);
    f.RefBestandssicherJN(1);
    EXPECT_EQ(f.RefKreditinstitut(), "Sparkasse");
    EXPECT_EQ(f.RefBestandssicherBegruendung(), "lange Kunde");
    f.RefVerbindungKreditJN(0xff);
    f.RefBestandssicherJN(0);
    EXPECT_EQ(f.RefVerbindungKreditJN(), 0xff);
    EXPECT_EQ(f.RefKreditinstitut(), "");
    EXPECT_EQ(f.RefVerhandlungspartner(), "");
    EXPECT_EQ(f.RefBestandssicherJN(), 0);
    EXPECT_EQ(f.RefBestandssicherBegruendung(), "");
}

// ---- The check

TEST(VB077, PruefDatenFalseOnANewFormGivesPageOneAndTheFirstLineOnly) {
    EXPECT_EQ(qbFormularVB077().pruefDaten(false), "Seite 1:\n  Name der FD\n");
}

TEST(VB077, PruefDatenTrueOnANewFormListsBothPages) {
    EXPECT_EQ(qbFormularVB077().pruefDaten(true),
              "Seite 1:\n  Name der FD\n  Name der BD\n  Wohnort des VN\n  Telefon des VN\n"
              "  Familienstand des VN\n  Mtl. Einkommen des VN\n  Beruf des VN\n  Arbeitgeber des VN\n"
              "  Weitere Versicherungsverträge ja/nein\n"
              "\nSeite 2:\n  Zweck der LV\n  Verbindung mit Kredit ja/nein\n  VC-Auskunft\n"
              "  Bestandssicher ja/nein\n  Name Rechercheur\n  Vorname Rechercheur\n"
              "  Agentur Rechercheur\n"_cp1252);
}

TEST(VB077, PruefDatenTrueWithPageOneCompleteStartsWithTheLineFeedBeforeSeite2_Quirk) {
    qbFormularVB077 f = seiteEinsVollstaendig();
    EXPECT_EQ(f.pruefDaten(true).std().substr(0, 25), "\nSeite 2:\n  Zweck der LV\n");
    EXPECT_EQ(f.pruefDaten(false), "\nSeite 2:\n  Zweck der LV\n");
}

TEST(VB077, WithAlleFalseAGapOnPageOneLeavesPageTwoUnlookedAt) {
    qbFormularVB077 f = seiteEinsVollstaendig();
    f.RefTelefonVN("");
    EXPECT_EQ(f.pruefDaten(false), "Seite 1:\n  Telefon des VN\n");
}

TEST(VB077, UnnamedContractAt7GivesTheLineWithEmptyQuotesWhileANamedOnePasses) {
    qbFormularVB077 f = vollstaendig();
    f.RefWeitereVertraegeJN(1);
    f.RefVertragJN(qbFormularVB077::Kfz, 1); // named, nothing else given: passes
    EXPECT_EQ(f.pruefDaten(true), "");
    f.RefVertragJN(qbFormularVB077::Sonstige1, 1);
    EXPECT_EQ(f.pruefDaten(true), "Seite 1:\n  Angaben zum Versicherungsvertrag \"\"\n");
    f.RefVertragJN(qbFormularVB077::Sonstige2, 1);
    EXPECT_EQ(f.pruefDaten(false), "Seite 1:\n  Angaben zum Versicherungsvertrag \"\"\n");
    EXPECT_EQ(f.pruefDaten(true),
              "Seite 1:\n  Angaben zum Versicherungsvertrag \"\"\n  Angaben zum Versicherungsvertrag \"\"\n");
}

TEST(VB077, FurtherContractsYesWithNoneTickedAsksForThem) {
    qbFormularVB077 f = vollstaendig();
    f.RefWeitereVertraegeJN(1);
    EXPECT_EQ(f.pruefDaten(true), "Seite 1:\n  Angaben zu weiteren Versicherungsverträgen\n"_cp1252);
}

TEST(VB077, MarriedApplicantWantsTheSpousesOccupationAndOhneBerufNoEmployer) {
    qbFormularVB077 f = vollstaendig();
    f.RefFamilienstandVN("verheiratet");
    f.RefBerufVN("ohne Beruf");
    f.RefArbeitgeberVN("");
    EXPECT_EQ(f.pruefDaten(true), "Seite 1:\n  Beruf des Ehepartners des VN\n");
    f.RefBerufEhepartnerVN("Lehrerin");
    EXPECT_EQ(f.pruefDaten(true), "");
}

TEST(VB077, PageTwoAsksForCreditStabilityAndTheForeignApplicant) {
    qbFormularVB077 f = vollstaendig();
    f.RefFamilienstandVN("verheiratet");
    f.RefBerufEhepartnerVN("Lehrerin");
    f.RefVerbindungKreditJN(1);
    f.RefBestandssicherJN(1);
    f.RefAuslaendischerAntragstellerJN(1);
    f.RefAnzahlKinderVN(0); // never tested, as are the texts below
    f.RefSonstigerZweckLV("");
    EXPECT_EQ(f.pruefDaten(true),
              "\nSeite 2:\n  Darlehensgeber / Kreditinstitut\n"
              "  Verhandlungspartner bei Darlehensgeber / Kreditinstitut\n"
              "  Begründung Bestandssicherheit\n  Seit wann in der BRD\n"
              "  Dauer Aufenthaltserlaubnis\n  Beruf Ehepartner\n  Nationalität Ehepartner\n"_cp1252);
}

TEST_F(VB077Pruefung, MessageBoxShowsTheListUnderTheRequestAndGivesFalse) {
    const qbFormularVB077 f;
    int fenster = 0;
    EXPECT_FALSE(f.pruefDaten(1, &fenster, false));
    ASSERT_EQ(gezeigt.size(), 1u);
    EXPECT_EQ(gezeigt[0].fenster, &fenster);
    EXPECT_EQ(gezeigt[0].text, "Bitte ergänzen Sie folgende Angaben:\n\nSeite 1:\n  Name der FD\n"_cp1252);
    EXPECT_EQ(gezeigt[0].titel, " Fehler");
    EXPECT_EQ(gezeigt[0].art, 0x10u);
    EXPECT_FALSE(f.pruefDaten(0, &fenster, true));
    EXPECT_EQ(gezeigt.size(), 1u);
    EXPECT_TRUE(vollstaendig().pruefDaten(1, &fenster, true));
    EXPECT_EQ(gezeigt.size(), 1u);
}

// ---- Equality

TEST(VB077, OperatorEqualsComparesTheAnswersButNotTheContractsWhileIsEqualTakesTheHeader_Quirk) {
    qbFormularVB077 a = vollstaendig();
    qbFormularVB077 b = vollstaendig();
    EXPECT_TRUE(a == b);
    b.RefGesellschaft(0, "Allianz");
    b.RefVertragJN(qbFormularVB077::Leben, 1);
    EXPECT_TRUE(a == b);
    b.RefBD("BD West");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a.isEqual(&b));
    b = a;
    b.RefPersonenKennung("VP1");
    EXPECT_FALSE(a == b);
    b = a;
    b.RefDruckstueckName("anders"); // the header counts by qbFormular's rule: number and person
    EXPECT_TRUE(a == b);
}

// ---- Persistence

TEST(VB077, Record01_2003IsReadWithoutFDAndBDAndTheNextSaveStampsAndWritesThemEmpty) {
    qbFormularVB077 erwartet;
    Satz s(erwartet, qbFormularVB077::felder());
    s.kopf("01.2003", "VB077", "Recherche", 1, "VP2");
    for (const qbFeld& z : qbFormularVB077::felder())
        if (z.liesAbSchluessel == 0) s.eigen(z.name);
    bool genauAmEnde = false;
    qbFormularVB077 f = s.satz().lies<qbFormularVB077>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
    erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &qbFormularVB077::felder()});
    EXPECT_EQ(f.RefFD(), "");
    EXPECT_EQ(f.RefBD(), "");
    EXPECT_EQ(f.RefAuslaendischerAntragstellerJN(), 0xff);
    const Bytes neu = gespeichert(f);
    EXPECT_EQ(f.RefVersion(), "06.2003");
    const Bytes ende = AltSatz().text("").text("").text("").flag(0xff).bytes();
    EXPECT_EQ(Bytes(neu.end() - static_cast<long>(ende.size()), neu.end()), ende);
}

TEST(VB077, Record01_2003KeepsTheLaterFieldsTheObjectHeld) {
    qbFormularVB077 leer;
    Satz s(leer, qbFormularVB077::felder());
    s.kopf("01.2003", "VB077", "Recherche", 1, "VP2");
    for (const qbFeld& z : qbFormularVB077::felder())
        if (z.liesAbSchluessel == 0) s.eigen(z.name);
    qbFormularVB077 f;
    f.RefFD("FD Nord");
    f.RefAuslaendischerAntragstellerJN(1);
    s.satz().liesIn(f, Strom::Datei);
    EXPECT_EQ(f.RefFD(), "FD Nord");
    EXPECT_EQ(f.RefAuslaendischerAntragstellerJN(), 1);
}

TEST(VB077, Record06_2003ReadsAllThirtyEightFields) {
    qbFormularVB077 erwartet;
    Satz s(erwartet, qbFormularVB077::felder());
    s.kopf("06.2003", "VB077", "Recherche", 1, "VP2");
    for (const qbFeld& z : qbFormularVB077::felder())
        s.eigen(z.name);
    bool genauAmEnde = false;
    const qbFormularVB077 f = s.satz().lies<qbFormularVB077>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &qbFormularVB077::felder()});
}

// No virtual-stream operations of its own: an old record there is its header, and a form arrives with its
// header and default fields.
TEST_P(VB077Virtuell, OnAVirtualStreamOnlyTheHeaderTravels) {
    bool genauAmEnde = false;
    const qbFormularVB077 alt = AltSatz::kopf("01.2003", "VB077", "Recherche", 1, "VP2")
                                    .lies<qbFormularVB077>(GetParam(), &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(alt.RefVersion(), "01.2003");
    erwarteGleicheFelder(qbFormularVB077(), alt, {&qbFormularVB077::felder()});
    qbFormularVB077 f = vollstaendig();
    f.RefPersonenKennung("VP1");
    f.RefVersion("01.2003");
    qbFormularVB077 zurueck;
    rundreise(f, zurueck, GetParam());
    EXPECT_EQ(f.RefVersion(), "01.2003"); // the base's save does not stamp
    EXPECT_EQ(zurueck.RefPersonenKennung(), "VP1");
    erwarteGleicheFelder(qbFormularVB077(), zurueck, {&qbFormularVB077::felder()});
}

TEST_P(VB077Strom, VB077ARoundTripsAndIsStamped) {
    qbFormularVB077A f;
    fuelleAlle(f, {&qbFormularVB077A::felder()});
    f.RefVersion("01.2001");
    qbFormularVB077A zurueck;
    rundreise(f, zurueck, GetParam());
    EXPECT_EQ(zurueck.RefVersion(), "11.2001");
    erwarteGleicheFelder(f, zurueck, {&kopfTabelle(), &qbFormularVB077A::felder()});
}

TEST_P(VB077Strom, VB077ARecordOfAnOldVersionReadsItsFourTexts) {
    for (const char* version : {"10.1999", "11.2001"}) {
        qbFormularVB077A erwartet;
        Satz s(erwartet, qbFormularVB077A::felder());
        s.kopf(version, "VB077A", "Ausl", 1, "VP2")
            .folge(
                {"AufenthaltsBeginn", "DauerAufenthaltserlaubnis", "NationalitaetEhegatte", "BerufEhegatte"});
        bool genauAmEnde = false;
        const auto f = s.satz().lies<qbFormularVB077A>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << version;
        erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &qbFormularVB077A::felder()});
    }
}
INSTANTIATE_TEST_SUITE_P(JederStrom, VB077Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(VB077, SavedRecordIsTheHeaderThenTheTableWithTheContractsInPasses) {
    qbFormularVB077 f;
    f.RefWohnortVN("Regensburg");
    f.RefMtlEinkommenVN(3200);
    f.RefVertragJN(qbFormularVB077::PHV, 1);
    f.RefGesellschaft(0, "Allianz");
    f.RefFD("FD Ost");
    AltSatz s = AltSatz::kopf("06.2003", "VB077", "Recherchebericht zum LV-Antrag", 1, "VN");
    s.text("Regensburg").texte(2).ganz(0).ganz(3200).ganz(0).texte(5).flag(0xff);
    const char* const arten[] = {"PHV",     "Rechtsschutz", "Hausrat", "Kfz", "Unfall",
                                 "Kranken", "Leben",        "",        ""};
    for (int i = 0; i < 9; ++i)
        s.flag(i ? 0xff : 1).text(arten[i]).text(i ? "" : "Allianz").texte(3);
    s.texte(2).flag(0xff).texte(4).flag(0xff).texte(8).text("").text("FD Ost").text("").flag(0xff);
    EXPECT_EQ(gespeichert(f), s.bytes());
}

TEST(VB077, BinaryStoreSizeIsExact) {
    qbFormularVB077 f = vollstaendig();
    f.RefGesellschaft(4, "Ergo");
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
    qbFormularVB077 leer;
    size_t arten = 0;
    for (int i = 0; i < 9; ++i)
        arten += leer.RefArt(i).length();
    EXPECT_EQ(leer.binaryStoreSize(), qbFormular(leer).binaryStoreSize() + 116 + 9 * 21 + arten);
    qbFormularVB077A a;
    a.RefBerufEhegatte("Arzt");
    EXPECT_EQ(a.binaryStoreSize(), qbFormular(a).binaryStoreSize() + 16 + 4);
}

// ---- XML

TEST(VB077, XmlWritesTheAnswersInItsOwnOrderThenTheContractsPassByPass) {
    qbFormularVB077 f = vollstaendig();
    f.RefGesellschaft(2, "Ergo");
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularVB077");
    std::vector<std::string> erwartet = kXmlFolge;
    for (int i = 0; i < 9; ++i)
        for (const char* a : {"VertragJN", "Art", "Gesellschaft", "Beitrag", "Seit", "Ablauf"})
            erwartet.push_back(std::string(a) + "[" + std::to_string(i) + "]");
    EXPECT_EQ(eintragsNamen(knoten), erwartet);
    qbFormularVB077 zurueck;
    zurueck.XMLputDat(knoten);
    erwarteGleicheFelder(f, zurueck, {&qbFormularVB077::felder()});
}

TEST(VB077, XmlPutWritesTheFieldsDirectlyWithoutTheSettersSideEffects) {
    qbFormularVB077 f;
    f.RefVertragJN(qbFormularVB077::Hausrat, 1);
    f.RefGesellschaft(2, "Ergo");
    f.RefKreditinstitut("Sparkasse");
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    qbFormularVB077 zurueck;
    zurueck.XMLputDat(knoten); // VerbindungKreditJN 0xff and WeitereVertraegeJN 0xff empty nothing here
    EXPECT_EQ(zurueck.RefKreditinstitut(), "Sparkasse");
    EXPECT_EQ(zurueck.RefGesellschaft(2), "Ergo");
}

TEST(VB077, LoescheGivesAFreshReportAndCopyCarriesTheContracts) {
    qbFormularVB077 f = vollstaendig();
    f.RefGesellschaft(3, "HUK");
    const qbFormularVB077 kopie(f);
    erwarteGleicheFelder(f, kopie, {&kopfTabelle(), &qbFormularVB077::felder()});
    f.RefPersonenKennung("VP2");
    f.loesche();
    erwarteGleicheFelder(qbFormularVB077(), f, {&kopfTabelle(), &qbFormularVB077::felder()});
}

TEST(VB077A, ConstructorSetsTheHeader) {
    const qbFormularVB077A f;
    EXPECT_EQ(f.RefVersion(), "11.2001");
    EXPECT_EQ(f.RefDruckstueckNummer(), "VB077A");
    EXPECT_EQ(f.RefDruckstueckName(), "Ausländischer Antragsteller"_cp1252);
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefAufenthaltsBeginn(), "");
}

INSTANTIATE_TEST_SUITE_P(BeideVirtuellen, VB077Virtuell, ::testing::Values(Strom::Binaer, Strom::Portabel),
                         stromName);

TEST(VB077A, SavedRecordIsTheHeaderAndItsFourTexts) {
    qbFormularVB077A f;
    f.RefNationalitaetEhegatte("italienisch");
    const Bytes erwartet = AltSatz::kopf("11.2001", "VB077A", "Ausländischer Antragsteller"_cp1252, 1, "VN")
                               .texte(2)
                               .text("italienisch")
                               .text("")
                               .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
}
