// qbFormularL139 (ears): no person from the constructor, its two version tests, and the two persistence
// paths that treat ArztName differently; the by-value accessors of SonstigeBeschreibung and its XML keys.
#include "health/qbFormularL139.h"

#include "gesund_test_util.h"

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

using namespace qbtest;

namespace {

const char* const kName = "Erkl\xE4rung Ohren";

const std::vector<std::string> kL139Felder = {"Diagnose",
                                              "ErkrankungLinks",
                                              "ErkrankungRechts",
                                              "ErkrankungBeide",
                                              "ErkrankungAngeboren",
                                              "ErkrankungUnfallbedingt",
                                              "ErkrankungUnbekannt",
                                              "ErkrankungFolge",
                                              "ErkrankungFolgeBeschreibung",
                                              "AuftretenEinmalig",
                                              "AuftretenEinmaligSeit",
                                              "AuftretenMehrfach",
                                              "AuftretenErstmalig",
                                              "AuftretenHaeufig",
                                              "AuftretenLaenge",
                                              "AuftretenZuletzt",
                                              "AuftretenFortwaehrend",
                                              "AuftretenFortwaehrendSeit",
                                              "FolgenNein",
                                              "BeschwerdefreiSeit",
                                              "FolgenJa",
                                              "BeschwerdenSeit",
                                              "HoerminderungJa",
                                              "SchwindelJa",
                                              "TinnitusMaskJa",
                                              "AugenzitternJa",
                                              "SonstigeJa",
                                              "SonstigeBeschreibung",
                                              "FacharztJN",
                                              "FacharztZeitraum",
                                              "FacharztZuletzt",
                                              "ArztName",
                                              "ArztAdresse",
                                              "BehandlungNein",
                                              "BehandlungMedikamenteJa",
                                              "BehandlungMedikamenteArt",
                                              "InfusionstherapieJa",
                                              "InfusionZeitraum",
                                              "HoergeraetJa",
                                              "HoergeraetLinksJa",
                                              "HoergeraetRechtsJa",
                                              "TinnitusJa",
                                              "TinnitusLinksJa",
                                              "TinnitusRechtsJa",
                                              "OperationJa",
                                              "OperationArt",
                                              "OperationZeitpunkt",
                                              "UntersuchungNein",
                                              "UntersuchungJa",
                                              "UntersuchungZeitpunkt",
                                              "UntersuchungErgebnis",
                                              "UntersuchungGleichgJa",
                                              "UntersuchungGleichgewZeitpunkt",
                                              "UntersuchungGleichgewErgebnis",
                                              "OhrspiegelungJa",
                                              "OhrspiegelungZeitpunkt",
                                              "OhrspiegelungErgebnis",
                                              "RoentgenJa",
                                              "RoentgenZeitpunkt",
                                              "Roentgenergebnis",
                                              "TomografieJa",
                                              "TomografieZeitpunkt",
                                              "TomografieErgebnis",
                                              "ArbeitsunfaehigJN",
                                              "DatumArbeitsunfaehig",
                                              "ErkrankungArbeitsunfaehig",
                                              "ArbeitsplatzwechselJN",
                                              "DatumArbeitsplatzwechsel"};

// The own fields in stretches: up to FacharztZuletzt, and from BehandlungNein to ErkrankungArbeitsunfaehig.
std::vector<std::string> stueck(const std::string& von, const std::string& bis) {
    auto a = std::find(kL139Felder.begin(), kL139Felder.end(), von);
    auto b = std::find(kL139Felder.begin(), kL139Felder.end(), bis);
    return std::vector<std::string>(a, b + 1);
}

class L139AltSatz : public GesuAltSatz<qbFormularL139> {
protected:
    void eigene(const std::vector<std::string>& felder) {
        for (const std::string& f : felder)
            s.eigen(f.c_str());
    }
    // The own fields of a record of that version as the reader of the stream kind takes them.
    void eigeneFelder(const std::string& version) {
        const int k = schluessel(version);
        eigene(stueck("Diagnose", "FacharztZuletzt"));
        if (GetParam() == Strom::Datei) {
            if (k >= 200808) s.eigen("ArztName");
            s.eigen("ArztAdresse");
        } else {
            if (version == "08.2008") s.eigen("ArztName");
            s.eigen("ArztAdresse").eigen("ArztName").eigen("ArztAdresse");
        }
        eigene(stueck("BehandlungNein", "ErkrankungArbeitsunfaehig"));
        if (k < 200908) s.tripel();
        eigene(stueck("ArbeitsplatzwechselJN", "DatumArbeitsplatzwechsel"));
    }
};
class L139Strom : public ::testing::TestWithParam<Strom> {};

// The values a reader takes behind FacharztZuletzt, up to BehandlungNein: a record of the version with the
// Texts "A", "B", "C", "D" there and BehandlungNein 1.
qbFormularL139 texteHinterFacharzt(const char* version, Strom art, int* gelesen) {
    AltSatz s = AltSatz::kopf(version, "L139", kName, 3, "VP1");
    s.text("").text("").text("").ganz(-1).text("").flag(0xff).flag(0xff).texte(5);
    if (schluessel(version) >= 200205 || schluessel(version) == 200111) s.flag(0xff).text("");
    s.flag(0xff).texte(2);
    s.text("").flags(7).text("").flag(0xff).text("").flag(0xff).texte(4).flag(0xff).text("");
    s.flag(0xff).text("").flag(0xff).text("").flags(5).text("").flag(0xff).texte(2);
    s.text("A").text("B").text("C").text("D").flag(1);
    qbFormularL139 f;
    s.liesIn(f, art);
    *gelesen = f.RefBehandlungNein() == 1 ? 0 : -1;
    return f;
}

} // namespace

// ---- Construction and the current record

TEST(L139, ConstructorSetsTheHeaderWithoutAPerson) {
    qbFormularL139 f;
    erwarteKopf(f, "08.2009", "L139", kName, 3, "");
    EXPECT_EQ(namenDerTabelle(qbFormularL139::felder()), kL139Felder);
    EXPECT_EQ(f.RefHoergeraetJa(), 0xff);
}

TEST(L139, SonstigeBeschreibungAloneIsPassedByValue) {
    qbFormularL139 f;
    static_assert(std::is_same_v<decltype(f.RefSonstigeBeschreibung()), RWCString>);
    static_assert(std::is_same_v<decltype(f.RefDiagnose()), const RWCString&>);
    static_assert(std::is_invocable_v<void (qbFormularL139::*)(RWCString), qbFormularL139&, RWCString>);
    void (qbFormularL139::*setzer)(RWCString) = &qbFormularL139::RefSonstigeBeschreibung;
    (f.*setzer)("Druck im Ohr");
    EXPECT_EQ(f.RefSonstigeBeschreibung().std(), "Druck im Ohr");
}

TEST(L139, DefaultSavesHeaderCommonFieldsAndTheSixtyEightOwnFields) {
    qbFormularL139 f;
    const Bytes erwartet =
        cat({kopfBytes("08.2009", "L139", kName, 3, ""), gesuStandardBytes(),
             standardBytes("TFFFFFFFTFTFTTTTFTFTFTFFFFFTFTTTTFFTFTFFFFFFFTTFFTTFTTFTTFTTFTTFTTFT")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L139, FilledFormRoundTripsThroughRWFileAndIsStamped) {
    pruefeRundreise<qbFormularL139>(Strom::Datei, "08.2009");
}

TEST_P(L139Strom, ARecordSavedOnAVirtualStreamIsReadOneTextShortAndShifted_Quirk) {
    qbFormularL139 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &qbFormularL139::felder()});
    quelle.RefArztName("Dr. Ohr");
    quelle.RefArztAdresse("Hauptstr. 1");
    quelle.RefBehandlungNein(7);
    quelle.RefBehandlungMedikamenteJa(9);
    qbFormularL139 gelesen;
    rundreise(quelle, gelesen, GetParam());
    EXPECT_EQ(gelesen.RefFacharztZuletzt(), quelle.RefFacharztZuletzt());
    EXPECT_EQ(gelesen.RefArztName().std(), "Hauptstr. 1") << "the second Text behind FacharztZuletzt";
    EXPECT_NE(gelesen.RefBehandlungNein(), 7) << "the fields behind are out of step";
}
INSTANTIATE_TEST_SUITE_P(VirtuellerStrom, L139Strom, ::testing::Values(Strom::Binaer, Strom::Portabel),
                         stromName);

TEST(L139, BinaryStoreSizeIsTheCommonFigurePlus164AndTheOwnTextLengths) {
    pruefeGroesse<qbFormularL139>(164);
}
TEST(L139, CopyConstructorAndAssignmentCarryHeaderCommonAndOwnFields) {
    pruefeKopieUndZuweisung<qbFormularL139>();
}
TEST(L139, LoescheResetsEverythingAndLeavesThePersonEmpty) { pruefeLoesche<qbFormularL139>(""); }

TEST(L139, XmlKeysArztAdresse1And2HoergeraetJAndTinnitusRechtsJaWithEqualsSign_Quirk) {
    std::vector<std::string> schluessel = kL139Felder;
    for (std::string& k : schluessel) {
        if (k == "ArztName")
            k = "ArztAdresse1";
        else if (k == "ArztAdresse")
            k = "ArztAdresse2";
        else if (k == "HoergeraetJa")
            k = "HoergeraetJ";
        else if (k == "TinnitusRechtsJa")
            k = "TinnitusRechtsJa=";
    }
    pruefeXml<qbFormularL139>(schluessel);
}

// ---- The version tests of the two paths

TEST(L139, OnRWFile07_2008LeavesArztNameUnreadAndConsumesTheTriple) {
    int rest = 0;
    const qbFormularL139 f = texteHinterFacharzt("07.2008", Strom::Datei, &rest);
    EXPECT_EQ(f.RefArztName().std(), "");
    EXPECT_EQ(f.RefArztAdresse().std(), "A");
}

TEST(L139, OnRWFile08_2008ReadsArztNameOnce) {
    int rest = 0;
    const qbFormularL139 f = texteHinterFacharzt("08.2008", Strom::Datei, &rest);
    EXPECT_EQ(f.RefArztName().std(), "A");
    EXPECT_EQ(f.RefArztAdresse().std(), "B");
}

TEST(L139, OnTheVirtualStream08_2009ReadsThreeTextsBehindFacharztZuletzt_Quirk) {
    for (Strom art : {Strom::Binaer, Strom::Portabel}) {
        int rest = 0;
        const qbFormularL139 f = texteHinterFacharzt("08.2009", art, &rest);
        EXPECT_EQ(f.RefArztName().std(), "B");
        EXPECT_EQ(f.RefArztAdresse().std(), "C");
    }
}

TEST(L139, OnTheVirtualStream08_2008ReadsFourTextsBehindFacharztZuletzt_Quirk) {
    for (Strom art : {Strom::Binaer, Strom::Portabel}) {
        int rest = 0;
        const qbFormularL139 f = texteHinterFacharzt("08.2008", art, &rest);
        EXPECT_EQ(f.RefArztName().std(), "C");
        EXPECT_EQ(f.RefArztAdresse().std(), "D");
        EXPECT_EQ(rest, 0) << "BehandlungNein follows the four Texts";
    }
}

TEST(L139, OnTheVirtualStream07_2008ReadsThreeTextsBehindFacharztZuletzt_Quirk) {
    for (Strom art : {Strom::Binaer, Strom::Portabel}) {
        int rest = 0;
        const qbFormularL139 f = texteHinterFacharzt("07.2008", art, &rest);
        EXPECT_EQ(f.RefArztName().std(), "B");
        EXPECT_EQ(f.RefArztAdresse().std(), "C");
    }
}

// ---- Legacy records on every stream kind, each in the layout its stream's reader takes

TEST_P(L139AltSatz, Record10_1999HoldsTheTripleThenOwnFieldsWithoutArztNameAndTheirOwnTriple) {
    kopf("10.1999");
    s.tripel();
    eigeneFelder("10.1999");
    pruefe();
}

TEST_P(L139AltSatz, Record11_2000HoldsTheCommonFieldsTheTripleAndTheOwnFields) {
    kopf("11.2000");
    gemeinsam(false).tripel();
    eigeneFelder("11.2000");
    pruefe();
}

TEST_P(L139AltSatz, Record11_2001HoldsTheChangeOfWorkplace) {
    kopf("11.2001");
    gemeinsam(true);
    eigeneFelder("11.2001");
    pruefe();
}

TEST_P(L139AltSatz, Record07_2008) {
    kopf("07.2008");
    gemeinsam(true);
    eigeneFelder("07.2008");
    pruefe();
}

TEST_P(L139AltSatz, Record08_2008) {
    kopf("08.2008");
    gemeinsam(true);
    eigeneFelder("08.2008");
    pruefe();
}

TEST_P(L139AltSatz, Record08_2009) {
    kopf("08.2009");
    gemeinsam(true);
    eigeneFelder("08.2009");
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L139AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
