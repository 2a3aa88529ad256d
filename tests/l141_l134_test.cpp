// qbFormularL141 (gynaecology) and qbFormularL134 (diabetes): L141's early layouts without a key test and
// its save on a virtual stream without the common answers; L134's one key test and no early layout.
#include "health/qbFormularL134.h"
#include "health/qbFormularL141.h"

#include "gesund_test_util.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kL141Name = "Erkl\xE4rung Gyn\xE4kologische Erkrankungen";
const char* const kL134Name = "Erkrankung Diabetes mellitus";

const std::vector<std::string> kL141Felder = {"Symptome",
                                              "Diagnose",
                                              "OperationJN",
                                              "Operation",
                                              "BefundGutartigJN",
                                              "BefundBoesartigJN",
                                              "OrganeEntferntJN",
                                              "EntfernteOrgane",
                                              "StrahlentherapieJN",
                                              "Strahlentherapie",
                                              "RadiumtherapieJN",
                                              "Radiumtherapie",
                                              "ChemotherapieJN",
                                              "Chemotherapie",
                                              "Behandlung",
                                              "Medikamente",
                                              "GeheiltJN",
                                              "GeheiltSeit",
                                              "Beschwerden",
                                              "KontrolleJN",
                                              "OperationGeplantJN",
                                              "GeplanteOperation",
                                              "VorsorgeJN",
                                              "Vorsorge",
                                              "BefundEinwandfreiJN",
                                              "BefundKontrollbeduerftigJN"};
const std::vector<std::string> kL134Felder = {"TypI_JN",
                                              "TypII_JN",
                                              "DiaetJN",
                                              "DiaetSeit",
                                              "InsulinJN",
                                              "InsulinSeit",
                                              "Praeparate",
                                              "InsulinpumpeJN",
                                              "InsulinpumpeSeit",
                                              "TablettenJN",
                                              "TablettenSeit",
                                              "Medikamente",
                                              "SchockzustaendeJN",
                                              "Schockzustaende",
                                              "EiweissJN",
                                              "Eiweiss",
                                              "AugenhintergrundveraenderungJN",
                                              "Augenhintergrundveraenderung",
                                              "AlkoholJN",
                                              "Alkohol",
                                              "ZigarettenJN",
                                              "Zigaretten",
                                              "OptimalEingestelltJN",
                                              "OptimalEingestelltSeit",
                                              "Beschwerden",
                                              "KontrolleJN",
                                              "Kontrolle",
                                              "Blutuntersuchung",
                                              "HbA1",
                                              "BlutzuckerNuechtern",
                                              "BlutzuckerNachEssen",
                                              "Urinuntersuchung",
                                              "UrinEiweiss",
                                              "UrinZucker",
                                              "Aceton",
                                              "BlutdruckSyst",
                                              "BlutdruckDiast",
                                              "DatumBlutdruck",
                                              "BluthochdruckJN",
                                              "Bluthochdruck",
                                              "HerzerkrankungenJN",
                                              "Herzerkrankungen",
                                              "FettstoffwechselstoerungJN",
                                              "Fettstoffwechselstoerung",
                                              "NierenerkrankungJN",
                                              "Nierenerkrankung",
                                              "GefaesserkrankungJN",
                                              "Gefaesserkrankung",
                                              "NeurologischeErkrankungJN",
                                              "NeurologischeErkrankung",
                                              "SonstigeErkrankungJN",
                                              "SonstigeErkrankung",
                                              "MedikamenteWeitererArzt"};

// The L141 layout of "10.1999"; "01.2000" appends AntwortZuFrage.
const std::initializer_list<const char*> kL141Layout1999 = {"Beginn",
                                                            "Symptome",
                                                            "Diagnose",
                                                            "ArztAdresse",
                                                            "KrankenhausJN",
                                                            "KurJN",
                                                            "KrankenhausKur",
                                                            "OperationJN",
                                                            "Operation",
                                                            "BefundGutartigJN",
                                                            "BefundBoesartigJN",
                                                            "OrganeEntferntJN",
                                                            "EntfernteOrgane",
                                                            "StrahlentherapieJN",
                                                            "Strahlentherapie",
                                                            "RadiumtherapieJN",
                                                            "Radiumtherapie",
                                                            "ChemotherapieJN",
                                                            "Chemotherapie",
                                                            "Behandlung",
                                                            "Medikamente",
                                                            "GeheiltJN",
                                                            "GeheiltSeit",
                                                            "Beschwerden",
                                                            "KontrolleJN",
                                                            "OperationGeplantJN",
                                                            "GeplanteOperation",
                                                            "VorsorgeJN",
                                                            "Vorsorge",
                                                            "BefundEinwandfreiJN",
                                                            "BefundKontrollbeduerftigJN",
                                                            "AdresseWeitererArzt",
                                                            "ErkrankungWeitererArzt",
                                                            "ArbeitsunfaehigJN",
                                                            "DatumArbeitsunfaehigkeit",
                                                            "ErkrankungArbeitsunfaehigkeit",
                                                            "(Flag)",
                                                            "(Int)",
                                                            "(Text)",
                                                            "Krankheit"};

template <class F>
class Layouts : public GesuAltSatz<F> {
protected:
    void eigene(const std::vector<std::string>& felder, const char* ohne = "") {
        for (const std::string& f : felder)
            if (f != ohne) this->s.eigen(f.c_str());
    }
};
class L141AltSatz : public Layouts<qbFormularL141> {};
class L134AltSatz : public Layouts<qbFormularL134> {};
class L141Strom : public ::testing::TestWithParam<Strom> {};
class L134Strom : public ::testing::TestWithParam<Strom> {};

} // namespace

// ---- Construction and the current record

TEST(L141, ConstructorSetsTheHeader) {
    qbFormularL141 f;
    erwarteKopf(f, "05.2002", "L141", kL141Name, 2, "VP1");
    EXPECT_EQ(namenDerTabelle(qbFormularL141::felder()), kL141Felder);
    EXPECT_EQ(f.RefBefundKontrollbeduerftigJN(), 0xff);
}

TEST(L134, ConstructorSetsTheHeaderAndBloodPressureStartsAtZero) {
    qbFormularL134 f;
    erwarteKopf(f, "05.2002", "L134", kL134Name, 2, "VP1");
    EXPECT_EQ(namenDerTabelle(qbFormularL134::felder()), kL134Felder);
    EXPECT_EQ(f.RefBlutdruckSyst(), 0);
    EXPECT_EQ(f.RefBlutdruckDiast(), 0);
    EXPECT_EQ(f.RefTypI_JN(), 0xff);
}

TEST(L141, DefaultSavesHeaderCommonFieldsAndTheTwentySixOwnFieldsOnRWFile) {
    qbFormularL141 f;
    const Bytes erwartet = cat({kopfBytes("05.2002", "L141", kL141Name, 2, "VP1"), gesuStandardBytes(),
                                standardBytes("TTFTFFFTFTFTFTTTFTTFFTFTFF")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L134, DefaultSavesHeaderCommonFieldsAndTheFiftyThreeOwnFields) {
    qbFormularL134 f;
    const Bytes erwartet = cat({kopfBytes("05.2002", "L134", kL134Name, 2, "VP1"), gesuStandardBytes(),
                                standardBytes("FFFTFTTFTFTTFTFTFTFTFTFTTFTTTTTTTTTIITFTFTFTFTFTFTFTT")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L141, FilledFormRoundTripsThroughRWFileAndIsStamped) {
    pruefeRundreise<qbFormularL141>(Strom::Datei, "05.2002");
}
TEST_P(L134Strom, FilledFormRoundTripsAndIsStamped) {
    pruefeRundreise<qbFormularL134>(GetParam(), "05.2002");
}
INSTANTIATE_TEST_SUITE_P(JederStrom, L134Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(L141, BinaryStoreSizeIsTheCommonFigurePlus65AndTheOwnTextLengths) { pruefeGroesse<qbFormularL141>(65); }
TEST(L134, BinaryStoreSizeIsTheCommonFigurePlus152AndTheOwnTextLengths) {
    pruefeGroesse<qbFormularL134>(152);
}
TEST(L141, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    pruefeKopieUndZuweisung<qbFormularL141>();
}
TEST(L134, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    pruefeKopieUndZuweisung<qbFormularL134>();
}
TEST(L141, LoescheResetsEverythingAndGivesBackVP1) { pruefeLoesche<qbFormularL141>("VP1"); }
TEST(L134, LoescheResetsEverythingAndGivesBackVP1) { pruefeLoesche<qbFormularL134>("VP1"); }
TEST(L141, XmlHoldsTheOwnKeysInTableOrderAndReadsThemBack) { pruefeXml<qbFormularL141>(kL141Felder); }
TEST(L134, XmlHoldsTheOwnKeysInTableOrderAndReadsThemBack) { pruefeXml<qbFormularL134>(kL134Felder); }

// ---- L141 on a virtual stream

TEST_P(L141Strom, SavedOnRWvostreamHoldsTheHeaderAndTheOwnFieldsButNoKrankheitAtAll_Quirk) {
    qbFormularL141 f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &qbFormularL141::felder()});
    f.RefKrankheit("Myom");
    f.RefVersion("01.2001");
    std::ostringstream strom, erwartet;
    if (GetParam() == Strom::Binaer) {
        RWbostream s(strom), e(erwartet);
        f.saveGuts(s);
        kopfTabelle().schreibe(f, e);
        qbFormularL141::felder().schreibe(f, e);
    } else {
        RWpostream s(strom), e(erwartet);
        f.saveGuts(s);
        kopfTabelle().schreibe(f, e);
        qbFormularL141::felder().schreibe(f, e);
    }
    EXPECT_EQ(f.RefVersion().std(), "05.2002") << "stamped";
    EXPECT_EQ(hex(bytesOf(strom.str())), hex(bytesOf(erwartet.str())));
    EXPECT_EQ(strom.str().find("Myom"), std::string::npos);
}

TEST_P(L141Strom, ARecordSavedOnAVirtualStreamDoesNotReadBack_Quirk) {
    qbFormularL141 quelle;
    quelle.RefSymptome("Schmerzen");
    quelle.RefDiagnose("Myom");
    qbFormularL141 gelesen;
    rundreise(quelle, gelesen, GetParam());
    EXPECT_EQ(gelesen.RefKrankheit().std(), "Schmerzen")
        << "the reader takes the own fields as the common ones";
    EXPECT_EQ(gelesen.RefAntwortZuFrage().std(), "Myom");
    EXPECT_NE(gelesen.RefDiagnose().std(), "Myom");
}
INSTANTIATE_TEST_SUITE_P(VirtuellerStrom, L141Strom, ::testing::Values(Strom::Binaer, Strom::Portabel),
                         stromName);

// ---- L141 legacy records on every stream kind

TEST_P(L141AltSatz, Record10_1999HoldsTheTripleThenOwnAndCommonFieldsMixedWithoutAntwortZuFrage_Quirk) {
    kopf("10.1999");
    s.tripel().folge(kL141Layout1999);
    pruefe();
}

TEST_P(L141AltSatz, Record01_2000ReadsTheSameAndAntwortZuFrageLast_Quirk) {
    kopf("01.2000");
    s.tripel().folge(kL141Layout1999).gemeinsam("AntwortZuFrage");
    pruefe();
}

TEST_P(L141AltSatz, Record11_2000HoldsTheCommonFieldsTheTripleAndAllOwnFields) {
    kopf("11.2000");
    gemeinsam(false).tripel();
    eigene(kL141Felder);
    pruefe();
}

TEST_P(L141AltSatz, Record12_2001HoldsTheCommonFieldsWithoutTheChangeOfWorkplaceAndAllOwnFields) {
    kopf("12.2001");
    gemeinsam(false);
    eigene(kL141Felder);
    pruefe();
}

TEST_P(L141AltSatz, Record05_2002ReadsTheCurrentLayout) {
    kopf("05.2002");
    gemeinsam(true);
    eigene(kL141Felder);
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L141AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- L134 legacy records on every stream kind

TEST_P(L134AltSatz, Record10_1999LeavesTheCommonFieldsUnreadAndTakesTheLayoutBefore05_2002_Quirk) {
    kopf("10.1999");
    s.tripel();
    eigene(kL134Felder, "ZigarettenJN");
    pruefe();
}

TEST_P(L134AltSatz, Record01_2000LeavesTheCommonFieldsAndAntwortZuFrageUnread_Quirk) {
    kopf("01.2000");
    s.tripel();
    eigene(kL134Felder, "ZigarettenJN");
    pruefe();
}

TEST_P(L134AltSatz, Record11_2000HoldsTheCommonFieldsTheTripleAndNoZigarettenJN) {
    kopf("11.2000");
    gemeinsam(false).tripel();
    eigene(kL134Felder, "ZigarettenJN");
    pruefe();
}

TEST_P(L134AltSatz, Record11_2001HoldsTheChangeOfWorkplaceAndNoZigarettenJN) {
    kopf("11.2001");
    gemeinsam(true);
    eigene(kL134Felder, "ZigarettenJN");
    pruefe();
}

TEST_P(L134AltSatz, Record04_2002ReadsOneFlagFewerThan05_2002) {
    kopf("04.2002");
    gemeinsam(false);
    eigene(kL134Felder, "ZigarettenJN");
    pruefe();
    EXPECT_EQ(s.satz().werte().size() + 1 + 2, [] {
        qbFormularL134 e;
        Satz satz(e, qbFormularL134::felder());
        satz.kopf("05.2002", "L134", "Alter Name", 5, "VP2");
        satz.gemeinsam(kFelder1bis12).gemeinsam(kFelder13und14).gemeinsam(kFelder15bis17);
        for (const std::string& f : kL134Felder)
            satz.eigen(f.c_str());
        return satz.satz().werte().size();
    }());
}

TEST_P(L134AltSatz, Record05_2002ReadsTheCurrentLayout) {
    kopf("05.2002");
    gemeinsam(true);
    eigene(kL134Felder);
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L134AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(L134, ZigarettenJNBefore05_2002KeepsItsValue) {
    AltSatz satz = AltSatz::kopf("04.2002", "L134", kL134Name, 2, "VP1");
    satz.text("Diabetes").text("").text("1995").ganz(28).text("").flag(0).flag(0).texte(5).flag(0).texte(2);
    satz.flag(0).flag(1).flag(1).text("1996").flag(0).texte(2).flag(0).text("").flag(1).text("1997");
    satz.text("Metformin").flag(0).text("").flag(0).text("").flag(0).text("").flag(0).text("");
    satz.text("5 am Tag").flag(1).text("2000").text("").flag(1).text("j\xE4hrlich").texte(8);
    satz.ganz(140).ganz(90).text("").flag(0).text("").flag(0).text("").flag(0).text("").flag(0).text("");
    satz.flag(0).text("").flag(0).text("").flag(0).text("").text("");
    qbFormularL134 f;
    f.RefZigarettenJN(1);
    bool genauAmEnde = false;
    satz.liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefZigarettenJN(), 1);
    EXPECT_EQ(f.RefZigaretten().std(), "5 am Tag");
    EXPECT_EQ(f.RefBlutdruckSyst(), 140);
    EXPECT_EQ(f.RefBlutdruckDiast(), 90);
}
