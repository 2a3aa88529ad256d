// The stored example of old record layouts in examples/legacy: current, and read by the library and the
// tool.
#include "anwendungen.h"

#include "pension/qbFormularBAV.h"
#include "pension/qbFormularGN056.h"

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
    ASSERT_EQ(liste->AnzahlFormulare(), 6u);
    const char* versionen[] = {"10.1999", "01.2000", "09.2001", "11.2001", "03.2002", "08.2005"};
    for (unsigned i = 0; i < 6; ++i)
        EXPECT_EQ(liste->liefereFormularAnPos(static_cast<int>(i))->RefVersion(), versionen[i]) << i;

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
