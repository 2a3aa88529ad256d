// The stored example of old record layouts in examples/legacy: current, and read by the library and the
// tool.
#include "anwendungen.h"

#include "finance/qbFormularGS004.h"
#include "finance/qbFormularGS004BUZ.h"
#include "finance/qbFormularGS004LV.h"
#include "finance/qbFormularGS004UZ.h"
#include "health/qbFormularL134.h"
#include "health/qbFormularL138.h"
#include "health/qbFormularL139.h"
#include "health/qbFormularL141.h"
#include "health/qbFormularL142.h"
#include "health/qbFormularL143.h"
#include "health/qbFormularL241.h"
#include "health/qbFormularL243.h"
#include "health/qbFormularL249.h"
#include "pension/qbFormularBAV.h"
#include "pension/qbFormularGN056.h"
#include "sport/qbFormularL036.h"
#include "sport/qbFormularL441.h"
#include "sport/qbFormularL450.h"
#include "sport/qbFormularL451.h"
#include "sport/qbFormularL452.h"
#include "sport/qbFormularL453.h"
#include "sport/qbFormularL454.h"
#include "sport/qbFormularX278.h"

using namespace qbtest;

namespace {

TEST(ToolLegacyBeispiel, StoredFileIsWhatTheGeneratorWrites) {
    Ordner ordner;
    ASSERT_TRUE(schreibeLegacyBeispiel(ordner / "neu.qbf"));
    EXPECT_EQ(liesDatei(ordner / "neu.qbf"), liesDatei(legacyBeispiel()))
        << "examples/legacy is out of date: build the target qbformul_legacy_example_update";
}

TEST(ToolLegacyBeispiel, LibraryReadsEveryOldRecordIntoItsFields) {
    const std::unique_ptr<qbFormularListe> liste = lies(legacyBeispiel());
    const auto saetze = legacyBeispielSaetze();
    ASSERT_EQ(liste->AnzahlFormulare(), saetze.size());
    for (unsigned i = 0; i < saetze.size(); ++i)
        EXPECT_EQ(std::string(liste->liefereFormularAnPos(static_cast<int>(i))->RefVersion().data()),
                  saetze[i].second.werte().front().text)
            << i;

    const auto& l145 = static_cast<const qbFormularL145&>(*liste->liefereFormularAnPos(0));
    EXPECT_EQ(l145.RefVerletzungshergang(), "Sturz mit dem Fahrrad");
    EXPECT_EQ(l145.RefArztAdresse(), "Dr. Huber, Marktplatz 3, Landshut");
    EXPECT_EQ(l145.RefKoerperhaelfte(), "links");
    EXPECT_EQ(l145.RefDauer(), 12);
    EXPECT_EQ(l145.RefKrankheit(), "Unfall");
    const auto& l146 = static_cast<const qbFormularL146&>(*liste->liefereFormularAnPos(1));
    EXPECT_EQ(l146.RefDiagnose(), "Lumbago");
    EXPECT_EQ(l146.RefAntwortZuFrage(), "Frage 3");
    EXPECT_EQ(l146.RefPersonenKennung(), "VP2");
    const auto& l145b = static_cast<const qbFormularL145&>(*liste->liefereFormularAnPos(2));
    EXPECT_EQ(l145b.RefKoerperhaelfte(), "rechts");
    EXPECT_EQ(l145b.RefReha(), "6 Wochen Physiotherapie");
    const auto& l147 = static_cast<const qbFormularL147&>(*liste->liefereFormularAnPos(3));
    EXPECT_EQ(l147.RefMedikamente(), "Ramipril");
    EXPECT_EQ(l147.RefArbeitsplatzwechselJN(), 0);
    const auto& l146b = static_cast<const qbFormularL146&>(*liste->liefereFormularAnPos(4));
    EXPECT_EQ(l146b.RefReha(), "");
    EXPECT_EQ(l146b.RefKopfschmerzenJN(), 0xff); // came with 05.2002
    const auto& l440 = static_cast<const qbFormularL440&>(*liste->liefereFormularAnPos(5));
    EXPECT_EQ(l440.RefKampfsportarten(), "Karate");

    // The sport and stay-abroad forms: one layout whatever the version, the diving form without
    // ApnoetauchenJN before 04.2005.
    const auto& l441 = static_cast<const qbFormularL441&>(*liste->liefereFormularAnPos(6));
    EXPECT_EQ(l441.RefFlugzeugJN(), 1);
    EXPECT_EQ(l441.RefSichtflugJN(), 1);
    EXPECT_EQ(l441.RefFlugLuftsportgeraet(), "Cessna 172");
    EXPECT_EQ(l441.RefFlugLuftsportdisziplin(), "Motorflug");
    const auto& l450 = static_cast<const qbFormularL450&>(*liste->liefereFormularAnPos(7));
    EXPECT_EQ(l450.RefSeitenanzahl(), 1); // not in the record: the new object's
    EXPECT_EQ(l450.RefMitgliedBergsportvereinSeit(), "1990");
    EXPECT_EQ(l450.RefKletternGrad(), 6);
    EXPECT_EQ(l450.RefRisikoMitVersichernJN(), 1);
    const auto& l451 = static_cast<const qbFormularL451&>(*liste->liefereFormularAnPos(8));
    EXPECT_EQ(l451.RefAusland(), "Rotes Meer");
    EXPECT_EQ(l451.RefJahr3(), 2001);
    EXPECT_EQ(l451.RefTauchlehrerNein(), 1);
    EXPECT_EQ(l451.RefApnoetauchenJN(), 0xff);
    const auto& l452 = static_cast<const qbFormularL452&>(*liste->liefereFormularAnPos(9));
    EXPECT_EQ(l452.RefBergstreckenBezeichnung(), "Schauinsland");
    EXPECT_EQ(l452.RefPlazierungen(), "2. Platz 1998");
    const auto& l453 = static_cast<const qbFormularL453&>(*liste->liefereFormularAnPos(10));
    EXPECT_EQ(l453.RefMotocrossGeplant(), 10);
    EXPECT_EQ(l453.RefRisikoMitversichernJN(), 1);
    const auto& l454 = static_cast<const qbFormularL454&>(*liste->liefereFormularAnPos(11));
    EXPECT_EQ(l454.RefSportanteilProzent(), 100);
    EXPECT_EQ(l454.RefEuropaLaender(), "Frankreich");
    EXPECT_EQ(l454.RefWettbewerbeBeschreibung(), "Ironman Roth");
    const auto& x278 = static_cast<const qbFormularX278&>(*liste->liefereFormularAnPos(12));
    EXPECT_EQ(x278.RefSpringreitenJN(), 1);
    EXPECT_EQ(x278.RefRennreitenJN(), 0);
    qbFormularL036 chile;
    EXPECT_EQ(liste->liefereFormular("L036", chile, 0, "Chile", "1"), 1u);
    EXPECT_EQ(chile.RefDauer(), "6 Monate");
    EXPECT_EQ(chile.RefArtDesBetriebes(), "Bergbau");
    EXPECT_EQ(liste->liefereFormular("L036", chile, 0, "Chile", "0"), 1u);
    EXPECT_EQ(chile.RefDauer(), "2 Jahre");
}

TEST(ToolLegacyBeispiel, ExplainNamesTheLayoutOfTheDivingRecordBefore04_2005) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_NE(lauf.aus.find("layout of qbFormularL451: aktuelle Tabelle ohne ApnoetauchenJN\n"),
              std::string::npos)
        << lauf.aus;
    EXPECT_NE(lauf.aus.find("layout of qbFormularL036: aktuelle Tabelle\n"), std::string::npos);
}

// The health declarations whose early layouts mix the common answers among their own fields.
TEST(ToolLegacyBeispiel, LibraryReadsTheEarlyHealthRecords) {
    const std::unique_ptr<qbFormularListe> liste = lies(legacyBeispiel());
    ASSERT_GE(liste->AnzahlFormulare(), 19u);
    const auto& l241 = static_cast<const qbFormularL241&>(*liste->liefereFormularAnPos(15));
    EXPECT_EQ(l241.RefDiagnose(), "Asthma bronchiale");
    EXPECT_EQ(l241.RefDauer(), 28);
    EXPECT_EQ(l241.RefZigaretten(), "nie geraucht");
    EXPECT_EQ(l241.RefAntwortZuFrage(), "Frage 4");
    EXPECT_EQ(l241.RefZigarettenJN(), 0xff); // never in the early layout
    const auto& l249 = static_cast<const qbFormularL249&>(*liste->liefereFormularAnPos(16));
    EXPECT_EQ(l249.RefHeuschnupfen(), "seit 1990, Mai bis Juli");
    EXPECT_EQ(l249.RefHyposensibilisierung(), "1998 bis 2000");
    EXPECT_EQ(l249.RefTiereJN(), 0);
    EXPECT_EQ(l249.RefKrankheit(), "Asthma bronchiale");
    EXPECT_EQ(l249.RefAntwortZuFrage(), ""); // only 01.2000 holds it
    const auto& l241b = static_cast<const qbFormularL241&>(*liste->liefereFormularAnPos(17));
    EXPECT_EQ(l241b.RefFrage1(), "Atemnot bei Belastung");
    EXPECT_EQ(l241b.RefMedikamente(), "Salbutamol");
    EXPECT_EQ(l241b.RefZigarettenJN(), 0xff); // came with 05.2002
    const auto& l243 = static_cast<const qbFormularL243&>(*liste->liefereFormularAnPos(18));
    EXPECT_EQ(l243.RefKrankheit(), "Epilepsie");
    EXPECT_EQ(l243.RefAktuelleMedikamente(), "Valproat");
    EXPECT_EQ(l243.RefEEG(), "unauff\xE4llig");
    EXPECT_EQ(l243.RefPsychischeErkrankungenJN(), 0xff); // came with 05.2002
}

template <class F>
const F& formAn(const qbFormularListe& liste, int pos) {
    const qbFormular* f = liste.liefereFormularAnPos(pos);
    EXPECT_EQ(f->isA(), F::classIsA()) << pos;
    return static_cast<const F&>(*f);
}

TEST(ToolLegacyBeispiel, LibraryReadsTheOldHealthRecordsIntoTheirFields) {
    const std::unique_ptr<qbFormularListe> liste = lies(legacyBeispiel());
    ASSERT_GE(liste->AnzahlFormulare(), 31u);
    // L142: the old diagnosis converted while reading
    const auto& l142 = formAn<qbFormularL142>(*liste, 19);
    EXPECT_EQ(l142.RefDurchfallJN(), 0);
    EXPECT_EQ(l142.RefSonstigeSymptomeJN(), 1);
    EXPECT_EQ(l142.RefSonstigeSymptome(), "Oberbauchbeschwerden");
    EXPECT_EQ(l142.RefDiagnose(), "rez./chron. Gastritis");
    EXPECT_EQ(l142.RefAntwortZuFrage(), "Frage 5");
    const auto& l142b = formAn<qbFormularL142>(*liste, 20);
    EXPECT_EQ(l142b.RefDiagnose(), "");
    EXPECT_EQ(l142b.RefSonstigeDiagnose(), "Reizmagen");
    EXPECT_EQ(l142b.RefKotoskopieJN(), 0xff); // came with 05.2002
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 21).RefBlutdruckSyst(), 150);
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 21).RefKrankheit(), "Bluthochdruck");
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 22).RefPuls(), 0); // came with 05.2002
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 22).RefEKG(), "Extrasystolen");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 23).RefKrankenhausKur(), "Uniklinik Jena");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 24).RefGeheiltSeit(), "02.2002");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 25).RefMedikamente(), "Tamsulosin");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 25).RefKoerperseiten(), "links");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 26).RefZigaretten(), "10 am Tag");
    EXPECT_EQ(formAn<qbFormularL141>(*liste, 27).RefVorsorge(), "j\xE4hrlich");
    EXPECT_EQ(formAn<qbFormularL141>(*liste, 27).RefKrankheit(), "Myom");
    EXPECT_EQ(formAn<qbFormularL134>(*liste, 28).RefMedikamente(), "Metformin");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 29).RefArztName(), "");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 29).RefArztAdresse(), "Dr. Hahn, Lindenallee 4, Trier");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 30).RefArztName(), "Dr. Hahn");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 30).RefBehandlungMedikamenteArt(), "Betahistin");
}

// GS004 in every layout of its history, and the split checks of 10.2003 and 12.2003.
TEST(ToolLegacyBeispiel, LibraryReadsTheFinancialRiskChecksOfEveryLayout) {
    const std::unique_ptr<qbFormularListe> liste = lies(legacyBeispiel());
    ASSERT_GE(liste->AnzahlFormulare(), 40u);
    // GS004 of 09.1999: no IBU, EUZ, pension answers of 2000 nor sports; the education answers derived.
    const auto& gs1999 = static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(31));
    EXPECT_EQ(gs1999.RefIBU(), 0);
    EXPECT_EQ(gs1999.RefbVersBUZ(), 0xff);
    EXPECT_EQ(gs1999.RefSportJN(), 0xff);
    EXPECT_EQ(gs1999.RefJahre(0), 1996);
    EXPECT_EQ(gs1999.RefEinkommenInLetztenJahren(2), 53500.0);
    EXPECT_EQ(gs1999.RefBeantragteVersSumme(), 250000L);
    EXPECT_EQ(gs1999.RefLehreJN(), 1);
    EXPECT_EQ(gs1999.RefMeisterbriefJN(), 1);
    EXPECT_EQ(gs1999.RefStudiumJN(), 0);
    // 10.2000: the sports block; 05.2002: BeschreibungNebenJob.
    EXPECT_EQ(static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(32)).RefSportArt1(), "");
    EXPECT_EQ(static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(33)).RefSportArt1(), "Segeln");
    const auto& gs2002 = static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(35));
    EXPECT_EQ(gs2002.RefBeschreibungNebenJob(), "Dozent an der Meisterschule");
    EXPECT_EQ(gs2002.RefPersonenKennung(), "VP2");
    EXPECT_EQ(gs2002.RefJahre(2), 2001);
    const auto& buz2003 = static_cast<const qbFormularGS004BUZ&>(*liste->liefereFormularAnPos(36));
    EXPECT_EQ(buz2003.RefGewinnInLetztenJahren(0), 0.0);
    EXPECT_EQ(buz2003.RefHandwerklichTeilzeit(), "1");
    const auto& buzDez = static_cast<const qbFormularGS004BUZ&>(*liste->liefereFormularAnPos(37));
    EXPECT_EQ(buzDez.RefGewinnInLetztenJahren(2), 43500.0);
    EXPECT_EQ(buzDez.RefbVersBUZ2(), 0xff);
    EXPECT_EQ(static_cast<const qbFormularGS004LV&>(*liste->liefereFormularAnPos(38)).RefObjekt(),
              "Wohnhaus");
    EXPECT_EQ(static_cast<const qbFormularGS004UZ&>(*liste->liefereFormularAnPos(39)).RefSportArt1(),
              "Segeln");
}

TEST(ToolVorsorgeBeispiel, StoredFileIsWhatTheGeneratorWrites) {
    Ordner ordner;
    ASSERT_TRUE(schreibeVorsorgeBeispiel(ordner / "neu.qbf"));
    EXPECT_EQ(liesDatei(ordner / "neu.qbf"), liesDatei(vorsorgeBeispiel()))
        << "examples/legacy is out of date: build the target qbformul_legacy_example_update";
}

TEST(ToolVorsorgeBeispiel, LibraryReadsEveryOldRecordIntoItsFields) {
    const std::unique_ptr<qbFormularListe> liste = lies(vorsorgeBeispiel());
    ASSERT_EQ(liste->AnzahlFormulare(), 10u);
    // The allowance application without a second copy of its Version reads "0".
    const char* versionen[] = {"11.2001", "12.2002",    "08.2003", "01.2005", "10.2006",
                               "11.2006", "01.2007 01", "0",       "01.2006", "05.2007"};
    for (unsigned i = 0; i < 10; ++i)
        EXPECT_EQ(liste->liefereFormularAnPos(static_cast<int>(i))->RefVersion(), versionen[i]) << i;
    for (unsigned i = 0; i < 7; ++i) {
        const auto& bav =
            static_cast<const qbFormularBAV&>(*liste->liefereFormularAnPos(static_cast<int>(i)));
        EXPECT_EQ(bav.RefANBetriebsEintrittMitPkt(), "01.04.2000") << i;
        EXPECT_STREQ(bav.RefANPersNr(), "P-0815") << i;
        EXPECT_TRUE(bav.IsBeteiligungArbeitnehmer()) << i;
        EXPECT_EQ(bav.RefDVSonderZahlungPA(), 600.0) << i;
    }
    const auto& bav2001 = static_cast<const qbFormularBAV&>(*liste->liefereFormularAnPos(0));
    EXPECT_EQ(bav2001.RefTodGesetzReihenfolge(), "Ehegatte bzw. eingetragener Lebenspartner, Kinder");
    EXPECT_EQ(bav2001.IsUKFirmaIstMitglied(), 0xFF);
    const auto& bav2005 = static_cast<const qbFormularBAV&>(*liste->liefereFormularAnPos(3));
    EXPECT_EQ(bav2005.RefDatumAltZusageMitPkt(), "01.01.03");
    EXPECT_EQ(bav2005.RefTodGesetzReihenfolge(), "Kinder, Ehegatte bzw. eingetragener Lebenspartner");
    const auto& bav2007 = static_cast<const qbFormularBAV&>(*liste->liefereFormularAnPos(6));
    EXPECT_EQ(bav2007.RefSteuersatz(), 42.0);
    EXPECT_EQ(bav2007.RefArbeitnehmerAnzahl(), 25);
    EXPECT_STREQ(bav2007.RefFluktuationsrate(), "zwischen 10% und 25%");
    EXPECT_EQ(bav2007.RefagBeitragBeiMischFin(), 0.0);
    const auto& gn2005 = static_cast<const qbFormularGN056&>(*liste->liefereFormularAnPos(7));
    EXPECT_EQ(gn2005.GetFinanzamt(), "Finanzamt Regensburg");
    EXPECT_EQ(gn2005.GetVornameKind(0), "Lena");
    EXPECT_EQ(gn2005.GetGeburtsname(), "");
    const auto& gn2006 = static_cast<const qbFormularGN056&>(*liste->liefereFormularAnPos(8));
    EXPECT_EQ(gn2006.GetGeburtsname(), "Huber");
    EXPECT_EQ(gn2006.GetGeschlechtKind(0), "");
    const auto& gn2007 = static_cast<const qbFormularGN056&>(*liste->liefereFormularAnPos(9));
    EXPECT_EQ(gn2007.GetGeschlechtKind(0), "w");
    EXPECT_EQ(gn2007.GetbisJahrKind(0), 2004);
}

TEST(ToolVorsorgeBeispiel, ExplainNamesTheBranchOfEveryRecordAndEachEndsWhereTheNextBegins) {
    const Lauf lauf = qbformul({"explain", vorsorgeBeispiel()});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
    for (const char* zweig :
         {"qbFormularBAV: vor 12.2002", "qbFormularBAV: vor 08.2003", "qbFormularBAV: vor 01.2005",
          "qbFormularBAV: vor 10.2006", "qbFormularBAV: 10.2006", "qbFormularBAV: nach 10.2006",
          "qbFormularBAV: ab 01.2007 01", "qbFormularGN056: ohne zweite Version",
          "qbFormularGN056: mit zweiter Version"})
        EXPECT_TRUE(enthaelt(lauf.aus, std::string("layout of ") + zweig + "\n")) << zweig << "\n"
                                                                                  << lauf.aus;
}

TEST(ToolLegacyBeispiel, EveryRecordEndsWhereTheNextBegins) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
}

} // namespace
