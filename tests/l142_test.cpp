// qbFormularL142 (stomach): its layouts from 10.1999 on, the conversion of the old diagnosis Flags while
// reading, rule by rule, the composed answer, size and XML.
#include "health/qbFormularL142.h"

#include "gesund_test_util.h"

#include <array>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kName = "Erkl\xE4rung Magen- und Zw\xF6lffingerdarmerkrankungen";

const std::vector<std::string> kFelder = {"SodbrennenJN",
                                          "AppetitmangelJN",
                                          "ErbrechenJN",
                                          "DurchfallJN",
                                          "SonstigeSymptomeJN",
                                          "SonstigeSymptome",
                                          "HaeufigkeitBeschwerden",
                                          "Diagnose",
                                          "SonstigeDiagnose",
                                          "GastroskopieJN",
                                          "Gastroskopie",
                                          "KotoskopieJN",
                                          "Kotoskopie",
                                          "OperationJN",
                                          "Operation",
                                          "Medikamente",
                                          "AlkoholJN",
                                          "Alkohol",
                                          "ZigarettenJN",
                                          "Zigaretten",
                                          "GeheiltJN",
                                          "GeheiltSeit",
                                          "Beschwerden",
                                          "OperationGeplantJN",
                                          "GeplanteOperation",
                                          "DiaetJN",
                                          "Diaet",
                                          "AktuelleMedikamente",
                                          "MedikamenteWeitererArzt"};

// The six legacy diagnosis Flags and the Text behind them, as the layouts before 05.2002 hold them.
const std::initializer_list<const char*> kAlteDiagnose = {"(Flag)", "(Flag)", "(Flag)", "(Flag)",
                                                          "(Flag)", "(Flag)", "(Text)"};

// The own fields of the layout before 05.2002 behind the legacy diagnosis.
const std::initializer_list<const char*> kVor200205Rest = {"GastroskopieJN",
                                                           "Gastroskopie",
                                                           "OperationJN",
                                                           "Operation",
                                                           "Medikamente",
                                                           "AlkoholJN",
                                                           "Alkohol",
                                                           "Zigaretten",
                                                           "GeheiltJN",
                                                           "GeheiltSeit",
                                                           "Beschwerden",
                                                           "OperationGeplantJN",
                                                           "GeplanteOperation",
                                                           "DiaetJN",
                                                           "Diaet",
                                                           "AktuelleMedikamente",
                                                           "MedikamenteWeitererArzt"};

class L142AltSatz : public GesuAltSatz<qbFormularL142> {};
class L142Strom : public ::testing::TestWithParam<Strom> {};

// A record of the layout before 05.2002 (12.2001: no change of workplace) with the given DurchfallJN, legacy
// diagnosis Flags and Text; SonstigeSymptomeJN 0 and SonstigeSymptome "Sodbrennen nachts".
AltSatz satzVor200205(unsigned char durchfall, std::array<unsigned char, 6> diagnose,
                      const std::string& text) {
    AltSatz s = AltSatz::kopf("12.2001", "L142", kName, 2, "VP1");
    s.text("Gastritis").text("").text("2000").ganz(4).text("Dr. Berg").flag(0).flag(0).texte(2).texte(3);
    s.flag(0).texte(2); // common 15 to 17
    s.flag(1)
        .flag(0)
        .flag(0)
        .flag(durchfall)
        .flag(0)
        .text("Sodbrennen nachts")
        .text("w\xF6"
              "chentlich");
    for (unsigned char f : diagnose)
        s.flag(f);
    s.text(text);
    s.flag(1)
        .text("2001")
        .flag(0)
        .text("")
        .text("Omeprazol")
        .flag(0)
        .text("")
        .text("10 am Tag")
        .flag(1)
        .text("2002");
    return s.text("keine").flag(0).text("").flag(1).text("Schonkost").text("Pantoprazol").text("");
}

qbFormularL142 gelesen(const AltSatz& s, Strom art = Strom::Datei) {
    bool genauAmEnde = false;
    qbFormularL142 f = s.lies<qbFormularL142>(art, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
    return f;
}

} // namespace

// ---- Construction and the current record

TEST(L142, ConstructorSetsTheHeaderAndUnansweredFlags) {
    qbFormularL142 f;
    erwarteKopf(f, "05.2002", "L142", kName, 2, "VP1");
    EXPECT_EQ(f.RefDurchfallJN(), 0xff);
    EXPECT_EQ(f.RefZigarettenJN(), 0xff);
    EXPECT_TRUE(f.RefDiagnose().isNull());
    EXPECT_EQ(namenDerTabelle(qbFormularL142::felder()), kFelder);
}

TEST(L142, DefaultSavesHeaderCommonFieldsAndTheTwentyNineOwnFields) {
    qbFormularL142 f;
    const Bytes erwartet = cat({kopfBytes("05.2002", "L142", kName, 2, "VP1"), gesuStandardBytes(),
                                standardBytes("FFFFFTTTTFTFTFTTFTFTFTTFTFTTT")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST_P(L142Strom, FilledFormRoundTripsAndIsStamped) {
    pruefeRundreise<qbFormularL142>(GetParam(), "05.2002");
}
INSTANTIATE_TEST_SUITE_P(JederStrom, L142Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(L142, BinaryStoreSizeIsTheCommonFigurePlus77AndTheOwnTextLengths) { pruefeGroesse<qbFormularL142>(77); }
TEST(L142, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    pruefeKopieUndZuweisung<qbFormularL142>();
}
TEST(L142, LoescheResetsEverythingAndGivesBackVP1) { pruefeLoesche<qbFormularL142>("VP1"); }
TEST(L142, XmlHoldsTheOwnKeysInTableOrderAndReadsThemBack) { pruefeXml<qbFormularL142>(kFelder); }

// ---- The composed answer

TEST(L142, DefaultFormComposesStillGoingOnWithTheSeparatorTwice_Quirk) {
    qbFormularL142 f;
    EXPECT_EQ(f.AntwortFrage1c().std(), "Beschwerden dauern noch an; ; ");
}

TEST(L142, AntwortFrage1cUsesThePluralPhraseAndTheFrequencyButNotBeginn) {
    qbFormularL142 f;
    f.RefBeginn("1999");
    f.RefHaeufigkeitBeschwerden("t\xE4glich");
    const std::pair<int, const char*> phrasen[] = {{1, "haben 1 Woche angedauert; "},
                                                   {2, "haben 2 Wochen angedauert; "},
                                                   {3, "haben 3 Wochen angedauert; "},
                                                   {4, "haben 1 Monat angedauert; "},
                                                   {8, "haben 2 Monate angedauert; "},
                                                   {12, "haben 3 Monate angedauert; "},
                                                   {24, "haben 6 Monate angedauert; "},
                                                   {28, "haben l\xE4nger als 6 Monate angedauert; "},
                                                   {-1, "dauern noch an; "},
                                                   {0, "dauern noch an; "},
                                                   {5, "dauern noch an; "}};
    for (const auto& [dauer, phrase] : phrasen) {
        f.RefDauer(dauer);
        EXPECT_EQ(f.AntwortFrage1c().std(), std::string("Beschwerden ") + phrase + "; t\xE4glich") << dauer;
    }
}

// ---- The conversion of old diagnoses, rule by rule

TEST(L142Umwandlung, DurchfallYesBecomesNoWithOtherSymptomsUpperAbdominalComplaints) {
    const qbFormularL142 f = gelesen(satzVor200205(1, {0, 0, 0, 0, 0, 0}, "x"));
    EXPECT_EQ(f.RefDurchfallJN(), 0);
    EXPECT_EQ(f.RefSonstigeSymptomeJN(), 1);
    EXPECT_EQ(f.RefSonstigeSymptome().std(), "Oberbauchbeschwerden");
    EXPECT_EQ(f.RefHaeufigkeitBeschwerden().std(), "w\xF6"
                                                   "chentlich");
}

TEST(L142Umwandlung, DurchfallOtherThanYesStaysAndKeepsTheSymptomsAsRead) {
    for (unsigned char durchfall : {0, 0xff, 2}) {
        const qbFormularL142 f = gelesen(satzVor200205(durchfall, {0, 0, 0, 0, 0, 0}, "x"));
        EXPECT_EQ(f.RefDurchfallJN(), durchfall);
        EXPECT_EQ(f.RefSonstigeSymptomeJN(), 0);
        EXPECT_EQ(f.RefSonstigeSymptome().std(), "Sodbrennen nachts");
    }
}

TEST(L142Umwandlung, Flag1GivesOtherDiagnosisLackOfAcidSpeltAsStored_Quirk) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {1, 0, 0, 0, 0, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "--sonstige Diagnose--");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "S\xE4ueremangel");
}

TEST(L142Umwandlung, Flag2GivesUlcerAndAnEmptyOtherDiagnosis) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {0, 1, 0, 0, 0, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "Magen- oder Zw\xF6lffingerdarmgeschw\xFCr");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "");
}

TEST(L142Umwandlung, Flag3GivesOtherDiagnosisGastritisOfTheMucosa) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {0, 0, 1, 0, 0, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "--sonstige Diagnose--");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "Magenschleimhautentz\xFCndung");
}

TEST(L142Umwandlung, Flag4GivesTumourAndAnEmptyOtherDiagnosis) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {0, 0, 0, 1, 0, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "Geschwulst, Tumor");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "");
}

TEST(L142Umwandlung, Flag5GivesChronicGastritisAndAnEmptyOtherDiagnosis) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {0, 0, 0, 0, 1, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "rez./chron. Gastritis");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "");
}

TEST(L142Umwandlung, Flag6EmptiesTheDiagnosisAndTakesTheStoredTextAsOtherDiagnosis) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {0, 0, 0, 0, 0, 1}, "Reizmagen"));
    EXPECT_EQ(f.RefDiagnose().std(), "");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "Reizmagen");
}

TEST(L142Umwandlung, TextIsDroppedUnlessTheSixthFlagIsYes) {
    qbFormularL142 f;
    f.RefDiagnose("vorher");
    f.RefSonstigeDiagnose("auch vorher");
    bool genauAmEnde = false;
    satzVor200205(0, {0, 0xff, 2, 0, 0, 0}, "Reizmagen").liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefDiagnose().std(), "vorher") << "no Flag said yes: the fields keep their values";
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "auch vorher");
}

TEST(L142Umwandlung, Version12_2001WithFlags2And5GivesTheLaterDiagnosis) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {0, 1, 0, 0, 1, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "rez./chron. Gastritis");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "");
}

TEST(L142Umwandlung, Flags1And6EmptyTheDiagnosisAndKeepTheStoredText) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {1, 0, 0, 0, 0, 1}, "Reizmagen"));
    EXPECT_EQ(f.RefDiagnose().std(), "");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "Reizmagen");
}

TEST(L142Umwandlung, Flag1AfterNothingAndFlag3LaterGivesTheLaterOtherDiagnosis) {
    const qbFormularL142 f = gelesen(satzVor200205(0, {1, 0, 1, 0, 0, 0}, "verworfen"));
    EXPECT_EQ(f.RefDiagnose().std(), "--sonstige Diagnose--");
    EXPECT_EQ(f.RefSonstigeDiagnose().std(), "Magenschleimhautentz\xFCndung");
}

TEST(L142Umwandlung, RunsOnTheVirtualStreamsAlike) {
    for (Strom art : {Strom::Binaer, Strom::Portabel}) {
        const qbFormularL142 f = gelesen(satzVor200205(1, {0, 0, 0, 0, 0, 1}, "Reizmagen"), art);
        EXPECT_EQ(f.RefDurchfallJN(), 0);
        EXPECT_EQ(f.RefSonstigeSymptome().std(), "Oberbauchbeschwerden");
        EXPECT_EQ(f.RefSonstigeDiagnose().std(), "Reizmagen");
    }
}

TEST(L142Umwandlung, RunsInTheLayoutOf10_1999BehindSonstigeSymptome) {
    AltSatz s = AltSatz::kopf("10.1999", "L142", kName, 2, "VP1").flag(0xff).ganz(0).text("");
    s.text("1998").ganz(8);                                       // Beginn, Dauer
    s.flag(0).flag(0).flag(0).flag(1).flag(0).text("Kr\xE4mpfe"); // SodbrennenJN .. SonstigeSymptome
    s.text("selten");                                             // HaeufigkeitBeschwerden
    s.flag(0).flag(0).flag(0).flag(1).flag(0).flag(0).text("x");  // the legacy diagnosis
    s.text("Dr. A").flag(0).flag(0).text("");                     // ArztAdresse .. KrankenhausKur
    s.flag(0).text("").flag(0).text("").text("").flag(0).text("").text("").flag(0).text("").text("");
    s.flag(0).text("").flag(0).text("").text("");         // OperationGeplantJN .. AktuelleMedikamente
    s.texte(3).flag(0).texte(2).flag(0).ganz(0).text(""); // weiterer Arzt, Arbeitsunfaehig, the triple
    s.text("Magen");                                      // Krankheit
    const qbFormularL142 f = gelesen(s);
    EXPECT_EQ(f.RefDurchfallJN(), 0);
    EXPECT_EQ(f.RefSonstigeSymptomeJN(), 1);
    EXPECT_EQ(f.RefSonstigeSymptome().std(), "Oberbauchbeschwerden");
    EXPECT_EQ(f.RefHaeufigkeitBeschwerden().std(), "selten");
    EXPECT_EQ(f.RefDiagnose().std(), "Geschwulst, Tumor");
    EXPECT_EQ(f.RefKrankheit().std(), "Magen");
    EXPECT_EQ(f.RefDauer(), 8);
}

TEST(L142Umwandlung, DurchfallYesInARecordOf05_2002StaysYes) {
    qbFormularL142 quelle;
    quelle.RefDurchfallJN(1);
    quelle.RefSonstigeSymptome("anderes");
    quelle.RefDiagnose("Reflux");
    qbFormularL142 f;
    rundreise(quelle, f, Strom::Datei);
    EXPECT_EQ(f.RefDurchfallJN(), 1);
    EXPECT_EQ(f.RefSonstigeSymptomeJN(), 0xff);
    EXPECT_EQ(f.RefSonstigeSymptome().std(), "anderes");
    EXPECT_EQ(f.RefDiagnose().std(), "Reflux");
}

TEST(L142, KotoskopieAndZigarettenJNAreNotReadBefore05_2002AndKeepTheirValues) {
    qbFormularL142 f;
    f.RefKotoskopieJN(1);
    f.RefKotoskopie("2001");
    f.RefZigarettenJN(0);
    bool genauAmEnde = false;
    satzVor200205(0, {0, 0, 0, 0, 0, 0}, "x").liesIn(f, Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefKotoskopieJN(), 1);
    EXPECT_EQ(f.RefKotoskopie().std(), "2001");
    EXPECT_EQ(f.RefZigarettenJN(), 0);
    EXPECT_EQ(f.RefZigaretten().std(), "10 am Tag");
    EXPECT_EQ(f.RefGeheiltSeit().std(), "2002");
}

// ---- Legacy records on every stream kind (legacy diagnosis Flags that say no)

TEST_P(L142AltSatz, Record10_1999HoldsTheTripleThenOwnAndCommonFieldsMixedWithoutAntwortZuFrage_Quirk) {
    kopf("10.1999");
    s.tripel().folge({"Beginn", "Dauer", "SodbrennenJN", "AppetitmangelJN", "ErbrechenJN", "DurchfallJN",
                      "SonstigeSymptomeJN", "SonstigeSymptome", "HaeufigkeitBeschwerden"});
    s.folge(kAlteDiagnose).folge({"ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur"});
    s.folge({"GastroskopieJN",
             "Gastroskopie",
             "OperationJN",
             "Operation",
             "Medikamente",
             "AlkoholJN",
             "Alkohol",
             "Zigaretten",
             "GeheiltJN",
             "GeheiltSeit",
             "Beschwerden",
             "OperationGeplantJN",
             "GeplanteOperation",
             "DiaetJN",
             "Diaet",
             "AktuelleMedikamente",
             "AdresseWeitererArzt",
             "ErkrankungWeitererArzt",
             "MedikamenteWeitererArzt",
             "ArbeitsunfaehigJN",
             "DatumArbeitsunfaehigkeit",
             "ErkrankungArbeitsunfaehigkeit",
             "(Flag)",
             "(Int)",
             "(Text)",
             "Krankheit"});
    pruefe();
}

TEST_P(L142AltSatz, Record01_2000ReadsTheSameAndAntwortZuFrageLast_Quirk) {
    kopf("01.2000");
    s.tripel().folge({"Beginn", "Dauer", "SodbrennenJN", "AppetitmangelJN", "ErbrechenJN", "DurchfallJN",
                      "SonstigeSymptomeJN", "SonstigeSymptome", "HaeufigkeitBeschwerden"});
    s.folge(kAlteDiagnose).folge({"ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur"});
    s.folge({"GastroskopieJN",
             "Gastroskopie",
             "OperationJN",
             "Operation",
             "Medikamente",
             "AlkoholJN",
             "Alkohol",
             "Zigaretten",
             "GeheiltJN",
             "GeheiltSeit",
             "Beschwerden",
             "OperationGeplantJN",
             "GeplanteOperation",
             "DiaetJN",
             "Diaet",
             "AktuelleMedikamente",
             "AdresseWeitererArzt",
             "ErkrankungWeitererArzt",
             "MedikamenteWeitererArzt",
             "ArbeitsunfaehigJN",
             "DatumArbeitsunfaehigkeit",
             "ErkrankungArbeitsunfaehigkeit",
             "(Flag)",
             "(Int)",
             "(Text)",
             "Krankheit",
             "AntwortZuFrage"});
    pruefe();
}

TEST_P(L142AltSatz, Record11_2000HoldsTheCommonFieldsTheTripleAndTheLayoutBefore05_2002) {
    kopf("11.2000");
    gemeinsam(false).tripel();
    s.folge({"SodbrennenJN", "AppetitmangelJN", "ErbrechenJN", "DurchfallJN", "SonstigeSymptomeJN",
             "SonstigeSymptome", "HaeufigkeitBeschwerden"});
    s.folge(kAlteDiagnose).folge(kVor200205Rest);
    pruefe();
}

TEST_P(L142AltSatz, Record04_2002ReadsTheLayoutBefore05_2002) {
    kopf("04.2002");
    gemeinsam(false).folge({"SodbrennenJN", "AppetitmangelJN", "ErbrechenJN", "DurchfallJN",
                            "SonstigeSymptomeJN", "SonstigeSymptome", "HaeufigkeitBeschwerden"});
    s.folge(kAlteDiagnose).folge(kVor200205Rest);
    pruefe();
}

TEST_P(L142AltSatz, Record05_2002ReadsTheCurrentLayout) {
    kopf("05.2002");
    gemeinsam(true);
    for (const std::string& f : kFelder)
        s.eigen(f.c_str());
    pruefe();
}

TEST_P(L142AltSatz, Record12_2030ReadsAsTheCurrentLayout) {
    kopf("12.2030");
    gemeinsam(true);
    for (const std::string& f : kFelder)
        s.eigen(f.c_str());
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L142AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
