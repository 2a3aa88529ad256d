// qbFormularL135 (skin) and qbFormularL137 (headache): no person from the constructor, no version test and
// no early layout, counts in a Flag's byte that start at 0, XML keys with a semicolon or an equals sign,
// and size constants one short.
#include "health/qbFormularL135.h"
#include "health/qbFormularL137.h"

#include "gesund_test_util.h"

#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kL135Name = "Erkl\xE4rung Hautkrankheit";
const char* const kL137Name = "Erkl\xE4rung Kopfschmerzen";

const std::vector<std::string> kL135Felder = {"BeschwerdeBezeichnung",
                                              "BeschwerdeZeitraum",
                                              "KoerperteileBeschreibung",
                                              "SonstigeUrsachenBeschreibung",
                                              "BeschwerdeFreiZeitpunkt",
                                              "FolgenKrankheiten",
                                              "BehandlerNameAnschrift",
                                              "GesichtHaendeJN",
                                              "GanzerKoerperJN",
                                              "EinzelneKoerperteileJN",
                                              "AuftretenEinmaligJN",
                                              "AuftretenSchubweiseJN",
                                              "AuftretenGanzjaehrigJN",
                                              "UrsacheUnbekanntJN",
                                              "StoerungImmunsystemJN",
                                              "PilzerkrankungJN",
                                              "AllergischeUrsacheJN",
                                              "BakterienVirenInfektionJN",
                                              "GutartigeGeschwulstJN",
                                              "BoesartigeGeschwulstJN",
                                              "AngeboreneErkrankungJN",
                                              "SonstigeUrsachenJN",
                                              "FolgenJN",
                                              "ArztNameAdresseRegelm",
                                              "AerztlicheBehandlungZuletzt",
                                              "OperationZeitpunktArt",
                                              "KuraufenthaltZeitpunktOrt",
                                              "MedikamenteName",
                                              "AntiallergikumName",
                                              "SalbenName",
                                              "SonstigeBehandlungBeschreibung",
                                              "AerztlicheBehandlungJaehrlich",
                                              "AerztlicheBehandlungJN",
                                              "BehandlungJN",
                                              "BestrahlungJN",
                                              "DesensibilisierungJN",
                                              "OperationJN",
                                              "KuraufenthaltJN",
                                              "MedikamenteJN",
                                              "AntiallergikumJN",
                                              "SalbenJN",
                                              "SonstigeBehandlungJN",
                                              "BUBeschreibung",
                                              "ArbeitsplatzwechselBeruf",
                                              "SonstigerArztBezeichnung",
                                              "ArztNameAdresse",
                                              "ZusaetzlicheAngabenAnzahl",
                                              "BUJN",
                                              "ArbeitsplatzwechselJN",
                                              "HausarztJN",
                                              "HautarztJN",
                                              "AllergologeJN",
                                              "SonstigerArztJN",
                                              "ZusaetzlicheAngabenJN",
                                              "AngabenVollstaendigJN",
                                              "ZusaetzlicheAngabenfolgenJN"};
const std::vector<std::string> kL137Felder = {"BeschreibungAllg",
                                              "ArbeitsunfaehigJN",
                                              "ArbeitsunfaehigBeschreibung",
                                              "Migraene",
                                              "Spannungskopfschmerz",
                                              "BingHortenKopfschmerz",
                                              "ClusterKopfschmerz",
                                              "SonstigeDiagnose",
                                              "SonstigeDiagnoseBeschreibung",
                                              "ArztName",
                                              "ArztAdresse",
                                              "KrankenhausJN",
                                              "KurJN",
                                              "KlinikAnschrift",
                                              "KrankKurBeschreibung",
                                              "UebelkeitErbrechen",
                                              "AuraJa",
                                              "SehstoerungenJa",
                                              "SprachstoerungenJa",
                                              "TaubheitsgefuehlJa",
                                              "LaehmungenJa",
                                              "KribbelnJa",
                                              "SonstigeBegleiterschJa",
                                              "SonstigeBegleiterschBeschreibung",
                                              "BegleiterschSymptome",
                                              "PhysiotherapieJa",
                                              "AkupunkturJa",
                                              "MedikamenteJa",
                                              "SonstigeBehandlungJa",
                                              "SonstigeBehandlungBeschreibung",
                                              "MedikamenteBeschreibung",
                                              "MediakamenteHaeufigkeit",
                                              "AnzahlproMonat",
                                              "Schmerzdauer",
                                              "LetztmaligesAuftreten",
                                              "AndereErkrankungJN",
                                              "AndereErkrankungZeitpunkt",
                                              "AndereErkrankungArt",
                                              "NeurologischJa",
                                              "NeuritisJa",
                                              "PsychischJa",
                                              "HerzKreislaufJa",
                                              "SchaedelHirnJa",
                                              "HWSJa",
                                              "SonstigeErkrankungenJa",
                                              "SonstigeErkankungenBeschreibung",
                                              "ErkrankungZeitpunkt",
                                              "WeitererArztName",
                                              "WeitereArztAdresse",
                                              "WeitererArztErkrankung",
                                              "WeitererArztZeitraum",
                                              "WeitereMedikamente",
                                              "BUJN",
                                              "BUBeschreibung",
                                              "BUErkrankung",
                                              "ArbeitsplatzwechselJN",
                                              "ArbeitsplatzwechselZeitpunkt",
                                              "ArbeitsplatzwechselGrund"};

// The XML keys of L137: three end in an equals sign.
std::vector<std::string> l137Schluessel() {
    std::vector<std::string> k = kL137Felder;
    for (std::string& s : k)
        if (s == "ArztName" || s == "KlinikAnschrift" || s == "SonstigeBehandlungBeschreibung") s += "=";
    return k;
}

template <class F>
class EigeneFelder : public GesuAltSatz<F> {
protected:
    void alleEigenen(const std::vector<std::string>& felder) {
        for (const std::string& f : felder)
            this->s.eigen(f.c_str());
    }
};
class L135AltSatz : public EigeneFelder<qbFormularL135> {};
class L137AltSatz : public EigeneFelder<qbFormularL137> {};
class L135L137Strom : public ::testing::TestWithParam<Strom> {};

} // namespace

// ---- Construction and the current record

TEST(L135, ConstructorSetsTheHeaderWithoutAPerson) {
    qbFormularL135 f;
    erwarteKopf(f, "08.2009", "L135", kL135Name, 3, "");
    EXPECT_EQ(namenDerTabelle(qbFormularL135::felder()), kL135Felder);
}

TEST(L137, ConstructorSetsTheHeaderWithoutAPerson) {
    qbFormularL137 f;
    erwarteKopf(f, "08.2009", "L137", kL137Name, 3, "");
    EXPECT_EQ(namenDerTabelle(qbFormularL137::felder()), kL137Felder);
}

TEST(L135, ZusaetzlicheAngabenAnzahlIsACountThatStartsAtZero) {
    qbFormularL135 f;
    EXPECT_EQ(f.RefZusaetzlicheAngabenAnzahl(), 0);
    EXPECT_EQ(f.RefZusaetzlicheAngabenJN(), 0xff);
    EXPECT_EQ(f.RefBoesartigeGeschwulstJN(), 0xff);
}

TEST(L137, AnzahlproMonatAndSchmerzdauerStartAtZero) {
    qbFormularL137 f;
    EXPECT_EQ(f.RefAnzahlproMonat(), 0);
    EXPECT_EQ(f.RefSchmerzdauer(), 0);
    EXPECT_EQ(f.RefMigraene(), 0xff);
    EXPECT_EQ(f.RefArbeitsunfaehigJN(), 0xff);
}

TEST(L137, OwnArbeitsunfaehigJNArztAdresseAndKrankenhausJNAreFieldsBesideTheCommonOnes_Quirk) {
    qbFormularL137 f;
    f.RefArztAdresse("eigene");
    f.qbFormularAllgGesu::RefArztAdresse("gemeinsame");
    f.RefArbeitsunfaehigJN(1);
    f.qbFormularAllgGesu::RefArbeitsunfaehigJN(0);
    EXPECT_EQ(f.RefArztAdresse().std(), "eigene");
    EXPECT_EQ(f.qbFormularAllgGesu::RefArztAdresse().std(), "gemeinsame");
    EXPECT_EQ(f.RefArbeitsunfaehigJN(), 1);
    EXPECT_EQ(f.qbFormularAllgGesu::RefArbeitsunfaehigJN(), 0);
}

TEST(L135, DefaultSavesHeaderCommonFieldsAndTheFiftySixOwnFields) {
    qbFormularL135 f;
    const Bytes erwartet = cat({kopfBytes("08.2009", "L135", kL135Name, 3, ""), gesuStandardBytes(),
                                standardBytes("TTTTTTTFFFFFFFFFFFFFFFFTTTTTTTTFFFFFFFFFFFTTTT0FFFFFFFFF")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L137, DefaultSavesHeaderCommonFieldsAndTheFiftyEightOwnFields) {
    qbFormularL137 f;
    const Bytes erwartet = cat({kopfBytes("08.2009", "L137", kL137Name, 3, ""), gesuStandardBytes(),
                                standardBytes("TFTFFFFFTTTFFTTFFFFFFFFTTFFFFTTT00TFTTFFFFFFFTTTTTTTFTTFTT")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST_P(L135L137Strom, FilledL135RoundTripsAndIsStamped) {
    pruefeRundreise<qbFormularL135>(GetParam(), "08.2009");
}
TEST_P(L135L137Strom, FilledL137RoundTripsAndIsStamped) {
    pruefeRundreise<qbFormularL137>(GetParam(), "08.2009");
}
INSTANTIATE_TEST_SUITE_P(JederStrom, L135L137Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(L135, BinaryStoreSizeAdds112OneLessThanItsFieldsTake_Quirk) {
    pruefeGroesse<qbFormularL135>(112);
    qbFormularL135 f;
    EXPECT_EQ(f.binaryStoreSize() + 1, gespeichert(f).size());
}

TEST(L137, BinaryStoreSizeAdds135OneLessThanItsFieldsTake_Quirk) {
    pruefeGroesse<qbFormularL137>(135);
    qbFormularL137 f;
    EXPECT_EQ(f.binaryStoreSize() + 1, gespeichert(f).size());
}

TEST(L135, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    pruefeKopieUndZuweisung<qbFormularL135>();
}
TEST(L137, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    pruefeKopieUndZuweisung<qbFormularL137>();
}
TEST(L135, LoescheResetsEverythingAndLeavesThePersonEmpty) { pruefeLoesche<qbFormularL135>(""); }
TEST(L137, LoescheResetsEverythingAndLeavesThePersonEmpty) { pruefeLoesche<qbFormularL137>(""); }

// ---- XML

TEST(L135, XmlHoldsTheOwnKeysInTableOrderAndReadsBackAllButBoesartigeGeschwulstJN) {
    pruefeXml<qbFormularL135>(kL135Felder);
}

TEST(L135, BoesartigeGeschwulstJNIsWrittenWithoutAndReadWithASemicolon_Quirk) {
    CQBXMLdata knoten("x");
    knoten.clear("qbFormularL135");
    knoten.List(CQBXMLdata("BoesartigeGeschwulstJN", static_cast<unsigned char>(1)));
    qbFormularL135 f;
    f.XMLputDat(knoten);
    EXPECT_EQ(f.RefBoesartigeGeschwulstJN(), 0xff);
    knoten.List(CQBXMLdata("BoesartigeGeschwulstJN;", static_cast<unsigned char>(1)));
    f.XMLputDat(knoten);
    EXPECT_EQ(f.RefBoesartigeGeschwulstJN(), 1);
    qbFormularL135 quelle;
    quelle.RefBoesartigeGeschwulstJN(0);
    CQBXMLdata geschrieben("y");
    quelle.XMLgetDat(geschrieben);
    unsigned char wert = 0xff;
    EXPECT_TRUE(geschrieben.Listvalue("BoesartigeGeschwulstJN", wert));
    EXPECT_EQ(wert, 0);
    EXPECT_FALSE(geschrieben.Listvalue("BoesartigeGeschwulstJN;", wert));
}

TEST(L137, XmlGivesAllFiftyEightOwnFieldsBackWithTheThreeKeysEndingInAnEqualsSign_Quirk) {
    pruefeXml<qbFormularL137>(l137Schluessel());
    qbFormularL137 quelle;
    quelle.RefArztName("Dr. Kopf");
    quelle.RefKlinikAnschrift("Klinik am See");
    quelle.RefSonstigeBehandlungBeschreibung("Yoga");
    CQBXMLdata knoten("x");
    quelle.XMLgetDat(knoten);
    RWCString s;
    EXPECT_TRUE(knoten.Listvalue("ArztName=", s));
    EXPECT_EQ(s.std(), "Dr. Kopf");
    EXPECT_FALSE(knoten.Listvalue("ArztName", s));
    qbFormularL137 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefArztName().std(), "Dr. Kopf");
    EXPECT_EQ(ziel.RefKlinikAnschrift().std(), "Klinik am See");
    EXPECT_EQ(ziel.RefSonstigeBehandlungBeschreibung().std(), "Yoga");
}

// ---- Records of every version read all own fields

TEST_P(L135AltSatz, Record10_1999HoldsTheTripleAndAllOwnFields_Quirk) {
    kopf("10.1999");
    s.tripel();
    alleEigenen(kL135Felder);
    pruefe();
}

TEST_P(L135AltSatz, Record11_2000HoldsTheCommonFieldsTheTripleAndAllOwnFields) {
    kopf("11.2000");
    gemeinsam(false).tripel();
    alleEigenen(kL135Felder);
    pruefe();
}

TEST_P(L135AltSatz, Record12_2001HoldsTheCommonFieldsWithoutTheChangeOfWorkplaceAndAllOwnFields) {
    kopf("12.2001");
    gemeinsam(false);
    alleEigenen(kL135Felder);
    pruefe();
}

TEST_P(L135AltSatz, Record08_2009ReadsTheCurrentLayout) {
    kopf("08.2009");
    gemeinsam(true);
    alleEigenen(kL135Felder);
    pruefe();
}

TEST_P(L137AltSatz, Record10_1999HoldsTheTripleAndAllOwnFields_Quirk) {
    kopf("10.1999");
    s.tripel();
    alleEigenen(kL137Felder);
    pruefe();
}

TEST_P(L137AltSatz, Record11_2000HoldsTheCommonFieldsTheTripleAndAllOwnFields) {
    kopf("11.2000");
    gemeinsam(false).tripel();
    alleEigenen(kL137Felder);
    pruefe();
}

TEST_P(L137AltSatz, Record12_2001HoldsTheCommonFieldsWithoutTheChangeOfWorkplaceAndAllOwnFields) {
    kopf("12.2001");
    gemeinsam(false);
    alleEigenen(kL137Felder);
    pruefe();
}

TEST_P(L137AltSatz, Record08_2009ReadsTheCurrentLayout) {
    kopf("08.2009");
    gemeinsam(true);
    alleEigenen(kL137Felder);
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L135AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
INSTANTIATE_TEST_SUITE_P(JederStrom, L137AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(L135, AnOlderRecordHoldingFewerOwnFieldsHasNoBranchAndReadsPastItsEnd_Quirk) {
    AltSatz satz = AltSatz::kopf("04.2002", "L135", kL135Name, 3, "VP1");
    satz.text("Ekzem").text("").text("2001").ganz(4).text("").flag(0).flag(0).texte(5).flag(0).texte(2);
    satz.texte(7, "x").flags(16, 0); // only the first 23 own fields
    const int kEnde = 0x7A7A7A7A;
    TempFile tmp("l135");
    {
        RWFile f(tmp.path(), "wb");
        satz.schreibe(f);
        f.Write(kEnde);
    }
    qbFormularL135 form;
    RWFile f(tmp.path(), "rb");
    form.restoreGuts(f);
    EXPECT_FALSE(f.good()) << "the reader took the fields it expects from behind the record";
    EXPECT_EQ(form.RefBeschwerdeBezeichnung().std(), "x");
    EXPECT_EQ(form.RefFolgenJN(), 0);
}
